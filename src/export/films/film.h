#pragma once
// Films of a run: a moving picture, a page for browsers, a video, or a folder of numbered pictures.

#include "export/films/film_writer.h"
#include "export/making.h"

#include <memory>
#include <span>
#include <string>

namespace zentrik {

struct FilmFormat {
    const char* name;                       // as a person chooses it
    const char* suffix;                     // of its file; empty for a folder
    int usualRate = 25, highestRate = 100;  // pictures a second
    bool transparent = true;                // can be
    std::unique_ptr<FilmWriter> (*makeWriter)(const std::string& path, const Editor& ed,
                                              const FilmPlan& plan);
};
std::span<const FilmFormat> filmFormats();

// Makes the film, wholly or not at all, and replaces a file at the path. Any thread may call it.
FilmResult makeFilm(const Editor& ed, const FilmFormat& format, const FilmPlan& plan, const std::string& path,
                    const FilmProgress& goOn);

}  // namespace zentrik
