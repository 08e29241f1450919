// Image allocation and the version record.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "gexip.h"

namespace {

template <class T>
bool aligned64(const T* p) {
    return (reinterpret_cast<std::uintptr_t>(p) & 63u) == 0;
}

TEST(Malloc, StepsAreRowBytesRoundedUpTo64) {
    int step = -1;
    Gex8u* p = gexiMalloc_8u_C1(1, 1, &step);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(step, 64);
    EXPECT_TRUE(aligned64(p));
    gexiFree(p);

    p = gexiMalloc_8u_C1(65, 2, &step);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(step, 128);
    std::memset(p, 0xab, 256);  // the whole 2 x 128 block is the caller's
    gexiFree(p);

    Gex32fc* c = gexiMalloc_32fc_AC4(3, 1, &step);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(step, 128);
    gexiFree(c);

    // bytes per pixel of every depth and layout, AC4 counting its alpha
    struct Case { void* (*fn)(int, int, int*); int bpp; };
    const Case cases[] = {
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_8u_C2), 2},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_8u_C3), 3},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_8u_AC4), 4},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_16u_C3), 6},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_16s_C4), 8},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_32s_C3), 12},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_32f_AC4), 16},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_32sc_C3), 24},
        {reinterpret_cast<void* (*)(int, int, int*)>(gexiMalloc_32fc_C2), 16},
    };
    for (const auto& k : cases) {
        for (int w : {1, 21, 22, 100}) {
            void* q = k.fn(w, 3, &step);
            ASSERT_NE(q, nullptr);
            EXPECT_EQ(step, (w * k.bpp + 63) / 64 * 64) << "bpp " << k.bpp << " width " << w;
            EXPECT_TRUE(aligned64(q));
            gexiFree(q);
        }
    }
}

TEST(Malloc, BadArgumentsAndTooLargeImages) {
    int step = 12345;
    EXPECT_EQ(gexiMalloc_8u_C1(0, 5, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 12345;
    EXPECT_EQ(gexiMalloc_16s_C3(5, -1, &step), nullptr);
    EXPECT_EQ(step, 0);
    EXPECT_EQ(gexiMalloc_8u_C1(5, 5, nullptr), nullptr);

    // The step is written before the total is tested: 2 rows reach 2^31.
    step = 0;
    EXPECT_EQ(gexiMalloc_8u_C1(0x7fffffc0, 2, &step), nullptr);
    EXPECT_EQ(step, 0x7fffffc0);
    // A row whose rounded step no longer fits in 31 bits is a bad argument.
    step = 1;
    EXPECT_EQ(gexiMalloc_8u_C1(0x7fffffc1, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    step = 1;
    EXPECT_EQ(gexiMalloc_32f_C4(0x10000000, 1, &step), nullptr);  // 2^32 row bytes
    EXPECT_EQ(step, 0);
}

TEST(Malloc, SixtyFourBitForms) {
    Gex64s step = -1;
    Gex16u* p = gexiMalloc_16u_C3_L(11, 4, &step);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(step, 128);
    EXPECT_TRUE(aligned64(p));
    gexiFree(p);

    EXPECT_EQ(gexiMalloc_8u_C1_L(0, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    EXPECT_EQ(gexiMalloc_8u_C1_L(1, 1, nullptr), nullptr);
    // Row bytes beyond 62 bits: a bad argument.
    step = 1;
    EXPECT_EQ(gexiMalloc_32fc_C4_L(0x0400000000000000LL, 1, &step), nullptr);
    EXPECT_EQ(step, 0);
    // The product overflows 64 bits: null with the step written.
    step = 0;
    EXPECT_EQ(gexiMalloc_8u_C1_L(0x100000, 0x4000000000000LL, &step), nullptr);
    EXPECT_EQ(step, 0x100000);
    // Rows wider than 32-bit forms allow are fine in the 64-bit form's step.
    step = 0;
    Gex8u* q = gexiMalloc_8u_C1_L(0x80000001LL, 1, &step);
    EXPECT_EQ(step, 0x80000040LL);
    gexiFree(q);  // may be null if memory is short; either way the step is known
}

TEST(Version, RecordIsTheBuildConstant) {
    const GexLibraryVersion* v = gexiGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, gexiGetLibVersion());
    EXPECT_EQ(v->major, 2017);
    EXPECT_EQ(v->minor, 0);
    EXPECT_EQ(v->update, 3);
    EXPECT_EQ(v->build, 55431);
    const char cpu[4] = {'k', '0', 0, 0};
    EXPECT_EQ(std::memcmp(v->targetCpu, cpu, 4), 0);
    EXPECT_STREQ(v->name, "gexIP AVX-512F/CD/BW/DQ/VL (k0)");
    EXPECT_STREQ(v->version, "2017.0.3 (r55431)");
    EXPECT_STREQ(v->buildDate, "Apr 12 2017");
    gexiFree(nullptr);  // accepted and ignored
}

}  // namespace
