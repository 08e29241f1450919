// Add and AddC: every form against the independent model over factors -20..40
// on guarded layouts, the gexs primitives, the vector kernels against their
// scalar twins, worked values, statuses and their order, the short paths of
// AddC, AC4 alpha, zero steps and overlapping images.
#include "arith_test_common.hpp"

namespace {

using namespace arithtest;
using gex::arith::Op;

template <class T, class F>
T add1(F f, T a, T b, int s) {
    T d = 99;
    EXPECT_EQ(f(&a, 1, &b, 1, &d, 1, GexiSize{1, 1}, s), gexStsOk);
    return d;
}

TEST(Add, Model8u) { sweep_bin(MOp::Add, ARITH_BIN_FORMS(Add, 8u, Gex8u), 1); }
TEST(Add, Model16u) { sweep_bin(MOp::Add, ARITH_BIN_FORMS(Add, 16u, Gex16u), 2); }
TEST(Add, Model16s) { sweep_bin(MOp::Add, ARITH_BIN_FORMS(Add, 16s, Gex16s), 3); }
TEST(Add, Model32f) { sweep_bin(MOp::Add, ARITH_BIN_FORMS_32F(Add), 4, 0, 40); }

TEST(AddC, Model8u) { sweep_con(MOp::Add, ARITH_CON_FORMS(AddC, 8u, Gex8u), 5); }
TEST(AddC, Model16u) { sweep_con(MOp::Add, ARITH_CON_FORMS(AddC, 16u, Gex16u), 6); }
TEST(AddC, Model16s) { sweep_con(MOp::Add, ARITH_CON_FORMS(AddC, 16s, Gex16s), 7); }
TEST(AddC, Model32f) { sweep_con(MOp::Add, ARITH_CON_FORMS_32F(AddC), 8, 0, 40); }

TEST(Add, Primitives) {
    sweep_line<Gex8u>(MOp::Add, gex::gexsAdd_8u_Sfs, gex::gexsAdd_8u_ISfs, 9);
    sweep_line<Gex16u>(MOp::Add, gex::gexsAdd_16u_Sfs, gex::gexsAdd_16u_ISfs, 10);
    sweep_line<Gex16s>(MOp::Add, gex::gexsAdd_16s_Sfs, gex::gexsAdd_16s_ISfs, 11);
    sweep_line<Gex32f>(
        MOp::Add, [](const Gex32f* a, const Gex32f* b, Gex32f* d, int n, int) { return gex::gexsAdd_32f(a, b, d, n); },
        [](const Gex32f* a, Gex32f* d, int n, int) { return gex::gexsAdd_32f_I(a, d, n); }, 12);
}

TEST(Add, KernelTwins) {
    twins<Op::Add, Gex8u>(13);
    twins<Op::Add, Gex16u>(14);
    twins<Op::Add, Gex16s>(15);
    twins<Op::Add, Gex32f>(16);
}

TEST(Add, WorkedValues) {
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 2, 3, 1), 2);  // 2.5 to even
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 3, 4, 1), 4);  // 3.5 to even
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, -1, 0, 1), 0);
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, -1, -2, 1), -2);
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 255, 255, 10), 0);
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 255, 255, 9), 1);
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 0, 1, -8), 255);
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 0, 0, -8), 0);
    EXPECT_EQ(add1<Gex8u>(gexiAdd_8u_C1RSfs, 200, 100, 0), 255);
    EXPECT_EQ(add1<Gex16u>(gexiAdd_16u_C1RSfs, 65535, 65535, 17), 1);
    EXPECT_EQ(add1<Gex16u>(gexiAdd_16u_C1RSfs, 65535, 65535, 18), 0);
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, -32768, -32768, 16), -1);
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, -1, 0, -1000), -32768);
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, 1, 0, -1000), 32767);
    EXPECT_EQ(add1<Gex16s>(gexiAdd_16s_C1RSfs, 3, -3, -1000), 0);
    // The same ties on a whole vector and its tail, through the byte-averaging kernel.
    std::vector<Gex8u> a(100), b(100), d(100);
    for (int i = 0; i < 100; ++i) a[i] = static_cast<Gex8u>(i), b[i] = static_cast<Gex8u>(2 * i + 1);
    ASSERT_EQ(gexiAdd_8u_C1RSfs(a.data(), 100, b.data(), 100, d.data(), 100, {100, 1}, 1), gexStsOk);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(d[i], model_int<Gex8u>(MOp::Add, a[i], b[i], 1)) << i;
}

