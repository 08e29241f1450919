// gexiFilter_64f_C1R: double-precision convolution with a free anchor and no
// border handling (the caller supplies the neighbourhood), and its buffer query.
//
// The window of (x, y) starts kw-1-anchor.x columns left and kh-1-anchor.y rows
// above it, and tap (j, i) of the window meets kernel tap (kh-1-j, kw-1-i).
// Each output sums products in window order (rows, then columns) with separate
// multiplies and adds; the vector loop (8 doubles a lane group, masked tail)
// keeps that order and so gives the bits of a scalar loop.
#include <immintrin.h>

#include <cstdint>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/simd.hpp"

GEX_EXPORT(GexStatus, gexiFilter_64f_C1R,
           (const Gex64f* pSrc, int srcStep, Gex64f* pDst, int dstStep, GexiSize dstRoiSize, const Gex64f* pKernel,
            GexiSize kernelSize, GexiPoint anchor, Gex8u* pBuffer)) {
    (void)pBuffer;
    GEX_CHECK(check_null(pSrc, pDst, pKernel));
    GEX_CHECK(check_roi(dstRoiSize));
    GEX_CHECK(check_roi(kernelSize));
    const std::int64_t W = dstRoiSize.width, kw = kernelSize.width, kh = kernelSize.height;
    if (srcStep < (W + kw - 1) * 8 || dstStep < W * 8) return gexStsStep;
    const std::int64_t left = kw - 1 - anchor.x, up = kh - 1 - anchor.y;
    const std::int64_t n = kw * kh;
    for (int y = 0; y < dstRoiSize.height; ++y) {
        const auto* top = reinterpret_cast<const std::uint8_t*>(pSrc) + (y - up) * std::int64_t{srcStep};
        auto* d = reinterpret_cast<Gex64f*>(reinterpret_cast<std::uint8_t*>(pDst) + y * std::int64_t{dstStep});
        for (std::int64_t x = 0; x < W; x += 8) {
            const __mmask8 m = simd::tail_mask8(W - x);
            __m512d acc = _mm512_setzero_pd();
            for (std::int64_t j = 0; j < kh; ++j) {
                const Gex64f* r = reinterpret_cast<const Gex64f*>(top + j * srcStep) + x - left;
                const Gex64f* t = pKernel + n - 1 - j * kw;  // reversed row j
                for (std::int64_t i = 0; i < kw; ++i) {
                    const __m512d p = _mm512_mul_pd(_mm512_maskz_loadu_pd(m, r + i), _mm512_set1_pd(t[-i]));
                    acc = _mm512_add_pd(acc, p);
                }
            }
            _mm512_mask_storeu_pd(d + x, m, acc);
        }
    }
    return gexStsOk;
}

GEX_EXPORT(GexStatus, gexiFilterGetBufSize_64f_C1R, (GexiSize kernelSize, int roiWidth, int* pSize)) {
    GEX_CHECK(check_null(pSize));
    GEX_CHECK(check_roi(kernelSize));
    if (roiWidth < 1) return gexStsSize;
    const std::int64_t v = std::int64_t{kernelSize.width} * kernelSize.height * 64 + 128;
    if (v > 2147483647) return gexStsExceededSize;
    *pSize = static_cast<int>(v);
    return gexStsOk;
}
