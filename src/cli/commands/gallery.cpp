#include "export/pages/gallery.h"
#include "cli/commands/commands.h"
#include "cli/files.h"
#include "cli/interrupt.h"
#include "cli/runs/model.h"
#include "cli/runs/painting.h"
#include "export/pages/live_page.h"

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {"o", "out", "FOLDER", "The folder to make; there must be nothing of its name."},
};

std::string details() {
    return "The folder holds an index with a picture, the title and the size of each project, a live page "
           "and the "
           "project file of each, and one script that the pages share. It can be opened as it is, or put on "
           "any web "
           "server.\n\n" +
           modelDetails();
}

ExitStatus run(const Arguments& arguments, Streams& streams) {
    const std::string folder = arguments.value("out").value_or("");
    if (folder.empty()) throw Failure{wrongUse, "-o must say which folder to make."};
    if (const std::string why = whyNoLivePages(); !why.empty()) throw Failure{finding, why};
    const auto application = paintingApplication();
    const Interrupt interrupt;
    std::vector<Exhibit> exhibits;
    for (const std::string& file : arguments.operands) {
        if (file == "-") throw Failure{wrongUse, "A gallery is made of files."};
        exhibits.push_back(
            {projectName(file), readBytes(file, streams), openModel(file, arguments, streams)});
        findSprites(exhibits.back().ed, file);
    }
    const std::string problem = makeGallery(exhibits, folder, [] { return !Interrupt::came(); });
    Interrupt::check();
    if (!problem.empty()) throw Failure{finding, folder + ": " + problem};
    return fine;
}

}  // namespace

const Command galleryCommand{.name = "gallery",
                             .operands = "FILE...",
                             .summary = "Makes a web site of projects, each alive in its page.",
                             .details = details,
                             .options = {options, modelOptions()},
                             .run = run};

}  // namespace zentrik::cli
