// Row kernels of Div, DivC, Div_Round, MulScale and MulCScale.
//
// The integer quotient is round_half_even(n / (d x 2^s)), saturated: the
// exact rule, computed in integers by quotient_exact() (an integer division
// with guard and sticky bits, then the shared scale rule), which is also the
// scalar twin every vector kernel is tested against. The vector kernels get
// the same results without an integer division:
//
//  * 8u (binary32, 16 lanes): N = n x 2^-s and D = d are exact floats; with
//    r = rcp14(D) (relative error below 2^-14), q0 = N x r and the fused
//    remainder e = N - q0 x D, the corrected q = q0 + e x r lies within
//    |q| x 2^-28 of N / D before its one rounding. So q is N / D itself
//    whenever that is a float (integers and exact halves: ties stay ties),
//    and otherwise within half a unit of it. A quotient that is no half
//    integer lies at least 1 / (2 d) from the nearest half integer when
//    s <= 0, and at least |q| / (2 n) when s > 0; below 256 both exceed the
//    error by far, so rounding q to nearest with ties to even gives the exact
//    rule (checked over every n, d and factor by the tests).
//  * 16u, 16s (binary64, 8 lanes): the same with one Newton step on the
//    reciprocal, which brings the error to |q| x 2^-52, far below the
//    1 / 2^17 that separates a 16-bit quotient from a rounding boundary.
//  * DivC: the reciprocal of the constant is computed once; the same
//    correction makes the result exact.
//
// Every floating operation of the integer kernels carries its own rounding
// (round to nearest, exceptions suppressed), so neither the caller's rounding
// control nor its exception flags change a result. The 32f kernels are plain
// IEEE division under the caller's control, as the scalar twin is.
//
// AC4 rows are rows of 4 x width elements worked on under the lane pattern
// 0111: the fourth element of every pixel is neither used (it cannot raise
// the zero-divisor warning) nor written.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <type_traits>

#include "frame/pixel.hpp"
#include "frame/scale.hpp"
#include "frame/simd.hpp"
#include "gexdefs.h"

// GCC 12 takes the undefined pass-through operand inside the unmasked
// conversion intrinsics for an uninitialised variable; the warning is about
// the compiler's own headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::div_kernels {

constexpr std::uint64_t kAc4Lanes = 0x7777777777777777ULL;
constexpr int kRN = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;

// Whether element i of a row is a colour element that the kernels work on.
inline bool used_lane(std::int64_t i, bool ac4) { return !ac4 || (i & 3) != 3; }

// ---- the numeric rules (scalar) -----------------------------------------------

// Factors for which two-image Div computes the quotient; outside the range
// the result is fixed (div_element).
template <class T> struct DivRange;
template <> struct DivRange<Gex8u> { static constexpr int lo = -15, hi = 8; };
template <> struct DivRange<Gex16u> { static constexpr int lo = -31, hi = 16; };
template <> struct DivRange<Gex16s> { static constexpr int lo = -30, hi = 15; };

template <class T>
constexpr bool in_range(int s) { return s >= DivRange<T>::lo && s <= DivRange<T>::hi; }

// round_half_even(n / (d x 2^s)) saturated to T, for d != 0 and any s: the
// quotient |n| / |d| is kept with two bits below the rounding position and a
// sticky bit for any remainder, and the shared scale rule rounds it half to
// even and saturates. With 16-bit operands a factor above 40 leaves a
// quotient below 2^-24 and one below -40 a quotient beyond 2^24, so the
// shifts stay inside 64 bits.
template <class T>
constexpr T quotient_exact(std::int64_t n, std::int64_t d, int s) {
    using L = std::numeric_limits<T>;
    if (n == 0) return 0;
    const bool negative = (n < 0) != (d < 0);
    if (s > 40) return 0;
    if (s < -40) return negative ? L::lowest() : L::max();
    const int guard = s < 0 ? 2 - s : 2;  // s + guard >= 2
    const std::uint64_t a = static_cast<std::uint64_t>(n < 0 ? -n : n) << guard;
    const std::uint64_t b = static_cast<std::uint64_t>(d < 0 ? -d : d);
    std::uint64_t x = a / b;
    if (a % b != 0) x |= 1;
    const std::int64_t v = static_cast<std::int64_t>(x);
    return scale_saturate<T>(negative ? -v : v, s + guard);
}

