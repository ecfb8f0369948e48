#include "project/library.h"

#include "model/addresses.h"
#include "model/host.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/open.h"
#include "project/write_file.h"
#include "project/writer.h"
#include "project/zoo.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

void tell(Host& host, const std::string& text, BoxIcon icon = BoxIcon::exclamation) {
    host.messageBox(text, "Zentrik", icon);
}

std::string fileText(const std::string& name) { return "zoo/" + name + ".bot"; }

// Writes the project's file and lists a new name. Gives the problem in words, or the empty text.
std::string storeProject(Editor& ed, const std::string& name) {
    if (std::string problem = nameProblem(name); !problem.empty()) return problem;
    const fs::path path = projectPath(ed.programFolder, name);
    std::error_code error;
    const bool existed = fs::exists(path, error);
    fs::create_directory(zooFolder(ed.programFolder), error);  // one that is missing for good fails the write
    if (std::string problem = writeFile(pathText(path), projectBytes(ed)); !problem.empty())
        return fileText(name) + " could not be saved.\n" + problem;
    const bool listed = std::find(ed.savedNames.begin(), ed.savedNames.end(), name) != ed.savedNames.end();
    if (!existed && !listed) ed.savedNames.push_back(name);
    return {};
}

ProjectFile readNamed(const Editor& ed, const std::string& name) {
    return readProject(projectPath(ed.programFolder, name), fileText(name));
}

// What is no project at all leaves an empty scene.
void takePlace(Editor& ed, Host& host, ProjectFile file) {
    ClearAnimation(ed);
    if (file.project)
        handOver(ed, host, std::move(*file.project));
    else
        tellProblem(host, file);
    showCounts(ed);
}

void showNewModel(Editor& ed) {
    NoSelections(ed);
    DisplayScene(ed, -1, -1);
}

// What an address may hold as it stands; every other byte is written %XX.
std::string percentEncoded(const std::string& text) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (plain.find(c) != std::string_view::npos)
            encoded += c;
        else
            encoded.append({'%', digits[byte / 16], digits[byte % 16]});
    }
    return encoded;
}

bool exportMail(Editor& ed, Host& host) {
    if (!storeProject(ed, "email").empty()) return false;
    const FileBytes file = readProjectFile(projectPath(ed.programFolder, "email"));
    if (!file.problem.empty() || !host.setClipboard(file.bytes)) return false;
    const std::string body =
        "Comments.  Zentrik put the current project on the clipboard. "
        "It is ready to paste into this message!";
    return host.openAddress("mailto:" + std::string(makerMail) +
                            "?subject=Zentrik&body=" + percentEncoded(body));
}

}  // namespace

bool SaveFile(Editor& ed, Host& host, const std::string& name) {
    const std::string problem = storeProject(ed, name);
    if (problem.empty())
        panel(ed, 5) = "Project " + name + " saved!";
    else
        tell(host, problem);
    return problem.empty();
}

void OpenFile(Editor& ed, Host& host, const std::string& name) {
    if (const std::string problem = nameProblem(name); !problem.empty()) return tell(host, problem);
    ProjectFile file = readNamed(ed, name);
    if (file.project)
        handOver(ed, host, std::move(*file.project));
    else
        tellProblem(host, file);
}

void LoadListOfFileNames(Editor& ed, Host& host, bool UseResume) {
    ed.savedNames = projectNames(ed.programFolder);
    if (ed.savedNames.empty()) {
        ed.savedText = noFileFound;
        return;
    }
    if (!UseResume) return;
    const auto resume = std::find(ed.savedNames.begin(), ed.savedNames.end(), "resume");
    const bool found = resume != ed.savedNames.end();
    lstSaved_Click(ed, host, found ? static_cast<std::int32_t>(resume - ed.savedNames.begin()) : 0);
}

void lstSaved_Click(Editor& ed, Host& host, std::int32_t entry) {
    if (entry < 0 || !std::cmp_less(entry, ed.savedNames.size())) {
        ClearAnimation(ed);
        return showNewModel(ed);
    }
    const std::string name = ed.savedNames[static_cast<std::size_t>(entry)];
    ProjectFile file = readNamed(ed, name);
    if (!file.project && !file.foreign) return tellProblem(host, file);
    ed.savedText = name;
    takePlace(ed, host, std::move(file));
    showNewModel(ed);
}

void lstSaved_Enter(Editor& ed, Host& host) {
    const std::string typed = ed.savedText;
    const std::size_t first = typed.find_first_not_of(' ');
    const std::size_t last = typed.find_last_not_of(' ');
    SaveFile(ed, host, first == std::string::npos ? "" : typed.substr(first, last - first + 1));
    LoadListOfFileNames(ed, host, false);
    ed.savedText = typed;
}

void saveProject(Editor& ed, Host& host) { SaveFile(ed, host, ed.savedText); }

void reloadProject(Editor& ed, Host& host) {
    if (const std::string problem = nameProblem(ed.savedText); !problem.empty()) return tell(host, problem);
    ProjectFile file = readNamed(ed, ed.savedText);
    if (!file.project && !file.foreign) return tellProblem(host, file);
    takePlace(ed, host, std::move(file));
    showClock(ed);
    showNewModel(ed);
}

void mnuSetTitle_Click(Editor& ed, Host& host) {
    ed.ProjectTitle = host.inputBox("Enter project title.", ed.ProjectTitle, ed.ProjectTitle);
    DisplayScene(ed, -1, -1);
}

void mnuEmail_Click(Editor& ed, Host& host) {
    if (!exportMail(ed, host))
        host.messageBox("Error sending email!", "Send Email to Author", BoxIcon::exclamation);
}

}  // namespace zentrik
