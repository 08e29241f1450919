// Div and DivC: the scalar rule against an independent long-double model for
// every depth and factor, the vector row kernels against their scalar twins
// (exhaustive for 8u, random and near-tie operands for 16-bit, special values
// for 32f), every form and layout on guarded images, the worked examples,
// statuses and their check order, and the _L forwarding and chunk rule.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "arith/div.hpp"
#include "arith/div_kernels.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
using gextest::same_bits;
namespace dk = gex::div_kernels;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

// ---- the independent model ---------------------------------------------------------

// n x 2^-s / d (d != 0) in long double, rounded half to even, saturated. The
// quotient of 16-bit operands is exact or at least 2^-17 (relative 2^-17
// when s > 0) away from a rounding boundary; long double errs by 2^-64.
template <class T>
T model_exact(long long n, long long d, int s) {
    const long double q = std::ldexp(static_cast<long double>(n), -s) / static_cast<long double>(d);
    const long double f = std::floor(q);
    const long double frac = q - f;
    long double r = f;
    if (frac > 0.5L || (frac == 0.5L && std::fmod(f, 2.0L) != 0)) r = f + 1;
    const long double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(r < lo ? lo : r > hi ? hi : r);
}

template <class T> struct Range;
template <> struct Range<Gex8u> { static constexpr int lo = -15, hi = 8; };
template <> struct Range<Gex16u> { static constexpr int lo = -31, hi = 16; };
template <> struct Range<Gex16s> { static constexpr int lo = -30, hi = 15; };

// Two-image Div, all of it: zero divisors, and the fixed results outside the
// factor range.
template <class T>
T model_div(T d, T n, int s) {
    constexpr T kMax = std::numeric_limits<T>::max(), kMin = std::numeric_limits<T>::lowest();
    if (d == 0) return n == 0 ? T(0) : n > 0 ? kMax : kMin;
    if (s > Range<T>::hi) return 0;
    if (s < Range<T>::lo) {
        if (std::is_same_v<T, Gex8u>) return n != 0 ? kMax : T(0);
        if (std::is_same_v<T, Gex16u>) return kMax;
        if (n == 0) return 0;
        return (n > 0) == (d > 0) ? kMax : kMin;
    }
    return model_exact<T>(n, d, s);
}

float model_div_32f(float d, float n) {
    if (d == 0.0f) {
        if (n == 0.0f || std::isnan(n)) return std::bit_cast<float>(0x7fbfffffu);
        return std::signbit(n) != std::signbit(d) ? -INFINITY : INFINITY;
    }
    volatile float q = n / d;
    return q;
}

// ---- operands ------------------------------------------------------------------------

template <class T>
T random_value(std::mt19937_64& rng) {
    if constexpr (std::is_same_v<T, Gex32f>) {
        switch (rng() % 24) {
            case 0: return 0.0f;
            case 1: return -0.0f;
            case 2: return std::numeric_limits<float>::quiet_NaN();
            case 3: return INFINITY;
            case 4: return -INFINITY;
            case 5: return std::numeric_limits<float>::denorm_min() * static_cast<float>(rng() % 1000);
            case 6: return static_cast<float>(static_cast<int>(rng() % 200) - 100);
            default: return std::ldexp(std::uniform_real_distribution<float>(-1, 1)(rng), static_cast<int>(rng() % 60) - 30);
        }
    } else {
        // Small magnitudes half the time, so that quotients and ties are varied.
        const std::uint64_t r = rng();
        if (r % 16 == 0) return 0;
        if (r % 2 == 0) {
            const int v = static_cast<int>((r >> 8) % 600) - (std::is_signed_v<T> ? 300 : 0);
            return static_cast<T>(std::is_same_v<T, Gex8u> ? v % 256 : v);
        }
        return static_cast<T>(r >> 16);
    }
}

// A dividend near a rounding boundary of d x 2^s: (2k + 1) / 2 x d x 2^s plus
// a small offset, so that exact ties and their neighbours are both common.
template <class T>
T near_tie(std::mt19937_64& rng, T d, int s) {
    const long long k = static_cast<long long>(rng() % 200) - (std::is_signed_v<T> ? 100 : 0);
    const long double tie = (2.0L * k + 1) / 2 * d * std::ldexp(1.0L, s);
    const long long n = std::llroundl(tie) + static_cast<long long>(rng() % 3) - 1;
    const long long lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(n < lo ? lo : n > hi ? hi : n);
}

// ---- the scalar rule ------------------------------------------------------------------

template <class T>
void sweep_rule(std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    for (int s = -20; s <= 40; ++s) {
        for (int i = 0; i < 4000; ++i) {
            const T d = random_value<T>(rng);
            const T n = (i % 2) && d != 0 ? near_tie<T>(rng, d, s < -10 ? -10 : s > 10 ? 10 : s) : random_value<T>(rng);
            ASSERT_EQ(+dk::div_element(d, n, s), +model_div(d, n, s)) << +n << " / " << +d << " factor " << s;
            if (d != 0) {
                ASSERT_EQ(+dk::quotient_exact<T>(n, d, s), +model_exact<T>(n, d, s)) << +n << " / " << +d << " factor " << s;
            }
        }
    }
}

