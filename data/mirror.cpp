// Mirror: flips an image about its horizontal axis (flip 0), its vertical
// axis (1) or both (2), for 8u, 16u, 16s, 32s and 32f in C1, C3, C4 and AC4,
// out of place and in place. gexiMirror_{8u,16u,32s}_C1R also flip about the
// main diagonal (3, a transpose) and the other diagonal (4).
//
// Checks:
//   * gexiMirror_{8u,16u,32s}_C1R with flip 3 or 4: null, steps, size, then
//     the overlap rule (some corner of one ROI inside a row of the other gives
//     gexStsNotSupportedMode), then the flip.
//   * Any other not-in-place call with pSrc = pDst goes to the in-place form,
//     with the source step.
//   * Otherwise null, size, then (only in gexiMirror_{8u,16u,32s}_C1R, the
//     forms that check steps at all) steps < 1, then the flip value.
//   * The in-place forms, and every other not-in-place form, take any step.
// flip 0 copies the rows in reverse order through the copy engine (its
// source walked upwards); flips 1 and 2 reverse each row into the destination
// row y or height - 1 - y. In place, flip 0 exchanges rows y and height-1-y
// (a middle row stays), flip 1 reverses each row, flip 2 exchanges reversed
// row pairs and reverses a middle row on its own.
// GCC 12 reports the undefined pass-through operand inside the unmasked
// permute, unpack and extract intrinsics as uninitialized.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

#include <immintrin.h>

#include <algorithm>
#include <cstring>

#include "data/copy.hpp"
#include "data/mirror_kernels.hpp"
#include "data/transpose_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"

