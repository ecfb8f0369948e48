// The views of the window: what a pointer over a still scene costs, how fast the model runs beside its
// paints, and the start of the program.

#include "app/views/views.h"
#include "app/window/frm_main.h"
#include "model/rate.h"
#include "scenes/scenes.h"
#include "sim/run.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QToolButton>

namespace zentrik {

namespace {

void pointerOverStillScene(benchmark::State& state) {
    Editor ed = scenes::latticeOf(static_cast<int>(state.range(0)));
    SceneView view(ed, nullptr);
    view.resize(1920, 1080);
    QImage screen(view.size(), QImage::Format_RGB32);
    view.render(&screen);
    for (auto _ : state) {
        ed.HoverNode = ed.HoverNode == none ? 1 : none;
        view.render(&screen);
    }
}
BENCHMARK(pointerOverStillScene)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

// To the first painted scene, in a folder that has been set up before.
void programStart(benchmark::State& state) {
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    for (auto _ : state) {
        frmMain window(folder.path());
        window.show();
        QImage screen(window.size(), QImage::Format_RGB32);
        window.render(&screen);
    }
}
BENCHMARK(programStart)->Unit(benchmark::kMillisecond);

// A tick of the running window with its share of the paints, period 1 ms. What a paint takes must not become
// the period of the model.
// Arguments: nodes, and whether the plot shows the run's energies.
void tickBesidePaints(benchmark::State& state) {
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    frmMain window(folder.path());
    window.resize(1920, 1080);
    window.show();
    window.perform("Change", [&](Editor& ed, Host& host) {
        const Editor model = scenes::latticeOf(static_cast<int>(state.range(0)));
        ed.Nodes = model.Nodes, ed.Links = model.Links;
        ed.Gravity = 0;
        ed.marks.mnuWalls = ed.marks.mnuCeiling = false;
        setRate(ed, 1);
        ed.buttons.start = true;
        startClicked(ed, host);
    });
    if (state.range(1) != 0) window.findChild<QToolButton*>("plotButton")->click();
    for (auto _ : state)
        for (const std::int32_t cycles = window.editor().Cycles; window.editor().Cycles == cycles;)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
BENCHMARK(tickBesidePaints)
    ->Args({100, 0})
    ->Args({1000, 0})
    ->Args({1000, 1})
    ->Args({10000, 0})
    ->Args({50000, 0})
    ->Args({100000, 0})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace

}  // namespace zentrik
