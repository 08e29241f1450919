// Row kernels of the channel-changing and masked copies.
//
// Every kernel is a template over the unsigned element type U of the pixel's
// width (std::uint8_t for 8u, std::uint16_t for 16u/16s, std::uint32_t for
// 32s/32f): a copy moves bits, so the five depths share three instantiations.
// Each vector kernel (..._vec) has a plain scalar twin (..._ref) that states
// what it computes; the tests hold the two against each other.
//
// The 3- and 4-channel shuffles are written once for all widths, in 16-byte
// lanes with byte shuffles (no byte permutes across lanes in this tier):
//
//  * Three channels. 64 bytes per plane are 3 vectors a, b, c of the
//    interleaved stream, 12 lanes s0..s11. Every 3 consecutive lanes (48
//    bytes) hold a whole number of pixels (16, 8 or 4), so the lanes are
//    regrouped as X = [s0 s3 s6 s9], Y = [s1 s4 s7 s10], Z = [s2 s5 s8 s11]:
//    lane k of X, Y, Z together is pixel group k. Within lanes, three byte
//    shuffles per plane and an OR split a group into its planes, whose lane k
//    then holds the plane's pixels of group k, in order. Merging runs the
//    same steps backwards.
//  * Four channels. A lane holds whole pixels; a byte shuffle sorts a lane
//    into four dwords, one per channel, and dword permutes across two vectors
//    gather a plane (or, backwards, a stream vector).
//  * One channel of three, or one into three, for 16- and 32-bit elements:
//    element permutes reach across vectors directly (Pick3, Repeat3), which
//    is cheaper than the lane regrouping.
//
// Row ends are handled by the same block code on masked loads and stores:
// no kernel touches memory outside the row's elements.
#pragma once

#include <immintrin.h>

#include <array>
#include <cstdint>
#include <type_traits>

#include "frame/simd.hpp"

// GCC 12 reports the deliberately undefined pass-through operand inside some
// intrinsics (broadcast, permute) as uninitialised once they are inlined here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::chan {

using Table16 = std::array<std::uint8_t, 16>;
constexpr std::uint8_t kZ = 0x80;  // a byte-shuffle index that yields 0

template <class U> constexpr int kE = static_cast<int>(sizeof(U));  // bytes per element
template <class U> constexpr int kL = 64 / kE<U>;                    // elements per vector

// ---- small helpers ---------------------------------------------------------

inline __m512i bcast(const Table16& t) {
    return _mm512_broadcast_i32x4(_mm_loadu_si128(reinterpret_cast<const __m128i*>(t.data())));
}

inline __m512i or3(__m512i a, __m512i b, __m512i c) { return _mm512_ternarylogic_epi32(a, b, c, 0xfe); }

// Mask of the first n elements of a vector of U, n clamped to [0, lanes].
template <class U>
inline typename simd::Mask<kE<U>>::type head(std::int64_t n) {
    return simd::Mask<kE<U>>::tail(n < 0 ? 0 : n);
}
// Mask of the first n bytes, n clamped to [0, 64].
inline __mmask64 head_bytes(std::int64_t n) { return simd::tail_mask64(n < 0 ? 0 : n); }

inline __m512i load_bytes(const void* p, std::int64_t n) { return _mm512_maskz_loadu_epi8(head_bytes(n), p); }

template <class U>
inline void store(U* p, __m512i v) { _mm512_storeu_si512(p, v); }

// Lanes whose element test is non-zero.
template <class U>
inline typename simd::Mask<kE<U>>::type nonzero(__m512i v) {
    if constexpr (kE<U> == 1) return _mm512_test_epi8_mask(v, v);
    else if constexpr (kE<U> == 2) return _mm512_test_epi16_mask(v, v);
    else return _mm512_test_epi32_mask(v, v);
}

// Element mask of one stream vector r of an n-channel block: the elements
// that belong to channel 0 of their pixel.
template <class U, int N>
constexpr std::uint64_t channel0_bits(int r) {
    std::uint64_t m = 0;
    for (int j = 0; j < kL<U>; ++j)
        if ((r * kL<U> + j) % N == 0) m |= std::uint64_t(1) << j;
    return m;
}

// L mask bytes (one per pixel) widened to one element each, so that the
// channel spreads below can replicate them like pixels.
template <class U>
inline __m512i load_mask_elems(const std::uint8_t* m, std::int64_t n) {
    if constexpr (kE<U> == 1) return load_bytes(m, n);
    else if constexpr (kE<U> == 2)
        return _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(simd::tail_mask32(n < 0 ? 0 : n), m));
    else return _mm512_cvtepu8_epi32(_mm_maskz_loadu_epi8(simd::tail_mask16(n < 0 ? 0 : n), m));
}

// ---- tables ----------------------------------------------------------------

