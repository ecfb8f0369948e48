#include "edit/builders.h"

#include "basics/angles.h"
#include "basics/numbers.h"
#include "edit/command.h"
#include "host/host.h"
#include "model/grid.h"
#include "model/redraw.h"
#include "model/store.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

constexpr float spokeK = 2, spokeForce = 0.2F;

struct RingParameters {
    std::int32_t nodes = 0, radius = 0;  // radius in twips
};

// What a builder works around: node slots first + 1 to first + nodes are the ring.
struct Ring {
    RingParameters size;
    std::int32_t centre = none;
    std::int32_t first = 0;

    std::int32_t node(std::int32_t m) const { return first + m; }
};

RingParameters parametersIn(const std::string& answer) {
    const std::size_t colon = answer.find(':');
    return {toInt(leadingNumber(answer.substr(0, colon))), toInt(leadingNumber(answer.substr(colon + 1)))};
}

// Asks for the ring's size; false when there is none to build.
bool askParameters(Editor& ed, Host& host, const std::string& title, RingParameters& size) {
    if (!usedSelectedNode(ed)) {
        refuse(ed, host, "This structure requires that you first select a node!");
        return false;
    }
    const std::string answer = host.inputBox("Enter parameters (nodes:radius):", title, ed.StructureParm);
    if (std::count(answer.begin(), answer.end(), ':') != 1) return false;
    ed.StructureParm = answer;
    size = parametersIn(answer);
    if (size.nodes > largestRing) {
        refuse(ed, host, "A ring has at most " + std::to_string(largestRing) + " nodes!");
        return false;
    }
    return size.nodes >= 1 && size.radius >= 1;
}

Ring appendRing(Editor& ed, const RingParameters& size) {
    const Ring ring{size, ed.SelectedNode, lastNode(ed)};
    const double centreX = nodeAt(ed, ring.centre).X, centreY = nodeAt(ed, ring.centre).Y;
    const float step = toReal(ringTurn / size.nodes);
    for (std::int32_t m = 1; m <= size.nodes; ++m) {
        const double angle = static_cast<double>(step) * (m - 1);
        const float x = toReal(size.radius * std::sin(angle) + centreX);
        const float y = toReal(size.radius * std::cos(angle) + centreY);
        appendNode(ed, standardNode(ed, SnapToGrid(ed, x), SnapToGrid(ed, y)));
    }
    return ring;
}

void appendAtRest(Editor& ed, const Link& link) {
    Link& added = linkAt(ed, appendLink(ed, link));
    added.RestLength = added.CurrentLength = linkLength(ed, added);
}

void addRim(Editor& ed, const Ring& ring) {
    const std::int32_t N = ring.size.nodes;
    for (std::int32_t m = 1; m < N; ++m) appendAtRest(ed, defaultLink(ed, ring.node(m), ring.node(m + 1)));
    appendAtRest(ed, defaultLink(ed, ring.node(1), ring.node(N)));
}

void addSpokes(Editor& ed, const Ring& ring, bool phased) {
    const std::int32_t N = ring.size.nodes;
    for (std::int32_t m = 1; m <= N; ++m) {
        Link spoke = defaultLink(ed, ring.centre, ring.node(m));
        spoke.k = spokeK;
        spoke.Force = spokeForce;
        spoke.Animator = phased;
        if (phased) spoke.Angle = toReal(360.0 / N * (m - 1));
        appendAtRest(ed, spoke);
    }
}

void addPhasedSpokes(Editor& ed, const Ring& ring) { addSpokes(ed, ring, true); }
void addPlainSpokes(Editor& ed, const Ring& ring) { addSpokes(ed, ring, false); }

