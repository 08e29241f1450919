// Power-of-two Fourier transforms (gexsFFT*), complex and real.
//
// Plans by the order c of the complex transform:
//   0..6   straight kernels on the stack, no tables in the record;
//   7..18  decimation in time: a first radix-4 pass that reads columns of the
//          input and writes its groups in bit-reversed order, then radix-4
//          passes (one radix-2 pass when the stage count is odd) with their
//          twiddles laid out in pass order, two spans fused per sweep where
//          the registers allow; the last pass scales;
//   19..28 the tiled path: bit reversal in 64 x 64 tiles, 2^b contiguous
//          sub-transforms (recursively while they are above order 18), then
//          the last b stages on groups of 64 columns gathered into the work
//          buffer, twiddles looked up in a quarter-wave table.
// A real transform of length N runs the complex transform of N/2 on the
// sample pairs and recombines the two halves of the spectrum.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "frame/checks.hpp"
#include "transform/fft_engine.hpp"
#include "transform/fft_kernels.hpp"

// GCC 12 takes the undefined start vector inside its own shuffle intrinsics
// for an uninitialised variable; the warning is about the compiler's headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex {

using namespace fftk;

namespace fft {

Gex32fc twiddle64(std::int64_t x, std::int64_t n) {
    x %= n;
    if (x < 0) x += n;
    const std::int64_t q = (4 * x) / n;
    const std::int64_t r = 4 * x - q * n;
    double c, s;
    if (2 * r <= n) {
        const double t = (kPi / 2) * (static_cast<double>(r) / static_cast<double>(n));
        c = std::cos(t);
        s = std::sin(t);
    } else {
        const double t = (kPi / 2) * (static_cast<double>(n - r) / static_cast<double>(n));
        c = std::sin(t);
        s = std::cos(t);
    }
    double cr, sr;  // cos and sin of 2 pi x / n
    switch (q) {
        case 0: cr = c, sr = s; break;
        case 1: cr = -s, sr = c; break;
        case 2: cr = -c, sr = -s; break;
        default: cr = s, sr = -c; break;
    }
    return {static_cast<float>(cr), static_cast<float>(-sr)};
}

void quarter_wave(float* q, std::int64_t n) {
    for (std::int64_t i = 0; i <= n / 4; ++i) q[i] = -twiddle64(i, n).im;
}

bool scale_of_flag(int flag, std::int64_t n, std::int32_t& fwd, std::int32_t& inv, float& factor) {
    switch (flag) {
        case 1: fwd = 1, inv = 0, factor = 1.0f / static_cast<float>(n); return true;
        case 2: fwd = 0, inv = 1, factor = 1.0f / static_cast<float>(n); return true;
        case 4: fwd = 1, inv = 1, factor = static_cast<float>(1.0 / std::sqrt(static_cast<double>(n))); return true;
        case 8: fwd = 0, inv = 0, factor = 1.0f; return true;
        default: return false;
    }
}

}  // namespace fft

namespace {

using fft::Arena;

constexpr int kTile = 64;  // bit reversal tile edge of the large path
constexpr int kColGroup = 64;  // columns gathered at a time by the large path

inline std::uint32_t rev_bits(std::uint32_t x, int bits) {
    x = ((x >> 1) & 0x55555555u) | ((x & 0x55555555u) << 1);
    x = ((x >> 2) & 0x33333333u) | ((x & 0x33333333u) << 2);
    x = ((x >> 4) & 0x0F0F0F0Fu) | ((x & 0x0F0F0F0Fu) << 4);
    x = ((x >> 8) & 0x00FF00FFu) | ((x & 0x00FF00FFu) << 8);
    x = (x >> 16) | (x << 16);
    return bits == 0 ? 0 : x >> (32 - bits);
}

// Order of the blocks split off at each level of the large path.
inline int large_block(int order) { return order <= 22 ? 4 : 8; }
inline int large_buf_order(int order) { return order <= 22 ? 10 : 14; }
inline int leaf_order(int order) {
    while (order > 18) order -= large_block(order);
    return order;
}

// ---- the table-free small kernels (n <= 64) ----
struct W64Table {
    Gex32fc w[64];
};
constexpr W64Table make_w64() {
    W64Table t{};
    for (int j = 0; j < 64; ++j) {
        const CS64 a = unit_angle(j, 64);
        t.w[j] = {static_cast<float>(a.c), static_cast<float>(-a.s)};
    }
    return t;
}
constexpr W64Table kW64 = make_w64();

template <bool INV>
void small_fft(const Gex32fc* src, Gex32fc* dst, int order, float scl, bool doScale) {
    const int n = 1 << order;
    C1 t[64];
    for (int i = 0; i < n; ++i) t[rev_bits(static_cast<std::uint32_t>(i), order)] = ld<C1>(src + i);
    for (int len = 2; len <= n; len *= 2) {
        const int half = len / 2, step = 64 / len;
        for (int g = 0; g < n; g += len)
            for (int j = 0; j < half; ++j) {
                const C1 w = {kW64.w[j * step].re, kW64.w[j * step].im};
                const C1 a = t[g + j], b = twiddle<INV>(t[g + j + half], w);
                t[g + j] = add(a, b);
                t[g + j + half] = sub(a, b);
            }
    }
    for (int i = 0; i < n; ++i) st(dst + i, doScale ? scale(t[i], scl) : t[i]);
}

// ---- radix-4 path tables ----
std::int64_t radix4_tw_count(int c) {
    const std::int64_t n = std::int64_t{1} << c;
    std::int64_t count = 0, L;
    if ((c - 2) & 1) {
        count += 4;
        L = 8;
    } else {
        L = 4;
    }
    for (; L <= n / 4; L *= 4) count += 3 * L;
    return count;
}

void radix4_tw_fill(Gex32fc* tw, int c) {
    const std::int64_t n = std::int64_t{1} << c;
    std::int64_t L;
    if ((c - 2) & 1) {
        for (int j = 0; j < 4; ++j) tw[j] = fft::twiddle64(j, 8);
        tw += 4;
        L = 8;
    } else {
        L = 4;
    }
    for (; L <= n / 4; L *= 4) {
        const std::int64_t B = std::min<std::int64_t>(L, 8);
        for (std::int64_t j = 0; j < L; ++j)
            for (int t = 1; t <= 3; ++t) tw[(j / B) * 3 * B + (t - 1) * B + j % B] = fft::twiddle64(j * t, 4 * L);
        tw += 3 * L;
    }
}

// ---- radix-4 path kernels: scalar twins and 512-bit forms ----
// One group of the first pass: the 4-point DFT of s, s + q, s + 2q, s + 3q to d .. d + 3.
template <bool INV, class V, class PI, class PO>
inline void first_one(PI s, std::int64_t q, PO d) {
    V a0 = ld<V>(s), a1 = ld<V>(s + q), a2 = ld<V>(s + 2 * q), a3 = ld<V>(s + 3 * q);
    dft4<INV>(a0, a1, a2, a3);
    st(d, a0);
    st(d + 1, a1);
    st(d + 2, a2);
    st(d + 3, a3);
}

template <bool INV, class V = C1, class PI, class PO>
void first_pass_c1(PI src, PO dst, std::int64_t n, const std::int32_t* br) {
    const std::int64_t q = n / 4;
    for (std::int64_t r = 0; r < q; ++r) {
        if (r + kPrefetchAhead < q)
            for (int t = 0; t < 4; ++t) prefetch(src + (r + kPrefetchAhead + t * q));
        first_one<INV, V>(src + r, q, dst + 4 * std::int64_t{br[r]});
    }
}

template <bool INV>
void first_pass_c8(const Gex32fc* src, Gex32fc* dst, std::int64_t n, const std::int32_t* br) {
    const std::int64_t q = n / 4;
    const __m512i ia = _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11), ib = _mm512_setr_epi64(4, 12, 5, 13, 6, 14, 7, 15);
    const __m512i ic = _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), id = _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
    for (std::int64_t r = 0; r < q; r += 8) {
        C8 a0 = ld<C8>(src + r), a1 = ld<C8>(src + r + q), a2 = ld<C8>(src + r + 2 * q), a3 = ld<C8>(src + r + 3 * q);
        dft4<INV>(a0, a1, a2, a3);
        const __m512d y0 = _mm512_castps_pd(a0.v), y1 = _mm512_castps_pd(a1.v), y2 = _mm512_castps_pd(a2.v),
                      y3 = _mm512_castps_pd(a3.v);
        const __m512d P = _mm512_permutex2var_pd(y0, ia, y1), Q = _mm512_permutex2var_pd(y0, ib, y1);
        const __m512d R = _mm512_permutex2var_pd(y2, ia, y3), S = _mm512_permutex2var_pd(y2, ib, y3);
        const __m512d z[4] = {_mm512_permutex2var_pd(P, ic, R), _mm512_permutex2var_pd(P, id, R),
                              _mm512_permutex2var_pd(Q, ic, S), _mm512_permutex2var_pd(Q, id, S)};
        for (int i = 0; i < 4; ++i) {
            _mm256_storeu_pd(reinterpret_cast<double*>(dst + 4 * std::int64_t{br[r + 2 * i]}), _mm512_castpd512_pd256(z[i]));
            _mm256_storeu_pd(reinterpret_cast<double*>(dst + 4 * std::int64_t{br[r + 2 * i + 1]}),
                             _mm512_extractf64x4_pd(z[i], 1));
        }
    }
}

