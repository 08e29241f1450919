// Row kernels of Add, Sub, Mul and their constant forms, the dispatch by
// scale factor, and the checking wrappers that add.cpp, sub.cpp and mul.cpp
// expand into their exports.
//
// The element rule. For integer depths the exact result x of the operation
// (a sum, a difference or a product, never rounded) becomes x x 2^-s,
// rounded to nearest with ties to even, saturated: scale_saturate<T>(x, s).
// Every kernel below computes exactly that; they differ only in how cheaply
// they get there for a class of factors:
//
//   s = 0          KZero   the processor's saturating add/sub; products are
//                          formed exactly and saturated
//   s = 1          KOne    8u Add by byte averaging, 8u Sub in bytes too; the
//                          others as KRound
//   1 < s <= U     KRound  x in wide lanes (16-bit for 8u, 32-bit for 16u and
//                          16s: exact for every sum, difference and product),
//                          shifted right with ties to even, packed with
//                          saturation
//   L <= s < 0     KShift  x saturated to the pixel range, shifted left in wide
//                          lanes, packed with saturation (saturating first
//                          cannot change the result: a value already out of
//                          range only moves further out)
//   s < L          KSign   only the sign of x is left: the maximum, the
//                          minimum or 0, taken from the saturating result
//   s > U          KFill   0 (the wrappers use Set or a zero line instead)
//
// 32f has one kernel per operation, a plain IEEE operation per element.
//
// Operands. An operation reads two operand streams p and q and writes
// op(p, q): p + q, q - p (p is the one subtracted: Sub's first source, SubC's
// constant) or p x q. A stream is an image row (MemSrc) or a constant
// repeated by channel (ConstSrc). Every kernel has block() (512 bits) and
// scalar() (one element, through the frame's scale rule); row_vec() and
// row_scalar() are the two twins that the tests compare.
//
// Aliasing. A block loads both operands before it stores. When the
// destination starts less than one block after a source, a store would land
// on elements that the same block has already loaded but that a plain
// element-by-element loop would read only after writing them; such rows run
// on the scalar twin. Any other overlap (in place, a destination before the
// source, or a whole block or more after it) gives the same result either
// way, since the later block then loads what the earlier one stored.
#pragma once

#include <immintrin.h>

#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/arith.hpp"
#include "data/set.hpp"
#include "frame/checks.hpp"
#include "frame/large.hpp"
#include "frame/pixel.hpp"
#include "frame/scale.hpp"
#include "frame/simd.hpp"

// GCC 12 takes the undefined pass-through operand inside some unmasked
// intrinsics for an uninitialised variable; the warning concerns the
// compiler's own headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex::arith {

enum class Op { Add, Sub, Mul };

// ---- the exact element results ------------------------------------------------------------

template <Op O, class T>
constexpr std::int64_t exact(T p, T q) {
    if constexpr (O == Op::Add) return std::int64_t{p} + q;
    else if constexpr (O == Op::Sub) return std::int64_t{q} - p;
    else return std::int64_t{p} * q;
}

template <Op O>
inline float exact_f(float p, float q) {
    if constexpr (O == Op::Add) return p + q;
    else if constexpr (O == Op::Sub) return q - p;
    else return p * q;
}

// ---- bounds of the fast paths --------------------------------------------------------------
// Above `upper` every result is 0; below `lower` only the sign of x counts.
// The constant forms share the image forms' bounds (16u SubC and MulC have no
// saturation bound of their own; -15 gives the same results). The
// one-dimensional primitives differ in two places, with the same results.
struct Bounds {
    int upper;
    int lower;
};

enum class Form { Image, Line };

template <Op O, class T>
constexpr Bounds bounds(Form f) {
    if constexpr (std::is_same_v<T, Gex8u>) {
        if constexpr (O == Op::Add) return {9, -7};
        else if constexpr (O == Op::Sub) return {f == Form::Line ? 9 : 8, -7};
        else return {16, -7};
    } else if constexpr (std::is_same_v<T, Gex16u>) {
        if constexpr (O == Op::Add) return {17, -15};
        else if constexpr (O == Op::Sub) return {16, -15};
        else return {32, -15};
    } else if constexpr (std::is_same_v<T, Gex16s>) {
        if constexpr (O == Op::Mul) return {30, f == Form::Line ? -15 : -14};
        else return {16, -15};
    } else {
        return {0, 0};  // 32f: no factor
    }
}

// ---- operand streams ---------------------------------------------------------------------------

template <class T>
struct MemSrc {
    const T* p;
    T at(std::int64_t i) const { return p[i]; }
    template <class M, class Full>
    __m512i load(std::int64_t i, M m, Full) const {
        if constexpr (Full::value) return _mm512_loadu_si512(p + i);
        else return simd::load_masked<sizeof(T)>(p + i, m);
    }
    void next() {}
};

// A constant of Ch channels (1, 3 or 4; AC4 uses 4 with the fourth entry
// unused) laid along a row. A vector holds 64 / sizeof(T) elements, which is
// no multiple of 3: a C3 constant cycles through three vectors.
template <class T, int Ch>
struct ConstSrc {
    static constexpr int kLanes = simd::lanes<sizeof(T)>;
    T v[4] = {};
    __m512i vec[3];
    int phase = 0;

    explicit ConstSrc(const T* values, int count) {
        for (int c = 0; c < count; ++c) v[c] = values[c];
        alignas(64) T line[kLanes];
        for (int r = 0; r < 3; ++r) {
            for (int j = 0; j < kLanes; ++j) line[j] = v[(r * kLanes + j) % Ch];
            vec[r] = _mm512_load_si512(line);
        }
    }
    T at(std::int64_t i) const { return v[i % Ch]; }
    template <class M, class Full>
    __m512i load(std::int64_t, M, Full) const {
        return vec[phase];
    }
    void next() {
        if constexpr (Ch == 3) phase = phase == 2 ? 0 : phase + 1;
    }
};