// Split of a 3-channel group: plane P's bytes found in group lane Q.
template <int E, int P, int Q>
constexpr Table16 make_split3() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int s = ((o / E) * 3 + P) * E + o % E;
        t[o] = (s / 16 == Q) ? std::uint8_t(s % 16) : kZ;
    }
    return t;
}
// Merge into a 3-channel group: group lane Q's bytes found in plane P.
template <int E, int Q, int P>
constexpr Table16 make_merge3() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int s = 16 * Q + o;
        const int pixel = s / (3 * E), ch = (s / E) % 3;
        t[o] = (ch == P) ? std::uint8_t(pixel * E + s % E) : kZ;
    }
    return t;
}
// Spread of one plane to all three channels of group lane Q.
template <int E, int Q>
constexpr Table16 make_spread3() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int s = 16 * Q + o;
        t[o] = std::uint8_t((s / (3 * E)) * E + s % E);
    }
    return t;
}
// A lane of 4-channel pixels sorted into one dword per channel.
template <int E>
constexpr Table16 make_sort4() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int ch = o / 4, j = o % 4;
        t[o] = std::uint8_t(((j / E) * 4 + ch) * E + j % E);
    }
    return t;
}
// The inverse: channel dwords back to interleaved pixels.
template <int E>
constexpr Table16 make_unsort4() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int pixel = o / (4 * E), ch = (o / E) % 4;
        t[o] = std::uint8_t(ch * 4 + pixel * E + o % E);
    }
    return t;
}
// Three channels (12 bytes at the lane's start) to a lane of 4-channel pixels;
// the fourth channel's bytes are left zero (they are never stored).
template <int E>
constexpr Table16 make_c3to4() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int pixel = o / (4 * E), ch = (o / E) % 4;
        t[o] = ch < 3 ? std::uint8_t((pixel * 3 + ch) * E + o % E) : kZ;
    }
    return t;
}
// A lane of 4-channel pixels to its first three channels, packed in 12 bytes.
template <int E>
constexpr Table16 make_c4to3() {
    Table16 t{};
    for (int o = 0; o < 16; ++o) {
        const int pixel = o / (3 * E), ch = (o / E) % 3;
        t[o] = o < 12 ? std::uint8_t((pixel * 4 + ch) * E + o % E) : kZ;
    }
    return t;
}

template <int E, int P, int Q> inline constexpr Table16 kSplit3 = make_split3<E, P, Q>();
template <int E, int Q, int P> inline constexpr Table16 kMerge3 = make_merge3<E, Q, P>();
template <int E, int Q> inline constexpr Table16 kSpread3 = make_spread3<E, Q>();
template <int E> inline constexpr Table16 kSort4 = make_sort4<E>();
template <int E> inline constexpr Table16 kUnsort4 = make_unsort4<E>();
template <int E> inline constexpr Table16 kC3to4 = make_c3to4<E>();
template <int E> inline constexpr Table16 kC4to3 = make_c4to3<E>();

// ---- lane regrouping of three vectors ----------------------------------------

struct Tri {
    __m512i v0, v1, v2;
};

// Stream vectors a, b, c -> group lanes X = [a0 a3 b2 c1], Y = [a1 b0 b3 c2],
// Z = [a2 b1 c0 c3].
inline Tri stream_to_groups(__m512i a, __m512i b, __m512i c) {
    const __m512i tx = _mm512_permutex2var_epi64(a, _mm512_setr_epi64(0, 1, 6, 7, 12, 13, 0, 0), b);
    const __m512i ty = _mm512_permutex2var_epi64(a, _mm512_setr_epi64(2, 3, 8, 9, 14, 15, 0, 0), b);
    const __m512i tz = _mm512_permutex2var_epi64(b, _mm512_setr_epi64(0, 0, 2, 3, 8, 9, 14, 15), c);
    return {_mm512_mask_shuffle_i64x2(tx, 0xc0, c, c, 0x40), _mm512_mask_shuffle_i64x2(ty, 0xc0, c, c, 0x80),
            _mm512_mask_shuffle_i64x2(tz, 0x03, a, a, 0x02)};
}

// Group lanes X, Y, Z -> stream vectors a = [X0 Y0 Z0 X1], b = [Y1 Z1 X2 Y2],
// c = [Z2 X3 Y3 Z3].
inline Tri groups_to_stream(__m512i x, __m512i y, __m512i z) {
    const __m512i ta = _mm512_permutex2var_epi64(x, _mm512_setr_epi64(0, 1, 8, 9, 0, 0, 2, 3), y);
    const __m512i tb = _mm512_permutex2var_epi64(y, _mm512_setr_epi64(2, 3, 10, 11, 0, 0, 4, 5), z);
    const __m512i tc = _mm512_permutex2var_epi64(z, _mm512_setr_epi64(4, 5, 14, 15, 0, 0, 6, 7), x);
    return {_mm512_mask_shuffle_i64x2(ta, 0x30, z, z, 0x00), _mm512_mask_shuffle_i64x2(tb, 0x30, x, x, 0x20),
            _mm512_mask_shuffle_i64x2(tc, 0x30, y, y, 0x30)};
}

// ---- three channels: split, merge, spread -------------------------------------

