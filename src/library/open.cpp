#include "library/open.h"

#include "basics/numbers.h"
#include "host/host.h"
#include "host/questions.h"
#include "library/zoo.h"
#include "model/rate.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <utility>

namespace zentrik {

namespace {

void applyGlobal(Editor& ed, Host& host, GlobalSettings global) {
    // A period the timer cannot take leaves its period unchanged, as everywhere.
    if (!isPeriod(global.timerPeriod)) global.timerPeriod = ed.timerPeriod;
    static_cast<ProjectSettings&>(ed) = global;
    if (ed.marks.mnuAutoWindowSize) {
        const double width = global.sceneWidth, height = global.sceneHeight;
        const bool wider = ed.sceneWidth < width, higher = ed.sceneHeight < height;
        if (wider || higher)
            host.resizeWindow(wider ? toInt(width + 100) : -1, higher ? toInt(height + 2000) : -1);
    }
}

}  // namespace

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

// The window is resized while the arrays are empty, so that laying it out touches no loaded record.
void handOver(Editor& ed, Host& host, Project project) {
    ed.ProjectTitle = std::move(project.title);
    ed.Nodes.assign(1, Node{});
    ed.Links.assign(1, Link{});
    if (project.global) applyGlobal(ed, host, *project.global);
    for (Node& node : project.Nodes) node.SpriteIndex = spriteEntryOf(ed, node.Sprite);
    ed.Nodes = std::move(project.Nodes);
    ed.Links = std::move(project.Links);
}

void becomeModel(Editor& ed, Host& host, Project project) {
    ClearAnimation(ed);
    handOver(ed, host, std::move(project));
    redrawModel(ed);
}

}  // namespace zentrik
