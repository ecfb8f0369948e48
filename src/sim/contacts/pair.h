#pragma once
// x and y side by side, so that one instruction works on both. Lane 0 is x, lane 1 is y; arithmetic
// between pairs goes lane by lane and rounds exactly as it does for single numbers.

#include "model/records.h"

#include <cstring>

// Marks a function of plain loops to be compiled twice: for processors with 256-bit vectors and for all
// others, where the compiler can. The program picks at its start; results are the same to the last bit, only
// sooner there.
#if defined(__x86_64__)
#define ZENTRIK_WIDE_LOOP [[gnu::target_clones("avx2", "default")]]
#else
#define ZENTRIK_WIDE_LOOP
#endif

namespace zentrik {

using Float2 = float __attribute__((vector_size(8)));
using Double2 = double __attribute__((vector_size(16)));
using Int2 = std::int32_t __attribute__((vector_size(8)));

// Single numbers: a stored quantity is a 32-bit real, an expression is evaluated in double precision.
inline float real(double value) { return static_cast<float>(value); }
inline double wide(float value) { return static_cast<double>(value); }

// Rounds to 32-bit reals; beyond their range gives infinities, which the step looks for.
inline Float2 round32(Double2 pair) { return __builtin_convertvector(pair, Float2); }
inline Float2 round32(Int2 pair) { return __builtin_convertvector(pair, Float2); }
inline Double2 wide(Float2 pair) { return __builtin_convertvector(pair, Double2); }
inline Double2 wide(Int2 pair) { return __builtin_convertvector(pair, Double2); }

inline Int2 placeOf(const Node& node) { return Int2{node.X, node.Y}; }
inline Float2 velocityOf(const Node& node) { return Float2{node.Vx, node.Vy}; }
inline Float2 forceOf(const Node& node) { return Float2{node.Fx, node.Fy}; }

// From b to a, rounded once.
inline Float2 difference(const Node& a, const Node& b) {
    return round32(wide(placeOf(a)) - wide(placeOf(b)));
}

// Hands a pair to two neighbours in an array.
template <class Pair, class T>
void store(T* to, Pair pair) {
    std::memcpy(to, &pair, sizeof pair);
}

}  // namespace zentrik
