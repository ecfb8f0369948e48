#pragma once
// From a project's file to the model: whole or not at all.

#include "model/editor.h"
#include "project/reader.h"

#include <filesystem>
#include <optional>
#include <string>

namespace zentrik {

class Host;

struct ProjectFile {
    std::optional<Project> project;  // none with a problem
    std::string problem;             // names the file, and the line and field if it is one of them
    bool foreign = false;            // without the magic word: no project at all
};

// `shown` is what a message calls the file.
ProjectFile readProject(const std::filesystem::path& path, const std::string& shown);

void tellProblem(Host& host, const ProjectFile& file);

// Makes a project the model, with nothing selected, and shows it.
void becomeModel(Editor& ed, Host& host, Project project);

// The first part of it alone: title, global settings, records; and asks for a larger window if
// it should have one.
void handOver(Editor& ed, Host& host, Project project);

}  // namespace zentrik
