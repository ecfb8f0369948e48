#include "cli/commands/commands.h"

#include "cli/close_names.h"
#include "cli/commands/help.h"
#include "cli/files.h"

#include <exception>
#include <ostream>

namespace zentrik::cli {

namespace {

constexpr const Command* table[] = {&checkCommand,  &infoCommand,  &runCommand,
                                    &exportCommand, &plotCommand,  &galleryCommand,
                                    &sweepCommand,  &mergeCommand, &improveCommand};

const Command* find(const std::string& name) {
    for (const Command* command : table)
        if (command->name == name) return command;
    return nullptr;
}

ExitStatus say(Streams& streams, const std::string& text) {
    streams.out << text;
    return fine;
}

// What stands before a command: only the options that all share.
ExitStatus runWithoutCommand(const std::vector<std::string>& words, Streams& streams) {
    const Arguments arguments = readArguments(words, {});
    if (arguments.has("help")) return say(streams, overallHelp(table));
    if (arguments.has("version")) return say(streams, "zentrik-cli " ZENTRIK_VERSION "\n");
    if (!arguments.problem.empty()) throw Failure{wrongUse, arguments.problem};
    throw Failure{wrongUse, "No command is given."};
}

ExitStatus runCommandOf(const std::vector<std::string>& words, const Command& command, Streams& streams) {
    const Arguments arguments = readArguments({words.begin() + 1, words.end()}, command.options);
    if (arguments.has("help")) return say(streams, helpOf(command));
    if (arguments.has("version")) return say(streams, "zentrik-cli " ZENTRIK_VERSION "\n");
    if (!arguments.problem.empty()) throw Failure{wrongUse, arguments.problem};
    const std::size_t count = arguments.operands.size();
    if (count == 0) throw Failure{wrongUse, "No file is given."};
    if (count > command.most) throw Failure{wrongUse, "One file is enough: " + arguments.operands.back()};
    return command.run(arguments, streams);
}

ExitStatus dispatch(const std::vector<std::string>& words, Streams& streams) {
    if (words.empty() || words[0].starts_with('-')) return runWithoutCommand(words, streams);
    if (const Command* command = find(words[0])) return runCommandOf(words, *command, streams);
    std::vector<std::string> names;
    for (const Command* command : table) names.emplace_back(command->name);
    throw Failure{wrongUse, "There is no command \"" + words[0] + "\"." + closeNames(words[0], names)};
}

}  // namespace

std::span<const Command* const> commands() { return table; }

int runCommandLine(const std::vector<std::string>& words, Streams& streams) {
    const bool known = !words.empty() && find(words[0]) != nullptr;
    const std::string name = known ? "zentrik-cli " + words[0] : "zentrik-cli";
    try {
        const ExitStatus status = dispatch(words, streams);
        if (!streams.out.flush()) throw Failure{finding, outputProblem};
        return status;
    } catch (const Failure& failure) {
        streams.out.flush();
        streams.error << name << ": " << failure.text << "\n";
        if (failure.status == wrongUse) streams.error << "Try " << name << " --help.\n";
        return failure.status;
    } catch (const std::exception& error) {  // as when there is not enough memory
        streams.error << name << ": " << error.what() << "\n";
        return finding;
    }
}

}  // namespace zentrik::cli
