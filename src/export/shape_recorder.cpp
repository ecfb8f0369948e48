#include "export/shape_recorder.h"

#include <QBuffer>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <cmath>
#include <span>

namespace zentrik {

namespace {

// Beyond, nothing is seen, and browsers' numbers are exact.
std::int32_t tenths(double pixels) {
    return static_cast<std::int32_t>(std::lround(std::clamp(pixels, -1e7, 1e7) * 10));
}

QString colourText(const QColor& colour) {
    const QString name = colour.name(QColor::HexRgb);
    return colour.alpha() == 255 ? name : name + QString("%1").arg(colour.alpha(), 2, 16, QChar('0'));
}

QString capText(Qt::PenCapStyle cap) {
    return cap == Qt::RoundCap ? "round" : cap == Qt::SquareCap ? "square" : "butt";
}

// No stroke and no fill are empty texts.
QString styleText(const QPen& pen, const QBrush& brush) {
    const bool strokes = pen.style() != Qt::NoPen, fills = brush.style() != Qt::NoBrush;
    return QString(R"(["%1",%2,"%3","%4"])")
        .arg(strokes ? colourText(pen.color()) : "")
        .arg(strokes ? pen.widthF() : 0)
        .arg(capText(pen.capStyle()), fills ? colourText(brush.color()) : "");
}

QString pathText(const QPainterPath& path) {
    QString text;
    const auto add = [&](char command, std::initializer_list<QPainterPath::Element> points) {
        text += QChar(command);
        for (const auto& point : points)
            text += QString::number(point.x, 'f', 2) + " " + QString::number(point.y, 'f', 2) + " ";
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement) {
            add('C', {element, path.elementAt(i + 1), path.elementAt(i + 2)});
            i += 2;
        } else {
            add(element.type == QPainterPath::MoveToElement ? 'M' : 'L', {element});
        }
    }
    return text;
}

class ShapeEngine : public QPaintEngine {
public:
    ShapeEngine(RecordedPicture& picture, ShapeTables& tables)
        : QPaintEngine(AllFeatures), picture_(picture), tables_(tables) {}

    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& now) override {
        const auto dirty = now.state();
        if (dirty & DirtyPen) pen_ = now.pen();
        if (dirty & DirtyBrush) brush_ = now.brush();
        if (dirty & DirtyTransform) transform_ = now.transform();
        if (dirty & (DirtyPen | DirtyBrush)) style_ = tables_.style(styleText(pen_, brush_));
    }

    void drawRects(const QRectF* rects, int count) override {
        for (const QRectF& rect : std::span(rects, static_cast<std::size_t>(count)))
            add(ShapeKind::rectangle, style_, {rect.topLeft()}, {rect.width(), rect.height()});
    }
    void drawLines(const QLineF* lines, int count) override {
        for (const QLineF& line : std::span(lines, static_cast<std::size_t>(count)))
            add(ShapeKind::line, style_, {line.p1(), line.p2()}, {});
    }
    void drawEllipse(const QRectF& rect) override {
        add(ShapeKind::ellipse, style_, {rect.center()}, {rect.width() / 2, rect.height() / 2});
    }
    void drawPath(const QPainterPath& path) override {
        add(ShapeKind::outline, style_, {QPointF()}, {});
        picture_.shapes.push_back(tables_.outline(pathText(path)));
    }
    void drawImage(const QRectF& rect, const QImage& image, const QRectF&,
                   Qt::ImageConversionFlags) override {
        add(ShapeKind::image, tables_.image(image), {rect.topLeft()}, {rect.width(), rect.height()});
    }
    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF& source) override {
        drawImage(rect, pixmap.toImage(), source, Qt::AutoColor);
    }

private:
    RecordedPicture& picture_;
    ShapeTables& tables_;
    QPen pen_;
    QBrush brush_;
    QTransform transform_;
    std::int32_t style_ = 0;

    void add(ShapeKind kind, std::int32_t entry, std::initializer_list<QPointF> places,
             std::initializer_list<double> measures) {
        picture_.shapes.push_back(static_cast<std::int32_t>(kind));
        picture_.shapes.push_back(entry);
        for (const double measure : measures) picture_.shapes.push_back(tenths(measure));
        for (const QPointF& place : places) {
            const QPointF at = transform_.map(place);
            picture_.places.push_back({tenths(at.x()), tenths(at.y())});
        }
    }
};

}  // namespace

std::int32_t ShapeTables::numberOf(const QString& text, std::vector<QString>& all,
                                   std::map<QString, std::int32_t>& numbers) {
    const auto [entry, isNew] = numbers.try_emplace(text, static_cast<std::int32_t>(all.size()));
    if (isNew) all.push_back(text);
    return entry->second;
}

std::int32_t ShapeTables::image(const QImage& picture) {
    const auto [entry, isNew] =
        imageNumbers_.try_emplace(picture.cacheKey(), static_cast<std::int32_t>(images.size()));
    if (isNew) {
        QBuffer png;
        picture.save(&png, "PNG");
        images.push_back("data:image/png;base64," + png.data().toBase64());
        kept_.push_back(picture);
    }
    return entry->second;
}

ShapeRecorder::ShapeRecorder(QSize size, ShapeTables& tables)
    : size_(size), engine_(std::make_unique<ShapeEngine>(picture, tables)) {}

ShapeRecorder::~ShapeRecorder() = default;

int ShapeRecorder::metric(PaintDeviceMetric metric) const {
    constexpr int dotsPerInch = 96;
    switch (metric) {
        case PdmWidth:
            return size_.width();
        case PdmHeight:
            return size_.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
    }
}

}  // namespace zentrik
