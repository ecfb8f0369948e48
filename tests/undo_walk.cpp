#include "undo_walk.h"

#include "edit/mouse.h"
#include "edit/phase_mouse.h"
#include "effects/fireworks.h"
#include "history/history.h"
#include "library/library.h"
#include "random_model.h"
#include "rig.h"
#include "sim/run.h"
#include "ui/command_toolbar.h"
#include "ui/commands/copy_paste.h"
#include "ui/keys.h"
#include "ui/menus.h"
#include "ui/property_toolbar.h"
#include "ui/undo.h"

#include <array>
#include <cstdio>
#include <random>
#include <string_view>
#include <utility>

namespace zentrik {

namespace {

template <class T>
void append(std::string& out, const T& value) {
    out.append(reinterpret_cast<const char*>(&value), sizeof value);
}
void append(std::string& out, const std::string& text) { out += text + '\0'; }

template <class Fields>
void appendAll(std::string& out, const Fields& fields) {
    std::apply([&](const auto&... field) { (append(out, field), ...); }, fields);
}

class Walk {
public:
    Walk(std::uint32_t seed, Editor model, const std::string& programFolder)
        : random_(seed), ed_(std::move(model)) {
        ed_.programFolder = programFolder;
        ed_.SelectedNode = none;
        ed_.Timer1.enabled = ed_.buttons.start = false;
        LoadListOfFileNames(ed_, host_, false);
        ed_.savedText = "mine";
        startHistory(history_, ed_);
    }

    std::string run(int events) {
        const std::string first = imageOf(ed_);
        for (int i = 0; i < events; ++i) {
            event();
            if (lastNode(ed_) > 2000 || lastLink(ed_) > 4000) command(*findMenu("mnuRemoveNodes"));
        }
        closeStep(history_, ed_);
        while (!history_.undone.empty()) stepForth(history_, ed_);
        // Traces that no step has seen belong to no state.
        static_cast<Contents&>(ed_) = history_.shown;
        const std::string last = imageOf(ed_);
        while (!history_.done.empty()) stepBack(history_, ed_);
        if (imageOf(ed_) != first) return "undoing everything does not give the first model";
        while (!history_.undone.empty()) stepForth(history_, ed_);
        return imageOf(ed_) == last ? "" : "redoing everything does not give the last model";
    }

    std::string trail(int events, const std::function<std::string(const Editor&)>& picture) {
        std::string text;
        for (int i = 0; i < events; ++i) {
            what_.clear();
            while (what_.empty()) event();
            text += what_ + " " + hashOf(seen() + (i % 3 == 0 ? picture(ed_) : "")) + " " +
                    panel(ed_, 5).substr(0, 60) + "\n";
        }
        return text;
    }

private:
    static std::string hashOf(const std::string& bytes) {
        std::uint32_t hash = 0x811c9dc5;  // FNV-1a
        for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x01000193U;
        std::array<char, 9> text{};
        std::snprintf(text.data(), text.size(), "%08x", hash);
        return text.data();
    }
    std::string seen() {
        std::string all = imageOf(ed_) + host_.transcript;
        host_.transcript.clear();
        for (const std::string& text : ed_.panels) append(all, text);
        for (const PropertyRow& row : propertyRows()) {
            if (row.tip != nullptr) append(all, ed_.tips.*row.tip);
            if (row.pressed != nullptr) append(all, ed_.buttons.*row.pressed);
        }
        for (const CommandRow& row : commandRows())
            if (row.pressed != nullptr) append(all, ed_.buttons.*row.pressed);
        for (const MenuRow& row : menuRows())
            if (row.mark != nullptr) append(all, ed_.marks.*row.mark);
        for (const bool flag :
             {ed_.nodeControls, ed_.linkControls, ed_.Timer1.enabled, ed_.timerFireWorks.enabled,
              ed_.instructionsShown, std::exchange(ed_.sceneStale, false),
              std::exchange(ed_.phaseStale, false), std::exchange(ed_.marksStale, false)})
            append(all, flag);
        for (const std::int32_t number :
             {ed_.SelectedNode, ed_.SelectedLink, ed_.HoverNode, ed_.HoverLink, ed_.SelectedAnimatorLink,
              ed_.PhaseOverLink, ed_.LastShooter, ed_.Cycles, ed_.NodeRadius, ed_.LinkColor, ed_.NodeColor,
              ed_.BackColor, ed_.spriteEntry, ed_.pathErased, static_cast<std::int32_t>(ed_.pathDots.size())})
            append(all, number);
        return all;
    }
    int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    static const MenuRow* findMenu(std::string_view name) {
        for (const MenuRow& row : menuRows())
            if (row.name == name) return &row;
        return nullptr;
    }
    template <class Rows>
    const auto& rowOf(const Rows& rows) {
        return rows[static_cast<std::size_t>(below(static_cast<int>(rows.size())))];
    }

