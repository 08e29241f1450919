// Linear resize: Inits (Q14 tables for 8u, float tables shared by 16u, 16s
// and 32f, double tables for 64f) and runs in every depth and channel count.
#include "frame/export.hpp"
#include "geometry/resize_init.hpp"
#include "geometry/resize_run.hpp"

namespace gex {
namespace {
GexStatus linear_init(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec, resize::LinearTable table) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 2));
    resize::init_linear(resize::dims_of(srcSize, dstSize), table, resize::kId32, pSpec);
    return gexStsOk;
}
}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiResizeLinearInit_8u, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return linear_init(srcSize, dstSize, pSpec, resize::LinearTable::Q14);
}
GEX_EXPORT(GexStatus, gexiResizeLinearInit_16u, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return linear_init(srcSize, dstSize, pSpec, resize::LinearTable::Float);
}
// A 16s or 32f record is a 16u record.
GEX_EXPORT(GexStatus, gexiResizeLinearInit_16s, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return gex::gexiResizeLinearInit_16u(srcSize, dstSize, pSpec);
}
GEX_EXPORT(GexStatus, gexiResizeLinearInit_32f, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return gex::gexiResizeLinearInit_16u(srcSize, dstSize, pSpec);
}
GEX_EXPORT(GexStatus, gexiResizeLinearInit_64f, (GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec)) {
    return linear_init(srcSize, dstSize, pSpec, resize::LinearTable::Double);
}

GEX_EXPORT(GexStatus, gexiResizeLinearInit_L,
           (GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec)) {
    GEX_CHECK(check_null(pSpec));
    GEX_CHECK(resize::check_init_sizes(srcSize, dstSize, 2));
    if (!resize::type_in(dataType, {gex8u, gex16u, gex16s, gex32f, gex64f})) return gexStsDataType;
    GEX_CHECK(resize::check_large(srcSize, dstSize));
    const auto table = dataType == gex8u    ? resize::LinearTable::Q14
                       : dataType == gex64f ? resize::LinearTable::Double
                                            : resize::LinearTable::Float;
    resize::init_linear(resize::dims_of(srcSize, dstSize), table, resize::kIdL, pSpec);
    return gexStsOk;
}

GEX_RESIZE_RUN_BORDER_C(Linear, resize::Kind::Linear, 8u, Gex8u)
GEX_RESIZE_RUN_BORDER_C(Linear, resize::Kind::Linear, 16u, Gex16u)
GEX_RESIZE_RUN_BORDER_C(Linear, resize::Kind::Linear, 16s, Gex16s)
GEX_RESIZE_RUN_BORDER_C(Linear, resize::Kind::Linear, 32f, Gex32f)
GEX_RESIZE_RUN_BORDER_C(Linear, resize::Kind::Linear, 64f, Gex64f)
