#pragma once
#include "display/sprites.h"

#include <QFrame>
#include <functional>

class QScrollBar;

namespace zentrik {

// Frame1: the strip of sprite pictures, moved one picture at a time by HScroll1.
class SpriteBrowser : public QFrame {
public:
    SpriteBrowser(QWidget* parent);

    std::function<void(int index)> pictureClicked;
    QScrollBar* const HScroll1;

    // Shows all pictures anew. The pictures must outlive the browser.
    void setPictures(const SpritePictures& sprites);

private:
    QWidget* strip_;
};

}  // namespace zentrik
