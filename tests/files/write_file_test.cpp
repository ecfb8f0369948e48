#include "files/write_file.h"

#include "failing_disk.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

// A project just too large for what is left, and one that no buffer hides.
const std::size_t tooLarge[] = {5000, 70000, 3000000};

// A write that cannot be finished must say so, keep the old file whole and leave nothing beside it.
void expectRefused(const fs::path& file, std::size_t size) {
    const std::string old = contentOf(file);
    const std::size_t files = entriesIn(file.parent_path());
    EXPECT_NE(writeFile(file.string(), std::string(size, 'x')), "") << size;
    EXPECT_EQ(contentOf(file), old) << size;
    EXPECT_EQ(entriesIn(file.parent_path()), files) << size;
}

TEST(WriteFile, ReplacesTheWholeFile) {
    const TemporaryFolder folder;
    const fs::path file = folder.path / "ä b.bot";
    for (const std::string& bytes : {std::string(100000, 'a'), std::string("\0\xFF\r\n", 4), std::string()}) {
        EXPECT_EQ(writeFile(file.string(), bytes), "");
        EXPECT_EQ(contentOf(file), bytes);
        EXPECT_EQ(entriesIn(folder.path), 1u);
    }
}

TEST(WriteFile, SaysWhyAPlaceCannotBeWritten) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path / "folder.bot");
    for (const char* name : {"missing/a.bot", "folder.bot", ""})
        EXPECT_NE(writeFile((folder.path / name).string(), "x"), "") << name;
    EXPECT_EQ(entriesIn(folder.path), 1u);
}

TEST(WriteFile, KeepsTheModeOfTheOldFile) {
    const TemporaryFolder folder;
    const fs::path file = folder.path / "a.bot";
    putFile(file, "old");
    fs::permissions(file, fs::perms(0640));
    EXPECT_EQ(writeFile(file.string(), "new"), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

// What a link names is somebody's file, what a device or pipe is, no file's bytes can stand for.
TEST(WriteFile, ReplacesOnlyOrdinaryFilesInsideTheFolder) {
    const TemporaryFolder outside, folder;
    const fs::path zoo = folder.path / "zoo";
    fs::create_directory(zoo);
    putFile(outside.path / "file", "theirs");
    putFile(folder.path / "near.bot", "old");
    const std::pair<const char*, fs::path> links[] = {{"far", outside.path / "file"},
                                                      {"nothing", "missing"},
                                                      {"device", "/dev/null"},
                                                      {"dir", folder.path}};
    for (const auto& [name, target] : links) fs::create_symlink(target, zoo / name);
    fs::create_symlink("../near.bot", zoo / "near");
    ASSERT_EQ(mkfifo((zoo / "pipe").c_str(), 0600), 0);
    const std::size_t entries = entriesIn(zoo);
    for (const char* name : {"far", "nothing", "device", "dir", "pipe"}) {
        const fs::file_type before = fs::symlink_status(zoo / name).type();
        EXPECT_NE(writeFile((zoo / name).string(), "new", folder.path.string()), "") << name;
        EXPECT_EQ(fs::symlink_status(zoo / name).type(), before) << name;
    }
    EXPECT_NE(writeFile((zoo / "near").string(), "new"), "")
        << "by default only the file's own folder counts";
    EXPECT_EQ(contentOf(outside.path / "file") + contentOf(folder.path / "near.bot"), "theirsold");
    EXPECT_EQ(writeFile((zoo / "near").string(), "new", folder.path.string()), "");
    EXPECT_TRUE(fs::is_symlink(zoo / "near"));
    EXPECT_EQ(contentOf(folder.path / "near.bot"), "new");
    EXPECT_EQ(entriesIn(zoo), entries);
}

TEST(WriteFile, KeepsTheOldFileWhereverTheDiskFails) {
    const TemporaryFolder folder;
    const std::string file = (folder.path / "a.bot").string();
    for (const DiskCall call : {DiskCall::write, DiskCall::sync, DiskCall::rename}) {
        putFile(file, "old");
        const FailingDisk disk(call, 1);
        expectRefused(file, 5000);
        EXPECT_TRUE(FailingDisk::hasFailed());
    }
    const FailingDisk disk(DiskCall::sync, 2);
    EXPECT_TRUE(writeFile(file, "new").starts_with("It was written, but")) << "the folder is flushed as well";
    EXPECT_EQ(contentOf(file), "new");
}

TEST(WriteFile, SweepsOnlyOldOrdinaryFilesOfItsOwnNaming) {
    const TemporaryFolder folder;
    // A file that a save of the same number left is in nobody's way.
    const std::string again = (folder.path / "again").string();
    putFile(again + "." + std::to_string(::getpid()) + "-0.zentrik-part", "left");
    EXPECT_EQ(writeFile(again, "new"), "");
    EXPECT_EQ(contentOf(again), "new");
    fs::remove(again + "." + std::to_string(::getpid()) + "-0.zentrik-part");
    fs::remove(again);
    // What a save names its file aside, and names that only look like it.
    const char* const names[] = {"a.bot.123-0.zentrik-part",
                                 "a.bot",
                                 "a.bot.x-0.zentrik-part",
                                 "a.bot.123.zentrik-part",
                                 ".zentrik-part",
                                 "a.bot.123-0.zentrik-part.bot",
                                 "young.1-0.zentrik-part",
                                 "a.bot.123-0.part",
                                 "plan9-0.zentrik-part",
                                 ".1-0.zentrik-part"};
    for (const char* name : names) {
        putFile(folder.path / name, "x");
        const int hours = std::string(name).starts_with("young") ? 0 : 2;
        fs::last_write_time(folder.path / name, fs::file_time_type::clock::now() - std::chrono::hours(hours));
    }
    putFile(folder.path / "b.1-0.zentrik-part", "of a program with a short number");
    fs::last_write_time(folder.path / "b.1-0.zentrik-part",
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
    fs::create_directory(folder.path / "folder.1-0.zentrik-part");
    fs::create_symlink("a.bot", folder.path / "link.1-0.zentrik-part");
    sweepLeftovers(folder.path.string());
    EXPECT_FALSE(fs::exists(folder.path / names[0]));
    EXPECT_EQ(entriesIn(folder.path), std::size(names) - 1 + 2);
    sweepLeftovers((folder.path / "missing").string());
}

TEST(WriteFile, KeepsTheOldFileAtTheFileSizeLimit) {
    const TemporaryFolder folder;
    putFile(folder.path / "a.bot", "old");
    {
        const FileSizeLimit limit(4096);
        ASSERT_TRUE(limit.works);
        for (const std::size_t size : tooLarge) expectRefused(folder.path / "a.bot", size);
    }
    EXPECT_EQ(writeFile((folder.path / "a.bot").string(), std::string(5000, 'x')), "");
}

TEST(WriteFile, KeepsTheOldFileOnAFullDisk) {
    const TemporaryFolder folder;
    const fs::path disk = folder.path / "disk";
    fs::create_directory(disk);
    if (mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) GTEST_SKIP() << "wants the right to mount";
    putFile(disk / "a.bot", "old");
    putFile(disk / "filler", std::string(56 * 1024, 'f'));
    for (const std::size_t size : tooLarge) expectRefused(disk / "a.bot", size);
    umount(disk.c_str());
}

}  // namespace

}  // namespace zentrik
