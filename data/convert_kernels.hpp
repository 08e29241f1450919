// Row kernels of depth conversion and their scalar twins.
//
// A conversion is an Op: a source type, a destination type, a scalar rule
// ref() for one element, and (unless it is scalar-only, kLanes == 0) a vector
// block vec() that converts up to kLanes elements under a mask. row() runs a
// row of n elements through the vector blocks with a masked tail; row_ref()
// runs the same row element by element. With AC4 the lanes of every fourth
// element are off in loads and stores alike, so the source's alpha is never
// read and the destination's never written; a vector always holds whole
// pixels, so the repeating mask lines up with every block.
//
// The scalar rules never depend on the processor's rounding direction: float
// rounding is done by trunc() and an exact fraction test, and integers reach
// binary32 through an explicit round-to-nearest-even. The vector blocks use
// embedded rounding, so neither path reads or changes the rounding control.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/simd.hpp"
#include "gexdefs.h"

// GCC 12 reports the undefined pass-through operand inside its own AVX-512
// intrinsics as maybe-uninitialized once they are inlined here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::cvt {

using i64 = std::int64_t;

// Arguments of a conversion. mode: 0 toward zero, 1 nearest even, else nearest
// away (vector float ops take the mode as a template argument instead). sf is
// the integer scale factor, already limited by clamp_int_factor(); f1 and f2
// are the two binary32 multipliers of a scaled 32f source (see float_scale).
struct Params {
    int mode = 1;
    int sf = 0;
    float f1 = 1.0f;
    float f2 = 1.0f;
};

// ---- exact scalar rules ----------------------------------------------------------

template <class D>
constexpr D sat(i64 v) {
    using L = std::numeric_limits<D>;
    if (v < static_cast<i64>(L::lowest())) return L::lowest();
    if (v > static_cast<i64>(L::max())) return L::max();
    return static_cast<D>(v);
}

// The binary32 value nearest to v (|v| < 2^40), ties to even.
inline float to_float_nearest(i64 v) {
    const bool neg = v < 0;
    std::uint64_t m = neg ? 0 - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
    float f;
    if (m < (std::uint64_t{1} << 24)) {
        f = static_cast<float>(m);  // exact
    } else {
        const int shift = 64 - __builtin_clzll(m) - 24;
        std::uint64_t q = m >> shift;
        const std::uint64_t rem = m & ((std::uint64_t{1} << shift) - 1);
        const std::uint64_t half = std::uint64_t{1} << (shift - 1);
        if (rem > half || (rem == half && (q & 1))) ++q;
        f = std::ldexp(static_cast<float>(q), shift);  // q <= 2^24: exact
    }
    return neg ? -f : f;
}

// x rounded to an integral value: 0 toward zero, 1 nearest with ties to even,
// any other mode nearest with ties away from zero. x - trunc(x) is exact, and
// a fraction exists only where trunc(x) +- 1 is exact too.
template <class F>
inline F round_by(F x, int mode) {
    const F t = std::trunc(x);
    if (mode == 0) return t;
    const F f = std::fabs(x - t);
    const F up = t + std::copysign(F(1), x);
    if (f > F(0.5)) return up;
    if (f < F(0.5)) return t;
    if (mode == 1) return std::fmod(t, F(2)) == F(0) ? t : up;
    return up;
}

// A floating value rounded by mode into D, saturated. NaN gives D's minimum,
// except for 32u where it gives 0xFFFFFFFF; infinities saturate.
template <class D, class F>
inline D float_to(F v, int mode) {
    using L = std::numeric_limits<D>;
    if (std::isnan(v)) return std::is_same_v<D, Gex32u> ? L::max() : L::lowest();
    if (v >= static_cast<F>(L::max())) return L::max();
    if (v <= static_cast<F>(L::lowest())) return L::lowest();
    return static_cast<D>(round_by(v, mode));
}

// x * 2^-sf rounded by mode, exactly. sf in [-31, 40] and |x| < 2^32, so
// nothing overflows; a negative factor is a left shift.
inline i64 shift_round(i64 x, int sf, int mode) {
    if (sf <= 0) return x * (i64{1} << -sf);
    const i64 q = x >> sf;  // floor
    const i64 r = x - q * (i64{1} << sf);
    const i64 half = i64{1} << (sf - 1);
    if (mode == 0) return (x < 0 && r != 0) ? q + 1 : q;
    if (r > half) return q + 1;
    if (r < half) return q;
    if (mode == 1) return (q & 1) ? q + 1 : q;
    return x >= 0 ? q + 1 : q;
}