TEST(DivRule, MatchesTheModelForEveryDepthAndFactor) {
    sweep_rule<Gex16u>(1);
    sweep_rule<Gex16s>(2);
    for (int s = -20; s <= 40; s += (s < 12 ? 1 : 7))
        for (int n = 0; n < 256; ++n)
            for (int d = 0; d < 256; ++d)
                ASSERT_EQ(+dk::div_element<Gex8u>(d, n, s), +model_div<Gex8u>(d, n, s)) << n << " / " << d << " factor " << s;
}

TEST(DivRule, OutsideTheFactorRange) {
    // 16u below its range: 65535 for every non-zero divisor, even for n = 0;
    // 8u gives 0 there. 16s follows the signs.
    EXPECT_EQ(dk::div_element<Gex16u>(3, 0, -40), 65535);
    EXPECT_EQ(dk::div_element<Gex16u>(3, 0, -31), 0);
    EXPECT_EQ(dk::div_element<Gex8u>(3, 0, -40), 0);
    EXPECT_EQ(dk::div_element<Gex8u>(200, 1, -16), 255);
    EXPECT_EQ(dk::div_element<Gex16s>(-3, 5, -31), -32768);
    EXPECT_EQ(dk::div_element<Gex16s>(-3, 0, -31), 0);
    EXPECT_EQ(dk::div_element<Gex16s>(1, -32768, 16), 0);
    EXPECT_EQ(dk::div_element<Gex16s>(1, -32768, 15), -1);
    EXPECT_EQ(dk::div_element<Gex16u>(1, 65535, 17), 0);
    EXPECT_EQ(dk::div_element<Gex16u>(1, 65535, 16), 1);
    EXPECT_EQ(dk::div_element<Gex8u>(0, 9, 30), 255);
    EXPECT_EQ(dk::div_element<Gex16s>(0, -9, 30), -32768);
}

// ---- vector kernels against the scalar twins --------------------------------------------

template <class T, class Vec>
void compare_div_rows(Vec vec, std::uint64_t seed, int sLo, int sHi) {
    std::mt19937_64 rng(seed);
    std::vector<T> d(260), n(260), a(260), b(260);
    for (int s = sLo; s <= sHi; ++s)
        for (int w = 1; w <= 200; w += (w < 70 ? 1 : 13))
            for (int off = 0; off < 4; off += 3)
                for (bool ac4 : {false, true}) {
                    for (int i = 0; i < 260; ++i) {
                        d[i] = random_value<T>(rng);
                        n[i] = (i % 3 == 0 && d[i] != 0) ? near_tie<T>(rng, d[i], std::max(-8, std::min(s, 8)))
                                                         : random_value<T>(rng);
                        a[i] = b[i] = static_cast<T>(rng());
                    }
                    const bool zv = vec(d.data() + off, n.data() + off, a.data() + off, w, s, ac4);
                    const bool zs = dk::div_row_scalar(d.data() + off, n.data() + off, b.data() + off, w, s, ac4);
                    ASSERT_EQ(zv, zs) << "width " << w << " factor " << s;
                    for (int i = 0; i < 260; ++i)
                        ASSERT_EQ(+a[i], +b[i]) << "element " << i - off << " width " << w << " factor " << s << ": "
                                                << +n[i] << " / " << +d[i];
                }
}

TEST(DivKernels, Vector8uEqualsTheRuleOnEveryOperandPair) {
    std::vector<Gex8u> d(65536), n(65536), out(65536);
    for (int i = 0; i < 65536; ++i) d[i] = static_cast<Gex8u>(i), n[i] = static_cast<Gex8u>(i >> 8);
    for (int s = -16; s <= 9; ++s) {
        const bool zero = dk::div_row_8u(d.data(), n.data(), out.data(), 65536, s, false);
        EXPECT_TRUE(zero);
        for (int i = 0; i < 65536; ++i)
            ASSERT_EQ(+out[i], +model_div<Gex8u>(d[i], n[i], s)) << +n[i] << " / " << +d[i] << " factor " << s;
    }
}

TEST(DivKernels, VectorEqualsScalarTwin) {
    compare_div_rows<Gex8u>(dk::div_row_8u, 11, -17, 10);
    compare_div_rows<Gex16u>(dk::div_row_16<Gex16u>, 12, -33, 18);
    compare_div_rows<Gex16s>(dk::div_row_16<Gex16s>, 13, -32, 17);
}

TEST(DivKernels, Vector16BitNearTies) {
    // Many quotients a hair off x.5 (and exactly on it), over the whole range.
    std::mt19937_64 rng(21);
    for (int s = -31; s <= 16; ++s) {
        std::vector<Gex16u> du(4096), nu(4096), ou(4096);
        std::vector<Gex16s> ds(4096), ns(4096), os(4096);
        for (int i = 0; i < 4096; ++i) {
            du[i] = static_cast<Gex16u>(1 + rng() % (i % 2 ? 65535 : 400));
            ds[i] = static_cast<Gex16s>(static_cast<int>(rng() % (i % 2 ? 65535 : 800)) - (i % 2 ? 32767 : 400));
            if (ds[i] == 0) ds[i] = 7;
            nu[i] = near_tie<Gex16u>(rng, du[i], std::max(-16, std::min(s, 16)));
            ns[i] = near_tie<Gex16s>(rng, ds[i], std::max(-16, std::min(s, 16)));
        }
        dk::div_row_16<Gex16u>(du.data(), nu.data(), ou.data(), 4096, s, false);
        if (s <= 15) dk::div_row_16<Gex16s>(ds.data(), ns.data(), os.data(), 4096, s, false);
        for (int i = 0; i < 4096; ++i) {
            ASSERT_EQ(+ou[i], +model_div<Gex16u>(du[i], nu[i], s)) << nu[i] << " / " << du[i] << " factor " << s;
            if (s <= 15) {
                ASSERT_EQ(+os[i], +model_div<Gex16s>(ds[i], ns[i], s)) << ns[i] << " / " << ds[i] << " factor " << s;
            }
        }
    }
}

