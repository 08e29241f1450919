// Row kernels of BinToGray and GrayToBin.
//
// A bit row is addressed by a byte pointer and a bit offset b in 0..7 (the
// wrappers move whole bytes of a larger offset into the pointer); pixel x is
// bit b + x, least significant bit first within a byte. A row of w pixels
// touches the bytes 0 .. (b + w - 1) / 8 and no other.
//
// The vector kernels move 64 pixels per step as one 64-bit word: BinToGray
// reads the word (a masked load of at most nine bytes, shifted by b) and
// uses it as the blend mask of the pixel vectors; GrayToBin forms the word
// from compare masks (_mm512_cmpgt_epu8_mask gives 64 bits for 64 bytes),
// shifts it into place with the bits carried from the word before, and
// stores its bytes, merging the bits outside the row into the first and the
// last byte. Each kernel has a bit-by-bit scalar twin.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "gexdefs.h"

// GCC 12 takes the undefined pass-through operand inside the unmasked
// conversion and min/max intrinsics for an uninitialised variable; the
// warning is about the compiler's own headers, so it is off for the kernels.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::bin_gray_kernels {

inline __mmask16 byte_mask(std::int64_t n) { return n >= 16 ? __mmask16(0xffff) : __mmask16((1u << n) - 1); }

// Bits b + 64k .. b + 64k + 63 of a row whose bit span ends in byte
// nbytes - 1; bits past that byte read as 0.
inline std::uint64_t load_word(const Gex8u* p, std::int64_t nbytes, std::int64_t k, int b) {
    const std::int64_t at = 8 * k;
    const std::int64_t want = b == 0 ? 8 : 9;
    const __m128i v = _mm_maskz_loadu_epi8(byte_mask(std::min(want, nbytes - at)), p + at);
    const std::uint64_t lo = static_cast<std::uint64_t>(_mm_cvtsi128_si64(v));
    if (b == 0) return lo;
    const std::uint64_t hi = static_cast<std::uint8_t>(_mm_extract_epi8(v, 8));
    return (lo >> b) | (hi << (64 - b));
}

// ---- BinToGray ----------------------------------------------------------------

// The pixels of 64 bits (n of them, n <= 64) from the word's bits.
template <class D>
inline void spread(std::uint64_t bits, D* d, std::int64_t n, D lo, D hi) {
    if constexpr (sizeof(D) == 1) {
        const __m512i l = _mm512_set1_epi8(static_cast<char>(lo)), h = _mm512_set1_epi8(static_cast<char>(hi));
        const __mmask64 m = n >= 64 ? ~__mmask64(0) : (__mmask64(1) << n) - 1;
        _mm512_mask_storeu_epi8(d, m, _mm512_mask_blend_epi8(bits, l, h));
    } else if constexpr (sizeof(D) == 2) {
        const __m512i l = _mm512_set1_epi16(static_cast<short>(lo)), h = _mm512_set1_epi16(static_cast<short>(hi));
        for (int q = 0; q < 2 && 32 * q < n; ++q) {
            const std::int64_t r = n - 32 * q;
            const __mmask32 m = r >= 32 ? ~__mmask32(0) : (__mmask32(1) << r) - 1;
            _mm512_mask_storeu_epi16(d + 32 * q, m, _mm512_mask_blend_epi16(static_cast<__mmask32>(bits >> (32 * q)), l, h));
        }
    } else {
        static_assert(std::is_same_v<D, Gex32f>);
        const __m512 l = _mm512_set1_ps(lo), h = _mm512_set1_ps(hi);
        for (int q = 0; q < 4 && 16 * q < n; ++q) {
            const std::int64_t r = n - 16 * q;
            const __mmask16 m = r >= 16 ? __mmask16(0xffff) : __mmask16((1u << r) - 1);
            _mm512_mask_storeu_ps(d + 16 * q, m, _mm512_mask_blend_ps(static_cast<__mmask16>(bits >> (16 * q)), l, h));
        }
    }
}

template <class D>
inline void bin_to_gray_row(const Gex8u* s, int b, D* d, std::int64_t w, D lo, D hi) {
    const std::int64_t nbytes = (b + w + 7) >> 3;
    for (std::int64_t k = 0; 64 * k < w; ++k)
        spread(load_word(s, nbytes, k, b), d + 64 * k, std::min<std::int64_t>(64, w - 64 * k), lo, hi);
}

template <class D>
inline void bin_to_gray_row_ref(const Gex8u* s, int b, D* d, std::int64_t w, D lo, D hi) {
    for (std::int64_t x = 0; x < w; ++x) {
        const std::int64_t bit = b + x;
        d[x] = ((s[bit >> 3] >> (bit & 7)) & 1) ? hi : lo;
    }
}

