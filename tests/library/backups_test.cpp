#include "library/backups.h"

#include "desk.h"
#include "failing_disk.h"
#include "files/time_stamp.h"
#include "library/library.h"
#include "model/store.h"
#include "project/reader.h"
#include "project/writer.h"
#include "scenes/scenes.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

#include <thread>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

struct Backups : testing::Test {
    Backups() {
        ed.programFolder = folder.path.string();
        fs::create_directory(folder.path / "zoo");
    }
    fs::path file(const std::string& name) const { return folder.path / "zoo" / (name + ".bot"); }
    // Saves a model of so many nodes.
    bool save(const std::string& name, int nodes) {
        ed.Nodes.resize(1);
        for (int i = 0; i < nodes; ++i) scenes::addNode(ed, i, i);
        return SaveFile(ed, host, name);
    }
    // The number of nodes in each version, newest first, as "3 2 1 ".
    std::string versions(const std::string& name) const {
        std::string text;
        for (const FormerVersion& version : formerVersions(ed.programFolder, name)) {
            const auto file = parseProject(contentOf(version.path));
            text += (file.project ? std::to_string(file.project->Nodes.size() - 1) : "?") + " ";
        }
        return text;
    }
    std::string keep(const std::string& name) { return keepFormer(ed.programFolder, name, std::nullopt); }
    // A version that was replaced so many seconds after 1970.
    void putVersion(const std::string& name, int seconds, std::uintmax_t size = 1) {
        fs::create_directory(folder.path / "backups");
        const fs::path path = folder.path / "backups" / (name + "." + stampText(1000LL * seconds) + ".bot");
        putFile(path, std::to_string(seconds));
        fs::resize_file(path, size);
    }

    TemporaryFolder folder;
    Editor ed;
    ScriptedHost host;
};

TEST_F(Backups, EveryWayToReplaceAProjectKeepsTheFormerFile) {
    save("a", 1);
    save("a", 2);
    ed.savedText = "a";
    ed.Nodes.resize(1);
    lstSaved_Enter(ed, host);
    EXPECT_EQ(versions("a"), "2 1 ");
    scenes::addNode(ed, 1, 1);
    choose(ed, host, "mnuEmail");
    scenes::addNode(ed, 1, 1);
    choose(ed, host, "mnuEmail");
    EXPECT_EQ(versions("email"), "1 ");
    putFile(file("resume"), "no project at all");
    save("resume", 1);
    EXPECT_EQ(versions("resume"), "? ");
    EXPECT_EQ(contentOf(formerVersions(ed.programFolder, "resume")[0].path), "no project at all");
    EXPECT_EQ(versions("a.b") + versions(""), "") << "names that begin or end alike";
}

TEST_F(Backups, SavesAndKeptVersionsAtOnceDropNothingTwice) {
    for (int i = 1; i <= 20; ++i) putVersion("a", i);
    for (int round = 0; round < 40; ++round) {
        const std::string number = std::to_string(round);
        std::thread worker([&] {
            for (const char* text : {"a", "b", "c"}) keepVersion(ed.programFolder, "a", text + number);
        });
        for (const char* text : {"d", "e", "f"}) {
            putFile(file("a"), text + number);
            EXPECT_EQ(keep("a"), "");
        }
        worker.join();
        ASSERT_EQ(formerVersions(ed.programFolder, "a").size(), 20U) << "round " << round;
    }
}

TEST_F(Backups, AFileTooLargeToReadIsKeptWhole) {
    putFile(file("resume"), "Zentrik");
    fs::resize_file(file("resume"), 1ULL << 40);
    putVersion("other", 1);
    save("resume", 1);
    ASSERT_EQ(formerVersions(ed.programFolder, "resume").size(), 1U);
    EXPECT_EQ(formerVersions(ed.programFolder, "resume")[0].size, 1ULL << 40);
    EXPECT_EQ(formerVersions(ed.programFolder, "other").size(), 1U) << "it drives out no other";
    EXPECT_EQ(host.transcript, "");
}

TEST_F(Backups, TheSameContentsAreKeptOnceAndCountAsTheNewest) {
    for (const int nodes : {1, 1, 2, 1, 3, 2, 2}) save("a", nodes);
    EXPECT_EQ(versions("a"), "3 1 2 ");
    EXPECT_EQ(entriesIn(folder.path / "backups"), 3U);
    const auto kept = formerVersions(ed.programFolder, "a");
    EXPECT_GE(fs::last_write_time(kept[0].path), fs::last_write_time(kept[1].path)) << "as it is shown";
    EXPECT_GE(fs::last_write_time(kept[1].path), fs::last_write_time(kept[2].path));
}

TEST_F(Backups, TheOldestGoFirstAndNeverTheOneJustKept) {
    for (int i = 1; i <= 25; ++i) save("a", i);
    EXPECT_EQ(versions("a"), "24 23 22 21 20 19 18 17 16 15 14 13 12 11 10 9 8 7 6 5 ");
    putVersion("b", 10, 200ULL << 20);
    putVersion("b", 20, 50ULL << 20);
    putVersion("c", 30, 1ULL << 20);
    putFile(folder.path / "backups" / "a.19700101-000000-999.bot.bak", "a stranger's");
    putFile(file("d"), std::string(10U << 20, 'd'));
    EXPECT_EQ(keep("d"), "");
    EXPECT_EQ(formerVersions(ed.programFolder, "b").size(), 1U);
    EXPECT_EQ(formerVersions(ed.programFolder, "b")[0].replaced, 20000);
    EXPECT_EQ(formerVersions(ed.programFolder, "c").size() + formerVersions(ed.programFolder, "d").size(),
              2U);
    EXPECT_EQ(formerVersions(ed.programFolder, "a").size(), 20U) << "small ones stay";
    EXPECT_EQ(entriesIn(folder.path / "backups"), 20U + 3 + 1);
    const int ahead = 2000000000;  // another project's, kept while the clock was wrong
    putVersion("ahead", ahead, 256ULL << 20);
    putFile(file("d"), std::string(10U << 20, 'e'));
    EXPECT_EQ(keep("d"), "");
    EXPECT_EQ(formerVersions(ed.programFolder, "d").size(), 1U) << "the newest of it";
}

