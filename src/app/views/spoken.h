#pragma once
#include "model/editor.h"

class QWidget;

namespace zentrik {

// Describes the scene and the phase strip for who hears them: what is selected there.
void describeSelection(QWidget& scene, QWidget& strip, const Editor& ed);

}  // namespace zentrik
