// The share button by real events: dialogs, files, clipboard, and films made beside the window.

#include "app/bars/share_button.h"
#include "app/sharing/recording.h"
#include "basics/numbers.h"
#include "cli_rig.h"
#include "export/pages/live_page.h"
#include "failing_disk.h"
#include "window_rig.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImageReader>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QSvgRenderer>

namespace zentrik {
namespace {

namespace fs = std::filesystem;

constexpr int webPage = 0, gif = 1;  // among the formats of films

class SharingTest : public Window {
protected:
    std::vector<std::function<bool(QWidget&)>> script_;  // one for each box to come; false waits on
    QTimer answers_;
    int tries_ = 0;

    void SetUp() override {
        Window::SetUp();
        fs::create_directory(folder_.path / "out");
        for (const QPoint at : {QPoint(100, 100), QPoint(200, 100), QPoint(150, 200)}) click(at);
        click({300, 300}, Qt::RightButton);
        click({300, 300}, Qt::RightButton);
        QObject::connect(&answers_, &QTimer::timeout, &answers_, [this] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr || !box->isVisible()) return;
            if (script_.empty() || ++tries_ > 1000) {
                ADD_FAILURE() << "no answer for " << box->objectName().toStdString();
                return static_cast<QDialog*>(box)->reject();
            }
            const auto answer = script_.front();
            script_.erase(script_.begin());
            if (answer(*box))
                tries_ = 0;
            else
                script_.insert(script_.begin(), answer);
        });
        answers_.start(20);
    }
    std::string out(const char* name) const { return (folder_.path / "out" / name).string(); }

    // Answers a dialog of fields, in this order.
    void fill(std::vector<std::pair<const char*, int>> fields) {
        script_.emplace_back([fields](QWidget& box) {
            for (const auto& [name, value] : fields) {
                auto* field = box.findChild<QWidget*>(name);
                if (auto* list = qobject_cast<QComboBox*>(field)) list->setCurrentIndex(value);
                if (auto* number = qobject_cast<QSpinBox*>(field)) number->setValue(value);
                if (auto* real = qobject_cast<QDoubleSpinBox*>(field)) real->setValue(value);
                if (auto* mark = qobject_cast<QAbstractButton*>(field)) mark->setChecked(value != 0);
            }
            auto* buttons = box.findChild<QDialogButtonBox*>();
            QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
            return true;
        });
    }
    // Types into the desktop's dialog.
    void name(const std::string& file) {
        script_.emplace_back([file](QWidget& box) {
            auto* line = box.findChild<QLineEdit*>("fileNameEdit");
            if (line == nullptr) return false;
            line->setText(QString::fromStdString(file));
            QTest::keyClick(line, Qt::Key_Return);
            return true;
        });
    }
    void reply(QMessageBox::StandardButton choice, QString* said = nullptr) {
        script_.emplace_back([choice, said](QWidget& box) {
            auto* message = qobject_cast<QMessageBox*>(&box);
            if (message == nullptr) return false;
            if (said != nullptr) *said = message->text();
            QTest::mouseClick(message->button(choice), Qt::LeftButton);
            return true;
        });
    }
    // Opens the menu by a click on the button, and chooses an entry by a click on it.
    void share(const char* entry) {
        QTest::mouseClick(find<ShareButton>("share"), Qt::LeftButton);
        auto* menu = find<QMenu>("shareMenu");
        ASSERT_TRUE(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(find<QAction>(entry)).center());
        EXPECT_TRUE(script_.empty());
    }
    Recording* recording() const { return window_->findChild<Recording*>("Recording"); }
    void awaitFilm() const {
        ASSERT_NE(recording(), nullptr);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !recording()->isRunning(); }, 120000));
    }
    QString filmText() const { return recording()->findChild<QLabel*>()->text(); }
};

TEST(TimeLeft, IsInProportionToWhatIsDone) {
    EXPECT_EQ(timeLeft(0.4, 0.5), "just begun");
    EXPECT_EQ(timeLeft(10, 0), "just begun");
    EXPECT_EQ(timeLeft(10, 0.25), "30 s left");
    EXPECT_EQ(timeLeft(30, 0.2), "2 min 0 s left");
    EXPECT_EQ(timeLeft(4, 0.75), "2 s left") << "rounded up";
}

