#include "edit/compact.h"

#include "model/redraw.h"
#include "model/store.h"

#include <utility>

namespace zentrik {

namespace {

// Gives the new number of every node slot, 0 for free ones.
std::vector<std::int32_t> compactNodes(Editor& ed) {
    std::vector<Node> nodes(1);
    std::vector<std::int32_t> newNumber(ed.Nodes.size(), 0);
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        newNumber[static_cast<std::size_t>(i)] = static_cast<std::int32_t>(nodes.size());
        nodes.push_back(node);
    });
    ed.Nodes = std::move(nodes);
    return newNumber;
}

// An end that is not there becomes 0.
void compactLinks(Editor& ed, const std::vector<std::int32_t>& newNumber) {
    const auto renumbered = [&](std::int32_t i) {
        return i >= 1 && std::cmp_less(i, newNumber.size()) ? newNumber[static_cast<std::size_t>(i)] : 0;
    };
    std::vector<Link> links(1);
    for (const Link& link : ed.Links) {
        if (!link.Used) continue;
        links.push_back(link);
        links.back().N1 = renumbered(link.N1);
        links.back().N2 = renumbered(link.N2);
    }
    ed.Links = std::move(links);
}

}  // namespace

void mnuCompact_Click(Editor& ed, Host&) {
    const std::int32_t oldNodes = lastNode(ed), oldLinks = lastLink(ed);
    compactLinks(ed, compactNodes(ed));
    redrawModel(ed);
    const auto change = [](std::int32_t from, std::int32_t to) {
        return std::to_string(from) + " to " + std::to_string(to);
    };
    panel(ed, 5) = "Compact complete.   Nodes: " + change(oldNodes, lastNode(ed)) +
                   "      Links: " + change(oldLinks, lastLink(ed));
}

}  // namespace zentrik
