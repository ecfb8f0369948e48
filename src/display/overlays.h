#pragma once
// What is printed over the scene: node and link numbers, one line of settings, the full project
// information, the instructions. Only texts and places; painting them is the scene's business.

#include "model/editor.h"

#include <string>
#include <vector>

namespace zentrik {

struct TextRun {
    double x = 0, y = 0;  // top-left corner, twips of the scene
    std::int32_t colour = 0;
    std::string text;  // ASCII

    bool operator==(const TextRun&) const = default;
};

// Printed lines and a cursor that moves down them. What lies outside the scene is not kept.
class TextPage {
public:
    // Extents of the scene and height of a line, twips.
    TextPage(const Editor& ed, double lineHeight);

    std::vector<TextRun> runs;
    std::int32_t colour = 0;  // of what is printed next
    double y = 0;             // top of the cursor's line

    // Prints at x in the cursor's line, and stays in it.
    void put(double x, std::string text);
    // Prints and goes to the next line.
    void line(double x, std::string text);
    void emptyLine() { y += lineHeight_; }
    // False where a line at the cursor could not be seen: worth asking before forming its text.
    bool lineShows() const { return y > -lineHeight_ && y < height_; }
    double width() const { return width_; }

private:
    double width_, height_, lineHeight_;
};

// Where the one-line read-out prints the first global value, the selected node's and the selected link's,
// twips.
inline constexpr double readoutLeft = 100, readoutNode = 7550, readoutLink = 10800;

void PrintNumbers(TextPage& page, const Editor& ed);
void PrintSimpleData(TextPage& page, const Editor& ed);
void PrintDataOnScreen(TextPage& page, const Editor& ed);

// The overlays whose buttons are pressed; the page's colour is then the one they left, black when they
// set none.
TextPage overlayPage(const Editor& ed, double lineHeight);
TextPage instructionsPage(const Editor& ed, double lineHeight);

}  // namespace zentrik
