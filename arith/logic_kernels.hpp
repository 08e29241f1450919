// Row kernels of the bitwise logic (And, Or, Xor of two images or of an image
// and a constant) and of the shifts by a constant amount, with the scalar
// twins the tests compare them with.
//
// A row is n elements of T. Channels: 1, 3 or 4; an AC4 row has four
// elements a pixel, of which the fourth is neither read nor written (the
// repeating colour-byte mask is applied to loads and stores alike). The
// logic works on bytes, whatever the depth. A constant or a set of shift
// amounts becomes a periodic operand: the vectors that line up with the
// row's bytes 0..63, 64..127 and 128..191. Pixels of 1, 4, 8 or 16 bytes
// divide 64, so one vector serves; three-channel pixels (3, 6 or 12 bytes)
// repeat every 192 bytes, so three vectors rotate. Every row starts at the
// operand's first byte, and rows with no gap continue it seamlessly.
//
// Shifts use per-lane counts: 16- and 32-bit elements shift in their own
// lanes (sllv, srlv, srav), with counts clamped to the lane width so that a
// larger amount gives 0 (or the sign, arithmetic shifts). 8-bit elements
// shift in 16-bit lanes, the even and odd bytes apart with their own counts
// (clamped to 8) and masked back into place.
#pragma once

// GCC 12 reports the undefined pass-through operand inside unmasked
// intrinsics as uninitialized, in every file that inlines these kernels.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

#include <immintrin.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/simd.hpp"
#include "gexdefs.h"

