// Mul and MulC: every form against the independent model over factors
// -20..40 on guarded layouts, exact products, the 16u factor 32, the gexs
// primitives, the vector kernels against their scalar twins, statuses, the
// short paths of MulC, AC4 alpha, and destinations that alias a source (in
// place and overlapping rows) giving what an element-by-element loop gives.
#include "arith_test_common.hpp"

namespace {

using namespace arithtest;
using gex::arith::Op;

TEST(Mul, Model8u) { sweep_bin(MOp::Mul, ARITH_BIN_FORMS(Mul, 8u, Gex8u), 41); }
TEST(Mul, Model16u) { sweep_bin(MOp::Mul, ARITH_BIN_FORMS(Mul, 16u, Gex16u), 42); }
TEST(Mul, Model16s) { sweep_bin(MOp::Mul, ARITH_BIN_FORMS(Mul, 16s, Gex16s), 43); }
TEST(Mul, Model32f) { sweep_bin(MOp::Mul, ARITH_BIN_FORMS_32F(Mul), 44, 0, 40); }

TEST(MulC, Model8u) { sweep_con(MOp::Mul, ARITH_CON_FORMS(MulC, 8u, Gex8u), 45); }
TEST(MulC, Model16u) { sweep_con(MOp::Mul, ARITH_CON_FORMS(MulC, 16u, Gex16u), 46); }
TEST(MulC, Model16s) { sweep_con(MOp::Mul, ARITH_CON_FORMS(MulC, 16s, Gex16s), 47); }
TEST(MulC, Model32f) { sweep_con(MOp::Mul, ARITH_CON_FORMS_32F(MulC), 48, 0, 40); }

TEST(Mul, Primitives) {
    sweep_line<Gex8u>(MOp::Mul, gex::gexsMul_8u_Sfs, gex::gexsMul_8u_ISfs, 49);
    sweep_line<Gex16u>(MOp::Mul, gex::gexsMul_16u_Sfs, gex::gexsMul_16u_ISfs, 50);
    sweep_line<Gex16s>(MOp::Mul, gex::gexsMul_16s_Sfs, gex::gexsMul_16s_ISfs, 51);
    sweep_line<Gex32f>(
        MOp::Mul, [](const Gex32f* a, const Gex32f* b, Gex32f* d, int n, int) { return gex::gexsMul_32f(a, b, d, n); },
        [](const Gex32f* a, Gex32f* d, int n, int) { return gex::gexsMul_32f_I(a, d, n); }, 52);
}

TEST(Mul, KernelTwins) {
    twins<Op::Mul, Gex8u>(53);
    twins<Op::Mul, Gex16u>(54);
    twins<Op::Mul, Gex16s>(55);
    twins<Op::Mul, Gex32f>(56);
}

// Every pair of 8-bit values at the factors around each kernel's range.
TEST(Mul, Exhaustive8u) {
    std::vector<Gex8u> a(65536), b(65536), d(65536);
    for (int i = 0; i < 65536; ++i) a[i] = static_cast<Gex8u>(i & 255), b[i] = static_cast<Gex8u>(i >> 8);
    for (int s : {-8, -7, -1, 0, 1, 2, 8, 15, 16, 17}) {
        ASSERT_EQ(gexiMul_8u_C1RSfs(a.data(), 256, b.data(), 256, d.data(), 256, {256, 256}, s), gexStsOk);
        for (int i = 0; i < 65536; ++i) ASSERT_EQ(d[i], model_int<Gex8u>(MOp::Mul, a[i], b[i], s)) << i << " " << s;
    }
}

TEST(Mul, WorkedValues) {
    Gex16s m = -32768, r = 0;
    ASSERT_EQ(gexiMul_16s_C1RSfs(&m, 2, &m, 2, &r, 2, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(r, 32767);
    ASSERT_EQ(gexiMul_16s_C1RSfs(&m, 2, &m, 2, &r, 2, {1, 1}, 15), gexStsOk);
    EXPECT_EQ(r, 32767);  // 2^30 / 2^15 = 32768, saturated
    ASSERT_EQ(gexiMul_16s_C1RSfs(&m, 2, &m, 2, &r, 2, {1, 1}, 30), gexStsOk);
    EXPECT_EQ(r, 1);
    ASSERT_EQ(gexiMul_16s_C1RSfs(&m, 2, &m, 2, &r, 2, {1, 1}, 31), gexStsOk);
    EXPECT_EQ(r, 0);  // 0.5 to even
    // 16u at 32: 1 exactly where the 32-bit product has its top bit set.
    const Gex16u a[6] = {65535, 46341, 46340, 32768, 65535, 1};
    const Gex16u b[6] = {65535, 46341, 46340, 65535, 32769, 1};
    Gex16u d[6];
    ASSERT_EQ(gexiMul_16u_C1RSfs(a, 12, b, 12, d, 12, {6, 1}, 32), gexStsOk);
    const Gex16u want32[6] = {1, 1, 0, 0, 1, 0};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], want32[i]) << i;
    ASSERT_EQ(gexiMul_16u_C1RSfs(a, 12, b, 12, d, 12, {6, 1}, 33), gexStsOk);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], 0) << i;
    ASSERT_EQ(gexiMul_16u_C1RSfs(a, 12, b, 12, d, 12, {6, 1}, 31), gexStsOk);
    EXPECT_EQ(d[0], 2);
    ASSERT_EQ(gexiMul_16u_C1RSfs(a, 12, b, 12, d, 12, {6, 1}, 0), gexStsOk);
    EXPECT_EQ(d[0], 65535);
    EXPECT_EQ(d[5], 1);
    Gex8u x = 16, y = 24, z = 0;  // 384 / 2^8 = 1.5 -> 2; / 2^9 = 0.75 -> 1
    ASSERT_EQ(gexiMul_8u_C1RSfs(&x, 1, &y, 1, &z, 1, {1, 1}, 8), gexStsOk);
    EXPECT_EQ(z, 2);
    ASSERT_EQ(gexiMul_8u_C1RSfs(&x, 1, &y, 1, &z, 1, {1, 1}, 9), gexStsOk);
    EXPECT_EQ(z, 1);
    Gex32f f = 3.0f, g = -0.5f, h = 0;
    ASSERT_EQ(gexiMul_32f_C1R(&f, 4, &g, 4, &h, 4, {1, 1}), gexStsOk);
    EXPECT_EQ(h, -1.5f);
}

