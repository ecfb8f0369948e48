#pragma once
// The scene as a picture: a bitmap, or a drawing of lines and discs that is sharp at any size.

#include "export/subject.h"

#include <QImage>
#include <span>
#include <string>

namespace zentrik {

struct Look {
    double scale = 1;          // picture elements to a device-independent pixel
    bool transparent = false;  // instead of the background colour
};
inline constexpr int largestScale = 8;

// As the window shows it, in device-independent pixels; at least 1.
QSize sceneSize(const Editor& ed);

// The project's title as a file may hold it: not too long, and without control characters.
QString titleOf(const Editor& ed);

// Null where it would be larger than 32767 pixels a side, or than memory holds.
QImage sceneImage(const Subject& subject, const Look& look);

struct PictureFile {
    std::string bytes;
    std::string problem;  // in words; empty when there is none
};

struct PictureFormatRow {
    const char* name;  // as a person chooses it
    const char* suffix;
    PictureFile (*make)(Subject& subject, const Look& look);
};
enum class PictureFormat { png, svg, pdf };  // in the order of the rows
std::span<const PictureFormatRow> pictureFormats();

PictureFile pictureFile(Subject& subject, PictureFormat format, const Look& look);

// The bytes of a PNG; empty when there is no memory for them.
std::string pngBytes(const QImage& image);

}  // namespace zentrik