template <class U>
struct Split3 {
    static constexpr int E = kE<U>;
    __m512i t[3][3];
    Split3() {
        t[0][0] = bcast(kSplit3<E, 0, 0>); t[0][1] = bcast(kSplit3<E, 0, 1>); t[0][2] = bcast(kSplit3<E, 0, 2>);
        t[1][0] = bcast(kSplit3<E, 1, 0>); t[1][1] = bcast(kSplit3<E, 1, 1>); t[1][2] = bcast(kSplit3<E, 1, 2>);
        t[2][0] = bcast(kSplit3<E, 2, 0>); t[2][1] = bcast(kSplit3<E, 2, 1>); t[2][2] = bcast(kSplit3<E, 2, 2>);
    }
    // Plane p of the block held by group lanes g.
    __m512i plane(const Tri& g, int p) const {
        return or3(_mm512_shuffle_epi8(g.v0, t[p][0]), _mm512_shuffle_epi8(g.v1, t[p][1]),
                   _mm512_shuffle_epi8(g.v2, t[p][2]));
    }
};

template <class U>
struct Merge3 {
    static constexpr int E = kE<U>;
    __m512i t[3][3];
    Merge3() {
        t[0][0] = bcast(kMerge3<E, 0, 0>); t[0][1] = bcast(kMerge3<E, 0, 1>); t[0][2] = bcast(kMerge3<E, 0, 2>);
        t[1][0] = bcast(kMerge3<E, 1, 0>); t[1][1] = bcast(kMerge3<E, 1, 1>); t[1][2] = bcast(kMerge3<E, 1, 2>);
        t[2][0] = bcast(kMerge3<E, 2, 0>); t[2][1] = bcast(kMerge3<E, 2, 1>); t[2][2] = bcast(kMerge3<E, 2, 2>);
    }
    Tri stream(__m512i p0, __m512i p1, __m512i p2) const {
        const __m512i x = or3(_mm512_shuffle_epi8(p0, t[0][0]), _mm512_shuffle_epi8(p1, t[0][1]),
                              _mm512_shuffle_epi8(p2, t[0][2]));
        const __m512i y = or3(_mm512_shuffle_epi8(p0, t[1][0]), _mm512_shuffle_epi8(p1, t[1][1]),
                              _mm512_shuffle_epi8(p2, t[1][2]));
        const __m512i z = or3(_mm512_shuffle_epi8(p0, t[2][0]), _mm512_shuffle_epi8(p1, t[2][1]),
                              _mm512_shuffle_epi8(p2, t[2][2]));
        return groups_to_stream(x, y, z);
    }
};

// One plane vector to three stream vectors in which every channel of a pixel
// holds the plane's value.
template <class U>
struct Spread3 {
    static constexpr int E = kE<U>;
    __m512i t0 = bcast(kSpread3<E, 0>), t1 = bcast(kSpread3<E, 1>), t2 = bcast(kSpread3<E, 2>);
    Tri stream(__m512i v) const {
        return groups_to_stream(_mm512_shuffle_epi8(v, t0), _mm512_shuffle_epi8(v, t1),
                                _mm512_shuffle_epi8(v, t2));
    }
};

// ---- four channels: split, merge, spread ---------------------------------------

using Index16 = std::array<std::int32_t, 16>;

// Dword indices that gather channel c of four sorted vectors (r0:r1 and r2:r3
// through the same index): plane dword d = vector d/4, lane d%4, dword c.
constexpr Index16 make_gather4(int c) {
    Index16 ix{};
    for (int d = 0; d < 16; ++d) ix[d] = ((d / 4) & 1) * 16 + 4 * (d % 4) + c;
    return ix;
}
// Dword indices that build sorted stream vector r from planes (p0:p1 and
// p2:p3): dword 4k+c = plane c, dword 4r+k.
constexpr Index16 make_scatter4(int r) {
    Index16 ix{};
    for (int d = 0; d < 16; ++d) ix[d] = (d & 1) * 16 + 4 * r + d / 4;
    return ix;
}
// Dword indices that repeat plane dword 4r+k in all four dwords of lane k.
constexpr Index16 make_repeat4(int r) {
    Index16 ix{};
    for (int d = 0; d < 16; ++d) ix[d] = 4 * r + d / 4;
    return ix;
}
template <int C> inline constexpr Index16 kGather4 = make_gather4(C);
template <int R> inline constexpr Index16 kScatter4 = make_scatter4(R);
template <int R> inline constexpr Index16 kRepeat4 = make_repeat4(R);

inline __m512i load_index(const Index16& ix) { return _mm512_loadu_si512(ix.data()); }

template <class U>
struct Split4 {
    static constexpr int E = kE<U>;
    __m512i sort = bcast(kSort4<E>);
    __m512i ix[4] = {load_index(kGather4<0>), load_index(kGather4<1>), load_index(kGather4<2>),
                     load_index(kGather4<3>)};
    __m512i sorted(__m512i v) const {
        if constexpr (E == 4) return v;  // a lane already is one pixel, channel by dword
        else return _mm512_shuffle_epi8(v, sort);
    }
    // Plane c from four sorted stream vectors.
    __m512i plane(const __m512i s[4], int c) const {
        return _mm512_mask_blend_epi32(0xff00, _mm512_permutex2var_epi32(s[0], ix[c], s[1]),
                                       _mm512_permutex2var_epi32(s[2], ix[c], s[3]));
    }
};

