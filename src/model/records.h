#pragma once
// The two records a model is made of. Slot 0 of both arrays exists and is never used; a record is
// present while Used is true. Fields stand in the order of the project file's columns.

#include <concepts>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

namespace zentrik {

inline constexpr const char* noSprite = "<none>";
inline constexpr std::int32_t none = -1;  // no node, no link

// A point mass. The fields the physics step touches lie in its first cache line.
struct alignas(64) Node {
    bool Used = false;
    std::int32_t X = 0;  // twips, from the left edge of the scene
    std::int32_t Y = 0;  // twips, from the top edge, growing downwards
    float Vx = 0;        // twips per time unit
    float Vy = 0;
    float Fx = 0;  // force gathered during the step
    float Fy = 0;
    float Mass = 0;
    bool Locked = false;  // never moved by the step
    bool JustReleased = false;
    bool BeingDragged = false;
    float Gravity = 0;  // strength with which it attracts every other node
    float Vxo = 0;      // initial velocity in thousandths, or direction in degrees
    float Vyo = 0;      // initial velocity in thousandths, or speed in thousandths
    float Rotate = 0;   // rotational drive it exerts on the nodes linked to it
    std::string Sprite;
    std::int32_t SpriteIndex = 0;  // place in the sprite list; not stored in files
    std::int32_t color = 0;        // red + 256 * green + 65536 * blue
    std::int32_t Trigger = 0;      // node of a shooter; -1 = no shooter
    float Res2 = 0;
    bool Marked = false;  // of the object that a command works on
    std::string Res4;
    std::int32_t Res5 = 0;
    float Res6 = 0;
    bool Res7 = false;
    std::string Res8;
};

// A spring between two nodes.
struct alignas(64) Link {
    bool Used = false;
    std::int32_t N1 = 0;
    std::int32_t N2 = 0;
    float RestLength = 0;     // twips
    float CurrentLength = 0;  // twips, measured anew by every step
    float k = 0;              // spring constant
    bool Animator = false;    // rest length driven by the clock
    float Angle = 0;          // animator phase, degrees
    float Force = 0;          // animator amplitude, fraction of the rest length
    bool Barrier = false;     // deflects nodes
    std::int32_t DiscX = 0;   // place of its disc in the phase strip, twips
    float Res2 = 0;
    bool Marked = false;  // of the object that a command works on
    std::int32_t DiscY = 0;
    float Res5 = 0;
    bool Res6 = false;
};

// All fields of a record in two groups, for whoever keeps or compares whole records: what a project
// means, and the traces that gestures, object commands and the phase strip leave in it.
template <class T, class Record>
concept RecordLike = std::same_as<std::remove_const_t<T>, Record>;

auto meaningOf(RecordLike<Node> auto& n) {
    return std::tie(n.Used, n.X, n.Y, n.Vx, n.Vy, n.Fx, n.Fy, n.Mass, n.Locked, n.Gravity, n.Vxo, n.Vyo,
                    n.Rotate, n.Sprite, n.SpriteIndex, n.color, n.Trigger, n.Res2, n.Res4, n.Res5, n.Res6,
                    n.Res7, n.Res8);
}
auto tracesOf(RecordLike<Node> auto& n) { return std::tie(n.JustReleased, n.BeingDragged, n.Marked); }

auto meaningOf(RecordLike<Link> auto& l) {
    return std::tie(l.Used, l.N1, l.N2, l.RestLength, l.CurrentLength, l.k, l.Animator, l.Angle, l.Force,
                    l.Barrier, l.Res2, l.Res5, l.Res6);
}
auto tracesOf(RecordLike<Link> auto& l) { return std::tie(l.DiscX, l.Marked, l.DiscY); }

}  // namespace zentrik
