// The module of a live page: C functions over one creature, for the page's script. Bytes and texts go through
// one buffer each; their places hold until the next call.

#include "basics/numbers.h"
#include "measure/state_hash.h"
#include "model/store.h"
#include "project/writer.h"
#include "web/creature.h"
#include "web/picture.h"
#include "web/settings.h"

#ifdef __wasm__
#define ZENTRIK_PAGE(name) __attribute__((export_name(#name)))
// The module's one thread never ends.
extern "C" int __cxa_thread_atexit(void (*)(void*), void*, void*) { return 0; }
#else
#define ZENTRIK_PAGE(name)
#endif

namespace zentrik::page {

namespace {

Creature creature;
LivePicture picture;
std::string given, said;

Editor& ed = creature.ed;

std::string quoted(const std::string& text) { return '"' + text + '"'; }

// The table as JSON; its texts hold nothing that must be escaped.
std::string settingsText() {
    const Tips tips;
    std::string text = "[";
    for (const LiveSetting& row : liveSettings()) {
        const std::string label = row.caption ? tips.*row.caption : row.label ? row.label : "";
        text += (text.size() > 1 ? ",{" : "{") + ("\"name\":" + quoted(row.name)) +
                ",\"label\":" + quoted(label) + ",\"slider\":" + (row.caption ? "true" : "false") +
                ",\"least\":" + realText(row.least) + ",\"most\":" + realText(row.most) +
                ",\"by\":" + realText(row.by) + "}";
    }
    return text + "]";
}

template <class Rows>
std::int32_t countOf(const Rows& rows) {
    return static_cast<std::int32_t>(rows.size());
}

}  // namespace

// Room for bytes from the page.
ZENTRIK_PAGE(room) char* room(std::int32_t size) {
    given.resize(static_cast<std::size_t>(size));
    return given.data();
}

// What was said last: bytes in UTF-8.
ZENTRIK_PAGE(text) const char* text() { return said.data(); }
ZENTRIK_PAGE(textSize) std::int32_t textSize() { return countOf(said); }

// The room holds the name of the next sprite, or a project's bytes.
ZENTRIK_PAGE(addSprite) void addSprite() { ed.spriteNames.push_back(given); }
ZENTRIK_PAGE(load) bool loadGiven() {
    said = load(creature, given);
    return said.empty();
}
ZENTRIK_PAGE(begin) void beginNow() { begin(creature); }

ZENTRIK_PAGE(settings) void saySettings() { said = settingsText(); }
ZENTRIK_PAGE(get) double get(std::int32_t i) {
    return settingOf(ed, liveSettings()[static_cast<std::size_t>(i)]);
}
ZENTRIK_PAGE(set) void setTo(std::int32_t i, double value) {
    change(creature, static_cast<std::size_t>(i), value);
}

ZENTRIK_PAGE(start) void start(bool on) { setRunning(creature, on); }
ZENTRIK_PAGE(tick) void tickNow() { tickOnce(creature); }
ZENTRIK_PAGE(step) void step() { stepOnce(creature); }
ZENTRIK_PAGE(reset) void resetNow() { reset(creature); }
ZENTRIK_PAGE(goTo) void goToStep(std::int32_t number) { goTo(creature, number); }
ZENTRIK_PAGE(running) bool running() { return ed.Timer1.enabled; }
ZENTRIK_PAGE(at) std::int32_t at() { return static_cast<std::int32_t>(creature.timeline.at); }
ZENTRIK_PAGE(last) std::int32_t last() { return static_cast<std::int32_t>(creature.timeline.run.last); }
ZENTRIK_PAGE(clock) double clock() { return static_cast<double>(ed.AnimationTime); }
ZENTRIK_PAGE(period) std::int32_t period() { return ed.timerPeriod; }

ZENTRIK_PAGE(move) void move(float x, float y) { pointerMoves(creature, x, y); }
ZENTRIK_PAGE(down) bool down(float x, float y, float reach) {
    pointerDown(creature, x, y, reach);
    return ed.MouseIsDown;
}
ZENTRIK_PAGE(up) void up(float x, float y) { pointerUp(creature, x, y); }
ZENTRIK_PAGE(next) void next(bool back) { selectNext(creature, back); }
ZENTRIK_PAGE(nudge) void nudgeBy(float dx, float dy) { nudge(creature, dx, dy); }
ZENTRIK_PAGE(selected) std::int32_t selected() { return ed.SelectedNode; }
ZENTRIK_PAGE(shoots) bool shootsNow() { return hasShooter(creature); }
ZENTRIK_PAGE(fire) void fireNow() { fire(creature); }

// The title; what status panel 5 says; the bytes that Save would write.
ZENTRIK_PAGE(title) void sayTitle() { said = ed.ProjectTitle; }
ZENTRIK_PAGE(message) void sayMessage() { said = panel(ed, 5); }
ZENTRIK_PAGE(save) void save() { said = projectBytes(ed); }
ZENTRIK_PAGE(hash) std::uint64_t hash() { return stateHash(ed); }

// The picture, and then its lists: 0 links, 1 nodes, 2 marks, 3 labels.
ZENTRIK_PAGE(draw) void draw() { describe(picture, ed); }
ZENTRIK_PAGE(list) const void* list(std::int32_t which) {
    const void* const lists[] = {picture.links.data(), picture.nodes.data(), picture.marks.data(),
                                 picture.labels.data()};
    return lists[which];
}
ZENTRIK_PAGE(count) std::int32_t count(std::int32_t which) {
    const std::int32_t counts[] = {countOf(picture.links), countOf(picture.nodes), countOf(picture.marks),
                                   countOf(picture.labels)};
    return counts[which];
}

}  // namespace zentrik::page