// The result for a zero divisor: 0 for 0, else the end of the range on the
// side of the dividend.
template <class T>
constexpr T zero_divisor(T n) {
    if (n == 0) return 0;
    return n > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
}

// One element of two-image Div: n / d with factor s, the zero-divisor table
// and the fixed results outside the factor range. Only 16u departs from the
// exact rule there: below its range every non-zero divisor gives 65535, even
// for n = 0.
template <class T>
constexpr T div_element(T d, T n, int s) {
    if (d == 0) return zero_divisor(n);
    if (s > DivRange<T>::hi) return 0;
    if constexpr (std::is_same_v<T, Gex16u>)
        if (s < DivRange<T>::lo) return 65535;
    return quotient_exact<T>(n, d, s);
}

// The NaN that a zero divisor gives for a dividend of 0, -0 or NaN.
inline float div_nan_32f() { return std::bit_cast<float>(0x7fbfffffu); }

inline float div_element_32f(float d, float n) {
    if (d == 0.0f && (n == 0.0f || std::isnan(n))) return div_nan_32f();
    return n / d;
}

// ---- Div rows: scalar twins ---------------------------------------------------
// All return whether a used divisor element was zero.

template <class T>
bool div_row_scalar(const T* d, const T* n, T* o, std::int64_t len, int s, bool ac4) {
    bool zero = false;
    for (std::int64_t i = 0; i < len; ++i) {
        if (!used_lane(i, ac4)) continue;
        const T di = d[i], ni = n[i];
        zero |= di == 0;
        o[i] = div_element(di, ni, s);
    }
    return zero;
}

inline bool div_row_32f_scalar(const float* d, const float* n, float* o, std::int64_t len, bool ac4) {
    bool zero = false;
    for (std::int64_t i = 0; i < len; ++i) {
        if (!used_lane(i, ac4)) continue;
        const float di = d[i], ni = n[i];
        zero |= di == 0.0f;
        o[i] = div_element_32f(di, ni);
    }
    return zero;
}

// ---- Div rows: vector ---------------------------------------------------------------

namespace detail {

// Sixteen quotients round(N / D) of exact float operands, as 32-bit integers
// (see the head of this file). A zero D gives 0x80000000.
inline __m512i quotient_ps(__m512 N, __m512 D, __m512 r) {
    const __m512 q0 = _mm512_mul_round_ps(N, r, kRN);
    const __m512 e = _mm512_fnmadd_round_ps(q0, D, N, kRN);
    return _mm512_cvt_roundps_epi32(_mm512_fmadd_round_ps(e, r, q0, kRN), kRN);
}

// Eight quotients of exact double operands, clamped to [lo, hi] before the
// rounding (the bounds are integers, so clamping first changes nothing),
// as 32-bit integers.
inline __m256i quotient_pd(__m512d N, __m512d D, __m512d r, __m512d lo, __m512d hi) {
    const __m512d q0 = _mm512_mul_round_pd(N, r, kRN);
    const __m512d e = _mm512_fnmadd_round_pd(q0, D, N, kRN);
    const __m512d q = _mm512_fmadd_round_pd(e, r, q0, kRN);
    return _mm512_cvt_roundpd_epi32(_mm512_min_pd(_mm512_max_pd(q, lo), hi), kRN);
}

// rcp14 refined by one Newton step: relative error about 2^-28.
inline __m512d reciprocal_pd(__m512d D) {
    const __m512d r = _mm512_rcp14_pd(D);
    return _mm512_fmadd_round_pd(r, _mm512_fnmadd_round_pd(D, r, _mm512_set1_pd(1.0), kRN), r, kRN);
}

inline __m512 bytes_to_ps(__m128i b) { return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(b)); }

template <class T>
inline __m512d words_to_pd(__m128i w) {
    if constexpr (std::is_signed_v<T>) return _mm512_cvtepi32_pd(_mm256_cvtepi16_epi32(w));
    else return _mm512_cvtepi32_pd(_mm256_cvtepu16_epi32(w));
}

