// Div_Round: every form and layout against an independent model for each
// mode and factor, the binary32 quotient of 16u, zero divisors, the check
// order, and the processor's rounding control (set for modes 0 and 1 and put
// back; a caller's own setting changes no result of 8u and 16s).
#include <gtest/gtest.h>

#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::same_bits;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

template <class T> struct Range;
template <> struct Range<Gex8u> { static constexpr int lo = -15, hi = 8; };
template <> struct Range<Gex16u> { static constexpr int lo = -31, hi = 16; };
template <> struct Range<Gex16s> { static constexpr int lo = -30, hi = 15; };

template <class T>
T clamp_to(long double r) {
    const long double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(r < lo ? lo : r > hi ? hi : r);
}

// The rational quotient n x 2^-s / d rounded by mode, in long double (exact
// enough for 16-bit operands: ties are representable, near-ties far apart).
template <class T>
T model_exact(long long n, long long d, int s, int mode) {
    const long double q = std::ldexp(static_cast<long double>(n), -s) / static_cast<long double>(d);
    const long double f = std::floor(q), frac = q - f;
    long double r;
    if (mode == 0) r = std::trunc(q);
    else if (frac != 0.5L) r = frac > 0.5L ? f + 1 : f;
    else if (mode == 1) r = std::fmod(f, 2.0L) == 0 ? f : f + 1;
    else r = q > 0 ? f + 1 : f;  // away from zero
    return clamp_to<T>(r);
}

// 16u rounds the binary32 quotient (modes 1 and 2); mode 0 divides toward
// zero, which truncates exactly.
Gex16u model_16u(long long n, long long d, int s, int mode) {
    if (mode == 0) return model_exact<Gex16u>(n, d, s, 0);
    volatile float N = std::ldexp(static_cast<float>(n), s < 0 ? -s : 0);
    volatile float D = std::ldexp(static_cast<float>(d), s > 0 ? s : 0);
    volatile float q = N / D;
    float r;
    if (mode == 1) {
        const float f = std::floor(q), frac = q - f;
        r = frac > 0.5f ? f + 1 : frac < 0.5f ? f : (std::fmod(f, 2.0f) == 0 ? f : f + 1);
    } else {
        volatile float up = q + 0.5f;
        r = std::trunc(std::fmin(up, 65535.0f));
    }
    return clamp_to<Gex16u>(r);
}

template <class T>
T model(T d, T n, int s, int mode) {
    constexpr T kMax = std::numeric_limits<T>::max(), kMin = std::numeric_limits<T>::lowest();
    if (d == 0) return n == 0 ? T(0) : n > 0 ? kMax : kMin;
    if (s > Range<T>::hi) return 0;
    if (s < Range<T>::lo) {
        if (std::is_same_v<T, Gex8u>) return n != 0 ? kMax : T(0);
        if (std::is_same_v<T, Gex16u>) return kMax;
        if (n == 0) return 0;
        return (n > 0) == (d > 0) ? kMax : kMin;
    }
    if constexpr (std::is_same_v<T, Gex16u>) return model_16u(n, d, s, mode);
    return model_exact<T>(n, d, s, mode);
}

template <class T>
T random_value(std::mt19937_64& rng) {
    const std::uint64_t r = rng();
    if (r % 24 == 0) return 0;
    if (r % 2 == 0) {
        const int v = static_cast<int>((r >> 8) % 512) - (std::is_signed_v<T> ? 256 : 0);
        return static_cast<T>(std::is_same_v<T, Gex8u> ? v % 256 : v);
    }
    return static_cast<T>(r >> 16);
}

// Dividends on and next to (2k + 1) / 2 x d x 2^s.
template <class T>
T near_half(std::mt19937_64& rng, T d, int s) {
    const long long k = static_cast<long long>(rng() % 100) - (std::is_signed_v<T> ? 50 : 0);
    const long long n = std::llroundl((2.0L * k + 1) / 2 * d * std::ldexp(1.0L, s)) + static_cast<long long>(rng() % 3) - 1;
    return clamp_to<T>(n);
}

template <class T>
using Fn2 = std::function<GexStatus(const T*, int, const T*, int, T*, int, GexiSize, GexRoundMode, int)>;
template <class T>
using FnI = std::function<GexStatus(const T*, int, T*, int, GexiSize, GexRoundMode, int)>;

template <class T>
struct Forms {
    Fn2<T> two[4];
    FnI<T> inplace[4];
};

