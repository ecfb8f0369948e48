#pragma once
#include "basics/numbers.h"
#include "project/reader.h"
#include "project/writer.h"

#include <cstdlib>
#include <string>
#include <utility>

namespace zentrik {

// An editor that holds a project and nothing else, every field of the global line included.
inline Editor editorWith(Project project) {
    Editor ed;
    ed.ProjectTitle = std::move(project.title);
    ed.Nodes = std::move(project.Nodes);
    ed.Links = std::move(project.Links);
    if (const auto& global = project.global) {
        static_cast<ProjectSettings&>(ed) = *global;
        ed.sceneWidth = toInt(global->sceneWidth);
        ed.sceneHeight = toInt(global->sceneHeight);
    }
    return ed;
}

// A file of our own must be read to its end.
inline Project readOwn(const std::string& bytes) {
    Reading reading = parseProject(bytes);
    if (!reading.project || reading.problem) std::abort();
    return std::move(*reading.project);
}

}  // namespace zentrik