TEST_F(SharingTest, CopiesThePictureByKeyAndMenu) {
    for (const bool byKey : {true, false}) {
        QApplication::clipboard()->clear();
        if (byKey)
            QTest::keyClick(find("picS"), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        else
            share("shareCopy");
        const QMimeData* data = QApplication::clipboard()->mimeData();
        ASSERT_TRUE(data->hasImage());
        const auto image = qvariant_cast<QImage>(data->imageData());
        const double ratio = find("picS")->devicePixelRatio();
        EXPECT_EQ(image.size(), find("picS")->size() * ratio);
        EXPECT_EQ(image.pixelColor((QPointF(150, 100) * ratio).toPoint()), QColor(Qt::black)) << "a link";
        EXPECT_TRUE(QSvgRenderer(data->data("image/svg+xml")).isValid());
        EXPECT_EQ(panelText(5), "The scene was copied as a picture.");
    }
}

TEST_F(SharingTest, SavesPicturesWhereAndAsTold) {
    fill({{"format", 0}, {"scale", 2}, {"transparent", 1}});
    name(out("scene"));
    share("sharePicture");
    QImage image(QString::fromStdString(out("scene.png")));
    EXPECT_EQ(image.size(), 2 * find("picS")->size());
    EXPECT_EQ(qAlpha(image.pixel(5, 400)), 0);

    // The folder is known by now; a file is not replaced unasked.
    putFile(out("scene.svg"), "mine");
    fill({{"format", 1}});
    name("scene");
    reply(QMessageBox::Cancel);
    name("scene.svg");
    reply(QMessageBox::Ok);
    share("sharePicture");
    EXPECT_TRUE(QSvgRenderer(QString::fromStdString(out("scene.svg"))).isValid());
    EXPECT_EQ(panelText(5), "Saved scene.svg");
    restart();
    EXPECT_EQ(ed().shareFolder, out("").substr(0, out("").size() - 1));

    fill({{"format", 2}});
    name("full");
    QString said;
    reply(QMessageBox::Ok, &said);
    {
        const FailingDisk full(DiskCall::write, 1);
        share("sharePicture");
    }
    EXPECT_EQ(said, "full.pdf could not be saved.\nNo space left on device.");
    EXPECT_EQ(entriesIn(folder_.path / "out"), 2U);
}

TEST_F(SharingTest, RecordsBesideARunningWindow) {
    fill({{"format", gif}, {"unit", 1}, {"length", 200}, {"rate", 20}, {"scale", 1}, {"transparent", 0}});
    name(out("film"));
    press("start");
    const std::int32_t cycles = ed().Cycles;
    share("shareFilm");
    ASSERT_TRUE(recording() != nullptr && recording()->isVisible());
    awaitFilm();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ed().Cycles > cycles; }, 60000));
    EXPECT_TRUE(filmText().startsWith("film.gif, ")) << filmText().toStdString();
    const auto made = [&] { return QImageReader(QString::fromStdString(out("film.gif"))); };
    EXPECT_EQ(made().size(), find("picS")->size());
    const int pictures = made().imageCount();
    // Too large? The same film with fewer pictures, in its place.
    QPointer<Recording> former = recording();
    QTest::mouseClick(former->findChild<QPushButton*>("offer"), Qt::LeftButton);
    ASSERT_TRUE(await([&] { return former == nullptr; }));
    awaitFilm();
    EXPECT_LT(made().imageCount(), 0.6 * pictures);
    EXPECT_FALSE(recording()->findChild<QPushButton*>("offer")->isVisible());

    QString opened;
    recording()->openFolder = [&](const QString& folder) { opened = folder; };
    QTest::mouseClick(recording()->findChild<QPushButton*>("openFolder"), Qt::LeftButton);
    EXPECT_EQ(opened.toStdString(), (folder_.path / "out").string());
}

TEST_F(SharingTest, SavesTheTableOfTheSelectedNode) {
    click({100, 100});
    fill({{"unit", 1}, {"length", 30}});
    name(out("run"));
    share("shareTable");
    awaitFilm();
    const std::string table = contentOf(out("run.csv"));
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 32);
    EXPECT_NE(table.find("node 1 x"), std::string::npos) << table.substr(0, 200);
    EXPECT_EQ(table.find("node 2 x"), std::string::npos);
    EXPECT_EQ(ed().Cycles, 0) << "the window's model stays where it is";
}