template <class S>
inline bool store_feeds_load(const S&, const void*) {
    return false;
}
template <class T>
inline bool store_feeds_load(const MemSrc<T>& s, const void* dst) {
    const std::intptr_t k = reinterpret_cast<std::intptr_t>(dst) - reinterpret_cast<std::intptr_t>(s.p);
    return k > 0 && k < simd::kVecBytes;
}

// ---- wide lanes -----------------------------------------------------------------------------------
// Lane operations on 16-bit or 32-bit lanes.
template <int B>
struct Lanes;

template <>
struct Lanes<16> {
    static __m512i set1(int v) { return _mm512_set1_epi16(static_cast<short>(v)); }
    static __m512i add(__m512i a, __m512i b) { return _mm512_add_epi16(a, b); }
    static __m512i sub(__m512i a, __m512i b) { return _mm512_sub_epi16(a, b); }
    static __m512i sra(__m512i a, __m128i c) { return _mm512_sra_epi16(a, c); }
    static __m512i srl(__m512i a, __m128i c) { return _mm512_srl_epi16(a, c); }
    static __m512i sll(__m512i a, __m128i c) { return _mm512_sll_epi16(a, c); }
    static __m512i min_s(__m512i a, __m512i b) { return _mm512_min_epi16(a, b); }
    static __m512i max_s(__m512i a, __m512i b) { return _mm512_max_epi16(a, b); }
    static __m512i min_u(__m512i a, __m512i b) { return _mm512_min_epu16(a, b); }
    // a + 1 in the lanes where a > b (unsigned compare) holds for (c, d).
    static __m512i inc_where_gt_u(__m512i a, __m512i c, __m512i d) {
        return _mm512_mask_add_epi16(a, _mm512_cmpgt_epu16_mask(c, d), a, set1(1));
    }
};

template <>
struct Lanes<32> {
    static __m512i set1(int v) { return _mm512_set1_epi32(v); }
    static __m512i add(__m512i a, __m512i b) { return _mm512_add_epi32(a, b); }
    static __m512i sub(__m512i a, __m512i b) { return _mm512_sub_epi32(a, b); }
    static __m512i sra(__m512i a, __m128i c) { return _mm512_sra_epi32(a, c); }
    static __m512i srl(__m512i a, __m128i c) { return _mm512_srl_epi32(a, c); }
    static __m512i sll(__m512i a, __m128i c) { return _mm512_sll_epi32(a, c); }
    static __m512i min_s(__m512i a, __m512i b) { return _mm512_min_epi32(a, b); }
    static __m512i max_s(__m512i a, __m512i b) { return _mm512_max_epi32(a, b); }
    static __m512i min_u(__m512i a, __m512i b) { return _mm512_min_epu32(a, b); }
    static __m512i inc_where_gt_u(__m512i a, __m512i c, __m512i d) {
        return _mm512_mask_add_epi32(a, _mm512_cmpgt_epu32_mask(c, d), a, set1(1));
    }
};

// A pixel vector split into two vectors of wide lanes (unpack order, which
// the saturating pack undoes), and back.
template <class T>
struct Wide;

template <>
struct Wide<Gex8u> {
    static constexpr int kBits = 16;
    static void widen(__m512i v, __m512i& lo, __m512i& hi) {
        const __m512i z = _mm512_setzero_si512();
        lo = _mm512_unpacklo_epi8(v, z);
        hi = _mm512_unpackhi_epi8(v, z);
    }
    static __m512i narrow(__m512i lo, __m512i hi) { return _mm512_packus_epi16(lo, hi); }
};

template <>
struct Wide<Gex16u> {
    static constexpr int kBits = 32;
    static void widen(__m512i v, __m512i& lo, __m512i& hi) {
        const __m512i z = _mm512_setzero_si512();
        lo = _mm512_unpacklo_epi16(v, z);
        hi = _mm512_unpackhi_epi16(v, z);
    }
    static __m512i narrow(__m512i lo, __m512i hi) { return _mm512_packus_epi32(lo, hi); }
};

template <>
struct Wide<Gex16s> {
    static constexpr int kBits = 32;
    static void widen(__m512i v, __m512i& lo, __m512i& hi) {
        const __m512i sign = _mm512_srai_epi16(v, 15);
        lo = _mm512_unpacklo_epi16(v, sign);
        hi = _mm512_unpackhi_epi16(v, sign);
    }
    static __m512i narrow(__m512i lo, __m512i hi) { return _mm512_packs_epi32(lo, hi); }
};

// Products of unsigned pixels fill their wide lanes: unsigned 16-bit lanes
// for 8u (up to 65025), unsigned 32-bit lanes for 16u. Everything else is a
// signed wide value.
template <Op O, class T>
constexpr bool kUnsignedWide = O == Op::Mul && !std::is_signed_v<T>;

// x = op(p, q) exactly, in wide lanes.
template <Op O, class T>
inline void exact_wide(__m512i p, __m512i q, __m512i& xlo, __m512i& xhi) {
    using W = Wide<T>;
    using L = Lanes<W::kBits>;
    if constexpr (O == Op::Mul && sizeof(T) == 2) {
        const __m512i lo = _mm512_mullo_epi16(p, q);
        const __m512i hi = std::is_signed_v<T> ? _mm512_mulhi_epi16(p, q) : _mm512_mulhi_epu16(p, q);
        xlo = _mm512_unpacklo_epi16(lo, hi);
        xhi = _mm512_unpackhi_epi16(lo, hi);
    } else {
        __m512i plo, phi, qlo, qhi;
        W::widen(p, plo, phi);
        W::widen(q, qlo, qhi);
        if constexpr (O == Op::Add) {
            xlo = L::add(plo, qlo);
            xhi = L::add(phi, qhi);
        } else if constexpr (O == Op::Sub) {
            xlo = L::sub(qlo, plo);
            xhi = L::sub(qhi, phi);
        } else {
            xlo = _mm512_mullo_epi16(plo, qlo);
            xhi = _mm512_mullo_epi16(phi, qhi);
        }
    }
}

