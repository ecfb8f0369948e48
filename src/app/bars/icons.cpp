#include "app/bars/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <tuple>

namespace zentrik {

namespace {

constexpr const char* ink = "#2b3a4a";  // the one colour of the drawings that follows the theme

QByteArray drawing(const QString& key) {
    QFile file(":/icons/" + key + ".svg");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Draws its vector picture in the size that is asked for, when it is asked for, and keeps what it drew: few
// of the sizes and states that an icon may be shown in are ever seen.
class DrawnIcon : public QIconEngine {
public:
    // pressedSvg: shown while the icon's button is pressed; empty for the same.
    explicit DrawnIcon(QByteArray svg, QByteArray pressedSvg = {})
        : svg_(std::move(svg)), pressedSvg_(std::move(pressedSvg)) {}

    QIconEngine* clone() const override { return new DrawnIcon(*this); }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const QSize size = (QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize();
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const bool disabled = mode == QIcon::Disabled;
        const bool pressed = state == QIcon::On && !pressedSvg_.isEmpty();
        QPixmap& drawn = drawn_[{size.width(), size.height(), disabled, pressed}];
        if (drawn.isNull() && !size.isEmpty())
            drawn = rendered(pressed ? pressedSvg_ : svg_, size, disabled ? 0.3 : 1);
        return drawn;
    }
    // The window system asks for the program's icon in these.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : {16, 24, 32, 48, 64, 128}) sizes.append(QSize(side, side));
        return sizes;
    }

private:
    QByteArray svg_, pressedSvg_;
    std::map<std::tuple<int, int, bool, bool>, QPixmap> drawn_;  // by width, height, disabled, pressed

    static QPixmap rendered(const QByteArray& svg, QSize size, double opacity) {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(opacity);
        QSvgRenderer(svg).render(&painter);
        return pixmap;
    }
};

}  // namespace

QIcon themedIcon(const QString& key, const QPalette& palette, const QString& pressedKey) {
    const auto inked = [&](const QString& of) {
        return drawing(of).replace(ink, palette.color(QPalette::ButtonText).name().toLatin1());
    };
    return QIcon(new DrawnIcon(inked(key), pressedKey.isEmpty() ? QByteArray() : inked(pressedKey)));
}

QIcon programIcon() { return QIcon(new DrawnIcon(drawing("zentrik"))); }

}  // namespace zentrik
