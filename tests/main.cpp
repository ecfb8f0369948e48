#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    // No test needs a display, whatever the machine offers.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
