#pragma once
#include "model/editor.h"

#include <functional>
#include <string>
#include <vector>

namespace zentrik {

struct Exhibit {
    std::string name;  // of the project's file, without its suffix; no two alike
    std::string file;  // its bytes
    Editor ed;
};

// A web site of projects in a new folder, wholly or not at all: an index, and for each a live page, a picture
// and the project file; the pages share one script. It is read from the folder itself as well as from any web
// server. Gives the problem in words, or the empty text. goOn is asked before each; false ends it.
std::string makeGallery(const std::vector<Exhibit>& exhibits, const std::string& path,
                        const std::function<bool()>& goOn);

}  // namespace zentrik
