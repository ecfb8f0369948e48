#pragma once
#include <QTextBrowser>

namespace zentrik {

// The manual as text and pictures: no picture is wider than the window, films play, and links to a chapter
// ("#chapter") lead there.
class ManualText : public QTextBrowser {
public:
    explicit ManualText(QWidget* parent);

    // Brings a place of the text, as QTextBlock::position counts, to the top.
    void goTo(int position);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void drawTables();
    void playFilms();
    void fitPictures();
    void followLink(const QUrl& link);
};

}  // namespace zentrik
