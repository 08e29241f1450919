// Butterflies of the Fourier engine, written once over a "complex vector"
// type: C1 is one complex value (the scalar twin), C8 is eight interleaved
// complex values in a 512-bit register. Every operation of C8 rounds exactly
// like its C1 counterpart, lane by lane (the complex product is fused the same
// way in both), so the vector and scalar paths give identical bits.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "gexdefs.h"

// GCC 12 takes the undefined start vector inside its own shuffle intrinsics
// for an uninitialised variable; the warning is about the compiler's headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::fftk {

// ---- compile-time trigonometry for the table-free small kernels ----------
// exp(-2 pi i j / n) from an exact reduction to the first quadrant and a
// Taylor series in double, rounded once to float.
constexpr double kPi = 3.14159265358979323846264338327950288;

constexpr double taylor_sin(double x) {
    double term = x, sum = x;
    for (int k = 1; k < 30; ++k) {
        term *= -x * x / ((2.0 * k) * (2.0 * k + 1));
        sum += term;
    }
    return sum;
}
constexpr double taylor_cos(double x) {
    double term = 1.0, sum = 1.0;
    for (int k = 1; k < 30; ++k) {
        term *= -x * x / ((2.0 * k - 1) * (2.0 * k));
        sum += term;
    }
    return sum;
}
// cos and sin of 2 pi j / n, j taken modulo n.
struct CS64 {
    double c, s;
};
constexpr CS64 unit_angle(std::int64_t j, std::int64_t n) {
    j %= n;
    if (j < 0) j += n;
    const std::int64_t q = (4 * j) / n;             // quadrant
    const std::int64_t r = 4 * j - q * n;           // 0 <= r < n
    double c = 1, s = 0;
    // angle within the quadrant: (pi/2) r / n; fold to [0, pi/4]
    if (2 * r <= n) {
        const double t = kPi / 2 * static_cast<double>(r) / static_cast<double>(n);
        c = taylor_cos(t);
        s = taylor_sin(t);
    } else {
        const double t = kPi / 2 * static_cast<double>(n - r) / static_cast<double>(n);
        c = taylor_sin(t);
        s = taylor_cos(t);
    }
    switch (q) {
        case 0: return {c, s};
        case 1: return {-s, c};
        case 2: return {-c, -s};
        default: return {s, -c};
    }
}

// ---- the complex vector types ---------------------------------------------
struct C1 {
    float re, im;
};
struct C8 {
    __m512 v;
};
// Eight independent transforms side by side (eight image columns): one
// element is a whole 512-bit vector, twiddles are broadcast to every lane.
struct CB {
    __m512 v;
};
// Element i of a batched sequence: 8 complex values at base + i * step bytes.
struct SPtr {
    Gex8u* base;
    std::int64_t step;
    SPtr operator+(std::int64_t i) const { return {base + i * step, step}; }
};

inline C1 add(C1 a, C1 b) { return {a.re + b.re, a.im + b.im}; }
inline C1 sub(C1 a, C1 b) { return {a.re - b.re, a.im - b.im}; }
inline C8 add(C8 a, C8 b) { return {_mm512_add_ps(a.v, b.v)}; }
inline C8 sub(C8 a, C8 b) { return {_mm512_sub_ps(a.v, b.v)}; }

// conj(a), (im, re), (-re, im)
inline C1 conj(C1 a) { return {a.re, -a.im}; }
inline C1 swap(C1 a) { return {a.im, a.re}; }
inline C1 negre(C1 a) { return {-a.re, a.im}; }
inline C8 conj(C8 a) {
    return {_mm512_castsi512_ps(
        _mm512_xor_si512(_mm512_castps_si512(a.v), _mm512_set1_epi64(static_cast<long long>(0x8000000000000000ULL))))};
}
inline C8 swap(C8 a) { return {_mm512_permute_ps(a.v, 0xB1)}; }
inline C8 negre(C8 a) {
    return {_mm512_castsi512_ps(_mm512_xor_si512(_mm512_castps_si512(a.v), _mm512_set1_epi64(0x80000000LL)))};
}
// eight complex values in reverse order
inline C8 reverse(C8 a) {
    return {_mm512_castpd_ps(_mm512_permutexvar_pd(_mm512_setr_epi64(7, 6, 5, 4, 3, 2, 1, 0), _mm512_castps_pd(a.v)))};
}
inline C1 reverse(C1 a) { return a; }

