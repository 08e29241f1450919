// General border filter: size query, the two Inits, SetMode and the twelve
// runs. The run checks its arguments, then hands the interior kernel of the
// record (filter_border_kernels.hpp) to the strip driver, which supplies the
// borders.
//
// Interior kernels by record and pixel type:
//   integer taps, 8u, taps within 16 bits:
//     one row or one column (the other dimension at least 3), width >= 16:
//       vector sums, one-dimensional fast rule (exact rule with flag 16);
//       narrower: the reference loop;
//     other shapes: vector sums, two-dimensional fast rule for modes 0 and 1,
//       the exact rule with flag 16 or mode 2;
//   integer taps, 16s one channel, taps within 16 bits, kh >= 3, width >= 16:
//     as the 8u two-dimensional path, 16-bit output;
//   other integer cases: the reference loop (exact rule);
//   float taps: the vector float kernel (every type, 1, 3 or 4 channels).
#include "filter/filter_border.hpp"

#include <cmath>
#include <cstring>

#include "filter/border.hpp"
#include "filter/filter_border_kernels.hpp"
#include "filter/strip.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"

namespace gex {

namespace {

constexpr std::int64_t kMaxSize = 2147483647;

bool pixel_type_ok(int dt) { return dt == gex8u || dt == gex16u || dt == gex16s || dt == gex32f; }

// Does the 16-bit kernel type stay integer for this pixel type and shape?
bool integer_path(int dt, int ch, int kw, int kh) {
    if (dt == gex8u) return true;
    if (dt == gex16s) return !(ch == 3 || ch == 4 || kw == 1 || kh == 1 || (ch == 1 && kw < 3));
    return false;
}

std::int64_t and3(std::int64_t v) { return v & ~std::int64_t{3}; }

}  // namespace

std::int64_t filter_border_kernel_scratch(int kw_, int kh_, int W_, int dt, int kt, int ch) {
    const std::int64_t kw = kw_, kh = kh_, W = W_;
    const std::int64_t other = (W * 8 + kw * 4 * kh + W * 8) * 4;
    std::int64_t v;
    if (kt == gex16s && dt == gex8u) {
        if (ch == 1) {
            v = kw == 1   ? kh * 80 + and3(W + 3) * 8
                : kh == 1 ? and3(W + kw * 4 + 3) * 4
                          : ((((kw + 1) >> 1) * 16 * kh + W + 7) & ~std::int64_t{7}) * 4;
        } else if (ch == 3) {
            v = kw == 1 ? (kh * 40 * 2 + and3(W + 3) * 2 * 4) * 3
                : kh == 1 ? and3(W * 3 + kw * 4 + 3) * 4
                          : and3(kw * 4 * kh + W * 3 + 3) * 4;
        } else {
            v = kw == 1 ? (kh * 80 + and3(W + 3) * 8) * 4 : kh == 1 ? (W + kw) * 16 : (kw * kh + W) * 16;
        }
    } else if (kt == gex16s && dt == gex16s) {
        v = ch == 1   ? and3(kw * 4 * kh + W + 3) * 4
            : ch == 3 ? and3(kw * 4 * kh + W * 3 + 31) * 4
                      : and3((kw * kh + W) * 4 + 31) * 4;
    } else if (dt == gex32f) {
        v = ch == 1 ? kw * kh * 32 : kw * kh * 16;
    } else if (ch == 1) {
        const std::int64_t two = (and3(kw * 4 * kh + W * 2 + 10) + and3(W + 3) * 2) * 4;
        if (dt == gex16u) v = kw == 1 ? and3(W + kh * 4 + 3) * 4 : kh == 1 ? other : and3(W + 10) * 4;
        else if (dt == gex16s) v = kw == 1 ? and3(W + 7) * 4 : kh == 1 ? W * 8 : two;
        else v = kh == 1 ? W * 16 : kw == 1 ? other : two;
    } else if (ch == 3) {
        if (dt == gex8u) v = kh == 1 ? W * 48 : (and3(W * 3 + 3) * 2 + and3(kw * 4 * kh + W * 6 + 10)) * 4;
        else v = kh == 1 ? W * 24 : kw == 1 ? and3(W * 3 + kh * 4 + 3) * 4 : other;
    } else {
        if (dt == gex8u) v = kw == 1 ? and3((((kh + 1) & ~std::int64_t{1}) + W) * 4 + 14) * 4 : kh == 1 ? W * 64 : other;
        else v = kh == 1 ? W * 32 : other;
    }
    return v > 0 ? (v + 191) & ~std::int64_t{63} : 0;
}

namespace {

// The float record: reversed taps tap(k), k = 0..n-1 in kernel order.
template <class TapFn>
GexStatus init_float(TapFn tap, int kw, int kh, int dataType, int numChannels, int roundMode, void* pSpec) {
    FilterBorderSpec* s = record_at(pSpec);
    const std::int64_t n = std::int64_t{kw} * kh;
    auto* base = reinterpret_cast<std::uint8_t*>(s);
    auto* taps = reinterpret_cast<float*>(base + kFilterBorderHead);
    for (std::int64_t k = 0; k < n; ++k) taps[k] = tap(n - 1 - k);
    s->kind = dataType == gex8u ? 3 : dataType == gex16s ? 4 : dataType == gex16u ? 5 : 6;
    s->kernelWidth = kw;
    s->kernelHeight = kh;
    s->divisorKind = 0;
    s->shift = 0;
    s->roundHalf = 0;
    s->invDivisor = 1.0f;
    s->divisorF = 1.0f;
    s->divisor = 1;
    s->pad0 = 0;
    s->divisorD = 1.0;
    s->shiftMask = 0;
    s->divisorRaw = 1;
    s->roundMode = roundMode & ~kAccurateFlag;
    s->offset = 0;
    s->offsetScaled = 0.0f;
    s->hint = 0;
    s->pTaps = taps;
    s->pTapsPairs = nullptr;
    s->pTapsBroadcast = nullptr;
    s->tapsFit16 = 0;
    s->numChannels = numChannels;
    return (roundMode & kAccurateFlag) ? gexStsAccurateModeIgnored : gexStsOk;
}

bool round_mode_ok(int roundMode) { return static_cast<unsigned>(roundMode & ~kAccurateFlag) <= 2u; }

}  // namespace

}  // namespace gex

