#include "cli/commands/help.h"

#include <algorithm>

namespace zentrik::cli {

namespace {

constexpr std::size_t textColumn = 26, lineLength = 79;

// Breaks a text at blanks and line ends; its lines begin in a column, the first in `at` already.
std::string wrapped(std::string_view text, std::size_t column, std::size_t at) {
    std::string out;
    const auto newLine = [&] { out.append("\n").append(column, ' '), at = column; };
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
        const bool lineEnds = end < text.size() && text[end] == '\n';
        if (at > column && at + 1 + end > lineLength) newLine();
        if (at > column) out += ' ', ++at;
        out += text.substr(0, end), at += end;
        text.remove_prefix(std::min(end + 1, text.size()));
        if (lineEnds) newLine();
    }
    return out + "\n";
}

std::string entry(std::string head, const char* text) {
    head = "  " + head;
    if (head.size() + 2 > textColumn)
        head += "\n" + std::string(textColumn, ' ');
    else
        head.resize(textColumn, ' ');
    return head + wrapped(text, textColumn, textColumn);
}

std::string optionEntry(const OptionRow& row) {
    const std::string letter = row.letter != nullptr ? "-" + std::string(row.letter) + ", " : "    ";
    return entry(letter + "--" + row.name + (row.value != nullptr ? "=" + std::string(row.value) : ""),
                 row.text);
}

}  // namespace

std::string overallHelp(std::span<const Command* const> commands) {
    std::string text =
        "Usage: zentrik-cli COMMAND [OPTION]... FILE...\n"
        "Examines, runs and improves Zentrik projects without a window.\n\nCommands:\n";
    for (const Command* command : commands) text += entry(command->name, command->summary);
    text += "\nOptions:\n";
    for (const OptionRow& row : commonOptions) text += optionEntry(row);
    return text +
           "\nzentrik-cli COMMAND --help tells the options of a command. A FILE of \"-\" is the standard\n"
           "input. The exit status is 0 when all went well, 1 for a finding or a failure, 2 when the\n"
           "command line is wrong.\n";
}

std::string helpOf(const Command& command) {
    std::string text = "Usage: zentrik-cli " + std::string(command.name) + " [OPTION]... " +
                       command.operands + "\n" + wrapped(command.summary, 0, 0) + "\nOptions:\n";
    for (const auto& group : command.options)
        for (const OptionRow& row : group) text += optionEntry(row);
    for (const OptionRow& row : commonOptions) text += optionEntry(row);
    if (command.details != nullptr) text += "\n" + wrapped(command.details(), 0, 0);
    return text;
}

}  // namespace zentrik::cli
