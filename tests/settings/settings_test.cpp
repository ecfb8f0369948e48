#include "settings/settings.h"

#include "ui/command_toolbar.h"
#include "ui/menus.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace zentrik {

namespace {

class MemoryStore : public SettingsStore {
public:
    std::map<std::string, std::string> texts;
    std::vector<std::string> order;  // of writing

    std::optional<std::string> read(const std::string& key) override {
        const auto found = texts.find(key);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }
    void write(const std::string& key, const std::string& text) override {
        texts[key] = text;
        order.push_back(key);
    }
};

TEST(Settings, RoundTripInOrderAndForm) {
    MemoryStore store;
    Editor ed;
    ed.marks.mnuWalls = false;
    ed.marks.mnuDisplayFireWorks = true;
    ed.buttons.grid = true;
    ed.NodeRadius = 100;
    ed.Gravity = -0.5F;
    ed.ShooterVelocity = 1e7F;
    ed.StructureParm = "8:500";
    ed.timerPeriod = 35;
    ed.BackColor = 255;
    saveSettings(ed, Placement{1, 2, 15000, 6000}, store);
    ASSERT_EQ(store.order.size(), settingRows().size() + 1);
    EXPECT_EQ(store.order.front(), "MainLeft");
    EXPECT_EQ(store.order.back(), "Maximized");
    const std::pair<const char*, const char*> written[] = {
        {"Walls", "False"}, {"Fireworks", "True"},      {"DisplayGrid", "1"},
        {"Sprite", "0"},    {"Gravity", "-0.5"},        {"ShooterVelocity", "1E+07"},
        {"Speed", "35"},    {"StructureParm", "8:500"}, {"MainWidth", "15000"}};
    for (const auto& [key, text] : written) EXPECT_EQ(store.texts[key], text) << key;

    Editor again;
    Placement placement;
    getSettings(again, placement, store);
    EXPECT_EQ(placement.width, 15000);
    EXPECT_FALSE(again.marks.mnuWalls);
    EXPECT_TRUE(again.timerFireWorks.enabled) << "the fireworks' timer follows their mark";
    EXPECT_EQ(again.HitRadius, 130);
    EXPECT_EQ(again.ShooterVelocity, 1e7F);
    EXPECT_EQ(again.timerPeriod, 35);
    EXPECT_EQ(again.StructureParm, "8:500");

    MemoryStore second = store;
    saveSettings(ed, std::nullopt, second);
    EXPECT_EQ(second.texts["MainWidth"], "15000") << "kept from an earlier run";
    EXPECT_EQ(second.order.size(), 2 * store.order.size() - 4);
}

TEST(Settings, KeepEveryMarkAndPressedButton) {
    MemoryStore store;
    Editor ed, again;
    Placement placement;
    for (const MenuRow& row : menuRows())
        if (row.mark != nullptr) ed.marks.*row.mark = !(ed.marks.*row.mark);
    const auto kept = [](const CommandRow& row) {
        return row.pressed && row.pressed != &Buttons::start && row.pressed != &Buttons::activeline;
    };
    for (const CommandRow& row : commandRows())
        if (kept(row)) ed.buttons.*row.pressed = !(ed.buttons.*row.pressed);
    saveSettings(ed, {}, store);
    getSettings(again, placement, store);
    for (const MenuRow& row : menuRows()) {
        if (row.mark == nullptr || row.mark == &Marks::mnuDisplayPath) continue;  // the path begins anew
        EXPECT_EQ(again.marks.*row.mark, ed.marks.*row.mark) << row.name;
    }
    for (const CommandRow& row : commandRows())
        if (kept(row)) {
            EXPECT_EQ(again.buttons.*row.pressed, ed.buttons.*row.pressed) << row.key;
        }
}

TEST(Settings, WhatIsMissingOrDoesNotConvertGivesTheDefault) {
    MemoryStore spoilt;
    spoilt.texts = {{"Walls", "perhaps"}, {"Gravity", "inf"},   {"NodeRadius", "-100"},
                    {"Speed", "0"},       {"GridSize", "0"},    {"Line", "on"},
                    {"BackColor", ""},    {"MainLeft", "1e99"}, {"DeltaAngle", "2x"}};
    const auto reread = [](MemoryStore store) {
        Editor ed;
        Placement placement{0, 0, 0, 0};
        getSettings(ed, placement, store);
        saveSettings(ed, placement, store);
        return store.texts;
    };
    auto texts = reread(MemoryStore{});
    EXPECT_EQ(reread(spoilt), texts);
    const std::pair<const char*, const char*> defaults[] = {{"MainLeft", "1200"},
                                                            {"MainWidth", "13500"},
                                                            {"Walls", "True"},
                                                            {"UseDirectional", "True"},
                                                            {"AutoResume", "True"},
                                                            {"DisplayTitle", "False"},
                                                            {"Line", "1"},
                                                            {"DisplayGrid", "0"},
                                                            {"Gravity", "1"},
                                                            {"Friction", "0.2"},
                                                            {"DeltaAngle", "0.1"},
                                                            {"NodeRadius", "60"},
                                                            {"Speed", "20"},
                                                            {"GridSize", "250"},
                                                            {"BackColor", "16777215"}};
    for (const auto& [key, text] : defaults) EXPECT_EQ(texts[key], text) << key;
}

}  // namespace

}  // namespace zentrik
