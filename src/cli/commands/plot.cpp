#include "basics/text.h"
#include "cli/close_names.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "cli/runs/model.h"
#include "cli/runs/painting.h"
#include "export/films/reel.h"
#include "export/making.h"
#include "export/picture.h"
#include "export/plot_picture.h"
#include "measure/run_table.h"
#include "sim/model_run.h"

#include <algorithm>

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {"o", "out", "NAME", "The file to write; its name ends in .png, .svg, .pdf or .csv."},
    {"c", "curve", "NAME", "What to plot. May be given several times; the energies as usual."},
    {nullptr, "against", "NAME", "What goes to the right, in place of the time."},
    {nullptr, "size", "WxH", "The picture's width and height, pixels; 900x420 as usual."},
    {nullptr, "scale", "S", "Picture elements to a pixel, 1 to 8; 1 as usual."},
    {nullptr, "dark", nullptr, "Light curves on a dark ground."},
};

std::string details() {
    std::string names;
    for (const Quantity& quantity : quantities()) {
        const char* object = quantity.of == Of::node ? "node N." : quantity.of == Of::link ? "link N." : "";
        names.append(names.empty() ? "" : ", ").append(object).append(quantity.name);
    }
    return "The run begins with the press of the start button and is as long as --steps or --time say, 10 "
           "seconds "
           "of the model's time without. A .csv has a row a step with just these curves.\n\nNAME is one "
           "of: " +
           names + ".\n\n" + modelDetails();
}

Curve curveOf(const Editor& ed, const std::string& name) {
    const auto curve = curveNamed(name);
    if (!curve) {
        std::vector<std::string> names;
        for (const Quantity& quantity : quantities()) names.emplace_back(quantity.name);
        const std::string part = name.substr(name.rfind('.') + 1);
        throw Failure{wrongUse, "There is no curve \"" + name + "\"." + closeNames(part, names)};
    }
    if (!isThere(ed, *curve)) throw Failure{wrongUse, "There is nothing to plot: " + nameOf(*curve) + "."};
    return *curve;
}

// Those asked for, and behind them what they go against, if that is another.
std::vector<Curve> curvesOf(const Editor& ed, const Arguments& arguments) {
    std::vector<Curve> curves;
    for (const std::string& name : arguments.all("curve")) curves.push_back(curveOf(ed, name));
    if (curves.empty()) curves = usualCurves();
    if (const auto name = arguments.value("against")) curves.push_back(curveOf(ed, *name));
    return curves;
}

QSize sizeOf(const Arguments& arguments) {
    const std::string text = lowerCase(arguments.value("size").value_or("900x420"));
    const std::size_t by = text.find('x');
    const auto width = readAll<int>(std::string_view(text).substr(0, by));
    const auto height =
        by == std::string::npos ? std::nullopt : readAll<int>(std::string_view(text).substr(by + 1));
    if (!width || !height || std::min(*width, *height) < 100 || std::max(*width, *height) > 8000)
        throw Failure{wrongUse, "--size takes a width and a height of 100 to 8000, as in 900x420."};
    return {*width, *height};
}

// Makes the steps and shows each state, the first included; says why it ended early.
template <class Visit>
std::string runSteps(Editor& ed, const Arguments& arguments, Streams& streams, Visit visit) {
    const std::int64_t steps =
        arguments.has("steps") || arguments.has("time") ? stepsToRun(ed, arguments) : stepsIn(ed, usualFilm);
    Progress progress(streams, "steps", steps);
    visit(ed, 0);
    beginRun(ed);
    for (std::int64_t step = 1; step <= steps; ++step) {
        Interrupt::check();
        if (!stepRun(ed)) return whyStopped(ed);
        visit(ed, step);
        if (step % 64 == 0) progress.show(step);
    }
    return {};
}

ExitStatus end(const Arguments& arguments, const std::string& why) {
    if (why.empty()) return fine;
    throw Failure{finding, shownName(arguments.operands.front()) + ": " + why};
}

ExitStatus plotTable(Editor& ed, const std::vector<Curve>& curves, const std::string& file,
                     const Arguments& arguments, Streams& streams) {
    TextOutput output(file, streams);
    output.text = tableHeader(curves);
    const std::string why = runSteps(ed, arguments, streams, [&](const Editor& now, std::int64_t step) {
        appendTableRow(output.text, now, step, curves);
        output.grown();
    });
    output.finish();
    return end(arguments, why);
}

ExitStatus run(const Arguments& arguments, Streams& streams) {
    const std::string file = arguments.value("out").value_or("");
    if (file.empty()) throw Failure{wrongUse, "-o must say which file to write."};
    const std::string suffix = lowerCase(file.substr(std::min(file.rfind('.'), file.size() - 1) + 1));
    const std::int64_t scale = arguments.number("scale", 1).value_or(1);
    if (scale > largestScale) throw Failure{wrongUse, "--scale goes up to 8."};
    const QSize size = sizeOf(arguments);
    const Interrupt interrupt;
    Editor ed = openModel(arguments.operands.front(), arguments, streams);
    const std::vector<Curve> curves = curvesOf(ed, arguments);
    if (suffix == "csv") return plotTable(ed, curves, file, arguments, streams);
    for (const PictureFormatRow& format : pictureFormats()) {
        if (suffix != format.suffix) continue;
        RunSeries series(curves);
        const std::string why =
            runSteps(ed, arguments, streams, [&](const Editor& now, std::int64_t) { series.add(now); });
        const auto application = paintingApplication();
        Plot plot{series};
        if (arguments.has("against")) plot.against = curves.size();
        plot.dark = arguments.has("dark");
        const PictureFile made =
            format.make(drawingOf(plot, size, titleOf(ed)), {static_cast<double>(scale), false});
        if (!made.problem.empty()) throw Failure{finding, shownName(file) + ": " + made.problem};
        writeBytes(file, made.bytes, streams);
        return end(arguments, why);
    }
    throw Failure{wrongUse, "The name of " + file + " must end in .png, .svg, .pdf or .csv."};
}

}  // namespace

const Command plotCommand{.name = "plot",
                          .operands = "FILE",
                          .most = 1,
                          .summary = "Draws curves of what happens in a run, or writes them as a table.",
                          .details = details,
                          .options = {options, lengthOptions(), modelOptions()},
                          .run = run};

}  // namespace zentrik::cli
