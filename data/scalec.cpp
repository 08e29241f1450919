// ScaleC: dst = saturate(round(src * mVal + aVal)) for every pair of 8u, 8s,
// 16u, 16s, 32s, 32f and 64f, plus the same-depth forms and their in-place
// twins.
//
// 1. mVal within 2.220446049250313e-16 of 1 and aVal within it of 0, tested
//    before anything else: the call is a plain conversion, and its checks
//    are those of the conversion (see identity() below).
// 2. null, size, steps < 1 (-14).
// 3. hint 2: the binary64 kernel; any other hint: the binary32 kernel with a
//    fused multiply-add (binary64 for 64f sources).
// Integer results round to nearest with ties to even; the machine is held at
// nearest for the call and restored afterwards if that changed it. Rows with
// no gaps are one row when width x height is below 0x7fffffff.
#include "data/scalec.hpp"

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "data/convert.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"

// The copies that the same-depth identity calls.
GEX_USE(gexiCopy_8u_C1R)
GEX_USE(gexiCopy_16u_C1R)
GEX_USE(gexiCopy_16s_C1R)
GEX_USE(gexiCopy_32s_C1R)
GEX_USE(gexiCopy_32f_C1R)
GEX_USE(gexiCopy_16u_C4R)

namespace gex {

namespace {

namespace ck = scalec_kernels;

constexpr double kIdentityEps = 2.220446049250313e-16;
constexpr std::int64_t kMergeBelow = 0x7fffffff;

// What mVal 1, aVal 0 stands for, by pair:
//   Copy  same depth: the Copy of that depth (8s as 8u bytes, 64f as 16u C4
//         pixels of the same eight bytes); null and size checked, any step;
//   the Convert of the pair otherwise, with its own checks and status (see the
//   GEX_SCALEC_* macros below);
//   Own   no Convert of the pair exists: null, size, steps, as ScaleC itself,
//         on the exact kernel: rounded to nearest (ties to even), saturated,
//         NaN to the minimum, as Convert does with gexRndNear.
enum class Identity { Copy, R, Sfs, Rs, Own };

template <class S, class D, class K>
void run_rows(const K& k, const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    std::int64_t n = roi.width;
    std::int64_t h = roi.height;
    if (srcStep == n * std::int64_t{sizeof(S)} && dstStep == n * std::int64_t{sizeof(D)} && n * h < kMergeBelow) {
        n *= h;
        h = 1;
    }
    for (std::int64_t y = 0; y < h; ++y) ck::row(k, row_at(pSrc, srcStep, y), row_at(pDst, dstStep, y), n);
}

template <class T>
GexStatus copy_same(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {
    if constexpr (std::is_same_v<T, Gex8u>) return gex::gexiCopy_8u_C1R(pSrc, srcStep, pDst, dstStep, roi);
    else if constexpr (std::is_same_v<T, Gex8s>)
        return gex::gexiCopy_8u_C1R(reinterpret_cast<const Gex8u*>(pSrc), srcStep, reinterpret_cast<Gex8u*>(pDst),
                                    dstStep, roi);
    else if constexpr (std::is_same_v<T, Gex16u>) return gex::gexiCopy_16u_C1R(pSrc, srcStep, pDst, dstStep, roi);
    else if constexpr (std::is_same_v<T, Gex16s>) return gex::gexiCopy_16s_C1R(pSrc, srcStep, pDst, dstStep, roi);
    else if constexpr (std::is_same_v<T, Gex32s>) return gex::gexiCopy_32s_C1R(pSrc, srcStep, pDst, dstStep, roi);
    else if constexpr (std::is_same_v<T, Gex32f>) return gex::gexiCopy_32f_C1R(pSrc, srcStep, pDst, dstStep, roi);
    else {
        static_assert(std::is_same_v<T, Gex64f>);
        return gex::gexiCopy_16u_C4R(reinterpret_cast<const Gex16u*>(pSrc), srcStep, reinterpret_cast<Gex16u*>(pDst),
                                     dstStep, roi);
    }
}

template <Identity Kind, class S, class D>
GexStatus identity(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    if constexpr (Kind == Identity::Copy) {
        static_assert(std::is_same_v<S, D>);
        return copy_same(pSrc, srcStep, pDst, dstStep, roi);
    } else {
        GEX_CHECK(check_null(pSrc, pDst));
        GEX_CHECK(check_roi(roi));
        if constexpr (Kind == Identity::R || Kind == Identity::Own) GEX_CHECK(check_steps(srcStep, dstStep));
        FpControlGuard nearest(FpRound::Nearest);
        run_rows(ck::Exact<S, D>{}, pSrc, srcStep, pDst, dstStep, roi);
        return gexStsOk;
    }
}

// `same` runs the plain conversion that mVal 1, aVal 0 stands for.
template <class S, class D, class Same>
GexStatus scalec(const S* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, D* pDst, int dstStep, GexiSize roi,
                 GexHintAlgorithm hint, Same same) {
    if (std::fabs(mVal - 1.0) < kIdentityEps && std::fabs(aVal) < kIdentityEps) return same();
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    FpControlGuard nearest(FpRound::Nearest);
    if (hint == gexAlgHintAccurate) run_rows(ck::Acc<S, D>{mVal, aVal}, pSrc, srcStep, pDst, dstStep, roi);
    else run_rows(ck::Fast<S, D>(mVal, aVal), pSrc, srcStep, pDst, dstStep, roi);
    return gexStsOk;
}

}  // namespace

}  // namespace gex

#define GEX_SCALEC_WITH(SW, DW, S, D, SAME_CALL)                                                              \
    GEX_EXPORT(GexStatus, gexiScaleC_##SW##DW##_C1R,                                                           \
               (const S* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, D* pDst, int dstStep, GexiSize roiSize, \
                GexHintAlgorithm hint)) {                                                                      \
        return scalec(pSrc, srcStep, mVal, aVal, pDst, dstStep, roiSize, hint, [&] { return SAME_CALL; });     \
    }

// The identity of a pair is the Convert of the same depths (R: no mode, or
// the round mode gexRndNear for float sources; Sfs: gexRndNear and factor 0;
// Rs: the saturating form); Own: no Convert exists for the pair.
#define GEX_SCALEC_R(SW, DW, S, D) \
    GEX_SCALEC_WITH(SW, DW, S, D, gex::gexiConvert_##SW##DW##_C1R(pSrc, srcStep, pDst, dstStep, roiSize))
#define GEX_SCALEC_RMODE(SW, DW, S, D) \
    GEX_SCALEC_WITH(SW, DW, S, D, gex::gexiConvert_##SW##DW##_C1R(pSrc, srcStep, pDst, dstStep, roiSize, gexRndNear))
#define GEX_SCALEC_SFS(SW, DW, S, D)                                                                      \
    GEX_SCALEC_WITH(SW, DW, S, D,                                                                        \
                    gex::gexiConvert_##SW##DW##_C1RSfs(pSrc, srcStep, pDst, dstStep, roiSize, gexRndNear, 0))
#define GEX_SCALEC_RS(SW, DW, S, D) \
    GEX_SCALEC_WITH(SW, DW, S, D, gex::gexiConvert_##SW##DW##_C1Rs(pSrc, srcStep, pDst, dstStep, roiSize))
#define GEX_SCALEC_OWN(SW, DW, S, D) \
    GEX_SCALEC_WITH(SW, DW, S, D, identity<Identity::Own>(pSrc, srcStep, pDst, dstStep, roiSize))

// Same depth, and in place: the image is source and destination.
#define GEX_SCALEC_SAME(W, T)                                                                                  \
    GEX_EXPORT(GexStatus, gexiScaleC_##W##_C1R,                                                                \
               (const T* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, T* pDst, int dstStep, GexiSize roiSize, \
                GexHintAlgorithm hint)) {                                                                      \
        return scalec(pSrc, srcStep, mVal, aVal, pDst, dstStep, roiSize, hint,                                \
                      [&] { return identity<Identity::Copy>(pSrc, srcStep, pDst, dstStep, roiSize); });        \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiScaleC_##W##_C1IR,                                                               \
               (T * pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint)) { \
        return gex::gexiScaleC_##W##_C1R(pSrcDst, srcDstStep, mVal, aVal, pSrcDst, srcDstStep, roiSize, hint); \
    }

// The pair, and the conversion its identity stands for.
GEX_SCALEC_SFS(8u, 8s, Gex8u, Gex8s)
GEX_SCALEC_R(8u, 16u, Gex8u, Gex16u)
GEX_SCALEC_R(8u, 16s, Gex8u, Gex16s)
GEX_SCALEC_R(8u, 32s, Gex8u, Gex32s)
GEX_SCALEC_R(8u, 32f, Gex8u, Gex32f)
GEX_SCALEC_OWN(8u, 64f, Gex8u, Gex64f)
GEX_SCALEC_RS(8s, 8u, Gex8s, Gex8u)
GEX_SCALEC_RS(8s, 16u, Gex8s, Gex16u)
GEX_SCALEC_R(8s, 16s, Gex8s, Gex16s)
GEX_SCALEC_R(8s, 32s, Gex8s, Gex32s)
GEX_SCALEC_R(8s, 32f, Gex8s, Gex32f)
GEX_SCALEC_R(8s, 64f, Gex8s, Gex64f)
GEX_SCALEC_R(16u, 8u, Gex16u, Gex8u)
GEX_SCALEC_SFS(16u, 8s, Gex16u, Gex8s)
GEX_SCALEC_SFS(16u, 16s, Gex16u, Gex16s)
GEX_SCALEC_R(16u, 32s, Gex16u, Gex32s)
GEX_SCALEC_R(16u, 32f, Gex16u, Gex32f)
GEX_SCALEC_OWN(16u, 64f, Gex16u, Gex64f)
GEX_SCALEC_R(16s, 8u, Gex16s, Gex8u)
GEX_SCALEC_SFS(16s, 8s, Gex16s, Gex8s)
GEX_SCALEC_RS(16s, 16u, Gex16s, Gex16u)
GEX_SCALEC_R(16s, 32s, Gex16s, Gex32s)
GEX_SCALEC_R(16s, 32f, Gex16s, Gex32f)
GEX_SCALEC_OWN(16s, 64f, Gex16s, Gex64f)
GEX_SCALEC_R(32s, 8u, Gex32s, Gex8u)
GEX_SCALEC_R(32s, 8s, Gex32s, Gex8s)
GEX_SCALEC_SFS(32s, 16u, Gex32s, Gex16u)
GEX_SCALEC_SFS(32s, 16s, Gex32s, Gex16s)
GEX_SCALEC_R(32s, 32f, Gex32s, Gex32f)
GEX_SCALEC_OWN(32s, 64f, Gex32s, Gex64f)
GEX_SCALEC_RMODE(32f, 8u, Gex32f, Gex8u)
GEX_SCALEC_RMODE(32f, 8s, Gex32f, Gex8s)
GEX_SCALEC_RMODE(32f, 16u, Gex32f, Gex16u)
GEX_SCALEC_RMODE(32f, 16s, Gex32f, Gex16s)
GEX_SCALEC_SFS(32f, 32s, Gex32f, Gex32s)
GEX_SCALEC_OWN(32f, 64f, Gex32f, Gex64f)
GEX_SCALEC_SFS(64f, 8u, Gex64f, Gex8u)
GEX_SCALEC_SFS(64f, 8s, Gex64f, Gex8s)
GEX_SCALEC_SFS(64f, 16u, Gex64f, Gex16u)
GEX_SCALEC_SFS(64f, 16s, Gex64f, Gex16s)
GEX_SCALEC_OWN(64f, 32s, Gex64f, Gex32s)
GEX_SCALEC_OWN(64f, 32f, Gex64f, Gex32f)

GEX_SCALEC_SAME(8u, Gex8u)
GEX_SCALEC_SAME(8s, Gex8s)
GEX_SCALEC_SAME(16u, Gex16u)
GEX_SCALEC_SAME(16s, Gex16s)
GEX_SCALEC_SAME(32s, Gex32s)
GEX_SCALEC_SAME(32f, Gex32f)
GEX_SCALEC_SAME(64f, Gex64f)
