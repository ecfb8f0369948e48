// The sample projects as a new user meets them: first-run settings, what the title asks for, the start
// button, and ten minutes.

#include "library/zoo.h"

#include "measure/state_hash.h"
#include "model/store.h"
#include "rig.h"
#include "scenes/visit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>

namespace zentrik {

namespace {

using scenes::Size;
using Names = std::set<std::string>;

std::vector<std::string> names() { return projectNames(ZENTRIK_SOURCE_DIR); }

struct Range {
    double least = 1e9, most = -1e9;

    void add(double value) { least = std::min(least, value), most = std::max(most, value); }
    double size() const { return most - least; }
};

// What was seen of a model in passing.
struct Watch {
    Range centre;                        // of all nodes, across
    std::map<std::int32_t, Range> x, y;  // of each node that is not locked

    void look(const Editor& ed) {
        double sum = 0;
        forEachNode(ed, [&](std::int32_t i, const Node& node) {
            sum += node.X;
            if (node.Locked) return;
            x[i].add(node.X);
            y[i].add(node.Y);
        });
        centre.add(sum / UsedNodes(ed));
    }
    double farthest() const {
        double farthest = 0;
        for (const auto& [i, range] : x) farthest = std::max({farthest, range.size(), y.at(i).size()});
        return farthest;
    }
};

double height(const Editor& ed) {
    Range range;
    forEachNode(ed, [&](std::int32_t, const Node& node) { range.add(node.Y); });
    return range.size();
}

// What no sample may do at any time.
void expectWhole(const Editor& ed) {
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        const bool inSight = node.X > 0 && node.X < ed.sceneWidth && node.Y > 0 && node.Y < ed.sceneHeight;
        EXPECT_TRUE(inSight) << "node " << i << " at " << node.X << ", " << node.Y;
        EXPECT_LT(std::hypot(double(node.Vx), double(node.Vy)), 15000) << "node " << i;
    });
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        EXPECT_LT(link.CurrentLength / link.RestLength, 3) << "link " << j;
    });
}

// Runs a model for some seconds and looks at it twice a second.
void run(Editor& ed, double seconds, Watch& watch) {
    const int ticks = static_cast<int>(seconds * 1000 / ed.timerPeriod);
    const int pause = std::max(500 / ed.timerPeriod, 1);
    for (int tick = 1; tick <= ticks && ed.Timer1.enabled && !testing::Test::HasFailure(); ++tick) {
        scenes::tickSample(ed);
        if (tick % pause != 0) continue;
        expectWhole(ed);
        watch.look(ed);
    }
    EXPECT_TRUE(ed.Timer1.enabled) << ed.panels[4];
}

class Sample : public testing::TestWithParam<std::string> {
protected:
    Editor open(Size scene) const { return scenes::openSample(ZENTRIK_SOURCE_DIR, GetParam(), scene); }
    bool isOneOf(const Names& set) const { return set.contains(GetParam()); }
    // Whoever stands on the floor keeps his shape, and whoever can walk gets about.
    void expectFit(const Editor& ed, double before, const Watch& watch, double travel) const {
        if (isOneOf({"0 welcome", "6 a wheel", "7 a walker", "car", "climber", "jelly", "tower", "walker",
                     "wheel"})) {
            EXPECT_GT(height(ed), 0.6 * before) << "folded up, as by a fall";
        }
        if (isOneOf({"6 a wheel", "7 a walker", "car", "caterpillar", "climber", "walker", "wheel"})) {
            EXPECT_GT(watch.centre.size(), travel);
        }
    }
};

TEST_P(Sample, IsWellMade) {
    const Editor ed = open(scenes::smallestScene);
    EXPECT_NE(ed.ProjectTitle, "");
    EXPECT_LE(ed.ProjectTitle.size(), 80U) << "it is cut off in the smallest scene";
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        EXPECT_TRUE(node.X >= 60 && node.X < 14220) << "node " << i << " at " << node.X;
        EXPECT_TRUE(node.Y >= 350 && node.Y < 3000) << "node " << i << " at " << node.Y;
        EXPECT_TRUE(node.Sprite == noSprite ||
                    std::filesystem::exists(std::string(ZENTRIK_SOURCE_DIR) + "/sprites/" + node.Sprite))
            << node.Sprite;
    });
    forEachLink(ed, [&](std::int32_t j, const Link& link) { EXPECT_GT(link.RestLength, 1) << j; });
}

TEST_P(Sample, PlaysForTenMinutes) {
    Editor ed = open(scenes::smallestScene);
    const double before = height(ed), seconds = UsedNodes(ed) > 5000 ? 20 : 600,
                 atLast = std::min(20.0, seconds / 4);
    Watch all, last;
    scenes::start(ed);
    run(ed, seconds - atLast, all);
    run(ed, atLast, last);
    expectFit(ed, before, all, 4000);
    if (!isOneOf({"1 a ball", "bouncer"})) {
        EXPECT_GT(last.farthest(), 100) << "at rest";
    }
    if (isOneOf({"boxes", "crowd", "marbles"})) {
        for (const auto& [i, y] : all.y) EXPECT_TRUE(y.least >= 480 && y.most <= 2900) << "ball " << i;
    }
    if (isOneOf({"boxes"})) {
        for (const auto& [i, x] : all.x) EXPECT_LT(x.size(), 2900) << "ball " << i;
    }
}

// One hash of all samples, whatever compiler built them.
TEST(Zoo, RunsTheSameInEveryBuild) {
    std::uint64_t hash = 0;
    for (const std::string& name : names()) {
        Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, name, scenes::smallestScene);
        scenes::start(ed);
        for (int step = 0; step < 400; ++step) scenes::tickSample(ed);
        hash = stateHash(ed, hash);
    }
    EXPECT_EQ(hash, 11443331882581177808U);
}

// There whatever is not hung up falls a long way first. A sample meets every height that screens give, and
// widths in turn.
TEST_P(Sample, PlaysInTallScenes) {
    constexpr std::int32_t heights[] = {6910, 10710, 14510, 20000}, widths[] = {14280, 21480, 38280, 57000};
    for (std::size_t m = 0; m < std::size(heights); ++m) {
        const Size scene{widths[(m + GetParam().size()) % std::size(widths)], heights[m]};
        SCOPED_TRACE(testing::Message() << scene.width << " x " << scene.height);
        Editor ed = open(scene);
        const double before = height(ed), seconds = UsedNodes(ed) > 5000 ? 1 : 25;
        Watch all;
        scenes::start(ed);
        run(ed, seconds, all);
        if (!isOneOf({"0 welcome"})) expectFit(ed, before, all, 600);
    }
}

std::string testName(const testing::TestParamInfo<std::string>& sample) {
    std::string name = sample.param;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}
INSTANTIATE_TEST_SUITE_P(Zoo, Sample, testing::ValuesIn(names()), testName);

// The first entry is what a first start shows; the lessons follow it.
TEST(Zoo, BeginsWithTheWelcomeAndTheLessons) {
    const std::vector<std::string> all = names();
    ASSERT_GE(all.size(), 20U);
    EXPECT_EQ(all[0], "0 welcome");
    for (std::size_t m = 1; m <= 9; ++m) EXPECT_EQ(all[m].substr(0, 2), std::to_string(m) + " ");
}

}  // namespace

}  // namespace zentrik
