// The five resize queries for every method: record and Init buffer sizes,
// border size, the source origin and rectangle of a tile, and the scratch
// size of a run. The 16u, 16s and 32f forms are the 8u form; the 64f forms
// test for a double-table record; the _L forms work on _L records.
#include <cstdint>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "geometry/resize_common.hpp"

namespace gex {

namespace {

using namespace resize;

constexpr std::uint64_t kQueryLimit = 0x7FFFFFFF;

bool interpolation_known(std::uint32_t i) {
    return i == 0 || i == kNearest || i == kLinear || i == kCubic || i == kSuper || i == kLanczos;
}

// Sizes of a record and of its Init buffer, after the argument checks.
// Antialiased records exist for no method here: the nearest and super forms
// ignore the flag with +46, the others are not supported.
GexStatus sizes(std::int64_t sw, std::int64_t sh, std::int64_t dw, std::int64_t dh, bool dbl, std::uint32_t interp,
                std::uint32_t aa, std::uint64_t& record, std::uint64_t& init) {
    if (interp == 0) return gexStsNotSupportedMode;
    if (dbl && (interp != kLinear || aa != 0)) return gexStsNotSupportedMode;
    switch (interp) {
    case kLinear:
        if (sw < 2 || sh < 2) return gexStsSize;
        break;
    case kCubic:
    case kLanczos:
        if (sw < 4 || sh < 4) return gexStsSize;
        break;
    case kSuper:
        if (sw < dw || sh < dh) return gexStsSize;
        break;
    default:
        break;
    }
    if (aa != 0 && interp != kNearest && interp != kSuper) return gexStsNotSupportedMode;
    const std::uint64_t W = std::uint64_t(dw), H = std::uint64_t(dh);
    const std::uint64_t W32 = (W + 31) & ~std::uint64_t{31}, H32 = (H + 31) & ~std::uint64_t{31};
    init = 64;
    switch (interp) {
    case kNearest: record = (W32 + H32) * 4 + kRecordBytes + 64; break;
    case kLinear:
        record = dbl ? W32 * 12 + ((H + 31) / 32) * 128 + ((H + 31) / 32) * 256 + 192 + 64
                   : (W32 + H32) * 8 + kRecordBytes + 64;
        break;
    case kCubic:
        record = (W32 + H32) * 4 + kRecordBytes + (((W * 4 + 127) >> 5) + ((H * 4 + 127) >> 5)) * 128 + 64;
        init = (W32 + H32) * 4 + 64;
        break;
    case kLanczos:
        record = (W32 + H32) * 4 + kRecordBytes + (((W * 6 + 191) >> 5) + ((H * 6 + 191) >> 5)) * 128 + 64;
        init = (W32 + H32) * 4 + 64;
        break;
    default: record = super_record_size(std::uint64_t(sw), std::uint64_t(sh), W, H); break;
    }
    return aa != 0 ? gexStsNoAntialiasing : gexStsOk;
}

template <class S>
GexStatus check_sizes(S src, S dst, std::uint32_t interp) {
    if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return gexStsNoOperation;
    if (src.width < 1 || src.height < 1 || dst.width < 1 || dst.height < 1) return gexStsSize;
    if (!interpolation_known(interp)) return gexStsInterpolation;
    return gexStsOk;
}

GexStatus get_size32(GexiSize src, GexiSize dst, bool dbl, std::uint32_t interp, std::uint32_t aa,
                     Gex32u* pSpecSize, Gex32u* pInitBufSize) {
    GEX_CHECK(check_null(pSpecSize, pInitBufSize));
    GEX_CHECK(check_sizes(src, dst, interp));
    std::uint64_t record = 0, init = 0;
    const GexStatus st = sizes(src.width, src.height, dst.width, dst.height, dbl, interp, aa, record, init);
    if (st < 0) return st;
    if (record >= kQueryLimit || init >= kQueryLimit) return gexStsExceededSize;
    *pSpecSize = Gex32u(record);
    *pInitBufSize = Gex32u(init);
    return st;
}

// Which records a query form accepts.
enum class QForm { Narrow, NarrowDouble, Large };

bool id_ok(const Record* s, QForm f) {
    switch (f) {
    case QForm::Narrow: return s->id == kId32;
    case QForm::NarrowDouble: return s->id == kId32 && s->dataType == kTypeDouble;
    case QForm::Large: return s->id == kIdL;
    }
    return false;
}

GexStatus border_size(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize, QForm f) {
    GEX_CHECK(check_null(pSpec, pBorderSize));
    const Record* s = record_at(pSpec);
    if (!id_ok(s, f)) return gexStsContextMatch;
    *pBorderSize = s->borderSize;
    return gexStsOk;
}

bool offset_in(const Record* s, std::int64_t x, std::int64_t y) {
    return x >= 0 && y >= 0 && x < std::int64_t(s->xAxis.dstLen) && y < std::int64_t(s->yAxis.dstLen);
}

// First source pixel a tile starting at `off` reads on an axis.
std::int64_t origin(const Record* s, const Axis& ax, std::int64_t off) {
    return s->interpolation == kSuper ? super_src_offset(ax, off) : src_origin(ax, off);
}

// Source extent of the destination indices [off, off + ext), ext clipped.
std::int64_t extent(const Record* s, const Axis& ax, std::int64_t off, std::int64_t ext) {
    const std::int64_t o = origin(s, ax, off);
    if (s->interpolation == kSuper) return super_src_extent(ax, off, off + ext);
    if (off + ext == std::int64_t(ax.dstLen)) return std::int64_t(ax.srcLen) - o;
    return std::int64_t(ax.pPos[off + ext - 1]) - o + 1;
}

template <class P>
GexStatus src_offset(const GexiResizeSpec* pSpec, P dstOffset, P* pSrcOffset, QForm f) {
    GEX_CHECK(check_null(pSpec, pSrcOffset));
    const Record* s = record_at(pSpec);
    if (!id_ok(s, f)) return gexStsContextMatch;
    if (!offset_in(s, dstOffset.x, dstOffset.y)) return gexStsOutOfRange;
    pSrcOffset->x = decltype(pSrcOffset->x)(origin(s, s->xAxis, dstOffset.x));
    pSrcOffset->y = decltype(pSrcOffset->y)(origin(s, s->yAxis, dstOffset.y));
    return gexStsOk;
}

template <class P, class S>
GexStatus src_roi(const GexiResizeSpec* pSpec, P dstOffset, S dstSize, P* pSrcOffset, S* pSrcSize, QForm f) {
    GEX_CHECK(check_null(pSpec, pSrcOffset, pSrcSize));
    GEX_CHECK(check_roi(dstSize));
    const Record* s = record_at(pSpec);
    if (!id_ok(s, f)) return gexStsContextMatch;
    if (!offset_in(s, dstOffset.x, dstOffset.y)) return gexStsOutOfRange;
    const std::int64_t w = std::min<std::int64_t>(dstSize.width, std::int64_t(s->xAxis.dstLen) - dstOffset.x);
    const std::int64_t h = std::min<std::int64_t>(dstSize.height, std::int64_t(s->yAxis.dstLen) - dstOffset.y);
    pSrcOffset->x = decltype(pSrcOffset->x)(origin(s, s->xAxis, dstOffset.x));
    pSrcOffset->y = decltype(pSrcOffset->y)(origin(s, s->yAxis, dstOffset.y));
    pSrcSize->width = decltype(pSrcSize->width)(extent(s, s->xAxis, dstOffset.x, w));
    pSrcSize->height = decltype(pSrcSize->height)(extent(s, s->yAxis, dstOffset.y, h));
    return run_status(s, dstSize.width, dstSize.height);
}

template <class S>
GexStatus buffer_size(const GexiResizeSpec* pSpec, S dstSize, Gex32u channels, std::uint64_t& out, QForm f) {
    if (dstSize.width == 0 || dstSize.height == 0) return gexStsNoOperation;
    const Record* s = record_at(pSpec);
    if (!id_ok(s, f)) return gexStsContextMatch;
    if (channels != 1 && channels != 3 && channels != 4) return gexStsNumChannels;
    GEX_CHECK(check_roi(dstSize));
    const std::uint64_t W = std::uint64_t(std::min<std::int64_t>(dstSize.width, s->xAxis.dstLen));
    const std::uint64_t H = std::uint64_t(std::min<std::int64_t>(dstSize.height, s->yAxis.dstLen));
    const std::uint64_t base = a32(H * 4) + a32(W * 4);
    if (s->dataType == kTypeDouble) {
        if (s->interpolation != kLinear) return gexStsNotSupportedMode;
        out = channels * 8 * ((2 * W + 63) & ~std::uint64_t{31}) + ((H + 31) / 32 + (W + 31) / 32) * 128 + 64;
    } else {
        switch (s->interpolation) {
        case kNearest: out = base + 64; break;
        case kLinear:
        case kCubic:
        case kLanczos: out = base + 2 * std::uint64_t(s->tapsY) * a32(std::uint64_t(channels) * 4 * W) + 64; break;
        case kSuper: out = super_buffer_size(s, dstSize.width, dstSize.height, channels); break;
        default: return gexStsNotSupportedMode;
        }
    }
    return run_status(s, dstSize.width, dstSize.height);
}

GexStatus buffer_size32(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u channels, Gex32u* pBufSize, QForm f) {
    GEX_CHECK(check_null(pSpec, pBufSize));
    std::uint64_t n = 0;
    const GexStatus st = buffer_size(pSpec, dstSize, channels, n, f);
    if (st < 0 || st == gexStsNoOperation) return st;
    if (n >= kQueryLimit) return gexStsExceededSize;
    *pBufSize = Gex32u(n);
    return st;
}

}  // namespace

}  // namespace gex

