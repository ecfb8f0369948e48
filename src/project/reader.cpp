#include "project/reader.h"

#include "basics/text.h"
#include "project/read_columns.h"

#include <algorithm>

namespace zentrik {

namespace {

class Lines {
public:
    explicit Lines(std::string_view bytes) : rest(bytes) {}

    bool next(std::string_view& line) {
        if (rest.empty()) return false;
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        ++number;
        return true;
    }

    std::size_t number = 0;  // of the line given last

private:
    std::string_view rest;
};

template <class Record, std::size_t count>
ReadProblems readRecord(std::string_view line, const Column<Record> (&columns)[count],
                        std::vector<Record>& records, Wanted wanted) {
    records.emplace_back();
    ReadProblems problems = readColumns(line, columns, records.back(), wanted);
    // Editors trim the blank behind the last separator when the last field is empty.
    if (!problems.empty() && line.ends_with(" :")) {
        records.back() = {};
        if (readColumns(std::string(line) + " ", columns, records.back(), wanted).empty()) return {};
    }
    return problems;
}

enum class Section { none, links, nodes };

bool beginsIgnoringCase(std::string_view text, std::string_view lower) {
    return lowerCase(text.substr(0, lower.size())) == lower;
}

// The rules in their order; the first that fits counts.
ReadProblems readLine(std::string_view line, std::size_t number, Section& section, LenientReading& to,
                      Wanted wanted) {
    if (beginsIgnoringCase(line, "global")) {
        GlobalSettings global;
        ReadProblems problems = readColumns(line, globalColumns, global, wanted);
        if (!problems.empty()) return problems;
        to.project.global = global;
        to.globalLine = number;
    } else if (beginsIgnoringCase(line, "nodes")) {
        section = Section::nodes;
    } else if (beginsIgnoringCase(line, "links")) {
        section = Section::links;
    } else if (line.starts_with(';') || line.find_first_not_of(" \t") == std::string_view::npos) {
        return {};
    } else if (section == Section::links) {
        to.linkLines.push_back(number);
        return readRecord(line, linkColumns, to.project.Links, wanted);
    } else if (section == Section::nodes) {
        to.nodeLines.push_back(number);
        return readRecord(line, nodeColumns, to.project.Nodes, wanted);
    }
    return {};
}

LenientReading read(std::string_view bytes, Wanted wanted) {
    LenientReading reading;
    if (!bytes.starts_with(magicWord)) {
        reading.problems.push_back({0, "Input file not recognized!", 0});
        return reading;
    }
    Lines lines(bytes);
    std::string_view line;
    lines.next(line);
    if (!lines.next(line)) {
        reading.problems.push_back({2, "the file ends before the project title.", 0});
        return reading;
    }
    reading.project.title = line;
    Section section = Section::none;
    while (lines.next(line) && (wanted == Wanted::allProblems || reading.problems.empty()))
        for (ReadProblem& problem : readLine(line, lines.number, section, reading, wanted)) {
            problem.line = lines.number;
            reading.problems.push_back(std::move(problem));
        }
    return reading;
}

}  // namespace

Reading parseProject(std::string_view bytes) {
    LenientReading reading = read(bytes, Wanted::firstProblem);
    if (!reading.problems.empty()) return {{}, std::move(reading.problems.front())};
    return {std::move(reading.project), {}};
}

LenientReading parseLeniently(std::string_view bytes) { return read(bytes, Wanted::allProblems); }

}  // namespace zentrik
