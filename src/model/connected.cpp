#include "model/connected.h"

#include "model/store.h"

namespace zentrik {

namespace {

// For each node the used links at its ends, laid out one after the other.
struct Adjacency {
    std::vector<std::size_t> first;   // first[i] .. first[i + 1]: node i's part of links
    std::vector<std::int32_t> links;  // in index order within each part
};

Adjacency adjacencyOf(const Editor& ed) {
    Adjacency result;
    result.first.assign(ed.Nodes.size() + 1, 0);
    const auto slot = [](std::int32_t i) { return static_cast<std::size_t>(i); };
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        ++result.first[slot(link.N1) + 1];
        if (link.N2 != link.N1) ++result.first[slot(link.N2) + 1];
    });
    for (std::size_t i = 1; i < result.first.size(); ++i) result.first[i] += result.first[i - 1];
    result.links.resize(result.first.back());
    std::vector<std::size_t> next(result.first.begin(), result.first.end() - 1);
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        result.links[next[slot(link.N1)]++] = j;
        if (link.N2 != link.N1) result.links[next[slot(link.N2)]++] = j;
    });
    return result;
}

}  // namespace

void MarkConnectedNodes(Editor& ed, std::int32_t& iSel, std::int32_t iSelLink) {
    if (iSel == none && linkExists(ed, iSelLink)) iSel = linkAt(ed, iSelLink).N1;
    for (Node& node : ed.Nodes) node.Res3 = false;
    for (Link& link : ed.Links) link.Res3 = false;
    if (!nodeExists(ed, iSel)) return;

    const Adjacency adjacency = adjacencyOf(ed);
    std::vector<std::int32_t> queue{iSel};
    nodeAt(ed, iSel).Res3 = true;
    for (std::size_t head = 0; head < queue.size(); ++head) {
        const std::int32_t h = queue[head];
        const auto begin = adjacency.first[static_cast<std::size_t>(h)];
        const auto end = adjacency.first[static_cast<std::size_t>(h) + 1];
        for (std::size_t at = begin; at < end; ++at) {
            Link& link = linkAt(ed, adjacency.links[at]);
            link.Res3 = true;
            const std::int32_t other = link.N1 == h ? link.N2 : link.N1;
            if (nodeAt(ed, other).Res3) continue;
            nodeAt(ed, other).Res3 = true;
            queue.push_back(other);
        }
    }
}

}  // namespace zentrik
