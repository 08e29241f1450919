// Magnitude, Phase, PolarToCart: element functions between complex images and
// pairs of real images, C1 and C3 (3 W values a row). Checks: pointers, size,
// steps.
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "transform/complex_rows.hpp"

namespace gex {
namespace {

template <int C, bool PHASE>
GexStatus to_real(const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    const std::int64_t n = std::int64_t{roi.width} * C;
    for (int y = 0; y < roi.height; ++y) {
        if constexpr (PHASE) cplx::phase_row(row_at(pSrc, srcStep, y), row_at(pDst, dstStep, y), n);
        else cplx::magnitude_row(row_at(pSrc, srcStep, y), row_at(pDst, dstStep, y), n);
    }
    return gexStsOk;
}

template <int C>
GexStatus polar(const Gex32f* pM, const Gex32f* pP, int srcStep, GexiSize roi, Gex32fc* pDst, int dstStep) {
    GEX_CHECK(check_null(pM, pP, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    const std::int64_t n = std::int64_t{roi.width} * C;
    for (int y = 0; y < roi.height; ++y)
        cplx::polar_row(row_at(pM, srcStep, y), row_at(pP, srcStep, y), row_at(pDst, dstStep, y), n);
    return gexStsOk;
}

}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiMagnitude_32fc32f_C1R,
           (const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return to_real<1, false>(pSrc, srcStep, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiMagnitude_32fc32f_C3R,
           (const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return to_real<3, false>(pSrc, srcStep, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiPhase_32fc32f_C1R,
           (const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return to_real<1, true>(pSrc, srcStep, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiPhase_32fc32f_C3R,
           (const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return to_real<3, true>(pSrc, srcStep, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiPolarToCart_32fc_C1R,
           (const Gex32f* pSrcMagn, const Gex32f* pSrcPhase, int srcStep, GexiSize roiSize, Gex32fc* pDst,
            int dstStep)) {
    return polar<1>(pSrcMagn, pSrcPhase, srcStep, roiSize, pDst, dstStep);
}
GEX_EXPORT(GexStatus, gexiPolarToCart_32fc_C3R,
           (const Gex32f* pSrcMagn, const Gex32f* pSrcPhase, int srcStep, GexiSize roiSize, Gex32fc* pDst,
            int dstStep)) {
    return polar<3>(pSrcMagn, pSrcPhase, srcStep, roiSize, pDst, dstStep);
}
