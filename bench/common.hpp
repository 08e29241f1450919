// Shared pieces of the benchmark: images with gaps between rows, the row
// naming convention "<operation>/<case>/<who>", and the agreement counter.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#ifdef GEX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

#include "gexip.h"

namespace gexbench {

// An 8u-based image buffer: rows of `rowBytes` with `gap` extra bytes each.
struct Buffer {
    std::vector<std::uint8_t> mem;
    int step = 0, rowBytes = 0, height = 0;
    std::uint8_t* data = nullptr;
    Buffer(int rowBytes_, int height_, int gap = 64) : step(rowBytes_ + gap), rowBytes(rowBytes_), height(height_) {
        mem.resize(static_cast<std::size_t>(step) * height + 64);
        std::uintptr_t a = reinterpret_cast<std::uintptr_t>(mem.data());
        data = mem.data() + ((64 - (a & 63)) & 63);
    }
    void randomize(unsigned seed = 1) {
        std::mt19937 rng(seed);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < rowBytes; ++x) data[static_cast<std::size_t>(y) * step + x] = static_cast<std::uint8_t>(rng());
    }
    std::uint8_t* row(int y) { return data + static_cast<std::size_t>(y) * step; }
};

// Number of bytes that differ between the ROIs of two buffers.
inline double mismatches(Buffer& a, Buffer& b) {
    double n = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.rowBytes; ++x) n += a.row(y)[x] != b.row(y)[x];
    return n;
}

inline void set_bytes(benchmark::State& st, std::int64_t bytesPerIter) {
    st.SetBytesProcessed(st.iterations() * bytesPerIter);
}

#ifdef GEX_HAVE_OPENCV
inline cv::Mat as_mat(Buffer& b, int type, int width) { return cv::Mat(b.height, width, type, b.data, b.step); }
struct OneThread {
    OneThread() { cv::setNumThreads(1); }
};
#endif

// The memory floor of a two-source operation over rowBytes x height: both
// sources read and one destination written by the plainest byte loop the
// compiler vectorises. No implementation of an operation with this traffic
// can beat it by much, so it bounds any ratio against a peer that runs near it.
inline void floor_loop(benchmark::State& st, int rowBytes, int height) {
    Buffer a(rowBytes, height), b(rowBytes, height), d(rowBytes, height, 128);
    a.randomize(1);
    b.randomize(2);
    for (auto _ : st) {
        for (int y = 0; y < height; ++y) {
            const std::uint8_t* pa = a.row(y);
            const std::uint8_t* pb = b.row(y);
            std::uint8_t* pd = d.row(y);
            for (int x = 0; x < rowBytes; ++x) pd[x] = static_cast<std::uint8_t>(pa[x] + pb[x]);
        }
        benchmark::ClobberMemory();
    }
    set_bytes(st, 3LL * rowBytes * height);
}

struct Size {
    const char* name;
    int width, height;
};
constexpr Size k4K{"3840x2160", 3840, 2160};
constexpr Size kSmall{"256x256", 256, 256};

}  // namespace gexbench
