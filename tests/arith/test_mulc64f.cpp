// MulC64f: every depth, layout, hint and mode against an independent model
// on guarded images (any step, negative ones included), the rules that set
// the forms apart (8u mode 2 in binary32, 16-bit saturation before rounding,
// the two precisions of the hint), checks, and the rounding control.
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

double half_even(double p) {
    const double f = std::floor(p), frac = p - f;
    if (frac != 0.5) return frac > 0.5 ? f + 1 : f;
    return std::fmod(f, 2.0) == 0 ? f : f + 1;
}

template <class T>
T clamp_int(double r) {
    const double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    if (std::isnan(r) || r <= lo) return std::numeric_limits<T>::lowest();
    return static_cast<T>(r >= hi ? hi : r);
}

float clamp_f(float v, float lo, float hi) {
    if (std::isnan(v) || v < lo) return lo;
    return v > hi ? hi : v;
}

template <class T>
T model(T x, double c, bool accurate, int mode) {
    volatile double p64 = static_cast<double>(x) * c;
    volatile float fx = static_cast<float>(x), fc = static_cast<float>(c);
    volatile float p32 = fx * fc;
    if constexpr (std::is_same_v<T, float>) {
        return accurate ? static_cast<float>(p64) : p32;
    } else {
        const double p = accurate ? p64 : static_cast<double>(p32);
        const float lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
        if (mode == 1) return clamp_int<T>(half_even(p));
        if (std::is_same_v<T, Gex8u> && mode == 0) return clamp_int<T>(std::trunc(p));
        const float v = clamp_f(static_cast<float>(p), lo, hi);
        if (mode == 0) return static_cast<T>(std::trunc(v));
        if (std::is_same_v<T, Gex8u>) {
            volatile float t = v + 0.5f;
            return static_cast<T>(std::trunc(t));
        }
        volatile float t = std::fabs(v) + 0.5f;
        return static_cast<T>(v < 0 ? -std::trunc(t) : std::trunc(t));
    }
}

template <class T>
T random_pixel(std::mt19937_64& rng) {
    if constexpr (std::is_same_v<T, float>) {
        return std::ldexp(std::uniform_real_distribution<float>(-1, 1)(rng), static_cast<int>(rng() % 40) - 10);
    } else {
        return static_cast<T>(rng() >> 20);
    }
}

double random_constant(std::mt19937_64& rng) {
    switch (rng() % 12) {
        case 0: return 0.5;
        case 1: return -0.5;
        case 2: return 1.5;
        case 3: return std::nan("");
        case 4: return 1e10;
        case 5: return 0.7000000000000001;
        default: return std::ldexp(std::uniform_real_distribution<double>(-1, 1)(rng), static_cast<int>(rng() % 12) - 4);
    }
}

template <class T>
using Fn = std::function<GexStatus(const T*, int, const Gex64f*, T*, int, GexiSize, GexHintAlgorithm, GexRoundMode)>;
template <class T>
using FnI = std::function<GexStatus(const Gex64f*, T*, int, GexiSize, GexHintAlgorithm, GexRoundMode)>;

template <class T>
struct Forms {
    Fn<T> plain[3];
    FnI<T> inplace[3];
};

