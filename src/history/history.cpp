#include "history/history.h"

#include "history/lost_work.h"

#include <cassert>
#include <utility>

namespace zentrik {

namespace {

using Going = History::Going;

constexpr const char* runName = "Animation run";
constexpr const char* travelName = "Other moment of the run";

Context contextOf(const Editor& ed) {
    return {ed.SelectedNode, ed.SelectedLink, ed.SelectedAnimatorLink, ed.savedText};
}

std::size_t bytesOf(const Step& step) {
    return sizeof step + step.difference.size() + step.what.size() + step.before.savedText.size() +
           step.after.savedText.size();
}

void forget(History& history, std::deque<Step>& steps) {
    for (; !steps.empty(); steps.pop_back()) history.bytes -= bytesOf(steps.back());
}

void forgetTheOldest(History& history) {
    for (; history.bytes > historyLimit && history.done.size() > 1; history.done.pop_front())
        history.bytes -= bytesOf(history.done.front());
}

// Makes whatever changed since the newest step a step. False when nothing did.
bool keepChange(History& history, const Editor& ed, const std::string& what, bool isRun = false) {
    std::optional<Difference> difference = differenceBetween(history.shown, ed);
    if (!difference) return false;
    assert(!what.empty());  // the undo button shows it
    Step step{what,          history.context,  contextOf(ed), *std::move(difference),
              history.state, ++history.newest, isRun};
    noteStep(history, ed, step);
    apply(step.difference, Way::forth, history.shown);
    history.state = step.to;
    history.done.push_back(std::move(step));
    history.bytes += bytesOf(history.done.back());
    history.context = contextOf(ed);
    forget(history, history.undone);
    forgetTheOldest(history);
    return true;
}

// The newest step goes on: as if it had not been made one.
void reopen(History& history, Going going) {
    apply(history.done.back().difference, Way::back, history.shown);
    history.state = history.done.back().from;
    history.context = history.done.back().before;
    history.bytes -= bytesOf(history.done.back());
    history.done.pop_back();
    history.going = going;
}

// What a mouse gesture did, told from what it left.
std::string gestureName(const Contents& before, const Editor& ed, const std::string& otherwise) {
    if (ed.Nodes.size() > before.Nodes.size()) return "Node " + std::to_string(lastNode(ed)) + " added";
    if (ed.Links.size() > before.Links.size()) return "Link " + std::to_string(lastLink(ed)) + " added";
    if (UsedNodes(ed) < UsedNodes(before)) return "Node removed";
    return otherwise;
}

std::string commandName(const History& history, const Editor& ed, const std::string& otherwise) {
    constexpr std::size_t longest = 80;
    std::string text = ed.panels[4];
    if (text.empty() || text == history.said || text.starts_with("H: ") || text.size() > longest)
        return otherwise;
    while (text.ends_with('!')) text.pop_back();
    return text;
}

// A rename is no step: undo and redo lead to the new name.
void renameInSteps(History& history, const std::string& from, const std::string& to) {
    const auto rename = [&](Context& context) {
        if (context.savedText == from) context.savedText = to;
    };
    for (auto* steps : {&history.done, &history.undone})
        for (Step& step : *steps) {
            history.bytes -= bytesOf(step);
            rename(step.before), rename(step.after);
            history.bytes += bytesOf(step);
        }
    rename(history.context);
}

// What a renamed file holds the new one holds; a deleted one holds nothing.
void followFiles(History& history, const Editor& ed) {
    if (std::exchange(history.goneCount, ed.goneCount) == ed.goneCount) return;
    const auto file = history.filed.extract(ed.goneName);
    const std::string former = history.context.savedText;  // with the blanks that were typed around it
    if (former == ed.savedText) return;
    if (!file.empty()) history.filed[ed.savedText] = file.mapped();
    for (const std::string& name : {former, ed.goneName}) renameInSteps(history, name, ed.savedText);
}

void endTick(History& history, const Editor& ed) {
    const bool ranOn = std::exchange(history.running, ed.Timer1.enabled);
    if (history.going == Going::drag) return;
    if (history.going == Going::nothing && !ranOn) noteRun(history);
    history.going = Going::run;
    if (!ed.Timer1.enabled) closeStep(history, ed);
}

void endGesture(History& history, const Editor& ed, const std::string& what) {
    const bool held = ed.MouseIsDown || ed.PhaseDragging;
    if (history.going == Going::drag && held) return;
    history.going = Going::nothing;
    if (!held) {
        keepChange(history, ed, gestureName(history.shown, ed, what));
    } else if (differenceBetween(history.shown, ed)) {
        history.going = Going::drag;  // one step, at its release
    }
}

}  // namespace

void startHistory(History& history, const Editor& ed) {
    history = History{};
    history.shown = ed;
    history.context = contextOf(ed);
    history.filed[ed.savedText] = history.state;
    history.filedCount = ed.filedCount;
    history.replacedCount = ed.replacedCount;
    history.goneCount = ed.goneCount;
}

void beginEvent(History& history, const Editor& ed, Event event) {
    history.said = ed.panels[4];
    history.stepped = Going::nothing;
    if (event == Event::timer) {
        if (history.going == Going::nothing) history.context = contextOf(ed);
        return;
    }
    const Going going = history.going;
    const bool ofTime = going == Going::run || going == Going::travel;
    if (ofTime || event == Event::command) {
        const std::uint64_t before = history.state;
        closeStep(history, ed);
        if (ofTime && history.state != before) history.stepped = going;
    }
    if (history.going == Going::nothing) history.context = contextOf(ed);
}

void endEvent(History& history, const Editor& ed, Event event, const std::string& what) {
    history.changed = false;
    if (event == Event::timer) return endTick(history, ed);
    history.running = history.running && ed.Timer1.enabled;
    const std::uint64_t before = history.state;
    if (event == Event::mouse)
        endGesture(history, ed, what);
    else
        keepChange(history, ed, commandName(history, ed, what));

    const bool filed = std::exchange(history.filedCount, ed.filedCount) != ed.filedCount;
    if (filed) history.filed[ed.savedText] = history.state;
    followFiles(history, ed);
    history.changed = history.state != before || history.going != Going::nothing;
    const bool goesOn = history.stepped == Going::travel || ed.Timer1.enabled;
    if (history.stepped != Going::nothing && goesOn && !history.changed && !filed)
        reopen(history, history.stepped);
}

void beginTravel(History& history, const Editor& ed) {
    history.context = contextOf(ed);
    history.going = Going::travel;
}

void closeStep(History& history, const Editor& ed) {
    const Going going = std::exchange(history.going, Going::nothing);
    if (going == Going::nothing) return;
    if (going == Going::drag)
        keepChange(history, ed, gestureName(history.shown, ed, "Node moved"));
    else
        keepChange(history, ed, going == Going::run ? runName : travelName, true);
}

namespace {

// Takes the model over the step that is next on this way.
void move(History& history, Editor& ed, std::deque<Step>& from, std::deque<Step>& to, Way way) {
    if (from.empty()) return;
    const Step& step = to.emplace_back(std::move(from.back()));
    from.pop_back();
    apply(step.difference, way, history.shown);
    static_cast<Contents&>(ed) = history.shown;
    history.context = way == Way::back ? step.before : step.after;
    history.state = way == Way::back ? step.from : step.to;
    ed.SelectedNode = history.context.SelectedNode;
    ed.SelectedLink = history.context.SelectedLink;
    ed.SelectedAnimatorLink = history.context.SelectedAnimatorLink;
    ed.HoverNode = ed.HoverLink = none;
    ed.savedText = history.context.savedText;
}

}  // namespace

void stepBack(History& history, Editor& ed) { move(history, ed, history.done, history.undone, Way::back); }
void stepForth(History& history, Editor& ed) { move(history, ed, history.undone, history.done, Way::forth); }

bool isModified(const History& history, const Editor& ed) {
    if (history.going != Going::nothing) return true;
    const auto file = history.filed.find(ed.savedText);
    return file == history.filed.end() || file->second != history.state;
}

}  // namespace zentrik
