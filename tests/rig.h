#pragma once
// Drives the core without a display: a host that answers from a script and writes down what it was
// asked, in order, as one text; and a model's records as texts.

#include "host/host.h"
#include "model/editor.h"
#include "model/store.h"

#include <array>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zentrik {

class ScriptedHost : public Host {
public:
    std::deque<std::string> answers;  // to input boxes, in order; none left = cancelled
    bool confirms = true;
    std::optional<std::size_t> chosen;  // none = Escape
    std::int32_t colour = none;
    std::int32_t version = none;  // chosen
    bool hasTrash = false;
    bool clipboardWorks = true, desktopWorks = true;
    int beeps = 0;
    std::string transcript, copied;

    std::string inputBox(const std::string& prompt, const std::string& title,
                         const std::string& preset) override {
        note("input", prompt + "|" + title + "|" + preset);
        if (answers.empty()) return {};
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void messageBox(const std::string& text, const std::string& title, BoxIcon) override {
        note("message", text + "|" + title);
    }
    bool confirm(const std::string& text, const std::string& title) override {
        note("confirm", text + "|" + title);
        return confirms;
    }
    std::size_t choose(const std::string& text, const std::string& title,
                       const std::vector<std::string>& choices, std::size_t otherwise) override {
        std::string names;
        for (const std::string& choice : choices) names += "|" + choice;
        note("choose", text + "|" + title + names);
        return chosen.value_or(otherwise);
    }
    std::int32_t chooseVersion(const std::string& project, const std::vector<std::string>& files) override {
        note("version", project + "|" + std::to_string(files.size()));
        return version;
    }
    std::int32_t SelectColor() override {
        note("colour", "");
        return colour;
    }
    void beep() override { ++beeps; }
    bool setClipboard(const std::string& text) override {
        copied = text;
        note("clipboard", text);
        return clipboardWorks;
    }
    bool openAddress(const std::string& address) override {
        note("open", address);
        return desktopWorks;
    }
    bool moveToTrash(const std::string& file) override {
        note("trash", file.substr(file.find_last_of('/') + 1));
        return hasTrash && std::filesystem::remove(file);
    }
    void fetchMessage(const std::string& address) override { note("fetch", address); }
    void showManual() override { note("manual", ""); }
    void showHelp(const std::string& page) override { note("help", page); }
    void showAbout() override { note("about", ""); }
    void resizeWindow(int width, int height) override {
        note("resize", std::to_string(width) + "|" + std::to_string(height));
    }
    void showPathWindow(bool visible) override { note("path", visible ? "shown" : "hidden"); }

private:
    void note(const std::string& what, const std::string& detail) {
        transcript += what + ": " + detail + "\n";
    }
};

// The places of the node slots and the ends of the link slots from a number on, as "100,200 0,0 " and
// "1-2 2-3 ", a dash for a free slot.
inline std::string placesOf(const Editor& ed, std::int32_t from = 1) {
    std::string text;
    for (std::int32_t i = from; i <= lastNode(ed); ++i) {
        const Node& node = nodeAt(ed, i);
        text += node.Used ? std::to_string(node.X) + "," + std::to_string(node.Y) + " " : "- ";
    }
    return text;
}
inline std::string endsOf(const Editor& ed, std::int32_t from = 1) {
    std::string text;
    for (std::int32_t j = from; j <= lastLink(ed); ++j) {
        const Link& link = linkAt(ed, j);
        text += link.Used ? std::to_string(link.N1) + "-" + std::to_string(link.N2) + " " : "- ";
    }
    return text;
}
// A flag of all slots, as "101".
template <class Record>
std::string flags(const std::vector<Record>& records, bool Record::*flag) {
    std::string text;
    for (std::size_t i = 1; i < records.size(); ++i) text += records[i].*flag ? '1' : '0';
    return text;
}

// The selected and hovered node, then the selected and hovered link.
inline std::array<std::int32_t, 4> selections(const Editor& ed) {
    return {ed.SelectedNode, ed.HoverNode, ed.SelectedLink, ed.HoverLink};
}
using Selections = std::array<std::int32_t, 4>;

}  // namespace zentrik
