#include "library/recovery.h"

#include "library/open.h"
#include "library/zoo.h"
#include "project/forms.h"
#include "project/hand_over.h"
#include "project/writer.h"

namespace zentrik {

namespace {

constexpr std::string_view nameLine = "; Project: ";

}  // namespace

std::filesystem::path recoveryFolder(const std::string& programFolder) {
    return zooFolder(programFolder).parent_path() / "recovery";
}

std::string recoveryBytes(const Editor& ed) {
    return projectBytes(ed).append(nameLine).append(oneLine(ed.savedText)).append(lineEnd);
}

std::optional<RecoveryCopy> readRecoveryCopy(const std::filesystem::path& path) {
    const FileBytes file = readProjectFile(path);
    const std::string_view bytes = file.bytes;
    const std::size_t start = bytes.rfind(nameLine);
    // Without its last line a copy was cut off.
    if (!file.problem.empty() || start == std::string_view::npos || !bytes.ends_with(lineEnd)) return {};
    Reading reading = parseProject(bytes);
    if (!reading.project) return {};
    const std::size_t from = start + nameLine.size();
    std::string name(bytes.substr(from, bytes.size() - lineEnd.size() - from));
    if (!nameProblem(name).empty()) name = "resume";
    return RecoveryCopy{std::move(name), *std::move(reading.project)};
}

void restore(Editor& ed, Host& host, RecoveryCopy copy) {
    becomeModel(ed, host, std::move(copy.project));
    ed.savedText = std::move(copy.name);
    panel(ed, 5) = "Project " + ed.savedText + " recovered!";
}

}  // namespace zentrik
