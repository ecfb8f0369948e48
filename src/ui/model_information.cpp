#include "ui/model_information.h"

#include "model/host.h"
#include "model/store.h"

namespace zentrik {

void mnuShowModel_Click(Editor& ed, Host& host) {
    const std::string title = ed.ProjectTitle.empty() ? "<no title>" : ed.ProjectTitle;
    host.messageBox(title + "\r\n\r\nNodes: " + std::to_string(lastNode(ed)) + "\r\nUsed Nodes: " +
                        std::to_string(UsedNodes(ed)) + "\r\n\r\nLinks: " + std::to_string(lastLink(ed)) +
                        "\r\nUsed Links: " + std::to_string(UsedLinks(ed)),
                    "Model Information", BoxIcon::plain);
}

}  // namespace zentrik
