// What every entry of the menus and every button of both bars changes, as one text: a row wired to another's
// procedure, member or sign is a line that differs from rows.txt. After a change that is meant, the text in
// the working folder takes its place.

#include "desk.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "project/columns.h"
#include "project/forms.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

namespace zentrik {

namespace {

// Three nodes in a crooked chain and a free one that shoots at the first, no two alike in anything; the
// second node and the first link are selected. The last node and link slots are free.
Editor unlikeModel() {
    Editor ed = scenes::fullScreen();
    scenes::addNodes(ed, {{2000, 3000}, {4100, 2500}, {5300, 5200}, {9000, 4000}, {500, 600}});
    scenes::addLinks(ed, {{1, 2}, {2, 3}, {3, 4}});
    for (std::int32_t i = 1; i <= 5; ++i) {
        Node& node = nodeAt(ed, i);
        const auto f = static_cast<float>(i);
        node.Mass = 1 + f, node.Gravity = f, node.Vx = 10 * f, node.Vy = 20 * f, node.Fx = f, node.Fy = -f;
        node.Vxo = 30 * f, node.Vyo = f, node.Rotate = f / 4, node.color = i,
        node.Trigger = i == 4 ? 1 : none;
        node.Locked = i == 1 || i == 4;
        node.Sprite = i == 3 ? "ant.svg" : noSprite;
    }
    for (std::int32_t j = 1; j <= 3; ++j) {
        Link& link = linkAt(ed, j);
        const auto f = static_cast<float>(j);
        link.k = 4 * f, link.Angle = 90 * f, link.Force = f / 4, link.Animator = j == 1,
        link.Barrier = j == 2;
    }
    ed.Gravity = 1.25F, ed.Friction = 0.3F, ed.Viscosity = 0.25F, ed.LeftWind = 3, ed.Bounce = 0.75F;
    ed.TimeInterval = 15, ed.timerPeriod = 25, ed.DeltaAngle = 0.2F, ed.DefaultLinkK = 6;
    ed.DefaultLinkForce = 0.15F, ed.GridSize = 300, ed.AnimationTime = 1.5F, ed.ProjectTitle = "unlike";
    ed.SelectedNode = 2, ed.SelectedLink = ed.SelectedAnimatorLink = 1, ed.LastShooter = 4;
    ed.HoverNode = 3, ed.HoverLink = 2, ed.NodeRadius = 50;
    nodeAt(ed, 5).Used = linkAt(ed, 3).Used = false;
    ed.marks.mnuDisplayAngleManager = true;
    ed.phaseWidth = 28680;
    DrawPhaseManager(ed, ed.AnimationTime);
    DisplayNodeData(ed, 2);
    DisplayLinkData(ed, 1);
    ed.savedText = "unlike";
    ed.spriteNames = {noSprite, "ant.svg"};
    ed.chance.seedSource = [] { return std::uint64_t{7}; };
    ed.programFolder = "/nonexistent/zentrik";
    return ed;
}

template <class Value>
std::string textOf(const Value& value) {
    std::string text;
    appendForm(text, value);
    return text;
}

template <class Value>
void tell(std::string& out, const std::string& name, const Value& before, const Value& after) {
    if (before != after) out += "  " + name + " " + textOf(before) + " > " + textOf(after) + "\n";
}

template <class Record, std::size_t count>
void tellRecords(std::string& out, const char* kind, const Column<Record> (&columns)[count],
                 const std::vector<Record>& before, const std::vector<Record>& after) {
    if (before.size() != after.size())
        out += std::string("  ") + kind + " slots " + std::to_string(before.size() - 1) + " > " +
               std::to_string(after.size() - 1) + "\n";
    for (const auto& column : columns) {
        std::string changes;
        for (std::size_t i = 1; i < std::min(before.size(), after.size()); ++i)
            std::visit(
                [&](auto member) {
                    if (before[i].*member == after[i].*member) return;
                    changes += "  " + std::to_string(i) + ": " + textOf(before[i].*member) + " > " +
                               textOf(after[i].*member);
                },
                column.member);
        if (!changes.empty())
            out.append("  ").append(kind).append(".").append(column.name).append(changes).append("\n");
    }
}

void tellAdded(std::string& out, const Editor& before, const Editor& after) {
    for (std::int32_t i = lastNode(before) + 1; i <= lastNode(after);
         i += std::max(1, lastNode(after) - lastNode(before) - 1)) {
        const Node& n = nodeAt(after, i);
        out += "  node " + std::to_string(i) + " at " + std::to_string(n.X) + "," + std::to_string(n.Y) +
               " flying " + textOf(n.Vx) + "," + textOf(n.Vy) + (n.Locked ? " locked" : "") + "\n";
    }
    for (std::int32_t j = lastLink(before) + 1; j <= lastLink(after);
         j += std::max(1, lastLink(after) - lastLink(before) - 1)) {
        const Link& l = linkAt(after, j);
        out += "  link " + std::to_string(j) + " from " + std::to_string(l.N1) + " to " +
               std::to_string(l.N2) + " length " + textOf(l.RestLength) + " k " + textOf(l.k) + " angle " +
               textOf(l.Angle) + (l.Animator ? " animated" : "") + (l.Barrier ? " barrier" : "") + "\n";
    }
}

void tellSettings(std::string& out, const Editor& a, const Editor& b) {
    const std::pair<const char*, float Editor::*> reals[] = {{"Gravity", &Editor::Gravity},
                                                             {"Friction", &Editor::Friction},
                                                             {"Viscosity", &Editor::Viscosity},
                                                             {"LeftWind", &Editor::LeftWind},
                                                             {"Bounce", &Editor::Bounce},
                                                             {"TimeInterval", &Editor::TimeInterval},
                                                             {"DeltaAngle", &Editor::DeltaAngle},
                                                             {"DefaultLinkK", &Editor::DefaultLinkK},
                                                             {"GridSize", &Editor::GridSize},
                                                             {"DefaultLinkForce", &Editor::DefaultLinkForce},
                                                             {"AnimationTime", &Editor::AnimationTime},
                                                             {"ShooterDirection", &Editor::ShooterDirection},
                                                             {"ShooterVelocity", &Editor::ShooterVelocity}};
    for (const auto& [name, member] : reals) tell(out, name, a.*member, b.*member);
    const std::pair<const char*, std::int32_t Editor::*> wholes[] = {
        {"NodeRadius", &Editor::NodeRadius},     {"HitRadius", &Editor::HitRadius},
        {"LinkColor", &Editor::LinkColor},       {"NodeColor", &Editor::NodeColor},
        {"BackColor", &Editor::BackColor},       {"SelectedNode", &Editor::SelectedNode},
        {"SelectedLink", &Editor::SelectedLink}, {"HoverNode", &Editor::HoverNode},
        {"HoverLink", &Editor::HoverLink},       {"SelectedAnimatorLink", &Editor::SelectedAnimatorLink},
        {"LastShooter", &Editor::LastShooter}};
    for (const auto& [name, member] : wholes) tell(out, name, a.*member, b.*member);
    tell(out, "Timer1 runs", a.Timer1.enabled, b.Timer1.enabled);
    tell(out, "Timer1 period", a.timerPeriod, b.timerPeriod);
    tell(out, "timerFireWorks runs", a.timerFireWorks.enabled, b.timerFireWorks.enabled);
    tell(out, "title", a.ProjectTitle, b.ProjectTitle);
    tell(out, "strip redrawn", a.phaseStale, b.phaseStale);
    tell(out, "scene redrawn", a.sceneStale, b.sceneStale);
    tell(out, "instructions", a.instructionsShown, b.instructionsShown);
    tell(out, "single step", a.SingleStep, b.SingleStep);
}

// Check marks, pressed buttons and tips go by the names of the rows that stand for them.
void tellFlags(std::string& out, const Editor& a, const Editor& b) {
    for (const MenuRow& row : menuRows())
        if (row.mark != nullptr) tell(out, row.name, a.marks.*row.mark, b.marks.*row.mark);
    const auto buttons = [&](const auto& rows) {
        for (const auto& row : rows)
            if (row.pressed != nullptr)
                tell(out, std::string("button ") + row.key, a.buttons.*row.pressed, b.buttons.*row.pressed);
    };
    buttons(commandRows());
    buttons(propertyRows());
    tell(out, "node buttons", a.nodeControls, b.nodeControls);
    tell(out, "link buttons", a.linkControls, b.linkControls);
    for (const PropertyRow& row : propertyRows())
        if (row.tip != nullptr && a.tips.*row.tip != b.tips.*row.tip)
            out += "  tip " + b.tips.*row.tip + "\n";
    for (std::size_t i = 0; i < 4; ++i)
        if (a.panels[i] != b.panels[i]) out += "  panel " + b.panels[i] + "\n";
}

// What the commands apply to.
enum class Scope { everything, selectedObject, missingObject };

class EveryRow : public testing::Test {
protected:
    std::string text_;
    Scope scope_ = Scope::everything;

