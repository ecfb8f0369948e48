#include "web/settings.h"

#include "basics/no_doubles.h"
#include "basics/numbers.h"

#include <string_view>
#include <type_traits>

namespace zentrik {

namespace {

constexpr LiveSetting slider(const char* name, float Editor::*place, std::string Tips::*caption, double least,
                             double most, double by) {
    return {name, place, nullptr, caption, least, most, by};
}

constexpr LiveSetting settings[] = {
    slider("gravity", &Editor::Gravity, &Tips::gravity, -5, 5, 0.1),
    slider("friction", &Editor::Friction, &Tips::friction, 0, 1, 0.01),
    slider("viscosity", &Editor::Viscosity, &Tips::viscosity, 0, 0.9, 0.01),
    slider("wind", &Editor::LeftWind, &Tips::wind, -10, 10, 0.1),
    slider("bounce", &Editor::Bounce, &Tips::bounce, 0, 1, 0.01),
    slider("interval", &Editor::TimeInterval, &Tips::interval, 1, 100, 1),
    slider("speed", &Editor::DeltaAngle, &Tips::speed, 0, 35, 0.1),
    {"slow", &Buttons::slow, "Slow"},
    {"same", &Buttons::same, "Drag changes rest lengths"},
    {"ball", &Buttons::ball, "Nodes"},
    {"line", &Buttons::line, "Links"},
    {"activeline", &Buttons::activeline, "Animators"},
    {"numbers", &Buttons::numbers, "Numbers"},
    {"sprite", &Buttons::sprite, "Sprites"},
    {"mnuDisplayTitle", &Marks::mnuDisplayTitle, "Title"},
    {"mnuAllowSprites", &Marks::mnuAllowSprites},
    {"animation", &Buttons::animation},
    {"mnuWalls", &Marks::mnuWalls},
    {"mnuCeiling", &Marks::mnuCeiling},
    {"mnuIgnoreBarriers", &Marks::mnuIgnoreBarriers, "Ignore barriers"},
    {"mnuReverseModel", &Marks::mnuReverseModel},
    {"mnuUseDirectional", &Marks::mnuUseDirectional},
    {"mnuCannonBallFocus", &Marks::mnuCannonBallFocus},
    {"mnuUseRandom", &Marks::mnuUseRandom},
    {"mnuRandom", &Marks::mnuRandom},
    {"sceneWidth", &Editor::sceneWidth},
    {"sceneHeight", &Editor::sceneHeight},
    {"NodeRadius", &Editor::NodeRadius},
    {"HitRadius", &Editor::HitRadius},
    {"LinkColor", &Editor::LinkColor},
    {"NodeColor", &Editor::NodeColor},
    {"BackColor", &Editor::BackColor},
    {"ShooterDirection", &Editor::ShooterDirection},
    {"ShooterVelocity", &Editor::ShooterVelocity},
};
static_assert(!anyShared(settings, [](const LiveSetting& row) { return std::string_view(row.name); }));
static_assert(!anyShared(settings, [](const LiveSetting& row) { return row.place; }));

// The setting itself.
struct Find {
    Editor& ed;
    bool& operator()(bool Marks::*place) const { return ed.marks.*place; }
    bool& operator()(bool Buttons::*place) const { return ed.buttons.*place; }
    auto& operator()(auto Editor::*place) const { return ed.*place; }
};

}  // namespace

std::span<const LiveSetting> liveSettings() { return settings; }

double settingOf(const Editor& ed, const LiveSetting& setting) {
    return std::visit([&](auto place) { return static_cast<double>(Find{const_cast<Editor&>(ed)}(place)); },
                      setting.place);
}

void set(Editor& ed, const LiveSetting& setting, double value) {
    std::visit(
        [&](auto place) {
            auto& slot = Find{ed}(place);
            using Slot = std::remove_reference_t<decltype(slot)>;
            if constexpr (std::is_same_v<Slot, bool>)
                slot = value != 0;
            else if constexpr (std::is_same_v<Slot, float>)
                slot = toReal(value);
            else
                slot = toInt(value);
        },
        setting.place);
}

}  // namespace zentrik