namespace gex {

namespace mirror_kernels {

namespace {

using transpose_kernels::reverse_units;

// Bytes of the first three channels of 4E-byte pixels, over 64 bytes.
constexpr std::uint64_t ac4_bytes(int E) {
    std::uint64_t m = 0;
    for (int b = 0; b < 64; ++b)
        if (b % (4 * E) < 3 * E) m |= std::uint64_t{1} << b;
    return m;
}

// Whole P-byte pixels. `pat` selects the bytes that move (all of them unless AC4).
template <int P, bool AC4>
void reverse_px(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, std::uint64_t pat) {
    constexpr std::int64_t L = 64 / P;
    std::int64_t x = 0;
    for (; x + L <= n; x += L) {
        const std::uint8_t* src = s + (n - x - L) * P;
        if constexpr (AC4) {
            _mm512_mask_storeu_epi8(d + x * P, pat, reverse_units<P>(_mm512_maskz_loadu_epi8(pat, src)));
        } else {
            _mm512_storeu_si512(d + x * P, reverse_units<P>(_mm512_loadu_si512(src)));
        }
    }
    if (x < n) {
        // The window ends at the row's first pixel: only its high r pixels are loaded.
        const std::int64_t r = n - x;
        const __mmask64 lm = pat & ~simd::tail_mask64((L - r) * P);
        const __m512i v = reverse_units<P>(_mm512_maskz_loadu_epi8(lm, s + (r - L) * P));
        _mm512_mask_storeu_epi8(d + x * P, pat & simd::tail_mask64(r * P), v);
    }
}

// Load masks of the three-channel reversal: [o mod 3][channel k] for a chunk
// whose first element is element o of the destination row. Destination
// element i of the chunk comes from lane L-1-i of the loaded register.
struct C3Masks {
    std::uint64_t m[3][3];
};

template <int E>
constexpr C3Masks make_c3_masks() {
    constexpr int L = 64 / E;
    C3Masks t{};
    for (int r = 0; r < 3; ++r)
        for (int i = 0; i < L; ++i)
            for (int b = 0; b < E; ++b) t.m[r][(r + i) % 3] |= std::uint64_t{1} << ((L - 1 - i) * E + b);
    return t;
}

template <int E>
constexpr C3Masks kC3Masks = make_c3_masks<E>();

template <int E, bool Full>
inline __m512i gather_c3_reversed(const std::uint8_t* p, const std::uint64_t (&m)[3], std::uint64_t lim) {
    __m512i v = Full ? _mm512_loadu_si512(p) : _mm512_maskz_loadu_epi8(m[1] & lim, p);
    v = _mm512_mask_loadu_epi8(v, m[0] & lim, p - 2 * E);
    v = _mm512_mask_loadu_epi8(v, m[2] & lim, p + 2 * E);
    return reverse_units<E>(v);
}

// Three channels of E bytes: destination element b (channel k = b mod 3)
// takes source element 3n - 1 - b + 2k - 2. The window of channel 1 for the
// chunk at element o starts at element 3n - L - o; a full chunk reads it with
// a plain load and merges channels 0 and 2 over it. The chunk phases cycle
// with period 3, so the main loop takes three chunks with fixed masks.
template <int E>
void reverse_c3(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    constexpr std::int64_t L = 64 / E;
    constexpr int r1 = static_cast<int>(L % 3), r2 = static_cast<int>(2 * L % 3);
    constexpr std::uint64_t all = ~std::uint64_t{0};
    const C3Masks M = kC3Masks<E>;
    const std::int64_t N = 3 * n;
    const std::uint8_t* base = s + (N - L) * E;
    std::int64_t o = 0;
    for (; o + 3 * L <= N; o += 3 * L) {
        const std::uint8_t* p = base - o * E;
        _mm512_storeu_si512(d + o * E, gather_c3_reversed<E, true>(p, M.m[0], all));
        _mm512_storeu_si512(d + (o + L) * E, gather_c3_reversed<E, true>(p - 64, M.m[r1], all));
        _mm512_storeu_si512(d + (o + 2 * L) * E, gather_c3_reversed<E, true>(p - 128, M.m[r2], all));
    }
    int r = 0;
    for (; o + L <= N; o += L) {
        _mm512_storeu_si512(d + o * E, gather_c3_reversed<E, true>(base - o * E, M.m[r], all));
        r = (r + r1) % 3;  // o mod 3
    }
    if (o < N) {
        const std::int64_t cnt = N - o;
        const std::uint64_t hi = ~simd::tail_mask64((L - cnt) * E);
        _mm512_mask_storeu_epi8(d + o * E, simd::tail_mask64(cnt * E),
                                gather_c3_reversed<E, false>(base - o * E, M.m[r], hi));
    }
}

constexpr std::int64_t kPiece = 192;  // bytes; a whole number of pixels for every pixel size

inline std::uint64_t move_mask(RowFormat f) { return f.ac4 ? ac4_bytes(f.E) : ~std::uint64_t{0}; }

std::int64_t floor_div(std::int64_t a, std::int64_t b) {
    std::int64_t q = a / b;
    if (a % b != 0 && ((a < 0) != (b < 0))) --q;
    return q;
}

// Does the element [c, c + E) share a byte with one of `rows` rows of
// rowBytes bytes at base + y * step (step > 0)?
bool touches_rows(std::int64_t c, int E, std::int64_t base, std::int64_t step, std::int64_t rowBytes,
                  std::int64_t rows) {
    const std::int64_t lo = std::max<std::int64_t>(floor_div(c - base - rowBytes, step) + 1, 0);
    const std::int64_t hi = std::min<std::int64_t>(floor_div(c + E - 1 - base, step), rows - 1);
    return lo <= hi;
}

}  // namespace

void reverse_row(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, RowFormat f) {
    if (n <= 0) return;
    if (f.ch == 3) {
        if (f.E == 1) reverse_c3<1>(s, d, n);
        else if (f.E == 2) reverse_c3<2>(s, d, n);
        else reverse_c3<4>(s, d, n);
        return;
    }
    const std::uint64_t pat = move_mask(f);
    switch (f.pixel()) {
        case 1: reverse_px<1, false>(s, d, n, pat); break;
        case 2: reverse_px<2, false>(s, d, n, pat); break;
        case 4: f.ac4 ? reverse_px<4, true>(s, d, n, pat) : reverse_px<4, false>(s, d, n, pat); break;
        case 8: f.ac4 ? reverse_px<8, true>(s, d, n, pat) : reverse_px<8, false>(s, d, n, pat); break;
        default: f.ac4 ? reverse_px<16, true>(s, d, n, pat) : reverse_px<16, false>(s, d, n, pat); break;
    }
}

void reverse_row_ref(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, RowFormat f) {
    const int P = f.pixel();
    for (std::int64_t x = 0; x < n; ++x)
        for (int c = 0; c < f.ch; ++c) {
            if (f.ac4 && c == 3) continue;
            for (int b = 0; b < f.E; ++b) d[x * P + c * f.E + b] = s[(n - 1 - x) * P + c * f.E + b];
        }
}

void reverse_row_inplace(std::uint8_t* row, std::int64_t n, RowFormat f) {
    const int P = f.pixel();
    const std::int64_t K = kPiece / P;
    alignas(64) std::uint8_t tmp[2 * kPiece];
    std::int64_t i = 0;
    // A piece from each end: the left one is kept aside, the right one
    // reversed onto it, the kept one reversed onto the right.
    for (; n - 2 * i >= 2 * K; i += K) {
        std::uint8_t* l = row + i * P;
        std::uint8_t* r = row + (n - i - K) * P;
        std::memcpy(tmp, l, kPiece);
        reverse_row(r, l, K, f);
        reverse_row(tmp, r, K, f);
    }
    const std::int64_t m = n - 2 * i;  // the middle, fewer than 2K pixels
    if (m > 1) {
        std::memcpy(tmp, row + i * P, static_cast<std::size_t>(m * P));
        reverse_row(tmp, row + i * P, m, f);
    }
}

void exchange_rows(std::uint8_t* a, std::uint8_t* b, std::int64_t n, RowFormat f) {
    const std::int64_t bytes = n * f.pixel();
    const std::uint64_t pat = move_mask(f);
    for (std::int64_t o = 0; o < bytes; o += 64) {
        const __mmask64 m = pat & simd::tail_mask64(bytes - o);
        const __m512i va = _mm512_maskz_loadu_epi8(m, a + o);
        const __m512i vb = _mm512_maskz_loadu_epi8(m, b + o);
        _mm512_mask_storeu_epi8(a + o, m, vb);
        _mm512_mask_storeu_epi8(b + o, m, va);
    }
}

void exchange_reversed_rows(std::uint8_t* a, std::uint8_t* b, std::int64_t n, RowFormat f) {
    const int P = f.pixel();
    const std::int64_t K = kPiece / P;
    alignas(64) std::uint8_t tmp[kPiece];
    // Piece [i, i + c) of a pairs with piece [n - i - c, n - i) of b.
    for (std::int64_t i = 0; i < n; i += K) {
        const std::int64_t c = std::min(K, n - i);
        std::uint8_t* ap = a + i * P;
        std::uint8_t* bp = b + (n - i - c) * P;
        std::memcpy(tmp, ap, static_cast<std::size_t>(c * P));
        reverse_row(bp, ap, c, f);
        reverse_row(tmp, bp, c, f);
    }
}

bool diagonal_rois_overlap(const void* src, std::int64_t ss, const void* dst, std::int64_t ds, std::int64_t W,
                           std::int64_t H, int E) {
    const auto s = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(src));
    const auto d = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(dst));
    for (std::int64_t y : {std::int64_t{0}, H - 1})
        for (std::int64_t x : {std::int64_t{0}, W - 1})
            if (touches_rows(s + y * ss + x * E, E, d, ds, H * E, W)) return true;
    for (std::int64_t y : {std::int64_t{0}, W - 1})
        for (std::int64_t x : {std::int64_t{0}, H - 1})
            if (touches_rows(d + y * ds + x * E, E, s, ss, W * E, H)) return true;
    return false;
}

}  // namespace mirror_kernels

