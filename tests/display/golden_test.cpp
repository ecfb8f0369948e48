// Pictures that must be the same on every machine, whatever its fonts and settings, by their hashes. After a
// change that is meant, look at the pictures in the working folder's "golden" and copy golden.txt from there.

#include "basics/units.h"
#include "display/phase_strip.h"
#include "display/scene.h"
#include "export/plot_picture.h"
#include "model/redraw.h"
#include "scenes/scenes.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <functional>
#include <map>

namespace zentrik {

namespace {

// Every kind of node and link, no two values alike.
Editor model() {
    Editor ed;
    ed.sceneWidth = 13500;
    ed.sceneHeight = 6300;
    ed.NodeRadius = 60;
    ed.GridSize = 300;
    scenes::addLattice(ed, 6, 3, 1210, 3010, 2020);
    ed.Links[3].Barrier = true;
    for (const std::size_t j : {7U, 12U, 20U}) {
        const auto f = static_cast<float>(j);
        ed.Links[j].Animator = true;
        ed.Links[j].Angle = 13 * f;
        ed.Links[j].Force = f / 8;
    }
    ed.Nodes[2].Locked = ed.Nodes[5].Locked = true;
    ed.Nodes[5].Trigger = 9;
    ed.Nodes[8].Gravity = 2.5F;
    ed.Nodes[9].Rotate = -1.25F;
    ed.Nodes[10].color = 0x40A0F0;
    ed.ProjectTitle = "A Model to Look At, \u00c9t\u00e9 \u03a9 \u042f";
    ed.SelectedNode = 8;
    ed.SelectedLink = 12;
    return ed;
}

struct Row {
    const char* name;
    void (*show)(Editor&);
};
constexpr Row rows[] = {
    {"numbers", [](Editor& ed) { ed.buttons.numbers = true; }},
    {"data", [](Editor& ed) { ed.buttons.data = true; }},
    {"simple", [](Editor& ed) { ed.buttons.simple = true; }},
    {"title", [](Editor& ed) { ed.marks.mnuDisplayTitle = true; }},
    {"instructions", [](Editor& ed) { ed.instructionsShown = true; }},
    {"everything",
     [](Editor& ed) {
         ed.buttons.numbers = ed.buttons.data = ed.buttons.simple = ed.buttons.grid = ed.buttons.activeline =
             true;
         ed.marks.mnuDisplayTitle = true;
         ed.rubberBand = PointF{12000, 5000};
         ed.BackColor = 0x402000;
     }},
    {"strip",
     [](Editor& ed) {
         ed.phaseWidth = 12000;
         ed.marks.mnuDisplayAngleManager = true;
         ed.SelectedAnimatorLink = 12;
         DrawPhaseManager(ed, 0);
     }},
};

QImage painted(const Row& row, int ratio) {
    Editor ed = model();
    row.show(ed);
    const bool strip = ed.marks.mnuDisplayAngleManager;
    QImage image((strip ? QSize(ed.phaseWidth, ed.phaseHeight) : QSize(ed.sceneWidth, ed.sceneHeight)) /
                     twipsPerPixel * ratio,
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    strip ? drawPhaseStrip(painter, ed) : drawScene(painter, ed, {});
    return image;
}

// Two panels, a gap where the node is gone, a peak, more steps than pixels.
QImage plotted(bool dark, int ratio) {
    Editor ed = model();
    RunSeries series({curveNamed("node 1.x").value(), curveNamed("node 3.y").value(),
                      curveNamed("link 2.length").value(), curveNamed("node 1.Vx").value()},
                     0, 512);
    for (int step = 0; step < 1500; ++step) {
        ed.Nodes[1].X = 2000 + step % 200 * (200 - step % 200);
        ed.Nodes[1].Vx = static_cast<float>(200 - 2 * (step % 200));
        ed.Nodes[3].Y = step == 700 ? 9000 : 1000 + step;
        ed.Nodes[3].Used = step < 400 || step > 600;
        series.add(ed);
    }
    const Plot plot{series, 0, dark ? std::optional(Range{3, 11}) : std::nullopt, dark, 900, {}};
    return imageOf(drawingOf(plot, {900, 360}, ""), {static_cast<double>(ratio), false});
}

TEST(Golden, PicturesAreTheSameOnEveryMachine) {
    ASSERT_TRUE(QDir().mkpath("golden"));
    const std::string known = contentOf(ZENTRIK_SOURCE_DIR "/tests/golden.txt");
    std::string found;
    std::map<std::string, std::function<QImage(int ratio)>> pictures{
        {"plot", [](int ratio) { return plotted(false, ratio); }},
        {"plot_dark", [](int ratio) { return plotted(true, ratio); }}};
    for (const Row& row : rows) pictures[row.name] = [&row](int ratio) { return painted(row, ratio); };
    for (const auto& [picture, paint] : pictures)
        for (const int ratio : {1, 2}) {
            const QImage image = paint(ratio);
            const std::string name = picture + "_" + std::to_string(ratio);
            const QByteArrayView bytes(image.constBits(), image.sizeInBytes());
            const std::string line =
                name + " " + QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex().toStdString() +
                "\n";
            found += line;
            if (known.find(line) != std::string::npos) continue;
            const std::string file = "golden/" + name + ".png";
            EXPECT_TRUE(image.save(QString::fromStdString(file)));
            ADD_FAILURE() << "another picture than in golden.txt, to be looked at: " << file;
        }
    putFile("golden/golden.txt", found);
    EXPECT_EQ(found, known);
}

}  // namespace

}  // namespace zentrik
