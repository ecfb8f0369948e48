#pragma once
#include "project/reader.h"

namespace zentrik {

// Everything that is wrong with the bytes of a project file, by line: what cannot be read, what names nodes
// that are not there, and what the step stops at.
ReadProblems checkProject(std::string_view bytes);

}  // namespace zentrik
