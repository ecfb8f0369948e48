#pragma once
// Small pictures painted on nodes.

#include "display/canvas/canvas.h"
#include "model/editor.h"

#include <QCache>
#include <QImage>
#include <string>
#include <vector>

namespace zentrik {

// The pictures of a folder by number. Place 0 is the entry that shows nothing. A picture is decoded when it
// is asked for and kept while there is room; those not asked for the longest go first.
class SpritePictures {
public:
    static constexpr int roomInKilobytes = 128 * 1024;  // for decoded pictures, all together

    SpritePictures();

    // Finds the pictures among the regular files of a folder (UTF-8 path), in name order. Read again, files
    // known already keep their number and new ones follow, so that nodes keep their sprites. No folder, no
    // pictures. Those of more than 2048 pixels a side are none. Gives the files that hold no picture, or
    // whose name no project file can hold, and that were not given before.
    std::vector<std::string> read(const std::string& folder);
    const std::vector<std::string>& names() const { return names_; }

    // Pictures are scaled to this many device pixels a device-independent one, and vector pictures drawn at
    // it.
    void setRatio(double devicePixelRatio);
    // In device-independent pixels, without decoding the picture.
    QSize size(std::size_t number) const { return sizes_[number]; }
    // Null for place 0 and for a file that is gone or broken.
    QImage picture(std::size_t number) const;
    // Kilobytes in use.
    qsizetype roomTaken() const { return decoded_.totalCost(); }

private:
    std::string folder_;
    std::vector<std::string> names_{noSprite}, skipped_;
    std::vector<QSize> sizes_{QSize()};
    double ratio_ = 1;
    mutable QCache<std::size_t, QImage> decoded_;
};

// Paints the picture of every used node that has one, centred on the node.
void ShowImages(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites);

}  // namespace zentrik
