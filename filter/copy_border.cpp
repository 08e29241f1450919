// The border copies: gexiCopyConstBorder, gexiCopyReplicateBorder,
// gexiCopyMirrorBorder and gexiCopyWrapBorder in their R, IR and 64-bit _L
// forms, on the engine of copy_border_kernels.hpp.
//
// Checks, in this order, the first failure returned and nothing written:
//   1. a null pSrc or pDst (gexStsNullPtr, -8);
//   2. a step below 1 (gexStsStep, -14);
//   3. a source or destination width or height below 1, a border size below
//      0, or a destination narrower than leftBorderWidth + source width or
//      lower than topBorderHeight + source height (gexStsSize, -6);
//   4. the C3, C4 and AC4 Const forms: a null constant pointer (-8).
// Then, in the R forms of Mirror, Replicate and Wrap only, pSrc == pDst hands
// the call to the in-place form on pDst and dstStep: pDst is then the ROI's
// first pixel inside the larger image, and the border grows around it. The
// Const R form has no such test; in-place use goes through its IR_L form.
//
// The _L forms take 64-bit sizes, steps and border sizes, do the same checks
// (the sums of step 3 without overflow) and run the same engine natively in
// 64 bits: nothing is narrowed, so no forwarding and no chunking is needed.
#include <immintrin.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "data/copy.hpp"
#include "data/mirror_kernels.hpp"
#include "data/set.hpp"
#include "filter/copy_border_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/simd.hpp"