TEST(Add, Statuses) {
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_bin_statuses(ARITH_BIN_FORMS(Add, 8u, Gex8u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Add, 16u, Gex16u), s);
        check_bin_statuses(ARITH_BIN_FORMS(Add, 16s, Gex16s), s);
    }
    check_bin_statuses(ARITH_BIN_FORMS_32F(Add), 0);
    const Gex8u v8[4] = {1, 2, 3, 4}, z8[4] = {};
    const Gex16u v16[4] = {1, 2, 3, 4}, z16[4] = {};
    const Gex16s v16s[4] = {-1, 2, 0, 4};
    const Gex32f vf[4] = {1.5f, 0.0f, -2.0f, 3.0f};
    for (int s : {0, 1, 5, -3, -30, 40}) {
        check_con_statuses(ARITH_CON_FORMS(AddC, 8u, Gex8u), v8, s);
        check_con_statuses(ARITH_CON_FORMS(AddC, 8u, Gex8u), z8, s);
        check_con_statuses(ARITH_CON_FORMS(AddC, 16u, Gex16u), v16, s);
        check_con_statuses(ARITH_CON_FORMS(AddC, 16u, Gex16u), z16, s);
        check_con_statuses(ARITH_CON_FORMS(AddC, 16s, Gex16s), v16s, s);
    }
    check_con_statuses(ARITH_CON_FORMS_32F(AddC), vf, 0);
}

// 16u past the zeroing bound: the two sources are checked, then the zero fill
// checks the destination and the size, and writes zeros.
TEST(Add, ZeroFill16u) {
    Guarded<Gex16u> a(9, 2), b(9, 2), d(9, 2, 4);
    std::mt19937_64 rng(3);
    fill_rnd(a, rng);
    fill_rnd(b, rng);
    fill_rnd(d, rng);
    const auto d0 = d.snapshot();
    EXPECT_EQ(gexiAdd_16u_C1RSfs(nullptr, 2, b.ptr(), b.step(), d.ptr(), d.step(), {9, 2}, 18), gexStsNullPtr);
    EXPECT_EQ(gexiAdd_16u_C1RSfs(a.ptr(), a.step(), nullptr, 2, d.ptr(), d.step(), {9, 2}, 18), gexStsNullPtr);
    EXPECT_EQ(gexiAdd_16u_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), nullptr, 2, {9, 2}, 18), gexStsNullPtr);
    EXPECT_EQ(gexiAdd_16u_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {0, 2}, 18), gexStsSize);
    EXPECT_EQ(gexiAdd_16u_AC4RSfs(a.ptr(), 0, b.ptr(), 0, nullptr, 0, {0, 2}, 99), gexStsNullPtr);
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), d0));
    ASSERT_EQ(gexiAdd_16u_AC4RSfs(a.ptr(), 0, b.ptr(), 0, d.ptr(), d.step(), {2, 2}, 18), gexStsOk);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            for (int c = 0; c < 4; ++c) EXPECT_EQ(d.at(x, y, c), c == 3 ? d0[(y * 9 + x) * 4 + 3] : 0);
    EXPECT_TRUE(d.guards_ok());
}

