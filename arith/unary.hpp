// Private pieces shared by the element functions (Abs, Sqr, Sqrt, Ln, Exp),
// the bitwise logic and the shifts: the one-dimensional primitives the 32f
// wrappers run row by row, the row walker, and the Copy and Set wrappers the
// short paths end in.
#pragma once

#include <cstdint>
#include <type_traits>

#include "data/copy.hpp"
#include "data/set.hpp"
#include "frame/checks.hpp"
#include "frame/pixel.hpp"
#include "gexip.h"


namespace gex {

// ---- one-dimensional primitives ------------------------------------------------
// len elements. A null pointer gives gexStsNullPtr (-8), len < 1 gexStsSize (-6).
// The result is written for every element, also where a warning is raised.

// IEEE square root; gexStsSqrtNegArgWarn (+3) when an element is below zero
// (-0 is not; its root is -0).
GexStatus gexsSqrt_32f(const Gex32f* pSrc, Gex32f* pDst, int len);
// Natural logarithm, rounded once from binary64. The status is that of the
// first element, in order, that is zero (gexStsLnZeroArgWarn, +7; the result
// is -infinity) or negative (gexStsLnNegArgWarn, +8; the result is NaN).
GexStatus gexsLn_32f(const Gex32f* pSrc, Gex32f* pDst, int len);
// Exponential, rounded once from binary64; no warning.
GexStatus gexsExp_32f(const Gex32f* pSrc, Gex32f* pDst, int len);

// ---- the row walker ---------------------------------------------------------------
// `height` rows of n elements, any steps. Rows with no gap between them (both
// steps equal to the row's bytes, fewer than 2^31 elements in all) run as one
// row. row(src, dst, n) returns 0 or a warning; the first warning is kept.
// In place: src and dst are the same pointer with the same step.
constexpr std::int64_t kMergeBelow = std::int64_t{1} << 31;

template <class S, class D, class Row>
GexStatus walk_rows(const S* src, std::int64_t srcStep, D* dst, std::int64_t dstStep, std::int64_t n,
                    std::int64_t height, Row&& row) {
    if (srcStep == n * std::int64_t{sizeof(S)} && dstStep == n * std::int64_t{sizeof(D)} &&
        n * height < kMergeBelow) {
        n *= height;
        height = 1;
    }
    GexStatus st = gexStsOk;
    for (std::int64_t y = 0; y < height; ++y) {
        const GexStatus r = row(src, dst, n);
        if (st == gexStsOk) st = r;
        src = row_at(src, srcStep, 1);
        dst = row_at(dst, dstStep, 1);
    }
    return st;
}

// The width of a C3 or C4 form handed to its C1 wrapper: a 32-bit product
// that wraps as the machine's multiplication does.
inline int folded_width(int width, int channels) {
    return static_cast<int>(static_cast<unsigned>(width) * static_cast<unsigned>(channels));
}

// The checks of every element function: null, size, then steps < 1.
template <class T>
GexStatus element_checks(const T* pSrc, int srcStep, const T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    return gexStsOk;
}

// Elements of a row: AC4 rows count the alpha element of every pixel.
constexpr std::int64_t row_elems(GexiSize roi, int channels) {
    return static_cast<std::int64_t>(roi.width) * channels;
}

// ---- the forms of an element function ----------------------------------------------------
// IMPL<T, AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor) is the
// checking wrapper of the C1 (AC4 false) and AC4 forms; an in-place form is
// the same call with one image as both operands (same checks, same order).
// C3 and C4 forms test the width, then hand the call to the C1 form with the
// width multiplied by the channel count.
#define GEX_UNARY_ARGS(T) (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize)
#define GEX_UNARY_IARGS(T) (T * pSrcDst, int srcDstStep, GexiSize roiSize)
#define GEX_UNARY_ARGS_SFS(T) (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize, int scaleFactor)
#define GEX_UNARY_IARGS_SFS(T) (T * pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor)

#define GEX_UNARY_OWN(NAME, T, AC4, IMPL)                                                           \
    GEX_EXPORT(GexStatus, NAME##R, GEX_UNARY_ARGS(T)) {                                             \
        return IMPL<T, AC4>(pSrc, srcStep, pDst, dstStep, roiSize, 0);                              \
    }                                                                                               \
    GEX_EXPORT(GexStatus, NAME##IR, GEX_UNARY_IARGS(T)) {                                           \
        return IMPL<T, AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, 0);                  \
    }
