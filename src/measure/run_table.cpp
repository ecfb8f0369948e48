#include "measure/run_table.h"

#include "basics/numbers.h"
#include "model/store.h"

#include <cmath>

namespace zentrik {

namespace {

const Curve time{quantities().data()};

void appendCell(std::string& out, const ModelReading& reading, const Curve& column) {
    out += ',';
    const double value = valueOf(reading, column);
    if (std::isnan(value)) return;
    if (column.quantity->single)
        appendReal(out, static_cast<float>(value));
    else
        out += realText(value);
}

}  // namespace

TableColumns columnsOf(const std::vector<std::int32_t>& nodes, const std::vector<std::int32_t>& links) {
    TableColumns columns;
    for (const std::int32_t i : nodes) appendCurves(columns, Of::node, i);
    for (const std::int32_t j : links) appendCurves(columns, Of::link, j);
    appendCurves(columns, Of::whole);
    return columns;
}

TableColumns selectedColumns(const Editor& ed) {
    std::vector<std::int32_t> nodes, links;
    const bool node = nodeExists(ed, ed.SelectedNode), link = linkExists(ed, ed.SelectedLink);
    if (node) nodes.push_back(ed.SelectedNode);
    if (link) links.push_back(ed.SelectedLink);
    if (!node && !link) {
        forEachNode(ed, [&](std::int32_t i, const Node&) { nodes.push_back(i); });
        forEachLink(ed, [&](std::int32_t j, const Link&) { links.push_back(j); });
    }
    return columnsOf(nodes, links);
}

std::string tableHeader(const TableColumns& columns) {
    std::string out = "step";
    const auto append = [&out](const Curve& curve) {
        out += "," + nameOf(curve);
        if (*curve.quantity->unit != '\0') out.append(" (").append(curve.quantity->unit).append(")");
    };
    append(time);
    for (const Curve& column : columns) append(column);
    return out + "\n";
}

void appendTableRow(std::string& out, const Editor& ed, std::int64_t step, const TableColumns& columns) {
    out += std::to_string(step);
    const ModelReading reading(ed);
    appendCell(out, reading, time);
    for (const Curve& column : columns) appendCell(out, reading, column);
    out += '\n';
}

}  // namespace zentrik
