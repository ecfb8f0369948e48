#include <gtest/gtest.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>

namespace {

// Two screens side by side, the second one larger.
constexpr const char* screens = R"({"screens": [
    {"name": "first", "x": 0, "y": 0, "width": 1600, "height": 1000,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "second", "x": 1600, "y": 0, "width": 2400, "height": 1400,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

}  // namespace

int main(int argc, char** argv) {
    // No test needs a display, whatever the machine offers.
    QTemporaryFile config;
    if (!config.open() || config.write(screens) < 0 || !config.flush()) return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toUtf8());
    // Nor does any touch the settings of the person who runs it.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