// First pass on data already in bit-reversed order (leaves of the large path).
template <bool INV>
void first_pass_inplace(Gex32fc* d, std::int64_t n) {
    for (std::int64_t g = 0; g < n; g += 4) {
        C1 a0 = ld<C1>(d + g), a1 = ld<C1>(d + g + 2), a2 = ld<C1>(d + g + 1), a3 = ld<C1>(d + g + 3);
        dft4<INV>(a0, a1, a2, a3);
        st(d + g, a0);
        st(d + g + 1, a1);
        st(d + g + 2, a2);
        st(d + g + 3, a3);
    }
}

// Odd stage counts: the first pass and the radix-2 pass in one sweep. The
// columns r and r + n/8 feed the neighbouring groups 2G, 2G + 1 (G the
// reversed r), which the radix-2 step combines with w8^f; the operations are
// those of the two passes one after the other.
// One column of it: the 4-point DFTs of a, a + q, a + 2q, a + 3q and of b, ...,
// combined by the radix-2 step into d .. d + 7.
template <bool INV, class V, class PI, class PO>
inline void first8_one(PI a, PI b, std::int64_t q, PO d, const Gex32fc* tw2) {
    V a0 = ld<V>(a), a1 = ld<V>(a + q), a2 = ld<V>(a + 2 * q), a3 = ld<V>(a + 3 * q);
    V b0 = ld<V>(b), b1 = ld<V>(b + q), b2 = ld<V>(b + 2 * q), b3 = ld<V>(b + 3 * q);
    dft4<INV>(a0, a1, a2, a3);
    dft4<INV>(b0, b1, b2, b3);
    const V A[4] = {a0, a1, a2, a3};
    const V B[4] = {b0, b1, b2, b3};
    for (int f = 0; f < 4; ++f) {
        const V t = twiddle<INV>(B[f], ldtw<V>(tw2 + f));
        st(d + f, add(A[f], t));
        st(d + (f + 4), sub(A[f], t));
    }
}

template <bool INV, class V = C1, class PI, class PO>
void first8_pass_c1(PI src, PO dst, std::int64_t n, const std::int32_t* br, const Gex32fc* tw2) {
    const std::int64_t q = n / 4, q8 = n / 8;
    for (std::int64_t r = 0; r < q8; ++r) first8_one<INV, V>(src + r, src + (r + q8), q, dst + 4 * std::int64_t{br[r]}, tw2);
}

template <bool INV>
void first8_pass_c8(const Gex32fc* src, Gex32fc* dst, std::int64_t n, const std::int32_t* br, const Gex32fc* tw2) {
    const std::int64_t q = n / 4, q8 = n / 8;
    for (std::int64_t r = 0; r < q8; r += 8) {
        C8 a0 = ld<C8>(src + r), a1 = ld<C8>(src + r + q), a2 = ld<C8>(src + r + 2 * q), a3 = ld<C8>(src + r + 3 * q);
        C8 b0 = ld<C8>(src + r + q8), b1 = ld<C8>(src + r + q8 + q), b2 = ld<C8>(src + r + q8 + 2 * q),
           b3 = ld<C8>(src + r + q8 + 3 * q);
        dft4<INV>(a0, a1, a2, a3);
        dft4<INV>(b0, b1, b2, b3);
        const C8 A[4] = {a0, a1, a2, a3};
        const C8 B[4] = {b0, b1, b2, b3};
        __m512d o[8], t[8];
        for (int f = 0; f < 4; ++f) {
            const C8 w = {_mm512_castpd_ps(_mm512_set1_pd(*reinterpret_cast<const double*>(tw2 + f)))};
            const C8 tb = twiddle<INV>(B[f], w);
            o[f] = _mm512_castps_pd(add(A[f], tb).v);
            o[f + 4] = _mm512_castps_pd(sub(A[f], tb).v);
        }
        transpose8x8(o, t);  // t[l]: the eight outputs of column r + l
        for (int l = 0; l < 8; ++l) _mm512_storeu_pd(reinterpret_cast<double*>(dst + 4 * std::int64_t{br[r + l]}), t[l]);
    }
}

