// The shared scale rule and the _L chunking rule.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "frame/large.hpp"
#include "frame/scale.hpp"

namespace {

// Independent model: exact rational x / 2^s in long double, ties to even.
template <class T>
long long model(long long x, int s) {
    long double y = std::ldexp(static_cast<long double>(x), -s);
    long double f = std::floor(y);
    long double d = y - f;
    long double r = d > 0.5L ? f + 1 : d < 0.5L ? f : (std::fmod(f, 2.0L) == 0 ? f : f + 1);
    if (s <= 0) r = y;
    const long double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<long long>(r < lo ? lo : r > hi ? hi : r);
}

template <class T>
void sweep(long long lo, long long hi) {
    std::mt19937_64 rng(7);
    std::uniform_int_distribution<long long> d(lo, hi);
    for (int s = -40; s <= 40; ++s) {
        for (int i = 0; i < 2000; ++i) {
            long long x = d(rng);
            ASSERT_EQ(static_cast<long long>(gex::scale_saturate<T>(x, s)), model<T>(x, s)) << "x " << x << " s " << s;
        }
        for (long long x : {0LL, 1LL, -1LL, 3LL, -3LL, 5LL, -5LL, lo, hi})
            ASSERT_EQ(static_cast<long long>(gex::scale_saturate<T>(x, s)), model<T>(x, s)) << "x " << x << " s " << s;
    }
}

TEST(ScaleRule, MatchesTheExactModelForEveryDepthAndFactor) {
    sweep<Gex8u>(-510, 510 * 255);
    sweep<Gex16u>(-131070, 65535LL * 65535);
    sweep<Gex16s>(-32768LL * 32767 * 2, 32768LL * 32768);
    sweep<Gex32s>(-(1LL << 40), 1LL << 40);
}

TEST(ScaleRule, WorkedValues) {
    EXPECT_EQ(gex::scale_saturate<Gex8u>(5, 1), 2);    // 2.5 to even
    EXPECT_EQ(gex::scale_saturate<Gex8u>(7, 1), 4);    // 3.5 to even
    EXPECT_EQ(gex::scale_saturate<Gex16s>(-1, 1), 0);  // -0.5
    EXPECT_EQ(gex::scale_saturate<Gex16s>(-3, 1), -2); // -1.5
    EXPECT_EQ(gex::scale_saturate<Gex8u>(510, 10), 0);
    EXPECT_EQ(gex::scale_saturate<Gex8u>(510, 9), 1);
    EXPECT_EQ(gex::scale_saturate<Gex8u>(1, -8), 255);
    EXPECT_EQ(gex::scale_saturate<Gex16s>(32768LL * 32768, 0), 32767);
    EXPECT_EQ(gex::scale_saturate<Gex16s>(-1, -1000), -32768);
    EXPECT_EQ(gex::scale_saturate<Gex16u>(3, 1000), 0);
}

TEST(LargeRule, ForwardsOnlyWhatFitsThe32BitForm) {
    GexiSize r{};
    EXPECT_TRUE(gex::forward_if_small({100, 100}, {400, -400}, 4, r));
    EXPECT_EQ(r.width, 100);
    EXPECT_FALSE(gex::forward_if_small({100, 100}, {0x7fffffff, 400}, 4, r));
    EXPECT_FALSE(gex::forward_if_small({100, 100}, {-0x7fffffffLL, 400}, 4, r));
    EXPECT_TRUE(gex::forward_if_small({100, 100}, {0x7ffffffe, 400}, 4, r));
    EXPECT_FALSE(gex::forward_if_small({0x10000, 0x8000}, {1, 1}, 1, r));  // exactly 2^31 bytes
    EXPECT_TRUE(gex::forward_if_small({0, 5}, {1, 1}, 1, r));               // the 32-bit form reports the size
    EXPECT_TRUE(gex::forward_if_small({-3, 5}, {1, 1}, 1, r));
    EXPECT_EQ(r.width, -3);
    EXPECT_FALSE(gex::forward_if_small({1LL << 40, 1LL << 40}, {1}, 16, r));
}

TEST(LargeRule, ChunkTableAndLastStatusWins) {
    EXPECT_EQ(gex::large_chunk_pixels(1, 1), 0x3fffffff);
    EXPECT_EQ(gex::large_chunk_pixels(1, 3), 357913940);
    EXPECT_EQ(gex::large_chunk_pixels(1, 4), 0xfffffff);
    EXPECT_EQ(gex::large_chunk_pixels(2, 1), 0x1fffffff);
    EXPECT_EQ(gex::large_chunk_pixels(2, 3), 0xaaaaaa9);
    EXPECT_EQ(gex::large_chunk_pixels(2, 4), 0x7ffffff);
    EXPECT_EQ(gex::large_chunk_pixels(4, 1), 0xfffffff);
    EXPECT_EQ(gex::large_chunk_pixels(4, 3), 89478484);
    EXPECT_EQ(gex::large_chunk_pixels(4, 4), 0x3ffffff);

    std::vector<std::tuple<long long, long long, long long>> calls;
    auto rec = [&](std::int64_t y, std::int64_t x0, std::int64_t n) {
        calls.emplace_back(y, x0, n);
        return (y == 0 && x0 == 0) ? gexStsDivByZeroWarn : gexStsOk;
    };
    EXPECT_EQ(gex::chunk_rows({10, 2}, 4, rec), gexStsOk);  // the warning of the first chunk is lost
    ASSERT_EQ(calls.size(), 6u);
    EXPECT_EQ(calls[2], std::make_tuple(0LL, 8LL, 2LL));
    EXPECT_EQ(calls[5], std::make_tuple(1LL, 8LL, 2LL));

    calls.clear();
    auto warnLast = [&](std::int64_t y, std::int64_t x0, std::int64_t) {
        return (y == 1 && x0 == 8) ? gexStsDivByZeroWarn : gexStsOk;
    };
    EXPECT_EQ(gex::chunk_rows({10, 2}, 4, warnLast), gexStsDivByZeroWarn);
    int n = 0;
    auto failSecond = [&](std::int64_t, std::int64_t, std::int64_t) { return ++n == 2 ? gexStsNullPtr : gexStsOk; };
    EXPECT_EQ(gex::chunk_rows({10, 2}, 4, failSecond), gexStsNullPtr);
    EXPECT_EQ(n, 2);
    int none = 0;
    auto count = [&](std::int64_t, std::int64_t, std::int64_t) { ++none; return gexStsOk; };
    EXPECT_EQ(gex::chunk_rows({-5, 0}, 4, count), gexStsOk);  // height < 1: 0 at once
    EXPECT_EQ(gex::chunk_rows({-5, 3}, 4, count), gexStsOk);  // negative width: rows without chunks
    EXPECT_EQ(none, 0);
}

}  // namespace