GEX_EXPORT(GexStatus, gexiFilterBorderGetSize,
           (GexiSize kernelSize, GexiSize dstRoiSize, GexDataType dataType, GexDataType kernelType, int numChannels,
            int* pSpecSize, int* pBufferSize)) {
    const int dt = dataType;
    int kt = kernelType;
    GEX_CHECK(check_roi(kernelSize));
    GEX_CHECK(check_roi(dstRoiSize));
    if (!pixel_type_ok(dt)) return gexStsDataType;
    if (kt != gex16s && kt != gex32f) return gexStsDataType;
    if (numChannels < 1 || numChannels > 4) return gexStsChannelFormat;
    GEX_CHECK(check_null(pSpecSize, pBufferSize));
    const int kw = kernelSize.width, kh = kernelSize.height;
    if (kt == gex16s && !integer_path(dt, numChannels, kw, kh)) kt = gex32f;
    const std::int64_t n = std::int64_t{kw} * kh;
    std::int64_t rec = ((((std::int64_t{kw} + 1) >> 1) * 8 * kh * 4 + 63) & ~std::int64_t{63}) +
                        (((kt == gex16s ? n * 2 : n * 4) + 63) & ~std::int64_t{63}) + 191;
    if (kt == gex32f && numChannels == 1 && dt == gex32f) rec += (n * 16 * 4 + 63) & ~std::int64_t{63};
    const std::int64_t buf = owngetSizeBufferOfBorders(kw, kh, dstRoiSize.width, dstRoiSize.height, dt, numChannels) +
                             filter_border_kernel_scratch(kw, kh, dstRoiSize.width, dt, kt, numChannels) + 63;
    if (rec > kMaxSize || buf > kMaxSize) {
        if (rec <= kMaxSize) *pSpecSize = static_cast<int>(rec);
        *pBufferSize = 0;
        return gexStsExceededSize;
    }
    *pSpecSize = static_cast<int>(rec);
    *pBufferSize = static_cast<int>(buf);
    return gexStsOk;
}

