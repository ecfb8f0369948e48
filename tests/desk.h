#pragma once
// An editor with the menus and both toolbars, worked through their tables' rows.

#include "rig.h"
#include "scenes/scenes.h"
#include "ui/command_toolbar.h"
#include "ui/menus.h"
#include "ui/property_toolbar.h"

#include <stdexcept>
#include <string_view>

namespace zentrik {

template <class Rows, class Row>
const Row& rowNamed(const Rows& rows, const char* Row::*name, std::string_view wanted) {
    for (const Row& row : rows)
        if (row.*name == wanted) return row;
    throw std::runtime_error("no row " + std::string(wanted));
}

inline void choose(Editor& ed, Host& host, std::string_view name) {
    chooseMenu(ed, host, rowNamed(menuRows(), &MenuRow::name, name));
}

struct Desk {
    Editor ed = scenes::fullScreen();
    ScriptedHost host;

    void choose(std::string_view name) { zentrik::choose(ed, host, name); }
    void press(std::string_view key) {
        pressCommand(ed, host, rowNamed(commandRows(), &CommandRow::key, key));
    }
    static const PropertyRow& property(std::string_view key) {
        return rowNamed(propertyRows(), &PropertyRow::key, key);
    }
    void pressProperty(std::string_view key) { zentrik::pressProperty(ed, host, property(key)); }
    void preset(std::string_view key, const std::string& text) {
        choosePreset(ed, host, property(key), text);
    }
    void answer(const std::string& text) { host.answers.push_back(text); }
};

// Two linked nodes and a lone one.
inline Desk withPair() {
    Desk desk;
    scenes::addNodes(desk.ed, {{1000, 1000}, {2000, 1000}, {5000, 5000}});
    scenes::addLink(desk.ed, 1, 2);
    return desk;
}

}  // namespace zentrik
