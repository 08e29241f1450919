// The border model every neighbourhood operation shares.
//
// A border value (GexiBorderType) is a mode in bits 0..3 and in-memory flags
// in bits 4..7: 16 top, 32 bottom, 64 left, 128 right. A flagged side has its
// neighbours in memory and is read as it is; 240 (all four) needs no mode.
//
//   * check_border(): the one test every family puts after its pointer and
//     size checks, with the set of modes the family accepts.
//   * border_coord(): where a coordinate outside the ROI reads, for one axis:
//     the coordinate itself on a flagged side, the constant (mode 6), the
//     nearest edge (mode 1), or a reflection clamped at the far edge unless
//     the far side is flagged (3 without the edge pixel, 4 with it).
//   * border_pixel(): the same in two dimensions, the row settled first; and
//     the one-channel entry points getPx_8u, getPx_16s, getPx_32f.
//
// The border copies reflect periodically instead (see copy_border_kernels.hpp);
// the per-pixel rule here is the clamped one.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/pixel.hpp"
#include "gexdefs.h"

namespace gex {

// ---- the border test ---------------------------------------------------------------
// Bit m set: mode m (the low four bits of the border value) is accepted.
using BorderModes = std::uint16_t;

constexpr BorderModes border_mode_bit(int mode) { return static_cast<BorderModes>(1u << mode); }

// The families' sets. gexBorderMirrorR (4) belongs to none of them: it has a
// pixel rule and row helpers for use inside the library only.
inline constexpr BorderModes kBorderRepMirConst =
    border_mode_bit(gexBorderRepl) | border_mode_bit(gexBorderMirror) | border_mode_bit(gexBorderConst);
inline constexpr BorderModes kBorderRepConst = border_mode_bit(gexBorderRepl) | border_mode_bit(gexBorderConst);
inline constexpr BorderModes kBorderRep = border_mode_bit(gexBorderRepl);

inline constexpr int kBorderModeMask = 0x0f;
inline constexpr int kBorderFlagMask = 0xf0;

// gexStsBorder (-225) unless: the value, as an unsigned number, is at most
// 255, and it is exactly 240 or its mode is in `accepted` (with any flags).
// A value whose mode is 0 fails unless all four flags alone make it 240.
GexStatus check_border(int borderType, BorderModes accepted);

// ---- the per-pixel rule ------------------------------------------------------------
// What border_coord() returns when the constant is read.
inline constexpr std::int64_t kBorderConstant = std::numeric_limits<std::int64_t>::min();

// Coordinate t on an axis of n pixels (n >= 1). memLow: the side below 0 is in
// memory (top or left); memHigh: the side at n and above (bottom or right).
// Returns t itself inside [0, n) and on a flagged side; otherwise by mode:
// 6 the constant (kBorderConstant); 1 the nearest edge; 3 the reflection
// distance d = -t (t < 0) or t - (n - 1) (t >= n); 4 likewise with d = -t - 1
// or t - n; d is clamped to n - 1 unless the opposite side is flagged. Other
// modes are not accepted by any check and read the constant here.
std::int64_t border_coord(std::int64_t t, std::int64_t n, int mode, bool memLow, bool memHigh);

// Address of the pixel that (x, y) reads, relative to the ROI's first pixel
// `origin` (rows `step` bytes apart, pixels of `pixelBytes` bytes), or null
// when it is the constant. The row is settled first, the column on it next.
// The border value is mode | flags; exactly 240 reads memory at (x, y).
const void* border_pixel(const void* origin, std::int64_t step, std::int64_t width, std::int64_t height,
                         std::int64_t x, std::int64_t y, int mode, int flags, int pixelBytes);

template <class T>
inline const T* border_pixel(const T* origin, std::int64_t step, GexiSize roi, std::int64_t x, std::int64_t y,
                             int mode, int flags, int channels) {
    return static_cast<const T*>(border_pixel(origin, step, roi.width, roi.height, x, y, mode, flags,
                                              static_cast<int>(sizeof(T)) * channels));
}

// One-channel border-aware reads: the pixel (x, y) relative to the ROI's
// first pixel pSrc, or `constant` where the rule gives the constant.
Gex8u getPx_8u(const Gex8u* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
               Gex8u constant);
Gex16s getPx_16s(const Gex16s* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
                 Gex16s constant);
Gex32f getPx_32f(const Gex32f* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
                 Gex32f constant);

}  // namespace gex