// a * (-i) and a * (+i).
inline C1 rot_m(C1 a) { return {a.im, -a.re}; }
inline C1 rot_p(C1 a) { return {-a.im, a.re}; }
inline C8 rot_m(C8 a) {
    const __m512 sw = _mm512_permute_ps(a.v, 0xB1);
    return {_mm512_castsi512_ps(
        _mm512_xor_si512(_mm512_castps_si512(sw), _mm512_set1_epi64(static_cast<long long>(0x8000000000000000ULL))))};
}
inline C8 rot_p(C8 a) {
    const __m512 sw = _mm512_permute_ps(a.v, 0xB1);
    return {_mm512_castsi512_ps(_mm512_xor_si512(_mm512_castps_si512(sw), _mm512_set1_epi64(0x80000000LL)))};
}
// a * (-i) forward, a * (+i) inverse
inline CB add(CB a, CB b) { return {add(C8{a.v}, C8{b.v}).v}; }
inline CB sub(CB a, CB b) { return {sub(C8{a.v}, C8{b.v}).v}; }
inline CB rot_m(CB a) { return {rot_m(C8{a.v}).v}; }
inline CB rot_p(CB a) { return {rot_p(C8{a.v}).v}; }

template <bool INV, class V>
inline V rot(V a) {
    if constexpr (INV) return rot_p(a);
    else return rot_m(a);
}

// a * w (fused as re = fma(a.re, w.re, -(a.im w.im)), im = fma(a.im, w.re, a.re w.im))
inline C1 cmul(C1 a, C1 w) { return {std::fma(a.re, w.re, -(a.im * w.im)), std::fma(a.im, w.re, a.re * w.im)}; }
// a * conj(w)
inline C1 cmulc(C1 a, C1 w) { return {std::fma(a.re, w.re, a.im * w.im), std::fma(a.im, w.re, -(a.re * w.im))}; }
inline C8 cmul(C8 a, C8 w) {
    const __m512 wr = _mm512_moveldup_ps(w.v), wi = _mm512_movehdup_ps(w.v);
    const __m512 c = _mm512_mul_ps(_mm512_permute_ps(a.v, 0xB1), wi);
    return {_mm512_fmaddsub_ps(a.v, wr, c)};
}
inline C8 cmulc(C8 a, C8 w) {
    const __m512 wr = _mm512_moveldup_ps(w.v), wi = _mm512_movehdup_ps(w.v);
    const __m512 c = _mm512_mul_ps(_mm512_permute_ps(a.v, 0xB1), wi);
    return {_mm512_fmsubadd_ps(a.v, wr, c)};
}
inline CB cmul(CB a, CB w) { return {cmul(C8{a.v}, C8{w.v}).v}; }
inline CB cmulc(CB a, CB w) { return {cmulc(C8{a.v}, C8{w.v}).v}; }

// A broadcast twiddle of the batched form, real and imaginary parts apart:
// the product then needs no lane shuffles of the twiddle, and rounds as cmul.
struct CBW {
    __m512 wr, wi;
};
inline CB cmul(CB a, CBW w) {
    return {_mm512_fmaddsub_ps(a.v, w.wr, _mm512_mul_ps(_mm512_permute_ps(a.v, 0xB1), w.wi))};
}
inline CB cmulc(CB a, CBW w) {
    return {_mm512_fmsubadd_ps(a.v, w.wr, _mm512_mul_ps(_mm512_permute_ps(a.v, 0xB1), w.wi))};
}

template <bool INV, class V, class W>
inline V twiddle(V a, W w) {
    if constexpr (INV) return cmulc(a, w);
    else return cmul(a, w);
}

inline C1 scale(C1 a, float s) { return {a.re * s, a.im * s}; }
inline C8 scale(C8 a, float s) { return {_mm512_mul_ps(a.v, _mm512_set1_ps(s))}; }
// acc + p * c, fused per component
inline C1 fmar(C1 p, float c, C1 acc) { return {std::fma(p.re, c, acc.re), std::fma(p.im, c, acc.im)}; }
inline C8 fmar(C8 p, float c, C8 acc) { return {_mm512_fmadd_ps(p.v, _mm512_set1_ps(c), acc.v)}; }
inline CB scale(CB a, float s) { return {_mm512_mul_ps(a.v, _mm512_set1_ps(s))}; }
inline CB fmar(CB p, float c, CB acc) { return {_mm512_fmadd_ps(p.v, _mm512_set1_ps(c), acc.v)}; }

