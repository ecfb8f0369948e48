// Takes the pictures of the README and the manual from the real window, driven by real events.
// Usage: zentrik_manual_pictures FOLDER

#include "app/frm_main.h"
#include "app/program_folder.h"
#include "app/versions_dialog.h"
#include "project/backups.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QtTest/QTest>
#include <cstdio>

namespace {

using zentrik::frmMain;

class Photographer {
public:
    Photographer(const QString& program, QString pictures)
        : window_(program), pictures_(std::move(pictures)) {
        window_.resize(1200, 640);
        window_.show();
        if (!QTest::qWaitForWindowExposed(&window_)) std::exit(1);
    }

    void open(const QString& project) {
        auto* list = window_.findChild<QComboBox*>("lstSaved");
        list->lineEdit()->setText(project);
        press("refresh");
    }
    void play(int milliseconds) {
        press("start");
        QTest::qWait(milliseconds);
    }
    void stop() {
        if (button("Toolbar1", "start")->isChecked()) press("start");
    }
    void press(const char* key) { QTest::mouseClick(button("Toolbar1", key), Qt::LeftButton); }
    void choose(const char* name) { window_.findChild<QAction*>(name)->trigger(); }
    void preset(const char* key, const char* text) {
        for (QAction* entry : button("Toolbar2", key)->menu()->actions())
            if (entry->text() == text) return entry->trigger();
    }
    void click(QPoint at, Qt::MouseButton mouseButton = Qt::LeftButton) {
        auto* scene = window_.findChild<QWidget*>("picS");
        QTest::mouseMove(scene, at);
        QTest::mouseClick(scene, mouseButton, {}, at);
    }
    void hover(QPoint at) { QTest::mouseMove(window_.findChild<QWidget*>("picS"), at); }
    // As the platform delivers it: press, release, double click, release.
    void doubleClick(QPoint at) {
        click(at);
        auto* scene = window_.findChild<QWidget*>("picS");
        QMouseEvent event(QEvent::MouseButtonDblClick, at, scene->mapToGlobal(at), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(scene, &event);
        QTest::mouseRelease(scene, Qt::LeftButton, {}, at);
    }
    void resize(int width, int height) {
        window_.resize(width, height);
        QTest::qWait(20);
    }

    void take(const char* name) { take(&window_, name); }
    void take(QWidget* widget, const char* name) {
        QTest::qWait(40);
        const QString file = pictures_ + "/" + name + ".png";
        if (!widget->grab().save(file)) std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }
    void takeMenu(const char* name, const char* picture) {
        auto* menu = window_.findChild<QMenu*>(name);
        menu->popup(window_.mapToGlobal(QPoint(0, 30)));
        take(menu, picture);
        menu->close();
    }
    QWidget* part(const char* name) { return window_.findChild<QWidget*>(name); }

private:
    frmMain window_;
    QString pictures_;

    QToolButton* button(const char* bar, const char* key) {
        return window_.findChild<QToolBar*>(bar)->findChild<QToolButton*>(key);
    }
};

// A little house on legs, drawn by hand, its legs made animators.
void drawCreature(Photographer& camera) {
    camera.press("new");
    const QPoint corners[] = {{420, 170}, {600, 90}, {780, 170}, {740, 330}, {460, 330}};
    for (const QPoint corner : corners) camera.click(corner);
    camera.click(corners[0]);
    camera.click(corners[3]);
    camera.click({900, 60}, Qt::RightButton);
    camera.click(corners[4]);
    camera.click(corners[2]);
    for (const auto& [hip, foot] :
         {std::pair{corners[3], QPoint(800, 470)}, {corners[4], QPoint(400, 470)}}) {
        camera.click({900, 60}, Qt::RightButton);
        camera.click({900, 60}, Qt::RightButton);
        camera.click(hip);
        camera.click(foot);
        camera.click({900, 60}, Qt::RightButton);
        camera.click({900, 60}, Qt::RightButton);
        camera.doubleClick((hip + foot) / 2);
    }
    camera.press("activeline");
    camera.click((corners[1] + corners[2]) / 2);
    camera.hover(corners[0]);
    camera.take("creature");
    camera.press("activeline");
}

void takeOverview(Photographer& camera) {
    camera.resize(1200, 420);
    camera.open("bridge");
    camera.play(1500);
    camera.take("window");
    camera.stop();
    camera.resize(960, 334);
    camera.open("walker");
    camera.play(2500);
    camera.take("smallest");
    camera.stop();
}

void takeEditing(Photographer& camera) {
    camera.resize(1200, 640);
    drawCreature(camera);
    camera.press("numbers");
    camera.take("numbers");
    camera.press("numbers");
    camera.press("data");
    camera.take("information");
    camera.press("data");
    camera.take(camera.part("Toolbar1"), "commands");
    camera.press("nextnode");
    camera.take(camera.part("Toolbar2"), "properties");
    camera.takeMenu("mnuStructures", "structures");
    camera.takeMenu("mnuSettings", "settings");
}

// What three more saves leave behind.
void takeVersions(Photographer& camera, const std::string& folder) {
    camera.open("walker");
    for (int i = 0; i < 3; ++i) {
        camera.click({150 + 60 * i, 60});
        camera.press("rotate");
        camera.press("save");
        QTest::qWait(1100);  // the times differ
    }
    std::vector<std::string> files;
    for (const auto& version : zentrik::formerVersions(folder, "walker"))
        files.push_back(version.path.string());
    zentrik::VersionsDialog dialog("walker", files, nullptr);
    dialog.show();
    QTest::qWait(300);
    camera.take(&dialog, "versions");
}

void takeStrips(Photographer& camera) {
    camera.resize(1200, 500);
    camera.open("wheel");
    camera.choose("mnuDisplayAngleManager");
    camera.play(1500);
    camera.take("phases");
    camera.stop();
    camera.choose("mnuDisplayAngleManager");

    camera.open("pendulum");
    camera.choose("mnuDisplayBrowser");
    camera.choose("mnuRandomNodes");
    camera.press("sprite");
    camera.play(1500);
    camera.take("sprites");
    camera.stop();
    camera.press("sprite");
    camera.choose("mnuDisplayBrowser");
}

void takeShows(Photographer& camera) {
    camera.resize(1200, 640);
    camera.press("new");
    camera.choose("mnuUseRandom");
    camera.choose("mnuDisplayFireWorks");
    camera.preset("gravity", "0.5");
    camera.play(2850);
    camera.take("fireworks");
    camera.stop();
    camera.choose("mnuDisplayFireWorks");
    camera.choose("mnuUseRandom");

    camera.resize(960, 334);
    camera.open("wheel");
    camera.choose("mnuDisplayPath");
    camera.part("frmPath")->resize(480, 120);
    camera.press("nextnode");
    camera.press("nextnode");
    camera.play(20000);
    camera.take(camera.part("frmPath"), "path");
    camera.stop();
    camera.choose("mnuDisplayPath");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Zentrik");
    QApplication::setStyle("Fusion");
    if (argc != 2) {
        std::fputs("usage: zentrik_manual_pictures FOLDER\n", stderr);
        return 2;
    }
    // The user's own projects and options are left alone.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    zentrik::fillProgramFolder(home.path());
    Photographer camera(home.path(), QString::fromLocal8Bit(argv[1]));
    takeOverview(camera);
    takeEditing(camera);
    takeVersions(camera, home.path().toStdString());
    takeStrips(camera);
    takeShows(camera);
    return 0;
}
