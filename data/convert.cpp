// Convert: depth conversion of every pair of the family.
//
//   same scale   exact widening, saturating narrowing, nearest binary32;
//                null, size, then steps < 1 (-14)
//   Rs           saturation to an unsigned type (negatives give 0); null, size
//   from 32f     rounded by the mode, saturated; null, size, steps; the C3 and
//                C4 forms test the width first and fold into the C1 form
//   Sfs          x * 2^-scaleFactor rounded by the mode, saturated; null, size
//
// A mode other than 0 (toward zero) and 1 (nearest even) rounds to nearest
// with ties away from zero; it is never an error. Rows without gaps between
// them are converted as one row.
#include "data/convert.hpp"

#include <cstring>
#include <type_traits>

#include "data/convert_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"

namespace gex {

namespace {

using cvt::Params;
using i64 = std::int64_t;

constexpr i64 kMergeLimit = 0x7fffffff;

// height rows of `elems` elements through Op; one row when nothing lies
// between the rows of either image.
template <class Op, bool AC4>
void run_2d(const typename Op::Src* s, int sStep, typename Op::Dst* d, int dStep, i64 elems, int height,
            const Params& p) {
    using S = typename Op::Src;
    using D = typename Op::Dst;
    if (sStep == elems * i64{sizeof(S)} && dStep == elems * i64{sizeof(D)} && elems * height < kMergeLimit) {
        cvt::row<Op, AC4>(s, d, elems * height, p);
        return;
    }
    for (int y = 0; y < height; ++y) {
        cvt::row<Op, AC4>(s, d, elems, p);
        s = row_at(s, sStep, 1);
        d = row_at(d, dStep, 1);
    }
}

// Calls f with the rounding mode as a compile-time constant: 0, 1, or 2 for
// every other value.
template <class F>
void with_mode(int mode, F&& f) {
    switch (mode) {
        case gexRndZero: f(std::integral_constant<int, 0>{}); break;
        case gexRndNear: f(std::integral_constant<int, 1>{}); break;
        default: f(std::integral_constant<int, 2>{}); break;
    }
}

// The C3 and C4 forms of the 32f conversions hand the C1 form the width in
// elements, a 32-bit product.
GexiSize fold(GexiSize roi, int channels) {
    return {static_cast<int>(static_cast<unsigned>(roi.width) * static_cast<unsigned>(channels)), roi.height};
}

// ---- the row runs (no checks) ------------------------------------------------------

template <int CH, bool AC4, class S, class D>
void run_plain(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    run_2d<cvt::Plain<S, D>, AC4>(pSrc, srcStep, pDst, dstStep, i64{roi.width} * CH, roi.height, Params{});
}

template <int CH, bool AC4, class D>
void run_from_32f(const Gex32f* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode) {
    with_mode(mode, [&](auto m) {
        run_2d<cvt::FromFloat<D, decltype(m)::value, false>, AC4>(pSrc, srcStep, pDst, dstStep,
                                                                   i64{roi.width} * CH, roi.height, Params{});
    });
}

// 32f times 2^-sf in binary32, then rounded. The multiplication must round to
// nearest and keep subnormals whatever the caller has set, so the control
// word is set for the call (and restored only if it was changed).
template <class D>
void run_scaled_32f(const Gex32f* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode, int sf) {
    if (sf == 0) {
        run_from_32f<1, false>(pSrc, srcStep, pDst, dstStep, roi, mode);
        return;
    }
    const Params p = cvt::float_scale(sf, mode);
    FpControlGuard guard(FpRound::Nearest);
    with_mode(mode, [&](auto m) {
        run_2d<cvt::FromFloat<D, decltype(m)::value, true>, false>(pSrc, srcStep, pDst, dstStep, roi.width,
                                                                    roi.height, p);
    });
}

// 64f times 2^-sf (binary64, one rounding), then rounded. Beyond +-2200 every
// finite value gives 0 or saturates already.
template <class D>
void run_scaled_64f(const Gex64f* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode, int sf) {
    Params p;
    p.mode = mode;
    p.sf = sf > 2200 ? 2200 : (sf < -2200 ? -2200 : sf);
    run_2d<cvt::FromDouble<D>, false>(pSrc, srcStep, pDst, dstStep, roi.width, roi.height, p);
}

// Integers: the exact x * 2^-sf rounded by the mode; a negative factor is a
// saturating left shift. Factor 0 is plain saturation.
template <class S, class D>
void run_scaled_int(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode, int sf) {
    if constexpr (!std::is_same_v<S, Gex32u>) {
        if (sf == 0) {
            run_plain<1, false>(pSrc, srcStep, pDst, dstStep, roi);
            return;
        }
    }
    Params p;
    p.mode = mode;
    p.sf = cvt::clamp_int_factor(sf);
    run_2d<cvt::IntScaled<S, D>, false>(pSrc, srcStep, pDst, dstStep, roi.width, roi.height, p);
}

template <class S, class D>
void run_scaled(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode, int sf) {
    if constexpr (std::is_same_v<S, Gex32f>) run_scaled_32f(pSrc, srcStep, pDst, dstStep, roi, mode, sf);
    else if constexpr (std::is_same_v<S, Gex64f>) run_scaled_64f(pSrc, srcStep, pDst, dstStep, roi, mode, sf);
    else run_scaled_int(pSrc, srcStep, pDst, dstStep, roi, mode, sf);
}

// ---- checking wrappers ------------------------------------------------------------------

template <int CH, bool AC4, class S, class D>
GexStatus convert_same(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    run_plain<CH, AC4>(pSrc, srcStep, pDst, dstStep, roi);
    return gexStsOk;
}

template <class S, class D>
GexStatus convert_to_unsigned(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    run_plain<1, false>(pSrc, srcStep, pDst, dstStep, roi);
    return gexStsOk;
}

template <int CH, bool AC4, class D>
GexStatus convert_from_32f(const Gex32f* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    run_from_32f<CH, AC4>(pSrc, srcStep, pDst, dstStep, roi, mode);
    return gexStsOk;
}

template <class S, class D>
GexStatus convert_scaled(const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roi, int mode, int sf) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    run_scaled(pSrc, srcStep, pDst, dstStep, roi, mode, sf);
    return gexStsOk;
}

}  // namespace

