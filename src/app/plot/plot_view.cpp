#include "app/plot/plot_view.h"

#include "plot/legend.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>
#include <utility>

namespace zentrik {

namespace {

constexpr int legendPeriod = 200;  // milliseconds between two legends of a run that goes on
constexpr int leastBand = 5;       // pixels
constexpr double wheelNotch = 120, zoomOfNotch = 0.8;

bool zoomsByDrag(const QMouseEvent& event) {
    return event.button() == Qt::RightButton ||
           (event.button() == Qt::LeftButton && event.modifiers().testFlag(Qt::ShiftModifier));
}

}  // namespace

PlotView::PlotView(const RunSeries& series, QWidget* parent)
    : QWidget(parent), series_(series), pacer_(*this) {
    setObjectName("plot");
    setAccessibleName("Plot");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setMinimumSize(240, 160);
    legendAge_.start();
}

Plot PlotView::plot() const {
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    return {series_, against_, shown_, dark, now_, pointed_};
}

PlotFrame PlotView::frame() const {
    const double ratio = devicePixelRatioF();
    return frameOf(plot(), size() * ratio, ratio);
}

void PlotView::showAfresh(std::optional<std::int64_t> now) {
    now_ = now;
    pointed_.reset();
    current_ = legendCurrent_ = false;
    update();
}

void PlotView::showMore(std::optional<std::int64_t> now, bool runs) {
    now_ = now;
    if (!runs || legendAge_.elapsed() >= legendPeriod) legendCurrent_ = false;
    pacer_.request();
}

void PlotView::setAgainst(std::size_t curve) {
    if (std::exchange(against_, curve) != curve) fit();
}

void PlotView::fit() {
    shown_.reset();
    showAfresh(now_);
}

void PlotView::showRange(Range range) {
    const Span& all = series_.all(against_);
    const double least = (all.greatest - all.least) * 1e-6;
    if (!(range.to - range.from > least)) return;
    shown_ = range;
    if (range.from <= all.least && range.to >= all.greatest) shown_.reset();
    showAfresh(now_);
}

void PlotView::zoom(double factor, double around) {
    const Range& old = frame_.x.range;
    showRange({around - (around - old.from) * factor, around + (old.to - around) * factor});
}

void PlotView::keepPicture() {
    const PlotFrame wanted = frame();
    const Plot shown = plot();
    const bool afresh = !current_ || wanted != frame_ || stride_ != series_.stride();
    if (!afresh && drawn_ == series_.size()) return;
    if (afresh) {
        frame_ = wanted;
        picture_ = QPixmap(frame_.size);
        drawn_ = 0;
        stride_ = series_.stride();
        legendCurrent_ = false;
    }
    QPainter painter(&picture_);
    if (afresh) drawGround(painter, shown, frame_);
    drawCurves(painter, shown, frame_, drawn_ == 0 ? 0 : drawn_ - 1);
    drawn_ = series_.size();
    current_ = true;
}

void PlotView::keepLegend() {
    if (std::exchange(legendCurrent_, true) && legend_.size() == frame_.size) return;
    legend_ = QPixmap(frame_.size);
    QPainter painter(&legend_);
    drawLegend(painter, plot(), frame_);
    legendAge_.restart();
}

void PlotView::paintEvent(QPaintEvent*) {
    pacer_.measure([this] { paint(); });
}

void PlotView::paint() {
    keepPicture();
    keepLegend();
    QPainter painter(this);
    painter.scale(1 / frame_.ratio, 1 / frame_.ratio);
    painter.drawPixmap(0, 0, picture_);
    if (!frame_.legend.isEmpty()) painter.drawPixmap(frame_.legend, legend_, frame_.legend);
    drawSteps(painter, plot(), frame_);
    if (!bandFrom_ || !bandTo_) return;
    QColor band = palette().color(QPalette::Highlight);
    band.setAlpha(60);
    const double from = *bandFrom_ * frame_.ratio, to = *bandTo_ * frame_.ratio;
    painter.fillRect(QRectF(QPointF(from, frame_.body().top()), QPointF(to, frame_.body().bottom())), band);
}

void PlotView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showAfresh(now_);
}

void PlotView::choose(QPointF place) {
    if (const auto step = stepAt(plot(), frame_, place * frame_.ratio); step && step != now_)
        momentChosen(*step);
}

void PlotView::point(std::optional<std::int64_t> step) {
    if (std::exchange(pointed_, step) == step) return;
    legendCurrent_ = false;
    update();
}

void PlotView::mousePressEvent(QMouseEvent* event) {
    if (zoomsByDrag(*event))
        bandFrom_ = bandTo_ = event->pos().x();
    else if (event->button() == Qt::LeftButton)
        choose(event->position());
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
    if (bandFrom_) {
        bandTo_ = event->pos().x();
        return update();
    }
    if (event->buttons().testFlag(Qt::LeftButton)) return choose(event->position());
    const QPointF place = event->position() * frame_.ratio;
    const bool inside = frame_.body().contains(place.toPoint());
    point(inside ? stepAt(plot(), frame_, place) : std::nullopt);
}

void PlotView::mouseReleaseEvent(QMouseEvent*) {
    const auto from = std::exchange(bandFrom_, std::nullopt), to = std::exchange(bandTo_, std::nullopt);
    if (!from || !to) return;
    update();
    if (std::abs(*from - *to) < leastBand) return;
    const auto value = [this](int x) { return frame_.valueAt(x * frame_.ratio); };
    showRange({value(std::min(*from, *to)), value(std::max(*from, *to))});
}

void PlotView::mouseDoubleClickEvent(QMouseEvent*) { fit(); }

// To the side it scrolls, as it does with Shift.
void PlotView::wheelEvent(QWheelEvent* event) {
    QPointF turned = QPointF(event->angleDelta()) / wheelNotch;
    if (event->modifiers().testFlag(Qt::ShiftModifier) && turned.x() == 0) turned = turned.transposed();
    const Range& old = frame_.x.range;
    const double by = -turned.x() * (old.to - old.from) / 10;
    if (turned.x() != 0 && shown_) showRange({old.from + by, old.to + by});
    if (turned.y() != 0)
        zoom(std::pow(zoomOfNotch, turned.y()), frame_.valueAt(event->position().x() * frame_.ratio));
    event->accept();
}

void PlotView::leaveEvent(QEvent*) { point({}); }

void PlotView::keyPressEvent(QKeyEvent* event) {
    const int steps = event->modifiers().testFlag(Qt::ShiftModifier) ? 100 : 1;
    const double middle = (frame_.x.range.from + frame_.x.range.to) / 2;
    switch (event->key()) {
        case Qt::Key_Left:
            return now_ ? momentChosen(*now_ - steps) : void();
        case Qt::Key_Right:
            return now_ ? momentChosen(*now_ + steps) : void();
        case Qt::Key_Plus:
            return zoom(zoomOfNotch, middle);
        case Qt::Key_Minus:
            return zoom(1 / zoomOfNotch, middle);
        case Qt::Key_Home:
            return fit();
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace zentrik
