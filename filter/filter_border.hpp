// The general border filter's record and private entry points.
//
// The record lives in the caller's block at its address rounded up to 64
// bytes: a 128-byte head (below), then the taps in the same memory:
//   * pTaps: the kernel reversed (last tap first), kw*kh values of 16-bit ints
//     for the integer kinds (0, 1, 2) or of floats for the float kinds (3..6);
//   * pTapsPairs (integer kinds): for every pair of reversed rows (2p, 2p+1)
//     and column i, one 32-bit word holding tap(2p, i) in its low half and
//     tap(2p+1, i) in its high half (0 past the last row), so that two rows are
//     multiplied and added in one step of a 16-bit multiply-add;
//   * pTapsBroadcast is not used by these kernels (null): taps are broadcast
//     from pTaps as they are read.
// The record carries no identifier: the runs and SetMode trust it, as the
// caller made it with an Init.
#pragma once

#include <cstddef>
#include <cstdint>

#include "gexfilter.h"

struct GexiFilterBorderSpec {
    std::int32_t kind;          // 0 8u/16-bit taps, 1 16s/16-bit, 2 16u/16-bit, 3 8u/float, 4 16s/float, 5 16u/float, 6 32f/float
    std::int32_t kernelWidth;
    std::int32_t kernelHeight;
    std::int32_t divisorKind;   // 0 divisor 1, 1 a power of two, 2 any other
    std::int32_t shift;
    std::int32_t roundHalf;
    float invDivisor;
    float divisorF;
    std::int32_t divisor;
    std::int32_t pad0;
    double divisorD;
    std::int32_t shiftMask;
    std::int32_t divisorRaw;
    std::int32_t roundMode;     // 0, 1, 2, + 16 for the exact conversion
    std::int32_t offset;
    float offsetScaled;
    std::int32_t hint;
    void* pTaps;
    void* pTapsPairs;
    void* pTapsBroadcast;
    std::int32_t tapsFit16;
    std::int32_t numChannels;
};

namespace gex {

using FilterBorderSpec = GexiFilterBorderSpec;

inline constexpr int kFilterBorderHead = 128;
inline constexpr int kAccurateFlag = 16;

static_assert(sizeof(FilterBorderSpec) <= kFilterBorderHead, "the record's head is 128 bytes");
static_assert(offsetof(FilterBorderSpec, divisorD) % 8 == 0, "divisorD is aligned");

inline FilterBorderSpec* record_at(void* p) {
    return reinterpret_cast<FilterBorderSpec*>((reinterpret_cast<std::uintptr_t>(p) + 63) & ~std::uintptr_t{63});
}
inline const FilterBorderSpec* record_at(const void* p) { return record_at(const_cast<void*>(p)); }

// The size of the kernel's scratch that the buffer query adds after the
// border scratch, before its own 63 bytes of slack (0 when v is 0).
std::int64_t filter_border_kernel_scratch(int kw, int kh, int W, int dataType, int kernelType, int channels);

}  // namespace gex