namespace gex::logic_kernels {

enum class Op { And, Or, Xor };
enum class Shift { Left, Right, RightArith };

// The bytes of the first three channels of AC4 pixels of E-byte elements,
// over one vector.
template <int E>
constexpr std::uint64_t ac4_bytes() {
    std::uint64_t m = 0;
    for (int b = 0; b < 64; ++b)
        if (b % (4 * E) < 3 * E) m |= std::uint64_t{1} << b;
    return m;
}

template <Op O>
inline __m512i logic(__m512i a, __m512i b) {
    if constexpr (O == Op::And) return _mm512_and_si512(a, b);
    else if constexpr (O == Op::Or) return _mm512_or_si512(a, b);
    else return _mm512_xor_si512(a, b);
}

template <Op O, class T>
inline T logic_one(T a, T b) {
    if constexpr (O == Op::And) return static_cast<T>(a & b);
    else if constexpr (O == Op::Or) return static_cast<T>(a | b);
    else return static_cast<T>(a ^ b);
}

// ---- two sources ------------------------------------------------------------------------------
// d = a op b over n bytes; with AC4 (E-byte elements) only the colour bytes.
template <Op O, bool AC4, int E>
inline void binary_bytes(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* d, std::int64_t n) {
    constexpr std::uint64_t w = AC4 ? ac4_bytes<E>() : ~std::uint64_t{0};
    std::int64_t i = 0;
    for (; i + 128 <= n; i += 128) {
        if constexpr (AC4) {
            const __m512i r0 = logic<O>(_mm512_maskz_loadu_epi8(w, a + i), _mm512_maskz_loadu_epi8(w, b + i));
            const __m512i r1 =
                logic<O>(_mm512_maskz_loadu_epi8(w, a + i + 64), _mm512_maskz_loadu_epi8(w, b + i + 64));
            _mm512_mask_storeu_epi8(d + i, w, r0);
            _mm512_mask_storeu_epi8(d + i + 64, w, r1);
        } else {
            const __m512i r0 = logic<O>(_mm512_loadu_si512(a + i), _mm512_loadu_si512(b + i));
            const __m512i r1 = logic<O>(_mm512_loadu_si512(a + i + 64), _mm512_loadu_si512(b + i + 64));
            _mm512_storeu_si512(d + i, r0);
            _mm512_storeu_si512(d + i + 64, r1);
        }
    }
    for (; i < n; i += 64) {
        const __mmask64 m = w & simd::tail_mask64(n - i);
        _mm512_mask_storeu_epi8(d + i, m, logic<O>(_mm512_maskz_loadu_epi8(m, a + i), _mm512_maskz_loadu_epi8(m, b + i)));
    }
}

template <Op O, bool AC4, class T>
inline void binary_row(const T* a, const T* b, T* d, std::int64_t n) {
    binary_bytes<O, AC4, sizeof(T)>(reinterpret_cast<const std::uint8_t*>(a), reinterpret_cast<const std::uint8_t*>(b),
                                    reinterpret_cast<std::uint8_t*>(d), n * std::int64_t{sizeof(T)});
}

template <Op O, class T>
inline void binary_row_ref(const T* a, const T* b, T* d, std::int64_t n, bool ac4) {
    for (std::int64_t i = 0; i < n; ++i)
        if (!ac4 || (i & 3) != 3) d[i] = logic_one<O>(a[i], b[i]);
}

// ---- the periodic operand ---------------------------------------------------------------------
struct Pattern {
    __m512i v[3];    // the vectors at bytes 0, 64, 128 of a row (constants, or shift counts)
    __m512i odd[3];  // 8-bit shifts: the counts of the odd bytes (v holds the even ones)
    int period = 1;  // vectors before it repeats: 1 or 3
};

// Constant values, one per channel (AC4: three, the alpha lanes are never
// stored). ch is 1, 3 or 4.
template <class T>
inline Pattern value_pattern(const T* vals, int ch, bool ac4) {
    constexpr int E = sizeof(T);
    Pattern p{};
    p.period = ch == 3 ? 3 : 1;
    alignas(64) std::uint8_t bytes[192];
    for (int o = 0; o < 64 * p.period; ++o) {
        const int e = o / E;
        const int c = e % ch;
        const T v = (ac4 && c == 3) ? T{0} : vals[c];
        std::uint8_t vb[sizeof(T)];
        std::memcpy(vb, &v, sizeof(T));
        bytes[o] = vb[o % E];
    }
    for (int k = 0; k < 3; ++k) p.v[k] = _mm512_load_si512(bytes + 64 * (k % p.period));
    return p;
}

// Shift amounts, one per channel, as per-lane counts clamped to the lane's bits.
template <class T>
inline Pattern shift_pattern(const Gex32u* amounts, int ch, bool ac4) {
    constexpr int E = sizeof(T);
    Pattern p{};
    p.period = ch == 3 ? 3 : 1;
    const auto count = [&](std::int64_t e, Gex32u limit) -> Gex32u {
        const int c = static_cast<int>(e % ch);
        return (ac4 && c == 3) ? 0u : std::min(amounts[c], limit);
    };
    for (int k = 0; k < p.period; ++k) {
        if constexpr (E == 4) {
            alignas(64) std::uint32_t lanes[16];
            for (int j = 0; j < 16; ++j) lanes[j] = count(16 * k + j, 32);
            p.v[k] = _mm512_load_si512(lanes);
        } else {
            alignas(64) std::uint16_t lanes[32], odd[32];
            for (int j = 0; j < 32; ++j) {
                if constexpr (E == 2) {
                    lanes[j] = static_cast<std::uint16_t>(count(32 * k + j, 16));
                    odd[j] = 0;
                } else {
                    lanes[j] = static_cast<std::uint16_t>(count(64 * k + 2 * j, 8));
                    odd[j] = static_cast<std::uint16_t>(count(64 * k + 2 * j + 1, 8));
                }
            }
            p.v[k] = _mm512_load_si512(lanes);
            p.odd[k] = _mm512_load_si512(odd);
        }
    }
    for (int k = p.period; k < 3; ++k) {
        p.v[k] = p.v[0];
        p.odd[k] = p.odd[0];
    }
    return p;
}

// dst = f(src, k) over n bytes, k being the operand's vector for those bytes.
template <bool AC4, int E, class F>
inline void pattern_bytes(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, int period, F&& f) {
    constexpr std::uint64_t w = AC4 ? ac4_bytes<E>() : ~std::uint64_t{0};
    const auto full = [&](std::int64_t i, int k) {
        if constexpr (AC4) _mm512_mask_storeu_epi8(d + i, w, f(_mm512_maskz_loadu_epi8(w, s + i), k));
        else _mm512_storeu_si512(d + i, f(_mm512_loadu_si512(s + i), k));
    };
    std::int64_t i = 0;
    if (period == 1) {
        for (; i + 128 <= n; i += 128) {
            full(i, 0);
            full(i + 64, 0);
        }
    } else {
        for (; i + 192 <= n; i += 192) {
            full(i, 0);
            full(i + 64, 1);
            full(i + 128, 2);
        }
    }
    // At most three vectors left; the operand phase goes on from 0.
    for (int k = 0; i < n; i += 64, k = (k + 1) % period) {
        const __mmask64 m = w & simd::tail_mask64(n - i);
        _mm512_mask_storeu_epi8(d + i, m, f(_mm512_maskz_loadu_epi8(m, s + i), k));
    }
}

// ---- constants --------------------------------------------------------------------------------
template <Op O, bool AC4, class T>
inline void const_row(const T* s, T* d, std::int64_t n, const Pattern& p) {
    pattern_bytes<AC4, sizeof(T)>(reinterpret_cast<const std::uint8_t*>(s), reinterpret_cast<std::uint8_t*>(d),
                                  n * std::int64_t{sizeof(T)}, p.period,
                                  [&p](__m512i x, int k) { return logic<O>(x, p.v[k]); });
}

// vals: one value per channel; ch 1, 3 or 4 (AC4: 4 with ac4, vals[0..2]).
template <Op O, class T>
inline void const_row_ref(const T* s, T* d, std::int64_t n, const T* vals, int ch, bool ac4) {
    for (std::int64_t i = 0; i < n; ++i) {
        const int c = static_cast<int>(i % ch);
        if (!ac4 || c != 3) d[i] = logic_one<O>(s[i], vals[c]);
    }
}

// ---- shifts -----------------------------------------------------------------------------------
template <int E, Shift S>
inline __m512i shift_vec(__m512i x, __m512i c, __m512i codd) {
    if constexpr (E == 4) {
        if constexpr (S == Shift::Left) return _mm512_sllv_epi32(x, c);
        else if constexpr (S == Shift::Right) return _mm512_srlv_epi32(x, c);
        else return _mm512_srav_epi32(x, c);
    } else if constexpr (E == 2) {
        if constexpr (S == Shift::Left) return _mm512_sllv_epi16(x, c);
        else if constexpr (S == Shift::Right) return _mm512_srlv_epi16(x, c);
        else return _mm512_srav_epi16(x, c);
    } else {
        static_assert(S != Shift::RightArith, "no signed 8-bit shift");
        const __m512i lo = _mm512_set1_epi16(0x00ff), hi = _mm512_set1_epi16(static_cast<short>(0xff00));
        if constexpr (S == Shift::Left) {
            const __m512i even = _mm512_and_si512(_mm512_sllv_epi16(x, c), lo);
            const __m512i odd = _mm512_and_si512(_mm512_sllv_epi16(_mm512_and_si512(x, hi), codd), hi);
            return _mm512_or_si512(even, odd);
        } else {
            const __m512i even = _mm512_srlv_epi16(_mm512_and_si512(x, lo), c);
            const __m512i odd = _mm512_and_si512(_mm512_srlv_epi16(x, codd), hi);
            return _mm512_or_si512(even, odd);
        }
    }
}

template <Shift S, bool AC4, class T>
inline void shift_row(const T* s, T* d, std::int64_t n, const Pattern& p) {
    constexpr int E = sizeof(T);
    pattern_bytes<AC4, E>(reinterpret_cast<const std::uint8_t*>(s), reinterpret_cast<std::uint8_t*>(d),
                          n * std::int64_t{E}, p.period,
                          [&p](__m512i x, int k) { return shift_vec<E, S>(x, p.v[k], p.odd[k]); });
}

// One element: amounts of the element's width or more give 0 (the sign for
// arithmetic shifts); bits shifted out of the element are lost.
template <Shift S, class T>
inline T shift_one(T x, Gex32u amount) {
    constexpr Gex32u bits = 8 * sizeof(T);
    using U = std::make_unsigned_t<T>;
    if constexpr (S == Shift::Left) return amount >= bits ? T{0} : static_cast<T>(static_cast<U>(x) << amount);
    else if constexpr (S == Shift::Right) return amount >= bits ? T{0} : static_cast<T>(static_cast<U>(x) >> amount);
    else return static_cast<T>(x >> std::min(amount, bits - 1));
}

template <Shift S, class T>
inline void shift_row_ref(const T* s, T* d, std::int64_t n, const Gex32u* amounts, int ch, bool ac4) {
    for (std::int64_t i = 0; i < n; ++i) {
        const int c = static_cast<int>(i % ch);
        if (!ac4 || c != 3) d[i] = shift_one<S>(s[i], amounts[c]);
    }
}

}  // namespace gex::logic_kernels
