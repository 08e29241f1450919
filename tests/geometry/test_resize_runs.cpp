// Resize runs against the per-pixel model of resize_test_common.hpp: every
// method, depth and channel count over a sample of widths 1..200 in guarded
// destinations (padding, negative steps, the last byte before an
// inaccessible page) and guarded sources; in-memory flags reading real
// pixels around the source; and the edge cases that matter (equal sizes,
// 2 x 2 enlargement bands, nearest by exactly 2, saturation of 16s step
// edges, 32f overshoot).
#include <algorithm>
#include <vector>

#include "resize_test_common.hpp"

using gextest::Guarded;
using gextest::Layout;
using rt::M;

namespace {

constexpr int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

template <class T, int C, M K>
void whole_image_case(GexiSize src, GexiSize dst, const rt::Params& p, int border, int margin, Layout lay,
                      std::mt19937& rng, bool large) {
    SCOPED_TRACE(::testing::Message() << "src " << src.width << "x" << src.height << " dst " << dst.width << "x"
                                      << dst.height << " C" << C << " border " << border << " large " << large);
    rt::Source<T> s(src.width, src.height, C, margin);
    s.randomize(rng);
    rt::Record rec = rt::make_record<T>(K, src, dst, p, large);
    ASSERT_EQ(rec.status, 0);
    Guarded<T> d(dst.width, dst.height, C, lay);
    std::vector<std::uint8_t> buf;
    ASSERT_EQ((rt::run_tile<T, C, K>(rec, s.origin(), s.step(), {0, 0}, {dst.width, dst.height}, d.ptr(), d.step(),
                                      border, buf, large)),
              0);
    EXPECT_TRUE(d.guards_ok());
    EXPECT_TRUE((rt::matches_model<T, C>(K, p, s, dst, border, d.ptr(), d.step())));
}

// The minimum source of a method on each axis.
int min_src(M m, const rt::Params& p) { return m == M::Nearest ? 1 : m == M::Linear ? 2 : m == M::Cubic ? 4 : 2 * int(p.lobes); }

template <class T, int C, M K>
void model_sweep(unsigned seed) {
    std::mt19937 rng(seed);
    const auto layouts = gextest::standard_layouts();
    std::vector<rt::Params> params{rt::Params{}};
    if (K == M::Cubic) params = {{0.0f, 0.5f}, {1.0f, 0.0f}, {0.5f, 0.3f}, {0.3f, 0.1f}};
    if (K == M::Lanczos) params = {{0, 0, 2}, {0, 0, 3}};
    int n = 0;
    for (const rt::Params& p : params) {
        const int lo = min_src(K, p);
        for (int w : kWidths) {
            // Shrinking and enlarging: a source from the minimum up to about twice the width.
            const int sw = std::max(lo, int(rng() % (2 * w + 3)) + 1);
            const int sh = std::max(lo, int(rng() % 9) + 1);
            const int dh = 1 + int(rng() % 8);
            whole_image_case<T, C, K>({sw, sh}, {w, dh}, p, 1, 0, layouts[n % layouts.size()], rng, (n & 1) != 0);
            ++n;
        }
        // Tall images: the vertical direction gets the same sample.
        for (int h : {1, 3, 17, 64, 129}) {
            const int sh = std::max(lo, int(rng() % (2 * h + 3)) + 1);
            whole_image_case<T, C, K>({std::max(lo, 5), sh}, {6, h}, p, 1, 0, layouts[n % layouts.size()], rng, false);
            ++n;
        }
    }
}

template <class T, M K>
void model_sweep_channels(unsigned seed) {
    model_sweep<T, 1, K>(seed);
    model_sweep<T, 3, K>(seed + 1);
    model_sweep<T, 4, K>(seed + 2);
}

TEST(ResizeModel, Nearest) {
    model_sweep_channels<Gex8u, M::Nearest>(1);
    model_sweep_channels<Gex16u, M::Nearest>(2);
    model_sweep_channels<Gex16s, M::Nearest>(3);
    model_sweep_channels<Gex32f, M::Nearest>(4);
}

TEST(ResizeModel, Linear) {
    model_sweep_channels<Gex8u, M::Linear>(11);
    model_sweep_channels<Gex16u, M::Linear>(12);
    model_sweep_channels<Gex16s, M::Linear>(13);
    model_sweep_channels<Gex32f, M::Linear>(14);
    model_sweep_channels<Gex64f, M::Linear>(15);
}

TEST(ResizeModel, Cubic) {
    model_sweep_channels<Gex8u, M::Cubic>(21);
    model_sweep_channels<Gex16u, M::Cubic>(22);
    model_sweep_channels<Gex16s, M::Cubic>(23);
    model_sweep_channels<Gex32f, M::Cubic>(24);
}

TEST(ResizeModel, Lanczos) {
    model_sweep_channels<Gex8u, M::Lanczos>(31);
    model_sweep_channels<Gex16u, M::Lanczos>(32);
    model_sweep_channels<Gex16s, M::Lanczos>(33);
    model_sweep_channels<Gex32f, M::Lanczos>(34);
}

// In-memory flags: the source has real pixels around it, the flagged sides
// lose their bands and their taps read those pixels; 240 reads memory on
// every side.
template <class T, int C, M K>
void flags_case(unsigned seed) {
    std::mt19937 rng(seed);
    const rt::Params p{0.0f, 0.5f, 3};
    for (int trial = 0; trial < 24; ++trial) {
        const int border = trial == 0 ? 240 : 1 | int(rng() % 16) << 4;
        const GexiSize src{6 + int(rng() % 20), 6 + int(rng() % 20)};
        const GexiSize dst{1 + int(rng() % 40), 1 + int(rng() % 40)};
        whole_image_case<T, C, K>(src, dst, p, border, 4, Layout{}, rng, false);
    }
}

TEST(ResizeModel, InMemoryFlagsReadAroundTheSource) {
    flags_case<Gex8u, 1, M::Linear>(41);
    flags_case<Gex8u, 3, M::Linear>(42);
    flags_case<Gex16s, 4, M::Linear>(43);
    flags_case<Gex64f, 1, M::Linear>(44);
    flags_case<Gex8u, 1, M::Cubic>(45);
    flags_case<Gex32f, 3, M::Cubic>(46);
    flags_case<Gex8u, 4, M::Lanczos>(47);
    flags_case<Gex16u, 1, M::Lanczos>(48);
    flags_case<Gex32f, 4, M::Lanczos>(49);
}

// The source as a guarded image: with replicate borders a run reads nothing
// outside the source, also with the last source byte before an inaccessible
// page and with negative source steps.
template <class T, int C, M K>
void guarded_source_case(unsigned seed) {
    std::mt19937 rng(seed);
    const rt::Params p{0.0f, 0.5f, 3};
    for (const Layout& lay : gextest::standard_layouts()) {
        for (GexiSize src : {GexiSize{6, 6}, GexiSize{33, 7}, GexiSize{64, 9}}) {
            for (GexiSize dst : {GexiSize{3, 4}, GexiSize{31, 5}, GexiSize{129, 15}}) {
                Guarded<T> g(src.width, src.height, C, lay);
                g.fill_random(rng);
                if constexpr (std::is_floating_point_v<T>)
                    for (int y = 0; y < src.height; ++y)
                        for (int x = 0; x < src.width * C; ++x) g.row(y)[x] = T(int(g.row(y)[x]) % 500);
                rt::Source<T> s(src.width, src.height, C);
                for (int y = 0; y < src.height; ++y)
                    for (int x = 0; x < src.width; ++x)
                        for (int c = 0; c < C; ++c) s.at(x, y, c) = g.at(x, y, c);
                rt::Record rec = rt::make_record<T>(K, src, dst, p);
                ASSERT_EQ(rec.status, 0);
                std::vector<T> out(std::size_t(dst.width) * dst.height * C);
                std::vector<std::uint8_t> buf;
                ASSERT_EQ((rt::run_tile<T, C, K>(rec, g.ptr(), g.step(), {0, 0}, {dst.width, dst.height}, out.data(),
                                                  std::int64_t(dst.width) * C * sizeof(T), 1, buf)),
                          0);
                EXPECT_TRUE(g.guards_ok());
                EXPECT_TRUE((rt::matches_model<T, C>(K, p, s, dst, 1, out.data(), std::int64_t(dst.width) * C * sizeof(T))));
            }
        }
    }
}

TEST(ResizeModel, SourceReadOnlyInsideItself) {
    guarded_source_case<Gex8u, 1, M::Nearest>(51);
    guarded_source_case<Gex16s, 3, M::Nearest>(52);
    guarded_source_case<Gex8u, 1, M::Linear>(53);
    guarded_source_case<Gex8u, 3, M::Linear>(54);
    guarded_source_case<Gex8u, 4, M::Linear>(55);
    guarded_source_case<Gex32f, 1, M::Linear>(56);
    guarded_source_case<Gex32f, 3, M::Linear>(57);
    guarded_source_case<Gex32f, 4, M::Linear>(58);
    guarded_source_case<Gex64f, 3, M::Linear>(59);
    guarded_source_case<Gex8u, 1, M::Cubic>(60);
    guarded_source_case<Gex8u, 3, M::Cubic>(61);
    guarded_source_case<Gex8u, 4, M::Cubic>(62);
    guarded_source_case<Gex32f, 1, M::Cubic>(63);
    guarded_source_case<Gex32f, 3, M::Cubic>(64);
    guarded_source_case<Gex32f, 4, M::Cubic>(65);
    guarded_source_case<Gex8u, 1, M::Lanczos>(66);
    guarded_source_case<Gex8u, 3, M::Lanczos>(67);
    guarded_source_case<Gex8u, 4, M::Lanczos>(68);
    guarded_source_case<Gex32f, 1, M::Lanczos>(69);
    guarded_source_case<Gex32f, 3, M::Lanczos>(70);
    guarded_source_case<Gex32f, 4, M::Lanczos>(71);
    guarded_source_case<Gex16u, 4, M::Lanczos>(72);
}

// ---- Edge cases -------------------------------------------------------------------

template <class T, int C>
void same_size_copies(unsigned seed) {
    std::mt19937 rng(seed);
    for (GexiSize sz : {GexiSize{2, 2}, GexiSize{7, 3}, GexiSize{65, 9}}) {
        rt::Source<T> s(sz.width, sz.height, C);
        s.randomize(rng);
        rt::Record rec = rt::make_record<T>(M::Linear, sz, sz);
        std::vector<T> out(std::size_t(sz.width) * sz.height * C);
        std::vector<std::uint8_t> buf;
        ASSERT_EQ((rt::run_tile<T, C, M::Linear>(rec, s.origin(), s.step(), {0, 0}, {sz.width, sz.height}, out.data(),
                                                  std::int64_t(sz.width) * C * sizeof(T), 1, buf)),
                  0);
        EXPECT_TRUE(gextest::same_bits(out, s.px));
    }
}

TEST(ResizeEdges, LinearOfEqualSizesCopiesThroughBothPasses) {
    same_size_copies<Gex8u, 1>(1);
    same_size_copies<Gex8u, 3>(2);
    same_size_copies<Gex16u, 4>(3);
    same_size_copies<Gex16s, 1>(4);
    same_size_copies<Gex32f, 3>(5);
    same_size_copies<Gex64f, 4>(6);
}

TEST(ResizeEdges, TwoByTwoEnlargementIsMostlyBands) {
    std::mt19937 rng(7);
    rt::Record rec = rt::make_record<Gex8u>(M::Linear, {2, 2}, {40, 40});
    // x(i) = (i + 0.5) / 20 - 0.5 is below 0 for i < 10 and at least 1 for i >= 30.
    EXPECT_EQ(rec.raw()->xAxis.nLow, 10u);
    EXPECT_EQ(rec.raw()->xAxis.nHigh, 10u);
    EXPECT_EQ(rec.raw()->yAxis.nLow, 10u);
    rt::Source<Gex8u> s(2, 2, 1);
    s.randomize(rng);
    // A tile wholly inside the top-left band, one across the middle and the whole image.
    for (auto [off, size] : {std::pair{GexiPointL{0, 0}, GexiSizeL{8, 8}}, std::pair{GexiPointL{5, 5}, GexiSizeL{30, 30}},
                             std::pair{GexiPointL{0, 0}, GexiSizeL{40, 40}}}) {
        std::vector<Gex8u> out(std::size_t(size.width * size.height));
        std::vector<std::uint8_t> buf;
        ASSERT_EQ((rt::run_tile<Gex8u, 1, M::Linear>(rec, s.origin(), s.step(), off, size, out.data(), size.width, 1, buf)), 0);
        EXPECT_TRUE((rt::matches_model<Gex8u, 1>(M::Linear, {}, s, {40, 40}, 1, out.data(), size.width, int(off.x),
                                                 int(off.y), int(size.width), int(size.height))));
    }
}

TEST(ResizeEdges, NearestByTwoTakesTheLowerPixel) {
    rt::Source<Gex16u> s(10, 6, 1);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 10; ++x) s.at(x, y, 0) = Gex16u(100 * y + x);
    rt::Record rec = rt::make_record<Gex16u>(M::Nearest, {10, 6}, {5, 3});
    std::vector<Gex16u> out(15);
    std::vector<std::uint8_t> buf;
    ASSERT_EQ((rt::run_tile<Gex16u, 1, M::Nearest>(rec, s.origin(), s.step(), {0, 0}, {5, 3}, out.data(), 10, 0, buf)), 0);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(out[y * 5 + x], 100 * (2 * y) + 2 * x);
}

