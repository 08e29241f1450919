// SIMD helpers for 512-bit row kernels: masks for row tails, masked loads and
// stores by element size, the repeating masks of the AC4 layout and the store
// fence of non-temporal paths. Kernels never touch memory outside a row: a
// masked load or store of a lane that is off is no access at all.
#pragma once

#include <immintrin.h>

#include <cstdint>

namespace gex::simd {

constexpr int kVecBytes = 64;

// Mask with the low n bits set, n in [0, bits of the mask].
inline __mmask64 tail_mask64(std::int64_t n) { return n >= 64 ? ~__mmask64(0) : (__mmask64(1) << n) - 1; }
inline __mmask32 tail_mask32(std::int64_t n) { return n >= 32 ? ~__mmask32(0) : (__mmask32(1) << n) - 1; }
inline __mmask16 tail_mask16(std::int64_t n) { return n >= 16 ? __mmask16(0xffff) : __mmask16((1u << n) - 1); }
inline __mmask8 tail_mask8(std::int64_t n) { return n >= 8 ? __mmask8(0xff) : __mmask8((1u << n) - 1); }

// Elements of size E in one vector.
template <int E>
constexpr int lanes = kVecBytes / E;

// Mask type and tail mask by element size.
template <int E> struct Mask;
template <> struct Mask<1> { using type = __mmask64; static type tail(std::int64_t n) { return tail_mask64(n); } };
template <> struct Mask<2> { using type = __mmask32; static type tail(std::int64_t n) { return tail_mask32(n); } };
template <> struct Mask<4> { using type = __mmask16; static type tail(std::int64_t n) { return tail_mask16(n); } };
template <> struct Mask<8> { using type = __mmask8;  static type tail(std::int64_t n) { return tail_mask8(n); } };

template <int E>
inline __m512i load_masked(const void* p, typename Mask<E>::type m) {
    if constexpr (E == 1) return _mm512_maskz_loadu_epi8(m, p);
    else if constexpr (E == 2) return _mm512_maskz_loadu_epi16(m, p);
    else if constexpr (E == 4) return _mm512_maskz_loadu_epi32(m, p);
    else return _mm512_maskz_loadu_epi64(m, p);
}

template <int E>
inline void store_masked(void* p, typename Mask<E>::type m, __m512i v) {
    if constexpr (E == 1) _mm512_mask_storeu_epi8(p, m, v);
    else if constexpr (E == 2) _mm512_mask_storeu_epi16(p, m, v);
    else if constexpr (E == 4) _mm512_mask_storeu_epi32(p, m, v);
    else _mm512_mask_storeu_epi64(p, m, v);
}

template <int E>
inline __m512i set1(std::uint64_t v) {
    if constexpr (E == 1) return _mm512_set1_epi8(static_cast<char>(v));
    else if constexpr (E == 2) return _mm512_set1_epi16(static_cast<short>(v));
    else if constexpr (E == 4) return _mm512_set1_epi32(static_cast<int>(v));
    else return _mm512_set1_epi64(static_cast<long long>(v));
}

// The lanes of the first three channels of every AC4 pixel in a vector of
// elements of size E: the pattern 0111 repeated.
template <int E>
constexpr typename Mask<E>::type ac4_mask() {
    if constexpr (E == 1) return 0x7777777777777777ULL;
    else if constexpr (E == 2) return 0x77777777u;
    else if constexpr (E == 4) return 0x7777;
    else return 0x77;
}

// Any mask byte non-zero -> lane on. Saturating addition of 0x7f sets the top
// bit of every non-zero byte.
inline __mmask64 nonzero_bytes(__m512i m) {
    return _mm512_movepi8_mask(_mm512_adds_epu8(m, _mm512_set1_epi8(0x7f)));
}

inline void store_fence() { _mm_sfence(); }

}  // namespace gex::simd
