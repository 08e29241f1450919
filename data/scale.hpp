// Row kernels of Scale: the full range of one type mapped onto another's.
//
// Every kernel is an element map, so one row driver serves all of them and
// all layouts: C3 and C4 rows are rows of width x channels elements, and AC4
// rows run under the repeating lane mask 0111 (the fourth element of every
// pixel is neither loaded nor stored). A kernel works on blocks of kLanes
// elements with one lane mask for its load and its store, so the row tail is
// the same code with a shorter mask and nothing outside the row is touched.
// Each kernel has a plain scalar twin (scalar()), which the tests compare
// with the vector blocks.
//
// The floating kernels (8u32f, 32f8u and the accurate narrowing ones) run
// under an FpControlGuard set to nearest, so a caller's rounding or
// flush-to-zero setting never changes a result.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "gexdefs.h"

// GCC 12 takes the undefined pass-through operand inside the unmasked
// conversion and min/max intrinsics for an uninitialised variable; the
// warning is about the compiler's own headers, so it is off for the kernels.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::scale_kernels {

// The lane pattern of AC4 rows: three colour elements on, alpha off.
constexpr std::uint64_t kAc4Lanes = 0x7777777777777777ULL;

// ---- widening -------------------------------------------------------------

// x * 257: the byte doubled.
struct K8u16u {
    using S = Gex8u;
    using D = Gex16u;
    using Mask = __mmask32;
    static constexpr int kLanes = 32;
    static constexpr bool kFloat = false;
    void block(const S* s, D* d, Mask m) const {
        const __m512i v = _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(m, s));
        _mm512_mask_storeu_epi16(d, m, _mm512_or_si512(v, _mm512_slli_epi16(v, 8)));
    }
    D scalar(S x) const { return static_cast<D>((x << 8) | x); }
};

// x * 257 - 32768: the doubled byte with its top bit flipped.
struct K8u16s {
    using S = Gex8u;
    using D = Gex16s;
    using Mask = __mmask32;
    static constexpr int kLanes = 32;
    static constexpr bool kFloat = false;
    void block(const S* s, D* d, Mask m) const {
        const __m512i v = _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(m, s));
        const __m512i w = _mm512_or_si512(v, _mm512_slli_epi16(v, 8));
        _mm512_mask_storeu_epi16(d, m, _mm512_xor_si512(w, _mm512_set1_epi16(static_cast<short>(0x8000))));
    }
    D scalar(S x) const { return static_cast<D>(x * 257 - 32768); }
};

// (x * 0x01010101) xor 0x80000000: the byte in all four bytes, top bit flipped.
struct K8u32s {
    using S = Gex8u;
    using D = Gex32s;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = false;
    void block(const S* s, D* d, Mask m) const {
        const __m512i v = _mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, s));
        const __m512i w = _mm512_or_si512(v, _mm512_slli_epi32(v, 8));
        const __m512i q = _mm512_or_si512(w, _mm512_slli_epi32(w, 16));
        _mm512_mask_storeu_epi32(d, m, _mm512_xor_si512(q, _mm512_set1_epi32(static_cast<int>(0x80000000u))));
    }
    D scalar(S x) const { return static_cast<D>((x * 0x01010101u) ^ 0x80000000u); }
};

// x * ratio + vMin in binary32, multiply and add rounded separately; the
// ratio (vMax - vMin) / 255 is computed once by the caller.
struct K8u32f {
    using S = Gex8u;
    using D = Gex32f;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = true;
    float ratio, vmin;
    void block(const S* s, D* d, Mask m) const {
        const __m512 x = _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, s)));
        const __m512 t = _mm512_mul_ps(x, _mm512_set1_ps(ratio));
        _mm512_mask_storeu_ps(d, m, _mm512_add_ps(t, _mm512_set1_ps(vmin)));
    }
    D scalar(S x) const {
        const float t = static_cast<float>(x) * ratio;
        return t + vmin;
    }
};

// ---- narrowing, fast: shifts only ------------------------------------------
// ((v - (v >> 8)) >> 8) + 128 with arithmetic shifts; 16u first moves to the
// signed range (v = x - 32768, the top bit flipped).

template <bool Unsigned>
struct K16to8uFast {
    using S = std::conditional_t<Unsigned, Gex16u, Gex16s>;
    using D = Gex8u;
    using Mask = __mmask32;
    static constexpr int kLanes = 32;
    static constexpr bool kFloat = false;
    void block(const S* s, D* d, Mask m) const {
        __m512i v = _mm512_maskz_loadu_epi16(m, s);
        if constexpr (Unsigned) v = _mm512_xor_si512(v, _mm512_set1_epi16(static_cast<short>(0x8000)));
        const __m512i u = _mm512_srai_epi16(_mm512_sub_epi16(v, _mm512_srai_epi16(v, 8)), 8);
        const __m512i r = _mm512_add_epi16(u, _mm512_set1_epi16(128));
        _mm256_mask_storeu_epi8(d, m, _mm512_cvtepi16_epi8(r));
    }
    D scalar(S x) const {
        const int v = Unsigned ? static_cast<int>(x) - 32768 : static_cast<int>(x);
        return static_cast<D>(((v - (v >> 8)) >> 8) + 128);
    }
};

// ((v - (v >> 8)) >> 24) + 128.
struct K32s8uFast {
    using S = Gex32s;
    using D = Gex8u;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = false;
    void block(const S* s, D* d, Mask m) const {
        const __m512i v = _mm512_maskz_loadu_epi32(m, s);
        const __m512i u = _mm512_srai_epi32(_mm512_sub_epi32(v, _mm512_srai_epi32(v, 8)), 24);
        _mm_mask_storeu_epi8(d, m, _mm512_cvtepi32_epi8(_mm512_add_epi32(u, _mm512_set1_epi32(128))));
    }
    D scalar(S x) const { return static_cast<D>(((x - (x >> 8)) >> 24) + 128); }
};

