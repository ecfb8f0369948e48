#include "project/library.h"

#include "model/addresses.h"
#include "model/host.h"
#include "model/numbers.h"
#include "model/rate.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/reader.h"
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

void applyGlobal(Editor& ed, Host& host, const GlobalSettings& global) {
    ed.Gravity = global.Gravity;
    ed.Friction = global.Friction;
    ed.Viscosity = global.Viscosity;
    ed.LeftWind = global.LeftWind;
    ed.Bounce = global.Bounce;
    ed.TimeInterval = global.TimeInterval;
    // A period the timer cannot take leaves its period unchanged, as everywhere.
    setRate(ed, global.timerPeriod);
    ed.DeltaAngle = global.DeltaAngle;
    if (ed.marks.mnuAutoWindowSize) {
        const double width = global.sceneWidth, height = global.sceneHeight;
        const bool wider = ed.sceneWidth < width, higher = ed.sceneHeight < height;
        if (wider || higher)
            host.resizeWindow(wider ? toInt(width + 100) : -1, higher ? toInt(height + 2000) : -1);
    }
    ed.AnimationTime = global.AnimationTime;
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
    ++ed.filedCount;
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
    const FileBytes file = readProjectFile(projectPath(ed.programFolder, name));
    if (!file.problem.empty()) return tell(host, fileText(name) + " could not be read.\n" + file.problem);

    Reading reading = parseProject(file.bytes);
    const auto& problem = reading.problem;
    if (problem && problem->line == 0) return tell(host, problem->text, BoxIcon::plain);
    if (reading.project) handOver(ed, host, std::move(*reading.project));
    if (problem)
        tell(host, fileText(name) + ", line " + std::to_string(problem->line) + ": " + problem->text +
                       (reading.project ? "\nThe lines before it were loaded." : ""));
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
    const bool selected = entry >= 0 && std::cmp_less(entry, ed.savedNames.size());
    if (selected) ed.savedText = ed.savedNames[static_cast<std::size_t>(entry)];
    ClearAnimation(ed);
    if (selected) {
        OpenFile(ed, host, ed.savedText);
        showCounts(ed);
    }
    showNewModel(ed);
}

void lstSaved_Enter(Editor& ed, Host& host) {
    const std::string typed = ed.savedText;
    const std::size_t first = typed.find_first_not_of(' ');
    const std::size_t last = typed.find_last_not_of(' ');
    if (SaveFile(ed, host, first == std::string::npos ? "" : typed.substr(first, last - first + 1)))
        ++ed.filedCount;
    LoadListOfFileNames(ed, host, false);
    ed.savedText = typed;
}

void saveProject(Editor& ed, Host& host) {
    if (SaveFile(ed, host, ed.savedText)) ++ed.filedCount;
}

void reloadProject(Editor& ed, Host& host) {
    // A name mistyped must not cost the person the present model.
    std::error_code error;
    const bool there =
        nameProblem(ed.savedText).empty() && fs::exists(projectPath(ed.programFolder, ed.savedText), error);
    if (!there) return OpenFile(ed, host, ed.savedText);
    ClearAnimation(ed);
    OpenFile(ed, host, ed.savedText);
    showCounts(ed);
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
