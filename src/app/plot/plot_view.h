#pragma once
#include "app/views/paint_pacer.h"
#include "plot/plot.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QWidget>
#include <functional>

namespace zentrik {

// Shows a plot, and takes what the pointer does over it: a click or a drag chooses a moment, the wheel zooms,
// a drag with the right button or with Shift zooms to what it covers, a double click shows all.
class PlotView : public QWidget {
public:
    explicit PlotView(const RunSeries& series, QWidget* parent);

    std::function<void(std::int64_t step)> momentChosen;

    // The curves are others, or shorter.
    void showAfresh(std::optional<std::int64_t> now);
    // They have grown, or nothing but the scene has gone to another step.
    void showMore(std::optional<std::int64_t> now, bool runs);
    void setAgainst(std::size_t curve);
    void fit();
    // By so much, 0.5 for twice as large, around a place of the plot.
    void zoom(double factor, double around);

    Plot plot() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const RunSeries& series_;
    PaintPacer pacer_;
    std::size_t against_ = 0;
    std::optional<Range> shown_;
    std::optional<std::int64_t> now_, pointed_;
    std::optional<int> bandFrom_, bandTo_;  // of a zoom by drag, pixels
    PlotFrame frame_;
    QPixmap picture_, legend_;  // as drawn last
    std::size_t drawn_ = 0;     // spans of the curves, each of so many steps
    std::int64_t stride_ = 1;
    bool current_ = false, legendCurrent_ = false;
    QElapsedTimer legendAge_;

    PlotFrame frame() const;
    void keepPicture();
    void keepLegend();
    void paint();
    void choose(QPointF place);
    void showRange(Range range);
    void point(std::optional<std::int64_t> step);
};

}  // namespace zentrik