#define FORMS(D)                                                                                                   \
    Forms<Gex##D> {                                                                                                \
        {gexiDiv_Round_##D##_C1RSfs, gexiDiv_Round_##D##_C3RSfs, gexiDiv_Round_##D##_C4RSfs,                       \
         gexiDiv_Round_##D##_AC4RSfs},                                                                             \
            {gexiDiv_Round_##D##_C1IRSfs, gexiDiv_Round_##D##_C3IRSfs, gexiDiv_Round_##D##_C4IRSfs,                \
             gexiDiv_Round_##D##_AC4IRSfs}                                                                         \
    }

const int kElems[4] = {1, 3, 4, 4};

template <class T>
void check_forms(const Forms<T>& forms, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const auto lays = gextest::standard_layouts(false);
    int run = 0;
    for (int f = 0; f < 4; ++f)
        for (bool inplace : {false, true})
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths) {
                    const int h = 1 + run % 3, ch = kElems[f];
                    const int mode = run % 3;
                    const int s = -20 + (run * 7) % 61;  // factors -20..40, spread over the runs
                    ++run;
                    Guarded<T> div(w, h, ch, lays[li]);
                    Guarded<T> num(w, h, ch, lays[(li + 1) % lays.size()]);
                    Guarded<T> dst(w, h, ch, lays[(li + 2) % lays.size()]);
                    bool anyZero = false;
                    for (int y = 0; y < h; ++y)
                        for (int i = 0; i < w * ch; ++i) {
                            T dv = random_value<T>(rng);
                            if (dv == 0 && rng() % 8 != 0) dv = 5;
                            div.row(y)[i] = dv;
                            num.row(y)[i] = dv != 0 && i % 2 ? near_half<T>(rng, dv, std::max(-12, std::min(s, 12)))
                                                             : random_value<T>(rng);
                            dst.row(y)[i] = random_value<T>(rng);
                            if ((f != 3 || i % 4 != 3) && dv == 0) anyZero = true;
                        }
                    const auto d0 = div.snapshot(), n0 = num.snapshot(), o0 = dst.snapshot();
                    const auto rm = static_cast<GexRoundMode>(mode);
                    const GexStatus st =
                        inplace ? forms.inplace[f](div.ptr(), div.step(), num.ptr(), num.step(), {w, h}, rm, s)
                                : forms.two[f](div.ptr(), div.step(), num.ptr(), num.step(), dst.ptr(), dst.step(),
                                               {w, h}, rm, s);
                    ASSERT_EQ(st, anyZero ? gexStsDivByZeroWarn : gexStsOk);
                    const auto got = (inplace ? num : dst).snapshot();
                    for (std::size_t i = 0; i < got.size(); ++i) {
                        const bool alpha = f == 3 && i % 4 == 3;
                        const T want = alpha ? (inplace ? n0[i] : o0[i]) : model<T>(d0[i], n0[i], s, mode);
                        ASSERT_EQ(+got[i], +want) << "form " << f << (inplace ? " in place" : "") << " mode " << mode
                                                  << " factor " << s << ": " << +n0[i] << " / " << +d0[i];
                    }
                    ASSERT_TRUE(div.guards_ok() && num.guards_ok() && dst.guards_ok());
                    ASSERT_TRUE(same_bits(div.snapshot(), d0));
                    ASSERT_TRUE(inplace ? same_bits(dst.snapshot(), o0) : same_bits(num.snapshot(), n0));
                }
}

TEST(DivRound, EveryFormLayoutModeAndFactor) {
    check_forms(FORMS(8u), 1);
    check_forms(FORMS(16u), 2);
    check_forms(FORMS(16s), 3);
}

// Every 8u operand pair in each mode for a spread of factors.
TEST(DivRound, Every8uPair) {
    std::vector<Gex8u> d(65536), n(65536), o(65536);
    for (int i = 0; i < 65536; ++i) d[i] = static_cast<Gex8u>(i), n[i] = static_cast<Gex8u>(i >> 8);
    for (int mode = 0; mode < 3; ++mode)
        for (int s : {-16, -15, -7, -1, 0, 1, 2, 5, 8, 9}) {
            ASSERT_EQ(gexiDiv_Round_8u_C1RSfs(d.data(), 256, n.data(), 256, o.data(), 256, {256, 256},
                                              static_cast<GexRoundMode>(mode), s),
                      gexStsDivByZeroWarn);
            for (int i = 0; i < 65536; ++i)
                ASSERT_EQ(+o[i], +model<Gex8u>(d[i], n[i], s, mode)) << +n[i] << " / " << +d[i] << " mode " << mode;
        }
}

