#pragma once
// From the bytes of a project file to a project.

#include "project/columns.h"
#include "project/read_problem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zentrik {

struct Project {
    std::string title;
    std::optional<GlobalSettings> global;  // the last global line of the file
    std::vector<Link> Links = std::vector<Link>(1);
    std::vector<Node> Nodes = std::vector<Node>(1);  // SpriteIndex not looked up
};

struct Reading {
    std::optional<Project> project;  // none with a problem
    std::optional<ReadProblem> problem;
};

// Takes any bytes whatever. Records are numbered 1, 2, 3 ... in the order of their lines; links keep
// their ends as they stand, whether such nodes exist or not. Lines end in CR LF or LF; a
// last blank that an editor has trimmed does not matter. A malformed line spoils the whole.
Reading parseProject(std::string_view bytes);

// What can be read of a file that may hold any number of problems: a field with one keeps its default.
struct LenientReading {
    Project project;
    ReadProblems problems;
    std::vector<std::size_t> linkLines{0}, nodeLines{0};  // by slot; where each record stands
    std::size_t globalLine = 0;                           // of the last one; 0 = none
};
LenientReading parseLeniently(std::string_view bytes);

}  // namespace zentrik
