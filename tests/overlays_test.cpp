// What the overlays print, as lists of texts and places.

#include "display/overlays.h"

#include "display/colours.h"
#include "model/store.h"
#include "rig.h"
#include "scenes/scenes.h"
#include "ui/model_information.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zentrik {
namespace {

constexpr double lineHeight = 200, W = 20000;

// Two nodes and an animated link, with fractions to tell rounded from plain values.
Editor small() {
    Editor ed;
    ed.sceneWidth = static_cast<std::int32_t>(W);
    ed.sceneHeight = 15000;
    scenes::addNode(ed, 3000, 5000);
    scenes::addNode(ed, 4001, 5000);
    scenes::addLink(ed, 1, 2, 5.6F);
    ed.Nodes[2].Mass = 2.5F;
    ed.Nodes[2].Rotate = -0.25F;
    ed.Nodes[2].Vx = 1.5F;
    ed.Nodes[2].Vy = -7.7F;
    ed.Links[1].Animator = true;
    ed.Links[1].Angle = 67.5F;
    ed.Links[1].Force = 1.7F;
    ed.Links[1].RestLength = 1000.6F;
    return ed;
}

void expectRuns(const TextPage& page, const std::vector<TextRun>& expected) {
    ASSERT_EQ(page.runs.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(page.runs[i].text, expected[i].text);
        EXPECT_EQ(page.runs[i].x, expected[i].x) << expected[i].text;
        EXPECT_EQ(page.runs[i].y, expected[i].y) << expected[i].text;
        EXPECT_EQ(page.runs[i].color, expected[i].color) << expected[i].text;
    }
}

TEST(Overlays, NumbersStandBesideNodesAndMidpoints) {
    Editor ed = small();
    TextPage page(ed, lineHeight);
    PrintNumbers(page, ed);
    expectRuns(page, {{2900, 5100, blue, " 1 "}, {3901, 5100, blue, " 2 "}, {3400.5, 5075, red, " 1 "}});
}

TEST(Overlays, OneLineOfSettingsWithSelection) {
    Editor ed = small();
    TextPage global(ed, lineHeight);
    PrintSimpleData(global, ed);
    const std::string settings =
        " 1        0.2        0.0         0          0.5        20        20        0.1";
    expectRuns(global, {{100, 50, black, settings}});

    ed.SelectedNode = 2;
    ed.SelectedLink = 1;
    TextPage page(ed, lineHeight);
    PrintSimpleData(page, ed);
    expectRuns(page, {{100, 50, black, settings},
                      {7550, 50, black, "2.5         0          -0.25         0          0"},
                      {10800, 50, black, "5.6          68      1.7"}});
}

TEST(Overlays, FullInformationOfAnEmptyModel) {
    Editor ed;
    ed.sceneWidth = static_cast<std::int32_t>(W);
    ed.sceneHeight = 15000;
    const char* rule = "------------------------------";
    TextPage page(ed, lineHeight);
    PrintDataOnScreen(page, ed);
    expectRuns(page, {
                         {100, 600, black, "Used Nodes: 0/0"},
                         {100, 800, black, "Used Links:   0/0"},
                         {W - 1600, 400, black, "--- Animator Links ---"},
                         {W - 1400, 600, black, "#  Angle  Force"},
                         {W - 1600, 800, black, rule},
                         {W - 1200, 1000, black, "(none)"},
                         {W - 1600, 1400, black, "--- Rotation Nodes ---"},
                         {W - 1400, 1600, black, "#  Force"},
                         {W - 1600, 1800, black, rule},
                         {W - 1200, 2000, black, "(none)"},
                         {W - 1600, 2600, black, "--- All Links ---"},
                         {W - 2500, 2800, black, "#    k  Angle  Force  Rest  Current"},
                         {W - 2500, 3000, black, rule},
                         {W - 1200, 3200, black, "(none)"},
                         {W - 1600, 3800, black, "--- All Nodes ---"},
                         {W - 1800, 4000, black, "#     mass    gravity"},
                         {W - 1800, 4200, black, rule},
                         {W - 1200, 4400, black, "(none)"},
                     });
}

TEST(Overlays, FullInformationOfASelection) {
    Editor ed = small();
    ed.SelectedNode = 2;
    ed.SelectedLink = 1;
    ed.Nodes[1].Used = false;
    TextPage page(ed, lineHeight);
    PrintDataOnScreen(page, ed);
    const char* const column[] = {"--- Selected Node ---",
                                  "Node 2",
                                  "mass: 2.5",
                                  "force: 0",
                                  "locked: False",
                                  "X:    4001",
                                  "Y:    5000",
                                  "Vx:  2",
                                  "Vy:  -8",
                                  nullptr,  // an empty line
                                  "--- Selected Link ---",
                                  "Link 1",
                                  "Animator: True",
                                  "k: 5.6",
                                  "Angle: 67.5",
                                  "Force: 2",
                                  "CurrentLen: 1001",
                                  "RestLen: 1001",
                                  nullptr,
                                  "Used Nodes: 1/2",
                                  "Used Links:   1/1"};
    std::vector<TextRun> expected;
    double y = 600;
    for (const char* text : column) {
        if (text) expected.push_back({100, y, black, text});
        y += lineHeight;
    }
    const auto has = [&](const TextRun& run) {
        EXPECT_NE(std::find(page.runs.begin(), page.runs.end(), run), page.runs.end())
            << run.text << " at " << run.x << ", " << run.y;
    };
    for (const TextRun& run : expected) has(run);
    // One row each of the four tables.
    for (const TextRun& run : std::vector<TextRun>{{W - 1400, 1000, black, " 1 "},
                                                   {W - 1000, 1000, black, " 68 "},
                                                   {W - 600, 1000, black, " 1.7 "},
                                                   {W - 1400, 2000, black, " 2 "},
                                                   {W - 1000, 2000, black, "-0.25 "},
                                                   {W - 2500, 3200, black, " 1 "},
                                                   {W - 2300, 3200, black, " 6 "},
                                                   {W - 1900, 3200, black, " 68 "},
                                                   {W - 1500, 3200, black, " 1.7 "},
                                                   {W - 1100, 3200, black, " 1001 "},
                                                   {W - 600, 3200, black, " 1001 "},
                                                   {W - 1800, 4400, black, " 2 "},
                                                   {W - 1400, 4400, black, " 2 "},
                                                   {W - 1000, 4400, black, " 0 "}})
        has(run);
    EXPECT_EQ(page.runs.size(), expected.size() + 14 + 12) << "and the four headings of three lines";
}

TEST(Overlays, TheirOrderDecidesTheColourLeftForTheTitle) {
    Editor ed = small();
    EXPECT_EQ(overlayPage(ed, lineHeight).color, black);
    ed.buttons.numbers = true;
    EXPECT_EQ(overlayPage(ed, lineHeight).color, red);
    ed.Links[1].Used = false;
    EXPECT_EQ(overlayPage(ed, lineHeight).color, blue);
    ed.buttons.simple = true;
    EXPECT_EQ(overlayPage(ed, lineHeight).color, black);
    ed.buttons.data = true;
    const std::vector<TextRun> runs = overlayPage(ed, lineHeight).runs;
    EXPECT_EQ(runs.front().text, " 1 ");
    EXPECT_EQ(runs.back().y, 50) << "the line of settings comes last";
}

TEST(Overlays, KeepOnlyWhatTheSceneShows) {
    Editor ed = scenes::latticeOf(10000);
    ed.buttons.data = true;
    EXPECT_LT(overlayPage(ed, lineHeight).runs.size(), 600U);
    ed = small();
    ed.Nodes[1].X = 20200;
    ed.Nodes[2].Y = -400;
    TextPage page(ed, lineHeight);
    PrintNumbers(page, ed);
    expectRuns(page, {{12000.5, 2375, red, " 1 "}});
    ed.SelectedNode = ed.SelectedLink = 50;  // outlived by their slots
    PrintSimpleData(page, ed);
    PrintDataOnScreen(page, ed);
}

TEST(Overlays, InstructionsStandInSixLinesWithGaps) {
    Editor ed = small();
    const TextPage page = instructionsPage(ed, lineHeight);
    ASSERT_EQ(page.runs.size(), 6U);
    const double tops[] = {1200, 1400, 1800, 2200, 2400, 2800};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(page.runs[i].x, 500);
        EXPECT_EQ(page.runs[i].y, tops[i]);
    }
    EXPECT_EQ(page.runs.back().text, "See Online Help for more instructions.");
}

TEST(ModelInformation, CountsUsedAndHighest) {
    Editor ed = small();
    ScriptedHost host;
    ed.Nodes[1].Used = false;
    mnuShowModel_Click(ed, host);
    ed.ProjectTitle = "Spider";
    mnuShowModel_Click(ed, host);
    const std::string counts =
        "\r\n\r\nNodes: 2\r\nUsed Nodes: 1\r\n\r\nLinks: 1\r\nUsed Links: 1|Model Information\n";
    EXPECT_EQ(host.transcript, "message: <no title>" + counts + "message: Spider" + counts);
    ed.ProjectTitle = std::string(1000000, 'W');
    host.transcript.clear();
    mnuShowModel_Click(ed, host);
    EXPECT_EQ(host.transcript, "message: " + std::string(300, 'W') + "..." + counts);
}

}  // namespace
}  // namespace zentrik