template <bool INV, class V = C1, class PI, class PO>
void l4_pass_c1(PI in, PO out, std::int64_t n, const Gex32fc* tw, float scl, bool doScale) {
    for (std::int64_t g = 0; g < n; g += 16)
        for (int j = 0; j < 4; ++j) {
            V a0 = ld<V>(in + g + j), a1 = ld<V>(in + g + j + 8), a2 = ld<V>(in + g + j + 4),
              a3 = ld<V>(in + g + j + 12);
            a1 = twiddle<INV>(a1, ldtw<V>(tw + j));
            a2 = twiddle<INV>(a2, ldtw<V>(tw + 4 + j));
            a3 = twiddle<INV>(a3, ldtw<V>(tw + 8 + j));
            dft4<INV>(a0, a1, a2, a3);
            if (doScale) a0 = scale(a0, scl), a1 = scale(a1, scl), a2 = scale(a2, scl), a3 = scale(a3, scl);
            st(out + g + j, a0);
            st(out + g + j + 4, a1);
            st(out + g + j + 8, a2);
            st(out + g + j + 12, a3);
        }
}

inline C8 bcast4(const Gex32fc* p) {
    return {_mm512_castpd_ps(_mm512_broadcast_f64x4(_mm256_loadu_pd(reinterpret_cast<const double*>(p))))};
}
inline C8 lanes_lo(C8 a, C8 b) { return {_mm512_shuffle_f32x4(a.v, b.v, 0x44)}; }
inline C8 lanes_hi(C8 a, C8 b) { return {_mm512_shuffle_f32x4(a.v, b.v, 0xEE)}; }

template <bool INV>
void l4_pass_c8(const Gex32fc* in, Gex32fc* out, std::int64_t n, const Gex32fc* tw, float scl, bool doScale) {
    const C8 w1 = bcast4(tw), w2 = bcast4(tw + 4), w3 = bcast4(tw + 8);
    for (std::int64_t g = 0; g < n; g += 32) {
        const C8 v0 = ld<C8>(in + g), v1 = ld<C8>(in + g + 8), v2 = ld<C8>(in + g + 16), v3 = ld<C8>(in + g + 24);
        C8 a0 = lanes_lo(v0, v2), a1 = lanes_lo(v1, v3), a2 = lanes_hi(v0, v2), a3 = lanes_hi(v1, v3);
        a1 = twiddle<INV>(a1, w1);
        a2 = twiddle<INV>(a2, w2);
        a3 = twiddle<INV>(a3, w3);
        dft4<INV>(a0, a1, a2, a3);
        if (doScale) a0 = scale(a0, scl), a1 = scale(a1, scl), a2 = scale(a2, scl), a3 = scale(a3, scl);
        st(out + g, lanes_lo(a0, a1));
        st(out + g + 8, lanes_lo(a2, a3));
        st(out + g + 16, lanes_hi(a0, a1));
        st(out + g + 24, lanes_hi(a2, a3));
    }
}

template <bool INV, class V = C1, class PI, class PO>
void r2_pass_c1(PI in, PO out, std::int64_t n, const Gex32fc* tw, float scl, bool doScale) {
    for (std::int64_t g = 0; g < n; g += 8)
        for (int j = 0; j < 4; ++j) {
            const V a0 = ld<V>(in + g + j), a1 = twiddle<INV>(ld<V>(in + g + j + 4), ldtw<V>(tw + j));
            V y0 = add(a0, a1), y1 = sub(a0, a1);
            if (doScale) y0 = scale(y0, scl), y1 = scale(y1, scl);
            st(out + g + j, y0);
            st(out + g + j + 4, y1);
        }
}

template <bool INV>
void r2_pass_c8(const Gex32fc* in, Gex32fc* out, std::int64_t n, const Gex32fc* tw, float scl, bool doScale) {
    const C8 w = bcast4(tw);
    for (std::int64_t g = 0; g < n; g += 16) {
        const C8 v0 = ld<C8>(in + g), v1 = ld<C8>(in + g + 8);
        const C8 a0 = lanes_lo(v0, v1), a1 = twiddle<INV>(lanes_hi(v0, v1), w);
        C8 y0 = add(a0, a1), y1 = sub(a0, a1);
        if (doScale) y0 = scale(y0, scl), y1 = scale(y1, scl);
        st(out + g, lanes_lo(y0, y1));
        st(out + g + 8, lanes_hi(y0, y1));
    }
}

// The passes after the first, on t (in place) with the last one written to
// out: radix-2 (odd stage count), then radix-4 spans up to n/4. `mode` 0 runs
// the 512-bit kernels, 1 their scalar twins, 2 the batched form (P = SPtr).
template <bool INV, int MODE, class P>
void radix4_passes_t(P t, P out, int c, const Gex32fc* tw, float scl, bool doScale, bool r2Done = false) {
    const std::int64_t n = std::int64_t{1} << c;
    std::int64_t L;
    auto last = [&](std::int64_t span) { return span * 4 > n / 4; };
    using V = std::conditional_t<MODE == 0, C8, std::conditional_t<MODE == 1, C1, CB>>;
    if (((c - 2) & 1) && r2Done) {
        tw += 4;
        L = 8;
    } else if ((c - 2) & 1) {
        const bool fin = 8 > n / 4;
        const P o = fin ? out : t;
        if constexpr (MODE == 0) r2_pass_c8<INV>(t, o, n, tw, scl, doScale && fin);
        else r2_pass_c1<INV, V>(t, o, n, tw, scl, doScale && fin);
        tw += 4;
        L = 8;
    } else if (MODE == 0 || 16 > n / 4) {
        const bool fin = last(4);
        const P o = fin ? out : t;
        if constexpr (MODE == 0) l4_pass_c8<INV>(t, o, n, tw, scl, doScale && fin);
        else l4_pass_c1<INV, V>(t, o, n, tw, scl, doScale && fin);
        tw += 12;
        L = 16;
    } else {
        L = 4;
    }
    // the remaining spans two at a time, a last single one if their count is odd
    while (L <= n / 4) {
        if (4 * L <= n / 4) {
            const bool fin = last(4 * L);
            const P o = fin ? out : t;
            const Gex32fc* twB = tw + 3 * L;
            r4x2_pass<INV, V>(t, o, n, L, tw, twB, scl, doScale && fin);
            tw = twB + 12 * L;
            L *= 16;
        } else {  // 4L would exceed n/4: this span is the last one
            r4_pass<INV, V>(t, out, n, L, tw, scl, doScale);
            tw += 3 * L;
            L *= 4;
        }
    }
}

