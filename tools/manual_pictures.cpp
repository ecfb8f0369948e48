// Takes the pictures of the README and the manual from the real window, driven by real events.
// Usage: zentrik_manual_pictures FOLDER

#include "app/boxes/versions_dialog.h"
#include "app/keeping/program_folder.h"
#include "library/backups.h"
#include "photographer.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <cstdio>

namespace {

using zentrik::Photographer;

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

// The walker of the manual's first chapter, built as it says there.
// Long: a tour, picture by picture.
void takeFirstWalker(Photographer& camera) {
    camera.resize(960, 334);
    camera.press("new");
    for (const auto& [key, value] : {std::pair{"gravity", "0.5"},
                                     {"friction", "0.9"},
                                     {"viscosity", "0.2"},
                                     {"bounce", "0.1"},
                                     {"interval", "10"},
                                     {"rate", "10"},
                                     {"speed", "3"}})
        camera.preset(key, value);
    const auto drawChain = [&camera](std::initializer_list<QPoint> places) {
        for (const QPoint place : places) camera.click(place);
        for (int i = 0; i < 2; ++i) camera.click({600, 30}, Qt::RightButton);
    };
    const QPoint a(100, 100), b(140, 60), c(180, 100), d(220, 60), e(260, 100);
    drawChain({a, b, c, d, e, c, a});
    drawChain({b, d});
    struct Leg {
        QPoint hip, foot;
        const char* phase;
    };
    const Leg legs[] = {{a, {127, 163}, "0"},   {c, {127, 163}, "90"}, {a, {153, 163}, "180"},
                        {c, {153, 163}, "270"}, {c, {207, 163}, "90"}, {e, {207, 163}, "180"},
                        {c, {233, 163}, "270"}, {e, {233, 163}, "0"}};
    for (std::size_t m = 0; m < std::size(legs); m += 2)
        drawChain({legs[m].hip, legs[m].foot, legs[m + 1].hip});
    camera.answer("mnuSetLinkF", "0.1");
    for (const Leg& leg : legs) {
        camera.doubleClick((leg.hip + leg.foot) / 2);
        camera.preset("angle", leg.phase);
    }
    camera.press("activeline");
    camera.take("first_walker");
    camera.press("activeline");
    camera.play(20000);
    camera.take("first_walker_walks");
    camera.stop();
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
    camera.play(28000);
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
    takeFirstWalker(camera);
    takeEditing(camera);
    takeVersions(camera, home.path().toStdString());
    takeStrips(camera);
    takeShows(camera);
    return 0;
}
