// What reaches the window from outside: files of the command line, of a second start, and drops.

#include "app/window/drop_target.h"
#include "app/window/frm_main.h"
#include "basics/units.h"
#include "edit/hit.h"
#include "library/open_file.h"
#include "model/redraw.h"
#include "model/store.h"
#include "ui/commands/sprite_commands.h"

#include <QImageReader>
#include <QLineEdit>
#include <QSvgRenderer>
#include <QTimer>
#include <QUrl>

namespace zentrik {

namespace {

constexpr int retry = 100;  // milliseconds, while a box is open

// Whether or not the picture formats that are installed know SVG.
bool isPicture(const QString& path) {
    const bool drawing = path.endsWith(".svg", Qt::CaseInsensitive);
    return drawing ? QSvgRenderer(path).isValid() : QImageReader(path).canRead();
}

}  // namespace

void frmMain::open(const QStringList& files) {
    if (host_.isAsking()) return QTimer::singleShot(retry, this, [this, files] { open(files); });
    for (const QString& file : files)
        perform("Project opened", [&](Editor& ed, Host& host) { openFile(ed, host, file.toStdString()); });
}

void frmMain::comeForward() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void frmMain::connectDrops() {
    bars_.lstSaved->setAcceptDrops(false);
    bars_.lstSaved->lineEdit()->setAcceptDrops(false);  // a file's address is no project's name
    auto* target = new DropTarget(*this);
    target->dropped = [this](const QList<QUrl>& urls, QPoint at) {
        if (urls.isEmpty()) return refuseDrop("What was dropped is no file.");
        for (const QUrl& url : urls) takeDrop(url, at);
    };
}

void frmMain::refuseDrop(const std::string& why) {
    follow([&](Editor& ed, Host&) { panel(ed, 5) = why; });
}

void frmMain::takeDrop(const QUrl& url, QPoint at) {
    if (!url.isLocalFile()) return refuseDrop(url.toString().toStdString() + " is no file of this computer.");
    const std::string path = url.toLocalFile().toStdString();
    if (path.ends_with(".bot")) return open({url.toLocalFile()});
    if (!isPicture(url.toLocalFile())) return refuseDrop(path + " is neither a project nor a picture.");
    const QPoint place = picS_->mapFrom(this, at);
    const auto twips = [](int pixels) { return static_cast<float>(pixels * twipsPerPixel); };
    const std::int32_t node =
        picS_->rect().contains(place) ? nodeAtPoint(ed_, twips(place.x()), twips(place.y())) : none;
    if (node == none) return refuseDrop("Drop a picture on a node to make it the node's sprite.");
    perform("Sprite", [&](Editor& ed, Host& host) {
        const std::string name = copyPicture(ed, host, path);
        if (name.empty()) return;
        readSprites();
        if (!giveSprite(ed, node, name)) panel(ed, 5) = "No usable picture: " + path;
        redrawScene(ed);
    });
}

}  // namespace zentrik
