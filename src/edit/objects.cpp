#include "edit/objects.h"

#include "basics/numbers.h"
#include "edit/command.h"
#include "edit/hit.h"
#include "model/connected.h"
#include "model/redraw.h"
#include "model/store.h"

namespace zentrik {

namespace {

constexpr const char* selectFirst = "You must first select a node!";

std::int32_t appendShiftedCopy(Editor& ed, std::int32_t i) {
    Node copy = nodeAt(ed, i);
    copy.X = toInt(static_cast<double>(copy.X) + ed.GridSize);
    copy.Y = toInt(static_cast<double>(copy.Y) + ed.GridSize);
    return appendNode(ed, std::move(copy));
}

// The copies of the marked nodes: their slots by the old node's number, 0 for a node not copied.
std::vector<std::int32_t> copyMarkedNodes(Editor& ed) {
    std::vector<std::int32_t> copies(ed.Nodes.size(), 0);
    for (std::int32_t i = 1; i < static_cast<std::int32_t>(copies.size()); ++i)
        if (nodeAt(ed, i).Used && nodeAt(ed, i).Marked)
            copies[static_cast<std::size_t>(i)] = appendShiftedCopy(ed, i);
    return copies;
}

// Which node the copy of a link joins, by the old end's number: the first one found one grid step from
// the old end. That is its copy unless an older node lies there too. Where nothing is found (a hit
// radius of 0 or less; coordinates so large that 32-bit reals miss the copy) it is the copy after all;
// 0 where there is none.
std::vector<std::int32_t> shiftedEnds(const Editor& ed, const std::vector<std::int32_t>& copies) {
    std::vector<std::size_t> marked;
    std::vector<PointF> points;
    for (std::size_t i = 1; i < copies.size(); ++i) {
        const Node& node = ed.Nodes[i];
        if (!node.Marked) continue;
        marked.push_back(i);
        points.push_back({toReal(static_cast<double>(node.X) + ed.GridSize),
                          toReal(static_cast<double>(node.Y) + ed.GridSize)});
    }
    const std::vector<std::int32_t> found = nodesAtPoints(ed, points);
    std::vector<std::int32_t> ends = copies;
    for (std::size_t at = 0; at < marked.size(); ++at)
        if (found[at] != none) ends[marked[at]] = found[at];
    return ends;
}

// A link that could end nowhere is left out.
void copyMarkedLinks(Editor& ed, const std::vector<std::int32_t>& ends) {
    const std::int32_t last = lastLink(ed);
    for (std::int32_t j = 1; j <= last; ++j) {
        Link link = linkAt(ed, j);
        if (!link.Used || !link.Marked || !endsExist(ed, link)) continue;
        link.N1 = ends[static_cast<std::size_t>(link.N1)];
        link.N2 = ends[static_cast<std::size_t>(link.N2)];
        if (link.N1 != 0 && link.N2 != 0) appendLink(ed, link);
    }
}

}  // namespace

void ConvertObjectToBarrier(Editor& ed, Host& host) {
    if (markSelectedObject(ed)) {
        for (Link& link : ed.Links) link.Barrier = link.Barrier || link.Marked;
        for (Node& node : ed.Nodes) node.Locked = node.Locked || node.Marked;
        panel(ed, 5) = "Object converted to barrier!";
    } else {
        refuse(ed, host, selectNodeMessage);
    }
    ed.SelectedNode = none;
    ed.HoverNode = none;
    redrawModel(ed);
}

void mnuDuplicateNode_Click(Editor& ed, Host& host) {
    if (!usedSelectedNode(ed)) return refuse(ed, host, selectFirst);
    selectCreated(ed, appendShiftedCopy(ed, ed.SelectedNode));
    redrawModel(ed);
    panel(ed, 5) = "Duplicate node created!";
}

void mnuDuplicateObject_Click(Editor& ed, Host& host) {
    if (!usedSelectedNode(ed)) return refuse(ed, host, selectFirst);
    MarkConnectedNodes(ed, ed.SelectedNode, ed.SelectedLink);
    const std::vector<std::int32_t> copies = copyMarkedNodes(ed);
    copyMarkedLinks(ed, shiftedEnds(ed, copies));
    selectCreated(ed, lastNode(ed));
    redrawModel(ed);
    panel(ed, 5) = "Duplicate object created!";
}

void mnuCreateRoad_Click(Editor& ed, Host& host) {
    constexpr std::int32_t pieces = 10;
    const std::int32_t before = lastNode(ed);
    for (std::int32_t m = 0; m <= pieces; ++m) {
        const double x = static_cast<double>(ed.sceneWidth) * m / pieces;
        const double y = ed.sceneHeight - 0.3 * ed.chance.next() * ed.sceneHeight;
        appendNode(ed, standardNode(ed, x, y));
    }
    for (std::int32_t m = 1; m <= pieces; ++m) {
        Link piece = defaultLink(ed, before + m, before + m + 1);
        piece.RestLength = piece.CurrentLength = linkLength(ed, piece);
        appendLink(ed, piece);
    }
    appendLink(ed, Link{});  // a road takes as many link slots as nodes
    ed.SelectedNode = lastNode(ed);
    ConvertObjectToBarrier(ed, host);
    redrawModel(ed);
    panel(ed, 5) = "Road Barrier Created";
}

}  // namespace zentrik
