// Sqrt: the square root of every element.
//   32f: IEEE square root in C1, C3, AC4 and C4 (in place only); a negative
//        argument gives NaN and the warning gexStsSqrtNegArgWarn (+3). The
//        rows advance by the step with its two low bits cleared, so a step
//        that is no multiple of 4 walks the image with the shorter step.
//   8u, 16u, 16s: sqrt(x) x 2^-scaleFactor rounded to nearest with ties to
//        even and saturated (see sqrt_scaled); 8u through a 256-entry table
//        made once per call. A negative 16s pixel gives 0 and raises +3.
// Checks: null, size, steps < 1 (-14). The C3 and C4 forms test the width,
// then run as C1 rows three or four times as long. Results are written for
// every pixel, also those that raise the warning; the first warning met is
// returned.
#include <type_traits>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "frame/export.hpp"

namespace gex {

namespace uk = unary_kernels;

GexStatus gexsSqrt_32f(const Gex32f* pSrc, Gex32f* pDst, int len) {
    GEX_CHECK(check_null(pSrc, pDst));
    if (len < 1) return gexStsSize;
    return uk::sqrt_32f<false>(pSrc, pDst, len) ? gexStsSqrtNegArgWarn : gexStsOk;
}

namespace {

template <class T, bool AC4>
GexStatus sqrt_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int scale) {
    GEX_CHECK(element_checks(pSrc, srcStep, pDst, dstStep, roi));
    const std::int64_t n = row_elems(roi, AC4 ? 4 : 1);
    if constexpr (std::is_same_v<T, Gex32f>) {
        return walk_rows(pSrc, srcStep & ~3, pDst, dstStep & ~3, n, roi.height,
                         [](const T* s, T* d, std::int64_t len) -> GexStatus {
                             if constexpr (AC4) return uk::sqrt_32f<true>(s, d, len) ? gexStsSqrtNegArgWarn : gexStsOk;
                             else return gexsSqrt_32f(s, d, static_cast<int>(len));
                         });
    } else if constexpr (std::is_same_v<T, Gex8u>) {
        Gex8u tab[256];
        for (int x = 0; x < 256; ++x) tab[x] = uk::sqrt_scaled<Gex8u>(static_cast<std::uint32_t>(x), scale);
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [&tab](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<AC4>(s, d, len, [&tab](T x) { return tab[x]; }, [](T) { return 0; });
        });
    } else {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [scale](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<AC4>(
                s, d, len,
                [scale](T x) { return x < 0 ? T{0} : uk::sqrt_scaled<T>(static_cast<std::uint32_t>(x), scale); },
                [](T x) { return x < 0 ? gexStsSqrtNegArgWarn : 0; });
        });
    }
}

}  // namespace

}  // namespace gex

#define GEX_SQRT_SFS(D, T)                                              \
    GEX_UNARY_OWN_SFS(gexiSqrt_##D##_C1, T, false, sqrt_image)          \
    GEX_UNARY_OWN_SFS(gexiSqrt_##D##_AC4, T, true, sqrt_image)          \
    GEX_UNARY_FOLD_SFS(gexiSqrt_##D##_C3, gexiSqrt_##D##_C1, T, 3)

GEX_SQRT_SFS(8u, Gex8u)
GEX_SQRT_SFS(16u, Gex16u)
GEX_SQRT_SFS(16s, Gex16s)

GEX_UNARY_OWN(gexiSqrt_32f_C1, Gex32f, false, sqrt_image)
GEX_UNARY_OWN(gexiSqrt_32f_AC4, Gex32f, true, sqrt_image)
GEX_UNARY_FOLD(gexiSqrt_32f_C3, gexiSqrt_32f_C1, Gex32f, 3)

GEX_EXPORT(GexStatus, gexiSqrt_32f_C4IR, GEX_UNARY_IARGS(Gex32f)) {
    GEX_CHECK(check_width(roiSize));
    return gex::gexiSqrt_32f_C1IR(pSrcDst, srcDstStep, GexiSize{folded_width(roiSize.width, 4), roiSize.height});
}
