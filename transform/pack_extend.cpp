// PackToCplxExtend, CplxExtendToPack: the Pack layout and the full W x H
// conjugate-symmetric complex spectrum F(u, v), F(H-u, W-v) = conj F(u, v).
//
// PackToCplxExtend writes every entry: the non-redundant ones from the Pack,
// their mirrors conjugated at the same time. CplxExtendToPack reads only the
// non-redundant entries of the source and neither tests nor forces symmetry.
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "transform/pack_layout.hpp"

namespace gex {
namespace {

template <int C>
GexStatus extend_to_pack(const Gex32fc* pSrc, int srcStep, GexiSize size, Gex32f* pDst, int dstStep) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(size));
    GEX_CHECK(check_steps(srcStep, dstStep));
    const int W = size.width, H = size.height;
    for (int ch = 0; ch < C; ++ch) {
        auto P = [&](int r, int c) -> Gex32f& { return row_at(pDst, dstStep, r)[std::int64_t{c} * C + ch]; };
        auto F = [&](int u, int v) { return row_at(pSrc, srcStep, u)[std::int64_t{v} * C + ch]; };
        pack::for_each_entry(W, H, [&](const pack::Entry& e) {
            const Gex32fc v = F(e.u, e.v);
            P(e.r1, e.c1) = v.re;
            if (!e.real) P(e.r2, e.c2) = v.im;
        });
    }
    return gexStsOk;
}

}  // namespace
}  // namespace gex

GEX_EXPORT(GexStatus, gexiCplxExtendToPack_32fc32f_C1R,
           (const Gex32fc* pSrc, int srcStep, GexiSize srcSize, Gex32f* pDst, int dstStep)) {
    return extend_to_pack<1>(pSrc, srcStep, srcSize, pDst, dstStep);
}
GEX_EXPORT(GexStatus, gexiCplxExtendToPack_32fc32f_C3R,
           (const Gex32fc* pSrc, int srcStep, GexiSize srcSize, Gex32f* pDst, int dstStep)) {
    return extend_to_pack<3>(pSrc, srcStep, srcSize, pDst, dstStep);
}
GEX_EXPORT(GexStatus, gexiPackToCplxExtend_32f32fc_C1R,
           (const Gex32f* pSrc, GexiSize srcSize, int srcStep, Gex32fc* pDst, int dstStep)) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(srcSize));
    GEX_CHECK(check_steps(srcStep, dstStep));
    const int W = srcSize.width, H = srcSize.height;
    for (int y = 0; y < H; ++y) pack::extend_row(pSrc, srcStep, W, H, y, 1, 0, row_at(pDst, dstStep, y), 1);
    return gexStsOk;
}
