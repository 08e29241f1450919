// Argument checks shared by every checking wrapper.
//
// A wrapper lists its checks in its family's order, one GEX_CHECK per line,
// and returns at the first failure before anything is written:
//
//     GEX_CHECK(check_null(pSrc, pDst));
//     GEX_CHECK(check_roi(roiSize));
//     GEX_CHECK(check_steps(srcStep, dstStep));   // only where the family checks steps
//
// Families whose order is "null, step, size" simply swap the last two lines.
#pragma once

#include "gexdefs.h"

#define GEX_CHECK(expr)                                   \
    do {                                                  \
        const GexStatus gex_check_status_ = (expr);       \
        if (gex_check_status_ != gexStsOk) return gex_check_status_; \
    } while (0)

namespace gex {

// Null pointers, tested in argument order (all at once: the result is the same).
template <class... P>
constexpr GexStatus check_null(const P*... ptrs) {
    return ((ptrs == nullptr) || ...) ? gexStsNullPtr : gexStsOk;
}

// A planar operand: the array of plane pointers first, then each plane in order.
template <class T>
constexpr GexStatus check_planes(const T* const* planes, int count) {
    if (planes == nullptr) return gexStsNullPtr;
    for (int i = 0; i < count; ++i)
        if (planes[i] == nullptr) return gexStsNullPtr;
    return gexStsOk;
}

constexpr GexStatus check_roi(GexiSize roi) {
    return (roi.width < 1 || roi.height < 1) ? gexStsSize : gexStsOk;
}

constexpr GexStatus check_roi(GexiSizeL roi) {
    return (roi.width < 1 || roi.height < 1) ? gexStsSize : gexStsOk;
}

// Steps are tested against 1 only, not against the row length.
template <class... S>
constexpr GexStatus check_steps(S... steps) {
    return ((steps < 1) || ...) ? gexStsStep : gexStsOk;
}

// The channel-folding forwarders test the width before anything else, so a
// null pointer with width 0 reports the size.
constexpr GexStatus check_width(GexiSize roi) {
    return roi.width < 1 ? gexStsSize : gexStsOk;
}

}  // namespace gex
