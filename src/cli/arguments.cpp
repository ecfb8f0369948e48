#include "cli/arguments.h"

#include "cli/failure.h"
#include "cli/numbers.h"

#include <QCommandLineParser>

namespace zentrik::cli {

namespace {

// Latin-1 both ways lets the bytes of any file name through unchanged.
QString toQt(const std::string& bytes) { return QString::fromLatin1(bytes.data(), qsizetype(bytes.size())); }
std::string toBytes(const QString& text) { return text.toLatin1().toStdString(); }

std::vector<std::string> toBytes(const QStringList& texts) {
    std::vector<std::string> all;
    all.reserve(std::size_t(texts.size()));
    for (const QString& text : texts) all.push_back(toBytes(text));
    return all;
}

QCommandLineOption optionOf(const OptionRow& row) {
    QStringList names;
    if (row.letter != nullptr) names.append(row.letter);
    names.append(row.name);
    return {names, row.text, row.value};
}

template <class Visit>
void forEachOption(const OptionGroups& groups, Visit visit) {
    for (const OptionRow& row : commonOptions) visit(row);
    for (const auto& group : groups)
        for (const OptionRow& row : group) visit(row);
}

}  // namespace

Arguments readArguments(const std::vector<std::string>& words, const OptionGroups& groups) {
    QCommandLineParser parser;
    forEachOption(groups, [&](const OptionRow& row) { parser.addOption(optionOf(row)); });
    QStringList list{"zentrik-cli"};
    for (const std::string& word : words) list.append(toQt(word));

    Arguments arguments;
    if (!parser.parse(list)) arguments.problem = toBytes(parser.errorText());
    if (!arguments.problem.empty() && !arguments.problem.ends_with('.')) arguments.problem += '.';
    arguments.operands = toBytes(parser.positionalArguments());
    forEachOption(groups, [&](const OptionRow& row) {
        if (parser.isSet(row.name)) arguments.values[row.name] = toBytes(parser.values(row.name));
    });
    return arguments;
}

std::optional<std::string> Arguments::value(std::string_view name) const {
    const auto found = values.find(name);
    if (found == values.end() || found->second.empty()) return {};
    return found->second.back();
}

std::vector<std::string> Arguments::all(std::string_view name) const {
    const auto found = values.find(name);
    return found == values.end() ? std::vector<std::string>() : found->second;
}

std::optional<std::int64_t> Arguments::number(std::string_view name, std::int64_t least) const {
    const auto text = value(name);
    if (!text) return {};
    const auto whole = readWhole(*text);
    if (whole && *whole >= least) return whole;
    throw Failure{wrongUse, "--" + std::string(name) + " takes a whole number from " + std::to_string(least) +
                                " on, not \"" + *text + "\"."};
}

std::optional<bool> Arguments::onOrOff(std::string_view name) const {
    const auto text = value(name);
    if (!text) return {};
    if (*text == "on") return true;
    if (*text == "off") return false;
    throw Failure{wrongUse, "--" + std::string(name) + " takes \"on\" or \"off\", not \"" + *text + "\"."};
}

}  // namespace zentrik::cli
