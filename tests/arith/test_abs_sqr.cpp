// Abs and Sqr: every export against exact models on guarded images, the
// scale-factor sweep of the integer Sqr, the check order, and the vector row
// kernels against their scalar twins.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "arith/unary_kernels.hpp"
#include "element_test.hpp"

namespace {

using elemtest::Form;
using elemtest::Out;
using gextest::Guarded;

namespace uk = gex::unary_kernels;

// ---- models -------------------------------------------------------------------------------
Out<Gex16s> abs16(Gex16s x) { return {static_cast<Gex16s>(std::min(std::abs(int{x}), 32767))}; }
Out<Gex32f> abs32(Gex32f x) { return {std::fabs(x)}; }

// x x x x 2^-s, exact in 128 bits: rounded to nearest with ties to even when
// s > 0, then clamped.
template <class T>
T sqr_model(T x, int s) {
    const __int128 p = static_cast<__int128>(x) * x;
    const __int128 top = std::numeric_limits<T>::max();
    __int128 v;
    if (s <= 0) {
        v = -s >= 64 ? (p != 0 ? top : 0) : p << -s;
    } else {
        v = p >> s;
        const __int128 twiceRem = 2 * (p - (v << s)), unit = static_cast<__int128>(1) << s;
        if (twiceRem > unit || (twiceRem == unit && (v & 1))) ++v;
    }
    return static_cast<T>(v > top ? top : v);
}

template <class T>
std::function<T()> mixed_values(unsigned seed) {
    auto rng = std::make_shared<std::mt19937_64>(seed);
    return [rng]() {
        const unsigned k = (*rng)() % 16;
        if constexpr (std::is_floating_point_v<T>) {
            switch (k) {
                case 0: return std::numeric_limits<T>::quiet_NaN();
                case 1: return -std::numeric_limits<T>::infinity();
                case 2: return std::numeric_limits<T>::infinity();
                case 3: return T(-0.0);
                case 4: return std::numeric_limits<T>::denorm_min() * T((*rng)() % 1000);
                case 5: return -std::numeric_limits<T>::max();
                default: return Guarded<T>::random_value(*rng);
            }
        } else {
            switch (k) {
                case 0: return std::numeric_limits<T>::min();
                case 1: return std::numeric_limits<T>::max();
                case 2: return T(0);
                case 3: return T((*rng)() % 20);
                default: return Guarded<T>::random_value(*rng);
            }
        }
    };
}

// ---- Abs ----------------------------------------------------------------------------------
std::vector<Form<Gex16s>> abs16_forms() {
    return {ELEM_FORM(gexiAbs_16s_C1, Gex16s, 1, false), ELEM_FORM(gexiAbs_16s_C3, Gex16s, 3, false),
            ELEM_FORM(gexiAbs_16s_C4, Gex16s, 4, false), ELEM_FORM(gexiAbs_16s_AC4, Gex16s, 4, true)};
}
std::vector<Form<Gex32f>> abs32_forms() {
    return {ELEM_FORM(gexiAbs_32f_C1, Gex32f, 1, false), ELEM_FORM(gexiAbs_32f_C3, Gex32f, 3, false),
            ELEM_FORM(gexiAbs_32f_C4, Gex32f, 4, false), ELEM_FORM(gexiAbs_32f_AC4, Gex32f, 4, true)};
}

TEST(Abs, EveryFormAgainstTheModel) {
    elemtest::check_forms(abs16_forms(), abs16, mixed_values<Gex16s>(1));
    // NaN payloads and signs count: the sign bit alone is cleared.
    elemtest::check_forms(abs32_forms(), abs32, mixed_values<Gex32f>(2));
}

TEST(Abs, EdgeValues) {
    Gex16s s[4] = {-32768, -32767, 0, 32767}, d[4];
    ASSERT_EQ(gexiAbs_16s_C1R(s, 8, d, 8, {4, 1}), gexStsOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], 0);
    const Gex32f nan = -std::numeric_limits<Gex32f>::quiet_NaN();
    Gex32f f[3] = {-0.0f, nan, -2.5f};
    ASSERT_EQ(gexiAbs_32f_C1IR(f, 12, {3, 1}), gexStsOk);
    EXPECT_FALSE(std::signbit(f[0]));
    EXPECT_TRUE(std::isnan(f[1]) && !std::signbit(f[1]));
    EXPECT_EQ(f[2], 2.5f);
}

