#pragma once
#include "app/plot/curve_list.h"
#include "app/plot/plot_view.h"
#include "app/plot/run_reader.h"

#include <QTimer>

class QComboBox;
class QHBoxLayout;
class QProgressBar;

namespace zentrik {

// What can leave a plot.
enum class PlotShare { copyPicture, savePicture, saveTable };

// The window that shows the run as curves.
class PlotWindow : public QWidget {
public:
    explicit PlotWindow(QWidget* parent);

    std::function<void(std::int64_t step)> momentChosen;
    std::function<void(PlotShare)> shared;
    std::function<void()> opened, closed;
    // The run is to be shown as it stands.
    std::function<void()> changed;

    // To be called after every event; does nothing while the window is hidden.
    void follow(const Timeline& timeline, const Editor& ed);
    // Ticks these as well.
    void choose(const std::vector<Curve>& curves);

    Plot plot() const { return view_->plot(); }
    QSize plotSize() const { return view_->size(); }
    const std::vector<Curve>& curves() const { return list_->chosen(); }
    bool isReading() const { return reader_.progress().has_value(); }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    RunReader reader_;
    CurveList* const list_;
    PlotView* const view_;
    QComboBox* const against_;
    QProgressBar* const progress_;
    QTimer look_;  // at the progress

    void layOut();
    QHBoxLayout* makeRow();
    void chosen();
    void showProgress();
};

}  // namespace zentrik