// Packs wide results; unsigned wide lanes are first clamped to the pixel's
// maximum, since the pack reads its lanes as signed.
template <Op O, class T>
inline __m512i narrow(__m512i lo, __m512i hi) {
    using W = Wide<T>;
    if constexpr (kUnsignedWide<O, T>) {
        using L = Lanes<W::kBits>;
        const __m512i top = L::set1(std::numeric_limits<T>::max());
        lo = L::min_u(lo, top);
        hi = L::min_u(hi, top);
    }
    return W::narrow(lo, hi);
}

// ---- kernels ------------------------------------------------------------------------------------------

// What every integer kernel shares: the factor and the scalar twin.
template <Op O, class T>
struct KBase {
    using Pixel = T;
    int s = 0;
    T scalar(T p, T q) const { return scale_saturate<T>(exact<O, T>(p, q), s); }
};

// s = 0: saturating arithmetic.
template <Op O, class T>
struct KZero : KBase<O, T> {
    KZero() { this->s = 0; }
    __m512i block(__m512i p, __m512i q) const {
        if constexpr (std::is_same_v<T, Gex8u>) {
            if constexpr (O == Op::Add) return _mm512_adds_epu8(p, q);
            else if constexpr (O == Op::Sub) return _mm512_subs_epu8(q, p);
            else {
                __m512i lo, hi;
                exact_wide<O, T>(p, q, lo, hi);
                return narrow<O, T>(lo, hi);
            }
        } else if constexpr (std::is_same_v<T, Gex16u>) {
            if constexpr (O == Op::Add) return _mm512_adds_epu16(p, q);
            else if constexpr (O == Op::Sub) return _mm512_subs_epu16(q, p);
            else {
                // 65535 wherever the high half of the product is non-zero.
                const __m512i lo = _mm512_mullo_epi16(p, q);
                const __m512i hi = _mm512_mulhi_epu16(p, q);
                return _mm512_mask_mov_epi16(lo, _mm512_test_epi16_mask(hi, hi), _mm512_set1_epi16(-1));
            }
        } else {
            if constexpr (O == Op::Add) return _mm512_adds_epi16(p, q);
            else if constexpr (O == Op::Sub) return _mm512_subs_epi16(q, p);
            else {
                __m512i lo, hi;
                exact_wide<O, T>(p, q, lo, hi);
                return narrow<O, T>(lo, hi);
            }
        }
    }
};

// s >= 1: x x 2^-s with ties to even, in wide lanes.
//   signed x:   (x + ((x >> s) & 1) + 2^(s-1) - 1) >> s, arithmetic shifts
//               (no lane overflows: |x| + 2^(s-1) stays below 2^(bits-1)
//               for every s up to the zeroing bound);
//   unsigned x: q = x >> s, r = x mod 2^s, q + 1 where r + (q & 1) > 2^(s-1),
//               which never overflows (16u products at s = 32 included: the
//               shift then gives 0 and the test is x > 2^31).
template <Op O, class T>
struct KRound : KBase<O, T> {
    static constexpr int kBits = Wide<T>::kBits;
    using L = Lanes<kBits>;
    __m128i count;
    __m512i one, halfm1, half, low;

    explicit KRound(int s_) {
        this->s = s_;
        count = _mm_cvtsi32_si128(s_);
        const std::uint64_t h = std::uint64_t{1} << (s_ - 1);
        one = L::set1(1);
        halfm1 = L::set1(static_cast<int>(h - 1));
        half = L::set1(static_cast<int>(h));
        low = L::set1(static_cast<int>(2 * h - 1));
    }
    __m512i round(__m512i x) const {
        if constexpr (kUnsignedWide<O, T>) {
            const __m512i q = L::srl(x, count);
            const __m512i r = L::add(_mm512_and_si512(x, low), _mm512_and_si512(q, one));
            return L::inc_where_gt_u(q, r, half);
        } else {
            const __m512i odd = _mm512_and_si512(L::sra(x, count), one);
            return L::sra(L::add(L::add(x, odd), halfm1), count);
        }
    }
    __m512i block(__m512i p, __m512i q) const {
        __m512i lo, hi;
        exact_wide<O, T>(p, q, lo, hi);
        return narrow<O, T>(round(lo), round(hi));
    }
};

// s = 1. 8u Add: the byte average (a + b + 1) >> 1 is one too high exactly
// when a + b is odd and the average is odd (a tie whose lower neighbour is
// even). 8u Sub: d = max(q - p, 0) by saturation (negative halves round to 0),
// then (d >> 1) + 1 when d ends in binary 11. Everything else rounds as KRound.
template <Op O, class T>
struct KOne : KRound<O, T> {
    KOne() : KRound<O, T>(1) {}
    __m512i block(__m512i p, __m512i q) const {
        if constexpr (std::is_same_v<T, Gex8u> && O == Op::Add) {
            const __m512i avg = _mm512_avg_epu8(p, q);
            const __m512i fix = _mm512_and_si512(_mm512_and_si512(_mm512_xor_si512(p, q), avg), _mm512_set1_epi8(1));
            return _mm512_sub_epi8(avg, fix);
        } else if constexpr (std::is_same_v<T, Gex8u> && O == Op::Sub) {
            const __m512i d = _mm512_subs_epu8(q, p);
            const __m512i h = _mm512_and_si512(_mm512_srli_epi16(d, 1), _mm512_set1_epi8(0x7f));
            const __m512i up = _mm512_and_si512(_mm512_and_si512(d, h), _mm512_set1_epi8(1));
            return _mm512_add_epi8(h, up);
        } else {
            return KRound<O, T>::block(p, q);
        }
    }
};

