#include "ui/commands/copy_paste.h"

#include "basics/numbers.h"
#include "edit/command.h"
#include "edit/compact.h"
#include "host/host.h"
#include "model/extent.h"
#include "model/grid.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/reader.h"
#include "project/writer.h"

#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

// How far to move what reaches from low to high, so that its middle comes to a place and it stays inside.
double shiftTo(double place, double low, double high, double room) {
    const double shift = place - (low + high) / 2;
    return std::max(std::min(shift, room - high), -low);
}

// The places of the pasted records among those present, by their numbers in the text; 0 for free ones.
std::vector<std::int32_t> appendNodes(Editor& ed, std::vector<Node> nodes, double shiftX, double shiftY) {
    std::vector<std::int32_t> places(nodes.size(), 0);
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        Node& node = nodes[i];
        if (!node.Used) continue;
        node.X = toInt(node.X + shiftX);
        node.Y = toInt(node.Y + shiftY);
        node.SpriteIndex = spriteEntryOf(ed, node.Sprite);
        if (node.Trigger != none) node.Trigger = 0;  // a shooter looks for its trigger anew
        places[i] = appendNode(ed, std::move(node));
    }
    return places;
}

void appendLinks(Editor& ed, std::vector<Link> links, const std::vector<std::int32_t>& places) {
    const auto placeOf = [&](std::int32_t node) {
        return node > 0 && std::cmp_less(node, places.size()) ? places[static_cast<std::size_t>(node)] : 0;
    };
    for (std::size_t j = 1; j < links.size(); ++j) {
        Link& link = links[j];
        link.N1 = placeOf(link.N1);
        link.N2 = placeOf(link.N2);
        if (link.Used && link.N1 != 0 && link.N2 != 0) appendLink(ed, link);
    }
}

}  // namespace

void copyObject(Editor& ed, Host& host) {
    Editor part = ed;
    if (!markSelectedObject(part)) {
        panel(ed, 5) = "Select a node or a link to copy its object.";
        return;
    }
    for (Node& it : part.Nodes) it.Used = it.Used && it.Marked;
    for (Link& it : part.Links) it.Used = it.Used && it.Marked;
    mnuCompact_Click(part, host);
    const bool copied = host.setClipboard(projectBytes(part));
    panel(ed, 5) = copied ? "Object copied: " + std::to_string(lastNode(part)) + " nodes, " +
                                std::to_string(lastLink(part)) + " links"
                          : "The object could not be copied.";
}

void pasteObject(Editor& ed, const std::string& text, PointF middle) {
    Reading reading = parseProject(text);
    const auto used = [](const Node& node) { return node.Used; };
    if (!reading.project || std::ranges::none_of(reading.project->Nodes, used)) {
        panel(ed, 5) = "The clipboard holds no Zentrik project.";
        return;
    }
    const Extent extent = extentOf(reading.project->Nodes);
    const double x = shiftTo(SnapToGrid(ed, middle.x), extent.left, extent.right, ed.sceneWidth);
    const double y = shiftTo(SnapToGrid(ed, middle.y), extent.top, extent.bottom, ed.sceneHeight);
    const std::vector<std::int32_t> places = appendNodes(ed, std::move(reading.project->Nodes), x, y);
    appendLinks(ed, std::move(reading.project->Links), places);
    ed.SelectedNode = lastNode(ed);
    ed.DrawMode = false;
    DisplayNodeData(ed, ed.SelectedNode);
    redrawModel(ed);
    panel(ed, 5) = "Object pasted!";
}

}  // namespace zentrik