    template <class Act>
    void tellRow(const std::string& name, Act act) {
        Editor ed = unlikeModel();
        ed.marks.mnuApplyChanges = scope_ != Scope::everything;
        if (scope_ == Scope::missingObject) ed.SelectedNode = ed.SelectedLink = none;
        showCounts(ed);
        redrawScene(ed);
        ed.phaseStale = ed.sceneStale = false;
        const Editor before = ed;
        ScriptedHost host;
        host.answers = {"60:700"};
        host.colour = 0x123456;
        act(ed, host);
        text_ += name + "\n";
        for (std::size_t from = 0, to = 0; (to = host.transcript.find('\n', from)) != std::string::npos;
             from = to + 1)
            text_ += "  " + host.transcript.substr(from, std::min<std::size_t>(to - from, 120)) + "\n";
        tellAdded(text_, before, ed);
        tellRecords(text_, "Node", nodeColumns, before.Nodes, ed.Nodes);
        tellRecords(text_, "Link", linkColumns, before.Links, ed.Links);
        tellSettings(text_, before, ed);
        tellFlags(text_, before, ed);
        if (host.beeps != 0) text_ += "  beeps " + std::to_string(host.beeps) + "\n";
        if (panel(ed, 5) != before.panels[4]) text_ += "  says " + panel(ed, 5) + "\n";
    }