    template <class Procedure>
    void perform(Event kind, const std::string& what, Procedure procedure) {
        what_ = what;
        beginEvent(history_, ed_, kind);
        procedure();
        endEvent(history_, ed_, kind, what);
    }
    void command(const MenuRow& row) {
        perform(Event::command, row.caption, [&] { chooseMenu(ed_, host_, row); });
    }
    void event() {
        const char* const answers[] = {"", "3:500", "5:700", "7.5", "abc", "20", "-4:x"};
        host_.answers = {answers[below(static_cast<int>(std::size(answers)))]};
        host_.colour = below(3) != 0 ? below(1 << 24) : none;
        switch (below(12)) {
            case 0:
            case 1:
                return gesture();
            case 2:
                for (int ticks = below(4); ticks >= 0; --ticks) tick();
                return;
            case 3:
                what_ = "undo and redo";
                for (int steps = below(6); steps > 0; --steps) undoLast(ed_, history_);
                for (int steps = below(6); steps > 0; --steps) redoNext(ed_, history_);
                return;
            case 4: {
                const PropertyRow& row = rowOf(propertyRows());
                if (row.isButton()) perform(Event::command, row.key, [&] { pressProperty(ed_, host_, row); });
                return;
            }
            case 5:
            case 6: {
                const CommandRow& row = rowOf(commandRows());
                const std::string_view key = row.key;
                if (row.isButton() && key != "save" && key != "email")
                    perform(Event::command, row.tip, [&] { pressCommand(ed_, host_, row); });
                return;
            }
            case 7:
                if (below(10) == 0 && !ed_.savedNames.empty())
                    perform(Event::command, "Opened", [&] {
                        lstSaved_Click(ed_, host_, below(static_cast<int>(ed_.savedNames.size())));
                    });
                return;
            case 8: {
                const KeyRow& row = rowOf(keyRows());
                if (row.command != nullptr)
                    perform(Event::command, row.keys, [&] { row.command(ed_, host_); });
                return;
            }
            case 9: {
                copyObject(ed_, host_);
                const float x = static_cast<float>(below(9000)), y = static_cast<float>(below(6000));
                return perform(Event::command, "paste", [&] { pasteObject(ed_, host_.copied, {x, y}); });
            }
            default: {
                const MenuRow& row = rowOf(menuRows());
                if (row.name != std::string_view("mnuEmail")) command(row);
            }
        }
    }
    void tick() {
        if (ed_.timerFireWorks.enabled && below(3) == 0)
            perform(Event::timer, "fireworks", [&] { timerFireWorks_Timer(ed_); });
        if (ed_.Timer1.enabled) perform(Event::timer, "tick", [&] { Timer1_Timer(ed_); });
    }
    void gesture() {
        const auto place = [&] { return static_cast<float>(below(9000)); };
        float x = place(), y = place();
        const std::int32_t node = below(lastNode(ed_) + 1);
        if (below(4) != 0 && node != 0) {
            x = static_cast<float>(nodeAt(ed_, node).X);
            y = static_cast<float>(nodeAt(ed_, node).Y);
        }
        const int button = below(4) == 0 ? rightButton : leftButton;
        const auto mouse = [&](auto call) { perform(Event::mouse, "Node moved", call); };
        if (below(4) == 0) {
            mouse([&] { picPhase_MouseDown(ed_, button, x, 300); });
            mouse([&] { picPhase_MouseMove(ed_, y, 300); });
            if (below(4) != 0) mouse([&] { picPhase_MouseUp(ed_); });
            if (below(4) == 0) mouse([&] { picPhase_DblClick(ed_); });
            return;
        }
        mouse([&] { picS_MouseMove(ed_, 0, x, y); });
        mouse([&] { picS_MouseDown(ed_, button, x, y); });
        for (int moves = below(4); moves > 0; --moves) {
            mouse([&] { picS_MouseMove(ed_, button, place(), place()); });
            tick();
        }
        if (below(8) != 0) mouse([&] { picS_MouseUp(ed_, button, place(), place()); });
        if (below(6) == 0) mouse([&] { picS_DblClick(ed_); });
    }

    std::mt19937 random_;
    Editor ed_;
    History history_;
    ScriptedHost host_;
    std::string what_;  // came last
};

}  // namespace

std::string imageOf(const Editor& ed) {
    std::string image;
    for (const Node& node : ed.Nodes) appendAll(image, meaningOf(node)), appendAll(image, tracesOf(node));
    for (const Link& link : ed.Links) appendAll(image, meaningOf(link)), appendAll(image, tracesOf(link));
    appendAll(image, std::tie(ed.ProjectTitle, ed.TimeDirection));
    const ProjectSettings& settings = ed;
    return image.append(reinterpret_cast<const char*>(&settings), sizeof settings);
}

std::string walkedTrail(std::uint32_t seed, int events, Editor model,
                        const std::function<std::string(const Editor& ed)>& picture) {
    return Walk(seed, std::move(model), "/nonexistent/zentrik").trail(events, picture);
}

std::string undoWalk(std::uint32_t seed, int events, const std::string& programFolder) {
    return Walk(seed, randomModel(seed), programFolder).run(events);
}

}  // namespace zentrik
