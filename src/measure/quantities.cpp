#include "measure/quantities.h"

#include "model/store.h"
#include "sim/contacts/contacts.h"
#include "sim/forces.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

template <class Visit>
void forEachFreeNode(const Editor& ed, Visit visit) {
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        if (!node.Locked) visit(node);
    });
}

double squaredSpeed(const Node& node) { return wide(node.Vx) * node.Vx + wide(node.Vy) * node.Vy; }

}  // namespace

Place centreOfMass(const Editor& ed) {
    double mass = 0, count = 0;
    Place byMass, byCount;
    forEachNode(ed, [&](std::int32_t, const Node& node) {
        mass += wide(node.Mass);
        count += 1;
        byMass.x += wide(node.Mass) * node.X, byMass.y += wide(node.Mass) * node.Y;
        byCount.x += node.X, byCount.y += node.Y;
    });
    if (mass > 0) return {byMass.x / mass, byMass.y / mass};
    return count > 0 ? Place{byCount.x / count, byCount.y / count} : Place{};
}

double kineticEnergy(const Editor& ed) {
    double sum = 0;
    forEachFreeNode(ed, [&](const Node& node) { sum += 0.5 * node.Mass * squaredSpeed(node); });
    return sum;
}

double springEnergy(const Editor& ed) {
    double sum = 0;
    const AnimatorClock clock = animatorClock(ed);
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        const double stretch = wide(linkLength(ed, link)) - restLength(link, clock);
        sum += 0.5 * (100.0 * link.k) * (stretch * stretch);
    });
    return sum;
}

double gravityEnergy(const Editor& ed) {
    double sum = 0;
    const double g = 10000.0 * ed.Gravity;
    const auto floor = static_cast<double>(boundsOf(ed).floor);
    forEachFreeNode(ed, [&](const Node& node) { sum += node.Mass * g * (floor - node.Y); });
    return sum;
}

double greatestSpeed(const Editor& ed) {
    double square = 0;
    forEachFreeNode(ed, [&](const Node& node) { square = std::max(square, squaredSpeed(node)); });
    return std::sqrt(square);
}

}  // namespace zentrik
