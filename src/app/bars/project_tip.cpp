#include "app/bars/project_tip.h"

#include "export/thumbnail.h"
#include "host/quiet_host.h"
#include "library/open.h"
#include "library/zoo.h"
#include "model/store.h"
#include "project/hand_over.h"
#include "settings/first_run.h"

namespace zentrik {

namespace {

constexpr int pictureSide = 300;  // device-independent pixels

ProjectFile fileOf(const std::string& programFolder, const QString& name) {
    return readProject(projectPath(programFolder, name.toStdString()), name.toStdString());
}

QString titleIn(const ProjectFile& file) {
    if (!file.project) return QString::fromStdString(file.problem);
    Editor ed;
    ed.ProjectTitle = file.project->title;
    return titleOf(ed).left(200);
}

QString pictureTag(const std::string& programFolder, Project project, double ratio) {
    Editor ed = firstRun();
    ed.programFolder = programFolder;
    ed.buttons.sprite = ed.marks.mnuAllowSprites = true;
    QuietHost nobody;
    handOver(ed, nobody, std::move(project));
    if (UsedNodes(ed) == 0) return {};
    Subject subject(ed);
    const QImage image = thumbnail(subject, {pictureSide, pictureSide}, ratio);
    const std::string bytes = pngBytes(image);
    return QString("<p><img width=\"%1\" height=\"%2\" src=\"data:image/png;base64,%3\"></p>")
        .arg(qRound(image.width() / ratio))
        .arg(qRound(image.height() / ratio))
        .arg(QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64()));
}

}  // namespace

QString projectTitle(const std::string& programFolder, const QString& name) {
    return titleIn(fileOf(programFolder, name));
}

QString projectTip(const std::string& programFolder, const QString& name, double devicePixelRatio) {
    ProjectFile file = fileOf(programFolder, name);
    const QString title = "<p>" + titleIn(file).toHtmlEscaped() + "</p>";
    if (!file.project) return title;
    return title + pictureTag(programFolder, std::move(*file.project), devicePixelRatio);
}

}  // namespace zentrik
