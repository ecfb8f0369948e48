#pragma once
// How much two pictures differ.

#include <QImage>
#include <algorithm>
#include <cstdlib>

namespace zentrik {

struct PictureDifference {
    int largest = 0;      // of a colour's part, of 255
    double perMille = 0;  // parts that differ by more than 8
};

inline PictureDifference difference(const QImage& a, const QImage& b) {
    PictureDifference found;
    if (a.isNull() || a.size() != b.size()) return {255, 1000};
    const QImage left = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage right = b.convertToFormat(left.format());
    int differing = 0;
    for (qsizetype i = 0; i < left.sizeInBytes(); ++i) {
        const int by = std::abs(left.constBits()[i] - right.constBits()[i]);
        found.largest = std::max(found.largest, by);
        differing += by > 8;
    }
    found.perMille = 1000.0 * differing / static_cast<double>(left.sizeInBytes());
    return found;
}

// Softened, where places are whole pixels in the one and exact in the other.
inline PictureDifference softDifference(const QImage& a, const QImage& b) {
    const auto soft = [](const QImage& image) {
        return image.scaled(image.size() / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    return difference(soft(a), soft(b));
}

}  // namespace zentrik
