// Shifts by constant amounts, one amount per colour channel (Gex32u):
// LShiftC for 8u, 16u and 32s, RShiftC for 8u, 16u, 16s and 32s, in C1, C3,
// C4 and AC4, out of place and in place.
//   LShiftC: x << amount, the bits above the element lost; an amount above
//            the element's width less one gives 0.
//   RShiftC: 8u and 16u shift logically (amounts above 7 or 15 give 0);
//            16s and 32s arithmetically (amounts above 31, like every amount
//            from the width less one on, give the sign: 0 or -1).
// Checks, in this order: null pointers (the amounts' array included), steps
// < 1 (-14), then the size. Amounts are never an error.
// When every colour channel has the same amount, whole images take the
// short paths: amount 0 is Copy (LShiftC, RShiftC 8u, 16u and 32s; nothing
// to do in place), an amount above the width less one is Set to 0 (LShiftC,
// RShiftC 8u and 16u). Otherwise each channel follows its own amount in the
// kernel, with the same results: 0 keeps the element, a large amount gives 0
// or the sign. AC4 forms never read the source's fourth channel nor write
// the destination's.
#include <algorithm>
#include <type_traits>

#include "arith/logic_kernels.hpp"
#include "arith/unary.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"

namespace gex {

namespace {

namespace lk = logic_kernels;
using lk::Shift;

template <class T, Shift S, int Ch, bool AC4>
GexStatus shift_image(const T* pSrc, int srcStep, const Gex32u* amounts, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, amounts, pDst));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_roi(roi));
    constexpr int written = AC4 ? 3 : Ch;
    constexpr Gex32u widest = 8 * sizeof(T) - 1;
    constexpr bool copies = S != Shift::RightArith || sizeof(T) == 4;
    constexpr bool zeroes = S != Shift::RightArith;
    const Gex32u a = amounts[0];
    if (std::all_of(amounts, amounts + written, [a](Gex32u v) { return v == a; })) {
        if (copies && a == 0) {
            if (pSrc == pDst && srcStep == dstStep) return gexStsOk;
            return copy_image<T, Ch, AC4>(pSrc, srcStep, pDst, dstStep, roi);
        }
        if (zeroes && a > widest) {
            const T zero[4] = {};
            return set_image<T, Ch, AC4>(zero, pDst, dstStep, roi);
        }
    }
    const lk::Pattern p = lk::shift_pattern<T>(amounts, Ch, AC4);
    return walk_rows(pSrc, srcStep, pDst, dstStep, row_elems(roi, Ch), roi.height,
                     [&p](const T* s, T* d, std::int64_t n) {
                         lk::shift_row<S, AC4>(s, d, n, p);
                         return gexStsOk;
                     });
}

}  // namespace

}  // namespace gex

#define GEX_SHIFT_C1(B, S, D, T)                                                                           \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_C1R,                                                             \
               (const T* pSrc, int srcStep, Gex32u value, T* pDst, int dstStep, GexiSize roiSize)) {       \
        return shift_image<T, S, 1, false>(pSrc, srcStep, &value, pDst, dstStep, roiSize);                 \
    }                                                                                                      \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_C1IR, (Gex32u value, T * pSrcDst, int srcDstStep, GexiSize roiSize)) { \
        return shift_image<T, S, 1, false>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roiSize);     \
    }
#define GEX_SHIFT_N(B, S, D, T, L, CH, AC4, NV)                                                            \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##R,                                                          \
               (const T* pSrc, int srcStep, const Gex32u value[NV], T* pDst, int dstStep, GexiSize roiSize)) { \
        return shift_image<T, S, CH, AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);                   \
    }                                                                                                      \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##IR,                                                         \
               (const Gex32u value[NV], T* pSrcDst, int srcDstStep, GexiSize roiSize)) {                   \
        return shift_image<T, S, CH, AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);       \
    }
#define GEX_SHIFT(B, S, D, T)                     \
    GEX_SHIFT_C1(B, S, D, T)                      \
    GEX_SHIFT_N(B, S, D, T, C3, 3, false, 3)      \
    GEX_SHIFT_N(B, S, D, T, C4, 4, false, 4)      \
    GEX_SHIFT_N(B, S, D, T, AC4, 4, true, 3)

GEX_SHIFT(LShiftC, Shift::Left, 8u, Gex8u)
GEX_SHIFT(LShiftC, Shift::Left, 16u, Gex16u)
GEX_SHIFT(LShiftC, Shift::Left, 32s, Gex32s)
GEX_SHIFT(RShiftC, Shift::Right, 8u, Gex8u)
GEX_SHIFT(RShiftC, Shift::Right, 16u, Gex16u)
GEX_SHIFT(RShiftC, Shift::RightArith, 16s, Gex16s)
GEX_SHIFT(RShiftC, Shift::RightArith, 32s, Gex32s)