GEX_EXPORT(GexStatus, gexiFilterBorderInit_32f,
           (const Gex32f* pKernel, GexiSize kernelSize, GexDataType dataType, int numChannels, GexRoundMode roundMode,
            GexiFilterBorderSpec* pSpec)) {
    const int dt = dataType, rm = roundMode;
    GEX_CHECK(check_null(pKernel, pSpec));
    GEX_CHECK(check_roi(kernelSize));
    if (!pixel_type_ok(dt)) return gexStsDataType;
    if (numChannels < 1 || numChannels > 4) return gexStsChannelFormat;
    if (!round_mode_ok(rm)) return gexStsRoundMode;
    return init_float([pKernel](std::int64_t k) { return pKernel[k]; }, kernelSize.width, kernelSize.height, dt,
                      numChannels, rm, pSpec);
}

GEX_EXPORT(GexStatus, gexiFilterBorderInit_16s,
           (const Gex16s* pKernel, GexiSize kernelSize, int divisor, GexDataType dataType, int numChannels,
            GexRoundMode roundMode, GexiFilterBorderSpec* pSpec)) {
    const int dt = dataType, rm = roundMode;
    GEX_CHECK(check_null(pKernel, pSpec));
    GEX_CHECK(check_roi(kernelSize));
    const bool accurate = (rm & kAccurateFlag) != 0;
    // The exact conversion exists for 8u and one-channel 16s only.
    const bool ignored = accurate && !(dt == gex8u || (dt == gex16s && numChannels == 1));
    if (dt != gex8u && dt != gex16u && dt != gex16s && (accurate || dt != gex32f)) return gexStsDataType;
    if (numChannels < 1 || numChannels > 4) return gexStsChannelFormat;
    if (!round_mode_ok(rm)) return gexStsRoundMode;
    if (divisor == 0) return gexStsMaskKernelZero;
    if (dt == gex32f) return gexStsDataType;

    const int kw = kernelSize.width, kh = kernelSize.height;
    if (!integer_path(dt, numChannels, kw, kh)) {
        // Taps scaled by 1/divisor in double, rounded to float.
        const double inv = 1.0 / divisor;
        return init_float([pKernel, inv](std::int64_t k) { return static_cast<float>(pKernel[k] * inv); }, kw, kh, dt,
                          numChannels, rm, pSpec);
    }

    FilterBorderSpec* s = record_at(pSpec);
    const std::int64_t n = std::int64_t{kw} * kh;
    auto* base = reinterpret_cast<std::uint8_t*>(s);
    auto* taps = reinterpret_cast<std::int16_t*>(base + kFilterBorderHead);
    auto* pairs = reinterpret_cast<std::int32_t*>(base + kFilterBorderHead + ((n * 2 + 63) & ~std::int64_t{63}));
    bool fit = true;
    for (std::int64_t k = 0; k < n; ++k) {
        const std::int16_t t = pKernel[n - 1 - k];
        taps[k] = t;
        fit = fit && t >= -32767 && t <= 32766;
    }
    const int np = (kh + 1) >> 1;
    for (int p = 0; p < np; ++p)
        for (int i = 0; i < kw; ++i) {
            const std::uint32_t a = static_cast<std::uint16_t>(taps[std::int64_t{2 * p} * kw + i]);
            const std::uint32_t b =
                2 * p + 1 < kh ? static_cast<std::uint16_t>(taps[std::int64_t{2 * p + 1} * kw + i]) : 0u;
            pairs[std::int64_t{p} * kw + i] = static_cast<std::int32_t>(a | (b << 16));
        }

    int dk = 2, shift = 0;
    if (divisor == 1) {
        dk = 0;
    } else if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
        dk = 1;
        for (int d = divisor; d > 1; d >>= 1) ++shift;
    }
    s->kind = dt == gex8u ? 0 : 1;
    s->kernelWidth = kw;
    s->kernelHeight = kh;
    s->divisorKind = dk;
    s->shift = shift;
    s->roundHalf = shift > 0 ? 1 << (shift - 1) : 0;
    s->invDivisor = dk == 1 ? std::ldexp(1.0f, -shift) : static_cast<float>(1.0 / divisor);
    s->divisorF = static_cast<float>(divisor);
    s->divisor = divisor;
    s->pad0 = 0;
    s->divisorD = divisor;
    s->shiftMask = shift > 0 ? static_cast<std::int32_t>((1u << shift) - 1) : 0;
    s->divisorRaw = divisor;
    s->roundMode = ignored ? (rm & ~kAccurateFlag) : rm;
    s->offset = 0;
    s->offsetScaled = 0.0f;
    s->hint = 0;
    s->pTaps = taps;
    s->pTapsPairs = pairs;
    s->pTapsBroadcast = nullptr;
    s->tapsFit16 = fit ? 1 : 0;
    s->numChannels = numChannels;
    return ignored ? gexStsAccurateModeIgnored : gexStsOk;
}

