#pragma once
// The table of a run as comma-separated text: a line of names with units, then a row a step.

#include "measure/curves.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zentrik {

using TableColumns = std::vector<Curve>;

// Every quantity of these nodes and links, in this order, and of the whole.
TableColumns columnsOf(const std::vector<std::int32_t>& nodes, const std::vector<std::int32_t>& links);
// Those of the selected node and the selected link; of every used node and link where neither is selected.
TableColumns selectedColumns(const Editor& ed);

// Step and time come before all columns.
std::string tableHeader(const TableColumns& columns);

// Cells of what is not there, or no more, are empty. Numbers are those of the project file: point as decimal
// mark, never a locale's.
void appendTableRow(std::string& out, const Editor& ed, std::int64_t step, const TableColumns& columns);

}  // namespace zentrik
