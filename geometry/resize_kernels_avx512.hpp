// 512-bit interior kernels of linear, cubic and Lanczos for 8u and 32f in C1,
// C3 and C4. They compute the formulas of the scalar kernels in
// resize_kernels.hpp lane by lane, with the same operations in the same
// order, so a row gives the same values however it is cut into vectors.
//
// Horizontal pass. C3 and C4 take four output pixels per step: the taps
// around each position are read with one masked load per pixel (exactly the
// tap pixels, never a byte more), spread to four lanes per tap (C3 gets a
// zero fourth lane) and transposed into one vector per tap, lanes pixel x 4 +
// channel. C1 takes sixteen output pixels per step with gathers of the tap
// pixels. The weights of the output pixels are permuted or gathered into the
// same lanes. Vertical pass: sixteen elements per step across the ring slots.
#pragma once

#include <immintrin.h>

#include <cstdint>
#include <type_traits>

#include "frame/simd.hpp"
#include "geometry/resize_kernels.hpp"

// The compiler's own shuffle intrinsics start from an undefined vector and
// draw a false "may be used uninitialized" from it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

namespace gex::resize {

namespace vec {

using simd::tail_mask16;

inline __mmask16 m16(std::int64_t n) { return n <= 0 ? __mmask16(0) : tail_mask16(n); }

// Lane index vectors from small tables.
template <class F>
inline __m512i lanes(F f) {
    alignas(64) std::int32_t v[16];
    for (int l = 0; l < 16; ++l) v[l] = f(l);
    return _mm512_load_si512(v);
}

// Four pixels' 128-bit blocks (L0..L3: taps 0..3, four lanes each) into one
// vector per tap: out[k] = [L0.k, L1.k, L2.k, L3.k].
inline void transpose4(__m512 L0, __m512 L1, __m512 L2, __m512 L3, __m512* out, int taps) {
    const __m512 a = _mm512_shuffle_f32x4(L0, L1, 0x44), b = _mm512_shuffle_f32x4(L2, L3, 0x44);
    out[0] = _mm512_shuffle_f32x4(a, b, 0x88);
    out[1] = _mm512_shuffle_f32x4(a, b, 0xDD);
    if (taps > 2) {
        const __m512 c = _mm512_shuffle_f32x4(L0, L1, 0xEE), d = _mm512_shuffle_f32x4(L2, L3, 0xEE);
        out[2] = _mm512_shuffle_f32x4(c, d, 0x88);
        out[3] = _mm512_shuffle_f32x4(c, d, 0xDD);
    }
}

// Up to four taps of one C3/C4 pixel starting at `p`, as int32 lanes tap x 4 +
// channel (C3: the fourth lane of each tap is 0).
template <int C>
inline __m512i taps_8u(const std::uint8_t* p, int taps) {
    const __mmask16 m = __mmask16((1u << (C * taps)) - 1);
    __m128i b = _mm_maskz_loadu_epi8(m, p);
    if constexpr (C == 3)
        b = _mm_shuffle_epi8(b, _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1));
    return _mm512_cvtepu8_epi32(b);
}

template <int C>
inline __m512 taps_32f(const float* p, int taps) {
    const __mmask16 m = __mmask16((1u << (C * taps)) - 1);
    const __m512 v = _mm512_maskz_loadu_ps(m, p);
    if constexpr (C == 3) return _mm512_maskz_expand_ps(0x7777, v);
    else return v;
}

template <class T, int C>
inline __m512 taps_f(const T* p, int taps) {
    if constexpr (std::is_same_v<T, float>) return taps_32f<C>(p, taps);
    else return _mm512_cvtepi32_ps(taps_8u<C>(p, taps));
}

// The NT tap vectors of four C3/C4 output pixels j..j+3 (npix of them real).
template <class T, int C, int NT>
inline void gather4(const T* src, const std::int32_t* x, int npix, __m512* P) {
    constexpr int half = NT / 2 - 1;
    constexpr int first = NT < 4 ? NT : 4;
    __m512 L[4], M[4];
    for (int i = 0; i < 4; ++i) {
        if (i < npix) {
            const T* p = src + (std::int64_t(x[i]) - half) * C;
            L[i] = taps_f<T, C>(p, first);
            if constexpr (NT == 6) M[i] = taps_f<T, C>(p + 4 * C, 2);
        } else {
            L[i] = _mm512_setzero_ps();
            if constexpr (NT == 6) M[i] = _mm512_setzero_ps();
        }
    }
    transpose4(L[0], L[1], L[2], L[3], P, first);
    if constexpr (NT == 6) transpose4(M[0], M[1], M[2], M[3], P + 4, 2);
}

// 8u C3/C4: each output pixel's tap bytes go in a 128-bit lane of its own
// (lane i = pixel i); one byte shuffle per tap then spreads that tap's
// channels into zero-extended 32-bit lanes, pixel x 4 + channel, which is
// already the layout of the sums: no transposition.
template <int C>
inline __m512i tap_spread(int k) {
    alignas(16) std::int8_t b[16];
    for (int c = 0; c < 4; ++c) {
        b[4 * c] = c < C ? std::int8_t(k * C + c) : std::int8_t(-1);
        b[4 * c + 1] = b[4 * c + 2] = b[4 * c + 3] = -1;
    }
    return _mm512_broadcast_i32x4(_mm_load_si128(reinterpret_cast<const __m128i*>(b)));
}

template <int C, int NT>
inline void gather4_8u(const std::uint8_t* src, const std::int32_t* x, int npix, const __m512i* spread, __m512* P) {
    constexpr int half = NT / 2 - 1;
    constexpr __mmask16 four = __mmask16((1u << (4 * C)) - 1);
    auto lanes4 = [&](int tapOff) {
        auto pix = [&](int i) {
            return i < npix ? _mm_maskz_loadu_epi8(four, src + (std::int64_t(x[i]) - half + tapOff) * C)
                            : _mm_setzero_si128();
        };
        __m512i r = _mm512_castsi128_si512(pix(0));
        r = _mm512_inserti32x4(r, pix(1), 1);
        r = _mm512_inserti32x4(r, pix(2), 2);
        return _mm512_inserti32x4(r, pix(3), 3);
    };
    const __m512i r = lanes4(0);
    for (int k = 0; k < 4; ++k) P[k] = _mm512_cvtepi32_ps(_mm512_shuffle_epi8(r, spread[k]));
    if constexpr (NT == 6) {
        // Taps 2..5 of each pixel: taps 4 and 5 sit where taps 2 and 3 sat.
        const __m512i r2 = lanes4(2);
        P[4] = _mm512_cvtepi32_ps(_mm512_shuffle_epi8(r2, spread[2]));
        P[5] = _mm512_cvtepi32_ps(_mm512_shuffle_epi8(r2, spread[3]));
    }
}

// The horizontal sum of the scalar kernel: four taps in two pairs, six in order.
template <int NT>
inline __m512 hsum(const __m512* W, const __m512* P) {
    if constexpr (NT == 4) {
        return _mm512_add_ps(_mm512_add_ps(_mm512_mul_ps(W[0], P[0]), _mm512_mul_ps(W[1], P[1])),
                             _mm512_add_ps(_mm512_mul_ps(W[2], P[2]), _mm512_mul_ps(W[3], P[3])));
    } else {
        __m512 t = _mm512_mul_ps(W[0], P[0]);
        for (int k = 1; k < 6; ++k) t = _mm512_add_ps(t, _mm512_mul_ps(W[k], P[k]));
        return t;
    }
}

template <int NT>
inline __m512 vsum(const float* c, const __m512* t) {
    auto b = [&](int k) { return _mm512_set1_ps(c[k]); };
    if constexpr (NT == 4)
        return _mm512_add_ps(_mm512_fmadd_ps(b(0), t[0], _mm512_mul_ps(b(1), t[1])),
                             _mm512_fmadd_ps(b(2), t[2], _mm512_mul_ps(b(3), t[3])));
    else
        return _mm512_add_ps(
            _mm512_fmadd_ps(b(0), t[0], _mm512_fmadd_ps(b(2), t[2], _mm512_mul_ps(b(4), t[4]))),
            _mm512_fmadd_ps(b(1), t[1], _mm512_fmadd_ps(b(3), t[3], _mm512_mul_ps(b(5), t[5]))));
}

// Float results into the destination: 8u clamps to 0..255, rounds to
// nearest even and narrows; 32f stores as it is.
template <class T>
inline void store_row(T* dst, __mmask16 m, __m512 v) {
    if constexpr (std::is_same_v<T, float>) {
        _mm512_mask_storeu_ps(dst, m, v);
    } else {
        v = _mm512_min_ps(_mm512_max_ps(v, _mm512_setzero_ps()), _mm512_set1_ps(255.0f));
        const __m512i i = _mm512_cvt_roundps_epi32(v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        _mm_mask_storeu_epi8(dst, m, _mm512_cvtusepi32_epi8(i));
    }
}

// Output of four C3/C4 pixels (lanes pixel x 4 + channel) into a float row.
template <int C>
inline void store4(float* out, int npix, __m512 v) {
    if constexpr (C == 4) {
        _mm512_mask_storeu_ps(out, m16(npix * 4), v);
    } else {
        _mm512_mask_storeu_ps(out, m16(npix * 3), _mm512_maskz_compress_ps(0x7777, v));
    }
}

}  // namespace vec

// ---- Cubic and Lanczos ---------------------------------------------------------

template <class T, int C, int NT>
struct TapsVector {
    using Scalar = TapsScalar<T, C, NT>;
    using Weights = const float*;
    static Weights x_weights(const Record* s, std::int64_t gx) { return Scalar::x_weights(s, gx); }
    static const float* y_weights(const Record* s, std::int64_t gy) { return Scalar::y_weights(s, gy); }

