// Pictures a second, of a scene of 960 x 400 pixels with 100 nodes that fall and swing.

#include "export/films/film.h"
#include "scenes/scenes.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <algorithm>

namespace zentrik {

namespace {

constexpr std::int64_t pictures = 100;

Editor hundredNodes() {
    Editor ed;
    ed.sceneWidth = 14400;
    ed.sceneHeight = 6000;
    ed.timerPeriod = 20;
    scenes::addLattice(ed, 20, 5, 600, 1200, 600);
    return ed;
}

FilmPlan plan() { return {pictures * 2, 25, {}}; }

void countPictures(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * pictures);
    state.SetLabel("pictures a second");
}

void rawPictures(benchmark::State& state) {
    for (auto _ : state) {
        Reel reel(hundredNodes(), plan());
        do benchmark::DoNotOptimize(sceneImage(reel.subject(), {}));
        while (reel.next());
    }
    countPictures(state);
}
BENCHMARK(rawPictures)->Unit(benchmark::kMillisecond);

void pngPictures(benchmark::State& state) {
    for (auto _ : state) {
        Reel reel(hundredNodes(), plan());
        do benchmark::DoNotOptimize(pngBytes(sceneImage(reel.subject(), {})));
        while (reel.next());
    }
    countPictures(state);
}
BENCHMARK(pngPictures)->Unit(benchmark::kMillisecond);

// From the first picture to the file.
void film(benchmark::State& state, std::string_view suffix) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath("film").toStdString();
    const auto formats = filmFormats();
    const auto format = std::find_if(formats.begin(), formats.end(),
                                     [&](const FilmFormat& it) { return it.suffix == suffix; });
    for (auto _ : state)
        makeFilm(hundredNodes(), *format, plan(), path, [](const FilmState&) { return true; });
    countPictures(state);
}
BENCHMARK_CAPTURE(film, gif, "gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(film, page, "html")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace zentrik
