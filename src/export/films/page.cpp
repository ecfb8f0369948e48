#include "export/films/page.h"

#include "display/scene.h"
#include "export/pages/page_text.h"
#include "files/write_file.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>
#include <optional>

namespace zentrik {

namespace {

template <class Numbers>
QJsonArray listOf(const Numbers& numbers) {
    QJsonArray list;
    for (const auto number : numbers) list.append(static_cast<qint64>(number));
    return list;
}

QByteArray playerText() { return pageParts({"player.js", "film.js"}); }

}  // namespace

PageWriter::PageWriter(std::string path, const Editor& ed, const FilmPlan& plan)
    : path_(std::move(path)), plan_(plan), size_(sceneSize(ed)), title_(titleOf(ed)) {}

std::string PageWriter::take(const Subject& subject) {
    ShapeRecorder recorder(size_, tables_);
    {
        QPainter painter(&recorder);
        drawScene(painter, subject.ed, subject.sprites,
                  plan_.look.transparent ? Ground::clear : Ground::painted);
    }
    if (!goesOn(recorder.picture)) beginChapter(recorder.picture);
    addMoves(recorder.picture);
    return {};
}

// Whether the picture shows the chapter's shapes, and those that shared a point still do.
bool PageWriter::goesOn(const RecordedPicture& picture) const {
    if (chapters_.empty() || chapters_.back().shapes != picture.shapes) return false;
    const Chapter& chapter = chapters_.back();
    std::vector<std::optional<Spot>> seen(chapter.last.size());
    for (std::size_t i = 0; i < picture.places.size(); ++i) {
        std::optional<Spot>& point = seen[chapter.points[i]];
        if (point && *point != picture.places[i]) return false;
        point = picture.places[i];
    }
    return true;
}

void PageWriter::beginChapter(const RecordedPicture& picture) {
    Chapter& chapter = chapters_.emplace_back();
    chapter.shapes = picture.shapes;
    std::map<Spot, std::size_t> points;
    for (const Spot& place : picture.places)
        chapter.points.push_back(points.try_emplace(place, points.size()).first->second);
    chapter.last.resize(points.size());
}

void PageWriter::addMoves(const RecordedPicture& picture) {
    Chapter& chapter = chapters_.back();
    ++chapter.pictures;
    std::vector<Spot> now(chapter.last.size());
    for (std::size_t i = 0; i < picture.places.size(); ++i) now[chapter.points[i]] = picture.places[i];
    for (std::size_t i = 0; i < now.size(); ++i) {
        addMove(now[i].x - chapter.last[i].x);
        addMove(now[i].y - chapter.last[i].y);
    }
    chapter.last = std::move(now);
}

// Numbers are written in groups of seven bits, the lowest first; signs in their lowest bit. A 0 is followed
// by how many more there are.
void PageWriter::addMove(std::int32_t by) {
    if (by == 0) {
        ++still_;
        return;
    }
    endStill();
    const auto size = static_cast<std::uint64_t>(std::abs(std::int64_t{by}));
    addNumber(by > 0 ? 2 * size : 2 * size - 1);
}

void PageWriter::endStill() {
    if (still_ == 0) return;
    addNumber(0);
    addNumber(still_ - 1);
    still_ = 0;
}

void PageWriter::addNumber(std::uint64_t number) {
    for (; number >= 0x80; number >>= 7) moves_ += static_cast<char>((number & 0x7F) | 0x80);
    moves_ += static_cast<char>(number);
}

QByteArray PageWriter::film() const {
    QJsonArray styles, chapters;
    for (const QString& style : tables_.styles)
        styles.append(QJsonDocument::fromJson(style.toUtf8()).array());
    for (const Chapter& chapter : chapters_)
        chapters.append(QJsonObject{{"pictures", static_cast<qint64>(chapter.pictures)},
                                    {"points", static_cast<qint64>(chapter.last.size())},
                                    {"shapes", listOf(chapter.shapes)},
                                    {"places", listOf(chapter.points)}});
    const auto texts = [](const std::vector<QString>& from) {
        return QJsonArray::fromStringList(QStringList(from.begin(), from.end()));
    };
    const QJsonObject film{{"width", size_.width()},
                           {"height", size_.height()},
                           {"rate", plan_.rate},
                           {"styles", styles},
                           {"outlines", texts(tables_.outlines)},
                           {"images", texts(tables_.images)},
                           {"chapters", chapters},
                           {"moves", QString::fromLatin1(moves_.toBase64())}};
    return QJsonDocument(film).toJson(QJsonDocument::Compact);
}

// The moves grow with every picture, in four letters for three bytes; what they move seldom does.
double PageWriter::expectedSize(double part) const {
    static const auto playerSize = static_cast<double>(pagePart("player.html").size() + playerText().size());
    double seldom = 0;
    for (const Chapter& chapter : chapters_)
        seldom += 4 * static_cast<double>(chapter.shapes.size() + chapter.points.size());
    for (const auto* texts : {&tables_.styles, &tables_.outlines, &tables_.images})
        for (const QString& text : *texts) seldom += static_cast<double>(text.size()) + 4;
    return playerSize + seldom + static_cast<double>(moves_.size()) / part * 4 / 3;
}

std::string PageWriter::finish() {
    endStill();
    const QByteArray page =
        pageText("player.html", {{"TITLE", pageTitle(title_)},
                                 {"ROLE", "role=\"img\""},
                                 {"DATA", "<script type=\"application/json\" id=\"film\">" + film() +
                                              "</script>\n<script>\n" + playerText() + "</script>"}});
    return writeFile(path_, {page.constData(), static_cast<std::size_t>(page.size())});
}

}  // namespace zentrik
