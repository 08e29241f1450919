// Bitwise logic: And, Or, Xor of two images, AndC, OrC, XorC of an image and
// a constant (one value per colour channel in C3, C4 and AC4), for 8u, 16u
// and 32s in C1, C3, C4 and AC4, out of place and in place; Not (8u), which is
// XorC with 255 in every channel.
// Checks, in this order: null pointers (the constant's array included), steps
// < 1 (-14), then the size. Every form tests its steps.
// The constant forms end in Copy or Set when the result is known without
// looking at the pixels (all written channels alike): And with all bits set,
// Or and Xor with 0 copy the source (nothing to do in place); And with 0 sets
// 0, Or with all bits set sets all bits. AC4 forms never read the source's
// fourth channel nor write the destination's.
#include <algorithm>
#include <cstdint>

#include "arith/logic_kernels.hpp"
#include "arith/unary.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"

namespace gex {

namespace {

namespace lk = logic_kernels;
using lk::Op;

template <class T, Op O, int Ch, bool AC4>
GexStatus logic_image(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                      GexiSize roi) {
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_steps(src1Step, src2Step, dstStep));
    GEX_CHECK(check_roi(roi));
    std::int64_t n = row_elems(roi, Ch);
    std::int64_t h = roi.height;
    const std::int64_t rowBytes = n * std::int64_t{sizeof(T)};
    if (src1Step == rowBytes && src2Step == rowBytes && dstStep == rowBytes) {
        n *= h;
        h = 1;
    }
    for (std::int64_t y = 0; y < h; ++y)
        lk::binary_row<O, AC4>(row_at(pSrc1, src1Step, y), row_at(pSrc2, src2Step, y), row_at(pDst, dstStep, y), n);
    return gexStsOk;
}

// What a constant does when all written channels hold v.
enum class Known { None, Copy, Zero, Ones };

template <class T, Op O>
Known known_result(T v) {
    const T ones = static_cast<T>(~T{0});
    if (O == Op::And) return v == 0 ? Known::Zero : v == ones ? Known::Copy : Known::None;
    if (O == Op::Or) return v == 0 ? Known::Copy : v == ones ? Known::Ones : Known::None;
    return v == 0 ? Known::Copy : Known::None;
}

template <class T, Op O, int Ch, bool AC4>
GexStatus logicc_image(const T* pSrc, int srcStep, const T* value, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, value, pDst));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_roi(roi));
    constexpr int written = AC4 ? 3 : Ch;
    if (std::all_of(value, value + written, [&](T v) { return v == value[0]; })) {
        switch (known_result<T, O>(value[0])) {
            case Known::Copy:
                if (pSrc == pDst && srcStep == dstStep) return gexStsOk;
                return copy_image<T, Ch, AC4>(pSrc, srcStep, pDst, dstStep, roi);
            case Known::Zero:
            case Known::Ones: return set_image<T, Ch, AC4>(value, pDst, dstStep, roi);
            case Known::None: break;
        }
    }
    const lk::Pattern p = lk::value_pattern<T>(value, Ch, AC4);
    return walk_rows(pSrc, srcStep, pDst, dstStep, row_elems(roi, Ch), roi.height,
                     [&p](const T* s, T* d, std::int64_t n) {
                         lk::const_row<O, AC4>(s, d, n, p);
                         return gexStsOk;
                     });
}

}  // namespace

}  // namespace gex

#define GEX_LOGIC2(B, OP, D, T, L, CH, AC4)                                                                \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##R,                                                          \
               (const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,          \
                GexiSize roiSize)) {                                                                       \
        return logic_image<T, OP, CH, AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);       \
    }                                                                                                      \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##IR,                                                         \
               (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roiSize)) {               \
        return logic_image<T, OP, CH, AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize); \
    }

#define GEX_LOGICC_C1(B, OP, D, T)                                                                         \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_C1R,                                                             \
               (const T* pSrc, int srcStep, T value, T* pDst, int dstStep, GexiSize roiSize)) {            \
        return logicc_image<T, OP, 1, false>(pSrc, srcStep, &value, pDst, dstStep, roiSize);               \
    }                                                                                                      \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_C1IR, (T value, T * pSrcDst, int srcDstStep, GexiSize roiSize)) { \
        return logicc_image<T, OP, 1, false>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roiSize);   \
    }
#define GEX_LOGICC_N(B, OP, D, T, L, CH, AC4, NV)                                                          \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##R,                                                          \
               (const T* pSrc, int srcStep, const T value[NV], T* pDst, int dstStep, GexiSize roiSize)) {  \
        return logicc_image<T, OP, CH, AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);                 \
    }                                                                                                      \
    GEX_EXPORT(GexStatus, gexi##B##_##D##_##L##IR,                                                         \
               (const T value[NV], T* pSrcDst, int srcDstStep, GexiSize roiSize)) {                        \
        return logicc_image<T, OP, CH, AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);     \
    }

#define GEX_LOGIC_DEPTH(B, OP, D, T)                  \
    GEX_LOGIC2(B, OP, D, T, C1, 1, false)             \
    GEX_LOGIC2(B, OP, D, T, C3, 3, false)             \
    GEX_LOGIC2(B, OP, D, T, C4, 4, false)             \
    GEX_LOGIC2(B, OP, D, T, AC4, 4, true)             \
    GEX_LOGICC_C1(B##C, OP, D, T)                     \
    GEX_LOGICC_N(B##C, OP, D, T, C3, 3, false, 3)     \
    GEX_LOGICC_N(B##C, OP, D, T, C4, 4, false, 4)     \
    GEX_LOGICC_N(B##C, OP, D, T, AC4, 4, true, 3)

#define GEX_LOGIC(B, OP)                      \
    GEX_LOGIC_DEPTH(B, OP, 8u, Gex8u)         \
    GEX_LOGIC_DEPTH(B, OP, 16u, Gex16u)       \
    GEX_LOGIC_DEPTH(B, OP, 32s, Gex32s)

GEX_LOGIC(And, Op::And)
GEX_LOGIC(Or, Op::Or)
GEX_LOGIC(Xor, Op::Xor)

// Not: XorC with 255 in every channel, through the XorC wrappers (same checks).
namespace {
constexpr Gex8u kAllOnes[4] = {255, 255, 255, 255};
}

GEX_EXPORT(GexStatus, gexiNot_8u_C1R, (const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize)) {
    return gex::gexiXorC_8u_C1R(pSrc, srcStep, 255, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiNot_8u_C1IR, (Gex8u * pSrcDst, int srcDstStep, GexiSize roiSize)) {
    return gex::gexiXorC_8u_C1IR(255, pSrcDst, srcDstStep, roiSize);
}
#define GEX_NOT(L)                                                                                                \
    GEX_EXPORT(GexStatus, gexiNot_8u_##L##R,                                                                      \
               (const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize)) {                    \
        return gex::gexiXorC_8u_##L##R(pSrc, srcStep, kAllOnes, pDst, dstStep, roiSize);                          \
    }                                                                                                             \
    GEX_EXPORT(GexStatus, gexiNot_8u_##L##IR, (Gex8u * pSrcDst, int srcDstStep, GexiSize roiSize)) {              \
        return gex::gexiXorC_8u_##L##IR(kAllOnes, pSrcDst, srcDstStep, roiSize);                                  \
    }
GEX_NOT(C3)
GEX_NOT(C4)
GEX_NOT(AC4)
