#include "ui/property_toolbar.h"

#include "model/host.h"
#include "model/numbers.h"
#include "model/questions.h"
#include "model/rate.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/property_commands.h"

namespace zentrik {

namespace {

// A quantity is read and stored only while its owner exists.
template <float Editor::*M>
constexpr Access global{[](Editor& ed, double value) { ed.*M = toReal(value); },
                        [](const Editor& ed) { return realText(ed.*M); }};
template <float Node::*M>
constexpr Access ofNode{[](Editor& ed, double value) { nodeAt(ed, ed.SelectedNode).*M = toReal(value); },
                        [](const Editor& ed) { return realText(nodeAt(ed, ed.SelectedNode).*M); }};
template <float Link::*M>
constexpr Access ofLink{[](Editor& ed, double value) { linkAt(ed, ed.SelectedLink).*M = toReal(value); },
                        [](const Editor& ed) { return realText(linkAt(ed, ed.SelectedLink).*M); }};
constexpr Access timerPeriod{[](Editor& ed, double value) { setRate(ed, toInt(value)); },
                             [](const Editor& ed) { return std::to_string(ed.Timer1.interval); }};

// The rows' parts that most buttons of a kind share.
constexpr PropertyRow plain(ButtonStyle style) {
    return {"", "",      style,   Owner::global, Pair::always, nullptr, "",    nullptr, "",
            "", nullptr, nullptr, nullptr,       "",           "",      false, nullptr, nullptr};
}
constexpr PropertyRow line = plain(ButtonStyle::separator);
constexpr PropertyRow room = plain(ButtonStyle::room);

struct Words {
    const char* label;
    const char* prompt;
    const char* confirmation;
};

constexpr PropertyRow dropDown(const char* key, const char* icon, Owner owner, std::string Tips::*tip,
                               const Access& access, std::string_view presets, Words words) {
    PropertyRow row = plain(ButtonStyle::dropDown);
    row.key = key;
    row.icon = icon;
    row.owner = owner;
    row.tip = row.presetTip = tip;
    row.access = &access;
    row.presets = presets;
    row.presetLabel = row.label = words.label;
    row.prompt = words.prompt;
    row.confirmation = words.confirmation;
    return row;
}
constexpr PropertyRow forAll(const char* key, const char* icon, std::string Tips::*tip, const Access& access,
                             std::string_view presets, const char* startLabel, Words words) {
    PropertyRow row = dropDown(key, icon, Owner::global, tip, access, presets, words);
    row.startLabel = startLabel;
    return row;
}
constexpr PropertyRow forNode(const char* key, const char* icon, std::string Tips::*tip, const Access& access,
                              std::string_view presets, Words words) {
    return dropDown(key, icon, Owner::node, tip, access, presets, words);
}
constexpr PropertyRow inPair(Pair pair, PropertyRow row) {
    row.pair = pair;
    return row;
}
// Set by its presets alone; the chosen value shows on another button's tip.
constexpr PropertyRow presetsOnly(const char* key, const char* icon, std::string Tips::*tip,
                                  std::string Tips::*presetTip, const Access& access,
                                  std::string_view presets, const char* label) {
    PropertyRow row = dropDown(key, icon, Owner::node, tip, access, presets, {label, nullptr, ""});
    row.pair = Pair::directional;
    row.presetTip = presetTip;
    return row;
}
constexpr PropertyRow forLink(const char* key, const char* icon, std::string Tips::*tip, const Access& access,
                              std::string_view presets, const char* presetLabel, Words words) {
    PropertyRow row = dropDown(key, icon, Owner::link, tip, access, presets, words);
    row.presetLabel = presetLabel;
    return row;
}
constexpr PropertyRow onStrip(PropertyRow row) {
    row.redrawStrip = true;
    return row;
}
constexpr PropertyRow button(const char* key, const char* tip, const char* icon, Owner owner,
                             bool Buttons::*pressed, Command command) {
    PropertyRow row = plain(pressed != nullptr ? ButtonStyle::check : ButtonStyle::button);
    row.key = key;
    row.icon = icon;
    row.owner = owner;
    row.fixedTip = tip;
    row.pressed = pressed;
    row.command = command;
    return row;
}

constexpr const char* tenths = "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1.0";
constexpr const char* milliseconds = "1 2 5 10 15 20 30 40 50 100 500";
constexpr const char* velocities = "-100 -75 -50 -25 -10 -5 -2 -1 0 1 2 5 10 25 50 75 100";

// clang-format off
constexpr PropertyRow rows[] = {
    line,
    forAll("gravity", "g", &Tips::gravity, global<&Editor::Gravity>, "-5 -4 -3 -2 -1 -0.5 -0.1 0 0.1 0.5 1 2 3 4 5",
           "Gravity: ", {"Gravity: ", "Enter custom value for gravity:", "Gravity changed to "}),
    forAll("friction", "f", &Tips::friction, global<&Editor::Friction>, tenths,
           "Friction: ", {"Surface Friction: ", "Enter custom value for surface friction:", "Surface friction changed to "}),
    forAll("viscosity", "v", &Tips::viscosity, global<&Editor::Viscosity>, "0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9",
           "Viscosity: ", {"Viscosity: ", "Enter custom value for viscosity:", "Viscosity changed to "}),
    forAll("wind", "w", &Tips::wind, global<&Editor::LeftWind>, "-10 -5 -2 -1 0 1 2 5 10",
           "Wind: ", {"Wind: ", "Enter custom value for wind:", ""}),
    forAll("bounce", "b", &Tips::bounce, global<&Editor::Bounce>, tenths,
           "Bounce: ", {"Bounce: ", "Enter custom value for bounce:", "Bounce changed to "}),
    forAll("interval", "t", &Tips::interval, global<&Editor::TimeInterval>, milliseconds,
           "Interval: ", {"Time Interval: ", "Enter custom value for time interval:", "Time Interval changed to "}),
    forAll("rate", "r", &Tips::rate, timerPeriod, milliseconds,
           "Rate: ", {"Rate: ", "Enter custom value for rate:", "Rate changed to "}),
    forAll("speed", "c", &Tips::speed, global<&Editor::DeltaAngle>, "1 2 3 4 5 6 7 8 9 10 15 20 25 30 35",
           "Animation: ", {"Animator Speed: ", "Enter custom value for animator speed:", "Animator Speed changed to "}),
    line, line,
    room, room, room, room, room,
    button("locked", "Lock Selected Node", "lock", Owner::node, &Buttons::locked, lockedClicked),
    button("shooter", "Shooter", "shoot", Owner::node, &Buttons::shooter, shooterClicked),
    button("color", "Node Color", "color", Owner::node, nullptr, colorClicked),
    forNode("mass", "m", &Tips::mass, ofNode<&Node::Mass>, "0.1 0.5 1 2 5 10 25 50 100 ''",
            {"Mass: ", "Enter custom value for mass:", "Mass changed to "}),
    forNode("gforce", "g", &Tips::gforce, ofNode<&Node::Gravity>,
            "-100 -75 -50 -25 -20 -15 -10 -5 -2 -1 0 1 2 5 10 15 20 25 50 75 100",
            {"Gravitational Force: ", "Enter custom value for gravitational force:", "Gravitational Force changed to "}),
    forNode("rotate", "r", &Tips::rotate, ofNode<&Node::Rotate>,
            "-5 -4 -3 -2 -1 -0.5 -0.2 -0.1 0 0.1 0.2 0.5 1 2 3 4 5",
            {"Rotational Force: ", "Enter custom value for rotational force:", "Rotational Force changed to "}),
    presetsOnly("direction", "direction", &Tips::direction, &Tips::vxo, ofNode<&Node::Vxo>,
                "0 30 45 60 90 120 135 150 180 210 225 240 270 300 315 330 360", "Initial Direction: "),
    presetsOnly("velocity", "magnitude", &Tips::velocity, &Tips::vyo, ofNode<&Node::Vyo>, velocities,
                "Initial Velocity: "),
    inPair(Pair::components, forNode("vxo", "vxo", &Tips::vxo, ofNode<&Node::Vxo>, velocities,
            {"Initial X-Velocity: ", "Enter custom value for initial X-velocity:", "Node Initial X-Velocity changed to "})),
    inPair(Pair::components, forNode("vyo", "vyo", &Tips::vyo, ofNode<&Node::Vyo>,
            "-100 -50 -25 -10 -5 -2 -1 0 1 2 5 10 25 50 100",
            {"Initial Y-Velocity: ", "Enter custom value for initial Y-velocity:", "Node Initial Y-Velocity changed to "})),
    line, line,
    button("animator", "Animation Enabled", "start", Owner::link, &Buttons::animator, animatorClicked),
    forLink("k", "k", &Tips::k, ofLink<&Link::k>, "0 1 2 3 4 5 10 20 25 50 100 500", "k: ",
            {"Spring Constant: ", "Enter custom value for spring constant:", "Spring Constant (k) changed to "}),
    onStrip(forLink("angle", "a", &Tips::angle, ofLink<&Link::Angle>, "0 45 90 135 180 225 270 315 360", "Angle: ",
            {"Animation Phase Angle: ", "Enter custom value for angle:", "Animation Phase Angle changed to "})),
    forLink("force", "f", &Tips::force, ofLink<&Link::Force>, "0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9", "Force: ",
            {"Animator Force: ", "Enter custom value for animator force:", "Animator Force changed to "}),
    button("barrier", "Use as Barrier", "flagred", Owner::link, &Buttons::barrier, linkBarrierClicked),
};
// clang-format on

bool ownerExists(const Editor& ed, const PropertyRow& row) {
    if (row.owner == Owner::node) return nodeExists(ed, ed.SelectedNode);
    if (row.owner == Owner::link) return linkExists(ed, ed.SelectedLink);
    return true;
}

void askForValue(Editor& ed, Host& host, const PropertyRow& row) {
    const auto answer = askNumber(host, row.prompt, "Custom Value", row.access->text(ed));
    if (!answer) return;
    row.access->store(ed, *answer);
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
    ed.tips.*row.presetTip = row.presetLabel + row.access->text(ed);
    if (row.redrawStrip) redrawPhaseManager(ed, ed.AnimationTime);
    if (!ed.buttons.start) DisplayScene(ed, -1, -1);
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

}  // namespace zentrik
