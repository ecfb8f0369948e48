#include "library/open_file.h"

#include "files/path.h"
#include "files/read_file.h"
#include "files/write_file.h"
#include "host/questions.h"
#include "library/library.h"
#include "library/open.h"
#include "library/zoo.h"
#include "model/redraw.h"
#include "model/store.h"
#include "project/hand_over.h"
#include "sim/run.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace zentrik {

namespace fs = std::filesystem;

namespace {

std::string baseName(const fs::path& path) {
    const std::string whole = pathText(path.filename());
    return whole.ends_with(".bot") ? whole.substr(0, whole.size() - 4) : whole;
}

bool isInLibrary(const Editor& ed, const fs::path& path) {
    std::error_code error;
    return path.extension() == ".bot" && nameProblem(baseName(path)).empty() &&
           fs::equivalent(path.parent_path(), zooFolder(ed.programFolder), error);
}

void openFromLibrary(Editor& ed, Host& host, const std::string& name) {
    ed.savedNames = projectNames(ed.programFolder);
    const auto found = std::find(ed.savedNames.begin(), ed.savedNames.end(), name);
    if (found == ed.savedNames.end()) return tell(host, "There is no project \"" + name + "\".");
    stopAnimation(ed);
    lstSaved_Click(ed, host, static_cast<std::int32_t>(found - ed.savedNames.begin()));
}

}  // namespace

void openFile(Editor& ed, Host& host, const std::string& path) {
    const fs::path from = pathOf(path);
    const std::string name = baseName(from);
    if (isInLibrary(ed, from)) return openFromLibrary(ed, host, name);
    ProjectFile file = readProject(from, path);
    if (!file.project) return tellProblem(host, file);
    stopAnimation(ed);
    becomeModel(ed, host, *std::move(file.project));
    ed.savedText = nameProblem(name).empty() ? name : "project";
    panel(ed, 5) = "Saving puts it into the library as " + ed.savedText + "; opened from " + path;
}

std::string copyPicture(const Editor& ed, Host& host, const std::string& path) {
    const fs::path from = pathOf(path), sprites = pathOf(ed.programFolder) / "sprites";
    const FileBytes picture = readFile(from);
    if (!picture.problem.empty()) {
        tell(host, path + " could not be read.\n" + picture.problem);
        return {};
    }
    std::error_code error;
    fs::create_directory(sprites, error);  // one that is missing for good fails the write
    const std::string stem = pathText(from.stem()), extension = pathText(from.extension());
    for (int copy = 1;; ++copy) {
        const std::string name = stem + (copy == 1 ? "" : " " + std::to_string(copy)) + extension;
        const fs::path target = sprites / pathOf(name);
        const FileBytes present = readFile(target);
        if (present.problem.empty() && present.bytes == picture.bytes) return name;
        if (fs::exists(fs::symlink_status(target, error))) continue;
        const std::string problem = writeFile(pathText(target), picture.bytes);
        if (problem.empty()) return name;
        tell(host, path + " could not be copied to the sprites.\n" + problem);
        return {};
    }
}

}  // namespace zentrik
