#include "model/store.h"

#include "basics/numbers.h"

#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

template <class Record>
std::int32_t countUsed(const std::vector<Record>& records) {
    const auto used =
        std::count_if(records.begin() + 1, records.end(), [](const Record& record) { return record.Used; });
    return static_cast<std::int32_t>(used);
}

}  // namespace

PointF linkMidpoint(const Editor& ed, const Link& link) {
    const Node& a = nodeAt(ed, link.N1);
    const Node& b = nodeAt(ed, link.N2);
    return {toReal((static_cast<double>(a.X) + b.X) / 2), toReal((static_cast<double>(a.Y) + b.Y) / 2)};
}

Node standardNode(Editor& ed, double x, double y) {
    Node node;
    node.Used = true;
    node.X = toInt(x);
    node.Y = toInt(y);
    node.Mass = 1;
    node.Trigger = none;
    node.Sprite = noSprite;
    node.color = ed.marks.mnuUseRandom ? GetRandomColor(ed.chance) : ed.NodeColor;
    return node;
}

std::int32_t appendNode(Editor& ed, Node node) {
    ed.Nodes.push_back(std::move(node));
    return lastNode(ed);
}

std::int32_t appendLink(Editor& ed, const Link& link) {
    ed.Links.push_back(link);
    return lastLink(ed);
}

Link defaultLink(const Editor& ed, std::int32_t n1, std::int32_t n2) {
    Link link;
    link.Used = true;
    link.N1 = n1;
    link.N2 = n2;
    link.k = ed.DefaultLinkK;
    link.Force = ed.DefaultLinkForce;
    return link;
}

void CreateLink(Editor& ed) {
    if (ed.SelectedNode == none) return;
    const std::int32_t end = ed.HoverNode != none ? ed.HoverNode : lastNode(ed) + 1;
    appendLink(ed, defaultLink(ed, ed.SelectedNode, end));
}

void DeleteLink(Editor& ed) {
    if (linkExists(ed, ed.SelectedLink)) linkAt(ed, ed.SelectedLink).Used = false;
    ed.SelectedLink = none;
}

void DeleteNode(Editor& ed) {
    if (ed.SelectedNode == none) return;
    for (Link& link : ed.Links)
        if (link.N1 == ed.SelectedNode || link.N2 == ed.SelectedNode) link.Used = false;
    ed.DrawMode = false;
    if (nodeExists(ed, ed.SelectedNode)) nodeAt(ed, ed.SelectedNode).Used = false;
    ed.SelectedNode = none;
    ed.HoverNode = none;
}

std::int32_t UsedNodes(const Contents& contents) { return countUsed(contents.Nodes); }
std::int32_t UsedLinks(const Contents& contents) { return countUsed(contents.Links); }

void NoSelections(Editor& ed) {
    ed.HoverNode = none;
    ed.SelectedNode = none;
    ed.SelectedLink = none;
    ed.HoverLink = none;
}

void showCounts(Editor& ed) {
    panel(ed, 1) = "Nodes: " + std::to_string(UsedNodes(ed));
    panel(ed, 2) = "Links: " + std::to_string(UsedLinks(ed));
}

void ClearAnimation(Editor& ed) {
    ++ed.replacedCount;
    ed.Nodes.assign(1, Node{});
    ed.Links.assign(1, Link{});
    NoSelections(ed);
    showCounts(ed);
    panel(ed, 3) = "Cycles: 0";
    clearPath(ed);
}

void clearPath(Editor& ed) {
    ed.pathDots.clear();
    ++ed.pathErased;
}

}  // namespace zentrik
