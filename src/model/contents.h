#pragma once
// What a project carries and undo brings back: the model, and the settings that are filed with it.

#include "model/records.h"

#include <string>
#include <vector>

namespace zentrik {

// Numbers of 32 bits, all of them: undo compares them as words. A new one needs only its column besides
// (project/columns.h).
struct ProjectSettings {
    float Gravity = 1, Friction = 0.2F, Viscosity = 0, LeftWind = 0, Bounce = 0.5F;
    float TimeInterval = 20;        // step in thousandths of a time unit
    std::int32_t timerPeriod = 20;  // of the animation, milliseconds
    float DeltaAngle = 0.1F;        // animator speed, radians per time unit
    float AnimationTime = 0;        // the clock
};

struct Contents : ProjectSettings {
    std::vector<Node> Nodes = std::vector<Node>(1);
    std::vector<Link> Links = std::vector<Link>(1);
    std::string ProjectTitle;
    std::int32_t TimeDirection = 1;
};

}  // namespace zentrik