GEX_EXPORT(GexStatus, gexiFilterBorderSetMode, (GexHintAlgorithm hint, int offset, GexiFilterBorderSpec* pSpec)) {
    GEX_CHECK(check_null(pSpec));
    FilterBorderSpec* s = record_at(pSpec);
    const int kind = s->kind;
    if ((kind == 1 || kind == 4 || kind == 6) && offset != 0) return gexStsNotSupportedMode;
    if (static_cast<int>(hint) == gexAlgHintAccurate) {
        if (kind == 0 || (kind == 1 && s->numChannels == 1)) s->roundMode |= kAccurateFlag;
    } else {
        s->roundMode &= 3;
    }
    s->offset = offset;
    s->offsetScaled = kind < 3 ? static_cast<float>(offset) * s->divisorF : static_cast<float>(offset);
    s->hint = static_cast<int>(hint);
    return gexStsOk;
}

namespace gex {
namespace {

template <class T, int CH>
GexStatus filter_border_run(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi, int border,
                            const T* pBorderValue, const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(check_null(pSrc, pDst, pSpec, pBuffer));
    if ((border & kBorderModeMask) == gexBorderConst && pBorderValue == nullptr) return gexStsNullPtr;
    const FilterBorderSpec* s = record_at(pSpec);
    GEX_CHECK(check_roi(roi));
    if (srcStep < 1 || dstStep < static_cast<std::int64_t>(roi.width) * static_cast<std::int64_t>(sizeof(T)))
        return gexStsStep;
    GEX_CHECK(check_border(border, kBorderRepMirConst));
    auto kernel = [s](const T* src, int ss, T* dst, int ds, GexiSize r) {
        fb::filter_interior<T, CH>(*s, src, ss, dst, ds, r);
    };
    StripOptions opt;
    opt.mirrorReach2 = true;
    run_strips<T, CH>(pSrc, srcStep, pDst, dstStep, roi, s->kernelWidth, s->kernelHeight, border, pBorderValue,
                      pBuffer, kernel, opt);
    return gexStsOk;
}

}  // namespace
}  // namespace gex

#define GEX_FILTER_BORDER(d, T, ch)                                                                              \
    GEX_EXPORT(GexStatus, gexiFilterBorder_##d##_C##ch##R,                                                       \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border,    \
                const T borderValue[ch], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer)) {                   \
        return filter_border_run<T, ch>(pSrc, srcStep, pDst, dstStep, dstRoiSize, static_cast<int>(border),      \
                                        borderValue, pSpec, pBuffer);                                            \
    }

#define GEX_FILTER_BORDER_CH(d, T) \
    GEX_FILTER_BORDER(d, T, 1)     \
    GEX_FILTER_BORDER(d, T, 3)     \
    GEX_FILTER_BORDER(d, T, 4)

GEX_FILTER_BORDER_CH(8u, Gex8u)
GEX_FILTER_BORDER_CH(16u, Gex16u)
GEX_FILTER_BORDER_CH(16s, Gex16s)
GEX_FILTER_BORDER_CH(32f, Gex32f)