TEST(DivRound, WorkedValues) {
    // 5/2, 7/2, -5/2, -7/2 and 5/3 in each mode.
    const Gex16s d[5] = {2, 2, 2, 2, 3}, n[5] = {5, 7, -5, -7, 5};
    const Gex16s want[3][5] = {{2, 3, -2, -3, 1}, {2, 4, -2, -4, 2}, {3, 4, -3, -4, 2}};
    for (int mode = 0; mode < 3; ++mode) {
        Gex16s o[5];
        ASSERT_EQ(gexiDiv_Round_16s_C1RSfs(d, 10, n, 10, o, 10, {5, 1}, static_cast<GexRoundMode>(mode), 0), gexStsOk);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(o[i], want[mode][i]) << "mode " << mode << " element " << i;
    }
    // 16u: the quotient 65534 + 65534/65535 truncates to 65534 only because
    // the division itself rounds toward zero in mode 0; binary32 to nearest
    // makes it 65535 in modes 1 and 2.
    const Gex16u du = 65535, nu = 65534;
    for (int mode = 0; mode < 3; ++mode) {
        Gex16u o = 0;
        ASSERT_EQ(gexiDiv_Round_16u_C1RSfs(&du, 2, &nu, 2, &o, 2, {1, 1}, static_cast<GexRoundMode>(mode), -16), gexStsOk);
        EXPECT_EQ(o, mode == 0 ? 65534 : 65535) << "mode " << mode;
    }
    // Zero divisors as in Div.
    const Gex8u d8[2] = {0, 0}, n8[2] = {0, 9};
    Gex8u o8[2] = {5, 5};
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(d8, 2, n8, 2, o8, 2, {2, 1}, gexRndFin, 0), gexStsDivByZeroWarn);
    EXPECT_EQ(o8[0], 0);
    EXPECT_EQ(o8[1], 255);
}

TEST(DivRound, ChecksAndTheirOrder) {
    Gex8u a[4] = {1, 2, 3, 4}, o[4] = {};
    const GexRoundMode bad = static_cast<GexRoundMode>(3);
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(a, 4, nullptr, 4, o, 4, {0, 1}, bad, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(a, 4, a, 4, o, 4, {4, 0}, bad, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(a, 0, a, 4, o, 4, {4, 1}, bad, 0), gexStsStep);  // a zero step fails
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(a, 4, a, -4, o, 4, {4, 1}, gexRndZero, 0), gexStsStep);
    EXPECT_EQ(gexiDiv_Round_16s_C1IRSfs(reinterpret_cast<Gex16s*>(a), 4, reinterpret_cast<Gex16s*>(o), 0, {2, 1},
                                        gexRndNear, 0),
              gexStsStep);
    EXPECT_EQ(gexiDiv_Round_8u_C1RSfs(a, 4, a, 4, o, 4, {4, 1}, bad, 0), gexStsRoundMode);
    EXPECT_EQ(gexiDiv_Round_8u_AC4IRSfs(a, 4, o, 4, {1, 1}, static_cast<GexRoundMode>(-1), 0), gexStsRoundMode);
    // C3, C4 fold to C1: the width first.
    EXPECT_EQ(gexiDiv_Round_16u_C3RSfs(nullptr, 4, nullptr, 4, nullptr, 4, {0, 1}, gexRndZero, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_Round_16u_C1RSfs(nullptr, 4, nullptr, 4, nullptr, 4, {0, 1}, gexRndZero, 0), gexStsNullPtr);
    for (Gex8u v : o) EXPECT_EQ(v, 0);
}

TEST(DivRound, RoundingControl) {
    const unsigned saved = _mm_getcsr();
    const unsigned modes[] = {0u << 13, 1u << 13, 2u << 13, 3u << 13};
    std::mt19937_64 rng(9);
    std::vector<Gex16s> d(500), n(500), o(500);
    for (int i = 0; i < 500; ++i) {
        d[i] = static_cast<Gex16s>(static_cast<int>(rng() % 201) - 100);
        if (d[i] == 0) d[i] = 3;
        n[i] = near_half<Gex16s>(rng, d[i], i % 5 - 2);
    }
    for (unsigned caller : modes)
        for (int mode = 0; mode < 3; ++mode) {
            const unsigned csr = (saved & ~(3u << 13)) | caller;
            _mm_setcsr(csr);
            const GexStatus st =
                gexiDiv_Round_16s_C1RSfs(d.data(), 1000, n.data(), 1000, o.data(), 1000, {500, 1},
                                         static_cast<GexRoundMode>(mode), -1);
            const unsigned after = _mm_getcsr();
            _mm_setcsr(saved);
            ASSERT_EQ(st, gexStsOk);
            EXPECT_EQ(after & ~0x3fu, csr & ~0x3fu) << "the caller's control comes back (mode " << mode << ")";
            for (int i = 0; i < 500; ++i)
                ASSERT_EQ(o[i], model<Gex16s>(d[i], n[i], -1, mode)) << "caller rounding " << (caller >> 13);
        }
}

}  // namespace
