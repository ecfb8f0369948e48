// The views of the window: what a pointer over a still scene costs, and the start of the program.

#include "app/frm_main.h"
#include "app/views.h"
#include "model/redraw.h"
#include "scenes/scenes.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QTemporaryDir>

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

}  // namespace

}  // namespace zentrik
