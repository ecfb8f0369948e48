#include "app/icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace zentrik {

namespace {

constexpr const char* ink = "#2b3a4a";  // the one colour of the drawings that follows the theme

QByteArray drawing(const QString& key) {
    QFile file(":/icons/" + key + ".svg");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap rendered(const QByteArray& svg, int size, double opacity) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(opacity);
    QSvgRenderer(svg).render(&painter);
    return pixmap;
}

}  // namespace

QIcon themedIcon(const QString& key, const QPalette& palette, const QString& pressedKey) {
    QIcon icon;
    const auto add = [&](const QString& of, QIcon::State state) {
        QByteArray svg = drawing(of);
        svg.replace(ink, palette.color(QPalette::ButtonText).name().toLatin1());
        // The sizes that toolbars use at 100, 150 and 200 %, so that none is scaled from another.
        for (const int size : {20, 24, 30, 36, 40, 48, 72}) {
            icon.addPixmap(rendered(svg, size, 1), QIcon::Normal, state);
            icon.addPixmap(rendered(svg, size, 0.3), QIcon::Disabled, state);
        }
    };
    add(key, QIcon::Off);
    if (!pressedKey.isEmpty()) add(pressedKey, QIcon::On);
    return icon;
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(rendered(drawing("zentrik"), size, 1));
    return icon;
}

}  // namespace zentrik
