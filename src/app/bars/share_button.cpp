#include "app/bars/share_button.h"

#include "app/bars/icons.h"
#include "basics/no_doubles.h"
#include "ui/keys.h"

#include <QApplication>
#include <string_view>

namespace zentrik {

namespace {

struct ShareRow {
    Share what;
    const char* name;
    const char* caption;
    const char* tip;
};

constexpr ShareRow rows[] = {
    {Share::copyPicture, "shareCopy", "&Copy Picture", "Copies the scene as a picture"},
    {Share::savePicture, "sharePicture", "&Save Picture...", "Saves the scene as PNG, SVG or PDF"},
    {Share::recordAnimation, "shareFilm", "&Record Animation...",
     "Makes a film of the run that begins here: a GIF, a page for browsers, a video or numbered pictures"},
    {Share::saveLivePage, "shareLive", "Save &Live Page...",
     "Makes a page for browsers in which the creature lives: it can be dragged, slowed down and taken home"},
    {Share::saveTable, "shareTable", "Save &Table...",
     "Writes the run that begins here as a table, a row a step"},
};
static_assert(!anyShared(rows, [](const ShareRow& row) { return std::string_view(row.name); }));

}  // namespace

ShareButton::ShareButton(QWidget* parent) : QToolButton(parent), menu_(this) {
    setObjectName("share");
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setIconSize({16, 16});
    setFixedWidth(26);
    setToolTip("Share pictures, films and tables of the scene");
    setStatusTip(toolTip());
    setAccessibleName("Share");
    menu_.setObjectName("shareMenu");
    for (const ShareRow& row : rows) {
        QAction* action = menu_.addAction(row.caption);
        action->setObjectName(row.name);
        action->setStatusTip(row.tip);
        if (row.what == Share::copyPicture)
            action->setText(QString("%1\t%2").arg(row.caption, keyFor(KeyAct::copyPicture)));
        connect(action, &QAction::triggered, this, [this, what = row.what] { chosen(what); });
    }
    connect(this, &QToolButton::clicked, this,
            [this] { menu_.popup(mapToGlobal(QPoint(width() - menu_.sizeHint().width(), height()))); });
    drawIcon();
}

void ShareButton::drawIcon() { setIcon(themedIcon("share", QApplication::palette())); }

}  // namespace zentrik