// Integer sources hold fewer than 33 bits: from 34 on every value rounds to 0
// in every mode, and from -31 down every non-zero value saturates every
// destination, so the factor is limited to [-31, 40] without changing a result.
constexpr int clamp_int_factor(int sf) { return sf > 40 ? 40 : (sf < -31 ? -31 : sf); }

// The binary32 multipliers of a 32f source: x * 2^-sf is one multiplication
// where 2^-sf is a normal number, else two by halves of the exponent. Either
// way the product is the exact value rounded once (or it lies below 2^-126 or
// overflows, where every mode gives 0 or saturates anyway). Beyond +-200 every
// finite value already gives 0 or saturates, so the factor stops there.
inline Params float_scale(int sf, int mode) {
    sf = sf > 200 ? 200 : (sf < -200 ? -200 : sf);
    int a = sf, b = 0;
    if (sf > 126 || sf < -126) {
        a = sf / 2;
        b = sf - a;
    }
    Params p;
    p.mode = mode;
    p.f1 = std::ldexp(1.0f, -a);
    p.f2 = std::ldexp(1.0f, -b);
    return p;
}

// ---- vector pieces ------------------------------------------------------------------

namespace v {

// 16 elements into 32-bit integer lanes (zero- or sign-extended).
inline __m512i load16(const Gex8u* p, __mmask16 m) { return _mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p)); }
inline __m512i load16(const Gex8s* p, __mmask16 m) { return _mm512_cvtepi8_epi32(_mm_maskz_loadu_epi8(m, p)); }
inline __m512i load16(const Gex16u* p, __mmask16 m) { return _mm512_cvtepu16_epi32(_mm256_maskz_loadu_epi16(m, p)); }
inline __m512i load16(const Gex16s* p, __mmask16 m) { return _mm512_cvtepi16_epi32(_mm256_maskz_loadu_epi16(m, p)); }
inline __m512i load16(const Gex32s* p, __mmask16 m) { return _mm512_maskz_loadu_epi32(m, p); }

