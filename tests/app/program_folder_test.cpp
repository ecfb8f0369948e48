#include "app/keeping/program_folder.h"

#include "failing_disk.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

namespace fs = std::filesystem;

TEST(ProgramFolder, IsFilledWhollyOrTriedAgain) {
    const TemporaryFolder folder, outside;
    putFile(outside.path / "theirs", "theirs");
    fs::create_directory_symlink(outside.path, folder.path / "zoo.new");
    const QString place = QString::fromStdString(folder.path.string());
    {
        const FailingDisk full(DiskCall::write, 3);
        EXPECT_FALSE(fillProgramFolder(place));
        EXPECT_TRUE(FailingDisk::hasFailed());
    }
    EXPECT_FALSE(fs::exists(folder.path / "zoo"));
    EXPECT_EQ(entriesIn(outside.path), 1U) << "a link is not emptied";
    EXPECT_TRUE(fillProgramFolder(place));
    const auto same = [&](const std::string& name) {
        return contentOf(folder.path / name) == contentOf(fs::path(ZENTRIK_SOURCE_DIR) / name);
    };
    EXPECT_TRUE(same("zoo/walker.bot") && same("sprites/ant.svg"));
    EXPECT_EQ(entriesIn(folder.path), 2U);
    putFile(folder.path / "zoo" / "walker.bot", "mine");
    EXPECT_TRUE(fillProgramFolder(place));
    EXPECT_EQ(contentOf(folder.path / "zoo" / "walker.bot"), "mine");
}

}  // namespace

}  // namespace zentrik
