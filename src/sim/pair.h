#pragma once
// x and y side by side, so that one instruction works on both. Lane 0 is x, lane 1 is y; arithmetic
// between pairs goes lane by lane and rounds exactly as it does for single numbers.

#include <cmath>
#include <cstdint>

namespace zentrik {

using Int2 = std::int32_t __attribute__((vector_size(8)));
using Float2 = float __attribute__((vector_size(8)));
using Double2 = double __attribute__((vector_size(16)));

// Single numbers: a stored quantity is a 32-bit real, an expression is evaluated in double precision.
inline float real(double value) { return static_cast<float>(value); }
inline double wide(float value) { return static_cast<double>(value); }

// Rounds to 32-bit reals; beyond their range gives infinities, which the step looks for.
inline Float2 round32(Double2 pair) { return __builtin_convertvector(pair, Float2); }
inline Double2 wide(Float2 pair) { return __builtin_convertvector(pair, Double2); }
inline Double2 wide(Int2 pair) { return __builtin_convertvector(pair, Double2); }

inline Double2 squareRoot(Double2 pair) { return Double2{std::sqrt(pair[0]), std::sqrt(pair[1])}; }

}  // namespace zentrik