// L <= s < 0: saturate, shift left by -s (at most 15: the largest pixel
// magnitude times 2^15 stays inside a 32-bit lane, 255 x 2^7 inside a 16-bit
// one), pack with saturation.
template <Op O, class T>
struct KShift : KBase<O, T> {
    static constexpr int kBits = Wide<T>::kBits;
    using L = Lanes<kBits>;
    __m128i count;
    explicit KShift(int s_) {
        this->s = s_;
        count = _mm_cvtsi32_si128(-s_);
    }
    __m512i widen_shift(__m512i x) const {
        const __m512i top = L::set1(std::numeric_limits<T>::max());
        if constexpr (kUnsignedWide<O, T>) x = L::min_u(x, top);
        else x = L::max_s(L::min_s(x, top), L::set1(std::numeric_limits<T>::lowest()));
        return L::sll(x, count);
    }
    __m512i block(__m512i p, __m512i q) const {
        __m512i lo, hi;
        exact_wide<O, T>(p, q, lo, hi);
        return narrow<O, T>(widen_shift(lo), widen_shift(hi));
    }
};

// s < L: the maximum where x > 0, the minimum where x < 0, 0 where x = 0. The
// saturating result has the sign of x.
template <Op O, class T>
struct KSign : KBase<O, T> {
    explicit KSign(int s_) { this->s = s_; }
    __m512i block(__m512i p, __m512i q) const {
        const __m512i r = KZero<O, T>{}.block(p, q);
        if constexpr (std::is_same_v<T, Gex8u>) return _mm512_movm_epi8(_mm512_test_epi8_mask(r, r));
        else if constexpr (std::is_same_v<T, Gex16u>) return _mm512_movm_epi16(_mm512_test_epi16_mask(r, r));
        else {
            // sign 0 or -1, xor 0x7fff: 0x7fff or 0x8000; zero where r is 0
            const __m512i sign = _mm512_srai_epi16(r, 15);
            return _mm512_maskz_mov_epi16(_mm512_test_epi16_mask(r, r),
                                          _mm512_xor_si512(sign, _mm512_set1_epi16(0x7fff)));
        }
    }
};

// s > U: every result is 0.
template <Op O, class T>
struct KFill : KBase<O, T> {
    explicit KFill(int s_) { this->s = s_; }
    __m512i block(__m512i, __m512i) const { return _mm512_setzero_si512(); }
};

// 32f: one IEEE operation per element.
template <Op O>
struct KFloat {
    using Pixel = Gex32f;
    __m512i block(__m512i p, __m512i q) const {
        const __m512 a = _mm512_castsi512_ps(p), b = _mm512_castsi512_ps(q);
        if constexpr (O == Op::Add) return _mm512_castps_si512(_mm512_add_ps(a, b));
        else if constexpr (O == Op::Sub) return _mm512_castps_si512(_mm512_sub_ps(b, a));
        else return _mm512_castps_si512(_mm512_mul_ps(a, b));
    }
    Gex32f scalar(Gex32f p, Gex32f q) const { return exact_f<O>(p, q); }
};

// Calls run(kernel) with the kernel for factor s.
template <Op O, class T, class Run>
inline void by_factor(int s, Bounds b, Run&& run) {
    if constexpr (std::is_floating_point_v<T>) {
        (void)s;
        (void)b;
        run(KFloat<O>{});
    } else {
        if (s == 0) run(KZero<O, T>{});
        else if (s == 1) run(KOne<O, T>{});
        else if (s > b.upper) run(KFill<O, T>{s});
        else if (s > 1) run(KRound<O, T>{s});
        else if (s >= b.lower) run(KShift<O, T>{s});
        else run(KSign<O, T>{s});
    }
}

// ---- rows -------------------------------------------------------------------------------------------------

template <bool AC4, class K, class PS, class QS, class T>
inline void row_vec(const K& k, PS ps, QS qs, T* d, std::int64_t n) {
    constexpr int E = sizeof(T);
    for_blocks<E, AC4>(n, [&](std::int64_t i, auto m, auto full) {
        const __m512i a = ps.load(i, m, full);
        const __m512i b = qs.load(i, m, full);
        const __m512i r = k.block(a, b);
        if constexpr (decltype(full)::value) _mm512_storeu_si512(d + i, r);
        else simd::store_masked<E>(d + i, m, r);
        ps.next();
        qs.next();
    });
}

template <bool AC4, class K, class PS, class QS, class T>
inline void row_scalar(const K& k, PS ps, QS qs, T* d, std::int64_t n) {
    for_elements<AC4>(n, [&](std::int64_t i) { d[i] = k.scalar(ps.at(i), qs.at(i)); });
}

// One row: the vector kernel unless a store could feed a later load.
template <bool AC4, class K, class PS, class QS, class T>
inline void row(const K& k, const PS& ps, const QS& qs, T* d, std::int64_t n) {
    if (store_feeds_load(ps, d) || store_feeds_load(qs, d)) row_scalar<AC4>(k, ps, qs, d, n);
    else row_vec<AC4>(k, ps, qs, d, n);
}

