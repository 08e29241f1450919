// Row kernels of ScaleC: dst = saturate(round(src * mVal + aVal)) between any
// two of 8u, 8s, 16u, 16s, 32s, 32f, 64f.
//
// Three kernels, each generic over the source and destination type:
//   Fast   binary32 with one fused multiply-add (sources up to 32 bits; a 64f
//          source is taken in binary64, fused as well);
//   Acc    binary64, the multiply and the add rounded separately;
//   Exact  no arithmetic: the value itself converted, for mVal 1 and aVal 0.
// Loads widen 16 elements to binary32 or 8 elements to binary64; stores
// narrow with saturation: integer destinations round to nearest with ties to
// even (the wrappers hold the machine at nearest), NaN gives the type's
// minimum (0 for unsigned types), values beyond a bound give that bound.
// Floating destinations take the value unrounded (a binary64 result beyond
// the binary32 range becomes an infinity). Each kernel's scalar() is its
// plain twin.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "gexdefs.h"

// GCC 12 takes the undefined pass-through operand inside the unmasked
// conversion and min/max intrinsics for an uninitialised variable; the
// warning is about the compiler's own headers, so it is off for the kernels.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::scalec_kernels {

template <class T>
constexpr bool kIsFloat = std::is_floating_point_v<T>;

// ---- loads ------------------------------------------------------------------

// 16 elements to binary32 (a 32s value rounds to nearest under the guard).
template <class S>
inline __m512 load16(const S* p, __mmask16 m) {
    if constexpr (std::is_same_v<S, Gex8u>) return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<S, Gex8s>) return _mm512_cvtepi32_ps(_mm512_cvtepi8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<S, Gex16u>) return _mm512_cvtepi32_ps(_mm512_cvtepu16_epi32(_mm256_maskz_loadu_epi16(m, p)));
    else if constexpr (std::is_same_v<S, Gex16s>) return _mm512_cvtepi32_ps(_mm512_cvtepi16_epi32(_mm256_maskz_loadu_epi16(m, p)));
    else if constexpr (std::is_same_v<S, Gex32s>) return _mm512_cvtepi32_ps(_mm512_maskz_loadu_epi32(m, p));
    else {
        static_assert(std::is_same_v<S, Gex32f>);
        return _mm512_maskz_loadu_ps(m, p);
    }
}

// 8 elements to binary64, exactly.
template <class S>
inline __m512d load8(const S* p, __mmask8 m) {
    if constexpr (std::is_same_v<S, Gex8u>) return _mm512_cvtepi32_pd(_mm256_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<S, Gex8s>) return _mm512_cvtepi32_pd(_mm256_cvtepi8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<S, Gex16u>) return _mm512_cvtepi32_pd(_mm256_cvtepu16_epi32(_mm_maskz_loadu_epi16(m, p)));
    else if constexpr (std::is_same_v<S, Gex16s>) return _mm512_cvtepi32_pd(_mm256_cvtepi16_epi32(_mm_maskz_loadu_epi16(m, p)));
    else if constexpr (std::is_same_v<S, Gex32s>) return _mm512_cvtepi32_pd(_mm256_maskz_loadu_epi32(m, p));
    else if constexpr (std::is_same_v<S, Gex32f>) return _mm512_cvtps_pd(_mm256_maskz_loadu_ps(m, p));
    else {
        static_assert(std::is_same_v<S, Gex64f>);
        return _mm512_maskz_loadu_pd(m, p);
    }
}

// ---- stores -------------------------------------------------------------------

// 16 binary32 values to D.
template <class D>
inline void store16(D* p, __mmask16 m, __m512 t) {
    if constexpr (std::is_same_v<D, Gex32f>) {
        _mm512_mask_storeu_ps(p, m, t);
    } else if constexpr (std::is_same_v<D, Gex64f>) {
        _mm512_mask_storeu_pd(p, static_cast<__mmask8>(m), _mm512_cvtps_pd(_mm512_castps512_ps256(t)));
        _mm512_mask_storeu_pd(p + 8, static_cast<__mmask8>(m >> 8),
                              _mm512_cvtps_pd(_mm256_castpd_ps(_mm512_extractf64x4_pd(_mm512_castps_pd(t), 1))));
    } else if constexpr (std::is_same_v<D, Gex32s>) {
        // At or above 2^31 the conversion gives INT_MIN: those lanes take
        // INT_MAX. NaN and values at or below -2^31 give INT_MIN as they are.
        __m512i r = _mm512_cvtps_epi32(t);
        const __mmask16 hi = _mm512_cmp_ps_mask(t, _mm512_set1_ps(2147483648.0f), _CMP_GE_OQ);
        r = _mm512_mask_mov_epi32(r, hi, _mm512_set1_epi32(std::numeric_limits<Gex32s>::max()));
        _mm512_mask_storeu_epi32(p, m, r);
    } else {
        using L = std::numeric_limits<D>;
        // min keeps a NaN (its second operand), max then replaces it by the minimum.
        const __m512 c = _mm512_max_ps(_mm512_min_ps(_mm512_set1_ps(float(L::max())), t), _mm512_set1_ps(float(L::lowest())));
        const __m512i r = _mm512_cvtps_epi32(c);
        if constexpr (sizeof(D) == 1) _mm_mask_storeu_epi8(p, m, _mm512_cvtepi32_epi8(r));
        else _mm256_mask_storeu_epi16(p, m, _mm512_cvtepi32_epi16(r));
    }
}