// loads and stores
template <class V>
inline V ld(const Gex32fc* p);
template <>
inline C1 ld<C1>(const Gex32fc* p) {
    return {p->re, p->im};
}
template <>
inline C8 ld<C8>(const Gex32fc* p) {
    return {_mm512_loadu_ps(p)};
}
// batched: elements through SPtr, twiddles broadcast from plain tables
template <>
inline CB ld<CB>(const Gex32fc* p) {
    return {_mm512_castpd_ps(_mm512_set1_pd(*reinterpret_cast<const double*>(p)))};
}
template <class V>
inline V ld(SPtr p);
template <>
inline CB ld<CB>(SPtr p) {
    return {_mm512_loadu_ps(p.base)};
}
// Twiddle loads: the value type itself, or CBW for the batched form.
inline CBW ldw_cb(const Gex32fc* p) { return {_mm512_set1_ps(p->re), _mm512_set1_ps(p->im)}; }
template <class V>
inline auto ldtw(const Gex32fc* p) {
    if constexpr (std::is_same_v<V, CB>) return ldw_cb(p);
    else return ld<V>(p);
}
inline void st(SPtr p, CB a) { _mm512_storeu_ps(p.base, a.v); }
// Batched sequences are image rows a large power-of-two step apart, which the
// hardware prefetcher does not follow: the passes that touch them fetch a few
// elements ahead by hand. No-ops on contiguous data.
inline void prefetch(SPtr p) { _mm_prefetch(reinterpret_cast<const char*>(p.base), _MM_HINT_T0); }
inline void prefetch(const Gex32fc*) {}
constexpr int kPrefetchAhead = 8;
inline void st(Gex32fc* p, C1 a) {
    p->re = a.re;
    p->im = a.im;
}
inline void st(Gex32fc* p, C8 a) { _mm512_storeu_ps(p, a.v); }
// n complex values, 1 <= n <= 8
inline __mmask16 cmask(int n) { return static_cast<__mmask16>((1u << (2 * n)) - 1); }
inline C8 ld_n(const Gex32fc* p, int n) { return {_mm512_maskz_loadu_ps(cmask(n), p)}; }
inline void st_n(Gex32fc* p, C8 a, int n) { _mm512_mask_storeu_ps(p, cmask(n), a.v); }

template <class V>
constexpr int width = 1;
template <>
constexpr int width<C8> = 8;

// ---- butterflies (in registers) --------------------------------------------
// 4-point DFT: y_f = sum_t a_t w4^(t f), sign by direction.
template <bool INV, class V>
inline void dft4(V& a0, V& a1, V& a2, V& a3) {
    const V t0 = add(a0, a2), t1 = sub(a0, a2), t2 = add(a1, a3), t3 = rot<INV>(sub(a1, a3));
    a0 = add(t0, t2);
    a2 = sub(t0, t2);
    a1 = add(t1, t3);
    a3 = sub(t1, t3);
}

// 8-point DFT in place on a[0..7].
template <bool INV, class V>
inline void dft8(V* a) {
    constexpr float h = 0.70710678118654752440f;
    V b[4], d[4];
    for (int j = 0; j < 4; ++j) {
        b[j] = add(a[j], a[j + 4]);
        d[j] = sub(a[j], a[j + 4]);
    }
    // d_j *= w8^(j) (conjugate when inverse)
    if constexpr (!INV) {
        d[1] = scale(add(d[1], rot_m(d[1])), h);
        d[2] = rot_m(d[2]);
        d[3] = scale(sub(rot_m(d[3]), d[3]), h);
    } else {
        d[1] = scale(add(d[1], rot_p(d[1])), h);
        d[2] = rot_p(d[2]);
        d[3] = scale(sub(rot_p(d[3]), d[3]), h);
    }
    dft4<INV>(b[0], b[1], b[2], b[3]);
    dft4<INV>(d[0], d[1], d[2], d[3]);
    for (int m = 0; m < 4; ++m) {
        a[2 * m] = b[m];
        a[2 * m + 1] = d[m];
    }
}

