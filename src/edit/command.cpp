#include "edit/command.h"

#include "host/host.h"
#include "model/connected.h"
#include "model/readout.h"
#include "model/store.h"

namespace zentrik {

bool objectSelected(const Editor& ed) {
    if (nodeExists(ed, ed.SelectedNode)) return true;
    return linkExists(ed, ed.SelectedLink) && nodeExists(ed, linkAt(ed, ed.SelectedLink).N1);
}

bool markSelectedObject(Editor& ed) {
    if (!objectSelected(ed)) return false;
    const bool byLink = !nodeExists(ed, ed.SelectedNode);
    if (byLink) ed.SelectedNode = none;
    MarkConnectedNodes(ed, ed.SelectedNode, ed.SelectedLink);
    if (byLink) DisplayNodeData(ed, ed.SelectedNode);
    return true;
}

Node* usedSelectedNode(Editor& ed) {
    Node* node = selectedNode(ed);
    return node && node->Used ? node : nullptr;
}

Link* usedSelectedLink(Editor& ed) {
    Link* link = selectedLink(ed);
    return link && link->Used ? link : nullptr;
}

void selectCreated(Editor& ed, std::int32_t node) {
    ed.SelectedNode = node;
    ed.HoverNode = node;
    ed.SelectedLink = none;
    ed.HoverLink = none;
    DisplayNodeData(ed, node);
}

void refuse(Editor& ed, Host& host, const std::string& message) {
    panel(ed, 5) = message;
    host.beep();
}

}  // namespace zentrik
