#include "cli/runs/model.h"

#include "basics/numbers.h"
#include "cli/files.h"
#include "cli/numbers.h"
#include "cli/runs/settable.h"
#include "host/quiet_host.h"
#include "project/hand_over.h"
#include "settings/first_run.h"
#include "sim/step.h"

#include <cmath>

namespace zentrik::cli {

namespace {

constexpr std::int32_t usualWidth = 14280, usualHeight = 3100;  // of a scene that no file names, twips

constexpr OptionRow options[] = {
    {nullptr, "set", "NAME=VALUE",
     "Change a global setting, or a field as in \"link 3..9.Angle=40\". May be given several times."},
    {nullptr, "animator", "on|off", "Whether links with an animator move by themselves; on by default."},
    {nullptr, "walls", "on|off", "Whether the scene ends at its left and right; on by default."},
    {nullptr, "ceiling", "on|off", "Whether the scene ends at its top; on by default."},
    {nullptr, "barriers", "on|off", "Whether barriers are heeded; off by default."},
    {nullptr, "reverse", "on|off", "Whether the whole model turns at a wall; on by default."},
    {nullptr, "directional", "on|off",
     "Whether initial velocities are direction and speed, not x and y; on by default."},
    {nullptr, "slow", "on|off", "Slow motion, with steps of 0.005 time units; off by default."},
};

constexpr OptionRow lengths[] = {
    {"n", "steps", "N", "Run for so many steps."},
    {"t", "time", "T", "Run for so much of the model's time: T * 1000 / TimeInterval steps."},
};

void applySwitches(Editor& ed, const Arguments& arguments) {
    const auto apply = [&](const char* name, bool& to, bool whenOn = true) {
        if (const auto on = arguments.onOrOff(name)) to = *on == whenOn;
    };
    apply("animator", ed.buttons.animation);
    apply("walls", ed.marks.mnuWalls);
    apply("ceiling", ed.marks.mnuCeiling);
    apply("barriers", ed.marks.mnuIgnoreBarriers, false);
    apply("reverse", ed.marks.mnuReverseModel);
    apply("directional", ed.marks.mnuUseDirectional);
    apply("slow", ed.buttons.slow);
}

void applySet(Editor& ed, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) throw Failure{wrongUse, "--set takes NAME=VALUE, not \"" + text + "\"."};
    const Settable settable(ed, text.substr(0, equals));
    const std::string value = text.substr(equals + 1);
    const auto number = value == "True" ? 1 : value == "False" ? 0 : readNumber(value);
    if (!number)
        throw Failure{wrongUse, "--set " + settable.name() + " takes a number, not \"" + value + "\"."};
    settable.setIn(ed, *number);
}

}  // namespace

std::string modelDetails() {
    return "The scene has the size the file names. NAME is a global setting as project files call it "
           "(Gravity, "
           "Friction, Viscosity, LeftWind, Bounce, TimeInterval, timer period, DeltaAngle, scene width, "
           "scene "
           "height, AnimationTime), one of the settings file (NodeRadius, ...), or a column of nodes or "
           "links "
           "with their numbers: \"node 4.Mass\", \"link 3..9.Angle\", \"link 2,5.k\", \"node all.Vxo\".";
}

std::span<const OptionRow> modelOptions() { return options; }
std::span<const OptionRow> lengthOptions() { return lengths; }

Editor openModel(const std::string& file, const Arguments& arguments, Streams& streams) {
    Reading reading = parseProject(readBytes(file, streams));
    if (reading.problem) throw Failure{finding, problemText(file, *reading.problem)};
    Editor ed = firstRun();
    const auto global = reading.project->global;
    const auto extent = [](float filed, std::int32_t usual) {
        return filed > 0 ? toInt(static_cast<double>(filed)) : usual;
    };
    ed.sceneWidth = extent(global ? global->sceneWidth : 0, usualWidth);
    ed.sceneHeight = extent(global ? global->sceneHeight : 0, usualHeight);
    QuietHost nobody;
    handOver(ed, nobody, std::move(*reading.project));
    applySwitches(ed, arguments);
    for (const std::string& text : arguments.all("set")) applySet(ed, text);
    return ed;
}

std::int64_t stepsToRun(const Editor& ed, const Arguments& arguments) {
    const auto steps = arguments.number("steps", 0);
    const auto time = arguments.value("time");
    if (steps.has_value() == time.has_value())
        throw Failure{wrongUse, "Either --steps or --time must say how far to run."};
    if (steps) return *steps;
    const auto length = readNumber(*time);
    if (!length || *length < 0) throw Failure{wrongUse, "--time takes a time, not \"" + *time + "\"."};
    const double count = *length / static_cast<double>(stepSize(ed));
    if (!(count >= 0 && count < 1e15))
        throw Failure{wrongUse, "--time " + *time + " does not end with a TimeInterval of " +
                                    realText(ed.TimeInterval) + "; try --steps."};
    return std::llround(count);
}

}  // namespace zentrik::cli
