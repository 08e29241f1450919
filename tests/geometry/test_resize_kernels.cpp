// The 512-bit interior kernels against their scalar twins: horizontal passes
// of every width 1..200 with random monotone positions and weights, the
// source row fenced by inaccessible pages on the side its extreme taps touch
// (so the vector loads read exactly the tap pixels), and vertical passes of
// random ring rows including values that must be clamped and rounded.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "geometry/resize_kernels_avx512.hpp"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

namespace {

using namespace gex::resize;

// Random non-decreasing tap positions for n outputs over a row of `len`
// pixels, with `before` taps before the position and `after` after it; the
// first or the last output sits at the row's very edge.
std::vector<std::int32_t> positions(std::int64_t n, int len, int before, int after, bool atStart, std::mt19937& rng) {
    const int lo = before, hi = len - 1 - after;
    std::vector<std::int32_t> x(static_cast<std::size_t>(n));
    for (auto& v : x) v = lo + int(rng() % unsigned(hi - lo + 1));
    std::sort(x.begin(), x.end());
    if (atStart) x.front() = lo;
    else x.back() = hi;
    return x;
}

template <class T>
T random_pixel(std::mt19937& rng) {
    if constexpr (std::is_same_v<T, float>) return std::uniform_real_distribution<float>(-500, 500)(rng);
    else return T(rng());
}

// Horizontal pass of kernel V against S on a fenced row.
template <class T, int C, class V, class S, class MakeWeights>
void compare_rows(int before, int after, MakeWeights make_weights, unsigned seed) {
    std::mt19937 rng(seed);
    for (int n = 1; n <= 200; ++n) {
        const int span = before + after + 1;
        const int len = span + int(rng() % unsigned(2 * n + 3));
        const bool atStart = rng() & 1;
        gextest::Fenced row(std::size_t(len) * C * sizeof(T), atStart);
        T* src = row.as<T>();
        for (int i = 0; i < len * C; ++i) src[i] = random_pixel<T>(rng);
        const auto x = positions(n, len, before, after, atStart, rng);
        const auto w = make_weights(n, rng);
        using Out = std::conditional_t<std::is_same_v<typename V::Weights, const std::uint16_t*>, std::int16_t, float>;
        std::vector<Out> a(std::size_t(n) * C + 16, Out(7)), b(a.size(), Out(7));
        V::row(src, x.data(), n, w.data(), a.data());
        S::row(src, x.data(), n, w.data(), b.data());
        ASSERT_TRUE(gextest::same_bits(a, b)) << "width " << n << " C" << C;
    }
}

template <class T, int C, int NT>
void taps_rows(unsigned seed) {
    auto weights = [](std::int64_t n, std::mt19937& rng) {
        std::vector<float> w(std::size_t(n) * NT);
        for (auto& v : w) v = std::uniform_real_distribution<float>(-0.3f, 1.0f)(rng);
        return w;
    };
    compare_rows<T, C, TapsVector<T, C, NT>, TapsScalar<T, C, NT>>(NT / 2 - 1, NT / 2, weights, seed);
}

TEST(ResizeKernels, CubicAndLanczosRowsMatchScalar) {
    taps_rows<std::uint8_t, 1, 4>(1);
    taps_rows<std::uint8_t, 3, 4>(2);
    taps_rows<std::uint8_t, 4, 4>(3);
    taps_rows<std::uint8_t, 1, 6>(4);
    taps_rows<std::uint8_t, 3, 6>(5);
    taps_rows<std::uint8_t, 4, 6>(6);
    taps_rows<float, 1, 4>(7);
    taps_rows<float, 3, 4>(8);
    taps_rows<float, 4, 4>(9);
    taps_rows<float, 1, 6>(10);
    taps_rows<float, 3, 6>(11);
    taps_rows<float, 4, 6>(12);
}

template <int C>
void linear_rows(unsigned seed) {
    auto fw = [](std::int64_t n, std::mt19937& rng) {
        std::vector<float> w(static_cast<std::size_t>(n));
        for (auto& v : w) v = std::uniform_real_distribution<float>(0.0f, 1.0f)(rng);
        return w;
    };
    compare_rows<float, C, LinearFloatVector<C>, LinearFloatScalar<float, C>>(0, 1, fw, seed);
    auto qw = [](std::int64_t n, std::mt19937& rng) {
        std::vector<std::uint16_t> w(std::size_t(n) * 2);
        for (std::int64_t j = 0; j < n; ++j) {
            const std::uint16_t v = std::uint16_t(rng() % 16385);
            w[2 * j] = std::uint16_t(16384 - v);
            w[2 * j + 1] = v;
        }
        return w;
    };
    compare_rows<std::uint8_t, C, LinearQ14Vector<C>, LinearQ14Scalar<C>>(0, 1, qw, seed + 100);
}

TEST(ResizeKernels, LinearRowsMatchScalar) {
    linear_rows<1>(21);
    linear_rows<3>(22);
    linear_rows<4>(23);
}

// Vertical passes: ring rows of random values (for 8u beyond 0..255 and on
// half-way points, so clamping and ties to even both happen).
template <class T, int NT>
void taps_cols(unsigned seed) {
    std::mt19937 rng(seed);
    for (int n = 1; n <= 600; n += 1 + int(rng() % 7)) {
        std::vector<std::vector<float>> rows(NT, std::vector<float>(std::size_t(n)));
        for (auto& r : rows)
            for (auto& v : r) v = (rng() & 3) == 0 ? float(int(rng() % 600) - 150) + 0.5f
                                                   : std::uniform_real_distribution<float>(-200, 500)(rng);
        const void* ptrs[6];
        for (int k = 0; k < NT; ++k) ptrs[k] = rows[k].data();
        float c[NT];
        for (auto& v : c) v = std::uniform_real_distribution<float>(-0.2f, 0.9f)(rng);
        if (n % 5 == 0) {
            for (auto& v : c) v = 0;
            c[NT / 2 - 1] = 1;  // an unchanged row: the ties stay ties
        }
        std::vector<T> a(std::size_t(n) + 8, T(3)), b(a.size(), T(3));
        TapsVector<T, 1, NT>::col(ptrs, c, n, a.data());
        TapsScalar<T, 1, NT>::col(ptrs, c, n, b.data());
        ASSERT_TRUE(gextest::same_bits(a, b)) << n;
    }
}

TEST(ResizeKernels, VerticalPassesMatchScalar) {
    taps_cols<std::uint8_t, 4>(31);
    taps_cols<std::uint8_t, 6>(32);
    taps_cols<float, 4>(33);
    taps_cols<float, 6>(34);
    std::mt19937 rng(35);
    for (int n = 1; n <= 600; n += 1 + int(rng() % 5)) {
        std::vector<std::int16_t> r0(static_cast<std::size_t>(n)), r1(static_cast<std::size_t>(n));
        std::vector<float> f0(static_cast<std::size_t>(n)), f1(static_cast<std::size_t>(n));
        for (int e = 0; e < n; ++e) {
            r0[e] = std::int16_t(rng() % 16321);
            r1[e] = std::int16_t(rng() % 16321);
            f0[e] = std::uniform_real_distribution<float>(-100, 100)(rng);
            f1[e] = std::uniform_real_distribution<float>(-100, 100)(rng);
        }
        const std::uint16_t wq = std::uint16_t(rng() % 16385);
        const float wf = std::uniform_real_distribution<float>(0, 1)(rng);
        const void* q[2] = {r0.data(), r1.data()};
        const void* f[2] = {f0.data(), f1.data()};
        std::vector<std::uint8_t> a(std::size_t(n) + 8, 1), b(a.size(), 1);
        LinearQ14Vector<1>::col(q, &wq, n, a.data());
        LinearQ14Scalar<1>::col(q, &wq, n, b.data());
        ASSERT_EQ(a, b) << n;
        std::vector<float> fa(std::size_t(n) + 8, 1), fb(fa.size(), 1);
        LinearFloatVector<1>::col(f, &wf, n, fa.data());
        LinearFloatScalar<float, 1>::col(f, &wf, n, fb.data());
        ASSERT_TRUE(gextest::same_bits(fa, fb)) << n;
    }
}

}  // namespace
