#pragma once
// The columns of a project file. Each table serves the reader, the writer and the comment line above
// the records. A column's form is that of the member it stands for: a truth value, a whole number, a
// real or a text.

#include "basics/no_doubles.h"
#include "model/contents.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace zentrik {

inline constexpr std::string_view magicWord = "Zentrik";  // every project file begins with it
inline constexpr std::string_view fieldSeparator = " : ";
inline constexpr std::string_view lineEnd = "\r\n";

template <class Record>
using Member = std::variant<bool Record::*, std::int32_t Record::*, float Record::*, std::string Record::*>;

template <class Record>
struct Column {
    std::string_view name;
    Member<Record> member;
    std::string_view afterName = fieldSeparator;  // in the comment line
    bool newer = false;  // older files end before it: what the record has by itself stands for it
};

// What is wrong with a field, in the order of the variant above.
inline constexpr std::string_view formProblems[] = {"neither True nor False", "not a whole number",
                                                    "not a number", "not a text"};

// What the global line holds: the settings, and the size of the scene that they were made for.
struct GlobalSettings : ProjectSettings {
    float sceneWidth = 0, sceneHeight = 0;  // twips
};

// The first field of every line, its slot number or "Global Settings", has no column.
inline constexpr Column<GlobalSettings> globalColumns[] = {
    {"Gravity", &GlobalSettings::Gravity},
    {"Friction", &GlobalSettings::Friction},
    {"Viscosity", &GlobalSettings::Viscosity},
    {"LeftWind", &GlobalSettings::LeftWind},
    {"Bounce", &GlobalSettings::Bounce},
    {"TimeInterval", &GlobalSettings::TimeInterval},
    {"timer period", &GlobalSettings::timerPeriod},
    {"DeltaAngle", &GlobalSettings::DeltaAngle},
    {"scene width", &GlobalSettings::sceneWidth},
    {"scene height", &GlobalSettings::sceneHeight},
    {"AnimationTime", &GlobalSettings::AnimationTime},
};
inline constexpr std::string_view globalComment =
    ";                  g     f     v     w    B     t    r     c";

inline constexpr Column<Link> linkColumns[] = {
    {"Used", &Link::Used},
    {"N1", &Link::N1},
    {"N2", &Link::N2},
    {"RestLength", &Link::RestLength},
    {"CurrentLength", &Link::CurrentLength},
    {"k", &Link::k},
    {"Animator", &Link::Animator},
    {"Angle", &Link::Angle},
    {"Force", &Link::Force},
    {"Barrier", &Link::Barrier},
    {"Res1", &Link::DiscX},
    {"Res2", &Link::Res2},
    {"Res3", &Link::Marked},
    {"Res4", &Link::DiscY},
    {"Res5", &Link::Res5},
    {"Res6", &Link::Res6, ""},
};
inline constexpr std::string_view linkCommentStart = "; i : ";

inline constexpr Column<Node> nodeColumns[] = {
    {"Used", &Node::Used},
    {"X", &Node::X},
    {"Y", &Node::Y},
    {"Vx", &Node::Vx},
    {"Vy", &Node::Vy},
    {"Fx", &Node::Fx},
    {"Fy", &Node::Fy},
    {"Mass", &Node::Mass, ": "},
    {"Locked", &Node::Locked},
    {"JustReleased", &Node::JustReleased},
    {"BeingDragged", &Node::BeingDragged},
    {"Gravity", &Node::Gravity},
    {"Vxo", &Node::Vxo},
    {"Vyo", &Node::Vyo},
    {"Rotate", &Node::Rotate},
    {"Sprite", &Node::Sprite},
    {"color", &Node::color},
    {"Res1", &Node::Trigger},
    {"Res2", &Node::Res2},
    {"Res3", &Node::Marked},
    {"Res4", &Node::Res4},
    {"Res5", &Node::Res5},
    {"Res6", &Node::Res6},
    {"Res7", &Node::Res7},
    {"Res8", &Node::Res8, ""},
};
inline constexpr std::string_view nodeCommentStart = "; i ; ";

template <class Record, std::size_t count>
constexpr bool newerAreLast(const Column<Record> (&columns)[count]) {
    for (std::size_t i = 1; i < count; ++i)
        if (columns[i - 1].newer && !columns[i].newer) return false;
    return true;
}
static_assert(newerAreLast(globalColumns) && newerAreLast(linkColumns) && newerAreLast(nodeColumns));

constexpr auto columnName = [](const auto& column) { return std::string_view(column.name); };
static_assert(!anyShared(globalColumns, columnName) && !anyShared(linkColumns, columnName) &&
              !anyShared(nodeColumns, columnName));
constexpr auto columnMember = [](const auto& column) { return column.member; };
static_assert(!anyShared(globalColumns, columnMember) && !anyShared(linkColumns, columnMember) &&
              !anyShared(nodeColumns, columnMember));

}  // namespace zentrik
