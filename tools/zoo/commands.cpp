// Exhibits made with the program's own commands, as a person would make them from the menus.

#include "edit/builders.h"
#include "edit/objects.h"
#include "edit/transforms.h"
#include "model/store.h"
#include "rig.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

namespace zentrik::zoo {

namespace {

using Builder = void (*)(Editor&, Host&);

// A ring command around a node, its prompt answered with "nodes:radius".
void build(Editor& ed, Builder command, std::int32_t centre, std::int32_t color, const std::string& answer) {
    ScriptedHost host;
    host.answers.push_back(answer);
    ed.SelectedNode = centre;
    ed.NodeColor = color;
    command(ed, host);
}

}  // namespace

// The spokes' phases run two, three, four times and more round the ring: as many petals open in turn.
Editor blossoms() {
    Editor ed = project("Blossoms of two to six petals", {.gravity = 0, .viscosity = 0.3F, .deltaAngle = 2});
    ed.DefaultLinkK = 4;
    const std::int32_t colors[] = {rose, plum, coral, sky, amber};
    for (int m = 0; m < 5; ++m) {
        const std::int32_t heart = pin(ed, 1600 + 2770 * m, 1720, sand), before = lastLink(ed);
        build(ed, mnuCreateConnectedNodeRingWithSpokes_Click, heart, colors[m], "30:850");
        for (std::int32_t j = before + 1; j <= lastLink(ed); ++j)
            if (const Link link = linkAt(ed, j); link.Animator)
                drive(ed, j, (m + 2) * static_cast<double>(link.Angle), 0.4), linkAt(ed, j).k = 8;
    }
    return ed;
}

// Hubs drive the rings they are joined to by spokes.
Editor windmills() {
    Editor ed = project("Windmills", {.gravity = 0, .viscosity = 0.1F, .deltaAngle = 3});
    ed.DefaultLinkK = 15;
    const std::int32_t colors[] = {navy, teal, leaf, amber, coral, plum};
    for (int i = 0; i < 6; ++i) {
        const double x = 1300 + 2330 * i, y = i % 2 == 0 ? 1350 : 1500;
        const std::int32_t hub = pin(ed, x, y), foot = pin(ed, x, 2950);
        build(ed, mnuCreateConnectedNodeRingWithSpokes_Click, hub, colors[i],
              i % 2 == 0 ? "12:750" : "16:850");
        join(ed, hub, foot, 5);
        nodeAt(ed, hub).Rotate = i % 2 == 0 ? 2.0F : -2.0F;
    }
    return ed;
}

// One kite, duplicated; each copy is moved on with the selected object alone. What a kite weighs less than
// air stands in the gravity; a hand on the ground tugs at its string.
// Long: a drawing, stroke by stroke.
Editor kites() {
    Editor ed = project("Kites in the wind",
                        {.gravity = -0.15F, .viscosity = 0.02F, .deltaAngle = 1.7F, .wind = 1.5F});
    ed.GridSize = 437;
    ed.HitRadius = 31;  // of a small node radius: links of a copy must not be taken for older nodes' places
    ed.marks.mnuApplyChanges = true;
    const std::int32_t hand = rocker(ed, 600, 2800, 200, 0);
    const Numbers string = row(ed, 750, 2600, 1500, 1500, 6, stone, 0.5F);
    const Numbers frame = {ball(ed, 1560, 1350, coral), ball(ed, 1850, 1200, coral),
                           ball(ed, 1540, 1000, coral), ball(ed, 1950, 750, coral)};
    const Numbers tail = row(ed, 2100, 900, 2400, 1300, 4, amber, 0.4F);
    join(ed, hand, string[0], 20);
    chain(ed, string, 20);
    join(ed, string.back(), frame[0], 20);
    for (std::size_t a = 0; a < frame.size(); ++a)
        for (std::size_t b = a + 1; b < frame.size(); ++b) join(ed, frame[a], frame[b], 20);
    join(ed, frame[3], tail[0], 10);
    chain(ed, tail, 10);

    const std::int32_t size = lastNode(ed), links = lastLink(ed);
    const std::int32_t colors[] = {sky, lime, plum, teal};
    ed.SelectedNode = hand;
    for (const std::int32_t color : colors) {
        ScriptedHost host;
        mnuDuplicateObject_Click(ed, host);
        moveProject(ed, 5, -1);
        for (std::int32_t i = lastNode(ed) - size + 1; i <= lastNode(ed); ++i)
            if (nodeAt(ed, i).Mass == 1 && !nodeAt(ed, i).Locked) nodeAt(ed, i).color = color;
        for (std::int32_t j = lastLink(ed) - links + 1; j <= lastLink(ed); ++j)
            if (const Link link = linkAt(ed, j); link.Animator)
                drive(ed, j, static_cast<double>(link.Angle) + 75, static_cast<double>(link.Force));
    }
    return ed;
}

}  // namespace zentrik::zoo
