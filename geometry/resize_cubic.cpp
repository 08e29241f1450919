// Two-parameter cubic resize: Inits (one record for every depth; the Init
// buffer holds the fractions while the weights are built) and runs.
#include "frame/export.hpp"
#include "geometry/resize_init.hpp"
#include "geometry/resize_run.hpp"

GEX_EXPORT(GexStatus, gexiResizeCubicInit_8u,
           (GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec,
            Gex8u* pInitBuf)) {
    GEX_CHECK(check_null(pSpec, pInitBuf));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 4));
    resize::init_cubic(resize::dims_of(srcSize, dstSize), valueB, valueC, resize::kId32, pSpec, pInitBuf);
    return gexStsOk;
}

#define GEX_CUBIC_INIT_ALIAS(d)                                                                   \
    GEX_EXPORT(GexStatus, gexiResizeCubicInit_##d,                                                \
               (GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, \
                Gex8u* pInitBuf)) {                                                               \
        return gex::gexiResizeCubicInit_8u(srcSize, dstSize, valueB, valueC, pSpec, pInitBuf);    \
    }
GEX_CUBIC_INIT_ALIAS(16u)
GEX_CUBIC_INIT_ALIAS(16s)
GEX_CUBIC_INIT_ALIAS(32f)

GEX_EXPORT(GexStatus, gexiResizeCubicInit_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, Gex32f valueB, Gex32f valueC,
            GexiResizeSpec* pSpec, Gex8u* pInitBuf)) {
    GEX_CHECK(check_null(pSpec, pInitBuf));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 4));
    if (!resize::type_in(dataType, {gex8u, gex16u, gex16s, gex32f})) return gexStsDataType;
    GEX_CHECK(resize::check_large(srcSize, dstSize));
    resize::init_cubic(resize::dims_of(srcSize, dstSize), valueB, valueC, resize::kIdL, pSpec, pInitBuf);
    return gexStsOk;
}

GEX_RESIZE_RUN_BORDER_C(Cubic, resize::Kind::Cubic, 8u, Gex8u)
GEX_RESIZE_RUN_BORDER_C(Cubic, resize::Kind::Cubic, 16u, Gex16u)
GEX_RESIZE_RUN_BORDER_C(Cubic, resize::Kind::Cubic, 16s, Gex16s)
GEX_RESIZE_RUN_BORDER_C(Cubic, resize::Kind::Cubic, 32f, Gex32f)
