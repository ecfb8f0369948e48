#include "project/check.h"

#include "model/rate.h"

#include <algorithm>

namespace zentrik {

namespace {

// The number a column has in its line.
template <class Record, std::size_t count>
std::size_t fieldOf(const Column<Record> (&columns)[count], std::type_identity_t<Member<Record>> member) {
    const auto isIt = [&](const Column<Record>& column) { return column.member == member; };
    return static_cast<std::size_t>(std::find_if(columns, columns + count, isIt) - columns) + 2;
}

class Checker {
public:
    explicit Checker(const LenientReading& reading) : reading_(reading), problems_(reading.problems) {}

    ReadProblems findings() {
        const Project& project = reading_.project;
        if (project.global) checkGlobal(*project.global);
        for (std::size_t j = 1; j < project.Links.size(); ++j) checkLink(j, project.Links[j]);
        for (std::size_t i = 1; i < project.Nodes.size(); ++i) checkNode(i, project.Nodes[i]);
        std::stable_sort(problems_.begin(), problems_.end(),
                         [](const ReadProblem& a, const ReadProblem& b) { return a.line < b.line; });
        return std::move(problems_);
    }

private:
    const LenientReading& reading_;
    ReadProblems problems_;

    // Whether the field could be read; from the first missing one on none could. The problems of reading
    // stand in the order of their lines.
    bool wasRead(std::size_t line, std::size_t field) const {
        const auto before = [](const ReadProblem& p, std::size_t number) { return p.line < number; };
        auto p = std::lower_bound(reading_.problems.begin(), reading_.problems.end(), line, before);
        for (; p != reading_.problems.end() && p->line == line; ++p)
            if (p->field == field || (p->field < field && p->text.ends_with(" is missing."))) return false;
        return true;
    }
    void note(std::size_t line, std::size_t field, const std::string& of, const std::string& what) {
        if (wasRead(line, field))
            problems_.push_back({line, "field " + std::to_string(field) + " (" + of + ") " + what, field});
    }
    // Nothing to say of a node that is there, or whose line cannot be read.
    void checkReference(std::size_t line, std::size_t field, const std::string& of, std::int32_t number) {
        const auto i = static_cast<std::size_t>(number);
        const std::string names = "names node " + std::to_string(number);
        const std::vector<Node>& nodes = reading_.project.Nodes;
        if (number < 1 || i >= nodes.size())
            note(line, field, of, names + ", which does not exist");
        else if (!nodes[i].Used && wasRead(reading_.nodeLines[i], fieldOf(nodeColumns, &Node::Used)))
            note(line, field, of, names + ", whose slot is free");
    }

    void checkGlobal(const GlobalSettings& global) {
        const std::size_t line = reading_.globalLine;
        if (!isPeriod(global.timerPeriod))
            note(line, fieldOf(globalColumns, &GlobalSettings::timerPeriod), "timer period",
                 "has no effect: a timer takes " + std::to_string(shortestPeriod) + " to " +
                     std::to_string(longestPeriod) + " milliseconds");
    }

    void checkLink(std::size_t j, const Link& link) {
        if (!link.Used) return;
        const std::size_t line = reading_.linkLines[j];
        const std::string of = " of link " + std::to_string(j);
        const std::size_t second = fieldOf(linkColumns, &Link::N2);
        checkReference(line, fieldOf(linkColumns, &Link::N1), "N1" + of, link.N1);
        checkReference(line, second, "N2" + of, link.N2);
        if (link.N1 == link.N2 && link.N1 != 0) note(line, second, "N2" + of, "is its other end, too");
    }

    void checkNode(std::size_t i, const Node& node) {
        if (!node.Used) return;
        const std::size_t line = reading_.nodeLines[i];
        const std::string of = " of node " + std::to_string(i);
        if (node.Mass == 0 && !node.Locked)
            note(line, fieldOf(nodeColumns, &Node::Mass), "Mass" + of, "is 0: it cannot be moved");
        // -1 stands for no shooter, 0 for a trigger still to be found.
        if (node.Trigger != none && node.Trigger != 0)
            checkReference(line, fieldOf(nodeColumns, &Node::Trigger), "Res1, the trigger" + of,
                           node.Trigger);
    }
};

}  // namespace

ReadProblems checkProject(std::string_view bytes) {
    const LenientReading reading = parseLeniently(bytes);
    return Checker(reading).findings();
}

}  // namespace zentrik
