#pragma once
// The stage of a step that moves the nodes.

#include "model/editor.h"
#include "sim/attraction.h"
#include "sim/contacts/barriers.h"
#include "sim/contacts/contacts.h"
#include "sim/contacts/walls.h"
#include "sim/forces.h"
#include "sim/node_run.h"
#include "sim/step_report.h"

#include <string>

namespace zentrik {

// Moves every free node and meets its contacts, in index order: later nodes see where earlier ones have
// gone. Everything that is known ahead is computed for a run of nodes at once; a run ends where a node
// changes what the next ones see, that is at an attracting node and where a wall contact turns or moves them.
class NodeStage {
public:
    // points, attraction and barriers must hold this step's forces, attracting nodes and the barriers that
    // are heeded.
    NodeStage(Editor& editor, const ForcePoints& points, Attraction& attraction, Barriers& barriers,
              Walls& walls, StepReport& report);

    // dt: time units. lastFree: the last node that will move. Gives what went wrong, or the empty text.
    std::string run(float dt, std::int32_t lastFree);
    // Names the first used node whose velocity is not finite, moved or not; the empty text for none.
    std::string checkVelocities() const;

private:
    Editor& ed;
    const ForcePoints& points_;
    Attraction& attraction_;
    Barriers& barriers_;
    Walls& walls_;
    StepReport& report_;
    const Bounds bounds_;
    std::int32_t lastFree_ = 0;
    bool attracts_, recolour_;
    bool attractorMoved_ = false;  // by the last wall contact
    NodeRun run_;
    Arrivals arrivals_;  // where the run's nodes go, if nothing comes in between

    std::int32_t gatherRun(std::int32_t from);
    void attract();
    bool nothingComesBetween() const;
    void commitPlainRun() const;
    std::int32_t commitRun(std::int32_t from, std::int32_t to, std::string& problem);
    const char* hold(std::int32_t i, Node& node) const;
    const char* move(std::int32_t i, Node& node, std::size_t lane);
    [[gnu::noinline]] const char* meetContacts(std::int32_t i, Node& node);
    void meetWalls(std::int32_t i);
    void meetBarriers(std::int32_t i, Node& node);
    void reportDistance(Node& node);
};

}  // namespace zentrik
