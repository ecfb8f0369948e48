// Live pages: the module steps and drags as the program does, and a browser shows what the window shows.

#include "export/pages/live_page.h"

#include "browser.h"
#include "cli_rig.h"
#include "display/scene.h"
#include "edit/mouse.h"
#include "failing_disk.h"
#include "export/picture.h"
#include "measure/state_hash.h"
#include "model/redraw.h"
#include "model/store.h"
#include "pictures.h"
#include "project/writer.h"
#include "scenes/visit.h"
#include "sim/run.h"
#include "wants.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>

namespace zentrik {
namespace {

namespace fs = std::filesystem;

class LivePages : public CommandLine {
protected:
    void SetUp() override {
        if (!whyNoLivePages().empty()) GTEST_SKIP() << "wants the packages of tools/packages_web.txt";
    }

    // A page of the samples' gallery, as a script without a browser meets it; gives what that prints.
    std::string node(const QStringList& task, const std::vector<std::string>& samples) {
        std::vector<std::string> words{"gallery", "-o", file("site")};
        for (const std::string& name : samples) words.push_back(sample(name));
        EXPECT_EQ(zentrikCli(words).error, "");
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start("node", QStringList{ZENTRIK_SOURCE_DIR "/tests/export/live.mjs", QString::fromStdString(file("site")),
                                          ZENTRIK_SOURCE_DIR "/src/web"} + task);
        EXPECT_TRUE(process.waitForFinished(120000) && process.exitCode() == 0);
        return process.readAllStandardOutput().toStdString();
    }

