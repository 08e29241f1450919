// Private interface of the scaled arithmetic (Add, Sub, Mul, Div and their
// kin): the one-dimensional gexs primitives, and the drivers that every
// arithmetic family shares.
//
// The drivers are generic on purpose, so that a family only writes its
// element formula and its checks:
//
//   walk_rows()       walks the rows of any number of images with byte steps,
//                     merging them into one row when no image has a gap;
//   for_blocks()      walks one row in 512-bit blocks with the lane mask each
//                     block must use for its loads and stores: the row tail
//                     gets a shorter mask, and AC4 rows get the repeating
//                     0111 mask, so a masked store leaves alpha alone (the
//                     AC4 merge: result where the mask is on, destination
//                     where it is off) and a masked load never reads alpha;
//   for_elements()    the scalar twin of for_blocks();
//   set_image(), copy_image()
//                     the Set and Copy wrappers by depth and layout, for the
//                     short paths of the constant forms and the zero fills;
//   large_binary(), large_roi_*()
//                     the chunked half of the _L rule (the forwarding half is
//                     forward_if_small() in frame/large.hpp). They take the
//                     chunk size as an argument: the exports pass
//                     large_chunk_pixels(), the tests pass small ones.
#pragma once

#include <cstdint>
#include <type_traits>

#include "data/copy.hpp"
#include "data/set.hpp"
#include "frame/checks.hpp"
#include "frame/large.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"
#include "gexip.h"

