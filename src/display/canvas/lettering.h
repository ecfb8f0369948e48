#pragma once
// Text over a busy picture: letters legible on any background, and cheap enough for a number beside
// each of ten thousand nodes.

#include "display/canvas/canvas.h"

#include <QImage>
#include <QPainterPath>
#include <QPoint>
#include <array>
#include <string_view>
#include <vector>

namespace zentrik {

// A font's size in device pixels of the canvas; the scene's and the phase strip's is 8.25 points.
int scenePixels(double ratio, double points = 8.25);
// Height of a line at that size, twips; the same at every device pixel ratio.
double sceneLineHeight();

// The ink itself where it stands out from the paper, else the nearest mixture with black or white that
// reads well. Contrast as in WCAG 2.1, from relative luminance; red on white, at 4.0, just stands out.
std::int32_t legibleInk(std::int32_t ink, std::int32_t paper);

// Outlines of letters, and a rim of the paper's colour that is drawn before them; size of their font in
// pixels.
void strokeHalo(QPainter& painter, const QPainterPath& outline, int size, QColor paper);
void fillLetters(QPainter& painter, const QPainterPath& outline, QColor ink);

// Stamps texts from pictures made once: letter by letter, numbers by groups of digits. Characters outside
// printable ASCII leave a gap as wide as a blank.
class Lettering {
public:
    // Size in device pixels.
    Lettering(int size, std::int32_t ink, std::int32_t paper);

    // Top-left corner in device pixels.
    void print(QPainter& painter, QPointF topLeft, std::string_view text);
    double width(std::string_view text);

private:
    struct Picture {
        QPoint offset;  // from the letter's top-left corner
        QImage image;
        double advance = 0;  // of a group of digits
    };
    struct Letter {
        bool made = false;
        double advance = 0;  // whole device pixels: even spacing
        Picture halo, ink;
        QPainterPath outline;
    };
    const Letter& letter(char c);
    void printShapes(QPainter& painter, QPointF topLeft, std::string_view text);
    void printLetters(QPainter& painter, QPointF topLeft, std::string_view text);
    void printNumber(QPainter& painter, QPointF topLeft, std::string_view text);
    const Picture& digitsPicture(std::string_view digits, bool first);

    int size_;
    QColor ink_, paper_;
    double ascent_;
    std::array<Letter, 127> letters_;
    // Groups of digits: of numbers up to 999 as well as in longer ones, by their digits behind a 1 or a 2.
    static constexpr std::size_t longestGroup = 3;
    std::vector<Picture> digits_ = std::vector<Picture>(3000);
};

// The lettering of the scene's font that is kept for these colours. Pictures of letters look alike in every
// frame; those of the eight sets used last are kept.
Lettering& lettering(double ratio, std::int32_t ink, std::int32_t paper);

}  // namespace zentrik