    static void row(const T* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        float* out = static_cast<float*>(outv);
        if constexpr (C == 1) {
            constexpr int half = NT / 2 - 1;
            const __m512i lane = _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
            const __m512i wIdx = _mm512_mullo_epi32(lane, _mm512_set1_epi32(NT));
            for (std::int64_t j = 0; j < n; j += 16) {
                const __mmask16 m = vec::m16(n - j);
                const __m512i x = _mm512_sub_epi32(_mm512_maskz_loadu_epi32(m, xTab + j), _mm512_set1_epi32(half));
                __m512 P[NT], W[NT];
                if constexpr (std::is_same_v<T, float>) {
                    for (int k = 0; k < NT; ++k)
                        P[k] = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, _mm512_add_epi32(x, _mm512_set1_epi32(k)),
                                                        src, 4);
                } else {
                    // Four bytes at the first tap are exactly taps 0..3; six taps
                    // take a second read at tap 2 for taps 4 and 5.
                    const __m512i g = _mm512_mask_i32gather_epi32(_mm512_setzero_si512(), m, x, src, 1);
                    const __m512i ff = _mm512_set1_epi32(0xFF);
                    for (int k = 0; k < 4; ++k)
                        P[k] = _mm512_cvtepi32_ps(_mm512_and_si512(_mm512_srli_epi32(g, 8 * k), ff));
                    if constexpr (NT == 6) {
                        const __m512i g2 = _mm512_mask_i32gather_epi32(
                            _mm512_setzero_si512(), m, _mm512_add_epi32(x, _mm512_set1_epi32(2)), src, 1);
                        P[4] = _mm512_cvtepi32_ps(_mm512_and_si512(_mm512_srli_epi32(g2, 16), ff));
                        P[5] = _mm512_cvtepi32_ps(_mm512_srli_epi32(g2, 24));
                    }
                }
                for (int k = 0; k < NT; ++k)
                    W[k] = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, _mm512_add_epi32(wIdx, _mm512_set1_epi32(k)),
                                                    w + j * NT, 4);
                _mm512_mask_storeu_ps(out + j, m, vec::hsum<NT>(W, P));
            }
        } else {
            // Weight lanes pixel x 4 + channel: weight k of pixel i.
            __m512i wIdx[NT];
            for (int k = 0; k < NT; ++k) wIdx[k] = vec::lanes([&](int l) { return (l / 4) * NT + k; });
            __m512i spread[4];
            if constexpr (std::is_same_v<T, std::uint8_t>)
                for (int k = 0; k < 4; ++k) spread[k] = vec::tap_spread<C>(k);
            for (std::int64_t j = 0; j < n; j += 4) {
                const int npix = n - j < 4 ? int(n - j) : 4;
                __m512 P[NT], W[NT];
                if constexpr (std::is_same_v<T, std::uint8_t>) vec::gather4_8u<C, NT>(src, xTab + j, npix, spread, P);
                else vec::gather4<T, C, NT>(src, xTab + j, npix, P);
                const float* wr = w + j * NT;
                if constexpr (NT == 4) {
                    const __m512 row = _mm512_maskz_loadu_ps(vec::m16(npix * 4), wr);
                    for (int k = 0; k < 4; ++k) W[k] = _mm512_permutexvar_ps(wIdx[k], row);
                } else {
                    const __m512 a = _mm512_maskz_loadu_ps(vec::m16(npix * 6), wr);
                    const __m512 b = _mm512_maskz_loadu_ps(vec::m16(npix * 6 - 16), wr + 16);
                    for (int k = 0; k < 6; ++k) W[k] = _mm512_permutex2var_ps(a, wIdx[k], b);
                }
                vec::store4<C>(out + j * C, npix, vec::hsum<NT>(W, P));
            }
        }
    }

    static void col(const void* const* rows, const float* wy, std::int64_t n, T* dst) {
        for (std::int64_t e = 0; e < n; e += 16) {
            const __mmask16 m = vec::m16(n - e);
            __m512 t[NT];
            for (int k = 0; k < NT; ++k) t[k] = _mm512_maskz_loadu_ps(m, static_cast<const float*>(rows[k]) + e);
            vec::store_row<T>(dst + e, m, vec::vsum<NT>(wy, t));
        }
    }
};