// ---- GetSize ------------------------------------------------------------------

GEX_EXPORT(GexStatus, gexiResizeGetSize_8u,
           (GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing,
            Gex32u* pSpecSize, Gex32u* pInitBufSize)) {
    return get_size32(srcSize, dstSize, false, std::uint32_t(interpolation), antialiasing, pSpecSize, pInitBufSize);
}

GEX_EXPORT(GexStatus, gexiResizeGetSize_64f,
           (GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing,
            Gex32u* pSpecSize, Gex32u* pInitBufSize)) {
    return get_size32(srcSize, dstSize, true, std::uint32_t(interpolation), antialiasing, pSpecSize, pInitBufSize);
}

GEX_EXPORT(GexStatus, gexiResizeGetSize_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiInterpolation interpolation,
            Gex32u antialiasing, Gex64s* pSpecSize, Gex64s* pInitBufSize)) {
    GEX_CHECK(check_null(pSpecSize, pInitBufSize));
    GEX_CHECK(check_sizes(srcSize, dstSize, std::uint32_t(interpolation)));
    const int t = int(dataType);
    if (t != gex8u && t != gex16u && t != gex16s && t != gex32f && t != gex64f) return gexStsDataType;
    constexpr std::int64_t lim = 0x1FFFFFFF;
    if (srcSize.width > lim || srcSize.height > lim || dstSize.width > lim || dstSize.height > lim)
        return gexStsExceededSize;
    std::uint64_t record = 0, init = 0;
    const GexStatus st = sizes(srcSize.width, srcSize.height, dstSize.width, dstSize.height, t == gex64f,
                               std::uint32_t(interpolation), antialiasing, record, init);
    if (st < 0) return st;
    *pSpecSize = Gex64s(record);
    *pInitBufSize = Gex64s(init);
    return st;
}

