#include "measure/state_hash.h"

#include <bit>
#include <cmath>

namespace zentrik {

namespace {

// The bits of a real; the two zeros and all not-a-numbers count as one each.
std::uint32_t bits(float value) {
    return std::isnan(value) ? 0x7FC00000U : std::bit_cast<std::uint32_t>(value + 0.0F);
}

struct Hash {
    std::uint64_t value;

    void take(std::int64_t whole) { value = (value ^ static_cast<std::uint64_t>(whole)) * 0x100000001b3U; }
    template <class... Values>
    void takeAll(Values... values) {
        (take(values), ...);
    }
};

}  // namespace

std::uint64_t stateHash(const Editor& ed, std::uint64_t before) {
    Hash hash{before};
    for (const Node& n : ed.Nodes)
        hash.takeAll(n.Used, n.X, n.Y, n.Locked, n.Marked, n.color, bits(n.Vx), bits(n.Vy), bits(n.Fx),
                     bits(n.Fy), bits(n.Rotate));
    for (const Link& link : ed.Links)
        hash.takeAll(link.Used, link.Marked, link.DiscX, link.DiscY, bits(link.CurrentLength));
    hash.takeAll(bits(ed.AnimationTime), ed.TimeDirection, ed.InitialVelocityPending, ed.SelectedNode,
                 ed.Timer1.enabled, ed.tips.start == "Stop", bits(ed.phaseShift));
    return hash.value;
}

}  // namespace zentrik
