#include "library/manage.h"

#include "basics/text.h"
#include "files/path.h"
#include "files/write_file.h"
#include "host/host.h"
#include "host/questions.h"
#include "library/backups.h"
#include "library/open.h"
#include "library/percent.h"
#include "library/zoo.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/hand_over.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& name) { return "\"" + name + "\""; }

// The project that the list's text stands for: Enter saves without the blanks around what was typed.
std::string namedProject(const Editor& ed) {
    const std::string& text = ed.savedText;
    const bool asItStands = nameProblem(text).empty() && (isThere(projectPath(ed.programFolder, text)) ||
                                                          !formerVersions(ed.programFolder, text).empty());
    return asItStands ? text : std::string(trimmed(text, " "));
}

// The same when its file is there; otherwise a message box tells and there is no text.
std::string presentProject(const Editor& ed, Host& host) {
    const std::string name = namedProject(ed);
    if (nameProblem(name).empty() && isThere(projectPath(ed.programFolder, name))) return name;
    tell(host, "There is no project " + quoted(name) + ".");
    return {};
}

// Never over a file that is there, even one that came to be a moment ago.
std::string moveProject(const Editor& ed, const std::string& from, const std::string& to) {
    const fs::path source = projectPath(ed.programFolder, from), target = projectPath(ed.programFolder, to);
    const std::string taken = "There is a project " + quoted(to) + " already.";
    if (isThere(target)) return taken;
    int failed = ::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE);
    if (failed != 0 && errno == EINVAL) failed = std::rename(source.c_str(), target.c_str());
    if (failed != 0 && errno == EEXIST) return taken;
    if (failed != 0) return quoted(from) + " could not be renamed.\n" + inWords(errno);
    return syncFolder(zooFolder(ed.programFolder).string());
}

}  // namespace

std::optional<Project> chooseEarlierVersion(Editor& ed, Host& host) {
    const std::string name = namedProject(ed);
    const std::vector<FormerVersion> versions = formerVersions(ed.programFolder, name);
    if (versions.empty()) {
        tell(host, "There is no earlier version of " + quoted(name) +
                       ".\nOne is kept whenever a save replaces the project's file.");
        return {};
    }
    std::vector<std::string> files;
    files.reserve(versions.size());
    for (const FormerVersion& version : versions) files.push_back(pathText(version.path));
    const std::int32_t chosen = host.chooseVersion(name, files);
    if (chosen < 0 || !std::cmp_less(chosen, versions.size())) return {};
    const fs::path& path = versions[static_cast<std::size_t>(chosen)].path;
    ProjectFile file = readProject(path, "backups/" + pathText(path.filename()));
    if (!file.project) tellProblem(host, file);
    return std::move(file.project);
}

void showEarlierVersion(Editor& ed, Host& host, Project version) {
    becomeModel(ed, host, std::move(version));
    panel(ed, 5) = "Earlier version of " + namedProject(ed) + " opened";
}

void renameProject(Editor& ed, Host& host) {
    const std::string name = presentProject(ed, host);
    if (name.empty()) return;
    const std::string typed = host.inputBox("New name of the project.", "Rename", name);
    const std::string answer(trimmed(typed, " "));
    if (answer.empty() || answer == name) return;
    if (const std::string problem = nameProblem(answer); !problem.empty()) return tell(host, problem);
    if (const std::string problem = moveProject(ed, name, answer); !problem.empty()) tell(host, problem);
    if (isThere(projectPath(ed.programFolder, name))) return;
    if (const std::string problem = renameVersions(ed.programFolder, name, answer); !problem.empty())
        tell(host, "Earlier versions of " + quoted(name) + " keep that name.\n" + problem);
    ed.savedNames = projectNames(ed.programFolder);
    ed.savedText = answer;
    ed.goneName = name, ++ed.goneCount;
    panel(ed, 5) = "Project " + name + " is now " + answer;
}

void deleteProject(Editor& ed, Host& host) {
    const std::string name = presentProject(ed, host);
    if (name.empty() || !host.confirm("Delete the project " + quoted(name) + "?", "Delete")) return;
    const fs::path path = projectPath(ed.programFolder, name);
    const bool inTrash = host.moveToTrash(pathText(path));
    std::string problem;
    if (!inTrash) {
        std::error_code error;
        problem = keepFormer(ed.programFolder, name, std::nullopt);
        if (problem.empty() && !fs::remove(path, error) && error) problem = error.message() + ".";
    }
    if (!problem.empty()) return tell(host, quoted(name) + " could not be deleted.\n" + problem);
    ed.savedNames = projectNames(ed.programFolder);
    ed.goneName = name, ++ed.goneCount;
    panel(ed, 5) = "Project " + name +
                   (inTrash ? " is in the trash" : " deleted; it is the latest of its earlier versions");
}

void showFolder(Editor& ed, Host& host) {
    const std::string folder = pathText(zooFolder(ed.programFolder));
    if (!host.openAddress("file://" + percentEncoded(folder, "/")))
        tell(host, "Nothing on this computer shows folders.\nThe projects are in " + folder + ".");
}

}  // namespace zentrik
