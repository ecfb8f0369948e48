#pragma once
// Creating, deleting and counting nodes and links, and the selection they affect.

#include "basics/prefetch.h"
#include "model/editor.h"

#include <cmath>

namespace zentrik {

inline std::int32_t lastNode(const Editor& ed) { return static_cast<std::int32_t>(ed.Nodes.size()) - 1; }
inline std::int32_t lastLink(const Editor& ed) { return static_cast<std::int32_t>(ed.Links.size()) - 1; }

// Slot access by the 32-bit numbers that links and selections hold; the caller knows the slot exists.
inline Node& nodeAt(Editor& ed, std::int32_t i) { return ed.Nodes[static_cast<std::size_t>(i)]; }
inline const Node& nodeAt(const Editor& ed, std::int32_t i) { return ed.Nodes[static_cast<std::size_t>(i)]; }
inline Link& linkAt(Editor& ed, std::int32_t i) { return ed.Links[static_cast<std::size_t>(i)]; }
inline const Link& linkAt(const Editor& ed, std::int32_t i) { return ed.Links[static_cast<std::size_t>(i)]; }

inline bool nodeExists(const Editor& ed, std::int32_t i) { return i >= 1 && i <= lastNode(ed); }
inline bool linkExists(const Editor& ed, std::int32_t i) { return i >= 1 && i <= lastLink(ed); }

// The selected record, or null when nothing is selected or the selection outlived its slot (compaction
// leaves selections as they are).
auto* selectedNode(RecordLike<Editor> auto& ed) {
    return nodeExists(ed, ed.SelectedNode) ? &nodeAt(ed, ed.SelectedNode) : nullptr;
}
auto* selectedLink(RecordLike<Editor> auto& ed) {
    return linkExists(ed, ed.SelectedLink) ? &linkAt(ed, ed.SelectedLink) : nullptr;
}

// A hand-made file may hold links to nodes that are not there. Whatever follows a link's ends asks
// this first and passes over such a link.
inline bool endsExist(const Editor& ed, const Link& link) {
    return nodeExists(ed, link.N1) && nodeExists(ed, link.N2);
}

// Calls visit(number, link) for every used link with both ends, in index order. Neither this nor
// forEachNode sees records that visit appends.
template <class EditorType, class Visit>
void forEachLink(EditorType& ed, Visit visit) {
    const auto nodes = static_cast<std::uint32_t>(lastNode(ed));
    const auto exists = [nodes](std::int32_t i) { return static_cast<std::uint32_t>(i) - 1 < nodes; };
    const std::int32_t last = lastLink(ed);
    for (std::int32_t j = 1; j <= last; ++j) {
        auto& link = linkAt(ed, j);
        if (link.Used && exists(link.N1) && exists(link.N2)) visit(j, link);
    }
}

// Calls visit(number, node) for every used node, in index order.
template <class EditorType, class Visit>
void forEachNode(EditorType& ed, Visit visit) {
    const std::int32_t last = lastNode(ed);
    for (std::int32_t i = 1; i <= last; ++i) {
        auto& node = nodeAt(ed, i);
        prefetchAhead(node);
        if (node.Used) visit(i, node);
    }
}

// Distance of a link's two existing ends, twips.
inline float linkLength(const Editor& ed, const Link& link) {
    const Node &a = nodeAt(ed, link.N1), &b = nodeAt(ed, link.N2);
    const double dx = static_cast<double>(a.X) - b.X, dy = static_cast<double>(a.Y) - b.Y;
    return static_cast<float>(std::sqrt(dy * dy + dx * dx));
}
// Midpoint of a link with existing ends, twips.
PointF linkMidpoint(const Editor& ed, const Link& link);

// A new standard node with default fields at a place, coloured by the node colour settings.
Node standardNode(Editor& ed, double x, double y);
// Both append at the end, never into a freed slot, and return the new slot's number.
std::int32_t appendNode(Editor& ed, Node node);
std::int32_t appendLink(Editor& ed, const Link& link);
// A used link between two nodes with the default spring constant and force; lengths are 0.
Link defaultLink(const Editor& ed, std::int32_t n1, std::int32_t n2);

// Appends a link from the selected node to the hover node, or else to the node appended next.
// Does nothing without a selected node.
void CreateLink(Editor& ed);
void DeleteLink(Editor& ed);
void DeleteNode(Editor& ed);

std::int32_t UsedNodes(const Contents& contents);
std::int32_t UsedLinks(const Contents& contents);

void NoSelections(Editor& ed);
// Empties the model and the path window; the clock and the cycle counter go on. Draws nothing.
void ClearAnimation(Editor& ed);
// Erases the dots of the node path window.
void clearPath(Editor& ed);

// Status panels 1 and 2.
void showCounts(Editor& ed);

}  // namespace zentrik
