#pragma once
#include "app/project_list.h"
#include "ui/command_toolbar.h"
#include "ui/property_toolbar.h"

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QAction;
class QComboBox;
class QToolBar;
class QToolButton;

namespace zentrik {

// Both toolbars with the two lists that stand in them, built from their tables. They show the record
// and report what was clicked; they keep nothing.
class Toolbars {
public:
    explicit Toolbars(QWidget& window);

    std::function<void(const CommandRow&)> commandPressed;
    std::function<void(const PropertyRow&)> propertyPressed;
    std::function<void(const PropertyRow&, const std::string& text)> presetChosen;

    QToolBar* const Toolbar1;
    QToolBar* const Toolbar2;
    ProjectList* const lstSaved;
    QComboBox* const lstSprites;

    static constexpr int height = 34;  // of each bar, pixels

    void show(const Editor& ed);
    // Fits the bars into a width in pixels: the buttons get the size at which every one is visible.
    void fit(int width);
    // Draws the icons in the palette's colours.
    void drawIcons();

private:
    struct CommandButton {
        const CommandRow* row;
        QToolButton* button;
    };
    struct PropertyButton {
        const PropertyRow* row;
        QToolButton* button;
        QAction* place;  // its place in the bar, which can be hidden
    };
    std::vector<CommandButton> commands_;
    std::vector<PropertyButton> properties_;
    int buttonWidth_ = 0;

    void buildCommands();
    void buildProperties();
    void addPresets(QToolButton& button, const PropertyRow& row);
    void showLists(const Editor& ed);
};

}  // namespace zentrik
