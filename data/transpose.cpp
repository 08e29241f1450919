// Transpose: dst(x = y', y = x') = src(x', y') for 8u, 16u, 16s, 32s and 32f
// in C1, C3 and C4, out of place and in place (square ROIs only).
//
// The kernels see pixels of P bytes; see transpose_kernels.hpp for the
// vector blocks. No step is checked: any step is used as given.
// GCC 12 reports the undefined pass-through operand inside the unmasked
// permute, unpack and extract intrinsics as uninitialized.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

#include <immintrin.h>

#include <algorithm>
#include <cstring>

#include "data/transpose_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"

namespace gex {

namespace transpose_kernels {

namespace {

template <int U>
inline __m512i unpack_lo(__m512i a, __m512i b) {
    if constexpr (U == 1) return _mm512_unpacklo_epi8(a, b);
    else if constexpr (U == 2) return _mm512_unpacklo_epi16(a, b);
    else if constexpr (U == 4) return _mm512_unpacklo_epi32(a, b);
    else return _mm512_unpacklo_epi64(a, b);
}

template <int U>
inline __m512i unpack_hi(__m512i a, __m512i b) {
    if constexpr (U == 1) return _mm512_unpackhi_epi8(a, b);
    else if constexpr (U == 2) return _mm512_unpackhi_epi16(a, b);
    else if constexpr (U == 4) return _mm512_unpackhi_epi32(a, b);
    else return _mm512_unpackhi_epi64(a, b);
}

// One round of the in-lane transpose, with units of U bytes and S = 2^round.
// Register j = (row bits not yet moved) * S + (column bits gathered so far);
// the pair differing in the lowest remaining row bit goes to one low and one
// high unpack, which gather the next column bit. After the last round,
// register j holds column j of each lane, rows in order.
template <int U, int L, int S>
inline void unpack_round(__m512i (&v)[L]) {
    __m512i t[L];
#pragma GCC unroll 16
    for (int rp = 0; rp < L / (2 * S); ++rp)
#pragma GCC unroll 16
        for (int cb = 0; cb < S; ++cb) {
            const int j0 = 2 * rp * S + cb, j1 = j0 + S;
            t[2 * rp * S + 2 * cb] = unpack_lo<U>(v[j0], v[j1]);
            t[2 * rp * S + 2 * cb + 1] = unpack_hi<U>(v[j0], v[j1]);
        }
#pragma GCC unroll 16
    for (int j = 0; j < L; ++j) v[j] = t[j];
}

template <int P>
inline void transpose_lanes(__m512i (&v)[16 / P]) {
    constexpr int L = 16 / P;
    if constexpr (L >= 2) unpack_round<P, L, 1>(v);
    if constexpr (L >= 4) unpack_round<2 * P, L, 2>(v);
    if constexpr (L >= 8) unpack_round<4 * P, L, 4>(v);
    if constexpr (L >= 16) unpack_round<8 * P, L, 8>(v);
}

inline __m128i lane(__m512i v, int q) {
    switch (q) {
        case 0: return _mm512_castsi512_si128(v);
        case 1: return _mm512_extracti32x4_epi32(v, 1);
        case 2: return _mm512_extracti32x4_epi32(v, 2);
        default: return _mm512_extracti32x4_epi32(v, 3);
    }
}

// One block: source row r is b + r * st, loaded under lm; destination row c
// (source column c of the block) is d + c * ds. Full blocks are L rows by
// 64/P columns; others have bh rows and bw columns.
template <int P, bool Anti, bool Full>
inline void block(const std::uint8_t* b, std::int64_t st, __mmask64 lm, std::uint8_t* d, std::int64_t ds, int bw,
                  int bh) {
    constexpr int L = 16 / P;
    __m512i v[L];
#pragma GCC unroll 16
    for (int r = 0; r < L; ++r) {
        if (Full || r < bh) {
            v[r] = Full ? _mm512_loadu_si512(b + r * st) : _mm512_maskz_loadu_epi8(lm, b + r * st);
            if constexpr (Anti) v[r] = reverse_units<P>(v[r]);
        } else {
            v[r] = _mm512_setzero_si512();
        }
    }
    transpose_lanes<P>(v);
    const __mmask16 sm = simd::tail_mask16(static_cast<std::int64_t>(bh) * P);
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q)
#pragma GCC unroll 16
        for (int j = 0; j < L; ++j) {
            const int col = q * L + j;
            if (!Full && col >= bw) continue;
            std::uint8_t* o = d + col * ds;
            if (Full) _mm_storeu_si128(reinterpret_cast<__m128i*>(o), lane(v[j], q));
            else _mm_mask_storeu_epi8(o, sm, lane(v[j], q));
        }
}

// Column stripes of 64/P source columns (that many destination rows), walked
// down the source, so each destination row fills left to right.
template <int P, bool Anti>
void transpose_vec(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                   std::int64_t H) {
    constexpr int L = 16 / P, C = 64 / P;
    for (std::int64_t bx = 0; bx < W; bx += C) {
        const int bw = static_cast<int>(std::min<std::int64_t>(C, W - bx));
        // Anti: the 64 bytes that end at source column W-1-bx, loaded from the
        // top; the block's columns are the high bw units, reversed afterwards.
        const __mmask64 lm = Anti ? ~simd::tail_mask64(static_cast<std::int64_t>(C - bw) * P)
                                  : simd::tail_mask64(static_cast<std::int64_t>(bw) * P);
        const std::int64_t st = Anti ? -ss : ss;
        auto rows = [&](std::int64_t by) {
            return Anti ? s + (H - 1 - by) * ss + (W - bx - C) * P : s + by * ss + bx * P;
        };
        std::uint8_t* dcol = d + bx * ds;
        std::int64_t by = 0;
        if (bw == C)
            for (; by + L <= H; by += L) block<P, Anti, true>(rows(by), st, lm, dcol + by * P, ds, C, L);
        for (; by < H; by += L)
            block<P, Anti, false>(rows(by), st, lm, dcol + by * P, ds, bw,
                                  static_cast<int>(std::min<std::int64_t>(L, H - by)));
    }
}

// Pixel sizes without a vector block: 32 x 32 tiles of pixel moves.
template <int P>
void transpose_tiles(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                     std::int64_t H) {
    constexpr std::int64_t T = 32;
    for (std::int64_t by = 0; by < H; by += T)
        for (std::int64_t bx = 0; bx < W; bx += T) {
            const std::int64_t ye = std::min(H, by + T), xe = std::min(W, bx + T);
            for (std::int64_t y = by; y < ye; ++y) {
                const std::uint8_t* sr = s + y * ss;
                for (std::int64_t x = bx; x < xe; ++x) std::memcpy(d + x * ds + y * P, sr + x * P, P);
            }
        }
}

}  // namespace

void transpose_2d(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                  std::int64_t H, int P) {
    if (W <= 0 || H <= 0) return;
    switch (P) {
        case 1: transpose_vec<1, false>(s, ss, d, ds, W, H); break;
        case 2: transpose_vec<2, false>(s, ss, d, ds, W, H); break;
        case 4: transpose_vec<4, false>(s, ss, d, ds, W, H); break;
        case 8: transpose_vec<8, false>(s, ss, d, ds, W, H); break;
        case 3: transpose_tiles<3>(s, ss, d, ds, W, H); break;
        case 6: transpose_tiles<6>(s, ss, d, ds, W, H); break;
        case 12: transpose_tiles<12>(s, ss, d, ds, W, H); break;
        default: transpose_tiles<16>(s, ss, d, ds, W, H); break;
    }
}

void anti_transpose_2d(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                       std::int64_t H, int P) {
    if (W <= 0 || H <= 0) return;
    switch (P) {
        case 1: transpose_vec<1, true>(s, ss, d, ds, W, H); break;
        case 2: transpose_vec<2, true>(s, ss, d, ds, W, H); break;
        default: transpose_vec<4, true>(s, ss, d, ds, W, H); break;
    }
}

void transpose_square_inplace(std::uint8_t* p, std::int64_t step, std::int64_t n, int P) {
    const std::int64_t T = P <= 4 ? 64 : 32;  // T * T * P <= 16 KB
    alignas(64) std::uint8_t tmp[64 * 64 * 4];
    auto copy_back = [&](std::uint8_t* dst, std::int64_t w, std::int64_t h) {  // tmp (w x h, tight) -> dst
        for (std::int64_t y = 0; y < h; ++y) std::memcpy(dst + y * step, tmp + y * w * P, static_cast<std::size_t>(w * P));
    };
    for (std::int64_t I = 0; I < n; I += T) {
        const std::int64_t hI = std::min(T, n - I);
        for (std::int64_t J = I; J < n; J += T) {
            const std::int64_t wJ = std::min(T, n - J);
            std::uint8_t* a = p + I * step + J * P;  // rows I.., columns J..: wJ x hI
            transpose_2d(a, step, tmp, hI * P, wJ, hI, P);
            if (I == J) {
                copy_back(a, hI, wJ);
            } else {
                std::uint8_t* b = p + J * step + I * P;  // rows J.., columns I..: hI x wJ
                transpose_2d(b, step, a, step, hI, wJ, P);
                copy_back(b, hI, wJ);
            }
        }
    }
}

void transpose_ref(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                   std::int64_t H, int P) {
    for (std::int64_t y = 0; y < H; ++y)
        for (std::int64_t x = 0; x < W; ++x)
            for (int k = 0; k < P; ++k) d[x * ds + y * P + k] = s[y * ss + x * P + k];
}

void anti_transpose_ref(const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds, std::int64_t W,
                        std::int64_t H, int P) {
    // The destination is H wide and W high.
    for (std::int64_t y = 0; y < W; ++y)
        for (std::int64_t x = 0; x < H; ++x)
            for (int k = 0; k < P; ++k) d[y * ds + x * P + k] = s[(H - 1 - x) * ss + (W - 1 - y) * P + k];
}

}  // namespace transpose_kernels

