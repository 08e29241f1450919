// Interior kernels of linear, cubic and Lanczos: the horizontal pass of one
// source row into a ring slot and the vertical pass of the slots into a
// destination row. Each method has a plain scalar kernel (the reference, and
// the path of 16-bit and 64f depths) and, for 8u and 32f in C1, C3 and C4, a
// 512-bit one that computes the same formulas lane by lane, so its results do
// not depend on how the row is cut into vectors.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "geometry/resize_common.hpp"

namespace gex::resize {

// ---- Scalar kernels ----------------------------------------------------------

// 8u linear, integer throughout: Q6 rows from Q14 weights, then Q20 to 8 bits.
template <int C>
struct LinearQ14Scalar {
    using Weights = const std::uint16_t*;
    static Weights x_weights(const Record* s, std::int64_t gx) { return s->xAxis.pCoefQ14 + 2 * gx; }
    static const std::uint16_t* y_weights(const Record* s, std::int64_t gy) { return s->yAxis.pCoefQ14 + gy; }
    static void row(const std::uint8_t* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        auto* out = static_cast<std::int16_t*>(outv);
        for (std::int64_t j = 0; j < n; ++j) {
            const std::uint8_t* p = src + std::int64_t(xTab[j]) * C;
            const int w0 = w[2 * j], w1 = w[2 * j + 1];
            for (int c = 0; c < C; ++c)
                out[j * C + c] = saturate<std::int16_t>((p[c] * w0 + p[C + c] * w1 + 128) >> 8);
        }
    }
    static void col(const void* const* rows, const std::uint16_t* wy, std::int64_t n, std::uint8_t* dst) {
        const auto* t0 = static_cast<const std::int16_t*>(rows[0]);
        const auto* t1 = static_cast<const std::int16_t*>(rows[1]);
        const int w = *wy;
        for (std::int64_t e = 0; e < n; ++e)
            dst[e] = saturate<std::uint8_t>((t0[e] * (16384 - w) + t1[e] * w + 0x80000) >> 20);
    }
};

// Linear in float (16u, 16s, 32f) or double (64f): t = p0 + (p1 - p0) w fused,
// in both passes.
template <class T, int C>
struct LinearFloatScalar {
    using F = Acc<T>;
    using Weights = const F*;
    static Weights x_weights(const Record* s, std::int64_t gx) {
        if constexpr (std::is_same_v<T, double>) return s->xAxis.pCoef64f + gx;
        else return s->xAxis.pCoef32f + gx;
    }
    static const F* y_weights(const Record* s, std::int64_t gy) {
        if constexpr (std::is_same_v<T, double>) return s->yAxis.pCoef64f + gy;
        else return s->yAxis.pCoef32f + gy;
    }
    static void row(const T* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        F* out = static_cast<F*>(outv);
        for (std::int64_t j = 0; j < n; ++j) {
            const T* p = src + std::int64_t(xTab[j]) * C;
            for (int c = 0; c < C; ++c) out[j * C + c] = std::fma(F(p[C + c]) - F(p[c]), w[j], F(p[c]));
        }
    }
    static void col(const void* const* rows, const F* wy, std::int64_t n, T* dst) {
        const F* t0 = static_cast<const F*>(rows[0]);
        const F* t1 = static_cast<const F*>(rows[1]);
        const F w = *wy;
        for (std::int64_t e = 0; e < n; ++e) {
            const F v = std::fma(t1[e] - t0[e], w, t0[e]);
            if constexpr (std::is_same_v<T, double>) dst[e] = v;
            else dst[e] = store_float<T>(v);
        }
    }
};

// Four taps: t = (w0 p0 + w1 p1) + (w2 p2 + w3 p3). Six taps: the six products
// added from the first to the last.
template <int NT>
inline float hsum(const float* w, const float* p) {
    if constexpr (NT == 4) {
        return (w[0] * p[0] + w[1] * p[1]) + (w[2] * p[2] + w[3] * p[3]);
    } else {
        float t = w[0] * p[0];
        for (int k = 1; k < 6; ++k) t = t + w[k] * p[k];
        return t;
    }
}

// Four slots: (c0 t0 + c1 t1) + (c2 t2 + c3 t3) with the inner sums fused.
// Six: (c0 t0 + (c2 t2 + c4 t4)) + (c1 t1 + (c3 t3 + c5 t5)), inner sums fused.
template <int NT>
inline float vsum(const float* c, const float* t) {
    if constexpr (NT == 4)
        return std::fma(c[0], t[0], c[1] * t[1]) + std::fma(c[2], t[2], c[3] * t[3]);
    else
        return std::fma(c[0], t[0], std::fma(c[2], t[2], c[4] * t[4])) +
               std::fma(c[1], t[1], std::fma(c[3], t[3], c[5] * t[5]));
}

// Cubic and Lanczos: NT taps around each position, weight rows of NT floats.
template <class T, int C, int NT>
struct TapsScalar {
    using Weights = const float*;
    static constexpr int kHalf = NT / 2 - 1;  // taps before the position
    static Weights x_weights(const Record* s, std::int64_t gx) { return s->xAxis.pCoef32f + gx * NT; }
    static const float* y_weights(const Record* s, std::int64_t gy) { return s->yAxis.pCoef32f + gy * NT; }
    static void row(const T* src, const std::int32_t* xTab, std::int64_t n, Weights w, void* outv) {
        float* out = static_cast<float*>(outv);
        for (std::int64_t j = 0; j < n; ++j) {
            const T* p = src + (std::int64_t(xTab[j]) - kHalf) * C;
            for (int c = 0; c < C; ++c) {
                float v[NT];
                for (int k = 0; k < NT; ++k) v[k] = float(p[k * C + c]);
                out[j * C + c] = hsum<NT>(w + j * NT, v);
            }
        }
    }
    static void col(const void* const* rows, const float* wy, std::int64_t n, T* dst) {
        for (std::int64_t e = 0; e < n; ++e) {
            float t[NT];
            for (int k = 0; k < NT; ++k) t[k] = static_cast<const float*>(rows[k])[e];
            dst[e] = store_float<T>(vsum<NT>(wy, t));
        }
    }
};

}  // namespace gex::resize
