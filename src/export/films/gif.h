#pragma once
#include "export/films/film_writer.h"
#include "export/films/palette.h"

#include <optional>

struct st_gif;

namespace zentrik {

// An animation that repeats without end, with one palette for all of it. Of a picture only the rectangle
// that changed is stored; of a transparent one all, since what is left out would show what was before.
class GifWriter : public FilmWriter {
public:
    GifWriter(std::string path, const Editor& ed, const FilmPlan& plan);
    ~GifWriter() override;

    bool looksFirst() const override { return true; }
    void look(const Subject& subject) override;
    std::string take(const Subject& subject) override;
    std::string finish() override;
    double expectedSize(double part) const override { return static_cast<double>(bytes_.size()) / part; }

private:
    using Indexed = std::vector<std::uint8_t>;  // a picture, as places in the palette

    const std::string path_;
    const FilmPlan plan_;
    const QRgb paper_;
    ColourCount colours_;
    std::optional<NearestColour> nearest_;
    st_gif* gif_ = nullptr;
    Indexed waiting_;                      // for the first that differs from it
    std::int64_t taken_ = 0, stored_ = 0;  // pictures
    std::string bytes_, problem_;

    QImage imageOf(const Subject& subject);
    void open(const QSize& size);
    Indexed indexed(const QImage& image);
    std::int64_t hundredths(std::int64_t picture) const;
    void storeWaiting();
};

}  // namespace zentrik
