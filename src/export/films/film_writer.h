#pragma once
#include "export/films/reel.h"

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

}  // namespace zentrik