    // Has a page run a script once its creature is there; what that says becomes the page's title.
    std::string saidBy(std::string page, const std::string& script, const QStringList& options = {}) {
        putScript(page, "opened.then(async () => document.title = await (async () => {" + script + "})());");
        putFile(file("page.html"), page);
        const QString dom = browse(folder_, options + QStringList{"--virtual-time-budget=5000", "--dump-dom", url("page.html")});
        return dom.section("<title>", 1).section("</title>", 0, 0).toStdString();
    }
    // The page allows no script but its own, and this one.
    static void putScript(std::string& page, const std::string& script) {
        const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(script), QCryptographicHash::Sha256);
        page.replace(page.find("script-src "), 11, "script-src 'sha256-" + hash.toBase64().toStdString() + "' ");
        page.replace(page.rfind("</body>"), 7, "<script>" + script + "</script></body>");
    }
    QString url(const char* name) const { return QString::fromStdString("file://" + file(name)); }
};

std::string hex(std::uint64_t hash) { return QString("%1").arg(hash, 16, 16, QChar('0')).toStdString(); }

Editor walker() { return scenes::openSample(ZENTRIK_SOURCE_DIR, "7 a walker", {14280, 3110}); }

TEST_F(LivePages, EverySampleComesToTheBitsOfTheProgram) {
    if (!missing("node").empty()) GTEST_SKIP() << "wants the package nodejs";
    std::vector<std::string> names;
    std::string expected;
    for (const std::string& line : linesOf(contentOf(ZENTRIK_SOURCE_DIR "/tests/bits/state_hashes.txt"))) {
        if (line.find(" steps: ") == std::string::npos) continue;
        names.push_back(line.substr(0, line.find(',')));
        expected += line + "\n";
    }
    const QStringList scene{QString::number(scenes::largeScene.width), QString::number(scenes::largeScene.height)};
    EXPECT_EQ(node(QStringList{"hashes"} + scene, names), expected);
    EXPECT_EQ(names.size(), 33U);
}

TEST_F(LivePages, ADragIsTheMouseAndTimeGoesBack) {
    if (!missing("node").empty()) GTEST_SKIP() << "wants the package nodejs";
    const QJsonObject told = QJsonDocument::fromJson(QByteArray::fromStdString(
        node({"drag", QString::fromStdString(file("taken.bot"))}, {"7 a walker"}))).object();
    const auto said = [&](const char* key) { return told[key].toString().toStdString(); };
    Editor ed = walker();
    ed.buttons.draw = false;
    EXPECT_EQ(said("first"), hex(stateHash(ed)));
    EXPECT_EQ(said("reset"), said("first"));
    const auto ticks = [&](int count) { for (; count > 0; --count) Timer1_Timer(ed); };
    scenes::start(ed);
    ticks(49);
    const auto stopped = [&] {
        Editor copy = ed;
        copy.SelectedNode = 1;  // it stays selected
        stopAnimation(copy);
        return hex(stateHash(copy));
    };
    EXPECT_EQ(said("back"), stopped());
    ticks(1);
    EXPECT_EQ(said("ran"), hex(stateHash(ed)));
    ed.Gravity = 2.5F;
    const auto x = static_cast<float>(ed.Nodes[1].X), y = static_cast<float>(ed.Nodes[1].Y);
    picS_MouseMove(ed, 0, x + 20, y - 20);
    picS_MouseDown(ed, leftButton, x + 20, y - 20);
    picS_MouseMove(ed, leftButton, x + 500, y - 700);
    ticks(5);
    picS_MouseMove(ed, leftButton, x + 900, y - 300);
    picS_MouseUp(ed, leftButton, x + 900, y - 300);
    ticks(20);
    EXPECT_EQ(said("dragged"), hex(stateHash(ed)));
    EXPECT_EQ(said("forth"), stopped());
    EXPECT_TRUE(contentOf(file("taken.bot")) == projectBytes(ed)) << "what Save would write";
    EXPECT_EQ(told["backGravity"].toDouble(), 0.5);
    EXPECT_EQ(told["last"].toInt(), 75);
    EXPECT_EQ(told["held"].toInt(), 1);
    EXPECT_EQ(told["missed"].toInt(), 0) << "an empty place makes no node";
    EXPECT_EQ(told["near"].toInt(), 1) << "a finger is wide";
    EXPECT_EQ(told["nodes"].toInt(), UsedNodes(walker()));
}

// At the first picture, of a run that a file holds, with what a press selects.
TEST_F(LivePages, ABrowserShowsWhatTheWindowShows) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    for (const char* name : {"7 a walker", "8 a cannon", "9 a moon", "boxes", "birds"}) {
        SCOPED_TRACE(name);
        Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, name, {14280, 4500});
        scenes::start(ed);
        for (int step = 0; step < 137; ++step) scenes::tickSample(ed);
        stopAnimation(ed);
        NoSelections(ed);
        ed.buttons.simple = ed.buttons.draw = false;
        ed.buttons.sprite = ed.marks.mnuAllowSprites = name == std::string("birds");
        ed.buttons.activeline = ed.marks.mnuDisplayTitle = ed.buttons.numbers = name == std::string("7 a walker");
        std::string page = livePage(ed, name);
        page.erase(page.find("<h1>"), page.find("</h1>") - page.find("<h1>"));
        putFile(file("page.html"), page);
        DisplayScene(ed, -1, -1);
        const Subject subject(ed);
        const QImage scene = sceneImage(subject, {});
        EXPECT_GT(difference(scene, QImage(scene.size(), scene.format())).perMille, 0);
        const QImage shown = shownBy(file("page.html"), folder_, scene.size() + QSize(0, 60),
                    {"--force-prefers-reduced-motion", "--virtual-time-budget=3000"}).copy(0, 1, scene.width(), scene.height());
        shown.save(QString::fromStdString("/tmp/shown-" + std::string(name) + ".png"));
        scene.save(QString::fromStdString("/tmp/scene-" + std::string(name) + ".png"));
        const Difference by = difference(shown, scene);
        fprintf(stderr, "%s: %g permille, largest %d, soft %d\n", name, by.perMille, by.largest, softDifference(shown, scene).largest);
        EXPECT_LE(by.perMille, 10);
        EXPECT_LE(softDifference(shown, scene).largest, 60);
    }
}

}  // namespace
}  // namespace zentrik
