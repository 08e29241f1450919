// gexiFilter_64f_C1R against a double model (window kw-1-anchor.x left and
// kh-1-anchor.y up, flipped taps, products summed in window order), on
// guarded images whose neighbourhood is part of the source; statuses in
// order with nothing written; the buffer query.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;

namespace {

TEST(Filter64f, MatchesTheModel) {
    std::mt19937 rng(1);
    std::uniform_real_distribution<double> u(-10.0, 10.0);
    const int widths[] = {1, 2, 3, 5, 7, 8, 9, 15, 31, 33, 64, 65, 129};
    const int shapes[][2] = {{1, 1}, {3, 3}, {2, 4}, {5, 1}, {1, 6}, {4, 3}};
    int n = 0;
    for (int W : widths)
        for (auto& sh : shapes) {
            const int kw = sh[0], kh = sh[1], H = 4;
            // Every anchor inside the mask, and one outside it.
            for (int a = 0; a <= kw * kh; ++a) {
                const GexiPoint anchor = a < kw * kh ? GexiPoint{a % kw, a / kw} : GexiPoint{-1, kh};
                const int left = kw - 1 - anchor.x, up = kh - 1 - anchor.y;
                // The source covers the window of every output pixel: margins of kw and kh all round.
                const int mx = kw + 1, my = kh + 1;
                gextest::Layout lay = gextest::standard_layouts(false)[(n++) % 3];
                Guarded<Gex64f> src(W + 2 * mx, H + 2 * my, 1, lay), dst(W, H, 1, lay);
                for (int y = 0; y < src.height(); ++y)
                    for (int x = 0; x < src.width(); ++x) src.at(x, y) = u(rng);
                std::vector<double> k(kw * kh);
                for (auto& t : k) t = u(rng);
                const Gex64f* roi = &src.at(mx, my);
                ASSERT_EQ(gexiFilter_64f_C1R(roi, src.step(), dst.ptr(), dst.step(), {W, H}, k.data(), {kw, kh}, anchor,
                                             nullptr),
                          gexStsOk);
                ASSERT_TRUE(dst.guards_ok());
                for (int y = 0; y < H; ++y)
                    for (int x = 0; x < W; ++x) {
                        double s = 0;
                        for (int j = 0; j < kh; ++j)
                            for (int i = 0; i < kw; ++i) {
                                const double p = src.at(mx + x - left + i, my + y - up + j) * k[(kh - 1 - j) * kw + (kw - 1 - i)];
                                s = s + p;
                            }
                        ASSERT_EQ(dst.at(x, y), s) << W << " k" << kw << "x" << kh << " anchor " << anchor.x << ","
                                                   << anchor.y << " at " << x << "," << y;
                    }
            }
        }
}

TEST(Filter64f, StatusesInOrder) {
    Guarded<Gex64f> src(12, 6), dst(8, 4);
    dst.fill(3.0);
    const auto before = dst.snapshot();
    const double k[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    const GexiPoint a{1, 1};
    auto call = [&](const Gex64f* s, int ss, Gex64f* d, int ds, GexiSize roi, const double* kk, GexiSize ks) {
        return gexiFilter_64f_C1R(s, ss, d, ds, roi, kk, ks, a, nullptr);
    };
    EXPECT_EQ(call(nullptr, 0, dst.ptr(), 0, {0, 0}, k, {0, 0}), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), 0, nullptr, 0, {0, 0}, k, {0, 0}), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), 0, {0, 0}, nullptr, {0, 0}), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), 0, {8, 0}, k, {3, 3}), gexStsSize);
    EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), 0, {8, 4}, k, {3, 0}), gexStsSize);
    // srcStep must hold W + kw - 1 doubles, dstStep W.
    EXPECT_EQ(call(src.ptr(), 79, dst.ptr(), 64, {8, 4}, k, {3, 3}), gexStsStep);
    EXPECT_EQ(call(src.ptr(), 80, dst.ptr(), 63, {8, 4}, k, {3, 3}), gexStsStep);
    EXPECT_EQ(call(src.ptr(), -80, dst.ptr(), 64, {8, 4}, k, {3, 3}), gexStsStep);
    EXPECT_EQ(before, dst.snapshot());
    EXPECT_TRUE(dst.guards_ok());

    int size = -1;
    EXPECT_EQ(gexiFilterGetBufSize_64f_C1R({0, 3}, 0, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiFilterGetBufSize_64f_C1R({0, 3}, 10, &size), gexStsSize);
    EXPECT_EQ(gexiFilterGetBufSize_64f_C1R({3, 3}, 0, &size), gexStsSize);
    EXPECT_EQ(size, -1);
    ASSERT_EQ(gexiFilterGetBufSize_64f_C1R({3, 5}, 100, &size), gexStsOk);
    EXPECT_EQ(size, 3 * 5 * 64 + 128);
}

}  // namespace
