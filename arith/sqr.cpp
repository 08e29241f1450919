// Sqr: the square of every element. 8u, 16u, 16s: the exact square x x x
// under the scale rule (x x x x 2^-scaleFactor, ties to even, saturated), so
// 8u at factor 0 gives min(x x x, 255) and 16s never goes below 0; 32f: the
// binary32 product x x x. C1, C3, C4 and AC4, out of place and in place.
// Checks: null, size, steps < 1 (-14). The C3 and C4 forms test the width,
// then run as C1 rows three or four times as long. A scale factor is never
// an error.
#include <type_traits>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "frame/export.hpp"

namespace gex {

namespace {

namespace uk = unary_kernels;

template <class T, bool AC4>
GexStatus sqr_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int scale) {
    GEX_CHECK(element_checks(pSrc, srcStep, pDst, dstStep, roi));
    const std::int64_t n = row_elems(roi, AC4 ? 4 : 1);
    if constexpr (std::is_same_v<T, Gex32f>) {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [](const T* s, T* d, std::int64_t len) {
            uk::sqr_32f<AC4>(s, d, len);
            return gexStsOk;
        });
    } else {
        const uk::ScaleU32 sc = uk::sqr_scale<T>(scale);
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [&sc](const T* s, T* d, std::int64_t len) {
            uk::sqr_int<T, AC4>(s, d, len, sc);
            return gexStsOk;
        });
    }
}

}  // namespace

}  // namespace gex

#define GEX_SQR_SFS(D, T)                                              \
    GEX_UNARY_OWN_SFS(gexiSqr_##D##_C1, T, false, sqr_image)           \
    GEX_UNARY_OWN_SFS(gexiSqr_##D##_AC4, T, true, sqr_image)           \
    GEX_UNARY_FOLD_SFS(gexiSqr_##D##_C3, gexiSqr_##D##_C1, T, 3)       \
    GEX_UNARY_FOLD_SFS(gexiSqr_##D##_C4, gexiSqr_##D##_C1, T, 4)

GEX_SQR_SFS(8u, Gex8u)
GEX_SQR_SFS(16u, Gex16u)
GEX_SQR_SFS(16s, Gex16s)

GEX_UNARY_OWN(gexiSqr_32f_C1, Gex32f, false, sqr_image)
GEX_UNARY_OWN(gexiSqr_32f_AC4, Gex32f, true, sqr_image)
GEX_UNARY_FOLD(gexiSqr_32f_C3, gexiSqr_32f_C1, Gex32f, 3)
GEX_UNARY_FOLD(gexiSqr_32f_C4, gexiSqr_32f_C1, Gex32f, 4)