// ---- narrowing, accurate ------------------------------------------------------
// round(n * b) with n = x (16u) or x + 32768 (16s), b the binary32 value of
// 1/257. The product is formed in binary32: n is exact there, and for every n
// of 0..65535 the binary32 product rounds to the same integer as the exact
// n / 257 would (no n / 257 lies within 1/514 of a half, far more than the
// product's error), so binary64 would give the same bytes.

constexpr float kInv257 = 0.0038910505827516317f;

template <bool Unsigned>
struct K16to8uAcc {
    using S = std::conditional_t<Unsigned, Gex16u, Gex16s>;
    using D = Gex8u;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = true;
    void block(const S* s, D* d, Mask m) const {
        const __m256i raw = _mm256_maskz_loadu_epi16(m, s);
        __m512i n;
        if constexpr (Unsigned) n = _mm512_cvtepu16_epi32(raw);
        else n = _mm512_add_epi32(_mm512_cvtepi16_epi32(raw), _mm512_set1_epi32(32768));
        const __m512 p = _mm512_mul_ps(_mm512_cvtepi32_ps(n), _mm512_set1_ps(kInv257));
        _mm_mask_storeu_epi8(d, m, _mm512_cvtepi32_epi8(_mm512_cvtps_epi32(p)));
    }
    D scalar(S x) const {
        const int n = Unsigned ? static_cast<int>(x) : static_cast<int>(x) + 32768;
        return static_cast<D>(std::nearbyint(static_cast<float>(n) * kInv257));
    }
};

// round(x * 5.937181414556033e-08 + 127.5000000296859) in binary64, multiply
// and add rounded separately. The values stay within [0, 255]; the clamp only
// guards the conversion.
struct K32s8uAcc {
    using S = Gex32s;
    using D = Gex8u;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = true;
    static constexpr double kMul = 5.937181414556033e-08;
    static constexpr double kAdd = 127.5000000296859;
    static __m256i half(__m256i v) {
        const __m512d t = _mm512_add_pd(_mm512_mul_pd(_mm512_cvtepi32_pd(v), _mm512_set1_pd(kMul)),
                                        _mm512_set1_pd(kAdd));
        return _mm512_cvtpd_epi32(t);
    }
    void block(const S* s, D* d, Mask m) const {
        const __m512i v = _mm512_maskz_loadu_epi32(m, s);
        const __m256i lo = half(_mm512_castsi512_si256(v));
        const __m256i hi = half(_mm512_extracti64x4_epi64(v, 1));
        __m512i r = _mm512_inserti64x4(_mm512_castsi256_si512(lo), hi, 1);
        r = _mm512_max_epi32(r, _mm512_setzero_si512());
        _mm_mask_storeu_epi8(d, m, _mm512_cvtusepi32_epi8(r));
    }
    D scalar(S x) const {
        const double t = static_cast<double>(x) * kMul;
        const double r = std::nearbyint(t + kAdd);
        return static_cast<D>(r < 0.0 ? 0.0 : (r > 255.0 ? 255.0 : r));
    }
};

// clamp(round(x * k + c)) in binary32 with k = 255 / (vMax - vMin) and
// c = -k * vMin, multiply and add rounded separately. The clamp comes before
// the conversion and sends NaN to 0.
struct K32f8u {
    using S = Gex32f;
    using D = Gex8u;
    using Mask = __mmask16;
    static constexpr int kLanes = 16;
    static constexpr bool kFloat = true;
    float k, c;
    void block(const S* s, D* d, Mask m) const {
        const __m512 x = _mm512_maskz_loadu_ps(m, s);
        const __m512 t = _mm512_add_ps(_mm512_mul_ps(x, _mm512_set1_ps(k)), _mm512_set1_ps(c));
        // min keeps a NaN in its second operand, max replaces it by its second.
        const __m512 q = _mm512_max_ps(_mm512_min_ps(_mm512_set1_ps(255.0f), t), _mm512_setzero_ps());
        _mm_mask_storeu_epi8(d, m, _mm512_cvtepi32_epi8(_mm512_cvtps_epi32(q)));
    }
    D scalar(S x) const {
        const float p = x * k;
        const float t = p + c;
        if (!(t > 0.0f)) return 0;  // NaN too
        if (t >= 255.0f) return 255;
        return static_cast<D>(std::nearbyint(t));
    }
};

// ---- rows ----------------------------------------------------------------------

// n elements; with ac4 the fourth element of every pixel is skipped.
template <class K>
inline void row(const K& k, const typename K::S* s, typename K::D* d, std::int64_t n, bool ac4) {
    using M = typename K::Mask;
    constexpr int L = K::kLanes;
    const M pat = static_cast<M>(ac4 ? kAc4Lanes : ~std::uint64_t{0});
    std::int64_t i = 0;
    for (; i + L <= n; i += L) k.block(s + i, d + i, pat);
    if (i < n) k.block(s + i, d + i, static_cast<M>(pat & ((std::uint64_t{1} << (n - i)) - 1)));
}

// The scalar twin of row().
template <class K>
inline void row_ref(const K& k, const typename K::S* s, typename K::D* d, std::int64_t n, bool ac4) {
    for (std::int64_t i = 0; i < n; ++i)
        if (!ac4 || (i & 3) != 3) d[i] = k.scalar(s[i]);
}

}  // namespace gex::scale_kernels

#pragma GCC diagnostic pop
