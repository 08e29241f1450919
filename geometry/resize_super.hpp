// Super-sampling resize: the periodic kernel, the vertical sums and the
// horizontal passes shared by the runs, and their scalar twins.
//
// A reduced ratio num / den maps num source pixels on den destination pixels;
// each of the den phases has k taps (positions relative to the start of the
// period, and weights). A run sums its source rows into float accumulator
// rows first (vertical), then combines taps along each accumulator row
// (horizontal), scales by S and stores with ties to even and saturation.
#pragma once

#include <cstdint>

#include "geometry/resize.hpp"

namespace gex {

// Fills den rows of k positions (0 .. num - 1) and k float weights: the
// covered share of each source pixel of a phase's box; weights not above 1e-7
// are 0, and short rows are padded with a zero-weight tap.
void ownSuperKernel(std::uint32_t num, std::uint32_t den, std::uint32_t k, std::int32_t* pPos, float* pCoef);

namespace super {

// The scale factor of a tile that reduces both axes.
float tile_scale(const resize::Record* s);

// ---- vertical ---------------------------------------------------------------
// One destination row's sum over its k source rows: row j is
// src + (rowBase + pos[j]) x srcStep; n elements from each row's start.
// Zero weights are skipped, unit weights added, others fused.
template <class T>
void vsum_ref(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
              int k, float* acc, std::int64_t n);
template <class T>
void vsum_vec(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
              int k, float* acc, std::int64_t n);
// The same sum scaled by S and stored: the path of tiles whose width needs no
// resampling.
template <class T>
void vonly_ref(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
               int k, float S, T* dst, std::int64_t n);
template <class T>
void vonly_vec(const T* src, std::int64_t srcStep, std::int64_t rowBase, const std::int32_t* pos, const float* w,
               int k, float S, T* dst, std::int64_t n);

// ---- horizontal -------------------------------------------------------------
// One accumulator row to one destination row. acc holds accLen elements: the
// source columns from srcOff on, `channels` interleaved. The destination row
// holds columns x0 .. x0 + width - 1 of the whole destination.
struct HPass {
    const float* acc;
    std::int64_t accLen;
    std::int64_t x0, width, srcOff;
    const std::int32_t* pos;
    const float* w;
    std::uint32_t num, den, k;
    int channels;
    float S;
};

// Which horizontal kernel a ratio gets: integer ratios with unit weights in
// the code, other frequent ratios a permute kernel over their period, all
// else the gathering kernel. All three compute the same sums.
enum class HKind { Unit, Cycle, Generic };
HKind hkind(int channels, std::uint32_t k, std::uint32_t den, std::uint32_t num);

template <class T>
void hpass_ref(const HPass& h, T* dst);
template <class T>
void hpass_gather(const HPass& h, T* dst);

// A horizontal pass prepared once per tile: the kernel choice and, for the
// permute kernels, the index and weight vectors of one period of vectors
// (they depend on the tile's first column, not on the row).
struct alignas(64) HPlan {
    static constexpr int kMaxSlots = 8;
    enum Mode { kGather, kUnit, kCycle };
    HPass h;
    int mode;
    int L, nv;                 // vectors per period of the pattern; window vectors
    std::int64_t advance;      // accumulator elements per L vectors
    std::int64_t base0[kMaxSlots];
    alignas(64) std::int32_t idx[kMaxSlots][4][16];
    alignas(64) float w[kMaxSlots][4][16];
    alignas(64) float sw0[kMaxSlots][16];  // S x w0, for three taps
};
// Chooses by hkind (falling back to the gathering kernel when a period does
// not fit the permute window).
void hplan_init(HPlan& p, const HPass& h);
// Forces the permute kernel (unit weights or table weights); false when the
// ratio does not fit it, and then the plan gathers.
bool hplan_cycle(HPlan& p, const HPass& h, bool unitWeights);
template <class T>
void hplan_run(const HPlan& p, const float* acc, T* dst);
// hplan_init and hplan_run on h.acc.
template <class T>
void hpass(const HPass& h, T* dst);

// Both axes 2:1 at 8u: destination row from source rows r0 and r1, width
// pixels of C channels; the same pixels as the tile kernel.
template <int C>
void box2x2_8u(const Gex8u* r0, const Gex8u* r1, Gex8u* dst, std::int64_t width);

}  // namespace super
}  // namespace gex
