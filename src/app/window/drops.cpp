#include "app/window/drops.h"

#include "basics/units.h"
#include "edit/hit.h"
#include "library/open_file.h"
#include "model/redraw.h"
#include "ui/commands/sprite_commands.h"

#include <QDropEvent>
#include <QImageReader>
#include <QMimeData>
#include <QSvgRenderer>

namespace zentrik {

namespace {

// Whether or not the picture formats that are installed know SVG.
bool isPicture(const QString& path) {
    const bool drawing = path.endsWith(".svg", Qt::CaseInsensitive);
    return drawing ? QSvgRenderer(path).isValid() : QImageReader(path).canRead();
}

}  // namespace

Drops::Drops(QWidget& window, Events& events, SceneView& scene)
    : QObject(&window), window_(window), events_(events), scene_(scene) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool Drops::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drop = *static_cast<QDropEvent*>(event);
    drop.setDropAction(Qt::CopyAction);  // a file that is moved here would be gone there
    drop.accept();
    if (type != QEvent::Drop) return true;
    const QList<QUrl> urls = drop.mimeData()->urls();
    if (urls.isEmpty()) refuse("What was dropped is no file.");
    for (const QUrl& url : urls) take(url, drop.position().toPoint());
    return true;
}

void Drops::refuse(const std::string& why) {
    events_.follow([&](Editor& ed, Host&) { panel(ed, 5) = why; });
}

void Drops::take(const QUrl& url, QPoint at) {
    if (!url.isLocalFile()) return refuse(url.toString().toStdString() + " is no file of this computer.");
    const std::string path = url.toLocalFile().toStdString();
    if (path.ends_with(".bot")) return projectDropped(url.toLocalFile());
    if (!isPicture(url.toLocalFile())) return refuse(path + " is neither a project nor a picture.");
    takePicture(path, at);
}

void Drops::takePicture(const std::string& path, QPoint at) {
    const QPoint place = scene_.mapFrom(&window_, at);
    const auto twips = [](int pixels) { return static_cast<float>(pixels * twipsPerPixel); };
    const std::int32_t node =
        scene_.rect().contains(place) ? nodeAtPoint(events_.ed, twips(place.x()), twips(place.y())) : none;
    if (node == none) return refuse("Drop a picture on a node to make it the node's sprite.");
    events_.perform("Sprite", [&](Editor& ed, Host& host) {
        const std::string name = copyPicture(ed, host, path);
        if (name.empty()) return;
        spritesChanged();
        if (!giveSprite(ed, node, name)) panel(ed, 5) = "No usable picture: " + path;
        redrawScene(ed);
    });
}

}  // namespace zentrik