template <class U>
struct Merge4 {
    static constexpr int E = kE<U>;
    __m512i unsort = bcast(kUnsort4<E>);
    __m512i ix[4] = {load_index(kScatter4<0>), load_index(kScatter4<1>), load_index(kScatter4<2>),
                     load_index(kScatter4<3>)};
    __m512i interleaved(__m512i v) const {
        if constexpr (E == 4) return v;
        else return _mm512_shuffle_epi8(v, unsort);
    }
    // Stream vector r from four planes.
    __m512i stream(const __m512i p[4], int r) const {
        return interleaved(_mm512_mask_blend_epi32(0xcccc, _mm512_permutex2var_epi32(p[0], ix[r], p[1]),
                                                   _mm512_permutex2var_epi32(p[2], ix[r], p[3])));
    }
};

// One plane vector to four stream vectors with the plane's value in every
// channel of a pixel.
template <class U>
struct Spread4 {
    static constexpr int E = kE<U>;
    __m512i unsort = bcast(kUnsort4<E>);
    __m512i ix[4] = {load_index(kRepeat4<0>), load_index(kRepeat4<1>), load_index(kRepeat4<2>),
                     load_index(kRepeat4<3>)};
    __m512i stream(__m512i v, int r) const {
        const __m512i rep = _mm512_permutexvar_epi32(ix[r], v);
        if constexpr (E == 4) return rep;
        else return _mm512_shuffle_epi8(rep, unsort);
    }
};

// ---- element permutes for 16- and 32-bit elements -------------------------------

// An index vector of L elements of U, element j = f(j).
template <class U, class F>
inline __m512i index_of(F f) {
    alignas(64) U ix[kL<U>];
    for (int j = 0; j < kL<U>; ++j) ix[j] = static_cast<U>(f(j));
    return _mm512_load_si512(ix);
}

template <class U>
inline __m512i permute(__m512i idx, __m512i v) {
    if constexpr (kE<U> == 2) return _mm512_permutexvar_epi16(idx, v);
    else return _mm512_permutexvar_epi32(idx, v);
}
template <class U>
inline __m512i permute2(__m512i a, __m512i idx, __m512i b) {
    if constexpr (kE<U> == 2) return _mm512_permutex2var_epi16(a, idx, b);
    else return _mm512_permutex2var_epi32(a, idx, b);
}
template <class U>
inline __m512i mask_permute(__m512i src, typename simd::Mask<kE<U>>::type k, __m512i idx, __m512i v) {
    if constexpr (kE<U> == 2) return _mm512_mask_permutexvar_epi16(src, k, idx, v);
    else return _mm512_mask_permutexvar_epi32(src, k, idx, v);
}

// Every third element of three vectors r0 r1 r2: elements 3j below 2L come
// from r0:r1, the others from r2.
template <class U>
struct Pick3 {
    static constexpr int L = kL<U>;
    using M = typename simd::Mask<kE<U>>::type;
    __m512i lo = index_of<U>([](int j) { return 3 * j < 2 * L ? 3 * j : 0; });
    __m512i hi = index_of<U>([](int j) { return 3 * j < 2 * L ? 0 : 3 * j - 2 * L; });
    M from_r2 = M(~M(0) << ((2 * L + 2) / 3));
    __m512i operator()(__m512i r0, __m512i r1, __m512i r2) const {
        return mask_permute<U>(permute2<U>(r0, lo, r1), from_r2, hi, r2);
    }
};

// One vector of pixels repeated three times over stream vector r.
template <class U>
struct Repeat3 {
    static constexpr int L = kL<U>;
    __m512i ix[3] = {index_of<U>([](int j) { return j / 3; }), index_of<U>([](int j) { return (L + j) / 3; }),
                     index_of<U>([](int j) { return (2 * L + j) / 3; })};
    __m512i operator()(__m512i v, int r) const { return permute<U>(ix[r], v); }
};

// =============================================================================
// Row kernels. w counts pixels; pointers address the row's first element (of
// the selected channel where a channel is selected by the pointer).
// =============================================================================

// ---- C3C1, C4C1: dst[x] = src[x*N] ---------------------------------------------

template <class U, int N>
void extract_ref(const U* s, U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x) d[x] = s[x * N];
}

