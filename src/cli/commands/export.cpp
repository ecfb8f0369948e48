#include "basics/text.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "cli/runs/model.h"
#include "cli/runs/painting.h"
#include "export/films/film.h"
#include "export/pages/live_page.h"
#include "export/table.h"
#include "export/thumbnail.h"
#include "sim/model_run.h"

#include <algorithm>
#include <cmath>

namespace zentrik::cli {

namespace {

const char* suffixOf(const FilmFormat& format) { return *format.suffix == '\0' ? "folder" : format.suffix; }

constexpr OptionRow options[] = {
    {"o", "out", "NAME", "The file to write; its name ends in a point and the SUFFIX."},
    {nullptr, "format", "SUFFIX", "What to write where NAME does not tell."},
    {nullptr, "scale", "S", "Picture elements to a pixel of the window, 1 to 8; 1 as usual."},
    {nullptr, "size", "N", "A picture of the model alone, at most N picture elements wide and high."},
    {nullptr, "transparent", nullptr, "Leave the background out, where the format can."},
    {nullptr, "live", nullptr, "With NAME.html, a page in which the creature lives, in place of a film."},
    {nullptr, "rate", "N", "The film's pictures a second; 20 for GIF, 25 or 30 for others as usual."},
};

std::string details() {
    std::string suffixes;
    for (const PictureFormatRow& format : pictureFormats()) suffixes.append(format.suffix).append(", ");
    for (const FilmFormat& format : filmFormats()) suffixes.append(suffixOf(format)).append(", ");
    return "A picture shows the model after --steps or --time, as it stands without. A film or a table is as "
           "long as they say, 10 seconds of the model's time without, and begins with the press of the start "
           "button.\n\nSUFFIX is one of: " +
           suffixes + "csv.\nA folder is one of numbered PNGs.\n\n" + modelDetails();
}

std::string formatName(const Arguments& arguments, const std::string& file) {
    if (const auto named = arguments.value("format")) return lowerCase(*named);
    const std::size_t point = file.rfind('.');
    if (point == std::string::npos || file.find('/', point) != std::string::npos)
        throw Failure{wrongUse, "The name of " + file + " does not tell its format; --format does."};
    return lowerCase(file.substr(point + 1));
}

const FilmFormat* filmFormat(const std::string& name) {
    const auto formats = filmFormats();
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&](const FilmFormat& format) { return name == suffixOf(format); });
    return found == formats.end() ? nullptr : &*found;
}

Look lookOf(const Arguments& arguments) {
    const std::int64_t scale = arguments.number("scale", 1).value_or(1);
    if (scale > largestScale) throw Failure{wrongUse, "--scale goes up to 8."};
    return {static_cast<double>(scale), arguments.has("transparent")};
}

std::int64_t lengthOf(const Editor& ed, const Arguments& arguments, std::int64_t usual) {
    return arguments.has("steps") || arguments.has("time") ? stepsToRun(ed, arguments) : usual;
}

ExitStatus stoppedEarly(const Arguments& arguments, const std::string& why) {
    if (why.empty()) return fine;
    throw Failure{finding, shownName(arguments.operands.front()) + ": " + why};
}

ExitStatus exportPicture(Editor& ed, const PictureFormatRow& format, const std::string& file,
                         const Arguments& arguments, Streams& streams) {
    Look look = lookOf(arguments);
    const std::int64_t steps = lengthOf(ed, arguments, 0);
    if (steps > 0) beginRun(ed);
    for (std::int64_t step = 0; step < steps && !Interrupt::came(); ++step)
        if (!stepRun(ed)) break;
    Interrupt::check();
    Subject subject(ed);
    if (const auto number = arguments.number("size", 1)) {
        const int side = static_cast<int>(std::min<std::int64_t>(*number, 1 << 15));
        look.scale = fitThumbnail(subject, {side, side});
    }
    const PictureFile made = pictureFile(subject, format, look);
    if (!made.problem.empty()) throw Failure{finding, shownName(file) + ": " + made.problem};
    writeBytes(file, made.bytes, streams);
    return stoppedEarly(arguments, steps > 0 ? whyStopped(ed) : "");
}

