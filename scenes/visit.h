#pragma once
// A sample project as a new user meets it: with the options of a first run, and doing what its title asks.

#include "model/editor.h"

#include <string>
#include <vector>

namespace zentrik::scenes {

// Extents in twips.
struct Size {
    std::int32_t width, height;
};
inline constexpr Size smallestScene{14280, 3110}, largeScene{28680, 14300};

// Loads zoo/NAME.bot of a program folder. A title that names "Ignore Barriers", "Display Sprites" or
// "Show Links" has that option changed. Throws when the project cannot be loaded.
Editor openSample(const std::string& programFolder, const std::string& name, Size scene,
                  const std::vector<std::string>& spriteNames = {noSprite});
// Presses the start button.
void start(Editor& ed);
// One tick of the animation timer. A first shooter is fired every 20 time units, as a visitor would.
void tickSample(Editor& ed);

}  // namespace zentrik::scenes
