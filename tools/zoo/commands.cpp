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

// Rings with long spokes, each lengthening a little after its neighbour.
Editor blossoms() {
    Editor ed = project("Blossoms", {.gravity = 0, .viscosity = 0.3F, .deltaAngle = 4});
    ed.DefaultLinkK = 8;
    ed.DefaultLinkForce = 0.35F;
    const std::int32_t colors[] = {rose, plum, coral, sky, amber};
    for (int i = 0; i < 5; ++i) {
        const std::int32_t heart = pin(ed, 1700 + 2700 * i, 1550, sand);
        const char* size = i % 2 == 0 ? "20:1050" : "14:750";
        build(ed, mnuCreateConnectedNodeRingWithLongSpokes_Click, heart, colors[i], size);
    }
    return ed;
}

// Hubs drive the rings they are joined to by spokes.
Editor windmills() {
    Editor ed = project("Windmills", {.gravity = 0, .viscosity = 0.1F, .deltaAngle = 3});
    ed.DefaultLinkK = 15;
    const std::int32_t colors[] = {navy, teal, leaf, amber, coral, plum};
    for (int i = 0; i < 6; ++i) {
        const double x = 1300 + 2330 * i, y = i % 2 == 0 ? 1100 : 1400;
        const std::int32_t hub = pin(ed, x, y), foot = pin(ed, x, 2950);
        build(ed, mnuCreateConnectedNodeRingWithSpokes_Click, hub, colors[i],
              i % 2 == 0 ? "12:800" : "16:950");
        join(ed, hub, foot, 5);
        nodeAt(ed, hub).Rotate = i % 2 == 0 ? 2.0F : -2.0F;
    }
    return ed;
}

// One kite, duplicated; each copy is moved on with the selected object alone.
Editor kites() {
    Editor ed =
        project("Kites in the wind", {.gravity = 0.2F, .viscosity = 0.12F, .deltaAngle = 2, .wind = 2});
    ed.GridSize = 437;
    ed.HitRadius = 31;  // of a small node radius: links of a copy must not be taken for older nodes' places
    ed.marks.mnuApplyChanges = true;
    const std::int32_t peg = pin(ed, 600, 350);
    const Numbers string = row(ed, 800, 450, 1200, 650, 3, stone, 0.5F);
    const Numbers frame = {ball(ed, 1400, 750, coral), ball(ed, 1750, 620, coral),
                           ball(ed, 1620, 1000, coral), ball(ed, 2100, 1050, coral)};
    const Numbers tail = row(ed, 2200, 1200, 2350, 1650, 4, amber, 0.4F);
    join(ed, peg, string[0], 20);
    chain(ed, string, 20);
    join(ed, string[2], frame[0], 20);
    for (std::size_t a = 0; a < frame.size(); ++a)
        for (std::size_t b = a + 1; b < frame.size(); ++b) join(ed, frame[a], frame[b], 20);
    join(ed, frame[3], tail[0], 10);
    drive(ed, chain(ed, tail, 10)[0], 0, 0.3);

    const std::int32_t size = lastNode(ed);
    const std::int32_t colors[] = {sky, lime, plum, teal};
    ed.SelectedNode = peg;
    for (const std::int32_t color : colors) {
        ScriptedHost host;
        mnuDuplicateObject_Click(ed, host);
        moveProject(ed, 5, -1);
        for (std::int32_t i = lastNode(ed) - size + 1; i <= lastNode(ed); ++i)
            if (nodeAt(ed, i).Mass == 1 && !nodeAt(ed, i).Locked) nodeAt(ed, i).color = color;
    }
    return ed;
}

}  // namespace zentrik::zoo
