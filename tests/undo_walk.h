#pragma once
// A random walk of commands, gestures, ticks, loads, undo and redo through a model, and the proof that
// undoing everything gives the first model bit for bit and redoing everything the last.

#include "model/editor.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zentrik {

// programFolder holds projects to load; nothing in it is changed. Gives what went wrong in words, or the
// empty text. The same seed gives the same walk.
std::string undoWalk(std::uint32_t seed, int events, const std::string& programFolder);

// The same walk as a text of a line an event: a hash of everything that a person or a file could know then,
// from the record to the picture and what boxes asked, and what the last status panel says.
std::string walkedTrail(std::uint32_t seed, int events, Editor model,
                        const std::function<std::string(const Editor& ed)>& picture);

// Every field of the model and of the settings a project carries, as bytes.
std::string imageOf(const Editor& ed);

}  // namespace zentrik