TEST(Mul, Statuses) {
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_bin_statuses(ARITH_BIN_FORMS(Mul, 8u, Gex8u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Mul, 16u, Gex16u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Mul, 16s, Gex16s), s);
    }
    check_bin_statuses(ARITH_BIN_FORMS_32F(Mul), 0);
    const Gex8u v8[4] = {2, 2, 3, 4}, z8[4] = {}, o8[4] = {1, 1, 1, 1};
    const Gex16u v16[4] = {1, 2, 3, 4}, z16[4] = {}, o16[4] = {1, 1, 1, 1};
    const Gex16s v16s[4] = {-1, 2, 0, 4};
    const Gex32f vf[4] = {1.5f, 0.0f, -2.0f, 3.0f};
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_con_statuses(ARITH_CON_FORMS(MulC, 8u, Gex8u), v8, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 8u, Gex8u), z8, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 8u, Gex8u), o8, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 16u, Gex16u), v16, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 16u, Gex16u), z16, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 16u, Gex16u), o16, s);
        check_con_statuses(ARITH_CON_FORMS(MulC, 16s, Gex16s), v16s, s);
    }
    check_con_statuses(ARITH_CON_FORMS_32F(MulC), vf, 0);
}

// MulC: value 0 is a Set to 0 at any factor, value 1 at factor 0 a Copy; in
// 32f neither is a short path (x x 0 keeps the sign and NaN, x x 1 quiets a
// signalling NaN).
TEST(MulC, ShortPaths) {
    Guarded<Gex16u> a(33, 3, 3), d(33, 3, 3);
    std::mt19937_64 rng(9);
    fill_rnd(a, rng);
    fill_rnd(d, rng);
    const Gex16u zero[3] = {0, 0, 0}, one[3] = {1, 1, 1};
    ASSERT_EQ(gexiMulC_16u_C3RSfs(a.ptr(), a.step(), zero, d.ptr(), d.step(), {33, 3}, -20), gexStsOk);
    for (Gex16u v : d.snapshot()) ASSERT_EQ(v, 0);
    ASSERT_EQ(gexiMulC_16u_C3RSfs(a.ptr(), a.step(), one, d.ptr(), d.step(), {33, 3}, 0), gexStsOk);
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), a.snapshot()));
    EXPECT_TRUE(d.guards_ok());
    // 16u decides before the destination and size checks; Set and Copy make them.
    EXPECT_EQ(gexiMulC_16u_C3RSfs(nullptr, 0, zero, d.ptr(), 0, {0, 3}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiMulC_16u_C3RSfs(a.ptr(), 0, zero, nullptr, 0, {3, 3}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiMulC_16u_C3RSfs(a.ptr(), 0, one, d.ptr(), 0, {3, 0}, 0), gexStsSize);
    EXPECT_EQ(gexiMulC_16u_C3IRSfs(one, d.ptr(), 0, {-1, 3}, 0), gexStsSize);

    Gex32f f[4] = {-2.0f, std::numeric_limits<float>::infinity(), 5.0f, 0.0f}, g[4];
    ASSERT_EQ(gexiMulC_32f_C1R(f, 16, 0.0f, g, 16, {4, 1}), gexStsOk);
    EXPECT_TRUE(std::signbit(g[0]) && g[0] == 0.0f);
    EXPECT_TRUE(std::isnan(g[1]));
    EXPECT_TRUE(!std::signbit(g[2]) && g[2] == 0.0f);
    Gex8u s8[3] = {0, 1, 2}, d8[3];
    ASSERT_EQ(gexiMulC_8u_C1RSfs(s8, 3, 1, d8, 3, {3, 1}, -8), gexStsOk);
    EXPECT_EQ(d8[0], 0);
    EXPECT_EQ(d8[1], 255);
    EXPECT_EQ(d8[2], 255);
}

TEST(Mul, AC4AlphaStays) {
    std::vector<Gex16s> a(4 * 33, -3), b(4 * 33, 5), d(4 * 33, 7);
    for (int x = 0; x < 33; ++x) a[4 * x + 3] = b[4 * x + 3] = 200;
    ASSERT_EQ(gexiMul_16s_AC4RSfs(a.data(), 0, b.data(), 0, d.data(), 0, {33, 1}, 0), gexStsOk);
    const Gex16s v[3] = {2, 3, 4};
    ASSERT_EQ(gexiMulC_16s_AC4IRSfs(v, b.data(), 0, {33, 1}, 1), gexStsOk);
    for (int x = 0; x < 33; ++x) {
        EXPECT_EQ(d[4 * x + 1], -15);
        EXPECT_EQ(d[4 * x + 3], 7);
        EXPECT_EQ(b[4 * x + 0], 5);
        EXPECT_EQ(b[4 * x + 1], 8);  // 7.5 to even
        EXPECT_EQ(b[4 * x + 3], 200);
    }
}

// In place, destinations a few bytes or a few rows after a source, and
// before it: the result of an element-by-element loop in every case.
TEST(Mul, Aliasing) {
    sweep_alias<Gex8u>(MOp::Mul, gexiMul_8u_C1RSfs, 57);
    sweep_alias<Gex16u>(MOp::Mul, gexiMul_16u_C1RSfs, 58);
    sweep_alias<Gex16s>(MOp::Mul, gexiMul_16s_C1RSfs, 59);
    sweep_alias<Gex32f>(MOp::Mul, ARITH_BIN_32F_ONE(Mul, C1), 60);
    // 8u at every byte shift from -70 to 70.
    std::mt19937_64 rng(61);
    for (int shift = -70; shift <= 70; ++shift) {
        check_alias<Gex8u>(MOp::Mul, gexiMul_8u_C1RSfs, shift, true, 130, 2, 200, 1, rng);
        if (HasFatalFailure()) return;
    }
    // In place on guarded images through every in-place form.
    for (int lay = 0; lay < 4; ++lay)
        for (int s : {0, 2}) {
            const auto forms = ARITH_BIN_FORMS(Mul, 8u, Gex8u);
            check_bin(MOp::Mul, forms, lay, true, 77, 3, Layout{}, Layout{3, 7, 1, true, false}, Layout{}, s, rng);
        }
}

}  // namespace
