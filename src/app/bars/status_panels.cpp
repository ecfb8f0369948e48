#include "app/bars/status_panels.h"

#include <QEvent>
#include <QPainter>
#include <QStatusBar>
#include <algorithm>

namespace zentrik {

namespace {

constexpr int designWidths[] = {118, 118, 141, 169};  // of the first four panels, pixels
constexpr int sideMargin = 6;

}  // namespace

bool StatusPanel::show(const QString& text) {
    if (this->text() == text) return false;
    setText(text);
    measure();
    return true;
}

void StatusPanel::measure() {
    needed_ = fontMetrics().horizontalAdvance(text());
    renewTip();
}

void StatusPanel::setTip(const QString& tip) {
    tip_ = tip;
    renewTip();
}

void StatusPanel::renewTip() { setToolTip(isWhole() ? tip_ : text()); }

void StatusPanel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    renewTip();
}

void StatusPanel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measure();
}

void StatusPanel::paintEvent(QPaintEvent*) {
    const QRect room = contentsRect();
    const QString shown = isWhole() ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    QPainter(this).drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

StatusPanels::StatusPanels(QStatusBar& bar) : bar_(bar) {
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        auto* panel = new StatusPanel(&bar);
        panel->setObjectName(QString("Panel%1").arg(i + 1));
        panel->setTextFormat(Qt::PlainText);
        panel->setContentsMargins(sideMargin, 0, sideMargin, 0);
        const bool wide = i >= std::size(designWidths);
        // The wide panel's text may be longer than the window; it must not widen it.
        if (wide) panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        bar.addWidget(panel, wide ? 1 : 0);
        panels_[i] = panel;
    }
    fit();
}

void StatusPanels::fit() {
    constexpr int margins = 5;  // above and below the panels, as Qt lays a status bar out
    const int height = std::max(designHeight, bar_.fontMetrics().height() + margins);
    bar_.setFixedHeight(height);
    // Of a label whose size is fixed both ways a new text lays out nothing, and the clock has one with every
    // tick.
    for (StatusPanel* panel : panels_) panel->setFixedHeight(height - margins);
    for (std::size_t i = 0; i < std::size(designWidths); ++i) {
        panels_[i]->setFixedWidth(designWidths[i]);
        widen(i);
    }
}

// Only ever wider: a panel that shrank with every other text would make its neighbours dance.
void StatusPanels::widen(std::size_t number) {
    StatusPanel& panel = *panels_[number];
    const int needed = panel.needed() + 2 * sideMargin + 1;
    if (needed > panel.minimumWidth()) panel.setFixedWidth(needed);
}

void StatusPanels::show(const std::array<std::string, 5>& texts) {
    for (std::size_t i = 0; i < panels_.size(); ++i)
        if (panels_[i]->show(QString::fromStdString(texts[i])) && i < std::size(designWidths)) widen(i);
}

}  // namespace zentrik
