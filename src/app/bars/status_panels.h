#pragma once
#include <QLabel>
#include <array>
#include <string>

class QStatusBar;

namespace zentrik {

// One text of the status bar. A text too long for its place ends in an ellipsis and stands whole in the tool
// tip.
class StatusPanel : public QLabel {
public:
    using QLabel::QLabel;
    bool show(const QString& text);         // whether it is another
    int needed() const { return needed_; }  // pixels, for the whole text
    void setTip(const QString& tip);        // the tool tip while the text is whole

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString tip_;
    int needed_ = 0;

    bool isWhole() const { return needed_ <= contentsRect().width(); }
    void measure();
    void renewTip();
};

// The five panels of the status bar. The first four are as wide as their texts need, and at least as wide as
// designed; the fifth takes the rest.
class StatusPanels {
public:
    static constexpr int designHeight = 22;  // pixels

    explicit StatusPanels(QStatusBar& bar);
    // Gives bar and panels the room that their font needs.
    void fit();
    StatusPanel& panel(std::size_t number) { return *panels_.at(number - 1); }  // counted from 1
    void show(const std::array<std::string, 5>& texts);

private:
    QStatusBar& bar_;
    std::array<StatusPanel*, 5> panels_{};

    void widen(std::size_t number);
};

}  // namespace zentrik