// ---- GetBorderSize, GetSrcOffset, GetSrcRoi, GetBufferSize ------------------------

#define GEX_RESIZE_QUERIES(d, form)                                                                          \
    GEX_EXPORT(GexStatus, gexiResizeGetBorderSize_##d,                                                       \
               (const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize)) {                                 \
        return border_size(pSpec, pBorderSize, form);                                                        \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetSrcOffset_##d,                                                        \
               (const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset)) {                  \
        return src_offset(pSpec, dstOffset, pSrcOffset, form);                                               \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetSrcRoi_##d,                                                           \
               (const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset,   \
                GexiSize* pSrcSize)) {                                                                       \
        return src_roi(pSpec, dstOffset, dstSize, pSrcOffset, pSrcSize, form);                               \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetBufferSize_##d,                                                       \
               (const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize)) {      \
        return buffer_size32(pSpec, dstSize, numChannels, pBufSize, form);                                   \
    }

GEX_RESIZE_QUERIES(8u, QForm::Narrow)
GEX_RESIZE_QUERIES(64f, QForm::NarrowDouble)

GEX_EXPORT(GexStatus, gexiResizeGetBorderSize_L, (const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize)) {
    return border_size(pSpec, pBorderSize, QForm::Large);
}
GEX_EXPORT(GexStatus, gexiResizeGetSrcOffset_L,
           (const GexiResizeSpec* pSpec, GexiPointL dstOffset, GexiPointL* pSrcOffset)) {
    return src_offset(pSpec, dstOffset, pSrcOffset, QForm::Large);
}
GEX_EXPORT(GexStatus, gexiResizeGetSrcRoi_L,
           (const GexiResizeSpec* pSpec, GexiPointL dstOffset, GexiSizeL dstSize, GexiPointL* pSrcOffset,
            GexiSizeL* pSrcSize)) {
    return src_roi(pSpec, dstOffset, dstSize, pSrcOffset, pSrcSize, QForm::Large);
}
GEX_EXPORT(GexStatus, gexiResizeGetBufferSize_L,
           (const GexiResizeSpec* pSpec, GexiSizeL dstSize, Gex32u numChannels, Gex64s* pBufSize)) {
    GEX_CHECK(check_null(pSpec, pBufSize));
    std::uint64_t n = 0;
    const GexStatus st = buffer_size(pSpec, dstSize, numChannels, n, QForm::Large);
    if (st < 0 || st == gexStsNoOperation) return st;
    *pBufSize = Gex64s(n);
    return st;
}

