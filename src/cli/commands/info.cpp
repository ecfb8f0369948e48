#include "basics/numbers.h"
#include "cli/commands/commands.h"
#include "cli/runs/model.h"
#include "cli/runs/settable.h"
#include "model/connected.h"
#include "model/extent.h"
#include "model/store.h"
#include "project/columns.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <ostream>
#include <set>

namespace zentrik::cli {

namespace {

constexpr OptionRow options[] = {
    {nullptr, "json", nullptr, "Write JSON, one object a file."},
};

struct Fact {
    std::string group, name;  // most belong to no group
    QJsonValue value;
};
using Facts = std::vector<Fact>;

void addCounts(Facts& facts, const Editor& ed) {
    std::int32_t locked = 0, shooters = 0, attracting = 0, animators = 0, barriers = 0;
    double mass = 0;
    std::set<std::int32_t> objects;
    const std::vector<std::int32_t> objectOf = connectedObjects(ed);
    forEachNode(ed, [&](std::int32_t i, const Node& node) {
        locked += node.Locked ? 1 : 0;
        shooters += node.Trigger != none ? 1 : 0;
        attracting += node.Gravity != 0 ? 1 : 0;
        mass += leadingNumber(realText(node.Mass));
        objects.insert(objectOf[static_cast<std::size_t>(i)]);
    });
    forEachLink(ed, [&](std::int32_t, const Link& link) {
        animators += link.Animator ? 1 : 0;
        barriers += link.Barrier ? 1 : 0;
    });
    const auto count = [&](const char* name, std::int32_t value) { facts.push_back({"", name, value}); };
    count("nodes", UsedNodes(ed));
    count("node slots", lastNode(ed));
    count("locked nodes", locked);
    count("shooters", shooters);
    count("attracting nodes", attracting);
    facts.push_back({"", "mass", leadingNumber(realText(mass))});
    count("links", UsedLinks(ed));
    count("link slots", lastLink(ed));
    count("animators", animators);
    count("barriers", barriers);
    count("connected objects", static_cast<std::int32_t>(objects.size()));
}

Facts factsOf(const std::string& file, const Editor& ed) {
    Facts facts{{"", "file", QString::fromStdString(file)},
                {"", "title", QString::fromStdString(ed.ProjectTitle)},
                {"", "clock", Settable(ed, "AnimationTime").valueIn(ed)}};
    addCounts(facts, ed);
    const Extent extent = extentOf(ed.Nodes);
    facts.push_back({"extent", "left", extent.left});
    facts.push_back({"extent", "top", extent.top});
    facts.push_back({"extent", "right", extent.right});
    facts.push_back({"extent", "bottom", extent.bottom});
    for (const auto& column : globalColumns) {
        const std::string name(column.name);
        facts.push_back({"settings", name, Settable(ed, name).valueIn(ed)});
    }
    return facts;
}

QJsonObject jsonOf(const Facts& facts) {
    QJsonObject object;
    for (const auto& [group, name, value] : facts) {
        const QString key = QString::fromStdString(name), of = QString::fromStdString(group);
        if (group.empty()) {
            object[key] = value;
            continue;
        }
        QJsonObject inner = object[of].toObject();
        inner[key] = value;
        object[of] = inner;
    }
    return object;
}

void write(std::ostream& out, const Facts& facts) {
    for (const auto& [group, name, value] : facts) {
        out << (group.empty() ? "" : group + " ") << name << ": ";
        out << (value.isString() ? value.toString().toStdString() : realText(value.toDouble())) << "\n";
    }
}

ExitStatus info(const Arguments& arguments, Streams& streams) {
    QJsonArray all;
    for (const std::string& file : arguments.operands) {
        const Facts facts = factsOf(file, openModel(file, {}, streams));
        if (arguments.has("json")) {
            all.append(jsonOf(facts));
            continue;
        }
        if (&file != &arguments.operands.front()) streams.out << "\n";
        write(streams.out, facts);
    }
    if (arguments.has("json")) streams.out << QJsonDocument(all).toJson().toStdString();
    return fine;
}

}  // namespace

const Command infoCommand{
    .name = "info",
    .operands = "FILE...",
    .summary = "Tells what projects hold: title, clock, counts, extent in twips, settings.",
    .options = {options},
    .run = info};

}  // namespace zentrik::cli
