// Random sequences of editing commands on random models, with selections that name no slot, links to
// nodes that are not there and odd settings, against what must hold after every single one.

#include "edit/mouse.h"
#include "edit/phase_mouse.h"
#include "effects/fireworks.h"
#include "model/invariants.h"
#include "random_model.h"
#include "rig.h"
#include "sim/run.h"
#include "ui/command_toolbar.h"
#include "ui/menus.h"
#include "ui/property_toolbar.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace zentrik {
namespace {

const char* const answers[] = {"",     "3:500",        "5:700", "1:1",  "7.5", "abc",
                               "1e30", "2000000000:5", "0:0",   "-4:x", "-1"};

class RandomEditing {
public:
    explicit RandomEditing(unsigned seed) : random_(seed) {}

    void run(int events) {
        startModel();
        for (int i = 0; i < events && !testing::Test::HasFailure(); ++i) {
            if (lastNode(ed_) > 1500 || lastLink(ed_) > 3000 || UsedNodes(ed_) < 2) startModel();
            if (below(4) == 0) disturb();
            if (below(8) == 0) Timer1_Timer(ed_);
            const std::int32_t dangling = danglingLinks();
            const std::string what = event();
            EXPECT_EQ(brokenRule(ed_), "") << "after " << what;
            EXPECT_LE(danglingLinks(), dangling) << "after " << what;
            EXPECT_FALSE(ed_.Nodes[0].Used || ed_.Links[0].Used);
        }
    }

private:
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }
    bool flip() { return below(2) == 0; }
    float coordinate() { return static_cast<float>(below(20) ? below(6000) : (below(3) - 1) * 4e9); }

    void startModel() {
        ed_ = randomModel(static_cast<std::uint32_t>(random_()));
        ed_.programFolder = "/nonexistent/zentrik";
        ed_.SelectedNode = none;
    }
    // What other parts of the program may do between two commands.
    void disturb() {
        const auto anySlot = [&] { return below(3) ? below(lastNode(ed_) + 10) + 1 : none; };
        for (bool* flag : {&ed_.marks.mnuApplyChanges, &ed_.marks.mnuUseRandom, &ed_.buttons.draw,
                           &ed_.marks.mnuDisplayAngleManager, &ed_.buttons.same, &ed_.buttons.snap,
                           &ed_.DrawMode, &ed_.MouseIsDown, &ed_.Timer1.enabled, &ed_.SelectedNodeClicked})
            *flag = flip();
        ed_.SelectedNode = anySlot();
        ed_.SelectedLink = anySlot();
        ed_.HoverNode = anySlot();
        ed_.HoverLink = anySlot();
        ed_.LastShooter = below(60);
        constexpr std::int32_t radii[] = {90, 90, 30, 0, -70, std::numeric_limits<std::int32_t>::max()};
        ed_.HitRadius = radii[below(6)];
    }
    template <class Rows>
    const auto& rowOf(const Rows& rows) {
        return rows[static_cast<std::size_t>(below(static_cast<int>(rows.size())))];
    }
    std::string event() {
        const float x = coordinate(), y = coordinate();
        const int button = 1 << below(3);
        const char* answer = answers[below(std::size(answers))];
        host_.answers = {answer};
        switch (below(12)) {
            case 0:
                picS_MouseMove(ed_, button, x, y);
                return "move";
            case 1:
                press(button, x, y);
                return "press";
            case 2:
                picS_MouseUp(ed_, button, x, y);
                return "release";
            case 3:
                picS_DblClick(ed_);
                return "double click";
            case 4:
                timerFireWorks_Timer(ed_);
                return "fireworks";
            case 5:
                picPhase_MouseDown(ed_, button, x, 300);
                picPhase_MouseMove(ed_, y, 300);
                return "drag in the strip";
            case 6: {
                const PropertyRow& row = rowOf(propertyRows());
                if (row.isButton()) pressProperty(ed_, host_, row);
                if (row.style == ButtonStyle::dropDown) choosePreset(ed_, host_, row, answer);
                return row.key;
            }
            case 7: {
                const CommandRow& row = rowOf(commandRows());
                if (row.key != std::string("reposition")) pressCommand(ed_, host_, row);
                return row.key;
            }
            default: {
                const MenuRow& row = rowOf(menuRows());
                chooseMenu(ed_, host_, row);
                return row.name;
            }
        }
    }
    void press(int button, float x, float y) {
        const std::int32_t nodes = lastNode(ed_);
        picS_MouseDown(ed_, button, x, y);
        if (lastNode(ed_) == nodes) return;
        EXPECT_EQ(ed_.SelectedNode, lastNode(ed_));
        EXPECT_EQ(panel(ed_, 2), "Links: " + std::to_string(UsedLinks(ed_)));
    }
    // Used links that lack a used node at an end; a hand-made model has some, no command adds any.
    std::int32_t danglingLinks() const {
        const auto present = [&](std::int32_t i) { return nodeExists(ed_, i) && nodeAt(ed_, i).Used; };
        std::int32_t count = 0;
        for (const Link& link : ed_.Links) count += link.Used && !(present(link.N1) && present(link.N2));
        return count;
    }

    Editor ed_;
    ScriptedHost host_;
    std::mt19937 random_;
};

TEST(RandomCommands, LeaveTheRecordWhole) {
    for (unsigned seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE(seed);
        RandomEditing(seed).run(400);
    }
}

}  // namespace
}  // namespace zentrik
