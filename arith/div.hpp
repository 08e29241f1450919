// Private pieces of Div and DivC: the one-dimensional primitives that the
// wrappers and the _L forms run on, and the chunked row loops of the _L forms
// with the chunk size as a parameter (the exports pass the table's sizes;
// tests pass small ones to cross chunk boundaries without huge buffers).
//
// Every gexs primitive checks its pointers (gexStsNullPtr, -8), then len < 1
// (gexStsSize, -6). The Div primitives take the divisor first:
// pDst[i] = pSrc2[i] / pSrc1[i], in place pSrcDst[i] = pSrcDst[i] / pSrc[i],
// and return gexStsDivByZeroWarn (6) when a divisor element was zero (the
// results are written all the same). The DivC primitives divide by val and
// return gexStsDivByZero (-10), writing nothing, when val is zero.
#pragma once

#include <cstdint>

#include "frame/large.hpp"
#include "frame/pixel.hpp"
#include "gexdefs.h"

namespace gex {

GexStatus gexsDiv_8u_Sfs(const Gex8u* pSrc1, const Gex8u* pSrc2, Gex8u* pDst, int len, int scaleFactor);
GexStatus gexsDiv_16u_Sfs(const Gex16u* pSrc1, const Gex16u* pSrc2, Gex16u* pDst, int len, int scaleFactor);
GexStatus gexsDiv_16s_Sfs(const Gex16s* pSrc1, const Gex16s* pSrc2, Gex16s* pDst, int len, int scaleFactor);
GexStatus gexsDiv_32f(const Gex32f* pSrc1, const Gex32f* pSrc2, Gex32f* pDst, int len);

GexStatus gexsDiv_8u_ISfs(const Gex8u* pSrc, Gex8u* pSrcDst, int len, int scaleFactor);
GexStatus gexsDiv_16u_ISfs(const Gex16u* pSrc, Gex16u* pSrcDst, int len, int scaleFactor);
GexStatus gexsDiv_16s_ISfs(const Gex16s* pSrc, Gex16s* pSrcDst, int len, int scaleFactor);
GexStatus gexsDiv_32f_I(const Gex32f* pSrc, Gex32f* pSrcDst, int len);

GexStatus gexsDivC_8u_Sfs(const Gex8u* pSrc, Gex8u val, Gex8u* pDst, int len, int scaleFactor);
GexStatus gexsDivC_16u_Sfs(const Gex16u* pSrc, Gex16u val, Gex16u* pDst, int len, int scaleFactor);
GexStatus gexsDivC_16s_Sfs(const Gex16s* pSrc, Gex16s val, Gex16s* pDst, int len, int scaleFactor);
GexStatus gexsDivC_32f(const Gex32f* pSrc, Gex32f val, Gex32f* pDst, int len);

GexStatus gexsDivC_8u_ISfs(Gex8u val, Gex8u* pSrcDst, int len, int scaleFactor);
GexStatus gexsDivC_16u_ISfs(Gex16u val, Gex16u* pSrcDst, int len, int scaleFactor);
GexStatus gexsDivC_16s_ISfs(Gex16s val, Gex16s* pSrcDst, int len, int scaleFactor);
GexStatus gexsDivC_32f_I(Gex32f val, Gex32f* pSrcDst, int len);

// ---- the _L forms past the forwarding test -------------------------------------
// Nothing is checked here: a height below 1 gives 0, every row with a positive
// width goes in chunks of at most chunkPixels pixels, a negative chunk status
// ends the call and any other replaces the one before (frame/large.hpp).

// Two-operand C1, C3, C4 forms: each chunk to the gexs primitive with
// pixels x channels elements: prim(src1, src2, dst, len).
template <class T, class Prim>
GexStatus large_by_primitive(const T* pSrc1, std::int64_t src1Step, const T* pSrc2, std::int64_t src2Step, T* pDst,
                             std::int64_t dstStep, GexiSizeL roi, int channels, std::int64_t chunkPixels, Prim prim) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t pixels) {
        const std::int64_t off = first * channels;
        return prim(row_at(pSrc1, src1Step, y) + off, row_at(pSrc2, src2Step, y) + off, row_at(pDst, dstStep, y) + off,
                    static_cast<int>(pixels * channels));
    });
}

// The in-place two-operand forms: prim(src, srcDst, len).
template <class T, class Prim>
GexStatus large_by_primitive_inplace(const T* pSrc, std::int64_t srcStep, T* pSrcDst, std::int64_t srcDstStep,
                                     GexiSizeL roi, int channels, std::int64_t chunkPixels, Prim prim) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t pixels) {
        const std::int64_t off = first * channels;
        return prim(row_at(pSrc, srcStep, y) + off, row_at(pSrcDst, srcDstStep, y) + off,
                    static_cast<int>(pixels * channels));
    });
}

// AC4 and constant forms: each chunk to the 32-bit wrapper with a one-row ROI
// and every step replaced by 4. call(y, firstElement, oneRowRoi) makes the
// wrapper call; firstElement counts elements (pixels x channels).
template <class Call>
GexStatus large_by_wrapper(GexiSizeL roi, int channels, std::int64_t chunkPixels, Call call) {
    return chunk_rows(roi, chunkPixels, [&](std::int64_t y, std::int64_t first, std::int64_t pixels) {
        return call(y, first * channels, GexiSize{static_cast<int>(pixels), 1});
    });
}

}  // namespace gex