// Bytes g x 4 .. g x 4 + 3 of every 128-bit lane as the floats 2^23 + byte:
// a masked byte shuffle writes each byte into the low byte of a dword whose
// top byte already holds the exponent of 2^23 (the merge source). No
// conversion instruction, and the lane order comes out right for the packs.
struct ByteFloats {
    __m512i control[4];
    __m512i magic = _mm512_set1_epi32(0x4B000000);
    ByteFloats() {
        for (int g = 0; g < 4; ++g)
            control[g] = _mm512_broadcast_i32x4(_mm_setr_epi32(4 * g, 4 * g + 1, 4 * g + 2, 4 * g + 3));
    }
    __m512 get(__m512i bytes, int g) const {
        return _mm512_castsi512_ps(_mm512_mask_shuffle_epi8(magic, 0x1111111111111111ULL, bytes, control[g]));
    }
};

// 64 dividends and divisors of 8u: the quotients n x c / d rounded and
// packed back to bytes (saturated), in order. Group g holds, in each 128-bit
// lane k, the elements 16k + 4g .. 16k + 4g + 3, so that the in-lane packs
// put every byte back where it came from. A zero divisor gives 0 here.
inline __m512i div_block_8u(__m512i vn, __m512i vd, __m512 c, const ByteFloats& bf) {
    const __m512 two23 = _mm512_set1_ps(8388608.0f);
    const __m512 offset = _mm512_mul_ps(two23, c);  // exact: a power of two
    __m512i q[4];
    for (int g = 0; g < 4; ++g) {
        // (2^23 + n) x c - 2^23 x c = n x c and (2^23 + d) - 2^23 = d, both exact.
        const __m512 N = _mm512_fmsub_round_ps(bf.get(vn, g), c, offset, kRN);
        const __m512 D = _mm512_sub_round_ps(bf.get(vd, g), two23, kRN);
        q[g] = quotient_ps(N, D, _mm512_rcp14_ps(D));
    }
    // Signed saturation keeps every quotient up to 2^31 (and turns the
    // 0x80000000 of a zero divisor into 0).
    return _mm512_packus_epi16(_mm512_packs_epi32(q[0], q[1]), _mm512_packs_epi32(q[2], q[3]));
}

}  // namespace detail

// Two-image Div rows, 8u: 64 elements a step, the last step under a tail mask.
inline bool div_row_8u(const Gex8u* d, const Gex8u* n, Gex8u* o, std::int64_t len, int s, bool ac4) {
    if (!in_range<Gex8u>(s)) return div_row_scalar(d, n, o, len, s, ac4);
    const __m512 c = _mm512_set1_ps(std::ldexp(1.0f, -s));
    const detail::ByteFloats bf;
    const __mmask64 lanes = ac4 ? kAc4Lanes : ~__mmask64(0);
    const __m512i ones = _mm512_set1_epi8(-1);
    __mmask64 zero = 0;
    for (std::int64_t i = 0; i < len; i += 64) {
        const __mmask64 m = simd::tail_mask64(len - i) & lanes;
        const __m512i vn = _mm512_maskz_loadu_epi8(m, n + i);
        const __m512i vd = _mm512_maskz_loadu_epi8(m, d + i);
        __m512i r = detail::div_block_8u(vn, vd, c, bf);
        // 0 / 0 is already 0; a non-zero dividend over 0 gives 255.
        const __mmask64 dz = _mm512_testn_epi8_mask(vd, vd) & m;
        if (dz != 0) {
            r = _mm512_mask_mov_epi8(r, dz & _mm512_test_epi8_mask(vn, vn), ones);
            zero |= dz;
        }
        _mm512_mask_storeu_epi8(o + i, m, r);
    }
    return zero != 0;
}

