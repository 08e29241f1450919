// MulPack, MulPackConj: element products of two spectra in the Pack layout.
//
// Walk of a W x H Pack per channel: the real entries P(0,0), P(0,W-1) (even
// W), P(H-1,0) and P(H-1,W-1) (even H) multiply as reals; the complex pairs
// along rows 0 and H-1 (even H) and the interior columns of every row multiply
// as complex values; columns 0 and W-1 (even W) hold one complex value across
// each row pair (2u-1, 2u), real part above, imaginary part below.
//
// MulPack: a * b with re = fma(b.re, a.re, -(a.im b.im)),
//                     im = fma(b.im, a.re, a.im b.re).
// MulPackConj: a * conj(b) with re = fma(b.re, a.re, a.im b.im),
//                               im = fma(a.im, b.re, -(b.im a.re)).
// AC4 rounds both products and then adds (no fused step) and leaves the
// destination's fourth channel alone. The in-place forms take a = pSrc,
// b = pSrcDst; MulPack with pSrc1 == pDst (equal steps) runs in place with the
// operands exchanged, since the product commutes.
#include <cmath>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"

namespace gex {
namespace {

struct Cx {
    float re, im;
};

template <bool CONJ, bool FUSED>
inline Cx product(Cx a, Cx b) {
    if constexpr (!CONJ) {
        if constexpr (FUSED) return {std::fma(b.re, a.re, -(a.im * b.im)), std::fma(b.im, a.re, a.im * b.re)};
        else return {b.re * a.re - a.im * b.im, b.im * a.re + a.im * b.re};
    } else {
        if constexpr (FUSED) return {std::fma(b.re, a.re, a.im * b.im), std::fma(a.im, b.re, -(b.im * a.re))};
        else return {b.re * a.re + a.im * b.im, a.im * b.re - b.im * a.re};
    }
}

template <class T>
inline T* at(T* base, int step, int r) {
    return row_at(base, step, r);
}

// One channel's walk. Element (r, c) of channel ch is at row r, float c*C+ch.
template <bool CONJ, bool FUSED, int C>
void walk(const Gex32f* a, int as, const Gex32f* b, int bs, Gex32f* d, int ds, int W, int H, int ch) {
    auto real = [&](int r, int c) {
        const std::int64_t o = std::int64_t{c} * C + ch;
        at(d, ds, r)[o] = at(a, as, r)[o] * at(b, bs, r)[o];
    };
    auto cplx = [&](int r1, int c1, int r2, int c2) {  // re at (r1, c1), im at (r2, c2)
        const std::int64_t o1 = std::int64_t{c1} * C + ch, o2 = std::int64_t{c2} * C + ch;
        const Cx x = {at(a, as, r1)[o1], at(a, as, r2)[o2]}, y = {at(b, bs, r1)[o1], at(b, bs, r2)[o2]};
        const Cx p = product<CONJ, FUSED>(x, y);
        at(d, ds, r1)[o1] = p.re;
        at(d, ds, r2)[o2] = p.im;
    };
    auto edge_row = [&](int r) {
        real(r, 0);
        if (W % 2 == 0 && W > 1) real(r, W - 1);
        for (int k = 1; 2 * k <= W - 1; ++k) cplx(r, 2 * k - 1, r, 2 * k);
    };
    edge_row(0);
    for (int r = 1; r + 1 <= H - 1; r += 2) {
        cplx(r, 0, r + 1, 0);
        if (W % 2 == 0 && W > 1) cplx(r, W - 1, r + 1, W - 1);
        for (int k = 1; 2 * k <= W - 1; ++k) {
            cplx(r, 2 * k - 1, r, 2 * k);
            cplx(r + 1, 2 * k - 1, r + 1, 2 * k);
        }
    }
    if (H % 2 == 0 && H > 1) edge_row(H - 1);
}

template <bool CONJ, int C, int NCH>
GexStatus mul_pack(const Gex32f* a, int as, const Gex32f* b, int bs, Gex32f* d, int ds, GexiSize roi) {
    GEX_CHECK(check_null(a, b, d));
    GEX_CHECK(check_steps(as, bs, ds));
    GEX_CHECK(check_roi(roi));
    constexpr bool fused = !(C == 4 && NCH == 3);
    for (int ch = 0; ch < NCH; ++ch) walk<CONJ, fused, C>(a, as, b, bs, d, ds, roi.width, roi.height, ch);
    return gexStsOk;
}

}  // namespace
}  // namespace gex

#define GEX_MULPACK(CH, C, NCH)                                                                                    \
    GEX_EXPORT(GexStatus, gexiMulPack_32f_##CH##IR,                                                                \
               (const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize)) {             \
        return mul_pack<false, C, NCH>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);          \
    }                                                                                                              \
    GEX_EXPORT(GexStatus, gexiMulPack_32f_##CH##R,                                                                 \
               (const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep,   \
                GexiSize roiSize)) {                                                                               \
        if (pSrc1 == pDst && src1Step == dstStep)                                                                  \
            return gex::gexiMulPack_32f_##CH##IR(pSrc2, src2Step, pDst, dstStep, roiSize);                         \
        if (pSrc2 == pDst && src2Step == dstStep)                                                                  \
            return gex::gexiMulPack_32f_##CH##IR(pSrc1, src1Step, pDst, dstStep, roiSize);                         \
        return mul_pack<false, C, NCH>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);                  \
    }                                                                                                              \
    GEX_EXPORT(GexStatus, gexiMulPackConj_32f_##CH##IR,                                                            \
               (const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize)) {             \
        return mul_pack<true, C, NCH>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);           \
    }                                                                                                              \
    GEX_EXPORT(GexStatus, gexiMulPackConj_32f_##CH##R,                                                             \
               (const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep,   \
                GexiSize roiSize)) {                                                                               \
        if (pSrc2 == pDst && src2Step == dstStep)                                                                  \
            return gex::gexiMulPackConj_32f_##CH##IR(pSrc1, src1Step, pDst, dstStep, roiSize);                     \
        return mul_pack<true, C, NCH>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);                   \
    }

GEX_MULPACK(C1, 1, 1)
GEX_MULPACK(C3, 3, 3)
GEX_MULPACK(C4, 4, 4)
GEX_MULPACK(AC4, 4, 3)
