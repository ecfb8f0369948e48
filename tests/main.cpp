#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    // No test needs a display, whatever the machine offers.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nor does any touch the settings of the person who runs it.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
