// What is left of unsaved work when the program is killed, ended by a signal or robbed of its disk, and how
// the next start brings it back.

#include "app/keeping/left_copies.h"
#include "library/backups.h"
#include "library/zoo.h"
#include "undo_walk.h"
#include "window_rig.h"

#include <signal.h>

#include <QAbstractButton>
#include <QProcess>
#include <algorithm>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

class Recovery : public Window {
protected:
    fs::path recovery() const { return folder_.path / "recovery"; }
    std::size_t copies() const {
        if (!fs::exists(recovery())) return 0;
        const auto isCopy = [](const fs::directory_entry& entry) {
            return entry.path().extension() == ".bot";
        };
        return static_cast<std::size_t>(std::count_if(fs::directory_iterator(recovery()), {}, isCopy));
    }
    std::size_t versionsOf(const char* name) const {
        return formerVersions(folder_.path.string(), name).size();
    }
    std::string leftNames() const {
        std::string names;
        for (const LeftCopy& left : leftCopies(folder_.path.string())) names += left.copy.name + " ";
        return names;
    }
    // A copy as a program that is gone left it, holding a model of two nodes.
    fs::path leave(const char* file, const char* project) {
        fs::create_directory(recovery());
        Editor ed;
        appendNode(ed, standardNode(ed, 100, 200));
        appendNode(ed, standardNode(ed, 300, 200));
        ed.savedText = project;
        putFile(recovery() / file, recoveryBytes(ed));
        return recovery() / file;
    }
    // Chooses in the boxes that the offer opens, one answer a box; gives what they said.
    std::string offer(std::vector<QString> answers) {
        std::string said;
        std::function<void()> answer = [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || answers.empty()) return;
            said += box->text().toStdString();
            const QString choice = answers.front();
            answers.erase(answers.begin());
            QTimer::singleShot(0, window_.get(), answer);
            if (choice == "Escape") return QTest::keyClick(box, Qt::Key_Escape);
            for (QAbstractButton* button : box->buttons())
                if (button->text() == choice) return button->click();
        };
        QTimer::singleShot(0, window_.get(), answer);
        window_->offerLeftCopies();
        return said;
    }
};

// A program started in a folder of its own.
class Program {
public:
    Program(const char* file, const fs::path& folder, const QStringList& arguments = {}) {
        QProcessEnvironment home = QProcessEnvironment::systemEnvironment();
        home.insert("QT_QPA_PLATFORM", "offscreen");
        home.insert("XDG_CONFIG_HOME", QString::fromStdString((folder / "settings").string()));
        home.insert("XDG_DATA_HOME", QString::fromStdString(folder.string()));
        process_.setProcessEnvironment(home);
        process_.start(file, arguments);
        EXPECT_TRUE(process_.waitForStarted());
    }
    ~Program() {
        process_.kill();
        process_.waitForFinished();
    }
    QByteArray line() {
        while (!process_.canReadLine() && process_.waitForReadyRead()) {
        }
        return process_.readLine();
    }
    // Once it answers signals itself.
    bool end(int signal) {
        const QString status = QString("/proc/%1/status").arg(process_.processId());
        const bool ready = QTest::qWaitFor(
            [&] {
                QFile file(status);
                if (!file.open(QIODevice::ReadOnly)) return false;
                const QByteArray text = file.readAll();
                const qulonglong caught =
                    text.mid(text.indexOf("SigCgt:") + 7, 17).trimmed().toULongLong(nullptr, 16);
                return (caught >> (signal - 1) & 1) != 0;
            },
            30000);
        if (ready) ::kill(static_cast<pid_t>(process_.processId()), signal);
        return ready && process_.waitForFinished() && process_.exitStatus() == QProcess::NormalExit &&
               process_.exitCode() == 0;
    }
    void kill() {
        process_.kill();
        process_.waitForFinished();
    }

private:
    QProcess process_;
};

TEST_F(Recovery, AKilledProgramLosesNothing) {
    ASSERT_TRUE(window_->close());
    Program program(ZENTRIK_SUBJECT, folder_.path, {QString::fromStdString(folder_.path.string())});
    ASSERT_EQ(program.line(), "drawn\n");
    ASSERT_TRUE(await([&] { return copies() == 1; }));
    EXPECT_EQ(leftNames(), "") << "it lives";
    program.kill();
    EXPECT_EQ(leftNames(), "resume ");
    start();
    const std::string before = imageOf(ed());
    const std::string said = offer({"Restore"});
    EXPECT_NE(said.find("\"resume\""), std::string::npos) << said;
    EXPECT_NE(said.find("2 nodes, 1 link"), std::string::npos) << said;
    EXPECT_EQ(UsedNodes(ed()), 2);
    EXPECT_TRUE(window_->isWindowModified()) << "nothing was written";
    EXPECT_EQ(copies(), 0U);
    EXPECT_EQ(versionsOf("resume"), 1U);
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_TRUE(imageOf(ed()) == before);
}