// ---- row helpers for other families ---------------------------------------------------

template <class S, class D>
void convert_row(const S* src, D* dst, std::int64_t n) {
    cvt::row<cvt::Plain<S, D>, false>(src, dst, n, Params{});
}

template <class D>
void convert_row_32f(const Gex32f* src, D* dst, std::int64_t n, int roundMode) {
    with_mode(roundMode, [&](auto m) { cvt::row<cvt::FromFloat<D, decltype(m)::value, false>, false>(src, dst, n, Params{}); });
}

#define GEX_CONVERT_ROW(S, D) template void convert_row<S, D>(const S*, D*, std::int64_t);
GEX_CONVERT_ROW(Gex8u, Gex16u)
GEX_CONVERT_ROW(Gex8u, Gex16s)
GEX_CONVERT_ROW(Gex8u, Gex32s)
GEX_CONVERT_ROW(Gex8u, Gex32f)
GEX_CONVERT_ROW(Gex8s, Gex32s)
GEX_CONVERT_ROW(Gex8s, Gex32f)
GEX_CONVERT_ROW(Gex16u, Gex32s)
GEX_CONVERT_ROW(Gex16u, Gex32f)
GEX_CONVERT_ROW(Gex16s, Gex32s)
GEX_CONVERT_ROW(Gex16s, Gex32f)
GEX_CONVERT_ROW(Gex16u, Gex8u)
GEX_CONVERT_ROW(Gex16s, Gex8u)
GEX_CONVERT_ROW(Gex32s, Gex8u)
GEX_CONVERT_ROW(Gex32s, Gex8s)
GEX_CONVERT_ROW(Gex8s, Gex16s)
GEX_CONVERT_ROW(Gex16u, Gex32u)
GEX_CONVERT_ROW(Gex32s, Gex32f)
GEX_CONVERT_ROW(Gex32u, Gex32f)
GEX_CONVERT_ROW(Gex8s, Gex64f)
GEX_CONVERT_ROW(Gex8s, Gex8u)
GEX_CONVERT_ROW(Gex8s, Gex16u)
GEX_CONVERT_ROW(Gex8s, Gex32u)
GEX_CONVERT_ROW(Gex16s, Gex16u)
GEX_CONVERT_ROW(Gex16s, Gex32u)
GEX_CONVERT_ROW(Gex32s, Gex32u)
GEX_CONVERT_ROW(Gex8u, Gex8s)
GEX_CONVERT_ROW(Gex16s, Gex8s)
GEX_CONVERT_ROW(Gex16u, Gex8s)
GEX_CONVERT_ROW(Gex16u, Gex16s)
GEX_CONVERT_ROW(Gex32s, Gex16s)
GEX_CONVERT_ROW(Gex32s, Gex16u)
#undef GEX_CONVERT_ROW

