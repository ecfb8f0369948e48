#pragma once
// The pictures of a film: a copy of the model that is stepped from one picture to the next, as fast as the
// window would at its timer's period.

#include "export/picture.h"

#include <cstdint>

namespace zentrik {

struct FilmPlan {
    std::int64_t steps = 0;  // of the animation
    int rate = 25;           // pictures a second
    Look look;
};

// How many steps are nearest to a length of model time, in seconds; at least 1.
std::int64_t stepsIn(const Editor& ed, double seconds);
// How long the film plays, in seconds.
double playingTime(const Editor& ed, const FilmPlan& plan);
// At least 1; the first shows the model as it stands.
std::int64_t pictureCount(const Editor& ed, const FilmPlan& plan);

class Reel {
public:
    Reel(const Editor& from, const FilmPlan& plan);

    // What the picture shows.
    const Subject& subject() const { return subject_; }
    // Steps to the next picture. False behind the last, and where the model cannot be stepped any more.
    bool next();
    // Why it could not be stepped, in words; empty while it can.
    const std::string& stopped() const { return stopped_; }

private:
    Subject subject_;
    FilmPlan plan_;
    std::int64_t picture_ = 0, step_ = 0, pictures_;
    std::int64_t fireworksDue_ = 0;  // milliseconds since the last ones
    std::string stopped_;

    bool step();
};

}  // namespace zentrik
