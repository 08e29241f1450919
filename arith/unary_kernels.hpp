// Row kernels of the element functions Abs, Sqr, Sqrt, Ln and Exp, with the
// scalar twins the tests compare them with, and the exact per-pixel functions
// of the integer forms.
//
// A row is n elements. With AC4 the row holds n / 4 pixels (n a multiple of
// 4): the fourth element of every pixel is neither read nor written. A 512-bit
// vector always holds whole pixels, so the repeating AC4 lane mask lines up
// in every vector; it is applied to the loads as well as the stores.
//
// Vector kernels: Abs (16s, 32f), Sqr (8u, 16u, 16s in 32-bit lanes; 32f),
// Sqrt 32f. Scalar: integer Sqrt, Ln and Exp (one value per pixel, 8u through
// a 256-entry table made once per call), the 32f Ln and Exp (the binary64
// functions of the standard library, rounded once to binary32).
#pragma once

// GCC 12 reports the undefined pass-through operand inside unmasked
// intrinsics as uninitialized, in every file that inlines these kernels.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

#include <immintrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/pixel.hpp"
#include "frame/scale.hpp"
#include "frame/simd.hpp"

namespace gex::unary_kernels {

// ---- the same-width element map ----------------------------------------------------------
// dst = f(src) over E-byte elements. f(v, m) gets the loaded vector (lanes off
// in m are zero and were not read) and returns the result vector.
template <int E, bool AC4, class F>
inline void map_row(const void* src, void* dst, std::int64_t n, F&& f) {
    using M = typename simd::Mask<E>::type;
    constexpr std::int64_t L = simd::lanes<E>;
    constexpr M a = AC4 ? simd::ac4_mask<E>() : static_cast<M>(~M(0));
    const auto* s = static_cast<const std::uint8_t*>(src);
    auto* d = static_cast<std::uint8_t*>(dst);
    std::int64_t i = 0;
    for (; i + 2 * L <= n; i += 2 * L) {
        if constexpr (AC4) {
            const __m512i v0 = simd::load_masked<E>(s + i * E, a);
            const __m512i v1 = simd::load_masked<E>(s + (i + L) * E, a);
            simd::store_masked<E>(d + i * E, a, f(v0, a));
            simd::store_masked<E>(d + (i + L) * E, a, f(v1, a));
        } else {
            const __m512i v0 = _mm512_loadu_si512(s + i * E);
            const __m512i v1 = _mm512_loadu_si512(s + (i + L) * E);
            _mm512_storeu_si512(d + i * E, f(v0, a));
            _mm512_storeu_si512(d + (i + L) * E, f(v1, a));
        }
    }
    for (; i < n; i += L) {
        const M m = static_cast<M>(a & simd::Mask<E>::tail(n - i));
        simd::store_masked<E>(d + i * E, m, f(simd::load_masked<E>(s + i * E, m), m));
    }
}

// Scalar twin of the walk: op(src[i], dst[i]) for the elements that are not alpha.
template <class S, class D, class Op>
inline void map_row_scalar(const S* s, D* d, std::int64_t n, bool ac4, Op&& op) {
    for (std::int64_t i = 0; i < n; ++i)
        if (!ac4 || (i & 3) != 3) d[i] = op(s[i]);
}

// The scalar rows of the integer Sqrt, Ln and Exp: dst = f(src); warn(src)
// gives the warning an element raises (0 for none), and the row reports the
// first one met, in element order.
template <bool AC4, class T, class F, class W>
inline GexStatus scalar_row(const T* s, T* d, std::int64_t n, F&& f, W&& warn) {
    GexStatus st = 0;
    for (std::int64_t i = 0; i < n; ++i) {
        if (AC4 && (i & 3) == 3) continue;
        const T x = s[i];
        d[i] = f(x);
        if (st == 0) st = warn(x);
    }
    return st;
}

// ---- Abs ---------------------------------------------------------------------------------
// 16s: |x| saturated, so -32768 gives 32767. 32f: the sign bit cleared (NaN
// payloads kept, -0 gives +0).
template <bool AC4>
inline void abs_16s(const Gex16s* s, Gex16s* d, std::int64_t n) {
    const __m512i top = _mm512_set1_epi16(0x7fff);
    map_row<2, AC4>(s, d, n, [&](__m512i v, auto) { return _mm512_min_epu16(_mm512_abs_epi16(v), top); });
}

template <bool AC4>
inline void abs_32f(const Gex32f* s, Gex32f* d, std::int64_t n) {
    const __m512i body = _mm512_set1_epi32(0x7fffffff);
    map_row<4, AC4>(s, d, n, [&](__m512i v, auto) { return _mm512_and_si512(v, body); });
}

inline Gex16s abs_16s_one(Gex16s x) { return x == -32768 ? Gex16s{32767} : static_cast<Gex16s>(x < 0 ? -x : x); }
inline Gex32f abs_32f_one(Gex32f x) {
    std::uint32_t b;
    __builtin_memcpy(&b, &x, 4);
    b &= 0x7fffffffu;
    __builtin_memcpy(&x, &b, 4);
    return x;
}
inline void abs_16s_ref(const Gex16s* s, Gex16s* d, std::int64_t n, bool ac4) {
    map_row_scalar(s, d, n, ac4, abs_16s_one);
}
inline void abs_32f_ref(const Gex32f* s, Gex32f* d, std::int64_t n, bool ac4) {
    map_row_scalar(s, d, n, ac4, abs_32f_one);
}

// ---- Sqr ---------------------------------------------------------------------------------
// The scale rule on a product p < 2^32 held in an unsigned 32-bit lane:
// p x 2^-s rounded to nearest with ties to even (positive s), then clamped
// to top. Positive s: q = p >> s rounds up when the bits shifted out, plus the
// low bit of q, exceed half of 2^s (the integer form of ties to even, with no
// intermediate overflow); s above 32 leaves less than a half: 0. Zero or
// negative s: p << -s, or top wherever that passes top.
class ScaleU32 {
public:
    enum class Kind { Zero, Down, Up };

