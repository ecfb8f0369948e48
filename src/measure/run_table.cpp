#include "measure/run_table.h"

#include "basics/numbers.h"
#include "measure/quantities.h"
#include "model/store.h"
#include "sim/forces.h"

namespace zentrik {

namespace {

struct Quantity {
    const char* name;
    const char* unit;
};
constexpr Quantity ofRow[] = {{"step", ""}, {"time", "time units"}};
constexpr Quantity ofNode[] = {
    {"x", "twips"}, {"y", "twips"}, {"Vx", "twips/time unit"}, {"Vy", "twips/time unit"}};
constexpr Quantity ofLink[] = {{"length", "twips"}, {"force", "mass twips/time unit^2"}};
constexpr const char* energyUnit = "mass twips^2/time unit^2";
constexpr Quantity ofWhole[] = {{"centre x", "twips"},
                                {"centre y", "twips"},
                                {"kinetic energy", energyUnit},
                                {"spring energy", energyUnit},
                                {"gravity energy", energyUnit}};

template <std::size_t count>
void appendNames(std::string& out, const std::string& of, const Quantity (&quantities)[count]) {
    for (const Quantity& quantity : quantities) {
        if (!out.empty()) out += ',';
        out += of + quantity.name;
        if (*quantity.unit != '\0') out.append(" (").append(quantity.unit).append(")");
    }
}

void appendCells(std::string& out, std::initializer_list<double> values) {
    for (const double value : values) out.append(",").append(realText(value));
}
void appendCells(std::string& out, std::initializer_list<float> values) {
    for (const float value : values) {
        out += ',';
        appendReal(out, value);
    }
}

void appendNode(std::string& out, const Editor& ed, std::int32_t i) {
    if (!nodeExists(ed, i) || !nodeAt(ed, i).Used) {
        out += ",,,,";
        return;
    }
    const Node& node = nodeAt(ed, i);
    out.append(",").append(std::to_string(node.X)).append(",").append(std::to_string(node.Y));
    appendCells(out, {node.Vx, node.Vy});
}

void appendLink(std::string& out, const Editor& ed, std::int32_t j, const AnimatorClock& clock) {
    if (!linkExists(ed, j) || !linkAt(ed, j).Used || !endsExist(ed, linkAt(ed, j))) {
        out += ",,";
        return;
    }
    const Link& link = linkAt(ed, j);
    const float length = linkLength(ed, link);
    appendCells(out, {length, springForce(link, length, restLength(link, clock))});
}

}  // namespace

TableColumns selectedColumns(const Editor& ed) {
    TableColumns columns;
    const bool node = nodeExists(ed, ed.SelectedNode), link = linkExists(ed, ed.SelectedLink);
    if (node) columns.nodes.push_back(ed.SelectedNode);
    if (link) columns.links.push_back(ed.SelectedLink);
    if (node || link) return columns;
    forEachNode(ed, [&](std::int32_t i, const Node&) { columns.nodes.push_back(i); });
    forEachLink(ed, [&](std::int32_t j, const Link&) { columns.links.push_back(j); });
    return columns;
}

std::string tableHeader(const TableColumns& columns) {
    std::string out;
    appendNames(out, "", ofRow);
    for (const std::int32_t i : columns.nodes) appendNames(out, "node " + std::to_string(i) + " ", ofNode);
    for (const std::int32_t j : columns.links) appendNames(out, "link " + std::to_string(j) + " ", ofLink);
    appendNames(out, "", ofWhole);
    return out + "\n";
}

void appendTableRow(std::string& out, const Editor& ed, std::int64_t step, const TableColumns& columns) {
    out += std::to_string(step);
    appendCells(out, {ed.AnimationTime});
    for (const std::int32_t i : columns.nodes) appendNode(out, ed, i);
    const AnimatorClock clock = animatorClock(ed);
    for (const std::int32_t j : columns.links) appendLink(out, ed, j, clock);
    const Place centre = centreOfMass(ed);
    appendCells(out, {centre.x, centre.y, kineticEnergy(ed), springEnergy(ed), gravityEnergy(ed)});
    out += '\n';
}

}  // namespace zentrik
