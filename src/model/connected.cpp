#include "model/connected.h"

#include "model/store.h"

#include <algorithm>
#include <numeric>

namespace zentrik {

std::vector<std::int32_t> connectedObjects(const Editor& ed) {
    // Every node names a lower one of its object, the lowest itself. Halving the way at each search keeps
    // the ways short.
    std::vector<std::int32_t> lower(ed.Nodes.size());
    std::iota(lower.begin(), lower.end(), 0);
    const auto lowest = [&](std::int32_t i) {
        while (lower[static_cast<std::size_t>(i)] != i) {
            std::int32_t& next = lower[static_cast<std::size_t>(i)];
            next = lower[static_cast<std::size_t>(next)];
            i = next;
        }
        return i;
    };
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        const auto [object, joined] = std::minmax({lowest(link.N1), lowest(link.N2)});
        lower[static_cast<std::size_t>(joined)] = object;
    });
    // In rising order each node's lower one is an object's number already.
    for (std::int32_t& next : lower) next = lower[static_cast<std::size_t>(next)];
    return lower;
}

void markObject(Editor& ed, const std::vector<std::int32_t>& objects, std::int32_t object) {
    for (std::size_t i = 0; i < ed.Nodes.size(); ++i) ed.Nodes[i].Marked = objects[i] == object;
    for (Link& link : ed.Links)
        link.Marked =
            link.Used && endsExist(ed, link) && objects[static_cast<std::size_t>(link.N1)] == object;
}

void MarkConnectedNodes(Editor& ed, std::int32_t& iSel, std::int32_t iSelLink) {
    if (iSel == none && linkExists(ed, iSelLink)) iSel = linkAt(ed, iSelLink).N1;
    const std::vector<std::int32_t> objects = connectedObjects(ed);
    markObject(ed, objects, nodeExists(ed, iSel) ? objects[static_cast<std::size_t>(iSel)] : none);
}

}  // namespace zentrik
