// Resize by super-sampling: Init (the periodic tables of both axes) and the
// runs of every depth and layout, 32-bit and _L.
//
// A run works on a tile of the destination. It finds the source rectangle the
// tile reads, then takes one of four paths: a plain copy when neither axis
// resamples, a vertical sum alone when only rows reduce, and otherwise the
// tile kernel: rows grouped by vertical period, each destination row summed
// into a float accumulator row, then combined along the row and stored. The
// horizontal-only case is the tile kernel on the single unit row tap of an
// axis with equal extents. Every pixel depends on the record and the source
// only, so any tile cut yields the same pixels as a whole run.
#include "geometry/resize_super.hpp"

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "data/copy.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "geometry/resize.hpp"

namespace gex {
namespace {

using resize::Axis;
using resize::Record;

constexpr std::uint32_t kMethod = gexiInterSuper;
constexpr std::int64_t kLimitL = 0x20000000;

template <class P>
inline P* align_up(void* p, std::uintptr_t a) {
    const auto v = reinterpret_cast<std::uintptr_t>(p);
    return reinterpret_cast<P*>((v + a - 1) & ~(a - 1));
}

// One axis's period tables: a single unit tap when the extents are equal.
void build_axis(Axis& ax, std::int32_t* pos, float* w) {
    ax.pPos = pos;
    ax.pCoef32f = w;
    if (ax.num == ax.den) {
        pos[0] = 0;
        w[0] = 1.0f;
    } else {
        ownSuperKernel(ax.num, ax.den, resize::super_taps(ax.num, ax.den), pos, w);
    }
}

// Writes the record; the identifier goes in last.
void build_spec(std::int64_t srcW, std::int64_t srcH, std::int64_t dstW, std::int64_t dstH, GexiResizeSpec* pSpec,
                std::uint32_t id) {
    Record* s = resize::record_at(static_cast<void*>(pSpec));
    s->dataType = resize::kTypeFloat;
    s->interpolation = kMethod;
    s->tapsX = 0;
    s->tapsY = 0;
    s->antialiasing = 0;
    s->borderSize = GexiBorderSize{0, 0, 0, 0};
    resize::set_axis_ratio(s->yAxis, std::uint32_t(srcH), std::uint32_t(dstH));
    resize::set_axis_ratio(s->xAxis, std::uint32_t(srcW), std::uint32_t(dstW));
    const std::size_t nY = std::size_t(s->yAxis.den) * resize::super_taps(s->yAxis.num, s->yAxis.den);
    const std::size_t nX = std::size_t(s->xAxis.den) * resize::super_taps(s->xAxis.num, s->xAxis.den);
    // Directly behind the record's fields: y positions, x positions, then the
    // y and x weights, each on a 32-byte boundary. The query's size has room
    // for both roundings since the fields end short of its record bytes.
    auto* yPos = reinterpret_cast<std::int32_t*>(reinterpret_cast<unsigned char*>(s) + sizeof(Record));
    std::int32_t* xPos = yPos + nY;
    float* yW = align_up<float>(xPos + nX, 32);
    float* xW = align_up<float>(yW + nY, 32);
    build_axis(s->yAxis, yPos, yW);
    build_axis(s->xAxis, xPos, xW);
    s->id = id;
}

// Extents of the 32-bit form: zero first, then below 1 or enlarging.
GexStatus check_extents(std::int64_t sw, std::int64_t sh, std::int64_t dw, std::int64_t dh) {
    if (sw == 0 || sh == 0 || dw == 0 || dh == 0) return gexStsNoOperation;
    if (sw < 1 || sh < 1 || dw < 1 || dh < 1 || sw < dw || sh < dh) return gexStsSize;
    return gexStsOk;
}

GexStatus init32(GexiSize src, GexiSize dst, GexiResizeSpec* pSpec) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(check_extents(src.width, src.height, dst.width, dst.height));
    build_spec(src.width, src.height, dst.width, dst.height, pSpec, resize::kId32);
    return gexStsOk;
}

// ---- the runs ------------------------------------------------------------------

template <class T, int C>
GexStatus copy_tile(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, std::int64_t w,
                    std::int64_t h) {
    const std::int64_t lim = 0x7fffffff;
    if (srcStep > lim || srcStep < -lim || dstStep > lim || dstStep < -lim) {
        // Steps beyond 31 bits (the _L forms): row by row.
        const int len = int(w * C);
        for (std::int64_t y = 0; y < h; ++y) {
            const T* s = row_at(pSrc, srcStep, y);
            T* d = row_at(pDst, dstStep, y);
            if constexpr (sizeof(T) == 1) gexsCopy_8u(s, d, len);
            else if constexpr (sizeof(T) == 2)
                gexsCopy_16s(reinterpret_cast<const Gex16s*>(s), reinterpret_cast<Gex16s*>(d), len);
            else gexsCopy_32f(s, d, len);
        }
        return gexStsOk;
    }
    const int ss = int(srcStep), ds = int(dstStep);
    const GexiSize roi{int(w), int(h)};
#define GEX_SUPER_COPY(D, TT)                                                      \
    if constexpr (std::is_same_v<T, TT>) {                                         \
        if constexpr (C == 1) return gex::gexiCopy_##D##_C1R(pSrc, ss, pDst, ds, roi);  \
        else if constexpr (C == 3) return gex::gexiCopy_##D##_C3R(pSrc, ss, pDst, ds, roi); \
        else return gex::gexiCopy_##D##_C4R(pSrc, ss, pDst, ds, roi);                   \
    }
    GEX_SUPER_COPY(8u, Gex8u)
    GEX_SUPER_COPY(16u, Gex16u)
    GEX_SUPER_COPY(16s, Gex16s)
    GEX_SUPER_COPY(32f, Gex32f)
#undef GEX_SUPER_COPY
    return gexStsOk;
}

template <class T, int C>
GexStatus run(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, std::int64_t offX,
              std::int64_t offY, std::int64_t width, std::int64_t height, const GexiResizeSpec* pSpec,
              Gex8u* pBuffer, resize::IdTest idTest) {
    const resize::RunArgs args{pSrc, srcStep, pDst, dstStep, offX, offY, width, height, pSpec, pBuffer};
    GEX_CHECK(resize::check_run(args, idTest, sizeof(T), kMethod));

    const Record* s = resize::record_at(static_cast<const void*>(pSpec));
    const Axis& ax = s->xAxis;
    const Axis& ay = s->yAxis;
    const std::int64_t w = std::min<std::int64_t>(width, std::int64_t(ax.dstLen) - offX);
    const std::int64_t h = std::min<std::int64_t>(height, std::int64_t(ay.dstLen) - offY);
    const std::int64_t sx0 = resize::super_src_offset(ax, offX);
    const std::int64_t sxe = resize::super_src_extent(ax, offX, offX + w);
    const std::int64_t sy0 = resize::super_src_offset(ay, offY);
    const std::int64_t sye = resize::super_src_extent(ay, offY, offY + h);
    const std::uint32_t kx = resize::super_taps(ax.num, ax.den);
    const std::uint32_t ky = resize::super_taps(ay.num, ay.den);

    // The scratch: one pointer per accumulator row, then the rows, each of the
    // tile's source width rounded up to 32 pixels.
    unsigned char* buf = align_up<unsigned char>(pBuffer, 64);
    const std::int64_t m = std::min<std::int64_t>(ay.den, h);
    float** accRows = reinterpret_cast<float**>(buf);
    float* acc0 = align_up<float>(accRows + m, 64);
    const std::int64_t stride = std::int64_t(resize::round_up32(std::uint64_t(sxe))) * C;
    for (std::int64_t r = 0; r < m; ++r) accRows[r] = acc0 + r * stride;

    if (w == sxe && h == sye) {
        copy_tile<T, C>(pSrc, srcStep, pDst, dstStep, w, h);
    } else if (w == sxe) {
        // Only rows reduce: the sum scaled and stored, no accumulator rows.
        const float S = float(ay.den) / float(ay.num);
        for (std::int64_t y = 0; y < h; ++y) {
            const std::int64_t yy = offY + y;
            const std::int64_t ph = yy % ay.den;
            super::vonly_vec(pSrc, srcStep, (yy / ay.den) * std::int64_t(ay.num) - sy0, ay.pPos + ph * ky,
                             ay.pCoef32f + ph * ky, int(ky), S, row_at(pDst, dstStep, y), w * C);
        }
    } else if (std::is_same_v<T, Gex8u> && ax.num == 2 && ax.den == 1 && ay.num == 2 && ay.den == 1) {
        for (std::int64_t y = 0; y < h; ++y) {
            const auto* r0 = reinterpret_cast<const Gex8u*>(row_at(pSrc, srcStep, 2 * y));
            super::box2x2_8u<C>(r0, row_at(r0, srcStep, 1), reinterpret_cast<Gex8u*>(row_at(pDst, dstStep, y)), w);
        }
    } else {
        // Only columns reduce (a single unit row tap), or both.
        const float S = (h == sye) ? float(ax.den) / float(ax.num) : super::tile_scale(s);
        super::HPlan plan;
        super::hplan_init(plan, super::HPass{nullptr, sxe * C, offX, w, sx0, ax.pPos, ax.pCoef32f, ax.num,
                                             ax.den, kx, C, S});
        for (std::int64_t y = offY; y < offY + h;) {
            const std::int64_t end = std::min<std::int64_t>(offY + h, (y / ay.den + 1) * std::int64_t(ay.den));
            for (std::int64_t yy = y; yy < end; ++yy) {
                const std::int64_t ph = yy % ay.den;
                super::vsum_vec(pSrc, srcStep, (yy / ay.den) * std::int64_t(ay.num) - sy0, ay.pPos + ph * ky,
                                ay.pCoef32f + ph * ky, int(ky), accRows[yy - y], sxe * C);
            }
            for (std::int64_t yy = y; yy < end; ++yy)
                super::hplan_run(plan, accRows[yy - y], row_at(pDst, dstStep, yy - offY));
            y = end;
        }
    }
    return resize::run_status(s, width, height);
}

}  // namespace
}  // namespace gex

