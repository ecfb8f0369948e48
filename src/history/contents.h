#pragma once
// What undo brings back: the model and the settings a project carries. The members are named as those of
// the Editor they are copies of.

#include "model/editor.h"

#include <tuple>
#include <utility>

namespace zentrik {

struct Contents {
    std::vector<Node> Nodes = std::vector<Node>(1);
    std::vector<Link> Links = std::vector<Link>(1);
    std::string ProjectTitle;
    float Gravity = 0, Friction = 0, Viscosity = 0, LeftWind = 0, Bounce = 0;
    float TimeInterval = 0, DeltaAngle = 0;
    Timer Timer1;  // its period alone
    float AnimationTime = 0;
    std::int32_t TimeDirection = 1;
};

// All but the records, of an Editor as of Contents.
template <class T>
auto globalsOf(T& it) {
    return std::tie(it.ProjectTitle, it.Gravity, it.Friction, it.Viscosity, it.LeftWind, it.Bounce,
                    it.TimeInterval, it.DeltaAngle, it.Timer1.interval, it.AnimationTime, it.TimeDirection);
}

template <class To, class From>
void copyContents(To& to, const From& from) {
    to.Nodes = from.Nodes;
    to.Links = from.Links;
    globalsOf(to) = globalsOf(from);
}

template <class To>
void handContents(To& to, Contents from) {
    globalsOf(to) = globalsOf(from);
    to.Nodes = std::move(from.Nodes);
    to.Links = std::move(from.Links);
}

}  // namespace zentrik