// Negative lobes overshoot: 16s saturates on both sides of a full-range
// step edge, 32f leaves the input's range.
template <class T, M K>
void step_edge(rt::Params p, T lo, T hi, std::vector<T>& out) {
    rt::Source<T> s(12, 6, 1);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 12; ++x) s.at(x, y, 0) = x < 6 ? lo : hi;
    rt::Record rec = rt::make_record<T>(K, {12, 6}, {37, 5}, p);
    out.assign(37 * 5, T(0));
    std::vector<std::uint8_t> buf;
    ASSERT_EQ((rt::run_tile<T, 1, K>(rec, s.origin(), s.step(), {0, 0}, {37, 5}, out.data(), 37 * sizeof(T), 1, buf)), 0);
    EXPECT_TRUE((rt::matches_model<T, 1>(K, p, s, {37, 5}, 1, out.data(), 37 * sizeof(T))));
}

TEST(ResizeEdges, StepEdgesSaturateOrOvershoot) {
    for (M m : {M::Cubic, M::Lanczos}) {
        std::vector<Gex16s> o16;
        std::vector<Gex32f> o32;
        if (m == M::Cubic) {
            step_edge<Gex16s, M::Cubic>({0.0f, 0.5f}, -32768, 32767, o16);
            step_edge<Gex32f, M::Cubic>({0.0f, 0.5f}, -1.0f, 1.0f, o32);
        } else {
            step_edge<Gex16s, M::Lanczos>({0, 0, 3}, -32768, 32767, o16);
            step_edge<Gex32f, M::Lanczos>({0, 0, 3}, -1.0f, 1.0f, o32);
        }
        // Wrapping instead of saturating would flip the sign of the overshoot
        // next to the edge: the low side stays negative, the high side positive,
        // and both extremes are reached.
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 14; ++x) {
                EXPECT_LT(o16[y * 37 + x], 0) << x;
                EXPECT_GT(o16[y * 37 + 36 - x], 0) << x;
            }
        EXPECT_EQ(*std::min_element(o16.begin(), o16.end()), -32768);
        EXPECT_EQ(*std::max_element(o16.begin(), o16.end()), 32767);
        EXPECT_GT(*std::max_element(o32.begin(), o32.end()), 1.0f);
        EXPECT_LT(*std::min_element(o32.begin(), o32.end()), -1.0f);
    }
}

}  // namespace
