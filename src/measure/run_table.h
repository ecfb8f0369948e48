#pragma once
// The table of a run as comma-separated text: a line of names with units, then a row a step.

#include "model/editor.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zentrik {

// The nodes and links that have columns, in this order; the whole model's columns are always there.
struct TableColumns {
    std::vector<std::int32_t> nodes, links;
};
// The selected node and the selected link; every used node and link where neither is selected.
TableColumns selectedColumns(const Editor& ed);

std::string tableHeader(const TableColumns& columns);

// Step, time; place and velocity of the nodes; length and force of the links; centre of mass, kinetic,
// spring and gravity energy of the whole. Cells of what is not there, or no more, are empty. Numbers are
// those of the project file: point as decimal mark, never a locale's.
void appendTableRow(std::string& out, const Editor& ed, std::int64_t step, const TableColumns& columns);

}  // namespace zentrik