// 16 signed 32-bit lanes, saturated into the destination type.
inline void store16(Gex8u* p, __mmask16 m, __m512i x) {
    _mm_mask_storeu_epi8(p, m, _mm512_cvtusepi32_epi8(_mm512_max_epi32(x, _mm512_setzero_si512())));
}
inline void store16(Gex8s* p, __mmask16 m, __m512i x) { _mm_mask_storeu_epi8(p, m, _mm512_cvtsepi32_epi8(x)); }
inline void store16(Gex16u* p, __mmask16 m, __m512i x) {
    _mm256_mask_storeu_epi16(p, m, _mm512_cvtusepi32_epi16(_mm512_max_epi32(x, _mm512_setzero_si512())));
}
inline void store16(Gex16s* p, __mmask16 m, __m512i x) { _mm256_mask_storeu_epi16(p, m, _mm512_cvtsepi32_epi16(x)); }
inline void store16(Gex32s* p, __mmask16 m, __m512i x) { _mm512_mask_storeu_epi32(p, m, x); }
inline void store16(Gex32u* p, __mmask16 m, __m512i x) {
    _mm512_mask_storeu_epi32(p, m, _mm512_max_epi32(x, _mm512_setzero_si512()));
}
inline void store16(Gex32f* p, __mmask16 m, __m512i x) {
    _mm512_mask_storeu_ps(p, m, _mm512_cvt_roundepi32_ps(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
}

// Nearest integral value with ties away from zero: the truncation plus one
// step away from zero where the (exact) fraction is at least one half. NaN
// and infinities come out as they went in.
inline __m512 round_away(__m512 x) {
    const __m512 t = _mm512_roundscale_ps(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    const __m512 frac = _mm512_abs_ps(_mm512_sub_ps(x, t));
    const __mmask16 up = _mm512_cmp_ps_mask(frac, _mm512_set1_ps(0.5f), _CMP_GE_OQ);
    const __m512 step = _mm512_or_ps(_mm512_and_ps(x, _mm512_set1_ps(-0.0f)), _mm512_set1_ps(1.0f));
    return _mm512_mask_add_ps(t, up, t, step);
}

// Rounded to signed 32-bit lanes. NaN and values out of range give INT_MIN.
template <int Mode>
inline __m512i round_i32(__m512 x) {
    if constexpr (Mode == 0) return _mm512_cvt_roundps_epi32(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    else if constexpr (Mode == 1) return _mm512_cvt_roundps_epi32(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    else return _mm512_cvt_roundps_epi32(round_away(x), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

// Rounded to unsigned 32-bit lanes. NaN and values of 2^32 and above give
// 0xFFFFFFFF (the caller has already lifted negatives to 0).
template <int Mode>
inline __m512i round_u32(__m512 x) {
    if constexpr (Mode == 0) return _mm512_cvt_roundps_epu32(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    else if constexpr (Mode == 1) return _mm512_cvt_roundps_epu32(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    else return _mm512_cvt_roundps_epu32(round_away(x), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

}  // namespace v

// ---- the conversions ---------------------------------------------------------------

// Same-scale value conversion: exact widening, saturating narrowing (negative
// values to 0 for unsigned destinations), nearest binary32 for 32f. The
// general vector form goes through 16 lanes of 32-bit integers; the 8- and
// 16-bit pairs below have wider forms.
template <class S, class D>
D plain_ref(S x) {
    if constexpr (std::is_same_v<D, Gex32f>) return to_float_nearest(static_cast<i64>(x));
    else if constexpr (std::is_same_v<D, Gex64f>) return static_cast<double>(x);
    else return sat<D>(static_cast<i64>(x));
}

template <class S, class D>
struct Plain {
    using Src = S;
    using Dst = D;
    static constexpr int kLanes = 16;
    static D ref(S x, const Params&) { return plain_ref<S, D>(x); }
    static void vec(const S* s, D* d, __mmask16 m, const Params&) { v::store16(d, m, v::load16(s, m)); }
};

// 32 lanes of 16 bits.
template <class S, class D>
struct Plain16Lanes {
    using Src = S;
    using Dst = D;
    static constexpr int kLanes = 32;
    static D ref(S x, const Params&) { return plain_ref<S, D>(x); }
};

template <>
struct Plain<Gex8u, Gex16u> : Plain16Lanes<Gex8u, Gex16u> {
    static void vec(const Gex8u* s, Gex16u* d, __mmask32 m, const Params&) {
        _mm512_mask_storeu_epi16(d, m, _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(m, s)));
    }
};
template <>
struct Plain<Gex8u, Gex16s> : Plain16Lanes<Gex8u, Gex16s> {
    static void vec(const Gex8u* s, Gex16s* d, __mmask32 m, const Params&) {
        _mm512_mask_storeu_epi16(d, m, _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(m, s)));
    }
};
template <>
struct Plain<Gex8s, Gex16s> : Plain16Lanes<Gex8s, Gex16s> {
    static void vec(const Gex8s* s, Gex16s* d, __mmask32 m, const Params&) {
        _mm512_mask_storeu_epi16(d, m, _mm512_cvtepi8_epi16(_mm256_maskz_loadu_epi8(m, s)));
    }
};
template <>
struct Plain<Gex8s, Gex16u> : Plain16Lanes<Gex8s, Gex16u> {
    static void vec(const Gex8s* s, Gex16u* d, __mmask32 m, const Params&) {
        const __m512i x = _mm512_cvtepi8_epi16(_mm256_maskz_loadu_epi8(m, s));
        _mm512_mask_storeu_epi16(d, m, _mm512_max_epi16(x, _mm512_setzero_si512()));
    }
};
template <>
struct Plain<Gex16u, Gex8u> : Plain16Lanes<Gex16u, Gex8u> {
    static void vec(const Gex16u* s, Gex8u* d, __mmask32 m, const Params&) {
        _mm256_mask_storeu_epi8(d, m, _mm512_cvtusepi16_epi8(_mm512_maskz_loadu_epi16(m, s)));
    }
};
template <>
struct Plain<Gex16s, Gex8u> : Plain16Lanes<Gex16s, Gex8u> {
    static void vec(const Gex16s* s, Gex8u* d, __mmask32 m, const Params&) {
        const __m512i x = _mm512_max_epi16(_mm512_maskz_loadu_epi16(m, s), _mm512_setzero_si512());
        _mm256_mask_storeu_epi8(d, m, _mm512_cvtusepi16_epi8(x));
    }
};
template <>
struct Plain<Gex16s, Gex16u> : Plain16Lanes<Gex16s, Gex16u> {
    static void vec(const Gex16s* s, Gex16u* d, __mmask32 m, const Params&) {
        _mm512_mask_storeu_epi16(d, m, _mm512_max_epi16(_mm512_maskz_loadu_epi16(m, s), _mm512_setzero_si512()));
    }
};
template <>
struct Plain<Gex16s, Gex8s> : Plain16Lanes<Gex16s, Gex8s> {
    static void vec(const Gex16s* s, Gex8s* d, __mmask32 m, const Params&) {
        _mm256_mask_storeu_epi8(d, m, _mm512_cvtsepi16_epi8(_mm512_maskz_loadu_epi16(m, s)));
    }
};
template <>
struct Plain<Gex16u, Gex16s> : Plain16Lanes<Gex16u, Gex16s> {
    static void vec(const Gex16u* s, Gex16s* d, __mmask32 m, const Params&) {
        _mm512_mask_storeu_epi16(d, m, _mm512_min_epu16(_mm512_maskz_loadu_epi16(m, s), _mm512_set1_epi16(0x7fff)));
    }
};

// 64 lanes of bytes.
template <>
struct Plain<Gex8s, Gex8u> {
    using Src = Gex8s;
    using Dst = Gex8u;
    static constexpr int kLanes = 64;
    static Gex8u ref(Gex8s x, const Params&) { return plain_ref<Gex8s, Gex8u>(x); }
    static void vec(const Gex8s* s, Gex8u* d, __mmask64 m, const Params&) {
        _mm512_mask_storeu_epi8(d, m, _mm512_max_epi8(_mm512_maskz_loadu_epi8(m, s), _mm512_setzero_si512()));
    }
};
template <>
struct Plain<Gex8u, Gex8s> {
    using Src = Gex8u;
    using Dst = Gex8s;
    static constexpr int kLanes = 64;
    static Gex8s ref(Gex8u x, const Params&) { return plain_ref<Gex8u, Gex8s>(x); }
    static void vec(const Gex8u* s, Gex8s* d, __mmask64 m, const Params&) {
        _mm512_mask_storeu_epi8(d, m, _mm512_min_epu8(_mm512_maskz_loadu_epi8(m, s), _mm512_set1_epi8(0x7f)));
    }
};

// 32u to 32f: the unsigned conversion, nearest even.
template <>
struct Plain<Gex32u, Gex32f> {
    using Src = Gex32u;
    using Dst = Gex32f;
    static constexpr int kLanes = 16;
    static Gex32f ref(Gex32u x, const Params&) { return plain_ref<Gex32u, Gex32f>(x); }
    static void vec(const Gex32u* s, Gex32f* d, __mmask16 m, const Params&) {
        const __m512i x = _mm512_maskz_loadu_epi32(m, s);
        _mm512_mask_storeu_ps(d, m, _mm512_cvt_roundepu32_ps(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
    }
};

// 8s to 64f: 8 lanes of doubles.
template <>
struct Plain<Gex8s, Gex64f> {
    using Src = Gex8s;
    using Dst = Gex64f;
    static constexpr int kLanes = 8;
    static Gex64f ref(Gex8s x, const Params&) { return plain_ref<Gex8s, Gex64f>(x); }
    static void vec(const Gex8s* s, Gex64f* d, __mmask8 m, const Params&) {
        const __m256i x = _mm256_cvtepi8_epi32(_mm_maskz_loadu_epi8(m, s));
        _mm512_mask_storeu_pd(d, m, _mm512_cvtepi32_pd(x));
    }
};

// 32f to an integer type, rounded by Mode, optionally multiplied first by the
// two binary32 factors of a scale. Narrow destinations are clamped from above
// in binary32, so the 32-bit conversion never sees a value over the maximum;
// a NaN or an out-of-range negative gives INT_MIN there and saturates down.
template <class D, int Mode, bool Scaled>
struct FromFloat {
    using Src = Gex32f;
    using Dst = D;
    static constexpr int kLanes = 16;
    static D ref(Gex32f x, const Params& p) {
        if constexpr (Scaled) x = (x * p.f1) * p.f2;
        return float_to<D>(x, Mode);
    }
    static void vec(const Gex32f* s, D* d, __mmask16 m, const Params& p) {
        __m512 x = _mm512_maskz_loadu_ps(m, s);
        if constexpr (Scaled) x = _mm512_mul_ps(_mm512_mul_ps(x, _mm512_set1_ps(p.f1)), _mm512_set1_ps(p.f2));
        if constexpr (std::is_same_v<D, Gex32u>) {
            // max(0, x) keeps NaN (the second operand), which the conversion
            // turns into 0xFFFFFFFF like every value of 2^32 and above.
            x = _mm512_max_ps(_mm512_setzero_ps(), x);
            _mm512_mask_storeu_epi32(d, m, v::round_u32<Mode>(x));
        } else if constexpr (std::is_same_v<D, Gex32s>) {
            const __mmask16 over = _mm512_cmp_ps_mask(x, _mm512_set1_ps(2147483648.0f), _CMP_GE_OQ);
            const __m512i r = v::round_i32<Mode>(x);
            _mm512_mask_storeu_epi32(d, m, _mm512_mask_mov_epi32(r, over, _mm512_set1_epi32(0x7fffffff)));
        } else {
            // min(max, x) keeps NaN too: it reaches the conversion as NaN.
            x = _mm512_min_ps(_mm512_set1_ps(static_cast<float>(std::numeric_limits<D>::max())), x);
            v::store16(d, m, v::round_i32<Mode>(x));
        }
    }
};

// Scalar-only conversions: kLanes 0.

// 64f to an integer type: x * 2^-sf (one rounding in binary64), rounded by
// mode, saturated. p.sf holds the factor limited to [-2200, 2200].
template <class D>
struct FromDouble {
    using Src = Gex64f;
    using Dst = D;
    static constexpr int kLanes = 0;
    static D ref(Gex64f x, const Params& p) { return float_to<D>(std::ldexp(x, -p.sf), p.mode); }
};

// Integer to integer with a scale factor (p.sf from clamp_int_factor).
template <class S, class D>
struct IntScaled {
    using Src = S;
    using Dst = D;
    static constexpr int kLanes = 0;
    static D ref(S x, const Params& p) { return sat<D>(shift_round(static_cast<i64>(x), p.sf, p.mode)); }
};

// ---- rows -------------------------------------------------------------------------

template <class Op, bool AC4>
void row_ref(const typename Op::Src* s, typename Op::Dst* d, i64 n, const Params& p) {
    for (i64 i = 0; i < n; ++i) {
        if (AC4 && (i & 3) == 3) continue;
        d[i] = Op::ref(s[i], p);
    }
}

template <class Op, bool AC4>
void row(const typename Op::Src* s, typename Op::Dst* d, i64 n, const Params& p) {
    constexpr int L = Op::kLanes;
    if constexpr (L == 0) {
        row_ref<Op, AC4>(s, d, n, p);
    } else {
        constexpr int E = 64 / L;  // bytes per lane of the mask's width
        using M = typename simd::Mask<E>::type;
        constexpr M pat = AC4 ? simd::ac4_mask<E>() : static_cast<M>(~M(0));
        i64 i = 0;
        for (; i + 4 * L <= n; i += 4 * L) {
            Op::vec(s + i, d + i, pat, p);
            Op::vec(s + i + L, d + i + L, pat, p);
            Op::vec(s + i + 2 * L, d + i + 2 * L, pat, p);
            Op::vec(s + i + 3 * L, d + i + 3 * L, pat, p);
        }
        for (; i + L <= n; i += L) Op::vec(s + i, d + i, pat, p);
        if (i < n) Op::vec(s + i, d + i, static_cast<M>(pat & simd::Mask<E>::tail(n - i)), p);
    }
}

}  // namespace gex::cvt

#pragma GCC diagnostic pop
