// Copy: whole pixels (C1, C3, C4 of every depth), AC4 without the alpha
// channel, the 64-bit _L forms, CopyManaged, and the one-dimensional copies.
//
// A whole-pixel copy is a byte copy of width x channels x element bytes per
// row, so every depth and channel count shares one engine. Above a volume
// threshold, and only when the data would not fit in half the largest cache,
// the engine stores with non-temporal 512-bit stores and ends with a store
// fence; the bytes written are the same on every path.
#include "data/copy.hpp"

#include <immintrin.h>

#include <cstring>
#include <limits>

#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"
#include "gexcore.h"

namespace gex {

namespace {

constexpr std::int64_t kRowStreamThreshold = 0x400000;    // one row, in bytes
constexpr std::int64_t kImageStreamThreshold = 0x300000;  // a whole image, in bytes
constexpr std::int64_t kMergeLimit = std::int64_t{1} << 31;

// rowBytes x height, saturated (the volume only feeds comparisons).
std::int64_t volume_of(std::int64_t rowBytes, std::int64_t height) {
    if (rowBytes <= 0 || height <= 0) return 0;
    if (height > std::numeric_limits<std::int64_t>::max() / rowBytes)
        return std::numeric_limits<std::int64_t>::max();
    return rowBytes * height;
}

// The largest data cache in bytes, or 0 when it is unknown.
std::int64_t largest_cache() {
    int c = 0;
    if (gexGetMaxCacheSizeB(&c) != gexStsOk) return 0;
    return c;
}

inline void copy_short(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    const __mmask64 m = simd::tail_mask64(n);
    _mm512_mask_storeu_epi8(d, m, _mm512_maskz_loadu_epi8(m, s));
}

bool is_streaming(CopyPath path) { return path == CopyPath::Stream || path == CopyPath::StreamLoads; }

}  // namespace

bool stream_row(std::int64_t rowBytes) {
    if (rowBytes <= kRowStreamThreshold) return false;
    const std::int64_t c = largest_cache();
    return c > 0 && rowBytes >= c / 2;
}

bool stream_image(std::int64_t volume) {
    if (volume <= kImageStreamThreshold) return false;
    const std::int64_t c = largest_cache();
    return c > 0 && volume >= c / 2;
}

namespace copy_kernels {

void row_cached(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    if (n <= 64) {
        if (n > 0) copy_short(s, d, n);
        return;
    }
    // Long rows: a short head brings the destination to a 64-byte boundary so
    // no store splits a cache line.
    if (n >= 512) {
        const std::int64_t head = static_cast<std::int64_t>((0 - reinterpret_cast<std::uintptr_t>(d)) & 63u);
        if (head != 0) {
            copy_short(s, d, head);
            s += head;
            d += head;
            n -= head;
        }
    }
    std::int64_t i = 0;
    for (; i + 256 <= n; i += 256) {
        const __m512i a = _mm512_loadu_si512(s + i);
        const __m512i b = _mm512_loadu_si512(s + i + 64);
        const __m512i c = _mm512_loadu_si512(s + i + 128);
        const __m512i e = _mm512_loadu_si512(s + i + 192);
        _mm512_storeu_si512(d + i, a);
        _mm512_storeu_si512(d + i + 64, b);
        _mm512_storeu_si512(d + i + 128, c);
        _mm512_storeu_si512(d + i + 192, e);
    }
    for (; i + 64 <= n; i += 64) _mm512_storeu_si512(d + i, _mm512_loadu_si512(s + i));
    if (i < n) copy_short(s + i, d + i, n - i);
}

void row_stream(const std::uint8_t* s, std::uint8_t* d, std::int64_t n, bool streamLoads) {
    // Non-temporal stores need a 64-byte aligned destination: a short masked
    // copy gets there first, and the tail after the last whole line is masked.
    const std::int64_t head =
        std::min<std::int64_t>(n, static_cast<std::int64_t>((0 - reinterpret_cast<std::uintptr_t>(d)) & 63u));
    if (head > 0) {
        copy_short(s, d, head);
        s += head;
        d += head;
        n -= head;
    }
    std::int64_t i = 0;
    // Streaming loads need an aligned source too; otherwise ordinary loads.
    if (streamLoads && (reinterpret_cast<std::uintptr_t>(s) & 63u) == 0) {
        void* sp = const_cast<std::uint8_t*>(s);
        for (; i + 256 <= n; i += 256) {
            const __m512i a = _mm512_stream_load_si512(static_cast<std::uint8_t*>(sp) + i);
            const __m512i b = _mm512_stream_load_si512(static_cast<std::uint8_t*>(sp) + i + 64);
            const __m512i c = _mm512_stream_load_si512(static_cast<std::uint8_t*>(sp) + i + 128);
            const __m512i e = _mm512_stream_load_si512(static_cast<std::uint8_t*>(sp) + i + 192);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i), a);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 64), b);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 128), c);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 192), e);
        }
        for (; i + 64 <= n; i += 64)
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i),
                                _mm512_stream_load_si512(static_cast<std::uint8_t*>(sp) + i));
    } else {
        for (; i + 256 <= n; i += 256) {
            const __m512i a = _mm512_loadu_si512(s + i);
            const __m512i b = _mm512_loadu_si512(s + i + 64);
            const __m512i c = _mm512_loadu_si512(s + i + 128);
            const __m512i e = _mm512_loadu_si512(s + i + 192);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i), a);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 64), b);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 128), c);
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i + 192), e);
        }
        for (; i + 64 <= n; i += 64)
            _mm512_stream_si512(reinterpret_cast<__m512i*>(d + i), _mm512_loadu_si512(s + i));
    }
    if (i < n) copy_short(s + i, d + i, n - i);
}

