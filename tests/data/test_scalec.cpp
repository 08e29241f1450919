// ScaleC: all 49 pairs and the 7 in-place forms against a model of
// dst = saturate(round(src * mVal + aVal)) on guarded images, both hints
// (2: binary64; anything else: binary32 fused, binary64 fused for 64f
// sources), the identity short path (a plain conversion or copy with that
// operation's checks), the check order and "nothing written on failure",
// the control word, and the vector row kernels against their scalar twins.
#include <gtest/gtest.h>

#include <immintrin.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "data/scalec.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

using gextest::same_bits;

namespace {

template <class T>
constexpr bool kFloat = std::is_floating_point_v<T>;

// Bitwise equality, with any two NaNs equal.
template <class T>
bool same_value(T a, T b) {
    if constexpr (kFloat<T>)
        if (std::isnan(a) && std::isnan(b)) return true;
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

template <class T>
double as_double(T v) {
    return static_cast<double>(v);
}

// ---- the model --------------------------------------------------------------------

// A real value into D: integers round half to even and saturate, NaN goes to
// the type's minimum; floating types take the value as it is.
template <class D, class F>
D into(F t) {
    if constexpr (kFloat<D>) {
        return static_cast<D>(t);
    } else {
        const long double lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
        if (std::isnan(t)) return std::numeric_limits<D>::lowest();
        const long double r = std::nearbyint(static_cast<long double>(t));
        return static_cast<D>(r < lo ? lo : (r > hi ? hi : r));
    }
}

template <class S, class D>
D model(S x, double m, double a, bool accurate) {
    if (accurate) {
        volatile double p = static_cast<double>(x) * m;
        return into<D>(p + a);
    }
    if constexpr (std::is_same_v<S, Gex64f>) return into<D>(std::fma(x, m, a));
    else return into<D>(std::fma(static_cast<float>(x), static_cast<float>(m), static_cast<float>(a)));
}

template <class S, class D>
D model_identity(S x) {
    return into<D>(static_cast<double>(x));
}

// ---- sources -----------------------------------------------------------------------

template <class S>
S random_source(std::mt19937_64& rng) {
    if constexpr (kFloat<S>) {
        using L = std::numeric_limits<S>;
        static const S special[] = {L::quiet_NaN(), L::infinity(), -L::infinity(), S(0), -S(0), S(0.5), S(-2.5),
                                    S(1e30), S(-1e30), L::denorm_min(), S(3.5), S(65535.5), S(-128.5)};
        const unsigned k = rng() % 32;
        if (k < std::size(special)) return special[k];
        if (k < 18) return static_cast<S>(std::nearbyint(std::uniform_real_distribution<double>(-1e5, 1e5)(rng))) + S(0.5);
        if constexpr (std::is_same_v<S, Gex64f>)
            if (k == 18) return std::uniform_real_distribution<double>(-1e300, 1e300)(rng);
        return static_cast<S>(std::uniform_real_distribution<double>(-1000.0, 1000.0)(rng));
    } else if constexpr (std::is_same_v<S, Gex32s>) {
        static const Gex32s special[] = {INT_MIN, INT_MAX, 0, -1, 1, 16777217, -16777217, INT_MAX - 64};
        const unsigned k = rng() % 16;
        if (k < 8) return special[k];
        if (k < 12) return static_cast<Gex32s>(rng() % 2001) - 1000;
        return static_cast<Gex32s>(rng());
    } else {
        return static_cast<S>(rng());
    }
}

// ---- the forms -------------------------------------------------------------------------

template <class S, class D>
using Fn = GexStatus (*)(const S*, int, Gex64f, Gex64f, D*, int, GexiSize, GexHintAlgorithm);

const std::vector<Layout>& layouts() {
    static const std::vector<Layout> v = {Layout{}, Layout{3, 61, 1, false, false}, Layout{0, 40, 1, false, true},
                                          Layout{0, 0, 1, false, false}};
    return v;
}

const int kWidths[] = {1, 7, 16, 33, 65, 200};
const GexHintAlgorithm kHints[] = {gexAlgHintNone, gexAlgHintFast, gexAlgHintAccurate,
                                   static_cast<GexHintAlgorithm>(7)};
struct Coeffs {
    double m, a;
};
const Coeffs kCoeffs[] = {{0.5, 0.0}, {-3.7, 100.3}, {1234.567, -0.5}, {1.000000001, 0.3}};

// Values on every layout pair, width and hint against the model.
template <class S, class D>
void check_values(Fn<S, D> f, const char* name, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const auto& lay = layouts();
    const std::size_t nl = lay.size();
    for (const Coeffs& c : kCoeffs)
        for (GexHintAlgorithm hint : kHints)
            for (std::size_t li = 0; li < nl; ++li)
                for (int w : kWidths) {
                    const int h = 1 + static_cast<int>(rng() % 3);
                    Guarded<S> src(w, h, 1, lay[li]);
                    Guarded<D> dst(w, h, 1, lay[(li + w) % nl]);
                    for (int y = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x) src.at(x, y) = random_source<S>(rng);
                    dst.fill_random(rng);
                    const std::vector<S> src0 = src.snapshot();
                    ASSERT_EQ(f(src.ptr(), src.step(), c.m, c.a, dst.ptr(), dst.step(), {w, h}, hint), gexStsOk);
                    for (int y = 0, i = 0; y < h; ++y)
                        for (int x = 0; x < w; ++x, ++i) {
                            const D want = model<S, D>(src0[i], c.m, c.a, hint == gexAlgHintAccurate);
                            ASSERT_TRUE(same_value(dst.at(x, y), want))
                                << name << " m " << c.m << " a " << c.a << " hint " << hint << ": source "
                                << as_double(src0[i]) << " gave " << as_double(dst.at(x, y)) << ", want "
                                << as_double(want);
                        }
                    ASSERT_TRUE(dst.guards_ok()) << name;
                    ASSERT_TRUE(src.guards_ok() && same_bits(src.snapshot(), src0)) << name;
                }
}

// The pairs whose conversion checks no steps: the copies and the conversions
// whose only policy is saturation or that take a scale factor.
const std::set<std::string> kNoStepCheck = {
    "8u8u",   "8s8s",   "16u16u", "16s16s", "32s32s", "32f32f", "64f64f", "8u8s",  "16u8s", "16s8s",
    "16u16s", "32s16u", "32s16s", "32f32s", "64f8u",  "64f8s",  "64f16u", "64f16s", "8s8u", "8s16u", "16s16u"};

// mVal 1 and aVal 0 (within 2.2e-16) is a plain conversion: exact values,
// with that conversion's checks. Any other pair of constants goes through
// the full checks.
template <class S, class D>
void check_identity(Fn<S, D> f, const std::string& pair, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const Coeffs ids[] = {{1.0, 0.0}, {1.0 - 1e-16, 1e-17}, {1.0, -2.2e-16}};
    for (const Coeffs& c : ids)
        for (GexHintAlgorithm hint : {gexAlgHintFast, gexAlgHintAccurate})
            for (int w : {1, 17, 200}) {
                Guarded<S> src(w, 2);
                Guarded<D> dst(w, 2, 1, Layout{0, 0, 1, false, true});
                for (int y = 0; y < 2; ++y)
                    for (int x = 0; x < w; ++x) src.at(x, y) = random_source<S>(rng);
                ASSERT_EQ(f(src.ptr(), src.step(), c.m, c.a, dst.ptr(), dst.step(), {w, 2}, hint), gexStsOk);
                for (int y = 0; y < 2; ++y)
                    for (int x = 0; x < w; ++x)
                        ASSERT_TRUE(same_value(dst.at(x, y), model_identity<S, D>(src.at(x, y))))
                            << pair << " identity: source " << as_double(src.at(x, y)) << " gave "
                            << as_double(dst.at(x, y));
                ASSERT_TRUE(dst.guards_ok());
            }

    // Checks of the identity path.
    Guarded<S> src(4, 2);
    Guarded<D> dst(4, 2);
    EXPECT_EQ(f(nullptr, src.step(), 1.0, 0.0, dst.ptr(), dst.step(), {4, 2}, gexAlgHintFast), gexStsNullPtr) << pair;
    EXPECT_EQ(f(src.ptr(), src.step(), 1.0, 0.0, nullptr, dst.step(), {0, 2}, gexAlgHintFast), gexStsNullPtr) << pair;
    EXPECT_EQ(f(src.ptr(), src.step(), 1.0, 0.0, dst.ptr(), dst.step(), {0, 2}, gexAlgHintFast), gexStsSize) << pair;
    const bool stepFree = kNoStepCheck.count(pair) != 0;
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 4; ++x) src.at(x, y) = random_source<S>(rng);
    // Step 0 reads and writes the first row twice.
    EXPECT_EQ(f(src.ptr(), 0, 1.0, 0.0, dst.ptr(), 0, {4, 2}, gexAlgHintFast), stepFree ? gexStsOk : gexStsStep)
        << pair;
    if (stepFree) {
        for (int x = 0; x < 4; ++x) ASSERT_TRUE(same_value(dst.at(x, 0), model_identity<S, D>(src.at(x, 0))));
    }
    // Not the identity: steps are checked whatever the pair.
    EXPECT_EQ(f(src.ptr(), 0, 1.0, 1.0, dst.ptr(), 0, {4, 2}, gexAlgHintFast), gexStsStep) << pair;
    ASSERT_TRUE(dst.guards_ok());
}

// null, size, steps; nothing written on failure.
template <class S, class D>
void check_order(Fn<S, D> f, const std::string& pair) {
    Guarded<S> src(5, 2);
    Guarded<D> dst(5, 2);
    const std::vector<D> dst0 = dst.snapshot();
    const S* s = src.ptr();
    D* d = dst.ptr();
    const int ss = src.step(), ds = dst.step();
    for (GexHintAlgorithm hint : {gexAlgHintFast, gexAlgHintAccurate}) {
        const double m = 2.0, a = 1.0;
        EXPECT_EQ(f(nullptr, ss, m, a, d, ds, {5, 2}, hint), gexStsNullPtr) << pair;
        EXPECT_EQ(f(s, ss, m, a, nullptr, ds, {5, 2}, hint), gexStsNullPtr) << pair;
        EXPECT_EQ(f(nullptr, 0, m, a, d, 0, {0, 0}, hint), gexStsNullPtr) << pair;
        EXPECT_EQ(f(s, ss, m, a, d, ds, {0, 2}, hint), gexStsSize) << pair;
        EXPECT_EQ(f(s, ss, m, a, d, ds, {5, 0}, hint), gexStsSize) << pair;
        EXPECT_EQ(f(s, 0, m, a, d, ds, {5, -2}, hint), gexStsSize) << pair;
        EXPECT_EQ(f(s, 0, m, a, d, ds, {5, 2}, hint), gexStsStep) << pair;
        EXPECT_EQ(f(s, ss, m, a, d, -ds, {5, 2}, hint), gexStsStep) << pair;
        EXPECT_EQ(f(s, -1, m, a, d, ds, {5, 2}, hint), gexStsStep) << pair;
    }
    EXPECT_TRUE(same_bits(dst.snapshot(), dst0) && dst.guards_ok()) << pair;
}

// The vector kernels against their scalar twins: random rows, lengths 1..200,
// element offsets 0..3.
template <class K, class S, class D>
void twin(const K& k, const std::string& what, std::mt19937_64& rng) {
    std::vector<S> src(210);
    std::vector<D> a(210), b(210);
    for (int n = 1; n <= 200; n += (n < 40 ? 1 : 17))
        for (int off = 0; off < 4; ++off) {
            for (S& v : src) v = random_source<S>(rng);
            for (std::size_t i = 0; i < a.size(); ++i) a[i] = b[i] = static_cast<D>(i);
            gex::scalec_kernels::row(k, src.data() + off, a.data() + off, n);
            gex::scalec_kernels::row_ref(k, src.data() + off, b.data() + off, n);
            for (std::size_t i = 0; i < a.size(); ++i)
                ASSERT_TRUE(same_value(a[i], b[i])) << what << " n " << n << " offset " << off << " element " << i;
        }
}

template <class S, class D>
void check_twins(const std::string& pair, std::uint64_t seed) {
    namespace ck = gex::scalec_kernels;
    std::mt19937_64 rng(seed);
    for (const Coeffs& c : kCoeffs) {
        twin<ck::Fast<S, D>, S, D>(ck::Fast<S, D>(c.m, c.a), pair + " fast", rng);
        twin<ck::Acc<S, D>, S, D>(ck::Acc<S, D>{c.m, c.a}, pair + " accurate", rng);
    }
    twin<ck::Exact<S, D>, S, D>(ck::Exact<S, D>{}, pair + " exact", rng);
}

// Every pair, by its depth words and types.
#define SCALEC_PAIRS(X)                                                                                        \
    X(8u, 8s, Gex8u, Gex8s) X(8u, 16u, Gex8u, Gex16u) X(8u, 16s, Gex8u, Gex16s) X(8u, 32s, Gex8u, Gex32s)     \
    X(8u, 32f, Gex8u, Gex32f) X(8u, 64f, Gex8u, Gex64f) X(8s, 8u, Gex8s, Gex8u) X(8s, 16u, Gex8s, Gex16u)     \
    X(8s, 16s, Gex8s, Gex16s) X(8s, 32s, Gex8s, Gex32s) X(8s, 32f, Gex8s, Gex32f) X(8s, 64f, Gex8s, Gex64f)   \
    X(16u, 8u, Gex16u, Gex8u) X(16u, 8s, Gex16u, Gex8s) X(16u, 16s, Gex16u, Gex16s)                           \
    X(16u, 32s, Gex16u, Gex32s) X(16u, 32f, Gex16u, Gex32f) X(16u, 64f, Gex16u, Gex64f)                       \
    X(16s, 8u, Gex16s, Gex8u) X(16s, 8s, Gex16s, Gex8s) X(16s, 16u, Gex16s, Gex16u)                           \
    X(16s, 32s, Gex16s, Gex32s) X(16s, 32f, Gex16s, Gex32f) X(16s, 64f, Gex16s, Gex64f)                       \
    X(32s, 8u, Gex32s, Gex8u) X(32s, 8s, Gex32s, Gex8s) X(32s, 16u, Gex32s, Gex16u)                           \
    X(32s, 16s, Gex32s, Gex16s) X(32s, 32f, Gex32s, Gex32f) X(32s, 64f, Gex32s, Gex64f)                       \
    X(32f, 8u, Gex32f, Gex8u) X(32f, 8s, Gex32f, Gex8s) X(32f, 16u, Gex32f, Gex16u)                           \
    X(32f, 16s, Gex32f, Gex16s) X(32f, 32s, Gex32f, Gex32s) X(32f, 64f, Gex32f, Gex64f)                       \
    X(64f, 8u, Gex64f, Gex8u) X(64f, 8s, Gex64f, Gex8s) X(64f, 16u, Gex64f, Gex16u)                           \
    X(64f, 16s, Gex64f, Gex16s) X(64f, 32s, Gex64f, Gex32s) X(64f, 32f, Gex64f, Gex32f)

#define SCALEC_SAME(X)                                                                                        \
    X(8u, Gex8u) X(8s, Gex8s) X(16u, Gex16u) X(16s, Gex16s) X(32s, Gex32s) X(32f, Gex32f) X(64f, Gex64f)

TEST(ScaleC, Values) {
    std::uint64_t seed = 100;
#define RUN(SW, DW, S, D) check_values<S, D>(gexiScaleC_##SW##DW##_C1R, #SW #DW, ++seed);
#define RUN_SAME(W, T) check_values<T, T>(gexiScaleC_##W##_C1R, #W, ++seed);
    SCALEC_PAIRS(RUN)
    SCALEC_SAME(RUN_SAME)
#undef RUN
#undef RUN_SAME
}

TEST(ScaleC, IdentityIsAPlainConversion) {
    std::uint64_t seed = 200;
#define RUN(SW, DW, S, D) check_identity<S, D>(gexiScaleC_##SW##DW##_C1R, #SW #DW, ++seed);
#define RUN_SAME(W, T) check_identity<T, T>(gexiScaleC_##W##_C1R, #W #W, ++seed);
    SCALEC_PAIRS(RUN)
    SCALEC_SAME(RUN_SAME)
#undef RUN
#undef RUN_SAME

    // 8u to 32f with mVal 1, aVal 0 is the plain value: a tiny aVal inside the
    // tolerance does not reach the result, and 32s to 64f keeps all 32 bits,
    // which the binary32 kernel could not.
    const Gex8u b[3] = {0, 1, 255};
    Gex32f f[3];
    ASSERT_EQ(gexiScaleC_8u32f_C1R(b, 3, 1.0, 1e-17, f, 12, {3, 1}, gexAlgHintFast), gexStsOk);
    EXPECT_TRUE(same_value(f[0], 0.0f) && f[1] == 1.0f && f[2] == 255.0f);
    const Gex32s i[2] = {16777217, -2147483647};
    Gex64f d[2];
    ASSERT_EQ(gexiScaleC_32s64f_C1R(i, 8, 1.0, 0.0, d, 16, {2, 1}, gexAlgHintFast), gexStsOk);
    EXPECT_EQ(d[0], 16777217.0);
    EXPECT_EQ(d[1], -2147483647.0);
    // Just outside the tolerance it is ScaleC proper: the binary32 kernel.
    ASSERT_EQ(gexiScaleC_32s64f_C1R(i, 8, 1.0, 4.5e-16, d, 16, {2, 1}, gexAlgHintFast), gexStsOk);
    EXPECT_EQ(d[0], 16777216.0);
}

TEST(ScaleC, CheckOrder) {
#define RUN(SW, DW, S, D) check_order<S, D>(gexiScaleC_##SW##DW##_C1R, #SW #DW);
#define RUN_SAME(W, T) check_order<T, T>(gexiScaleC_##W##_C1R, #W);
    SCALEC_PAIRS(RUN)
    SCALEC_SAME(RUN_SAME)
#undef RUN
#undef RUN_SAME
}

// In place: the image is source and destination, through the same checks.
template <class T>
void check_in_place(GexStatus (*f)(T*, int, Gex64f, Gex64f, GexiSize, GexHintAlgorithm), const char* name,
                    std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const Coeffs cs[] = {{0.5, 0.0}, {-3.7, 100.3}, {1.0, 0.0}};
    for (const Coeffs& c : cs)
        for (GexHintAlgorithm hint : kHints)
            for (int w : {1, 15, 64, 131}) {
                Guarded<T> img(w, 3, 1, Layout{5, 19, 1, false, true});
                for (int y = 0; y < 3; ++y)
                    for (int x = 0; x < w; ++x) img.at(x, y) = random_source<T>(rng);
                const std::vector<T> before = img.snapshot();
                ASSERT_EQ(f(img.ptr(), img.step(), c.m, c.a, {w, 3}, hint), gexStsOk);
                for (int y = 0, i = 0; y < 3; ++y)
                    for (int x = 0; x < w; ++x, ++i) {
                        const T want = (c.m == 1.0 && c.a == 0.0)
                                           ? before[i]
                                           : model<T, T>(before[i], c.m, c.a, hint == gexAlgHintAccurate);
                        ASSERT_TRUE(same_value(img.at(x, y), want)) << name << " source " << as_double(before[i]);
                    }
                ASSERT_TRUE(img.guards_ok());
            }
    Guarded<T> img(4, 2);
    const std::vector<T> before = img.snapshot();
    EXPECT_EQ(f(nullptr, img.step(), 2.0, 0.0, {4, 2}, gexAlgHintFast), gexStsNullPtr);
    EXPECT_EQ(f(img.ptr(), img.step(), 2.0, 0.0, {4, 0}, gexAlgHintFast), gexStsSize);
    EXPECT_EQ(f(img.ptr(), 0, 2.0, 0.0, {4, 2}, gexAlgHintFast), gexStsStep);
    EXPECT_EQ(f(img.ptr(), -img.step(), 2.0, 0.0, {4, 2}, gexAlgHintAccurate), gexStsStep);
    EXPECT_TRUE(same_bits(img.snapshot(), before) && img.guards_ok()) << name;
}

TEST(ScaleC, InPlace) {
    std::uint64_t seed = 300;
#define RUN_SAME(W, T) check_in_place<T>(gexiScaleC_##W##_C1IR, #W, ++seed);
    SCALEC_SAME(RUN_SAME)
#undef RUN_SAME
}

// Rounding upwards with flush-to-zero set by the caller: results are those
// of nearest-even with gradual underflow, and the control word comes back.
TEST(ScaleC, ControlWordKeptAndIgnored) {
    const int n = 9;
    const Gex32f src[n] = {0.5f, 1.5f, 2.5f, -0.5f, 1e-40f, 3e-39f, 100.25f, -7.5f, 253.0f};
    const double m = 1.0 / 3.0, a = 0.5;
    Gex8u d8[n], e8[n], r8[n];
    Gex32f d32[n], e32[n], x3[n];
    for (int i = 0; i < n; ++i) {
        x3[i] = src[i] * 3.0f;
        e8[i] = model<Gex32f, Gex8u>(x3[i], 0.5, 0.25, true);
        e32[i] = model<Gex32f, Gex32f>(src[i], m, a * 1e-38, false);
    }
    const unsigned saved = _mm_getcsr();
    const unsigned odd = (saved & ~0x6000u) | 0x4000u | 0x8040u;
    _mm_setcsr(odd);
    const GexStatus s1 = gexiScaleC_32f8u_C1R(x3, 4 * n, 0.5, 0.25, r8, n, {n, 1}, gexAlgHintAccurate);
    const unsigned mid = _mm_getcsr();
    const GexStatus s2 = gexiScaleC_32f_C1R(src, 4 * n, m, a * 1e-38, d32, 4 * n, {n, 1}, gexAlgHintFast);
    const GexStatus s3 = gexiScaleC_32f8u_C1R(x3, 4 * n, 0.5, 0.25, d8, n, {n, 1}, gexAlgHintFast);
    const unsigned after = _mm_getcsr();
    _mm_setcsr(saved);
    ASSERT_EQ(s1 | s2 | s3, gexStsOk);
    EXPECT_EQ(mid, odd);
    EXPECT_EQ(after, odd);
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(r8[i], e8[i]) << src[i];
        EXPECT_EQ(d8[i], (model<Gex32f, Gex8u>(x3[i], 0.5, 0.25, false))) << src[i];
        EXPECT_TRUE(same_value(d32[i], e32[i])) << src[i];
    }
    // Ties went to even, not up: 1.5 * 3 * 0.5 + 0.25 = 2.5 gives 2.
    EXPECT_EQ(r8[1], 2);
}

TEST(ScaleC, KernelsMatchScalarTwins) {
    std::uint64_t seed = 400;
#define RUN(SW, DW, S, D) check_twins<S, D>(#SW #DW, ++seed);
#define RUN_SAME(W, T) check_twins<T, T>(#W, ++seed);
    SCALEC_PAIRS(RUN)
    SCALEC_SAME(RUN_SAME)
#undef RUN
#undef RUN_SAME
}

}  // namespace