template <bool INV>
void radix4_passes(Gex32fc* t, Gex32fc* out, int c, const Gex32fc* tw, float scl, bool doScale, bool scalar,
                   bool r2Done = false) {
    if (scalar) radix4_passes_t<INV, 1>(t, out, c, tw, scl, doScale, r2Done);
    else radix4_passes_t<INV, 0>(t, out, c, tw, scl, doScale, r2Done);
}

// ---- large path ----
inline C1 quarter_lookup(const float* q, std::int64_t qn, std::int64_t x) {
    const std::int64_t Q = qn / 4;
    x &= qn - 1;
    const std::int64_t quad = x / Q, r = x - quad * Q;
    const float c = q[Q - r], s = q[r];
    switch (quad) {
        case 0: return {c, -s};
        case 1: return {-s, -c};
        case 2: return {-c, s};
        default: return {s, c};
    }
}

void bitrev_tiles(const Gex32fc* src, Gex32fc* dst, int k, Gex32fc* buf) {
    const int midBits = k - 12;
    const std::int64_t rowStride = std::int64_t{1} << (k - 6);
    std::uint8_t r6[64];
    for (int i = 0; i < 64; ++i) r6[i] = static_cast<std::uint8_t>(rev_bits(static_cast<std::uint32_t>(i), 6));
    auto gather = [&](const Gex32fc* base, std::int64_t mid, Gex32fc* tile) {
        for (int hi = 0; hi < kTile; ++hi)
            std::memcpy(tile + hi * kTile, base + hi * rowStride + mid * kTile, kTile * sizeof(Gex32fc));
    };
    auto scatter = [&](const Gex32fc* tile, Gex32fc* base, std::int64_t rmid) {
        for (int a = 0; a < kTile; ++a) {
            Gex32fc* row = base + a * rowStride + rmid * kTile;
            const int la = r6[a];
            for (int c = 0; c < kTile; ++c) row[c] = tile[r6[c] * kTile + la];
        }
    };
    const std::int64_t mids = std::int64_t{1} << midBits;
    Gex32fc* t1 = buf;
    Gex32fc* t2 = buf + kTile * kTile;
    for (std::int64_t m = 0; m < mids; ++m) {
        const std::int64_t rm = rev_bits(static_cast<std::uint32_t>(m), midBits);
        if (src != dst) {
            gather(src, m, t1);
            scatter(t1, dst, rm);
        } else if (rm >= m) {
            gather(dst, m, t1);
            if (rm != m) gather(dst, rm, t2);
            scatter(t1, dst, rm);
            if (rm != m) scatter(t2, dst, m);
        }
    }
}

// Last b stages of a block of length 2^nb, column groups through the buffer.
template <bool INV>
void column_stages(Gex32fc* d, int nb, int b, const FftSpec* s, Gex32fc* buf, float scl, bool doScale, bool scalar) {
    const std::int64_t M = std::int64_t{1} << (nb - b), rows = std::int64_t{1} << b;
    const int G = kColGroup;
    const std::int64_t shift = s->quarterN >> nb;  // index multiplier into the quarter table
    alignas(64) Gex32fc w[3][kColGroup];
    for (std::int64_t c0 = 0; c0 < M; c0 += G) {
        for (std::int64_t r = 0; r < rows; ++r) std::memcpy(buf + r * G, d + c0 + r * M, G * sizeof(Gex32fc));
        for (std::int64_t Ls = 1; Ls < rows; Ls *= 4) {
            const bool fin = Ls * 4 >= rows;
            const std::int64_t L = Ls * M;  // span in the block
            for (std::int64_t jh = 0; jh < Ls; ++jh) {
                for (int t = 1; t <= 3; ++t)
                    for (int jj = 0; jj < G; ++jj) {
                        const std::int64_t j = jh * M + c0 + jj;
                        // w_(4L)^(j t) = w_(2^nb)^(j t 2^nb / 4L)
                        const C1 v = quarter_lookup(s->pQuarter, s->quarterN, j * t * ((std::int64_t{1} << nb) / (4 * L)) * shift);
                        w[t - 1][jj] = {v.re, v.im};
                    }
                for (std::int64_t g = 0; g < rows; g += 4 * Ls) {
                    Gex32fc* p0 = buf + (g + jh) * G;
                    Gex32fc* p1 = p0 + Ls * G;
                    Gex32fc* p2 = p1 + Ls * G;
                    Gex32fc* p3 = p2 + Ls * G;
                    auto body = [&](auto tag, int jj) {
                        using V = decltype(tag);
                        V a0 = ld<V>(p0 + jj), a1 = ld<V>(p2 + jj), a2 = ld<V>(p1 + jj), a3 = ld<V>(p3 + jj);
                        a1 = twiddle<INV>(a1, ldtw<V>(w[0] + jj));
                        a2 = twiddle<INV>(a2, ldtw<V>(w[1] + jj));
                        a3 = twiddle<INV>(a3, ldtw<V>(w[2] + jj));
                        dft4<INV>(a0, a1, a2, a3);
                        if (doScale && fin) a0 = scale(a0, scl), a1 = scale(a1, scl), a2 = scale(a2, scl), a3 = scale(a3, scl);
                        st(p0 + jj, a0);
                        st(p1 + jj, a1);
                        st(p2 + jj, a2);
                        st(p3 + jj, a3);
                    };
                    if (scalar)
                        for (int jj = 0; jj < G; ++jj) body(C1{}, jj);
                    else
                        for (int jj = 0; jj < G; jj += 8) body(C8{}, jj);
                }
            }
        }
        for (std::int64_t r = 0; r < rows; ++r) std::memcpy(d + c0 + r * M, buf + r * G, G * sizeof(Gex32fc));
    }
}

template <bool INV>
void large_stages(Gex32fc* d, int nb, const FftSpec* s, Gex32fc* buf, float scl, bool doScale, bool scalar) {
    if (nb <= 18) {
        first_pass_inplace<INV>(d, std::int64_t{1} << nb);
        radix4_passes<INV>(d, d, nb, s->pTwiddle, scl, doScale, scalar);
        return;
    }
    const int b = large_block(nb);
    const std::int64_t M = std::int64_t{1} << (nb - b);
    for (std::int64_t blk = 0; blk < (std::int64_t{1} << b); ++blk)
        large_stages<INV>(d + blk * M, nb - b, s, buf, 1.0f, false, scalar);
    column_stages<INV>(d, nb, b, s, buf, scl, doScale, scalar);
}

