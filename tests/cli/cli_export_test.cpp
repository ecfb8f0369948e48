// The companion program's pictures, films and tables.

#include "cli/runs/model.h"
#include "cli_rig.h"
#include "export/films/film.h"
#include "export/table.h"
#include "failing_disk.h"
#include "wants.h"

#include <QImage>

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

}  // namespace
}  // namespace zentrik
