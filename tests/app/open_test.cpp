// Files that reach the program from outside: the command line, a second start, drops.

#include "app/running_program.h"
#include "window_rig.h"

#include <QDropEvent>
#include <QMimeData>
#include <QProcess>
#include <csignal>
#include <fstream>

namespace zentrik {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status = 0;
    QString out, problems;
};

// Without any display, at home in a folder.
void startProgram(QProcess& process, const fs::path& folder, const QStringList& arguments) {
    QProcessEnvironment home = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) home.remove(display);
    home.insert("XDG_DATA_HOME", QString::fromStdString(folder.string()));
    home.insert("XDG_CONFIG_HOME", QString::fromStdString((folder / "settings").string()));
    process.setProcessEnvironment(home);
    process.start(ZENTRIK_PROGRAM, arguments);
}

// Runs the program to its end.
Outcome runProgram(const fs::path& folder, const QStringList& arguments) {
    QProcess process;
    startProgram(process, folder, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << arguments.join(' ').toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

TEST(CommandLine, IsAnsweredWithoutADisplay) {
    const TemporaryFolder folder;
    const Outcome version = runProgram(folder.path, {"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "Zentrik " ZENTRIK_VERSION "\n");
    const Outcome help = runProgram(folder.path, {"-h"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("[FILE]") && help.out.contains("--new-window"));
    EXPECT_FALSE(help.out.contains("--help-all")) << "offered, but a window would open";
    const Outcome unknown = runProgram(folder.path, {"--nonsense"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.out, "");
    EXPECT_TRUE(unknown.problems.contains("nonsense")) << unknown.problems.toStdString();
}

class Opened : public Window {
protected:
    std::string put(const char* name, const std::string& content) const {
        fs::create_directories(folder_.path / "elsewhere");
        const fs::path path = folder_.path / "elsewhere" / name;
        std::ofstream(path, std::ios::binary) << content;
        return path.string();
    }
    std::string putSample(const char* name, const char* sample) const {
        fs::create_directories(folder_.path / "elsewhere");
        const fs::path path = folder_.path / "elsewhere" / name;
        fs::copy_file(std::string(ZENTRIK_SOURCE_DIR "/") + sample, path);
        return path.string();
    }
    void drop(const QList<QUrl>& urls, QPoint inScene = {1, 1}) const {
        QMimeData data;
        data.setUrls(urls);
        const QPoint at = find("picS")->mapTo(window_.get(), inScene);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &dropped);
    }
    static QUrl urlOf(const std::string& path) { return QUrl::fromLocalFile(QString::fromStdString(path)); }
    bool listed(const char* name) const {
        return std::find(ed().savedNames.begin(), ed().savedNames.end(), name) != ed().savedNames.end();
    }
};

TEST_F(Opened, AProjectFromElsewhereIsUnsavedUntilItIsInTheLibrary) {
    click({100, 100});
    const std::string guest = putSample("My Guest.bot", "zoo/wheel.bot");
    window_->open({QString::fromStdString(guest)});
    const int nodes = UsedNodes(ed());
    EXPECT_GT(nodes, 1);
    EXPECT_EQ(ed().savedText, "My Guest");
    EXPECT_TRUE(window_->isWindowModified());
    EXPECT_TRUE(panelText(5).contains("elsewhere") && panelText(5).contains("library"));
    EXPECT_FALSE(fs::exists(folder_.path / "zoo/My Guest.bot"));
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), 1) << "it is a step that can be undone";
    QTest::mouseClick(find<QToolButton>("redo"), Qt::LeftButton);
    EXPECT_EQ(UsedNodes(ed()), nodes);

    window_->open({QString::fromStdString(guest)});
    press("save");
    EXPECT_TRUE(fs::exists(folder_.path / "zoo/My Guest.bot"));
    EXPECT_FALSE(window_->isWindowModified());

    press("new");
    window_->open({QString::fromStdString((folder_.path / "zoo/My Guest.bot").string())});
    EXPECT_EQ(UsedNodes(ed()), nodes);
    EXPECT_FALSE(window_->isWindowModified()) << "it lies in the library";
}

TEST_F(Opened, WhatIsNoProjectLeavesTheModelAlone) {
    click({100, 100});
    const std::string before = ed().savedText;
    QString said;
    for (const auto& [name, content] :
         {std::pair{"damaged.bot", "Zentrik\r\ntitle\r\nLinks\r\n1 : True : x\r\n"},
          {"foreign.bot", "something else"}}) {
        answerNext("", Qt::Key_Return, &said);
        window_->open({QString::fromStdString(put(name, content))});
        EXPECT_FALSE(said.isEmpty()) << name;
        EXPECT_EQ(UsedNodes(ed()), 1) << name;
        EXPECT_EQ(ed().savedText, before) << name;
    }
}

TEST_F(Opened, DropsAreProjectsOrSpritesOrRefused) {
    drop({urlOf(putSample("dropped.bot", "zoo/wheel.bot"))});
    EXPECT_EQ(ed().savedText, "dropped");
    press("new");
    click({100, 100});

    const std::string fish = putSample("fish.svg", "sprites/fish.svg");
    drop({urlOf(fish)}, {400, 300});
    EXPECT_TRUE(panelText(5).contains("on a node"));
    EXPECT_FALSE(fs::exists(folder_.path / "sprites/fish.svg"));
    drop({urlOf(fish)}, {100, 100});
    EXPECT_EQ(nodeAt(ed(), 1).Sprite, "fish.svg");
    EXPECT_EQ(find<QComboBox>("lstSprites")->currentText(), "fish.svg");
    EXPECT_TRUE(fs::exists(folder_.path / "sprites/fish.svg"));
    // Another picture of that name must not change the nodes that have the first.
    drop({urlOf(putSample("ant.svg", "sprites/sun.svg"))}, {100, 100});
    EXPECT_EQ(nodeAt(ed(), 1).Sprite, "ant 2.svg");

    drop({urlOf(put("letter.txt", "Dear node"))}, {100, 100});
    EXPECT_TRUE(panelText(5).contains("neither a project nor a picture"));
    drop({QUrl("https://zentrik.example/ant.svg")}, {100, 100});
    EXPECT_TRUE(panelText(5).contains("no file of this computer"));
    EXPECT_EQ(nodeAt(ed(), 1).Sprite, "ant 2.svg");
    fs::rename(folder_.path / "sprites", folder_.path / "gone");
    putFile(folder_.path / "sprites", "a file in the way");
    QString said;
    answerNext("", Qt::Key_Return, &said);
    drop({urlOf(putSample("bee.svg", "sprites/sun.svg"))}, {100, 100});
    EXPECT_TRUE(said.contains("could not be copied to the sprites")) << said.toStdString();
}

TEST_F(Opened, ASecondStartHandsItsFileToTheRunningProgram) {
    const QString folder = QString::fromStdString((folder_.path / "Zentrik").string());
    EXPECT_FALSE(handToRunning(folder, {}));
    const QString file = QString::fromStdString(putSample("second.bot", "zoo/wheel.bot"));
    bool started = false;
    const StartListener listener(folder, [&](const QStringList& files) {
        started = true;
        window_->open(files);
    });
    // This thread must answer meanwhile.
    std::unique_ptr<QThread> second(QThread::create([&] {
        EXPECT_EQ(runProgram(folder_.path, {"-platform", "offscreen", file}).status, 0);
    }));
    second->start();
    EXPECT_TRUE(await([&] { return second->isFinished(); }));
    second->wait();
    EXPECT_TRUE(started);
    EXPECT_EQ(ed().savedText, "second");
}

// Whether a program ends in order when it is asked to, as the kernel tells.
bool heedsTermination(qint64 program) {
    std::ifstream status("/proc/" + std::to_string(program) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("SigCgt:"))
            return (std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
    return false;
}

TEST_F(Opened, ANewWindowIsAProgramOfItsOwn) {
    const fs::path folder = folder_.path / "Zentrik";
    bool taken = false;
    const StartListener listener(QString::fromStdString(folder.string()),
                                 [&](const QStringList&) { taken = true; });
    QProcess own;
    startProgram(own, folder_.path,
                 {"-platform", "offscreen", "--new-window",
                  QString::fromStdString(putSample("own.bot", "zoo/wheel.bot"))});
    ASSERT_TRUE(QTest::qWaitFor([&] { return taken || heedsTermination(own.processId()); }, 60000));
    own.terminate();
    EXPECT_TRUE(QTest::qWaitFor([&] { return own.state() == QProcess::NotRunning; }, 60000));
    EXPECT_FALSE(taken);
    EXPECT_TRUE(fs::exists(folder / "zoo/resume.bot"));
}

}  // namespace
}  // namespace zentrik
