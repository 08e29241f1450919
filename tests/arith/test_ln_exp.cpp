// Ln and Exp: every export against models computed in extended precision on
// guarded images, factor sweeps of the integer forms, the warnings of Ln and
// the order in which they are reported, saturation of huge exponentials, and
// the check order.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "arith/unary.hpp"
#include "element_test.hpp"

namespace {

using elemtest::Form;
using elemtest::Out;
using gextest::Guarded;

// ---- models -------------------------------------------------------------------------------
template <class T>
Out<T> ln_model(T x, int s) {
    if (x == 0) return {0, gexStsLnZeroArgWarn};
    if (x < 0) return {0, gexStsLnNegArgWarn};
    const long double v = std::trunc(std::ldexp(std::log(static_cast<long double>(x)), -s) + 0.5L);
    const long double top = std::numeric_limits<T>::max();
    return {static_cast<T>(v > top ? top : v)};
}

Out<Gex32f> ln32_model(Gex32f x) {
    return {static_cast<Gex32f>(std::log(static_cast<long double>(x))),
            x == 0 ? gexStsLnZeroArgWarn : x < 0 ? gexStsLnNegArgWarn : 0};
}

template <class T>
T exp_model(T x, int s) {
    const long double v = std::ldexp(std::exp(static_cast<long double>(x)), -s);
    const long double top = std::numeric_limits<T>::max();
    if (!(v < top)) return std::numeric_limits<T>::max();
    return static_cast<T>(std::nearbyint(v));  // the default mode: ties to even
}

template <class T>
std::function<T()> values(unsigned seed, bool small) {
    auto rng = std::make_shared<std::mt19937_64>(seed);
    return [rng, small]() -> T {
        const unsigned k = (*rng)() % 10;
        if constexpr (std::is_floating_point_v<T>) {
            switch (k) {
                case 0: return T(0.0);
                case 1: return T(-0.0);
                case 2: return std::numeric_limits<T>::infinity();
                case 3: return std::numeric_limits<T>::quiet_NaN();
                case 4: return std::numeric_limits<T>::denorm_min() * T((*rng)() % 50);
                default: return Guarded<T>::random_value(*rng) / (small ? T(10) : T(1));
            }
        } else {
            if (k == 0) return T(0);
            if (k == 1) return std::numeric_limits<T>::max();
            if (k == 2) return std::numeric_limits<T>::min();
            if (small || k < 6) return static_cast<T>(static_cast<int>((*rng)() % 40) - (std::is_signed_v<T> ? 20 : 0));
            return Guarded<T>::random_value(*rng);
        }
    };
}

#define LN_EXP_FORMS(B, D, T, S) \
    { ELEM_FORM_SFS(gexi##B##_##D##_C1, T, 1, false, S), ELEM_FORM_SFS(gexi##B##_##D##_C3, T, 3, false, S) }

template <class T>
std::vector<Form<T>> ln_forms(int s);
template <class T>
std::vector<Form<T>> exp_forms(int s);
#define FORMS_OF(D, T)                                                                            \
    template <>                                                                                   \
    std::vector<Form<T>> ln_forms<T>(int s) { return LN_EXP_FORMS(Ln, D, T, s); }                 \
    template <>                                                                                   \
    std::vector<Form<T>> exp_forms<T>(int s) { return LN_EXP_FORMS(Exp, D, T, s); }
FORMS_OF(8u, Gex8u)
FORMS_OF(16u, Gex16u)
FORMS_OF(16s, Gex16s)

std::vector<Form<Gex32f>> ln32_forms() {
    return {ELEM_FORM(gexiLn_32f_C1, Gex32f, 1, false), ELEM_FORM(gexiLn_32f_C3, Gex32f, 3, false)};
}
std::vector<Form<Gex32f>> exp32_forms() {
    return {ELEM_FORM(gexiExp_32f_C1, Gex32f, 1, false), ELEM_FORM(gexiExp_32f_C3, Gex32f, 3, false)};
}

const int kFewWidths[] = {1, 3, 17, 64, 129};

template <class T>
class LnExpInt : public ::testing::Test {};
using IntDepths = ::testing::Types<Gex8u, Gex16u, Gex16s>;
TYPED_TEST_SUITE(LnExpInt, IntDepths);

TYPED_TEST(LnExpInt, EveryFormAgainstTheModel) {
    using T = TypeParam;
    for (int s : {0, 2, -3}) {
        SCOPED_TRACE(s);
        elemtest::check_forms(ln_forms<T>(s), [s](T x) { return ln_model(x, s); }, values<T>(20 + s, false), false,
                              kFewWidths, std::size(kFewWidths));
        elemtest::check_forms(exp_forms<T>(s), [s](T x) { return Out<T>{exp_model(x, s)}; }, values<T>(30 + s, true),
                              false, kFewWidths, std::size(kFewWidths));
    }
}

// Factors -20..40 over every 8u value, or a spread of 16-bit values.
TYPED_TEST(LnExpInt, ScaleFactorSweep) {
    using T = TypeParam;
    std::vector<T> vals;
    if constexpr (sizeof(T) == 1) {
        for (int v = 0; v < 256; ++v) vals.push_back(static_cast<T>(v));
    } else {
        for (int v = -40; v < 60; ++v)
            if (std::is_signed_v<T> || v >= 0) vals.push_back(static_cast<T>(v));
        std::mt19937_64 rng(4);
        for (int i = 0; i < 100; ++i) vals.push_back(static_cast<T>(rng()));
        vals.push_back(std::numeric_limits<T>::max());
        vals.push_back(std::numeric_limits<T>::min());
    }
    const int w = static_cast<int>(vals.size());
    Guarded<T> src(w, 1), dst(w, 1);
    for (int x = 0; x < w; ++x) src.at(x, 0) = vals[x];
    const bool hasZero = std::find(vals.begin(), vals.end(), T(0)) != vals.end();
    for (int s = -20; s <= 40; ++s) {
        GexStatus lnSt, expSt;
        if constexpr (std::is_same_v<T, Gex8u>) {
            lnSt = gexiLn_8u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        } else if constexpr (std::is_same_v<T, Gex16u>) {
            lnSt = gexiLn_16u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        } else {
            lnSt = gexiLn_16s_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        }
        GexStatus want = 0;
        for (int x = 0; x < w; ++x) {
            const Out<T> o = ln_model(vals[x], s);
            if (want == 0) want = o.warn;
            ASSERT_EQ(dst.at(x, 0), o.v) << "ln of " << +vals[x] << " factor " << s;
        }
        ASSERT_EQ(lnSt, want);
        ASSERT_TRUE(!hasZero || lnSt != 0);
        if constexpr (std::is_same_v<T, Gex8u>) {
            expSt = gexiExp_8u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        } else if constexpr (std::is_same_v<T, Gex16u>) {
            expSt = gexiExp_16u_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        } else {
            expSt = gexiExp_16s_C1RSfs(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 1}, s);
        }
        ASSERT_EQ(expSt, gexStsOk);
        for (int x = 0; x < w; ++x)
            ASSERT_EQ(dst.at(x, 0), exp_model(vals[x], s)) << "exp of " << +vals[x] << " factor " << s;
    }
    ASSERT_TRUE(dst.guards_ok());
}

TEST(Ln, IntegerEdges) {
    Gex8u z[3] = {0, 1, 3}, d[3] = {9, 9, 9};
    ASSERT_EQ(gexiLn_8u_C1RSfs(z, 3, d, 3, {3, 1}, 0), gexStsLnZeroArgWarn);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 0);
    EXPECT_EQ(d[2], 1);  // ln 3 = 1.0986
    // ln 255 x 2^6 = 354.6: clamped.
    Gex8u top = 255;
    ASSERT_EQ(gexiLn_8u_C1IRSfs(&top, 1, {1, 1}, -6), gexStsOk);
    EXPECT_EQ(top, 255);
    // 16s: the first warning in row order, negative pixels give 0.
    Gex16s v[4] = {5, -3, 0, 100};
    ASSERT_EQ(gexiLn_16s_C1IRSfs(v, 8, {4, 1}, -4), gexStsLnNegArgWarn);
    EXPECT_EQ(v[0], 26);  // ln 5 x 16 = 25.75
    EXPECT_EQ(v[1], 0);
    EXPECT_EQ(v[2], 0);
    EXPECT_EQ(v[3], 74);  // ln 100 x 16 = 73.68
}

TEST(Ln, FloatWarningsInOrder) {
    Gex32f d[6];
    const Gex32f negFirst[4] = {1.0f, -2.0f, 0.0f, 3.0f};
    EXPECT_EQ(gexiLn_32f_C1R(negFirst, 16, d, 16, {4, 1}), gexStsLnNegArgWarn);
    EXPECT_EQ(d[0], 0.0f);
    EXPECT_TRUE(std::isnan(d[1]));
    EXPECT_TRUE(std::isinf(d[2]) && d[2] < 0);
    const Gex32f zeroFirst[4] = {-0.0f, -2.0f, 1.0f, 3.0f};
    EXPECT_EQ(gexiLn_32f_C1R(zeroFirst, 16, d, 16, {4, 1}), gexStsLnZeroArgWarn);
    // Two rows of two: the first row's warning stays, a later one does not replace it.
    const Gex32f rows[4] = {2.0f, -1.0f, 0.0f, 5.0f};
    EXPECT_EQ(gexiLn_32f_C1R(rows, 8, d, 8, {2, 2}), gexStsLnNegArgWarn);
    const Gex32f late[4] = {2.0f, 1.0f, 0.0f, -5.0f};
    EXPECT_EQ(gexiLn_32f_C1R(late, 8, d, 8, {2, 2}), gexStsLnZeroArgWarn);
    // C3 rows are C1 rows three times as long.
    const Gex32f px[6] = {1.0f, 2.0f, 3.0f, 4.0f, -1.0f, 0.0f};
    EXPECT_EQ(gexiLn_32f_C3R(px, 12, d, 12, {1, 2}), gexStsLnNegArgWarn);
    EXPECT_EQ(gex::gexsLn_32f(nullptr, d, 2), gexStsNullPtr);
    EXPECT_EQ(gex::gexsLn_32f(px, d, 0), gexStsSize);
    EXPECT_EQ(gex::gexsLn_32f(px + 5, d, 1), gexStsLnZeroArgWarn);
}

TEST(Exp, Saturation) {
    Gex16u u[3] = {65535, 11, 0};
    ASSERT_EQ(gexiExp_16u_C1IRSfs(u, 6, {3, 1}, 40), gexStsOk);
    EXPECT_EQ(u[0], 65535);
    EXPECT_EQ(u[1], 0);  // e^11 / 2^40
    EXPECT_EQ(u[2], 0);
    Gex16s s[4] = {-32768, 10, 0, 0};
    ASSERT_EQ(gexiExp_16s_C1IRSfs(s, 8, {2, 1}, 0), gexStsOk);
    EXPECT_EQ(s[0], 0);
    EXPECT_EQ(s[1], 22026);
    // Extreme factors: e^x x 2^(2^31) saturates for any x, 2^-(2^31 - 1) leaves 0.
    Gex16s t[2] = {-32768, 0};
    ASSERT_EQ(gexiExp_16s_C1IRSfs(t, 4, {2, 1}, std::numeric_limits<int>::min()), gexStsOk);
    EXPECT_EQ(t[0], 32767);
    EXPECT_EQ(t[1], 32767);
    ASSERT_EQ(gexiExp_16s_C1IRSfs(t, 4, {2, 1}, std::numeric_limits<int>::max()), gexStsOk);
    EXPECT_EQ(t[0], 0);
    // e^0 x 2^-1 = 0.5 goes to 0 (even), e^1 x 2^3 = 21.75 to 22.
    Gex8u b[2] = {0, 1}, d[2];
    ASSERT_EQ(gexiExp_8u_C1RSfs(b, 2, d, 2, {2, 1}, 1), gexStsOk);
    EXPECT_EQ(d[0], 0);
    ASSERT_EQ(gexiExp_8u_C1RSfs(b, 2, d, 2, {2, 1}, -3), gexStsOk);
    EXPECT_EQ(d[0], 8);
    EXPECT_EQ(d[1], 22);
}

TEST(LnExp, Float) {
    elemtest::check_forms(ln32_forms(), ln32_model, values<Gex32f>(40, false), true, kFewWidths,
                          std::size(kFewWidths));
    elemtest::check_forms(exp32_forms(),
                          [](Gex32f x) { return Out<Gex32f>{static_cast<Gex32f>(std::exp(static_cast<long double>(x)))}; },
                          values<Gex32f>(41, true), true, kFewWidths, std::size(kFewWidths));
    Gex32f v[3] = {100.0f, -200.0f, 0.0f};
    EXPECT_EQ(gexiExp_32f_C1IR(v, 12, {3, 1}), gexStsOk);
    EXPECT_TRUE(std::isinf(v[0]));
    EXPECT_EQ(v[1], 0.0f);
    EXPECT_EQ(v[2], 1.0f);
}

TEST(LnExp, CheckOrder) {
    for (const auto& f : ln_forms<Gex8u>(0)) elemtest::check_order(f);
    for (const auto& f : exp_forms<Gex16s>(1)) elemtest::check_order(f);
    for (const auto& f : ln32_forms()) elemtest::check_order(f);
    for (const auto& f : exp32_forms()) elemtest::check_order(f);
}

}  // namespace
