#include "app/views/spoken.h"

#include "basics/numbers.h"
#include "model/store.h"

#include <QWidget>

namespace zentrik {

namespace {

std::string selectionText(const Editor& ed) {
    std::string text;
    if (nodeExists(ed, ed.SelectedNode)) text = "Selected node: " + std::to_string(ed.SelectedNode) + ". ";
    if (linkExists(ed, ed.SelectedLink))
        text += "Selected link: " + std::to_string(ed.SelectedLink) +
                (linkAt(ed, ed.SelectedLink).Animator ? ", an animator. " : ". ");
    return text.empty() ? "Nothing is selected. " : text;
}

std::string phaseText(const Editor& ed) {
    if (!linkExists(ed, ed.SelectedLink) || !linkAt(ed, ed.SelectedLink).Animator)
        return "No disc is selected.";
    return "Link " + std::to_string(ed.SelectedLink) + " at " + realText(linkAt(ed, ed.SelectedLink).Angle) +
           " degrees.";
}

void describe(QWidget& area, const std::string& text) {
    const QString said = QString::fromStdString(text);
    if (area.accessibleDescription() != said) area.setAccessibleDescription(said);
}

}  // namespace

void describeSelection(QWidget& scene, QWidget& strip, const Editor& ed) {
    describe(scene, selectionText(ed));
    describe(strip, phaseText(ed));
}

}  // namespace zentrik
