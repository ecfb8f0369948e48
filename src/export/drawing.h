#pragma once
// Anything that is painted, as a picture file: a bitmap, or a drawing of lines and discs that is sharp at any
// size.

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>
#include <functional>
#include <span>
#include <string>

namespace zentrik {

struct Look {
    double scale = 1;          // picture elements to a device-independent pixel
    bool transparent = false;  // instead of the background colour
};
inline constexpr int largestScale = 8;

struct Drawing {
    QSize size;  // device-independent pixels
    QString title;
    QColor ground;  // where nothing is painted
    std::function<void(QPainter&)> paint;
};

// Null where it would be larger than 32767 pixels a side, or than memory holds.
QImage imageOf(const Drawing& drawing, const Look& look);

struct PictureFile {
    std::string bytes;
    std::string problem;  // in words; empty when there is none
};

struct PictureFormatRow {
    const char* name;  // as a person chooses it
    const char* suffix;
    bool keepsShapes;  // and is enlarged at will, with the sprites that stand among them
    PictureFile (*make)(const Drawing& drawing, const Look& look);
};
enum class PictureFormat { png, svg, pdf };  // in the order of the rows
std::span<const PictureFormatRow> pictureFormats();

// The bytes of a PNG; empty when there is no memory for them.
std::string pngBytes(const QImage& image);

}  // namespace zentrik
