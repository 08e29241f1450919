// SwapChannels: permutes the channels of interleaved pixels,
// dst channel c = src channel dstOrder[c], for 8u, 16u, 16s, 32s and 32f in
// the C3, C4, AC4, C4C3 and C3C4 layouts, and 8u C3 and C4 in place.
//
// The kernels work on bytes: 16u and 16s share the E = 2 kernels, 32s and
// 32f the E = 4 ones. The orders are checked before anything is written:
//   C3, AC4   entries 0..2 (AC4 never reads the source's fourth channel);
//   C4, C4C3  entries 0..3;
//   C3C4      entries >= 0: 0..2 a source channel, 3 the constant, above 3
//             "keep the destination's channel".
// A negative entry can index nothing, so every form reports it as
// gexStsChannelOrder. Steps are tested only for zero; negative steps walk the
// rows upwards.
// GCC 12 reports the undefined pass-through operand inside the unmasked
// permute, unpack and extract intrinsics as uninitialized.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wuninitialized"

#include <immintrin.h>

#include <cstring>

#include "data/swap_channels_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"

namespace gex {

namespace swap_kernels {

namespace {

// Bytes of a source and of a destination pixel.
int in_pixel(SwapForm f, int E) { return (f == SwapForm::C3 || f == SwapForm::C3C4) ? 3 * E : 4 * E; }
int out_pixel(SwapForm f, int E) { return (f == SwapForm::C3 || f == SwapForm::C4C3) ? 3 * E : 4 * E; }

constexpr std::uint8_t kZero = 0x80;  // a shuffle index that yields 0

}  // namespace

void make_plan(SwapPlan& p, SwapForm form, int E, const int* order, const void* val) {
    std::memset(&p, 0, sizeof(p));
    p.E = E;
    p.form = form;
    switch (form) {
        case SwapForm::C3: {
            // Group the channels by the distance to their source byte; a
            // group of distance 0 (if any) comes first.
            int groupOf[3];
            for (int c = 0; c < 3; ++c)
                if (order[c] == c) p.groups = 1;  // p.delta[0] = 0 already
            for (int c = 0; c < 3; ++c) {
                const int d = (order[c] - c) * E;
                int g = 0;
                while (g < p.groups && p.delta[g] != d) ++g;
                if (g == p.groups) p.delta[p.groups++] = d;
                groupOf[c] = g;
            }
            // Chunk k starts at byte 64k; (64k / E) mod 3 = k mod 3 for E = 1, 2, 4.
            for (int ph = 0; ph < 3; ++ph)
                for (int i = 0; i < 64; ++i) {
                    const int c = ((64 * ph + i) / E) % 3;
                    p.chan[ph][groupOf[c]] |= std::uint64_t{1} << i;
                }
            break;
        }
        case SwapForm::C4:
        case SwapForm::AC4:
            for (int j = 0; j < 64; ++j) {
                const int b = j & 15, px = b / (4 * E), c = (b / E) % 4, k = b % E;
                if (form == SwapForm::AC4 && c == 3) {
                    p.shuf[j] = kZero;
                } else {
                    p.shuf[j] = static_cast<std::uint8_t>(px * 4 * E + order[c] * E + k);
                    p.storeMask |= std::uint64_t{1} << j;
                }
            }
            break;
        case SwapForm::C4C3:
            // Each lane holds 16 source bytes and gives 12 destination bytes.
            for (int j = 0; j < 64; ++j) {
                const int b = j & 15, px = b / (3 * E), c = (b / E) % 3, k = b % E;
                p.shuf[j] = b < 12 ? static_cast<std::uint8_t>(px * 4 * E + order[c] * E + k) : kZero;
            }
            break;
        case SwapForm::C3C4:
            // Each lane holds 12 source bytes and gives 16 destination bytes.
            for (int j = 0; j < 64; ++j) {
                const int b = j & 15, px = b / (4 * E), c = (b / E) % 4, k = b % E;
                const int o = order[c];
                p.val[j] = static_cast<const std::uint8_t*>(val)[k];
                if (o <= 2) {
                    p.shuf[j] = static_cast<std::uint8_t>(px * 3 * E + o * E + k);
                    p.storeMask |= std::uint64_t{1} << j;
                } else {
                    p.shuf[j] = kZero;
                    if (o == 3) {
                        p.valMask |= std::uint64_t{1} << j;
                        p.storeMask |= std::uint64_t{1} << j;
                    }
                }
            }
            break;
    }
}

namespace {

// Loop-invariant pieces of the C3 kernel, in locals so that the masks can
// live in mask registers across the unrolled loop.
template <int G>
struct C3Regs {
    std::int64_t delta[G];
    std::uint64_t m[3][G];
    bool plainFirst;  // group 0 has delta 0: a full chunk starts with a plain load
    explicit C3Regs(const SwapPlan& p) : plainFirst(p.delta[0] == 0) {
        for (int g = 0; g < G; ++g) {
            delta[g] = p.delta[g];
            for (int ph = 0; ph < 3; ++ph) m[ph][g] = p.chan[ph][g];
        }
    }
};

// The output chunk at s (its source bytes at the same offset): one load per
// delta group, merged under the group's bytes.
template <int G, bool Full>
inline __m512i gather_c3(const C3Regs<G>& r, const std::uint8_t* s, int ph, std::uint64_t lim) {
    __m512i v;
    if (Full && r.plainFirst) v = _mm512_loadu_si512(s);
    else v = _mm512_maskz_loadu_epi8(r.m[ph][0] & lim, s + r.delta[0]);
    if constexpr (G > 1) v = _mm512_mask_loadu_epi8(v, r.m[ph][1] & lim, s + r.delta[1]);
    if constexpr (G > 2) v = _mm512_mask_loadu_epi8(v, r.m[ph][2] & lim, s + r.delta[2]);
    return v;
}

// Chunk k is gathered before chunk k - 1 is stored: a pixel that straddles
// two chunks is then read whole before any of it is overwritten in place.
// Chunk k has phase k mod 3; the main loop takes three chunks at a time.
template <int G>
void row_c3(const SwapPlan& p, const std::uint8_t* s, std::uint8_t* d, std::int64_t width) {
    const C3Regs<G> r(p);
    constexpr std::uint64_t all = ~std::uint64_t{0};
    const std::int64_t n = width * 3 * p.E;
    __m512i cur = n >= 64 ? gather_c3<G, true>(r, s, 0, all) : gather_c3<G, false>(r, s, 0, simd::tail_mask64(n));
    std::int64_t o = 64;
    for (; o + 192 <= n; o += 192) {  // phases 1, 2, 0
        const __m512i a = gather_c3<G, true>(r, s + o, 1, all);
        _mm512_storeu_si512(d + o - 64, cur);
        const __m512i b = gather_c3<G, true>(r, s + o + 64, 2, all);
        _mm512_storeu_si512(d + o, a);
        cur = gather_c3<G, true>(r, s + o + 128, 0, all);
        _mm512_storeu_si512(d + o + 64, b);
    }
    int ph = static_cast<int>((o / 64) % 3);
    for (; o < n; o += 64) {
        const __m512i nxt = o + 64 <= n ? gather_c3<G, true>(r, s + o, ph, all)
                                        : gather_c3<G, false>(r, s + o, ph, simd::tail_mask64(n - o));
        _mm512_storeu_si512(d + o - 64, cur);
        cur = nxt;
        ph = ph == 2 ? 0 : ph + 1;
    }
    _mm512_mask_storeu_epi8(d + o - 64, simd::tail_mask64(n - (o - 64)), cur);
}

// C4 (mask all ones) and AC4 (mask of the colour bytes).
template <bool Masked>
void row_c4(const SwapPlan& p, const std::uint8_t* s, std::uint8_t* d, std::int64_t width) {
    const std::int64_t n = width * 4 * p.E;
    const __m512i tbl = _mm512_load_si512(p.shuf);
    const __mmask64 a = Masked ? p.storeMask : ~__mmask64(0);
    std::int64_t o = 0;
    for (; o + 128 <= n; o += 128) {
        __m512i v0, v1;
        if constexpr (Masked) {
            v0 = _mm512_maskz_loadu_epi8(a, s + o);
            v1 = _mm512_maskz_loadu_epi8(a, s + o + 64);
            _mm512_mask_storeu_epi8(d + o, a, _mm512_shuffle_epi8(v0, tbl));
            _mm512_mask_storeu_epi8(d + o + 64, a, _mm512_shuffle_epi8(v1, tbl));
        } else {
            v0 = _mm512_loadu_si512(s + o);
            v1 = _mm512_loadu_si512(s + o + 64);
            _mm512_storeu_si512(d + o, _mm512_shuffle_epi8(v0, tbl));
            _mm512_storeu_si512(d + o + 64, _mm512_shuffle_epi8(v1, tbl));
        }
    }
    for (; o < n; o += 64) {
        const __mmask64 m = a & simd::tail_mask64(n - o);
        _mm512_mask_storeu_epi8(d + o, m, _mm512_shuffle_epi8(_mm512_maskz_loadu_epi8(m, s + o), tbl));
    }
}

void row_c4c3(const SwapPlan& p, const std::uint8_t* s, std::uint8_t* d, std::int64_t width) {
    const int E = p.E;
    const std::int64_t per = 16 / E;  // pixels per 64 source bytes
    const __m512i tbl = _mm512_load_si512(p.shuf);
    const __m512i pack = _mm512_setr_epi32(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 15, 15, 15, 15);
    constexpr __mmask64 k48 = (__mmask64(1) << 48) - 1;
    std::int64_t x = 0;
    for (; x + per <= width; x += per) {
        const __m512i v = _mm512_shuffle_epi8(_mm512_loadu_si512(s + x * 4 * E), tbl);
        _mm512_mask_storeu_epi8(d + x * 3 * E, k48, _mm512_permutexvar_epi32(pack, v));
    }
    if (x < width) {
        const std::int64_t r = width - x;
        const __m512i v =
            _mm512_shuffle_epi8(_mm512_maskz_loadu_epi8(simd::tail_mask64(r * 4 * E), s + x * 4 * E), tbl);
        _mm512_mask_storeu_epi8(d + x * 3 * E, simd::tail_mask64(r * 3 * E), _mm512_permutexvar_epi32(pack, v));
    }
}

void row_c3c4(const SwapPlan& p, const std::uint8_t* s, std::uint8_t* d, std::int64_t width) {
    const int E = p.E;
    const std::int64_t per = 16 / E;  // pixels per 48 source bytes
    const __m512i tbl = _mm512_load_si512(p.shuf);
    const __m512i val = _mm512_load_si512(p.val);
    const __m512i spread = _mm512_setr_epi32(0, 1, 2, 0, 3, 4, 5, 0, 6, 7, 8, 0, 9, 10, 11, 0);
    const __mmask64 vm = p.valMask, sm = p.storeMask;
    constexpr __mmask64 k48 = (__mmask64(1) << 48) - 1;
    auto make = [&](__m512i v) {
        return _mm512_mask_blend_epi8(vm, _mm512_shuffle_epi8(_mm512_permutexvar_epi32(spread, v), tbl), val);
    };
    std::int64_t x = 0;
    for (; x + per <= width; x += per)
        _mm512_mask_storeu_epi8(d + x * 4 * E, sm, make(_mm512_maskz_loadu_epi8(k48, s + x * 3 * E)));
    if (x < width) {
        const std::int64_t r = width - x;
        const __m512i v = make(_mm512_maskz_loadu_epi8(simd::tail_mask64(r * 3 * E), s + x * 3 * E));
        _mm512_mask_storeu_epi8(d + x * 4 * E, sm & simd::tail_mask64(r * 4 * E), v);
    }
}

}  // namespace

void swap_row(const SwapPlan& p, const std::uint8_t* s, std::uint8_t* d, std::int64_t width) {
    if (width <= 0) return;
    switch (p.form) {
        case SwapForm::C3:
            if (p.groups == 1) row_c3<1>(p, s, d, width);
            else if (p.groups == 2) row_c3<2>(p, s, d, width);
            else row_c3<3>(p, s, d, width);
            break;
        case SwapForm::C4: row_c4<false>(p, s, d, width); break;
        case SwapForm::AC4: row_c4<true>(p, s, d, width); break;
        case SwapForm::C4C3: row_c4c3(p, s, d, width); break;
        case SwapForm::C3C4: row_c3c4(p, s, d, width); break;
    }
}

void swap_row_ref(SwapForm form, int E, const int* order, const void* val, const std::uint8_t* src,
                  std::uint8_t* dst, std::int64_t width) {
    const int ib = in_pixel(form, E), ob = out_pixel(form, E);
    const int outCh = ob / E;
    const int readCh = form == SwapForm::AC4 ? 3 : ib / E;  // AC4 never reads alpha
    std::uint8_t px[16];
    for (std::int64_t x = 0; x < width; ++x) {
        std::memcpy(px, src + x * ib, static_cast<std::size_t>(readCh * E));
        for (int c = 0; c < outCh; ++c) {
            if (form == SwapForm::AC4 && c == 3) continue;
            const int o = order[c];
            std::uint8_t* out = dst + x * ob + c * E;
            if (form == SwapForm::C3C4 && o == 3) std::memcpy(out, val, static_cast<std::size_t>(E));
            else if (form == SwapForm::C3C4 && o > 3) continue;
            else std::memcpy(out, px + o * E, static_cast<std::size_t>(E));
        }
    }
}

}  // namespace swap_kernels

namespace {

using swap_kernels::SwapForm;
using swap_kernels::SwapPlan;

// Only a zero step is refused here; negative steps are legal.
template <class... S>
constexpr GexStatus check_steps_nonzero(S... steps) {
    return ((steps == 0) || ...) ? gexStsStep : gexStsOk;
}

GexStatus check_order(SwapForm f, const int* order) {
    const int hi = (f == SwapForm::C3 || f == SwapForm::AC4) ? 2
                   : f == SwapForm::C3C4                     ? 0x7fffffff
                                                             : 3;
    for (int c = 0; c < swap_kernels::order_entries(f); ++c)
        if (order[c] < 0 || order[c] > hi) return gexStsChannelOrder;
    return gexStsOk;
}

template <class T>
void swap_rows(SwapForm f, const int* order, const T* val, const T* pSrc, int srcStep, T* pDst, int dstStep,
               GexiSize roi) {
    constexpr int E = static_cast<int>(sizeof(T));
    alignas(64) SwapPlan plan;
    swap_kernels::make_plan(plan, f, E, order, val);
    std::int64_t width = roi.width, height = roi.height;
    const std::int64_t inRow = width * (f == SwapForm::C3 || f == SwapForm::C3C4 ? 3 : 4) * E;
    const std::int64_t outRow = width * (f == SwapForm::C3 || f == SwapForm::C4C3 ? 3 : 4) * E;
    if (height > 1 && srcStep == inRow && dstStep == outRow) {  // no gaps: one row
        width *= height;
        height = 1;
    }
    auto s = reinterpret_cast<const std::uint8_t*>(pSrc);
    auto d = reinterpret_cast<std::uint8_t*>(pDst);
    for (std::int64_t y = 0; y < height; ++y, s += srcStep, d += dstStep) swap_kernels::swap_row(plan, s, d, width);
}

// C3, C4, C4C3, C3C4: null, size, steps, order. C3 and C4 with pSrc = pDst
// run the in-place rows (on the source step).
template <SwapForm F, class T>
GexStatus swap_channels(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, const int* order,
                        T val = T{}) {
    GEX_CHECK(check_null(pSrc, pDst, order));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps_nonzero(srcStep, dstStep));
    GEX_CHECK(check_order(F, order));
    if ((F == SwapForm::C3 || F == SwapForm::C4) && static_cast<const void*>(pSrc) == pDst) {
        swap_rows<T>(F, order, nullptr, pDst, srcStep, pDst, srcStep, roi);
        return gexStsOk;
    }
    swap_rows<T>(F, order, &val, pSrc, srcStep, pDst, dstStep, roi);
    return gexStsOk;
}

// AC4: null, steps, size, order.
template <class T>
GexStatus swap_channels_ac4(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, const int* order) {
    GEX_CHECK(check_null(pSrc, pDst, order));
    GEX_CHECK(check_steps_nonzero(srcStep, dstStep));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_order(SwapForm::AC4, order));
    swap_rows<T>(SwapForm::AC4, order, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return gexStsOk;
}

// In place: null, step, size, order.
template <SwapForm F>
GexStatus swap_channels_inplace(Gex8u* pSrcDst, int step, GexiSize roi, const int* order) {
    GEX_CHECK(check_null(pSrcDst, order));
    GEX_CHECK(check_steps_nonzero(step));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_order(F, order));
    swap_rows<Gex8u>(F, order, nullptr, pSrcDst, step, pSrcDst, step, roi);
    return gexStsOk;
}

}  // namespace

}  // namespace gex