template <bool INV>
void run_complex(const Gex32fc* src, Gex32fc* dst, const FftSpec* s, Gex8u* buf, float scl, bool doScale) {
    const int c = s->corder;
    const bool scalar = s->scalarOnly != 0;
    Gex32fc* wb = reinterpret_cast<Gex32fc*>(fft::align64(buf));
    switch (s->plan) {
        case kFftSmall: small_fft<INV>(src, dst, c, scl, doScale); return;
        case kFftRadix4: {
            const std::int64_t n = std::int64_t{1} << c;
            Gex32fc* t = (src == dst) ? wb : dst;
            const bool odd = (c - 2) & 1;
            if (odd) {
                if (scalar) first8_pass_c1<INV>(src, t, n, s->pBitRev, s->pTwiddle);
                else first8_pass_c8<INV>(src, t, n, s->pBitRev, s->pTwiddle);
            } else {
                if (scalar) first_pass_c1<INV>(src, t, n, s->pBitRev);
                else first_pass_c8<INV>(src, t, n, s->pBitRev);
            }
            radix4_passes<INV>(t, dst, c, s->pTwiddle, scl, doScale, scalar, odd);
            return;
        }
        default:
            bitrev_tiles(src, dst, c, wb);
            large_stages<INV>(dst, c, s, wb, scl, doScale, scalar);
            return;
    }
}

}  // namespace