// Two-image Div rows, 16u and 16s: 32 elements a step in four binary64 groups.
template <class T>
inline bool div_row_16(const T* d, const T* n, T* o, std::int64_t len, int s, bool ac4) {
    static_assert(std::is_same_v<T, Gex16u> || std::is_same_v<T, Gex16s>);
    if (!in_range<T>(s)) return div_row_scalar(d, n, o, len, s, ac4);
    const __m512d c = _mm512_set1_pd(std::ldexp(1.0, -s));
    const __m512d lo = _mm512_set1_pd(std::numeric_limits<T>::lowest());
    const __m512d hi = _mm512_set1_pd(std::numeric_limits<T>::max());
    const __mmask32 lanes = ac4 ? static_cast<__mmask32>(kAc4Lanes) : ~__mmask32(0);
    __mmask32 zero = 0;
    for (std::int64_t i = 0; i < len; i += 32) {
        const __mmask32 m = simd::tail_mask32(len - i) & lanes;
        const __m512i vn = _mm512_maskz_loadu_epi16(m, n + i);
        const __m512i vd = _mm512_maskz_loadu_epi16(m, d + i);
        __m256i q[4];
        for (int j = 0; j < 4; ++j) {
            __m128i nj, dj;
            switch (j) {
                case 0: nj = _mm512_castsi512_si128(vn); dj = _mm512_castsi512_si128(vd); break;
                case 1: nj = _mm512_extracti32x4_epi32(vn, 1); dj = _mm512_extracti32x4_epi32(vd, 1); break;
                case 2: nj = _mm512_extracti32x4_epi32(vn, 2); dj = _mm512_extracti32x4_epi32(vd, 2); break;
                default: nj = _mm512_extracti32x4_epi32(vn, 3); dj = _mm512_extracti32x4_epi32(vd, 3); break;
            }
            const __m512d N = _mm512_mul_round_pd(detail::words_to_pd<T>(nj), c, kRN);
            const __m512d D = detail::words_to_pd<T>(dj);
            q[j] = detail::quotient_pd(N, D, detail::reciprocal_pd(D), lo, hi);
        }
        const __m512i q01 = _mm512_inserti64x4(_mm512_castsi256_si512(q[0]), q[1], 1);
        const __m512i q23 = _mm512_inserti64x4(_mm512_castsi256_si512(q[2]), q[3], 1);
        __m512i r = _mm512_inserti64x4(_mm512_castsi256_si512(_mm512_cvtepi32_epi16(q01)), _mm512_cvtepi32_epi16(q23), 1);
        const __mmask32 dz = _mm512_testn_epi16_mask(vd, vd) & m;
        if (dz != 0) {
            const __mmask32 nz = _mm512_test_epi16_mask(vn, vn);
            const __m512i ends = std::is_signed_v<T>
                                     ? _mm512_xor_si512(_mm512_srai_epi16(vn, 15), _mm512_set1_epi16(0x7fff))
                                     : _mm512_set1_epi16(-1);
            r = _mm512_mask_mov_epi16(r, dz, _mm512_maskz_mov_epi16(nz, ends));
            zero |= dz;
        }
        _mm512_mask_storeu_epi16(o + i, m, r);
    }
    return zero != 0;
}

// Two-image Div rows, 32f: IEEE division, 16 lanes a step. Lanes outside the
// mask are not divided (no exception flag comes from them).
inline bool div_row_32f(const float* d, const float* n, float* o, std::int64_t len, bool ac4) {
    const __mmask16 lanes = ac4 ? static_cast<__mmask16>(kAc4Lanes) : __mmask16(0xffff);
    const __m512 nanv = _mm512_set1_ps(div_nan_32f());
    const __m512 zerov = _mm512_setzero_ps();
    __mmask16 zero = 0;
    for (std::int64_t i = 0; i < len; i += 16) {
        const __mmask16 m = simd::tail_mask16(len - i) & lanes;
        const __m512 vn = _mm512_maskz_loadu_ps(m, n + i);
        const __m512 vd = _mm512_maskz_loadu_ps(m, d + i);
        __m512 q = _mm512_maskz_div_ps(m, vn, vd);
        const __mmask16 dz = _mm512_mask_cmp_ps_mask(m, vd, zerov, _CMP_EQ_OQ);
        if (dz != 0) {
            // 0, -0 or NaN over a zero: the fixed NaN (unordered-or-equal).
            q = _mm512_mask_mov_ps(q, _mm512_mask_cmp_ps_mask(dz, vn, zerov, _CMP_EQ_UQ), nanv);
            zero |= dz;
        }
        _mm512_mask_storeu_ps(o + i, m, q);
    }
    return zero != 0;
}

// ---- DivC -------------------------------------------------------------------------

// A constant per channel and what the kernels need of it, built once a call.
// Channel c of a row is the element i with i mod channels = c; AC4 counts four
// channels, the fourth never computed. The lane constants are kept by phase,
// the offset of a vector's first element modulo 3 (only C3 has more than one).
template <class T>
struct DivCPlan {
    T value[4] = {1, 1, 1, 1};
    int channels = 1;
    bool ac4 = false;
    int s = 0;
    bool vector = false;                // the factor lies in the vector kernels' range
    alignas(64) float d32[3][16] = {};  // 8u: value x 2^s; 32f: value
    alignas(64) float r32[3][16] = {};  // 8u: an approximate reciprocal of d32
    alignas(64) double d64[3][8] = {};  // 16u, 16s: value x 2^s
    alignas(64) double r64[3][8] = {};
};

