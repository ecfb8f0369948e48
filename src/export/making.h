#pragma once
// What is told while a film or a table is made, and what came of it.

#include <functional>
#include <string>

namespace zentrik {

struct FilmResult {
    std::string problem;  // in words; empty when the film was made
    std::string stopped;  // why it is shorter than planned
    bool cancelled = false;
};

// Of a film or table that nobody gave a length, in seconds of the model's time.
inline constexpr double usualFilm = 10;

struct FilmState {
    double done = 0;          // of the work, 0 to 1
    double expectedSize = 0;  // of the file, bytes; 0 while nobody knows
};
// Told how far it is; false ends it. Called by the thread that makes the film.
using FilmProgress = std::function<bool(const FilmState&)>;

}  // namespace zentrik
