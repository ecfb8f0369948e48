// Any bytes are read or refused, and whatever was read can be written and read again without a change.

#include "loaded.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrik;
    Reading reading = parseProject({reinterpret_cast<const char*>(data), size});
    if (!reading.project) {
        if (!reading.problem) std::abort();
        return 0;
    }
    const std::size_t nodes = reading.project->Nodes.size(), links = reading.project->Links.size();
    // Seven digits may move a real once, to the nearest one they can name; from then on it stays. A scene's
    // extent is a whole number from then on, too.
    const std::string settled =
        projectBytes(editorWith(readOwn(projectBytes(editorWith(std::move(*reading.project))))));
    Project again = readOwn(settled);
    if (again.Nodes.size() != nodes || again.Links.size() != links) std::abort();
    if (projectBytes(editorWith(std::move(again))) != settled) std::abort();
    return 0;
}