template <class U, int N>
void extract_vec(const U* s, U* d, std::int64_t w) {
    constexpr int L = kL<U>;
    // The last pixel of a row is its channel's element only: stream element
    // N*(w-1) is the row's last readable one, so the block reads at most
    // N*(rem-1)+1 elements.
    if constexpr (N == 3 && kE<U> > 1) {
        const Pick3<U> pick;
        std::int64_t x = 0;
        for (; x + L < w; x += L) {
            const U* p = s + 3 * x;
            store(d + x, pick(_mm512_loadu_si512(p), _mm512_loadu_si512(p + L), _mm512_loadu_si512(p + 2 * L)));
        }
        const std::int64_t bytes = (3 * (w - x) - 2) * kE<U>;
        const U* p = s + 3 * x;
        simd::store_masked<kE<U>>(d + x, head<U>(w - x),
                                  pick(load_bytes(p, bytes), load_bytes(p + L, bytes - 64),
                                       load_bytes(p + 2 * L, bytes - 128)));
    } else if constexpr (N == 3) {
        const Split3<U> sp;
        std::int64_t x = 0;
        for (; x + L < w; x += L) {
            const U* p = s + 3 * x;
            const Tri g = stream_to_groups(_mm512_loadu_si512(p), _mm512_loadu_si512(p + L),
                                           _mm512_loadu_si512(p + 2 * L));
            store(d + x, sp.plane(g, 0));
        }
        const std::int64_t bytes = (3 * (w - x) - 2) * kE<U>;
        const U* p = s + 3 * x;
        const Tri g = stream_to_groups(load_bytes(p, bytes), load_bytes(p + L, bytes - 64),
                                       load_bytes(p + 2 * L, bytes - 128));
        simd::store_masked<kE<U>>(d + x, head<U>(w - x), sp.plane(g, 0));
    } else {
        const Split4<U> sp;
        std::int64_t x = 0;
        for (; x + L < w; x += L) {
            const U* p = s + 4 * x;
            const __m512i v[4] = {sp.sorted(_mm512_loadu_si512(p)), sp.sorted(_mm512_loadu_si512(p + L)),
                                  sp.sorted(_mm512_loadu_si512(p + 2 * L)),
                                  sp.sorted(_mm512_loadu_si512(p + 3 * L))};
            store(d + x, sp.plane(v, 0));
        }
        const std::int64_t bytes = (4 * (w - x) - 3) * kE<U>;
        const U* p = s + 4 * x;
        const __m512i v[4] = {sp.sorted(load_bytes(p, bytes)), sp.sorted(load_bytes(p + L, bytes - 64)),
                              sp.sorted(load_bytes(p + 2 * L, bytes - 128)),
                              sp.sorted(load_bytes(p + 3 * L, bytes - 192))};
        simd::store_masked<kE<U>>(d + x, head<U>(w - x), sp.plane(v, 0));
    }
}

// ---- C1C3, C1C4: dst[x*N] = src[x]; the other channels stay ----------------------

template <class U, int N>
void insert_ref(const U* s, U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x) d[x * N] = s[x];
}

template <class U, int N>
void insert_vec(const U* s, U* d, std::int64_t w) {
    constexpr int L = kL<U>;
    using M = typename simd::Mask<kE<U>>::type;
    [[maybe_unused]] const M m0 = M(channel0_bits<U, N>(0)), m1 = M(channel0_bits<U, N>(1)),
                             m2 = M(channel0_bits<U, N>(2));
    // The last element written is N*(w-1): a block's element count is N*rem-N+1.
    using Spread = std::conditional_t<N == 4, Spread4<U>, std::conditional_t<kE<U> == 1, Spread3<U>, Repeat3<U>>>;
    const Spread sp;
    auto block = [&](const __m512i v, U* q, std::int64_t elems) {
        if constexpr (N == 3 && kE<U> > 1) {
            simd::store_masked<kE<U>>(q, M(m0 & head<U>(elems)), sp(v, 0));
            simd::store_masked<kE<U>>(q + L, M(m1 & head<U>(elems - L)), sp(v, 1));
            simd::store_masked<kE<U>>(q + 2 * L, M(m2 & head<U>(elems - 2 * L)), sp(v, 2));
        } else if constexpr (N == 3) {
            const Tri t = sp.stream(v);
            simd::store_masked<kE<U>>(q, M(m0 & head<U>(elems)), t.v0);
            simd::store_masked<kE<U>>(q + L, M(m1 & head<U>(elems - L)), t.v1);
            simd::store_masked<kE<U>>(q + 2 * L, M(m2 & head<U>(elems - 2 * L)), t.v2);
        } else {
            for (int r = 0; r < 4; ++r)
                simd::store_masked<kE<U>>(q + r * L, M(m0 & head<U>(elems - r * L)), sp.stream(v, r));
        }
    };
    std::int64_t x = 0;
    for (; x + L <= w; x += L) block(_mm512_loadu_si512(s + x), d + N * x, N * L);
    if (x < w) block(simd::load_masked<kE<U>>(s + x, head<U>(w - x)), d + N * x, N * (w - x) - N + 1);
}

// ---- C3CR, C4CR: dst[x*N] = src[x*N]; the other channels stay ---------------------

template <class U, int N>
void channel_ref(const U* s, U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x) d[x * N] = s[x * N];
}

template <class U, int N>
void channel_vec(const U* s, U* d, std::int64_t w) {
    constexpr int L = kL<U>;
    constexpr int E = kE<U>;
    using M = typename simd::Mask<E>::type;
    // N vectors hold L pixels; the channel-0 masks of the N vectors repeat.
    M m[4] = {M(channel0_bits<U, N>(0)), M(channel0_bits<U, N>(1)), M(channel0_bits<U, N>(2)),
              M(channel0_bits<U, N>(3))};
    const std::int64_t n = N * (w - 1) + 1;  // elements from the first to the last selected one
    std::int64_t i = 0;
    for (; i + N * L <= n; i += N * L)
        for (int r = 0; r < N; ++r)
            simd::store_masked<E>(d + i + r * L, m[r], simd::load_masked<E>(s + i + r * L, m[r]));
    for (int r = 0; i + r * L < n; ++r) {
        const M k = M(m[r] & head<U>(n - i - r * L));
        simd::store_masked<E>(d + i + r * L, k, simd::load_masked<E>(s + i + r * L, k));
    }
}

