#include "app/legible.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <clocale>
#include <cmath>

namespace {

// Device pixels to a pixel of the window, as the environment sets them.
double scale() {
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    return factor * qEnvironmentVariable("QT_FONT_DPI", "96").toDouble() / 96;
}

// Two screens side by side, the second one larger: 1600 x 1000 and 2400 x 1400 of the window's pixels.
QByteArray screens() {
    const QString one = R"({"name": "%1", "x": %2, "y": 0, "width": %3, "height": %4,
                            "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1})";
    const auto scaled = [](int length) { return QString::number(std::lround(length * scale())); };
    return (R"({"screens": [)" + one.arg("first", "0", scaled(1600), scaled(1000)) + "," +
            one.arg("second", scaled(1600), scaled(2400), scaled(1400)) + "]}")
        .toUtf8();
}

}  // namespace

int main(int argc, char** argv) {
    // No test needs a display, whatever the machine offers.
    QTemporaryFile config;
    if (!config.open() || config.write(screens()) < 0 || !config.flush()) return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.fileName().toUtf8());
    // Nor does any touch the settings of the person who runs it.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    QApplication app(argc, argv);
    zentrik::keepTextsLegible();
    std::setlocale(LC_MESSAGES, "C");  // what the system says of errors is compared in English
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
