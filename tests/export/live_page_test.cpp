// Live pages: the module steps and drags as the program does, and a browser shows what the window shows.

#include "export/pages/live_page.h"

#include "browser.h"
#include "cli_rig.h"
#include "edit/hit.h"
#include "edit/mouse.h"
#include "export/picture.h"
#include "host/quiet_host.h"
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
        process.start("node",
                      QStringList{ZENTRIK_SOURCE_DIR "/tests/export/live.mjs",
                                  QString::fromStdString(file("site")), ZENTRIK_SOURCE_DIR "/src/web"} +
                          task);
        EXPECT_TRUE(process.waitForFinished(120000) && process.exitCode() == 0);
        return process.readAllStandardOutput().toStdString();
    }

    // What a page's title says at last. The browser's own clock may run out while a thread unpacks the
    // module: then once more.
    std::string titleOf(const char* name, const QStringList& options = {}) {
        for (int tries = 0; tries < 10; ++tries) {
            const QString dom =
                browse(folder_, options + QStringList{"--virtual-time-budget=5000", "--dump-dom", url(name)});
            const QString title = dom.section("<title>", 1).section("</title>", 0, 0);
            if (title.startsWith("said ")) return title.mid(5).toStdString();
        }
        return "nothing";
    }
    // Has a page run a script once its creature is there; gives what that says.
    std::string saidBy(std::string page, const std::string& script) {
        putScript(page, "opened.then(async () => document.title = 'said ' + await (async () => {" + script +
                            "})());");
        putFile(file("page.html"), page);
        return titleOf("page.html");
    }
    // The page allows no script but its own, and this one.
    static void putScript(std::string& page, const std::string& script) {
        const QByteArray hash =
            QCryptographicHash::hash(QByteArray::fromStdString(script), QCryptographicHash::Sha256);
        page.replace(page.find("script-src "), 11,
                     "script-src 'sha256-" + hash.toBase64().toStdString() + "' ");
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
    const QStringList scene{QString::number(scenes::largeScene.width),
                            QString::number(scenes::largeScene.height)};
    EXPECT_EQ(node(QStringList{"hashes"} + scene, names), expected);
    EXPECT_EQ(names.size(), 35U);
}

TEST_F(LivePages, ADragIsTheMouseAndTimeGoesBack) {
    if (!missing("node").empty()) GTEST_SKIP() << "wants the package nodejs";
    const QJsonObject told =
        QJsonDocument::fromJson(QByteArray::fromStdString(node(
                                    {"drag", QString::fromStdString(file("taken.bot"))}, {"7 a walker"})))
            .object();
    const auto said = [&](const char* key) { return told[key].toString().toStdString(); };
    Editor ed = walker();
    ed.buttons.draw = false;
    EXPECT_EQ(said("first"), hex(stateHash(ed)));
    EXPECT_EQ(said("reset"), said("first"));
    EXPECT_LT(told["turned"].toInt(), 30000) << "a wall turned the clock round before";
    const auto ticks = [&](int count) {
        for (; count > 0; --count) Timer1_Timer(ed);
    };
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
    // By keys: the next node is chosen, moved, and the run goes back to what was done by hand.
    stopAnimation(ed);
    NoSelections(ed);
    QuietHost nobody;
    NextNode(ed);
    const auto nudge = [&ed](float dx, float dy) {
        const auto [X, Y] = std::pair(float(selectedNode(ed)->X), float(selectedNode(ed)->Y));
        picS_MouseMove(ed, 0, X, Y);
        picS_MouseDown(ed, leftButton, X, Y);
        picS_MouseMove(ed, leftButton, X + dx, Y + dy);
        picS_MouseUp(ed, leftButton, X + dx, Y + dy);
    };
    nudge(300, -200);
    singleClicked(ed, nobody);
    ticks(1);
    EXPECT_EQ(said("nudged"), hex(stateHash(ed)));
    EXPECT_EQ(told["nudgedAt"].toInt(), 76);
    nudge(-450, 100);
    EXPECT_EQ(said("pinned"), hex(stateHash(ed)));
    nudge(10, 10);
    picS_MouseMove(ed, 0, 5000, 1000);
    EXPECT_EQ(said("letGo"), hex(stateHash(ed))) << "nothing is held by then";
    EXPECT_EQ(told["backGravity"].toDouble(), 0.5);
    EXPECT_EQ(told["last"].toInt(), 75);
    EXPECT_EQ(told["held"].toInt(), 1);
    EXPECT_EQ(told["missed"].toInt(), 0) << "an empty place makes no node";
    EXPECT_EQ(told["near"].toInt(), 1) << "a finger is wide";
    EXPECT_EQ(told["nodes"].toInt(), UsedNodes(walker()));
}

