// Lanczos resize with two or three lobes: Inits (one record for every depth)
// and runs. The 32-bit Init tests the lobe count and the source's minimum
// only after writing the record's fields and positions; the _L Init tests
// everything first.
#include "frame/export.hpp"
#include "geometry/resize_init.hpp"
#include "geometry/resize_run.hpp"

GEX_EXPORT(GexStatus, gexiResizeLanczosInit_8u,
           (GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf)) {
    GEX_CHECK(check_null(pSpec, pInitBuf));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 1));
    return resize::init_lanczos(resize::dims_of(srcSize, dstSize), numLobes, resize::kId32, pSpec, pInitBuf);
}

#define GEX_LANCZOS_INIT_ALIAS(d)                                                                      \
    GEX_EXPORT(GexStatus, gexiResizeLanczosInit_##d,                                                   \
               (GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf)) { \
        return gex::gexiResizeLanczosInit_8u(srcSize, dstSize, numLobes, pSpec, pInitBuf);             \
    }
GEX_LANCZOS_INIT_ALIAS(16u)
GEX_LANCZOS_INIT_ALIAS(16s)
GEX_LANCZOS_INIT_ALIAS(32f)

GEX_EXPORT(GexStatus, gexiResizeLanczosInit_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, Gex32u numLobes, GexiResizeSpec* pSpec,
            Gex8u* pInitBuf)) {
    GEX_CHECK(check_null(pSpec, pInitBuf));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 1));
    if (numLobes != 2 && numLobes != 3) return gexStsNotSupportedMode;
    if (!resize::type_in(dataType, {gex8u, gex16u, gex16s, gex32f})) return gexStsDataType;
    if (srcSize.width < 2 * std::int64_t(numLobes) || srcSize.height < 2 * std::int64_t(numLobes)) return gexStsSize;
    GEX_CHECK(resize::check_large(srcSize, dstSize));
    return resize::init_lanczos(resize::dims_of(srcSize, dstSize), numLobes, resize::kIdL, pSpec, pInitBuf);
}

GEX_RESIZE_RUN_BORDER_C(Lanczos, resize::Kind::Lanczos, 8u, Gex8u)
GEX_RESIZE_RUN_BORDER_C(Lanczos, resize::Kind::Lanczos, 16u, Gex16u)
GEX_RESIZE_RUN_BORDER_C(Lanczos, resize::Kind::Lanczos, 16s, Gex16s)
GEX_RESIZE_RUN_BORDER_C(Lanczos, resize::Kind::Lanczos, 32f, Gex32f)
