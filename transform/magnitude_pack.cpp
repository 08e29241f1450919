// MagnitudePack, PhasePack: magnitude sqrt(re^2 + im^2) and phase atan2(im, re)
// of the full W x H spectrum held in a Pack, one output value per frequency.
// Each output row is first built as complex values in the work buffer (row r
// reads its mirror row H - r for the conjugate half), then converted; C3
// handles the three channels interleaved, 3 W values a row.
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "transform/complex_rows.hpp"
#include "transform/fft_engine.hpp"
#include "transform/pack_layout.hpp"

namespace gex {
namespace {

GexStatus pack_buffer_size(int numChannels, GexiSize roi, int* pSize) {
    GEX_CHECK(check_null(pSize));
    if (roi.width < 1) return gexStsSize;
    if (numChannels != 1 && numChannels != 3) return gexStsNumChannels;
    const std::int64_t bytes = std::int64_t{8} * numChannels * roi.width + 64;
    if (bytes > 2147483647) return gexStsExceededSize;
    *pSize = static_cast<int>(bytes);
    return gexStsOk;
}

template <int C, bool PHASE>
GexStatus pack_to_real(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roi, Gex8u* pBuffer) {
    GEX_CHECK(check_null(pSrc, pDst, pBuffer));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    Gex32fc* row = reinterpret_cast<Gex32fc*>(fft::align64(pBuffer));
    const std::int64_t n = std::int64_t{roi.width} * C;
    for (int y = 0; y < roi.height; ++y) {
        for (int ch = 0; ch < C; ++ch) pack::extend_row(pSrc, srcStep, roi.width, roi.height, y, C, ch, row + ch, C);
        if constexpr (PHASE) cplx::phase_row(row, row_at(pDst, dstStep, y), n);
        else cplx::magnitude_row(row, row_at(pDst, dstStep, y), n);
    }
    return gexStsOk;
}

}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiMagnitudePackGetBufferSize_32f, (int numChannels, GexiSize dstRoiSize, int* pSize)) {
    return pack_buffer_size(numChannels, dstRoiSize, pSize);
}
GEX_EXPORT(GexStatus, gexiPhasePackGetBufferSize_32f, (int numChannels, GexiSize dstRoiSize, int* pSize)) {
    return pack_buffer_size(numChannels, dstRoiSize, pSize);
}
GEX_EXPORT(GexStatus, gexiMagnitudePack_32f_C1R,
           (const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, Gex8u* pBuffer)) {
    return pack_to_real<1, false>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pBuffer);
}
GEX_EXPORT(GexStatus, gexiMagnitudePack_32f_C3R,
           (const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, Gex8u* pBuffer)) {
    return pack_to_real<3, false>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pBuffer);
}
GEX_EXPORT(GexStatus, gexiPhasePack_32f_C1R,
           (const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, Gex8u* pBuffer)) {
    return pack_to_real<1, true>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pBuffer);
}
GEX_EXPORT(GexStatus, gexiPhasePack_32f_C3R,
           (const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, Gex8u* pBuffer)) {
    return pack_to_real<3, true>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pBuffer);
}
