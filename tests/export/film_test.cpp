// Films read back and compared, picture by picture, with the painted scene.

#include "export/films/film.h"

#include "browser.h"
#include "failing_disk.h"
#include "model/store.h"
#include "pictures.h"
#include "scenes/scenes.h"
#include "scenes/visit.h"
#include "temporary_folder.h"
#include "wants.h"

#include <gtest/gtest.h>

#include <QImageReader>
#include <QProcess>
#include <filesystem>

namespace zentrik {
namespace {

namespace fs = std::filesystem;

Editor walker() { return scenes::openSample(ZENTRIK_SOURCE_DIR, "7 a walker", scenes::smallestScene); }

FilmPlan planOf(const Editor& ed, double seconds, int rate = 20, Look look = {}) {
    return {stepsIn(ed, seconds), rate, look};
}

const FilmFormat& format(std::string_view suffix) {
    for (const FilmFormat& it : filmFormats())
        if (it.suffix == suffix) return it;
    throw std::out_of_range("no such format");
}

bool isVideo(const FilmFormat& it) { return std::string_view(it.name).ends_with("video"); }
bool canBeMade(const FilmFormat& it) { return !isVideo(it) || missing("ffmpeg").empty(); }

const FilmProgress goOn = [](const FilmState&) { return true; };

class Films : public testing::Test {
protected:
    TemporaryFolder folder_;

