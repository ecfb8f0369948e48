#include "export/films/gif.h"

#include "display/canvas/canvas.h"
#include "files/write_file.h"

#include <cgif.h>

#include <algorithm>
#include <limits>

namespace zentrik {

namespace {

constexpr const char* tooLarge = "So large a picture cannot be made.";
constexpr const char* noMemory = "There is not enough memory.";
constexpr int largestSide = std::numeric_limits<std::uint16_t>::max();

constexpr std::size_t mostColours = 256;

int append(void* bytes, const std::uint8_t* data, const std::size_t count) {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), count);
    return 0;
}

}  // namespace

GifWriter::GifWriter(std::string path, const Editor& ed, const FilmPlan& plan)
    : path_(std::move(path)), plan_(plan), paper_(colourOf(ed.BackColor).rgb()) {}

GifWriter::~GifWriter() {
    if (gif_ != nullptr) cgif_close(gif_);
}

// A pixel is either transparent or not: what covers half of one or more is mixed with the background colour.
QImage GifWriter::imageOf(const Subject& subject) {
    QImage image = sceneImage(subject, plan_.look);
    if (image.isNull()) problem_ = tooLarge;
    if (!plan_.look.transparent) return image;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [this](QRgb over) {
            if (qAlpha(over) < 128) return qRgba(0, 0, 0, 0);
            const int rest = 255 - qAlpha(over);
            const auto mix = [rest](int part, int under) { return part + (under * rest + 127) / 255; };
            return qRgb(mix(qRed(over), qRed(paper_)), mix(qGreen(over), qGreen(paper_)),
                        mix(qBlue(over), qBlue(paper_)));
        });
    }
    return image;
}

void GifWriter::look(const Subject& subject) { colours_.add(imageOf(subject)); }

void GifWriter::open(const QSize& size) {
    if (std::max(size.width(), size.height()) > largestSide) problem_ = tooLarge;
    const bool transparent = plan_.look.transparent;
    std::vector<Rgb> palette = colours_.palette(mostColours - (transparent ? 1 : 0));
    nearest_.emplace(palette);
    if (transparent) palette.insert(palette.begin(), Rgb{});  // the library's place for it
    CGIF_Config config{};
    config.pGlobalPalette = palette.front().data();
    config.numGlobalPaletteEntries = static_cast<std::uint16_t>(palette.size());
    config.attrFlags = CGIF_ATTR_IS_ANIMATED | (transparent ? CGIF_ATTR_HAS_TRANSPARENCY : 0UL);
    config.numLoops = CGIF_INFINITE_LOOP;
    config.width = static_cast<std::uint16_t>(size.width());
    config.height = static_cast<std::uint16_t>(size.height());
    config.pWriteFn = append;
    config.pContext = &bytes_;
    if (problem_.empty()) gif_ = cgif_newgif(&config);
    if (problem_.empty() && gif_ == nullptr) problem_ = noMemory;
}

GifWriter::Indexed GifWriter::indexed(const QImage& image) {
    const int shift = plan_.look.transparent ? 1 : 0;
    Indexed places;
    places.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0, end; x < image.width(); x = end) {
            for (end = x + 1; end < image.width() && line[end] == line[x];) ++end;
            const int place = qAlpha(line[x]) == 0 ? 0 : (*nearest_)(line[x]) + shift;
            places.insert(places.end(), static_cast<std::size_t>(end - x), static_cast<std::uint8_t>(place));
        }
    }
    return places;
}

std::string GifWriter::take(const Subject& subject) {
    const QImage image = imageOf(subject);
    if (problem_.empty() && gif_ == nullptr) open(image.size());
    if (!problem_.empty()) return problem_;
    Indexed places = indexed(image);
    constexpr std::int64_t longest = 60000;  // that a picture can be shown
    if (places != waiting_ || hundredths(taken_ + 1) - hundredths(stored_) > longest) {
        storeWaiting();
        waiting_ = std::move(places);
    }
    ++taken_;
    return problem_;
}

// A time is a whole number of hundredths of a second.
std::int64_t GifWriter::hundredths(std::int64_t picture) const {
    return (picture * 200 / plan_.rate + 1) / 2;
}

// Shown until the picture that comes next.
void GifWriter::storeWaiting() {
    if (waiting_.empty()) return;
    CGIF_FrameConfig frame{};
    frame.pImageData = waiting_.data();
    frame.delay = static_cast<std::uint16_t>(hundredths(taken_) - hundredths(stored_));
    frame.genFlags = CGIF_FRAME_GEN_USE_DIFF_WINDOW;
    if (cgif_addframe(gif_, &frame) != CGIF_OK) problem_ = noMemory;
    stored_ = taken_;
}

std::string GifWriter::finish() {
    storeWaiting();
    if (problem_.empty() && cgif_close(std::exchange(gif_, nullptr)) != CGIF_OK) problem_ = noMemory;
    return problem_.empty() ? writeFile(path_, bytes_) : problem_;
}

}  // namespace zentrik