namespace gex::border_copy {

namespace {

std::int64_t mod_pos(std::int64_t a, std::int64_t n) {
    const std::int64_t r = a % n;
    return r < 0 ? r + n : r;
}

// bytes x rows, saturated: the volume only feeds the streaming decision.
std::int64_t volume_of(std::int64_t bytes, std::int64_t rows) {
    const __int128 v = static_cast<__int128>(bytes) * rows;
    return v > static_cast<__int128>(INT64_MAX) ? INT64_MAX : static_cast<std::int64_t>(v);
}

// Bytes of the first three channels of 4E-byte pixels, over 64 bytes; all
// bytes for other formats.
constexpr std::uint64_t write_bytes(Format f) {
    if (!f.ac4) return ~std::uint64_t{0};
    std::uint64_t m = 0;
    for (int b = 0; b < 64; ++b)
        if (b % (4 * f.E) < 3 * f.E) m |= std::uint64_t{1} << b;
    return m;
}

// ---- one pixel repeated ----------------------------------------------------------
// Byte i of vector k of a pixel of P bytes repeated is byte (64k + i) mod P of
// the pixel. Every pixel size here (1, 2, 3, 4, 6, 8, 12, 16) divides 192, so
// three vectors make the whole period.
struct SplatIndex {
    alignas(64) std::uint8_t idx[17][192];
};

constexpr SplatIndex make_splat_index() {
    SplatIndex t{};
    for (int P = 1; P <= 16; ++P)
        for (int i = 0; i < 192; ++i) t.idx[P][i] = static_cast<std::uint8_t>(i % P);
    return t;
}

constexpr SplatIndex kSplatIndex = make_splat_index();

struct Splat {
    __m512i v[3];
    __mmask64 write;
};

// The pixel at px (only its first three channels with AC4) broadcast to the
// four 128-bit lanes and spread by an in-lane byte shuffle.
inline Splat make_splat(const std::uint8_t* px, Format f) {
    const int P = f.pixel();
    const int loaded = f.ac4 ? 3 * f.E : P;
    const __m128i x = _mm_maskz_loadu_epi8(static_cast<__mmask16>((1u << loaded) - 1u), px);
    const __m512i b = _mm512_maskz_broadcast_i32x4(0xffff, x);  // maskz: no undefined pass-through
    Splat s;
    for (int k = 0; k < 3; ++k)
        s.v[k] = _mm512_shuffle_epi8(b, _mm512_load_si512(kSplatIndex.idx[P] + 64 * k));
    s.write = write_bytes(f);
    return s;
}

inline void splat_store(std::uint8_t* out, std::int64_t bytes, const Splat& s) {
    std::int64_t o = 0;
    int k = 0;
    for (; o + 64 <= bytes; o += 64) {
        _mm512_mask_storeu_epi8(out + o, s.write, s.v[k]);
        k = k == 2 ? 0 : k + 1;
    }
    if (o < bytes) _mm512_mask_storeu_epi8(out + o, s.write & simd::tail_mask64(bytes - o), s.v[k]);
}

// ---- runs of pixels ------------------------------------------------------------------

inline void copy_run(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, Format f) {
    if (n <= 0) return;
    if (!f.ac4) return copy_kernels::row_cached(s, d, n * f.pixel());
    switch (f.E) {
        case 1: copy_kernels::row_ac4<1>(s, d, n); break;
        case 2: copy_kernels::row_ac4<2>(s, d, n); break;
        default: copy_kernels::row_ac4<4>(s, d, n); break;
    }
}

// d[i] = s[n - 1 - i]
inline void reverse_run(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, Format f) {
    mirror_kernels::reverse_row(s, d, n, mirror_kernels::RowFormat{f.E, f.ch, f.ac4});
}

// Pixels u0 .. u0 + count - 1 of a periodic kind (Mirror, MirrorR, Wrap;
// n >= 2), as runs that each map to consecutive source pixels going up or
// down: forward runs through the copy kernels, backward runs through the
// reversal kernels. Returns count.
std::int64_t periodic_runs(const std::uint8_t* row, std::uint8_t* out, std::int64_t u0, std::int64_t count,
                           std::int64_t n, Kind kind, Format f) {
    const int P = f.pixel();
    std::int64_t done = 0;
    while (done < count) {
        const std::int64_t t = u0 + done;
        const std::int64_t left = count - done;
        std::int64_t len;
        if (kind == Kind::Wrap) {
            const std::int64_t r = mod_pos(t, n);
            len = std::min(left, n - r);
            copy_run(row + r * P, out + done * P, len, f);
        } else if (kind == Kind::Mirror) {
            // r in [0, n-1): r itself, going up; r in [n-1, p): p - r, going down to 1.
            const std::int64_t p = 2 * n - 2;
            const std::int64_t r = mod_pos(t, p);
            if (r < n - 1) {
                len = std::min(left, n - 1 - r);
                copy_run(row + r * P, out + done * P, len, f);
            } else {
                len = std::min(left, p - r);
                reverse_run(row + (p - r - len + 1) * P, out + done * P, len, f);
            }
        } else {
            // MirrorR: r in [0, n): r, going up; r in [n, 2n): 2n - 1 - r, going down to 0.
            const std::int64_t p = 2 * n;
            const std::int64_t r = mod_pos(t, p);
            if (r < n) {
                len = std::min(left, n - r);
                copy_run(row + r * P, out + done * P, len, f);
            } else {
                len = std::min(left, p - r);
                reverse_run(row + (p - r - len) * P, out + done * P, len, f);
            }
        }
        done += len;
    }
    return done;
}

std::int64_t period_of(Kind kind, std::int64_t n) {
    switch (kind) {
        case Kind::Mirror: return 2 * n - 2;
        case Kind::MirrorR: return 2 * n;
        default: return n;
    }
}

}  // namespace

std::int64_t map_index(Kind kind, std::int64_t t, std::int64_t n) {
    switch (kind) {
        case Kind::Const: return (t >= 0 && t < n) ? t : -1;
        case Kind::Replicate: return std::clamp<std::int64_t>(t, 0, n - 1);
        case Kind::Mirror: {
            if (n == 1) return 0;
            const std::int64_t p = 2 * n - 2;
            const std::int64_t r = mod_pos(t, p);
            return r < n ? r : p - r;
        }
        case Kind::MirrorR: {
            const std::int64_t p = 2 * n;
            const std::int64_t r = mod_pos(t, p);
            return r < n ? r : p - 1 - r;
        }
        case Kind::Wrap: return mod_pos(t, n);
    }
    return 0;
}

void splat_pixels(const std::uint8_t* px, std::uint8_t* out, std::int64_t count, Format f) {
    if (count > 0) splat_store(out, count * f.pixel(), make_splat(px, f));
}

void border_run(const std::uint8_t* row, std::uint8_t* out, std::int64_t u0, std::int64_t count, std::int64_t W,
                Kind kind, Format f) {
    if (count <= 0) return;
    const int P = f.pixel();
    if (kind == Kind::Replicate || W == 1) {
        // Below 0 the first pixel, then the row itself, from W on the last pixel.
        const std::int64_t lo = std::min(count, std::max<std::int64_t>(0, -u0));
        splat_pixels(row, out, lo, f);
        const std::int64_t mid = std::min(count, std::max<std::int64_t>(0, W - u0)) - lo;
        if (mid > 0) copy_run(row + (u0 + lo) * P, out + lo * P, mid, f);
        const std::int64_t hiStart = lo + std::max<std::int64_t>(mid, 0);
        splat_pixels(row + (W - 1) * P, out + hiStart * P, count - hiStart, f);
        return;
    }
    // A run longer than two periods: one period from the row, then the run
    // continues by copying what it already holds, doubling each time.
    const std::int64_t period = period_of(kind, W);
    if (count <= 2 * period) {
        periodic_runs(row, out, u0, count, W, kind, f);
        return;
    }
    std::int64_t done = periodic_runs(row, out, u0, period, W, kind, f);
    while (done < count) {
        const std::int64_t len = std::min(done, count - done);
        copy_run(out, out + done * P, len, f);
        done += len;
    }
}

namespace {

// The constant as a pattern of one pixel: P bytes, of which the first three
// channels are written with AC4.
struct ConstPixel {
    alignas(16) std::uint8_t bytes[16] = {};
    explicit ConstPixel(const void* value, Format f) {
        std::memcpy(bytes, value, static_cast<std::size_t>(f.ac4 ? 3 * f.E : f.pixel()));
    }
};

// `rows` whole rows of DW pixels with the constant, through the fill engine.
void const_rows(std::uint8_t* first, std::int64_t step, std::int64_t DW, std::int64_t rows, const ConstPixel& c,
                Format f) {
    if (rows <= 0) return;
    const int written = f.ac4 ? 3 * f.E : f.pixel();
    const FillPattern fp(c.bytes, f.pixel(), written >= 32 ? 0xffffffffu : (1u << written) - 1u);
    fill_pattern_2d(first, step, DW * f.pixel(), rows, fp);
}

// Row `to` becomes a copy of row `from`, DW pixels (the fourth channel left with AC4).
inline void copy_whole_row(const std::uint8_t* from, std::uint8_t* to, std::int64_t DW, Format f) {
    if (f.ac4) copy_ac4_2d(from, 0, to, 0, DW, 1, f.E);
    else copy_bytes_2d(from, 0, to, 0, DW * f.pixel(), 1);
}

// Left and right borders of one row: `row` holds the W source pixels and
// `out` is the destination's pixel 0 of that row.
inline void row_sides(const std::uint8_t* row, std::uint8_t* out, std::int64_t W, std::int64_t left,
                      std::int64_t right, Kind kind, Format f, const Splat* constant) {
    const int P = f.pixel();
    if (kind == Kind::Const) {
        if (left > 0) splat_store(out - left * P, left * P, *constant);
        if (right > 0) splat_store(out + W * P, right * P, *constant);
        return;
    }
    if (left > 0) border_run(row, out - left * P, -left, left, W, kind, f);
    if (right > 0) border_run(row, out + W * P, W, right, W, kind, f);
}

}  // namespace

void copy_border(const void* src, std::int64_t srcStep, std::int64_t W, std::int64_t H, void* dst,
                 std::int64_t dstStep, std::int64_t DW, std::int64_t DH, std::int64_t top, std::int64_t left,
                 Kind kind, Format f, const void* constant) {
    const int P = f.pixel();
    const std::int64_t right = DW - left - W;
    const std::int64_t bottom = DH - top - H;
    const std::int64_t rowBytes = W * P;
    auto* d0 = static_cast<std::uint8_t*>(dst);
    auto rowp = [&](std::int64_t j) { return d0 + j * dstStep; };

    Splat cs{};
    if (kind == Kind::Const) cs = make_splat(static_cast<const std::uint8_t*>(constant), f);

    // The ROI rows: interior, then the sides from the source row (in cache).
    // A destination too large for the cache gets the interior non-temporally.
    const bool stream = !f.ac4 && stream_image(volume_of(DW * P, DH));
    const auto* s = static_cast<const std::uint8_t*>(src);
    std::uint8_t* d = rowp(top) + left * P;
    for (std::int64_t v = 0; v < H; ++v, s += srcStep, d += dstStep) {
        if (f.ac4) copy_run(s, d, W, f);
        else if (stream) copy_kernels::row_stream(s, d, rowBytes, false);
        else copy_kernels::row_cached(s, d, rowBytes);
        row_sides(s, d, W, left, right, kind, f, &cs);
    }
    if (stream) simd::store_fence();

    // Rows above and below.
    if (kind == Kind::Const) {
        const ConstPixel c(constant, f);
        const_rows(rowp(0), dstStep, DW, top, c, f);
        const_rows(rowp(top + H), dstStep, DW, bottom, c, f);
        return;
    }
    for (std::int64_t j = 0; j < top; ++j) copy_whole_row(rowp(top + map_index(kind, j - top, H)), rowp(j), DW, f);
    for (std::int64_t j = top + H; j < DH; ++j)
        copy_whole_row(rowp(top + map_index(kind, j - top, H)), rowp(j), DW, f);
}

void copy_border_inplace(void* roi, std::int64_t step, std::int64_t W, std::int64_t H, std::int64_t DW,
                         std::int64_t DH, std::int64_t top, std::int64_t left, Kind kind, Format f,
                         const void* constant) {
    const int P = f.pixel();
    const std::int64_t right = DW - left - W;
    auto* r0 = static_cast<std::uint8_t*>(roi);
    std::uint8_t* origin = r0 - top * step - left * P;
    auto rowp = [&](std::int64_t j) { return origin + j * step; };

    Splat cs{};
    if (kind == Kind::Const) cs = make_splat(static_cast<const std::uint8_t*>(constant), f);

    // Sides of every ROI row first, from the row itself.
    std::uint8_t* r = r0;
    for (std::int64_t v = 0; v < H; ++v, r += step) row_sides(r, r, W, left, right, kind, f, &cs);

    if (kind == Kind::Const) {
        const ConstPixel c(constant, f);
        const_rows(rowp(0), step, DW, top, c, f);
        const_rows(rowp(top + H), step, DW, DH - top - H, c, f);
        return;
    }
    // Then whole rows, nearest first, each from a row already complete.
    auto from_row = [&](std::int64_t j) -> std::int64_t {
        const std::int64_t v = j - top;
        switch (kind) {
            case Kind::Replicate: return v < 0 ? top : top + H - 1;
            case Kind::Wrap: return v < 0 ? j + H : j - H;
            default: return top + map_index(kind, v, H);
        }
    };
    for (std::int64_t j = top - 1; j >= 0; --j) copy_whole_row(rowp(from_row(j)), rowp(j), DW, f);
    for (std::int64_t j = top + H; j < DH; ++j) copy_whole_row(rowp(from_row(j)), rowp(j), DW, f);
}

void copy_border_ref(const void* src, std::int64_t srcStep, std::int64_t W, std::int64_t H, void* dst,
                     std::int64_t dstStep, std::int64_t DW, std::int64_t DH, std::int64_t top, std::int64_t left,
                     Kind kind, Format f, const void* constant) {
    const int P = f.pixel();
    const int moved = f.ac4 ? 3 * f.E : P;
    const auto* s = static_cast<const std::uint8_t*>(src);
    auto* d = static_cast<std::uint8_t*>(dst);
    const auto* c = static_cast<const std::uint8_t*>(constant);
    for (std::int64_t j = 0; j < DH; ++j)
        for (std::int64_t i = 0; i < DW; ++i) {
            const std::int64_t u = i - left, v = j - top;
            std::uint8_t* out = d + j * dstStep + i * P;
            const bool inside = u >= 0 && u < W && v >= 0 && v < H;
            const std::uint8_t* in = nullptr;
            if (inside) in = s + v * srcStep + u * P;
            else if (kind != Kind::Const) in = s + map_index(kind, v, H) * srcStep + map_index(kind, u, W) * P;
            else in = c;
            for (int b = 0; b < moved; ++b) out[b] = in[b];
        }
}

}  // namespace gex::border_copy

