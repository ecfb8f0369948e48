#pragma once
#include <QObject>
#include <functional>

namespace zentrik {

class StatusPanel;

// The wheel over the clock goes through the run: a notch is a step, away from the person is on; with Shift a
// notch is a hundred steps.
class TimeWheel : public QObject {
public:
    explicit TimeWheel(StatusPanel& clock);

    std::function<void(int steps)> turned;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int turn_ = 0;  // not yet a notch, eighths of a degree
};

}  // namespace zentrik
