// Depth conversion as other families use it.
//
// * The checking wrappers gex::gexiConvert_... (declared below), for families
//   whose short path is a plain conversion (ScaleC with an identity map).
// * Row helpers that run one row of n elements through the same kernels,
//   without checks, for families that convert inside their own row loops.
#pragma once

#include <cstdint>

#include "frame/export.hpp"
#include "gexdata.h"

namespace gex {

// One row of n elements, as gexiConvert_<S><D>_C1R converts (or the Rs form
// for a signed source and an unsigned destination): exact widening,
// saturating narrowing, nearest binary32. Instantiated for the pairs of the
// Convert family, plus 8u8s, 16s8s, 16u8s, 16u16s, 32s16s and 32s16u.
template <class S, class D>
void convert_row(const S* src, D* dst, std::int64_t n);

// One row of n 32f elements into 8u, 8s, 16u, 16s, 32s or 32u, rounded by
// roundMode (0 toward zero, 1 nearest even, other values nearest away) and
// saturated; NaN gives the destination's minimum (0xFFFFFFFF for 32u).
template <class D>
void convert_row_32f(const Gex32f* src, D* dst, std::int64_t n, int roundMode);


GEX_DECLARE_IMPL(gexiConvert_8u16u_C1R)
GEX_DECLARE_IMPL(gexiConvert_8u16u_C3R)
GEX_DECLARE_IMPL(gexiConvert_8u16u_C4R)
GEX_DECLARE_IMPL(gexiConvert_8u16u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8u16s_C1R)
GEX_DECLARE_IMPL(gexiConvert_8u16s_C3R)
GEX_DECLARE_IMPL(gexiConvert_8u16s_C4R)
GEX_DECLARE_IMPL(gexiConvert_8u16s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8u32s_C1R)
GEX_DECLARE_IMPL(gexiConvert_8u32s_C3R)
GEX_DECLARE_IMPL(gexiConvert_8u32s_C4R)
GEX_DECLARE_IMPL(gexiConvert_8u32s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8u32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_8u32f_C3R)
GEX_DECLARE_IMPL(gexiConvert_8u32f_C4R)
GEX_DECLARE_IMPL(gexiConvert_8u32f_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8s32s_C1R)
GEX_DECLARE_IMPL(gexiConvert_8s32s_C3R)
GEX_DECLARE_IMPL(gexiConvert_8s32s_C4R)
GEX_DECLARE_IMPL(gexiConvert_8s32s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8s32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_8s32f_C3R)
GEX_DECLARE_IMPL(gexiConvert_8s32f_C4R)
GEX_DECLARE_IMPL(gexiConvert_8s32f_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16u32s_C1R)
GEX_DECLARE_IMPL(gexiConvert_16u32s_C3R)
GEX_DECLARE_IMPL(gexiConvert_16u32s_C4R)
GEX_DECLARE_IMPL(gexiConvert_16u32s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16u32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_16u32f_C3R)
GEX_DECLARE_IMPL(gexiConvert_16u32f_C4R)
GEX_DECLARE_IMPL(gexiConvert_16u32f_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16s32s_C1R)
GEX_DECLARE_IMPL(gexiConvert_16s32s_C3R)
GEX_DECLARE_IMPL(gexiConvert_16s32s_C4R)
GEX_DECLARE_IMPL(gexiConvert_16s32s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16s32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_16s32f_C3R)
GEX_DECLARE_IMPL(gexiConvert_16s32f_C4R)
GEX_DECLARE_IMPL(gexiConvert_16s32f_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16u8u_C1R)
GEX_DECLARE_IMPL(gexiConvert_16u8u_C3R)
GEX_DECLARE_IMPL(gexiConvert_16u8u_C4R)
GEX_DECLARE_IMPL(gexiConvert_16u8u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_16s8u_C1R)
GEX_DECLARE_IMPL(gexiConvert_16s8u_C3R)
GEX_DECLARE_IMPL(gexiConvert_16s8u_C4R)
GEX_DECLARE_IMPL(gexiConvert_16s8u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_32s8u_C1R)
GEX_DECLARE_IMPL(gexiConvert_32s8u_C3R)
GEX_DECLARE_IMPL(gexiConvert_32s8u_C4R)
GEX_DECLARE_IMPL(gexiConvert_32s8u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_32s8s_C1R)
GEX_DECLARE_IMPL(gexiConvert_32s8s_C3R)
GEX_DECLARE_IMPL(gexiConvert_32s8s_C4R)
GEX_DECLARE_IMPL(gexiConvert_32s8s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8s16s_C1R)
GEX_DECLARE_IMPL(gexiConvert_16u32u_C1R)
GEX_DECLARE_IMPL(gexiConvert_32s32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_32u32f_C1R)
GEX_DECLARE_IMPL(gexiConvert_8s64f_C1R)
GEX_DECLARE_IMPL(gexiConvert_32f8u_C1R)
GEX_DECLARE_IMPL(gexiConvert_32f8u_C3R)
GEX_DECLARE_IMPL(gexiConvert_32f8u_C4R)
GEX_DECLARE_IMPL(gexiConvert_32f8u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_32f8s_C1R)
GEX_DECLARE_IMPL(gexiConvert_32f8s_C3R)
GEX_DECLARE_IMPL(gexiConvert_32f8s_C4R)
GEX_DECLARE_IMPL(gexiConvert_32f8s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_32f16u_C1R)
GEX_DECLARE_IMPL(gexiConvert_32f16u_C3R)
GEX_DECLARE_IMPL(gexiConvert_32f16u_C4R)
GEX_DECLARE_IMPL(gexiConvert_32f16u_AC4R)
GEX_DECLARE_IMPL(gexiConvert_32f16s_C1R)
GEX_DECLARE_IMPL(gexiConvert_32f16s_C3R)
GEX_DECLARE_IMPL(gexiConvert_32f16s_C4R)
GEX_DECLARE_IMPL(gexiConvert_32f16s_AC4R)
GEX_DECLARE_IMPL(gexiConvert_8s8u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_8s16u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_8s32u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_16s16u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_16s32u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_32s32u_C1Rs)
GEX_DECLARE_IMPL(gexiConvert_8u8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_16s8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_16u8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_16u16s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f8u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f16u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f16s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f32s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f32u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32s16s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32s16u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32u8u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32u8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32u16u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32u16s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32u32s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_64f8u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_64f8s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_64f16u_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_64f16s_C1RSfs)
GEX_DECLARE_IMPL(gexiConvert_32f32u_C1IRSfs)

#undef GEX_CONVERT_DECLARE

}  // namespace gex