// ---- Init -----------------------------------------------------------------------

GEX_EXPORT(GexStatus, gexiResizeSuperInit_8u, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return init32(srcSize, dstSize, pSpec);
}
GEX_EXPORT(GexStatus, gexiResizeSuperInit_16u, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return gex::gexiResizeSuperInit_8u(srcSize, dstSize, pSpec);
}
GEX_EXPORT(GexStatus, gexiResizeSuperInit_16s, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return gex::gexiResizeSuperInit_8u(srcSize, dstSize, pSpec);
}
GEX_EXPORT(GexStatus, gexiResizeSuperInit_32f, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return gex::gexiResizeSuperInit_8u(srcSize, dstSize, pSpec);
}

// The size limit comes before the type test here, unlike the other _L Inits.
GEX_EXPORT(GexStatus, gexiResizeSuperInit_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec)) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(check_extents(srcSize.width, srcSize.height, dstSize.width, dstSize.height));
    if (srcSize.width >= kLimitL || srcSize.height >= kLimitL || dstSize.width >= kLimitL ||
        dstSize.height >= kLimitL)
        return gexStsExceededSize;
    if (dataType != gex8u && dataType != gex16u && dataType != gex16s && dataType != gex32f) return gexStsDataType;
    build_spec(srcSize.width, srcSize.height, dstSize.width, dstSize.height, pSpec, resize::kIdL);
    return gexStsOk;
}

