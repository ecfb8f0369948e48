// A redraw at 1920 x 1080 pixels, and what drawing every item by its own QPainter call would cost.

#include "basics/units.h"
#include "display/scene.h"
#include "model/store.h"
#include "scenes/scenes.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <array>

namespace {

using namespace zentrik;

QImage frame(int ratio) {
    QImage image(1920 * ratio, 1080 * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    return image;
}

void redraw(benchmark::State& state, const Editor& ed, const SpritePictures& sprites = {}, int ratio = 1) {
    QImage image = frame(ratio);
    for (auto _ : state) {
        QPainter painter(&image);
        drawScene(painter, ed, sprites);
    }
    state.counters["nodes"] = UsedNodes(ed);
    state.counters["links"] = UsedLinks(ed);
}

// Nodes with two links each.
Editor sparseLattice(int nodes) {
    Editor ed = scenes::latticeOf(nodes);
    for (std::size_t j = 1; j < ed.Links.size(); ++j) ed.Links[j].Used = j % 4 < 2;
    return ed;
}

void scene(benchmark::State& state) { redraw(state, scenes::latticeOf(static_cast<int>(state.range(0)))); }
BENCHMARK(scene)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void sceneTwoLinks(benchmark::State& state) {
    redraw(state, sparseLattice(static_cast<int>(state.range(0))));
}
BENCHMARK(sceneTwoLinks)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void sceneDoublePixels(benchmark::State& state) {
    redraw(state, scenes::latticeOf(static_cast<int>(state.range(0))), {}, 2);
}
BENCHMARK(sceneDoublePixels)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

// Nodes in sixteen colours, with two links each.
void sceneMixedColours(benchmark::State& state) {
    Editor ed = sparseLattice(static_cast<int>(state.range(0)));
    std::array<std::int32_t, 16> colours{};
    for (std::int32_t& colour : colours) colour = GetRandomColor(ed.chance);
    for (Node& node : ed.Nodes) node.color = colours[static_cast<std::size_t>(ed.chance.next() * 16)];
    redraw(state, ed);
}
BENCHMARK(sceneMixedColours)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void sceneRandomColours(benchmark::State& state) {
    Editor ed = sparseLattice(static_cast<int>(state.range(0)));
    for (Node& node : ed.Nodes) node.color = GetRandomColor(ed.chance);
    redraw(state, ed);
}
BENCHMARK(sceneRandomColours)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void sceneWithGrid(benchmark::State& state) {
    Editor ed = scenes::latticeOf(1000);
    ed.buttons.grid = true;
    redraw(state, ed);
}
BENCHMARK(sceneWithGrid)->Unit(benchmark::kMicrosecond);

void sceneNumbers(benchmark::State& state) {
    Editor ed = sparseLattice(static_cast<int>(state.range(0)));
    ed.buttons.numbers = true;
    redraw(state, ed);
}
BENCHMARK(sceneNumbers)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void sceneWithAllTexts(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    ed.buttons.numbers = ed.buttons.data = ed.buttons.simple = true;
    redraw(state, ed);
}
BENCHMARK(sceneWithAllTexts)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

// The baseline: one drawLine and one drawEllipse an item, in the same quality.
void itemByItem(benchmark::State& state) {
    const Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    QImage image = frame(1);
    const auto place = [](const Node& node) {
        return QPointF(node.X, node.Y) / twipsPerPixel + QPointF(0.5, 0.5);
    };
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(image.rect(), Qt::white);
        forEachLink(ed, [&](std::int32_t, const Link& link) {
            painter.drawLine(place(nodeAt(ed, link.N1)), place(nodeAt(ed, link.N2)));
        });
        painter.setBrush(Qt::black);
        forEachNode(ed, [&](std::int32_t, const Node& node) { painter.drawEllipse(place(node), 4, 4); });
    }
}
BENCHMARK(itemByItem)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// As good as QPainter does it: all lines in one call, all discs stamped from one picture.
void bestPainter(benchmark::State& state, const Editor& ed) {
    QImage image = frame(1), disc(9, 9, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    {
        QPainter painter(&disc);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::black);
        painter.drawEllipse(QPointF(4.5, 4.5), 4, 4);
    }
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setClipRect(image.rect());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(image.rect(), Qt::white);
        const auto place = [](const Node& node) {
            return QPoint(node.X / twipsPerPixel, node.Y / twipsPerPixel);
        };
        QList<QLineF> lines;
        forEachLink(ed, [&](std::int32_t, const Link& link) {
            lines.append(QLineF(place(nodeAt(ed, link.N1)), place(nodeAt(ed, link.N2))).translated(0.5, 0.5));
        });
        painter.drawLines(lines);
        forEachNode(
            ed, [&](std::int32_t, const Node& node) { painter.drawImage(place(node) - QPoint(4, 4), disc); });
    }
}

void bestPainterShort(benchmark::State& state) {
    bestPainter(state, sparseLattice(static_cast<int>(state.range(0))));
}
BENCHMARK(bestPainterShort)->Arg(100)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// Links between nodes anywhere in the scene.
Editor longLinks() {
    Editor ed = sparseLattice(5000);
    for (Link& link : ed.Links) {
        link.N1 = 1 + static_cast<std::int32_t>(ed.chance.next() * 4999);
        link.N2 = 1 + static_cast<std::int32_t>(ed.chance.next() * 4999);
    }
    return ed;
}
void sceneLongLinks(benchmark::State& state) { redraw(state, longLinks()); }
BENCHMARK(sceneLongLinks)->Unit(benchmark::kMicrosecond);
void bestPainterLong(benchmark::State& state) { bestPainter(state, longLinks()); }
BENCHMARK(bestPainterLong)->Unit(benchmark::kMicrosecond);

void tenThousandSprites(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    QImage ball(side, side, QImage::Format_ARGB32_Premultiplied);
    ball.fill(Qt::transparent);
    QPainter painter(&ball);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::darkCyan);
    painter.drawEllipse(ball.rect().adjusted(1, 1, -1, -1));
    painter.end();

    Editor ed = scenes::latticeOf(10000);
    ed.buttons.sprite = ed.marks.mnuAllowSprites = true;
    ed.buttons.line = ed.buttons.ball = false;
    for (Node& node : ed.Nodes) node.SpriteIndex = 1;
    const QTemporaryDir folder;
    if (!ball.save(folder.filePath("ball.png"))) return state.SkipWithError("no room for a picture");
    SpritePictures sprites;
    sprites.read(folder.path().toStdString());
    redraw(state, ed, sprites);
}
BENCHMARK(tenThousandSprites)->Arg(16)->Arg(32)->Arg(48)->Unit(benchmark::kMicrosecond);

}  // namespace