// ---- checking wrappers -------------------------------------------------------------

namespace gex {

namespace {

using border_copy::Format;
using border_copy::Kind;

template <class T, int CH, bool AC4>
constexpr Format kFormat{static_cast<int>(sizeof(T)), CH, AC4};

inline GexiSizeL wide(GexiSize s) { return GexiSizeL{s.width, s.height}; }

GexStatus check_border_sizes(GexiSizeL src, GexiSizeL dst, std::int64_t top, std::int64_t left) {
    if (src.width < 1 || src.height < 1 || dst.width < 1 || dst.height < 1) return gexStsSize;
    if (top < 0 || left < 0) return gexStsSize;
    if (static_cast<__int128>(dst.width) < static_cast<__int128>(src.width) + left) return gexStsSize;
    if (static_cast<__int128>(dst.height) < static_cast<__int128>(src.height) + top) return gexStsSize;
    return gexStsOk;
}

// In place: pSrc is the ROI's first pixel inside the destination image.
template <class T, int CH, bool AC4, Kind K>
GexStatus border_ir(T* pSrc, std::int64_t step, GexiSizeL src, GexiSizeL dst, std::int64_t top, std::int64_t left,
                    const T* value, bool valueIsPointer) {
    GEX_CHECK(check_null(pSrc));
    GEX_CHECK(check_steps(step));
    GEX_CHECK(check_border_sizes(src, dst, top, left));
    if (valueIsPointer) GEX_CHECK(check_null(value));
    border_copy::copy_border_inplace(pSrc, step, src.width, src.height, dst.width, dst.height, top, left, K,
                                     kFormat<T, CH, AC4>, value);
    return gexStsOk;
}

// Out of place; Mirror, Replicate and Wrap run in place when pSrc == pDst.
template <class T, int CH, bool AC4, Kind K>
GexStatus border_r(const T* pSrc, std::int64_t srcStep, GexiSizeL src, T* pDst, std::int64_t dstStep, GexiSizeL dst,
                   std::int64_t top, std::int64_t left, const T* value, bool valueIsPointer) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_border_sizes(src, dst, top, left));
    if (valueIsPointer) GEX_CHECK(check_null(value));
    if constexpr (K != Kind::Const) {
        if (pSrc == pDst) return border_ir<T, CH, AC4, K>(pDst, dstStep, src, dst, top, left, value, false);
    }
    border_copy::copy_border(pSrc, srcStep, src.width, src.height, pDst, dstStep, dst.width, dst.height, top,
                             left, K, kFormat<T, CH, AC4>, value);
    return gexStsOk;
}

}  // namespace

}  // namespace gex