// ---- records ----
namespace fft {

namespace {
struct Layout {
    FftSpec* head;
    Gex32fc* tw;
    std::int32_t* br;
    Gex32fc* rec;
    float* quarter;
    std::int64_t quarterN;
    std::int64_t bytes;
};

Layout fft_layout(Gex8u* base, int order, bool real) {
    Arena a{base, 0};
    Layout l{};
    l.head = a.take<FftSpec>(1);
    const int c = real ? order - 1 : order;
    if (c >= 7 && c <= 18) {
        l.tw = a.take<Gex32fc>(radix4_tw_count(c));
        l.br = a.take<std::int32_t>((std::int64_t{1} << c) / 4 + 1);
    } else if (c > 18) {
        l.tw = a.take<Gex32fc>(radix4_tw_count(leaf_order(c)));
        l.quarterN = std::int64_t{1} << (real ? order : c);
        l.quarter = a.take<float>(l.quarterN / 4 + 1);
    }
    if (real && order >= 5 && c <= 18) l.rec = a.take<Gex32fc>((std::int64_t{1} << order) / 4 + 1);
    l.bytes = a.used;
    return l;
}
}  // namespace

std::int64_t fft_spec_bytes(int order, bool real) { return fft_layout(nullptr, order, real).bytes; }

std::int64_t fft_work_bytes(int order, bool real) {
    const int c = real ? order - 1 : order;
    if (c <= 6) return 0;
    if (c <= 18) return std::int64_t{8} << c;
    return std::max<std::int64_t>(65536, std::int64_t{8} << large_buf_order(c));
}

FftSpec* fft_build(Gex8u* base, int order, bool real, int flag, GexHintAlgorithm hint) {
    Layout l = fft_layout(base, order, real);
    FftSpec* s = l.head;
    std::memset(s, 0, sizeof(FftSpec));
    const std::int64_t n = std::int64_t{1} << order;
    scale_of_flag(flag, n, s->scaleFwd, s->scaleInv, s->normFactor);
    s->order = order;
    s->hint = hint;
    const int c = real ? order - 1 : order;
    s->corder = c;
    s->plan = c <= 6 ? kFftSmall : c <= 18 ? kFftRadix4 : kFftLarge;
    s->workSize = static_cast<std::int32_t>(fft_work_bytes(order, real));
    if (s->plan == kFftRadix4) {
        radix4_tw_fill(l.tw, c);
        const std::int64_t q = (std::int64_t{1} << c) / 4;
        for (std::int64_t r = 0; r < q; ++r) l.br[r] = static_cast<std::int32_t>(rev_bits(static_cast<std::uint32_t>(r), c - 2));
        l.br[q] = 0;
        s->pTwiddle = l.tw;
        s->pBitRev = l.br;
    } else if (s->plan == kFftLarge) {
        s->subOrder = leaf_order(c);
        radix4_tw_fill(l.tw, s->subOrder);
        s->pTwiddle = l.tw;
        quarter_wave(l.quarter, l.quarterN);
        s->pQuarter = l.quarter;
        s->quarterN = l.quarterN;
    }
    if (l.rec) {
        for (std::int64_t k = 0; k <= n / 4; ++k) l.rec[k] = twiddle64(k, n);
        s->pRealRec = l.rec;
    }
    s->id = real ? kIdFftR : kIdFftC;  // last: the record is complete
    return s;
}

void fft_run_c(const Gex32fc* src, Gex32fc* dst, const FftSpec* s, Gex8u* buf, bool inv) {
    const bool doScale = inv ? s->scaleInv != 0 : s->scaleFwd != 0;
    if (inv) run_complex<true>(src, dst, s, buf, s->normFactor, doScale);
    else run_complex<false>(src, dst, s, buf, s->normFactor, doScale);
}

namespace {
// One group of pairs (k.., m-k..) of the recombination: V holds W values of
// k ascending; the partners m-k are loaded reversed. Forward:
//   X_k = h ((A + conj B) + w^k ((A - conj B) (-i))),  B = Z_(m-k),
// and X_(m-k) the same with A, B exchanged (w^(m-k) = -conj w^k).
// Inverse: Z_k = s ((A + conj B) + i conj(w^k) (A - conj B)).
template <bool INV, class V>
inline void recombine_step(Gex32fc* z, std::int64_t k, std::int64_t m, const Gex32fc* tw, float h) {
    constexpr int W = width<V>;
    const std::int64_t j = m - k - (W - 1);
    const V A = ld<V>(z + k), B = reverse(ld<V>(z + j)), w = ld<V>(tw + k);
    const V cb = conj(B);
    const V e = add(A, cb), o = sub(A, cb);
    V xk, xj;
    if constexpr (!INV) {
        xk = scale(add(e, cmul(rot_m(o), w)), h);
        xj = scale(add(conj(e), cmul(swap(o), negre(w))), h);
    } else {
        xk = scale(add(e, rot_p(cmulc(o, w))), h);
        xj = scale(add(conj(e), rot_p(cmulc(negre(o), negre(w)))), h);
    }
    st(z + j, reverse(xj));
    st(z + k, xk);
}

template <bool INV>
void recombine(Gex32f* d, std::int64_t m, const Gex32fc* tw, float h, bool scalar) {
    Gex32fc* z = reinterpret_cast<Gex32fc*>(d);
    std::int64_t k = 1;
    if (!scalar)
        for (; k + 7 < m - k - 7; k += 8) recombine_step<INV, C8>(z, k, m, tw, h);
    for (; 2 * k < m; ++k) recombine_step<INV, C1>(z, k, m, tw, h);
    if (2 * k == m) {  // the self-paired middle bin
        const C1 A = ld<C1>(z + k), w = ld<C1>(tw + k);
        const C1 e = add(A, conj(A)), o = sub(A, conj(A));
        st(z + k, INV ? scale(add(e, rot_p(cmulc(o, w))), h) : scale(add(e, cmul(rot_m(o), w)), h));
    }
}
}  // namespace

void recombine_fwd(Gex32f* d, std::int64_t m, const Gex32fc* tw, float s, bool doScale, bool scalar) {
    const float sc = doScale ? s : 1.0f;
    const C1 z0 = {d[0], d[1]};
    d[0] = (z0.re + z0.im) * sc;
    d[1] = (z0.re - z0.im) * sc;
    recombine<false>(d, m, tw, 0.5f * sc, scalar);
}

void recombine_inv(Gex32f* d, std::int64_t m, const Gex32fc* tw, float s, bool doScale, bool scalar) {
    const float sc = doScale ? s : 1.0f;
    const float x0 = d[0], xm = d[1];
    d[0] = (x0 + xm) * sc;
    d[1] = (x0 - xm) * sc;
    recombine<true>(d, m, tw, sc, scalar);
}

void perm_to_pack(Gex32f* d, std::int64_t n) {
    if (n < 3) return;
    const Gex32f last = d[1];
    std::memmove(d + 1, d + 2, static_cast<std::size_t>(n - 2) * sizeof(Gex32f));
    d[n - 1] = last;
}
void pack_to_perm(Gex32f* d, std::int64_t n) {
    if (n < 3) return;
    const Gex32f last = d[n - 1];
    std::memmove(d + 2, d + 1, static_cast<std::size_t>(n - 2) * sizeof(Gex32f));
    d[1] = last;
}

namespace {
// Recombination twiddles of a large real record, in chunks through the buffer.
template <class F>
void chunked_recombine(Gex32f* d, std::int64_t m, const FftSpec* s, Gex8u* buf, F&& step) {
    Gex32fc* tw = reinterpret_cast<Gex32fc*>(align64(buf));
    const std::int64_t n = 2 * m, chunk = 4096;
    // The first chunk includes k = 0 handling in step(); later chunks are
    // passed as shifted tables.
    for (std::int64_t k0 = 0; 2 * k0 <= m; k0 += chunk) {
        const std::int64_t k1 = std::min(k0 + chunk, m / 2 + 1);
        for (std::int64_t k = k0; k < k1; ++k) {
            const C1 v = quarter_lookup(s->pQuarter, s->quarterN, k * (s->quarterN / n));
            tw[k - k0] = {v.re, v.im};
        }
        step(k0, k1, tw - k0);
    }
    (void)d;
}
}  // namespace

void fft_run_r_fwd(const Gex32f* src, Gex32f* dst, const FftSpec* s, Gex8u* buf, bool pack) {
    const std::int64_t n = std::int64_t{1} << s->order;
    const bool doScale = s->scaleFwd != 0;
    if (s->order == 0) {
        dst[0] = doScale ? src[0] * s->normFactor : src[0];
        return;
    }
    const std::int64_t m = n / 2;
    if (s->order <= 4 || s->pRealRec) {
        run_complex<false>(reinterpret_cast<const Gex32fc*>(src), reinterpret_cast<Gex32fc*>(dst), s, buf, 1.0f, false);
        if (s->pRealRec) {
            recombine_fwd(dst, m, s->pRealRec, s->normFactor, doScale, s->scalarOnly != 0);
        } else {
            Gex32fc tw[5];
            for (std::int64_t k = 0; k <= n / 4; ++k) tw[k] = kW64.w[k * (64 / n)];
            recombine_fwd(dst, m, tw, s->normFactor, doScale, true);
        }
    } else {
        // Large: the recombination runs after the transform; its twiddle
        // chunks reuse the work buffer.
        run_complex<false>(reinterpret_cast<const Gex32fc*>(src), reinterpret_cast<Gex32fc*>(dst), s, buf, 1.0f, false);
        // A whole-table recombination would need N/4 entries; do it by
        // chunks of k with their own twiddles (the pairs k, m-k are
        // independent of one another).
        const float sc = doScale ? s->normFactor : 1.0f, h = 0.5f * sc;
        Gex32fc* z = reinterpret_cast<Gex32fc*>(dst);
        const C1 z0 = {dst[0], dst[1]};
        dst[0] = (z0.re + z0.im) * sc;
        dst[1] = (z0.re - z0.im) * sc;
        chunked_recombine(dst, m, s, buf, [&](std::int64_t k0, std::int64_t k1, const Gex32fc* tw) {
            for (std::int64_t k = std::max<std::int64_t>(k0, 1); k < k1; ++k) {
                const std::int64_t j = m - k;
                const C1 A = ld<C1>(z + k), B = ld<C1>(z + j), w = ld<C1>(tw + k);
                const C1 e = {A.re + B.re, A.im - B.im}, o = {A.re - B.re, A.im + B.im};
                const C1 xk = scale(add(e, cmul(rot_m(o), w)), h);
                if (j != k) {
                    const C1 e2 = {e.re, -e.im}, ro2 = {o.im, o.re}, w2 = {-w.re, w.im};
                    st(z + j, scale(add(e2, cmul(ro2, w2)), h));
                }
                st(z + k, xk);
            }
        });
    }
    if (pack) perm_to_pack(dst, n);
}

void fft_run_r_inv(const Gex32f* src, Gex32f* dst, const FftSpec* s, Gex8u* buf, bool pack) {
    const std::int64_t n = std::int64_t{1} << s->order;
    const bool doScale = s->scaleInv != 0;
    if (s->order == 0) {
        dst[0] = doScale ? src[0] * s->normFactor : src[0];
        return;
    }
    const std::int64_t m = n / 2;
    if (src != dst) std::memcpy(dst, src, static_cast<std::size_t>(n) * sizeof(Gex32f));
    if (pack) pack_to_perm(dst, n);
    if (s->order <= 4 || s->pRealRec) {
        if (s->pRealRec) {
            recombine_inv(dst, m, s->pRealRec, s->normFactor, doScale, s->scalarOnly != 0);
        } else {
            Gex32fc tw[5];
            for (std::int64_t k = 0; k <= n / 4; ++k) tw[k] = kW64.w[k * (64 / n)];
            recombine_inv(dst, m, tw, s->normFactor, doScale, true);
        }
    } else {
        const float sc = doScale ? s->normFactor : 1.0f;
        Gex32fc* z = reinterpret_cast<Gex32fc*>(dst);
        const float x0 = dst[0], xm = dst[1];
        dst[0] = (x0 + xm) * sc;
        dst[1] = (x0 - xm) * sc;
        chunked_recombine(dst, m, s, buf, [&](std::int64_t k0, std::int64_t k1, const Gex32fc* tw) {
            for (std::int64_t k = std::max<std::int64_t>(k0, 1); k < k1; ++k) {
                const std::int64_t j = m - k;
                const C1 A = ld<C1>(z + k), B = ld<C1>(z + j), w = ld<C1>(tw + k);
                const C1 e = {A.re + B.re, A.im - B.im}, o = {A.re - B.re, A.im + B.im};
                const C1 zk = scale(add(e, rot_p(cmulc(o, w))), sc);
                if (j != k) {
                    const C1 e2 = {e.re, -e.im}, o2 = {-o.re, o.im}, w2 = {-w.re, w.im};
                    st(z + j, scale(add(e2, rot_p(cmulc(o2, w2))), sc));
                }
                st(z + k, zk);
            }
        });
    }
    run_complex<true>(reinterpret_cast<const Gex32fc*>(dst), reinterpret_cast<Gex32fc*>(dst), s, buf, 1.0f, false);
}

}  // namespace fft

