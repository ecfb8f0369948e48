// What the overlays print, as lists of texts and places.

#include "display/overlays.h"

#include "basics/colours.h"
#include "basics/numbers.h"
#include "desk.h"
#include "scenes/scenes.h"
#include "ui/commands/model_information.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zentrik {
namespace {

constexpr double lineHeight = 200;

// Two nodes and an animated link, with fractions to tell rounded from plain values.
Editor small() {
    Editor ed;
    ed.sceneWidth = 20000;
    ed.sceneHeight = 15000;
    scenes::addNodes(ed, {{3000, 5000}, {4001, 5000}});
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

// Lines of "x,y text", with a colour that is not black in front.
std::string printed(const TextPage& page) {
    std::string text;
    for (const TextRun& run : page.runs)
        text += std::string(run.colour == red    ? "red "
                            : run.colour == blue ? "blue "
                                                 : "") +
                realText(run.x) + "," + realText(run.y) + " " + run.text + "\n";
    return text;
}
std::string printed(void (*print)(TextPage&, const Editor&), const Editor& ed) {
    TextPage page(ed, lineHeight);
    print(page, ed);
    return printed(page);
}

TEST(Overlays, NumbersStandBesideNodesAndMidpointsAsFarAsTheSceneShows) {
    Editor ed = small();
    EXPECT_EQ(printed(PrintNumbers, ed), "blue 2900,5100  1 \nblue 3901,5100  2 \nred 3400.5,5075  1 \n");
    ed.Nodes[1].X = 20200;
    ed.Nodes[2].Y = -400;
    EXPECT_EQ(printed(PrintNumbers, ed), "red 12000.5,2375  1 \n");
    ed = scenes::latticeOf(10000);
    ed.buttons.data = true;
    EXPECT_LT(overlayPage(ed, lineHeight).runs.size(), 600U);
}

TEST(Overlays, OneLineOfSettingsWithSelection) {
    Editor ed = small();
    const std::string settings =
        "100,50  1        0.2        0.0         0          0.5        20        20        0.1\n";
    for (const std::int32_t outlived : {none, 50}) {
        ed.SelectedNode = ed.SelectedLink = outlived;
        EXPECT_EQ(printed(PrintSimpleData, ed), settings);
    }
    ed.SelectedNode = 2;
    ed.SelectedLink = 1;
    EXPECT_EQ(printed(PrintSimpleData, ed), settings +
                                                "7550,50 2.5         0          -0.25         0          0\n"
                                                "10800,50 5.6          68      1.7\n");
}

TEST(Overlays, FullInformation) {
    Editor ed = small();
    ed.SelectedNode = 2;
    ed.SelectedLink = 1;
    ed.Nodes[1].Used = false;
    const std::string full = printed(PrintDataOnScreen, ed);
    EXPECT_EQ(std::count(full.begin(), full.end(), '\n'), 45);
    // The ends of both columns' parts, each place standing for those before it, and what is rounded.
    for (const char* part :
         {"100,600 --- Selected Node ---\n100,800 Node 2\n100,1000 mass: 2.5\n",
          "2000 Vx:  2\n100,2200 Vy:  -8\n",
          "100,2600 --- Selected Link ---\n100,2800 Link 1\n100,3000 Animator: True\n100,3200 k: 5.6\n",
          "Angle: 67.5\n100,3600 Force: 2\n100,3800 CurrentLen: 1001\n100,4000 RestLen: 1001\n",
          "100,4400 Used Nodes: 1/2\n100,4600 Used Links:   1/1\n18400,400 --- Animator Links ---\n",
          "18600,1000  1 \n19000,1000  68 \n19400,1000  1.7 \n18400,1400 --- Rotation Nodes ---\n",
          "18600,2000  2 \n19000,2000 -0.25 \n18400,2600 --- All Links ---\n",
          "17500,3200  1 \n17700,3200  6 \n18100,3200  68 \n18500,3200  1.7 \n18900,3200  1001 \n19400,",
          "18200,4200 ------------------------------\n18200,4400  2 \n18600,4400  2 \n19000,4400  0 \n"})
        EXPECT_NE(full.find(part), std::string::npos) << part;
    ed.Nodes[2].Used = ed.Links[1].Used = false;
    ed.SelectedNode = ed.SelectedLink = 50;
    const std::string empty = printed(PrintDataOnScreen, ed);
    EXPECT_TRUE(empty.starts_with("100,600 Used Nodes: 0/2\n100,800 Used Links:   0/1\n18400,400 ---"));
    for (const char* line : {"18800,1000", "18800,2000", "18800,3200", "18800,4400"})
        EXPECT_NE(empty.find(std::string(line) + " (none)\n"), std::string::npos) << line;
}

TEST(Overlays, TheirOrderDecidesTheColourLeftForTheTitle) {
    Editor ed = small();
    EXPECT_EQ(overlayPage(ed, lineHeight).colour, black);
    ed.buttons.numbers = true;
    EXPECT_EQ(overlayPage(ed, lineHeight).colour, red);
    ed.Links[1].Used = false;
    EXPECT_EQ(overlayPage(ed, lineHeight).colour, blue);
    ed.buttons.simple = true;
    EXPECT_EQ(overlayPage(ed, lineHeight).colour, black);
    ed.buttons.data = true;
    const std::vector<TextRun> runs = overlayPage(ed, lineHeight).runs;
    EXPECT_EQ(runs.front().text, " 1 ");
    EXPECT_EQ(runs.back().y, 50) << "the line of settings comes last";
}

TEST(ModelInformation, CountsUsedAndHighest) {
    Editor ed = small();
    ScriptedHost host;
    ed.Nodes[1].Used = false;
    choose(ed, host, "mnuShowModel");
    const std::string counts =
        "\r\n\r\nNodes: 2\r\nUsed Nodes: 1\r\n\r\nLinks: 1\r\nUsed Links: 1|Model Information\n";
    EXPECT_EQ(host.transcript, "message: <no title>" + counts);
    ed.ProjectTitle = std::string(1000000, 'W');
    host.transcript.clear();
    choose(ed, host, "mnuShowModel");
    EXPECT_EQ(host.transcript, "message: " + std::string(300, 'W') + "..." + counts);
}

}  // namespace
}  // namespace zentrik