// ---- the exports ------------------------------------------------------------------------

#define GEX_CB_R_ARGS(T) \
    const T *pSrc, int srcStep, GexiSize srcRoiSize, T *pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, \
        int leftBorderWidth
#define GEX_CB_RL_ARGS(T)                                                                                   \
    const T *pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, T *pDst, Gex64s dstStep, GexiSizeL dstRoiSize,      \
        Gex64s topBorderHeight, Gex64s leftBorderWidth
#define GEX_CB_IR_ARGS(T) \
    T *pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth
#define GEX_CB_IRL_ARGS(T)                                                                                  \
    T *pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight,         \
        Gex64s leftBorderWidth

// Mirror, Replicate, Wrap: R, R_L, IR, IR_L.
#define GEX_CB_PLAIN(FAM, K, D, T, L, CH, AC4)                                                               \
    GEX_EXPORT(GexStatus, gexiCopy##FAM##Border_##D##_##L##R, (GEX_CB_R_ARGS(T))) {                          \
        return border_r<T, CH, AC4, K>(pSrc, srcStep, wide(srcRoiSize), pDst, dstStep, wide(dstRoiSize),     \
                                       topBorderHeight, leftBorderWidth, nullptr, false);                    \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy##FAM##Border_##D##_##L##R_L, (GEX_CB_RL_ARGS(T))) {                       \
        return border_r<T, CH, AC4, K>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, \
                                       leftBorderWidth, nullptr, false);                                     \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy##FAM##Border_##D##_##L##IR, (GEX_CB_IR_ARGS(T))) {                        \
        return border_ir<T, CH, AC4, K>(pSrc, srcDstStep, wide(srcRoiSize), wide(dstRoiSize), topBorderHeight, \
                                        leftBorderWidth, nullptr, false);                                    \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy##FAM##Border_##D##_##L##IR_L, (GEX_CB_IRL_ARGS(T))) {                     \
        return border_ir<T, CH, AC4, K>(pSrc, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight,           \
                                        leftBorderWidth, nullptr, false);                                    \
    }

