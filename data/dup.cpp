// Dup: each pixel of a one-channel 8u image to every channel of a three- or
// four-channel 8u image.
//
// C1C4: 16 source bytes broadcast to the four 128-bit lanes, each lane picks
// its four bytes and repeats each four times (one in-lane byte shuffle).
// C1C3: 64 source bytes give 192 destination bytes, three vectors. Each
// 128-bit lane of an output vector needs a window of at most six source
// bytes; a dword permute brings the three dwords around that window into the
// lane and an in-lane byte shuffle places them. Tails are masked loads and
// stores, so no byte outside a row is read or written.
#include <immintrin.h>

#include <cstdint>

#include "data/set.hpp"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/simd.hpp"

namespace gex {
namespace {

struct Dup3Tables {
    alignas(64) std::int32_t dwords[3][16];  // dword sources per output vector
    alignas(64) std::uint8_t bytes[3][64];   // byte placement within each lane
};

constexpr Dup3Tables make_dup3_tables() {
    Dup3Tables t{};
    for (int r = 0; r < 3; ++r) {
        for (int q = 0; q < 4; ++q) {
            const int first = (64 * r + 16 * q) / 3;  // first source byte of the lane
            const int d0 = first / 4;
            for (int k = 0; k < 4; ++k) t.dwords[r][4 * q + k] = d0 + k < 16 ? d0 + k : 15;
            for (int i = 0; i < 16; ++i) {
                const int s = (64 * r + 16 * q + i) / 3;
                t.bytes[r][16 * q + i] = static_cast<std::uint8_t>(s - 4 * d0);
            }
        }
    }
    return t;
}

constexpr Dup3Tables kDup3 = make_dup3_tables();

struct Dup4Table {
    alignas(64) std::uint8_t bytes[64];
};

constexpr Dup4Table make_dup4_table() {
    Dup4Table t{};
    for (int i = 0; i < 64; ++i) t.bytes[i] = static_cast<std::uint8_t>(i / 4);  // lane q: bytes 4q..4q+3
    return t;
}

constexpr Dup4Table kDup4 = make_dup4_table();

using DupFn = void (*)(const std::uint8_t*, std::uint8_t*, std::int64_t);

template <int CH>
GexStatus dup_2d(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roi, DupFn row) {
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_roi(roi));
    std::int64_t width = roi.width, height = roi.height;
    if (height > 1 && srcStep == width && dstStep == width * CH) {
        width *= height;
        height = 1;
    }
    const Gex8u* s = pSrc;
    Gex8u* d = pDst;
    for (std::int64_t y = 0; y < height; ++y, s += srcStep, d += dstStep) row(s, d, width);
    return gexStsOk;
}

}  // namespace

void dup_row_c1c3(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width) {
    const __m512i p0 = _mm512_load_si512(kDup3.dwords[0]);
    const __m512i p1 = _mm512_load_si512(kDup3.dwords[1]);
    const __m512i p2 = _mm512_load_si512(kDup3.dwords[2]);
    const __m512i b0 = _mm512_load_si512(kDup3.bytes[0]);
    const __m512i b1 = _mm512_load_si512(kDup3.bytes[1]);
    const __m512i b2 = _mm512_load_si512(kDup3.bytes[2]);
    std::int64_t x = 0;
    for (; x + 64 <= width; x += 64) {
        const __m512i s = _mm512_loadu_si512(src + x);
        std::uint8_t* d = dst + 3 * x;
        _mm512_storeu_si512(d, _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p0, s), b0));
        _mm512_storeu_si512(d + 64, _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p1, s), b1));
        _mm512_storeu_si512(d + 128, _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p2, s), b2));
    }
    if (x < width) {
        const std::int64_t n = width - x;
        const __m512i s = _mm512_maskz_loadu_epi8(simd::tail_mask64(n), src + x);
        std::uint8_t* d = dst + 3 * x;
        const std::int64_t out = 3 * n;
        _mm512_mask_storeu_epi8(d, simd::tail_mask64(out),
                                _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p0, s), b0));
        if (out > 64)
            _mm512_mask_storeu_epi8(d + 64, simd::tail_mask64(out - 64),
                                    _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p1, s), b1));
        if (out > 128)
            _mm512_mask_storeu_epi8(d + 128, simd::tail_mask64(out - 128),
                                    _mm512_shuffle_epi8(_mm512_maskz_permutexvar_epi32(0xffff, p2, s), b2));
    }
}

void dup_row_c1c4(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width) {
    const __m512i idx = _mm512_load_si512(kDup4.bytes);
    std::int64_t x = 0;
    for (; x + 16 <= width; x += 16) {
        const __m512i s = _mm512_maskz_broadcast_i32x4(0xffff, _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + x)));
        _mm512_storeu_si512(dst + 4 * x, _mm512_shuffle_epi8(s, idx));
    }
    if (x < width) {
        const std::int64_t n = width - x;
        const __m512i s = _mm512_maskz_broadcast_i32x4(0xffff, _mm_maskz_loadu_epi8(simd::tail_mask16(n), src + x));
        _mm512_mask_storeu_epi8(dst + 4 * x, simd::tail_mask64(4 * n), _mm512_shuffle_epi8(s, idx));
    }
}

void dup_row_scalar(const std::uint8_t* src, std::uint8_t* dst, std::int64_t width, int channels) {
    for (std::int64_t x = 0; x < width; ++x)
        for (int c = 0; c < channels; ++c) dst[x * channels + c] = src[x];
}

}  // namespace gex

GEX_EXPORT(GexStatus, gexiDup_8u_C1C3R,
           (const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize)) {
    return dup_2d<3>(pSrc, srcStep, pDst, dstStep, roiSize, &dup_row_c1c3);
}

GEX_EXPORT(GexStatus, gexiDup_8u_C1C4R,
           (const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize)) {
    return dup_2d<4>(pSrc, srcStep, pDst, dstStep, roiSize, &dup_row_c1c4);
}
