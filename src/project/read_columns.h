#pragma once
// How the fields of a line become a record.

#include "project/columns.h"
#include "project/forms.h"
#include "project/read_problem.h"

namespace zentrik {

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

enum class Wanted { firstProblem, allProblems };

// Fills a record from the fields of a line. A line may end before its newer columns: older files do.
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
            if (!column.newer) note("missing.");
            break;
        }
        const auto read = [&](auto member) { return readForm(field, record.*member); };
        if (std::visit(read, column.member)) continue;
        note(std::string(formProblems[column.member.index()]) + ": " + excerpt(field));
        if (wanted == Wanted::firstProblem) break;
    }
    return problems;
}

}  // namespace zentrik
