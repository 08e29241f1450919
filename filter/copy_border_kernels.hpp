// The border-copy engine: one source ROI of W x H pixels into a destination of
// DW x DH pixels with the ROI at (left, top), every pixel outside it given by
// the kind of border. All four export families, the 64-bit forms and the
// strip scheme of the filters run on it.
//
// Index rules (u, v relative to the ROI's first pixel; n the ROI's extent):
//   Const      the constant
//   Replicate  clamp(t, 0, n - 1)
//   Mirror     M(t, n): 0 when n = 1; otherwise the period is p = 2n - 2,
//              r = t mod p in [0, p), and M = r for r < n, p - r otherwise:
//              a border wider than the ROI keeps reflecting to and fro
//   MirrorR    the same with the edge pixel repeated: p = 2n, M = r for
//              r < n, p - 1 - r otherwise (internal only, no export)
//   Wrap       t mod n with a non-negative remainder
//
// How rows are made. Out of place: for each ROI row, the interior goes through
// the copy engine's row kernels (non-temporal above the copy engine's volume
// rule), then the left and right borders are written from the source row;
// the rows above and below are then copies of completed destination rows
// (Const: pattern fills). In place: the sides of every ROI row first, then
// the rows above and below as copies of completed rows, nearest first (top
// rows from the first ROI row, bottom rows from the last, mirror rows from
// their reflected ROI row, wrap rows from the row n above or below), so no
// row is read before it is complete.
//
// Sides. Replicate and Const store one pixel repeated: the pixel broadcast to
// the four 128-bit lanes and spread with a byte shuffle into the three
// vectors of lcm(pixel, 64) bytes, written with masked stores (the AC4 mask
// leaves the fourth channel). Mirror and Wrap sides are runs of at most n
// pixels, copied forward with the copy engine's row kernels or reversed with
// Mirror's reversal kernels (512-bit unit permutes for 1, 2, 4, 8, 16-byte
// pixels, three merged masked loads per vector for three-channel pixels).
//
// AC4: the fourth channel of the destination is never written, in the border
// or the interior, and the source's fourth channel is never loaded.
#pragma once

#include <cstdint>

namespace gex::border_copy {

enum class Kind { Const, Replicate, Mirror, MirrorR, Wrap };

struct Format {
    int E;      // element bytes: 1, 2, 4
    int ch;     // channels: 1, 3, 4
    bool ac4;   // four channels, the fourth left alone
    int pixel() const { return E * ch; }
};

// The source index of coordinate t on an axis of n pixels (Const: t itself
// inside, -1 outside).
std::int64_t map_index(Kind kind, std::int64_t t, std::int64_t n);

// Out of place. `constant` points at one value per written channel (Const only).
// The destination is DW x DH with DW >= W + left and DH >= H + top; source
// and destination must not overlap.
void copy_border(const void* src, std::int64_t srcStep, std::int64_t W, std::int64_t H, void* dst,
                 std::int64_t dstStep, std::int64_t DW, std::int64_t DH, std::int64_t top, std::int64_t left,
                 Kind kind, Format f, const void* constant);

// In place: `roi` is the ROI's first pixel inside the DW x DH image whose
// origin lies `top` rows above and `left` pixels left of it.
void copy_border_inplace(void* roi, std::int64_t step, std::int64_t W, std::int64_t H, std::int64_t DW,
                         std::int64_t DH, std::int64_t top, std::int64_t left, Kind kind, Format f,
                         const void* constant);

// The scalar twin of copy_border (element by element from map_index), the
// reference the tests compare the vector paths with.
void copy_border_ref(const void* src, std::int64_t srcStep, std::int64_t W, std::int64_t H, void* dst,
                     std::int64_t dstStep, std::int64_t DW, std::int64_t DH, std::int64_t top, std::int64_t left,
                     Kind kind, Format f, const void* constant);

// Row pieces, exposed for the tests.
// out[i] = row[map_index(kind, u0 + i, W)] for i in [0, count) (not Const).
void border_run(const std::uint8_t* row, std::uint8_t* out, std::int64_t u0, std::int64_t count, std::int64_t W,
                Kind kind, Format f);
// `count` copies of the pixel at px (the fourth channel skipped with AC4).
void splat_pixels(const std::uint8_t* px, std::uint8_t* out, std::int64_t count, Format f);

}  // namespace gex::border_copy
