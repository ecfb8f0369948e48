#pragma once
// Contacts with the left and the right wall.

#include "model/editor.h"
#include "sim/contacts/contacts.h"

#include <utility>
#include <vector>

namespace zentrik {

// A contact sends every node of the object that is at this wall back to the wall's line and turns it; with
// "reverse model" it turns all nodes there are. In a large object many nodes touch in one step, and each
// contact would pass over all the others. So a contact only counts: every node remembers how many turns it
// has made and owes the rest, until somebody wants its velocity. Places are put right at once.
class Walls {
public:
    // A new step of a model; nothing but its end needs to be told unless a wall is touched.
    void begin(Editor& editor, const Bounds& bounds);

    // The contacts of a node that its own move has just put where it is.
    void meet(std::int32_t i);
    // A barrier has put the node elsewhere after that.
    void nodeDeflected(std::int32_t i);
    // The nodes whose places meet has changed since the last call.
    std::vector<std::int32_t> takeMoved() { return std::exchange(moved_, {}); }

    bool touched() const { return touched_; }  // the model's clock turns round
    bool owes(std::int32_t i) const { return touched_ && owed(i) != 0; }
    // Makes the turns that a node owes.
    void settle(std::int32_t i);
    // Makes all turns still owed, and marks the object of the last contact.
    void end();

private:
    enum Side { left, right };
    using Count = std::uint32_t;

    Editor* ed_ = nullptr;
    Bounds bounds_{};
    bool reverse_ = false;  // all nodes are one object, wherever they are
    bool apart_ = true;     // no place is at both walls
    bool touched_ = false;
    std::int32_t lastObject_ = none;
    std::vector<std::int32_t> objects_;  // by node
    std::vector<Count> done_;            // by node
    std::vector<Count> turns_;           // by object and side
    std::vector<std::int32_t> moved_;

    // Nodes behind a wall's line, in one list for each object and side.
    struct Behind {
        std::int32_t node, next;
    };
    std::vector<Behind> behind_;
    std::vector<std::int32_t> firstBehind_;

    void prepare();
    bool reached(Side side, std::int32_t x) const {
        return side == left ? x <= bounds_.low : x >= bounds_.right;
    }
    std::int32_t line(Side side) const;
    std::size_t group(std::int32_t i, Side side) const;
    Count owed(std::int32_t i) const;
    void noteBehind(std::int32_t i);
    void contact(std::int32_t i, Side side);
    void sendBack(std::int32_t i, Side side);
    void sendAllBack(Side side);
};

}  // namespace zentrik