template <class T>
DivCPlan<T> make_divc_plan(const T* values, int channels, bool ac4, int s) {
    DivCPlan<T> p;
    p.channels = ac4 ? 4 : channels;
    p.ac4 = ac4;
    p.s = s;
    for (int c = 0; c < (ac4 ? 3 : channels); ++c) p.value[c] = values[c];
    if constexpr (std::is_same_v<T, Gex32f>) p.vector = true;
    else p.vector = in_range<T>(s);
    if (!p.vector) return p;
    for (int ph = 0; ph < 3; ++ph) {
        for (int l = 0; l < 16; ++l) {
            const T v = p.value[(ph + l) % p.channels];
            if constexpr (std::is_same_v<T, Gex32f>) {
                p.d32[ph][l] = v;
            } else if constexpr (std::is_same_v<T, Gex8u>) {
                const double D = std::ldexp(static_cast<double>(v), s);  // exact in binary32 too
                p.d32[ph][l] = static_cast<float>(D);
                p.r32[ph][l] = static_cast<float>(1.0 / D);
            } else if (l < 8) {
                const double D = std::ldexp(static_cast<double>(v), s);
                p.d64[ph][l] = D;
                p.r64[ph][l] = 1.0 / D;
            }
        }
    }
    return p;
}

template <class T>
bool divc_any_zero(const T* values, int n) {
    for (int c = 0; c < n; ++c)
        if (values[c] == 0) return true;
    return false;
}

// Scalar twin: src / value of the element's channel.
template <class T>
void divc_row_scalar(const T* src, T* dst, std::int64_t len, const DivCPlan<T>& p) {
    for (std::int64_t i = 0; i < len; ++i) {
        if (!used_lane(i, p.ac4)) continue;
        const T v = p.value[i % p.channels];
        if constexpr (std::is_same_v<T, Gex32f>) dst[i] = src[i] / v;
        else dst[i] = quotient_exact<T>(src[i], v, p.s);
    }
}

// The phase of the next vector: element offset modulo 3, advanced by the lanes.
inline int next_phase(int ph, int lanes, int channels) { return channels == 3 ? (ph + lanes) % 3 : 0; }

inline void divc_row_8u(const Gex8u* src, Gex8u* dst, std::int64_t len, const DivCPlan<Gex8u>& p) {
    if (!p.vector) return divc_row_scalar(src, dst, len, p);
    const __mmask16 lanes = p.ac4 ? static_cast<__mmask16>(kAc4Lanes) : __mmask16(0xffff);
    int ph = 0;
    for (std::int64_t i = 0; i < len; i += 16) {
        const __mmask16 m = simd::tail_mask16(len - i) & lanes;
        const __m512 N = detail::bytes_to_ps(_mm_maskz_loadu_epi8(m, src + i));
        const __m512i q = detail::quotient_ps(N, _mm512_load_ps(p.d32[ph]), _mm512_load_ps(p.r32[ph]));
        _mm512_mask_cvtusepi32_storeu_epi8(dst + i, m, q);
        ph = next_phase(ph, 16, p.channels);
    }
}

template <class T>
inline void divc_row_16(const T* src, T* dst, std::int64_t len, const DivCPlan<T>& p) {
    static_assert(std::is_same_v<T, Gex16u> || std::is_same_v<T, Gex16s>);
    if (!p.vector) return divc_row_scalar(src, dst, len, p);
    const __mmask8 lanes = p.ac4 ? static_cast<__mmask8>(kAc4Lanes) : __mmask8(0xff);
    const __m512d lo = _mm512_set1_pd(std::numeric_limits<T>::lowest());
    const __m512d hi = _mm512_set1_pd(std::numeric_limits<T>::max());
    int ph = 0;
    for (std::int64_t i = 0; i < len; i += 8) {
        const __mmask8 m = simd::tail_mask8(len - i) & lanes;
        const __m512d N = detail::words_to_pd<T>(_mm_maskz_loadu_epi16(m, src + i));
        const __m256i q = detail::quotient_pd(N, _mm512_load_pd(p.d64[ph]), _mm512_load_pd(p.r64[ph]), lo, hi);
        _mm256_mask_cvtepi32_storeu_epi16(dst + i, m, q);
        ph = next_phase(ph, 8, p.channels);
    }
}