// Of the project as it is saved, with the same options.
TEST_F(SharingTest, ALivePageIsTheCompanionPrograms) {
    if (!whyNoLivePages().empty()) GTEST_SKIP() << "wants the packages of tools/packages_web.txt";
    find<QComboBox>("lstSaved")->setEditText("my creature");
    press("save");
    name(out("page"));
    share("shareLive");
    EXPECT_EQ(panelText(5), "Saved page.html");
    ASSERT_EQ(
        zentrikCli({"export", folder_.path / "zoo" / "my creature.bot", "--live", "-o", out("other.html")})
            .error,
        "");
    EXPECT_TRUE(contentOf(out("page.html")) == contentOf(out("other.html")));
    choose("mnuWalls");
    name(out("open"));
    share("shareLive");
    ASSERT_EQ(zentrikCli({"export", folder_.path / "zoo" / "my creature.bot", "--live", "--walls", "off",
                          "-o", out("other.html")})
                  .error,
              "");
    EXPECT_TRUE(contentOf(out("open.html")) == contentOf(out("other.html")));
    EXPECT_FALSE(contentOf(out("page.html")) == contentOf(out("open.html")));
}

TEST_F(SharingTest, ACancelledFilmAndAClosedWindowLeaveNothing) {
    for (const bool closed : {false, true}) {
        fill({{"format", webPage}, {"unit", 1}, {"length", 1000000}, {"scale", 1}});
        name(out("film"));
        share("shareFilm");
        ASSERT_TRUE(recording()->isRunning());
        EXPECT_TRUE(await([this] { return filmText().contains("\nIt will have about "); }));
        QTest::keyClick(recording(), Qt::Key_Return);
        ASSERT_TRUE(recording()->isRunning()) << "nothing was asked";
        auto* bar = recording()->findChild<QProgressBar*>();
        EXPECT_TRUE(bar->isVisible());
        if (closed)
            EXPECT_TRUE(window_->close());
        else
            QTest::mouseClick(recording()->findChild<QPushButton*>("cancel"), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([this] { return recording() == nullptr; }, 60000));
        EXPECT_EQ(entriesIn(folder_.path / "out"), 0U);
    }
}

TEST_F(SharingTest, AFolderThatIsGoneIsSaid) {
    fill({{"format", gif}, {"unit", 1}, {"length", 300}, {"scale", 1}});
    name(out("film"));
    share("shareFilm");
    fs::remove_all(folder_.path / "out");
    awaitFilm();
    EXPECT_EQ(filmText(), "film.gif could not be made.\nNo such file or directory.");
    EXPECT_FALSE(recording()->findChild<QPushButton*>("openFolder")->isVisible());
}

TEST_F(SharingTest, APlotLeavesAsPictureAndAsTable) {
    runAWhile();
    QTest::mouseClick(find("plotButton"), Qt::LeftButton);
    const auto* plot = find<PlotWindow>("PlotWindow");
    settle();
    QTest::mouseClick(find("copyPlot"), Qt::LeftButton);
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->imageData().value<QImage>().size(), plot->plotSize() * window_->devicePixelRatioF());
    EXPECT_TRUE(copied->data("image/svg+xml").contains("<path"));

    fill({{"format", 0}, {"scale", 2}});
    name(out("plot"));
    QTest::mouseClick(find("savePlot"), Qt::LeftButton);
    EXPECT_EQ(QImage(QString::fromStdString(out("plot.png"))).size(), plot->plotSize() * 2);

    name(out("way"));
    QTest::mouseClick(find("savePlotTable"), Qt::LeftButton);
    awaitFilm();
    const std::vector<std::string> lines = linesOf(contentOf(out("way.csv")));
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(plot->plot().series.end()) + 1);
    EXPECT_TRUE(lines[0].ends_with(",energy (mass twips^2/time unit^2)")) << lines[0];
    const double last = plot->plot().series.all(4).least;
    EXPECT_NE(contentOf(out("way.csv")).find(realText(last)), std::string::npos);
}

}  // namespace
}  // namespace zentrik
