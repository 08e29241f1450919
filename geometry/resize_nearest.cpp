// Nearest-neighbour resize: Inits (one record for every depth) and runs. The
// pixels are copied bit for bit, so 16s and 16u (and any equal-sized depths)
// move the same way.
#include "frame/export.hpp"
#include "geometry/resize_init.hpp"
#include "geometry/resize_run.hpp"

GEX_EXPORT(GexStatus, gexiResizeNearestInit_8u, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 1));
    resize::init_nearest(resize::dims_of(srcSize, dstSize), resize::kId32, pSpec);
    return gexStsOk;
}

#define GEX_NEAREST_INIT_ALIAS(d)                                                                       \
    GEX_EXPORT(GexStatus, gexiResizeNearestInit_##d, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) { \
        return gex::gexiResizeNearestInit_8u(srcSize, dstSize, pSpec);                                  \
    }
GEX_NEAREST_INIT_ALIAS(16u)
GEX_NEAREST_INIT_ALIAS(16s)
GEX_NEAREST_INIT_ALIAS(32f)

GEX_EXPORT(GexStatus, gexiResizeNearestInit_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec)) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 1));
    if (!resize::type_in(dataType, {gex8u, gex16u, gex16s, gex32f})) return gexStsDataType;
    GEX_CHECK(resize::check_large(srcSize, dstSize));
    resize::init_nearest(resize::dims_of(srcSize, dstSize), resize::kIdL, pSpec);
    return gexStsOk;
}

#define GEX_RESIZE_NEAREST(d, T, c, C)                                                                       \
    GEX_EXPORT(GexStatus, gexiResizeNearest_##d##_##c##R,                                                    \
               (const T* pSrc, Gex32s srcStep, T* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, \
                const GexiResizeSpec* pSpec, Gex8u* pBuffer)) {                                              \
        return resize::resize_run<T, C, resize::Kind::Nearest, false>(                                       \
            pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize.width, dstSize.height, 0, pSpec, \
            pBuffer);                                                                                        \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResizeNearest_##d##_##c##R_L,                                                  \
               (const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiPointL dstOffset,                \
                GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer)) {                           \
        return resize::resize_run<T, C, resize::Kind::Nearest, true>(                                        \
            pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize.width, dstSize.height, 0, pSpec, \
            pBuffer);                                                                                        \
    }
#define GEX_RESIZE_NEAREST_C(d, T) \
    GEX_RESIZE_NEAREST(d, T, C1, 1) GEX_RESIZE_NEAREST(d, T, C3, 3) GEX_RESIZE_NEAREST(d, T, C4, 4)

GEX_RESIZE_NEAREST_C(8u, Gex8u)
GEX_RESIZE_NEAREST_C(16u, Gex16u)
GEX_RESIZE_NEAREST_C(16s, Gex16s)
GEX_RESIZE_NEAREST_C(32f, Gex32f)
