// BinToGray (1u to 8u, 16u, 16s, 32f) and GrayToBin (8u, 16u, 16s, 32f to 1u).
//
// Checks: null, size, steps < 1 (-14), then a negative bit offset (-6). An
// offset of 8 or more starts the rows that many whole bytes further on; what
// is left (0..7) is the bit offset within the first byte. GrayToBin leaves
// the bits of the first and last byte of each row that lie outside the ROI
// as they were.
#include "data/bin_gray.hpp"

#include <cstdint>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

namespace bk = bin_gray_kernels;

constexpr GexStatus check_offset(int bitOffset) { return bitOffset < 0 ? gexStsSize : gexStsOk; }

template <class D>
GexStatus bin_to_gray(const Gex8u* pSrc, int srcStep, int srcBitOffset, D* pDst, int dstStep, GexiSize roi, D lo,
                      D hi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_offset(srcBitOffset));
    const Gex8u* src = pSrc + (srcBitOffset >> 3);
    const int b = srcBitOffset & 7;
    for (int y = 0; y < roi.height; ++y)
        bk::bin_to_gray_row(row_at(src, srcStep, y), b, row_at(pDst, dstStep, y), roi.width, lo, hi);
    return gexStsOk;
}

template <class S>
GexStatus gray_to_bin(const S* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roi,
                      S threshold) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_offset(dstBitOffset));
    Gex8u* dst = pDst + (dstBitOffset >> 3);
    const int b = dstBitOffset & 7;
    for (int y = 0; y < roi.height; ++y)
        bk::gray_to_bin_row(row_at(pSrc, srcStep, y), row_at(dst, dstStep, y), b, roi.width, threshold);
    return gexStsOk;
}

}  // namespace

}  // namespace gex

#define GEX_BIN_TO_GRAY(W, D)                                                                               \
    GEX_EXPORT(GexStatus, gexiBinToGray_1u##W##_C1R,                                                        \
               (const Gex8u* pSrc, int srcStep, int srcBitOffset, D* pDst, int dstStep, GexiSize roiSize,   \
                D loVal, D hiVal)) {                                                                        \
        return bin_to_gray(pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize, loVal, hiVal);             \
    }

#define GEX_GRAY_TO_BIN(W, S)                                                                               \
    GEX_EXPORT(GexStatus, gexiGrayToBin_##W##1u_C1R,                                                        \
               (const S* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roiSize,   \
                S threshold)) {                                                                             \
        return gray_to_bin(pSrc, srcStep, pDst, dstStep, dstBitOffset, roiSize, threshold);                \
    }

GEX_BIN_TO_GRAY(8u, Gex8u)
GEX_BIN_TO_GRAY(16u, Gex16u)
GEX_BIN_TO_GRAY(16s, Gex16s)
GEX_BIN_TO_GRAY(32f, Gex32f)

GEX_GRAY_TO_BIN(8u, Gex8u)
GEX_GRAY_TO_BIN(16u, Gex16u)
GEX_GRAY_TO_BIN(16s, Gex16s)
GEX_GRAY_TO_BIN(32f, Gex32f)
