#include "app/bars/sprite_browser.h"

#include "basics/units.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>

namespace zentrik {

namespace {

constexpr int pictureSize = 40;              // pixels
constexpr int slotGap = 50 / twipsPerPixel;  // between two pictures
constexpr int firstLeft = 6;

// One picture; looks pressed while the left button is held on it.
class Thumbnail : public QLabel {
public:
    std::function<void()> clicked;

    Thumbnail(const SpritePictures& sprites, std::size_t number, QWidget* parent)
        : QLabel(parent), sprites_(sprites), number_(number) {
        setAlignment(Qt::AlignCenter);
        setLineWidth(1);
        setFrameStyle(QFrame::NoFrame);
    }

protected:
    // Most of a long strip is never scrolled to.
    void paintEvent(QPaintEvent* event) override {
        if (pixmap().isNull()) {
            const QImage picture = sprites_.picture(number_);
            const QSize size = QSize(pictureSize - 6, pictureSize - 6) * picture.devicePixelRatio();
            if (!picture.isNull())
                setPixmap(
                    QPixmap::fromImage(picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
        }
        QLabel::paintEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) setFrameStyle(QFrame::Panel | QFrame::Sunken);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        setFrameStyle(QFrame::NoFrame);
        if (rect().contains(event->pos())) clicked();
    }

private:
    const SpritePictures& sprites_;
    const std::size_t number_;
};

}  // namespace

SpriteBrowser::SpriteBrowser(QWidget* parent)
    : QFrame(parent), HScroll1(new QScrollBar(Qt::Horizontal, parent)), strip_(new QWidget(this)) {
    setObjectName("Frame1");
    setAccessibleName("Sprite browser");
    setFrameStyle(QFrame::StyledPanel);
    HScroll1->setObjectName("HScroll1");
    HScroll1->setAccessibleName("Scroll the sprites");
    HScroll1->setPageStep(5);
    connect(HScroll1, &QScrollBar::valueChanged, strip_,
            [this](int value) { strip_->move(-value * (pictureSize + slotGap), strip_->y()); });
}

void SpriteBrowser::setPictures(const SpritePictures& sprites) {
    qDeleteAll(strip_->children());
    const int count = static_cast<int>(sprites.names().size());
    for (int i = 1; i < count; ++i) {
        const auto number = static_cast<std::size_t>(i);
        auto* picture = new Thumbnail(sprites, number, strip_);
        const QString name = QString::fromStdString(sprites.names()[number]);
        picture->setObjectName(QString("imgSprite%1").arg(i));
        picture->setToolTip(name);
        picture->setAccessibleName(name);
        picture->clicked = [this, i] { pictureClicked(i); };
        picture->setGeometry(firstLeft + (i - 1) * (pictureSize + slotGap), 0, pictureSize, pictureSize);
        picture->show();
    }
    strip_->setGeometry(0, 3, firstLeft + count * (pictureSize + slotGap), pictureSize);
    HScroll1->setRange(0, std::max(count - 2, 0));
}

}  // namespace zentrik
