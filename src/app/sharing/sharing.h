#pragma once
#include "app/bars/share_button.h"
#include "app/sharing/film_dialog.h"
#include "app/sharing/picture_dialog.h"
#include "app/sharing/recording.h"
#include "app/sharing/table_dialog.h"
#include "export/plot_picture.h"

#include <QPointer>
#include <memory>

namespace zentrik {

class DesktopHost;

// What the window does for its share button: asks what is wanted and where, and makes it.
class Sharing {
public:
    Sharing(const Editor& ed, DesktopHost& host, QWidget& window);

    // Changes what the record holds of it, and shows that.
    std::function<void(const std::function<void(Editor&)>&)> change;

    void begin(Share what);
    void copyDrawing(const Drawing& drawing);
    void saveDrawing(const Drawing& drawing);
    // The table of some curves over a part of a run.
    void saveCurves(const RecordedRun& run, Stretch stretch, const std::vector<Curve>& curves);
    void cancelRecording();

private:
    const Editor& ed_;
    DesktopHost& host_;
    QWidget& window_;
    PictureChoice picture_;  // the last ones
    FilmChoice film_;
    RunLength table_;
    QPointer<Recording> recording_;

    void copyPicture();
    void savePicture();
    void copy(const QImage& image, const PictureFile& shapes);
    void save(QSize size, const std::function<PictureFile(const PictureFormatRow&, const Look&)>& make);
    void recordAnimation();
    void makeFilm(const std::shared_ptr<const Editor>& from, const QString& file);
    void saveLivePage();
    void saveTable();
    bool isBusy();
    void work(const char* title, const QString& file, Recording::Job job);
    QString askName(const QString& kind, const QString& suffix);
    void say(const QString& text);
    void saved(const QString& file, const std::string& problem);
};

}  // namespace zentrik
