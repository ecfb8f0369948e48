#pragma once
// The sample projects, one function each.

#include "model/editor.h"

namespace zentrik::zoo {

struct Exhibit {
    const char* name;  // of the file, and in the project list
    Editor (*make)();
};

// Hanging from the top.
Editor acrobats();
Editor bridge();
Editor cloth();
Editor pendulum();

// Moving about on the floor.
Editor car();
Editor caterpillar();
Editor jelly();
Editor tower();
Editor walker();
Editor wheel();

// Floating or flying.
Editor birds();
Editor jellyfish();
Editor planets();
Editor range();

// Made with the program's own commands.
Editor blossoms();
Editor kites();
Editor windmills();

}  // namespace zentrik::zoo
