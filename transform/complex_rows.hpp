// Row kernels of the complex element functions: magnitude sqrt(re^2 + im^2)
// (two rounded squares, a rounded sum, then the square root), phase
// atan2(im, re) in radians, and polar to Cartesian m (cos p + i sin p).
// The magnitude has a 512-bit form over 16 values at a time with a masked
// tail; it rounds exactly as the scalar twin.
#pragma once

#include <immintrin.h>

#include <cmath>
#include <cstdint>

#include "gexdefs.h"

// GCC 12 takes the undefined start vector inside its own shuffle intrinsics
// for an uninitialised variable; the warning is about the compiler's headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::cplx {

inline void magnitude_row_scalar(const Gex32fc* s, Gex32f* d, std::int64_t n) {
    for (std::int64_t i = 0; i < n; ++i) d[i] = std::sqrt(s[i].re * s[i].re + s[i].im * s[i].im);
}

inline void magnitude_row(const Gex32fc* s, Gex32f* d, std::int64_t n) {
    const __m512i ire = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
    const __m512i iim = _mm512_setr_epi32(1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31);
    const float* f = reinterpret_cast<const float*>(s);
    std::int64_t i = 0;
    for (; i < n; i += 16) {
        const std::int64_t left = n - i;
        const __mmask16 m0 = left >= 8 ? __mmask16(0xffff) : __mmask16((1u << (2 * left)) - 1);
        const __mmask16 m1 = left >= 16 ? __mmask16(0xffff) : left <= 8 ? __mmask16(0) : __mmask16((1u << (2 * (left - 8))) - 1);
        const __mmask16 mo = left >= 16 ? __mmask16(0xffff) : __mmask16((1u << left) - 1);
        const __m512 a = _mm512_maskz_loadu_ps(m0, f + 2 * i), b = _mm512_maskz_loadu_ps(m1, f + 2 * i + 16);
        const __m512 re = _mm512_permutex2var_ps(a, ire, b), im = _mm512_permutex2var_ps(a, iim, b);
        const __m512 r = _mm512_sqrt_ps(_mm512_add_ps(_mm512_mul_ps(re, re), _mm512_mul_ps(im, im)));
        _mm512_mask_storeu_ps(d + i, mo, r);
    }
}

inline void phase_row(const Gex32fc* s, Gex32f* d, std::int64_t n) {
    for (std::int64_t i = 0; i < n; ++i) d[i] = std::atan2(s[i].im, s[i].re);
}

inline void polar_row(const Gex32f* m, const Gex32f* p, Gex32fc* d, std::int64_t n) {
    for (std::int64_t i = 0; i < n; ++i) d[i] = {m[i] * std::cos(p[i]), m[i] * std::sin(p[i])};
}

}  // namespace gex::cplx

#pragma GCC diagnostic pop
