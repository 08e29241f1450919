// Sqrt: every export against exact models on guarded images (integer
// results checked by exact integer comparison of squares), the factor sweep,
// the negative-argument warnings, the 32f row walk by (step & ~3), the check
// order, and the 32f vector kernel against its scalar twin.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "arith/unary.hpp"
#include "arith/unary_kernels.hpp"
#include "element_test.hpp"

namespace {

using elemtest::Form;
using elemtest::Out;
using gextest::Guarded;

namespace uk = gex::unary_kernels;

// sqrt(x) x 2^-s >= A / 2, decided on integers.
bool root_at_least(std::int64_t x, int s, __int128 A) {
    const __int128 lhs = s >= 0 ? 4 * static_cast<__int128>(x) : (4 * static_cast<__int128>(x)) << (-2 * s);
    const __int128 rhs = s >= 0 ? (A * A) << (2 * s) : A * A;
    return lhs >= rhs;
}
bool root_equals(std::int64_t x, int s, __int128 A) {
    return root_at_least(x, s, A) && !root_at_least(x, s, A + 1) && [&] {
        const __int128 lhs = s >= 0 ? 4 * static_cast<__int128>(x) : (4 * static_cast<__int128>(x)) << (-2 * s);
        const __int128 rhs = s >= 0 ? (A * A) << (2 * s) : A * A;
        return lhs == rhs;
    }();
}

// Nearest integer to sqrt(x) x 2^-s, ties to even, clamped; 0 for x <= 0.
template <class T>
T sqrt_model(T x, int s) {
    if (x <= 0) return 0;
    const long double v = std::ldexp(std::sqrt(static_cast<long double>(x)), -s);
    const long double top = std::numeric_limits<T>::max();
    if (v > top + 2) return std::numeric_limits<T>::max();
    __int128 r = static_cast<__int128>(std::floor(v));
    while (r > 0 && !root_at_least(x, s, 2 * r)) --r;
    while (root_at_least(x, s, 2 * (r + 1))) ++r;
    if (root_at_least(x, s, 2 * r + 1)) r += root_equals(x, s, 2 * r + 1) ? (r & 1) : 1;
    return static_cast<T>(r > static_cast<__int128>(top) ? static_cast<__int128>(top) : r);
}

template <class T>
std::function<T()> mixed_values(unsigned seed) {
    auto rng = std::make_shared<std::mt19937_64>(seed);
    return [rng]() -> T {
        const unsigned k = (*rng)() % 12;
        if constexpr (std::is_floating_point_v<T>) {
            switch (k) {
                case 0: return T(-0.0);
                case 1: return -std::numeric_limits<T>::infinity();
                case 2: return std::numeric_limits<T>::infinity();
                case 3: return std::numeric_limits<T>::quiet_NaN();
                case 4: return T((*rng)() % 100);
                default: return std::fabs(Guarded<T>::random_value(*rng)) * ((*rng)() % 5 == 0 ? -1 : 1);
            }
        } else {
            switch (k) {
                case 0: return std::numeric_limits<T>::max();
                case 1: return T(0);
                case 2: {
                    const int r = static_cast<int>((*rng)() % 181);
                    return static_cast<T>(r * r);  // squares: the ties of positive factors
                }
                case 3: return T((*rng)() % 300);
                default: {
                    T v = Guarded<T>::random_value(*rng);
                    if constexpr (std::is_signed_v<T>)
                        if ((*rng)() % 4 != 0 && v < 0) v = static_cast<T>(-(v + 1));
                    return v;
                }
            }
        }
    };
}

template <class T>
std::vector<Form<T>> int_forms(int s);
#define SQRT_FORMS(D, T)                                                                                    \
    template <>                                                                                             \
    std::vector<Form<T>> int_forms<T>(int s) {                                                              \
        return {ELEM_FORM_SFS(gexiSqrt_##D##_C1, T, 1, false, s), ELEM_FORM_SFS(gexiSqrt_##D##_C3, T, 3, false, s), \
                ELEM_FORM_SFS(gexiSqrt_##D##_AC4, T, 4, true, s)};                                          \
    }
SQRT_FORMS(8u, Gex8u)
SQRT_FORMS(16u, Gex16u)
SQRT_FORMS(16s, Gex16s)

std::vector<Form<Gex32f>> float_forms() {
    return {ELEM_FORM(gexiSqrt_32f_C1, Gex32f, 1, false), ELEM_FORM(gexiSqrt_32f_C3, Gex32f, 3, false),
            ELEM_FORM(gexiSqrt_32f_AC4, Gex32f, 4, true),
            Form<Gex32f>{"gexiSqrt_32f_C4", 4, false, nullptr, gexiSqrt_32f_C4IR}};
}

template <class T>
class SqrtInt : public ::testing::Test {};
using IntDepths = ::testing::Types<Gex8u, Gex16u, Gex16s>;
TYPED_TEST_SUITE(SqrtInt, IntDepths);

// A negative 16s pixel gives 0 and the +3 warning, the first warning of the call.
TYPED_TEST(SqrtInt, EveryFormAgainstTheModel) {
    using T = TypeParam;
    for (int s : {0, 1, 3, -2, -9}) {
        SCOPED_TRACE(s);
        elemtest::check_forms(int_forms<T>(s),
                              [s](T x) { return Out<T>{sqrt_model(x, s), x < 0 ? gexStsSqrtNegArgWarn : 0}; },
                              mixed_values<T>(10 + s));
    }
}

TYPED_TEST(SqrtInt, ScaleFactorSweep) {
    using T = TypeParam;
    std::vector<T> vals;
    if constexpr (sizeof(T) == 1) {
        for (int v = 0; v < 256; ++v) vals.push_back(static_cast<T>(v));
    } else {
        for (int v = 0; v < 600; ++v) vals.push_back(static_cast<T>(v));  // every square below 600 and its neighbours
        std::mt19937_64 rng(3);
        for (int i = 0; i < 300; ++i) vals.push_back(static_cast<T>(rng() & 0x7fff));
        for (int v : {16383, 16384, 32767}) vals.push_back(static_cast<T>(v));
        if constexpr (std::is_same_v<T, Gex16u>)
            for (int v : {65025, 65535}) vals.push_back(static_cast<T>(v));
    }
    const int w = static_cast<int>(vals.size());
    Guarded<T> img(w, 1);
    for (int s = -20; s <= 40; ++s) {
        for (int x = 0; x < w; ++x) img.at(x, 0) = vals[x];
        GexStatus st;
        if constexpr (std::is_same_v<T, Gex8u>) st = gexiSqrt_8u_C1IRSfs(img.ptr(), img.step(), {w, 1}, s);
        else if constexpr (std::is_same_v<T, Gex16u>) st = gexiSqrt_16u_C1IRSfs(img.ptr(), img.step(), {w, 1}, s);
        else st = gexiSqrt_16s_C1IRSfs(img.ptr(), img.step(), {w, 1}, s);
        ASSERT_EQ(st, gexStsOk);
        for (int x = 0; x < w; ++x)
            ASSERT_EQ(img.at(x, 0), sqrt_model(vals[x], s)) << "value " << +vals[x] << " factor " << s;
    }
    ASSERT_TRUE(img.guards_ok());
}

TEST(SqrtInt8u, FactorBoundsAndTies) {
    Gex8u v[6] = {0, 1, 2, 9, 25, 255}, d[6];
    // Below -7 every non-zero pixel saturates.
    ASSERT_EQ(gexiSqrt_8u_C1RSfs(v, 6, d, 6, {6, 1}, -8), gexStsOk);
    EXPECT_EQ(std::vector<int>(d, d + 6), (std::vector<int>{0, 255, 255, 255, 255, 255}));
    // -7: sqrt(x) x 128 passes 255 from x = 4 on; 1 gives 128, 2 gives 181.
    ASSERT_EQ(gexiSqrt_8u_C1RSfs(v, 6, d, 6, {6, 1}, -7), gexStsOk);
    EXPECT_EQ(std::vector<int>(d, d + 6), (std::vector<int>{0, 128, 181, 255, 255, 255}));
    // Factor 1: 0.5 -> 0, 1.5 -> 2, 2.5 -> 2 (ties to even).
    ASSERT_EQ(gexiSqrt_8u_C1RSfs(v, 6, d, 6, {6, 1}, 1), gexStsOk);
    EXPECT_EQ(d[1], 0);
    EXPECT_EQ(d[3], 2);
    EXPECT_EQ(d[4], 2);
    EXPECT_EQ(d[5], 8);
}

TEST(Sqrt16s, NegativePixel) {
    Gex16s v[4] = {16, -4, 9, -32768};
    ASSERT_EQ(gexiSqrt_16s_C1IRSfs(v, 8, {4, 1}, 0), gexStsSqrtNegArgWarn);
    EXPECT_EQ(v[0], 4);
    EXPECT_EQ(v[1], 0);
    EXPECT_EQ(v[2], 3);
    EXPECT_EQ(v[3], 0);
    // The alpha of an AC4 pixel is not an argument: no warning from it.
    Gex16s p[4] = {4, 9, 16, -1};
    ASSERT_EQ(gexiSqrt_16s_AC4IRSfs(p, 8, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(p[3], -1);
}

TEST(Sqrt32f, EveryFormAgainstTheModel) {
    elemtest::check_forms(float_forms(),
                          [](Gex32f x) { return Out<Gex32f>{std::sqrt(x), x < 0 ? gexStsSqrtNegArgWarn : 0}; },
                          mixed_values<Gex32f>(5), true);
}

TEST(Sqrt32f, NegativeArgument) {
    Gex32f v[4] = {4.0f, -1.0f, -0.0f, 2.25f}, d[4];
    ASSERT_EQ(gexiSqrt_32f_C1R(v, 16, d, 16, {4, 1}), gexStsSqrtNegArgWarn);
    EXPECT_EQ(d[0], 2.0f);
    EXPECT_TRUE(std::isnan(d[1]));
    EXPECT_TRUE(d[2] == 0.0f && std::signbit(d[2]));
    EXPECT_EQ(d[3], 1.5f);
    Gex32f z[2] = {-0.0f, std::numeric_limits<Gex32f>::quiet_NaN()};
    EXPECT_EQ(gexiSqrt_32f_C1IR(z, 8, {2, 1}), gexStsOk);
    Gex32f px[4] = {1.0f, 4.0f, 9.0f, -5.0f};
    EXPECT_EQ(gexiSqrt_32f_AC4IR(px, 16, {1, 1}), gexStsOk);
    EXPECT_EQ(px[3], -5.0f);
    EXPECT_EQ(gex::gexsSqrt_32f(v, nullptr, 4), gexStsNullPtr);
    EXPECT_EQ(gex::gexsSqrt_32f(v, d, 0), gexStsSize);
}

// Rows advance by the step with its two low bits cleared: with a step of
// 4w + 2 the rows lie 4w bytes apart (here: one block with no gaps), and a
// step of 1..3 keeps every row on the first one.
TEST(Sqrt32f, StepWithLowBitsCleared) {
    const int w = 5, h = 4;
    std::mt19937_64 rng(8);
    std::vector<Gex32f> src(w * h + 16), dst(w * h + 16);
    for (Gex32f& v : src) v = static_cast<Gex32f>(rng() % 10000) / 7.0f;
    for (int srcStep : {4 * w + 2, 4 * w + 3, 4 * w}) {
        std::fill(dst.begin(), dst.end(), -7.0f);
        ASSERT_EQ(gexiSqrt_32f_C1R(src.data(), srcStep, dst.data(), 4 * w + 1, {w, h}), gexStsOk);
        for (int i = 0; i < w * h; ++i) ASSERT_EQ(dst[i], std::sqrt(src[i])) << i;
        for (std::size_t i = w * h; i < dst.size(); ++i) ASSERT_EQ(dst[i], -7.0f);
    }
    // AC4 and in place walk the same way.
    std::vector<Gex32f> io(src.begin(), src.end());
    ASSERT_EQ(gexiSqrt_32f_C1IR(io.data(), 4 * w + 2, {w, h}), gexStsOk);
    for (int i = 0; i < w * h; ++i) ASSERT_EQ(io[i], std::sqrt(src[i]));
    for (std::size_t i = w * h; i < io.size(); ++i) ASSERT_EQ(io[i], src[i]);
    std::fill(dst.begin(), dst.end(), -7.0f);
    ASSERT_EQ(gexiSqrt_32f_AC4R(src.data(), 16 + 1, dst.data(), 16 + 2, {1, 5}), gexStsOk);
    for (int i = 0; i < 20; ++i) ASSERT_EQ(dst[i], i % 4 == 3 ? -7.0f : std::sqrt(src[i])) << i;
    // Steps of 1..3 pass the check and walk with a step of 0.
    std::fill(dst.begin(), dst.end(), -7.0f);
    ASSERT_EQ(gexiSqrt_32f_C1R(src.data() + w, 3, dst.data(), 2, {w, h}), gexStsOk);
    for (int i = 0; i < w; ++i) ASSERT_EQ(dst[i], std::sqrt(src[w + i]));
    for (std::size_t i = w; i < dst.size(); ++i) ASSERT_EQ(dst[i], -7.0f);
}

TEST(Sqrt, CheckOrder) {
    for (const auto& f : int_forms<Gex8u>(0)) elemtest::check_order(f);
    for (const auto& f : int_forms<Gex16s>(-3)) elemtest::check_order(f);
    for (const auto& f : float_forms()) elemtest::check_order(f);
}

TEST(UnaryKernels, Sqrt32fAgainstTwin) {
    std::mt19937_64 rng(12);
    for (int ac4 = 0; ac4 < 2; ++ac4)
        for (std::int64_t n = 1; n <= 200; ++n)
            for (int off : {0, 1, 3}) {
                const std::int64_t len = ac4 ? 4 * n : n;
                elemtest::Row<Gex32f> src(len, off, rng), a(len, off, rng);
                // Mostly positive rows, so that the warning flag is tested both ways.
                for (std::int64_t i = 0; i < len; ++i)
                    if (rng() % 64 != 0) src.p[i] = std::fabs(src.p[i]);
                elemtest::Row<Gex32f> b = a;
                b.p = b.mem.data() + off;
                const bool wv = ac4 ? uk::sqrt_32f<true>(src.p, a.p, len) : uk::sqrt_32f<false>(src.p, a.p, len);
                const bool ws = uk::sqrt_32f_ref(src.p, b.p, len, ac4 != 0);
                ASSERT_EQ(wv, ws) << "n " << len;
                ASSERT_TRUE(gextest::same_bits(a.mem, b.mem)) << "n " << len << " offset " << off;
            }
}

}  // namespace
