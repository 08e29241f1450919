// Exp: the exponential of every element, C1 and C3, out of place and in
// place.
//   32f: e^x rounded once from binary64, row by row through gexsExp_32f
//        (+infinity above the binary32 range, 0 or a subnormal below it).
//   8u, 16u, 16s: the scale rule applied to e^x: e^x x 2^-scaleFactor rounded
//        to nearest with ties to even and saturated; values far beyond the
//        type saturate, values far below it give 0. 8u through a 256-entry
//        table made once per call.
// Checks: null, size, steps < 1 (-14). The C3 forms test the width, then run
// as C1 rows three times as long. No warning. Scalar code: one library
// exponential a pixel.
#include <cmath>
#include <type_traits>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "frame/export.hpp"

namespace gex {

namespace uk = unary_kernels;

GexStatus gexsExp_32f(const Gex32f* pSrc, Gex32f* pDst, int len) {
    GEX_CHECK(check_null(pSrc, pDst));
    if (len < 1) return gexStsSize;
    return uk::scalar_row<false>(
        pSrc, pDst, len, [](Gex32f x) { return static_cast<Gex32f>(std::exp(static_cast<double>(x))); },
        [](Gex32f) { return 0; });
}

namespace {

template <class T, bool AC4>
GexStatus exp_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int scale) {
    static_assert(!AC4, "Exp has no AC4 forms");
    GEX_CHECK(element_checks(pSrc, srcStep, pDst, dstStep, roi));
    const std::int64_t n = row_elems(roi, 1);
    const auto none = [](T) { return 0; };
    if constexpr (std::is_same_v<T, Gex32f>) {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height,
                         [](const T* s, T* d, std::int64_t len) { return gexsExp_32f(s, d, static_cast<int>(len)); });
    } else if constexpr (std::is_same_v<T, Gex8u>) {
        Gex8u tab[256];
        for (int x = 0; x < 256; ++x) tab[x] = uk::exp_scaled<Gex8u>(x, scale);
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [&](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<false>(s, d, len, [&tab](T x) { return tab[x]; }, none);
        });
    } else {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [&](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<false>(s, d, len, [scale](T x) { return uk::exp_scaled<T>(x, scale); }, none);
        });
    }
}

}  // namespace

}  // namespace gex

#define GEX_EXP_SFS(D, T)                                           \
    GEX_UNARY_OWN_SFS(gexiExp_##D##_C1, T, false, exp_image)        \
    GEX_UNARY_FOLD_SFS(gexiExp_##D##_C3, gexiExp_##D##_C1, T, 3)

GEX_EXP_SFS(8u, Gex8u)
GEX_EXP_SFS(16u, Gex16u)
GEX_EXP_SFS(16s, Gex16s)

GEX_UNARY_OWN(gexiExp_32f_C1, Gex32f, false, exp_image)
GEX_UNARY_FOLD(gexiExp_32f_C3, gexiExp_32f_C1, Gex32f, 3)