#define FORMS(D)                                                                                               \
    Forms<Gex##D> {                                                                                            \
        {gexiMulC64f_##D##_C1R, gexiMulC64f_##D##_C3R, gexiMulC64f_##D##_C4R},                                 \
            {gexiMulC64f_##D##_C1IR, gexiMulC64f_##D##_C3IR, gexiMulC64f_##D##_C4IR}                           \
    }

const int kCh[3] = {1, 3, 4};

template <class T>
void check_forms(const Forms<T>& forms, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const auto lays = gextest::standard_layouts(true);
    const GexHintAlgorithm hints[] = {gexAlgHintNone, gexAlgHintFast, gexAlgHintAccurate, static_cast<GexHintAlgorithm>(7)};
    int run = 0;
    for (int f = 0; f < 3; ++f)
        for (bool inplace : {false, true})
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths) {
                    const int h = 1 + run % 3, ch = kCh[f];
                    const GexHintAlgorithm hint = hints[run % 4];
                    const int mode = (run / 4) % 4 == 3 ? 9 : (run / 4) % 4;  // 9 acts as 2
                    ++run;
                    Guarded<T> src(w, h, ch, lays[li]);
                    Guarded<T> dst(w, h, ch, lays[(li + 1) % lays.size()]);
                    for (int y = 0; y < h; ++y)
                        for (int i = 0; i < w * ch; ++i) src.row(y)[i] = random_pixel<T>(rng), dst.row(y)[i] = random_pixel<T>(rng);
                    double c[4];
                    for (double& v : c) v = random_constant(rng);
                    const auto s0 = src.snapshot();
                    const auto rm = static_cast<GexRoundMode>(mode);
                    const GexStatus st = inplace ? forms.inplace[f](c, src.ptr(), src.step(), {w, h}, hint, rm)
                                                 : forms.plain[f](src.ptr(), src.step(), c, dst.ptr(), dst.step(), {w, h}, hint, rm);
                    ASSERT_EQ(st, gexStsOk);
                    const auto got = (inplace ? src : dst).snapshot();
                    for (std::size_t i = 0; i < got.size(); ++i) {
                        const T want = model<T>(s0[i], c[i % ch], hint == gexAlgHintAccurate, mode == 9 ? 2 : mode);
                        ASSERT_TRUE(same_bits(got[i], want)) << "form " << f << " hint " << hint << " mode " << mode
                                                             << ": " << +s0[i] << " x " << c[i % ch] << " gave "
                                                             << +got[i] << " want " << +want;
                    }
                    ASSERT_TRUE(src.guards_ok() && dst.guards_ok());
                    if (!inplace) {
                        ASSERT_TRUE(same_bits(src.snapshot(), s0));
                    }
                }
}

TEST(MulC64f, EveryDepthLayoutHintAndMode) {
    check_forms(FORMS(8u), 1);
    check_forms(FORMS(16u), 2);
    check_forms(FORMS(16s), 3);
    check_forms(FORMS(32f), 4);
}

template <class T>
T one(T x, double c, GexHintAlgorithm hint, GexRoundMode mode) {
    T out{};
    GexStatus st;
    if constexpr (std::is_same_v<T, Gex8u>) st = gexiMulC64f_8u_C1R(&x, 1, &c, &out, 1, {1, 1}, hint, mode);
    else if constexpr (std::is_same_v<T, Gex16u>) st = gexiMulC64f_16u_C1R(&x, 2, &c, &out, 2, {1, 1}, hint, mode);
    else if constexpr (std::is_same_v<T, Gex16s>) st = gexiMulC64f_16s_C1R(&x, 2, &c, &out, 2, {1, 1}, hint, mode);
    else st = gexiMulC64f_32f_C1R(&x, 4, &c, &out, 4, {1, 1}, hint, mode);
    EXPECT_EQ(st, gexStsOk);
    return out;
}

TEST(MulC64f, RulesThatSetTheFormsApart) {
    const auto acc = gexAlgHintAccurate, fast = gexAlgHintFast;
    // 8u mode 2 in binary32: 0.49999997 + 0.5 rounds to 1 before the truncation.
    const double almostHalf = static_cast<double>(0.49999997f);
    EXPECT_EQ(one<Gex8u>(1, almostHalf, fast, gexRndFin), 1);
    EXPECT_EQ(one<Gex8u>(1, almostHalf, acc, gexRndFin), 1);
    EXPECT_EQ(one<Gex8u>(1, almostHalf, acc, gexRndNear), 0);
    // Mode 0: 8u truncates the binary64 product; the 16-bit forms narrow it
    // to binary32 first, where 2.99999999997 is 3.
    EXPECT_EQ(one<Gex8u>(3, 0.99999999999, acc, gexRndZero), 2);
    EXPECT_EQ(one<Gex16u>(3, 0.99999999999, acc, gexRndZero), 3);
    EXPECT_EQ(one<Gex16s>(3, 0.99999999999, acc, gexRndZero), 3);
    // Mode 1 rounds the product in its own precision, ties to even.
    EXPECT_EQ(one<Gex16s>(5, 0.5, acc, gexRndNear), 2);
    EXPECT_EQ(one<Gex16s>(7, 0.5, acc, gexRndNear), 4);
    EXPECT_EQ(one<Gex16s>(-5, 0.5, fast, gexRndNear), -2);
    EXPECT_EQ(one<Gex16s>(-5, 0.5, fast, gexRndFin), -3);
    EXPECT_EQ(one<Gex16s>(-5, 0.5, fast, static_cast<GexRoundMode>(-4)), -3);
    EXPECT_EQ(one<Gex16s>(-5, 0.5, fast, gexRndZero), -2);
    // The hint: 1 - 2^-30 is 1 in binary32.
    const double belowOne = 1.0 - std::ldexp(1.0, -30);
    EXPECT_EQ(one<Gex8u>(255, belowOne, acc, gexRndZero), 254);
    EXPECT_EQ(one<Gex8u>(255, belowOne, fast, gexRndZero), 255);
    // Saturation, and NaN to the minimum.
    EXPECT_EQ(one<Gex16s>(30000, 2.0, acc, gexRndNear), 32767);
    EXPECT_EQ(one<Gex16s>(30000, -2.0, fast, gexRndFin), -32768);
    EXPECT_EQ(one<Gex16u>(40000, 2.0, fast, gexRndZero), 65535);
    EXPECT_EQ(one<Gex8u>(200, -1.0, acc, gexRndFin), 0);
    EXPECT_EQ(one<Gex16s>(3, std::nan(""), acc, gexRndFin), -32768);
    EXPECT_EQ(one<Gex8u>(3, std::nan(""), fast, gexRndNear), 0);
    // 32f: one rounding to binary32; the mode does not matter.
    EXPECT_EQ(one<float>(3.0f, 0.1, acc, gexRndZero), static_cast<float>(0.30000000000000004));
    EXPECT_EQ(one<float>(3.0f, 0.1, fast, gexRndZero), 3.0f * 0.1f);
}