TEST(DivKernels, Vector32fEqualsScalarTwinBitwise) {
    std::mt19937_64 rng(31);
    std::vector<float> d(260), n(260), a(260), b(260);
    for (int w = 1; w <= 200; w += (w < 40 ? 1 : 11))
        for (int off = 0; off < 4; off += 3)
            for (bool ac4 : {false, true}) {
                for (int i = 0; i < 260; ++i) {
                    d[i] = random_value<float>(rng);
                    n[i] = random_value<float>(rng);
                    a[i] = b[i] = static_cast<float>(i);
                }
                const bool zv = dk::div_row_32f(d.data() + off, n.data() + off, a.data() + off, w, ac4);
                const bool zs = dk::div_row_32f_scalar(d.data() + off, n.data() + off, b.data() + off, w, ac4);
                ASSERT_EQ(zv, zs);
                for (int i = 0; i < 260; ++i) {
                    ASSERT_TRUE(same_bits(a[i], b[i])) << n[i] << " / " << d[i];
                    const int k = i - off;
                    if (k >= 0 && k < w && (!ac4 || k % 4 != 3)) {
                        ASSERT_TRUE(same_bits(a[i], model_div_32f(d[i], n[i]))) << n[i] << " / " << d[i];
                    }
                }
            }
}

template <class T, class Vec>
void compare_divc_rows(Vec vec, std::uint64_t seed, int sLo, int sHi) {
    std::mt19937_64 rng(seed);
    std::vector<T> src(260), a(260), b(260);
    for (int s = sLo; s <= sHi; ++s)
        for (int ch : {1, 3, 4, 5})  // 5: AC4
            for (int w = 1; w <= 200; w += (w < 40 ? 1 : 17))
                for (int off = 0; off < 4; off += 3) {
                    T values[4];
                    for (T& v : values)
                        do v = random_value<T>(rng);
                        while (v == 0);
                    const auto plan = dk::make_divc_plan(values, ch == 5 ? 3 : ch, ch == 5, s);
                    for (int i = 0; i < 260; ++i) {
                        if constexpr (std::is_integral_v<T>)
                            src[i] = i % 2 ? near_tie<T>(rng, values[(i - off + 40) % (ch == 5 ? 4 : ch) % 3],
                                                         std::max(-8, std::min(s, 8)))
                                           : random_value<T>(rng);
                        else src[i] = random_value<T>(rng);
                        a[i] = b[i] = static_cast<T>(rng());
                    }
                    const int elems = w * (ch == 5 ? 4 : ch) > 200 ? 200 : w * (ch == 5 ? 4 : ch);
                    vec(src.data() + off, a.data() + off, elems, plan);
                    dk::divc_row_scalar(src.data() + off, b.data() + off, elems, plan);
                    for (int i = 0; i < 260; ++i)
                        ASSERT_TRUE(same_bits(a[i], b[i])) << "element " << i - off << " layout " << ch << " factor " << s;
                    // The twin itself against the model.
                    for (int k = 0; k < elems; ++k) {
                        if (ch == 5 && k % 4 == 3) continue;
                        const T v = values[k % (ch == 5 ? 4 : ch)];
                        if constexpr (std::is_same_v<T, Gex32f>) {
                            volatile float q = src[k + off] / v;
                            ASSERT_TRUE(same_bits(b[k + off], static_cast<float>(q)));
                        } else {
                            ASSERT_EQ(+b[k + off], +model_exact<T>(src[k + off], v, s));
                        }
                    }
                }
}

TEST(DivCKernels, VectorEqualsScalarTwinForEveryLayout) {
    compare_divc_rows<Gex8u>(dk::divc_row_8u, 41, -17, 10);
    compare_divc_rows<Gex16u>(dk::divc_row_16<Gex16u>, 42, -33, 18);
    compare_divc_rows<Gex16s>(dk::divc_row_16<Gex16s>, 43, -32, 17);
    compare_divc_rows<Gex32f>(dk::divc_row_32f, 44, 0, 0);
}

TEST(DivCKernels, Vector8uEveryPixelAndValue) {
    std::vector<Gex8u> src(256), out(256);
    for (int i = 0; i < 256; ++i) src[i] = static_cast<Gex8u>(i);
    for (int s = -15; s <= 8; ++s)
        for (int v = 1; v < 256; ++v) {
            const Gex8u val = static_cast<Gex8u>(v);
            dk::divc_row_8u(src.data(), out.data(), 256, dk::make_divc_plan(&val, 1, false, s));
            for (int i = 0; i < 256; ++i)
                ASSERT_EQ(+out[i], +model_exact<Gex8u>(i, v, s)) << i << " / " << v << " factor " << s;
        }
}

// ---- the forms on guarded images ----------------------------------------------------------

template <class T>
using DivFn = std::function<GexStatus(const T*, int, const T*, int, T*, int, GexiSize, int)>;
template <class T>
using DivIFn = std::function<GexStatus(const T*, int, T*, int, GexiSize, int)>;

template <class T>
struct DivForms {
    DivFn<T> two[4];
    DivIFn<T> inplace[4];
};

