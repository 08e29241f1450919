// Interior kernels of the general border filter.
//
// An interior kernel knows nothing of borders: `src` is the source pixel under
// the first output pixel and every neighbour is read straight from memory,
// ax = (kw-1)>>1 columns left, ay = (kh-1)>>1 rows up, and the rest right and
// down. Taps are the record's reversed taps, so tap (j, i) meets the source
// pixel (x - ax + i, y - ay + j): a true convolution.
//
// Rows are walked as runs of elements (width x channels): tap (j, i) reads the
// element (i - ax) x channels further on, so one kernel serves C1, C3 and C4.
//
//   * Integer taps (kinds 0..2). The sum S is a 32-bit wrap-around integer.
//     - filter_int_ref: the reference loop for every shape and pixel type;
//       its conversion (conv_exact) is the exact rule.
//     - filter_int_vec (8u, 16s): 32 elements at a time, two rows of taps per
//       16-bit multiply-add (rows interleaved word by word, tap pairs from
//       pTapsPairs); the sums equal the reference's. The conversion is one of
//         IntConv::Exact  the reference rule, on each sum;
//         IntConv::OneD   the one-dimensional fast rule: nearest with ties to
//                         even whatever the round mode (power-of-two divisors
//                         by integer shift, others by a float multiply);
//         IntConv::Zero / IntConv::Near  the two-dimensional fast rule: the
//                         sum times 1/divisor plus the offset, fused, all in
//                         the rounding of the mode (toward zero, or nearest).
//       The fast rules round in the instruction (embedded rounding), which is
//       what setting the processor's rounding control for the run would give.
//   * Float taps (kinds 3..6): S accumulates pixel x tap with fused
//     multiply-adds in the order of the taps (row after row), from 0.
//     filter_float_ref and filter_float_vec (four output rows and 64
//     elements at a time where the kernel has two rows or more, so that a
//     loaded and converted source vector feeds up to four sums; masked
//     tails) therefore give identical bits; the
//     conversion (conv_float) saturates and rounds by the mode for integer
//     pixels and leaves 32f sums as they are.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "filter/filter_border.hpp"
#include "frame/simd.hpp"

// GCC 12 flags the intrinsics' own undefined source vectors of masked
// conversions as (maybe-)uninitialized; nothing here reads them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