// ---- Linear, 32f ---------------------------------------------------------------------

template <int C>
struct LinearFloatVector {
    using Scalar = LinearFloatScalar<float, C>;
    using Weights = const float*;
    static Weights x_weights(const Record* s, std::int64_t gx) { return Scalar::x_weights(s, gx); }
    static const float* y_weights(const Record* s, std::int64_t gy) { return Scalar::y_weights(s, gy); }

    static void row(const float* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        float* out = static_cast<float*>(outv);
        if constexpr (C == 1) {
            for (std::int64_t j = 0; j < n; j += 16) {
                const __mmask16 m = vec::m16(n - j);
                const __m512i x = _mm512_maskz_loadu_epi32(m, xTab + j);
                const __m512 p0 = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, x, src, 4);
                const __m512 p1 = _mm512_mask_i32gather_ps(_mm512_setzero_ps(), m, x, src + 1, 4);
                const __m512 wx = _mm512_maskz_loadu_ps(m, w + j);
                _mm512_mask_storeu_ps(out + j, m, _mm512_fmadd_ps(_mm512_sub_ps(p1, p0), wx, p0));
            }
        } else {
            const __m512i bcast = vec::lanes([](int l) { return l / 4; });
            for (std::int64_t j = 0; j < n; j += 4) {
                const int npix = n - j < 4 ? int(n - j) : 4;
                __m512 P[2];
                vec::gather4<float, C, 2>(src, xTab + j, npix, P);
                const __m512 wx = _mm512_permutexvar_ps(bcast, _mm512_maskz_loadu_ps(vec::m16(npix), w + j));
                vec::store4<C>(out + j * C, npix, _mm512_fmadd_ps(_mm512_sub_ps(P[1], P[0]), wx, P[0]));
            }
        }
    }

    static void col(const void* const* rows, const float* wy, std::int64_t n, float* dst) {
        const __m512 w = _mm512_set1_ps(*wy);
        const float* r0 = static_cast<const float*>(rows[0]);
        const float* r1 = static_cast<const float*>(rows[1]);
        for (std::int64_t e = 0; e < n; e += 16) {
            const __mmask16 m = vec::m16(n - e);
            const __m512 t0 = _mm512_maskz_loadu_ps(m, r0 + e), t1 = _mm512_maskz_loadu_ps(m, r1 + e);
            _mm512_mask_storeu_ps(dst + e, m, _mm512_fmadd_ps(_mm512_sub_ps(t1, t0), w, t0));
        }
    }
};

