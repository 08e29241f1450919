// Fills: the private one-dimensional Set/Zero primitives, the pattern fill
// engine that every Set form runs on, and the row kernels of Set and Dup.
//
// The engine writes rows of bytes with a repeating pattern of 1..16 bytes
// (one pixel), optionally under a write mask over the bytes of the pattern
// (the colour channels of an AC4 pixel, or the one channel of a C3CR/C4CR
// fill). Every row starts at the pattern's first byte. Other families (short
// paths of the arithmetic, border copies) call it directly.
#pragma once

#include "frame/export.hpp"

#include <cstdint>
#include <cstring>

#include "gexdefs.h"

// The whole-pixel Set wrappers, for the short paths of other families.
GEX_USE(gexiSet_8u_C1R)
GEX_USE(gexiSet_8u_C3R)
GEX_USE(gexiSet_8u_C4R)
GEX_USE(gexiSet_8u_AC4R)
GEX_USE(gexiSet_16u_C1R)
GEX_USE(gexiSet_16u_C3R)
GEX_USE(gexiSet_16u_C4R)
GEX_USE(gexiSet_16u_AC4R)
GEX_USE(gexiSet_16s_C1R)
GEX_USE(gexiSet_16s_C3R)
GEX_USE(gexiSet_16s_C4R)
GEX_USE(gexiSet_16s_AC4R)
GEX_USE(gexiSet_32s_C1R)
GEX_USE(gexiSet_32s_C3R)
GEX_USE(gexiSet_32s_C4R)
GEX_USE(gexiSet_32s_AC4R)
GEX_USE(gexiSet_32f_C1R)
GEX_USE(gexiSet_32f_C3R)
GEX_USE(gexiSet_32f_C4R)
GEX_USE(gexiSet_32f_AC4R)

namespace gex {

// ---- one-dimensional primitives --------------------------------------------
// len counts elements. A null pointer gives gexStsNullPtr, len < 1 gexStsSize.
GexStatus gexsSet_8u(Gex8u val, Gex8u* pDst, int len);
GexStatus gexsSet_16s(Gex16s val, Gex16s* pDst, int len);
GexStatus gexsSet_16u(Gex16u val, Gex16u* pDst, int len);
GexStatus gexsSet_32s(Gex32s val, Gex32s* pDst, int len);
GexStatus gexsSet_32f(Gex32f val, Gex32f* pDst, int len);
GexStatus gexsZero_8u(Gex8u* pDst, int len);
GexStatus gexsZero_16s(Gex16s* pDst, int len);
GexStatus gexsZero_32s(Gex32s* pDst, int len);
GexStatus gexsZero_32f(Gex32f* pDst, int len);

// ---- cached or non-temporal stores -------------------------------------------
enum class Stores { Cached, Streaming };

// Same shape as gexGetMaxCacheSizeB; a parameter so that tests can drive the
// streaming paths on any machine.
using CacheQuery = GexStatus (*)(int* pSizeByte);

// When a fill bypasses the cache. The volume is compared with the threshold
// first; only a larger volume asks the cache size c. A failed query keeps the
// cached path.
struct StreamRule {
    std::int64_t threshold;  // the volume must be above this
    bool above_cache;        // true: c >= 1 and volume > c; false: volume >= c
};
inline constexpr StreamRule kStreamSet8uImage{0x600000, false};  // gexiSet_8u_C1R, volume w*h
inline constexpr StreamRule kStreamSetRow{0x200000, true};        // the gexsSet rows, volume in bytes
inline constexpr StreamRule kStreamSet32C4{0x80000, false};       // gexiSet_{32s,32f}_C4R, volume 16*w*h

Stores choose_stores(StreamRule rule, std::int64_t volume, CacheQuery query);

// ---- the pattern ----------------------------------------------------------------
// `period` bytes (1..16) repeated along a row. Bit i of `writeMask` set means
// that byte i of every period is written; clear bytes are never touched.
// The object keeps the pattern laid out over lcm(period, 64) + 64 bytes so
// that the vector at any phase is a single load; it lives on the caller's
// stack (about 2 KB), nothing is allocated.
class FillPattern {
public:
    static constexpr int kMaxPeriod = 16;
    static constexpr int kMaxSpan = 64 * 15;  // lcm(p, 64) for p <= 16

