// Div and DivC: 8u, 16u, 16s with a scale factor, 32f without; C1, C3, C4,
// AC4, in place, and the _L forms. 128 exports, and the gexs primitives.
//
// Div: dst = src2 / src1 (in place: srcDst / src). Checks null, size, then
// steps (< 1: -14) for 8u, 16s and 32f; 16u checks null and size only and
// takes any step. C3 and C4 fold to C1 (width < 1 first, then the C1 checks).
// A zero divisor never fails: the row goes on and the call returns
// gexStsDivByZeroWarn (6) with the results written.
//
// DivC: dst = src / value. Checks null, size, steps, then a zero value
// (gexStsDivByZero, -10, nothing written); for C3 and AC4 any of the three
// values, for C4 any of the four. gexiDivC_16u_C1RSfs is the exception: it
// checks the source pointer, then takes its short paths (a factor above 16
// with a non-zero value fills the destination with 0, factor 0 with value 1
// copies; Set and Copy do the remaining checks), and checks no step.
//
// Rows without gaps are worked on as one row.
#include "arith/div.hpp"

#include <cstdint>
#include <type_traits>

#include "arith/div_kernels.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/large.hpp"
#include "frame/pixel.hpp"

// The wrappers that the short paths of gexiDivC_16u_C1RSfs call.
GEX_USE(gexiSet_16u_C1R)
GEX_USE(gexiCopy_16u_C1R)

namespace gex {

namespace {

namespace dk = div_kernels;

constexpr std::int64_t kMergeBelow = 0x7fffffff;

// ---- row dispatch by depth ----------------------------------------------------------

template <class T>
bool div_row(const T* d, const T* n, T* o, std::int64_t len, int s, bool ac4) {
    if constexpr (std::is_same_v<T, Gex8u>) return dk::div_row_8u(d, n, o, len, s, ac4);
    else if constexpr (std::is_same_v<T, Gex32f>) return dk::div_row_32f(d, n, o, len, ac4);
    else return dk::div_row_16<T>(d, n, o, len, s, ac4);
}

template <class T>
void divc_row(const T* src, T* dst, std::int64_t len, const dk::DivCPlan<T>& plan) {
    if constexpr (std::is_same_v<T, Gex8u>) dk::divc_row_8u(src, dst, len, plan);
    else if constexpr (std::is_same_v<T, Gex32f>) dk::divc_row_32f(src, dst, len, plan);
    else dk::divc_row_16<T>(src, dst, len, plan);
}

// The row loop: elems elements a row; rows without gaps become one row.
template <class T, class Row>
GexStatus div_rows(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi,
                   int elems, Row row) {
    std::int64_t n = std::int64_t{roi.width} * elems;
    std::int64_t h = roi.height;
    const std::int64_t rowBytes = n * std::int64_t{sizeof(T)};
    if (src1Step == rowBytes && src2Step == rowBytes && dstStep == rowBytes && n * h < kMergeBelow) {
        n *= h;
        h = 1;
    }
    bool zero = false;
    for (std::int64_t y = 0; y < h; ++y)
        zero |= row(row_at(pSrc1, src1Step, y), row_at(pSrc2, src2Step, y), row_at(pDst, dstStep, y), n);
    return zero ? gexStsDivByZeroWarn : gexStsOk;
}

template <class T>
constexpr bool kDivChecksSteps = !std::is_same_v<T, Gex16u>;

// ---- Div --------------------------------------------------------------------------

template <class T, bool Ac4>
GexStatus div_two(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi,
                  int sf) {
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_roi(roi));
    if constexpr (kDivChecksSteps<T>) GEX_CHECK(check_steps(src1Step, src2Step, dstStep));
    return div_rows(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, Ac4 ? 4 : 1,
                    [sf](const T* d, const T* n, T* o, std::int64_t len) { return div_row<T>(d, n, o, len, sf, Ac4); });
}

template <class T, bool Ac4>
GexStatus div_inplace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roi, int sf) {
    GEX_CHECK(check_null(pSrc, pSrcDst));
    GEX_CHECK(check_roi(roi));
    if constexpr (kDivChecksSteps<T>) GEX_CHECK(check_steps(srcStep, srcDstStep));
    return div_rows(pSrc, srcStep, static_cast<const T*>(pSrcDst), srcDstStep, pSrcDst, srcDstStep, roi, Ac4 ? 4 : 1,
                    [sf](const T* d, const T* n, T* o, std::int64_t len) { return div_row<T>(d, n, o, len, sf, Ac4); });
}

