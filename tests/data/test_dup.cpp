// Dup: each source pixel to every channel of the destination pixel, on
// guarded images, against the scalar row; checks and their order.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "data/set.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 16, 17, 21, 22, 31, 33, 63, 64, 65, 127, 128, 129, 200};

std::vector<Layout> all_layouts() {
    auto v = gextest::standard_layouts();
    v.push_back(Layout{0, 0, 1, false, false});
    v.push_back(Layout{0, 0, 0, false, true});
    return v;
}

using DupFn = GexStatus (*)(const Gex8u*, int, Gex8u*, int, GexiSize);

void check_image(DupFn fn, int ch) {
    std::mt19937_64 rng(50 + ch);
    for (const Layout& lay : all_layouts())
        for (int w : kWidths)
            for (int h : {1, 4}) {
                Guarded<Gex8u> src(w, h, 1, lay), dst(w, h, ch, lay);
                src.fill_random(rng);
                dst.fill_random(rng);
                const std::vector<Gex8u> before = src.snapshot();
                ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), gexStsOk);
                for (int y = 0; y < h; ++y)
                    for (int x = 0; x < w; ++x)
                        for (int c = 0; c < ch; ++c)
                            ASSERT_EQ(dst.at(x, y, c), src.at(x, y))
                                << "C1C" << ch << " width " << w << " height " << h << " pixel " << x << "," << y;
                ASSERT_EQ(src.snapshot(), before);
                ASSERT_TRUE(dst.guards_ok());
                ASSERT_TRUE(src.guards_ok());
            }
}

TEST(Dup, C1C3) { check_image(gexiDup_8u_C1C3R, 3); }
TEST(Dup, C1C4) { check_image(gexiDup_8u_C1C4R, 4); }

// A source step of 0 repeats the first row; a negative destination step
// flips the result.
TEST(Dup, ZeroAndNegativeSteps) {
    Guarded<Gex8u> src(9, 1);
    for (int x = 0; x < 9; ++x) src.at(x, 0) = static_cast<Gex8u>(10 + x);
    Guarded<Gex8u> dst(9, 3, 4, Layout{16, 5, 2, true, false});
    ASSERT_EQ(gexiDup_8u_C1C4R(src.ptr(), 0, dst.ptr(), dst.step(), {9, 3}), gexStsOk);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 9; ++x)
            for (int c = 0; c < 4; ++c) EXPECT_EQ(dst.at(x, y, c), 10 + x);
    EXPECT_TRUE(dst.guards_ok());
}

TEST(Dup, ChecksAndNothingWritten) {
    Guarded<Gex8u> src(4, 2), dst(4, 2, 4);
    std::mt19937_64 rng(55);
    src.fill_random(rng);
    dst.fill_random(rng);
    const auto before = dst.snapshot();
    for (DupFn fn : {DupFn(gexiDup_8u_C1C3R), DupFn(gexiDup_8u_C1C4R)}) {
        for (GexiSize bad : {GexiSize{0, 2}, GexiSize{4, 0}, GexiSize{-3, 2}, GexiSize{4, -1}}) {
            EXPECT_EQ(fn(nullptr, src.step(), dst.ptr(), dst.step(), bad), gexStsNullPtr);
            EXPECT_EQ(fn(src.ptr(), src.step(), nullptr, dst.step(), bad), gexStsNullPtr);
            EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), bad), gexStsSize);
        }
        EXPECT_EQ(fn(nullptr, src.step(), dst.ptr(), dst.step(), {4, 2}), gexStsNullPtr);
    }
    EXPECT_EQ(dst.snapshot(), before);
    EXPECT_TRUE(dst.guards_ok());
}

// The vector rows against the scalar twin, odd offsets, rows ending at an
// inaccessible page (source and destination).
TEST(Dup, RowsMatchScalar) {
    std::mt19937_64 rng(56);
    for (int ch : {3, 4})
        for (int w = 1; w <= 200; ++w)
            for (int off : {0, 1, 3, 5}) {
                Guarded<Gex8u> src(w, 1, 1, Layout{off, 0, 1, false, true});
                Guarded<Gex8u> dst(w * ch, 1, 1, Layout{off + 2, 0, 1, false, true});
                src.fill_random(rng);
                dst.fill_random(rng);
                std::vector<Gex8u> ref = dst.snapshot();
                (ch == 3 ? gex::dup_row_c1c3 : gex::dup_row_c1c4)(src.ptr(), dst.ptr(), w);
                gex::dup_row_scalar(src.ptr(), ref.data(), w, ch);
                ASSERT_EQ(dst.snapshot(), ref) << "C1C" << ch << " width " << w << " offset " << off;
                ASSERT_TRUE(dst.guards_ok());
            }
}

}  // namespace