// The 16u, 16s and 32f forms are the 8u form.
#define GEX_RESIZE_QUERY_ALIASES(d)                                                                          \
    GEX_EXPORT(GexStatus, gexiResizeGetSize_##d,                                                             \
               (GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing,    \
                Gex32u* pSpecSize, Gex32u* pInitBufSize)) {                                                  \
        return gex::gexiResizeGetSize_8u(srcSize, dstSize, interpolation, antialiasing, pSpecSize,           \
                                         pInitBufSize);                                                      \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetBorderSize_##d,                                                       \
               (const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize)) {                                 \
        return gex::gexiResizeGetBorderSize_8u(pSpec, pBorderSize);                                          \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetSrcOffset_##d,                                                        \
               (const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset)) {                  \
        return gex::gexiResizeGetSrcOffset_8u(pSpec, dstOffset, pSrcOffset);                                 \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetSrcRoi_##d,                                                           \
               (const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset,   \
                GexiSize* pSrcSize)) {                                                                       \
        return gex::gexiResizeGetSrcRoi_8u(pSpec, dstOffset, dstSize, pSrcOffset, pSrcSize);                 \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeGetBufferSize_##d,                                                       \
               (const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize)) {      \
        return gex::gexiResizeGetBufferSize_8u(pSpec, dstSize, numChannels, pBufSize);                       \
    }

GEX_RESIZE_QUERY_ALIASES(16u)
GEX_RESIZE_QUERY_ALIASES(16s)
GEX_RESIZE_QUERY_ALIASES(32f)