    FillPattern(const void* bytes, int period, std::uint32_t writeMask = 0xffffu);
    FillPattern(const FillPattern&) = delete;
    FillPattern& operator=(const FillPattern&) = delete;

    int period() const { return period_; }
    // lcm(period, 64): the distance after which the vectors repeat.
    int span() const { return span_; }
    bool masked() const { return masked_; }
    std::uint8_t byte(int i) const { return line_[i]; }
    bool writes(int i) const { return (write_mask_ >> i) & 1u; }
    // span() + 64 bytes of the pattern from its first byte.
    const std::uint8_t* line() const { return line_; }
    // The same positions, 0xff where a byte is written and 0 where not
    // (only filled when masked()).
    const std::uint8_t* write_line() const { return write_line_; }

private:
    void lay_out(std::uint8_t* buf, const std::uint8_t* unit, int len) const;

    int period_;
    int span_;
    std::uint32_t write_mask_;
    bool masked_;
    alignas(64) std::uint8_t line_[kMaxSpan + 64];
    alignas(64) std::uint8_t write_line_[kMaxSpan + 64];
};

// The pattern of one pixel of `channels` elements whose first `written`
// channels take values[0..written-1] and whose other channels are left
// alone: (v, 3, 3) for C3, (v, 4, 3) for AC4, (&v, 3, 1) for C3CR.
template <class T>
inline FillPattern pixel_pattern(const T* values, int channels, int written) {
    std::uint8_t bytes[FillPattern::kMaxPeriod] = {};
    std::memcpy(bytes, values, sizeof(T) * static_cast<unsigned>(written));
    const unsigned writtenBytes = sizeof(T) * static_cast<unsigned>(written);
    return FillPattern(bytes, static_cast<int>(sizeof(T)) * channels,
                       writtenBytes >= 32 ? 0xffffffffu : (1u << writtenBytes) - 1u);
}

// Fill `height` rows of `rowBytes` bytes, `dstStep` bytes apart (any sign, 0
// included). Rows that follow each other without a gap are filled as one.
// With Stores::Streaming the unmasked row bodies use non-temporal stores and
// a store fence ends the call; a masked pattern always uses ordinary stores.
void fill_pattern_2d(void* pDst, std::int64_t dstStep, std::int64_t rowBytes, std::int64_t height,
                     const FillPattern& pattern, Stores stores = Stores::Cached);

// ---- row kernels (vector) and their scalar twins ----------------------------------
// One row of n bytes from the pattern's first byte. Streaming is used only for
// unmasked patterns and rows long enough to align; the caller fences.
void pattern_row(std::uint8_t* p, std::int64_t n, const FillPattern& pattern, Stores stores);
void pattern_row_scalar(std::uint8_t* p, std::int64_t n, const FillPattern& pattern);

// One row of `width` pixels of pattern.period() bytes, written only where the
// 8u mask byte is non-zero. elemBytes (1, 2 or 4) and period / elemBytes
// channels (1, 3 or 4) select the kernel.
void masked_row(std::uint8_t* p, const std::uint8_t* mask, std::int64_t width,
                const FillPattern& pattern, int elemBytes);
void masked_row_scalar(std::uint8_t* p, const std::uint8_t* mask, std::int64_t width,
                       const FillPattern& pattern);

// Rows of Dup (data/dup.cpp): each of `width` source bytes to 3 or 4 bytes.
void dup_row_c1c3(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width);
void dup_row_c1c4(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width);
void dup_row_scalar(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width, int channels);

// ---- the streaming-capable wrappers with the cache query as an argument --------
// gexiSet_8u_C1R, gexiSet_32f_C4R and gexiSet_16u_C1R call these with
// gexGetMaxCacheSizeB.
GexStatus set_8u_c1r_with(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, CacheQuery query);
GexStatus set_32f_c4r_with(const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize,
                           CacheQuery query);
GexStatus set_16u_c1r_with(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, CacheQuery query);

}  // namespace gex