template void convert_row_32f<Gex8u>(const Gex32f*, Gex8u*, std::int64_t, int);
template void convert_row_32f<Gex8s>(const Gex32f*, Gex8s*, std::int64_t, int);
template void convert_row_32f<Gex16u>(const Gex32f*, Gex16u*, std::int64_t, int);
template void convert_row_32f<Gex16s>(const Gex32f*, Gex16s*, std::int64_t, int);
template void convert_row_32f<Gex32s>(const Gex32f*, Gex32s*, std::int64_t, int);
template void convert_row_32f<Gex32u>(const Gex32f*, Gex32u*, std::int64_t, int);

}  // namespace gex

// ---- the exports ------------------------------------------------------------------------

#define GEX_CVT_ARGS(S, D) (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize)
#define GEX_CVT_ARGS_MODE(S, D) \
    (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode)
#define GEX_CVT_ARGS_SFS(S, D) \
    (const S* pSrc, int srcStep, D* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor)

// Same scale, one layout; and the four layouts of a pair.
#define GEX_CONVERT_SAME(SD, S, D, LAY, CH, AC4)                                        \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_##LAY##R, GEX_CVT_ARGS(S, D)) {             \
        return convert_same<CH, AC4>(pSrc, srcStep, pDst, dstStep, roiSize);            \
    }
#define GEX_CONVERT_SAME4(SD, S, D)                 \
    GEX_CONVERT_SAME(SD, S, D, C1, 1, false)        \
    GEX_CONVERT_SAME(SD, S, D, C3, 3, false)        \
    GEX_CONVERT_SAME(SD, S, D, C4, 4, false)        \
    GEX_CONVERT_SAME(SD, S, D, AC4, 4, true)

GEX_CONVERT_SAME4(8u16u, Gex8u, Gex16u)
GEX_CONVERT_SAME4(8u16s, Gex8u, Gex16s)
GEX_CONVERT_SAME4(8u32s, Gex8u, Gex32s)
GEX_CONVERT_SAME4(8u32f, Gex8u, Gex32f)
GEX_CONVERT_SAME4(8s32s, Gex8s, Gex32s)
GEX_CONVERT_SAME4(8s32f, Gex8s, Gex32f)
GEX_CONVERT_SAME4(16u32s, Gex16u, Gex32s)
GEX_CONVERT_SAME4(16u32f, Gex16u, Gex32f)
GEX_CONVERT_SAME4(16s32s, Gex16s, Gex32s)
GEX_CONVERT_SAME4(16s32f, Gex16s, Gex32f)
GEX_CONVERT_SAME4(16u8u, Gex16u, Gex8u)
GEX_CONVERT_SAME4(16s8u, Gex16s, Gex8u)
GEX_CONVERT_SAME4(32s8u, Gex32s, Gex8u)
GEX_CONVERT_SAME4(32s8s, Gex32s, Gex8s)
GEX_CONVERT_SAME(8s16s, Gex8s, Gex16s, C1, 1, false)
GEX_CONVERT_SAME(16u32u, Gex16u, Gex32u, C1, 1, false)
GEX_CONVERT_SAME(32s32f, Gex32s, Gex32f, C1, 1, false)
GEX_CONVERT_SAME(32u32f, Gex32u, Gex32f, C1, 1, false)
GEX_CONVERT_SAME(8s64f, Gex8s, Gex64f, C1, 1, false)

// From 32f with a mode: C1 and AC4 check and run; C3 and C4 fold into C1.
#define GEX_CONVERT_FROM_32F(SD, D)                                                               \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_C1R, GEX_CVT_ARGS_MODE(Gex32f, D)) {                \
        return convert_from_32f<1, false>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);      \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_C3R, GEX_CVT_ARGS_MODE(Gex32f, D)) {                \
        GEX_CHECK(check_width(roiSize));                                                          \
        return gex::gexiConvert_##SD##_C1R(pSrc, srcStep, pDst, dstStep, fold(roiSize, 3), roundMode); \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_C4R, GEX_CVT_ARGS_MODE(Gex32f, D)) {                \
        GEX_CHECK(check_width(roiSize));                                                          \
        return gex::gexiConvert_##SD##_C1R(pSrc, srcStep, pDst, dstStep, fold(roiSize, 4), roundMode); \
    }                                                                                             \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_AC4R, GEX_CVT_ARGS_MODE(Gex32f, D)) {               \
        return convert_from_32f<4, true>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);       \
    }

