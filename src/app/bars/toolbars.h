#pragma once
#include "app/bars/project_list.h"
#include "ui/command_toolbar.h"
#include "ui/property_toolbar.h"

#include <QWidget>
#include <array>
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
    // Fits the bars into a width in pixels: the commands get the size at which every one is visible. The
    // property toolbar's groups begin where the scene's one-line read-out prints their values.
    void fit(int width);
    // Draws everything in the desktop's present colours.
    void followPalette();

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
    // What stands before the first global value, the first node value and the first link value.
    std::array<QWidget*, 3> fillers_{};

    void drawIcons();
    void buildCommands();
    void buildProperties();
    void alignProperties();
    void addPresets(QToolButton& button, const PropertyRow& row);
    void showLists(const Editor& ed);
};

}  // namespace zentrik