// Const: R, R_L, IR_L; VT is the constant's parameter type, VP turns it into
// a pointer, PTR says whether that pointer is checked.
#define GEX_CB_CONST(D, T, L, CH, AC4, VT, VP, PTR)                                                          \
    GEX_EXPORT(GexStatus, gexiCopyConstBorder_##D##_##L##R, (GEX_CB_R_ARGS(T), VT value)) {                  \
        return border_r<T, CH, AC4, Kind::Const>(pSrc, srcStep, wide(srcRoiSize), pDst, dstStep,             \
                                                 wide(dstRoiSize), topBorderHeight, leftBorderWidth, VP value, \
                                                 PTR);                                                       \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopyConstBorder_##D##_##L##R_L, (GEX_CB_RL_ARGS(T), VT value)) {               \
        return border_r<T, CH, AC4, Kind::Const>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize,       \
                                                 topBorderHeight, leftBorderWidth, VP value, PTR);           \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopyConstBorder_##D##_##L##IR_L, (GEX_CB_IRL_ARGS(T), VT value)) {             \
        return border_ir<T, CH, AC4, Kind::Const>(pSrc, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight, \
                                                  leftBorderWidth, VP value, PTR);                           \
    }

#define GEX_CB_DEPTH(D, T)                                                        \
    GEX_CB_CONST(D, T, C1, 1, false, T, &, false)                                 \
    GEX_CB_CONST(D, T, C3, 3, false, const T*, , true)                            \
    GEX_CB_CONST(D, T, C4, 4, false, const T*, , true)                            \
    GEX_CB_CONST(D, T, AC4, 4, true, const T*, , true)                            \
    GEX_CB_PLAIN(Replicate, Kind::Replicate, D, T, C1, 1, false)                  \
    GEX_CB_PLAIN(Replicate, Kind::Replicate, D, T, C3, 3, false)                  \
    GEX_CB_PLAIN(Replicate, Kind::Replicate, D, T, C4, 4, false)                  \
    GEX_CB_PLAIN(Replicate, Kind::Replicate, D, T, AC4, 4, true)                  \
    GEX_CB_PLAIN(Mirror, Kind::Mirror, D, T, C1, 1, false)                        \
    GEX_CB_PLAIN(Mirror, Kind::Mirror, D, T, C3, 3, false)                        \
    GEX_CB_PLAIN(Mirror, Kind::Mirror, D, T, C4, 4, false)

GEX_CB_DEPTH(8u, Gex8u)
GEX_CB_DEPTH(16s, Gex16s)
GEX_CB_DEPTH(16u, Gex16u)
GEX_CB_DEPTH(32f, Gex32f)
GEX_CB_DEPTH(32s, Gex32s)

GEX_CB_PLAIN(Wrap, Kind::Wrap, 32f, Gex32f, C1, 1, false)
GEX_CB_PLAIN(Wrap, Kind::Wrap, 32s, Gex32s, C1, 1, false)
