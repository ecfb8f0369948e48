#include "ui/commands/model_information.h"

#include "host/host.h"
#include "model/store.h"

namespace zentrik {

namespace {

// A title without end would make a box larger than any screen.
std::string shownTitle(const Editor& ed) {
    constexpr std::size_t longest = 300;  // bytes
    if (ed.ProjectTitle.empty()) return "<no title>";
    if (ed.ProjectTitle.size() <= longest) return ed.ProjectTitle;
    return ed.ProjectTitle.substr(0, longest) + "...";
}

}  // namespace

void mnuShowModel_Click(Editor& ed, Host& host) {
    host.messageBox(shownTitle(ed) + "\r\n\r\nNodes: " + std::to_string(lastNode(ed)) + "\r\nUsed Nodes: " +
                        std::to_string(UsedNodes(ed)) + "\r\n\r\nLinks: " + std::to_string(lastLink(ed)) +
                        "\r\nUsed Links: " + std::to_string(UsedLinks(ed)),
                    "Model Information", BoxIcon::plain);
}

}  // namespace zentrik
