// Painting probed by colour at known points: every layer, each switch on and off.

#include "display/scene.h"

#include "basics/units.h"
#include "display/canvas/lettering.h"
#include "display/canvas/stamp.h"
#include "display/path.h"
#include "display/phase_strip.h"
#include "model/redraw.h"
#include "model/store.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace zentrik {
namespace {

constexpr std::int32_t paper = 0xF0F8FF, ink = 0x00A000, fill = 0x40C0E0;

QImage blankImage(std::int32_t width, std::int32_t height, double ratio) {
    QImage image(QSize(width, height) / twipsPerPixel * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    return image;
}

QImage painted(const Editor& ed, double ratio = 1) {
    QImage image = blankImage(ed.sceneWidth, ed.sceneHeight, ratio);
    QPainter painter(&image);
    drawScene(painter, ed, {});
    return image;
}

// Colour at a place in twips.
std::int32_t at(const QImage& image, double x, double y) {
    const double unit = image.devicePixelRatio() / twipsPerPixel;
    const QColor c = image.pixelColor(static_cast<int>(x * unit), static_cast<int>(y * unit));
    return c.red() + 256 * c.green() + 65536 * c.blue();
}

// Nodes 1 (1500, 1500) and 2 (4500, 1500), joined by link 1; a scene of 400 x 300 pixels.
Editor pair() {
    Editor ed;
    ed.sceneWidth = 6000;
    ed.sceneHeight = 4500;
    ed.BackColor = paper;
    ed.LinkColor = ink;
    ed.NodeColor = fill;
    ed.NodeRadius = 150;
    ed.GridSize = 300;
    scenes::addNode(ed, 1500, 1500);
    scenes::addNode(ed, 4500, 1500);
    scenes::addLink(ed, 1, 2);
    return ed;
}

struct Probe {
    const char* what;
    std::function<void(Editor&)> change;
    double x, y;
    std::int32_t expected;
};

TEST(Scene, EveryLayerShowsWhereItsSwitchesSay) {
    const auto nothing = [](Editor&) {};
    const auto locked = [](std::int32_t trigger) {
        return [trigger](Editor& ed) { ed.Nodes[1].Locked = true, ed.Nodes[1].Trigger = trigger; };
    };
    // As a mark of node 1, or with the node's gravity or lock.
    const auto selected = [](bool Buttons::*off, float gravity = 0, bool isLocked = false) {
        return [=](Editor& ed) {
            ed.SelectedNode = ed.SelectedLink = 1;
            ed.buttons.*off = false;
            ed.Nodes[1].Gravity = gravity;
            ed.Nodes[1].Locked = isLocked;
        };
    };
    const auto animated = [](bool line, bool activeline) {
        return [=](Editor& ed) {
            ed.Links[1].Animator = true;
            ed.buttons.line = line;
            ed.buttons.activeline = activeline;
        };
    };
    const auto grid = [](bool running, bool allowed) {
        return [=](Editor& ed) {
            ed.buttons.grid = true;
            ed.drawnRunning = running;
            ed.marks.mnuAllowGrid = allowed;
        };
    };
    const auto later = [](Editor& ed) {
        nodeAt(ed, scenes::addNode(ed, 4500, 1500)).color = 0x123456;
        ed.Links[1].Barrier = true;
        scenes::addLink(ed, 2, 1);
    };
    const auto rubberBand = [](Editor& ed) { ed.SelectedNode = 1, ed.rubberBand = PointF{1500, 4000}; };
    const auto stale = [](Editor& ed) {
        ed.SelectedNode = ed.HoverNode = ed.SelectedLink = ed.HoverLink = 1000;
    };
    const Probe probes[] = {
        {"background to the last corner", nothing, 5999, 4499, paper},
        {"node", nothing, 1500, 1500, fill},
        {"circle: no corner", nothing, 1635, 1635, paper},
        {"outline", locked(none), 1650, 1500, black},
        {"no balls", [](Editor& ed) { ed.buttons.ball = false; }, 1500, 1515, paper},
        {"link", nothing, 2500, 1500, ink},
        {"no lines", [](Editor& ed) { ed.buttons.line = false; }, 2500, 1500, paper},
        {"unused link", [](Editor& ed) { ed.Links[1].Used = false; }, 2500, 1500, paper},
        {"link to nowhere", [](Editor& ed) { ed.Links[1].N2 = 77; }, 2500, 1500, paper},
        {"barrier", [](Editor& ed) { ed.Links[1].Barrier = true; }, 2500, 1485, red},
        {"barrier at the very edge",
         [](Editor& ed) { ed.Links[1].Barrier = true, ed.Nodes[1].Y = ed.Nodes[2].Y = -15; }, 2500, 5, red},
        {"link is thin", nothing, 2500, 1485, paper},
        {"selected link", [](Editor& ed) { ed.SelectedLink = 1; }, 2500, 1500, blue},
        {"selected barrier is thin", [](Editor& ed) { ed.SelectedLink = 1, ed.Links[1].Barrier = true; },
         2500, 1485, paper},
        {"animated link, not highlighted", animated(true, false), 2500, 1500, ink},
        {"animated link without lines", animated(false, true), 2500, 1500, blue},
        {"highlight of plain link", [](Editor& ed) { ed.buttons.activeline = true; }, 2500, 1500, ink},
        {"locked: square", locked(none), 1620, 1620, fill},
        {"shooter: large square", locked(0), 1700, 1700, fill},
        {"shooter without trigger: no barrel", locked(0), 1215, 1500, paper},
        {"barrel, away from the trigger", locked(2), 1215, 1500, green},
        {"trigger that does not exist", locked(99), 1215, 1500, paper},
        {"unlocked shooter is a circle", [](Editor& ed) { ed.Nodes[1].Trigger = 2; }, 1635, 1635, paper},
        {"gravity dot", [](Editor& ed) { ed.Nodes[1].Gravity = -1; }, 1500, 1500, yellow},
        {"gravity dot is half as wide", [](Editor& ed) { ed.Nodes[1].Gravity = 1; }, 1500, 1600, fill},
        {"selected node, balls off", selected(&Buttons::ball), 1500, 1600, red},
        {"selected locked node", selected(&Buttons::data, 0, true), 1620, 1620, red},
        {"selected node keeps its gravity dot", selected(&Buttons::data, 1), 1500, 1500, yellow},
        {"selected link's dot, lines off", selected(&Buttons::line), 3000, 1600, blue},
        {"later node on top", later, 4500, 1500, 0x123456},
        {"later link on top", later, 2500, 1500, ink},
        {"hover covers selection", [](Editor& ed) { ed.SelectedNode = ed.HoverNode = 1; }, 1500, 1500, white},
        {"hover link's dot", [](Editor& ed) { ed.HoverLink = 1; }, 3000, 1600, white},
        {"stale selections", stale, 3000, 1600, paper},
        {"rubber band", rubberBand, 1500, 3000, ink},
        {"grid dot", grid(false, false), 300, 300, gridGrey},
        {"no grid dot at the edge", grid(false, false), 0, 300, paper},
        {"grid off", nothing, 300, 300, paper},
        {"grid while running", grid(true, false), 300, 300, paper},
        {"grid allowed while running", grid(true, true), 300, 300, gridGrey},
        {"blank scene", [](Editor& ed) { ed.sceneBlank = true; }, 1500, 1500, paper},
    };
    for (const Probe& probe : probes)
        for (const double ratio : {1.0, 2.0}) {
            Editor ed = pair();
            probe.change(ed);
            EXPECT_EQ(at(painted(ed, ratio), probe.x, probe.y), probe.expected)
                << probe.what << " at ratio " << ratio;
        }
}

TEST(Scene, TextsAppearWithTheirSwitchesAndStandOutFromTheBackground) {
    Editor ed;
    ed.sceneWidth = 9000;
    ed.sceneHeight = 4500;
    ed.ProjectTitle = "Title";
    const QRect title(200, 17, 200, 25), simple(7, 0, 400, 16), instructions(30, 80, 500, 150);
    int apart = 0;  // furthest brightness from the background's
    const auto inked = [&](const QRect& area) {
        const QImage image = painted(ed).copy(area);
        int found = apart = 0;
        for (int at = 0; at < area.width() * area.height(); ++at) {
            const QRgb pixel = image.pixel(at % area.width(), at / area.width());
            found += pixel != colourOf(ed.BackColor).rgb();
            apart = std::max(apart, std::abs(qGray(pixel) - qGray(colourOf(ed.BackColor).rgb())));
        }
        return found;
    };
    EXPECT_EQ(inked(title) + inked(simple) + inked(instructions), 0);
    ed.marks.mnuDisplayTitle = true;
    EXPECT_EQ(inked(title.translated(-200, 0)), 0) << "the title is centred";
    for (const std::int32_t back : {0x000000, 0x202020, 0x808080, 0x0000FF, 0xFFFFFF}) {
        ed.BackColor = back;
        EXPECT_GT(inked(title), 100);
        EXPECT_GT(apart, 70) << "background " << back;
    }
    ed.buttons.simple = true;
    EXPECT_GT(inked(simple), 50);
    ed.instructionsShown = true;
    EXPECT_GT(inked(instructions), 1000);
}

// Both blend the same weights; only the rounding of two blendings against one may differ.
TEST(Stamps, LookLikeShapesDrawnOneByOne) {
    for (const double ratio : {1.0, 1.25, 2.0})
        for (const Shape shape : {Shape::circle, Shape::square})
            for (const double radius : {0.0, 15.0, 60.0, 90.0, 455.0}) {
                QImage stamped = blankImage(1500, 1500, ratio), drawn = stamped;
                QPainter onStamped(&stamped), onDrawn(&drawn);
                {
                    const Canvas a(onStamped, 1500, 1500), b(onDrawn, 1500, 1500);
                    Stamp stamp(a, shape, radius);
                    stamp.paint(100, 100, blue, white);
                    stamp.paint(703, 691, fill, black);
                    drawShape(onDrawn, shape, b.place(100, 100), b.pixels(radius), b.thinWidth, Qt::blue,
                              Qt::white);
                    drawShape(onDrawn, shape, b.place(703, 691), b.pixels(radius), b.thinWidth,
                              colourOf(fill), Qt::black);
                }
                int worst = 0;
                for (qsizetype byte = 0; byte < drawn.sizeInBytes(); ++byte)
                    worst = std::max(worst, std::abs(stamped.constBits()[byte] - drawn.constBits()[byte]));
                EXPECT_LE(worst, 2) << ratio << " radius " << radius;
            }
}

TEST(Stamps, KeepMoreColoursApartThanTheyKeepPictures) {
    QImage image = blankImage(15000, 3000, 1);
    QPainter painter(&image);
    const Canvas canvas(painter, 15000, 3000);
    Stamp stamp(canvas, Shape::square, 60);
    const auto place = [](int n) { return QPointF(105 + n % 70 * 210, 105 + n / 70 * 210); };
    const auto colour = [](int n) { return n * 7919 % 0xFFFFFF; };
    for (int n = 0; n < 700; ++n) {
        const int again = n < 350 ? n : n % 19;  // many, then few
        stamp.paint(place(n).x(), place(n).y(), colour(again), colour(again + 1 + n % 2));
    }
    for (int n = 0; n < 700; ++n) {
        const int again = n < 350 ? n : n % 19;
        EXPECT_EQ(at(image, place(n).x(), place(n).y()), colour(again)) << n;
        EXPECT_EQ(at(image, place(n).x() + 60, place(n).y()), colour(again + 1 + n % 2)) << n;
    }
}

TEST(Lettering, NumbersByGroupsLookLikeDigitsOneByOne) {
    for (const double ratio : {1.0, 2.0})
        for (const QColor ground : {QColor(Qt::white), QColor(Qt::magenta)}) {
            QImage grouped = blankImage(2400, 600, ratio);
            grouped.fill(ground);
            QImage single = grouped;
            QPainter onGrouped(&grouped), onSingle(&single);
            for (QPainter* painter : {&onGrouped, &onSingle}) painter->scale(1 / ratio, 1 / ratio);
            Lettering& letters = lettering(ratio, black, white);
            const std::string text = " 7 42 817 9058172633 ";
            letters.print(onGrouped, {10, 10}, text);
            letters.print(onSingle, {10, 10}, text + "    .");  // with a letter in it, it is no number
            const int end = static_cast<int>(10 + letters.width(text));
            int apart = 0, inked = 0;
            for (int y = 0; y < single.height(); ++y)
                for (int x = 0; x < end; ++x) {
                    const int a = single.pixelColor(x, y).green(), b = grouped.pixelColor(x, y).green();
                    inked += single.pixelColor(x, y).red() < 128;
                    apart += std::abs(a - b) > 4;
                }
            EXPECT_GT(inked, 100) << ratio;
            // Where groups meet, a few pixels of one halo are missing; on a ground of its colour nothing is.
            EXPECT_LE(apart, ground == QColor(Qt::white) ? 0 : 40 * ratio * ratio) << ratio;
        }
}

TEST(Lettering, StandsInItsInkOnItsPaper) {
    const auto count = [](std::int32_t ground, std::int32_t inkColour, std::int32_t paperColour,
                          QColor wanted) {
        QImage image = blankImage(1500, 600, 1);
        image.fill(colourOf(ground));
        QPainter painter(&image);
        lettering(1, inkColour, paperColour).print(painter, {10, 10}, "Ink 42");
        int found = 0;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor pixel = image.pixelColor(i % image.width(), i / image.width());
            found += std::abs(pixel.red() - wanted.red()) + std::abs(pixel.green() - wanted.green()) +
                         std::abs(pixel.blue() - wanted.blue()) <
                     120;
        }
        return found;
    };
    for (int round = 0; round < 2; ++round) {
        EXPECT_GT(count(white, blue, white, Qt::blue), 20);
        EXPECT_GT(count(white, red, white, Qt::red), 20) << "not the ink used last";
        EXPECT_EQ(count(white, red, white, Qt::blue), 0);
    }
    EXPECT_GT(count(black, black, white, Qt::white), 80) << "a halo of paper";
    EXPECT_LT(count(black, black, white, Qt::white), 200);
    const int mixed = count(black, blue, black, QColor(128, 128, 255));
    EXPECT_GT(mixed, 20) << "blue is made lighter on black, and stays blue";
}

TEST(Lettering, TitlesOfAnyWritingShow) {
    const auto inkOf = [](const char* title) {
        Editor ed;
        ed.sceneWidth = 9000;
        ed.sceneHeight = 1200;
        ed.marks.mnuDisplayTitle = true;
        ed.ProjectTitle = title;
        const QImage image = painted(ed);
        int found = 0;
        for (int i = 0; i < image.width() * image.height(); ++i)
            found += image.pixelColor(i % image.width(), i / image.width()).green() < 128;
        return found;
    };
    const int latin = inkOf("Title");
    EXPECT_GT(latin, 200);
    EXPECT_EQ(inkOf("\u00e9"), inkOf("e\u0301")) << "composed or not";
    for (const char* lacked : {"Title \u10d0", "Title x\u0323\u0308", "\u05ea Title \u05d0"})
        EXPECT_GT(inkOf(lacked), latin + 10) << lacked;
}

TEST(Scene, PlacesAndSizesOfAnyMagnitudeArePaintable) {
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    Editor ed = pair();
    ed.buttons.grid = ed.buttons.numbers = ed.buttons.activeline = true;
    const std::int32_t corners[] = {least, -15000, 0, 3000, most};
    for (const std::int32_t x : corners)
        for (const std::int32_t y : corners) {
            const std::int32_t i = scenes::addNode(ed, x, y);
            nodeAt(ed, i).Locked = i % 2 == 0;
            nodeAt(ed, i).Trigger = i % 4 == 0 ? i - 1 : none;
            nodeAt(ed, i).Gravity = 1;
            Link& link = linkAt(ed, scenes::addLink(ed, i - 1, i));
            link.Barrier = i % 3 == 0;
            link.Animator = i % 5 == 0;
        }
    for (const std::int32_t radius : {least, 0, 400, most})
        for (const float grid : {-1e38F, 0.0F, 1.0F, 1e38F}) {
            ed.NodeRadius = radius;
            ed.GridSize = grid;
            ed.GridRadius = grid;
            painted(ed);
        }
    ed.NodeRadius = 60;
    ed.BackColor = ed.LinkColor = most;
    EXPECT_EQ(at(painted(ed), 2000, 4000), white) << "colours beyond 24 bits keep their low bits";
    ed.sceneWidth = ed.sceneHeight = 0;
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    drawScene(painter, ed, {});

    ed = pair();  // a line whose ends lie far outside runs through the same pixels as its visible part
    ed.Nodes[1].X = ed.Nodes[1].Y = -1500000000;
    ed.Nodes[2].X = ed.Nodes[2].Y = 1500000000;
    EXPECT_EQ(at(painted(ed), 3000, 3000), ink);
    EXPECT_EQ(at(painted(ed), 3000, 3030), paper);
}

TEST(PhaseStrip, ShowsAxisDiscsMarksAndCurve) {
    Editor ed = pair();
    for (int k = 0; k < 3; ++k) scenes::addLink(ed, 1, 2);
    for (std::size_t j = 2; j <= 4; ++j) {
        ed.Links[j].Animator = true;
        ed.Links[j].Angle = 90;
    }
    ed.phaseWidth = 12000;
    ed.marks.mnuDisplayAngleManager = true;
    DrawPhaseManager(ed, 0);
    ed.SelectedAnimatorLink = 3;
    ed.PhaseOverLink = 4;
    for (const double ratio : {1.0, 2.0}) {
        QImage image = blankImage(ed.phaseWidth, ed.phaseHeight, ratio);
        QPainter painter(&image);
        drawPhaseStrip(painter, ed);
        const std::int32_t ground = at(image, 600, 600);
        EXPECT_EQ(at(image, 3600, 300), fill);
        EXPECT_EQ(at(image, 3600, 500), blue);
        EXPECT_EQ(at(image, 3600, 700), white);
        EXPECT_NE(at(image, 1200, 1400), ground) << "0 degrees";
        EXPECT_NE(at(image, 1185, 1400), ground) << "thick";
        EXPECT_NE(at(image, 10800, 10), ground) << "360 degrees";
        EXPECT_NE(at(image, 4800, 1400), ground) << "135 degrees";
        EXPECT_EQ(at(image, 4815, 1400), ground) << "thin";
        EXPECT_EQ(at(image, 5400, 600), ground);
        // d = 270 degrees lies at the lowest point of the curve: x = 0.8 * 12000 / 4 + 1200.
        const std::int32_t low = at(image, 3600, 1440);
        EXPECT_TRUE((low & 0xFF) > 0xE0 && ((low >> 8) & 0xFF) < 0xA0) << "reddish: " << low;
    }
    ed.Links[3].Animator = ed.Links[4].Animator = false;
    {
        QImage image = blankImage(ed.phaseWidth, ed.phaseHeight, 1);
        QPainter painter(&image);
        drawPhaseStrip(painter, ed);
        EXPECT_EQ(at(image, 3600, 500), blue) << "picked though no longer animated";
        EXPECT_EQ(at(image, 3600, 700), white);
    }
    ed.SelectedAnimatorLink = ed.PhaseOverLink = 99;  // outlived by their links
    ed.phaseWidth = ed.phaseHeight = 0;
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    drawPhaseStrip(painter, ed);
}

TEST(Path, AddsOnlyTheNewDots) {
    const std::vector<PathDot> dots{
        {150, 150, red}, {300, 300, green}, {450, 450, blue}, {-99, 1 << 30, red}};
    for (const double ratio : {1.0, 2.0}) {
        QImage image = blankImage(600, 600, ratio);
        QPainter painter(&image);
        drawPath(painter, dots, 1);
        EXPECT_EQ(at(image, 150, 150), 0xFF00FF) << "drawn before";
        EXPECT_EQ(at(image, 300, 300), green);
        EXPECT_EQ(at(image, 314, 314), green) << "a whole pixel at any ratio";
        EXPECT_EQ(at(image, 315, 315), 0xFF00FF);
        EXPECT_EQ(at(image, 450, 450), blue);
    }
}

}  // namespace
}  // namespace zentrik