TEST_F(Backups, WhatNeverWasSavedLeavesRoomForWhatWas) {
    for (int i = 1; i <= 26; ++i) save("a", i);
    const auto keepUnsaved = [&](int nodes) {
        ed.Nodes.resize(1);
        for (int i = 0; i < nodes; ++i) scenes::addNode(ed, i, i);
        EXPECT_EQ(keepVersion(ed.programFolder, "a", projectBytes(ed)), "");
    };
    keepUnsaved(30);
    EXPECT_EQ(versions("a"), "30 25 24 23 22 21 20 19 18 17 16 15 14 13 12 11 10 9 8 7 ");
    for (int nodes = 31; nodes <= 44; ++nodes) keepUnsaved(nodes);
    EXPECT_EQ(versions("a"), "44 43 42 41 40 39 38 37 36 35 25 24 23 22 21 20 19 18 17 16 ");
    keepUnsaved(16);  // one that was saved
    EXPECT_EQ(versions("a"), "16 44 43 42 41 40 39 38 37 36 35 25 24 23 22 21 20 19 18 17 ");
    EXPECT_EQ(renameVersions(ed.programFolder, "a", "b"), "");
    for (const FormerVersion& version : formerVersions(ed.programFolder, "b"))
        EXPECT_EQ(version.unsaved, version.path.string().ends_with("unsaved.bot"));
    EXPECT_EQ(versions("b").substr(0, 6), "16 44 ");
}

TEST_F(Backups, AClockPutBackKeepsTheOrder) {
    save("a", 1);
    fs::create_directory(folder.path / "backups");
    putFile(folder.path / "backups" / "a.29991231-235959-999.bot", "Zentrik\n");
    save("a", 2);
    save("a", 3);
    EXPECT_EQ(versions("a"), "2 1 ? ");
    EXPECT_EQ(formerVersions(ed.programFolder, "a")[1].path.filename(), "a.30000101-000000-000.bot");
}

// Whatever fails: either the former contents are kept before they are replaced, or nothing is replaced.
TEST_F(Backups, WhatCannotBeKeptIsNotReplacedUnlessThePersonWantsIt) {
    const std::string question =
        "confirm: The former version of zoo/a.bot could not be kept.\n%\nSave all the same?|Zentrik\n";
    save("a", 1);
    const std::string former = contentOf(file("a"));
    putFile(folder.path / "backups", "no folder");
    host.confirms = false;
    EXPECT_FALSE(save("a", 2));
    EXPECT_EQ(contentOf(file("a")), former);
    std::string asked = question;
    EXPECT_EQ(host.transcript, asked.replace(asked.find('%'), 1, "Not a directory."));
    host.confirms = true;
    EXPECT_TRUE(save("a", 2));
    fs::remove(folder.path / "backups");
    host.confirms = false;
    for (const DiskCall call : {DiskCall::write, DiskCall::sync, DiskCall::rename, DiskCall::link})
        for (int n = 1; n <= 6; ++n) {
            save("a", 100 + n);
            save("a", 1);
            const std::string before = contentOf(file("a"));
            host.transcript.clear();
            const FailingDisk disk(call, n);
            const bool saved = save("a", 50);
            const auto kept = formerVersions(ed.programFolder, "a");
            const bool isKept = !kept.empty() && contentOf(kept[0].path) == before;
            const bool isReplaced = contentOf(file("a")) != before;
            EXPECT_TRUE(isKept || !isReplaced) << static_cast<int>(call) << n;
            EXPECT_EQ(saved, host.transcript.empty()) << "nothing fails in silence";
            EXPECT_TRUE(saved ? isReplaced : FailingDisk::hasFailed());
        }
}

TEST_F(Backups, WithoutSecondNamesACopyIsKept) {
    save("a", 1);
    const auto saved = fs::file_time_type::clock::now() - std::chrono::hours(48);
    fs::last_write_time(file("a"), saved);
    const FailingDisk noLinks(DiskCall::link, 1);
    save("a", 2);
    EXPECT_TRUE(FailingDisk::hasFailed());
    EXPECT_EQ(versions("a"), "1 ");
    EXPECT_EQ(fs::last_write_time(formerVersions(ed.programFolder, "a")[0].path), saved);
}

TEST_F(Backups, StampsAreMomentsThatSortAsTheyFollow) {
    EXPECT_EQ(stampText(0), "19700101-000000-000");
    EXPECT_EQ(stampText(1795412345678), "20261123-053905-678");
    EXPECT_EQ(stampText(951782399999), "20000228-235959-999");
    for (const std::int64_t moment : {0LL, 951782400000LL, 1795412345678LL, 253402300799999LL})
        EXPECT_EQ(stampOf(stampText(moment)), moment);
    for (const char* text : {"20261323-053905-678", "20260230-053905-678", "20261123-243905-678",
                             "20261123x053905-678", "2026112 -053905-678", "20261123--53905-678", "", "1"})
        EXPECT_FALSE(stampOf(text)) << text;
}

}  // namespace

}  // namespace zentrik
