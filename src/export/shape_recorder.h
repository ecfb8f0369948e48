#pragma once
// Records what is painted as shapes: what they are, apart from where they are, so that a film of shapes that
// only move is a list of places.

#include <QImage>
#include <QPaintDevice>
#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

class QPaintEngine;

namespace zentrik {

// In tenths of a pixel.
struct Spot {
    std::int32_t x = 0, y = 0;

    auto operator<=>(const Spot&) const = default;
};

enum class ShapeKind { rectangle, line, ellipse, outline, image };

// One picture. `shapes` holds for each shape its kind, its entry in the tables, and its measures, in tenths
// of a pixel: width and height of rectangles and images; the radii of an ellipse. `places` are a corner, both
// ends, a centre, or where an outline's origin is.
struct RecordedPicture {
    std::vector<std::int32_t> shapes;
    std::vector<Spot> places;
};

// What the shapes of all pictures of a film are drawn with; an entry's number stays.
class ShapeTables {
public:
    // Texts for a browser: "stroke width cap fill" as JSON lists, the outlines' path data, pictures.
    std::vector<QString> styles, outlines, images;

    std::int32_t style(const QString& text) { return numberOf(text, styles, styleNumbers_); }
    // With its style, since both belong to one shape.
    std::int32_t outline(const QString& data) { return numberOf(data, outlines, outlineNumbers_); }
    std::int32_t image(const QImage& picture);

private:
    std::map<QString, std::int32_t> styleNumbers_, outlineNumbers_;
    std::map<qint64, std::int32_t> imageNumbers_;  // by the pictures' keys
    std::vector<QImage> kept_;                     // lest a key is given anew

    static std::int32_t numberOf(const QString& text, std::vector<QString>& all,
                                 std::map<QString, std::int32_t>& numbers);
};

// Paint on it as on any device of so many pixels.
class ShapeRecorder : public QPaintDevice {
public:
    ShapeRecorder(QSize size, ShapeTables& tables);
    ~ShapeRecorder() override;

    RecordedPicture picture;

    QPaintEngine* paintEngine() const override { return engine_.get(); }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    const QSize size_;
    std::unique_ptr<QPaintEngine> engine_;
};

}  // namespace zentrik
