#pragma once
// Films of a run: a moving picture, a page for browsers, a video, or a folder of numbered pictures.

#include "export/reel.h"

#include <functional>
#include <memory>
#include <span>
#include <string>

namespace zentrik {

// Takes a film picture by picture and makes its file. Leaves nothing behind when it is not finished.
class FilmWriter {
public:
    virtual ~FilmWriter() = default;

    // One that must know all pictures before it takes the first is shown the film twice.
    virtual bool looksFirst() const { return false; }
    virtual void look(const Subject&) {}

    // Both give the problem in words, or the empty text.
    virtual std::string take(const Subject& subject) = 0;
    virtual std::string finish() = 0;

    // How many bytes the file will have, seen from the part of the pictures taken, 0 to 1; 0 where nobody
    // knows.
    virtual double expectedSize(double part) const = 0;
};

struct FilmFormat {
    const char* name;            // as a person chooses it
    const char* suffix;          // of its file; empty for a folder
    int usualRate, highestRate;  // pictures a second
    bool transparent;            // can be
    std::unique_ptr<FilmWriter> (*makeWriter)(const std::string& path, const Editor& ed,
                                              const FilmPlan& plan);
};
std::span<const FilmFormat> filmFormats();

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

// Makes the film, wholly or not at all, and replaces a file at the path. Any thread may call it.
FilmResult makeFilm(const Editor& ed, const FilmFormat& format, const FilmPlan& plan, const std::string& path,
                    const FilmProgress& goOn);

}  // namespace zentrik
