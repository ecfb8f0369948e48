#pragma once
// What can be measured of a run, one row a quantity: the columns of its table and the curves of its plot.
// Units are the model's: twips, the clock's time units, and what follows from them.

#include "measure/quantities.h"
#include "model/editor.h"
#include "sim/forces.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zentrik {

// A model that is being read. What several quantities need of it is made once, when the first asks.
class ModelReading {
public:
    explicit ModelReading(const Editor& model) : ed(model), clock(animatorClock(model)) {}

    const Editor& ed;
    const AnimatorClock clock;
    // With which its links and its weight pull a node; wind, drag and what it touches are not in it.
    Place pull(std::int32_t node) const;
    // Kinetic, spring and gravity energy of the whole.
    const std::array<double, 3>& energies() const;

private:
    mutable std::vector<Place> pulls_;  // by node; empty until asked for
    mutable std::optional<std::array<double, 3>> energies_;
};

enum class Of { whole, node, link };

struct Quantity {
    Of of;
    const char* name;  // as a table is headed
    const char* unit;  // empty for a mere number
    double (*read)(const ModelReading& reading, std::int32_t slot);
    bool single = false;  // a 32-bit real
};
// The first is the time.
std::span<const Quantity> quantities();

struct Curve {
    const Quantity* quantity = nullptr;
    std::int32_t slot = none;  // of a node or a link
    bool operator==(const Curve&) const = default;
};

// Every quantity of a thing; of the whole all but the time.
void appendCurves(std::vector<Curve>& curves, Of of, std::int32_t slot = none);

// What a plot shows that nobody has chosen curves for: the whole's energies.
std::vector<Curve> usualCurves();

// "node 3 Vx", "kinetic energy".
std::string nameOf(const Curve& curve);
// That of a name, in letters of any case, the quantity after a blank or a point: "Node 3.vx". None where
// there is no such quantity; the node or link need not be there.
std::optional<Curve> curveNamed(std::string_view name);

// Whether its node or link is there.
bool isThere(const Editor& ed, const Curve& curve);
// Not a number where its node or link is not there, or no more.
double valueOf(const ModelReading& reading, const Curve& curve);

}  // namespace zentrik
