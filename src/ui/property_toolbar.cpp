#include "ui/property_toolbar.h"

#include "basics/no_doubles.h"
#include "basics/numbers.h"
#include "edit/command.h"
#include "host/host.h"
#include "host/questions.h"
#include "model/rate.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/commands/property_commands.h"

#include <algorithm>

namespace zentrik {

namespace {

// A quantity is read and stored only while its owner exists.
bool put(float& quantity, double value) {
    quantity = toReal(value);
    return true;
}
template <auto M>
constexpr Access global{[](Editor& ed, double value) { return put(ed.*M, value); },
                        [](const Editor& ed) { return realText(ed.*M); }};
template <float Node::*M>
constexpr Access ofNode{[](Editor& ed, double value) { return put(nodeAt(ed, ed.SelectedNode).*M, value); },
                        [](const Editor& ed) { return realText(nodeAt(ed, ed.SelectedNode).*M); }};
template <float Link::*M>
constexpr Access ofLink{[](Editor& ed, double value) { return put(linkAt(ed, ed.SelectedLink).*M, value); },
                        [](const Editor& ed) { return realText(linkAt(ed, ed.SelectedLink).*M); }};
constexpr Access timerPeriod{[](Editor& ed, double value) { return setRate(ed, toInt(value)); },
                             [](const Editor& ed) { return std::to_string(ed.timerPeriod); },
                             "The rate takes 1 to 65535 milliseconds!"};
static_assert(shortestPeriod == 1 && longestPeriod == 65535, "as the refusal says");

constexpr ButtonStyle drop = ButtonStyle::dropDown, check = ButtonStyle::check;
constexpr PropertyRow line{.style = ButtonStyle::separator}, room{.style = ButtonStyle::room};

constexpr const char* tenths = "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0";
constexpr const char* milliseconds = "1 2 5 10 15 20 30 40 50 100 500";
constexpr const char* velocities = "-100 -75 -50 -25 -10 -5 -2 -1 0 1 2 5 10 25 50 75 100";

// clang-format off
constexpr PropertyRow rows[] = {
    line,
    {.key = "gravity", .icon = "g", .style = drop, .tip = &Tips::gravity, .access = &global<&Editor::Gravity>,
     .presets = "-5 -4 -3 -2 -1 -0.5 -0.1 0 0.1 0.5 1 2 3 4 5",
     .label = "Gravity: ", .prompt = "Enter custom value for gravity:", .confirmation = "Gravity changed to ",
     .startLabel = "Gravity: "},
    {.key = "friction", .icon = "f", .style = drop, .tip = &Tips::friction, .access = &global<&Editor::Friction>,
     .presets = tenths,
     .label = "Surface Friction: ", .prompt = "Enter custom value for surface friction:", .confirmation = "Surface friction changed to ",
     .startLabel = "Friction: "},
    {.key = "viscosity", .icon = "v", .style = drop, .tip = &Tips::viscosity, .access = &global<&Editor::Viscosity>,
     .presets = "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9",
     .label = "Viscosity: ", .prompt = "Enter custom value for viscosity:", .confirmation = "Viscosity changed to ",
     .startLabel = "Viscosity: "},
    {.key = "wind", .icon = "w", .style = drop, .tip = &Tips::wind, .access = &global<&Editor::LeftWind>,
     .presets = "-10 -5 -2 -1 0 1 2 5 10",
     .label = "Wind: ", .prompt = "Enter custom value for wind:",
     .startLabel = "Wind: "},
    {.key = "bounce", .icon = "b", .style = drop, .tip = &Tips::bounce, .access = &global<&Editor::Bounce>,
     .presets = tenths,
     .label = "Bounce: ", .prompt = "Enter custom value for bounce:", .confirmation = "Bounce changed to ",
     .startLabel = "Bounce: "},
    {.key = "interval", .icon = "t", .style = drop, .tip = &Tips::interval, .access = &global<&Editor::TimeInterval>,
     .presets = milliseconds,
     .label = "Time Interval: ", .prompt = "Enter custom value for time interval:", .confirmation = "Time Interval changed to ",
     .startLabel = "Interval: "},
    {.key = "rate", .icon = "r", .style = drop, .tip = &Tips::rate, .access = &timerPeriod,
     .presets = milliseconds,
     .label = "Rate: ", .prompt = "Enter custom value for rate:", .confirmation = "Rate changed to ",
     .startLabel = "Rate: "},
    {.key = "speed", .icon = "c", .style = drop, .tip = &Tips::speed, .access = &global<&Editor::DeltaAngle>,
     .presets = "1 2 3 4 5 6 7 8 9 10 15 20 25 30 35",
     .label = "Animator Speed: ", .prompt = "Enter custom value for animator speed:", .confirmation = "Animator Speed changed to ",
     .startLabel = "Animation: "},
    line, line,
    room, room, room, room, room,
    {.key = "locked", .icon = "lock", .style = check, .owner = Owner::node, .fixedTip = "Lock Selected Node",
     .pressed = &Buttons::locked, .command = lockedClicked},
    {.key = "shooter", .icon = "shoot", .style = check, .owner = Owner::node, .fixedTip = "Shooter",
     .pressed = &Buttons::shooter, .command = shooterClicked},
    {.key = "color", .icon = "color", .owner = Owner::node, .fixedTip = "Node Color",
     .command = colorClicked},
    {.key = "mass", .icon = "m", .style = drop, .owner = Owner::node, .tip = &Tips::mass, .access = &ofNode<&Node::Mass>,
     .presets = "0.1 0.5 1 2 5 10 25 50 100 ''",
     .label = "Mass: ", .prompt = "Enter custom value for mass:", .confirmation = "Mass changed to "},
    {.key = "gforce", .icon = "g", .style = drop, .owner = Owner::node, .tip = &Tips::gforce, .access = &ofNode<&Node::Gravity>,
     .presets = "-100 -75 -50 -25 -20 -15 -10 -5 -2 -1 0 1 2 5 10 15 20 25 50 75 100",
     .label = "Gravitational Force: ", .prompt = "Enter custom value for gravitational force:", .confirmation = "Gravitational Force changed to "},
    {.key = "rotate", .icon = "r", .style = drop, .owner = Owner::node, .tip = &Tips::rotate, .access = &ofNode<&Node::Rotate>,
     .presets = "-5 -4 -3 -2 -1 -0.5 -0.2 -0.1 0 0.1 0.2 0.5 1 2 3 4 5",
     .label = "Rotational Force: ", .prompt = "Enter custom value for rotational force:", .confirmation = "Rotational Force changed to "},
    {.key = "direction", .icon = "direction", .style = drop, .owner = Owner::node, .pair = Pair::directional,
     .tip = &Tips::direction, .access = &ofNode<&Node::Vxo>,
     .presets = "0 30 45 60 90 120 135 150 180 210 225 240 270 300 315 330 360",
     .label = "Initial Direction: ", .presetTip = &Tips::vxo},
    {.key = "velocity", .icon = "magnitude", .style = drop, .owner = Owner::node, .pair = Pair::directional,
     .tip = &Tips::velocity, .access = &ofNode<&Node::Vyo>, .presets = velocities,
     .label = "Initial Velocity: ", .presetTip = &Tips::vyo},
    {.key = "vxo", .icon = "vxo", .style = drop, .owner = Owner::node, .pair = Pair::components, .tip = &Tips::vxo, .access = &ofNode<&Node::Vxo>,
     .presets = velocities,
     .label = "Initial X-Velocity: ", .prompt = "Enter custom value for initial X-velocity:", .confirmation = "Node Initial X-Velocity changed to "},
    {.key = "vyo", .icon = "vyo", .style = drop, .owner = Owner::node, .pair = Pair::components, .tip = &Tips::vyo, .access = &ofNode<&Node::Vyo>,
     .presets = "-100 -50 -25 -10 -5 -2 -1 0 1 2 5 10 25 50 100",
     .label = "Initial Y-Velocity: ", .prompt = "Enter custom value for initial Y-velocity:", .confirmation = "Node Initial Y-Velocity changed to "},
    line, line,
    {.key = "animator", .icon = "start", .style = check, .owner = Owner::link, .fixedTip = "Animation Enabled",
     .pressed = &Buttons::animator, .command = animatorClicked},
    {.key = "k", .icon = "k", .style = drop, .owner = Owner::link, .tip = &Tips::k, .access = &ofLink<&Link::k>,
     .presets = "0 1 2 3 4 5 10 20 25 50 100 500",
     .label = "Spring Constant: ", .prompt = "Enter custom value for spring constant:", .confirmation = "Spring Constant (k) changed to ",
     .presetLabel = "k: "},
    {.key = "angle", .icon = "a", .style = drop, .owner = Owner::link, .tip = &Tips::angle, .access = &ofLink<&Link::Angle>,
     .presets = "0 45 90 135 180 225 270 315 360",
     .label = "Animation Phase Angle: ", .prompt = "Enter custom value for angle:", .confirmation = "Animation Phase Angle changed to ",
     .presetLabel = "Angle: ",
     .redrawStrip = true},
    {.key = "force", .icon = "f", .style = drop, .owner = Owner::link, .tip = &Tips::force, .access = &ofLink<&Link::Force>,
     .presets = "0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9",
     .label = "Animator Force: ", .prompt = "Enter custom value for animator force:", .confirmation = "Animator Force changed to ",
     .presetLabel = "Force: "},
    {.key = "barrier", .icon = "flagred", .style = check, .owner = Owner::link, .fixedTip = "Use as Barrier",
     .pressed = &Buttons::barrier, .command = linkBarrierClicked},
};
// clang-format on
static_assert(!anyShared(rows, [](const PropertyRow& row) { return std::string_view(row.key); }) &&
                  !anyShared(rows, [](const PropertyRow& row) { return row.pressed; }),
              "two buttons share a key or a state");
static_assert(std::all_of(std::begin(rows), std::end(rows),
                          [](const PropertyRow& row) {
                              return !row.isButton() || row.label[0] != '\0' || row.fixedTip[0] != '\0';
                          }),
              "a button has no name that undo could show");

bool ownerExists(const Editor& ed, const PropertyRow& row) {
    if (row.owner == Owner::node) return nodeExists(ed, ed.SelectedNode);
    if (row.owner == Owner::link) return linkExists(ed, ed.SelectedLink);
    return true;
}

void askForValue(Editor& ed, Host& host, const PropertyRow& row) {
    const auto answer = askNumber(host, row.prompt, "Custom Value", row.access->text(ed));
    if (!answer) return;
    if (!row.access->store(ed, *answer)) return refuse(ed, host, row.access->refusal);
    const std::string value = row.access->text(ed);
    ed.tips.*row.tip = row.label + value;
    if (row.redrawStrip) redrawPhaseManager(ed, ed.AnimationTime);
    if (row.confirmation[0] != '\0') panel(ed, 5) = row.confirmation + value;
}

}  // namespace

std::span<const PropertyRow> propertyRows() { return rows; }

std::vector<std::string> presetTexts(const PropertyRow& row) {
    std::vector<std::string> texts;
    std::string_view rest = row.presets;
    while (!rest.empty()) {
        const std::size_t end = rest.find(' ');
        const std::string_view text = rest.substr(0, end);
        texts.emplace_back(text == "''" ? "" : text);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return texts;
}

void choosePreset(Editor& ed, Host&, const PropertyRow& row, const std::string& text) {
    if (!ownerExists(ed, row)) return;
    row.access->store(ed, leadingNumber(text));
    const auto tip = row.presetTip != nullptr ? row.presetTip : row.tip;
    ed.tips.*tip = (row.presetLabel != nullptr ? row.presetLabel : row.label) + row.access->text(ed);
    if (row.redrawStrip) redrawPhaseManager(ed, ed.AnimationTime);
    if (!ed.buttons.start) redrawScene(ed);
}

void pressProperty(Editor& ed, Host& host, const PropertyRow& row) {
    if (!ownerExists(ed, row)) return;
    if (row.style == ButtonStyle::dropDown) {
        if (row.prompt != nullptr) askForValue(ed, host, row);
        return;
    }
    if (row.pressed != nullptr) ed.buttons.*row.pressed = !(ed.buttons.*row.pressed);
    row.command(ed, host);
}

void showGlobalValues(Editor& ed) {
    for (const PropertyRow& row : rows)
        if (row.startLabel != nullptr) ed.tips.*row.tip = row.startLabel + row.access->text(ed);
}

void renewGlobalValues(Editor& ed) {
    for (const PropertyRow& row : rows) {
        if (row.startLabel == nullptr) continue;
        const std::string value = row.access->text(ed);
        std::string& tip = ed.tips.*row.tip;
        if (tip != row.label + value && tip != row.startLabel + value) tip = row.label + value;
    }
}

}  // namespace zentrik