// ---- whole images and lines ----------------------------------------------------------------------

// Two source images (an in-place form passes its srcDst as src2 and dst).
template <Op O, bool AC4, class T>
void run_binary(const T* p1, std::int64_t s1, const T* p2, std::int64_t s2, T* d, std::int64_t sd,
                std::int64_t rowElems, std::int64_t height, int s, Bounds b) {
    by_factor<O, T>(s, b, [&](const auto& k) {
        walk_rows(
            rowElems, height,
            [&](std::int64_t n, const T* a, const T* c, T* o) { row<AC4>(k, MemSrc<T>{a}, MemSrc<T>{c}, o, n); },
            rows(p1, s1), rows(p2, s2), rows(d, sd));
    });
}

// A source image and a constant of Ch channels. Sub takes the constant as
// the operand subtracted (src - value).
template <Op O, bool AC4, int Ch, class T>
void run_const(const T* src, std::int64_t ss, const T* values, int count, T* d, std::int64_t sd,
               std::int64_t rowElems, std::int64_t height, int s, Bounds b) {
    const ConstSrc<T, Ch> c(values, count);
    by_factor<O, T>(s, b, [&](const auto& k) {
        walk_rows(
            rowElems, height,
            [&](std::int64_t n, const T* a, T* o) {
                if constexpr (O == Op::Sub) row<AC4>(k, c, MemSrc<T>{a}, o, n);
                else row<AC4>(k, MemSrc<T>{a}, c, o, n);
            },
            rows(src, ss), rows(d, sd));
    });
}

// The one-dimensional primitives: null (-8), then len < 1 (-6).
template <Op O, class T>
GexStatus line(const T* p1, const T* p2, T* d, int len, int s) {
    GEX_CHECK(check_null(p1, p2, d));
    if (len < 1) return gexStsSize;
    constexpr Bounds b = bounds<O, T>(Form::Line);
    if constexpr (!std::is_floating_point_v<T>) {
        if (s > b.upper) {
            if constexpr (std::is_same_v<T, Gex8u>) return gexsZero_8u(d, len);
            else if constexpr (std::is_same_v<T, Gex16u>) return gexsSet_16u(0, d, len);
            else return gexsZero_16s(d, len);
        }
    }
    by_factor<O, T>(s, b, [&](const auto& k) { row<false>(k, MemSrc<T>{p1}, MemSrc<T>{p2}, d, len); });
    return gexStsOk;
}

// ---- checking wrappers ------------------------------------------------------------------------------

// Two sources, C1 or AC4 (the C3 and C4 forms fold to C1 first). Checks: the
// pointers, then the size. 16u Add and Sub past the zeroing bound check only
// the two sources and leave the rest to the zero fill.
template <Op O, Lay L, class T>
GexStatus binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roi,
                 int s) {
    static_assert(L == Lay::C1 || L == Lay::AC4);
    constexpr Bounds b = bounds<O, T>(Form::Image);
    constexpr bool kInt = !std::is_floating_point_v<T>;
    if constexpr (std::is_same_v<T, Gex16u> && O != Op::Mul) {
        if (s > b.upper) {
            GEX_CHECK(check_null(pSrc1, pSrc2));
            return fill_image<L>(T{0}, pDst, dstStep, roi);
        }
    }
    GEX_CHECK(check_null(pSrc1, pSrc2, pDst));
    GEX_CHECK(check_roi(roi));
    if (kInt && s > b.upper) return fill_image<L>(T{0}, pDst, dstStep, roi);
    run_binary<O, L == Lay::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep,
                                 std::int64_t{roi.width} * channels_of<L>, roi.height, s, b);
    return gexStsOk;
}

// The short paths of the constant forms (integer depths only: in 32f, x + 0
// and x x 1 are not copies for -0 and NaN).
enum class Short { None, Copy, Zero, Max };

template <Op O, Lay L, class T>
Short short_path(const T* v, int s) {
    if constexpr (std::is_floating_point_v<T>) {
        return Short::None;
    } else {
        constexpr Bounds b = bounds<O, T>(Form::Image);
        bool all0 = true, all1 = true, noneZero = true;
        for (int c = 0; c < value_count<L>; ++c) {
            all0 = all0 && v[c] == 0;
            all1 = all1 && v[c] == 1;
            noneZero = noneZero && v[c] != 0;
        }
        if constexpr (O == Op::Mul) {
            if (all0) return Short::Zero;
            if (all1 && s == 0) return Short::Copy;
        } else {
            if (all0 && s == 0) return Short::Copy;
        }
        if (s > b.upper) return Short::Zero;
        // src + v with v > 0 only grows: past L every pixel saturates.
        if constexpr (O == Op::Add && !std::is_signed_v<T>) {
            if (noneZero && s < b.lower) return Short::Max;
        }
        return Short::None;
    }
}