// ---- GrayToBin ----------------------------------------------------------------

// Bit i set when threshold < s[i], for i < n (n <= 64); higher bits 0.
template <class S>
inline std::uint64_t gray_word(const S* s, std::int64_t n, S thr) {
    if constexpr (sizeof(S) == 1) {
        const __mmask64 m = n >= 64 ? ~__mmask64(0) : (__mmask64(1) << n) - 1;
        return _mm512_mask_cmpgt_epu8_mask(m, _mm512_maskz_loadu_epi8(m, s), _mm512_set1_epi8(static_cast<char>(thr)));
    } else if constexpr (sizeof(S) == 2) {
        const __m512i t = _mm512_set1_epi16(static_cast<short>(thr));
        std::uint64_t w = 0;
        for (int q = 0; q < 2 && 32 * q < n; ++q) {
            const std::int64_t r = n - 32 * q;
            const __mmask32 m = r >= 32 ? ~__mmask32(0) : (__mmask32(1) << r) - 1;
            const __m512i v = _mm512_maskz_loadu_epi16(m, s + 32 * q);
            const __mmask32 c = std::is_signed_v<S> ? _mm512_mask_cmpgt_epi16_mask(m, v, t)
                                                    : _mm512_mask_cmpgt_epu16_mask(m, v, t);
            w |= static_cast<std::uint64_t>(c) << (32 * q);
        }
        return w;
    } else {
        static_assert(std::is_same_v<S, Gex32f>);
        const __m512 t = _mm512_set1_ps(thr);
        std::uint64_t w = 0;
        for (int q = 0; q < 4 && 16 * q < n; ++q) {
            const std::int64_t r = n - 16 * q;
            const __mmask16 m = r >= 16 ? __mmask16(0xffff) : __mmask16((1u << r) - 1);
            // threshold < pixel, false for NaN.
            const __mmask16 c = _mm512_mask_cmp_ps_mask(m, t, _mm512_maskz_loadu_ps(m, s + 16 * q), _CMP_LT_OQ);
            w |= static_cast<std::uint64_t>(c) << (16 * q);
        }
        return w;
    }
}

template <class S>
inline void gray_to_bin_row(const S* s, Gex8u* d, int b, std::int64_t w, S thr) {
    const std::int64_t nbytes = (b + w + 7) >> 3;
    const int endBits = static_cast<int>((b + w) & 7);
    // Bits of the first and last byte that lie outside the row keep their values.
    const std::uint64_t keepFirst = (std::uint64_t{1} << b) - 1;
    const std::uint64_t keepLast = endBits ? (0xffu << endBits) & 0xffu : 0;
    const std::uint64_t oldFirst = d[0], oldLast = d[nbytes - 1];
    auto put = [&](std::int64_t at, std::uint64_t word, std::int64_t cnt) {
        if (at == 0) word = (word & ~keepFirst) | (oldFirst & keepFirst);
        if (at + cnt == nbytes) {
            const int sh = static_cast<int>(8 * (cnt - 1));
            word = (word & ~(keepLast << sh)) | ((oldLast & keepLast) << sh);
        }
        _mm_mask_storeu_epi8(d + at, byte_mask(cnt), _mm_cvtsi64_si128(static_cast<long long>(word)));
    };
    std::uint64_t carry = 0;
    std::int64_t at = 0;
    for (std::int64_t x = 0; x < w; x += 64, at += 8) {
        const std::uint64_t bits = gray_word(s + x, std::min<std::int64_t>(64, w - x), thr);
        put(at, (bits << b) | carry, std::min<std::int64_t>(8, nbytes - at));
        carry = b ? bits >> (64 - b) : 0;
    }
    if (at < nbytes) put(at, carry, nbytes - at);  // the bits the offset pushed past the last word
}

template <class S>
inline void gray_to_bin_row_ref(const S* s, Gex8u* d, int b, std::int64_t w, S thr) {
    for (std::int64_t x = 0; x < w; ++x) {
        const std::int64_t bit = b + x;
        const Gex8u m = static_cast<Gex8u>(1u << (bit & 7));
        if (thr < s[x]) d[bit >> 3] = static_cast<Gex8u>(d[bit >> 3] | m);
        else d[bit >> 3] = static_cast<Gex8u>(d[bit >> 3] & ~m);
    }
}

}  // namespace gex::bin_gray_kernels

#pragma GCC diagnostic pop