inline void divc_row_32f(const float* src, float* dst, std::int64_t len, const DivCPlan<Gex32f>& p) {
    const __mmask16 lanes = p.ac4 ? static_cast<__mmask16>(kAc4Lanes) : __mmask16(0xffff);
    int ph = 0;
    for (std::int64_t i = 0; i < len; i += 16) {
        const __mmask16 m = simd::tail_mask16(len - i) & lanes;
        const __m512 q = _mm512_maskz_div_ps(m, _mm512_maskz_loadu_ps(m, src + i), _mm512_load_ps(p.d32[ph]));
        _mm512_mask_storeu_ps(dst + i, m, q);
        ph = next_phase(ph, 16, p.channels);
    }
}

// ---- MulScale, MulCScale ----------------------------------------------------------
// The product scaled back as if both operands lay in [0, 1]; exact at 0 and
// at the maximum. Neither sum can overflow: 65025 + 1 + 254 < 2^16 and
// 0xfffe0001 + 1 + 0xfffe < 2^32.

constexpr Gex8u mulscale(Gex8u a, Gex8u b) {
    const unsigned p = static_cast<unsigned>(a) * b;
    return static_cast<Gex8u>((p + 1 + (p >> 8)) >> 8);
}

constexpr Gex16u mulscale(Gex16u a, Gex16u b) {
    const std::uint32_t p = static_cast<std::uint32_t>(a) * b;
    return static_cast<Gex16u>((p + 1 + (p >> 16)) >> 16);
}

template <class T>
void mulscale_row_scalar(const T* a, const T* b, T* o, std::int64_t len, bool ac4) {
    for (std::int64_t i = 0; i < len; ++i)
        if (used_lane(i, ac4)) o[i] = mulscale(a[i], b[i]);
}

// 8u, 64 elements a step: even and odd bytes in 16-bit lanes, no shuffles.
inline void mulscale_row_8u(const Gex8u* a, const Gex8u* b, Gex8u* o, std::int64_t len, bool ac4) {
    const __mmask64 lanes = ac4 ? kAc4Lanes : ~__mmask64(0);
    const __m512i low = _mm512_set1_epi16(0x00ff);
    const __m512i one = _mm512_set1_epi16(1);
    for (std::int64_t i = 0; i < len; i += 64) {
        const __mmask64 m = simd::tail_mask64(len - i) & lanes;
        const __m512i va = _mm512_maskz_loadu_epi8(m, a + i);
        const __m512i vb = _mm512_maskz_loadu_epi8(m, b + i);
        const __m512i pe = _mm512_mullo_epi16(_mm512_and_si512(va, low), _mm512_and_si512(vb, low));
        const __m512i po = _mm512_mullo_epi16(_mm512_srli_epi16(va, 8), _mm512_srli_epi16(vb, 8));
        const __m512i te = _mm512_add_epi16(_mm512_add_epi16(pe, one), _mm512_srli_epi16(pe, 8));
        const __m512i to = _mm512_add_epi16(_mm512_add_epi16(po, one), _mm512_srli_epi16(po, 8));
        // even result: te >> 8 in the low byte; odd result: the high byte of to.
        const __m512i r = _mm512_ternarylogic_epi32(_mm512_srli_epi16(te, 8), to, _mm512_set1_epi16(-256), 0xF8);
        _mm512_mask_storeu_epi8(o + i, m, r);
    }
}

// MulCScale: the constant of each element's channel (channels 1, 3 or 4;
// AC4: 4 with the fourth element left alone).
template <class T>
void mulcscale_row(const T* a, const T* values, int channels, T* o, std::int64_t len, bool ac4) {
    if (channels == 1) {
        const T v = values[0];
        for (std::int64_t i = 0; i < len; ++i) o[i] = mulscale(a[i], v);
        return;
    }
    for (std::int64_t i = 0; i < len; ++i)
        if (used_lane(i, ac4)) o[i] = mulscale(a[i], values[i % channels]);
}

}  // namespace gex::div_kernels

#pragma GCC diagnostic pop
