// The scale rule shared by every integer Sfs operation: the exact result x
// of the operation, times 2^-s, rounded to nearest with ties to even (only a
// positive factor rounds), then saturated to the destination type. A factor
// of 0 or below multiplies; the result saturates as the exact product would.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/pixel.hpp"

namespace gex {

// x x 2^-s rounded to nearest, ties to even, for s > 0. In integer terms:
// (x + ((x >> s) & 1) + 2^(s-1) - 1) >> s with arithmetic shifts, which holds
// for negative x too (-0.5 -> 0, -1.5 -> -2). |x| must stay below 2^62; any
// s above 62 gives 0 for such x.
constexpr std::int64_t shift_round_even(std::int64_t x, int s) {
    if (s > 62) return 0;
    return (x + ((x >> s) & 1) + (std::int64_t{1} << (s - 1)) - 1) >> s;
}

// The whole rule for a destination of type T (an integer type up to 32 bits).
template <class T>
constexpr T scale_saturate(std::int64_t x, int s) {
    using L = std::numeric_limits<T>;
    if (s > 0) return saturate<T>(shift_round_even(x, s));
    if (x == 0 || s == 0) return saturate<T>(x);
    // A left shift: once |x| x 2^-s leaves every 32-bit range, only the sign
    // matters.
    const int sh = -s;
    if (sh > 32) return x > 0 ? L::max() : L::lowest();
    const std::int64_t limit = std::int64_t{1} << (62 - sh);  // beyond it every 32-bit type saturates
    if (x >= limit) return L::max();
    if (x <= -limit) return L::lowest();
    return saturate<T>(x * (std::int64_t{1} << sh));
}

}  // namespace gex
