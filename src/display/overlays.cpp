#include "display/overlays.h"

#include "basics/colours.h"
#include "basics/numbers.h"
#include "model/store.h"

#include <utility>

namespace zentrik {

namespace {

std::string blanks(std::size_t count) { return std::string(count, ' '); }
std::string whole(double value) { return std::to_string(toInt(value)); }

// A number printed as a number: a blank or minus for the sign, and a blank behind.
std::string spaced(std::string number) {
    return (number.front() == '-' ? "" : " ") + std::move(number) + " ";
}
std::string spaced(std::int32_t number) { return spaced(std::to_string(number)); }

constexpr double left = 100;  // where the lines of the left column start

}  // namespace

TextPage::TextPage(const Editor& ed, double lineHeight)
    : width_(ed.sceneWidth), height_(ed.sceneHeight), lineHeight_(lineHeight) {}

void TextPage::put(double x, std::string text) {
    // No letter is wider than a line is high.
    const double widest = lineHeight_ * static_cast<double>(text.size());
    if (lineShows() && x < width_ && x + widest > 0) runs.push_back({x, y, colour, std::move(text)});
}

void TextPage::line(double x, std::string text) {
    put(x, std::move(text));
    emptyLine();
}

void PrintNumbers(TextPage& page, const Editor& ed) {
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        page.colour = blue;
        page.y = node.Y + 100.0;
        if (page.lineShows()) page.put(node.X - 100.0, spaced(i));
    });
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        const PointF middle = linkMidpoint(ed, link);
        page.colour = red;
        page.y = middle.y + 75.0;
        if (page.lineShows()) page.put(middle.x - 100.0, spaced(j));
    });
}

void PrintSimpleData(TextPage& page, const Editor& ed) {
    page.colour = black;
    page.y = 50;
    // The values stand under the letters g f v w B t r c of a project file.
    page.put(readoutLeft, " " + realText(ed.Gravity) + blanks(8) + fixedText(ed.Friction, 1) + blanks(8) +
                              fixedText(ed.Viscosity, 1) + blanks(9) + realText(ed.LeftWind) + blanks(10) +
                              fixedText(ed.Bounce, 1) + blanks(8) + realText(ed.TimeInterval) + blanks(8) +
                              std::to_string(ed.timerPeriod) + blanks(8) + realText(ed.DeltaAngle));
    if (const Node* node = selectedNode(ed))
        page.put(readoutNode, realText(node->Mass) + blanks(9) + realText(node->Gravity) + blanks(10) +
                                  realText(node->Rotate) + blanks(9) + realText(node->Vxo) + blanks(10) +
                                  realText(node->Vyo));
    if (const Link* link = selectedLink(ed))
        page.line(readoutLink,
                  realText(link->k) + blanks(10) + whole(link->Angle) + blanks(6) + realText(link->Force));
}

