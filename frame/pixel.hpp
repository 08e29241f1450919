// Pixel traits and saturation: the numeric vocabulary every family shares.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "gexdefs.h"

namespace gex {

template <class T>
struct PixelTraits {
    static_assert(std::is_arithmetic_v<T>, "no pixel traits for this type");
    using type = T;
    // A type wide enough for sums and products of two pixels.
    using wide = std::conditional_t<std::is_floating_point_v<T>, double,
                 std::conditional_t<(sizeof(T) < 4), int, std::int64_t>>;
    static constexpr bool is_float = std::is_floating_point_v<T>;
    static constexpr T min() { return std::numeric_limits<T>::lowest(); }
    static constexpr T max() { return std::numeric_limits<T>::max(); }
};

// Clamp an integer value into T's range.
template <class T, class U>
constexpr T saturate(U v) {
    static_assert(std::is_integral_v<U>);
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else {
        using L = std::numeric_limits<T>;
        if constexpr (std::is_signed_v<U>) {
            if (v < static_cast<std::int64_t>(L::lowest())) return L::lowest();
            if (static_cast<std::int64_t>(v) > static_cast<std::int64_t>(L::max()) &&
                (sizeof(T) < 8 || std::is_signed_v<T>))
                return L::max();
        } else {
            if (v > static_cast<std::uint64_t>(L::max())) return L::max();
        }
        return static_cast<T>(v);
    }
}

// Round a double to an integer value by GexRoundMode: 0 toward zero, 1 nearest
// with ties to even, any other value nearest with ties away from zero. The
// result never depends on the processor's rounding control.
inline double round_by_mode(double v, int mode) {
    if (mode == gexRndZero) return std::trunc(v);
    if (mode != gexRndNear) return std::round(v);
    const double f = std::floor(v);
    const double d = v - f;  // exact for every finite double
    if (d > 0.5) return f + 1.0;
    if (d < 0.5) return f;
    return std::fmod(f, 2.0) == 0.0 ? f : f + 1.0;
}

// Round and saturate a floating value into the integer type T. NaN gives the
// type's minimum (0 for unsigned types), infinities the ends of the range.
template <class T>
inline T saturate_round(double v, int mode) {
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(v);
    } else {
        if (std::isnan(v)) return std::numeric_limits<T>::lowest();
        double r = round_by_mode(v, mode);
        if (r <= static_cast<double>(std::numeric_limits<T>::lowest())) return std::numeric_limits<T>::lowest();
        if (r >= static_cast<double>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
        return static_cast<T>(r);
    }
}

// Bytes of a pixel with `channels` channels (AC4 counts four).
template <class T>
constexpr int pixel_bytes(int channels) { return static_cast<int>(sizeof(T)) * channels; }

// Row pointer arithmetic with byte steps.
template <class T>
inline T* row_at(T* base, std::int64_t step, std::int64_t y) {
    using B = std::conditional_t<std::is_const_v<T>, const unsigned char, unsigned char>;
    return reinterpret_cast<T*>(reinterpret_cast<B*>(base) + step * y);
}

template <class T>
inline T* advance_bytes(T* p, std::int64_t bytes) {
    return row_at(p, bytes, 1);
}

}  // namespace gex
