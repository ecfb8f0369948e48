#include "edit/mouse.h"

#include "basics/numbers.h"
#include "edit/hit.h"
#include "model/grid.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

namespace zentrik {

namespace {

// Compaction and the animation may leave a selection that names no present node; nothing may be linked
// to it.
void dropIfAbsent(const Editor& ed, std::int32_t& node) {
    if (!nodeExists(ed, node) || !nodeAt(ed, node).Used) node = none;
}

void showUsedLinks(Editor& ed) { panel(ed, 2) = "Links: " + std::to_string(UsedLinks(ed)); }

// A drawn or dragged link: "same" makes its new length the rest length too.
void measureLink(Editor& ed, Link& link) {
    if (!endsExist(ed, link)) return;
    link.CurrentLength = linkLength(ed, link);
    if (ed.buttons.same) link.RestLength = link.CurrentLength;
}

// Appends the link that draw mode draws from the selected node; none without draw mode or node.
std::int32_t drawLink(Editor& ed) {
    if (!ed.buttons.draw || !ed.DrawMode || ed.SelectedNode == none) return none;
    CreateLink(ed);
    return lastLink(ed);
}

void pressSelectedNode(Editor& ed) {
    ed.MouseIsDown = true;
    if (ed.buttons.draw) ed.DrawMode = true;
    nodeAt(ed, ed.SelectedNode).BeingDragged = true;
    ed.SelectedNodeClicked = true;
}

void pressHoverNode(Editor& ed) {
    ed.MouseIsDown = true;
    if (ed.buttons.draw) {
        const std::int32_t drawn = drawLink(ed);
        ed.DrawMode = true;
        showUsedLinks(ed);
        if (drawn != none) measureLink(ed, linkAt(ed, drawn));
    }
    ed.SelectedNode = ed.HoverNode;
    ed.HoverNode = none;
    DisplayNodeData(ed, ed.SelectedNode);
    nodeAt(ed, ed.SelectedNode).BeingDragged = true;
}

void pressEmptySpace(Editor& ed, float X, float Y) {
    ed.MouseIsDown = true;
    const std::int32_t drawn = drawLink(ed);
    ed.SelectedNode = appendNode(ed, standardNode(ed, SnapToGrid(ed, X), SnapToGrid(ed, Y)));
    DisplayNodeData(ed, ed.SelectedNode);
    showCounts(ed);
    if (!ed.buttons.draw) return;
    ed.DrawMode = true;
    if (drawn != none) measureLink(ed, linkAt(ed, drawn));
}

void selectLinkAt(Editor& ed, float X, float Y) {
    std::int32_t link = none;
    if (OverLink(ed, X, Y, link)) {
        ed.HoverLink = none;
        ed.SelectedLink = link;
        if (linkAt(ed, link).Animator) ed.SelectedAnimatorLink = link;
        DisplayLinkData(ed, link);
    } else {
        ed.SelectedLink = none;
        ed.SelectedAnimatorLink = none;
    }
}

void pressLeft(Editor& ed, float X, float Y) {
    ed.SelectedNodeClicked = false;
    dropIfAbsent(ed, ed.SelectedNode);
    dropIfAbsent(ed, ed.HoverNode);
    std::int32_t over = none;
    if (OverNode(ed, X, Y, over)) {
        // A node that moved under a resting pointer is neither of the two and stays alone.
        if (over == ed.SelectedNode)
            pressSelectedNode(ed);
        else if (over == ed.HoverNode)
            pressHoverNode(ed);
    } else if (!OverLink(ed, X, Y, over)) {
        pressEmptySpace(ed, X, Y);
    }
    selectLinkAt(ed, X, Y);
}

void pressRight(Editor& ed) {
    if (!ed.DrawMode) ed.SelectedNode = none;
    ed.DrawMode = false;
    ed.MouseIsDown = false;
    ed.HoverNode = none;
    ed.HoverLink = none;
    ed.SelectedLink = none;
    ed.SelectedAnimatorLink = none;
}

void dragSelectedNode(Editor& ed, float X, float Y) {
    Node* node = selectedNode(ed);
    if (!node) return;
    node->X = toInt(SnapToGrid(ed, X));
    node->Y = toInt(SnapToGrid(ed, Y));
    forEachLink(ed, [&](std::int32_t, Link& link) {
        if (link.N1 == ed.SelectedNode || link.N2 == ed.SelectedNode) measureLink(ed, link);
    });
}

void invertAnimator(Editor& ed) {
    Link* link = selectedLink(ed);
    if (!link) return;
    link->Animator = !link->Animator;
    ed.SelectedAnimatorLink = link->Animator ? ed.SelectedLink : none;
    panel(ed, 5) = linkText(ed, ed.SelectedLink);
    DisplayLinkData(ed, ed.SelectedLink);
    redrawPhaseManager(ed, ed.AnimationTime);
}

}  // namespace

void picS_MouseDown(Editor& ed, int Button, float X, float Y) {
    if (Button == leftButton) pressLeft(ed, X, Y);
    if (Button == rightButton) pressRight(ed);
    DisplayScene(ed, X, Y);
    redrawPhaseManager(ed, ed.AnimationTime);
}

void picS_MouseMove(Editor& ed, int, float X, float Y) {
    std::int32_t over = none;
    if (ed.MouseIsDown) {
        dragSelectedNode(ed, X, Y);
    } else {
        if (!OverNode(ed, X, Y, over)) panel(ed, 5).clear();
        ed.HoverNode = over;
    }
    if (!OverLink(ed, X, Y, over))
        ed.HoverLink = none;
    else if (over != ed.SelectedLink)
        ed.HoverLink = over;
    DisplayScene(ed, X, Y);
}

void picS_MouseUp(Editor& ed, int Button, float X, float Y) {
    std::int32_t over = none;
    if (OverNode(ed, X, Y, over)) {
        nodeAt(ed, over).JustReleased = true;
        nodeAt(ed, over).BeingDragged = false;
    }
    if (ed.Timer1.enabled || Button == rightButton) ed.DrawMode = false;
    ed.MouseIsDown = false;
    DisplayScene(ed, X, Y);
    if (lastNode(ed) == 0 && Button == rightButton) {
        ed.sceneBlank = true;
        ed.sceneStale = true;
    }
}

void picS_DblClick(Editor& ed) {
    invertAnimator(ed);
    if (!ed.SelectedNodeClicked) return;
    DeleteNode(ed);
    redrawScene(ed);
    redrawPhaseManager(ed, ed.AnimationTime);
    showCounts(ed);
}

}  // namespace zentrik