// A constant complex value in every lane.
template <class V>
inline V cst(float re, float im);
template <>
inline C1 cst<C1>(float re, float im) {
    return {re, im};
}
template <>
inline C8 cst<C8>(float re, float im) {
    return {_mm512_castpd_ps(_mm512_set1_pd(std::bit_cast<double>(C1{re, im})))};
}
template <>
inline CB cst<CB>(float re, float im) {
    return {cst<C8>(re, im).v};
}

// 16-point DFT in place on a[0..15]: 4-point DFTs over j2 (j = j1 + 4 j2),
// twiddles w16^(j1 k2), 4-point DFTs over j1; y[4 k1 + k2].
template <bool INV, class V>
inline void dft16(V* a) {
    constexpr float c1 = 0.92387953251128675613f, s1 = 0.38268343236508977173f, h = 0.70710678118654752440f;
    V b[16];
    for (int j1 = 0; j1 < 4; ++j1) {
        V x0 = a[j1], x1 = a[j1 + 4], x2 = a[j1 + 8], x3 = a[j1 + 12];
        dft4<INV>(x0, x1, x2, x3);
        b[4 * j1] = x0, b[4 * j1 + 1] = x1, b[4 * j1 + 2] = x2, b[4 * j1 + 3] = x3;
    }
    // w16^t, t = j1 k2, forward exp(-2 pi i t / 16)
    const V w1 = cst<V>(c1, -s1), w2 = cst<V>(h, -h), w3 = cst<V>(s1, -c1), w6 = cst<V>(-h, -h), w9 = cst<V>(-c1, s1);
    b[5] = twiddle<INV>(b[5], w1);
    b[6] = twiddle<INV>(b[6], w2);
    b[7] = twiddle<INV>(b[7], w3);
    b[9] = twiddle<INV>(b[9], w2);
    b[10] = rot<INV>(b[10]);
    b[11] = twiddle<INV>(b[11], w6);
    b[13] = twiddle<INV>(b[13], w3);
    b[14] = twiddle<INV>(b[14], w6);
    b[15] = twiddle<INV>(b[15], w9);
    for (int k2 = 0; k2 < 4; ++k2) {
        V x0 = b[k2], x1 = b[4 + k2], x2 = b[8 + k2], x3 = b[12 + k2];
        dft4<INV>(x0, x1, x2, x3);
        a[k2] = x0, a[4 + k2] = x1, a[8 + k2] = x2, a[12 + k2] = x3;
    }
}

// r-point DFT of any r >= 2 on a[0..r-1] into y[0..r-1], by the pairs
// a_j +- a_(r-j) and real coefficients: cs[t] = (cos, sin)(2 pi t / r).
// y_k = A_k -+ i B_k, y_(r-k) = A_k +- i B_k with A_k = a_0 + sum p_j cos,
// B_k = sum q_j sin.
// R > 0 fixes r at compile time (the same operations, unrolled).
template <bool INV, class V, int R = 0>
inline void dft_any(const V* a, V* y, int rr, const Gex32fc* cs, V* p, V* q) {
    const int r = R ? R : rr;
    const int h = (r - 1) / 2;
    V sum = a[0];
    for (int j = 1; j <= h; ++j) {
        p[j] = add(a[j], a[r - j]);
        q[j] = sub(a[j], a[r - j]);
        sum = add(sum, p[j]);
    }
    const bool even = (r & 1) == 0;
    if (even) {
        const V m = a[r / 2];
        y[0] = add(sum, m);
        // k = r/2: cos(pi j) = (-1)^j, no sine part
        V alt = a[0];
        for (int j = 1; j <= h; ++j) alt = (j & 1) ? sub(alt, p[j]) : add(alt, p[j]);
        y[r / 2] = (h + 1) & 1 ? sub(alt, m) : add(alt, m);
    } else {
        y[0] = sum;
    }
    for (int k = 1; k <= h; ++k) {
        V A = a[0];
        if (even) A = (k & 1) ? sub(A, a[r / 2]) : add(A, a[r / 2]);
        V B;
        int t = k;
        A = fmar(p[1], cs[t].re, A);
        B = scale(q[1], cs[t].im);
        for (int j = 2; j <= h; ++j) {
            t += k;
            if (t >= r) t -= r;
            A = fmar(p[j], cs[t].re, A);
            B = fmar(q[j], cs[t].im, B);
        }
        // forward: y_k = A - i B, y_(r-k) = A + i B
        const V iB = rot<INV>(B);
        y[k] = add(A, iB);
        y[r - k] = sub(A, iB);
    }
}