// E-byte elements, four per pixel. A vector holds a whole number of pixels, so
// the repeating mask of the first three channels lines up in every vector; the
// loads use it too, so the source's alpha is never touched.
template <int E>
void row_ac4(const std::uint8_t* s, std::uint8_t* d, std::int64_t pixels) {
    using M = typename simd::Mask<E>::type;
    constexpr M a = simd::ac4_mask<E>();
    constexpr std::int64_t L = simd::lanes<E>;  // elements per vector
    const std::int64_t n = pixels * 4;
    std::int64_t i = 0;
    for (; i + 4 * L <= n; i += 4 * L) {
        const __m512i v0 = simd::load_masked<E>(s + i * E, a);
        const __m512i v1 = simd::load_masked<E>(s + (i + L) * E, a);
        const __m512i v2 = simd::load_masked<E>(s + (i + 2 * L) * E, a);
        const __m512i v3 = simd::load_masked<E>(s + (i + 3 * L) * E, a);
        simd::store_masked<E>(d + i * E, a, v0);
        simd::store_masked<E>(d + (i + L) * E, a, v1);
        simd::store_masked<E>(d + (i + 2 * L) * E, a, v2);
        simd::store_masked<E>(d + (i + 3 * L) * E, a, v3);
    }
    for (; i + L <= n; i += L) simd::store_masked<E>(d + i * E, a, simd::load_masked<E>(s + i * E, a));
    if (i < n) {
        const M m = static_cast<M>(a & simd::Mask<E>::tail(n - i));
        simd::store_masked<E>(d + i * E, m, simd::load_masked<E>(s + i * E, m));
    }
}

template void row_ac4<1>(const std::uint8_t*, std::uint8_t*, std::int64_t);
template void row_ac4<2>(const std::uint8_t*, std::uint8_t*, std::int64_t);
template void row_ac4<4>(const std::uint8_t*, std::uint8_t*, std::int64_t);

void row_ref(const std::uint8_t* s, std::uint8_t* d, std::int64_t n) {
    for (std::int64_t i = 0; i < n; ++i) d[i] = s[i];
}

void row_ac4_ref(const std::uint8_t* s, std::uint8_t* d, std::int64_t pixels, int elemBytes) {
    const std::int64_t px = 4 * elemBytes;
    for (std::int64_t x = 0; x < pixels; ++x)
        for (int b = 0; b < 3 * elemBytes; ++b) d[x * px + b] = s[x * px + b];
}

}  // namespace copy_kernels

