#include "history/lost_work.h"

#include <algorithm>
#include <utility>

namespace zentrik {

namespace {

constexpr std::ptrdiff_t few = 5;  // steps, or records removed, that are no great loss

bool isFiled(const History& history, std::uint64_t state) {
    return std::any_of(history.filed.begin(), history.filed.end(),
                       [state](const auto& file) { return file.second == state; });
}

bool muchLess(std::ptrdiff_t count, std::ptrdiff_t former) {
    return count <= former - few || count * 2 < former;
}
bool muchSmaller(const Size& size, const Size& former) {
    return muchLess(size.nodes, former.nodes) || muchLess(size.links, former.links);
}

// The largest model since the last one that was kept or replaced.
State largestOf(const History& history) {
    if (!history.done.empty() && !isFiled(history, history.done.back().largest.number))
        return history.done.back().largest;
    return {history.state, sizeOf(history.shown)};
}

// A former state, or the oldest that is known.
void lose(History& history, const State& state) {
    if (state.size.nodes == 0 || isFiled(history, state.number)) return;
    Lost lost{history.shown, history.context.savedText};
    std::uint64_t at = history.state;
    for (auto step = history.done.rbegin(); step != history.done.rend() && at != state.number; ++step) {
        apply(step->difference, Way::back, lost.model);
        lost.project = step->before.savedText;
        at = step->from;
    }
    history.lost.push_back(std::move(lost));
}

}  // namespace

void noteStep(History& history, const Editor& ed, Step& step) {
    step.size = sizeOf(ed);
    step.largest = {step.to, step.size};
    const State largest = largestOf(history);
    const bool replaced = std::exchange(history.replacedCount, ed.replacedCount) != ed.replacedCount;
    noteUndone(history, step.size, replaced ? Undone::everything : Undone::whenMuch);
    if (replaced)
        lose(history, {history.state, sizeOf(history.shown)});
    else if (muchSmaller(step.size, largest.size))
        lose(history, largest);
    else if (step.size.nodes < largest.size.nodes || step.size.links < largest.size.links)
        step.largest = largest;
}

void noteRun(History& history) {
    const bool ranBefore = !history.done.empty() && history.done.back().run;
    if (!ranBefore) lose(history, {history.state, sizeOf(history.shown)});
}

void noteUndone(History& history, const Size& present, Undone how) {
    if (history.undone.empty()) return;
    const Step& last = history.undone.front();
    const bool much = std::cmp_greater_equal(history.undone.size(), few) || muchSmaller(present, last.size) ||
                      last.after.savedText != history.context.savedText;
    if (last.size.nodes == 0 || isFiled(history, last.to) || last.to == history.undoneKept) return;
    if (how == Undone::whenMuch && !much) return;
    Lost lost{history.shown, last.after.savedText};
    for (auto step = history.undone.rbegin(); step != history.undone.rend(); ++step)
        apply(step->difference, Way::forth, lost.model);
    history.lost.push_back(std::move(lost));
    history.undoneKept = last.to;
}

}  // namespace zentrik