// A press, as the window and as a page take it.
void pressAt(Editor& ed, std::string& script, double x, double y) {
    const auto X = static_cast<float>(x), Y = static_cast<float>(y);
    script += QString("live.down(%1, %2, 0), live.up(%1, %2);").arg(x).arg(y).toStdString();
    picS_MouseMove(ed, 0, X, Y);
    picS_MouseDown(ed, leftButton, X, Y);
    picS_MouseUp(ed, leftButton, X, Y);
}

TEST_F(LivePages, ABrowserShowsWhatTheWindowShows) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    for (const std::string name : {"7 a walker", "8 a cannon", "9 a moon", "boxes", "birds"}) {
        SCOPED_TRACE(name);
        Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, name, {14280, 4500});
        scenes::start(ed);
        for (int step = 0; step < 137; ++step) scenes::tickSample(ed);
        stopAnimation(ed);
        NoSelections(ed);
        ed.buttons.simple = ed.buttons.draw = false;
        ed.buttons.sprite = ed.marks.mnuAllowSprites = name == "birds";
        ed.buttons.activeline = ed.marks.mnuDisplayTitle = ed.buttons.numbers = name == "7 a walker";
        std::string page = livePage(ed, name), script;
        page.erase(page.find("<h1>"), page.find("</h1>") - page.find("<h1>"));
        pressAt(ed, script, ed.Nodes[1].X, ed.Nodes[1].Y);
        if (name == "boxes") {
            const PointF middle = linkMidpoint(ed, ed.Links[1]);
            pressAt(ed, script, middle.x, middle.y);
            ASSERT_EQ(ed.SelectedLink, 1);
        }
        putScript(page, "opened.then(() => {" + script + " redraw(); });");
        putFile(file("page.html"), page);
        DisplayScene(ed, -1, -1);
        const QImage scene = sceneImage(Subject(ed), {});
        QImage shown;
        for (int tries = 0; tries < 10 && difference(shown, scene).perMille > 8; ++tries)
            shown = shownBy(file("page.html"), folder_, scene.size() + QSize(0, 60),
                            {"--force-prefers-reduced-motion"})
                        .copy(0, 1, scene.width(), scene.height());
        // No more than smoothing makes; numbers are lettered by the browser.
        EXPECT_LE(difference(shown, scene).perMille, 8);
        EXPECT_LE(softDifference(shown, scene).largest, ed.buttons.numbers ? 60 : 30);
    }
}