// ---- radix-4 passes of the power-of-two path --------------------------------
// DIT pass of span L >= 8 over data in place (or in -> out): groups of 4L
// holding four sub-transforms in bit-reversed order of their offsets, so
// a_t = x[g 4L + j + rev2(t) L] * w_(4L)^(j t), then the 4-point DFT written
// in natural order. Twiddles in
// blocks of 8 j: w^j x8, w^2j x8, w^3j x8.
// Index of w_(4L)^(j t) in the table of the radix-4 pass of span L.
inline std::int64_t tw_index(std::int64_t j, int t, std::int64_t L) {
    const std::int64_t B = L < 8 ? L : 8;
    return (j / B) * 3 * B + (t - 1) * B + j % B;
}

// One butterfly of the pass below (L >= 8 there, any L here) with the
// twiddles of offset j and span L, its elements a + t M apart at src / dst
// (a sequence taken every so many elements of a longer one: M = L, a = j in
// the pass itself).
// One radix-4 butterfly on the elements a, a + M, a + 2M, a + 3M (read in
// bit-reversed order), its three inputs turned by the twiddles at w1, w2, w3.
template <bool INV, class V, class PI, class PO>
inline void r4_one(PI src, PO dst, std::int64_t a, std::int64_t M, const Gex32fc* w1, const Gex32fc* w2,
                   const Gex32fc* w3, float scl, bool doScale) {
    V a0 = ld<V>(src + a), a1 = ld<V>(src + (a + 2 * M)), a2 = ld<V>(src + (a + M)), a3 = ld<V>(src + (a + 3 * M));
    a1 = twiddle<INV>(a1, ldtw<V>(w1));
    a2 = twiddle<INV>(a2, ldtw<V>(w2));
    a3 = twiddle<INV>(a3, ldtw<V>(w3));
    dft4<INV>(a0, a1, a2, a3);
    if (doScale) {
        a0 = scale(a0, scl);
        a1 = scale(a1, scl);
        a2 = scale(a2, scl);
        a3 = scale(a3, scl);
    }
    st(dst + a, a0);
    st(dst + (a + M), a1);
    st(dst + (a + 2 * M), a2);
    st(dst + (a + 3 * M), a3);
}

template <bool INV, class V, class PI, class PO>
inline void r4_at(PI src, PO dst, std::int64_t a, std::int64_t M, std::int64_t j, std::int64_t L, const Gex32fc* tw,
                  float scl, bool doScale) {
    r4_one<INV, V>(src, dst, a, M, tw + tw_index(j, 1, L), tw + tw_index(j, 2, L), tw + tw_index(j, 3, L), scl,
                   doScale);
}

template <bool INV, class V, class PI, class PO>
inline void r4_pass(PI in, PO out, std::int64_t n, std::int64_t L, const Gex32fc* tw, float scl,
                    bool doScale) {
    constexpr int W = width<V>;
    for (std::int64_t g = 0; g < n; g += 4 * L) {
        const auto src = in + g;
        const auto dst = out + g;
        for (std::int64_t j = 0; j < L; j += W) {
            if constexpr (W == 1) {
                if (j + kPrefetchAhead < L)
                    for (int t = 0; t < 4; ++t) {
                        prefetch(src + (j + kPrefetchAhead + t * L));
                        prefetch(dst + (j + kPrefetchAhead + t * L));
                    }
            }
            const Gex32fc* w = tw + (j / 8) * 24 + (j % 8);
            r4_one<INV, V>(src, dst, j, L, w, w + 8, w + 16, scl, doScale);
        }
    }
}

