// Going back and forth through a run gives the bits that the run gave.

#include "history/timeline.h"

#include "edit/mouse.h"
#include "effects/fireworks.h"
#include "random_model.h"
#include "rig.h"
#include "scenes/scenes.h"
#include "sim/run.h"
#include "ui/commands/time_travel.h"
#include "ui/menus.h"
#include "ui/undo.h"
#include "undo_walk.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace zentrik {
namespace {

class TimeTravel : public testing::Test {
protected:
    Editor ed_;
    Timeline timeline_;
    History history_;
    ScriptedHost host_;
    std::vector<std::string> images_;  // of every step of the run

    void begin(Editor ed) {
        ed_ = std::move(ed);
        ed_.Timer1.enabled = ed_.buttons.start = false;
        startHistory(history_, ed_);
        timeline_ = Timeline{};
        timeline_.replacedCount = ed_.replacedCount;
        images_.clear();
        command([&] { ed_.buttons.start = true, startClicked(ed_, host_); });
    }
    void perform(Event event, auto act) {
        beginEvent(history_, ed_, event);
        noteBegin(timeline_, history_);
        act();
        endEvent(history_, ed_, event, "Change");
        followEvent(timeline_, ed_, history_, event);
    }
    void command(auto act) { perform(Event::command, act); }
    void run(int steps) {
        if (images_.empty()) images_.push_back(imageOf(ed_));
        for (; steps > 0 && ed_.Timer1.enabled; --steps) {
            perform(Event::timer, [&] { tick(timeline_, ed_); });
            images_.push_back(imageOf(ed_));
        }
    }
    void edit(auto act) {
        command(act);
        images_.back() = imageOf(ed_);
    }
    void singleStep() {
        command([&] { singleClicked(ed_, host_); });
        perform(Event::timer, [&] { tick(timeline_, ed_); });
    }
    void stop() {
        command([&] { stopAnimation(ed_); });
    }
    void undo() { retrace(ed_, history_, timeline_, undoLast); }
    void redo() { retrace(ed_, history_, timeline_, redoNext); }
    void go(int steps) { travelBy(ed_, history_, timeline_, steps); }
    bool asItWas() const { return imageOf(ed_) == images_.at(static_cast<std::size_t>(timeline_.at)); }
    void wander(std::uint32_t seed, int ways) {
        std::mt19937 random(seed);
        for (; ways > 0; --ways) {
            const int far = random() % 3 == 0 ? 400 : 3;
            go(static_cast<int>(random() % static_cast<unsigned>(2 * far + 1)) - far);
            ASSERT_TRUE(asItWas()) << "step " << timeline_.at << " of " << timeline_.run.last << ", seed "
                                   << seed;
        }
    }
};

// A redraw after a journey may leave traces of its own.
Editor quiet(Editor ed) {
    ed.buttons.ball = ed.marks.mnuDisplayAngleManager = false;
    return ed;
}

TEST_F(TimeTravel, GivesTheSameBitsWhateverHappenedInTheRun) {
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        begin(quiet(randomModel(seed)));
        ed_.marks.mnuRandom = seed % 2 == 0;
        ed_.marks.mnuDisplayFireWorks = seed % 3 == 0;
        timeline_.limit = seed % 4 == 0 ? 40000 : 64U << 20;
        run(70);
        if (!ed_.Timer1.enabled) continue;
        edit([&] { ed_.marks.mnuWalls = !ed_.marks.mnuWalls; });
        run(30);
        perform(Event::timer, [&] { timerFireWorks_Timer(ed_), noteEdit(timeline_); });
        images_.back() = imageOf(ed_);
        run(50);
        edit([&] { ed_.Gravity += 1, ed_.buttons.slow = true; });
        run(60);
        stop();
        wander(seed, 60);
        EXPECT_LE(timeline_.run.bytes, timeline_.limit + 200000);
    }
}

TEST_F(TimeTravel, GivesBackEveryMarkThatAStepReads) {
    for (const MenuRow& row : menuRows()) {
        if (row.mark == nullptr || row.mark == &Marks::mnuDisplayAngleManager) continue;
        for (std::uint32_t seed = 1; seed <= 8; ++seed) {
            Editor ed = quiet(randomModel(seed));
            ed.marks.*row.mark = seed % 2 == 0;
            begin(std::move(ed));
            run(20);
            if (!ed_.Timer1.enabled) continue;
            edit([&] { ed_.marks.*row.mark = !(ed_.marks.*row.mark); });
            run(20);
            stop();
            for (const int steps : {-10, -20, 5, 20}) {
                go(steps);
                EXPECT_TRUE(asItWas()) << row.name << ", seed " << seed << ", step " << timeline_.at;
            }
        }
    }
}

