// MulScale and MulCScale: products of 8u and 16u pixels scaled back as if
// both operands lay in [0, 1] (8u: (p + 1 + (p >> 8)) >> 8, 16u:
// (p + 1 + (p >> 16)) >> 16, with p = a x b), in C1, C3, C4, AC4 and in
// place. 32 exports.
//
// Checks come in the order null, step, size. The two-image forms (MulScale,
// in place or not) check their steps (< 1: -14); the constant forms
// (MulCScale) check none and take any step, zero and negative included, as
// the other constant products do.
//
// The 8u two-image rows run on a vector kernel; 16u and the constant forms are
// plain loops.
#include <cstdint>
#include <type_traits>

#include "arith/div_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

namespace dk = div_kernels;

constexpr std::int64_t kMergeBelow = 0x7fffffff;

// Rows of elems elements; rows without gaps become one row.
template <class T, class Row>
void rows(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi, int elems,
          Row row) {
    std::int64_t n = std::int64_t{roi.width} * elems;
    std::int64_t h = roi.height;
    const std::int64_t rowBytes = n * std::int64_t{sizeof(T)};
    if (src1Step == rowBytes && src2Step == rowBytes && dstStep == rowBytes && n * h < kMergeBelow) {
        n *= h;
        h = 1;
    }
    for (std::int64_t y = 0; y < h; ++y) row(row_at(pSrc1, src1Step, y), row_at(pSrc2, src2Step, y), row_at(pDst, dstStep, y), n);
}

template <class T>
void mulscale_row(const T* a, const T* b, T* o, std::int64_t len, bool ac4) {
    if constexpr (std::is_same_v<T, Gex8u>) dk::mulscale_row_8u(a, b, o, len, ac4);
    else dk::mulscale_row_scalar(a, b, o, len, ac4);
}

// Elems: elements a pixel (AC4: 4, of which three are computed).
template <class T, int Elems, bool Ac4>
GexStatus mulscale(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_steps(src1Step, src2Step, dstStep));
    GEX_CHECK(check_roi(roi));
    rows(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, Elems,
         [](const T* a, const T* b, T* o, std::int64_t len) { mulscale_row(a, b, o, len, Ac4); });
    return gexStsOk;
}

template <class T, int Elems, bool Ac4>
GexStatus mulscale_inplace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pSrcDst));
    GEX_CHECK(check_steps(srcStep, srcDstStep));
    GEX_CHECK(check_roi(roi));
    rows(pSrc, srcStep, static_cast<const T*>(pSrcDst), srcDstStep, pSrcDst, srcDstStep, roi, Elems,
         [](const T* a, const T* b, T* o, std::int64_t len) { mulscale_row(a, b, o, len, Ac4); });
    return gexStsOk;
}

// values: one entry a channel (C1 1, C3 3, C4 4, AC4 3).
template <class T, int Elems, bool Ac4>
GexStatus mulcscale(const T* pSrc, int srcStep, const T* values, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, values, pDst));
    GEX_CHECK(check_roi(roi));
    T v[4] = {0, 0, 0, 0};
    for (int c = 0; c < (Ac4 ? 3 : Elems); ++c) v[c] = values[c];
    rows(pSrc, srcStep, pSrc, srcStep, pDst, dstStep, roi, Elems,
         [&v](const T* a, const T*, T* o, std::int64_t len) { dk::mulcscale_row(a, v, Elems, o, len, Ac4); });
    return gexStsOk;
}

template <class T, int Elems, bool Ac4>
GexStatus mulcscale_inplace(const T* values, T* pSrcDst, int srcDstStep, GexiSize roi) {
    GEX_CHECK(check_null(values, pSrcDst));
    GEX_CHECK(check_roi(roi));
    return mulcscale<T, Elems, Ac4>(pSrcDst, srcDstStep, values, pSrcDst, srcDstStep, roi);
}

}  // namespace

}  // namespace gex

#define GEX_MS_A2(T) (const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roiSize)
#define GEX_MS_AI(T) (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roiSize)
#define GEX_MCS_A(T, V) (const T* pSrc, int srcStep, V, T* pDst, int dstStep, GexiSize roiSize)
#define GEX_MCS_AI(T, V) (V, T* pSrcDst, int srcDstStep, GexiSize roiSize)

#define GEX_MS_LAYOUT(D, T, LAY, ELEMS, AC4)                                                                   \
    GEX_EXPORT(GexStatus, gexiMulScale_##D##_##LAY##R, GEX_MS_A2(T)) {                                         \
        return mulscale<T, ELEMS, AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);              \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiMulScale_##D##_##LAY##IR, GEX_MS_AI(T)) {                                        \
        return mulscale_inplace<T, ELEMS, AC4>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize);                   \
    }

#define GEX_MCS_LAYOUT(D, T, LAY, N, ELEMS, AC4)                                                               \
    GEX_EXPORT(GexStatus, gexiMulCScale_##D##_##LAY##R, GEX_MCS_A(T, const T value[N])) {                     \
        return mulcscale<T, ELEMS, AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);                         \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiMulCScale_##D##_##LAY##IR, GEX_MCS_AI(T, const T value[N])) {                   \
        return mulcscale_inplace<T, ELEMS, AC4>(value, pSrcDst, srcDstStep, roiSize);                          \
    }

#define GEX_MS_SET(D, T)                                                                                       \
    GEX_MS_LAYOUT(D, T, C1, 1, false)                                                                          \
    GEX_MS_LAYOUT(D, T, C3, 3, false)                                                                          \
    GEX_MS_LAYOUT(D, T, C4, 4, false)                                                                          \
    GEX_MS_LAYOUT(D, T, AC4, 4, true)                                                                          \
    GEX_EXPORT(GexStatus, gexiMulCScale_##D##_C1R, GEX_MCS_A(T, T value)) {                                   \
        return mulcscale<T, 1, false>(pSrc, srcStep, &value, pDst, dstStep, roiSize);                          \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiMulCScale_##D##_C1IR, GEX_MCS_AI(T, T value)) {                                 \
        return mulcscale_inplace<T, 1, false>(&value, pSrcDst, srcDstStep, roiSize);                           \
    }                                                                                                          \
    GEX_MCS_LAYOUT(D, T, C3, 3, 3, false)                                                                      \
    GEX_MCS_LAYOUT(D, T, C4, 4, 4, false)                                                                      \
    GEX_MCS_LAYOUT(D, T, AC4, 3, 4, true)

GEX_MS_SET(8u, Gex8u)
GEX_MS_SET(16u, Gex16u)
