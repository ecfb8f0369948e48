#pragma once
// Small pictures painted on nodes.

#include "display/canvas.h"
#include "model/editor.h"

#include <QImage>
#include <string>
#include <vector>

namespace zentrik {

// Decoded once; names and pictures keep step, and their place is the sprite number. Place 0 is the entry
// that shows nothing.
struct SpritePictures {
    std::vector<std::string> names{noSprite};
    std::vector<QImage> pictures{QImage()};  // pixels of the device; their device pixel ratio is set
    std::vector<std::string> skipped;  // files that hold no picture, or whose name no project file can hold
};

// Reads every regular file of a folder (UTF-8 path), in name order. A picture's own size counts in
// device-independent pixels: it is scaled to the device pixel ratio here, once, and vector pictures are
// drawn at it. No folder, no sprites. Pictures of more than 2048 pixels a side are skipped.
SpritePictures loadSprites(const std::string& folder, double devicePixelRatio);

// Paints the picture of every used node that has one, centred on the node.
void ShowImages(const Canvas& canvas, const Editor& ed, const SpritePictures& sprites);

}  // namespace zentrik