// ---- C3AC4: three channels into the first three of four; the fourth stays --------

template <class U>
void c3ac4_ref(const U* s, U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) d[4 * x + c] = s[3 * x + c];
}

template <class U>
void c3ac4_vec(const U* s, U* d, std::int64_t w) {
    constexpr int E = kE<U>;
    constexpr int P = 16 / E;  // pixels per vector of 4-channel output
    using M = typename simd::Mask<E>::type;
    const __m512i spread = _mm512_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5, 6, 7, 8, 8, 9, 10, 11, 11);
    const __m512i tbl = bcast(kC3to4<E>);
    const M alpha_off = simd::ac4_mask<E>();
    auto block = [&](__m512i v) { return _mm512_shuffle_epi8(_mm512_permutexvar_epi32(spread, v), tbl); };
    std::int64_t x = 0;
    for (; x + P <= w; x += P)
        simd::store_masked<E>(d + 4 * x, alpha_off, block(_mm512_maskz_loadu_epi32(0x0fff, s + 3 * x)));
    if (x < w) {
        const std::int64_t rem = w - x;
        simd::store_masked<E>(d + 4 * x, M(alpha_off & head<U>(4 * rem)),
                              block(load_bytes(s + 3 * x, 3 * rem * E)));
    }
}

// ---- AC4C3: the first three channels of four to three ---------------------------

template <class U>
void ac4c3_ref(const U* s, U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) d[3 * x + c] = s[4 * x + c];
}

template <class U>
void ac4c3_vec(const U* s, U* d, std::int64_t w) {
    constexpr int E = kE<U>;
    constexpr int P = 16 / E;
    // The fourth channel is never loaded: the load mask skips its lanes.
    constexpr __mmask64 colour = E == 1   ? 0x7777777777777777ULL
                                 : E == 2 ? 0x3f3f3f3f3f3f3f3fULL
                                          : 0x0fff0fff0fff0fffULL;
    const __m512i pack = _mm512_setr_epi32(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0, 0, 0, 0);
    const __m512i tbl = bcast(kC4to3<E>);
    auto block = [&](__m512i v) { return _mm512_permutexvar_epi32(pack, _mm512_shuffle_epi8(v, tbl)); };
    std::int64_t x = 0;
    for (; x + P <= w; x += P)
        _mm512_mask_storeu_epi32(d + 3 * x, 0x0fff, block(_mm512_maskz_loadu_epi8(colour, s + 4 * x)));
    if (x < w) {
        const std::int64_t rem = w - x;
        const __m512i v = _mm512_maskz_loadu_epi8(colour & head_bytes(4 * rem * E), s + 4 * x);
        _mm512_mask_storeu_epi8(d + 3 * x, head_bytes(3 * rem * E), block(v));
    }
}

// ---- C3P3, P3C3, C4P4, P4C4 ----------------------------------------------------------
// With NT the full vectors go out with non-temporal stores, for data too large
// for the cache. Those stores need 64-byte aligned addresses, so a first
// partial block runs with ordinary stores up to the first aligned pixel; where
// no pixel count aligns all destinations, the row runs with ordinary stores.
// Either way the pixels are the same.

template <bool NT>
inline void put(void* p, __m512i v) {
    if constexpr (NT) _mm512_stream_si512(static_cast<__m512i*>(p), v);
    else _mm512_storeu_si512(p, v);
}

inline std::int64_t offset64(const void* p) { return static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(p) % 64); }

// Pixels before planes d[0..n) are 64-byte aligned together, or -1.
template <class U>
std::int64_t planar_peel(U* const* d, int n) {
    const std::int64_t a = offset64(d[0]);
    if (a % kE<U> != 0) return -1;
    for (int c = 1; c < n; ++c)
        if (offset64(d[c]) != a) return -1;
    return (64 - a) % 64 / kE<U>;
}

// Pixels of N channels before an interleaved destination is 64-byte aligned,
// or -1. For N = 3: 3p = -a (mod L), and 43 is the inverse of 3 modulo 64,
// 32 and 16.
template <class U, int N>
std::int64_t interleaved_peel(const U* d) {
    constexpr int L = kL<U>;
    const std::int64_t a = offset64(d);
    if (a % kE<U> != 0) return -1;
    const std::int64_t behind = (L - a / kE<U>) % L;  // elements to the next aligned address
    if constexpr (N == 3) return behind * 43 % L;
    else return behind % 4 == 0 ? behind / 4 : -1;
}

template <class U>
void split3_ref(const U* s, U* const d[3], std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) d[c][x] = s[3 * x + c];
}

