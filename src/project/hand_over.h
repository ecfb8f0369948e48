#pragma once
#include "model/editor.h"
#include "project/reader.h"

namespace zentrik {

class Host;

// Puts a project in place of the model: title, global settings, records; and asks for a larger window if
// it should have one.
void handOver(Editor& ed, Host& host, Project project);

}  // namespace zentrik