#define DIV_FORMS(D)                                                                                   \
    DivForms<Gex##D> {                                                                                 \
        {gexiDiv_##D##_C1RSfs, gexiDiv_##D##_C3RSfs, gexiDiv_##D##_C4RSfs, gexiDiv_##D##_AC4RSfs},     \
            {gexiDiv_##D##_C1IRSfs, gexiDiv_##D##_C3IRSfs, gexiDiv_##D##_C4IRSfs, gexiDiv_##D##_AC4IRSfs} \
    }
#define DIV32F2(LAY) \
    [](const float* a, int sa, const float* b, int sb, float* o, int so, GexiSize r, int) { return gexiDiv_32f_##LAY(a, sa, b, sb, o, so, r); }
#define DIV32FI(LAY) [](const float* a, int sa, float* o, int so, GexiSize r, int) { return gexiDiv_32f_##LAY(a, sa, o, so, r); }

const int kElems[4] = {1, 3, 4, 4};

template <class T>
T expect_div(T d, T n, int s) {
    if constexpr (std::is_same_v<T, Gex32f>) return model_div_32f(d, n);
    else return model_div(d, n, s);
}

// Every form, every layout, widths, heights 1 and 3; each call's result,
// status (6 exactly when a used divisor was zero), AC4 alpha and guards.
template <class T>
void check_div_forms(const DivForms<T>& forms, std::uint64_t seed, std::vector<int> factors, bool negativeSteps) {
    std::mt19937_64 rng(seed);
    const auto lays = gextest::standard_layouts(negativeSteps);
    int run = 0;
    for (int f = 0; f < 4; ++f)
        for (bool inplace : {false, true})
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths)
                    for (int h : {1, 3}) {
                        const int ch = kElems[f];
                        const int s = factors[run++ % factors.size()];
                        Guarded<T> div(w, h, ch, lays[li]);
                        Guarded<T> num(w, h, ch, lays[(li + 1) % lays.size()]);
                        Guarded<T> dst(w, h, ch, lays[(li + 2) % lays.size()]);
                        bool anyZero = false;
                        for (int y = 0; y < h; ++y)
                            for (int i = 0; i < w * ch; ++i) {
                                T dv = random_value<T>(rng);
                                if (rng() % 50 != 0 && dv == 0) dv = 3;  // zero divisors now and then only
                                div.row(y)[i] = dv;
                                num.row(y)[i] = random_value<T>(rng);
                                dst.row(y)[i] = random_value<T>(rng);
                                if ((f != 3 || i % 4 != 3) && dv == 0) anyZero = true;
                            }
                        const auto d0 = div.snapshot(), n0 = num.snapshot(), o0 = dst.snapshot();
                        GexStatus st;
                        Guarded<T>& out = inplace ? num : dst;
                        if (inplace) st = forms.inplace[f](div.ptr(), div.step(), num.ptr(), num.step(), {w, h}, s);
                        else st = forms.two[f](div.ptr(), div.step(), num.ptr(), num.step(), dst.ptr(), dst.step(), {w, h}, s);
                        ASSERT_EQ(st, anyZero ? gexStsDivByZeroWarn : gexStsOk) << "form " << f << " width " << w;
                        const auto got = out.snapshot();
                        for (std::size_t i = 0; i < got.size(); ++i) {
                            const bool alpha = f == 3 && i % 4 == 3;
                            const T want = alpha ? (inplace ? n0[i] : o0[i]) : expect_div(d0[i], n0[i], s);
                            ASSERT_TRUE(same_bits(got[i], want))
                                << "form " << f << (inplace ? " in place" : "") << " element " << i << " width " << w
                                << ": " << +n0[i] << " / " << +d0[i] << " factor " << s << " gave " << +got[i]
                                << " want " << +want;
                        }
                        ASSERT_TRUE(div.guards_ok() && num.guards_ok() && dst.guards_ok());
                        ASSERT_TRUE(same_bits(div.snapshot(), d0));
                        ASSERT_TRUE(inplace ? same_bits(dst.snapshot(), o0) : same_bits(num.snapshot(), n0));
                    }
}

TEST(Div, EveryFormAndLayout) {
    check_div_forms(DIV_FORMS(8u), 51, {0, 1, 3, -2, 8, -15, 9, -16, 40}, false);
    check_div_forms(DIV_FORMS(16u), 52, {0, 2, -5, 16, -31, 17, -40}, true);  // no step check: negative steps too
    check_div_forms(DIV_FORMS(16s), 53, {0, 1, -3, 15, -30, 16, -31}, false);
    const DivForms<Gex32f> f32{{DIV32F2(C1R), DIV32F2(C3R), DIV32F2(C4R), DIV32F2(AC4R)},
                               {DIV32FI(C1IR), DIV32FI(C3IR), DIV32FI(C4IR), DIV32FI(AC4IR)}};
    check_div_forms(f32, 54, {0}, false);
}

TEST(Div, WorkedExamples) {
    Gex8u d[2] = {0, 0}, n[2] = {0, 5}, o[2] = {7, 7};
    EXPECT_EQ(gexiDiv_8u_C1RSfs(d, 2, n, 2, o, 2, {2, 1}, 0), gexStsDivByZeroWarn);
    EXPECT_EQ(o[0], 0);
    EXPECT_EQ(o[1], 255);

    // Factor -40: 0 / 3 gives 65535 in 16u, 0 in 8u.
    Gex16u du = 3, nu = 0, ou = 1;
    EXPECT_EQ(gexiDiv_16u_C1RSfs(&du, 2, &nu, 2, &ou, 2, {1, 1}, -40), gexStsOk);
    EXPECT_EQ(ou, 65535);
    Gex8u d8 = 3, n8 = 0, o8 = 1;
    EXPECT_EQ(gexiDiv_8u_C1RSfs(&d8, 1, &n8, 1, &o8, 1, {1, 1}, -40), gexStsOk);
    EXPECT_EQ(o8, 0);

    float df[2] = {0.0f, 0.0f}, nf[2] = {0.0f, -1.0f}, of[2] = {};
    EXPECT_EQ(gexiDiv_32f_C1R(df, 8, nf, 8, of, 8, {2, 1}), gexStsDivByZeroWarn);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(of[0]), 0x7fbfffffu);
    EXPECT_EQ(of[1], -INFINITY);

    // Ties to even, both signs; the first operand divides the second.
    Gex16s ds[4] = {2, 2, 2, -4}, ns[4] = {5, 7, -5, 10}, os[4];
    EXPECT_EQ(gexiDiv_16s_C1RSfs(ds, 8, ns, 8, os, 8, {4, 1}, 0), gexStsOk);
    EXPECT_EQ(os[0], 2);
    EXPECT_EQ(os[1], 4);
    EXPECT_EQ(os[2], -2);
    EXPECT_EQ(os[3], -2);
    // In place: srcDst / src.
    Gex8u src[2] = {4, 3}, sd[2] = {10, 200};
    EXPECT_EQ(gexiDiv_8u_C1IRSfs(src, 2, sd, 2, {2, 1}, 1), gexStsOk);
    EXPECT_EQ(sd[0], 1);   // 10 / 8 = 1.25
    EXPECT_EQ(sd[1], 33);  // 200 / 6 = 33.3

    // AC4: alpha of the sources unused (a zero alpha divisor raises nothing),
    // alpha of the destination untouched.
    Gex8u da[4] = {1, 2, 3, 0}, na[4] = {9, 9, 9, 200}, oa[4] = {0, 0, 0, 7};
    EXPECT_EQ(gexiDiv_8u_AC4RSfs(da, 4, na, 4, oa, 4, {1, 1}, 0), gexStsOk);
    EXPECT_EQ(oa[0], 9);
    EXPECT_EQ(oa[1], 4);
    EXPECT_EQ(oa[2], 3);
    EXPECT_EQ(oa[3], 7);
}