// ---- runs -------------------------------------------------------------------------

#define GEX_SUPER_RUN(D, T, C)                                                                                     \
    GEX_EXPORT(GexStatus, gexiResizeSuper_##D##_C##C##R,                                                           \
               (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize,           \
                const GexiResizeSpec* pSpec, Gex8u* pBuffer)) {                                                    \
        return run<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize.width, dstSize.height,   \
                         pSpec, pBuffer, resize::IdTest::Id32);                                                    \
    }                                                                                                              \
    GEX_EXPORT(GexStatus, gexiResizeSuper_##D##_C##C##R_L,                                                         \
               (const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize,   \
                const GexiResizeSpec* pSpec, Gex8u* pBuffer)) {                                                    \
        return run<T, C>(pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize.width, dstSize.height,   \
                         pSpec, pBuffer, resize::IdTest::IdL);                                                     \
    }

#define GEX_SUPER_DEPTH(D, T) GEX_SUPER_RUN(D, T, 1) GEX_SUPER_RUN(D, T, 3) GEX_SUPER_RUN(D, T, 4)

GEX_SUPER_DEPTH(8u, Gex8u)
GEX_SUPER_DEPTH(16u, Gex16u)
GEX_SUPER_DEPTH(16s, Gex16s)
GEX_SUPER_DEPTH(32f, Gex32f)
