#pragma once
// The scene as a picture.

#include "export/drawing.h"
#include "export/subject.h"

namespace zentrik {

// As the window shows it, in device-independent pixels; at least 1.
QSize sceneSize(const Editor& ed);

// The project's title as a file may hold it: not too long, and without control characters.
QString titleOf(const Editor& ed);

// Null where it would be larger than a picture can be.
QImage sceneImage(const Subject& subject, const Look& look);

PictureFile pictureFile(Subject& subject, const PictureFormatRow& format, const Look& look);
inline PictureFile pictureFile(Subject& subject, PictureFormat format, const Look& look) {
    return pictureFile(subject, pictureFormats()[static_cast<std::size_t>(format)], look);
}

}  // namespace zentrik
