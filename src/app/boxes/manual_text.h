#pragma once
#include <QHash>
#include <QTextBrowser>
#include <QTimer>

namespace zentrik {

// The manual as text and pictures: no picture is wider than the window, each is scaled smoothly to the
// screen's pixels, films play, and links to a chapter ("#chapter") lead there.
class ManualText : public QTextBrowser {
public:
    explicit ManualText(QWidget* parent);

    // Brings a place of the text, as QTextBlock::position counts, to the top.
    void goTo(int position);
    // The width at which no picture is made smaller, in device-independent pixels.
    int wholePicturesWidth() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QHash<QString, QSizeF> sizes_;  // of the pictures by name, in device-independent pixels
    QTimer resting_;                // while the window's edge is dragged, the pictures are scaled in passing
    double ratio_ = 0;              // of the screen that they are scaled for

    void drawTables();
    void playFilms();
    void fitPictures();
    void scalePictures();
    void showPicture(const QString& name, const QImage& picture);
    void followLink(const QUrl& link);
};

}  // namespace zentrik
