// Copy between layouts: one channel out of or into a multi-channel image,
// channel to channel, three channels to and from AC4, interleaved to and from
// planar, and the masked copies.
//
// Checks: every pointer in argument order (a planar operand: the array, then
// each plane) -> gexStsNullPtr; then the ROI -> gexStsSize. Steps are not
// checked: any step, zero and negative included, is added to its row pointer
// as given. Nothing is written before the checks pass, and nothing can fail
// after them.
//
// Where every step equals its row's bytes the ROI has no gaps and is run as
// one row of width x height pixels.
//
// The planar forms move large images with non-temporal stores: when the bytes
// read plus written pass 0x80000, the largest cache is asked for its size, and
// a volume at least that large cannot stay in the cache anyway, so its stores
// bypass it (a store fence ends every row). For 32f and 32s the volume is
// 24 x width x height for C3P3 and 32 x width x height for C4P4 and P4C4.
#include <cstdint>
#include <type_traits>

#include "data/copy_channels_kernels.hpp"
#include "frame/checks.hpp"
#include "gexcore.h"
#include "frame/export.hpp"
#include "frame/pixel.hpp"

namespace gex {
namespace {

// The unsigned element of a pixel's width: copies move bits, so 16u/16s and
// 32s/32f share their kernels.
template <class T>
using Bits = std::conditional_t<sizeof(T) == 1, std::uint8_t,
                                std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint32_t>>;

template <class T>
const Bits<T>* bits(const T* p) { return reinterpret_cast<const Bits<T>*>(p); }
template <class T>
Bits<T>* bits(T* p) { return reinterpret_cast<Bits<T>*>(p); }

// Steps that show no gap between rows of `per_pixel` elements of T.
template <class T>
bool gapless(int step, std::int64_t width, int per_pixel) {
    return step == width * per_pixel * static_cast<std::int64_t>(sizeof(T));
}

// One source, one destination: NS elements per source pixel, ND per
// destination pixel; Kernel(const U*, U*, width).
template <int NS, int ND, auto Kernel, class T>
GexStatus copy_rows(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    const Bits<T>* s = bits(pSrc);
    Bits<T>* d = bits(pDst);
    std::int64_t w = roi.width, h = roi.height;
    if (gapless<T>(srcStep, w, NS) && gapless<T>(dstStep, w, ND)) w *= h, h = 1;
    for (std::int64_t y = 0; y < h; ++y) {
        Kernel(s, d, w);
        s = advance_bytes(s, srcStep);
        d = advance_bytes(d, dstStep);
    }
    return gexStsOk;
}

// Non-temporal stores for N-channel planar moves of width x height pixels.
template <class T, int N>
bool streaming(GexiSize roi) {
    const std::int64_t volume = std::int64_t(2) * N * sizeof(T) * roi.width * roi.height;
    if (volume <= 0x80000) return false;  // the cache is not even asked
    int cache = 0;
    return gexGetMaxCacheSizeB(&cache) == gexStsOk && volume >= cache;
}

// Interleaved N channels to N planes sharing dstStep.
template <int N, auto Kernel, auto KernelNT, class T>
GexStatus split_rows(const T* pSrc, int srcStep, T* const pDst[], int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc));
    GEX_CHECK(check_planes(pDst, N));
    GEX_CHECK(check_roi(roi));
    const bool nt = streaming<T, N>(roi);
    const Bits<T>* s = bits(pSrc);
    Bits<T>* d[N];
    for (int c = 0; c < N; ++c) d[c] = bits(pDst[c]);
    std::int64_t w = roi.width, h = roi.height;
    if (gapless<T>(srcStep, w, N) && gapless<T>(dstStep, w, 1)) w *= h, h = 1;
    for (std::int64_t y = 0; y < h; ++y) {
        nt ? KernelNT(s, d, w) : Kernel(s, d, w);
        s = advance_bytes(s, srcStep);
        for (int c = 0; c < N; ++c) d[c] = advance_bytes(d[c], dstStep);
    }
    return gexStsOk;
}

// N planes sharing srcStep to interleaved N channels.
template <int N, auto Kernel, auto KernelNT, class T>
GexStatus merge_rows(const T* const pSrc[], int srcStep, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_planes(pSrc, N));
    GEX_CHECK(check_null(pDst));
    GEX_CHECK(check_roi(roi));
    const bool nt = streaming<T, N>(roi);
    const Bits<T>* s[N];
    for (int c = 0; c < N; ++c) s[c] = bits(pSrc[c]);
    Bits<T>* d = bits(pDst);
    std::int64_t w = roi.width, h = roi.height;
    if (gapless<T>(srcStep, w, 1) && gapless<T>(dstStep, w, N)) w *= h, h = 1;
    for (std::int64_t y = 0; y < h; ++y) {
        nt ? KernelNT(s, d, w) : Kernel(s, d, w);
        for (int c = 0; c < N; ++c) s[c] = advance_bytes(s[c], srcStep);
        d = advance_bytes(d, dstStep);
    }
    return gexStsOk;
}