// A source and a constant (InPlace: the source is the destination). values
// holds value_count<L> entries; a C1 form passes the address of its value,
// which is not a pointer argument and so not checked. Checks: the pointers in
// argument order, then the size, then the short paths. 16u decides its short
// paths first, after testing only the source (and the value array it reads),
// and leaves the rest of the checks to the Copy or the Set.
template <Op O, Lay L, bool InPlace, class T>
GexStatus constant(const T* pSrc, int srcStep, const T* values, T* pDst, int dstStep, GexiSize roi, int s) {
    auto nulls = [&] {
        if constexpr (L == Lay::C1) return InPlace ? check_null(pDst) : check_null(pSrc, pDst);
        else return InPlace ? check_null(values, pDst) : check_null(pSrc, values, pDst);
    };
    auto take = [&](Short sp) -> GexStatus {
        switch (sp) {
            case Short::Copy:
                if constexpr (InPlace) {  // a copy of the image onto itself
                    GEX_CHECK(check_null(pDst));
                    return check_roi(roi);
                } else {
                    return copy_image<L>(pSrc, srcStep, pDst, dstStep, roi);
                }
            case Short::Zero: return fill_image<L>(T{0}, pDst, dstStep, roi);
            default: return fill_image<L>(std::numeric_limits<T>::max(), pDst, dstStep, roi);
        }
    };
    if constexpr (std::is_same_v<T, Gex16u>) {
        if constexpr (L == Lay::C1) GEX_CHECK(check_null(pSrc));
        else if constexpr (InPlace) GEX_CHECK(check_null(values, pSrc));
        else GEX_CHECK(check_null(pSrc, values));
        const Short sp = short_path<O, L>(values, s);
        if (sp != Short::None) return take(sp);
    }
    GEX_CHECK(nulls());
    GEX_CHECK(check_roi(roi));
    if constexpr (!std::is_same_v<T, Gex16u>) {
        const Short sp = short_path<O, L>(values, s);
        if (sp != Short::None) return take(sp);
    }
    const std::int64_t rowElems = std::int64_t{roi.width} * channels_of<L>;
    const Bounds b = bounds<O, T>(Form::Image);
    run_const<O, L == Lay::AC4, channels_of<L>>(pSrc, srcStep, values, value_count<L>, pDst, dstStep, rowElems,
                                                roi.height, s, b);
    return gexStsOk;
}

// ---- the _L entries ------------------------------------------------------------------------------------
// fwd(roi32, narrowed steps...) is the 32-bit wrapper; the chunked half
// follows when the call does not fit it.

// Two-operand C1, C3, C4 forms: chunks go to the gexs primitive.
template <class T, class Fwd, class Prim>
GexStatus binary_L(const T* p1, std::int64_t s1, const T* p2, std::int64_t s2, T* d, std::int64_t sd, GexiSizeL roi,
                   int channels, Fwd fwd, Prim prim) {
    GexiSize r;
    if (forward_if_small(roi, {s1, s2, sd}, static_cast<int>(sizeof(T)) * channels, r))
        return fwd(r, static_cast<int>(s1), static_cast<int>(s2), static_cast<int>(sd));
    return large_binary(p1, s1, p2, s2, d, sd, roi, channels, large_chunk_pixels(sizeof(T), channels), prim);
}

// In-place C1, C3, C4 forms: the srcDst is the second source and the destination.
template <class T, class Fwd, class Prim>
GexStatus binary_I_L(const T* p, std::int64_t sp, T* pd, std::int64_t spd, GexiSizeL roi, int channels, Fwd fwd,
                     Prim prim) {
    GexiSize r;
    if (forward_if_small(roi, {sp, spd}, static_cast<int>(sizeof(T)) * channels, r))
        return fwd(r, static_cast<int>(sp), static_cast<int>(spd));
    return large_binary(p, sp, static_cast<const T*>(pd), spd, pd, spd, roi, channels,
                        large_chunk_pixels(sizeof(T), channels), prim);
}

// AC4 two-source forms: chunks go to the 32-bit wrapper with a one-row ROI.
template <class T, class Fwd, class Wrapper>
GexStatus ac4_L(const T* p1, std::int64_t s1, const T* p2, std::int64_t s2, T* d, std::int64_t sd, GexiSizeL roi,
                Fwd fwd, Wrapper wrapper) {
    GexiSize r;
    if (forward_if_small(roi, {s1, s2, sd}, static_cast<int>(sizeof(T)) * 4, r))
        return fwd(r, static_cast<int>(s1), static_cast<int>(s2), static_cast<int>(sd));
    return large_roi_3(p1, s1, p2, s2, d, sd, roi, 4, large_chunk_pixels(sizeof(T), 4), wrapper);
}

// One source and a destination (AC4 in place, and every constant form; in
// place both are the same image and the step list has one entry).
template <class T, class Fwd, class Wrapper>
GexStatus unary_L(const T* p, std::int64_t sp, T* d, std::int64_t sd, bool inPlace, GexiSizeL roi, int channels,
                  Fwd fwd, Wrapper wrapper) {
    GexiSize r;
    const bool small = inPlace ? forward_if_small(roi, {sd}, static_cast<int>(sizeof(T)) * channels, r)
                               : forward_if_small(roi, {sp, sd}, static_cast<int>(sizeof(T)) * channels, r);
    if (small) return fwd(r, static_cast<int>(sp), static_cast<int>(sd));
    return large_roi_2(p, sp, d, sd, roi, channels, large_chunk_pixels(sizeof(T), channels), wrapper);
}

}  // namespace gex::arith

#pragma GCC diagnostic pop

// ---- export macros ---------------------------------------------------------------------------------------
// X is Sfs for the integer depths and empty for 32f: it completes the names
// (..._C1RSfs, ..._C1R) and selects the scale factor's parameter, its
// argument to another wrapper, and its value inside (0 for 32f).
#define GEX_ARITH_P_Sfs , int scaleFactor
#define GEX_ARITH_A_Sfs , scaleFactor
#define GEX_ARITH_S_Sfs scaleFactor
#define GEX_ARITH_P_
#define GEX_ARITH_A_
#define GEX_ARITH_S_ 0