namespace gex {

// ---- one-dimensional primitives ---------------------------------------------------
// len elements. Each checks its pointers (gexStsNullPtr, -8), then len < 1
// (gexStsSize, -6). Sub gives pSrc2 - pSrc1, and in place pSrcDst - pSrc.
// The scale factor follows the same rule as the image forms; only the bounds
// of the fast paths differ (Sub 8u zero-fills above 9, Mul 16s saturates by
// sign below -15), which does not change any result.
GexStatus gexsAdd_8u_Sfs(const Gex8u* pSrc1, const Gex8u* pSrc2, Gex8u* pDst, int len, int scaleFactor);
GexStatus gexsAdd_16u_Sfs(const Gex16u* pSrc1, const Gex16u* pSrc2, Gex16u* pDst, int len, int scaleFactor);
GexStatus gexsAdd_16s_Sfs(const Gex16s* pSrc1, const Gex16s* pSrc2, Gex16s* pDst, int len, int scaleFactor);
GexStatus gexsAdd_32f(const Gex32f* pSrc1, const Gex32f* pSrc2, Gex32f* pDst, int len);
GexStatus gexsAdd_8u_ISfs(const Gex8u* pSrc, Gex8u* pSrcDst, int len, int scaleFactor);
GexStatus gexsAdd_16u_ISfs(const Gex16u* pSrc, Gex16u* pSrcDst, int len, int scaleFactor);
GexStatus gexsAdd_16s_ISfs(const Gex16s* pSrc, Gex16s* pSrcDst, int len, int scaleFactor);
GexStatus gexsAdd_32f_I(const Gex32f* pSrc, Gex32f* pSrcDst, int len);

GexStatus gexsSub_8u_Sfs(const Gex8u* pSrc1, const Gex8u* pSrc2, Gex8u* pDst, int len, int scaleFactor);
GexStatus gexsSub_16u_Sfs(const Gex16u* pSrc1, const Gex16u* pSrc2, Gex16u* pDst, int len, int scaleFactor);
GexStatus gexsSub_16s_Sfs(const Gex16s* pSrc1, const Gex16s* pSrc2, Gex16s* pDst, int len, int scaleFactor);
GexStatus gexsSub_32f(const Gex32f* pSrc1, const Gex32f* pSrc2, Gex32f* pDst, int len);
GexStatus gexsSub_8u_ISfs(const Gex8u* pSrc, Gex8u* pSrcDst, int len, int scaleFactor);
GexStatus gexsSub_16u_ISfs(const Gex16u* pSrc, Gex16u* pSrcDst, int len, int scaleFactor);
GexStatus gexsSub_16s_ISfs(const Gex16s* pSrc, Gex16s* pSrcDst, int len, int scaleFactor);
GexStatus gexsSub_32f_I(const Gex32f* pSrc, Gex32f* pSrcDst, int len);

GexStatus gexsMul_8u_Sfs(const Gex8u* pSrc1, const Gex8u* pSrc2, Gex8u* pDst, int len, int scaleFactor);
GexStatus gexsMul_16u_Sfs(const Gex16u* pSrc1, const Gex16u* pSrc2, Gex16u* pDst, int len, int scaleFactor);
GexStatus gexsMul_16s_Sfs(const Gex16s* pSrc1, const Gex16s* pSrc2, Gex16s* pDst, int len, int scaleFactor);
GexStatus gexsMul_32f(const Gex32f* pSrc1, const Gex32f* pSrc2, Gex32f* pDst, int len);
GexStatus gexsMul_8u_ISfs(const Gex8u* pSrc, Gex8u* pSrcDst, int len, int scaleFactor);
GexStatus gexsMul_16u_ISfs(const Gex16u* pSrc, Gex16u* pSrcDst, int len, int scaleFactor);
GexStatus gexsMul_16s_ISfs(const Gex16s* pSrc, Gex16s* pSrcDst, int len, int scaleFactor);
GexStatus gexsMul_32f_I(const Gex32f* pSrc, Gex32f* pSrcDst, int len);

// ---- layouts ------------------------------------------------------------------------
enum class Lay { C1, C3, C4, AC4 };

template <Lay L>
constexpr int channels_of = L == Lay::C1 ? 1 : L == Lay::C3 ? 3 : 4;

// Entries of a constant: one per colour channel (AC4 has three).
template <Lay L>
constexpr int value_count = L == Lay::C1 ? 1 : L == Lay::C4 ? 4 : 3;

// The C3 and C4 forms hand over to C1 with the width multiplied by the
// channel count as a 32-bit product (it wraps like one).
inline GexiSize fold_width(GexiSize roi, int channels) {
    return GexiSize{static_cast<int>(static_cast<std::uint32_t>(roi.width) * static_cast<std::uint32_t>(channels)),
                    roi.height};
}

// ---- rows -------------------------------------------------------------------------------
// An image operand of a row walk: the pointer of the first row and the byte step.
template <class T>
struct Rows {
    T* p;
    std::int64_t step;
};

template <class T>
Rows<T> rows(T* p, std::int64_t step) {
    return Rows<T>{p, step};
}

// Calls row(n, p0, p1, ...) for each of `height` rows of `rowElems` elements,
// the pointers being the rows of the images in order. When every image's step
// equals its row's bytes, the image is one row of rowElems x height elements.
// A row function may return void or a GexStatus; the first non-zero status
// is returned, and the walk never stops early.
template <class F, class... T>
GexStatus walk_rows(std::int64_t rowElems, std::int64_t height, F&& row, Rows<T>... imgs) {
    if (((imgs.step == rowElems * static_cast<std::int64_t>(sizeof(T))) && ...)) {
        rowElems *= height;
        height = 1;
    }
    GexStatus status = gexStsOk;
    for (std::int64_t y = 0; y < height; ++y) {
        if constexpr (std::is_void_v<decltype(row(rowElems, imgs.p...))>) {
            row(rowElems, row_at(imgs.p, imgs.step, y)...);
        } else {
            const GexStatus st = row(rowElems, row_at(imgs.p, imgs.step, y)...);
            if (status == gexStsOk) status = st;
        }
    }
    return status;
}

// ---- blocks of a row ---------------------------------------------------------------------
// Calls body(i, mask, full) for the blocks of a row of n elements of E bytes:
// i is the first element of the block, mask the lanes the block may load and
// store, full a std::bool_constant that is true when the block is a whole
// vector whose every lane is on (the body may then use plain loads and
// stores). With AC4 every fourth lane is off in every block.
template <int E, bool AC4, class Body>
inline void for_blocks(std::int64_t n, Body&& body) {
    using M = typename simd::Mask<E>::type;
    constexpr int kLanes = simd::lanes<E>;
    constexpr M kOn = AC4 ? simd::ac4_mask<E>() : static_cast<M>(~M(0));
    std::int64_t i = 0;
    for (; i + kLanes <= n; i += kLanes) body(i, kOn, std::bool_constant<!AC4>{});
    if (i < n) body(i, static_cast<M>(simd::Mask<E>::tail(n - i) & kOn), std::false_type{});
}

// The scalar twin: body(i) for every element of the row, skipping the fourth
// channel of every AC4 pixel.
template <bool AC4, class Body>
inline void for_elements(std::int64_t n, Body&& body) {
    for (std::int64_t i = 0; i < n; ++i) {
        if (AC4 && (i & 3) == 3) continue;
        body(i);
    }
}

// ---- Set and Copy by depth and layout ----------------------------------------------------
// set_image<L>(value, ...): value holds value_count<L> entries (one for C1).
#define GEX_ARITH_DATA_OPS(D, T)                                                                      \
    template <Lay L>                                                                                   \
    GexStatus set_image(const T* value, T* pDst, int dstStep, GexiSize roi) {                          \
        if constexpr (L == Lay::C1) return gex::gexiSet_##D##_C1R(value[0], pDst, dstStep, roi);       \
        else if constexpr (L == Lay::C3) return gex::gexiSet_##D##_C3R(value, pDst, dstStep, roi);     \
        else if constexpr (L == Lay::C4) return gex::gexiSet_##D##_C4R(value, pDst, dstStep, roi);     \
        else return gex::gexiSet_##D##_AC4R(value, pDst, dstStep, roi);                                \
    }                                                                                                  \
    template <Lay L>                                                                                   \
    GexStatus copy_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {            \
        if constexpr (L == Lay::C1) return gex::gexiCopy_##D##_C1R(pSrc, srcStep, pDst, dstStep, roi); \
        else if constexpr (L == Lay::C3) return gex::gexiCopy_##D##_C3R(pSrc, srcStep, pDst, dstStep, roi); \
        else if constexpr (L == Lay::C4) return gex::gexiCopy_##D##_C4R(pSrc, srcStep, pDst, dstStep, roi); \
        else return gex::gexiCopy_##D##_AC4R(pSrc, srcStep, pDst, dstStep, roi);                       \
    }
GEX_ARITH_DATA_OPS(8u, Gex8u)
GEX_ARITH_DATA_OPS(16u, Gex16u)
GEX_ARITH_DATA_OPS(16s, Gex16s)
GEX_ARITH_DATA_OPS(32f, Gex32f)
#undef GEX_ARITH_DATA_OPS

// Every pixel (every colour channel for AC4) set to v.
template <Lay L, class T>
GexStatus fill_image(T v, T* pDst, int dstStep, GexiSize roi) {
    const T values[4] = {v, v, v, v};
    return set_image<L>(values, pDst, dstStep, roi);
}

// ---- the chunked half of the _L rule ------------------------------------------------------
// Rows of roi.width pixels of `channels` elements; each chunk of at most
// chunkPixels pixels goes to prim(src1, src2, dst, elements) (a gexs
// primitive; an in-place form passes its srcDst as src2 and dst). The status
// is that of the last chunk; a negative one ends the call.
template <class T, class Prim>
GexStatus large_binary(const T* pSrc1, std::int64_t src1Step, const T* pSrc2, std::int64_t src2Step, T* pDst,
                       std::int64_t dstStep, GexiSizeL roi, int channels, std::int64_t chunkPixels, Prim prim) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t n) {
        const std::int64_t off = first * channels;
        return prim(row_at(pSrc1, src1Step, y) + off, row_at(pSrc2, src2Step, y) + off,
                    row_at(pDst, dstStep, y) + off, static_cast<int>(n * channels));
    });
}

