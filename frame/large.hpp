// The rule of the arithmetic _L entries (64-bit sizes and steps).
//
// 1. If every |step| and |width x height| x bytes per pixel are below
//    0x7fffffff, the call is narrowed and handed whole to the 32-bit wrapper,
//    which does all the checks: forward_if_small() says whether to.
// 2. Otherwise nothing is checked. A height below 1 returns 0 at once, even
//    with null pointers or a negative width: a deliberate asymmetry.
// 3. Each row with width > 0 goes in chunks of at most C pixels (the table
//    below); chunk_rows() calls the chunk function with (row, first pixel,
//    pixels) and keeps the status of the last chunk: a negative status ends
//    the call at once, any other replaces the one before, so a warning of an
//    earlier chunk is lost when a later chunk reports 0.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "gexdefs.h"

namespace gex {

constexpr std::int64_t kLargeLimit = 0x7fffffff;

inline std::int64_t abs64(std::int64_t v) { return v < 0 ? -v : v; }

// Whether a _L call fits the 32-bit form; if so, roi32 receives the narrowed size.
inline bool forward_if_small(GexiSizeL roi, std::initializer_list<std::int64_t> steps, int bytesPerPixel,
                             GexiSize& roi32) {
    for (std::int64_t s : steps)
        if (abs64(s) >= kLargeLimit) return false;
    // |width x height| x bytes per pixel in 64 bits; products too large for
    // 64 bits certainly do not fit.
    const unsigned __int128 area = static_cast<unsigned __int128>(abs64(roi.width)) *
                                   static_cast<unsigned __int128>(abs64(roi.height)) *
                                   static_cast<unsigned __int128>(bytesPerPixel);
    if (area >= static_cast<unsigned __int128>(kLargeLimit)) return false;
    roi32.width = static_cast<int>(roi.width);
    roi32.height = static_cast<int>(roi.height);
    return true;
}

// Chunk sizes in pixels by element size and channel count (AC4 counts as 4).
constexpr std::int64_t large_chunk_pixels(int elemBytes, int channels) {
    if (channels == 3) return elemBytes == 1 ? 357913940 : elemBytes == 2 ? 0xaaaaaa9 : 89478484;
    const int pixelBytes = elemBytes * channels;
    return pixelBytes == 1 ? 0x3fffffff : 0x3fffffff / pixelBytes;
}

// Runs chunk(row, firstPixel, pixels) over every row in chunks of at most
// chunkPixels, with the status rule above.
template <class Chunk>
GexStatus chunk_rows(GexiSizeL roi, std::int64_t chunkPixels, Chunk chunk) {
    if (roi.height < 1) return gexStsOk;
    GexStatus status = gexStsOk;
    for (std::int64_t y = 0; y < roi.height; ++y) {
        for (std::int64_t done = 0; done < roi.width; done += chunkPixels) {
            const std::int64_t n = roi.width - done < chunkPixels ? roi.width - done : chunkPixels;
            const GexStatus st = chunk(y, done, n);
            if (st < 0) return st;
            status = st;
        }
    }
    return status;
}

}  // namespace gex
