#pragma once
#include "export/picture.h"

namespace zentrik {

// Makes the model all there is to see, without grid and texts, in a picture of at most `side` pixels each
// way. Gives the scale at which it fits; small models are enlarged a little at most.
double fitThumbnail(Subject& subject, int side);

}  // namespace zentrik
