#include "project/writer.h"

#include "basics/addresses.h"
#include "project/columns.h"
#include "project/forms.h"

namespace zentrik {

namespace {

template <class Record, std::size_t count>
void appendFields(std::string& out, const Column<Record> (&columns)[count], const Record& record) {
    for (const auto& column : columns) {
        out += fieldSeparator;
        std::visit([&](auto member) { appendForm(out, record.*member); }, column.member);
    }
    out += lineEnd;
}

template <class Record, std::size_t count>
void appendSection(std::string& out, std::string_view name, std::string_view commentStart,
                   const Column<Record> (&columns)[count], const std::vector<Record>& records) {
    out.append(name).append(lineEnd).append(commentStart);
    for (const auto& column : columns) out.append(column.name).append(column.afterName);
    out += lineEnd;
    for (std::size_t i = 1; i < records.size(); ++i) {
        appendForm(out, static_cast<std::int32_t>(i));
        appendFields(out, columns, records[i]);
    }
}

}  // namespace

std::string projectBytes(const Editor& ed) {
    std::string out;
    out.reserve(1000 + 100 * ed.Links.size() + 150 * ed.Nodes.size());
    out.append(magicWord).append("   ").append(webPage).append("   ").append(makerName).append(lineEnd);
    out.append(oneLine(ed.ProjectTitle)).append(lineEnd);
    out.append(globalComment).append(lineEnd);
    out += "Global Settings";
    appendFields(out, globalColumns,
                 GlobalSettings{ed, static_cast<float>(ed.sceneWidth), static_cast<float>(ed.sceneHeight)});
    appendSection(out, "Links", linkCommentStart, linkColumns, ed.Links);
    appendSection(out, "Nodes", nodeCommentStart, nodeColumns, ed.Nodes);
    return out;
}

}  // namespace zentrik