GEX_CONVERT_FROM_32F(32f8u, Gex8u)
GEX_CONVERT_FROM_32F(32f8s, Gex8s)
GEX_CONVERT_FROM_32F(32f16u, Gex16u)
GEX_CONVERT_FROM_32F(32f16s, Gex16s)

// Saturating to unsigned.
#define GEX_CONVERT_RS(SD, S, D)                                                 \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_C1Rs, GEX_CVT_ARGS(S, D)) {         \
        return convert_to_unsigned(pSrc, srcStep, pDst, dstStep, roiSize);       \
    }

GEX_CONVERT_RS(8s8u, Gex8s, Gex8u)
GEX_CONVERT_RS(8s16u, Gex8s, Gex16u)
GEX_CONVERT_RS(8s32u, Gex8s, Gex32u)
GEX_CONVERT_RS(16s16u, Gex16s, Gex16u)
GEX_CONVERT_RS(16s32u, Gex16s, Gex32u)
GEX_CONVERT_RS(32s32u, Gex32s, Gex32u)

// Scaled.
#define GEX_CONVERT_SFS(SD, S, D)                                                                 \
    GEX_EXPORT(GexStatus, gexiConvert_##SD##_C1RSfs, GEX_CVT_ARGS_SFS(S, D)) {                    \
        return convert_scaled(pSrc, srcStep, pDst, dstStep, roiSize, roundMode, scaleFactor);     \
    }

GEX_CONVERT_SFS(8u8s, Gex8u, Gex8s)
GEX_CONVERT_SFS(16s8s, Gex16s, Gex8s)
GEX_CONVERT_SFS(16u8s, Gex16u, Gex8s)
GEX_CONVERT_SFS(16u16s, Gex16u, Gex16s)
GEX_CONVERT_SFS(32f8u, Gex32f, Gex8u)
GEX_CONVERT_SFS(32f8s, Gex32f, Gex8s)
GEX_CONVERT_SFS(32f16u, Gex32f, Gex16u)
GEX_CONVERT_SFS(32f16s, Gex32f, Gex16s)
GEX_CONVERT_SFS(32f32s, Gex32f, Gex32s)
GEX_CONVERT_SFS(32f32u, Gex32f, Gex32u)
GEX_CONVERT_SFS(32s16u, Gex32s, Gex16u)
GEX_CONVERT_SFS(32u8u, Gex32u, Gex8u)
GEX_CONVERT_SFS(32u8s, Gex32u, Gex8s)
GEX_CONVERT_SFS(32u16u, Gex32u, Gex16u)
GEX_CONVERT_SFS(32u16s, Gex32u, Gex16s)
GEX_CONVERT_SFS(32u32s, Gex32u, Gex32s)
GEX_CONVERT_SFS(64f8u, Gex64f, Gex8u)
GEX_CONVERT_SFS(64f8s, Gex64f, Gex8s)
GEX_CONVERT_SFS(64f16u, Gex64f, Gex16u)
GEX_CONVERT_SFS(64f16s, Gex64f, Gex16s)

// 32s to 16s: a factor above 31 gives zeros (|x| / 2^32 is at most one half,
// and that single tie is taken as 0 too), whatever the mode.
GEX_EXPORT(GexStatus, gexiConvert_32s16s_C1RSfs, GEX_CVT_ARGS_SFS(Gex32s, Gex16s)) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roiSize));
    if (scaleFactor > 31) {
        Gex16s* row = pDst;
        for (int y = 0; y < roiSize.height; ++y, row = row_at(row, dstStep, 1))
            std::memset(row, 0, static_cast<std::size_t>(roiSize.width) * sizeof(Gex16s));
        return gexStsOk;
    }
    run_scaled(pSrc, srcStep, pDst, dstStep, roiSize, roundMode, scaleFactor);
    return gexStsOk;
}

// In place: each element is read as 32f and replaced by its 32u result.
GEX_EXPORT(GexStatus, gexiConvert_32f32u_C1IRSfs,
           (Gex32u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor)) {
    GEX_CHECK(check_null(pSrcDst));
    GEX_CHECK(check_roi(roiSize));
    run_scaled_32f(reinterpret_cast<const Gex32f*>(pSrcDst), srcDstStep, pSrcDst, srcDstStep, roiSize, roundMode,
                   scaleFactor);
    return gexStsOk;
}