// The same for forms whose chunks go to the 32-bit wrapper with a one-row
// ROI: wrapper(src, dst, GexiSize{pixels, 1}) for one source image and a
// destination (constant forms; in place, src and dst are the same image).
// The wrapper passes the constant 4 for every step, which a one-row ROI never
// uses.
template <class S, class T, class Wrapper>
GexStatus large_roi_2(const S* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, GexiSizeL roi,
                      int channels, std::int64_t chunkPixels, Wrapper wrapper) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t n) {
        const std::int64_t off = first * channels;
        return wrapper(row_at(pSrc, srcStep, y) + off, row_at(pDst, dstStep, y) + off,
                       GexiSize{static_cast<int>(n), 1});
    });
}

// wrapper(src1, src2, dst, GexiSize{pixels, 1}) for two sources (AC4 forms).
template <class T, class Wrapper>
GexStatus large_roi_3(const T* pSrc1, std::int64_t src1Step, const T* pSrc2, std::int64_t src2Step, T* pDst,
                      std::int64_t dstStep, GexiSizeL roi, int channels, std::int64_t chunkPixels, Wrapper wrapper) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t n) {
        const std::int64_t off = first * channels;
        return wrapper(row_at(pSrc1, src1Step, y) + off, row_at(pSrc2, src2Step, y) + off,
                       row_at(pDst, dstStep, y) + off, GexiSize{static_cast<int>(n), 1});
    });
}

}  // namespace gex