// The width of a folded C3 or C4 call, a 32-bit product.
GexiSize folded(GexiSize roi, int channels) {
    return GexiSize{static_cast<int>(static_cast<unsigned>(roi.width) * static_cast<unsigned>(channels)), roi.height};
}

// ---- DivC -------------------------------------------------------------------------

template <class T>
GexStatus divc_run(const T* pSrc, int srcStep, const T* values, T* pDst, int dstStep, GexiSize roi, int sf,
                   int channels, bool ac4) {
    const dk::DivCPlan<T> plan = dk::make_divc_plan(values, channels, ac4, sf);
    return div_rows(pSrc, srcStep, pSrc, srcStep, pDst, dstStep, roi, ac4 ? 4 : channels,
                    [&plan](const T* s, const T*, T* o, std::int64_t len) {
                        divc_row<T>(s, o, len, plan);
                        return false;
                    });
}

constexpr GexStatus check_values(bool anyZero) { return anyZero ? gexStsDivByZero : gexStsOk; }

template <class T, int Channels, bool Ac4>
GexStatus divc(const T* pSrc, int srcStep, const T* values, T* pDst, int dstStep, GexiSize roi, int sf) {
    GEX_CHECK(check_null(pSrc, values, pDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcStep, dstStep));
    GEX_CHECK(check_values(dk::divc_any_zero(values, Channels)));
    return divc_run(pSrc, srcStep, values, pDst, dstStep, roi, sf, Channels, Ac4);
}

template <class T, int Channels, bool Ac4>
GexStatus divc_inplace(const T* values, T* pSrcDst, int srcDstStep, GexiSize roi, int sf) {
    GEX_CHECK(check_null(values, pSrcDst));
    GEX_CHECK(check_roi(roi));
    GEX_CHECK(check_steps(srcDstStep));
    GEX_CHECK(check_values(dk::divc_any_zero(values, Channels)));
    return divc_run(static_cast<const T*>(pSrcDst), srcDstStep, values, pSrcDst, srcDstStep, roi, sf, Channels, Ac4);
}

// ---- the primitives, by type (for the _L chunks) ------------------------------------

GexStatus gexs_div(const Gex8u* a, const Gex8u* b, Gex8u* o, int len, int sf) { return gexsDiv_8u_Sfs(a, b, o, len, sf); }
GexStatus gexs_div(const Gex16u* a, const Gex16u* b, Gex16u* o, int len, int sf) {
    return gexsDiv_16u_Sfs(a, b, o, len, sf);
}
GexStatus gexs_div(const Gex16s* a, const Gex16s* b, Gex16s* o, int len, int sf) {
    return gexsDiv_16s_Sfs(a, b, o, len, sf);
}
GexStatus gexs_div(const Gex32f* a, const Gex32f* b, Gex32f* o, int len, int) { return gexsDiv_32f(a, b, o, len); }

GexStatus gexs_div_i(const Gex8u* a, Gex8u* b, int len, int sf) { return gexsDiv_8u_ISfs(a, b, len, sf); }
GexStatus gexs_div_i(const Gex16u* a, Gex16u* b, int len, int sf) { return gexsDiv_16u_ISfs(a, b, len, sf); }
GexStatus gexs_div_i(const Gex16s* a, Gex16s* b, int len, int sf) { return gexsDiv_16s_ISfs(a, b, len, sf); }
GexStatus gexs_div_i(const Gex32f* a, Gex32f* b, int len, int) { return gexsDiv_32f_I(a, b, len); }

// ---- gexs bodies ----------------------------------------------------------------------

constexpr GexStatus check_len(int len) { return len < 1 ? gexStsSize : gexStsOk; }

template <class T>
GexStatus gexs_div_body(const T* pSrc1, const T* pSrc2, T* pDst, int len, int sf) {
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_len(len));
    return div_row<T>(pSrc1, pSrc2, pDst, len, sf, false) ? gexStsDivByZeroWarn : gexStsOk;
}

template <class T>
GexStatus gexs_divc_body(const T* pSrc, T val, T* pDst, int len, int sf) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_len(len));
    GEX_CHECK(check_values(val == 0));
    divc_row<T>(pSrc, pDst, len, dk::make_divc_plan(&val, 1, false, sf));
    return gexStsOk;
}

}  // namespace

