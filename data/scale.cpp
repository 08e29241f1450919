// Scale: 8u16u, 8u16s, 8u32s, 8u32f (widening), 16u8u, 16s8u, 32s8u (with
// a fast and an accurate kernel chosen by the hint) and 32f8u, each in C1,
// C3, C4 and AC4.
//
// Checks: the two range forms (8u32f, 32f8u) test vMax - vMin <= 0 first
// (-13, whatever the pointers), then all forms test null, size and steps.
// A NaN range does not compare as <= 0 and is taken as given.
//
// C3 and C4 rows are rows of width x channels elements; AC4 rows go through
// the same kernels under the lane pattern that leaves every fourth element
// alone. Rows without gaps are one row.
#include "data/scale.hpp"

#include <cstdint>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

namespace sk = scale_kernels;

constexpr std::int64_t kMergeBelow = 0x7fffffff;

// Channels of a layout; AC4 counts four, of which three are processed.
enum Layout : int { kC1 = 1, kC3 = 3, kC4 = 4, kAC4 = 5 };

constexpr int elements_per_pixel(int layout) { return layout == kAC4 ? 4 : layout; }

// The row loop after the checks.
template <int Lay, class K>
GexStatus scale_rows(const K& k, const typename K::S* pSrc, int srcStep, typename K::D* pDst, int dstStep,
                     GexiSize roi) {
    using S = typename K::S;
    using D = typename K::D;
    std::int64_t n = std::int64_t{roi.width} * elements_per_pixel(Lay);
    std::int64_t h = roi.height;
    if (srcStep == n * std::int64_t{sizeof(S)} && dstStep == n * std::int64_t{sizeof(D)} &&
        std::int64_t{roi.width} * h < kMergeBelow) {
        n *= h;
        h = 1;
    }
    auto run = [&] {
        for (std::int64_t y = 0; y < h; ++y)
            sk::row(k, row_at(pSrc, srcStep, y), row_at(pDst, dstStep, y), n, Lay == kAC4);
    };
    if constexpr (K::kFloat) {
        FpControlGuard nearest(FpRound::Nearest);
        run();
    } else {
        run();
    }
    return gexStsOk;
}

template <int Lay, class K, class S, class D>
GexStatus scale_plain(const K& k, const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    return scale_rows<Lay>(k, pSrc, srcStep, pDst, dstStep, roi);
}

template <int Lay, class Fast, class Acc, class S, class D>
GexStatus scale_hint(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, GexHintAlgorithm hint) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    if (hint == gexAlgHintAccurate) return scale_rows<Lay>(Acc{}, pSrc, srcStep, pDst, dstStep, roi);
    return scale_rows<Lay>(Fast{}, pSrc, srcStep, pDst, dstStep, roi);
}

template <int Lay>
GexStatus scale_8u32f(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roi, Gex32f vMin,
                      Gex32f vMax) {
    if (vMax - vMin <= 0.0f) return gexStsScaleRange;
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    FpControlGuard nearest(FpRound::Nearest);  // the ratio rounds as the kernels do
    const float ratio = (vMax - vMin) / 255.0f;
    return scale_rows<Lay>(sk::K8u32f{ratio, vMin}, pSrc, srcStep, pDst, dstStep, roi);
}

template <int Lay>
GexStatus scale_32f8u(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roi, Gex32f vMin,
                      Gex32f vMax) {
    if (vMax - vMin <= 0.0f) return gexStsScaleRange;
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    FpControlGuard nearest(FpRound::Nearest);
    const float k = 255.0f / (vMax - vMin);
    const float c = -k * vMin;
    return scale_rows<Lay>(sk::K32f8u{k, c}, pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace

}  // namespace gex

#define GEX_SCALE_ARGS(S, D) (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize)
#define GEX_SCALE_ARGS_RANGE(S, D) \
    (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax)
#define GEX_SCALE_ARGS_HINT(S, D) \
    (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint)

#define GEX_SCALE_WIDEN(P, S, D, K)                                                  \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C1R, GEX_SCALE_ARGS(S, D)) {               \
        return scale_plain<kC1>(K{}, pSrc, srcStep, pDst, dstStep, roiSize);         \
    }                                                                                \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C3R, GEX_SCALE_ARGS(S, D)) {               \
        return scale_plain<kC3>(K{}, pSrc, srcStep, pDst, dstStep, roiSize);         \
    }                                                                                \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C4R, GEX_SCALE_ARGS(S, D)) {               \
        return scale_plain<kC4>(K{}, pSrc, srcStep, pDst, dstStep, roiSize);         \
    }                                                                                \
    GEX_EXPORT(GexStatus, gexiScale_##P##_AC4R, GEX_SCALE_ARGS(S, D)) {              \
        return scale_plain<kAC4>(K{}, pSrc, srcStep, pDst, dstStep, roiSize);        \
    }

GEX_SCALE_WIDEN(8u16u, Gex8u, Gex16u, sk::K8u16u)
GEX_SCALE_WIDEN(8u16s, Gex8u, Gex16s, sk::K8u16s)
GEX_SCALE_WIDEN(8u32s, Gex8u, Gex32s, sk::K8u32s)

#define GEX_SCALE_NARROW(P, S, Fast, Acc)                                                         \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C1R, GEX_SCALE_ARGS_HINT(S, Gex8u)) {                   \
        return scale_hint<kC1, Fast, Acc>(pSrc, srcStep, pDst, dstStep, roiSize, hint);           \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C3R, GEX_SCALE_ARGS_HINT(S, Gex8u)) {                   \
        return scale_hint<kC3, Fast, Acc>(pSrc, srcStep, pDst, dstStep, roiSize, hint);           \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C4R, GEX_SCALE_ARGS_HINT(S, Gex8u)) {                   \
        return scale_hint<kC4, Fast, Acc>(pSrc, srcStep, pDst, dstStep, roiSize, hint);           \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiScale_##P##_AC4R, GEX_SCALE_ARGS_HINT(S, Gex8u)) {                  \
        return scale_hint<kAC4, Fast, Acc>(pSrc, srcStep, pDst, dstStep, roiSize, hint);          \
    }

GEX_SCALE_NARROW(16u8u, Gex16u, sk::K16to8uFast<true>, sk::K16to8uAcc<true>)
GEX_SCALE_NARROW(16s8u, Gex16s, sk::K16to8uFast<false>, sk::K16to8uAcc<false>)
GEX_SCALE_NARROW(32s8u, Gex32s, sk::K32s8uFast, sk::K32s8uAcc)

#define GEX_SCALE_RANGE(P, S, D, Impl)                                                             \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C1R, GEX_SCALE_ARGS_RANGE(S, D)) {                       \
        return Impl<kC1>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);                       \
    }                                                                                              \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C3R, GEX_SCALE_ARGS_RANGE(S, D)) {                       \
        return Impl<kC3>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);                       \
    }                                                                                              \
    GEX_EXPORT(GexStatus, gexiScale_##P##_C4R, GEX_SCALE_ARGS_RANGE(S, D)) {                       \
        return Impl<kC4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);                       \
    }                                                                                              \
    GEX_EXPORT(GexStatus, gexiScale_##P##_AC4R, GEX_SCALE_ARGS_RANGE(S, D)) {                      \
        return Impl<kAC4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);                      \
    }

GEX_SCALE_RANGE(8u32f, Gex8u, Gex32f, scale_8u32f)
GEX_SCALE_RANGE(32f8u, Gex32f, Gex8u, scale_32f8u)
