// The sample projects as a new user meets them: first-run settings, the start button, and time.

#include "project/zoo.h"
#include "model/store.h"
#include "project/library.h"
#include "rig.h"
#include "sim/run.h"
#include "ui/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace zentrik {

namespace {

struct EmptyStore : SettingsStore {
    std::optional<std::string> read(const std::string&) override { return {}; }
    void write(const std::string&, const std::string&) override {}
};

Editor load(const std::string& name, std::int32_t width, std::int32_t height) {
    Editor ed;
    EmptyStore store;
    Placement placement;
    ScriptedHost host;
    getSettings(ed, placement, store);
    ed.sceneWidth = width;
    ed.sceneHeight = height;
    ed.programFolder = ZENTRIK_SOURCE_DIR;
    OpenFile(ed, host, name);
    EXPECT_EQ(host.transcript, "");
    return ed;
}

double centre(const Editor& ed) {
    double sum = 0;
    forEachNode(ed, [&](std::int32_t, const Node& node) { sum += node.X; });
    return sum / UsedNodes(ed);
}

double height(const Editor& ed) {
    const auto byY = [](const Node& a, const Node& b) { return a.Y < b.Y; };
    const auto [top, bottom] = std::minmax_element(ed.Nodes.begin() + 1, ed.Nodes.end(), byY);
    return bottom->Y - top->Y;
}

// Runs a model and looks at it now and then; gives how far its centre travelled.
double run(Editor& ed, int steps) {
    double leftmost = 1e9, rightmost = -1e9;
    ScriptedHost host;
    ed.buttons.start = true;
    startClicked(ed, host);
    for (int step = 1; step <= steps && ed.Timer1.enabled; ++step) {
        Timer1_Timer(ed);
        if (step % 10 != 0) continue;
        forEachNode(ed, [&](std::int32_t i, const Node& node) {
            EXPECT_LT(std::hypot(double(node.Vx), double(node.Vy)), 15000) << "node " << i;
        });
        forEachLink(ed, [&](std::int32_t j, const Link& link) {
            EXPECT_LT(link.CurrentLength / link.RestLength, 3) << "link " << j;
        });
        leftmost = std::min(leftmost, centre(ed));
        rightmost = std::max(rightmost, centre(ed));
    }
    EXPECT_TRUE(ed.Timer1.enabled) << ed.panels[4];
    return rightmost - leftmost;
}

std::vector<std::string> names() { return projectNames(ZENTRIK_SOURCE_DIR); }

// In a large scene whatever is not hung up falls a long way first.
TEST(Zoo, FitsTheSmallestSceneAndRunsForMinutes) {
    EXPECT_GE(names().size(), 12U);
    const std::set<std::string> travellers{"car", "caterpillar", "walker", "wheel"};
    const std::set<std::string> standing{"car", "jelly", "tower", "walker", "wheel"};
    struct Scene {
        std::int32_t width, height;
        int steps;
        double travel;
    };
    for (const Scene& scene : {Scene{14280, 3100, 12000, 4000}, Scene{28000, 15000, 4000, 1500}})
        for (const std::string& name : names()) {
            SCOPED_TRACE(name + " in a scene " + std::to_string(scene.width) + " twips wide");
            Editor ed = load(name, scene.width, scene.height);
            EXPECT_NE(ed.ProjectTitle, "");
            forEachNode(ed, [&](std::int32_t i, const Node& node) {
                EXPECT_TRUE(node.X > 60 && node.X < 14175 && node.Y > 60 && node.Y < 2990) << "node " << i;
            });
            forEachLink(ed, [&](std::int32_t j, const Link& link) { EXPECT_GT(link.RestLength, 1) << j; });
            const double before = height(ed);
            const double travel = run(ed, scene.steps);
            if (standing.contains(name)) {
                EXPECT_GT(height(ed), 0.75 * before) << "folded up, as by a fall";
            }
            if (travellers.contains(name)) {
                EXPECT_GT(travel, scene.travel);
            }
        }
}

}  // namespace

}  // namespace zentrik
