#include "app/plot/plot_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <cmath>

namespace zentrik {

namespace {

constexpr int lookPeriod = 100;  // milliseconds

struct ButtonRow {
    const char* name;
    const char* caption;
    const char* tip;
    PlotShare what;
};
constexpr ButtonRow buttons[] = {
    {"copyPlot", "&Copy Picture", "Copies the plot as a picture", PlotShare::copyPicture},
    {"savePlot", "&Save Picture...", "Saves the plot as PNG, SVG or PDF", PlotShare::savePicture},
    {"savePlotTable", "Save &Table...", "Writes these curves as a table, a row a step", PlotShare::saveTable},
};

}  // namespace

PlotWindow::PlotWindow(QWidget* parent)
    : QWidget(parent, Qt::Tool),
      list_(new CurveList(this)),
      view_(new PlotView(reader_.series(), this)),
      against_(new QComboBox(this)),
      progress_(new QProgressBar(this)) {
    setObjectName("PlotWindow");
    setWindowTitle("Plot");
    layOut();
    view_->momentChosen = [this](std::int64_t step) { momentChosen(step); };
    list_->changed = [this] { chosen(); };
    reader_.read = [this] { changed(); };
    connect(against_, &QComboBox::activated, this,
            [this](int entry) { view_->setAgainst(static_cast<std::size_t>(entry)); });
    connect(&look_, &QTimer::timeout, this, &PlotWindow::showProgress);
}

void PlotWindow::layOut() {
    auto* parts = new QSplitter(this);
    parts->addWidget(list_);
    parts->addWidget(view_);
    parts->setStretchFactor(1, 1);
    parts->setSizes({180, 720});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(parts, 1);
    column->addLayout(makeRow());
}

QHBoxLayout* PlotWindow::makeRow() {
    against_->setObjectName("against");
    against_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    progress_->setObjectName("progress");
    progress_->setAccessibleName("Progress");
    progress_->setFormat("Reading the run: %p %");
    progress_->setVisible(false);
    auto* label = new QLabel("&Against:");
    label->setBuddy(against_);
    auto* row = new QHBoxLayout;
    const auto add = [row](const char* name, const char* caption, const char* tip, auto press) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, row, press);
        row->addWidget(button);
    };
    row->addWidget(label);
    row->addWidget(against_);
    add("fit", "&Fit", "Shows the whole run, as a double click in the plot does", [this] { view_->fit(); });
    row->addWidget(progress_);
    row->addStretch();
    for (const ButtonRow& button : buttons)
        add(button.name, button.caption, button.tip, [this, what = button.what] { shared(what); });
    return row;
}

void PlotWindow::choose(const std::vector<Curve>& curves) {
    list_->choose(curves);
    chosen();
}

// What the curves go against stays, if it is still among them.
void PlotWindow::chosen() {
    const std::string former = against_->currentText().toStdString();
    reader_.choose(list_->chosen());
    const QSignalBlocker quiet(against_);
    against_->clear();
    against_->addItem("time");
    for (const Curve& curve : list_->chosen()) against_->addItem(QString::fromStdString(nameOf(curve)));
    against_->setCurrentIndex(std::max(0, against_->findText(QString::fromStdString(former))));
    view_->setAgainst(static_cast<std::size_t>(against_->currentIndex()));
    changed();
}

void PlotWindow::follow(const Timeline& timeline, const Editor& ed) {
    if (!isVisible()) return;
    const bool runs = ed.Timer1.enabled;
    if (!runs) list_->follow(ed);
    const RunReader::News news = reader_.follow(timeline, ed);
    const auto now = reader_.series().size() > 0 ? std::optional(timeline.at) : std::nullopt;
    if (news == RunReader::News::afresh)
        view_->showAfresh(now);
    else if (news == RunReader::News::more || now != view_->plot().now || !runs)
        view_->showMore(now, runs);
    showProgress();
}

void PlotWindow::showProgress() {
    const auto progress = reader_.progress();
    if (progress) progress_->setValue(static_cast<int>(std::lround(100 * *progress)));
    if (progress_->isHidden() != progress.has_value()) return;
    progress_->setVisible(progress.has_value());
    progress ? look_.start(lookPeriod) : look_.stop();
}

void PlotWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    opened();
    if (list_->chosen().empty()) return choose(usualCurves());
    changed();
}

// What is not seen is not read on, nor kept.
void PlotWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous()) return;
    reader_.choose(list_->chosen());
    showProgress();
}

void PlotWindow::closeEvent(QCloseEvent* event) {
    closed();
    event->accept();
}

}  // namespace zentrik
