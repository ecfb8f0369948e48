#pragma once
#include "export/picture.h"

namespace zentrik {

// Makes the model all there is to see, without grid and texts, in a picture of at most so many pixels.
// Gives the scale at which it fits; small models are enlarged a little at most.
double fitThumbnail(Subject& subject, QSize most);

// That picture, for a screen with so many pixels to a device-independent one.
QImage thumbnail(Subject& subject, QSize most, double ratio);

}  // namespace zentrik
