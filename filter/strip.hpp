// The strip scheme: border handling as a step around an interior kernel.
//
// A filter supplies only an interior kernel that knows nothing of borders and
// reads its neighbours straight from memory:
//
//     kernel(const T* src, int srcStep, T* dst, int dstStep, GexiSize roi)
//
// src points at the source pixel under the first output pixel; the kernel
// reads ax columns left, ay rows up, rw columns right and rh rows down of
// every output pixel, with ax = (kw-1)>>1, ay = (kh-1)>>1, rw = kw-ax-1,
// rh = kh-ay-1 for a kw x kh mask. run_strips() then calls it on plain memory
// only:
//
//   1. The in-memory flags of the border value are the sides whose neighbours
//      are read from memory. A side with no reach is flagged too. With all four
//      flagged, the kernel runs once on the whole ROI and that is all.
//   2. A mask smaller than the ROI in both directions: up to four strips, in
//      the order top, bottom, left, right, each unless its side is flagged.
//      A strip is a small scratch image built by the border copy of the mode
//      (Replicate 1, Mirror 3, Const 6; MirrorR 4 inside the library) from
//      the source rows or columns next to the edge, with the real neighbours
//      on flagged sides; the kernel makes the strip's output from it.
//        top     (W+kw-1) x (ay+kh-1), gives output rows [0, ay)
//        bottom  (W+kw-1) x (rh+kh-1), gives the last rh rows
//        left    (ax+kw-1) x (rows+kh-1), gives columns [0, ax) of the rows left
//        right   (rw+kw-1) x (rows+kh-1), gives the last rw columns
//      The kernel then runs on what is left straight from the source. Strips
//      never overlap; a flagged side has no strip.
//      The general filter's rule (mirrorReach2): in mirror mode a mask
//      dimension of 2 makes the right strip (or the bottom strip) two pixels
//      wide, since a strip built from one column would reflect that column
//      onto itself; the border copied beside it stays one pixel.
//   3. Otherwise (the mask covers the ROI in a direction) the whole ROI, with
//      a border of ax, ay, rw, rh pixels on the unflagged sides and the real
//      neighbours on the flagged ones, is copied into scratch, and the kernel
//      runs once from there.
// Mirror reflects periodically here (the border copies' rule); for a strip the
// reflection never reaches the far edge of the rows it was built from, so it
// equals the per-pixel rule except where a one-pixel strip reflects onto
// itself (a mask dimension of 2 without mirrorReach2).
//
// Scratch: the caller's buffer, at least owngetSizeBufferOfBorders() bytes;
// the driver works at its address rounded up to 32 bytes, with rows of the
// scratch image packed (step = width x pixel bytes). AC4: the scratch's fourth
// channel is never written and the kernel must not use it.
#pragma once

#include <cstdint>
#include <type_traits>

#include "filter/border.hpp"
#include "filter/copy_border_kernels.hpp"
#include "gexdefs.h"

namespace gex {

// Bytes of border scratch for a kw x kh mask over a W x H ROI of `channels`
// channels of GexDataType dataType (1 byte for 8u, 2 for 16u and 16s, 4 for
// 32f, 1 for anything else). n pixels: (kw+W-1)*(kh+H-1) if kw >= W or
// kh >= H; otherwise, with rw and rh taken as 2 - ax, 2 - ay for a mask
// dimension of 2, top = (kw+W-1)*(kh+rh-1) if rh > 0 else 0, left =
// (kh+H-1)*(kw+rw-1), and n = top if rw <= 0, else the greater of the two.
// The result is ((c*n*s + 31) & ~31) + 32, alignment slack included.
std::int64_t owngetSizeBufferOfBorders(int kw, int kh, int W, int H, int dataType, int channels);

struct StripOptions {
    // gexiFilterBorder's rule: in mirror mode, with the mask smaller than the
    // ROI in both directions, a mask dimension of 2 reaches 2 on its far side.
    bool mirrorReach2 = false;
    // Always take the whole-ROI copy (the path of masks that cover the ROI);
    // for the tests, which compare it with the strips. Needs the larger
    // scratch (kw+W-1)*(kh+H-1) pixels.
    bool forceWholeCopy = false;
};

struct StripPlan {
    enum Path { InteriorOnly, Strips, WholeCopy };
    Path path;
    int ax, ay, rw, rh;        // reach of the mask: left, top, right, bottom
    int rwStrip, rhStrip;      // columns of the right strip, rows of the bottom strip
    int flags;                 // in-memory flags, zero-reach sides included
    border_copy::Kind kind;    // the border copy of the mode
    std::int64_t scratchPixels;  // the largest scratch image the plan builds
};

StripPlan plan_strips(int kw, int kh, GexiSize roi, int border, const StripOptions& opt = {});

// Bytes of scratch the plan needs from the caller's pointer on (alignment slack included).
std::int64_t strip_scratch_bytes(const StripPlan& plan, int pixelBytes);

// The type-erased kernel the driver calls.
struct StripKernel {
    void* ctx;
    void (*fn)(void* ctx, const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
               GexiSize roi);
};

void run_strips_bytes(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                      GexiSize roi, int kw, int kh, const StripPlan& plan, border_copy::Format f,
                      const void* constant, void* buffer, StripKernel kernel);

// The driver. `border` is the checked border value (mode | flags); `constant`
// points at one value per channel (three for AC4) and is read for mode 6 only.
template <class T, int CH, bool AC4 = false, class Kernel>
void run_strips(const T* src, int srcStep, T* dst, int dstStep, GexiSize roi, int kw, int kh, int border,
                const T* constant, void* buffer, Kernel&& kernel, const StripOptions& opt = {}) {
    static_assert(CH == 1 || CH == 3 || CH == 4, "pixels of 1, 3 or 4 channels");
    static_assert(!AC4 || CH == 4, "AC4 has four channels");
    const StripPlan plan = plan_strips(kw, kh, roi, border, opt);
    using K = std::remove_reference_t<Kernel>;
    StripKernel k{const_cast<void*>(static_cast<const void*>(&kernel)),
                  [](void* ctx, const std::uint8_t* s, std::int64_t ss, std::uint8_t* d, std::int64_t ds,
                     GexiSize r) {
                      (*static_cast<K*>(ctx))(reinterpret_cast<const T*>(s), static_cast<int>(ss),
                                              reinterpret_cast<T*>(d), static_cast<int>(ds), r);
                  }};
    run_strips_bytes(reinterpret_cast<const std::uint8_t*>(src), srcStep, reinterpret_cast<std::uint8_t*>(dst),
                     dstStep, roi, kw, kh, plan, border_copy::Format{static_cast<int>(sizeof(T)), CH, AC4},
                     constant, buffer, k);
}

}  // namespace gex
