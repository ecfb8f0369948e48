// Any bytes are read or refused, and whatever was read can be written and read again without a change.

#include "project/reader.h"
#include "project/writer.h"

#include <cstdlib>
#include <utility>

namespace {

using namespace zentrik;

Editor editorWith(Project project) {
    Editor ed;
    ed.ProjectTitle = std::move(project.title);
    ed.Nodes = std::move(project.Nodes);
    ed.Links = std::move(project.Links);
    if (project.global) {
        ed.Gravity = project.global->Gravity;
        ed.Timer1.interval = project.global->timerPeriod;
        ed.AnimationTime = project.global->AnimationTime;
    }
    return ed;
}

// A file of our own must be read to its end.
Project readOwn(const std::string& bytes) {
    Reading reading = parseProject(bytes);
    if (!reading.project || reading.problem) std::abort();
    return std::move(*reading.project);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Reading reading = parseProject({reinterpret_cast<const char*>(data), size});
    if (!reading.project) {
        if (!reading.problem) std::abort();
        return 0;
    }
    const std::size_t nodes = reading.project->Nodes.size(), links = reading.project->Links.size();
    // Seven digits may move a real once, to the nearest one they can name; from then on it stays.
    const std::string settled =
        projectBytes(editorWith(readOwn(projectBytes(editorWith(std::move(*reading.project))))));
    Project again = readOwn(settled);
    if (again.Nodes.size() != nodes || again.Links.size() != links) std::abort();
    if (projectBytes(editorWith(std::move(again))) != settled) std::abort();
    return 0;
}
