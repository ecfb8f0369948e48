#include "app/keeping/settings_store.h"

#include "failing_disk.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <QLockFile>
#include <QSettings>

#include <chrono>
#include <random>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

// One program that is running.
struct Program {
    Editor ed;
    Placement placement;
    UserSettings settings;
    std::string said = settings.load(ed, placement);

    std::string store() { return settings.store(ed, placement); }
};

struct SettingsFile : testing::Test {
    SettingsFile() {
        qputenv("XDG_CONFIG_HOME", folder.path.c_str());
        fs::create_directory(file.parent_path());
    }
    std::string stored(const std::string& key) {
        return SettingsText(contentOf(file)).read(key).value_or("missing");
    }

    TemporaryFolder folder;
    const fs::path file = folder.path / "Zentrik" / "Zentrik.conf";
};

// The file's form is that of QSettings, which wrote it before and which other tools read it with.
TEST_F(SettingsFile, SpeaksTheLanguageOfQSettingsBothWays) {
    std::mt19937 random(7);
    const QString letters = QString::fromUtf8("ab 09fF=;,\"\\'@[]%#:\t\n\räλ\u2028x\x01\x1f");
    const QString place = QString::fromStdString(file.string());
    for (int round = 0; round < 300; ++round) {
        QString text;
        for (auto length = random() % 9; length > 0; --length)
            text += letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
        QSettings(place, QSettings::IniFormat).setValue("Settings/StructureParm", text);
        EXPECT_EQ(stored("StructureParm"), text.toStdString()) << contentOf(file);
        SettingsText own(contentOf(file));
        EXPECT_FALSE(own.isDamaged());
        own.write("Other", text.toStdString());
        putFile(file, own.bytes());
        EXPECT_EQ(QSettings(place, QSettings::IniFormat).value("Settings/Other").toString(), text)
            << contentOf(file);
        fs::remove(file);
    }
    EXPECT_EQ(settingFromValue(" 20 , 30 ;comment"), "20,30") << "written by hand";
    EXPECT_EQ(settingFromValue("\\x2028z\\101"), "\u2028zA");
    for (const char* odd : {"\\", "\\x", "\"", "\\xffffffffffff", "\\777", "@"}) settingFromValue(odd);
}

TEST_F(SettingsFile, KeepsWhatItDoesNotKnow) {
    putFile(file,
            "; by hand\n[Window]\nWalls=1\n\n[Settings]\n Walls = False\nFuture=\"a, b\"\n\n[Last]\nx=y\n");
    Program program;
    EXPECT_EQ(program.said, "");
    EXPECT_FALSE(program.ed.marks.mnuWalls);
    program.ed.marks.mnuCeiling = false;
    EXPECT_EQ(program.store(), "");
    const std::string text = contentOf(file);
    EXPECT_TRUE(
        text.starts_with("; by hand\n[Window]\nWalls=1\n\n[Settings]\nWalls=False\nFuture=\"a, b\"\n"));
    EXPECT_TRUE(text.ends_with("\n\n[Last]\nx=y\n")) << text;
    EXPECT_EQ(stored("Ceiling") + stored("Gravity") + stored("x"), "False1missing");
}

TEST_F(SettingsFile, TwoProgramsKeepEachOthersChanges) {
    Program first, second, third;
    first.ed.marks.mnuWalls = false;
    first.ed.Gravity = 3;
    EXPECT_EQ(first.store(), "");
    second.ed.marks.mnuCeiling = false;
    second.ed.Gravity = 4;
    EXPECT_EQ(second.store(), "");
    EXPECT_EQ(stored("Walls") + stored("Ceiling") + stored("Gravity"), "FalseFalse4");
    EXPECT_EQ(third.store(), "");
    EXPECT_EQ(first.store(), "");
    EXPECT_EQ(stored("Walls") + stored("Ceiling") + stored("Gravity"), "FalseFalse4") << "nothing new";
    fs::remove(file);
    EXPECT_EQ(first.store(), "");
    EXPECT_EQ(stored("Walls") + stored("Gravity") + stored("NodeRadius"), "False360") << "all there is";
}

TEST_F(SettingsFile, AFullDiskKeepsTheFormerSettingsAndIsSaid) {
    Program program;
    EXPECT_EQ(program.store(), "");
    const std::string former = contentOf(file);
    program.ed.StructureParm = std::string(10000, 'x');
    for (const DiskCall call : {DiskCall::write, DiskCall::sync, DiskCall::rename})
        for (int n = 1; n <= 3; ++n) {
            std::string said;
            {
                const FailingDisk disk(call, n);
                said = program.store();
                EXPECT_EQ(!said.empty(), FailingDisk::hasFailed()) << static_cast<int>(call) << n;
            }
            if (said.empty() || said.find("power cut") != std::string::npos)
                putFile(file, former);
            else
                EXPECT_EQ(contentOf(file), former);
        }
    EXPECT_EQ(entriesIn(file.parent_path()), 1U) << "no lock stays to be waited for";
    {
        const FileSizeLimit limit(4096);
        ASSERT_TRUE(limit.works);
        EXPECT_NE(program.store(), "");
    }
    EXPECT_EQ(contentOf(file), former);
    EXPECT_EQ(entriesIn(file.parent_path()), 1U);
}

TEST_F(SettingsFile, DamagedOnesAreSaidKeptAsideAndForgotten) {
    for (const std::string& damaged : {std::string("[Settings]\nWalls=False\nCeil"), std::string(800, '\0'),
                                       std::string("\x7F"
                                                   "ELF\n")}) {
        putFile(file, damaged);
        Program program;
        EXPECT_TRUE(program.said.ends_with("are damaged.")) << program.said;
        EXPECT_EQ(program.ed.marks.mnuWalls, damaged[0] != '[') << "what can be read counts";
        EXPECT_EQ(program.store(), "");
        EXPECT_EQ(contentOf(file.string() + ".damaged"), damaged);
        EXPECT_EQ(Program().said, "");
    }
    putFile(file, "Zentrik");
    Program program;
    putFile(file, "[Settings]\nWalls=False\n");
    EXPECT_EQ(program.store(), "") << "another program has mended it";
    EXPECT_EQ(stored("Walls"), "False");
}

TEST_F(SettingsFile, TouchesNothingThatIsNoSettingsFile) {
    putFile(folder.path / "theirs", "theirs");
    const fs::path lock = file.string() + ".lock";
    const auto expectRefused = [&](const fs::path& what) {
        Program program;
        EXPECT_NE(program.store(), "") << what;
        EXPECT_EQ(contentOf(folder.path / "theirs"), "theirs");
        fs::remove(what);
        EXPECT_EQ(program.store(), "") << "once it is gone";
        fs::remove(file);
    };
    fs::create_symlink(folder.path / "theirs", file);
    expectRefused(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectRefused(file);
    fs::create_directory(file);
    expectRefused(file);
    ASSERT_EQ(mkfifo(lock.c_str(), 0600), 0);
    expectRefused(lock);
}

TEST_F(SettingsFile, ALockOfTheLivingIsSaidAndOneOfTheDeadTaken) {
    Program program;
    const fs::path lock = file.string() + ".lock";
    QLockFile living(QString::fromStdString(lock.string()));
    ASSERT_TRUE(living.tryLock());
    EXPECT_NE(program.store().find("Another program is storing its settings."), std::string::npos);
    EXPECT_FALSE(fs::exists(file));
    living.unlock();
    putFile(lock, "");
    fs::last_write_time(lock, fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_EQ(program.store(), "");
}

}  // namespace

}  // namespace zentrik