TEST(Div, ChecksAndTheirOrder) {
    Gex8u a[16] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, o[16] = {};
    // null before size before steps
    EXPECT_EQ(gexiDiv_8u_C1RSfs(nullptr, 0, a, 0, o, 0, {0, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDiv_8u_C1RSfs(a, 0, a, 0, o, 0, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C1RSfs(a, 4, a, 4, o, 4, {4, 0}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C1RSfs(a, 4, a, 0, o, 4, {4, 1}, 0), gexStsStep);
    EXPECT_EQ(gexiDiv_16s_C1IRSfs(reinterpret_cast<Gex16s*>(a), -8, reinterpret_cast<Gex16s*>(o), 8, {4, 1}, 0),
              gexStsStep);
    EXPECT_EQ(gexiDiv_32f_AC4R(reinterpret_cast<float*>(a), 16, reinterpret_cast<float*>(a), 16,
                               reinterpret_cast<float*>(o), -16, {1, 1}),
              gexStsStep);
    // C3 and C4 fold to C1: the width first.
    EXPECT_EQ(gexiDiv_8u_C3RSfs(nullptr, 3, a, 3, o, 3, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C1RSfs(nullptr, 3, a, 3, o, 3, {0, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDiv_16u_C4IRSfs(nullptr, 3, reinterpret_cast<Gex16u*>(o), 3, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C3RSfs(nullptr, 3, a, 3, o, 3, {1, 1}, 0), gexStsNullPtr);
    // 16u takes any step: zero repeats the row.
    Gex16u d16[3] = {2, 4, 8}, n16[3] = {16, 16, 16}, o16[6] = {};
    EXPECT_EQ(gexiDiv_16u_C1RSfs(d16, 0, n16, 0, o16, 6, {3, 2}, 0), gexStsOk);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(o16[i], 16 / d16[i % 3]);
    // Nothing written on a failed check.
    for (Gex8u v : o) EXPECT_EQ(v, 0);
}

// ---- DivC -----------------------------------------------------------------------------

template <class T>
using DivCFn = std::function<GexStatus(const T*, int, const T*, T*, int, GexiSize, int)>;
template <class T>
using DivCIFn = std::function<GexStatus(const T*, T*, int, GexiSize, int)>;

template <class T>
struct DivCForms {
    DivCFn<T> plain[4];
    DivCIFn<T> inplace[4];
};

#define DIVC_FORMS(D, T, SUF, SFP, SFA)                                                                              \
    DivCForms<T> {                                                                                                   \
        {[](const T* s, int ss, const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C1R##SUF(s, ss, v[0], o, so, r SFA); }, \
         [](const T* s, int ss, const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C3R##SUF(s, ss, v, o, so, r SFA); },    \
         [](const T* s, int ss, const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C4R##SUF(s, ss, v, o, so, r SFA); },    \
         [](const T* s, int ss, const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_AC4R##SUF(s, ss, v, o, so, r SFA); }},  \
        {[](const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C1IR##SUF(v[0], o, so, r SFA); },                             \
         [](const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C3IR##SUF(v, o, so, r SFA); },                                \
         [](const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_C4IR##SUF(v, o, so, r SFA); },                                \
         [](const T* v, T* o, int so, GexiSize r, int SFP) { return gexiDivC_##D##_AC4IR##SUF(v, o, so, r SFA); }}                               \
    }
#define SF_ARG , sf

template <class T>
void check_divc_forms(const DivCForms<T>& forms, std::uint64_t seed, std::vector<int> factors) {
    std::mt19937_64 rng(seed);
    const auto lays = gextest::standard_layouts(false);
    int run = 0;
    for (int f = 0; f < 4; ++f)
        for (bool inplace : {false, true})
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths)
                    for (int h : {1, 3}) {
                        const int ch = kElems[f];
                        const int s = factors[run++ % factors.size()];
                        T values[4];
                        for (T& v : values)
                            do v = random_value<T>(rng);
                            while (v == 0);
                        Guarded<T> src(w, h, ch, lays[li]);
                        Guarded<T> dst(w, h, ch, lays[(li + 1) % lays.size()]);
                        src.fill_random(rng);
                        for (int y = 0; y < h; ++y)
                            for (int i = 0; i < w * ch; ++i) src.row(y)[i] = random_value<T>(rng);
                        dst.fill_random(rng);
                        const auto s0 = src.snapshot(), o0 = dst.snapshot();
                        GexStatus st;
                        if (inplace) st = forms.inplace[f](values, src.ptr(), src.step(), {w, h}, s);
                        else st = forms.plain[f](src.ptr(), src.step(), values, dst.ptr(), dst.step(), {w, h}, s);
                        ASSERT_EQ(st, gexStsOk);
                        const auto got = (inplace ? src : dst).snapshot();
                        for (std::size_t i = 0; i < got.size(); ++i) {
                            T want;
                            if (f == 3 && i % 4 == 3) want = inplace ? s0[i] : o0[i];
                            else if constexpr (std::is_same_v<T, Gex32f>) {
                                volatile float q = s0[i] / values[i % ch];
                                want = q;
                            } else want = model_exact<T>(s0[i], values[i % ch], s);
                            ASSERT_TRUE(same_bits(got[i], want)) << "form " << f << " element " << i << " factor " << s;
                        }
                        ASSERT_TRUE(src.guards_ok() && dst.guards_ok());
                        if (!inplace) {
                            ASSERT_TRUE(same_bits(src.snapshot(), s0));
                        }
                    }
}

TEST(DivC, EveryFormAndLayout) {
    check_divc_forms(DIVC_FORMS(8u, Gex8u, Sfs, sf, SF_ARG), 61, {0, 1, -3, 8, -15, 9, -16, 33});
    check_divc_forms(DIVC_FORMS(16u, Gex16u, Sfs, sf, SF_ARG), 62, {0, 2, -7, 16, -31, 17, -40});
    check_divc_forms(DIVC_FORMS(16s, Gex16s, Sfs, sf, SF_ARG), 63, {0, 1, -3, 15, -30, 16, -31});
    check_divc_forms(DIVC_FORMS(32f, Gex32f, , , ), 64, {0});
}

TEST(DivC, ChecksAndTheirOrder) {
    Gex8u a[8] = {10, 20, 30, 40, 50, 60, 70, 80}, o[8] = {};
    const Gex8u v3[3] = {1, 0, 2}, v4[4] = {1, 2, 3, 0}, ok3[3] = {1, 2, 3};
    EXPECT_EQ(gexiDivC_8u_C1RSfs(a, 8, 0, o, 8, {8, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDivC_8u_C1IRSfs(0, o, 8, {8, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDivC_8u_C3RSfs(a, 6, v3, o, 6, {2, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDivC_8u_AC4RSfs(a, 8, v3, o, 8, {2, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDivC_8u_AC4RSfs(a, 8, v4, o, 8, {2, 1}, 0), gexStsOk);  // the fourth entry is not read
    for (int i = 0; i < 8; ++i) EXPECT_EQ(o[i], i % 4 == 3 ? 0 : a[i] / (i % 4 + 1) + (a[i] % (i % 4 + 1) * 2 > i % 4 + 1));
    std::memset(o, 0, sizeof o);
    EXPECT_EQ(gexiDivC_8u_C4IRSfs(v4, o, 8, {2, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDivC_32f_C1R(reinterpret_cast<float*>(a), 8, -0.0f, reinterpret_cast<float*>(o), 8, {2, 1}),
              gexStsDivByZero);
    // pointers, size and steps come before the value
    EXPECT_EQ(gexiDivC_8u_C1RSfs(a, 8, 0, nullptr, 8, {8, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDivC_8u_C3RSfs(a, 6, nullptr, o, 6, {2, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDivC_8u_C1RSfs(a, 8, 0, o, 8, {0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiDivC_8u_C1RSfs(a, 0, 0, o, 8, {8, 1}, 0), gexStsStep);
    EXPECT_EQ(gexiDivC_16s_C1IRSfs(0, reinterpret_cast<Gex16s*>(o), -2, {2, 1}, 0), gexStsStep);
    EXPECT_EQ(gexiDivC_16u_C3RSfs(reinterpret_cast<Gex16u*>(a), 0, reinterpret_cast<const Gex16u*>(ok3),
                                  reinterpret_cast<Gex16u*>(o), 6, {1, 1}, 0),
              gexStsStep);
    for (Gex8u v : o) EXPECT_EQ(v, 0);  // nothing written by any failure
}

TEST(DivC, The16uOneChannelShortPaths) {
    Gex16u src[4] = {1000, 3, 65535, 0}, dst[8];
    auto reset = [&] { std::fill(dst, dst + 8, Gex16u{77}); };
    // The source pointer is checked first, before any short path.
    reset();
    EXPECT_EQ(gexiDivC_16u_C1RSfs(nullptr, 8, 5, dst, 8, {4, 1}, 20), gexStsNullPtr);
    // Factor above 16 with a non-zero value: a fill with 0, whose own checks
    // see the destination and the size; any step.
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 8, 5, nullptr, 8, {4, 1}, 17), gexStsNullPtr);
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 8, 5, dst, 8, {0, 1}, 17), gexStsSize);
    reset();
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 8, 5, dst + 4, -8, {4, 2}, 17), gexStsOk);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(dst[i], 0);
    // The value 0 is no short path: the checks see it.
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 8, 0, dst, 8, {4, 1}, 17), gexStsDivByZero);
    // Factor 0, value 1: a copy.
    reset();
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 8, 1, dst, 8, {4, 1}, 0), gexStsOk);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(dst[i], src[i]);
    EXPECT_EQ(dst[4], 77);
    // The general path checks no step: zero and negative steps work.
    reset();
    EXPECT_EQ(gexiDivC_16u_C1RSfs(src, 0, 7, dst + 4, -8, {4, 2}, 1), gexStsOk);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(dst[i], model_exact<Gex16u>(src[i % 4], 7, 1));
    // Other 16u forms check their steps.
    EXPECT_EQ(gexiDivC_16u_C1IRSfs(7, dst, 0, {4, 1}, 1), gexStsStep);
}

// ---- _L --------------------------------------------------------------------------------

TEST(DivLarge, SmallCallsForwardToThe32BitForm) {
    Gex8u d[6] = {1, 2, 3, 0, 5, 6}, n[6] = {9, 9, 9, 9, 9, 9}, o[6] = {};
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, 6, n, 6, o, 6, GexiSizeL{6, 1}, 0), gexStsDivByZeroWarn);
    EXPECT_EQ(o[1], 4);
    EXPECT_EQ(o[3], 255);
    // The 32-bit checks run: null, size, steps.
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(nullptr, 6, n, 6, o, 6, GexiSizeL{6, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, 6, n, 6, o, 6, GexiSizeL{0, 1}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, 6, n, 6, o, 6, GexiSizeL{6, 0}, 0), gexStsSize);
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, 0, n, 6, o, 6, GexiSizeL{6, 1}, 0), gexStsStep);
    EXPECT_EQ(gexiDivC_8u_C1RSfs_L(n, 6, 0, o, 6, GexiSizeL{6, 1}, 0), gexStsDivByZero);
    EXPECT_EQ(gexiDiv_32f_C3R_L(nullptr, 6, nullptr, 6, nullptr, 6, GexiSizeL{0, 1}), gexStsSize);  // the fold
}

TEST(DivLarge, LargeCallsChunkWithoutChecks) {
    const Gex64s big = 0x7fffffffLL;  // |step| not below 0x7fffffff: no forwarding
    Gex8u d[8] = {1, 2, 3, 4, 5, 6, 7, 0}, n[8] = {8, 8, 8, 8, 8, 8, 8, 8}, o[8] = {};
    // Height below 1: 0 at once, even with null pointers and a negative width.
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(nullptr, big, nullptr, big, nullptr, big, GexiSizeL{-5, 0}, 0), gexStsOk);
    EXPECT_EQ(gexiDivC_16s_C3IRSfs_L(nullptr, nullptr, -big, GexiSizeL{3, -1}, 0), gexStsOk);
    // A row of width 0 is no chunk at all.
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(nullptr, big, nullptr, big, nullptr, big, GexiSizeL{0, 1}, 0), gexStsOk);
    // One row (the step is never used): the primitive reports null pointers.
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, big, nullptr, big, o, big, GexiSizeL{8, 1}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiDiv_8u_C1RSfs_L(d, big, n, big, o, big, GexiSizeL{8, 1}, 0), gexStsDivByZeroWarn);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(o[i], model_div<Gex8u>(d[i], n[i], 0));
    // AC4 and the constant forms go through the 32-bit wrapper.
    Gex8u a4[8] = {10, 10, 10, 99, 20, 20, 20, 99}, ac[3] = {1, 2, 5};
    EXPECT_EQ(gexiDivC_8u_AC4IRSfs_L(ac, a4, big, GexiSizeL{2, 1}, 0), gexStsOk);
    const Gex8u want4[8] = {10, 5, 2, 99, 20, 10, 4, 99};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(a4[i], want4[i]);
    EXPECT_EQ(gexiDivC_8u_C1RSfs_L(n, big, 0, o, big, GexiSizeL{8, 1}, 0), gexStsDivByZero);
    float df[4] = {2, 0, 1, 0}, nf[4] = {1, 1, 1, 1}, of[4] = {};
    EXPECT_EQ(gexiDiv_32f_AC4R_L(df, big, nf, big, of, big, GexiSizeL{1, 1}), gexStsDivByZeroWarn);
    EXPECT_EQ(of[0], 0.5f);
    EXPECT_EQ(of[1], INFINITY);
    EXPECT_EQ(of[3], 0.0f);
}

// The chunk rule through the same row loops the exports use, with small chunks.
TEST(DivLarge, TheLastChunkStatusWins) {
    const int w = 40, h = 2;
    std::vector<Gex8u> d(w * h, 3), n(w * h, 200), o(w * h), ref(w * h);
    auto prim = [](const Gex8u* a, const Gex8u* b, Gex8u* c, int len) { return gex::gexsDiv_8u_Sfs(a, b, c, len, 1); };
    auto run = [&](std::int64_t chunk) {
        return gex::large_by_primitive(d.data(), w, n.data(), w, o.data(), w, GexiSizeL{w, h}, 1, chunk, prim);
    };
    // A zero divisor in the first chunk of the last row only: chunks of 16
    // leave the last chunk clean, so the warning is lost.
    d[w + 3] = 0;
    EXPECT_EQ(run(16), gexStsOk);
    ASSERT_EQ(gexiDiv_8u_C1RSfs(d.data(), w, n.data(), w, ref.data(), w, {w, h}, 1), gexStsDivByZeroWarn);
    EXPECT_EQ(o, ref);  // the results are the same all the same
    // The same zero in the last chunk keeps the warning.
    d[w + 3] = 3;
    d[w + 35] = 0;
    EXPECT_EQ(run(16), gexStsDivByZeroWarn);
    // One chunk a row: the last row's status.
    EXPECT_EQ(run(1000), gexStsDivByZeroWarn);
    d[w + 35] = 3;
    d[5] = 0;
    EXPECT_EQ(run(1000), gexStsOk);
    // In place, C3 chunks: elements are pixels x 3.
    std::vector<Gex16s> s3(3 * 10, 2), sd3(3 * 10, 9);
    s3[0] = 0;
    auto primI = [](const Gex16s* a, Gex16s* b, int len) { return gex::gexsDiv_16s_ISfs(a, b, len, 0); };
    EXPECT_EQ(gex::large_by_primitive_inplace(s3.data(), 60, sd3.data(), 60, GexiSizeL{10, 1}, 3, 4, primI), gexStsOk);
    EXPECT_EQ(sd3[0], 32767);
    for (int i = 1; i < 30; ++i) EXPECT_EQ(sd3[i], 4);  // 4.5 to even
    // A negative chunk status ends the call at once: nothing after it runs.
    std::vector<Gex8u> src(12, 50), dst(12, 1);
    const Gex8u v = 0;
    auto callC = [&](std::int64_t y, std::int64_t off, GexiSize one) {
        return gexiDivC_8u_C1RSfs(src.data() + y * 12 + off, 4, v, dst.data() + y * 12 + off, 4, one, 0);
    };
    EXPECT_EQ(gex::large_by_wrapper(GexiSizeL{12, 1}, 1, 5, callC), gexStsDivByZero);
    for (Gex8u x : dst) EXPECT_EQ(x, 1);
    // AC4 chunks through the 32-bit wrapper leave the alpha alone.
    std::vector<Gex8u> da(4 * 9, 2), na(4 * 9, 6), oa(4 * 9, 33);
    auto callA = [&](std::int64_t, std::int64_t off, GexiSize one) {
        return gexiDiv_8u_AC4RSfs(da.data() + off, 4, na.data() + off, 4, oa.data() + off, 4, one, 0);
    };
    EXPECT_EQ(gex::large_by_wrapper(GexiSizeL{9, 1}, 4, 2, callA), gexStsOk);
    for (int i = 0; i < 36; ++i) EXPECT_EQ(oa[i], i % 4 == 3 ? 33 : 3);
}

TEST(DivPrimitives, ChecksAndStatuses) {
    Gex8u a[4] = {1, 0, 2, 3}, b[4] = {4, 4, 4, 4}, o[4] = {};
    EXPECT_EQ(gex::gexsDiv_8u_Sfs(nullptr, b, o, 4, 0), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDiv_8u_Sfs(a, b, o, 0, 0), gexStsSize);
    EXPECT_EQ(gex::gexsDiv_8u_Sfs(a, b, o, 4, 0), gexStsDivByZeroWarn);
    EXPECT_EQ(o[0], 4);
    EXPECT_EQ(o[1], 255);
    EXPECT_EQ(gex::gexsDiv_8u_ISfs(a + 2, b, 2, 0), gexStsOk);
    EXPECT_EQ(b[0], 2);
    EXPECT_EQ(b[1], 1);
    EXPECT_EQ(gex::gexsDivC_8u_Sfs(b, 0, o, 4, 0), gexStsDivByZero);
    EXPECT_EQ(gex::gexsDivC_8u_ISfs(0, nullptr, 4, 0), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDivC_16s_Sfs(reinterpret_cast<Gex16s*>(b), 3, reinterpret_cast<Gex16s*>(o), -1, 0), gexStsSize);
    float f[2] = {1, 2}, g[2] = {0, 4};
    EXPECT_EQ(gex::gexsDiv_32f_I(g, f, 2), gexStsDivByZeroWarn);
    EXPECT_EQ(f[0], INFINITY);
    EXPECT_EQ(f[1], 0.5f);
    EXPECT_EQ(gex::gexsDivC_32f_I(4.0f, f + 1, 1), gexStsOk);
    EXPECT_EQ(f[1], 0.125f);
}

}  // namespace