    std::string path(const char* name) const { return (folder_.path / name).string(); }
};

// Reads the film's pictures in the order and at the times in which they are shown.
void expectToShow(QImageReader& film, const Editor& ed, const FilmPlan& plan) {
    Reel reel(ed, plan);
    int until = 0, shown = 0;  // milliseconds, pictures
    QImage frame;
    do {
        SCOPED_TRACE(shown);
        if (until * plan.rate <= shown * 1000) {
            ASSERT_TRUE(film.read(&frame));
            until += film.nextImageDelay();
        }
        const PictureDifference by = difference(frame, sceneImage(reel.subject(), plan.look));
        ASSERT_LE(by.largest, 32);
        ASSERT_LE(by.perMille, 1);
        ++shown;
    } while (reel.next());
    EXPECT_EQ(until, std::llround(1000 * playingTime(ed, plan)));
    EXPECT_FALSE(film.canRead());
}

TEST_F(Films, AGifShowsTheRunAndIsSmall) {
    const Editor ed = walker();
    const FilmPlan plan = planOf(ed, 10);
    ASSERT_EQ(makeFilm(ed, format("gif"), plan, path("walker.gif"), goOn).problem, "");
    EXPECT_LT(fs::file_size(path("walker.gif")), 500'000U);
    QImageReader reader(QString::fromStdString(path("walker.gif")));
    EXPECT_EQ(reader.loopCount(), -1);
    expectToShow(reader, ed, plan);
}

TEST_F(Films, ATransparentGifIsClearWhereNothingIsDrawn) {
    const Editor ed = walker();
    const FilmPlan plan = planOf(ed, 1, 20, {2, true});
    ASSERT_EQ(makeFilm(ed, format("gif"), plan, path("clear.gif"), goOn).problem, "");
    QImageReader reader(QString::fromStdString(path("clear.gif")));
    Reel reel(ed, plan);
    QImage frame;
    while (reader.read(&frame)) {
        const QImage scene = sceneImage(reel.subject(), plan.look);
        ASSERT_EQ(frame.size(), scene.size());
        int wrong = 0, drawn = 0;
        for (int y = 0; y < scene.height(); ++y)
            for (int x = 0; x < scene.width(); ++x) {
                drawn += qAlpha(frame.pixel(x, y)) == 255;
                wrong += (qAlpha(scene.pixel(x, y)) >= 128) != (qAlpha(frame.pixel(x, y)) == 255);
            }
        ASSERT_EQ(wrong, 0);
        ASSERT_GT(drawn, 1000);
        reel.next();
    }
    EXPECT_FALSE(reel.next()) << "the film is shorter than planned";
}

TEST_F(Films, APagePlaysAndObeysKeysAndSlider) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    ASSERT_EQ(makeFilm(walker(), format("html"), planOf(walker(), 10, 20), path("film.html"), goOn).problem,
              "");
    std::string page = contentOf(path("film.html"));
    const std::string script = R"(<script>
        const said = [player.className];
        const note = () => said.push(shown + (playing ? ' plays' : ''));
        const hit = (key, shiftKey) => { dispatchEvent(new KeyboardEvent('keydown', {key, shiftKey})); note(); };
        tick(begun - 3); note();
        tick(begun + 4001); note();
        tick(begun + 10051); note();
        hit(' '); hit('ArrowRight'); hit('ArrowRight', true); hit('ArrowLeft', true); hit('ArrowLeft');
        hit('End'); hit('ArrowRight'); hit('Home'); hit('ArrowLeft');
        time.value = 33; time.oninput(); note();
        location.hash = '#t=2.5'; obeyAddress(); note();
        play.click(); note();
        document.title = said.join(', ');
        </script></body>)";
    page.replace(page.find("</body>"), 7, script);
    putFile(path("film.html"), page);
    const QString url = QString::fromStdString("file://" + path("film.html"));
    const auto titleOf = [&](const QStringList& options) {
        const QString dom = browse(folder_, options + QStringList{"--dump-dom", url});
        return dom.section("<title>", 1).section("</title>", 0, 0).toStdString();
    };
    EXPECT_EQ(titleOf({}),
              "playing, 0 plays, 80 plays, 1 plays, 1, 2, 22, 2, 1, 199, 199, 0, 0, 33, 50, 50 plays");
    EXPECT_EQ(titleOf({"--force-prefers-reduced-motion"}).substr(0, 8), "still, 0");
}

TEST_F(Films, APageIsSmallAndShowsTheRunInABrowser) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    Editor ed = walker();
    ed.ProjectTitle = "A <b>walker</b> & \"more\" @FILM@";
    ed.buttons.activeline = ed.buttons.numbers = ed.marks.mnuDisplayTitle = true;
    ed.BackColor = 0xE0F0FF;
    const FilmPlan plan = planOf(ed, 10, 25);
    ASSERT_EQ(makeFilm(ed, format("html"), plan, path("walker.html"), goOn).problem, "");
    EXPECT_LT(fs::file_size(path("walker.html")), 150'000U);
    Reel reel(ed, plan);
    for (int picture = 0; picture < 250; ++picture, reel.next()) {
        if (picture != 0 && picture != 137) continue;
        SCOPED_TRACE(picture);
        const QImage scene = sceneImage(reel.subject(), plan.look);
        const std::string page = path("walker.html") + "#t=" + QString::number(picture / 25.0).toStdString();
        const PictureDifference by = softDifference(shownBy(page, folder_, scene.size()), scene);
        EXPECT_LE(by.largest, 100);
        EXPECT_LE(by.perMille, 30);
    }
}

TEST_F(Films, VideosShowTheRun) {
    if (!missing("ffmpeg").empty()) GTEST_SKIP() << missing("ffmpeg");
    const Editor ed = walker();
    const FilmPlan plan = planOf(ed, 2, 10);
    for (const char* suffix : {"mp4", "webm"}) {
        SCOPED_TRACE(suffix);
        ASSERT_EQ(makeFilm(ed, format(suffix), plan, path(suffix), goOn).problem, "");
        const QString pattern = QString::fromStdString(path(suffix)) + "-%d.png";
        QProcess decoder;
        decoder.start("ffmpeg", {"-nostdin", "-i", QString::fromStdString(path(suffix)), pattern});
        ASSERT_TRUE(decoder.waitForFinished(60000));
        Reel reel(ed, plan);
        int number = 0;
        do {
            const QImage scene = sceneImage(reel.subject(), plan.look);
            const QImage frame(QString(pattern).replace("%d", QString::number(++number)));
            ASSERT_EQ(frame.height(), 208) << "even";
            const PictureDifference by = softDifference(frame.copy(scene.rect()), scene);
            ASSERT_LE(by.perMille, 2) << number;
            ASSERT_LE(by.largest, 40) << number;
        } while (reel.next());
        EXPECT_EQ(number, 20);
    }
}

TEST_F(Films, WithoutTheEncoderItsPackageIsNamed) {
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", folder_.path.c_str());
    const FilmResult result = makeFilm(walker(), format("mp4"), {10, 10, {}}, path("film.mp4"), goOn);
    qputenv("PATH", programs);
    EXPECT_NE(result.problem.find("package is called ffmpeg"), std::string::npos);
    EXPECT_EQ(entriesIn(folder_.path), 0U);
}

TEST_F(Films, NumberedPicturesAreAFolderOfTheirOwn) {
    const Editor ed = walker();
    const FilmPlan plan = planOf(ed, 1, 10);
    ASSERT_EQ(makeFilm(ed, format(""), plan, path("film"), goOn).problem, "");
    EXPECT_EQ(entriesIn(folder_.path / "film"), 10U);
    const QImage first(QString::fromStdString(path("film/0001.png")));
    EXPECT_EQ(difference(first, sceneImage(Reel(ed, plan).subject(), {})).largest, 0);
    EXPECT_EQ(makeFilm(ed, format(""), plan, path("film"), goOn).problem,
              "There is something of that name already.");
    EXPECT_EQ(entriesIn(folder_.path / "film"), 10U);
    EXPECT_EQ(entriesIn(folder_.path), 1U);
}

// Chance and fireworks start alike, so that a film does not depend on who makes it, nor when.
TEST_F(Films, TheSameFilmIsTheSameBytes) {
    Editor ed = walker();
    ed.marks.mnuDisplayFireWorks = ed.timerFireWorks.enabled = true;
    ed.marks.mnuRandom = ed.marks.mnuUseRandom = true;
    const FilmPlan plan = planOf(ed, 1);
    for (const FilmFormat& it : filmFormats()) {
        if (*it.suffix == '\0' || !canBeMade(it)) continue;
        SCOPED_TRACE(it.name);
        for (const char* name : {"one", "other"}) {
            ed.chance.reseed();
            ed.HoverNode = name == std::string("one") ? 1 : none;  // the pointer's mark is no part of a film
            ASSERT_EQ(makeFilm(ed, it, plan, path(name), goOn).problem, "");
        }
        EXPECT_TRUE(contentOf(path("one")) == contentOf(path("other")));
        EXPECT_GT(fs::file_size(path("one")), 1000U);
    }
}

// A person who waits for too large a file learns so before it is made.
TEST_F(Films, TellHowLargeTheyWillBe) {
    const Editor ed = walker();
    for (const FilmFormat& it : filmFormats()) {
        if (!canBeMade(it)) continue;
        SCOPED_TRACE(it.name);
        double halfway = 0;
        const auto watch = [&](const FilmState& state) {
            if (halfway == 0 && state.done > 0.75) halfway = state.expectedSize;
            return true;
        };
        ASSERT_EQ(makeFilm(ed, it, planOf(ed, 4), path(it.name), watch).problem, "");
        double size = 0;
        for (const auto& entry : fs::recursive_directory_iterator(path("")))
            if (entry.is_regular_file()) size += static_cast<double>(entry.file_size());
        fs::remove_all(path(it.name));
        EXPECT_GE(halfway, isVideo(it) ? 0 : 0.8 * size);
        EXPECT_LE(halfway, isVideo(it) ? 0 : 1.2 * size);
    }
}

TEST_F(Films, WhateverEndsOneLeavesNothing) {
    const Editor ed = walker();
    const FilmPlan plan = planOf(ed, 1.5);
    for (const FilmFormat& it : filmFormats()) {
        if (!canBeMade(it)) continue;
        SCOPED_TRACE(it.name);
        int seen = 0;
        FilmResult result =
            makeFilm(ed, it, plan, path("film"), [&](const FilmState&) { return ++seen < 25; });
        EXPECT_TRUE(result.cancelled);
        EXPECT_EQ(entriesIn(folder_.path), 0U);
        {
            const FailingDisk full(DiskCall::write, 1);
            result = makeFilm(ed, it, plan, path("film"), goOn);
        }
        EXPECT_EQ(result.problem, "No space left on device.");
        EXPECT_EQ(entriesIn(folder_.path), 0U);
        result = makeFilm(ed, it, plan, path("gone/film"), goOn);
        EXPECT_EQ(result.problem, "No such file or directory.");
    }
}

TEST_F(Films, AModelThatCannotGoOnEndsTheFilm) {
    Editor ed = walker();
    linkAt(ed, 1).k = 1e30F;
    const FilmResult result = makeFilm(ed, format("gif"), planOf(ed, 2), path("film.gif"), goOn);
    EXPECT_EQ(result.problem, "");
    EXPECT_NE(result.stopped, "");
    EXPECT_TRUE(QImageReader(QString::fromStdString(path("film.gif"))).canRead());
}

}  // namespace
}  // namespace zentrik
