// The companion program's pictures, films and tables.

#include "cli/runs/model.h"
#include "cli_rig.h"
#include "export/films/film.h"
#include "export/pages/live_page.h"
#include "export/table.h"
#include "failing_disk.h"
#include "wants.h"

#include <QImage>
#include <QProcess>
#include <QtTest/QTest>
#include <csignal>

namespace zentrik {
namespace {

using ExportCommand = CommandLine;

// The model as the command opens it.
Editor opened(const std::string& name) {
    std::istringstream in;
    std::ostringstream out;
    cli::Streams streams{in, out, out};
    return cli::openModel(sample(name), {}, streams);
}

TEST_F(ExportCommand, MakesTheSameFilmsAndTablesAsTheWindow) {
    const Editor ed = opened("7 a walker");
    for (const FilmFormat& format : filmFormats()) {
        const std::string suffix = format.suffix;
        if (suffix.empty()) continue;
        const bool ours = suffix == "gif" || suffix == "html";
        if (!ours && !missing("ffmpeg").empty()) continue;
        SCOPED_TRACE(suffix);
        const Said said = zentrikCli({"export", sample("7 a walker"), "--time", "1", "--rate", "10",
                                      "--scale", "2", "-o", file("film." + suffix)});
        EXPECT_EQ(said.error, "");
        EXPECT_EQ(said.status, 0);
        const FilmPlan plan{stepsIn(ed, 1), 10, {2, false}};
        ASSERT_EQ(makeFilm(ed, format, plan, file("ours"), [](const FilmState&) { return true; }).problem,
                  "");
        EXPECT_TRUE(contentOf(file("film." + suffix)) == contentOf(file("ours")));
    }
    EXPECT_EQ(zentrikCli({"export", sample("7 a walker"), "--steps", "50", "-o", file("t.csv")}).error, "");
    makeTable(ed, 50, file("ours"), [](const FilmState&) { return true; });
    EXPECT_TRUE(contentOf(file("t.csv")) == contentOf(file("ours")));
    EXPECT_EQ(linesOf(contentOf(file("ours"))).size(), 52U);
    if (!missing("ffmpeg").empty()) GTEST_SKIP() << missing("ffmpeg");
}

TEST_F(ExportCommand, MakesPicturesAndThumbnails) {
    ASSERT_EQ(zentrikCli({"export", sample("cloth"), "-o", file("a.PNG"), "--scale", "2"}).error, "");
    const QImage picture(QString::fromStdString(file("a.PNG")), "PNG");
    EXPECT_EQ(picture.width(), 2 * 952);
    const Said piped =
        zentrikCli({"export", "-", "--format", "png", "--size", "64", "--transparent", "-o", "-"},
                   contentOf(sample("7 a walker")));
    const QImage thumbnail = QImage::fromData(QByteArray::fromStdString(piped.out));
    EXPECT_EQ(thumbnail.width(), 64);
    EXPECT_LE(thumbnail.height(), 64);
    EXPECT_EQ(qAlpha(thumbnail.pixel(0, 0)), 0);
    int feet = 0;
    for (int x = 0; x < thumbnail.width(); ++x) {
        const QColor lowest = thumbnail.pixelColor(x, thumbnail.height() - 4);
        feet += lowest.alpha() > 200 && lowest.red() > lowest.blue() + 100;
    }
    EXPECT_GT(feet, 2) << "not all of it is in the picture";
    // At a later time it is another picture.
    for (const char* time : {"0", "1"})
        ASSERT_EQ(zentrikCli({"export", sample("walker"), "--time", time, "-o", file(time) + ".svg"}).error,
                  "");
    EXPECT_NE(contentOf(file("0.svg")), contentOf(file("1.svg")));
}

TEST_F(ExportCommand, SaysWhatIsWrongAndLeavesNothing) {
    const std::vector<std::pair<std::vector<std::string>, int>> cases{
        {{}, 2},
        {{"-o", "noformat"}, 2},
        {{"-o", file("film.xyz")}, 2},
        {{"-o", file("film.gif"), "--rate", "51"}, 2},
        {{"-o", file("film.mp4"), "--transparent"}, 2},
        {{"-o", file("film.png"), "--scale", "9"}, 2},
        {{"-o", "-", "--format", "gif"}, 2},
        {{"-o", file("gone/film.gif"), "--steps", "10"}, 1},
    };
    for (const auto& [words, status] : cases) {
        std::vector<std::string> line{"export", sample("walker")};
        line.insert(line.end(), words.begin(), words.end());
        const Said said = zentrikCli(line);
        EXPECT_EQ(said.status, status) << said.error;
        EXPECT_NE(said.error, "");
    }
    const FailingDisk full(DiskCall::write, 1);
    const Said said = zentrikCli({"export", sample("walker"), "--steps", "10", "-o", file("film.gif")});
    EXPECT_EQ(said.status, 1);
    EXPECT_NE(said.error.find("No space left"), std::string::npos);
    EXPECT_EQ(entriesIn(folder_.path), 0U);
}

TEST_F(ExportCommand, AGalleryIsWholeOrNotThere) {
    if (!whyNoLivePages().empty()) GTEST_SKIP() << "wants the packages of tools/packages_web.txt";
    const std::vector<std::string> words{"gallery", sample("7 a walker"), sample("birds"), "-o",
                                         file("site") + "/"};
    for (const DiskCall call : {DiskCall::write, DiskCall::rename}) {
        const FailingDisk full(call, call == DiskCall::write ? 3 : 8);
        EXPECT_EQ(zentrikCli(words).status, 1);
        EXPECT_TRUE(FailingDisk::hasFailed());
        EXPECT_EQ(entriesIn(folder_.path), 0U);
    }
    EXPECT_EQ(zentrikCli({"gallery", sample("birds"), sample("birds"), "-o", file("site")}).error,
              "zentrik-cli gallery: " + file("site") + ": Two projects are called birds.\n");
    EXPECT_EQ(entriesIn(folder_.path), 0U);
    ASSERT_EQ(zentrikCli(words).error, "");
    EXPECT_EQ(entriesIn(folder_.path / "site" / "projects"), 6U);
    EXPECT_TRUE(contentOf(file("site/projects/birds.bot")) == contentOf(sample("birds")));
    const std::string index = contentOf(file("site/index.html"));
    for (const char* link : {"projects/7%20a%20walker.html", "projects/birds.png", "projects/birds.bot"})
        EXPECT_NE(index.find(link), std::string::npos) << link;
    EXPECT_NE(zentrikCli(words).error.find("There is something of that name already."), std::string::npos);
    EXPECT_LT(std::filesystem::file_size(file("site/projects/7 a walker.html")), 30'000U)
        << "the module is stored once";

    ASSERT_EQ(zentrikCli({"export", sample("7 a walker"), "--live", "-o", file("page.html")}).error, "");
    EXPECT_LT(std::filesystem::file_size(file("page.html")), 220'000U);
    EXPECT_EQ(zentrikCli({"export", sample("birds"), "--live", "-o", file("page.png")}).status, 2);
    EXPECT_EQ(zentrikCli({"export", sample("birds"), "--live", "--steps", "9", "-o", file("b.html")}).status,
              2);
}

// A film that would take hours.
TEST_F(ExportCommand, AnInterruptLeavesNothing) {
    QProcess process;
    process.start(ZENTRIK_CLI, {"export", QString::fromStdString(sample("7 a walker")), "--time", "100000",
                                "--format", "folder", "-o", QString::fromStdString(file("film"))});
    ASSERT_TRUE(process.waitForStarted(30000));
    const bool begun = QTest::qWaitFor([&] { return entriesIn(folder_.path) > 0; }, 60000);
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_TRUE(begun);
    EXPECT_EQ(process.exitCode(), 130);
    EXPECT_EQ(process.readAllStandardError(), "zentrik-cli export: Interrupted; nothing was made.\n");
    EXPECT_EQ(entriesIn(folder_.path), 0U);
}

}  // namespace
}  // namespace zentrik