#define GEX_SWAP_ARGS(T) (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize, const int* dstOrder)

#define GEX_SWAP_DEPTH(D, T)                                                                             \
    GEX_EXPORT(GexStatus, gexiSwapChannels_##D##_C3R, GEX_SWAP_ARGS(T)) {                               \
        return swap_channels<SwapForm::C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);             \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSwapChannels_##D##_C4R, GEX_SWAP_ARGS(T)) {                               \
        return swap_channels<SwapForm::C4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);             \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSwapChannels_##D##_AC4R, GEX_SWAP_ARGS(T)) {                              \
        return swap_channels_ac4(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);                       \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSwapChannels_##D##_C4C3R, GEX_SWAP_ARGS(T)) {                             \
        return swap_channels<SwapForm::C4C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);           \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSwapChannels_##D##_C3C4R,                                                  \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize, const int* dstOrder, \
                T val)) {                                                                                \
        return swap_channels<SwapForm::C3C4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder, val);      \
    }

GEX_SWAP_DEPTH(8u, Gex8u)
GEX_SWAP_DEPTH(16u, Gex16u)
GEX_SWAP_DEPTH(16s, Gex16s)
GEX_SWAP_DEPTH(32s, Gex32s)
GEX_SWAP_DEPTH(32f, Gex32f)

GEX_EXPORT(GexStatus, gexiSwapChannels_8u_C3IR,
           (Gex8u * pSrcDst, int srcDstStep, GexiSize roiSize, const int* dstOrder)) {
    return swap_channels_inplace<SwapForm::C3>(pSrcDst, srcDstStep, roiSize, dstOrder);
}

GEX_EXPORT(GexStatus, gexiSwapChannels_8u_C4IR,
           (Gex8u * pSrcDst, int srcDstStep, GexiSize roiSize, const int* dstOrder)) {
    return swap_channels_inplace<SwapForm::C4>(pSrcDst, srcDstStep, roiSize, dstOrder);
}