namespace {

// Checks null, then size; the kernels take the ROI as is.
template <class T, int CH>
GexStatus transpose_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    transpose_kernels::transpose_2d(reinterpret_cast<const std::uint8_t*>(pSrc), srcStep,
                                    reinterpret_cast<std::uint8_t*>(pDst), dstStep, roi.width, roi.height,
                                    CH * static_cast<int>(sizeof(T)));
    return gexStsOk;
}

// In place: null, size, then the ROI must be square.
template <class T, int CH>
GexStatus transpose_inplace(T* p, int step, GexiSize roi) {
    GEX_CHECK(check_null(p));
    GEX_CHECK(check_roi(roi));
    if (roi.width != roi.height) return gexStsSize;
    transpose_kernels::transpose_square_inplace(reinterpret_cast<std::uint8_t*>(p), step, roi.width,
                                                CH * static_cast<int>(sizeof(T)));
    return gexStsOk;
}

}  // namespace

}  // namespace gex

// pSrc = pDst hands the call to the in-place form with the source step.
#define GEX_TRANSPOSE_FORM(D, T, C, CH)                                                                  \
    GEX_EXPORT(GexStatus, gexiTranspose_##D##_##C##IR, (T * pSrcDst, int srcDstStep, GexiSize roiSize)) {  \
        return transpose_inplace<T, CH>(pSrcDst, srcDstStep, roiSize);                                   \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiTranspose_##D##_##C##R,                                                    \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize)) {                   \
        if (pSrc == pDst) return gex::gexiTranspose_##D##_##C##IR(pDst, srcStep, roiSize);              \
        return transpose_image<T, CH>(pSrc, srcStep, pDst, dstStep, roiSize);                            \
    }

#define GEX_TRANSPOSE_DEPTH(D, T)      \
    GEX_TRANSPOSE_FORM(D, T, C1, 1)    \
    GEX_TRANSPOSE_FORM(D, T, C3, 3)    \
    GEX_TRANSPOSE_FORM(D, T, C4, 4)

GEX_TRANSPOSE_DEPTH(8u, Gex8u)
GEX_TRANSPOSE_DEPTH(16u, Gex16u)
GEX_TRANSPOSE_DEPTH(16s, Gex16s)
GEX_TRANSPOSE_DEPTH(32s, Gex32s)
GEX_TRANSPOSE_DEPTH(32f, Gex32f)
