// Abs: 16s and 32f in C1, C3, C4 and AC4, out of place and in place.
// 16s saturates (-32768 gives 32767); 32f clears the sign bit, so NaN stays
// NaN with its payload and -0 becomes +0.
// Checks: null, size, steps < 1 (-14). The C3 and C4 forms test the width,
// then run as C1 rows three or four times as long.
#include <type_traits>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "frame/export.hpp"

namespace gex {

namespace {

namespace uk = unary_kernels;

template <class T, bool AC4>
GexStatus abs_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int) {
    GEX_CHECK(element_checks(pSrc, srcStep, pDst, dstStep, roi));
    return walk_rows(pSrc, srcStep, pDst, dstStep, row_elems(roi, AC4 ? 4 : 1), roi.height,
                     [](const T* s, T* d, std::int64_t n) {
                         if constexpr (std::is_same_v<T, Gex16s>) uk::abs_16s<AC4>(s, d, n);
                         else uk::abs_32f<AC4>(s, d, n);
                         return gexStsOk;
                     });
}

}  // namespace

}  // namespace gex

#define GEX_ABS(D, T)                                              \
    GEX_UNARY_OWN(gexiAbs_##D##_C1, T, false, abs_image)           \
    GEX_UNARY_OWN(gexiAbs_##D##_AC4, T, true, abs_image)           \
    GEX_UNARY_FOLD(gexiAbs_##D##_C3, gexiAbs_##D##_C1, T, 3)       \
    GEX_UNARY_FOLD(gexiAbs_##D##_C4, gexiAbs_##D##_C1, T, 4)

GEX_ABS(16s, Gex16s)
GEX_ABS(32f, Gex32f)