namespace {

using mirror_kernels::RowFormat;

template <class T, int CH, bool AC4>
constexpr RowFormat kFormat{static_cast<int>(sizeof(T)), CH, AC4};

template <class T, int CH, bool AC4>
void mirror_rows(const T* pSrc, std::int64_t ss, T* pDst, std::int64_t ds, GexiSize roi, int flip) {
    constexpr RowFormat f = kFormat<T, CH, AC4>;
    const auto* s = reinterpret_cast<const std::uint8_t*>(pSrc);
    auto* d = reinterpret_cast<std::uint8_t*>(pDst);
    const std::int64_t W = roi.width, H = roi.height;
    if (flip == 0) {
        const std::uint8_t* last = s + (H - 1) * ss;
        if constexpr (AC4) copy_ac4_2d(last, -ss, d, ds, W, H, f.E);
        else copy_bytes_2d(last, -ss, d, ds, W * f.pixel(), H);
        return;
    }
    // flip 1 writes row y, flip 2 row H - 1 - y.
    if (flip == 2) {
        d += (H - 1) * ds;
        ds = -ds;
    }
    for (std::int64_t y = 0; y < H; ++y, s += ss, d += ds) mirror_kernels::reverse_row(s, d, W, f);
}

template <class T, int CH, bool AC4>
void mirror_rows_inplace(T* p, std::int64_t step, GexiSize roi, int flip) {
    constexpr RowFormat f = kFormat<T, CH, AC4>;
    auto* b = reinterpret_cast<std::uint8_t*>(p);
    const std::int64_t W = roi.width, H = roi.height;
    if (flip == 1) {
        for (std::int64_t y = 0; y < H; ++y) mirror_kernels::reverse_row_inplace(b + y * step, W, f);
        return;
    }
    for (std::int64_t y = 0; y < H - 1 - y; ++y) {
        std::uint8_t* top = b + y * step;
        std::uint8_t* bottom = b + (H - 1 - y) * step;
        if (flip == 0) mirror_kernels::exchange_rows(top, bottom, W, f);
        else mirror_kernels::exchange_reversed_rows(top, bottom, W, f);
    }
    if (flip == 2 && H % 2 == 1) mirror_kernels::reverse_row_inplace(b + (H / 2) * step, W, f);
}

constexpr bool flip_ok(int flip) { return flip >= 0 && flip <= 2; }

// In place: null, size, flip. No step test.
template <class T, int CH, bool AC4>
GexStatus mirror_inplace(T* p, int step, GexiSize roi, GexiAxis flip) {
    GEX_CHECK(check_null(p));
    GEX_CHECK(check_roi(roi));
    const int f = static_cast<int>(flip);
    if (!flip_ok(f)) return gexStsMirrorFlip;
    mirror_rows_inplace<T, CH, AC4>(p, step, roi, f);
    return gexStsOk;
}

// Not in place. Diag marks gexiMirror_{8u,16u,32s}_C1R: flips 3 and 4, and
// steps tested against 1.
template <class T, int CH, bool AC4, bool Diag>
GexStatus mirror_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, GexiAxis flip,
                       GexStatus (*inPlace)(T*, int, GexiSize, GexiAxis)) {
    const int f = static_cast<int>(flip);
    if constexpr (Diag) {
        if (f == 3 || f == 4) {
            GEX_CHECK(check_null(pSrc, pDst));
            GEX_CHECK(check_steps(srcStep, dstStep));
            GEX_CHECK(check_roi(roi));
            constexpr int E = static_cast<int>(sizeof(T));
            if (mirror_kernels::diagonal_rois_overlap(pSrc, srcStep, pDst, dstStep, roi.width, roi.height, E))
                return gexStsNotSupportedMode;
            const auto* s = reinterpret_cast<const std::uint8_t*>(pSrc);
            auto* d = reinterpret_cast<std::uint8_t*>(pDst);
            if (f == 3) transpose_kernels::transpose_2d(s, srcStep, d, dstStep, roi.width, roi.height, E);
            else transpose_kernels::anti_transpose_2d(s, srcStep, d, dstStep, roi.width, roi.height, E);
            return gexStsOk;
        }
    }
    if (static_cast<const void*>(pSrc) == pDst) return inPlace(pDst, srcStep, roi, flip);
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    if constexpr (Diag) GEX_CHECK(check_steps(srcStep, dstStep));
    if (!flip_ok(f)) return gexStsMirrorFlip;
    mirror_rows<T, CH, AC4>(pSrc, srcStep, pDst, dstStep, roi, f);
    return gexStsOk;
}

}  // namespace

}  // namespace gex