TEST_F(Recovery, ASignalEndsTheProgramAsItsCloseButtonDoes) {
    ASSERT_TRUE(window_->close());
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        fs::remove_all(folder_.path / "zoo");
        fs::remove_all(folder_.path / "settings");
        fs::create_directory(folder_.path / "zoo");
        Program program(ZENTRIK_SUBJECT, folder_.path, {QString::fromStdString(folder_.path.string())});
        ASSERT_EQ(program.line(), "drawn\n");
        EXPECT_TRUE(program.end(signal)) << signal;
        EXPECT_FALSE(fs::is_empty(folder_.path / "settings"));
        start();
        EXPECT_EQ(UsedNodes(ed()), 2) << signal;
        EXPECT_EQ(copies(), 0U);
        window_.reset();
    }
    Program program(ZENTRIK_PROGRAM, folder_.path);  // the real one too answers
    EXPECT_TRUE(program.end(SIGTERM));
    EXPECT_TRUE(fs::exists(folder_.path / "Zentrik" / "zoo" / "resume.bot"));
}

TEST_F(Recovery, ALimitOfTheFileSizeEndsNothingAndSpoilsNothing) {
    click({100, 100});
    ASSERT_TRUE(window_->close());
    const fs::path files[] = {folder_.path / "zoo/resume.bot",
                              folder_.path / "settings/Zentrik/Zentrik.conf"};
    const std::string before = contentOf(files[0]) + contentOf(files[1]);
    const QStringList limited{"-c", "ulimit -f 1; exec \"$0\" \"$1\"", ZENTRIK_SUBJECT,
                              QString::fromStdString(folder_.path.string())};
    Program program("/bin/sh", folder_.path, limited);
    ASSERT_EQ(program.line(), "drawn\n");
    EXPECT_TRUE(program.end(SIGTERM));
    EXPECT_EQ(contentOf(files[0]) + contentOf(files[1]), before);
}

TEST_F(Recovery, WhatIsFiledAtTheEndLeavesNoCopy) {
    click({100, 100});
    window_->keepWorkAndEnd();
    window_.reset();
    EXPECT_EQ(leftNames(), "");
}

TEST_F(Recovery, WhatCannotBeFiledAtTheEndIsLeftAsACopy) {
    click({100, 100});
    fs::remove_all(folder_.path / "zoo");
    putFile(folder_.path / "zoo", "in the way");
    window_->keepWorkAndEnd();
    window_.reset();
    EXPECT_EQ(leftNames(), "resume ");
}

TEST_F(Recovery, OffersOnlyWhatADeadProgramLeftWhole) {
    const fs::path whole = leave("1-1.bot", "walker");
    const std::string bytes = contentOf(whole);
    putFile(recovery() / "2-2.bot", bytes.substr(0, bytes.size() - 3));
    putFile(recovery() / "3-3.bot", "");
    fs::create_directory(recovery() / "4-4.bot");
    fs::create_symlink(whole, recovery() / "5-5.bot");
    leave("6-6.bot", "of one that lives");
    QLockFile living(QString::fromStdString((recovery() / "6-6.lock").string()));
    ASSERT_TRUE(living.tryLock(0));
    leave("7-7.bot", "of a cut off lock");
    putFile(recovery() / "7-7.lock", "");
    fs::last_write_time(recovery() / "7-7.lock", fs::file_time_type::clock::now() - std::chrono::hours(1));
    leave("8-8.bot", "of another machine");
    putFile(recovery() / "8-8.lock", "1\nzentrik\nelsewhere\n");
    leave("9-9.bot", "../../up");
    EXPECT_EQ(leftNames().size(), std::string("walker of a cut off lock resume ").size());
    {
        const auto held = leftCopies(folder_.path.string());
        EXPECT_EQ(held.size(), 3U);
        EXPECT_EQ(leftNames(), "") << "one program offers them";
    }
    offer({"Escape", "Discard", "Restore"});
    EXPECT_EQ(leftCopies(folder_.path.string()).size(), 1U) << "one was kept for later";
    EXPECT_EQ(UsedNodes(ed()), 2);
    EXPECT_EQ(entriesIn(folder_.path / "backups"), 2U) << "discarded is not lost";
}

TEST_F(Recovery, AFolderInTheWayIsSaidOnceAndStopsNothing) {
    putFile(recovery(), "in the way");
    EXPECT_EQ(offer({}), "");
    click({100, 100});
    auto* due = window_->findChild<QTimer*>("RecoveryDue");
    ASSERT_NE(due, nullptr);
    ASSERT_TRUE(due->isActive());
    EXPECT_LE(due->interval(), 5000);
    due->start(0);
    EXPECT_TRUE(await([&] { return panelText(5).startsWith("What is not saved"); }));
    EXPECT_TRUE(window_->close());
}

}  // namespace

}  // namespace zentrik