    void tellAll() {
        for (const MenuRow& row : menuRows())
            if (!row.isMenu() && !row.isSeparator())
                tellRow(
                    std::string(row.name) + (row.shortcut != nullptr ? std::string(" ") + row.shortcut : ""),
                    [&](Editor& ed, Host& host) { chooseMenu(ed, host, row); });
        for (const CommandRow& row : commandRows())
            if (row.isButton())
                tellRow(std::string("command ") + row.key,
                        [&](Editor& ed, Host& host) { pressCommand(ed, host, row); });
        for (const PropertyRow& row : propertyRows()) {
            if (!row.isButton()) continue;
            tellRow(std::string("property ") + row.key,
                    [&](Editor& ed, Host& host) { pressProperty(ed, host, row); });
            if (row.style == ButtonStyle::dropDown)
                tellRow(std::string("preset ") + row.key, [&](Editor& ed, Host& host) {
                    choosePreset(ed, host, row, presetTexts(row).front());
                });
        }
    }
};

TEST_F(EveryRow, ChangesWhatItIsThereFor) {
    for (const auto& [scope, title] :
         {std::pair{Scope::everything, "== the whole model"},
          {Scope::selectedObject, "== the selected object only"},
          {Scope::missingObject, "== the selected object only, where there is none"}}) {
        scope_ = scope;
        text_ += std::string(title) + "\n";
        tellAll();
    }
    putFile("rows.txt", text_);  // for whoever changes a row on purpose
    EXPECT_EQ(text_, contentOf(ZENTRIK_SOURCE_DIR "/tests/rows.txt"));
}

}  // namespace

}  // namespace zentrik
