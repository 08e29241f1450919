// FFT: two-dimensional transforms of power-of-two sizes 2^orderX x 2^orderY,
// real to Pack and back (C1, C3, C4, AC4, out of place and in place) and
// complex to complex, on the 1-D power-of-two engine.
#include "frame/export.hpp"
#include "transform/fft2d.hpp"

namespace gex {
namespace {

GexStatus fft_sub_size(bool real, int order, int flag, GexHintAlgorithm hint, t2d::SubSizes& s) {
    return real ? gexsFFTGetSize_R_32f(order, flag, hint, &s.record, &s.init, &s.buf)
                : gexsFFTGetSize_C_32fc(order, flag, hint, &s.record, &s.init, &s.buf);
}

GexStatus fft2_get_size(int orderX, int orderY, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                        int* pBufferSize, bool real) {
    if (orderX >= 31 || orderY >= 31 || orderX < 0 || orderY < 0) return gexStsFFTOrder;
    GEX_CHECK(check_null(pSpecSize, pInitSize, pBufferSize));
    auto get = [&](bool r, int axis, t2d::SubSizes& s) { return fft_sub_size(r, axis ? orderY : orderX, flag, hint, s); };
    return t2d::sizes_2d(real, orderX == orderY, std::int64_t{1} << orderX, std::int64_t{1} << orderY, 128 + 64, get,
                         pSpecSize, pInitSize, pBufferSize);
}

GexStatus fft2_init(int orderX, int orderY, int flag, GexHintAlgorithm hint, GexiFFTSpec* pSpec, Gex8u* pInitBuffer,
                    bool real) {
    if (orderX >= 31 || orderY >= 31 || orderX < 0 || orderY < 0) return gexStsFFTOrder;
    if (pSpec == nullptr) return gexStsNullPtr;
    auto get = [&](bool r, int axis, t2d::SubSizes& s) { return fft_sub_size(r, axis ? orderY : orderX, flag, hint, s); };
    auto build = [&](bool r, int axis, Gex8u* where, Gex8u* init, void*& rec) {
        FftSpec* p = nullptr;
        const int order = axis ? orderY : orderX;
        const GexStatus st = r ? gexsFFTInit_R_32f(&p, order, flag, hint, where, init)
                               : gexsFFTInit_C_32fc(&p, order, flag, hint, where, init);
        rec = p;
        return st;
    };
    return t2d::init_2d(reinterpret_cast<Gex8u*>(pSpec), real ? kIdFft2R : kIdFft2C, orderX, orderY,
                        std::int64_t{1} << orderX, std::int64_t{1} << orderY, hint, real, orderX == orderY,
                        pInitBuffer, get, build);
}

}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiFFTGetSize_R_32f,
           (int orderX, int orderY, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize)) {
    return fft2_get_size(orderX, orderY, flag, hint, pSpecSize, pInitSize, pBufferSize, true);
}
GEX_EXPORT(GexStatus, gexiFFTGetSize_C_32fc,
           (int orderX, int orderY, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize)) {
    return fft2_get_size(orderX, orderY, flag, hint, pSpecSize, pInitSize, pBufferSize, false);
}
GEX_EXPORT(GexStatus, gexiFFTInit_R_32f,
           (int orderX, int orderY, int flag, GexHintAlgorithm hint, GexiFFTSpec* pSpec, Gex8u* pInitBuffer)) {
    return fft2_init(orderX, orderY, flag, hint, pSpec, pInitBuffer, true);
}
GEX_EXPORT(GexStatus, gexiFFTInit_C_32fc,
           (int orderX, int orderY, int flag, GexHintAlgorithm hint, GexiFFTSpec* pSpec, Gex8u* pInitBuffer)) {
    return fft2_init(orderX, orderY, flag, hint, pSpec, pInitBuffer, false);
}

GEX_FOURIER2_RUNS(FFT, FftEngine, GexiFFTSpec, kIdFft2R, kIdFft2C)
