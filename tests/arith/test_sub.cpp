// Sub and SubC: the argument order (src2 - src1; in place srcDst - src;
// src - value), every form against the independent model over factors
// -20..40 on guarded layouts, the gexs primitives, the vector kernels against
// their scalar twins, worked values, statuses, the short paths of SubC,
// AC4 alpha and overlapping images.
#include "arith_test_common.hpp"

namespace {

using namespace arithtest;
using gex::arith::Op;

TEST(Sub, Model8u) { sweep_bin(MOp::Sub, ARITH_BIN_FORMS(Sub, 8u, Gex8u), 21); }
TEST(Sub, Model16u) { sweep_bin(MOp::Sub, ARITH_BIN_FORMS(Sub, 16u, Gex16u), 22); }
TEST(Sub, Model16s) { sweep_bin(MOp::Sub, ARITH_BIN_FORMS(Sub, 16s, Gex16s), 23); }
TEST(Sub, Model32f) { sweep_bin(MOp::Sub, ARITH_BIN_FORMS_32F(Sub), 24, 0, 40); }

TEST(SubC, Model8u) { sweep_con(MOp::Sub, ARITH_CON_FORMS(SubC, 8u, Gex8u), 25); }
TEST(SubC, Model16u) { sweep_con(MOp::Sub, ARITH_CON_FORMS(SubC, 16u, Gex16u), 26); }
TEST(SubC, Model16s) { sweep_con(MOp::Sub, ARITH_CON_FORMS(SubC, 16s, Gex16s), 27); }
TEST(SubC, Model32f) { sweep_con(MOp::Sub, ARITH_CON_FORMS_32F(SubC), 28, 0, 40); }

TEST(Sub, Primitives) {
    sweep_line<Gex8u>(MOp::Sub, gex::gexsSub_8u_Sfs, gex::gexsSub_8u_ISfs, 29);
    sweep_line<Gex16u>(MOp::Sub, gex::gexsSub_16u_Sfs, gex::gexsSub_16u_ISfs, 30);
    sweep_line<Gex16s>(MOp::Sub, gex::gexsSub_16s_Sfs, gex::gexsSub_16s_ISfs, 31);
    sweep_line<Gex32f>(
        MOp::Sub, [](const Gex32f* a, const Gex32f* b, Gex32f* d, int n, int) { return gex::gexsSub_32f(a, b, d, n); },
        [](const Gex32f* a, Gex32f* d, int n, int) { return gex::gexsSub_32f_I(a, d, n); }, 32);
}

TEST(Sub, KernelTwins) {
    twins<Op::Sub, Gex8u>(33);
    twins<Op::Sub, Gex16u>(34);
    twins<Op::Sub, Gex16s>(35);
    twins<Op::Sub, Gex32f>(36);
}

TEST(Sub, OperandOrder) {
    Gex8u ten = 10, three = 3, d = 99;
    ASSERT_EQ(gexiSub_8u_C1RSfs(&ten, 1, &three, 1, &d, 1, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(d, 0);
    ASSERT_EQ(gexiSub_8u_C1RSfs(&three, 1, &ten, 1, &d, 1, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(d, 7);
    Gex8u sd = 10;
    ASSERT_EQ(gexiSub_8u_C1IRSfs(&three, 1, &sd, 1, {1, 1}, 0), gexStsOk);  // srcDst - src
    EXPECT_EQ(sd, 7);
    ASSERT_EQ(gexiSubC_8u_C1RSfs(&ten, 1, 3, &d, 1, {1, 1}, 0), gexStsOk);  // src - value
    EXPECT_EQ(d, 7);
    ASSERT_EQ(gexiSubC_8u_C1RSfs(&three, 1, 10, &d, 1, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(d, 0);
    Gex16s a = 5, b = -7, r = 0;
    ASSERT_EQ(gexiSub_16s_C1RSfs(&a, 2, &b, 2, &r, 2, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(r, -12);
    ASSERT_EQ(gexiSub_16s_C1RSfs(&a, 2, &b, 2, &r, 2, {1, 1}, 3), gexStsOk);  // -1.5 to -2
    EXPECT_EQ(r, -2);
    Gex32f fa = 1.0f, fb = 4.0f, fr = 0;
    ASSERT_EQ(gexiSub_32f_C1R(&fa, 4, &fb, 4, &fr, 4, {1, 1}), gexStsOk);
    EXPECT_EQ(fr, 3.0f);
    ASSERT_EQ(gexiSubC_32f_C1IR(0.5f, &fb, 4, {1, 1}), gexStsOk);
    EXPECT_EQ(fb, 3.5f);
    // 8u: at factor 8 the largest difference still rounds to 1, at 9 nothing is left.
    Gex8u z = 0, m = 255;
    ASSERT_EQ(gexiSub_8u_C1RSfs(&z, 1, &m, 1, &d, 1, {1, 1}, 8), gexStsOk);
    EXPECT_EQ(d, 1);
    ASSERT_EQ(gexiSub_8u_C1RSfs(&z, 1, &m, 1, &d, 1, {1, 1}, 9), gexStsOk);
    EXPECT_EQ(d, 0);
    ASSERT_EQ(gexiSub_8u_C1RSfs(&three, 1, &ten, 1, &d, 1, {1, 1}, -8), gexStsOk);
    EXPECT_EQ(d, 255);
    ASSERT_EQ(gexiSub_8u_C1RSfs(&ten, 1, &three, 1, &d, 1, {1, 1}, -8), gexStsOk);
    EXPECT_EQ(d, 0);
}

TEST(Sub, Statuses) {
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_bin_statuses(ARITH_BIN_FORMS(Sub, 8u, Gex8u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Sub, 16u, Gex16u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Sub, 16s, Gex16s), s);
    }
    check_bin_statuses(ARITH_BIN_FORMS_32F(Sub), 0);
    const Gex8u v8[4] = {1, 2, 3, 4}, z8[4] = {};
    const Gex16u v16[4] = {1, 2, 3, 4}, z16[4] = {};
    const Gex16s v16s[4] = {-1, 2, 0, 4};
    const Gex32f vf[4] = {1.5f, 0.0f, -2.0f, 3.0f};
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_con_statuses(ARITH_CON_FORMS(SubC, 8u, Gex8u), v8, s);
        check_con_statuses(ARITH_CON_FORMS(SubC, 8u, Gex8u), z8, s);
        check_con_statuses(ARITH_CON_FORMS(SubC, 16u, Gex16u), v16, s);
        check_con_statuses(ARITH_CON_FORMS(SubC, 16u, Gex16u), z16, s);
        check_con_statuses(ARITH_CON_FORMS(SubC, 16s, Gex16s), v16s, s);
    }
    check_con_statuses(ARITH_CON_FORMS_32F(SubC), vf, 0);
}

// 16u past the zeroing bound: sources checked, then the zero fill.
TEST(Sub, ZeroFill16u) {
    Gex16u a[3] = {0, 0, 0}, b[3] = {65535, 65535, 65535}, d[3] = {5, 5, 5};
    EXPECT_EQ(gexiSub_16u_C1RSfs(a, 6, b, 6, nullptr, 6, {3, 1}, 17), gexStsNullPtr);
    EXPECT_EQ(gexiSub_16u_C1RSfs(a, 6, nullptr, 6, d, 6, {3, 1}, 17), gexStsNullPtr);
    EXPECT_EQ(gexiSub_16u_C3IRSfs(a, 6, d, 6, {1, 0}, 17), gexStsSize);
    EXPECT_EQ(d[0], 5);
    ASSERT_EQ(gexiSub_16u_C1RSfs(a, 6, b, 6, d, 6, {3, 1}, 16), gexStsOk);
    EXPECT_EQ(d[2], 1);
    ASSERT_EQ(gexiSub_16u_C1RSfs(a, 6, b, 6, d, 6, {3, 1}, 17), gexStsOk);
    EXPECT_EQ(d[2], 0);
}

// SubC: value 0 at factor 0 is a copy (C4, whole pixels); below the bound
// a positive difference saturates to the maximum and a negative one to the
// minimum.
TEST(SubC, ShortPathsAndBounds) {
    Guarded<Gex16s> a(21, 2, 4), d(21, 2, 4);
    std::mt19937_64 rng(8);
    fill_rnd(a, rng);
    fill_rnd(d, rng);
    const Gex16s zero[4] = {0, 0, 0, 0};
    ASSERT_EQ(gexiSubC_16s_C4RSfs(a.ptr(), a.step(), zero, d.ptr(), d.step(), {21, 2}, 0), gexStsOk);
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), a.snapshot()));
    const Gex16s v[4] = {0, 100, -100, 32767};
    ASSERT_EQ(gexiSubC_16s_C4RSfs(a.ptr(), a.step(), v, d.ptr(), d.step(), {21, 2}, -16), gexStsOk);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 21; ++x)
            for (int c = 0; c < 4; ++c) {
                const int diff = a.at(x, y, c) - v[c];
                ASSERT_EQ(d.at(x, y, c), diff > 0 ? 32767 : diff < 0 ? -32768 : 0);
            }
    Gex8u s8[5] = {0, 1, 2, 3, 255}, d8[5];
    ASSERT_EQ(gexiSubC_8u_C1RSfs(s8, 5, 2, d8, 5, {5, 1}, -8), gexStsOk);
    const Gex8u want[5] = {0, 0, 0, 255, 255};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(d8[i], want[i]);
    // 16u with value 0: a copy, after testing only the source.
    Gex16u u[2] = {7, 8};
    EXPECT_EQ(gexiSubC_16u_C1RSfs(nullptr, 4, 0, u, 4, {0, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiSubC_16u_C1RSfs(u, 4, 0, nullptr, 4, {2, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiSubC_16u_C1IRSfs(0, u, 4, {0, 1}, 0), gexStsSize);
    ASSERT_EQ(gexiSubC_16u_C1IRSfs(3, u, 4, {2, 1}, -40), gexStsOk);
    EXPECT_EQ(u[0], 65535);
    EXPECT_EQ(u[1], 65535);
}

TEST(Sub, AC4AlphaStays) {
    std::vector<Gex16u> a(4 * 19, 1000), b(4 * 19, 3000), d(4 * 19, 7);
    for (int x = 0; x < 19; ++x) a[4 * x + 3] = 200;
    ASSERT_EQ(gexiSub_16u_AC4RSfs(a.data(), 0, b.data(), 0, d.data(), 0, {19, 1}, 1), gexStsOk);
    const Gex16u v[3] = {1, 2, 3};
    ASSERT_EQ(gexiSubC_16u_AC4IRSfs(v, b.data(), 0, {19, 1}, 0), gexStsOk);
    for (int x = 0; x < 19; ++x) {
        EXPECT_EQ(d[4 * x], 1000);
        EXPECT_EQ(d[4 * x + 3], 7);
        EXPECT_EQ(b[4 * x + 2], 2997);
        EXPECT_EQ(b[4 * x + 3], 3000);
    }
}

TEST(Sub, Aliasing) {
    sweep_alias<Gex8u>(MOp::Sub, gexiSub_8u_C1RSfs, 37);
    sweep_alias<Gex16u>(MOp::Sub, gexiSub_16u_C1RSfs, 38);
}

}  // namespace
