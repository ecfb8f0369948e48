#pragma once
// The context menu of the project list as one table.

#include "ui/commands/commands.h"

#include <span>

namespace zentrik {

struct ProjectMenuRow {
    const char* name;
    const char* caption;  // "&" marks the access key
    const char* what;     // it is called when it can be undone
    Command command;
    bool (*isShown)(const Editor& ed, Host& host) = nullptr;  // null = always
};

std::span<const ProjectMenuRow> projectMenuRows();

}  // namespace zentrik
