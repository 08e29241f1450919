// The copy engine: one-dimensional copy primitives, the row and two-dimensional
// byte copies that every whole-pixel copy of every depth runs on, the AC4 copy
// that leaves the fourth channel alone, and the row loops of the _L forms.
//
// Other families (border copies, resize's plain copy, short paths of the
// arithmetic) call these directly.
#pragma once

#include "frame/export.hpp"

#include <algorithm>
#include <cstdint>

#include "frame/pixel.hpp"
#include "gexdefs.h"

// The whole-pixel Copy wrappers, for the short paths of other families.
GEX_USE(gexiCopy_8u_C1R)
GEX_USE(gexiCopy_8u_C3R)
GEX_USE(gexiCopy_8u_C4R)
GEX_USE(gexiCopy_8u_AC4R)
GEX_USE(gexiCopy_16u_C1R)
GEX_USE(gexiCopy_16u_C3R)
GEX_USE(gexiCopy_16u_C4R)
GEX_USE(gexiCopy_16u_AC4R)
GEX_USE(gexiCopy_16s_C1R)
GEX_USE(gexiCopy_16s_C3R)
GEX_USE(gexiCopy_16s_C4R)
GEX_USE(gexiCopy_16s_AC4R)
GEX_USE(gexiCopy_32s_C1R)
GEX_USE(gexiCopy_32s_C3R)
GEX_USE(gexiCopy_32s_C4R)
GEX_USE(gexiCopy_32s_AC4R)
GEX_USE(gexiCopy_32f_C1R)
GEX_USE(gexiCopy_32f_C3R)
GEX_USE(gexiCopy_32f_C4R)
GEX_USE(gexiCopy_32f_AC4R)

namespace gex {

// ---- one-dimensional primitives --------------------------------------------
// len elements. A null pointer gives gexStsNullPtr (-8), len < 1 gexStsSize (-6).
GexStatus gexsCopy_8u(const Gex8u* pSrc, Gex8u* pDst, int len);
GexStatus gexsCopy_16s(const Gex16s* pSrc, Gex16s* pDst, int len);
GexStatus gexsCopy_32s(const Gex32s* pSrc, Gex32s* pDst, int len);
GexStatus gexsCopy_32f(const Gex32f* pSrc, Gex32f* pDst, int len);

// ---- the byte engine ---------------------------------------------------------
// How a copy stores. Auto applies the volume rules below; Cached never bypasses
// the cache; Stream uses non-temporal stores; StreamLoads also reads with
// streaming loads where the source lines up. Every path gives the same bytes,
// and a streaming copy ends with a store fence.
enum class CopyPath { Auto, Cached, Stream, StreamLoads };

// One row of n bytes (the rule of the one-row copy: a row above 0x400000 bytes
// that is at least half the largest cache is streamed).
void copy_row_bytes(const void* src, void* dst, std::int64_t n, CopyPath path = CopyPath::Auto);

// height rows of rowBytes bytes each, any steps (zero and negative included).
// Rows with no gap (both steps equal rowBytes, total below 2^31) are one row;
// otherwise an image above 0x300000 bytes that is at least half the largest
// cache is streamed.
void copy_bytes_2d(const void* src, std::int64_t srcStep, void* dst, std::int64_t dstStep,
                   std::int64_t rowBytes, std::int64_t height, CopyPath path = CopyPath::Auto);

// AC4 pixels of elemBytes (1, 2 or 4) bytes per channel: channels 0..2 move;
// the source's fourth channel is not read, the destination's is not written.
void copy_ac4_2d(const void* src, std::int64_t srcStep, void* dst, std::int64_t dstStep,
                 std::int64_t pixels, std::int64_t height, int elemBytes);

// The streaming decisions (each asks the cache size only past its threshold;
// an unknown cache size means the cached path).
bool stream_row(std::int64_t rowBytes);
bool stream_image(std::int64_t volume);

// Row kernels and their scalar twins (the reference the tests compare with).
namespace copy_kernels {
void row_cached(const std::uint8_t* s, std::uint8_t* d, std::int64_t n);
void row_stream(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, bool streamLoads);
template <int E>
void row_ac4(const std::uint8_t* s, std::uint8_t* d, std::int64_t pixels);
void row_ref(const std::uint8_t* s, std::uint8_t* d, std::int64_t n);
void row_ac4_ref(const std::uint8_t* s, std::uint8_t* d, std::int64_t pixels, int elemBytes);
}  // namespace copy_kernels

// ---- the _L row loops ----------------------------------------------------------
// Largest element count of one primitive call, and pixel count of one AC4 call.
constexpr std::int64_t kCopyChunkElems = 0x40000000;
constexpr std::int64_t kCopyAc4ChunkPixels = 0x10000000;

// Combines chunk statuses: a negative one sticks (the work goes on), otherwise
// the latest one is kept.
struct ChunkStatus {
    GexStatus failed = gexStsOk;
    GexStatus last = gexStsOk;
    void add(GexStatus s) {
        if (s < 0) failed = s;
        else last = s;
    }
    GexStatus result() const { return failed < 0 ? failed : last; }
};

// Each row of rowElems elements goes to prim(src, dst, len) whole when it
// holds at most chunkElems elements, else in chunks of chunkElems.
template <class T, class Prim>
GexStatus copy_rows_L(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep,
                      std::int64_t rowElems, std::int64_t height, std::int64_t chunkElems, Prim prim) {
    ChunkStatus st;
    for (std::int64_t y = 0; y < height; ++y) {
        for (std::int64_t done = 0; done < rowElems; done += chunkElems) {
            const std::int64_t len = std::min(chunkElems, rowElems - done);
            st.add(prim(pSrc + done, pDst + done, static_cast<int>(len)));
        }
        pSrc = row_at(pSrc, srcStep, 1);
        pDst = row_at(pDst, dstStep, 1);
    }
    return st.result();
}

// Each row of width AC4 pixels goes, in chunks of at most chunkPixels pixels,
// to the 32-bit AC4 form ac4(src, step, dst, step, {len, 1}).
template <class T, class Roi>
GexStatus copy_ac4_rows_L(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep,
                          std::int64_t width, std::int64_t height, std::int64_t chunkPixels, Roi ac4) {
    ChunkStatus st;
    for (std::int64_t y = 0; y < height; ++y) {
        for (std::int64_t done = 0; done < width; done += chunkPixels) {
            const std::int64_t len = std::min(chunkPixels, width - done);
            // A one-row ROI: its steps are never used.
            st.add(ac4(pSrc + 4 * done, 4, pDst + 4 * done, 4, GexiSize{static_cast<int>(len), 1}));
        }
        pSrc = row_at(pSrc, srcStep, 1);
        pDst = row_at(pDst, dstStep, 1);
    }
    return st.result();
}

}  // namespace gex