// Transposition of 8 x 8 64-bit elements in registers: r[k] lane l -> t[l] lane k.
inline void transpose8x8(const __m512d* r_in, __m512d* t) {
    __m512d r[8];
    for (int i = 0; i < 8; i += 2) {
        r[i] = _mm512_unpacklo_pd(r_in[i], r_in[i + 1]);
        r[i + 1] = _mm512_unpackhi_pd(r_in[i], r_in[i + 1]);
    }
    const __m512i a = _mm512_setr_epi64(0, 1, 8, 9, 4, 5, 12, 13), b = _mm512_setr_epi64(2, 3, 10, 11, 6, 7, 14, 15);
    __m512d u[8];
    for (int i = 0; i < 8; i += 4)
        for (int j = 0; j < 2; ++j) {
            u[i + j] = _mm512_permutex2var_pd(r[i + j], a, r[i + j + 2]);
            u[i + j + 2] = _mm512_permutex2var_pd(r[i + j], b, r[i + j + 2]);
        }
    const __m512i c = _mm512_setr_epi64(0, 1, 2, 3, 8, 9, 10, 11), d = _mm512_setr_epi64(4, 5, 6, 7, 12, 13, 14, 15);
    for (int j = 0; j < 4; ++j) {
        t[j] = _mm512_permutex2var_pd(u[j], c, u[j + 4]);
        t[j + 4] = _mm512_permutex2var_pd(u[j], d, u[j + 4]);
    }
}

// Two radix-4 passes, spans L and 4L, in one sweep: the sixteen elements
// g 16L + j + u L stay in registers between them. Element by element this
// is exactly the two passes one after the other (same operations, same
// order), so the results do not change. twA and twB are the two passes'
// tables; V = C8 needs L >= 8. r4x2_at addresses its elements as r4_at.
template <bool INV, class V, class PI, class PO>
inline void r4x2_at(PI src, PO dst, std::int64_t a, std::int64_t M, std::int64_t j, std::int64_t L,
                    const Gex32fc* twA, const Gex32fc* twB, float scl, bool doScale) {
    V e[16];
    for (int u = 0; u < 16; ++u) e[u] = ld<V>(src + (a + u * M));
    for (int b = 0; b < 4; ++b) {  // span L
        V a0 = e[4 * b], a1 = e[4 * b + 2], a2 = e[4 * b + 1], a3 = e[4 * b + 3];
        a1 = twiddle<INV>(a1, ldtw<V>(twA + tw_index(j, 1, L)));
        a2 = twiddle<INV>(a2, ldtw<V>(twA + tw_index(j, 2, L)));
        a3 = twiddle<INV>(a3, ldtw<V>(twA + tw_index(j, 3, L)));
        dft4<INV>(a0, a1, a2, a3);
        e[4 * b] = a0, e[4 * b + 1] = a1, e[4 * b + 2] = a2, e[4 * b + 3] = a3;
    }
    for (int q = 0; q < 4; ++q) {  // span 4L
        const std::int64_t jj = j + q * L;
        V a0 = e[q], a1 = e[8 + q], a2 = e[4 + q], a3 = e[12 + q];
        a1 = twiddle<INV>(a1, ldtw<V>(twB + tw_index(jj, 1, 4 * L)));
        a2 = twiddle<INV>(a2, ldtw<V>(twB + tw_index(jj, 2, 4 * L)));
        a3 = twiddle<INV>(a3, ldtw<V>(twB + tw_index(jj, 3, 4 * L)));
        dft4<INV>(a0, a1, a2, a3);
        if (doScale) a0 = scale(a0, scl), a1 = scale(a1, scl), a2 = scale(a2, scl), a3 = scale(a3, scl);
        e[q] = a0, e[4 + q] = a1, e[8 + q] = a2, e[12 + q] = a3;
    }
    for (int u = 0; u < 16; ++u) st(dst + (a + u * M), e[u]);
}
template <bool INV, class V, class PI, class PO>
inline void r4x2_one(PI src, PO dst, std::int64_t j, std::int64_t L, const Gex32fc* twA, const Gex32fc* twB, float scl,
                     bool doScale) {
    r4x2_at<INV, V>(src, dst, j, L, j, L, twA, twB, scl, doScale);
}

template <bool INV, class V, class PI, class PO>
inline void r4x2_pass(PI in, PO out, std::int64_t n, std::int64_t L, const Gex32fc* twA, const Gex32fc* twB, float scl,
                      bool doScale) {
    constexpr int W = width<V>;
    for (std::int64_t g = 0; g < n; g += 16 * L)
        for (std::int64_t j = 0; j < L; j += W) r4x2_one<INV, V>(in + g, out + g, j, L, twA, twB, scl, doScale);
}

}  // namespace gex::fftk

#pragma GCC diagnostic pop