    ScaleU32(int s, std::uint32_t top) {
        top_ = _mm512_set1_epi32(static_cast<int>(top));
        if (s > 32) {
            kind_ = Kind::Zero;
        } else if (s > 0) {
            kind_ = Kind::Down;
            count_ = _mm_cvtsi32_si128(s);
            low_ = _mm512_set1_epi32(static_cast<int>(s == 32 ? 0xffffffffu : (1u << s) - 1u));
            half_ = _mm512_set1_epi32(static_cast<int>(1u << (s - 1)));
        } else {
            kind_ = Kind::Up;
            const int k = -std::max(s, -32);  // from 32 on, every non-zero p passes top
            count_ = _mm_cvtsi32_si128(std::min(k, 31));
            low_ = _mm512_set1_epi32(static_cast<int>(k >= 32 ? 0u : top >> k));
        }
    }

    Kind kind() const { return kind_; }

    template <Kind K>
    __m512i apply(__m512i p) const {
        if constexpr (K == Kind::Zero) {
            return _mm512_setzero_si512();
        } else if constexpr (K == Kind::Down) {
            const __m512i one = _mm512_set1_epi32(1);
            __m512i q = _mm512_srl_epi32(p, count_);
            const __m512i t = _mm512_add_epi32(_mm512_and_si512(p, low_), _mm512_and_si512(q, one));
            q = _mm512_mask_add_epi32(q, _mm512_cmpgt_epu32_mask(t, half_), q, one);
            return _mm512_min_epu32(q, top_);
        } else {
            const __mmask16 over = _mm512_cmpgt_epu32_mask(p, low_);
            return _mm512_mask_mov_epi32(_mm512_sll_epi32(p, count_), over, top_);
        }
    }

private:
    Kind kind_ = Kind::Zero;
    __m128i count_ = _mm_setzero_si128();
    __m512i low_ = _mm512_setzero_si512(), half_ = _mm512_setzero_si512(), top_ = _mm512_setzero_si512();
};

// 16 elements of T widened to 32-bit lanes (lanes off in m read nothing and are 0).
template <class T>
inline __m512i widen16(const T* p, __mmask16 m) {
    if constexpr (std::is_same_v<T, Gex8u>) return _mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p));
    else if constexpr (std::is_same_v<T, Gex16u>) return _mm512_cvtepu16_epi32(_mm256_maskz_loadu_epi16(m, p));
    else return _mm512_cvtepi16_epi32(_mm256_maskz_loadu_epi16(m, p));
}

