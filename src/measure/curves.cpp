#include "measure/curves.h"

#include "basics/text.h"
#include "model/store.h"
#include "sim/contacts/contacts.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace zentrik {

namespace {

const Node& nodeOf(const ModelReading& reading, std::int32_t i) { return nodeAt(reading.ed, i); }
const Link& linkOf(const ModelReading& reading, std::int32_t j) { return linkAt(reading.ed, j); }

double heightAt(const ModelReading& reading, double y) {
    return static_cast<double>(boundsOf(reading.ed).floor) - y;
}

double speedOf(const ModelReading& reading, std::int32_t i) {
    return std::hypot(wide(nodeOf(reading, i).Vx), wide(nodeOf(reading, i).Vy));
}

double restOf(const ModelReading& reading, std::int32_t j) {
    return wide(real(restLength(linkOf(reading, j), reading.clock)));
}

double forceOf(const ModelReading& reading, std::int32_t j) {
    const Link& link = linkOf(reading, j);
    return springForce(link, linkLength(reading.ed, link), restLength(link, reading.clock));
}

template <std::size_t kind>
double energyOf(const ModelReading& reading, std::int32_t) {
    return reading.energies()[kind];
}
double wholeEnergyOf(const ModelReading& reading, std::int32_t) {
    const auto& [kinetic, spring, gravity] = reading.energies();
    return kinetic + spring + gravity;
}

constexpr const char *twips = "twips", *perTime = "twips/time unit", *forceUnit = "mass twips/time unit^2",
                     *energyUnit = "mass twips^2/time unit^2";
using R = const ModelReading&;
using Slot = std::int32_t;

// clang-format off
constexpr Quantity table[] = {
    {Of::whole, "time", "time units", [](R r, Slot) { return wide(r.ed.AnimationTime); }, true},
    {Of::node, "x", twips, [](R r, Slot i) { return static_cast<double>(nodeOf(r, i).X); }},
    {Of::node, "y", twips, [](R r, Slot i) { return static_cast<double>(nodeOf(r, i).Y); }},
    {Of::node, "Vx", perTime, [](R r, Slot i) { return wide(nodeOf(r, i).Vx); }, true},
    {Of::node, "Vy", perTime, [](R r, Slot i) { return wide(nodeOf(r, i).Vy); }, true},
    {Of::node, "speed", perTime, speedOf},
    {Of::node, "height", twips, [](R r, Slot i) { return heightAt(r, nodeOf(r, i).Y); }},
    {Of::node, "force", forceUnit, [](R r, Slot i) { return std::hypot(r.pull(i).x, r.pull(i).y); }},
    {Of::link, "length", twips, [](R r, Slot j) { return wide(linkLength(r.ed, linkOf(r, j))); }, true},
    {Of::link, "force", forceUnit, forceOf, true},
    {Of::link, "rest length", twips, restOf, true},
    {Of::whole, "centre x", twips, [](R r, Slot) { return centreOfMass(r.ed).x; }},
    {Of::whole, "centre y", twips, [](R r, Slot) { return centreOfMass(r.ed).y; }},
    {Of::whole, "kinetic energy", energyUnit, energyOf<0>},
    {Of::whole, "spring energy", energyUnit, energyOf<1>},
    {Of::whole, "gravity energy", energyUnit, energyOf<2>},
    {Of::whole, "energy", energyUnit, wholeEnergyOf},
};
// clang-format on

constexpr struct {
    Of of;
    const char* begin;
} objects[] = {{Of::node, "node "}, {Of::link, "link "}, {Of::whole, ""}};

}  // namespace

Place ModelReading::pull(std::int32_t node) const {
    if (!pulls_.empty()) return pulls_[static_cast<std::size_t>(node)];
    pulls_.resize(ed.Nodes.size());
    const auto of = [this](std::int32_t i) -> Place& { return pulls_[static_cast<std::size_t>(i)]; };
    forEachNode(ed, [&](std::int32_t i, const Node& n) { of(i).y = n.Mass * 10000.0 * ed.Gravity; });
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        const float length = linkLength(ed, link);
        if (length == 0) return;
        const Node &a = nodeAt(ed, link.N1), &b = nodeAt(ed, link.N2);
        const double part = springForce(link, length, restLength(link, clock)) / wide(length);
        const Place towards{part * (static_cast<double>(b.X) - a.X), part * (static_cast<double>(b.Y) - a.Y)};
        of(link.N1).x += towards.x, of(link.N1).y += towards.y;
        of(link.N2).x -= towards.x, of(link.N2).y -= towards.y;
    });
    return pulls_[static_cast<std::size_t>(node)];
}

const std::array<double, 3>& ModelReading::energies() const {
    if (!energies_) energies_ = {kineticEnergy(ed), springEnergy(ed), gravityEnergy(ed)};
    return *energies_;
}

std::span<const Quantity> quantities() { return table; }

void appendCurves(std::vector<Curve>& curves, Of of, std::int32_t slot) {
    for (const Quantity& quantity : quantities().subspan(1))
        if (quantity.of == of) curves.push_back({&quantity, slot});
}

std::vector<Curve> usualCurves() {
    std::vector<Curve> curves;
    for (const Quantity& quantity : quantities())
        if (quantity.of == Of::whole && std::string_view(quantity.unit) == energyUnit)
            curves.push_back({&quantity});
    return curves;
}

std::string nameOf(const Curve& curve) {
    for (const auto& object : objects)
        if (object.of == curve.quantity->of && object.of != Of::whole)
            return object.begin + std::to_string(curve.slot) + " " + curve.quantity->name;
    return curve.quantity->name;
}

std::optional<Curve> curveNamed(std::string_view name) {
    const std::string lower = lowerCase(std::string(name));
    for (const auto& object : objects) {
        std::string_view rest = lower;
        if (!rest.starts_with(object.begin)) continue;
        rest.remove_prefix(std::string_view(object.begin).size());
        Curve curve;
        if (object.of != Of::whole) {
            const auto number = std::from_chars(rest.data(), rest.data() + rest.size(), curve.slot);
            rest.remove_prefix(static_cast<std::size_t>(number.ptr - rest.data()));
            if (number.ec != std::errc() || rest.find_first_of(" .") != 0) continue;
            rest.remove_prefix(1);
        }
        for (const Quantity& quantity : quantities()) {
            curve.quantity = &quantity;
            if (quantity.of == object.of && lowerCase(quantity.name) == rest) return curve;
        }
    }
    return {};
}

bool isThere(const Editor& ed, const Curve& curve) {
    const std::int32_t slot = curve.slot;
    switch (curve.quantity->of) {
        case Of::node:
            return nodeExists(ed, slot) && nodeAt(ed, slot).Used;
        case Of::link:
            return linkExists(ed, slot) && linkAt(ed, slot).Used && endsExist(ed, linkAt(ed, slot));
        case Of::whole:
            break;
    }
    return true;
}

double valueOf(const ModelReading& reading, const Curve& curve) {
    return isThere(reading.ed, curve) ? curve.quantity->read(reading, curve.slot)
                                      : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace zentrik