void copy_row_bytes(const void* src, void* dst, std::int64_t n, CopyPath path) {
    if (n <= 0) return;
    const auto* s = static_cast<const std::uint8_t*>(src);
    auto* d = static_cast<std::uint8_t*>(dst);
    const bool stream = is_streaming(path) || (path == CopyPath::Auto && stream_row(n));
    if (stream) {
        copy_kernels::row_stream(s, d, n, path == CopyPath::StreamLoads);
        simd::store_fence();
    } else {
        copy_kernels::row_cached(s, d, n);
    }
}

void copy_bytes_2d(const void* src, std::int64_t srcStep, void* dst, std::int64_t dstStep,
                   std::int64_t rowBytes, std::int64_t height, CopyPath path) {
    if (rowBytes <= 0 || height <= 0) return;
    const std::int64_t volume = volume_of(rowBytes, height);
    if (srcStep == rowBytes && dstStep == rowBytes && volume < kMergeLimit) {
        copy_row_bytes(src, dst, volume, path);
        return;
    }
    auto* s = static_cast<const std::uint8_t*>(src);
    auto* d = static_cast<std::uint8_t*>(dst);
    const bool stream = is_streaming(path) || (path == CopyPath::Auto && stream_image(volume));
    if (stream) {
        const bool loads = path == CopyPath::StreamLoads;
        for (std::int64_t y = 0; y < height; ++y, s += srcStep, d += dstStep)
            copy_kernels::row_stream(s, d, rowBytes, loads);
        simd::store_fence();
    } else {
        for (std::int64_t y = 0; y < height; ++y, s += srcStep, d += dstStep)
            copy_kernels::row_cached(s, d, rowBytes);
    }
}

void copy_ac4_2d(const void* src, std::int64_t srcStep, void* dst, std::int64_t dstStep,
                 std::int64_t pixels, std::int64_t height, int elemBytes) {
    if (pixels <= 0 || height <= 0) return;
    const std::int64_t rowBytes = pixels * 4 * elemBytes;
    if (srcStep == rowBytes && dstStep == rowBytes && volume_of(rowBytes, height) < kMergeLimit) {
        pixels *= height;
        height = 1;
    }
    auto* s = static_cast<const std::uint8_t*>(src);
    auto* d = static_cast<std::uint8_t*>(dst);
    auto run = [&](auto kernel) {
        for (std::int64_t y = 0; y < height; ++y, s += srcStep, d += dstStep) kernel(s, d, pixels);
    };
    switch (elemBytes) {
        case 1: run(copy_kernels::row_ac4<1>); break;
        case 2: run(copy_kernels::row_ac4<2>); break;
        default: run(copy_kernels::row_ac4<4>); break;
    }
}

// ---- one-dimensional primitives ---------------------------------------------

namespace {

template <class T>
GexStatus copy_1d(const T* pSrc, T* pDst, int len) {
    GEX_CHECK(check_null(pSrc, pDst));
    if (len < 1) return gexStsSize;
    copy_row_bytes(pSrc, pDst, static_cast<std::int64_t>(len) * static_cast<std::int64_t>(sizeof(T)));
    return gexStsOk;
}

}  // namespace

GexStatus gexsCopy_8u(const Gex8u* pSrc, Gex8u* pDst, int len) { return copy_1d(pSrc, pDst, len); }
GexStatus gexsCopy_16s(const Gex16s* pSrc, Gex16s* pDst, int len) { return copy_1d(pSrc, pDst, len); }
GexStatus gexsCopy_32s(const Gex32s* pSrc, Gex32s* pDst, int len) { return copy_1d(pSrc, pDst, len); }
GexStatus gexsCopy_32f(const Gex32f* pSrc, Gex32f* pDst, int len) { return copy_1d(pSrc, pDst, len); }

// ---- checking wrappers ------------------------------------------------------