// Pixels of N elements whose mask byte is non-zero.
template <int N, auto Kernel, class T>
GexStatus masked_rows(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, const Gex8u* pMask,
                      int maskStep) {
    GEX_CHECK(check_null(pSrc, pDst, pMask));
    GEX_CHECK(check_roi(roi));
    const Bits<T>* s = bits(pSrc);
    Bits<T>* d = bits(pDst);
    const Gex8u* m = pMask;
    std::int64_t w = roi.width, h = roi.height;
    if (gapless<T>(srcStep, w, N) && gapless<T>(dstStep, w, N) && gapless<Gex8u>(maskStep, w, 1)) w *= h, h = 1;
    for (std::int64_t y = 0; y < h; ++y) {
        Kernel(s, d, m, w);
        s = advance_bytes(s, srcStep);
        d = advance_bytes(d, dstStep);
        m = advance_bytes(m, maskStep);
    }
    return gexStsOk;
}

}  // namespace
}  // namespace gex

// ---- the exports, five depths each ------------------------------------------

#define GEX_CHAN_ONE(D, T, FORM, NS, ND, KERNEL)                                                    \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_##FORM,                                                    \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize)) {              \
        return copy_rows<NS, ND, KERNEL>(pSrc, srcStep, pDst, dstStep, roiSize);                    \
    }

#define GEX_CHAN_SPLIT(D, T, FORM, N, KERNEL)                                                           \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_##FORM,                                                        \
               (const T* pSrc, int srcStep, T* const pDst[N], int dstStep, GexiSize roiSize)) {         \
        using U = Bits<T>;                                                                              \
        return split_rows<N, KERNEL<U, false>, KERNEL<U, true>>(pSrc, srcStep, pDst, dstStep, roiSize); \
    }

#define GEX_CHAN_MERGE(D, T, FORM, N, KERNEL)                                                           \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_##FORM,                                                        \
               (const T* const pSrc[N], int srcStep, T* pDst, int dstStep, GexiSize roiSize)) {         \
        using U = Bits<T>;                                                                              \
        return merge_rows<N, KERNEL<U, false>, KERNEL<U, true>>(pSrc, srcStep, pDst, dstStep, roiSize); \
    }

#define GEX_CHAN_MASKED(D, T, FORM, N, KERNEL)                                                      \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_##FORM,                                                    \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize,                 \
                const Gex8u* pMask, int maskStep)) {                                                \
        return masked_rows<N, KERNEL>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);      \
    }

#define GEX_CHAN_DEPTH(D, T)                                                                        \
    GEX_CHAN_ONE(D, T, C3C1R, 3, 1, (chan::extract_vec<Bits<T>, 3>))                                \
    GEX_CHAN_ONE(D, T, C4C1R, 4, 1, (chan::extract_vec<Bits<T>, 4>))                                \
    GEX_CHAN_ONE(D, T, C1C3R, 1, 3, (chan::insert_vec<Bits<T>, 3>))                                 \
    GEX_CHAN_ONE(D, T, C1C4R, 1, 4, (chan::insert_vec<Bits<T>, 4>))                                 \
    GEX_CHAN_ONE(D, T, C3CR, 3, 3, (chan::channel_vec<Bits<T>, 3>))                                 \
    GEX_CHAN_ONE(D, T, C4CR, 4, 4, (chan::channel_vec<Bits<T>, 4>))                                 \
    GEX_CHAN_ONE(D, T, C3AC4R, 3, 4, chan::c3ac4_vec<Bits<T>>)                                      \
    GEX_CHAN_ONE(D, T, AC4C3R, 4, 3, chan::ac4c3_vec<Bits<T>>)                                      \
    GEX_CHAN_SPLIT(D, T, C3P3R, 3, chan::split3_vec)                                                \
    GEX_CHAN_SPLIT(D, T, C4P4R, 4, chan::split4_vec)                                                \
    GEX_CHAN_MERGE(D, T, P3C3R, 3, chan::merge3_vec)                                                \
    GEX_CHAN_MERGE(D, T, P4C4R, 4, chan::merge4_vec)                                                \
    GEX_CHAN_MASKED(D, T, C1MR, 1, (chan::masked_vec<Bits<T>, 1>))                                  \
    GEX_CHAN_MASKED(D, T, C3MR, 3, (chan::masked_vec<Bits<T>, 3>))                                  \
    GEX_CHAN_MASKED(D, T, C4MR, 4, (chan::masked_vec<Bits<T>, 4>))                                  \
    GEX_CHAN_MASKED(D, T, AC4MR, 4, (chan::masked_vec<Bits<T>, 4, true>))

GEX_CHAN_DEPTH(8u, Gex8u)
GEX_CHAN_DEPTH(16u, Gex16u)
GEX_CHAN_DEPTH(16s, Gex16s)
GEX_CHAN_DEPTH(32s, Gex32s)
GEX_CHAN_DEPTH(32f, Gex32f)
