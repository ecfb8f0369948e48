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
    EXPECT_TRUE(
        makeTable(ed, 50, file("none.csv"), [](const FilmState& now) { return now.done < 0.5; }).cancelled);
    EXPECT_FALSE(std::filesystem::exists(file("none.csv")));
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

using PlotCommand = CommandLine;

// The same numbers as the table of the run, and a picture of them.
TEST_F(PlotCommand, DrawsCurvesOrWritesThem) {
    const std::string table = file("way.csv");
    EXPECT_EQ(
        zentrikCli({"plot", sample("bouncer"), "-n50", "-cnode 1.Y", "--curve=energy", "-o", table}).error,
        "");
    zentrikCli({"run", sample("bouncer"), "-n50", "--table", file("all.csv")});
    const std::vector<std::string> some = linesOf(contentOf(table)),
                                   all = linesOf(contentOf(file("all.csv")));
    ASSERT_EQ(some.size(), 52U);
    EXPECT_EQ(some[0], "step,time (time units),node 1 y (twips),energy (mass twips^2/time unit^2)");
    ASSERT_EQ(all.size(), some.size());
    const auto cell = [](const std::string& line, int n) {
        return QString::fromStdString(line).section(',', n, n);
    };
    for (std::size_t step = 1; step < some.size(); ++step) {
        EXPECT_EQ(cell(some[step], 2), cell(all[step], 3)) << step;
        EXPECT_EQ(cell(some[step], 3), cell(all[step], -1)) << step;
    }
    const auto picture = [&](std::vector<std::string> options, const char* name = "plot.png") {
        std::vector<std::string> words{"plot", sample("oscillators"), "-n300", "--curve=node 5 height"};
        words.insert(words.end(), options.begin(), options.end());
        words.insert(words.end(), {"-o", file(name)});
        EXPECT_EQ(zentrikCli(words).error, "");
        return QImage(QString::fromStdString(file(name)));
    };
    const QImage plain = picture({"--size=500x300"});
    EXPECT_EQ(plain.size(), QSize(500, 300));
    EXPECT_EQ(plain.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(picture({"--size=500x300", "--scale=2"}).size(), QSize(1000, 600));
    EXPECT_LT(picture({"--size=500x300", "--dark"}).pixelColor(2, 2).lightness(), 60);
    EXPECT_NE(picture({"--size=500x300", "--against=node 5.Vy"}), plain);
    EXPECT_FALSE(picture({"--scale=2"}, "plot.svg").isNull());
    EXPECT_TRUE(contentOf(file("plot.svg")).find("<path") != std::string::npos);
    picture({}, "plot.pdf");
    EXPECT_TRUE(contentOf(file("plot.pdf")).starts_with("%PDF"));
}

TEST_F(PlotCommand, SaysWhatItCannotPlot) {
    const auto said = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"plot", sample("bouncer"), "-n5"});
        const Said answer = zentrikCli(options);
        EXPECT_EQ(answer.status, 2);
        return answer.error.substr(0, answer.error.find('\n'));
    };
    const std::string out = "-o" + file("p.png");
    EXPECT_EQ(said({}), "zentrik-cli plot: -o must say which file to write.");
    EXPECT_EQ(said({out, "-cnode 1.hight"}),
              "zentrik-cli plot: There is no curve \"node 1.hight\". Did you mean height?");
    EXPECT_EQ(said({out, "-cnode 2.y"}), "zentrik-cli plot: There is nothing to plot: node 2 y.");
    EXPECT_EQ(said({out, "--size=9x9"}),
              "zentrik-cli plot: --size takes a width and a height of 100 to 8000, as in 900x420.");
    EXPECT_EQ(said({"-o" + file("p.txt")}),
              "zentrik-cli plot: The name of " + file("p.txt") + " must end in .png, .svg, .pdf or .csv.");
    const Said massless =
        zentrikCli({"plot", sample("bouncer"), "-n5", "--set=node 1.Mass=0", "-o", file("m.png")});
    EXPECT_EQ(massless.status, 1);
    EXPECT_NE(massless.error.find("mass of 0"), std::string::npos);
    EXPECT_FALSE(QImage(QString::fromStdString(file("m.png"))).isNull()) << "what there was is drawn";
}

}  // namespace
}  // namespace zentrik