template <class U, bool NT = false>
void split3_vec(const U* s, U* const d[3], std::int64_t w) {
    constexpr int L = kL<U>;
    const Split3<U> sp;
    U* const d0 = d[0];
    U* const d1 = d[1];
    U* const d2 = d[2];
    auto part = [&](std::int64_t x, std::int64_t rem) {
        const std::int64_t bytes = 3 * rem * kE<U>;
        const U* p = s + 3 * x;
        const Tri g = stream_to_groups(load_bytes(p, bytes), load_bytes(p + L, bytes - 64),
                                       load_bytes(p + 2 * L, bytes - 128));
        const auto k = head<U>(rem);
        simd::store_masked<kE<U>>(d0 + x, k, sp.plane(g, 0));
        simd::store_masked<kE<U>>(d1 + x, k, sp.plane(g, 1));
        simd::store_masked<kE<U>>(d2 + x, k, sp.plane(g, 2));
    };
    std::int64_t x = 0;
    if constexpr (NT) {
        const std::int64_t peel = planar_peel(d, 3);
        if (peel < 0) return split3_vec<U, false>(s, d, w);
        x = peel < w ? peel : w;
        if (x > 0) part(0, x);
    }
    for (; x + L <= w; x += L) {
        const U* p = s + 3 * x;
        const Tri g = stream_to_groups(_mm512_loadu_si512(p), _mm512_loadu_si512(p + L),
                                       _mm512_loadu_si512(p + 2 * L));
        put<NT>(d0 + x, sp.plane(g, 0));
        put<NT>(d1 + x, sp.plane(g, 1));
        put<NT>(d2 + x, sp.plane(g, 2));
    }
    if (x < w) part(x, w - x);
    if constexpr (NT) simd::store_fence();
}

template <class U>
void merge3_ref(const U* const s[3], U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 3; ++c) d[3 * x + c] = s[c][x];
}

template <class U, bool NT = false>
void merge3_vec(const U* const s[3], U* d, std::int64_t w) {
    constexpr int L = kL<U>;
    const Merge3<U> mg;
    const U* const s0 = s[0];
    const U* const s1 = s[1];
    const U* const s2 = s[2];
    auto part = [&](std::int64_t x, std::int64_t rem) {
        const std::int64_t bytes = 3 * rem * kE<U>;
        const auto k = head<U>(rem);
        const Tri t = mg.stream(simd::load_masked<kE<U>>(s0 + x, k), simd::load_masked<kE<U>>(s1 + x, k),
                                simd::load_masked<kE<U>>(s2 + x, k));
        U* q = d + 3 * x;
        _mm512_mask_storeu_epi8(q, head_bytes(bytes), t.v0);
        _mm512_mask_storeu_epi8(q + L, head_bytes(bytes - 64), t.v1);
        _mm512_mask_storeu_epi8(q + 2 * L, head_bytes(bytes - 128), t.v2);
    };
    std::int64_t x = 0;
    if constexpr (NT) {
        const std::int64_t peel = interleaved_peel<U, 3>(d);
        if (peel < 0) return merge3_vec<U, false>(s, d, w);
        x = peel < w ? peel : w;
        if (x > 0) part(0, x);
    }
    for (; x + L <= w; x += L) {
        const Tri t = mg.stream(_mm512_loadu_si512(s0 + x), _mm512_loadu_si512(s1 + x), _mm512_loadu_si512(s2 + x));
        U* q = d + 3 * x;
        put<NT>(q, t.v0);
        put<NT>(q + L, t.v1);
        put<NT>(q + 2 * L, t.v2);
    }
    if (x < w) part(x, w - x);
    if constexpr (NT) simd::store_fence();
}

template <class U>
void split4_ref(const U* s, U* const d[4], std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 4; ++c) d[c][x] = s[4 * x + c];
}

template <class U, bool NT = false>
void split4_vec(const U* s, U* const d[4], std::int64_t w) {
    constexpr int L = kL<U>;
    const Split4<U> sp;
    U* const dd[4] = {d[0], d[1], d[2], d[3]};
    auto part = [&](std::int64_t x, std::int64_t rem) {
        const std::int64_t bytes = 4 * rem * kE<U>;
        const U* p = s + 4 * x;
        const __m512i v[4] = {sp.sorted(load_bytes(p, bytes)), sp.sorted(load_bytes(p + L, bytes - 64)),
                              sp.sorted(load_bytes(p + 2 * L, bytes - 128)),
                              sp.sorted(load_bytes(p + 3 * L, bytes - 192))};
        const auto k = head<U>(rem);
        for (int c = 0; c < 4; ++c) simd::store_masked<kE<U>>(dd[c] + x, k, sp.plane(v, c));
    };
    std::int64_t x = 0;
    if constexpr (NT) {
        const std::int64_t peel = planar_peel(d, 4);
        if (peel < 0) return split4_vec<U, false>(s, d, w);
        x = peel < w ? peel : w;
        if (x > 0) part(0, x);
    }
    for (; x + L <= w; x += L) {
        const U* p = s + 4 * x;
        const __m512i v[4] = {sp.sorted(_mm512_loadu_si512(p)), sp.sorted(_mm512_loadu_si512(p + L)),
                              sp.sorted(_mm512_loadu_si512(p + 2 * L)),
                              sp.sorted(_mm512_loadu_si512(p + 3 * L))};
        for (int c = 0; c < 4; ++c) put<NT>(dd[c] + x, sp.plane(v, c));
    }
    if (x < w) part(x, w - x);
    if constexpr (NT) simd::store_fence();
}

