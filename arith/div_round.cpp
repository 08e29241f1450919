// Div_Round: two-image division of 8u, 16u, 16s with a scale factor and the
// rounding of roundMode (0 toward zero, 1 nearest with ties to even, 2
// nearest with ties away from zero, for negative quotients too). 24 exports.
//
// Checks: null, size, each step <= 0 (-14), then the mode (anything but 0,
// 1, 2: gexStsRoundMode, -213). C3 and C4 fold to C1 (width < 1 first).
//
// The quotient is a true IEEE division of the shifted operands: for s > 0
// the divisor is scaled by 2^s, for s < 0 the dividend by 2^-s, both exact,
// then one division in binary32 (8u, 16u) or binary64 (16s). Modes 0 and 1
// set the processor's rounding direction (toward zero, to nearest) for the
// time of the call, so the division itself rounds that way and is restored
// afterwards only if it was changed; mode 2 divides under the caller's
// setting and then takes trunc(min(q + 0.5, maximum)) on the magnitude.
// For 8u and 16s every mode gives the exact rounding of the rational
// quotient. 16u keeps the binary32 quotient too, so in modes 1 and 2 a
// quotient above 2^15 is rounded twice (to binary32, then to an integer):
// 65534 x 2^16 / 65535 gives 65535 there, and 65534 in mode 0.
//
// A zero divisor and the factors outside the normal range behave as in Div:
// 8u -15..8, 16u -31..16, 16s -30..15.
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/div_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

namespace dk = div_kernels;

constexpr std::int64_t kMergeBelow = 0x7fffffff;

template <class T>
T div_round_element(T d, T n, int s, int mode) {
    using L = std::numeric_limits<T>;
    using F = std::conditional_t<std::is_same_v<T, Gex16s>, double, float>;
    if (d == 0) return dk::zero_divisor(n);
    if (s > dk::DivRange<T>::hi) return 0;
    if (s < dk::DivRange<T>::lo) {
        if constexpr (std::is_same_v<T, Gex8u>) return n != 0 ? 255 : 0;
        if constexpr (std::is_same_v<T, Gex16u>) return 65535;
    }
    // Only 16s gets here below its range; beyond 2^-64 every non-zero
    // quotient saturates alike.
    const int sc = s < -64 ? -64 : s;
    const F N = sc < 0 ? std::ldexp(static_cast<F>(n), -sc) : static_cast<F>(n);
    const F D = sc > 0 ? std::ldexp(static_cast<F>(d), sc) : static_cast<F>(d);
    const F q = N / D;
    F r;
    if (mode == gexRndZero) {
        r = std::trunc(q);
    } else if (mode == gexRndNear) {
        r = std::nearbyint(q);
    } else {
        const F half = static_cast<F>(0.5);
        r = q >= 0 ? std::trunc(std::fmin(q + half, static_cast<F>(L::max())))
                   : -std::trunc(std::fmin(-q + half, -static_cast<F>(L::lowest())));
    }
    if (r <= static_cast<F>(L::lowest())) return L::lowest();
    if (r >= static_cast<F>(L::max())) return L::max();
    return static_cast<T>(r);
}

// Out of line, so that every division of the rows runs inside the guard.
template <class T>
__attribute__((noinline)) bool div_round_rows(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst,
                                              int dstStep, GexiSize roi, int elems, int s, int mode) {
    const bool ac4 = elems == 4;
    std::int64_t n = std::int64_t{roi.width} * elems;
    std::int64_t h = roi.height;
    const std::int64_t rowBytes = n * std::int64_t{sizeof(T)};
    if (src1Step == rowBytes && src2Step == rowBytes && dstStep == rowBytes && n * h < kMergeBelow) {
        n *= h;
        h = 1;
    }
    bool zero = false;
    for (std::int64_t y = 0; y < h; ++y) {
        const T* d = row_at(pSrc1, src1Step, y);
        const T* a = row_at(pSrc2, src2Step, y);
        T* o = row_at(pDst, dstStep, y);
        for (std::int64_t i = 0; i < n; ++i) {
            if (!dk::used_lane(i, ac4)) continue;
            const T di = d[i], ai = a[i];
            zero |= di == 0;
            o[i] = div_round_element(di, ai, s, mode);
        }
    }
    return zero;
}