template <class T>
inline void narrow16(T* p, __mmask16 m, __m512i v) {
    if constexpr (sizeof(T) == 1) _mm512_mask_cvtepi32_storeu_epi8(p, m, v);
    else _mm512_mask_cvtepi32_storeu_epi16(p, m, v);
}

template <class T, bool AC4, ScaleU32::Kind K>
inline void sqr_int_rows(const T* s, T* d, std::int64_t n, const ScaleU32& sc) {
    constexpr __mmask16 a = AC4 ? 0x7777 : 0xffff;
    std::int64_t i = 0;
    for (; i + 16 <= n; i += 16) {
        const __m512i x = widen16(s + i, a);
        narrow16(d + i, a, sc.apply<K>(_mm512_mullo_epi32(x, x)));
    }
    if (i < n) {
        const __mmask16 m = a & simd::tail_mask16(n - i);
        const __m512i x = widen16(s + i, m);
        narrow16(d + i, m, sc.apply<K>(_mm512_mullo_epi32(x, x)));
    }
}

// 8u, 16u, 16s: x x x under the scale rule, saturated to T (the square is never
// negative, so 16s saturates at 32767).
template <class T, bool AC4>
inline void sqr_int(const T* s, T* d, std::int64_t n, const ScaleU32& sc) {
    using K = ScaleU32::Kind;
    switch (sc.kind()) {
        case K::Zero: sqr_int_rows<T, AC4, K::Zero>(s, d, n, sc); break;
        case K::Down: sqr_int_rows<T, AC4, K::Down>(s, d, n, sc); break;
        case K::Up: sqr_int_rows<T, AC4, K::Up>(s, d, n, sc); break;
    }
}

template <class T>
inline ScaleU32 sqr_scale(int s) {
    return ScaleU32(s, static_cast<std::uint32_t>(PixelTraits<T>::max()));
}

template <class T>
inline void sqr_int_ref(const T* s, T* d, std::int64_t n, bool ac4, int scale) {
    map_row_scalar(s, d, n, ac4, [scale](T x) {
        const std::int64_t v = x;
        return scale_saturate<T>(v * v, scale);
    });
}

template <bool AC4>
inline void sqr_32f(const Gex32f* s, Gex32f* d, std::int64_t n) {
    map_row<4, AC4>(s, d, n, [](__m512i v, auto) {
        const __m512 x = _mm512_castsi512_ps(v);
        return _mm512_castps_si512(_mm512_mul_ps(x, x));
    });
}
inline void sqr_32f_ref(const Gex32f* s, Gex32f* d, std::int64_t n, bool ac4) {
    map_row_scalar(s, d, n, ac4, [](Gex32f x) { return x * x; });
}

// ---- Sqrt ----------------------------------------------------------------------------------
// 32f: IEEE square root. Returns true when an element below zero was met (its
// result is the default NaN of the machine).
template <bool AC4>
inline bool sqrt_32f(const Gex32f* s, Gex32f* d, std::int64_t n) {
    const __m512 zero = _mm512_setzero_ps();
    __mmask16 neg = 0;
    map_row<4, AC4>(s, d, n, [&](__m512i v, __mmask16 m) {
        const __m512 x = _mm512_castsi512_ps(v);
        neg |= _mm512_mask_cmp_ps_mask(m, x, zero, _CMP_LT_OQ);
        return _mm512_castps_si512(_mm512_sqrt_ps(x));
    });
    return neg != 0;
}
inline bool sqrt_32f_ref(const Gex32f* s, Gex32f* d, std::int64_t n, bool ac4) {
    bool neg = false;
    map_row_scalar(s, d, n, ac4, [&](Gex32f x) {
        neg |= x < 0.0f;
        return std::sqrt(x);
    });
    return neg;
}

// floor(sqrt(v)) for v < 2^52.
inline std::uint64_t isqrt(std::uint64_t v) {
    std::uint64_t m = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(v)));
    while (m * m > v) --m;
    while ((m + 1) * (m + 1) <= v) ++m;
    return m;
}

