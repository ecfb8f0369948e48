#pragma once
// Drives the core without a display: a host that answers from a script and writes down what it was
// asked, in order, as one text.

#include "model/editor.h"
#include "model/host.h"

#include <deque>
#include <string>

namespace zentrik {

class ScriptedHost : public Host {
public:
    std::deque<std::string> answers;  // to input boxes, in order; none left = cancelled
    bool confirms = true;
    std::int32_t colour = none;
    bool desktopWorks = true;
    int beeps = 0;
    std::string transcript;

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
    std::int32_t SelectColor() override {
        note("colour", "");
        return colour;
    }
    void beep() override { ++beeps; }
    bool setClipboard(const std::string& text) override {
        note("clipboard", text);
        return desktopWorks;
    }
    bool openAddress(const std::string& address) override {
        note("open", address);
        return desktopWorks;
    }
    void fetchMessage(const std::string& address) override { note("fetch", address); }
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

}  // namespace zentrik