// ---- Linear, 8u: Q14 integers ----------------------------------------------------------

template <int C>
struct LinearQ14Vector {
    using Scalar = LinearQ14Scalar<C>;
    using Weights = const std::uint16_t*;
    static Weights x_weights(const Record* s, std::int64_t gx) { return Scalar::x_weights(s, gx); }
    static const std::uint16_t* y_weights(const Record* s, std::int64_t gy) { return Scalar::y_weights(s, gy); }

    // (p0 (16384 - w) + p1 w + 128) >> 8 in 32-bit lanes.
    static __m512i q6(__m512i p0, __m512i p1, __m512i w0, __m512i w1) {
        const __m512i s = _mm512_add_epi32(_mm512_mullo_epi32(p0, w0), _mm512_mullo_epi32(p1, w1));
        return _mm512_srai_epi32(_mm512_add_epi32(s, _mm512_set1_epi32(128)), 8);
    }

    static void row(const std::uint8_t* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        auto* out = static_cast<std::int16_t*>(outv);
        if constexpr (C == 1) {
            // One 32-bit read per pixel holding both taps, placed so that it
            // stays inside the taps of the row: at the tap, or at most two
            // pixels before it near the row's last tap.
            const std::int32_t lo = xTab[0], hi = xTab[n - 1] + 1;
            if (hi - lo < 3) {
                Scalar::row(src, xTab, n, w, outv);
                return;
            }
            const __m512i last = _mm512_set1_epi32(hi - 3), ff = _mm512_set1_epi32(0xFF);
            for (std::int64_t j = 0; j < n; j += 16) {
                const __mmask16 m = vec::m16(n - j);
                const __m512i x = _mm512_maskz_loadu_epi32(m, xTab + j);
                const __m512i at = _mm512_min_epi32(x, last);
                const __m512i g = _mm512_mask_i32gather_epi32(_mm512_setzero_si512(), m, at, src, 1);
                const __m512i sh = _mm512_slli_epi32(_mm512_sub_epi32(x, at), 3);
                const __m512i p0 = _mm512_and_si512(_mm512_srlv_epi32(g, sh), ff);
                const __m512i p1 = _mm512_and_si512(_mm512_srlv_epi32(g, _mm512_add_epi32(sh, _mm512_set1_epi32(8))), ff);
                const __m512i ww = _mm512_maskz_loadu_epi32(m, w + 2 * j);
                const __m512i w0 = _mm512_and_si512(ww, _mm512_set1_epi32(0xFFFF)), w1 = _mm512_srli_epi32(ww, 16);
                _mm256_mask_storeu_epi16(out + j, m, _mm512_cvtsepi32_epi16(q6(p0, p1, w0, w1)));
            }
        } else {
            // One pixel per 128-bit lane: its two taps' channels become 16-bit
            // pairs (tap 0, tap 1) per channel, so one multiply-add per lane
            // pair with the pixel's (16384 - w, w) gives p0 (16384 - w) + p1 w.
            // Eight pixels a step: two such vectors, packed to 16 bits and put
            // in pixel order by one word permutation.
            const __m512i spread =
                C == 3 ? _mm512_broadcast_i32x4(_mm_setr_epi8(0, -1, 3, -1, 1, -1, 4, -1, 2, -1, 5, -1, -1, -1, -1, -1))
                       : _mm512_broadcast_i32x4(_mm_setr_epi8(0, -1, 4, -1, 1, -1, 5, -1, 2, -1, 6, -1, 3, -1, 7, -1));
            const __m512i bcast = vec::lanes([](int l) { return l / 4; });
            alignas(64) std::int16_t order[32];
            for (int o = 0; o < 32; ++o) {
                const int p = o / C, c = o % C;
                order[o] = std::int16_t(p < 8 ? (p % 4) * 8 + (p / 4) * 4 + c : 0);
            }
            const __m512i perm = _mm512_load_si512(order);
            const __mmask16 pixMask = __mmask16((1u << (2 * C)) - 1);
            // A 16-byte read at a pixel is safe while it ends within the row's
            // last tap; the rest go through reads of exactly the tap bytes.
            const std::int64_t safeLast = (std::int64_t(xTab[n - 1]) + 2) * C - 16;
            auto half4 = [&](std::int64_t j0, int npix) {
                __m512i r;
                if (npix == 4 && std::int64_t(xTab[j0 + 3]) * C <= safeLast) {
                    r = _mm512_castsi128_si512(_mm_loadu_si128(reinterpret_cast<const __m128i*>(src + std::int64_t(xTab[j0]) * C)));
                    r = _mm512_inserti32x4(r, _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + std::int64_t(xTab[j0 + 1]) * C)), 1);
                    r = _mm512_inserti32x4(r, _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + std::int64_t(xTab[j0 + 2]) * C)), 2);
                    r = _mm512_inserti32x4(r, _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + std::int64_t(xTab[j0 + 3]) * C)), 3);
                } else {
                    auto pix = [&](int i) {
                        return i < npix ? _mm_maskz_loadu_epi8(pixMask, src + std::int64_t(xTab[j0 + i]) * C)
                                        : _mm_setzero_si128();
                    };
                    r = _mm512_castsi128_si512(pix(0));
                    r = _mm512_inserti32x4(r, pix(1), 1);
                    r = _mm512_inserti32x4(r, pix(2), 2);
                    r = _mm512_inserti32x4(r, pix(3), 3);
                }
                r = _mm512_shuffle_epi8(r, spread);
                const __m512i pairs =
                    npix == 4 ? _mm512_castsi128_si512(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + 2 * j0)))
                              : _mm512_maskz_loadu_epi32(vec::m16(npix), w + 2 * j0);
                const __m512i ww = _mm512_permutexvar_epi32(bcast, pairs);
                return _mm512_srai_epi32(_mm512_add_epi32(_mm512_madd_epi16(r, ww), _mm512_set1_epi32(128)), 8);
            };
            // Positions never decrease along a row, so the groups of eight whose
            // reads are all safe form a prefix: they run without per-pixel
            // tests and store whole groups.
            auto full4 = [&](std::int64_t j0) {
                auto at = [&](int i) {
                    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + std::int64_t(xTab[j0 + i]) * C));
                };
                __m512i r = _mm512_castsi128_si512(at(0));
                r = _mm512_inserti32x4(r, at(1), 1);
                r = _mm512_inserti32x4(r, at(2), 2);
                r = _mm512_inserti32x4(r, at(3), 3);
                r = _mm512_shuffle_epi8(r, spread);
                const __m512i ww = _mm512_permutexvar_epi32(
                    bcast, _mm512_castsi128_si512(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + 2 * j0))));
                return _mm512_srai_epi32(_mm512_add_epi32(_mm512_madd_epi16(r, ww), _mm512_set1_epi32(128)), 8);
            };
            std::int64_t fastEnd = n & ~std::int64_t{7};
            while (fastEnd > 0 && std::int64_t(xTab[fastEnd - 1]) * C > safeLast) fastEnd -= 8;
            constexpr __mmask32 groupMask = C == 3 ? 0xFFFFFFu : 0xFFFFFFFFu;
            std::int64_t j = 0;
            for (; j < fastEnd; j += 8) {
                const __m512i words = _mm512_permutexvar_epi16(perm, _mm512_packs_epi32(full4(j), full4(j + 4)));
                _mm512_mask_storeu_epi16(out + j * C, groupMask, words);
            }
            for (; j < n; j += 8) {
                const int npix = n - j < 8 ? int(n - j) : 8;
                const __m512i a = half4(j, npix < 4 ? npix : 4);
                const __m512i b = npix > 4 ? half4(j + 4, npix - 4) : _mm512_setzero_si512();
                const __m512i words = _mm512_permutexvar_epi16(perm, _mm512_packs_epi32(a, b));
                const std::int64_t cnt = std::int64_t(npix) * C;
                _mm512_mask_storeu_epi16(out + j * C, simd::tail_mask32(cnt), words);
            }
        }
    }

    // 32 elements a step: the two rows interleaved into 16-bit pairs, one
    // multiply-add with (16384 - w, w), and the packs put the order back.
    static void col(const void* const* rows, const std::uint16_t* wy, std::int64_t n, std::uint8_t* dst) {
        const auto* r0 = static_cast<const std::int16_t*>(rows[0]);
        const auto* r1 = static_cast<const std::int16_t*>(rows[1]);
        const __m512i w = _mm512_set1_epi32(std::int32_t(std::uint32_t(*wy) << 16 | std::uint32_t(16384 - *wy)));
        const __m512i half = _mm512_set1_epi32(0x80000);
        for (std::int64_t e = 0; e < n; e += 32) {
            const __mmask32 m = n - e >= 32 ? ~__mmask32(0) : simd::tail_mask32(n - e);
            const __m512i a = _mm512_maskz_loadu_epi16(m, r0 + e), b = _mm512_maskz_loadu_epi16(m, r1 + e);
            const __m512i lo = _mm512_srai_epi32(_mm512_add_epi32(_mm512_madd_epi16(_mm512_unpacklo_epi16(a, b), w), half), 20);
            const __m512i hi = _mm512_srai_epi32(_mm512_add_epi32(_mm512_madd_epi16(_mm512_unpackhi_epi16(a, b), w), half), 20);
            const __m512i v = _mm512_max_epi16(_mm512_packs_epi32(lo, hi), _mm512_setzero_si512());
            const __m256i bytes = _mm512_cvtusepi16_epi8(v);
            if (n - e >= 32) _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + e), bytes);
            else _mm256_mask_storeu_epi8(dst + e, m, bytes);
        }
    }
};

}  // namespace gex::resize

#pragma GCC diagnostic pop