namespace {

// C1, C3, C4: the row is width x CH elements of bytes copied as they are.
template <int CH, class T>
GexStatus copy_pixels(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi,
                      CopyPath path = CopyPath::Auto) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    const std::int64_t rowBytes = std::int64_t{roi.width} * CH * static_cast<std::int64_t>(sizeof(T));
    copy_bytes_2d(pSrc, srcStep, pDst, dstStep, rowBytes, roi.height, path);
    return gexStsOk;
}

template <class T>
GexStatus copy_ac4(const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    copy_ac4_2d(pSrc, srcStep, pDst, dstStep, roi.width, roi.height, static_cast<int>(sizeof(T)));
    return gexStsOk;
}

// The 64-bit forms do their own checks and never hand the call over whole.
template <int CH, class T, class Prim>
GexStatus copy_pixels_L(const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiSizeL roi, Prim prim) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    return copy_rows_L(pSrc, srcStep, pDst, dstStep, roi.width * CH, roi.height, kCopyChunkElems, prim);
}

template <class T, class Roi>
GexStatus copy_ac4_L(const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiSizeL roi, Roi ac4) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    return copy_ac4_rows_L(pSrc, srcStep, pDst, dstStep, roi.width, roi.height, kCopyAc4ChunkPixels, ac4);
}

}  // namespace

}  // namespace gex

#define GEX_COPY_ARGS(T) (const T* pSrc, int srcStep, T* pDst, int dstStep, GexiSize roiSize)
#define GEX_COPY_ARGS_L(T) (const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiSizeL roiSize)

#define GEX_COPY_DEPTH(D, T)                                                                 \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C1R, GEX_COPY_ARGS(T)) {                           \
        return copy_pixels<1>(pSrc, srcStep, pDst, dstStep, roiSize);                        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C3R, GEX_COPY_ARGS(T)) {                           \
        return copy_pixels<3>(pSrc, srcStep, pDst, dstStep, roiSize);                        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C4R, GEX_COPY_ARGS(T)) {                           \
        return copy_pixels<4>(pSrc, srcStep, pDst, dstStep, roiSize);                        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_AC4R, GEX_COPY_ARGS(T)) {                          \
        return copy_ac4(pSrc, srcStep, pDst, dstStep, roiSize);                              \
    }

GEX_COPY_DEPTH(8u, Gex8u)
GEX_COPY_DEPTH(16u, Gex16u)
GEX_COPY_DEPTH(16s, Gex16s)
GEX_COPY_DEPTH(32s, Gex32s)
GEX_COPY_DEPTH(32f, Gex32f)

#define GEX_COPY_DEPTH_L(D, T)                                                               \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C1R_L, GEX_COPY_ARGS_L(T)) {                       \
        return copy_pixels_L<1>(pSrc, srcStep, pDst, dstStep, roiSize, gexsCopy_##D);        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C3R_L, GEX_COPY_ARGS_L(T)) {                       \
        return copy_pixels_L<3>(pSrc, srcStep, pDst, dstStep, roiSize, gexsCopy_##D);        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_C4R_L, GEX_COPY_ARGS_L(T)) {                       \
        return copy_pixels_L<4>(pSrc, srcStep, pDst, dstStep, roiSize, gexsCopy_##D);        \
    }                                                                                        \
    GEX_EXPORT(GexStatus, gexiCopy_##D##_AC4R_L, GEX_COPY_ARGS_L(T)) {                      \
        return copy_ac4_L(pSrc, srcStep, pDst, dstStep, roiSize, gex::gexiCopy_##D##_AC4R); \
    }

GEX_COPY_DEPTH_L(8u, Gex8u)
GEX_COPY_DEPTH_L(32f, Gex32f)

// flags: bit value 1 stores non-temporally, bit value 2 also loads with
// streaming loads; other bits are ignored. Without either it is gexiCopy_8u_C1R.
GEX_EXPORT(GexStatus, gexiCopyManaged_8u_C1R,
           (const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int flags)) {
    const CopyPath path = (flags & 2) ? CopyPath::StreamLoads
                          : (flags & 1) ? CopyPath::Stream
                                        : CopyPath::Auto;
    return copy_pixels<1>(pSrc, srcStep, pDst, dstStep, roiSize, path);
}