// AddC's short paths give the rule's results and leave what the rule leaves.
TEST(AddC, ShortPaths) {
    Guarded<Gex8u> a(37, 3, 3), d(37, 3, 3);
    std::mt19937_64 rng(4);
    fill_rnd(a, rng);
    for (int y = 0; y < 3; ++y) a.at(5, y, 1) = 0;
    fill_rnd(d, rng);
    // value 0, factor 0: a copy
    const Gex8u zero[3] = {0, 0, 0};
    ASSERT_EQ(gexiAddC_8u_C3RSfs(a.ptr(), a.step(), zero, d.ptr(), d.step(), {37, 3}, 0), gexStsOk);
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), a.snapshot()));
    // no zero value, factor -8: all 255 (source zeros included)
    const Gex8u one[3] = {1, 1, 1};
    ASSERT_EQ(gexiAddC_8u_C3RSfs(a.ptr(), a.step(), one, d.ptr(), d.step(), {37, 3}, -8), gexStsOk);
    for (Gex8u v : d.snapshot()) ASSERT_EQ(v, 255);
    // one zero value: that channel keeps 0 where the source is 0
    const Gex8u mixed[3] = {1, 0, 1};
    ASSERT_EQ(gexiAddC_8u_C3RSfs(a.ptr(), a.step(), mixed, d.ptr(), d.step(), {37, 3}, -8), gexStsOk);
    for (int y = 0; y < 3; ++y) EXPECT_EQ(d.at(5, y, 1), 0);
    EXPECT_TRUE(d.guards_ok());

    // 16u: the short path runs after the source's null test only; Copy and
    // Set test the rest.
    Gex16u s16[4] = {1, 2, 3, 4}, d16[4] = {9, 9, 9, 9};
    EXPECT_EQ(gexiAddC_16u_C1RSfs(nullptr, 8, 0, d16, 8, {4, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiAddC_16u_C1RSfs(s16, 8, 0, nullptr, 8, {4, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiAddC_16u_C1RSfs(s16, 8, 0, d16, 8, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiAddC_16u_C1RSfs(s16, 8, 7, d16, 8, {4, 0}, -16), gexStsSize);
    EXPECT_EQ(gexiAddC_16u_C1IRSfs(3, nullptr, 8, {4, 1}, -16), gexStsNullPtr);
    EXPECT_EQ(d16[0], 9);
    ASSERT_EQ(gexiAddC_16u_C1RSfs(s16, 8, 7, d16, 8, {4, 1}, -16), gexStsOk);
    for (Gex16u v : d16) EXPECT_EQ(v, 65535);
    ASSERT_EQ(gexiAddC_16u_C1IRSfs(0, s16, 8, {4, 1}, 0), gexStsOk);  // a copy onto itself
    EXPECT_EQ(s16[3], 4);
    const Gex16u v3[3] = {5, 5, 5};
    ASSERT_EQ(gexiAddC_16u_AC4IRSfs(v3, s16, 8, {1, 1}, 18), gexStsOk);  // zero fill, alpha stays
    EXPECT_EQ(s16[0], 0);
    EXPECT_EQ(s16[2], 0);
    EXPECT_EQ(s16[3], 4);
}

TEST(Add, AC4AlphaStays) {
    for (int w : {1, 16, 17, 40}) {
        std::vector<Gex8u> a(4 * w, 10), b(4 * w, 20), d(4 * w, 7);
        for (int x = 0; x < w; ++x) a[4 * x + 3] = b[4 * x + 3] = 200;
        ASSERT_EQ(gexiAdd_8u_AC4RSfs(a.data(), 0, b.data(), 0, d.data(), 0, {w, 1}, 0), gexStsOk);
        ASSERT_EQ(gexiAdd_8u_AC4IRSfs(a.data(), 0, b.data(), 0, {w, 1}, 0), gexStsOk);
        for (int x = 0; x < w; ++x) {
            EXPECT_EQ(d[4 * x], 30);
            EXPECT_EQ(d[4 * x + 3], 7);
            EXPECT_EQ(b[4 * x + 2], 30);
            EXPECT_EQ(b[4 * x + 3], 200);
        }
        std::vector<Gex32f> fa(4 * w, 1.0f), fd(4 * w, 7.0f);
        const Gex32f v[3] = {1.0f, 2.0f, 3.0f};
        ASSERT_EQ(gexiAddC_32f_AC4R(fa.data(), 0, v, fd.data(), 0, {w, 1}), gexStsOk);
        for (int x = 0; x < w; ++x) {
            EXPECT_EQ(fd[4 * x + 2], 4.0f);
            EXPECT_EQ(fd[4 * x + 3], 7.0f);
        }
    }
}

// A step of 0 reads (or writes) the same row for every row of the ROI.
TEST(Add, ZeroStep) {
    Guarded<Gex8u> a(70, 1), b(70, 4), d(70, 4);
    std::mt19937_64 rng(5);
    fill_rnd(a, rng);
    fill_rnd(b, rng);
    ASSERT_EQ(gexiAdd_8u_C1RSfs(a.ptr(), 0, b.ptr(), b.step(), d.ptr(), d.step(), {70, 4}, 1), gexStsOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 70; ++x) ASSERT_EQ(d.at(x, y), model_int<Gex8u>(MOp::Add, a.at(x, 0), b.at(x, y), 1));
    Guarded<Gex8u> one(70, 1);
    ASSERT_EQ(gexiAdd_8u_C1RSfs(a.ptr(), 0, b.ptr(), b.step(), one.ptr(), 0, {70, 4}, 0), gexStsOk);
    for (int x = 0; x < 70; ++x) ASSERT_EQ(one.at(x, 0), model_int<Gex8u>(MOp::Add, a.at(x, 0), b.at(x, 3), 0));
    EXPECT_TRUE(one.guards_ok());
}

TEST(Add, Aliasing) {
    sweep_alias<Gex8u>(MOp::Add, gexiAdd_8u_C1RSfs, 6);
    sweep_alias<Gex16s>(MOp::Add, gexiAdd_16s_C1RSfs, 7);
}

}  // namespace
