#include "export/pages/live_page.h"

#include "basics/colours.h"
#include "display/canvas/lettering.h"
#include "display/title.h"
#include "export/pages/page_text.h"
#include "export/picture.h"
#include "export/shape_recorder.h"
#include "export/subject.h"
#include "project/writer.h"
#include "web/settings.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <algorithm>

namespace zentrik {

namespace {

// A browser's "deflate" is what stands behind the size in front.
QByteArray packed(const QByteArray& bytes) { return qCompress(bytes, 9).sliced(4).toBase64(); }

QJsonArray valuesOf(const Editor& ed) {
    QJsonArray values;
    for (const LiveSetting& setting : liveSettings()) values.append(settingOf(ed, setting));
    return values;
}

// The pictures that nodes have, sharp when they are enlarged.
QJsonArray spritesOf(const Editor& ed) {
    QJsonArray list;
    if (ed.programFolder.empty()) return list;
    SpritePictures sprites;
    sprites.read(ed.programFolder + "/sprites");
    sprites.setRatio(4);
    ShapeTables tables;
    for (std::size_t number = 1; number < sprites.names().size(); ++number) {
        const std::string& name = sprites.names()[number];
        const bool isUsed = std::any_of(ed.Nodes.begin(), ed.Nodes.end(),
                                        [&](const Node& node) { return node.Used && node.Sprite == name; });
        if (!isUsed) continue;
        const std::int32_t entry = tables.image(sprites.picture(number));
        const QSize size = sprites.size(number);
        list.append(QJsonObject{{"name", QString::fromStdString(name)},
                                {"data", tables.images[static_cast<std::size_t>(entry)]},
                                {"width", size.width()},
                                {"height", size.height()}});
    }
    return list;
}

// The outlines of its letters, so that it reads alike whatever fonts there are.
QJsonValue titleOutline(const Editor& ed) {
    ShapeTables tables;
    ShapeRecorder recorder(sceneSize(ed), tables);
    {
        QPainter painter(&recorder);
        drawTitle(Canvas(painter, ed.sceneWidth, ed.sceneHeight), ed, black);
    }
    if (tables.outlines.empty()) return {};
    const Spot place = recorder.picture.places.front();
    return QJsonObject{{"x", place.x / 10.0},
                       {"y", place.y / 10.0},
                       {"halo", 0.28 * scenePixels(1, 16)},
                       {"outline", tables.outlines.front()}};
}

// Packed, all is data, whatever a project says.
QByteArray packedScript(const char* id, const QByteArray& bytes) {
    return "<script type=\"text/plain\" id=\"" + QByteArray(id) + "\">" + packed(bytes) + "</script>\n";
}

QByteArray dataOf(const Editor& ed, const std::string& name) {
    const QJsonObject inks{{"title", legibleInk(black, ed.BackColor)},
                           {"node", legibleInk(blue, ed.BackColor)},
                           {"link", legibleInk(red, ed.BackColor)}};
    const QJsonObject page{{"name", QString::fromStdString(name)},
                           {"values", valuesOf(ed)},
                           {"sprites", spritesOf(ed)},
                           {"title", titleOutline(ed)},
                           {"inks", inks}};
    return packedScript("page", QJsonDocument(page).toJson(QJsonDocument::Compact)) +
           packedScript("project", QByteArray::fromStdString(projectBytes(ed)));
}

QByteArray moduleText() { return "const moduleText = '" + packed(pagePart("live.wasm")) + "';\n"; }
QByteArray scriptText() {
    return pageParts({"player.js", "creature.js", "painter.js", "settings.js", "live.js"});
}

// Nothing is fetched, whatever a project says.
QByteArray policy(const QByteArray& scripts) {
    return "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
           "style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'; script-src 'wasm-unsafe-eval' " +
           scripts + "\">\n";
}

QByteArray filledIn(const Editor& ed, const QByteArray& scripts, const QByteArray& data) {
    const QByteArray title = pageTitle(titleOf(ed));
    return pageText("player.html", {{"POLICY", policy(scripts)},
                                    {"TITLE", title},
                                    {"STYLE", pagePart("live.css")},
                                    {"ROLE", "role=\"application\" tabindex=\"0\" aria-describedby=\"help\""},
                                    {"HEAD", "  <h1>" + title + "</h1>\n"},
                                    {"MORE", pagePart("live.html")},
                                    {"DATA", data}});
}

}  // namespace

std::string whyNoLivePages() {
    if (*ZENTRIK_LIVE_MISSING == '\0') return {};
    return "This program was built without live pages, since a compiler was missing. Install the "
           "packages " ZENTRIK_LIVE_MISSING " and build it again.";
}

std::string livePage(const Editor& ed, const std::string& name) {
    const QByteArray script = moduleText() + scriptText();
    const QByteArray hash = QCryptographicHash::hash(script, QCryptographicHash::Sha256).toBase64();
    return filledIn(ed, "'sha256-" + hash + "'", dataOf(ed, name) + "<script>" + script + "</script>")
        .toStdString();
}

QByteArray sharedScriptText() { return moduleText() + scriptText(); }

QByteArray sharingLivePage(const Editor& ed, const std::string& name) {
    return filledIn(ed, "'self'", dataOf(ed, name) + "<script src=\"../" + sharedScript + "\"></script>");
}

}  // namespace zentrik
