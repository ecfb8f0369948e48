#include "export/pages/gallery.h"

#include "export/pages/live_page.h"
#include "export/pages/page_text.h"
#include "export/picture.h"
#include "export/thumbnail.h"
#include "files/new_folder.h"
#include "model/store.h"

#include <QSet>
#include <QUrl>

namespace zentrik {

namespace {

constexpr int pictureSide = 320;

QByteArray href(const std::string& name, const char* suffix) {
    return "projects/" + QUrl::toPercentEncoding(QString::fromStdString(name)) + suffix;
}

QByteArray counted(std::int32_t count, const char* one) {
    return QByteArray::number(count) + ' ' + one + (count == 1 ? "" : "s");
}

QByteArray cardOf(const Exhibit& exhibit) {
    const QString name = QString::fromStdString(exhibit.name), title = titleOf(exhibit.ed);
    return "<li><a href=\"" + href(exhibit.name, ".html") + "\"><img src=\"" + href(exhibit.name, ".png") +
           "\" alt=\"\" loading=\"lazy\"><h2>" + pageTitle(title.isEmpty() ? name : title) + "</h2></a><p>" +
           counted(UsedNodes(exhibit.ed), "node") + ", " + counted(UsedLinks(exhibit.ed), "link") +
           ", <a href=\"" + href(exhibit.name, ".bot") + "\" download>" + pageTitle(name) +
           ".bot</a></p></li>\n";
}

std::string pictureOf(const Exhibit& exhibit) {
    Subject subject(exhibit.ed);
    const double scale = fitThumbnail(subject, {pictureSide, pictureSide});
    subject.sprites.setRatio(scale);
    return pngBytes(sceneImage(subject, {scale, false}));
}

}  // namespace

std::string makeGallery(const std::vector<Exhibit>& exhibits, const std::string& path,
                        const std::function<bool()>& goOn) {
    NewFolder folder(path);
    std::string problem = folder.make();
    const auto write = [&](const std::string& name, std::string_view bytes) {
        if (problem.empty()) problem = folder.write(name, bytes);
    };
    QByteArray cards;
    QSet<QString> names;
    for (const Exhibit& exhibit : exhibits) {
        // Some file systems do not tell small letters from capitals.
        const QString name = QString::fromStdString(exhibit.name).toLower();
        if (problem.empty() && names.contains(name))
            problem = "Two projects are called " + exhibit.name + ".";
        if (problem.empty() && !goOn()) problem = "It was interrupted.";
        if (!problem.empty()) return problem;
        names.insert(name);
        cards += cardOf(exhibit);
        write("projects/" + exhibit.name + ".html", sharingLivePage(exhibit.ed, exhibit.name).toStdString());
        write("projects/" + exhibit.name + ".png", pictureOf(exhibit));
        write("projects/" + exhibit.name + ".bot", exhibit.file);
    }
    write(sharedScript, sharedScriptText().toStdString());
    write("index.html", pageText("gallery.html", {{"CARDS", cards}}).toStdString());
    return problem.empty() ? folder.finish() : problem;
}

}  // namespace zentrik