// What a project says is data, and nothing is asked of a network, even by a script that would.
TEST_F(LivePages, HostileTextsAreTextsAndNothingLeaves) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const std::string outside = "http://127.0.0.1:" + std::to_string(server.serverPort()) + "/";
    const std::string name = "</script><b>@TITLE@ \"'<img src=" + outside + ">";
    Editor ed = walker();
    ed.ProjectTitle = name;
    ed.Nodes[1].Sprite = ed.Nodes[1].Res4 = name;
    const std::string said = saidBy(
        livePage(ed, name),
        R"(
        const blocked = [];
        addEventListener('securitypolicyviolation', event => blocked.push(event.effectiveDirective));
        await fetch(')" +
            outside + R"(').catch(() => {});
        new Image().src = ')" +
            outside + R"(';
        await new Promise(done => setTimeout(done, 500));
        return [document.querySelector('h1').textContent === ')" +
            QString::fromStdString(name).replace("'", "\\'").replace("</", "<\\/").toStdString() + R"(',
            live.textOf('title') === document.querySelector('h1').textContent, page.name === live.textOf('title'),
            document.querySelectorAll('b, img').length, live.running(), ...blocked.sort()].join(' ');)");
    EXPECT_EQ(said, "true true true 0 1 connect-src img-src");
    EXPECT_FALSE(server.waitForNewConnection(0));

    std::string damaged = livePage(walker(), "7 a walker");
    const std::string start = "id=\"project\">";
    const std::size_t from = damaged.find(start) + start.size();
    const QByteArray other =
        qCompress(QByteArray("Zentrik\r\nA title\r\nNodes\r\n1 : what\r\n")).sliced(4).toBase64();
    damaged.replace(from, damaged.find('<', from) - from, other.toStdString());
    EXPECT_EQ(saidBy(damaged, "return said.getAttribute('role') + ': ' + said.textContent;").substr(0, 47),
              "alert: The project of this page is damaged. Lin");
}

// In a frame of 320 pixels, by keys and controls, as a visitor has them.
TEST_F(LivePages, ObeyControlsInANarrowFrame) {
    if (!missing("chromium").empty()) GTEST_SKIP() << missing("chromium");
    std::string page = livePage(walker(), "7 a walker");
    putScript(page, R"(opened.then(async () => {
        const said = [playing, player.className];
        part('settings').open = true;
        const hit = (key, shiftKey) => document.activeElement.dispatchEvent(
            new KeyboardEvent('keydown', {key, shiftKey, bubbles: true}));
        const press = id => part(id).click();
        const at = () => said.push(live.at() + '/' + live.last());
        said.push(innerWidth, document.documentElement.scrollWidth, scene.width > 300);
        press('play'); said.push(playing); press('play'); reset();
        const first = live.hash();
        const begun = live.at();
        hit('.'); hit('.'); press('step'); said.push(live.at() - begun);
        hit('ArrowLeft'); press('back'); said.push(live.last() - live.at());
        hit('End'); said.push(live.last() - live.at());
        hit('Home'); live.goTo(begun); said.push(live.hash() === first);
        hit('n'); said.push(live.selected(), document.activeElement.id);
        hit('ArrowRight', true); live.draw(); const moved = live.listOf(3, 4)[0]; hit('Home'); live.draw();
        said.push(moved - live.listOf(3, 4)[0]); hit('Escape'); said.push(live.selected());
        const number = document.querySelector('#sliders input[type=number]'), home = number.nextSibling;
        number.value = '7.25'; number.onchange(); said.push(live.get(0), number.previousSibling.value);
        home.click(); said.push(live.get(0), number.value);
        number.focus(); hit('s'); said.push(live.get(live.row('slow')));
        number.blur(); hit('s'); said.push(live.get(live.row('slow')));
        said.push([...document.querySelectorAll('input, button')].filter(it => !it.labels?.length && !it.ariaLabel
            && !it.textContent.trim() && !it.getAttribute('aria-label')).length);
        URL.createObjectURL = blob => (said.push(blob.size === live.bytesOf('save').length), 'data:,');
        HTMLAnchorElement.prototype.click = function() { said.push(this.download); };
        press('take');
        parent.postMessage('said ' + said.join(' '), '*');
    });)");
    putFile(file("page.html"), page);
    putFile(file("frame.html"),
            "<iframe src=page.html width=320 height=480 style='border: 0'></iframe><script>"
            "addEventListener('message', event => document.title = event.data);</script>");
    EXPECT_EQ(titleOf("frame.html", {"--force-prefers-reduced-motion"}),
              "false framed still 320 320 true true 3 2 0 true 1 scene 300 -1 7.25 5 0.5 0.5 0 1 0 true 7 a "
              "walker.bot");
}

}  // namespace
}  // namespace zentrik
