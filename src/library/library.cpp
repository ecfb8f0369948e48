#include "library/library.h"

#include "basics/addresses.h"
#include "basics/text.h"
#include "files/path.h"
#include "files/write_file.h"
#include "files/write_target.h"
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
#include "project/writer.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

std::string fileText(const std::string& name) { return "zoo/" + name + ".bot"; }

struct Stored {
    bool done = false, isNew = false;
    std::string problem;  // in words, unless the person has been asked about it
};

// The former file of the project is kept before it is replaced, or the person knows that it is not.
bool formerIsSafe(const Editor& ed, Host& host, const std::string& name, const std::string& bytes) {
    const std::string problem = keepFormer(ed.programFolder, name, bytes);
    return problem.empty() || host.confirm("The former version of " + fileText(name) +
                                               " could not be kept.\n" + problem + "\nSave all the same?",
                                           "Zentrik");
}

// Writes a project's file and lists a new name.
Stored storeProject(Editor& ed, Host& host, const std::string& name, const std::string& bytes) {
    if (std::string problem = nameProblem(name); !problem.empty()) return {false, false, std::move(problem)};
    const std::string path = pathText(projectPath(ed.programFolder, name));
    std::error_code error;
    fs::create_directory(zooFolder(ed.programFolder), error);  // one that is missing for good fails the write
    const WriteTarget target = writeTarget(path, ed.programFolder);
    std::string problem = target.problem;
    if (problem.empty() && !formerIsSafe(ed, host, name, bytes)) return {};
    if (problem.empty()) problem = writeFile(path, bytes, ed.programFolder);
    if (!problem.empty()) return {false, false, fileText(name) + " could not be saved.\n" + problem};
    const bool listed = std::find(ed.savedNames.begin(), ed.savedNames.end(), name) != ed.savedNames.end();
    if (!target.exists && !listed) ed.savedNames.push_back(name);
    return {true, !target.exists, ""};
}

ProjectFile readNamed(const Editor& ed, const std::string& name) {
    return readProject(projectPath(ed.programFolder, name), fileText(name));
}

// What is no project at all leaves an empty scene.
void takePlace(Editor& ed, Host& host, ProjectFile file) {
    if (file.project) {
        ++ed.filedCount;
        return becomeModel(ed, host, *std::move(file.project));
    }
    ClearAnimation(ed);
    tellProblem(host, file);
    redrawModel(ed);
}

// How far an export by mail got.
enum class Mail { failed, onClipboard, handedOver };

Mail exportMail(Editor& ed, Host& host) {
    if (!storeProject(ed, host, "email", projectBytes(ed)).done) return Mail::failed;
    const FileBytes file = readProjectFile(projectPath(ed.programFolder, "email"));
    if (!file.problem.empty() || !host.setClipboard(file.bytes)) return Mail::failed;
    const std::string body =
        "Comments.  Zentrik put the current project on the clipboard. "
        "It is ready to paste into this message!";
    const bool opened = host.openAddress("mailto:" + std::string(makerMail) +
                                         "?subject=Zentrik&body=" + percentEncoded(body));
    return opened ? Mail::handedOver : Mail::onClipboard;
}

// Blanks around a name are hardly seen, but make another file.
void saySaved(Editor& ed, Host& host, const std::string& name, bool isNew) {
    const std::string core(trimmed(name, " "));
    panel(ed, 5) = core == name ? "Project " + name + " saved!"
                                : "Project \"" + name + "\" saved, with the blanks around its name!";
    if (!isNew) return;
    for (const std::string& other : ed.savedNames)
        if (other != name && trimmed(other, " ") == core)
            return tell(host, "The project was saved as \"" + name + "\".\n\"" + other +
                                  "\", which differs in blanks only, is another project.");
}

}  // namespace

bool SaveFile(Editor& ed, Host& host, const std::string& name) {
    const Stored stored = storeProject(ed, host, name, projectBytes(ed));
    if (stored.done) saySaved(ed, host, name, stored.isNew);
    if (!stored.problem.empty()) tell(host, stored.problem);
    return stored.done;
}

void OpenFile(Editor& ed, Host& host, const std::string& name) {
    if (const std::string problem = nameProblem(name); !problem.empty()) return tell(host, problem);
    ProjectFile file = readNamed(ed, name);
    if (file.project)
        handOver(ed, host, std::move(*file.project)), ++ed.filedCount;
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
        return redrawStripAndScene(ed);
    }
    const std::string name = ed.savedNames[static_cast<std::size_t>(entry)];
    ProjectFile file = readNamed(ed, name);
    if (!file.project && !file.foreign) return tellProblem(host, file);
    ed.savedText = name;
    takePlace(ed, host, std::move(file));
}

void lstSaved_Enter(Editor& ed, Host& host) {
    const std::string typed = ed.savedText;
    const std::string name(trimmed(typed, " "));
    const bool saved = SaveFile(ed, host, name);
    if (saved) ++ed.filedCount;
    if (saved && name != typed)
        panel(ed, 5) = "Project \"" + name + "\" saved, without the blanks around what was typed!";
    LoadListOfFileNames(ed, host, false);
    ed.savedText = typed;
}

void saveProject(Editor& ed, Host& host) {
    if (SaveFile(ed, host, ed.savedText)) ++ed.filedCount;
}

bool sampleDiffers(const Editor& ed, Host& host) {
    const std::string name(trimmed(ed.savedText, " "));
    if (!nameProblem(name).empty()) return false;
    const std::string shipped = host.shippedProject(name);
    return !shipped.empty() && readProjectFile(projectPath(ed.programFolder, name)).bytes != shipped;
}

void restoreSample(Editor& ed, Host& host) {
    if (!sampleDiffers(ed, host)) return;
    const std::string name(trimmed(ed.savedText, " "));
    const Stored stored = storeProject(ed, host, name, host.shippedProject(name));
    if (!stored.problem.empty()) tell(host, stored.problem);
    if (!stored.done) return;
    LoadListOfFileNames(ed, host, false);
    ed.savedText = name;
    reloadProject(ed, host);
    panel(ed, 5) = "Sample " + name + " restored";
}

void reloadProject(Editor& ed, Host& host) {
    if (const std::string problem = nameProblem(ed.savedText); !problem.empty()) return tell(host, problem);
    ProjectFile file = readNamed(ed, ed.savedText);
    if (!file.project && !file.foreign) return tellProblem(host, file);
    takePlace(ed, host, std::move(file));
}

void mnuSetTitle_Click(Editor& ed, Host& host) {
    ed.ProjectTitle = host.inputBox("Enter project title.", ed.ProjectTitle, ed.ProjectTitle);
    redrawScene(ed);
}

void mnuEmail_Click(Editor& ed, Host& host) {
    const bool known = *makerMail != '\0';
    const Mail reached = exportMail(ed, host);
    if (reached == Mail::handedOver) {
        if (!known)
            panel(ed, 5) = "This build of Zentrik knows no address of its authors: choose a recipient.";
        return;
    }
    const std::string advice = reached == Mail::onClipboard
                                   ? "The project is on the clipboard: paste it into a mail"
                                   : "Save the project and send its file from the folder zoo";
    const std::string recipient = known ? std::string(" to ") + makerMail : "";
    host.messageBox("Error sending email!\n" + advice + recipient + ".", "Send Email to Author",
                    BoxIcon::exclamation);
}

}  // namespace zentrik