#define GEX_UNARY_OWN_SFS(NAME, T, AC4, IMPL)                                                       \
    GEX_EXPORT(GexStatus, NAME##RSfs, GEX_UNARY_ARGS_SFS(T)) {                                      \
        return IMPL<T, AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);                    \
    }                                                                                               \
    GEX_EXPORT(GexStatus, NAME##IRSfs, GEX_UNARY_IARGS_SFS(T)) {                                    \
        return IMPL<T, AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);        \
    }
#define GEX_UNARY_FOLD(NAME, C1NAME, T, CH)                                                         \
    GEX_EXPORT(GexStatus, NAME##R, GEX_UNARY_ARGS(T)) {                                             \
        GEX_CHECK(check_width(roiSize));                                                            \
        return gex::C1NAME##R(pSrc, srcStep, pDst, dstStep,                                         \
                              GexiSize{folded_width(roiSize.width, CH), roiSize.height});            \
    }                                                                                               \
    GEX_EXPORT(GexStatus, NAME##IR, GEX_UNARY_IARGS(T)) {                                           \
        GEX_CHECK(check_width(roiSize));                                                            \
        return gex::C1NAME##IR(pSrcDst, srcDstStep, GexiSize{folded_width(roiSize.width, CH), roiSize.height}); \
    }
#define GEX_UNARY_FOLD_SFS(NAME, C1NAME, T, CH)                                                     \
    GEX_EXPORT(GexStatus, NAME##RSfs, GEX_UNARY_ARGS_SFS(T)) {                                      \
        GEX_CHECK(check_width(roiSize));                                                            \
        return gex::C1NAME##RSfs(pSrc, srcStep, pDst, dstStep,                                      \
                                 GexiSize{folded_width(roiSize.width, CH), roiSize.height}, scaleFactor); \
    }                                                                                               \
    GEX_EXPORT(GexStatus, NAME##IRSfs, GEX_UNARY_IARGS_SFS(T)) {                                    \
        GEX_CHECK(check_width(roiSize));                                                            \
        return gex::C1NAME##IRSfs(pSrcDst, srcDstStep,                                              \
                                  GexiSize{folded_width(roiSize.width, CH), roiSize.height}, scaleFactor); \
    }

// ---- Copy and Set by depth and layout -------------------------------------------------
// Channels: 1, 3, 4, or 4 with ac4 (three channels move, the fourth stays).
template <class T, int Ch, bool AC4>
GexStatus copy_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {
#define GEX_ARITH_COPY(D, TT)                                                                   \
    if constexpr (std::is_same_v<T, TT>) {                                                      \
        if constexpr (AC4) return gex::gexiCopy_##D##_AC4R(pSrc, srcStep, pDst, dstStep, roi);  \
        else if constexpr (Ch == 1) return gex::gexiCopy_##D##_C1R(pSrc, srcStep, pDst, dstStep, roi); \
        else if constexpr (Ch == 3) return gex::gexiCopy_##D##_C3R(pSrc, srcStep, pDst, dstStep, roi); \
        else return gex::gexiCopy_##D##_C4R(pSrc, srcStep, pDst, dstStep, roi);                \
    }
    GEX_ARITH_COPY(8u, Gex8u)
    GEX_ARITH_COPY(16u, Gex16u)
    GEX_ARITH_COPY(16s, Gex16s)
    GEX_ARITH_COPY(32s, Gex32s)
#undef GEX_ARITH_COPY
}

// vals holds one value per written channel (vals[0] alone for C1).
template <class T, int Ch, bool AC4>
GexStatus set_image(const T* vals, T* pDst, int dstStep, GexiSize roi) {
#define GEX_ARITH_SET(D, TT)                                                           \
    if constexpr (std::is_same_v<T, TT>) {                                             \
        if constexpr (AC4) return gex::gexiSet_##D##_AC4R(vals, pDst, dstStep, roi);   \
        else if constexpr (Ch == 1) return gex::gexiSet_##D##_C1R(vals[0], pDst, dstStep, roi); \
        else if constexpr (Ch == 3) return gex::gexiSet_##D##_C3R(vals, pDst, dstStep, roi); \
        else return gex::gexiSet_##D##_C4R(vals, pDst, dstStep, roi);                 \
    }
    GEX_ARITH_SET(8u, Gex8u)
    GEX_ARITH_SET(16u, Gex16u)
    GEX_ARITH_SET(16s, Gex16s)
    GEX_ARITH_SET(32s, Gex32s)
#undef GEX_ARITH_SET
}

}  // namespace gex