// Integer forms: sqrt(x) x 2^-s under the scale rule, for 0 <= x < 2^16. The
// root is irrational unless x is a square, so it is handed to the rule as a
// fixed-point value with two fraction bits and a sticky bit: with
// N = x x 4^(k + 1) (k = -s for s <= 0, else 0) and m = floor(sqrt(N)),
// V = 2m + (m^2 != N) stands for 4 sqrt(x) 2^k. Every rounding boundary of
// V / 2^(s' + 2) (s' = max(s, 0)) is an even number, and 2 sqrt(N) lies in
// [2m, 2m + 2) with V in the same place, so the rule's ties-to-even rounding
// of V is the correct rounding of the exact root. At or below 0 no tie can
// occur: the 8u forms' table for those factors is this function too, every
// pixel above the factor's bound giving 255 by saturation, and factors below
// -7 giving 255 for any pixel but 0.
template <class T>
inline T sqrt_scaled(std::uint32_t x, int s) {
    if (x == 0) return 0;
    const int k = s < 0 ? -std::max(s, -16) : 0;
    if (k >= 16) return PixelTraits<T>::max();  // sqrt(x) x 2^16 >= 65536
    const std::uint64_t N = std::uint64_t{x} << (2 * k + 2);
    const std::uint64_t m = isqrt(N);
    const std::int64_t V = static_cast<std::int64_t>(2 * m + (m * m != N ? 1 : 0));
    return scale_saturate<T>(V, std::min(std::max(s, 0), 40) + 2);
}

// ---- Ln ------------------------------------------------------------------------------------
// Integer forms, x >= 1: trunc(ln(x) x 2^-s + 0.5) in binary64, at most top.
// ln(x) >= 0 here, so the result is never negative.
inline std::uint32_t ln_scaled(std::uint32_t x, int s, std::uint32_t top) {
    const int e = -std::clamp(s, -4000, 4000);  // past these, 2^-s is 0 or infinite anyway
    const double v = std::ldexp(std::log(static_cast<double>(x)), e) + 0.5;
    if (!(v < static_cast<double>(top))) return top;
    return static_cast<std::uint32_t>(v);
}

// ---- Exp -----------------------------------------------------------------------------------
// e^x x 2^-s in binary64 for an integer x: e^x = 2^n e^r with n the nearest
// integer to x / ln 2 and r = x - n ln 2 formed with a two-part ln 2 (n times
// the high part is exact), so the power of two is applied exactly and the
// result keeps the accuracy of exp(r) whatever the size of x and s. Results
// beyond 2^64 come back as +infinity and those below 2^-64 as 0: the caller
// saturates them.
inline double exp_pow2(std::int32_t x, int s) {
    constexpr double kLog2e = 1.4426950408889634;
    constexpr double kLn2Hi = 6.93147180369123816490e-01;  // low 21 bits zero
    constexpr double kLn2Lo = 1.90821492927058770002e-10;
    const double t = static_cast<double>(x) * kLog2e - static_cast<double>(s);
    if (t > 64.0) return std::numeric_limits<double>::infinity();
    if (t < -64.0) return 0.0;
    const double n = std::nearbyint(static_cast<double>(x) * kLog2e);
    const double r = (static_cast<double>(x) - n * kLn2Hi) - n * kLn2Lo;
    return std::ldexp(std::exp(r), static_cast<int>(static_cast<std::int64_t>(n) - s));
}

// A non-negative real value under the scale rule's rounding and saturation:
// v is given to the rule with two fraction bits and a sticky bit (exact in
// binary64 below 2^40), which rounds it to nearest with ties to even.
template <class T>
inline T round_saturate_real(double v) {
    if (!(v < 1099511627776.0)) return PixelTraits<T>::max();  // 2^40, and infinity
    const double f = std::floor(v * 4.0);
    const std::int64_t V = 2 * static_cast<std::int64_t>(f) + (f != v * 4.0 ? 1 : 0);
    return scale_saturate<T>(V, 3);
}

template <class T>
inline T exp_scaled(std::int32_t x, int s) {
    return round_saturate_real<T>(exp_pow2(x, s));
}

}  // namespace gex::unary_kernels
