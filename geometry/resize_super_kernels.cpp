// Row kernels of the super-sampling resize and their scalar twins.
//
// Every kernel computes, element by element, the very operations of its twin
// in the same order, so the vector and scalar paths give identical bits:
//   vertical:   acc = 0; per tap: skip w == 0, acc += p for w == 1, else
//               acc = fma(w, p, acc);
//   horizontal: k = 2: S x fma(w0, a0, a1 x w1)
//               k = 3: fma(S, fma(w1, a1, a2 x w2), (S x w0) x a0)
//               k = 4: S x fma(w3, a3, fma(w2, a2, fma(w0, a0, a1 x w1)))
//               else:  S x (sum = fma(w[j], a[j], sum), j = 0 .. k - 1)
//   store:      ties to even and saturation for integer depths.
#include <immintrin.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <cstdint>

#include "frame/pixel.hpp"
#include "frame/simd.hpp"
#include "geometry/resize_super.hpp"

// GCC 12 reports the undefined upper halves inside the widening intrinsics.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

namespace gex {

void ownSuperKernel(std::uint32_t num, std::uint32_t den, std::uint32_t k, std::int32_t* pPos, float* pCoef) {
    const double r = double(num) / double(den);
    double c = 1.0;  // share of the current source pixel not yet used
    double u = 0.0;
    for (std::uint32_t p = 0; p < den; ++p) {
        std::int32_t* pos = pPos + std::size_t(p) * k;
        float* w = pCoef + std::size_t(p) * k;
        std::uint32_t n = 0;
        const std::int32_t q = std::int32_t(r * double(p));
        pos[n] = q;
        w[n++] = c > 1e-7 ? float(c) : 0.0f;
        double rest = r - c;
        std::uint32_t j = 1;
        for (; j + 1 < k; ++j) {  // j = 1 .. k - 2
            if (rest < 1.0) {
                u = rest - 1.0;
                break;
            }
            pos[n] = q + std::int32_t(j);
            w[n++] = 1.0f;
            rest -= 1.0;
        }
        pos[n] = q + std::int32_t(j);
        w[n++] = rest > 1e-7 ? float(rest) : 0.0f;
        if (u < 0.0) {
            pos[n] = q + std::int32_t(j);
            w[n++] = 0.0f;
            u = 0.0;
        }
        c = 1.0 - rest;
        if (p + 1 == den) {
            // The period's last box ends on the period's end: a tap that would
            // reach the next period stays on its last pixel with no weight.
            for (std::uint32_t t = 0; t < n; ++t)
                if (pos[t] >= std::int32_t(num)) {
                    pos[t] = std::int32_t(num) - 1;
                    w[t] = 0.0f;
                }
        }
    }
}

namespace super {

namespace {

// ---- scalar element helpers ----------------------------------------------------

template <class T>
inline T store_ref(float v) {
    if constexpr (std::is_same_v<T, float>) return v;
    else return saturate_round<T>(double(v), gexRndNear);
}

inline float combine_ref(std::uint32_t k, const float* w, const float* a, float S) {
    switch (k) {
    case 2: return S * std::fma(w[0], a[0], a[1] * w[1]);
    case 3: return std::fma(S, std::fma(w[1], a[1], a[2] * w[2]), (S * w[0]) * a[0]);
    case 4: return S * std::fma(w[3], a[3], std::fma(w[2], a[2], std::fma(w[0], a[0], a[1] * w[1])));
    default: {
        float sum = 0.0f;
        for (std::uint32_t j = 0; j < k; ++j) sum = std::fma(w[j], a[j], sum);
        return S * sum;
    }
    }
}

// ---- vector element helpers ------------------------------------------------------

template <class T>
inline __m512 load16(const T* p, __mmask16 m) {
    if constexpr (std::is_same_v<T, Gex8u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(m, p)));
    else if constexpr (std::is_same_v<T, Gex16u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu16_epi32(_mm256_maskz_loadu_epi16(m, p)));
    else if constexpr (std::is_same_v<T, Gex16s>)
        return _mm512_cvtepi32_ps(_mm512_cvtepi16_epi32(_mm256_maskz_loadu_epi16(m, p)));
    else
        return _mm512_maskz_loadu_ps(m, p);
}

template <class T>
inline __m512 load16(const T* p) {
    if constexpr (std::is_same_v<T, Gex8u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
    else if constexpr (std::is_same_v<T, Gex16u>)
        return _mm512_cvtepi32_ps(_mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
    else if constexpr (std::is_same_v<T, Gex16s>)
        return _mm512_cvtepi32_ps(_mm512_cvtepi16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
    else
        return _mm512_loadu_ps(p);
}

// Ties to even whatever the rounding control says, then saturation.
template <class T>
inline void store16(T* p, __mmask16 m, __m512 v) {
    if constexpr (std::is_same_v<T, float>) {
        _mm512_mask_storeu_ps(p, m, v);
    } else {
        __m512i i = _mm512_cvt_roundps_epi32(v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        if constexpr (std::is_same_v<T, Gex8u>) {
            _mm512_mask_cvtusepi32_storeu_epi8(p, m, _mm512_max_epi32(i, _mm512_setzero_si512()));
        } else if constexpr (std::is_same_v<T, Gex16u>) {
            _mm512_mask_cvtusepi32_storeu_epi16(p, m, _mm512_max_epi32(i, _mm512_setzero_si512()));
        } else {
            _mm512_mask_cvtsepi32_storeu_epi16(p, m, i);
        }
    }
}

}  // namespace

float tile_scale(const resize::Record* s) {
    const resize::Axis& x = s->xAxis;
    const resize::Axis& y = s->yAxis;
    const float fy = float(y.den) / float(y.num);
    if (x.den == 1 && (x.num == 2 || x.num == 3)) return fy / float(x.num);
    return (float(x.den) / float(x.num)) * fy;
}

// ---- vertical --------------------------------------------------------------------

template <class T>
void vsum_ref(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
              int k, float* acc, std::int64_t n) {
    for (std::int64_t e = 0; e < n; ++e) acc[e] = 0.0f;
    for (int j = 0; j < k; ++j) {
        const float wj = w[j];
        if (wj == 0.0f) continue;
        const T* row = row_at(src, srcStep, rowBase + pos[j]);
        if (wj == 1.0f)
            for (std::int64_t e = 0; e < n; ++e) acc[e] += float(row[e]);
        else
            for (std::int64_t e = 0; e < n; ++e) acc[e] = std::fma(wj, float(row[e]), acc[e]);
    }
}

template <class T>
void vonly_ref(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
               int k, float S, T* dst, std::int64_t n) {
    for (std::int64_t e = 0; e < n; ++e) {
        float a = 0.0f;
        for (int j = 0; j < k; ++j) {
            const float wj = w[j];
            if (wj == 0.0f) continue;
            const float p = float(row_at(src, srcStep, rowBase + pos[j])[e]);
            a = wj == 1.0f ? a + p : std::fma(wj, p, a);
        }
        dst[e] = store_ref<T>(S * a);
    }
}

namespace {

// Sums 16 x U elements from e on (masked by m for the last vector) and hands
// the accumulators to out(). Taps walk in order for each group of vectors.
template <class T, int U, class Out>
inline void vsum_block(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos,
                       const float* w, int k, std::int64_t e, std::int64_t n, Out out) {
    __m512 a[U];
    for (int u = 0; u < U; ++u) a[u] = _mm512_setzero_ps();
    const bool full = e + 16 * U <= n;
    for (int j = 0; j < k; ++j) {
        const float wj = w[j];
        if (wj == 0.0f) continue;
        const T* row = row_at(src, srcStep, rowBase + pos[j]) + e;
        __m512 p[U];
        if (full) {
            for (int u = 0; u < U; ++u) p[u] = load16(row + 16 * u);
        } else {
            for (int u = 0; u < U; ++u) p[u] = load16(row + 16 * u, simd::tail_mask16(std::max<std::int64_t>(0, n - e - 16 * u)));
        }
        if (wj == 1.0f) {
            for (int u = 0; u < U; ++u) a[u] = _mm512_add_ps(a[u], p[u]);
        } else {
            const __m512 vw = _mm512_set1_ps(wj);
            for (int u = 0; u < U; ++u) a[u] = _mm512_fmadd_ps(vw, p[u], a[u]);
        }
    }
    out(a);
}

// The taps of a destination row that carry weight, as row pointers, at most
// four at a time. A unit weight takes the same fused step as any other:
// fma(1, p, acc) is acc + p rounded once, the plain addition bit for bit.
template <class T>
struct LiveTaps {
    static constexpr int kMax = 4;
    const T* row[kMax];
    float w[kMax];
    int n = 0;
};

// Collects the live taps from j on; returns the tap after the last one taken.
template <class T>
int collect(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w, int k,
            int j, LiveTaps<T>& t) {
    t.n = 0;
    for (; j < k && t.n < LiveTaps<T>::kMax; ++j) {
        if (w[j] == 0.0f) continue;
        t.row[t.n] = row_at(src, srcStep, rowBase + pos[j]);
        t.w[t.n] = w[j];
        ++t.n;
    }
    return j;
}

inline bool any_live(const float* w, int j, int k) {
    for (; j < k; ++j)
        if (w[j] != 0.0f) return true;
    return false;
}

// NT live taps over n elements, from zero or (Cont) from accIn, in tap order.
template <class T, int NT, bool Cont, class Store>
inline void sum_row(const LiveTaps<T>& t, const float* accIn, std::int64_t n, Store store) {
    __m512 wv[NT];
    for (int i = 0; i < NT; ++i) wv[i] = _mm512_set1_ps(t.w[i]);
    std::int64_t e = 0;
    for (; e + 64 <= n; e += 64) {
        __m512 a[4];
        for (int u = 0; u < 4; ++u) a[u] = Cont ? _mm512_loadu_ps(accIn + e + 16 * u) : _mm512_setzero_ps();
        for (int i = 0; i < NT; ++i)
            for (int u = 0; u < 4; ++u) a[u] = _mm512_fmadd_ps(wv[i], load16(t.row[i] + e + 16 * u), a[u]);
        for (int u = 0; u < 4; ++u) store(e + 16 * u, __mmask16(0xffff), a[u]);
    }
    for (; e < n; e += 16) {
        const __mmask16 m = simd::tail_mask16(n - e);
        __m512 a = Cont ? _mm512_maskz_loadu_ps(m, accIn + e) : _mm512_setzero_ps();
        for (int i = 0; i < NT; ++i) a = _mm512_fmadd_ps(wv[i], load16(t.row[i] + e, m), a);
        store(e, m, a);
    }
}

template <class T, bool Cont, class Store>
void sum_taps(const LiveTaps<T>& t, const float* accIn, std::int64_t n, Store store) {
    switch (t.n) {
    case 1: sum_row<T, 1, Cont>(t, accIn, n, store); break;
    case 2: sum_row<T, 2, Cont>(t, accIn, n, store); break;
    case 3: sum_row<T, 3, Cont>(t, accIn, n, store); break;
    default: sum_row<T, 4, Cont>(t, accIn, n, store); break;
    }
}

}  // namespace

template <class T>
void vsum_vec(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
              int k, float* acc, std::int64_t n) {
    const auto st = [acc](std::int64_t e, __mmask16 m, __m512 a) { _mm512_mask_storeu_ps(acc + e, m, a); };
    LiveTaps<T> t;
    int j = collect(src, srcStep, rowBase, pos, w, k, 0, t);
    if (t.n == 0) {
        for (std::int64_t e = 0; e < n; e += 16)
            _mm512_mask_storeu_ps(acc + e, simd::tail_mask16(n - e), _mm512_setzero_ps());
        return;
    }
    sum_taps<T, false>(t, nullptr, n, st);
    // Rows with more than four live taps go on from the stored sums.
    while (j < k) {
        j = collect(src, srcStep, rowBase, pos, w, k, j, t);
        if (t.n == 0) break;
        sum_taps<T, true>(t, acc, n, st);
    }
}

template <class T>
void vonly_vec(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
               int k, float S, T* dst, std::int64_t n) {
    const __m512 vs = _mm512_set1_ps(S);
    LiveTaps<T> t;
    const int j = collect(src, srcStep, rowBase, pos, w, k, 0, t);
    if (t.n > 0 && !any_live(w, j, k)) {
        sum_taps<T, false>(t, nullptr, n,
                           [&](std::int64_t e, __mmask16 m, __m512 a) { store16(dst + e, m, _mm512_mul_ps(vs, a)); });
        return;
    }
    // Many live taps (or none): the sum per group of vectors, taps inside.
    std::int64_t e = 0;
    for (; e + 64 <= n; e += 64)
        vsum_block<T, 4>(src, srcStep, rowBase, pos, w, k, e, n, [&](const __m512* a) {
            for (int u = 0; u < 4; ++u) store16(dst + e + 16 * u, __mmask16(0xffff), _mm512_mul_ps(vs, a[u]));
        });
    for (; e < n; e += 16)
        vsum_block<T, 1>(src, srcStep, rowBase, pos, w, k, e, n, [&](const __m512* a) {
            store16(dst + e, simd::tail_mask16(n - e), _mm512_mul_ps(vs, a[0]));
        });
}

// ---- horizontal: scalar twin ---------------------------------------------------------

template <class T>
void hpass_ref(const HPass& h, T* dst) {
    const int c = h.channels;
    const std::uint32_t k = h.k;
    float wt[64], at[64];
    for (std::int64_t x = 0; x < h.width; ++x) {
        const std::int64_t i = h.x0 + x;
        const std::int64_t ph = i % h.den;
        const std::int64_t base = (i / h.den) * std::int64_t(h.num) - h.srcOff;
        const std::int32_t* pos = h.pos + ph * k;
        const float* w = h.w + ph * k;
        for (int ch = 0; ch < c; ++ch) {
            float v;
            if (k <= 64) {
                for (std::uint32_t j = 0; j < k; ++j) {
                    wt[j] = w[j];
                    at[j] = h.acc[(base + pos[j]) * c + ch];
                }
                v = combine_ref(k, wt, at, h.S);
            } else {
                float sum = 0.0f;
                for (std::uint32_t j = 0; j < k; ++j) sum = std::fma(w[j], h.acc[(base + pos[j]) * c + ch], sum);
                v = h.S * sum;
            }
            dst[x * c + ch] = store_ref<T>(v);
        }
    }
}

// ---- horizontal: kernel choice ----------------------------------------------------------

HKind hkind(int channels, std::uint32_t k, std::uint32_t den, std::uint32_t num) {
    struct Entry {
        std::uint32_t k, den, num;
        bool c3;  // whether the three-channel layout has it too
    };
    static constexpr Entry kTable[] = {
        {2, 1, 2, true},  {2, 2, 3, true},  {2, 3, 4, true},  {2, 4, 5, true},  {2, 5, 6, true},
        {2, 8, 9, true},  {3, 1, 3, true},  {3, 2, 5, true},  {3, 3, 5, true},  {3, 3, 7, true},
        {3, 4, 9, false}, {3, 7, 10, false}, {4, 1, 4, true}, {4, 2, 7, false}, {4, 3, 8, false},
    };
    for (const Entry& e : kTable)
        if (e.k == k && e.den == den && e.num == num) {
            if (channels == 3 && !e.c3) return HKind::Generic;
            return den == 1 ? HKind::Unit : HKind::Cycle;
        }
    // 8:1 (one channel) has too wide a window for the permute kernels; it
    // runs the gathering kernel, which gives the same sums.
    return HKind::Generic;
}

// ---- horizontal: the gathering kernel ------------------------------------------------------
//
// Each lane follows its own destination pixel: its phase and the start of its
// period advance by P pixels per vector (16, 5 or 4 pixels for 1, 3 and 4
// channels; three channels use 15 lanes). Positions and weights are gathered
// from the period tables, accumulator values by the resulting indices.

namespace {

constexpr int pixels_per_vector(int c) { return c == 1 ? 16 : c == 3 ? 5 : 4; }

template <class T, int C>
void hpass_gather_c(const HPass& h, T* dst) {
    constexpr int P = pixels_per_vector(C);
    constexpr int lanes = P * C;
    const std::int64_t den = h.den, num = h.num;
    const std::uint32_t k = h.k;
    alignas(64) std::int32_t phInit[16], baseInit[16], chInit[16];
    for (int l = 0; l < 16; ++l) {
        const int lp = l < lanes ? l / C : 0;
        const std::int64_t i = h.x0 + lp;
        phInit[l] = std::int32_t(i % den);
        baseInit[l] = std::int32_t((i / den) * num - h.srcOff);
        chInit[l] = l < lanes ? l % C : 0;
    }
    __m512i ph = _mm512_load_si512(phInit);
    __m512i base = _mm512_load_si512(baseInit);
    const __m512i ch = _mm512_load_si512(chInit);
    const __m512i vden = _mm512_set1_epi32(std::int32_t(den));
    const __m512i stepPh = _mm512_set1_epi32(std::int32_t(P % den));
    const __m512i stepBase = _mm512_set1_epi32(std::int32_t((P / den) * num));
    const __m512i vnum = _mm512_set1_epi32(std::int32_t(num));
    const __m512i vk = _mm512_set1_epi32(std::int32_t(k));
    const __m512i vc = _mm512_set1_epi32(C);
    const __m512 vS = _mm512_set1_ps(h.S);
    const __mmask16 laneMask = simd::tail_mask16(lanes);

    for (std::int64_t x = 0; x < h.width; x += P) {
        const std::int64_t left = (h.width - x) * C;
        const __mmask16 m = __mmask16(laneMask & simd::tail_mask16(left));
        const __m512i phk = _mm512_mullo_epi32(ph, vk);
        auto tap = [&](std::uint32_t j, __m512& w, __m512& a) {
            const __m512i t = _mm512_add_epi32(phk, _mm512_set1_epi32(std::int32_t(j)));
            const __m512i p = _mm512_mask_i32gather_epi32(_mm512_setzero_si512(), m, t, h.pos, 4);
            w = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, t, h.w, 4);
            const __m512i idx = _mm512_add_epi32(_mm512_mullo_epi32(_mm512_add_epi32(base, p), vc), ch);
            a = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, idx, h.acc, 4);
        };
        __m512 out;
        if (k == 2) {
            __m512 w0, a0, w1, a1;
            tap(0, w0, a0);
            tap(1, w1, a1);
            out = _mm512_mul_ps(vS, _mm512_fmadd_ps(w0, a0, _mm512_mul_ps(a1, w1)));
        } else if (k == 3) {
            __m512 w0, a0, w1, a1, w2, a2;
            tap(0, w0, a0);
            tap(1, w1, a1);
            tap(2, w2, a2);
            out = _mm512_fmadd_ps(vS, _mm512_fmadd_ps(w1, a1, _mm512_mul_ps(a2, w2)),
                                  _mm512_mul_ps(_mm512_mul_ps(vS, w0), a0));
        } else if (k == 4) {
            __m512 w0, a0, w1, a1, w2, a2, w3, a3;
            tap(0, w0, a0);
            tap(1, w1, a1);
            tap(2, w2, a2);
            tap(3, w3, a3);
            const __m512 s01 = _mm512_fmadd_ps(w0, a0, _mm512_mul_ps(a1, w1));
            out = _mm512_mul_ps(vS, _mm512_fmadd_ps(w3, a3, _mm512_fmadd_ps(w2, a2, s01)));
        } else {
            __m512 sum = _mm512_setzero_ps();
            for (std::uint32_t j = 0; j < k; ++j) {
                __m512 w, a;
                tap(j, w, a);
                sum = _mm512_fmadd_ps(w, a, sum);
            }
            out = _mm512_mul_ps(vS, sum);
        }
        store16(dst + x * C, m, out);
        ph = _mm512_add_epi32(ph, stepPh);
        base = _mm512_add_epi32(base, stepBase);
        const __mmask16 wrap = _mm512_cmpge_epi32_mask(ph, vden);
        ph = _mm512_mask_sub_epi32(ph, wrap, ph, vden);
        base = _mm512_mask_add_epi32(base, wrap, base, vnum);
    }
}

// ---- horizontal: the permute kernel ------------------------------------------------------------
//
// For ratios with at most 4 taps and a short period. A vector of P pixels
// reads a window of at most 64 accumulator elements from the first tap of its
// first pixel on; the tap values are picked out of the window's (up to) four
// vectors by permutes. The index and weight vectors repeat every L vectors
// (L = den / gcd(P, den)) and are built once per row.

inline std::int64_t first_tap(const HPass& h, std::int64_t i) {
    return (i / h.den) * std::int64_t(h.num) + h.pos[(i % h.den) * h.k];
}

template <int C>
bool build_cycle(const HPass& h, HPlan& cy) {
    constexpr int P = pixels_per_vector(C);
    constexpr int lanes = P * C;
    const std::int64_t den = h.den;
    if (h.k < 2 || h.k > 4) return false;
    const std::int64_t g = std::gcd(std::int64_t(P), den);
    cy.L = int(den / g);
    if (cy.L > HPlan::kMaxSlots) return false;
    cy.advance = (std::int64_t(cy.L) * P / den) * std::int64_t(h.num) * C;
    int maxIdx = 0;
    for (int s = 0; s < cy.L; ++s) {
        const std::int64_t i0 = h.x0 + std::int64_t(s) * P;
        const std::int64_t ft = first_tap(h, i0);
        cy.base0[s] = (ft - h.srcOff) * C;
        for (int l = 0; l < 16; ++l) {
            for (int j = 0; j < 4; ++j) {
                cy.idx[s][j][l] = 0;
                cy.w[s][j][l] = 0.0f;
            }
            cy.sw0[s][l] = 0.0f;
            if (l >= lanes) continue;
            const std::int64_t i = i0 + l / C;
            const std::int64_t ph = i % den;
            const std::int64_t b = (i / den) * std::int64_t(h.num);
            for (std::uint32_t j = 0; j < h.k; ++j) {
                const std::int64_t t = (b + h.pos[ph * h.k + j] - ft) * C + l % C;
                if (t < 0 || t >= 64) return false;
                cy.idx[s][j][l] = std::int32_t(t);
                cy.w[s][j][l] = h.w[ph * h.k + j];
                maxIdx = std::max(maxIdx, int(t));
            }
            cy.sw0[s][l] = h.S * cy.w[s][0][l];
        }
    }
    cy.nv = maxIdx / 16 + 1;
    return true;
}

template <int NV>
inline __m512 pick(const __m512* v, __m512i idx) {
    if constexpr (NV == 1) {
        return _mm512_permutexvar_ps(idx, v[0]);
    } else if constexpr (NV == 2) {
        return _mm512_permutex2var_ps(v[0], idx, v[1]);
    } else {
        const __m512 lo = _mm512_permutex2var_ps(v[0], idx, v[1]);
        const __m512 hi = _mm512_permutex2var_ps(v[2], idx, NV == 4 ? v[3] : v[2]);
        return _mm512_mask_blend_ps(_mm512_test_epi32_mask(idx, _mm512_set1_epi32(32)), lo, hi);
    }
}

template <class T, int C, int NV, int K, bool Unit>
void cycle_loop(const HPlan& cy, const float* acc, T* dst) {
    const HPass& h = cy.h;
    constexpr int P = pixels_per_vector(C);
    constexpr int lanes = P * C;
    const __m512 vS = _mm512_set1_ps(h.S);
    const __mmask16 laneMask = simd::tail_mask16(lanes);
    std::int64_t x = 0;
    for (std::int64_t cycle = 0; x < h.width; ++cycle) {
        for (int s = 0; s < cy.L && x < h.width; ++s, x += P) {
            const float* a = acc + cy.base0[s] + cycle * cy.advance;
            const std::int64_t avail = h.accLen - (a - acc);
            __m512 v[NV];
            if (avail >= 16 * NV) {
                for (int q = 0; q < NV; ++q) v[q] = _mm512_loadu_ps(a + 16 * q);
            } else {
                for (int q = 0; q < NV; ++q)
                    v[q] = _mm512_maskz_loadu_ps(simd::tail_mask16(std::max<std::int64_t>(0, avail - 16 * q)), a + 16 * q);
            }
            __m512 t[K], wv[K];
            for (int j = 0; j < K; ++j) {
                t[j] = pick<NV>(v, _mm512_load_si512(cy.idx[s][j]));
                if constexpr (!Unit) wv[j] = _mm512_load_ps(cy.w[s][j]);
            }
            __m512 out;
            if constexpr (K == 2) {
                const __m512 sum = Unit ? _mm512_add_ps(t[0], t[1])
                                        : _mm512_fmadd_ps(wv[0], t[0], _mm512_mul_ps(t[1], wv[1]));
                out = _mm512_mul_ps(vS, sum);
            } else if constexpr (K == 3) {
                if constexpr (Unit)
                    out = _mm512_fmadd_ps(vS, _mm512_add_ps(t[1], t[2]), _mm512_mul_ps(vS, t[0]));
                else
                    out = _mm512_fmadd_ps(vS, _mm512_fmadd_ps(wv[1], t[1], _mm512_mul_ps(t[2], wv[2])),
                                          _mm512_mul_ps(_mm512_load_ps(cy.sw0[s]), t[0]));
            } else {
                __m512 sum;
                if constexpr (Unit) {
                    sum = _mm512_add_ps(t[3], _mm512_add_ps(t[2], _mm512_add_ps(t[0], t[1])));
                } else {
                    const __m512 s01 = _mm512_fmadd_ps(wv[0], t[0], _mm512_mul_ps(t[1], wv[1]));
                    sum = _mm512_fmadd_ps(wv[3], t[3], _mm512_fmadd_ps(wv[2], t[2], s01));
                }
                out = _mm512_mul_ps(vS, sum);
            }
            const __mmask16 m = __mmask16(laneMask & simd::tail_mask16((h.width - x) * C));
            store16(dst + x * C, m, out);
        }
    }
}

template <class T, int C, int NV>
void cycle_k(const HPlan& cy, const float* acc, T* dst) {
    const bool unit = cy.mode == HPlan::kUnit;
    switch (cy.h.k) {
    case 2: unit ? cycle_loop<T, C, NV, 2, true>(cy, acc, dst) : cycle_loop<T, C, NV, 2, false>(cy, acc, dst); break;
    case 3: unit ? cycle_loop<T, C, NV, 3, true>(cy, acc, dst) : cycle_loop<T, C, NV, 3, false>(cy, acc, dst); break;
    default: unit ? cycle_loop<T, C, NV, 4, true>(cy, acc, dst) : cycle_loop<T, C, NV, 4, false>(cy, acc, dst); break;
    }
}

template <class T, int C>
void cycle_c(const HPlan& cy, const float* acc, T* dst) {
    switch (cy.nv) {
    case 1: cycle_k<T, C, 1>(cy, acc, dst); break;
    case 2: cycle_k<T, C, 2>(cy, acc, dst); break;
    case 3: cycle_k<T, C, 3>(cy, acc, dst); break;
    default: cycle_k<T, C, 4>(cy, acc, dst); break;
    }
}

}  // namespace

template <class T>
void hpass_gather(const HPass& h, T* dst) {
    switch (h.channels) {
    case 1: hpass_gather_c<T, 1>(h, dst); break;
    case 3: hpass_gather_c<T, 3>(h, dst); break;
    default: hpass_gather_c<T, 4>(h, dst); break;
    }
}

bool hplan_cycle(HPlan& p, const HPass& h, bool unitWeights) {
    p.h = h;
    p.mode = HPlan::kGather;
    bool ok = false;
    switch (h.channels) {
    case 1: ok = build_cycle<1>(h, p); break;
    case 3: ok = build_cycle<3>(h, p); break;
    default: ok = build_cycle<4>(h, p); break;
    }
    if (ok) p.mode = unitWeights ? HPlan::kUnit : HPlan::kCycle;
    return ok;
}

void hplan_init(HPlan& p, const HPass& h) {
    const HKind kind = hkind(h.channels, h.k, h.den, h.num);
    if (kind == HKind::Generic || !hplan_cycle(p, h, kind == HKind::Unit)) {
        p.h = h;
        p.mode = HPlan::kGather;
    }
}

template <class T>
void hplan_run(const HPlan& p, const float* acc, T* dst) {
    if (p.mode == HPlan::kGather) {
        HPass h = p.h;
        h.acc = acc;
        // Gather indices are 32-bit: rows of 2^31 elements and more go scalar.
        if (h.accLen > 0x7fffffff) hpass_ref(h, dst);
        else hpass_gather(h, dst);
        return;
    }
    switch (p.h.channels) {
    case 1: cycle_c<T, 1>(p, acc, dst); break;
    case 3: cycle_c<T, 3>(p, acc, dst); break;
    default: cycle_c<T, 4>(p, acc, dst); break;
    }
}

template <class T>
void hpass(const HPass& h, T* dst) {
    HPlan p;
    hplan_init(p, h);
    hplan_run(p, h.acc, dst);
}

// ---- both axes 2:1, 8u ------------------------------------------------------------------
//
// Here every sum is of whole numbers below 2^24, so the float additions of
// the tile kernel are exact and S = (1/2) / 2 is exact too: the result is the
// sum t of the four pixels over 4 with ties to even, (t + 1 + ((t >> 2) & 1)) >> 2,
// computed in 16-bit lanes. The partner of byte b in a row is b + C, so the
// rows are also read C bytes further on instead of being shuffled; even and
// odd bytes go to separate 16-bit lanes and one permute picks the outputs.
template <int C>
void box2x2_8u(const Gex8u* r0, const Gex8u* r1, Gex8u* dst, std::int64_t width) {
    constexpr int SB = 64 - 64 % (2 * C);  // source bytes per step
    constexpr int OB = SB / 2;              // outputs per step
    alignas(64) std::int16_t idx[32];
    for (int o = 0; o < 32; ++o) {
        const int b = o < OB ? 2 * C * (o / C) + o % C : 0;
        idx[o] = std::int16_t((b & 1 ? 32 : 0) + (b >> 1));
    }
    const __m512i vidx = _mm512_load_si512(idx);
    const __m512i lo = _mm512_set1_epi16(0x00ff), one = _mm512_set1_epi16(1);
    const std::int64_t nIn = 2 * C * width, nOut = C * width;
    auto ld = [](const Gex8u* p, std::int64_t avail) {
        return avail >= 64 ? _mm512_loadu_si512(p)
                           : _mm512_maskz_loadu_epi8(simd::tail_mask64(avail < 0 ? 0 : avail), p);
    };
    auto step = [&](std::int64_t x) {
        const std::int64_t rem = nIn - x;
        const __m512i v0 = ld(r0 + x, rem), v1 = ld(r1 + x, rem);
        const __m512i w0 = ld(r0 + x + C, rem - C), w1 = ld(r1 + x + C, rem - C);
        const __m512i ev = _mm512_add_epi16(
            _mm512_add_epi16(_mm512_and_si512(v0, lo), _mm512_and_si512(v1, lo)),
            _mm512_add_epi16(_mm512_and_si512(w0, lo), _mm512_and_si512(w1, lo)));
        const __m512i od = _mm512_add_epi16(_mm512_add_epi16(_mm512_srli_epi16(v0, 8), _mm512_srli_epi16(v1, 8)),
                                            _mm512_add_epi16(_mm512_srli_epi16(w0, 8), _mm512_srli_epi16(w1, 8)));
        auto rnd = [&](__m512i t) {
            const __m512i odd = _mm512_and_si512(_mm512_srli_epi16(t, 2), one);
            return _mm512_srli_epi16(_mm512_add_epi16(t, _mm512_add_epi16(odd, one)), 2);
        };
        return _mm512_permutex2var_epi16(rnd(ev), vidx, rnd(od));
    };
    std::int64_t x = 0, o = 0;
    // Two steps at a time while both read whole vectors: one pack to bytes
    // (it works per 128-bit lane, so the quadwords are put back in order).
    const __m512i order = _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7);
    const __mmask32 m = simd::tail_mask32(OB);
    for (; x + SB + C + 64 <= nIn; x += 2 * SB, o += 2 * OB) {
        const __m512i a = step(x), b = step(x + SB);
        const __m512i bytes = _mm512_permutexvar_epi64(order, _mm512_packus_epi16(a, b));
        _mm256_mask_storeu_epi8(dst + o, m, _mm512_castsi512_si256(bytes));
        _mm256_mask_storeu_epi8(dst + o + OB, m, _mm512_extracti64x4_epi64(bytes, 1));
    }
    for (; o < nOut; x += SB, o += OB) {
        const std::int64_t left = nOut - o;
        _mm512_mask_cvtepi16_storeu_epi8(dst + o, simd::tail_mask32(left < OB ? left : OB), step(x));
    }
}

template void box2x2_8u<1>(const Gex8u*, const Gex8u*, Gex8u*, std::int64_t);
template void box2x2_8u<3>(const Gex8u*, const Gex8u*, Gex8u*, std::int64_t);
template void box2x2_8u<4>(const Gex8u*, const Gex8u*, Gex8u*, std::int64_t);

#define GEX_SUPER_INSTANTIATE(T)                                                                                 \
    template void vsum_ref<T>(const T*, std::int64_t, std::int64_t, const std::int32_t*, const float*, int, float*, \
                              std::int64_t);                                                                     \
    template void vsum_vec<T>(const T*, std::int64_t, std::int64_t, const std::int32_t*, const float*, int, float*, \
                              std::int64_t);                                                                     \
    template void vonly_ref<T>(const T*, std::int64_t, std::int64_t, const std::int32_t*, const float*, int, float, \
                               T*, std::int64_t);                                                                \
    template void vonly_vec<T>(const T*, std::int64_t, std::int64_t, const std::int32_t*, const float*, int, float, \
                               T*, std::int64_t);                                                                \
    template void hpass_ref<T>(const HPass&, T*);                                                                \
    template void hpass_gather<T>(const HPass&, T*);                                                             \
    template void hplan_run<T>(const HPlan&, const float*, T*);                                                  \
    template void hpass<T>(const HPass&, T*);

GEX_SUPER_INSTANTIATE(Gex8u)
GEX_SUPER_INSTANTIATE(Gex16u)
GEX_SUPER_INSTANTIATE(Gex16s)
GEX_SUPER_INSTANTIATE(Gex32f)

}  // namespace super
}  // namespace gex
