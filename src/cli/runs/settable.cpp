#include "cli/runs/settable.h"

#include "basics/numbers.h"
#include "cli/close_names.h"
#include "cli/command.h"
#include "cli/numbers.h"
#include "model/rate.h"
#include "model/store.h"
#include "project/columns.h"
#include "settings/setting_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zentrik::cli {

namespace {

// Named as in project files, and as in the settings file.
const std::vector<SettingRow>& globals() {
    static const std::vector<SettingRow> numbers = [] {
        std::vector<SettingRow> all;
        for (const auto& column : globalColumns) all.push_back(settingOf(column));
        for (const SettingRow& row : settingRows()) {
            const auto isIt = [&](const SettingRow& other) { return other.key == row.key; };
            const bool isNumber = std::holds_alternative<float Editor::*>(row.slot) ||
                                  std::holds_alternative<std::int32_t Editor::*>(row.slot);
            if (isNumber && std::none_of(all.begin(), all.end(), isIt)) all.push_back(row);
        }
        return all;
    }();
    return numbers;
}

// Gives false when the number is beyond the slot.
bool put(bool& slot, double value) {
    slot = value != 0;
    return true;
}
bool put(std::int32_t& slot, double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    slot = toInt(value);
    return value >= Limits::min() && value <= Limits::max();
}
bool put(float& slot, double value) {
    slot = toReal(value);
    return std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}
bool put(std::string&, double) { return false; }

double numberIn(const std::string&) { return 0; }
double numberIn(bool value) { return value ? 1 : 0; }
double numberIn(std::int32_t value) { return value; }
double numberIn(float value) { return leadingNumber(realText(value)); }

template <class Record, std::size_t count>
std::vector<std::string> namesOf(const Column<Record> (&columns)[count]) {
    std::vector<std::string> names;
    for (const auto& column : columns)
        if (!std::holds_alternative<std::string Record::*>(column.member)) names.emplace_back(column.name);
    return names;
}

std::size_t placeAmong(const std::string& name, const std::vector<std::string>& names) {
    std::size_t at = 0;
    while (at < names.size() && plainName(names[at]) != plainName(name)) ++at;
    return at;
}

// The row of a column that holds a number.
template <class Record, std::size_t count>
std::size_t fieldRow(const std::string& field, const char* kind, const Column<Record> (&columns)[count]) {
    const std::vector<std::string> names = namesOf(columns);
    const std::size_t place = placeAmong(field, names);
    if (place == names.size())
        throw Failure{wrongUse,
                      std::string(kind) + "s have no number \"" + field + "\"." + closeNames(field, names)};
    std::size_t row = 0;
    while (columns[row].name != names[place]) ++row;
    return row;
}

// "link 3..9.Angle" in its parts; the kind is empty when it is no such name.
struct FieldName {
    std::string kind, list, field;
};
FieldName fieldName(const std::string& name) {
    const std::size_t blank = name.find(' '), point = name.rfind('.');
    if (blank == std::string::npos || point == std::string::npos || point < blank) return {};
    std::string kind = plainName(name.substr(0, blank));
    if (kind.ends_with('s')) kind.pop_back();
    if (kind != "node" && kind != "link") return {};
    return {kind, name.substr(blank + 1, point - blank - 1), name.substr(point + 1)};
}

template <class Record, std::size_t count>
double fieldIn(const Column<Record> (&columns)[count], std::size_t row, const Record& record) {
    return std::visit([&](auto member) { return numberIn(record.*member); }, columns[row].member);
}
template <class Record, std::size_t count>
bool setField(const Column<Record> (&columns)[count], std::size_t row, Record& record, double value) {
    return std::visit([&](auto member) { return put(record.*member, value); }, columns[row].member);
}

// Calls use(member) for the place of a global setting in the record.
template <class Use>
auto useGlobal(std::size_t row, Use use) {
    if (const auto* real = std::get_if<float Editor::*>(&globals()[row].slot)) return use(*real);
    return use(std::get<std::int32_t Editor::*>(globals()[row].slot));
}

}  // namespace

Settable::Settable(const Editor& ed, const std::string& name) : name_(name) {
    const FieldName field = fieldName(name);
    if (field.kind == "node") {
        kind_ = Kind::node;
        numbers_ = readList(field.list, lastNode(ed), "node");
        row_ = fieldRow(field.field, "Node", nodeColumns);
    } else if (field.kind == "link") {
        kind_ = Kind::link;
        numbers_ = readList(field.list, lastLink(ed), "link");
        row_ = fieldRow(field.field, "Link", linkColumns);
    } else {
        std::vector<std::string> names;
        for (const SettingRow& row : globals()) names.emplace_back(row.key);
        row_ = placeAmong(name, names);
        if (row_ == names.size())
            throw Failure{wrongUse, "There is no setting \"" + name + "\"." + closeNames(name, names)};
    }
    if (kind_ != Kind::global && numbers_.empty()) throw Failure{wrongUse, name + " names none."};
}

double Settable::valueIn(const Editor& ed) const {
    if (kind_ == Kind::global) return useGlobal(row_, [&](auto at) { return numberIn(ed.*at); });
    if (kind_ == Kind::node) return fieldIn(nodeColumns, row_, nodeAt(ed, numbers_.front()));
    return fieldIn(linkColumns, row_, linkAt(ed, numbers_.front()));
}

void Settable::setIn(Editor& ed, double value) const {
    bool taken = true;
    if (kind_ == Kind::global)
        taken = useGlobal(row_, [&](auto at) { return put(ed.*at, value); }) && isPeriod(ed.timerPeriod);
    for (const std::int32_t i : numbers_)
        taken = taken && (kind_ == Kind::node ? setField(nodeColumns, row_, nodeAt(ed, i), value)
                                              : setField(linkColumns, row_, linkAt(ed, i), value));
    if (!taken) throw Failure{wrongUse, name_ + " cannot be " + realText(value) + "."};
}

}  // namespace zentrik::cli
