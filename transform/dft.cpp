// DFT: two-dimensional transforms of any size W x H, real to Pack and back
// (C1, C3, C4, AC4, out of place and in place) and complex to complex, on the
// 1-D any-length engine.
#include "frame/export.hpp"
#include "transform/fft2d.hpp"

namespace gex {
namespace {

GexStatus dft_sub_size(bool real, int len, int flag, GexHintAlgorithm hint, t2d::SubSizes& s) {
    return real ? gexsDFTGetSize_R_32f(len, flag, hint, &s.record, &s.init, &s.buf)
                : gexsDFTGetSize_C_32fc(len, flag, hint, &s.record, &s.init, &s.buf);
}

GexStatus dft2_get_size(GexiSize roi, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                        int* pBufferSize, bool real) {
    GEX_CHECK(check_null(pSpecSize, pInitSize, pBufferSize));
    GEX_CHECK(check_roi(roi));
    auto get = [&](bool r, int axis, t2d::SubSizes& s) { return dft_sub_size(r, axis ? roi.height : roi.width, flag, hint, s); };
    return t2d::sizes_2d(real, roi.width == roi.height, roi.width, roi.height, 64, get, pSpecSize, pInitSize,
                         pBufferSize);
}

GexStatus dft2_init(GexiSize roi, int flag, GexHintAlgorithm hint, GexiDFTSpec* pSpec, Gex8u* pInitBuffer, bool real) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(check_roi(roi));
    auto get = [&](bool r, int axis, t2d::SubSizes& s) { return dft_sub_size(r, axis ? roi.height : roi.width, flag, hint, s); };
    auto build = [&](bool r, int axis, Gex8u* where, Gex8u* init, void*& rec) {
        const int len = axis ? roi.height : roi.width;
        DftSpec* p = reinterpret_cast<DftSpec*>(where);
        const GexStatus st = r ? gexsDFTInit_R_32f(len, flag, hint, p, init) : gexsDFTInit_C_32fc(len, flag, hint, p, init);
        rec = p;
        return st;
    };
    return t2d::init_2d(reinterpret_cast<Gex8u*>(pSpec), real ? kIdDft2R : kIdDft2C, roi.width, roi.height, roi.width,
                        roi.height, hint, real, roi.width == roi.height, pInitBuffer, get, build);
}

}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiDFTGetSize_R_32f,
           (GexiSize roiSize, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize)) {
    return dft2_get_size(roiSize, flag, hint, pSpecSize, pInitSize, pBufferSize, true);
}
GEX_EXPORT(GexStatus, gexiDFTGetSize_C_32fc,
           (GexiSize roiSize, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize)) {
    return dft2_get_size(roiSize, flag, hint, pSpecSize, pInitSize, pBufferSize, false);
}
GEX_EXPORT(GexStatus, gexiDFTInit_R_32f,
           (GexiSize roiSize, int flag, GexHintAlgorithm hint, GexiDFTSpec* pSpec, Gex8u* pInitBuffer)) {
    return dft2_init(roiSize, flag, hint, pSpec, pInitBuffer, true);
}
GEX_EXPORT(GexStatus, gexiDFTInit_C_32fc,
           (GexiSize roiSize, int flag, GexHintAlgorithm hint, GexiDFTSpec* pSpec, Gex8u* pInitBuffer)) {
    return dft2_init(roiSize, flag, hint, pSpec, pInitBuffer, false);
}

GEX_FOURIER2_RUNS(DFT, DftEngine, GexiDFTSpec, kIdDft2R, kIdDft2C)