// ---- Sqr ----------------------------------------------------------------------------------
template <class T>
std::vector<Form<T>> sqr_forms(int s);
#define SQR_FORMS(D, T)                                                                                  \
    template <>                                                                                          \
    std::vector<Form<T>> sqr_forms<T>(int s) {                                                           \
        return {ELEM_FORM_SFS(gexiSqr_##D##_C1, T, 1, false, s), ELEM_FORM_SFS(gexiSqr_##D##_C3, T, 3, false, s), \
                ELEM_FORM_SFS(gexiSqr_##D##_C4, T, 4, false, s), ELEM_FORM_SFS(gexiSqr_##D##_AC4, T, 4, true, s)}; \
    }
SQR_FORMS(8u, Gex8u)
SQR_FORMS(16u, Gex16u)
SQR_FORMS(16s, Gex16s)

template <class T>
class SqrInt : public ::testing::Test {};
using IntDepths = ::testing::Types<Gex8u, Gex16u, Gex16s>;
TYPED_TEST_SUITE(SqrInt, IntDepths);

TYPED_TEST(SqrInt, EveryFormAgainstTheModel) {
    using T = TypeParam;
    for (int s : {0, 1, 6, -3}) {
        SCOPED_TRACE(s);
        elemtest::check_forms(sqr_forms<T>(s), [s](T x) { return Out<T>{sqr_model(x, s)}; }, mixed_values<T>(3 + s));
    }
}

// Factors -20..40 on one image holding every 8u value, or a spread of 16-bit
// values with the ends and the tie-prone squares.
TYPED_TEST(SqrInt, ScaleFactorSweep) {
    using T = TypeParam;
    std::vector<T> vals;
    if constexpr (sizeof(T) == 1) {
        for (int v = 0; v < 256; ++v) vals.push_back(static_cast<T>(v));
    } else {
        std::mt19937_64 rng(7);
        for (int v : {0, 1, 2, 3, 181, 255, 256, 32767, 46340, 46341, 65535, -1, -181, -32767, -32768})
            vals.push_back(static_cast<T>(v));
        for (int i = 0; i < 300; ++i) vals.push_back(static_cast<T>(rng()));
    }
    const int w = static_cast<int>(vals.size());
    Guarded<T> src(w, 1), dst(w, 1);
    for (int x = 0; x < w; ++x) src.at(x, 0) = vals[x];
    const auto call = [&](int s) {
        if constexpr (std::is_same_v<T, Gex8u>)
            return gexiSqr_8u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        else if constexpr (std::is_same_v<T, Gex16u>)
            return gexiSqr_16u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        else return gexiSqr_16s_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
    };
    for (int s = -20; s <= 40; ++s) {
        ASSERT_EQ(call(s), gexStsOk);
        for (int x = 0; x < w; ++x)
            ASSERT_EQ(dst.at(x, 0), sqr_model(vals[x], s)) << "value " << +vals[x] << " factor " << s;
    }
    // Far outside the sweep: any non-zero square saturates, or nothing is left.
    for (int s : {std::numeric_limits<int>::min(), -64, 64, std::numeric_limits<int>::max()}) {
        ASSERT_EQ(call(s), gexStsOk);
        for (int x = 0; x < w; ++x)
            ASSERT_EQ(dst.at(x, 0), s < 0 && vals[x] != 0 ? std::numeric_limits<T>::max() : 0) << s;
    }
    ASSERT_TRUE(dst.guards_ok());
}

TEST(Sqr, EdgeValues) {
    Gex8u s8[4] = {15, 16, 255, 0}, d8[4];
    ASSERT_EQ(gexiSqr_8u_C1RSfs(s8, 4, d8, 4, {4, 1}, 0), gexStsOk);
    EXPECT_EQ(d8[0], 225);
    EXPECT_EQ(d8[1], 255);
    EXPECT_EQ(d8[3], 0);
    // 3 x 3 = 9, 9 / 2 = 4.5 goes to 4; 5 x 5 / 2 = 12.5 goes to 12; 7 x 7 / 2 = 24.5 to 24.
    Gex16s s16[3] = {3, -5, 7};
    ASSERT_EQ(gexiSqr_16s_C1IRSfs(s16, 6, {3, 1}, 1), gexStsOk);
    EXPECT_EQ(s16[0], 4);
    EXPECT_EQ(s16[1], 12);
    EXPECT_EQ(s16[2], 24);
    Gex16s big = -32768;
    ASSERT_EQ(gexiSqr_16s_C1IRSfs(&big, 2, {1, 1}, 15), gexStsOk);
    EXPECT_EQ(big, 32767);  // 2^30 / 2^15 = 32768 saturates
    Gex16u u = 65535;
    ASSERT_EQ(gexiSqr_16u_C1IRSfs(&u, 2, {1, 1}, 32), gexStsOk);
    EXPECT_EQ(u, 1);  // (2^16 - 1)^2 / 2^32 is just below 1
}

TEST(Sqr, Float) {
    const std::vector<Form<Gex32f>> forms = {
        ELEM_FORM(gexiSqr_32f_C1, Gex32f, 1, false), ELEM_FORM(gexiSqr_32f_C3, Gex32f, 3, false),
        ELEM_FORM(gexiSqr_32f_C4, Gex32f, 4, false), ELEM_FORM(gexiSqr_32f_AC4, Gex32f, 4, true)};
    elemtest::check_forms(forms, [](Gex32f x) { return Out<Gex32f>{x * x}; }, mixed_values<Gex32f>(4));
}

TEST(AbsSqr, CheckOrder) {
    for (const auto& f : abs16_forms()) elemtest::check_order(f);
    for (const auto& f : abs32_forms()) elemtest::check_order(f);
    for (const auto& f : sqr_forms<Gex8u>(2)) elemtest::check_order(f);
    for (const auto& f : sqr_forms<Gex16s>(0)) elemtest::check_order(f);
    elemtest::check_order(ELEM_FORM(gexiSqr_32f_C3, Gex32f, 3, false));
    elemtest::check_order(ELEM_FORM(gexiSqr_32f_AC4, Gex32f, 4, true));
}

// ---- vector kernels against their scalar twins ----------------------------------------------
template <class T, class Vec, class Ref>
void compare_kernels(Vec vec, Ref ref, unsigned seed) {
    std::mt19937_64 rng(seed);
    for (int ac4 = 0; ac4 < 2; ++ac4)
        for (std::int64_t n = 1; n <= 200; ++n) {
            const std::int64_t len = ac4 ? 4 * n : n;
            for (int off : {0, 1, 3}) {
                elemtest::Row<T> src(len, off, rng), a(len, off, rng);
                elemtest::Row<T> b = a;
                b.p = b.mem.data() + off;
                vec(src.p, a.p, len, ac4 != 0);
                ref(src.p, b.p, len, ac4 != 0);
                ASSERT_TRUE(gextest::same_bits(a.mem, b.mem)) << "n " << len << " offset " << off << " ac4 " << ac4;
            }
        }
}

TEST(UnaryKernels, AbsAndSqrAgainstTwins) {
    compare_kernels<Gex16s>(
        [](const Gex16s* s, Gex16s* d, std::int64_t n, bool ac4) { ac4 ? uk::abs_16s<true>(s, d, n) : uk::abs_16s<false>(s, d, n); },
        uk::abs_16s_ref, 1);
    compare_kernels<Gex32f>(
        [](const Gex32f* s, Gex32f* d, std::int64_t n, bool ac4) { ac4 ? uk::abs_32f<true>(s, d, n) : uk::abs_32f<false>(s, d, n); },
        uk::abs_32f_ref, 2);
    compare_kernels<Gex32f>(
        [](const Gex32f* s, Gex32f* d, std::int64_t n, bool ac4) { ac4 ? uk::sqr_32f<true>(s, d, n) : uk::sqr_32f<false>(s, d, n); },
        uk::sqr_32f_ref, 3);
    for (int sc : {-40, -20, -9, -1, 0, 1, 2, 7, 16, 31, 32, 33}) {
        SCOPED_TRACE(sc);
        const auto run = [sc](auto tag) {
            using T = decltype(tag);
            const uk::ScaleU32 k = uk::sqr_scale<T>(sc);
            compare_kernels<T>(
                [&k](const T* s, T* d, std::int64_t n, bool ac4) {
                    ac4 ? uk::sqr_int<T, true>(s, d, n, k) : uk::sqr_int<T, false>(s, d, n, k);
                },
                [sc](const T* s, T* d, std::int64_t n, bool ac4) { uk::sqr_int_ref(s, d, n, ac4, sc); }, 4);
        };
        run(Gex8u{});
        run(Gex16u{});
        run(Gex16s{});
    }
}

}  // namespace
