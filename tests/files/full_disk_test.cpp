// The end of the program on a full or dying disk: what was there before is there afterwards.

#include "failing_disk.h"
#include "library/backups.h"
#include "library/library.h"
#include "project/writer.h"
#include "window_rig.h"

namespace zentrik {

namespace {

namespace fs = std::filesystem;

class FullDisk : public Window {
protected:
    const fs::path resume_ = folder_.path / "zoo" / "resume.bot";
    int boxes_ = 0;

    void SetUp() override {
        Window::SetUp();
        click({100, 100});
        restart();  // there is a resume, and settings
        click({200, 100});
        auto* answers = new QTimer(window_.get());
        QObject::connect(answers, &QTimer::timeout, answers, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            ++boxes_;
            auto* cancel = box->button(QMessageBox::Cancel);
            QTest::mouseClick(cancel != nullptr ? cancel : box->button(QMessageBox::Ok), Qt::LeftButton);
        });
        answers->start(1);
    }
    std::string settings() const { return contentOf(folder_.path / "settings/Zentrik/Zentrik.conf"); }
    bool isKept(const std::string& bytes) const {
        for (const FormerVersion& version : formerVersions(folder_.path.string(), "resume"))
            if (contentOf(version.path) == bytes) return true;
        return false;
    }
};

TEST_F(FullDisk, TheCloseIsRefusedAndNothingIsLost) {
    const std::string former = contentOf(resume_), formerSettings = settings();
    choose("mnuWalls");
    {
        const FileSizeLimit limit(100);
        ASSERT_TRUE(limit.works);
        EXPECT_FALSE(window_->close());
        EXPECT_EQ(boxes_, 3) << "settings, resume, and whether to lose it";
    }
    EXPECT_EQ(contentOf(resume_), former);
    EXPECT_EQ(settings(), formerSettings);
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(contentOf(resume_), projectBytes(ed()));
    EXPECT_NE(settings(), formerSettings);
    EXPECT_TRUE(isKept(former));
}

TEST_F(FullDisk, EveryFailureOnTheWayIsSaidAndLosesNothing) {
    for (const DiskCall call : {DiskCall::write, DiskCall::sync, DiskCall::rename, DiskCall::link})
        for (int n = 1; n <= 8; ++n) {
            SCOPED_TRACE(std::to_string(static_cast<int>(call)) + " " + std::to_string(n));
            const std::string former = contentOf(resume_), formerSettings = settings();
            click({100 + 40 * n, 200 + 40 * static_cast<int>(call)});
            choose("mnuWalls");
            boxes_ = 0;
            bool closed = false, failed = false;
            {
                const FailingDisk disk(call, n);
                closed = window_->close();
                failed = FailingDisk::hasFailed();
            }
            const std::string present = contentOf(resume_);
            EXPECT_TRUE(present == former || (present == projectBytes(ed()) && isKept(former)));
            if (closed) {
                EXPECT_EQ(present, projectBytes(ed()));
            }
            EXPECT_TRUE(failed ? boxes_ > 0 || call == DiskCall::link : boxes_ == 0);
            EXPECT_GE(settings().size() + 1, formerSettings.size());
            EXPECT_TRUE(settings().ends_with("Maximized=False\n"));
            window_->show();
        }
}

}  // namespace

}  // namespace zentrik
