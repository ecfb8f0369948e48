// How the window keeps what a session throws away that no file holds.

#include "failing_disk.h"
#include "library/backups.h"
#include "window_rig.h"

namespace zentrik {

namespace {

namespace fs = std::filesystem;

class KeptWork : public Window {
protected:
    std::size_t versionsOf(const char* name) const {
        return formerVersions(folder_.path.string(), name).size();
    }
    // The recovery copy, if there is one.
    std::string copy() const {
        const fs::path folder = folder_.path / "recovery";
        if (!fs::exists(folder)) return {};
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".bot") return contentOf(entry.path());
        return {};
    }
};

TEST_F(KeptWork, AFullDiskKeepsTheFormerCopyAndIsSaid) {
    auto* due = window_->findChild<QTimer*>("RecoveryDue");
    ASSERT_NE(due, nullptr);
    click({100, 100});
    due->start(0);
    ASSERT_TRUE(await([&] { return !copy().empty(); }));
    const std::string former = copy();
    click({200, 100});
    {
        const FileSizeLimit limit(100);
        ASSERT_TRUE(limit.works);
        due->start(0);
        EXPECT_TRUE(await([&] { return panelText(5).startsWith("What is not saved"); }));
        EXPECT_EQ(copy(), former);
    }
    click({300, 100});
    due->start(0);
    EXPECT_TRUE(await([&] { return copy() != former; })) << "the next one is tried";
    ASSERT_TRUE(window_->close());
    EXPECT_EQ(copy(), "");
}

TEST_F(KeptWork, WhatAnEventThrowsAwayIsAmongTheFormerVersions) {
    find<ProjectList>("lstSaved")->setEditText("mine");
    click({100, 100});
    click({200, 100});
    press("start");
    ASSERT_TRUE(await([&] { return ed().Cycles > 3; }));
    press("start");
    EXPECT_TRUE(await([&] { return versionsOf("mine") == 1; })) << "as it was before it ran";
    press("start");
    const std::int32_t cycles = ed().Cycles;
    ASSERT_TRUE(await([&] { return ed().Cycles > cycles + 3; }));
    press("start");
    press("new");
    EXPECT_TRUE(await([&] { return versionsOf("mine") == 2; })) << "as it was before it went";
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(versionsOf("mine"), 2U) << "a second run is no loss of its own";
    start();
    EXPECT_EQ(UsedNodes(ed()), 0);
}

TEST_F(KeptWork, ClosingKeepsWhatRanAndWhatWasUndone) {
    find<ProjectList>("lstSaved")->setEditText("mine");
    click({100, 100});
    click({200, 100});
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(versionsOf("mine"), 1U) << "what could be redone";
    start();
    find<ProjectList>("lstSaved")->setEditText("another");
    click({100, 100});
    press("start");
    ASSERT_TRUE(await([&] { return ed().Cycles > 3; }));
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(versionsOf("another"), 1U) << "as it was before it ran";
}

TEST_F(KeptWork, TheCopyStaysWhileItsContentsCanBeRedone) {
    constexpr int nodes = 6;
    for (int i = 1; i <= nodes; ++i) click({60 * i, 100});
    auto* due = window_->findChild<QTimer*>("RecoveryDue");
    ASSERT_NE(due, nullptr);
    due->start(0);
    ASSERT_TRUE(await([&] { return !copy().empty(); }));
    for (int i = 0; i < nodes; ++i) QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    EXPECT_FALSE(window_->isWindowModified());
    click({60, 200});
    ASSERT_TRUE(await([&] { return versionsOf("resume") == 1; })) << "what could be redone";
    EXPECT_NE(copy(), "") << "till then the copy was all that was left of it";
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(copy(), "");
}

TEST_F(KeptWork, WhatANewCopyReplacesIsKeptWhenMuchOfItIsUndone) {
    for (int i = 1; i <= 6; ++i) click({60 * i, 100});
    auto* due = window_->findChild<QTimer*>("RecoveryDue");
    ASSERT_NE(due, nullptr);
    due->start(0);
    ASSERT_TRUE(await([&] { return !copy().empty(); }));
    const std::string former = copy();
    for (int i = 0; i < 5; ++i) QTest::mouseClick(find<QToolButton>("undo"), Qt::LeftButton);
    due->start(0);
    ASSERT_TRUE(await([&] { return copy() != former; }));
    EXPECT_TRUE(await([&] { return versionsOf("resume") == 1; }));
}

}  // namespace

}  // namespace zentrik
