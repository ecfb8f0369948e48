#include "project/write_file.h"

#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <csignal>

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
    for (const char* name : {"missing/a.bot", "folder.bot", "odd\xFF.bot", ""})
        EXPECT_NE(writeFile((folder.path / name).string(), "x"), "") << name;
    EXPECT_EQ(entriesIn(folder.path), 1u);
}

TEST(WriteFile, KeepsTheOldFileAtTheFileSizeLimit) {
    const TemporaryFolder folder;
    putFile(folder.path / "a.bot", "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{4096, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    for (const std::size_t size : tooLarge) expectRefused(folder.path / "a.bot", size);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(writeFile((folder.path / "a.bot").string(), std::string(5000, 'x')), "");
}

TEST(WriteFile, KeepsTheOldFileOnAFullDisk) {
    const TemporaryFolder folder;
    const fs::path disk = folder.path / "disk";
    fs::create_directory(disk);
    if (mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) GTEST_SKIP() << "may not mount";
    putFile(disk / "a.bot", "old");
    putFile(disk / "filler", std::string(56 * 1024, 'f'));
    for (const std::size_t size : tooLarge) expectRefused(disk / "a.bot", size);
    umount(disk.c_str());
}

}  // namespace

}  // namespace zentrik
