#include "project/reader.h"

#include "project/forms.h"

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

class Fields {
public:
    explicit Fields(std::string_view line) : at(line.data()), end(line.data() + line.size()) {}

    bool next(std::string_view& field) {
        if (!at) return false;
        // Fields are a few characters long: looking at each beats calling a search.
        for (const char* c = at; end - c >= 3; ++c) {
            if (c[1] != ':' || c[0] != ' ' || c[2] != ' ') continue;
            field = {at, static_cast<std::size_t>(c - at)};
            at = c + 3;
            return true;
        }
        field = {at, static_cast<std::size_t>(end - at)};
        at = nullptr;
        return true;
    }

private:
    const char* at;  // null after the last field
    const char* end;
};

// The front of a field as it can be shown to a person.
std::string excerpt(std::string_view field) {
    std::string text(field.substr(0, 40));
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return field.size() > 40 ? text + "..." : text;
}

enum class Wanted { firstProblem, allProblems };

// Fills a record from a line.
template <class Record, std::size_t count>
ReadProblems readColumns(std::string_view line, const Column<Record> (&columns)[count], Record& record,
                         Wanted wanted) {
    ReadProblems problems;
    Fields fields(line);
    std::string_view field;
    fields.next(field);  // the slot number plays no part
    for (std::size_t i = 0; i < count; ++i) {
        const auto& column = columns[i];
        const auto note = [&](const std::string& what) {
            const std::string name = std::to_string(i + 2) + " (" + std::string(column.name) + ")";
            problems.push_back({0, "field " + name + " is " + what, i + 2});
        };
        if (!fields.next(field)) {
            note("missing.");
            break;
        }
        const auto read = [&](auto member) { return readForm(field, record.*member); };
        if (std::visit(read, column.member)) continue;
        note(std::string(formProblems[column.member.index()]) + ": " + excerpt(field));
        if (wanted == Wanted::firstProblem) break;
    }
    return problems;
}

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
