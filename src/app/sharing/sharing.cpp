#include "app/sharing/sharing.h"

#include "app/boxes/desktop_host.h"
#include "app/boxes/file_name_box.h"
#include "export/pages/live_page.h"
#include "export/table.h"
#include "files/write_file.h"
#include "library/zoo.h"
#include "model/store.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

namespace zentrik {

namespace {

constexpr int fewPictures = 10;  // a second

// The project's name as a file may have it.
QString fileNameOf(const Editor& ed) {
    QString name = QString::fromStdString(ed.savedText).simplified().left(100);
    if (name.isEmpty() || name == noFileFound) return "Zentrik";
    return name.replace('/', '-');
}

}  // namespace

Sharing::Sharing(const Editor& ed, DesktopHost& host, QWidget& window)
    : ed_(ed), host_(host), window_(window) {}

void Sharing::begin(Share what) {
    if (host_.isAsking()) return;
    switch (what) {
        case Share::copyPicture:
            return copyPicture();
        case Share::savePicture:
            return savePicture();
        case Share::recordAnimation:
            return recordAnimation();
        case Share::saveLivePage:
            return saveLivePage();
        case Share::saveTable:
            return saveTable();
    }
}

void Sharing::cancelRecording() {
    if (recording_) recording_->reject();
}

void Sharing::say(const QString& text) {
    change([&](Editor& ed) { panel(ed, 5) = text.toStdString(); });
}

// As it is seen, and as a drawing for who can take one.
void Sharing::copyPicture() {
    Subject subject(ed_);
    const Look look{window_.devicePixelRatioF(), false};
    subject.sprites.setRatio(look.scale);
    copy(sceneImage(subject, look), pictureFile(subject, PictureFormat::svg, {}));
    say("The scene was copied as a picture.");
}

void Sharing::copyDrawing(const Drawing& drawing) {
    if (host_.isAsking()) return;
    const PictureFormatRow& shapes = pictureFormats()[static_cast<std::size_t>(PictureFormat::svg)];
    copy(imageOf(drawing, {window_.devicePixelRatioF(), false}), shapes.make(drawing, {}));
    say("The plot was copied as a picture.");
}

void Sharing::copy(const QImage& image, const PictureFile& shapes) {
    auto* data = new QMimeData;
    data->setImageData(image);
    data->setData("image/svg+xml", QByteArray::fromStdString(shapes.bytes));
    QApplication::clipboard()->setMimeData(data);
}

QString Sharing::askName(const QString& kind, const QString& suffix) {
    QString folder = QString::fromStdString(ed_.shareFolder);
    if (!QFileInfo(folder).isDir())
        folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString file = askFileName(host_, window_, {kind, suffix}, folder + "/" + fileNameOf(ed_));
    if (!file.isEmpty())
        change([&](Editor& ed) { ed.shareFolder = QFileInfo(file).absolutePath().toStdString(); });
    return file;
}

void Sharing::savePicture() {
    save(sceneSize(ed_), [this](const PictureFormatRow& format, const Look& look) {
        Subject subject(ed_);
        return pictureFile(subject, format, look);
    });
}

void Sharing::saveDrawing(const Drawing& drawing) {
    if (host_.isAsking()) return;
    save(drawing.size,
         [&](const PictureFormatRow& format, const Look& look) { return format.make(drawing, look); });
}

void Sharing::save(QSize size, const std::function<PictureFile(const PictureFormatRow&, const Look&)>& make) {
    PictureDialog dialog(size, picture_, &window_);
    if (host_.show(dialog) != QDialog::Accepted) return;
    picture_ = dialog.choice();
    const PictureFormatRow& format = pictureFormats()[static_cast<std::size_t>(picture_.format)];
    const QString suffix = format.suffix;
    const QString file = askName(suffix.toUpper() + " picture", suffix);
    if (file.isEmpty()) return;
    const PictureFile made = make(format, picture_.look);
    const std::string problem =
        made.problem.empty() ? writeFile(file.toStdString(), made.bytes) : made.problem;
    saved(file, problem);
}

void Sharing::saved(const QString& file, const std::string& problem) {
    const QString name = QFileInfo(file).fileName();
    if (problem.empty()) return say("Saved " + name);
    host_.messageBox(name.toStdString() + " could not be saved.\n" + problem, "Zentrik",
                     BoxIcon::exclamation);
}

void Sharing::saveLivePage() {
    if (const std::string problem = whyNoLivePages(); !problem.empty())
        return host_.messageBox(problem, "Zentrik", BoxIcon::information);
    const QString file = askName("Live page", "html");
    if (!file.isEmpty())
        saved(file, writeFile(file.toStdString(), livePage(ed_, fileNameOf(ed_).toStdString())));
}

// One thing at a time.
bool Sharing::isBusy() {
    if (!recording_ || !recording_->isRunning()) return false;
    recording_->raise();
    recording_->activateWindow();
    return true;
}

void Sharing::work(const char* title, const QString& file, Recording::Job job) {
    cancelRecording();  // one that has ended
    recording_ = new Recording(title, file, std::move(job), &window_);
    recording_->openFolder = [this](const QString& folder) {
        host_.openAddress(QUrl::fromLocalFile(folder).toEncoded().toStdString());
    };
    recording_->show();
}

void Sharing::recordAnimation() {
    if (isBusy()) return;
    FilmDialog dialog(ed_, film_, &window_);
    if (host_.show(dialog) != QDialog::Accepted) return;
    film_ = dialog.choice();
    const FilmFormat& format = filmFormats()[static_cast<std::size_t>(film_.format)];
    const QString file = askName(format.name, format.suffix);
    if (!file.isEmpty()) makeFilm(std::make_shared<Editor>(ed_), file);
}

// A film that grows too large can be had with fewer pictures, of the same run.
void Sharing::makeFilm(const std::shared_ptr<const Editor>& from, const QString& file) {
    const FilmFormat& format = filmFormats()[static_cast<std::size_t>(film_.format)];
    work("Record Animation", file,
         [from, &format, plan = planOf(*from, film_), path = file.toStdString()](const FilmProgress& goOn) {
             return zentrik::makeFilm(*from, format, plan, path, goOn);
         });
    const bool isFolder = *format.suffix == '\0';
    if (film_.rate <= fewPictures || isFolder) return;
    recording_->offer(QString("%1 &Pictures a Second").arg(fewPictures),
                      QString("Makes a smaller file: the same film with %1 pictures a second instead of %2")
                          .arg(fewPictures)
                          .arg(film_.rate),
                      [this, from, file] {
                          film_.rate = fewPictures;
                          makeFilm(from, file);
                      });
}

void Sharing::saveTable() {
    if (isBusy()) return;
    TableDialog dialog(ed_, table_, &window_);
    if (host_.show(dialog) != QDialog::Accepted) return;
    table_ = dialog.choice();
    const QString file = askName("CSV table", "csv");
    if (file.isEmpty()) return;
    work("Save Table", file,
         [ed = ed_, steps = stepsOf(ed_, table_), path = file.toStdString()](const FilmProgress& goOn) {
             return makeTable(ed, steps, path, goOn);
         });
}

void Sharing::saveCurves(const RecordedRun& run, Stretch stretch, const std::vector<Curve>& curves) {
    if (host_.isAsking() || isBusy()) return;
    const QString file = askName("CSV table", "csv");
    if (file.isEmpty()) return;
    work("Save Table", file, [run, stretch, curves, path = file.toStdString()](const FilmProgress& goOn) {
        return makeCurveTable(run, stretch, curves, path, goOn);
    });
}

}  // namespace zentrik
