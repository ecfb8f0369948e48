#include "export/films/reel.h"

#include "effects/fireworks.h"
#include "sim/model_run.h"
#include "sim/step.h"

#include <algorithm>
#include <cmath>

namespace zentrik {

namespace {

// The step that a picture shows.
std::int64_t stepOf(const Editor& ed, const FilmPlan& plan, std::int64_t picture) {
    const double milliseconds = 1000.0 * static_cast<double>(picture) / plan.rate;
    return std::llround(milliseconds / ed.timerPeriod);
}

}  // namespace

std::int64_t stepsIn(const Editor& ed, double seconds) {
    const double steps = seconds / std::abs(static_cast<double>(stepSize(ed)));
    return steps >= 1 ? std::llround(std::min(steps, 1e9)) : 1;
}

double playingTime(const Editor& ed, const FilmPlan& plan) {
    return static_cast<double>(plan.steps) * ed.timerPeriod / 1000.0;
}

std::int64_t pictureCount(const Editor& ed, const FilmPlan& plan) {
    return std::max<std::int64_t>(1, std::llround(playingTime(ed, plan) * plan.rate));
}

// The same film whoever makes it: chance starts alike.
Reel::Reel(const Editor& from, const FilmPlan& plan)
    : subject_(from), plan_(plan), pictures_(pictureCount(from, plan)) {
    Editor& ed = subject_.ed;
    subject_.sprites.setRatio(plan.look.scale);
    if (!ed.buttons.start) beginRun(ed);
    ed.chance.tie(0);
    ed.chance.reseed();
}

bool Reel::next() {
    if (picture_ + 1 >= pictures_) return false;
    ++picture_;
    for (const std::int64_t shown = stepOf(subject_.ed, plan_, picture_); step_ < shown;) {
        if (!step()) {
            stopped_ = whyStopped(subject_.ed);
            return false;
        }
    }
    return true;
}

bool Reel::step() {
    Editor& ed = subject_.ed;
    ++step_;
    if (!stepRun(ed)) return false;
    fireworksDue_ += ed.timerPeriod;
    if (!ed.timerFireWorks.enabled || fireworksDue_ < fireworksPeriod) return true;
    fireworksDue_ = 0;
    timerFireWorks_Timer(ed);
    return true;
}

}  // namespace zentrik