GexStatus gexsDiv_8u_Sfs(const Gex8u* pSrc1, const Gex8u* pSrc2, Gex8u* pDst, int len, int scaleFactor) {
    return gexs_div_body(pSrc1, pSrc2, pDst, len, scaleFactor);
}
GexStatus gexsDiv_16u_Sfs(const Gex16u* pSrc1, const Gex16u* pSrc2, Gex16u* pDst, int len, int scaleFactor) {
    return gexs_div_body(pSrc1, pSrc2, pDst, len, scaleFactor);
}
GexStatus gexsDiv_16s_Sfs(const Gex16s* pSrc1, const Gex16s* pSrc2, Gex16s* pDst, int len, int scaleFactor) {
    return gexs_div_body(pSrc1, pSrc2, pDst, len, scaleFactor);
}
GexStatus gexsDiv_32f(const Gex32f* pSrc1, const Gex32f* pSrc2, Gex32f* pDst, int len) {
    return gexs_div_body(pSrc1, pSrc2, pDst, len, 0);
}
GexStatus gexsDiv_8u_ISfs(const Gex8u* pSrc, Gex8u* pSrcDst, int len, int scaleFactor) {
    return gexs_div_body<Gex8u>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
GexStatus gexsDiv_16u_ISfs(const Gex16u* pSrc, Gex16u* pSrcDst, int len, int scaleFactor) {
    return gexs_div_body<Gex16u>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
GexStatus gexsDiv_16s_ISfs(const Gex16s* pSrc, Gex16s* pSrcDst, int len, int scaleFactor) {
    return gexs_div_body<Gex16s>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
GexStatus gexsDiv_32f_I(const Gex32f* pSrc, Gex32f* pSrcDst, int len) {
    return gexs_div_body<Gex32f>(pSrc, pSrcDst, pSrcDst, len, 0);
}
GexStatus gexsDivC_8u_Sfs(const Gex8u* pSrc, Gex8u val, Gex8u* pDst, int len, int scaleFactor) {
    return gexs_divc_body(pSrc, val, pDst, len, scaleFactor);
}
GexStatus gexsDivC_16u_Sfs(const Gex16u* pSrc, Gex16u val, Gex16u* pDst, int len, int scaleFactor) {
    return gexs_divc_body(pSrc, val, pDst, len, scaleFactor);
}
GexStatus gexsDivC_16s_Sfs(const Gex16s* pSrc, Gex16s val, Gex16s* pDst, int len, int scaleFactor) {
    return gexs_divc_body(pSrc, val, pDst, len, scaleFactor);
}
GexStatus gexsDivC_32f(const Gex32f* pSrc, Gex32f val, Gex32f* pDst, int len) {
    return gexs_divc_body(pSrc, val, pDst, len, 0);
}
GexStatus gexsDivC_8u_ISfs(Gex8u val, Gex8u* pSrcDst, int len, int scaleFactor) {
    return gexs_divc_body<Gex8u>(pSrcDst, val, pSrcDst, len, scaleFactor);
}
GexStatus gexsDivC_16u_ISfs(Gex16u val, Gex16u* pSrcDst, int len, int scaleFactor) {
    return gexs_divc_body<Gex16u>(pSrcDst, val, pSrcDst, len, scaleFactor);
}
GexStatus gexsDivC_16s_ISfs(Gex16s val, Gex16s* pSrcDst, int len, int scaleFactor) {
    return gexs_divc_body<Gex16s>(pSrcDst, val, pSrcDst, len, scaleFactor);
}
GexStatus gexsDivC_32f_I(Gex32f val, Gex32f* pSrcDst, int len) {
    return gexs_divc_body<Gex32f>(pSrcDst, val, pSrcDst, len, 0);
}

}  // namespace gex

// ---- the exports ----------------------------------------------------------------------
// K selects the scale-factor tail of the argument lists: Sfs (an int
// scaleFactor last) or Flt (none, 32f).
#define GEX_SFP_Sfs , int scaleFactor
#define GEX_SFP_Flt
#define GEX_SFA_Sfs , scaleFactor
#define GEX_SFA_Flt
#define GEX_SFV_Sfs scaleFactor
#define GEX_SFV_Flt 0

#define GEX_DIV_A2(T, K) \
    (const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roiSize GEX_SFP_##K)
#define GEX_DIV_AI(T, K) (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roiSize GEX_SFP_##K)
#define GEX_DIV_A2L(T, K)                                                                                   \
    (const T* pSrc1, Gex64s src1Step, const T* pSrc2, Gex64s src2Step, T* pDst, Gex64s dstStep, GexiSizeL roiSize \
         GEX_SFP_##K)
#define GEX_DIV_AIL(T, K) \
    (const T* pSrc, Gex64s srcStep, T* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize GEX_SFP_##K)

// C3 and C4 hand over to C1 with width x channels.
#define GEX_DIV_FOLD(D, T, SUF, K, LAY, CH)                                                                    \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_##LAY##R##SUF, GEX_DIV_A2(T, K)) {                                     \
        GEX_CHECK(check_width(roiSize));                                                                       \
        return gex::gexiDiv_##D##_C1R##SUF(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, folded(roiSize, CH) \
                                               GEX_SFA_##K);                                                   \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_##LAY##IR##SUF, GEX_DIV_AI(T, K)) {                                    \
        GEX_CHECK(check_width(roiSize));                                                                       \
        return gex::gexiDiv_##D##_C1IR##SUF(pSrc, srcStep, pSrcDst, srcDstStep, folded(roiSize, CH) GEX_SFA_##K); \
    }

// _L of the two-operand C1, C3, C4 forms: chunks go to the gexs primitive.
#define GEX_DIV_L_PRIM(D, T, SUF, K, LAY, CH)                                                                       \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_##LAY##R##SUF##_L, GEX_DIV_A2L(T, K)) {                                     \
        GexiSize r;                                                                                                 \
        if (forward_if_small(roiSize, {src1Step, src2Step, dstStep}, int{sizeof(T)} * CH, r))                        \
            return gex::gexiDiv_##D##_##LAY##R##SUF(pSrc1, static_cast<int>(src1Step), pSrc2,                        \
                                                    static_cast<int>(src2Step), pDst, static_cast<int>(dstStep), r   \
                                                        GEX_SFA_##K);                                                \
        return large_by_primitive(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, CH,                     \
                                  large_chunk_pixels(sizeof(T), CH),                                                \
                                  [&](const T* a, const T* b, T* o, int len) {                                      \
                                      return gexs_div(a, b, o, len, GEX_SFV_##K);                                   \
                                  });                                                                               \
    }                                                                                                               \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_##LAY##IR##SUF##_L, GEX_DIV_AIL(T, K)) {                                    \
        GexiSize r;                                                                                                 \
        if (forward_if_small(roiSize, {srcStep, srcDstStep}, int{sizeof(T)} * CH, r))                               \
            return gex::gexiDiv_##D##_##LAY##IR##SUF(pSrc, static_cast<int>(srcStep), pSrcDst,                      \
                                                     static_cast<int>(srcDstStep), r GEX_SFA_##K);                  \
        return large_by_primitive_inplace(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, CH,                          \
                                          large_chunk_pixels(sizeof(T), CH),                                        \
                                          [&](const T* a, T* b, int len) {                                          \
                                              return gexs_div_i(a, b, len, GEX_SFV_##K);                            \
                                          });                                                                       \
    }

// _L of AC4: chunks go to the 32-bit AC4 wrapper, one row, steps 4.
#define GEX_DIV_L_AC4(D, T, SUF, K)                                                                             \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_AC4R##SUF##_L, GEX_DIV_A2L(T, K)) {                                     \
        GexiSize r;                                                                                             \
        if (forward_if_small(roiSize, {src1Step, src2Step, dstStep}, int{sizeof(T)} * 4, r))                     \
            return gex::gexiDiv_##D##_AC4R##SUF(pSrc1, static_cast<int>(src1Step), pSrc2,                        \
                                                static_cast<int>(src2Step), pDst, static_cast<int>(dstStep), r   \
                                                    GEX_SFA_##K);                                                \
        return large_by_wrapper(roiSize, 4, large_chunk_pixels(sizeof(T), 4),                                  \
                                [&](std::int64_t y, std::int64_t off, GexiSize one) {                            \
                                    return gex::gexiDiv_##D##_AC4R##SUF(row_at(pSrc1, src1Step, y) + off, 4,     \
                                                                        row_at(pSrc2, src2Step, y) + off, 4,     \
                                                                        row_at(pDst, dstStep, y) + off, 4,       \
                                                                        one GEX_SFA_##K);                        \
                                });                                                                             \
    }                                                                                                           \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_AC4IR##SUF##_L, GEX_DIV_AIL(T, K)) {                                    \
        GexiSize r;                                                                                             \
        if (forward_if_small(roiSize, {srcStep, srcDstStep}, int{sizeof(T)} * 4, r))                            \
            return gex::gexiDiv_##D##_AC4IR##SUF(pSrc, static_cast<int>(srcStep), pSrcDst,                      \
                                                 static_cast<int>(srcDstStep), r GEX_SFA_##K);                  \
        return large_by_wrapper(roiSize, 4, large_chunk_pixels(sizeof(T), 4),                                  \
                                [&](std::int64_t y, std::int64_t off, GexiSize one) {                            \
                                    return gex::gexiDiv_##D##_AC4IR##SUF(row_at(pSrc, srcStep, y) + off, 4,      \
                                                                         row_at(pSrcDst, srcDstStep, y) + off, 4, \
                                                                         one GEX_SFA_##K);                       \
                                });                                                                             \
    }

#define GEX_DIV_SET(D, T, SUF, K)                                                                            \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_C1R##SUF, GEX_DIV_A2(T, K)) {                                        \
        return div_two<T, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, GEX_SFV_##K);      \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_C1IR##SUF, GEX_DIV_AI(T, K)) {                                       \
        return div_inplace<T, false>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, GEX_SFV_##K);              \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_AC4R##SUF, GEX_DIV_A2(T, K)) {                                       \
        return div_two<T, true>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, GEX_SFV_##K);       \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiDiv_##D##_AC4IR##SUF, GEX_DIV_AI(T, K)) {                                      \
        return div_inplace<T, true>(pSrc, srcStep, pSrcDst, srcDstStep, roiSize, GEX_SFV_##K);               \
    }                                                                                                        \
    GEX_DIV_FOLD(D, T, SUF, K, C3, 3)                                                                        \
    GEX_DIV_FOLD(D, T, SUF, K, C4, 4)                                                                        \
    GEX_DIV_L_PRIM(D, T, SUF, K, C1, 1)                                                                      \
    GEX_DIV_L_PRIM(D, T, SUF, K, C3, 3)                                                                      \
    GEX_DIV_L_PRIM(D, T, SUF, K, C4, 4)                                                                      \
    GEX_DIV_L_AC4(D, T, SUF, K)

GEX_DIV_SET(8u, Gex8u, Sfs, Sfs)
GEX_DIV_SET(16u, Gex16u, Sfs, Sfs)
GEX_DIV_SET(16s, Gex16s, Sfs, Sfs)
GEX_DIV_SET(32f, Gex32f, , Flt)

// ---- DivC exports ----------------------------------------------------------------------

#define GEX_DIVC_A(T, V, K) \
    (const T* pSrc, int srcStep, V, T* pDst, int dstStep, GexiSize roiSize GEX_SFP_##K)
#define GEX_DIVC_AI(T, V, K) (V, T* pSrcDst, int srcDstStep, GexiSize roiSize GEX_SFP_##K)
#define GEX_DIVC_AL(T, V, K) \
    (const T* pSrc, Gex64s srcStep, V, T* pDst, Gex64s dstStep, GexiSizeL roiSize GEX_SFP_##K)
#define GEX_DIVC_AIL(T, V, K) (V, T* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize GEX_SFP_##K)

// VARG: how the value is handed on (value or &value); VP: as a pointer.
#define GEX_DIVC_L(D, T, SUF, K, LAY, V, VARG, CH)                                                            \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_##LAY##R##SUF##_L, GEX_DIVC_AL(T, V, K)) {                           \
        GexiSize r;                                                                                           \
        if (forward_if_small(roiSize, {srcStep, dstStep}, int{sizeof(T)} * CH, r))                             \
            return gex::gexiDivC_##D##_##LAY##R##SUF(pSrc, static_cast<int>(srcStep), VARG, pDst,               \
                                                     static_cast<int>(dstStep), r GEX_SFA_##K);                \
        return large_by_wrapper(roiSize, CH, large_chunk_pixels(sizeof(T), CH),                               \
                                [&](std::int64_t y, std::int64_t off, GexiSize one) {                          \
                                    return gex::gexiDivC_##D##_##LAY##R##SUF(row_at(pSrc, srcStep, y) + off, 4, \
                                                                             VARG,                             \
                                                                             row_at(pDst, dstStep, y) + off, 4, \
                                                                             one GEX_SFA_##K);                 \
                                });                                                                           \
    }                                                                                                         \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_##LAY##IR##SUF##_L, GEX_DIVC_AIL(T, V, K)) {                         \
        GexiSize r;                                                                                           \
        if (forward_if_small(roiSize, {srcDstStep}, int{sizeof(T)} * CH, r))                                   \
            return gex::gexiDivC_##D##_##LAY##IR##SUF(VARG, pSrcDst, static_cast<int>(srcDstStep),              \
                                                      r GEX_SFA_##K);                                          \
        return large_by_wrapper(roiSize, CH, large_chunk_pixels(sizeof(T), CH),                               \
                                [&](std::int64_t y, std::int64_t off, GexiSize one) {                          \
                                    return gex::gexiDivC_##D##_##LAY##IR##SUF(                                 \
                                        VARG, row_at(pSrcDst, srcDstStep, y) + off, 4, one GEX_SFA_##K);       \
                                });                                                                           \
    }

#define GEX_DIVC_MULTI(D, T, SUF, K, LAY, N, CH, AC4)                                                          \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_##LAY##R##SUF, GEX_DIVC_A(T, const T value[N], K)) {                  \
        return divc<T, N, AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize, GEX_SFV_##K);                     \
    }                                                                                                          \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_##LAY##IR##SUF, GEX_DIVC_AI(T, const T value[N], K)) {                \
        return divc_inplace<T, N, AC4>(value, pSrcDst, srcDstStep, roiSize, GEX_SFV_##K);                      \
    }                                                                                                          \
    GEX_DIVC_L(D, T, SUF, K, LAY, const T value[N], value, CH)

#define GEX_DIVC_C1_INPLACE(D, T, SUF, K)                                                                      \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_C1IR##SUF, GEX_DIVC_AI(T, T value, K)) {                              \
        return divc_inplace<T, 1, false>(&value, pSrcDst, srcDstStep, roiSize, GEX_SFV_##K);                   \
    }

#define GEX_DIVC_SET(D, T, SUF, K)                                                                             \
    GEX_DIVC_C1_INPLACE(D, T, SUF, K)                                                                          \
    GEX_DIVC_L(D, T, SUF, K, C1, T value, value, 1)                                                            \
    GEX_DIVC_MULTI(D, T, SUF, K, C3, 3, 3, false)                                                              \
    GEX_DIVC_MULTI(D, T, SUF, K, C4, 4, 4, false)                                                              \
    GEX_DIVC_MULTI(D, T, SUF, K, AC4, 3, 4, true)

#define GEX_DIVC_C1(D, T, SUF, K)                                                                              \
    GEX_EXPORT(GexStatus, gexiDivC_##D##_C1R##SUF, GEX_DIVC_A(T, T value, K)) {                                \
        return divc<T, 1, false>(pSrc, srcStep, &value, pDst, dstStep, roiSize, GEX_SFV_##K);                  \
    }

GEX_DIVC_C1(8u, Gex8u, Sfs, Sfs)
GEX_DIVC_C1(16s, Gex16s, Sfs, Sfs)
GEX_DIVC_C1(32f, Gex32f, , Flt)

// The 16u one-channel form: source pointer, the short paths, then the rest of
// the checks without a step check.
GEX_EXPORT(GexStatus, gexiDivC_16u_C1RSfs,
           (const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize,
            int scaleFactor)) {
    GEX_CHECK(check_null(pSrc));
    if (scaleFactor > 16 && value != 0) return gex::gexiSet_16u_C1R(0, pDst, dstStep, roiSize);
    if (scaleFactor == 0 && value == 1) return gex::gexiCopy_16u_C1R(pSrc, srcStep, pDst, dstStep, roiSize);
    GEX_CHECK(check_null(pDst));
    GEX_CHECK(check_roi(roiSize));
    GEX_CHECK(check_values(value == 0));
    return divc_run(pSrc, srcStep, &value, pDst, dstStep, roiSize, scaleFactor, 1, false);
}

GEX_DIVC_SET(8u, Gex8u, Sfs, Sfs)
GEX_DIVC_SET(16u, Gex16u, Sfs, Sfs)
GEX_DIVC_SET(16s, Gex16s, Sfs, Sfs)
GEX_DIVC_SET(32f, Gex32f, , Flt)