ExitStatus exportFilm(const Editor& ed, const FilmFormat& format, const std::string& file,
                      const Arguments& arguments, Streams& streams) {
    if (arguments.has("size")) throw Failure{wrongUse, "--size is of use with pictures only."};
    if (file == "-") throw Failure{wrongUse, "A film cannot go to the standard output."};
    FilmPlan plan{lengthOf(ed, arguments, stepsIn(ed, usualFilm)), format.usualRate, lookOf(arguments)};
    if (const auto rate = arguments.number("rate", 1)) {
        if (*rate > format.highestRate)
            throw Failure{wrongUse, "--rate goes up to " + std::to_string(format.highestRate) + " here."};
        plan.rate = static_cast<int>(*rate);
    }
    if (plan.look.transparent && !format.transparent)
        throw Failure{wrongUse, std::string("An ") + format.name + " cannot be transparent."};
    const std::int64_t count = pictureCount(ed, plan);
    FilmResult result;
    {
        Progress progress(streams, "pictures", count);
        result = makeFilm(ed, format, plan, file, [&](const FilmState& state) {
            progress.show(std::llround(state.done * static_cast<double>(count)));
            return !Interrupt::came();
        });
    }
    Interrupt::check();
    if (!result.problem.empty()) throw Failure{finding, file + ": " + result.problem};
    return stoppedEarly(arguments, result.stopped);
}

ExitStatus exportTable(Editor& ed, const std::string& file, const Arguments& arguments, Streams& streams) {
    const std::int64_t steps = lengthOf(ed, arguments, stepsIn(ed, usualFilm));
    TextOutput output(file, streams);
    const std::string stopped = runTable(ed, steps, output.text, [&](std::int64_t) {
        output.grown();
        return !Interrupt::came();
    });
    Interrupt::check();
    output.finish();
    return stoppedEarly(arguments, stopped);
}

// A page begins with the model as it stands, and has its own settings.
ExitStatus exportLivePage(Editor& ed, const std::string& file, const Arguments& arguments, Streams& streams) {
    for (const char* option : {"steps", "time", "scale", "size", "transparent", "rate"})
        if (arguments.has(option))
            throw Failure{wrongUse, std::string("--") + option + " is of no use with --live."};
    if (const std::string why = whyNoLivePages(); !why.empty()) throw Failure{finding, why};
    const std::string& from = arguments.operands.front();
    findSprites(ed, from);
    writeBytes(file, livePage(ed, projectName(from)), streams);
    return fine;
}

ExitStatus run(const Arguments& arguments, Streams& streams) {
    const std::string file = arguments.value("out").value_or("");
    if (file.empty()) throw Failure{wrongUse, "-o must say which file to write."};
    const std::string name = formatName(arguments, file);
    const Interrupt interrupt;
    Editor ed = openModel(arguments.operands.front(), arguments, streams);
    if (name == "csv" && !arguments.has("live")) return exportTable(ed, file, arguments, streams);
    const auto application = paintingApplication();
    if (arguments.has("live")) {
        if (name != "html") throw Failure{wrongUse, "--live makes a page: NAME.html."};
        return exportLivePage(ed, file, arguments, streams);
    }
    for (const PictureFormatRow& format : pictureFormats())
        if (name == format.suffix) return exportPicture(ed, format, file, arguments, streams);
    if (const FilmFormat* format = filmFormat(name)) return exportFilm(ed, *format, file, arguments, streams);
    throw Failure{wrongUse, "There is no format \"" + name + "\"."};
}

}  // namespace

const Command exportCommand{.name = "export",
                            .operands = "FILE",
                            .most = 1,
                            .summary = "Makes a picture, a film or a table of a project.",
                            .details = details,
                            .options = {options, lengthOptions(), modelOptions()},
                            .run = run};

}  // namespace zentrik::cli
