// Ln: the natural logarithm of every element, C1 and C3, out of place and in
// place.
//   32f: ln rounded once from binary64, row by row through gexsLn_32f; zero
//        (either sign) gives -infinity and gexStsLnZeroArgWarn (+7), a
//        negative argument NaN and gexStsLnNegArgWarn (+8).
//   8u, 16u, 16s: trunc(ln(x) x 2^-scaleFactor + 0.5) in binary64, at most
//        the type's maximum (never negative, since x >= 1 there); 8u through a
//        256-entry table made once per call. A zero pixel gives 0 and +7; a
//        negative 16s pixel gives 0 and +8.
// The call returns the warning of the first pixel, in row order, that raised
// one; results are written for every pixel.
// Checks: null, size, steps < 1 (-14). The C3 forms test the width, then run
// as C1 rows three times as long. Scalar code: one library logarithm a pixel.
#include <cmath>
#include <type_traits>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "frame/export.hpp"

namespace gex {

namespace uk = unary_kernels;

GexStatus gexsLn_32f(const Gex32f* pSrc, Gex32f* pDst, int len) {
    GEX_CHECK(check_null(pSrc, pDst));
    if (len < 1) return gexStsSize;
    return uk::scalar_row<false>(
        pSrc, pDst, len, [](Gex32f x) { return static_cast<Gex32f>(std::log(static_cast<double>(x))); },
        [](Gex32f x) { return x == 0.0f ? gexStsLnZeroArgWarn : x < 0.0f ? gexStsLnNegArgWarn : 0; });
}

namespace {

template <class T>
GexStatus ln_warning(T x) {
    return x == 0 ? gexStsLnZeroArgWarn : x < 0 ? gexStsLnNegArgWarn : 0;
}

template <class T>
T ln_value(T x, int scale) {
    if (x <= 0) return 0;
    return static_cast<T>(uk::ln_scaled(static_cast<std::uint32_t>(x), scale,
                                        static_cast<std::uint32_t>(PixelTraits<T>::max())));
}

template <class T, bool AC4>
GexStatus ln_image(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int scale) {
    static_assert(!AC4, "Ln has no AC4 forms");
    GEX_CHECK(element_checks(pSrc, srcStep, pDst, dstStep, roi));
    const std::int64_t n = row_elems(roi, 1);
    if constexpr (std::is_same_v<T, Gex32f>) {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height,
                         [](const T* s, T* d, std::int64_t len) { return gexsLn_32f(s, d, static_cast<int>(len)); });
    } else if constexpr (std::is_same_v<T, Gex8u>) {
        Gex8u tab[256];
        for (int x = 0; x < 256; ++x) tab[x] = ln_value(static_cast<Gex8u>(x), scale);
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [&tab](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<false>(s, d, len, [&tab](T x) { return tab[x]; }, ln_warning<T>);
        });
    } else {
        return walk_rows(pSrc, srcStep, pDst, dstStep, n, roi.height, [scale](const T* s, T* d, std::int64_t len) {
            return uk::scalar_row<false>(s, d, len, [scale](T x) { return ln_value(x, scale); }, ln_warning<T>);
        });
    }
}

}  // namespace

}  // namespace gex

#define GEX_LN_SFS(D, T)                                          \
    GEX_UNARY_OWN_SFS(gexiLn_##D##_C1, T, false, ln_image)        \
    GEX_UNARY_FOLD_SFS(gexiLn_##D##_C3, gexiLn_##D##_C1, T, 3)

GEX_LN_SFS(8u, Gex8u)
GEX_LN_SFS(16u, Gex16u)
GEX_LN_SFS(16s, Gex16s)

GEX_UNARY_OWN(gexiLn_32f_C1, Gex32f, false, ln_image)
GEX_UNARY_FOLD(gexiLn_32f_C3, gexiLn_32f_C1, Gex32f, 3)
