// Transposition kernels, shared by Transpose and by the diagonal flips of
// Mirror. They work on pixels of P bytes (element size x channels), so that
// every depth and layout with the same pixel size runs the same code.
//
// P = 1, 2, 4, 8: vector blocks. A block is L = 16/P source rows by 64/P
// source columns, one 512-bit register per row. log2(L) rounds of in-lane
// unpacks (bytes, words, dwords, qwords) transpose the four L x L squares of
// the four 128-bit lanes at once; lane q of register j then holds source
// column qL + j, which is stored as 16 bytes of a destination row. Partial
// blocks at the right and bottom edges use masked loads and stores, so no
// byte outside either ROI is read or written.
// P = 3, 6, 12, 16: scalar, in 32 x 32 tiles.
//
// The other diagonal (Mirror flip 4) is the transpose of the source turned
// by 180 degrees; its blocks read source rows bottom-up and reverse each
// loaded register (P = 1, 2, 4 only).
#pragma once

#include <immintrin.h>

#include <cstdint>

namespace gex::transpose_kernels {

// The order of the U-byte units of a register reversed (U = 1, 2, 4, 8, 16).
template <int U>
inline __m512i reverse_units(__m512i v) {
    if constexpr (U == 1) {
        const __m512i r = _mm512_set_epi64(0x0001020304050607, 0x08090a0b0c0d0e0f, 0x0001020304050607,
                                           0x08090a0b0c0d0e0f, 0x0001020304050607, 0x08090a0b0c0d0e0f,
                                           0x0001020304050607, 0x08090a0b0c0d0e0f);
        v = _mm512_shuffle_epi8(v, r);
        return _mm512_shuffle_i64x2(v, v, 0x1b);
    } else if constexpr (U == 2) {
        const __m512i r = _mm512_set_epi16(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19,
                                           20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31);
        return _mm512_permutexvar_epi16(r, v);
    } else if constexpr (U == 4) {
        return _mm512_permutexvar_epi32(_mm512_set_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15), v);
    } else if constexpr (U == 8) {
        return _mm512_permutexvar_epi64(_mm512_set_epi64(0, 1, 2, 3, 4, 5, 6, 7), v);
    } else {
        static_assert(U == 16);
        return _mm512_shuffle_i64x2(v, v, 0x1b);
    }
}

// dst(x = y', y = x') = src(x', y') for a width x height source; the
// destination is height wide and width high.
void transpose_2d(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                  std::int64_t width, std::int64_t height, int P);

// dst(x, y) = src(width - 1 - y, height - 1 - x); P = 1, 2 or 4.
void anti_transpose_2d(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                       std::int64_t width, std::int64_t height, int P);

// An n x n square transposed in place, tile pair by tile pair through a
// 16 KB buffer on the stack.
void transpose_square_inplace(std::uint8_t* p, std::int64_t step, std::int64_t n, int P);

// Scalar twins (the reference of the tests).
void transpose_ref(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                   std::int64_t width, std::int64_t height, int P);
void anti_transpose_ref(const std::uint8_t* src, std::int64_t srcStep, std::uint8_t* dst, std::int64_t dstStep,
                        std::int64_t width, std::int64_t height, int P);

}  // namespace gex::transpose_kernels