TEST_F(TimeTravel, AChangeAtAnEarlierTimeMakesThatThePresent) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}, {4000, 1000}});
    scenes::addLinks(ed, {{1, 2}});
    begin(ed);
    run(50);
    stop();
    const std::string end = imageOf(ed_);
    go(-20);
    EXPECT_EQ(panel(ed_, 5), "Step 30 of 50");
    EXPECT_TRUE(asItWas());
    go(-1000);
    EXPECT_EQ(timeline_.at, 0);
    go(1000);
    EXPECT_TRUE(imageOf(ed_) == end);
    EXPECT_EQ(history_.done.size(), 1U) << "a journey there and back is no step";
    go(-20);
    command([&] { ed_.buttons.grid = !ed_.buttons.grid; });
    go(5);
    EXPECT_EQ(panel(ed_, 5), "Step 35 of 50") << "an option that no step reads drops nothing";
    go(-5);
    command([&] { ed_.Nodes[1].Mass = 3; });
    go(5);
    EXPECT_EQ(panel(ed_, 5), "Step 30 of 30");
    EXPECT_EQ(ed_.Nodes[1].Mass, 3);
    go(-1);
    EXPECT_EQ(ed_.Nodes[1].Mass, 1);
    go(1);
    EXPECT_EQ(ed_.Nodes[1].Mass, 3);
    undo();
    undo();
    EXPECT_TRUE(imageOf(ed_) == end) << "what was dropped comes back by undo";
    go(-1);
    EXPECT_EQ(panel(ed_, 5), "Step 49 of 50") << "and so does the run";
    EXPECT_TRUE(asItWas());
}

TEST_F(TimeTravel, GivesBackTheCyclesThatTheColoursChangeBy) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}, {4000, 1000}});
    ed.marks.mnuRandom = true;
    begin(ed);
    run(47);
    stop();
    go(-7);
    EXPECT_EQ(panel(ed_, 3), "Cycles: 40");
    for (int i = 41; i <= 49; ++i) {
        singleStep();
        EXPECT_TRUE(i > 47 || asItWas()) << i;
    }
    const std::string last = imageOf(ed_);
    go(-6);
    EXPECT_TRUE(asItWas());
    go(6);
    EXPECT_TRUE(imageOf(ed_) == last);
}

TEST_F(TimeTravel, AStretchIsFromAStartToTheNext) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}});
    begin(ed);
    run(20);
    stop();
    command([&] { ed_.buttons.start = true, startClicked(ed_, host_); });
    run(10);
    const auto stretch = [this](std::int64_t step) {
        const Stretch found = stretchAt(timeline_.run, step);
        return std::pair(found.begin, found.end);
    };
    EXPECT_EQ(stretch(19), std::pair(std::int64_t{0}, std::int64_t{20}));
    EXPECT_EQ(stretch(25), std::pair(std::int64_t{20}, std::int64_t{30}));
}

// A step's chance is its own: tied to the run, and yet another at every step.
TEST_F(TimeTravel, EveryStepHasAChanceOfItsOwn) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}, {4000, 1000}, {5000, 1000}});
    ed.marks.mnuRandom = true;
    begin(std::move(ed));
    std::set<std::vector<std::int32_t>> seen;
    for (int round = 0; round < 5; ++round) {
        run(10);
        std::vector<std::int32_t> colours;
        for (const Node& node : ed_.Nodes) colours.push_back(node.color);
        seen.insert(colours);
    }
    EXPECT_EQ(seen.size(), 5U);
}

TEST_F(TimeTravel, StartingGoesOnFromThere) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}});
    begin(ed);
    run(40);
    const std::string fortieth = images_.back();
    stop();
    go(-15);
    for (int i = 0; i < 3; ++i) singleStep();
    EXPECT_EQ(timeline_.run.last, 28);
    EXPECT_TRUE(imageOf(ed_) == images_[28]);
    command([&] { ed_.buttons.start = true, startClicked(ed_, host_); });
    go(-1);
    EXPECT_EQ(timeline_.at, 28) << "only while it stands";
    for (int i = 0; i < 12; ++i) perform(Event::timer, [&] { tick(timeline_, ed_); });
    EXPECT_TRUE(imageOf(ed_) == fortieth);
    stop();
    go(-100);
    EXPECT_EQ(panel(ed_, 5), "Step 0 of 40") << "the run goes on over a start";
    wander(1, 20);
}

TEST_F(TimeTravel, UndoLeadsBackIntoTheRun) {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{3000, 1000}, {4000, 1000}});
    ed.marks.mnuRandom = true;
    begin(ed);
    const auto expectAt = [&](const char* text) {
        EXPECT_EQ(panel(ed_, 5), text);
        EXPECT_TRUE(asItWas()) << text;
    };
    const char* nowhere = "Start the animation first: there is no run to go through.";
    run(50);
    command([&] { ed_.Nodes[1].Mass = 3; });  // ends the step of the run, not the run
    run(10);
    stop();
    undo();
    go(1);
    expectAt("Step 51 of 60");
    go(-1);
    undo();
    images_[50] = imageOf(ed_);
    go(0);
    expectAt("Step 50 of 50");
    undo();
    go(7);
    expectAt("Step 7 of 50");
    singleStep();  // of one step with the journey before it
    undo();
    redo();
    go(-2);
    expectAt("Step 6 of 8");
    command([&] { ClearAnimation(ed_); });
    go(-1);
    EXPECT_EQ(panel(ed_, 5), nowhere);
    undo();
    go(1);
    expectAt("Step 7 of 8");
    while (!history_.done.empty()) undo();
    go(1);
    expectAt("Step 1 of 8");
    const auto nodes = ed_.Nodes;
    command([&] { ClearAnimation(ed_); });
    command([&] { ed_.Nodes = nodes; });
    singleStep();
    go(-1);
    EXPECT_EQ(panel(ed_, 5), "Step 0 of 1") << "the run of another model";
}

}  // namespace
}  // namespace zentrik
