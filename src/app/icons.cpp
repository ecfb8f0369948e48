#include "app/icons.h"

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
    explicit DrawnIcon(QByteArray svg) : svg_(std::move(svg)) {}

    QIconEngine* clone() const override { return new DrawnIcon(*this); }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const QSize size = (QSizeF(rect.size()) * painter->device()->devicePixelRatioF()).toSize();
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const bool disabled = mode == QIcon::Disabled;
        QPixmap& drawn = drawn_[{size.width(), size.height(), disabled}];
        if (drawn.isNull() && !size.isEmpty()) drawn = rendered(size, disabled ? 0.3 : 1);
        return drawn;
    }
    // The window system asks for the program's icon in these.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : {16, 24, 32, 48, 64, 128}) sizes.append(QSize(side, side));
        return sizes;
    }

private:
    QByteArray svg_;
    std::map<std::tuple<int, int, bool>, QPixmap> drawn_;  // by width, height, whether disabled

    QPixmap rendered(QSize size, double opacity) const {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(opacity);
        QSvgRenderer(svg_).render(&painter);
        return pixmap;
    }
};

}  // namespace

QIcon themedIcon(const QString& key, const QPalette& palette) {
    QByteArray svg = drawing(key);
    svg.replace(ink, palette.color(QPalette::ButtonText).name().toLatin1());
    return QIcon(new DrawnIcon(svg));
}

QIcon programIcon() { return QIcon(new DrawnIcon(drawing("zentrik"))); }

}  // namespace zentrik
