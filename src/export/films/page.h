#pragma once
#include "export/films/film_writer.h"
#include "export/shape_recorder.h"

namespace zentrik {

// A page that plays in any browser, without a network: the shapes of the film, where they are in every
// picture, and a player of its own. Sharp at any size.
class PageWriter : public FilmWriter {
public:
    PageWriter(std::string path, const Editor& ed, const FilmPlan& plan);

    std::string take(const Subject& subject) override;
    std::string finish() override;
    double expectedSize(double part) const override;

private:
    // Pictures that show the same shapes in other places. Shapes that meet in a point share it.
    struct Chapter {
        std::int64_t pictures = 0;
        std::vector<std::int32_t> shapes;
        std::vector<std::size_t> points;  // of each of the shapes' places
        std::vector<Spot> last;           // of each point
    };

    const std::string path_;
    const FilmPlan plan_;
    const QSize size_;
    const QString title_;
    ShapeTables tables_;
    std::vector<Chapter> chapters_;
    QByteArray moves_;         // of all points in all pictures, one number after the other
    std::uint64_t still_ = 0;  // coordinates before the next number that did not change

    bool goesOn(const RecordedPicture& picture) const;
    void beginChapter(const RecordedPicture& picture);
    void addMoves(const RecordedPicture& picture);
    void addMove(std::int32_t by);
    void endStill();
    void addNumber(std::uint64_t number);
    QByteArray film() const;
};

}  // namespace zentrik
