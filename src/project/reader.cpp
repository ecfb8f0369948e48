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

// Fills a record from a line. Gives the problem in words, or the empty text.
template <class Record, std::size_t count>
std::string readColumns(std::string_view line, const Column<Record> (&columns)[count], Record& record) {
    Fields fields(line);
    std::string_view field;
    fields.next(field);  // the slot number plays no part
    for (std::size_t i = 0; i < count; ++i) {
        const auto& column = columns[i];
        const auto named = [&] {
            return "field " + std::to_string(i + 2) + " (" + std::string(column.name) + ") is ";
        };
        if (!fields.next(field)) return named() + "missing.";
        const auto read = [&](auto member) { return readForm(field, record.*member); };
        if (!std::visit(read, column.member))
            return named() + std::string(formProblems[column.member.index()]) + ": " + excerpt(field);
    }
    return {};
}

template <class Record, std::size_t count>
std::string readRecord(std::string_view line, const Column<Record> (&columns)[count],
                       std::vector<Record>& records) {
    records.emplace_back();
    std::string problem = readColumns(line, columns, records.back());
    // Editors trim the blank behind the last separator when the last field is empty.
    if (!problem.empty() && line.ends_with(" :")) {
        records.back() = {};
        if (readColumns(std::string(line) + " ", columns, records.back()).empty()) return {};
    }
    return problem;
}

enum class Section { none, links, nodes };

// The rules in their order; the first that fits counts.
std::string readLine(std::string_view line, Section& section, Project& project) {
    if (beginsIgnoringCase(line, "global")) {
        GlobalSettings global;
        std::string problem = readColumns(line, globalColumns, global);
        if (problem.empty()) project.global = global;
        return problem;
    }
    if (beginsIgnoringCase(line, "nodes"))
        section = Section::nodes;
    else if (beginsIgnoringCase(line, "links"))
        section = Section::links;
    else if (line.starts_with(';') || line.find_first_not_of(" \t") == std::string_view::npos)
        return {};
    else if (section == Section::links)
        return readRecord(line, linkColumns, project.Links);
    else if (section == Section::nodes)
        return readRecord(line, nodeColumns, project.Nodes);
    return {};
}

}  // namespace

Reading parseProject(std::string_view bytes) {
    if (!bytes.starts_with(magicWord)) return {{}, ReadProblem{0, "Input file not recognized!"}};
    Lines lines(bytes);
    std::string_view line;
    lines.next(line);
    if (!lines.next(line)) return {{}, ReadProblem{2, "the file ends before the project title."}};

    Reading reading;
    Project& project = reading.project.emplace();
    project.title = line;
    Section section = Section::none;
    while (lines.next(line)) {
        std::string problem = readLine(line, section, project);
        if (problem.empty()) continue;
        return {{}, ReadProblem{lines.number, std::move(problem)}};
    }
    return reading;
}

}  // namespace zentrik