#define GEX_MIRROR_FORM(D, T, C, CH, AC4, DIAG)                                                              \
    GEX_EXPORT(GexStatus, gexiMirror_##D##_##C##IR, (T * pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip)) { \
        return mirror_inplace<T, CH, AC4>(pSrcDst, srcDstStep, roiSize, flip);                               \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiMirror_##D##_##C##R,                                                           \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize, GexiAxis flip)) {        \
        return mirror_image<T, CH, AC4, DIAG>(pSrc, srcStep, pDst, dstStep, roiSize, flip,                   \
                                              &gex::gexiMirror_##D##_##C##IR);                               \
    }

#define GEX_MIRROR_DEPTH(D, T, DIAG)                \
    GEX_MIRROR_FORM(D, T, C1, 1, false, DIAG)       \
    GEX_MIRROR_FORM(D, T, C3, 3, false, false)      \
    GEX_MIRROR_FORM(D, T, C4, 4, false, false)      \
    GEX_MIRROR_FORM(D, T, AC4, 4, true, false)

GEX_MIRROR_DEPTH(8u, Gex8u, true)
GEX_MIRROR_DEPTH(16u, Gex16u, true)
GEX_MIRROR_DEPTH(16s, Gex16s, false)
GEX_MIRROR_DEPTH(32s, Gex32s, true)
GEX_MIRROR_DEPTH(32f, Gex32f, false)
