#include "edit/hit.h"

#include "basics/numbers.h"
#include "model/store.h"

#include <algorithm>

namespace zentrik {

namespace {

// In double precision the sums are exact whatever the coordinates.
bool inHitBox(double x, double y, double half, double X, double Y) {
    return x - half < X && X < x + half && y - half < Y && Y < y + half;
}

std::string nodeText(const Editor& ed, std::int32_t i) {
    const Node& node = nodeAt(ed, i);
    return "Node: " + std::to_string(i) + (node.Locked ? "   Locked    Mass: " : "   UnLocked    Mass: ") +
           realText(node.Mass) + (node.Locked ? "    Force: " : "   Force: ") + realText(node.Gravity);
}

template <class Record>
std::int32_t firstUsed(const std::vector<Record>& records, std::int32_t from, std::int32_t to) {
    const auto last = static_cast<std::int32_t>(records.size()) - 1;
    for (std::int32_t i = from; i <= std::min(to, last); ++i)
        if (records[static_cast<std::size_t>(i)].Used) return i;
    return none;
}

template <class Record>
void selectNext(const std::vector<Record>& records, std::int32_t& selection) {
    const auto last = static_cast<std::int32_t>(records.size()) - 1;
    std::int32_t next = none;
    if (selection < last) next = firstUsed(records, std::max(selection, 0) + 1, last);
    if (next == none && selection != none) next = firstUsed(records, 1, selection - 1);
    if (next != none) selection = next;
}

template <class Record>
void selectPrevious(const std::vector<Record>& records, std::int32_t& selection) {
    const auto last = static_cast<std::int32_t>(records.size()) - 1;
    const std::int32_t from = selection == none ? last + 1 : std::min(selection, last + 1);
    for (std::int32_t step = 1; step <= last; ++step) {
        const std::int32_t at = from - step >= 1 ? from - step : from - step + last;
        if (at < 1 || at > last || !records[static_cast<std::size_t>(at)].Used) continue;
        selection = at;
        return;
    }
}

}  // namespace

std::int32_t nodeAtPoint(const Editor& ed, float X, float Y) {
    const double half = ed.HitRadius;
    for (std::int32_t i = 1; i <= lastNode(ed); ++i) {
        const Node& node = nodeAt(ed, i);
        if (node.Used && inHitBox(node.X, node.Y, half, X, Y)) return i;
    }
    return none;
}

std::int32_t linkAtPoint(const Editor& ed, float X, float Y) {
    const double half = ed.HitRadius;
    for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
        const Link& link = linkAt(ed, j);
        if (!link.Used || !endsExist(ed, link)) continue;
        const PointF middle = linkMidpoint(ed, link);
        if (inHitBox(middle.x, middle.y, half, X, Y)) return j;
    }
    return none;
}

bool OverNode(Editor& ed, float X, float Y, std::int32_t& iOver) {
    iOver = nodeAtPoint(ed, X, Y);
    if (iOver != none) panel(ed, 5) = nodeText(ed, iOver);
    return iOver != none;
}

bool OverLink(Editor& ed, float X, float Y, std::int32_t& iOver) {
    iOver = linkAtPoint(ed, X, Y);
    if (iOver != none) panel(ed, 5) = linkText(ed, iOver);
    return iOver != none;
}

std::string linkText(const Editor& ed, std::int32_t i) {
    return "Link: " + std::to_string(i) + (linkAt(ed, i).Animator ? "  (animated)" : "");
}

void NextNode(Editor& ed) { selectNext(ed.Nodes, ed.SelectedNode); }
void NextLink(Editor& ed) { selectNext(ed.Links, ed.SelectedLink); }
void PreviousNode(Editor& ed) { selectPrevious(ed.Nodes, ed.SelectedNode); }
void PreviousLink(Editor& ed) { selectPrevious(ed.Links, ed.SelectedLink); }

}  // namespace zentrik