TEST(MulC64f, ChecksAndAnyStep) {
    Gex16s a[4] = {1, 2, 3, 4}, o[4] = {};
    const double c[3] = {2, 2, 2};
    EXPECT_EQ(gexiMulC64f_16s_C3R(a, 6, nullptr, o, 6, {1, 1}, gexAlgHintFast, gexRndNear), gexStsNullPtr);
    EXPECT_EQ(gexiMulC64f_16s_C3R(a, 6, c, nullptr, 6, {0, 1}, gexAlgHintFast, gexRndNear), gexStsNullPtr);
    EXPECT_EQ(gexiMulC64f_16s_C3R(a, 6, c, o, 6, {0, 1}, gexAlgHintFast, gexRndNear), gexStsSize);
    EXPECT_EQ(gexiMulC64f_16s_C1IR(c, o, 2, {2, -1}, gexAlgHintFast, gexRndNear), gexStsSize);
    for (Gex16s v : o) EXPECT_EQ(v, 0);
    // Zero and negative steps are taken as they are.
    EXPECT_EQ(gexiMulC64f_16s_C1R(a, 0, c, o + 2, -4, {2, 2}, gexAlgHintFast, gexRndNear), gexStsOk);
    EXPECT_EQ(o[0], 2);
    EXPECT_EQ(o[1], 4);
    EXPECT_EQ(o[2], 2);
    EXPECT_EQ(o[3], 4);
}

TEST(MulC64f, RoundingControl) {
    const unsigned saved = _mm_getcsr();
    std::vector<Gex16u> src(300), dst(300);
    std::mt19937_64 rng(7);
    for (auto& v : src) v = static_cast<Gex16u>(rng());
    const double c = 0.3333333333333333;
    for (unsigned caller : {1u, 2u, 3u}) {
        const unsigned csr = (saved & ~(3u << 13)) | (caller << 13) | (1u << 15);  // and flush to zero
        for (int mode = 0; mode < 3; ++mode)
            for (GexHintAlgorithm hint : {gexAlgHintFast, gexAlgHintAccurate}) {
                _mm_setcsr(csr);
                const GexStatus st = gexiMulC64f_16u_C1R(src.data(), 600, &c, dst.data(), 600, {300, 1}, hint,
                                                         static_cast<GexRoundMode>(mode));
                const unsigned after = _mm_getcsr();
                _mm_setcsr(saved);
                ASSERT_EQ(st, gexStsOk);
                EXPECT_EQ(after & ~0x3fu, csr & ~0x3fu);
                for (int i = 0; i < 300; ++i)
                    ASSERT_EQ(dst[i], model<Gex16u>(src[i], c, hint == gexAlgHintAccurate, mode))
                        << "caller rounding " << caller << " mode " << mode;
            }
    }
}

}  // namespace
