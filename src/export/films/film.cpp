#include "export/films/film.h"

#include "basics/no_doubles.h"
#include "export/films/gif.h"
#include "export/films/numbered.h"
#include "export/films/page.h"
#include "export/films/video.h"
#include "files/path.h"

#include <QFileInfo>
#include <cerrno>
#include <string_view>

namespace zentrik {

namespace {

template <class Writer>
std::unique_ptr<FilmWriter> make(const std::string& path, const Editor& ed, const FilmPlan& plan) {
    return std::make_unique<Writer>(path, ed, plan);
}

constexpr FilmFormat formats[] = {
    {.name = "Web page", .suffix = "html", .makeWriter = make<PageWriter>},
    {.name = "GIF", .suffix = "gif", .usualRate = 20, .highestRate = 50, .makeWriter = make<GifWriter>},
    {.name = "MP4 video",
     .suffix = "mp4",
     .usualRate = 30,
     .transparent = false,
     .makeWriter = make<Mp4Writer>},
    {.name = "WebM video", .suffix = "webm", .usualRate = 30, .makeWriter = make<WebmWriter>},
    {.name = "Folder of numbered PNG pictures", .suffix = "", .makeWriter = make<NumberedWriter>},
};
static_assert(!anyShared(formats, [](const FilmFormat& format) { return std::string_view(format.name); }));

// A film may take minutes: what can be known before is said before.
std::string folderProblem(const std::string& path) {
    const QFileInfo folder(QFileInfo(QString::fromStdString(path)).absolutePath());
    if (!folder.isDir()) return inWords(ENOENT);
    return folder.isWritable() ? "" : inWords(EACCES);
}

}  // namespace

std::span<const FilmFormat> filmFormats() { return formats; }

FilmResult makeFilm(const Editor& ed, const FilmFormat& format, const FilmPlan& plan, const std::string& path,
                    const FilmProgress& goOn) {
    FilmResult result;
    result.problem = folderProblem(path);
    if (!result.problem.empty()) return result;
    const auto writer = format.makeWriter(path, ed, plan);
    const auto pictures = static_cast<double>(pictureCount(ed, plan));
    const double before = writer->looksFirst() ? pictures : 0;
    double done = 0;
    const auto state = [&] {
        const double taken = done - before;
        return FilmState{done / (before + pictures), taken > 0 ? writer->expectedSize(taken / pictures) : 0};
    };
    // False when it is over before the film is.
    const auto show = [&](auto take) {
        Reel reel(ed, plan);
        do {
            result.problem = take(reel.subject());
            ++done;
            result.cancelled = result.problem.empty() && !goOn(state());
            if (!result.problem.empty() || result.cancelled) return false;
        } while (reel.next());
        result.stopped = reel.stopped();
        return true;
    };
    const auto look = [&](const Subject& subject) { return writer->look(subject), std::string(); };
    if (writer->looksFirst() && !show(look)) return result;
    if (show([&](const Subject& subject) { return writer->take(subject); }))
        result.problem = writer->finish();
    return result;
}

}  // namespace zentrik