template <class U>
void merge4_ref(const U* const s[4], U* d, std::int64_t w) {
    for (std::int64_t x = 0; x < w; ++x)
        for (int c = 0; c < 4; ++c) d[4 * x + c] = s[c][x];
}

template <class U, bool NT = false>
void merge4_vec(const U* const s[4], U* d, std::int64_t w) {
    constexpr int L = kL<U>;
    const Merge4<U> mg;
    const U* const ss[4] = {s[0], s[1], s[2], s[3]};
    auto part = [&](std::int64_t x, std::int64_t rem) {
        const std::int64_t bytes = 4 * rem * kE<U>;
        const auto k = head<U>(rem);
        const __m512i p[4] = {simd::load_masked<kE<U>>(ss[0] + x, k), simd::load_masked<kE<U>>(ss[1] + x, k),
                              simd::load_masked<kE<U>>(ss[2] + x, k), simd::load_masked<kE<U>>(ss[3] + x, k)};
        U* q = d + 4 * x;
        for (int r = 0; r < 4; ++r) _mm512_mask_storeu_epi8(q + r * L, head_bytes(bytes - 64 * r), mg.stream(p, r));
    };
    std::int64_t x = 0;
    if constexpr (NT) {
        const std::int64_t peel = interleaved_peel<U, 4>(d);
        if (peel < 0) return merge4_vec<U, false>(s, d, w);
        x = peel < w ? peel : w;
        if (x > 0) part(0, x);
    }
    for (; x + L <= w; x += L) {
        const __m512i p[4] = {_mm512_loadu_si512(ss[0] + x), _mm512_loadu_si512(ss[1] + x),
                              _mm512_loadu_si512(ss[2] + x), _mm512_loadu_si512(ss[3] + x)};
        U* q = d + 4 * x;
        for (int r = 0; r < 4; ++r) put<NT>(q + r * L, mg.stream(p, r));
    }
    if (x < w) part(x, w - x);
    if constexpr (NT) simd::store_fence();
}

// ---- masked copies: C1MR, C3MR, C4MR, AC4MR ------------------------------------------
// N channels per pixel; AC4 leaves (and never reads) the fourth channel.

template <class U, int N, bool AC4 = false>
void masked_ref(const U* s, U* d, const std::uint8_t* m, std::int64_t w) {
    constexpr int moved = AC4 ? 3 : N;
    for (std::int64_t x = 0; x < w; ++x)
        if (m[x] != 0)
            for (int c = 0; c < moved; ++c) d[N * x + c] = s[N * x + c];
}

template <class U, int N, bool AC4 = false>
void masked_vec(const U* s, U* d, const std::uint8_t* m, std::int64_t w) {
    constexpr int E = kE<U>;
    constexpr int L = kL<U>;
    using M = typename simd::Mask<E>::type;
    auto move = [&](std::int64_t i, M k) { simd::store_masked<E>(d + i, k, simd::load_masked<E>(s + i, k)); };
    if constexpr (N == 1) {
        // 64 mask bytes select 64 pixels, which span E vectors.
        std::int64_t x = 0;
        for (; x < w; x += 64) {
            const __mmask64 k = simd::nonzero_bytes(load_bytes(m + x, w - x));
            if (k == 0) continue;
            for (int j = 0; j < E; ++j) move(x + j * L, M(k >> (j * L)));
        }
    } else {
        // L mask bytes select L pixels, which span N vectors; the mask is
        // widened to elements and spread over the channels like a plane.
        [[maybe_unused]] const M colour = AC4 ? simd::ac4_mask<E>() : M(~M(0));
        const std::int64_t n = N * w;
        if constexpr (N == 3) {
            const Spread3<U> sp;
            for (std::int64_t x = 0; x < w; x += L) {
                const Tri t = sp.stream(load_mask_elems<U>(m + x, w - x));
                const std::int64_t i = N * x;
                move(i, M(nonzero<U>(t.v0) & head<U>(n - i)));
                move(i + L, M(nonzero<U>(t.v1) & head<U>(n - i - L)));
                move(i + 2 * L, M(nonzero<U>(t.v2) & head<U>(n - i - 2 * L)));
            }
        } else {
            const Spread4<U> sp;
            for (std::int64_t x = 0; x < w; x += L) {
                const __m512i mv = load_mask_elems<U>(m + x, w - x);
                const std::int64_t i = N * x;
                for (int r = 0; r < 4; ++r) {
                    const M k = M(nonzero<U>(sp.stream(mv, r)) & colour & head<U>(n - i - r * L));
                    if (k) move(i + r * L, k);
                }
            }
        }
    }
}

}  // namespace gex::chan

#pragma GCC diagnostic pop
