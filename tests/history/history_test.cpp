// Undo and redo: what is a step, what comes back, and what it may cost.

#include "history/history.h"

#include "display/scene.h"
#include "edit/mouse.h"
#include "random_model.h"
#include "rig.h"
#include "scenes/scenes.h"
#include "sim/run.h"
#include "temporary_folder.h"
#include "ui/command_toolbar.h"
#include "ui/menus.h"
#include "ui/property_toolbar.h"
#include "ui/undo.h"
#include "undo_walk.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <string_view>

namespace zentrik {
namespace {

class Undo : public testing::Test {
protected:
    Editor ed_ = scenes::fullScreen();
    History history_;
    ScriptedHost host_;

    void SetUp() override {
        scenes::addNodes(ed_, {{1000, 1000}, {2000, 1000}, {2000, 2000}});
        scenes::addLinks(ed_, {{1, 2}, {2, 3}});
        ed_.savedText = "mine";
        startHistory(history_, ed_);
    }
    template <class Procedure>
    void perform(Procedure procedure, Event kind = Event::command, const char* what = "Change") {
        beginEvent(history_, ed_, kind);
        procedure();
        endEvent(history_, ed_, kind, what);
    }
    void choose(std::string_view name) {
        for (const MenuRow& row : menuRows())
            if (row.name == name) return perform([&] { chooseMenu(ed_, host_, row); });
        FAIL() << name;
    }
    void press(std::string_view key) {
        for (const CommandRow& row : commandRows())
            if (row.key == key) return perform([&] { pressCommand(ed_, host_, row); });
        FAIL() << key;
    }
    void ticks(int count) {
        for (; count > 0; --count) perform([&] { Timer1_Timer(ed_); }, Event::timer);
    }
    void mouse(auto procedure) { perform(procedure, Event::mouse, "Node moved"); }
    void drag(float fromX, float fromY, float toX, float toY) {
        mouse([&] { picS_MouseMove(ed_, 0, fromX, fromY); });
        mouse([&] { picS_MouseDown(ed_, leftButton, fromX, fromY); });
        mouse([&] { picS_MouseMove(ed_, leftButton, (fromX + toX) / 2, toY); });
        mouse([&] { picS_MouseMove(ed_, leftButton, toX, toY); });
        mouse([&] { picS_MouseUp(ed_, leftButton, toX, toY); });
    }
    void undo() { undoLast(ed_, history_); }
    void redo() { redoNext(ed_, history_); }
    std::string steps() const {
        std::string text;
        for (const Step& step : history_.done) text += step.what + "; ";
        return text;
    }
};

TEST_F(Undo, BringsBackModelSelectionAndName) {
    ed_.SelectedNode = 2;
    ed_.SelectedLink = 1;
    const std::string before = imageOf(ed_);
    choose("mnuRemoveNodes");
    EXPECT_EQ(UsedNodes(ed_), 0);
    ed_.savedText = "typed meanwhile";
    const std::string after = imageOf(ed_);
    undo();
    EXPECT_TRUE(imageOf(ed_) == before);
    EXPECT_EQ(ed_.SelectedNode, 2);
    EXPECT_EQ(ed_.SelectedLink, 1);
    EXPECT_EQ(ed_.savedText, "mine");
    EXPECT_EQ(panel(ed_, 1) + panel(ed_, 2), "Nodes: 3Links: 2");
    EXPECT_EQ(panel(ed_, 5), "Undone: All nodes removed");
    redo();
    EXPECT_TRUE(imageOf(ed_) == after);
    EXPECT_EQ(panel(ed_, 5), "Redone: All nodes removed");
    undo();
    press("up");
    EXPECT_TRUE(history_.undone.empty()) << "a new change drops what could be redone";
    EXPECT_EQ(steps(), "Change; ");
}

TEST_F(Undo, TakesAGestureOrARunAsOneStep) {
    const std::string first = imageOf(ed_);
    drag(2000, 2000, 3000, 3000);
    EXPECT_EQ(steps(), "Node moved; ");
    mouse([&] { picS_MouseDown(ed_, rightButton, 0, 0); });
    drag(5000, 5000, 5500, 5000);
    EXPECT_EQ(steps(), "Node moved; Node 4 added; ");
    const std::string drawn = imageOf(ed_);
    press("start");
    ticks(5);
    press("grid");  // changes nothing that is kept, so the run stays one
    ticks(5);
    EXPECT_EQ(history_.done.size(), 2U);
    choose("mnuLockAll");
    EXPECT_EQ(steps(), "Node moved; Node 4 added; Animation run; All nodes locked; ");
    ticks(3);
    undo();
    EXPECT_FALSE(ed_.Timer1.enabled || ed_.buttons.start) << "undo stops the run first";
    undo();
    undo();
    EXPECT_TRUE(imageOf(ed_) == drawn);
    press("single");
    ticks(1);
    EXPECT_EQ(steps(), "Node moved; Node 4 added; Animation run; ") << "a single step ends by itself";
    for (int i = 0; i < 3; ++i) undo();
    EXPECT_TRUE(imageOf(ed_) == first);
    undo();
    EXPECT_EQ(panel(ed_, 5), "There is nothing to undo.");
    redo();
    mouse([&] { picS_MouseDown(ed_, rightButton, 0, 0); });
    mouse([&] { picS_MouseMove(ed_, 0, 3000, 3000); });
    mouse([&] { picS_MouseDown(ed_, leftButton, 3000, 3000); });
    redo();
    EXPECT_FALSE(ed_.MouseIsDown) << "redo takes the node from the hand";
    undo();
    press("start");
    ticks(2);
    redo();
    EXPECT_FALSE(ed_.Timer1.enabled);
    EXPECT_EQ(steps(), "Node moved; Animation run; ") << "and stops the run, which is the last change";
}

TEST_F(Undo, SelectingIsNoStepEvenWhileItRuns) {
    ed_.marks.mnuDisplayAngleManager = true;
    press("start");
    ticks(2);
    mouse([&] { picS_MouseMove(ed_, 0, 1000, 1000); });
    const auto x = static_cast<float>(ed_.Nodes[1].X), y = static_cast<float>(ed_.Nodes[1].Y);
    mouse([&] { picS_MouseDown(ed_, leftButton, x, y); });
    mouse([&] { picS_MouseUp(ed_, leftButton, x, y); });
    ticks(2);
    press("start");
    EXPECT_EQ(steps(), "Animation run; ");
    press("nextnode");
    choose("mnuDisplayAngleManager");
    EXPECT_EQ(steps(), "Animation run; ");
}

TEST(UndoWalks, LeadBackToTheFirstModelAndForthToTheLast) {
    for (std::uint32_t seed = 1; seed <= 60; ++seed)
        EXPECT_EQ(undoWalk(seed, 120, ZENTRIK_SOURCE_DIR), "") << "seed " << seed;
}

std::string painted(const Editor& ed) {
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    drawScene(painter, ed, {});
    painter.end();
    return {reinterpret_cast<const char*>(image.constBits()), static_cast<std::size_t>(image.sizeInBytes())};
}

Editor walkedModel() {
    Editor model = scenes::latticeOf(20);
    model.chance.seedSource = [] { return std::uint64_t{7}; };
    for (std::int32_t i = 1; i <= lastNode(model); ++i) {
        Node& node = nodeAt(model, i);
        node.X = node.X % 7000 + 500, node.Y = node.Y % 4000 + 800;
        node.Locked = i % 5 == 0;
        node.color = i * 1234567 % (1 << 24);
    }
    for (std::int32_t j = 1; j <= lastLink(model); ++j) linkAt(model, j).Animator = j % 3 == 0;
    return model;
}

// A line that differs from trails.txt is the first event after which something is otherwise than it was.
// After a change that is meant, the text in the working folder takes its place.
TEST(UndoWalks, GoOnTheTrailsWrittenDown) {
    std::string trails;
    for (std::uint32_t seed = 101; seed <= 116; ++seed)
        trails += "== " + std::to_string(seed) + "\n" + walkedTrail(seed, 80, walkedModel(), painted);
    putFile("trails.txt", trails);
    const std::string known = contentOf(ZENTRIK_SOURCE_DIR "/tests/trails.txt");
    const auto [now, before] = std::mismatch(trails.begin(), trails.end(), known.begin(), known.end());
    const auto lines = static_cast<int>(std::count(trails.begin(), now, '\n'));
    EXPECT_TRUE(trails == known) << "line " << lines + 1 << " of trails.txt is another";
}

TEST_F(Undo, TellsWhetherTheFileHoldsTheModel) {
    const auto modified = [&] { return isModified(history_, ed_); };
    EXPECT_FALSE(modified());
    choose("mnuLockAll");
    EXPECT_TRUE(modified());
    perform([&] { ++ed_.filedCount; });  // saved
    EXPECT_FALSE(modified());
    undo();
    EXPECT_TRUE(modified());
    redo();
    EXPECT_FALSE(modified());
    press("start");
    ticks(2);
    press("grid");
    ticks(2);
    undo();
    EXPECT_FALSE(modified()) << "whatever was pressed during the run";
    ed_.savedText = "another";
    EXPECT_TRUE(modified());
    ed_.savedText = "mine";
    perform([&] { ed_.goneName = "mine", ++ed_.goneCount, ed_.savedText = "renamed"; });
    EXPECT_FALSE(modified());
    perform([&] { ed_.goneName = "renamed", ++ed_.goneCount; });
    EXPECT_TRUE(modified()) << "its file is gone";
    press("start");
    ticks(1);
    EXPECT_TRUE(modified());
}

TEST_F(Undo, TellsWhatIsThrownAwayThatNoFileHolds) {
    std::string told;  // how many nodes each lost model had
    const auto lost = [&] {
        told.clear();
        for (const Lost& model : std::exchange(history_.lost, {}))
            told += model.project + std::to_string(sizeOf(model.model).nodes) + " ";
        return told;
    };
    const auto draw = [&](float x) { perform([&] { appendNode(ed_, standardNode(ed_, x, 5000)); }); };
    const auto remove = [&] { perform([&] { ed_.SelectedNode = UsedNodes(ed_), DeleteNode(ed_); }); };
    for (int i = 1; i <= 5; ++i) draw(500.0F * static_cast<float>(i));
    for (int i = 0; i < 4; ++i) remove();
    EXPECT_EQ(lost(), "") << "4 of 8 can be drawn again";
    remove();
    EXPECT_EQ(lost(), "mine8 ") << "node by node goes as well as at once";
    remove();
    EXPECT_EQ(lost(), "") << "told once";

    for (int i = 0; i < 5; ++i) undo();
    draw(600);
    EXPECT_EQ(lost(), "mine2 ") << "what could be redone";
    undo();
    draw(700);
    EXPECT_EQ(lost(), "") << "a slip";

    press("start");
    ticks(2);
    EXPECT_EQ(lost(), "mine8 ") << "as it was before it ran, even if it never stops";
    drag(static_cast<float>(ed_.Nodes[2].X), static_cast<float>(ed_.Nodes[2].Y), 3000, 3000);
    ticks(2);
    EXPECT_EQ(lost(), "") << "a node dragged while it runs makes no new start";
    press("start");
    undo();
    perform([&] { ++ed_.filedCount; });  // saved
    press("new");
    EXPECT_EQ(lost(), "mine8 ") << "the one that was undone";
}

TEST_F(Undo, KeepsDifferencesWithinItsLimit) {
    ed_ = scenes::latticeOf(10000);
    startHistory(history_, ed_);
    drag(static_cast<float>(ed_.Nodes[500].X), static_cast<float>(ed_.Nodes[500].Y), 9000, 9000);
    ASSERT_EQ(history_.done.size(), 1U);
    EXPECT_LT(history_.bytes, 1000U);
    for (int i = 0; i < 400; ++i) press(i % 2 == 0 ? "up" : "increase");
    EXPECT_LE(history_.bytes, historyLimit);
    EXPECT_LT(history_.done.size(), 400U) << "the oldest are gone";
    const std::size_t kept = history_.done.size();
    EXPECT_GT(kept, 20U);
    while (!history_.done.empty()) stepBack(history_, ed_);
    while (!history_.undone.empty()) stepForth(history_, ed_);
    EXPECT_EQ(history_.done.size(), kept);
    undo();
    choose("mnuLockAll");
    while (history_.done.size() > 1) stepBack(history_, ed_);
    choose("mnuLockAll");
    EXPECT_LT(history_.bytes, historyLimit / 10) << "what cannot be redone any more takes no room";
}

}  // namespace
}  // namespace zentrik
