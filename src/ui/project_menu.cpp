#include "ui/project_menu.h"

#include "basics/no_doubles.h"
#include "library/library.h"
#include "library/manage.h"
#include "sim/run.h"

#include <string_view>
#include <utility>

namespace zentrik {

namespace {

void earlierVersions(Editor& ed, Host& host) {
    std::optional<Project> version = chooseEarlierVersion(ed, host);
    if (!version) return;
    stopAnimation(ed);
    showEarlierVersion(ed, host, std::move(*version));
}

void bringSampleBack(Editor& ed, Host& host) {
    stopAnimation(ed);
    restoreSample(ed, host);
}

constexpr ProjectMenuRow rows[] = {
    {"earlierVersions", "&Earlier Versions…", "Earlier version opened", earlierVersions},
    {"restoreSample", "Restore Sa&mple", "Sample restored", bringSampleBack, sampleDiffers},
    {"renameProject", "&Rename…", "Project renamed", renameProject},
    {"deleteProject", "&Delete…", "Project deleted", deleteProject},
    {"showFolder", "&Show in Folder", "Folder shown", showFolder},
};
static_assert(!anyShared(rows, [](const ProjectMenuRow& row) { return std::string_view(row.name); }),
              "two entries share a name");

}  // namespace

std::span<const ProjectMenuRow> projectMenuRows() { return rows; }

}  // namespace zentrik
