// The border test and the per-pixel border rule: check_border over every
// value of a byte and the edge values around it, for each family set; the
// coordinate rule of modes 1, 3, 4 and 6 under all sixteen flag combinations
// on small odd images with coordinates far outside, against a model that
// walks the reflection step by step; the two-dimensional read (row first)
// and the one-channel entry points on real memory around a ROI.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "filter/border.hpp"
#include "gexip.h"

namespace {

using gex::kBorderConstant;

constexpr int kModes[] = {gexBorderRepl, gexBorderMirror, gexBorderMirrorR, gexBorderConst};

TEST(BorderCheck, EveryByteAndTheEdges) {
    struct Set {
        gex::BorderModes modes;
        std::vector<int> accepted;
    };
    const Set sets[] = {{gex::kBorderRepMirConst, {1, 3, 6}}, {gex::kBorderRepConst, {1, 6}}, {gex::kBorderRep, {1}}};
    for (const Set& s : sets) {
        for (int v = 0; v < 256; ++v) {
            bool ok = v == 240;
            for (int m : s.accepted) ok = ok || (v & 15) == m;
            EXPECT_EQ(gex::check_border(v, s.modes), ok ? gexStsOk : gexStsBorder) << v;
        }
        for (int v : {256, 257, 496, 0x1f1, -1, -15, -240, INT32_MIN, INT32_MAX})
            EXPECT_EQ(gex::check_border(v, s.modes), gexStsBorder) << v;
    }
    // The cases the families rely on: a flag without a mode, 256, the
    // in-memory value alone and with a mode, mode 4 everywhere.
    EXPECT_EQ(gex::check_border(16, gex::kBorderRepMirConst), gexStsBorder);
    EXPECT_EQ(gex::check_border(256, gex::kBorderRepMirConst), gexStsBorder);
    EXPECT_EQ(gex::check_border(240, gex::kBorderRep), gexStsOk);
    EXPECT_EQ(gex::check_border(241, gex::kBorderRepMirConst), gexStsOk);
    EXPECT_EQ(gex::check_border(112, gex::kBorderRepMirConst), gexStsBorder);  // three flags, no mode
    for (int flags = 0; flags < 256; flags += 16)
        for (gex::BorderModes s : {gex::kBorderRepMirConst, gex::kBorderRepConst, gex::kBorderRep})
            EXPECT_EQ(gex::check_border(flags | gexBorderMirrorR, s), gexStsBorder) << flags;
}

// The reflection walked one pixel at a time from the edge: each step beyond
// the edge moves one pixel back into the image (mode 3 starts one pixel in,
// mode 4 on the edge); without memory on the far side it stops at the far
// edge, with memory it goes on past it.
std::int64_t model_coord(std::int64_t t, std::int64_t n, int mode, bool memLow, bool memHigh) {
    if (t >= 0 && t < n) return t;
    const bool low = t < 0;
    if (low ? memLow : memHigh) return t;
    if (mode == gexBorderConst) return kBorderConstant;
    if (mode == gexBorderRepl) return low ? 0 : n - 1;
    const std::int64_t steps = low ? -t : t - (n - 1);
    const bool farInMemory = low ? memHigh : memLow;
    std::int64_t pos = low ? 0 : n - 1;
    const std::int64_t dir = low ? 1 : -1;
    const std::int64_t walk = mode == gexBorderMirror ? steps : steps - 1;
    for (std::int64_t i = 0; i < walk; ++i) {
        const std::int64_t next = pos + dir;
        if (!farInMemory && (next < 0 || next >= n)) break;
        pos = next;
    }
    return pos;
}

TEST(BorderRule, CoordinatesAgainstTheWalk) {
    for (std::int64_t n : {1, 2, 3, 4, 5, 7}) {
        for (int mode : kModes) {
            for (int flags = 0; flags < 4; ++flags) {
                const bool lo = flags & 1, hi = flags & 2;
                for (std::int64_t t = -3 * n - 9; t < 4 * n + 9; ++t)
                    EXPECT_EQ(gex::border_coord(t, n, mode, lo, hi), model_coord(t, n, mode, lo, hi))
                        << "n " << n << " mode " << mode << " flags " << flags << " t " << t;
            }
        }
    }
}

TEST(BorderRule, WorkedValues) {
    // H = 3, mirror without the edge: -1 reads 1, -2 reads 2, further stays at 2.
    EXPECT_EQ(gex::border_coord(-1, 3, gexBorderMirror, false, false), 1);
    EXPECT_EQ(gex::border_coord(-5, 3, gexBorderMirror, false, false), 2);
    // ... unless the rows below are in memory: -5 reads row 5.
    EXPECT_EQ(gex::border_coord(-5, 3, gexBorderMirror, false, true), 5);
    // With the edge: -1 reads 0, 3 reads 2, 4 reads 1.
    EXPECT_EQ(gex::border_coord(-1, 3, gexBorderMirrorR, false, false), 0);
    EXPECT_EQ(gex::border_coord(3, 3, gexBorderMirrorR, false, false), 2);
    EXPECT_EQ(gex::border_coord(4, 3, gexBorderMirrorR, false, false), 1);
    EXPECT_EQ(gex::border_coord(9, 3, gexBorderMirror, true, false), -5);
    EXPECT_EQ(gex::border_coord(-4, 3, gexBorderRepl, false, true), 0);
    EXPECT_EQ(gex::border_coord(7, 3, gexBorderConst, false, false), kBorderConstant);
    EXPECT_EQ(gex::border_coord(7, 3, gexBorderConst, false, true), 7);
}

// An image of (W + 2M) x (H + 2M) distinct values with the ROI at (M, M).
struct Field {
    static constexpr int M = 24;
    int W, H, stride;
    std::vector<float> px;
    Field(int w, int h) : W(w), H(h), stride(w + 2 * M), px(static_cast<std::size_t>(stride) * (h + 2 * M)) {
        for (std::size_t i = 0; i < px.size(); ++i) px[i] = static_cast<float>(i) + 0.25f;
    }
    const float* roi() const { return px.data() + static_cast<std::size_t>(M) * stride + M; }
    float at(std::int64_t x, std::int64_t y) const { return roi()[y * stride + x]; }
};

TEST(BorderRule, PixelsRowFirstOnMemory) {
    const GexiSize sizes[] = {{1, 1}, {1, 5}, {5, 1}, {3, 3}, {7, 4}, {2, 6}};
    for (GexiSize s : sizes) {
        Field f(s.width, s.height);
        const int step = f.stride * static_cast<int>(sizeof(float));
        for (int mode : kModes) {
            for (int flags = 0; flags < 256; flags += 16) {
                const bool T = flags & gexBorderInMemTop, B = flags & gexBorderInMemBottom;
                const bool L = flags & gexBorderInMemLeft, R = flags & gexBorderInMemRight;
                for (int y = -9; y < s.height + 9; ++y) {
                    for (int x = -9; x < s.width + 9; ++x) {
                        const std::int64_t row = model_coord(y, s.height, mode, T, B);
                        const std::int64_t col = model_coord(x, s.width, mode, L, R);
                        const bool constant = row == kBorderConstant || col == kBorderConstant;
                        const float want = constant ? -7.5f : f.at(col, row);
                        EXPECT_EQ(gex::getPx_32f(f.roi(), step, s, x, y, mode, flags, -7.5f), want)
                            << s.width << "x" << s.height << " mode " << mode << " flags " << flags << " (" << x
                            << ", " << y << ")";
                        const float* p = gex::border_pixel(f.roi(), step, s, x, y, mode, flags, 1);
                        EXPECT_EQ(p == nullptr, constant);
                    }
                }
            }
        }
    }
}

TEST(BorderRule, AllFlagsReadMemoryWhateverTheMode) {
    Field f(3, 2);
    const int step = f.stride * static_cast<int>(sizeof(float));
    for (int mode : {0, 1, 3, 4, 6})
        for (int y = -20; y < 22; y += 3)
            for (int x = -20; x < 23; x += 4)
                EXPECT_EQ(gex::getPx_32f(f.roi(), step, {3, 2}, x, y, mode, gexBorderInMem, -1.0f), f.at(x, y));
}

TEST(BorderRule, IntegerEntryPointsAndPixels) {
    // 8u and 16s through the same rule, on a 5 x 3 ROI inside a larger image.
    constexpr int M = 6, W = 5, H = 3, S = W + 2 * M;
    std::vector<Gex8u> a(S * (H + 2 * M));
    std::vector<Gex16s> b(a.size());
    std::mt19937 rng(7);
    for (std::size_t i = 0; i < a.size(); ++i) {
        a[i] = static_cast<Gex8u>(rng());
        b[i] = static_cast<Gex16s>(rng());
    }
    const Gex8u* ra = a.data() + M * S + M;
    const Gex16s* rb = b.data() + M * S + M;
    for (int mode : kModes)
        for (int flags = 0; flags < 256; flags += 16)
            for (int y = -M; y < H + M; ++y)
                for (int x = -M; x < W + M; ++x) {
                    const std::int64_t row = model_coord(y, H, mode, flags & 16, flags & 32);
                    const std::int64_t col = model_coord(x, W, mode, flags & 64, flags & 128);
                    const bool c = row == kBorderConstant || col == kBorderConstant;
                    ASSERT_EQ(gex::getPx_8u(ra, S, {W, H}, x, y, mode, flags, 201), c ? 201 : ra[row * S + col]);
                    ASSERT_EQ(gex::getPx_16s(rb, S * 2, {W, H}, x, y, mode, flags, -3), c ? -3 : rb[row * S + col]);
                }
    // A three-channel pixel: the address of its first element.
    std::vector<Gex16s> c3(S * 3 * (H + 2 * M));
    const Gex16s* r3 = c3.data() + (M * S + M) * 3;
    const Gex16s* p = gex::border_pixel(r3, S * 6, GexiSize{W, H}, -2, 4, gexBorderMirror, 0, 3);
    EXPECT_EQ(p, r3 + (0 * S + 2) * 3);  // row 4: d = 2, clamped to 2, row 0; column -2 reads 2
}

}  // namespace