#define GEX_ARITH_BIN_ARGS(T, X) \
    (const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, GexiSize roiSize GEX_ARITH_P_##X)
#define GEX_ARITH_BIN_I_ARGS(T, X) \
    (const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, GexiSize roiSize GEX_ARITH_P_##X)
#define GEX_ARITH_BIN_ARGS_L(T, X)                                                                  \
    (const T* pSrc1, Gex64s src1Step, const T* pSrc2, Gex64s src2Step, T* pDst, Gex64s dstStep, \
     GexiSizeL roiSize GEX_ARITH_P_##X)
#define GEX_ARITH_BIN_I_ARGS_L(T, X) \
    (const T* pSrc, Gex64s srcStep, T* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize GEX_ARITH_P_##X)

// The 16 exports of a two-operand operation at one depth. PRIM and PRIMI are
// its gexs primitives (two sources, in place).
#define GEX_ARITH_BINARY(NAME, OP, D, T, X, PRIM, PRIMI)                                                         \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C1R##X, GEX_ARITH_BIN_ARGS(T, X)) {                                 \
        return arith::binary<OP, Lay::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,              \
                                          GEX_ARITH_S_##X);                                                      \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C3R##X, GEX_ARITH_BIN_ARGS(T, X)) {                                 \
        GEX_CHECK(check_width(roiSize));                                                                         \
        return gex::gexi##NAME##_##D##_C1R##X(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep,                   \
                                              fold_width(roiSize, 3) GEX_ARITH_A_##X);                           \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C4R##X, GEX_ARITH_BIN_ARGS(T, X)) {                                 \
        GEX_CHECK(check_width(roiSize));                                                                         \
        return gex::gexi##NAME##_##D##_C1R##X(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep,                   \
                                              fold_width(roiSize, 4) GEX_ARITH_A_##X);                           \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_AC4R##X, GEX_ARITH_BIN_ARGS(T, X)) {                                \
        return arith::binary<OP, Lay::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,             \
                                           GEX_ARITH_S_##X);                                                     \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C1IR##X, GEX_ARITH_BIN_I_ARGS(T, X)) {                              \
        return arith::binary<OP, Lay::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,      \
                                          GEX_ARITH_S_##X);                                                      \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C3IR##X, GEX_ARITH_BIN_I_ARGS(T, X)) {                              \
        GEX_CHECK(check_width(roiSize));                                                                         \
        return gex::gexi##NAME##_##D##_C1IR##X(pSrc, srcStep, pSrcDst, srcDstStep,                               \
                                               fold_width(roiSize, 3) GEX_ARITH_A_##X);                          \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_C4IR##X, GEX_ARITH_BIN_I_ARGS(T, X)) {                              \
        GEX_CHECK(check_width(roiSize));                                                                         \
        return gex::gexi##NAME##_##D##_C1IR##X(pSrc, srcStep, pSrcDst, srcDstStep,                               \
                                               fold_width(roiSize, 4) GEX_ARITH_A_##X);                          \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_AC4IR##X, GEX_ARITH_BIN_I_ARGS(T, X)) {                             \
        return arith::binary<OP, Lay::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,     \
                                           GEX_ARITH_S_##X);                                                     \
    }                                                                                                            \
    GEX_ARITH_BINARY_L(NAME, D, T, X, C1, 1, PRIM, PRIMI)                                                        \
    GEX_ARITH_BINARY_L(NAME, D, T, X, C3, 3, PRIM, PRIMI)                                                        \
    GEX_ARITH_BINARY_L(NAME, D, T, X, C4, 4, PRIM, PRIMI)                                                        \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_AC4R##X##_L, GEX_ARITH_BIN_ARGS_L(T, X)) {                          \
        return arith::ac4_L(                                                                                     \
            pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,                                            \
            [&](GexiSize r, int a, int b, int c) {                                                               \
                return gex::gexi##NAME##_##D##_AC4R##X(pSrc1, a, pSrc2, b, pDst, c, r GEX_ARITH_A_##X);          \
            },                                                                                                   \
            [&](const T* s1, const T* s2, T* o, GexiSize r) {                                                    \
                return gex::gexi##NAME##_##D##_AC4R##X(s1, 4, s2, 4, o, 4, r GEX_ARITH_A_##X);                   \
            });                                                                                                  \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_AC4IR##X##_L, GEX_ARITH_BIN_I_ARGS_L(T, X)) {                       \
        return arith::unary_L(                                                                                   \
            pSrc, srcStep, pSrcDst, srcDstStep, false, roiSize, 4,                                               \
            [&](GexiSize r, int a, int b) {                                                                      \
                return gex::gexi##NAME##_##D##_AC4IR##X(pSrc, a, pSrcDst, b, r GEX_ARITH_A_##X);                 \
            },                                                                                                   \
            [&](const T* s, T* o, GexiSize r) {                                                                  \
                return gex::gexi##NAME##_##D##_AC4IR##X(s, 4, o, 4, r GEX_ARITH_A_##X);                          \
            });                                                                                                  \
    }

#define GEX_ARITH_BINARY_L(NAME, D, T, X, LAY, CH, PRIM, PRIMI)                                                  \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##R##X##_L, GEX_ARITH_BIN_ARGS_L(T, X)) {                      \
        return arith::binary_L(                                                                                  \
            pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, CH,                                        \
            [&](GexiSize r, int a, int b, int c) {                                                               \
                return gex::gexi##NAME##_##D##_##LAY##R##X(pSrc1, a, pSrc2, b, pDst, c, r GEX_ARITH_A_##X);      \
            },                                                                                                   \
            [&](const T* s1, const T* s2, T* o, int len) { return PRIM(s1, s2, o, len GEX_ARITH_A_##X); });      \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##IR##X##_L, GEX_ARITH_BIN_I_ARGS_L(T, X)) {                   \
        return arith::binary_I_L(                                                                                \
            pSrc, srcStep, pSrcDst, srcDstStep, roiSize, CH,                                                     \
            [&](GexiSize r, int a, int b) {                                                                      \
                return gex::gexi##NAME##_##D##_##LAY##IR##X(pSrc, a, pSrcDst, b, r GEX_ARITH_A_##X);             \
            },                                                                                                   \
            [&](const T* s, const T*, T* o, int len) { return PRIMI(s, o, len GEX_ARITH_A_##X); });              \
    }

// The 16 exports of a constant operation at one depth.
#define GEX_ARITH_CONST(NAME, OP, D, T, X)                                                                       \
    GEX_ARITH_CONST_LAY(NAME, OP, D, T, X, C1, T value, &value)                                                  \
    GEX_ARITH_CONST_LAY(NAME, OP, D, T, X, C3, const T value[3], value)                                          \
    GEX_ARITH_CONST_LAY(NAME, OP, D, T, X, C4, const T value[4], value)                                          \
    GEX_ARITH_CONST_LAY(NAME, OP, D, T, X, AC4, const T value[3], value)

// VP declares the value parameter, VA is the pointer to its entries.
#define GEX_ARITH_CONST_LAY(NAME, OP, D, T, X, LAY, VP, VA)                                                      \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##R##X,                                                        \
               (const T* pSrc, int srcStep, VP, T* pDst, int dstStep, GexiSize roiSize GEX_ARITH_P_##X)) {       \
        return arith::constant<OP, Lay::LAY, false>(pSrc, srcStep, VA, pDst, dstStep, roiSize, GEX_ARITH_S_##X); \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##IR##X,                                                       \
               (VP, T* pSrcDst, int srcDstStep, GexiSize roiSize GEX_ARITH_P_##X)) {                             \
        return arith::constant<OP, Lay::LAY, true>(pSrcDst, srcDstStep, VA, pSrcDst, srcDstStep, roiSize,        \
                                                   GEX_ARITH_S_##X);                                             \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##R##X##_L,                                                    \
               (const T* pSrc, Gex64s srcStep, VP, T* pDst, Gex64s dstStep, GexiSizeL roiSize GEX_ARITH_P_##X)) { \
        return arith::unary_L(                                                                                   \
            pSrc, srcStep, pDst, dstStep, false, roiSize, channels_of<Lay::LAY>,                                 \
            [&](GexiSize r, int a, int b) {                                                                      \
                return gex::gexi##NAME##_##D##_##LAY##R##X(pSrc, a, value, pDst, b, r GEX_ARITH_A_##X);          \
            },                                                                                                   \
            [&](const T* s, T* o, GexiSize r) {                                                                  \
                return gex::gexi##NAME##_##D##_##LAY##R##X(s, 4, value, o, 4, r GEX_ARITH_A_##X);                \
            });                                                                                                  \
    }                                                                                                            \
    GEX_EXPORT(GexStatus, gexi##NAME##_##D##_##LAY##IR##X##_L,                                                   \
               (VP, T* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize GEX_ARITH_P_##X)) {                         \
        return arith::unary_L(                                                                                   \
            pSrcDst, srcDstStep, pSrcDst, srcDstStep, true, roiSize, channels_of<Lay::LAY>,                      \
            [&](GexiSize r, int, int b) {                                                                        \
                return gex::gexi##NAME##_##D##_##LAY##IR##X(value, pSrcDst, b, r GEX_ARITH_A_##X);               \
            },                                                                                                   \
            [&](const T*, T* o, GexiSize r) {                                                                    \
                return gex::gexi##NAME##_##D##_##LAY##IR##X(value, o, 4, r GEX_ARITH_A_##X);                     \
            });                                                                                                  \
    }

// The eight gexs primitives of an operation (three integer depths and 32f,
// two sources and in place).
#define GEX_ARITH_LINES(NAME, OP)                                                                               \
    namespace gex {                                                                                              \
    GexStatus gexs##NAME##_8u_Sfs(const Gex8u* a, const Gex8u* b, Gex8u* d, int len, int s) {                    \
        return arith::line<OP>(a, b, d, len, s);                                                                 \
    }                                                                                                            \
    GexStatus gexs##NAME##_16u_Sfs(const Gex16u* a, const Gex16u* b, Gex16u* d, int len, int s) {                \
        return arith::line<OP>(a, b, d, len, s);                                                                 \
    }                                                                                                            \
    GexStatus gexs##NAME##_16s_Sfs(const Gex16s* a, const Gex16s* b, Gex16s* d, int len, int s) {                \
        return arith::line<OP>(a, b, d, len, s);                                                                 \
    }                                                                                                            \
    GexStatus gexs##NAME##_32f(const Gex32f* a, const Gex32f* b, Gex32f* d, int len) {                           \
        return arith::line<OP>(a, b, d, len, 0);                                                                 \
    }                                                                                                            \
    GexStatus gexs##NAME##_8u_ISfs(const Gex8u* a, Gex8u* d, int len, int s) {                                   \
        return arith::line<OP>(a, static_cast<const Gex8u*>(d), d, len, s);                                      \
    }                                                                                                            \
    GexStatus gexs##NAME##_16u_ISfs(const Gex16u* a, Gex16u* d, int len, int s) {                                \
        return arith::line<OP>(a, static_cast<const Gex16u*>(d), d, len, s);                                     \
    }                                                                                                            \
    GexStatus gexs##NAME##_16s_ISfs(const Gex16s* a, Gex16s* d, int len, int s) {                                \
        return arith::line<OP>(a, static_cast<const Gex16s*>(d), d, len, s);                                     \
    }                                                                                                            \
    GexStatus gexs##NAME##_32f_I(const Gex32f* a, Gex32f* d, int len) {                                          \
        return arith::line<OP>(a, static_cast<const Gex32f*>(d), d, len, 0);                                     \
    }                                                                                                            \
    }
