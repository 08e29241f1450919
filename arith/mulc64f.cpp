// MulC64f: dst = saturate(round(src x value[c])) with a binary64 constant per
// channel; 8u, 16u, 16s, 32f in C1, C3, C4 and in place. 24 exports.
//
// Checks: null (source, constants, destination in argument order), then
// size. No step is checked: any step is taken.
//
// hint 2 (accurate): the product is computed in binary64. Any other hint:
// the constant and the pixel are narrowed to binary32 and multiplied there.
// The call holds the processor at round-to-nearest (restored afterwards only
// if it was changed), so every product and narrowing rounds to nearest; the
// mode then rounds the product to an integer:
//
//  * mode 0, toward zero. 8u truncates the product in its own precision, then
//    saturates. The 16-bit forms saturate first: the product is narrowed to
//    binary32, clamped to the type's range, then truncated.
//  * mode 1, to nearest with ties to even, on the product in its own
//    precision, then saturation.
//  * mode 2 (and any other value), ties away from zero. 8u: the product
//    narrowed to binary32, clamped to [0, 255], plus 0.5 in binary32,
//    truncated. 16-bit: narrowed to binary32, clamped, then trunc(|v| + 0.5)
//    in binary32 with v's sign.
//
// A NaN product gives the type's minimum (0 for unsigned types). 32f takes
// the product rounded once to binary32 (hint 2: the binary64 product narrowed)
// and ignores the mode. All forms are plain loops.
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

// Clamp in binary32; NaN goes to the minimum.
inline float clamp32(float v, float lo, float hi) {
    if (!(v > lo)) return lo;
    return v > hi ? hi : v;
}

// Saturate an integer-valued product; NaN to the minimum.
template <class T, class F>
T saturate_integral(F r) {
    using L = std::numeric_limits<T>;
    if (!(r > static_cast<F>(L::lowest()))) return L::lowest();
    if (r >= static_cast<F>(L::max())) return L::max();
    return static_cast<T>(r);
}

template <class T, class F>
T finish(F p, int mode) {
    using L = std::numeric_limits<T>;
    if constexpr (std::is_same_v<T, Gex32f>) {
        return static_cast<float>(p);
    } else if (mode == gexRndNear) {
        return saturate_integral<T>(std::nearbyint(p));
    } else if constexpr (std::is_same_v<T, Gex8u>) {
        if (mode == gexRndZero) return saturate_integral<T>(std::trunc(p));
        const float v = clamp32(static_cast<float>(p), 0.0f, 255.0f);
        return static_cast<T>(std::trunc(v + 0.5f));
    } else {
        const float v = clamp32(static_cast<float>(p), static_cast<float>(L::lowest()), static_cast<float>(L::max()));
        if (mode == gexRndZero) return static_cast<T>(std::trunc(v));
        const float r = v >= 0.0f ? std::trunc(v + 0.5f) : -std::trunc(-v + 0.5f);
        return static_cast<T>(r);
    }
}

template <class T>
struct Constants {
    double c64[4];
    float c32[4];
};

// Out of line, so that every product runs inside the guard.
template <class T, int Ch>
__attribute__((noinline)) void mulc64f_rows(const T* pSrc, int srcStep, const Constants<T>& k, T* pDst, int dstStep,
                                            GexiSize roi, bool accurate, int mode) {
    const std::int64_t n = std::int64_t{roi.width} * Ch;
    for (std::int64_t y = 0; y < roi.height; ++y) {
        const T* s = row_at(pSrc, srcStep, y);
        T* d = row_at(pDst, dstStep, y);
        if (accurate) {
            for (std::int64_t i = 0; i < n; ++i) d[i] = finish<T>(static_cast<double>(s[i]) * k.c64[i % Ch], mode);
        } else {
            for (std::int64_t i = 0; i < n; ++i) d[i] = finish<T>(static_cast<float>(s[i]) * k.c32[i % Ch], mode);
        }
    }
}

template <class T, int Ch>
GexStatus mulc64f(const T* pSrc, int srcStep, const Gex64f* pValue, T* pDst, int dstStep, GexiSize roi,
                  GexHintAlgorithm hint, GexRoundMode roundMode) {
    GEX_CHECK(check_null(pSrc, pValue, pDst));
    GEX_CHECK(check_roi(roi));
    FpControlGuard nearest(FpRound::Nearest);
    Constants<T> k{};
    for (int c = 0; c < Ch; ++c) {
        k.c64[c] = pValue[c];
        k.c32[c] = static_cast<float>(pValue[c]);
    }
    mulc64f_rows<T, Ch>(pSrc, srcStep, k, pDst, dstStep, roi, static_cast<int>(hint) == gexAlgHintAccurate,
                        static_cast<int>(roundMode));
    return gexStsOk;
}

}  // namespace

}  // namespace gex

#define GEX_MC64_A(T, V) \
    (const T* pSrc, int srcStep, V, T* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode)
#define GEX_MC64_AI(T, V) (V, T* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode)

#define GEX_MC64_LAYOUT(D, T, LAY, CH, V)                                                                     \
    GEX_EXPORT(GexStatus, gexiMulC64f_##D##_##LAY##R, GEX_MC64_A(T, V)) {                                     \
        return mulc64f<T, CH>(pSrc, srcStep, pValue, pDst, dstStep, roiSize, hint, roundMode);                \
    }                                                                                                         \
    GEX_EXPORT(GexStatus, gexiMulC64f_##D##_##LAY##IR, GEX_MC64_AI(T, V)) {                                   \
        return mulc64f<T, CH>(pSrcDst, srcDstStep, pValue, pSrcDst, srcDstStep, roiSize, hint, roundMode);    \
    }

#define GEX_MC64_SET(D, T)                                                                                    \
    GEX_MC64_LAYOUT(D, T, C1, 1, const Gex64f* pValue)                                                        \
    GEX_MC64_LAYOUT(D, T, C3, 3, const Gex64f pValue[3])                                                      \
    GEX_MC64_LAYOUT(D, T, C4, 4, const Gex64f pValue[4])

GEX_MC64_SET(8u, Gex8u)
GEX_MC64_SET(16u, Gex16u)
GEX_MC64_SET(16s, Gex16s)
GEX_MC64_SET(32f, Gex32f)