// With an odd count both the number of spokes and their far ends are rounded, halves to the even slot,
// and the last far end may come out one past the ring. It is then the ring's last node: dropping the
// spoke would leave the ring without a brace just there.
void addLongSpokes(Editor& ed, const Ring& ring) {
    const double half = ring.size.nodes / 2.0;
    const std::int32_t before = lastLink(ed);
    const std::int32_t spokes = toInt(before + half) - before;
    const std::int32_t lastRingNode = ring.node(ring.size.nodes);
    for (std::int32_t m = 1; m <= spokes; ++m) {
        const std::int32_t far = std::min(toInt(ring.node(m) + half), lastRingNode);
        Link spoke = defaultLink(ed, ring.node(m), far);
        spoke.Animator = true;
        spoke.Angle = toReal(2 * 360.0 / ring.size.nodes * (m - 1));
        appendAtRest(ed, spoke);
    }
}

// What a link in a hand-made file may fail to do; it has no middle then.
bool joinsUsedNodes(const Editor& ed, const Link& link) {
    return endsExist(ed, link) && nodeAt(ed, link.N1).Used && nodeAt(ed, link.N2).Used;
}

using AddLinks = void (*)(Editor& ed, const Ring& ring);

struct RingBuilder {
    const char* title;
    const char* message;  // "nodes : radius)" follows
    AddLinks rim, spokes;
};

constexpr const char* spokedTitle = "Create Connected Node Ring With Spokes";
constexpr const char* spokedMessage = "Connected node ring with spokes created (";

constexpr RingBuilder nodeRing{"Create Node Ring", "Node ring created (", nullptr, nullptr};
constexpr RingBuilder connectedRing{"Create Connected Node Ring", "Connected node ring created (", addRim,
                                    nullptr};
constexpr RingBuilder phasedSpokes{spokedTitle, spokedMessage, addRim, addPhasedSpokes};
constexpr RingBuilder plainSpokes{spokedTitle, spokedMessage, addRim, addPlainSpokes};
constexpr RingBuilder longSpokes{spokedTitle, spokedMessage, addRim, addLongSpokes};

void build(Editor& ed, Host& host, const RingBuilder& builder) {
    RingParameters size;
    if (!askParameters(ed, host, builder.title, size)) return;
    const Ring ring = appendRing(ed, size);
    if (builder.rim) builder.rim(ed, ring);
    if (builder.spokes) builder.spokes(ed, ring);
    selectCreated(ed, ring.node(size.nodes));
    redrawModel(ed);
    panel(ed, 5) = builder.message + std::to_string(size.nodes) + " : " + std::to_string(size.radius) + ")";
}

}  // namespace

void mnuCreateNodeRing_Click(Editor& ed, Host& host) { build(ed, host, nodeRing); }
void mnuCreateConnectedNodeRing_Click(Editor& ed, Host& host) { build(ed, host, connectedRing); }
void mnuCreateConnectedNodeRingWithSpokes_Click(Editor& ed, Host& host) { build(ed, host, phasedSpokes); }
void mnuCreateConnectedNodeRingWithSpokesNo_Click(Editor& ed, Host& host) { build(ed, host, plainSpokes); }
void mnuCreateConnectedNodeRingWithLongSpokes_Click(Editor& ed, Host& host) { build(ed, host, longSpokes); }

void mnuCreateNodeAtMidpoint_Click(Editor& ed, Host& host) {
    Link* selected = usedSelectedLink(ed);
    if (!selected || !joinsUsedNodes(ed, *selected)) {
        refuse(ed, host, "You must first select a link!");
        return;
    }
    selected->Used = false;
    const Link old = *selected;
    const PointF middle = linkMidpoint(ed, old);
    const std::int32_t node =
        appendNode(ed, standardNode(ed, SnapToGrid(ed, middle.x), SnapToGrid(ed, middle.y)));
    for (const std::int32_t end : {old.N2, old.N1}) {
        Link half = defaultLink(ed, end, node);
        half.RestLength = toReal(old.RestLength / 2.0);
        half.CurrentLength = toReal(old.CurrentLength / 2.0);
        appendLink(ed, half);
    }
    selectCreated(ed, node);
    redrawModel(ed);
    panel(ed, 5) = "Node added to center of selected link!";
}

}  // namespace zentrik
