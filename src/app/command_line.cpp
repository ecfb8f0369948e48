#include "app/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>

namespace zentrik {

namespace {

constexpr int usageError = 2;

QCommandLineOption hidden(const QString& name) {
    QCommandLineOption option(name, "", name);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

int say(std::FILE* stream, const QString& text, int status) {
    std::fputs(qPrintable(text), stream);
    return status;
}

}  // namespace

CommandLine readCommandLine(int argc, char** argv) {
    // Of its own, since the one with windows ends a program that has no display.
    const QCoreApplication nameless(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Editor for creatures made of springs and masses.");
    parser.addPositionalArgument("FILE", "Project to open.", "[FILE]");
    // Not Qt's own, which offers a --help-all that it leaves unanswered here.
    const QCommandLineOption help({"h", "help"}, "Displays help on commandline options.");
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption newWindow("new-window",
                                       "Open a window of its own, even if the program is running.");
    parser.addOptions({help, newWindow});
    // Those that every program with Qt's windows knows.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const char* name : {"platform", "style", "display", "geometry", "session"})
        parser.addOption(hidden(name));

    CommandLine line;
    if (!parser.parse(QCoreApplication::arguments())) {
        const QString text = parser.errorText() + "\nTry --help.\n";
        line.exitStatus = say(stderr, text, usageError);
    } else if (parser.isSet(help)) {
        line.exitStatus = say(stdout, parser.helpText(), 0);
    } else if (parser.isSet(version)) {
        line.exitStatus = say(stdout, "Zentrik " ZENTRIK_VERSION "\n", 0);
    }
    line.newWindow = parser.isSet(newWindow);
    for (const QString& file : parser.positionalArguments())
        line.files.append(QFileInfo(file).absoluteFilePath());
    return line;
}

}  // namespace zentrik