void fft_force_scalar(FftSpec* s) { s->scalarOnly = 1; }

bool fft::fft_batch_ok(const FftSpec* s) { return s->id == kIdFftC && s->plan == kFftRadix4; }

void fft::fft_run_batch(SPtr src, SPtr dst, const FftSpec* s, Gex8u* buf, bool inv) {
    const int c = s->corder;
    const std::int64_t n = std::int64_t{1} << c;
    const bool doScale = inv ? s->scaleInv != 0 : s->scaleFwd != 0;
    const SPtr t = {align64(buf), 64};
    const bool odd = (c - 2) & 1;
    if (inv) {
        if (odd) first8_pass_c1<true, CB>(src, t, n, s->pBitRev, s->pTwiddle);
        else first_pass_c1<true, CB>(src, t, n, s->pBitRev);
        radix4_passes_t<true, 2>(t, dst, c, s->pTwiddle, s->normFactor, doScale, odd);
    } else {
        if (odd) first8_pass_c1<false, CB>(src, t, n, s->pBitRev, s->pTwiddle);
        else first_pass_c1<false, CB>(src, t, n, s->pBitRev);
        radix4_passes_t<false, 2>(t, dst, c, s->pTwiddle, s->normFactor, doScale, odd);
    }
}

// The batched forward transform in two parts, split at a span B where a
// stage ends. The first pass and the passes of spans below B only ever
// combine the B consecutive outputs of one block: the group of the first
// pass at place 4p (8p for odd stage counts) reads the inputs
// r + (n/4) k (r + (n/8) k) with r the reversal of p (of 2p), so with those
// inputs laid out in that order a block depends on nothing else. The passes
// of span B and above only combine the n/B elements j + B u of one offset j.
// Run block by block and offset by offset, every element goes through the
// operations of fft_run_batch in the same order (two fused passes are the
// two passes one after the other), so the bits are the same. The head, and a
// tail of more than one pass, run between the data and the work buffer: rows
// a power-of-two step apart share their cache sets, the buffer's contiguous
// elements do not.
namespace {
// The passes of spans L0 <= L < L1 over m elements: pass p reads `in` when
// it is the first, writes `out` when it is the last and the buffer t
// otherwise. The element at view place v (of the m) has the index o + S v of
// the whole transform: the twiddles are those of its offset there.
void split_passes(SPtr in, SPtr out, SPtr t, std::int64_t m, std::int64_t o, std::int64_t S, std::int64_t L0,
                  std::int64_t L1, const FftSpec* s, bool last) {
    const std::int64_t n = std::int64_t{1} << s->corder;
    const float scl = s->normFactor;
    const bool doScale = last && s->scaleFwd != 0;
    bool first = true;
    for (std::int64_t L = L0; L < L1;) {
        const Gex32fc* tw = s->pTwiddle + (L - 4);  // the tables of span L start at L - 4 for either parity
        const std::int64_t Lv = L / S;               // span in view places
        // two spans at a time while both are left; pairing them otherwise
        // than fft_run_batch does changes no operation
        const bool pair = 4 * L <= n / 4 && 16 * L <= L1;
        const std::int64_t next = pair ? 16 * L : 4 * L;
        const SPtr src = first ? in : t, dst = next >= L1 ? out : t;
        const bool fin = next >= L1 && doScale;
        for (std::int64_t h = 0; h < m; h += (pair ? 16 : 4) * Lv)
            for (std::int64_t i = 0; i < Lv; ++i) {
                if (pair) r4x2_at<false, CB>(src + h, dst + h, i, Lv, o + S * i, L, tw, tw + 3 * L, scl, fin);
                else r4_at<false, CB>(src + h, dst + h, i, Lv, o + S * i, L, tw, scl, fin);
            }
        first = false;
        L = next;
    }
}
}  // namespace

bool fft::fft_split_ok(const FftSpec* s, std::int64_t B) {
    if (!fft_batch_ok(s) || s->corder < kSplitMinOrder || s->corder > kSplitMaxOrder) return false;
    const std::int64_t n = std::int64_t{1} << s->corder;
    // B is 16, 64, 256, ... (32, 128, 512, ... when the first pass also runs
    // the radix-2 stage), below n/4 so that the tail keeps a pass
    const int lb = std::countr_zero(static_cast<std::uint64_t>(B));
    return B > 0 && (B & (B - 1)) == 0 && lb >= 4 && (lb & 1) == ((s->corder - 2) & 1) && B <= n / 4;
}

std::int64_t fft::fft_split_block(const FftSpec* s, std::int64_t room) {
    // the first pass and one fused pair: blocks of 64 rows (128 when the
    // first pass also runs the radix-2 stage); smaller blocks leave each of
    // their passes too little work to gain from the cache
    const std::int64_t B = (s->corder - 2) & 1 ? 128 : 64;
    const std::int64_t n = std::int64_t{1} << s->corder;
    if (!fft_split_ok(s, B) || 64 * B > room || 64 * (n / B) > room) return 0;
    return B;
}

std::int64_t fft::fft_split_input(const FftSpec* s, std::int64_t i) {
    const std::int64_t n = std::int64_t{1} << s->corder;
    if ((s->corder - 2) & 1) return s->pBitRev[2 * (i >> 3)] + (n / 8) * (i & 7);
    return s->pBitRev[i >> 2] + (n / 4) * (i & 3);
}