namespace {

void printSelectedNode(TextPage& page, const Editor& ed, const Node& node) {
    page.emptyLine();
    page.line(left, "--- Selected Node ---");
    page.line(left, "Node " + std::to_string(ed.SelectedNode));
    page.line(left, "mass: " + realText(node.Mass));
    page.line(left, "force: " + realText(node.Gravity));
    page.line(left, std::string("locked: ") + booleanText(node.Locked));
    page.line(left, "X:    " + std::to_string(node.X));
    page.line(left, "Y:    " + std::to_string(node.Y));
    page.line(left, "Vx:  " + whole(node.Vx));
    page.line(left, "Vy:  " + whole(node.Vy));
}

void printSelectedLink(TextPage& page, const Editor& ed, const Link& link) {
    page.emptyLine();
    page.line(left, "--- Selected Link ---");
    page.line(left, "Link " + std::to_string(ed.SelectedLink));
    page.line(left, std::string("Animator: ") + booleanText(link.Animator));
    page.line(left, "k: " + realText(link.k));
    page.line(left, "Angle: " + realText(link.Angle));
    page.line(left, "Force: " + whole(link.Force));
    page.line(left, "CurrentLen: " + whole(link.CurrentLength));
    page.line(left, "RestLen: " + whole(link.RestLength));
}

// A table of the right-hand column. Places count from the scene's right edge.
struct Table {
    const char* caption;
    double headingAt;
    const char* heading;
    double ruleAt;
};

// Prints the heading, then row(number, record) for every used record that belongs, or "(none)". A row
// prints its cells; its line ends by itself.
template <class Record, class Belongs, class Row>
void printTable(TextPage& page, const Table& table, const std::vector<Record>& records, Belongs belongs,
                Row row) {
    const double W = page.width();
    page.line(W - 1600, table.caption);
    page.line(W - table.headingAt, table.heading);
    page.line(W - table.ruleAt, "------------------------------");
    bool any = false;
    for (std::size_t i = 1; i < records.size(); ++i) {
        if (!records[i].Used || !belongs(records[i])) continue;
        any = true;
        if (page.lineShows()) row(static_cast<std::int32_t>(i), records[i]);
        page.emptyLine();
    }
    if (!any) page.line(W - 1200, "(none)");
}

constexpr auto everyRecord = [](const auto&) { return true; };

void PrintNodePhases(TextPage& page, const Editor& ed) {
    const double W = page.width();
    page.y = 400;
    printTable(
        page, {"--- Animator Links ---", 1400, "#  Angle  Force", 1600}, ed.Links,
        [](const Link& link) { return link.Animator; },
        [&](std::int32_t j, const Link& link) {
            page.put(W - 1400, spaced(j));
            page.put(W - 1000, spaced(whole(link.Angle)));
            page.put(W - 600, spaced(realText(link.Force)));
        });
}

void PrintNodeRotation(TextPage& page, const Editor& ed) {
    const double W = page.width();
    page.emptyLine();
    printTable(
        page, {"--- Rotation Nodes ---", 1400, "#  Force", 1600}, ed.Nodes,
        [](const Node& node) { return node.Rotate != 0; },
        [&](std::int32_t i, const Node& node) {
            page.put(W - 1400, spaced(i));
            page.put(W - 1000, spaced(realText(node.Rotate)));
        });
}

void PrintEntireProject(TextPage& page, const Editor& ed) {
    const double W = page.width();
    page.emptyLine();
    page.emptyLine();
    printTable(page, {"--- All Links ---", 2500, "#    k  Angle  Force  Rest  Current", 2500}, ed.Links,
               everyRecord, [&](std::int32_t j, const Link& link) {
                   page.put(W - 2500, spaced(j));
                   page.put(W - 2300, spaced(whole(link.k)));
                   page.put(W - 1900, spaced(whole(link.Angle)));
                   page.put(W - 1500, spaced(realText(link.Force)));
                   page.put(W - 1100, spaced(whole(link.RestLength)));
                   page.put(W - 600, spaced(whole(link.CurrentLength)));
               });
    page.emptyLine();
    page.emptyLine();
    printTable(page, {"--- All Nodes ---", 1800, "#     mass    gravity", 1800}, ed.Nodes, everyRecord,
               [&](std::int32_t i, const Node& node) {
                   page.put(W - 1800, spaced(i));
                   page.put(W - 1400, spaced(whole(node.Mass)));
                   page.put(W - 1000, spaced(whole(node.Gravity)));
               });
}

}  // namespace

void PrintDataOnScreen(TextPage& page, const Editor& ed) {
    page.colour = black;
    page.y = 400;
    if (const Node* node = selectedNode(ed)) printSelectedNode(page, ed, *node);
    if (const Link* link = selectedLink(ed)) printSelectedLink(page, ed, *link);
    page.emptyLine();
    page.line(left, "Used Nodes: " + std::to_string(UsedNodes(ed)) + "/" + std::to_string(lastNode(ed)));
    page.line(left, "Used Links:   " + std::to_string(UsedLinks(ed)) + "/" + std::to_string(lastLink(ed)));
    PrintNodePhases(page, ed);
    PrintNodeRotation(page, ed);
    PrintEntireProject(page, ed);
}

TextPage overlayPage(const Editor& ed, double lineHeight) {
    TextPage page(ed, lineHeight);
    if (ed.buttons.numbers) PrintNumbers(page, ed);
    if (ed.buttons.data) PrintDataOnScreen(page, ed);
    if (ed.buttons.simple) PrintSimpleData(page, ed);
    return page;
}

TextPage instructionsPage(const Editor& ed, double lineHeight) {
    static constexpr const char* lines[] = {
        "To add a node, press and release the left mouse in the display area.  This also enters draw mode.",
        ("Move the mouse and a link will be drawn to the location of the mouse. "
         "Click to create a new node at the end of the link."),
        "",
        "Right mouse click to exit draw mode.",
        "",
        "Drag a node to a new location using the left mouse.",
        "To remove a node, select it by clicking on it, then double-click it again.",
        "",
        "See Online Help for more instructions.",
    };
    TextPage page(ed, lineHeight);
    page.y = 1200;
    for (const char* text : lines) {
        if (*text) page.put(500, text);
        page.emptyLine();
    }
    return page;
}

}  // namespace zentrik