constexpr GexStatus check_positive_steps(int a, int b, int c = 1) {
    return (a <= 0 || b <= 0 || c <= 0) ? gexStsStep : gexStsOk;
}

constexpr GexStatus check_mode(int mode) {
    return (mode == gexRndZero || mode == gexRndNear || mode == gexRndFin) ? gexStsOk : gexStsRoundMode;
}

template <class T>
GexStatus run(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi,
              int elems, int mode, int s) {
    bool zero;
    if (mode == gexRndFin) {
        zero = div_round_rows(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, elems, s, mode);
    } else {
        FpControlGuard guard(mode == gexRndZero ? FpRound::Zero : FpRound::Nearest);
        zero = div_round_rows(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, elems, s, mode);
    }
    return zero ? gexStsDivByZeroWarn : gexStsOk;
}

template <class T, int Elems>
GexStatus div_round(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi,
                    GexRoundMode roundMode, int s) {
    const int mode = static_cast<int>(roundMode);
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_positive_steps(src1Step, src2Step, dstStep));
    GEX_CHECK(check_mode(mode));
    return run(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, Elems, mode, s);
}

template <class T, int Elems>
GexStatus div_round_inplace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roi,
                            GexRoundMode roundMode, int s) {
    const int mode = static_cast<int>(roundMode);
    GEX_CHECK(check_null(pSrc, pSrcDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_positive_steps(srcStep, srcDstStep));
    GEX_CHECK(check_mode(mode));
    return run(pSrc, srcStep, static_cast<const T*>(pSrcDst), srcDstStep, pSrcDst, srcDstStep, roi, Elems, mode, s);
}

GexiSize folded(GexiSize roi, int channels) {
    return GexiSize{static_cast<int>(static_cast<unsigned>(roi.width) * static_cast<unsigned>(channels)), roi.height};
}

}  // namespace

}  // namespace gex

#define GEX_DR_A2(T)                                                                                        \
    (const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roiSize,     \
     GexRoundMode roundMode, int scaleFactor)
#define GEX_DR_AI(T) \
    (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor)

#define GEX_DR_FOLD(D, T, LAY, CH)                                                                          \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_##LAY##RSfs, GEX_DR_A2(T)) {                                  \
        GEX_CHECK(check_width(roiSize));                                                                    \
        return gex::gexiDiv_Round_##D##_C1RSfs(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep,             \
                                               folded(roiSize, CH), roundMode, scaleFactor);               \
    }                                                                                                       \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_##LAY##IRSfs, GEX_DR_AI(T)) {                                 \
        GEX_CHECK(check_width(roiSize));                                                                    \
        return gex::gexiDiv_Round_##D##_C1IRSfs(pSrc, srcStep, pSrcDst, srcDstStep, folded(roiSize, CH),    \
                                                roundMode, scaleFactor);                                    \
    }

#define GEX_DR_SET(D, T)                                                                                    \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_C1RSfs, GEX_DR_A2(T)) {                                       \
        return div_round<T, 1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, roundMode,         \
                               scaleFactor);                                                                \
    }                                                                                                       \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_C1IRSfs, GEX_DR_AI(T)) {                                      \
        return div_round_inplace<T, 1>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, roundMode, scaleFactor); \
    }                                                                                                       \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_AC4RSfs, GEX_DR_A2(T)) {                                      \
        return div_round<T, 4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, roundMode,         \
                               scaleFactor);                                                                \
    }                                                                                                       \
    GEX_EXPORT(GexStatus, gexiDiv_Round_##D##_AC4IRSfs, GEX_DR_AI(T)) {                                     \
        return div_round_inplace<T, 4>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, roundMode, scaleFactor); \
    }                                                                                                       \
    GEX_DR_FOLD(D, T, C3, 3)                                                                                \
    GEX_DR_FOLD(D, T, C4, 4)

GEX_DR_SET(8u, Gex8u)
GEX_DR_SET(16u, Gex16u)
GEX_DR_SET(16s, Gex16s)
