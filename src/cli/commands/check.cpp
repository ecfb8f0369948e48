#include "project/check.h"
#include "cli/commands/commands.h"
#include "cli/files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <ostream>

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {nullptr, "json", nullptr, "Tell the problems on the standard output, as JSON."},
};

// What is wrong with a file, if only that it cannot be read.
ReadProblems problemsOf(const std::string& file, Streams& streams) {
    try {
        return checkProject(readBytes(file, streams));
    } catch (const Failure& failure) {
        return {{0, failure.text.substr(file.size() + 2), 0}};
    }
}

QJsonObject toJson(const std::string& file, const ReadProblems& problems) {
    QJsonArray list;
    for (const ReadProblem& problem : problems)
        list.append(QJsonObject{{"line", qint64(problem.line)},
                                {"field", qint64(problem.field)},
                                {"text", QString::fromStdString(problem.text)}});
    return {{"file", QString::fromStdString(file)}, {"problems", list}};
}

ExitStatus check(const Arguments& arguments, Streams& streams) {
    ExitStatus status = fine;
    QJsonArray all;
    for (const std::string& file : arguments.operands) {
        const ReadProblems problems = problemsOf(file, streams);
        if (!problems.empty()) status = finding;
        if (arguments.has("json")) {
            all.append(toJson(file, problems));
            continue;
        }
        for (const auto& problem : problems) streams.error << problemText(file, problem) << "\n";
    }
    if (arguments.has("json")) streams.out << QJsonDocument(all).toJson().toStdString();
    return status;
}

}  // namespace

const Command checkCommand{
    .name = "check",
    .operands = "FILE...",
    .summary =
        "Tells every problem of project files: what cannot be read, links without nodes, free nodes of "
        "mass 0, triggers that name nothing.",
    .details =
        [] {
            return std::string(
                "A problem is a line FILE:LINE: field NUMBER (NAME) and what is wrong, on the error "
                "stream. The exit status is 1 if there is any.");
        },
    .options = {options},
    .run = check};

}  // namespace zentrik::cli
