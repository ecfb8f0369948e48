#include "project/writer.h"

#include "project/reader.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace zentrik {

namespace {

Project readBack(const Editor& ed) {
    Reading reading = parseProject(projectBytes(ed));
    EXPECT_FALSE(reading.problem) << reading.problem->text;
    return reading.project.value_or(Project{});
}

TEST(ProjectWriter, WritesTheFileByteForByte) {
    Editor ed;
    ed.ProjectTitle = "Two masses";
    ed.sceneWidth = 9600;
    ed.sceneHeight = 6000;
    scenes::addNodes(ed, {{3000, 2400}, {4500, 2400}});
    for (Node& node : ed.Nodes) node.Gravity = 1;
    ed.Nodes[1].Locked = true;
    ed.Nodes[1].color = 255;
    ed.Nodes[2].color = 16711680;
    scenes::addLink(ed, 1, 2);
    EXPECT_EQ(
        projectBytes(ed),
        "Zentrik   https://zentrik.example/   The Zentrik authors\r\n"
        "Two masses\r\n"
        ";                  g     f     v     w    B     t    r     c\r\n"
        "Global Settings : 1 : 0.2 : 0 : 0 : 0.5 : 20 : 20 : 0.1 : 9600 : 6000 : 0\r\n"
        "Links\r\n"
        "; i : Used : N1 : N2 : RestLength : CurrentLength : k : Animator : Angle : Force : Barrier : "
        "Res1 : Res2 : Res3 : Res4 : Res5 : Res6\r\n"
        "1 : True : 1 : 2 : 1500 : 1500 : 5 : False : 0 : 0.2 : False : 0 : 0 : False : 0 : 0 : False\r\n"
        "Nodes\r\n"
        "; i ; Used : X : Y : Vx : Vy : Fx : Fy : Mass: Locked : JustReleased : BeingDragged : Gravity : "
        "Vxo : Vyo : Rotate : Sprite : color : Res1 : Res2 : Res3 : Res4 : Res5 : Res6 : Res7 : Res8\r\n"
        "1 : True : 3000 : 2400 : 0 : 0 : 0 : 0 : 1 : True : False : False : 1 : 0 : 0 : 0 : <none> : 255 : "
        "-1 : 0 : False :  : 0 : 0 : False : \r\n"
        "2 : True : 4500 : 2400 : 0 : 0 : 0 : 0 : 1 : False : False : False : 1 : 0 : 0 : 0 : <none> : "
        "16711680 : -1 : 0 : False :  : 0 : 0 : False : \r\n");
}

TEST(ProjectWriter, RoundTripKeepsEverySlotAndField) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    Editor ed;
    ed.ProjectTitle = "; global nodes : \xFF\xC3\xA4 ";
    ed.Gravity = -0.25F, ed.Friction = 0.3F, ed.Viscosity = 1e7F, ed.LeftWind = 1e-7F, ed.Bounce = 0.9F;
    ed.TimeInterval = 12.5F, ed.timerPeriod = 65535, ed.DeltaAngle = 3, ed.AnimationTime = 1234.567F;
    ed.sceneWidth = 28800, ed.sceneHeight = 16200;
    Node node;
    node = {true, least,  7,    1.5F,    -2.5F, 3e20F, -4e-20F, 5.25F, true, false, true, 6,    7,
            8,    -9.75F, "a:", 99 /**/, 10,    11,    12,      true,  ":b", 13,    14,   true, " "};
    ed.Nodes = {Node{}, node, Node{}, node, Node{}};
    ed.Nodes[3].Used = false;
    ed.Nodes[3].Locked = false, ed.Nodes[3].JustReleased = true, ed.Nodes[3].BeingDragged = false;
    ed.Nodes[3].Marked = false, ed.Nodes[3].Res7 = false;
    const Link link{true, 3, -4, 1.25F, 2.5F, 3, true, 359.5F, 0.3F, false, 5, 6, true, 7, 8, false};
    ed.Links = {Link{}, Link{}, link, Link{}, link};
    ed.Links[4].Animator = false, ed.Links[4].Barrier = true, ed.Links[4].Marked = false,
    ed.Links[4].Res6 = true;

    Project project = readBack(ed);
    EXPECT_EQ(project.title, ed.ProjectTitle);
    ASSERT_EQ(project.Nodes.size(), ed.Nodes.size());
    ASSERT_EQ(project.Links.size(), ed.Links.size());
    for (std::size_t i = 0; i < ed.Nodes.size(); ++i) {
        project.Nodes[i].SpriteIndex = ed.Nodes[i].SpriteIndex;  // of this program's list, not of the file
        EXPECT_TRUE(meaningOf(project.Nodes[i]) == meaningOf(ed.Nodes[i])) << i;
        EXPECT_TRUE(tracesOf(project.Nodes[i]) == tracesOf(ed.Nodes[i])) << i;
    }
    for (std::size_t j = 0; j < ed.Links.size(); ++j)
        EXPECT_TRUE(meaningOf(project.Links[j]) == meaningOf(ed.Links[j]) &&
                    tracesOf(project.Links[j]) == tracesOf(ed.Links[j]))
            << j;
    const GlobalSettings& g = project.global.value();
    EXPECT_EQ(std::tie(g.Gravity, g.Friction, g.Viscosity, g.LeftWind, g.Bounce, g.TimeInterval,
                       g.timerPeriod, g.DeltaAngle, g.AnimationTime),
              std::tie(ed.Gravity, ed.Friction, ed.Viscosity, ed.LeftWind, ed.Bounce, ed.TimeInterval,
                       ed.timerPeriod, ed.DeltaAngle, ed.AnimationTime));
    EXPECT_EQ(g.sceneWidth, 28800);
    EXPECT_EQ(g.sceneHeight, 16200);

    // What is not finite still gives a readable file.
    ed.AnimationTime = std::numeric_limits<float>::infinity();
    ed.Links[2].k = std::numeric_limits<float>::quiet_NaN();
    EXPECT_GT(readBack(ed).global.value().AnimationTime, 3e38F);
    EXPECT_EQ(readBack(ed).Links.at(2).k, 0);
}

// Whatever a text holds, the fields behind it stay where they belong.
TEST(ProjectWriter, TextsCannotShiftTheFieldsBehindThem) {
    const std::pair<std::string, std::string> texts[] = {
        {"a : b", "a ; b"},     {"a :", "a ;"},
        {": a", ": a"},         {" :", " ;"},
        {" : : ", " ; ; "},     {"a\r\nNodes", "a  Nodes"},
        {"a\n:\nb", "a ; b"},   {std::string("a\0b", 3), std::string("a\0b", 3)},
        {"a : : b", "a ; ; b"},
    };
    for (const auto& [text, expected] : texts) {
        Editor ed;
        ed.ProjectTitle = "title\r\nNodes";
        Node node;
        node.Sprite = node.Res4 = node.Res8 = text;
        node.color = 7, node.Res5 = 8;
        ed.Nodes = {Node{}, node, node};
        Project project = readBack(ed);
        EXPECT_EQ(project.title, "title  Nodes");
        ASSERT_EQ(project.Nodes.size(), 3u);
        const Node& read = project.Nodes[2];
        EXPECT_EQ(std::tie(read.color, read.Res5), std::tie(node.color, node.Res5)) << text;
        EXPECT_EQ(std::tie(read.Sprite, read.Res4, read.Res8), std::tie(expected, expected, expected))
            << text;
    }
}

}  // namespace

}  // namespace zentrik
