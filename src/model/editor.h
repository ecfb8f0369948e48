#pragma once
// The whole state of the program in one record. Procedures change it, the window shows it.

#include "basics/chance.h"
#include "model/contents.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zentrik {

// Check marks of the menu bar; each is the stored option itself. firstRun gives the first-run values.
struct Marks {
    bool mnuAllowZero = false, mnuAllowSprites = false, mnuCannonBallFocus = false;
    bool mnuDisplayFireWorks = false, mnuPersistentFireworks = false;
    bool mnuIgnoreBarriers = false, mnuWalls = false, mnuCeiling = false;
    bool mnuAutoResume = false, mnuApplyChanges = false, mnuUseDirectional = false;
    bool mnuReverseModel = false, mnuAutoWindowSize = false, mnuDisplayTitle = false;
    bool mnuAllowGrid = false, mnuUseRandom = false, mnuRandom = false;
    bool mnuDisplayBrowser = false, mnuDisplayAngleManager = false, mnuDisplayPath = false;
};

// Pressed states of the two-state buttons of both toolbars.
struct Buttons {
    bool start = false, slow = false, animation = false;
    bool data = false, simple = false, numbers = false;
    bool draw = true, same = true, ball = true, line = true;
    bool activeline = false, sprite = false, grid = false, snap = false;
    bool locked = false, shooter = false, animator = false, barrier = false;
};

// Tool tips that change while the program runs; every other tip stands in the toolbar tables.
struct Tips {
    std::string start = "Start Animation";
    std::string gravity = "Gravity", friction = "Surface Friction";
    std::string viscosity = "Air Friction (Viscosity)", wind = "Left Wind", bounce = "Bounce";
    std::string interval = "Time Interval", rate = "Interval Rate", speed = "Animation Speed";
    std::string mass = "Mass", gforce = "Gravitational Force", rotate = "Node rotational force";
    std::string direction = "Initial Direction", velocity = "Initial Velocity";
    std::string vxo = "Initial Node X-Velocity", vyo = "Initial Node Y-Velocity";
    std::string k = "Spring Constant (k)", angle = "Animation Angle", force = "Animation Force";
};

struct Timer {
    bool enabled = false;
};
inline constexpr std::int32_t fireworksPeriod = 500;  // milliseconds

struct PointF {
    float x = 0, y = 0;  // twips

    bool operator==(const PointF&) const = default;
};

struct PathDot {
    std::int32_t x = 0, y = 0;  // twips of the path window, half the scene's
    std::int32_t colour = 0;
};

struct Rect {
    std::int32_t left = 0, top = 0, width = 0, height = 0;  // twips of the main window's inside
};

// Where the window puts its movable areas.
struct Layout {
    Rect picS, picPhase, Frame1, HScroll1;
};

struct Editor : Contents {
    // The snapshot that "Reset To Last Start" restores.
    std::vector<Node> SavedNodes = std::vector<Node>(1);
    std::vector<Link> SavedLinks = std::vector<Link>(1);

    // Global settings that no project carries.
    std::int32_t NodeRadius = 60, HitRadius = 90;  // twips
    float DefaultLinkK = 5, DefaultLinkForce = 0.2F;
    float GridSize = 250, GridRadius = 15;  // twips
    std::int32_t LinkColor = 0, NodeColor = 0, BackColor = 0xFFFFFF;
    float ShooterDirection = 0.7825F;       // radians
    float ShooterVelocity = 8000;           // twips per time unit
    std::string StructureParm = "20:1000";  // nodes:radius

    // Run state.
    std::int32_t Cycles = 0, LastShooter = 0, FireworksTicks = 0;
    bool SingleStep = false, InitialVelocityPending = false;
    Timer Timer1, timerFireWorks;  // of the animation, and of the fireworks
    Chance chance;

    // Selection and mouse editing; -1 means none.
    std::int32_t SelectedNode = none, SelectedLink = none;
    std::int32_t HoverNode = none, HoverLink = none;
    std::int32_t SelectedAnimatorLink = none, PhaseOverLink = none;
    bool MouseIsDown = false, DrawMode = false, SelectedNodeClicked = false, PhaseDragging = false;

    // What the controls show.
    Marks marks;
    Buttons buttons;
    Tips tips;
    std::array<std::string, 5> panels;                // status panels 1 to 5
    bool nodeControls = false, linkControls = false;  // enabled groups of the property toolbar
    std::vector<std::string> spriteNames{noSprite};   // entries of lstSprites
    std::int32_t spriteEntry = 0;                     // its selected entry
    std::vector<std::string> savedNames;              // entries of lstSaved
    std::string savedText;                            // its text: the current project's name
    std::int32_t filedCount = 0;     // counts loads and saves after which model and file are the same
    std::int32_t goneCount = 0;      // counts the files of projects that were renamed or deleted,
    std::string goneName;            // and the last one's name
    std::int32_t replacedCount = 0;  // counts the times another model took the place of the model
    std::int32_t windowWidth = 0, windowHeight = 0;  // inside of the main window, twips
    bool windowMaximized = false;                    // when the program last ended
    Layout layout;
    std::int32_t sceneWidth = 0, sceneHeight = 0;     // picS, twips
    std::int32_t phaseWidth = 0, phaseHeight = 1500;  // picPhase, twips

    // What waits to be painted.
    bool sceneStale = true, phaseStale = true;
    bool drawnRunning = false;         // the last redraw was one of the running animation
    bool marksStale = false;           // of the scene only its marks and the rubber band
    bool sceneBlank = false;           // cleared to the background until the next redraw
    bool instructionsShown = false;    // likewise, on top of the scene
    std::optional<PointF> rubberBand;  // free end of the link being drawn
    float phaseShift = 0;              // shift of the strip's sine curve, radians
    std::vector<PathDot> pathDots;     // the selected node's track
    std::int32_t pathErased = 0;       // counts erasures, so that a view knows to start afresh

    std::string programFolder;  // where zoo and sprites are
    std::string plotPlace;      // of the plot's window, as Qt tells it; empty until it was open
    std::string shareFolder;    // where a picture or film was saved last; empty for none yet
};

// Panels are numbered from 1, as the status bar counts them.
inline std::string& panel(Editor& ed, std::size_t number) { return ed.panels.at(number - 1); }

}  // namespace zentrik
