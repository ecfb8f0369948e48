#include "library/open.h"

#include "host/host.h"
#include "library/zoo.h"

#include <utility>

namespace zentrik {

ProjectFile readProject(const std::filesystem::path& path, const std::string& shown) {
    const FileBytes file = readProjectFile(path);
    if (!file.problem.empty()) return {{}, shown + " could not be read.\n" + file.problem};
    Reading reading = parseProject(file.bytes);
    if (!reading.problem) return {std::move(reading.project), ""};
    const ReadProblem& problem = *reading.problem;
    if (problem.line == 0) return {{}, problem.text, true};
    return {{},
            shown + ", line " + std::to_string(problem.line) + ": " + problem.text + "\nNothing was loaded."};
}

void tellProblem(Host& host, const ProjectFile& file) {
    host.messageBox(file.problem, "Zentrik", file.foreign ? BoxIcon::plain : BoxIcon::exclamation);
}

}  // namespace zentrik
