#include "app/sprite_browser.h"

#include "model/units.h"

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

    Thumbnail(const QImage& picture, QWidget* parent) : QLabel(parent) {
        const double ratio = picture.devicePixelRatio();
        setPixmap(QPixmap::fromImage(picture.scaled(QSize(pictureSize - 6, pictureSize - 6) * ratio,
                                                    Qt::KeepAspectRatio, Qt::SmoothTransformation)));
        setAlignment(Qt::AlignCenter);
        setLineWidth(1);
        setFrameStyle(QFrame::NoFrame);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) setFrameStyle(QFrame::Panel | QFrame::Sunken);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        setFrameStyle(QFrame::NoFrame);
        if (rect().contains(event->pos())) clicked();
    }
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
    const int count = static_cast<int>(sprites.names.size());
    for (int i = 1; i < count; ++i) {
        auto* picture = new Thumbnail(sprites.pictures[static_cast<std::size_t>(i)], strip_);
        const QString name = QString::fromStdString(sprites.names[static_cast<std::size_t>(i)]);
        picture->setObjectName(QString("imgSprite%1").arg(i));
        picture->setToolTip(name);
        picture->setAccessibleName(name);
        picture->clicked = [this, i] { pictureClicked(i); };
        picture->setGeometry(firstLeft + (i - 1) * (pictureSize + slotGap), 0, pictureSize, pictureSize);
    }
    strip_->setGeometry(0, 3, firstLeft + count * (pictureSize + slotGap), pictureSize);
    HScroll1->setRange(0, std::max(count - 2, 0));
}

}  // namespace zentrik
