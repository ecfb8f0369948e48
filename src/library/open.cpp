#include "library/open.h"

#include "host/host.h"
#include "host/questions.h"
#include "library/zoo.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/hand_over.h"

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
    tell(host, file.problem, file.foreign ? BoxIcon::plain : BoxIcon::exclamation);
}

void becomeModel(Editor& ed, Host& host, Project project) {
    ClearAnimation(ed);
    handOver(ed, host, std::move(project));
    redrawModel(ed);
}

}  // namespace zentrik
