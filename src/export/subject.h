#pragma once
#include "display/sprites.h"
#include "model/editor.h"

namespace zentrik {

// What is exported: a copy of the record, with sprites of its own, that no one else changes or draws. What
// only the pointer shows, such as the mark of the node under it, is left out.
struct Subject {
    explicit Subject(const Editor& of);

    Editor ed;
    SpritePictures sprites;
};

}  // namespace zentrik