// 8 binary64 values to D.
template <class D>
inline void store8(D* p, __mmask8 m, __m512d t) {
    if constexpr (std::is_same_v<D, Gex64f>) {
        _mm512_mask_storeu_pd(p, m, t);
    } else if constexpr (std::is_same_v<D, Gex32f>) {
        _mm256_mask_storeu_ps(p, m, _mm512_cvtpd_ps(t));
    } else {
        using L = std::numeric_limits<D>;
        const __m512d c = _mm512_max_pd(_mm512_min_pd(_mm512_set1_pd(double(L::max())), t), _mm512_set1_pd(double(L::lowest())));
        const __m256i r = _mm512_cvtpd_epi32(c);
        if constexpr (sizeof(D) == 1) _mm_mask_storeu_epi8(p, m, _mm256_cvtepi32_epi8(r));
        else if constexpr (sizeof(D) == 2) _mm_mask_storeu_epi16(p, m, _mm256_cvtepi32_epi16(r));
        else _mm256_mask_storeu_epi32(p, m, r);
    }
}

// The scalar store: the same saturation and rounding for one value.
template <class D, class F>
inline D to_dst(F t) {
    if constexpr (kIsFloat<D>) {
        return static_cast<D>(t);
    } else {
        using L = std::numeric_limits<D>;
        if (std::isnan(t)) return L::lowest();
        if (t >= static_cast<F>(L::max())) return L::max();
        if (t <= static_cast<F>(L::lowest())) return L::lowest();
        return static_cast<D>(std::nearbyint(t));
    }
}

// ---- kernels -------------------------------------------------------------------

template <class S, class D>
struct Fast {
    static constexpr bool kWide = std::is_same_v<S, Gex64f>;  // binary64 for 64f sources
    using F = std::conditional_t<kWide, double, float>;
    using Mask = std::conditional_t<kWide, __mmask8, __mmask16>;
    static constexpr int kLanes = kWide ? 8 : 16;
    F m, a;
    Fast(double mVal, double aVal) : m(static_cast<F>(mVal)), a(static_cast<F>(aVal)) {}
    void block(const S* s, D* d, Mask k) const {
        if constexpr (kWide) store8(d, k, _mm512_fmadd_pd(load8(s, k), _mm512_set1_pd(m), _mm512_set1_pd(a)));
        else store16(d, k, _mm512_fmadd_ps(load16(s, k), _mm512_set1_ps(m), _mm512_set1_ps(a)));
    }
    D scalar(S x) const { return to_dst<D>(std::fma(static_cast<F>(x), m, a)); }
};

template <class S, class D>
struct Acc {
    using Mask = __mmask8;
    static constexpr int kLanes = 8;
    double m, a;
    void block(const S* s, D* d, Mask k) const {
        store8(d, k, _mm512_add_pd(_mm512_mul_pd(load8(s, k), _mm512_set1_pd(m)), _mm512_set1_pd(a)));
    }
    D scalar(S x) const {
        const double p = static_cast<double>(x) * m;
        return to_dst<D>(p + a);
    }
};

template <class S, class D>
struct Exact {
    using Mask = __mmask8;
    static constexpr int kLanes = 8;
    void block(const S* s, D* d, Mask k) const { store8(d, k, load8(s, k)); }
    D scalar(S x) const { return to_dst<D>(static_cast<double>(x)); }
};

// Rows of n elements, the tail under a shorter lane mask.
template <class K, class S, class D>
inline void row(const K& k, const S* s, D* d, std::int64_t n) {
    constexpr int L = K::kLanes;
    using M = typename K::Mask;
    std::int64_t i = 0;
    for (; i + L <= n; i += L) k.block(s + i, d + i, static_cast<M>(~0u));
    if (i < n) k.block(s + i, d + i, static_cast<M>((std::uint64_t{1} << (n - i)) - 1));
}

template <class K, class S, class D>
inline void row_ref(const K& k, const S* s, D* d, std::int64_t n) {
    for (std::int64_t i = 0; i < n; ++i) d[i] = k.scalar(s[i]);
}

}  // namespace gex::scalec_kernels

#pragma GCC diagnostic pop