namespace gex::fb {

template <class T> struct PixRange;
template <> struct PixRange<Gex8u> { static constexpr int lo = 0, hi = 255; };
template <> struct PixRange<Gex16u> { static constexpr int lo = 0, hi = 65535; };
template <> struct PixRange<Gex16s> { static constexpr int lo = -32768, hi = 32767; };

// Truncation of a float to a 32-bit int as the processor does it: NaN and
// values out of range give INT_MIN.
inline std::int32_t cvtt_f32(float f) { return _mm_cvttss_si32(_mm_set_ss(f)); }

inline std::int32_t wrap_add(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

template <class T>
inline T clamp_pix(std::int64_t v) {
    return static_cast<T>(v < PixRange<T>::lo ? PixRange<T>::lo : v > PixRange<T>::hi ? PixRange<T>::hi : v);
}

// ---- conversions of integer sums --------------------------------------------------------

// The exact rule (reference loop and the accurate conversion). S' is the sum
// as a float plus offsetScaled, truncated. Unsigned pixels follow the table of
// the rule literally (non-positive values give 0); 16s rounds the magnitude
// the same way and puts the sign back.
template <class T>
inline T conv_exact(std::int32_t S, const FilterBorderSpec& s) {
    const std::int32_t Sp = cvtt_f32(static_cast<float>(S) + s.offsetScaled);
    const int rm = s.roundMode & 3;
    if (s.divisorKind == 0) return clamp_pix<T>(Sp);
    if constexpr (std::is_signed_v<T>) {
        // Magnitude rounding, sign restored.
        const std::int64_t num = Sp;
        std::int64_t den = s.divisorKind == 1 ? (std::int64_t{1} << s.shift) : std::int64_t{s.divisor};
        std::int64_t a = num < 0 ? -num : num;
        bool neg = num < 0;
        if (den < 0) den = -den, neg = !neg;
        std::int64_t q = a / den;
        const std::int64_t r2 = 2 * (a % den);
        if (rm == 1) q += (r2 > den || (r2 == den && (q & 1))) ? 1 : 0;
        else if (rm == 2) q += r2 >= den ? 1 : 0;
        return clamp_pix<T>(neg ? -q : q);
    } else {
        constexpr int P = PixRange<T>::hi;
        if (s.divisorKind == 1) {
            if (Sp < 1) return 0;
            const std::int64_t S64 = Sp;
            std::int64_t y;
            if (rm == 0) {
                y = S64 >> s.shift;
            } else if (rm == 1) {
                const std::int64_t q = S64 >> s.shift;
                y = q + (((q & 1) + (S64 & (std::int64_t{s.roundHalf} * 2 - 1)) + s.roundHalf - 1) >> s.shift);
            } else {
                y = (S64 + s.roundHalf) >> s.shift;
            }
            return clamp_pix<T>(y);
        }
        if (rm == 0) return clamp_pix<T>(static_cast<std::int64_t>(Sp) / s.divisor);
        const double t = static_cast<double>(Sp) / s.divisorD;
        if (t >= P) return static_cast<T>(P);
        if (rm == 1) {
            if (t <= 0.5) return 0;
            std::int64_t r = static_cast<std::int64_t>(t + 0.5);
            if (static_cast<double>(r) - t == 0.5) r &= ~std::int64_t{1};
            return clamp_pix<T>(r);
        }
        if (t < 0.5) return 0;
        return clamp_pix<T>(static_cast<std::int64_t>(t + 0.5));
    }
}

// The one-dimensional fast rule, one sum.
template <class T>
inline T conv_oned(std::int32_t S, const FilterBorderSpec& s) {
    constexpr int RN = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
    std::int32_t y;
    if (s.divisorKind == 1) {
        const std::int32_t q = S >> s.shift;
        y = wrap_add(S, wrap_add(s.roundHalf - 1, q & 1)) >> s.shift;
    } else {
        const __m128 f = _mm_cvt_roundsi32_ss(_mm_setzero_ps(), S, RN);
        const __m128 m = s.divisorKind == 0 ? f : _mm_mul_round_ss(f, _mm_set_ss(s.invDivisor), RN);
        y = _mm_cvt_roundss_si32(m, RN);
    }
    return clamp_pix<T>(wrap_add(y, s.offset));
}

// The two-dimensional fast rule, one sum; rounding R is the embedded rounding
// (toward zero or nearest).
template <class T, int R>
inline T conv_2d(std::int32_t S, const FilterBorderSpec& s) {
    constexpr int RR = R | _MM_FROUND_NO_EXC;
    const __m128 f = _mm_cvt_roundsi32_ss(_mm_setzero_ps(), S, RR);
    const __m128 m = _mm_fmadd_round_ss(f, _mm_set_ss(s.invDivisor), _mm_set_ss(static_cast<float>(s.offset)), RR);
    return clamp_pix<T>(_mm_cvt_roundss_si32(m, RR));
}

enum class IntConv { Exact, OneD, Zero, Near };

// ---- conversion of float sums -------------------------------------------------------

template <class T>
inline T conv_float(float S, float off, int rm) {
    if constexpr (std::is_same_v<T, Gex32f>) {
        (void)off, (void)rm;
        return S;
    } else {
        constexpr int P = PixRange<T>::hi, Pmin = PixRange<T>::lo;
        const float v = S + off;
        const float a = std::fabs(v);
        std::int32_t r;
        if (rm == 0) {
            r = cvtt_f32(a);
        } else if (rm == 1) {
            if (a > 0.5f) {
                r = cvtt_f32(0.5f + a);
                if (static_cast<float>(r) - a == 0.5f) r &= ~1;
            } else {
                r = 0;
            }
        } else {
            r = cvtt_f32(0.5f + a);
        }
        if (v < 0.0f) r = static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(r));
        if (v >= static_cast<float>(P)) return static_cast<T>(P);
        if (v <= static_cast<float>(Pmin)) return static_cast<T>(Pmin);
        return clamp_pix<T>(r);
    }
}

// ---- reference loops ---------------------------------------------------------------------

template <class T>
inline const T* elem_at(const T* base, std::int64_t step, std::int64_t y, std::int64_t e) {
    return reinterpret_cast<const T*>(reinterpret_cast<const std::uint8_t*>(base) + y * step) + e;
}
template <class T>
inline T* elem_at(T* base, std::int64_t step, std::int64_t y, std::int64_t e) {
    return reinterpret_cast<T*>(reinterpret_cast<std::uint8_t*>(base) + y * step) + e;
}

// Integer taps, every pixel type and channel count. For 32f pixels (a record
// made for another type) the float sum is divided by the divisor.
template <class T, int CH, IntConv C = IntConv::Exact>
void filter_int_ref(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, GexiSize roi) {
    const int kw = s.kernelWidth, kh = s.kernelHeight, ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
    const auto* taps = static_cast<const std::int16_t*>(s.pTaps);
    const std::int64_t n = static_cast<std::int64_t>(roi.width) * CH;
    for (int y = 0; y < roi.height; ++y) {
        T* d = elem_at(dst, dstStep, y, 0);
        for (std::int64_t e = 0; e < n; ++e) {
            if constexpr (std::is_same_v<T, Gex32f>) {
                float S = 0.0f;
                for (int j = 0; j < kh; ++j) {
                    const T* r = elem_at(src, srcStep, std::int64_t{y} - ay + j, e - std::int64_t{ax} * CH);
                    for (int i = 0; i < kw; ++i) S = std::fma(r[std::int64_t{i} * CH], float(taps[j * kw + i]), S);
                }
                d[e] = (S + s.offsetScaled) * s.invDivisor;
            } else {
                std::uint32_t S = 0;
                for (int j = 0; j < kh; ++j) {
                    const T* r = elem_at(src, srcStep, std::int64_t{y} - ay + j, e - std::int64_t{ax} * CH);
                    for (int i = 0; i < kw; ++i)
                        S += static_cast<std::uint32_t>(static_cast<std::int32_t>(r[std::int64_t{i} * CH]) *
                                                        static_cast<std::int32_t>(taps[j * kw + i]));
                }
                const auto Si = static_cast<std::int32_t>(S);
                if constexpr (C == IntConv::Exact) d[e] = conv_exact<T>(Si, s);
                else if constexpr (C == IntConv::OneD) d[e] = conv_oned<T>(Si, s);
                else if constexpr (C == IntConv::Zero) d[e] = conv_2d<T, _MM_FROUND_TO_ZERO>(Si, s);
                else d[e] = conv_2d<T, _MM_FROUND_TO_NEAREST_INT>(Si, s);
            }
        }
    }
}

// Float taps, every pixel type and channel count.
template <class T, int CH>
void filter_float_ref(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, GexiSize roi) {
    const int kw = s.kernelWidth, kh = s.kernelHeight, ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
    const auto* taps = static_cast<const float*>(s.pTaps);
    const std::int64_t n = static_cast<std::int64_t>(roi.width) * CH;
    const int rm = s.roundMode & 3;
    for (int y = 0; y < roi.height; ++y) {
        T* d = elem_at(dst, dstStep, y, 0);
        for (std::int64_t e = 0; e < n; ++e) {
            float S = 0.0f;
            for (int j = 0; j < kh; ++j) {
                const T* r = elem_at(src, srcStep, std::int64_t{y} - ay + j, e - std::int64_t{ax} * CH);
                for (int i = 0; i < kw; ++i) S = std::fma(static_cast<float>(r[std::int64_t{i} * CH]), taps[j * kw + i], S);
            }
            d[e] = conv_float<T>(S, s.offsetScaled, rm);
        }
    }
}

// ---- vector kernels ----------------------------------------------------------------------

// 16 elements as floats.
template <class T>
inline __m512 load_f(const T* p, __mmask16 m) {
    if constexpr (std::is_same_v<T, Gex32f>) return _mm512_maskz_loadu_ps(m, p);
    else if constexpr (std::is_same_v<T, Gex8u>) return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<T, Gex16u>) return _mm512_cvtepi32_ps(_mm512_cvtepu16_epi32(_mm256_maskz_loadu_epi16(m, p)));
    else return _mm512_cvtepi32_ps(_mm512_cvtepi16_epi32(_mm256_maskz_loadu_epi16(m, p)));
}
template <class T>
inline __m512 load_f(const T* p) {
    if constexpr (std::is_same_v<T, Gex32f>) return _mm512_loadu_ps(p);
    else if constexpr (std::is_same_v<T, Gex8u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
    else if constexpr (std::is_same_v<T, Gex16u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
    else return _mm512_cvtepi32_ps(_mm512_cvtepi16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
}

// Stores 16 int32 results saturated to the pixel type.
template <class T>
inline void store_sat(T* p, __mmask16 m, __m512i v) {
    if constexpr (std::is_same_v<T, Gex8u>) {
        _mm512_mask_cvtusepi32_storeu_epi8(p, m, _mm512_max_epi32(v, _mm512_setzero_si512()));
    } else if constexpr (std::is_same_v<T, Gex16s>) {
        _mm512_mask_cvtsepi32_storeu_epi16(p, m, v);
    } else {
        _mm512_mask_cvtusepi32_storeu_epi16(p, m, _mm512_max_epi32(v, _mm512_setzero_si512()));
    }
}

// The float rule on 16 sums, stored.
template <class T>
inline void store_float(T* p, __mmask16 m, __m512 S, __m512 off, int rm) {
    if constexpr (std::is_same_v<T, Gex32f>) {
        (void)off, (void)rm;
        _mm512_mask_storeu_ps(p, m, S);
    } else {
        constexpr int P = PixRange<T>::hi, Pmin = PixRange<T>::lo;
        const __m512 v = _mm512_add_ps(S, off);
        const __m512 a = _mm512_abs_ps(v);
        const __m512 half = _mm512_set1_ps(0.5f);
        __m512i r;
        if (rm == 0) {
            r = _mm512_cvttps_epi32(a);
        } else {
            r = _mm512_cvttps_epi32(_mm512_add_ps(half, a));
            if (rm == 1) {
                const __mmask16 tie =
                    _mm512_cmp_ps_mask(_mm512_sub_ps(_mm512_cvtepi32_ps(r), a), half, _CMP_EQ_OQ);
                r = _mm512_mask_and_epi32(r, tie, r, _mm512_set1_epi32(~1));
                r = _mm512_maskz_mov_epi32(_mm512_cmp_ps_mask(a, half, _CMP_GT_OQ), r);
            }
        }
        r = _mm512_mask_sub_epi32(r, _mm512_cmp_ps_mask(v, _mm512_setzero_ps(), _CMP_LT_OQ), _mm512_setzero_si512(), r);
        r = _mm512_mask_mov_epi32(r, _mm512_cmp_ps_mask(v, _mm512_set1_ps(float(P)), _CMP_GE_OQ), _mm512_set1_epi32(P));
        r = _mm512_mask_mov_epi32(r, _mm512_cmp_ps_mask(v, _mm512_set1_ps(float(Pmin)), _CMP_LE_OQ),
                                  _mm512_set1_epi32(Pmin));
        r = _mm512_min_epi32(_mm512_max_epi32(r, _mm512_set1_epi32(Pmin)), _mm512_set1_epi32(P));
        store_sat<T>(p, m, r);
    }
}

// One source row for output rows QLO..QHI of a block (see float_block).
template <class T, int CH, int NR, int NB, int QLO, int QHI>
__attribute__((always_inline)) inline void float_row_pass(__m512 (&acc)[NR][NB], const T* row, const float* tr, int kw, __mmask16 m) {
    for (int i = 0; i < kw; ++i, row += CH) {
        __m512 t[NR];
#pragma GCC unroll 4
        for (int q = QLO; q <= QHI; ++q) t[q] = _mm512_set1_ps(tr[i - q * kw]);
#pragma GCC unroll 4
        for (int b = 0; b < NB; ++b) {
            __m512 v = NB == 1 ? load_f(row, m) : load_f(row + 16 * b);
            asm("" : "+v"(v));  // one load per vector, not one per use
#pragma GCC unroll 4
            for (int q = QLO; q <= QHI; ++q) acc[q][b] = _mm512_fmadd_ps(v, t[q], acc[q][b]);
        }
    }
}

// NR output rows x NB groups of 16 elements (the groups masked by m when NB
// is 1). Source row r serves output row q with tap row r - q, so each loaded
// (and converted) vector feeds up to NR sums; every sum still takes its taps
// row after row, column after column, so the bits equal the scalar loop's.
template <class T, int CH, int NR, int NB>
inline void float_block(const float* taps, int kw, int kh, const T* top, int srcStep, T* d, int dstStep,
                        std::int64_t e, __mmask16 m, __m512 off, int rm) {
    static_assert(NR == 1 || NR == 4);
    __m512 acc[NR][NB];
#pragma GCC unroll 4
    for (int q = 0; q < NR; ++q)
#pragma GCC unroll 4
        for (int b = 0; b < NB; ++b) acc[q][b] = _mm512_setzero_ps();
    const int rows = kh + NR - 1;
    for (int r = 0; r < rows; ++r) {
        const T* row = elem_at(top, srcStep, r, e);
        const float* tr = taps + std::int64_t{r} * kw;  // tap row r - q is tr - q*kw
        if constexpr (NR == 1) {
            float_row_pass<T, CH, NR, NB, 0, 0>(acc, row, tr, kw, m);
        } else {
            const int qlo = r - kh + 1 > 0 ? r - kh + 1 : 0, qhi = r < NR - 1 ? r : NR - 1;
#define GEX_FB_PASS(a, b_) \
    case a * 4 + b_: float_row_pass<T, CH, NR, NB, a, b_>(acc, row, tr, kw, m); break;
            switch (qlo * 4 + qhi) {
                GEX_FB_PASS(0, 0) GEX_FB_PASS(0, 1) GEX_FB_PASS(0, 2) GEX_FB_PASS(0, 3)
                GEX_FB_PASS(1, 1) GEX_FB_PASS(1, 2) GEX_FB_PASS(1, 3)
                GEX_FB_PASS(2, 2) GEX_FB_PASS(2, 3)
                GEX_FB_PASS(3, 3)
                default: break;
            }
#undef GEX_FB_PASS
        }
    }
#pragma GCC unroll 4
    for (int q = 0; q < NR; ++q) {
        T* dq = elem_at(d, dstStep, q, e);
#pragma GCC unroll 4
        for (int b = 0; b < NB; ++b) store_float<T>(dq + 16 * b, NB == 1 ? m : __mmask16(0xffff), acc[q][b], off, rm);
    }
}

// NR rows of the output from `y` on.
template <class T, int CH, int NR>
inline void float_rows(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, std::int64_t n,
                       int y, __m512 off, int rm) {
    const int kw = s.kernelWidth, kh = s.kernelHeight, ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
    const auto* taps = static_cast<const float*>(s.pTaps);
    const T* top = elem_at(src, srcStep, std::int64_t{y} - ay, -std::int64_t{ax} * CH);
    T* d = elem_at(dst, dstStep, y, 0);
    std::int64_t e = 0;
    constexpr int NB = 4;
    for (; e + 16 * NB <= n; e += 16 * NB)
        float_block<T, CH, NR, NB>(taps, kw, kh, top, srcStep, d, dstStep, e, 0xffff, off, rm);
    for (; e < n; e += 16)
        float_block<T, CH, NR, 1>(taps, kw, kh, top, srcStep, d, dstStep, e, simd::tail_mask16(n - e), off, rm);
}

// Float taps, any pixel type, CH channels: four rows at a time where the
// kernel has at least four rows (loads shared down the rows), else one.
template <class T, int CH>
void filter_float_vec(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, GexiSize roi) {
    const std::int64_t n = static_cast<std::int64_t>(roi.width) * CH;
    const int rm = s.roundMode & 3;
    const __m512 off = _mm512_set1_ps(s.offsetScaled);
    int y = 0;
    if (s.kernelHeight >= 2)
        for (; y + 4 <= roi.height; y += 4) float_rows<T, CH, 4>(s, src, srcStep, dst, dstStep, n, y, off, rm);
    for (; y < roi.height; ++y) float_rows<T, CH, 1>(s, src, srcStep, dst, dstStep, n, y, off, rm);
}

// 32 elements as 16-bit words.
template <class T>
inline __m512i load_w(const T* p, __mmask32 m) {
    if constexpr (std::is_same_v<T, Gex8u>) return _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(m, p));
    else return _mm512_maskz_loadu_epi16(m, p);
}

// The one-dimensional or two-dimensional fast rule on 16 sums.
template <class T, IntConv C>
inline __m512i conv_vec(__m512i S, const FilterBorderSpec& s) {
    if constexpr (C == IntConv::OneD) {
        constexpr int RN = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
        __m512i y;
        if (s.divisorKind == 1) {
            const __m512i sh = _mm512_set1_epi32(s.shift);
            const __m512i q1 = _mm512_and_si512(_mm512_srav_epi32(S, sh), _mm512_set1_epi32(1));
            y = _mm512_srav_epi32(_mm512_add_epi32(S, _mm512_add_epi32(_mm512_set1_epi32(s.roundHalf - 1), q1)), sh);
        } else {
            __m512 f = _mm512_cvt_roundepi32_ps(S, RN);
            if (s.divisorKind != 0) f = _mm512_mul_round_ps(f, _mm512_set1_ps(s.invDivisor), RN);
            y = _mm512_cvt_roundps_epi32(f, RN);
        }
        return _mm512_add_epi32(y, _mm512_set1_epi32(s.offset));
    } else {
        constexpr int RR = (C == IntConv::Zero ? _MM_FROUND_TO_ZERO : _MM_FROUND_TO_NEAREST_INT) | _MM_FROUND_NO_EXC;
        const __m512 f = _mm512_cvt_roundepi32_ps(S, RR);
        const __m512 m = _mm512_fmadd_round_ps(f, _mm512_set1_ps(s.invDivisor),
                                               _mm512_set1_ps(static_cast<float>(s.offset)), RR);
        return _mm512_cvt_roundps_epi32(m, RR);
    }
}

template <class T, IntConv C>
inline void store_int(T* p, std::int64_t count, __m512i s0, __m512i s1, const FilterBorderSpec& s) {
    if constexpr (C == IntConv::Exact) {
        alignas(64) std::int32_t sums[32];
        _mm512_store_si512(sums, s0);
        _mm512_store_si512(sums + 16, s1);
        const int c = count < 32 ? static_cast<int>(count) : 32;
        for (int k = 0; k < c; ++k) p[k] = conv_exact<T>(sums[k], s);
    } else {
        store_sat<T>(p, simd::tail_mask16(count), conv_vec<T, C>(s0, s));
        if (count > 16) store_sat<T>(p + 16, simd::tail_mask16(count - 16), conv_vec<T, C>(s1, s));
    }
}

// Integer taps, 8u or 16s pixels, CH channels: two rows per multiply-add.
// unpacklo/hi interleave rows A and B word by word inside each 128-bit lane,
// so lo holds elements 8L..8L+3 and hi 8L+4..8L+7 of lane L; two permutes
// put the sums back in order.
template <class T, int CH, IntConv C>
void filter_int_vec(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, GexiSize roi) {
    static_assert(std::is_same_v<T, Gex8u> || std::is_same_v<T, Gex16s>);
    const int kw = s.kernelWidth, kh = s.kernelHeight, ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
    const auto* pairs = static_cast<const std::int32_t*>(s.pTapsPairs);
    const int np = (kh + 1) >> 1;
    const std::int64_t n = static_cast<std::int64_t>(roi.width) * CH;
    const __m512i idx0 = _mm512_setr_epi32(0, 1, 2, 3, 16, 17, 18, 19, 4, 5, 6, 7, 20, 21, 22, 23);
    const __m512i idx1 = _mm512_setr_epi32(8, 9, 10, 11, 24, 25, 26, 27, 12, 13, 14, 15, 28, 29, 30, 31);
    for (int y = 0; y < roi.height; ++y) {
        const T* top = elem_at(src, srcStep, std::int64_t{y} - ay, -std::int64_t{ax} * CH);
        T* d = elem_at(dst, dstStep, y, 0);
        for (std::int64_t e = 0; e < n; e += 32) {
            const __mmask32 m = simd::tail_mask32(n - e);
            __m512i lo = _mm512_setzero_si512(), hi = lo;
            for (int p = 0; p < np; ++p) {
                const T* ra = elem_at(top, srcStep, 2 * p, e);
                const std::int32_t* tp = pairs + p * kw;
                if (2 * p + 1 < kh) {
                    const T* rb = elem_at(top, srcStep, 2 * p + 1, e);
                    for (int i = 0; i < kw; ++i, ra += CH, rb += CH) {
                        const __m512i A = load_w(ra, m), B = load_w(rb, m);
                        const __m512i t = _mm512_set1_epi32(tp[i]);
                        lo = _mm512_add_epi32(lo, _mm512_madd_epi16(_mm512_unpacklo_epi16(A, B), t));
                        hi = _mm512_add_epi32(hi, _mm512_madd_epi16(_mm512_unpackhi_epi16(A, B), t));
                    }
                } else {
                    const __m512i Z = _mm512_setzero_si512();
                    for (int i = 0; i < kw; ++i, ra += CH) {
                        const __m512i A = load_w(ra, m);
                        const __m512i t = _mm512_set1_epi32(tp[i]);
                        lo = _mm512_add_epi32(lo, _mm512_madd_epi16(_mm512_unpacklo_epi16(A, Z), t));
                        hi = _mm512_add_epi32(hi, _mm512_madd_epi16(_mm512_unpackhi_epi16(A, Z), t));
                    }
                }
            }
            const __m512i s0 = _mm512_permutex2var_epi32(lo, idx0, hi);
            const __m512i s1 = _mm512_permutex2var_epi32(lo, idx1, hi);
            store_int<T, C>(d + e, n - e, s0, s1, s);
        }
    }
}

// ---- selection ---------------------------------------------------------------------------

// The interior kernel for a record and pixel type (see filter_border.cpp).
template <class T, int CH>
void filter_interior(const FilterBorderSpec& s, const T* src, int srcStep, T* dst, int dstStep, GexiSize roi) {
    const int kw = s.kernelWidth, kh = s.kernelHeight;
    if (s.kind >= 3) {
        if constexpr (std::is_same_v<T, Gex32f> || std::is_same_v<T, Gex8u> || std::is_same_v<T, Gex16u> ||
                      std::is_same_v<T, Gex16s>)
            filter_float_vec<T, CH>(s, src, srcStep, dst, dstStep, roi);
        return;
    }
    const bool accurate = (s.roundMode & kAccurateFlag) != 0;
    const int rm = s.roundMode & 3;
    auto two_d = [&](auto run_exact, auto run_zero, auto run_near) {
        if (accurate || rm == 2) run_exact();
        else if (rm == 0) run_zero();
        else run_near();
    };
    if constexpr (std::is_same_v<T, Gex8u>) {
        if (s.tapsFit16) {
            const bool oneD = (kw == 1 && kh >= 3) || (kh == 1 && kw >= 3);
            if (oneD) {
                if (roi.width >= 16) {
                    if (accurate) filter_int_vec<T, CH, IntConv::Exact>(s, src, srcStep, dst, dstStep, roi);
                    else filter_int_vec<T, CH, IntConv::OneD>(s, src, srcStep, dst, dstStep, roi);
                    return;
                }
            } else {
                two_d([&] { filter_int_vec<T, CH, IntConv::Exact>(s, src, srcStep, dst, dstStep, roi); },
                      [&] { filter_int_vec<T, CH, IntConv::Zero>(s, src, srcStep, dst, dstStep, roi); },
                      [&] { filter_int_vec<T, CH, IntConv::Near>(s, src, srcStep, dst, dstStep, roi); });
                return;
            }
        }
    } else if constexpr (std::is_same_v<T, Gex16s> && CH == 1) {
        if (s.tapsFit16 && kh >= 3 && roi.width >= 16) {
            two_d([&] { filter_int_vec<T, CH, IntConv::Exact>(s, src, srcStep, dst, dstStep, roi); },
                  [&] { filter_int_vec<T, CH, IntConv::Zero>(s, src, srcStep, dst, dstStep, roi); },
                  [&] { filter_int_vec<T, CH, IntConv::Near>(s, src, srcStep, dst, dstStep, roi); });
            return;
        }
    }
    filter_int_ref<T, CH>(s, src, srcStep, dst, dstStep, roi);
}

}  // namespace gex::fb

#pragma GCC diagnostic pop
