#pragma once
// The sample projects, one function each.

#include "model/editor.h"

namespace zentrik::zoo {

struct Exhibit {
    const char* name;  // of the file, and in the project list
    Editor (*make)();
};

// Lessons.
Editor welcome();
Editor fallingBall();
Editor spring();
Editor chainAndTruss();
Editor muscle();
Editor twoMuscles();
Editor rollingWheel();
Editor firstWalker();
Editor cannon();
Editor moon();

// To be measured.
Editor bouncer();
Editor oscillators();

// Hanging from the top.
Editor acrobats();
Editor bridge();
Editor cloth();
Editor pendulum();

// Moving about on the floor.
Editor car();
Editor caterpillar();
Editor climber();
Editor jelly();
Editor tower();
Editor walker();
Editor wheel();

// Floating or flying.
Editor birds();
Editor jellyfish();
Editor gallery();
Editor shoal();

// Held by attraction.
Editor planets();

// Among barriers.
Editor boxes();
Editor crowd();
Editor marbles();

// Driven by rotation.
Editor engine();

// Made with the program's own commands.
Editor blossoms();
Editor kites();
Editor windmills();

}  // namespace zentrik::zoo