void fft::fft_split_head(SPtr blk, const FftSpec* s, std::int64_t B, Gex8u* buf) {
    const SPtr t = {align64(buf), 64};
    std::int64_t L;
    if ((s->corder - 2) & 1) {
        for (std::int64_t p = 0; p < B; p += 8) first8_one<false, CB>(blk + p, blk + (p + 1), 2, t + p, s->pTwiddle);
        L = 8;
    } else {
        for (std::int64_t p = 0; p < B; p += 4) first_one<false, CB>(blk + p, 1, t + p);
        L = 4;
    }
    split_passes(t, blk, t, B, 0, 1, L, B, s, false);
}

void fft::fft_split_tail(SPtr data, std::int64_t groups, const FftSpec* s, std::int64_t B, std::int64_t j, Gex8u* buf) {
    const std::int64_t n = std::int64_t{1} << s->corder;
    const SPtr t = {align64(buf), 64};
    const float scl = s->normFactor;
    const bool doScale = s->scaleFwd != 0;
    const Gex32fc* tw = s->pTwiddle + (B - 4);
    if (n / B == 16) {  // one fused pair, in place
        for (std::int64_t g = 0; g < groups; ++g) {
            const SPtr d = {data.base + 64 * g, data.step};
            r4x2_one<false, CB>(d, d, j, B, tw, tw + 3 * B, scl, doScale);
        }
        return;
    }
    for (std::int64_t g = 0; g < groups; ++g) {
        const SPtr v = {data.base + 64 * g + j * data.step, B * data.step};
        split_passes(v, v, t, n / B, j, B, B, n, s, true);
    }
}

void fft::small_fft_run(const Gex32fc* src, Gex32fc* dst, int order, bool inv, float scl, bool doScale) {
    if (inv) small_fft<true>(src, dst, order, scl, doScale);
    else small_fft<false>(src, dst, order, scl, doScale);
}

// ---- checked entry points ----
namespace {

GexStatus fft_get_size(int order, int flag, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize, bool real) {
    const int hardLimit = real ? 29 : 28;
    if (order > 30 || order < 0) return gexStsFFTOrder;
    GEX_CHECK(check_null(pSpecSize, pSpecBufferSize, pBufferSize));
    std::int32_t f, i;
    float x;
    if (!fft::scale_of_flag(flag, 1, f, i, x)) return gexStsFFTFlag;
    if (order > hardLimit) return gexStsFFTOrder;
    const int c = real ? order - 1 : order;
    const std::int64_t n = std::int64_t{1} << order;
    std::int64_t recordBytes, specBuf = 0, work = 0;
    if (c <= 6 && (!real || order <= 4)) {
        recordBytes = 208;
    } else if (c <= 6) {
        recordBytes = 256 + fft::align64up(8 * (n / 4 + 1));
    } else {
        const std::int64_t nc = std::int64_t{1} << c;
        if (c <= 18) {
            recordBytes = fft::align64down(8 * nc + 71) + fft::align64down(nc + 67) + 256;
            if (real) recordBytes += fft::align64up(8 * (n / 4 + 1));
        } else {
            recordBytes = fft::fft_spec_bytes(order, real) + 256;
        }
        work = fft::fft_work_bytes(order, real) + 64;
    }
    if (order >= 11) specBuf = fft::align64down(n + 67) + 64;
    *pSpecSize = static_cast<int>(recordBytes);
    *pSpecBufferSize = static_cast<int>(specBuf);
    *pBufferSize = static_cast<int>(work);
    return gexStsOk;
}

GexStatus fft_init(FftSpec** ppSpec, int order, int flag, GexHintAlgorithm hint, Gex8u* pSpec, Gex8u* pSpecBuffer,
                   bool real) {
    if (ppSpec == nullptr) return gexStsNullPtr;
    if (order < 0 || (real ? order > 29 : order >= 29)) return gexStsFFTOrder;
    if (pSpec == nullptr) return gexStsNullPtr;
    std::int32_t f, i;
    float x;
    if (!fft::scale_of_flag(flag, 1, f, i, x)) return gexStsFFTFlag;
    if (order >= 11 && pSpecBuffer == nullptr) return gexStsNullPtr;
    *ppSpec = fft::fft_build(fft::align64(pSpec), order, real, flag, hint);
    return gexStsOk;
}

template <class S, class D>
GexStatus run_checks(const S* pSrc, const D* pDst, const FftSpec* pSpec, const Gex8u* pBuffer, std::int32_t id) {
    if (pSpec == nullptr) return gexStsNullPtr;
    if (pSpec->id != id) return gexStsContextMatch;
    GEX_CHECK(check_null(pSrc, pDst));
    if (pBuffer == nullptr && pSpec->workSize > 0) return gexStsNullPtr;
    return gexStsOk;
}

}  // namespace

GexStatus gexsFFTGetSize_C_32fc(int order, int flag, GexHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize) {
    return fft_get_size(order, flag, pSpecSize, pSpecBufferSize, pBufferSize, false);
}
GexStatus gexsFFTGetSize_R_32f(int order, int flag, GexHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize) {
    return fft_get_size(order, flag, pSpecSize, pSpecBufferSize, pBufferSize, true);
}
GexStatus gexsFFTInit_C_32fc(FftSpec** ppSpec, int order, int flag, GexHintAlgorithm hint, Gex8u* pSpec,
                             Gex8u* pSpecBuffer) {
    return fft_init(ppSpec, order, flag, hint, pSpec, pSpecBuffer, false);
}
GexStatus gexsFFTInit_R_32f(FftSpec** ppSpec, int order, int flag, GexHintAlgorithm hint, Gex8u* pSpec,
                            Gex8u* pSpecBuffer) {
    return fft_init(ppSpec, order, flag, hint, pSpec, pSpecBuffer, true);
}
GexStatus gexsFFTFwd_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftC));
    fft::fft_run_c(pSrc, pDst, pSpec, pBuffer, false);
    return gexStsOk;
}
GexStatus gexsFFTInv_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftC));
    fft::fft_run_c(pSrc, pDst, pSpec, pBuffer, true);
    return gexStsOk;
}
GexStatus gexsFFTFwd_RToPack_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftR));
    fft::fft_run_r_fwd(pSrc, pDst, pSpec, pBuffer, true);
    return gexStsOk;
}
GexStatus gexsFFTFwd_RToPerm_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftR));
    fft::fft_run_r_fwd(pSrc, pDst, pSpec, pBuffer, false);
    return gexStsOk;
}
GexStatus gexsFFTInv_PackToR_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftR));
    fft::fft_run_r_inv(pSrc, pDst, pSpec, pBuffer, true);
    return gexStsOk;
}
GexStatus gexsFFTInv_PermToR_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(run_checks(pSrc, pDst, pSpec, pBuffer, kIdFftR));
    fft::fft_run_r_inv(pSrc, pDst, pSpec, pBuffer, false);
    return gexStsOk;
}

}  // namespace gex

#pragma GCC diagnostic pop
