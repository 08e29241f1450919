// The frame's shared vocabulary: check order helpers, the floating-point
// control guard, saturation and the tail masks of the row kernels.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>
#include <cmath>

#include "frame/checks.hpp"
#include "frame/fpguard.hpp"
#include "frame/pixel.hpp"
#include "frame/simd.hpp"

namespace {

GexStatus sample_wrapper(const Gex8u* src, int srcStep, Gex8u* dst, int dstStep, GexiSize roi, bool* worked) {
    GEX_CHECK(gex::check_null(src, dst));
    GEX_CHECK(gex::check_roi(roi));
    GEX_CHECK(gex::check_steps(srcStep, dstStep));
    *worked = true;
    return gexStsOk;
}

TEST(Checks, FirstFailureInOrderWins) {
    Gex8u a = 0, b = 0;
    bool worked = false;
    EXPECT_EQ(sample_wrapper(nullptr, 0, &b, 0, {0, 0}, &worked), gexStsNullPtr);
    EXPECT_EQ(sample_wrapper(&a, 0, &b, 0, {0, 5}, &worked), gexStsSize);
    EXPECT_EQ(sample_wrapper(&a, 0, &b, 1, {5, 5}, &worked), gexStsStep);
    EXPECT_FALSE(worked);
    EXPECT_EQ(sample_wrapper(&a, 1, &b, 1, {1, 1}, &worked), gexStsOk);
    EXPECT_TRUE(worked);

    const Gex8u* planes[3] = {&a, nullptr, &b};
    EXPECT_EQ(gex::check_planes(planes, 1), gexStsOk);
    EXPECT_EQ(gex::check_planes(planes, 3), gexStsNullPtr);
    EXPECT_EQ(gex::check_planes<Gex8u>(nullptr, 3), gexStsNullPtr);
    EXPECT_EQ(gex::check_roi(GexiSizeL{1, 0x100000000LL}), gexStsOk);
    EXPECT_EQ(gex::check_roi(GexiSizeL{-1, 1}), gexStsSize);
}

// The control bits of MXCSR, without the sticky exception flags.
unsigned control() { return _mm_getcsr() & ~0x3fu; }

TEST(FpControlGuard, SetsAndRestoresOnlyWhatItChanged) {
    const unsigned before = control();
    {
        gex::FpControlGuard g(gex::FpRound::Zero);
        EXPECT_TRUE(g.changed());
        EXPECT_EQ(_mm_getcsr() & gex::FpControlGuard::kRoundBits, static_cast<unsigned>(gex::FpRound::Zero));
        volatile float x = 2.5f;
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(x)), 2);
        volatile float y = -2.5f;
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(y)), -2);
    }
    EXPECT_EQ(control(), before);
    {
        gex::FpControlGuard g(gex::FpRound::Nearest);  // already so: nothing to change
        EXPECT_FALSE(g.changed());
        volatile float x = 2.5f;
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(x)), 2);
    }
    // A caller's own mode survives a nested guard that asks for the same mode.
    {
        gex::FpControlGuard outer(gex::FpRound::Up, true, false);
        const unsigned mid = control();
        {
            gex::FpControlGuard inner(gex::FpRound::Up, true, false);
            EXPECT_FALSE(inner.changed());
        }
        EXPECT_EQ(control(), mid);
        EXPECT_NE(mid & gex::FpControlGuard::kFlushToZero, 0u);
    }
    EXPECT_EQ(control(), before);
}

TEST(Pixel, SaturationAndRounding) {
    EXPECT_EQ(gex::saturate<Gex8u>(300), 255);
    EXPECT_EQ(gex::saturate<Gex8u>(-1), 0);
    EXPECT_EQ(gex::saturate<Gex16s>(40000), 32767);
    EXPECT_EQ(gex::saturate<Gex16s>(-40000LL), -32768);
    EXPECT_EQ(gex::saturate<Gex16u>(70000u), 65535);
    EXPECT_EQ(gex::saturate<Gex32s>(0x80000000LL), 0x7fffffff);
    EXPECT_EQ(gex::saturate<Gex32u>(-5), 0u);

    EXPECT_EQ(gex::saturate_round<Gex8u>(2.5, gexRndZero), 2);
    EXPECT_EQ(gex::saturate_round<Gex8u>(2.5, gexRndNear), 2);
    EXPECT_EQ(gex::saturate_round<Gex8u>(3.5, gexRndNear), 4);
    EXPECT_EQ(gex::saturate_round<Gex8u>(2.5, gexRndFin), 3);
    EXPECT_EQ(gex::saturate_round<Gex16s>(-2.5, gexRndFin), -3);
    EXPECT_EQ(gex::saturate_round<Gex16s>(-2.5, 7), -3);  // unknown modes act as ties away
    EXPECT_EQ(gex::saturate_round<Gex8u>(300.0, gexRndNear), 255);
    EXPECT_EQ(gex::saturate_round<Gex8u>(-1.0, gexRndNear), 0);
    EXPECT_EQ(gex::saturate_round<Gex8u>(std::nan(""), gexRndNear), 0);
    EXPECT_EQ(gex::saturate_round<Gex16s>(std::nan(""), gexRndNear), -32768);
    EXPECT_EQ(gex::saturate_round<Gex32s>(-HUGE_VAL, gexRndZero), INT32_MIN);
    // Ties to even whatever the caller's rounding control says.
    gex::FpControlGuard up(gex::FpRound::Up);
    EXPECT_EQ(gex::round_by_mode(0.5, gexRndNear), 0.0);
    EXPECT_EQ(gex::round_by_mode(-0.5, gexRndNear), 0.0);
    EXPECT_EQ(gex::round_by_mode(-1.5, gexRndNear), -2.0);
    EXPECT_EQ(gex::round_by_mode(2.4999999999999996, gexRndNear), 2.0);
    EXPECT_EQ(gex::round_by_mode(4503599627370497.0, gexRndNear), 4503599627370497.0);
    EXPECT_EQ(gex::round_by_mode(-2.5, gexRndFin), -3.0);
}

TEST(Simd, TailMasksCoverExactlyTheRow) {
    for (int n = 0; n <= 64; ++n) EXPECT_EQ(__builtin_popcountll(gex::simd::tail_mask64(n)), n);
    for (int n = 0; n <= 32; ++n) EXPECT_EQ(__builtin_popcount(gex::simd::tail_mask32(n)), n);
    for (int n = 0; n <= 16; ++n) EXPECT_EQ(__builtin_popcount(gex::simd::tail_mask16(n)), n);
    EXPECT_EQ(gex::simd::tail_mask8(3), 0x7);
    EXPECT_EQ(gex::simd::tail_mask64(100), ~__mmask64(0));

    alignas(64) unsigned char bytes[64];
    for (int i = 0; i < 64; ++i) bytes[i] = static_cast<unsigned char>(i == 5 ? 0 : i * 37);
    bytes[0] = 0;
    bytes[7] = 0x80;
    const __mmask64 nz = gex::simd::nonzero_bytes(_mm512_load_si512(bytes));
    for (int i = 0; i < 64; ++i) EXPECT_EQ((nz >> i) & 1, bytes[i] != 0 ? 1u : 0u) << i;
}

}  // namespace
