// Shared pieces of the Add, Sub and Mul tests: an independent model of the
// scale rule, random pixels with the ends of each range, the forms of a
// family as uniform callables, and the checks every family runs (model
// sweeps over factors and layouts, statuses and their order, the vector
// kernels against their scalar twins, aliasing).
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "arith/arith.hpp"
#include "arith/arith_kernels.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

namespace arithtest {

using gextest::Guarded;
using gextest::Layout;

enum class MOp { Add, Sub, Mul };

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};
const int kChannels[4] = {1, 3, 4, 4};  // C1, C3, C4, AC4
const char* const kLayNames[4] = {"C1", "C3", "C4", "AC4"};

// ---- the model ------------------------------------------------------------------------------
// The exact result in long double (sums, differences and products of 16-bit
// values are exact there), times 2^-s by ldexp, then ties to even by looking
// at the fraction, then clamped. p is the operand that Sub subtracts.
template <class T>
T model_int(MOp op, long double p, long double q, int s) {
    const long double x = op == MOp::Add ? p + q : op == MOp::Sub ? q - p : p * q;
    long double y = std::ldexp(x, -s);
    if (s > 0) {
        const long double f = std::floor(y), frac = y - f;
        y = frac > 0.5L ? f + 1 : frac < 0.5L ? f : (std::fmod(f, 2.0L) == 0 ? f : f + 1);
    }
    const long double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(y < lo ? lo : y > hi ? hi : y);
}

inline float model_float(MOp op, float p, float q) {
    volatile float a = p, b = q;
    volatile float r = op == MOp::Add ? a + b : op == MOp::Sub ? b - a : a * b;
    return r;
}

template <class T>
T model(MOp op, T p, T q, int s) {
    if constexpr (std::is_floating_point_v<T>) return model_float(op, p, q);
    else return model_int<T>(op, p, q, s);
}

// Equal bits, or both NaN (which NaN survives an operation on two NaNs is the
// hardware's business).
template <class T>
bool agree(T got, T want) {
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(got) && std::isnan(want)) return true;
    }
    return gextest::same_bits(got, want);
}

// ---- random pixels ---------------------------------------------------------------------------
template <class T>
T rnd(std::mt19937_64& rng) {
    const unsigned k = rng() % 10;
    if constexpr (std::is_floating_point_v<T>) {
        switch (k) {
            case 0: return (rng() & 1) ? 0.0f : -0.0f;
            case 1: return (rng() & 1) ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
            case 2: return std::numeric_limits<float>::quiet_NaN();
            case 3: return std::ldexp(static_cast<float>(rng() % 1000), -140);  // subnormal
            case 4: return std::ldexp(static_cast<float>(rng() % 1000 + 1), 100);  // overflows when squared
            default: return std::uniform_real_distribution<float>(-1000.0f, 1000.0f)(rng);
        }
    } else {
        switch (k) {
            case 0: return 0;
            case 1: return std::numeric_limits<T>::max();
            case 2: return std::numeric_limits<T>::lowest();
            case 3: return 1;
            case 4: return static_cast<T>(rng() % 5);  // small values: ties at small factors
            default: return static_cast<T>(rng());
        }
    }
}

template <class T>
void fill_rnd(Guarded<T>& g, std::mt19937_64& rng) {
    for (int y = 0; y < g.height(); ++y)
        for (std::int64_t i = 0; i < g.row_elems(); ++i) g.row(y)[i] = rnd<T>(rng);
}

// ---- the forms --------------------------------------------------------------------------------
template <class T>
using Bin = std::function<GexStatus(const T*, int, const T*, int, T*, int, GexiSize, int)>;
template <class T>
using BinI = std::function<GexStatus(const T*, int, T*, int, GexiSize, int)>;
template <class T>
using Con = std::function<GexStatus(const T*, int, const T*, T*, int, GexiSize, int)>;  // values array
template <class T>
using ConI = std::function<GexStatus(const T*, T*, int, GexiSize, int)>;

template <class T>
struct BinForms {
    Bin<T> f[4];   // C1, C3, C4, AC4
    BinI<T> fi[4];
};

template <class T>
struct ConForms {
    Con<T> f[4];
    ConI<T> fi[4];
};

// ---- model sweeps -------------------------------------------------------------------------------

// The standard layouts and two without gaps between rows (steps equal to the
// row's bytes), which run as one long row when every image has them.
inline std::vector<Layout> sweep_layouts() {
    auto v = gextest::standard_layouts();
    v.push_back(Layout{0, 0, 1, false, false});
    v.push_back(Layout{0, 0, 0, false, true});
    return v;
}

// One call of a two-operand form on guarded images, checked against the
// model: every colour channel; alpha of AC4 as it was; sources untouched;
// nothing outside the ROI written.
template <class T>
void check_bin(MOp op, const BinForms<T>& forms, int lay, bool inPlace, int w, int h, const Layout& l1,
               const Layout& l2, const Layout& ld, int s, std::mt19937_64& rng) {
    const int ch = kChannels[lay];
    Guarded<T> a(w, h, ch, l1), b(w, h, ch, l2), d(w, h, ch, ld);
    fill_rnd(a, rng);
    fill_rnd(b, rng);
    fill_rnd(d, rng);
    const std::vector<T> a0 = a.snapshot(), b0 = b.snapshot(), d0 = d.snapshot();
    const GexStatus st = inPlace ? forms.fi[lay](a.ptr(), a.step(), b.ptr(), b.step(), {w, h}, s)
                                 : forms.f[lay](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {w, h}, s);
    ASSERT_EQ(st, gexStsOk) << kLayNames[lay] << (inPlace ? "I" : "") << " factor " << s;
    Guarded<T>& out = inPlace ? b : d;
    const std::vector<T>& out0 = inPlace ? b0 : d0;
    std::size_t i = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                const T want = (lay == 3 && c == 3) ? out0[i] : model(op, a0[i], b0[i], s);
                ASSERT_TRUE(agree(out.at(x, y, c), want))
                    << kLayNames[lay] << (inPlace ? "I" : "") << " factor " << s << " width " << w << " at (" << x
                    << "," << y << ") ch " << c << ": " << +a0[i] << ", " << +b0[i] << " gave "
                    << +out.at(x, y, c) << ", want " << +want;
            }
    ASSERT_TRUE(a.guards_ok() && b.guards_ok() && d.guards_ok());
    ASSERT_TRUE(gextest::same_bits(a.snapshot(), a0));
    if (inPlace) ASSERT_TRUE(gextest::same_bits(d.snapshot(), d0));
    else ASSERT_TRUE(gextest::same_bits(b.snapshot(), b0));
}

// Every factor in [lo, hi], each with all eight forms (C1, C3, C4, AC4, and
// in place), widths and layouts varying from call to call.
template <class T>
void sweep_bin(MOp op, const BinForms<T>& forms, std::uint64_t seed, int lo = -20, int hi = 40) {
    std::mt19937_64 rng(seed);
    const auto lays = sweep_layouts();
    const std::size_t nl = lays.size();
    std::size_t k = 0;
    for (int s = lo; s <= hi; ++s)
        for (int form = 0; form < 8; ++form, ++k) {
            const int w = kWidths[k % std::size(kWidths)];
            const int h = 1 + static_cast<int>(k % 3);
            const std::size_t d = k % 4 == 0 ? 0 : 1;  // every fourth call: all images alike
            check_bin(op, forms, form % 4, form >= 4, w, h, lays[k % nl], lays[(k + d) % nl], lays[(k + 2 * d) % nl],
                      s, rng);
            if (::testing::Test::HasFatalFailure()) return;
        }
}

// The same for a constant form. value_count entries are drawn per call;
// every fifth call has all zeros and every fifth all ones, so that the short
// paths come up at every factor.
template <class T>
void check_con(MOp op, const ConForms<T>& forms, int lay, bool inPlace, int w, int h, const Layout& ls,
               const Layout& ld, int s, const T* v, std::mt19937_64& rng) {
    const int ch = kChannels[lay];
    Guarded<T> a(w, h, ch, ls), d(w, h, ch, ld);
    fill_rnd(a, rng);
    fill_rnd(d, rng);
    const std::vector<T> a0 = a.snapshot(), d0 = d.snapshot();
    const GexStatus st = inPlace ? forms.fi[lay](v, a.ptr(), a.step(), {w, h}, s)
                                 : forms.f[lay](a.ptr(), a.step(), v, d.ptr(), d.step(), {w, h}, s);
    ASSERT_EQ(st, gexStsOk) << kLayNames[lay] << (inPlace ? "I" : "") << " factor " << s;
    Guarded<T>& out = inPlace ? a : d;
    const std::vector<T>& out0 = inPlace ? a0 : d0;
    std::size_t i = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                // SubC subtracts the constant: it is the model's p.
                const T want = (lay == 3 && c == 3) ? out0[i]
                               : op == MOp::Sub    ? model(op, v[c], a0[i], s)
                                                   : model(op, a0[i], v[c], s);
                ASSERT_TRUE(agree(out.at(x, y, c), want))
                    << kLayNames[lay] << (inPlace ? "I" : "") << " factor " << s << " width " << w << " at (" << x
                    << "," << y << ") ch " << c << ": src " << +a0[i] << ", value " << +v[c] << " gave "
                    << +out.at(x, y, c) << ", want " << +want;
            }
    ASSERT_TRUE(a.guards_ok() && d.guards_ok());
    if (inPlace) ASSERT_TRUE(gextest::same_bits(d.snapshot(), d0));
    else ASSERT_TRUE(gextest::same_bits(a.snapshot(), a0));
}

template <class T>
void sweep_con(MOp op, const ConForms<T>& forms, std::uint64_t seed, int lo = -20, int hi = 40) {
    std::mt19937_64 rng(seed);
    const auto lays = sweep_layouts();
    const std::size_t nl = lays.size();
    std::size_t k = 0;
    for (int s = lo; s <= hi; ++s)
        for (int form = 0; form < 8; ++form, ++k) {
            T v[4];
            for (T& e : v) e = k % 5 == 0 ? T(0) : k % 5 == 1 ? T(1) : rnd<T>(rng);
            const int w = kWidths[(k * 7) % std::size(kWidths)];
            const int h = 1 + static_cast<int>(k % 3);
            const std::size_t d = k % 4 == 0 ? 0 : 1;
            check_con(op, forms, form % 4, form >= 4, w, h, lays[k % nl], lays[(k + d) % nl], s, v, rng);
            if (::testing::Test::HasFatalFailure()) return;
        }
}

// The one-dimensional primitives against the model, with both ends of their
// zero fill and saturation ranges among the factors.
template <class T, class Prim, class PrimI>
void sweep_line(MOp op, Prim prim, PrimI primI, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    for (int s = -20; s <= 40; ++s)
        for (int n : {1, 17, 64, 200}) {
            std::vector<T> a(n + 1), b(n + 1), d(n + 1);
            for (int i = 0; i <= n; ++i) a[i] = rnd<T>(rng), b[i] = rnd<T>(rng), d[i] = rnd<T>(rng);
            const T sentinel = d[n];
            std::vector<T> b0 = b;
            ASSERT_EQ(prim(a.data(), b.data(), d.data(), n, s), gexStsOk);
            ASSERT_EQ(primI(a.data(), b.data(), n, s), gexStsOk);
            for (int i = 0; i < n; ++i) {
                const T want = model(op, a[i], b0[i], s);
                ASSERT_TRUE(agree(d[i], want)) << "factor " << s << " n " << n << " at " << i;
                ASSERT_TRUE(agree(b[i], want)) << "in place, factor " << s << " n " << n << " at " << i;
            }
            ASSERT_TRUE(gextest::same_bits(d[n], sentinel));
            ASSERT_TRUE(gextest::same_bits(b[n], b0[n]));
        }
    T a[2] = {}, d[2] = {};
    EXPECT_EQ(prim(nullptr, a, d, 2, 0), gexStsNullPtr);
    EXPECT_EQ(prim(a, nullptr, d, 2, 0), gexStsNullPtr);
    EXPECT_EQ(prim(a, a, nullptr, 2, 0), gexStsNullPtr);
    EXPECT_EQ(prim(nullptr, a, d, 0, 0), gexStsNullPtr);  // pointers before the length
    EXPECT_EQ(prim(a, a, d, 0, 0), gexStsSize);
    EXPECT_EQ(prim(a, a, d, -5, 0), gexStsSize);
    EXPECT_EQ(primI(nullptr, d, 2, 0), gexStsNullPtr);
    EXPECT_EQ(primI(a, nullptr, 2, 0), gexStsNullPtr);
    EXPECT_EQ(primI(a, d, 0, 0), gexStsSize);
    EXPECT_EQ(prim(a, a, d, 0, 100), gexStsSize);  // also on the zero-fill path
}

// ---- statuses ---------------------------------------------------------------------------------------

// Null pointers (-8), sizes below 1 (-6), the folding forms' width-first
// order, and nothing written on any failure. s is a factor to run them at.
template <class T>
void check_bin_statuses(const BinForms<T>& forms, int s) {
    Guarded<T> a(5, 3, 4), b(5, 3, 4), d(5, 3, 4);
    std::mt19937_64 rng(11);
    fill_rnd(a, rng);
    fill_rnd(b, rng);
    fill_rnd(d, rng);
    const auto b0 = b.snapshot(), d0 = d.snapshot();
    const GexiSize ok{5, 3};
    for (int lay = 0; lay < 4; ++lay) {
        const auto& f = forms.f[lay];
        const auto& fi = forms.fi[lay];
        const bool folds = lay == 1 || lay == 2;
        SCOPED_TRACE(kLayNames[lay]);
        EXPECT_EQ(f(nullptr, a.step(), b.ptr(), b.step(), d.ptr(), d.step(), ok, s), gexStsNullPtr);
        EXPECT_EQ(f(a.ptr(), a.step(), nullptr, b.step(), d.ptr(), d.step(), ok, s), gexStsNullPtr);
        EXPECT_EQ(f(a.ptr(), a.step(), b.ptr(), b.step(), nullptr, d.step(), ok, s), gexStsNullPtr);
        for (GexiSize bad : {GexiSize{0, 3}, GexiSize{5, 0}, GexiSize{-1, 3}, GexiSize{5, -2}}) {
            EXPECT_EQ(f(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), bad, s), gexStsSize);
            EXPECT_EQ(fi(a.ptr(), a.step(), b.ptr(), b.step(), bad, s), gexStsSize);
        }
        // A null pointer with width 0: the folding forms test the width first.
        EXPECT_EQ(f(nullptr, 0, nullptr, 0, nullptr, 0, GexiSize{0, 3}, s), folds ? gexStsSize : gexStsNullPtr);
        EXPECT_EQ(fi(nullptr, 0, nullptr, 0, GexiSize{0, 3}, s), folds ? gexStsSize : gexStsNullPtr);
        // ... but with height 0 the pointers come first everywhere.
        EXPECT_EQ(f(nullptr, 0, nullptr, 0, nullptr, 0, GexiSize{5, 0}, s), gexStsNullPtr);
        EXPECT_EQ(fi(a.ptr(), a.step(), nullptr, 0, GexiSize{5, 0}, s), gexStsNullPtr);
        EXPECT_EQ(fi(nullptr, a.step(), b.ptr(), b.step(), ok, s), gexStsNullPtr);
    }
    EXPECT_TRUE(gextest::same_bits(b.snapshot(), b0));
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), d0));
    EXPECT_TRUE(a.guards_ok() && b.guards_ok() && d.guards_ok());
}

template <class T>
void check_con_statuses(const ConForms<T>& forms, const T* v, int s) {
    Guarded<T> a(5, 3, 4), d(5, 3, 4);
    std::mt19937_64 rng(12);
    fill_rnd(a, rng);
    fill_rnd(d, rng);
    const auto a0 = a.snapshot(), d0 = d.snapshot();
    const GexiSize ok{5, 3};
    for (int lay = 0; lay < 4; ++lay) {
        const auto& f = forms.f[lay];
        const auto& fi = forms.fi[lay];
        SCOPED_TRACE(kLayNames[lay]);
        EXPECT_EQ(f(nullptr, a.step(), v, d.ptr(), d.step(), ok, s), gexStsNullPtr);
        EXPECT_EQ(f(a.ptr(), a.step(), v, nullptr, d.step(), ok, s), gexStsNullPtr);
        EXPECT_EQ(fi(v, nullptr, d.step(), ok, s), gexStsNullPtr);
        if (lay > 0) {
            EXPECT_EQ(f(a.ptr(), a.step(), nullptr, d.ptr(), d.step(), ok, s), gexStsNullPtr);
            EXPECT_EQ(fi(nullptr, d.ptr(), d.step(), ok, s), gexStsNullPtr);
        }
        for (GexiSize bad : {GexiSize{0, 3}, GexiSize{5, 0}, GexiSize{-4, 3}}) {
            EXPECT_EQ(f(a.ptr(), a.step(), v, d.ptr(), d.step(), bad, s), gexStsSize);
            EXPECT_EQ(fi(v, d.ptr(), d.step(), bad, s), gexStsSize);
        }
        // The constant forms do not fold: pointers come before the size in every layout.
        EXPECT_EQ(f(nullptr, 0, v, d.ptr(), d.step(), GexiSize{0, 3}, s), gexStsNullPtr);
        EXPECT_EQ(fi(v, nullptr, 0, GexiSize{0, 3}, s), gexStsNullPtr);
    }
    EXPECT_TRUE(gextest::same_bits(a.snapshot(), a0));
    EXPECT_TRUE(gextest::same_bits(d.snapshot(), d0));
    EXPECT_TRUE(a.guards_ok() && d.guards_ok());
}

// ---- the vector kernels against their scalar twins -------------------------------------------------

// Factors that select every kernel class of an operation and depth, with
// both edges of each range.
template <gex::arith::Op O, class T>
std::vector<int> class_factors() {
    if constexpr (std::is_floating_point_v<T>) {
        return {0};
    } else {
        const gex::arith::Bounds b = gex::arith::bounds<O, T>(gex::arith::Form::Line);
        return {b.lower - 9, b.lower - 1, b.lower, b.lower + 1, -1, 0, 1, 2, 3, b.upper / 2, b.upper - 1, b.upper,
                b.upper + 1};
    }
}

template <bool AC4, class K, class PS, class QS, class T>
void compare_rows(const K& k, const PS& ps, const QS& qs, std::vector<T>& d1, std::vector<T>& d2, int off, int n,
                  const char* what, int s) {
    d2 = d1;
    gex::arith::row_vec<AC4>(k, ps, qs, d1.data() + off, n);
    gex::arith::row_scalar<AC4>(k, ps, qs, d2.data() + off, n);
    for (std::size_t i = 0; i < d1.size(); ++i)
        ASSERT_TRUE(agree(d1[i], d2[i])) << what << " factor " << s << " n " << n << " offset " << off << " at "
                                         << static_cast<long>(i) - off;
}

// Rows of 1..200 elements at element offsets 0, 1, 3 (odd byte addresses for
// 8u): two image operands, a constant of 1, 3 and 4 channels on either side,
// and AC4 rows. Elements outside the row must stay as they were.
template <gex::arith::Op O, class T>
void twins(std::uint64_t seed) {
    using namespace gex::arith;
    std::mt19937_64 rng(seed);
    for (int s : class_factors<O, T>()) {
        by_factor<O, T>(s, bounds<O, T>(Form::Line), [&](const auto& k) {
            for (int n = 1; n <= 200; ++n)
                for (int off : {0, 1, 3}) {
                    std::vector<T> p(n + 8), q(n + 8), d1(n + 8), d2;
                    for (auto* v : {&p, &q, &d1})
                        for (T& e : *v) e = rnd<T>(rng);
                    T c[4] = {rnd<T>(rng), rnd<T>(rng), rnd<T>(rng), rnd<T>(rng)};
                    const MemSrc<T> mp{p.data() + (off + 1) % 4}, mq{q.data() + off};
                    compare_rows<false>(k, mp, mq, d1, d2, off, n, "images", s);
                    compare_rows<false>(k, mp, ConstSrc<T, 1>(c, 1), d1, d2, off, n, "constant C1", s);
                    compare_rows<false>(k, ConstSrc<T, 3>(c, 3), mq, d1, d2, off, n, "constant C3 first", s);
                    compare_rows<false>(k, mp, ConstSrc<T, 3>(c, 3), d1, d2, off, n, "constant C3", s);
                    compare_rows<false>(k, mp, ConstSrc<T, 4>(c, 4), d1, d2, off, n, "constant C4", s);
                    if (n % 4 == 0) {
                        compare_rows<true>(k, mp, mq, d1, d2, off, n, "AC4", s);
                        compare_rows<true>(k, ConstSrc<T, 4>(c, 3), mq, d1, d2, off, n, "AC4 constant", s);
                    }
                    if (::testing::Test::HasFatalFailure()) return;
                }
        });
        if (::testing::Test::HasFatalFailure()) return;
    }
}

// ---- aliasing -------------------------------------------------------------------------------------------
// A two-source C1 form whose destination overlaps a source at `shift` bytes
// (rows `step` bytes apart, the same step for all three images) must give
// what a plain loop gives: rows top to bottom, elements left to right, each
// element read just before it is written.
template <class T>
void check_alias(MOp op, const Bin<T>& f, int shift, bool onFirst, int w, int h, int step, int s,
                 std::mt19937_64& rng) {
    const int E = sizeof(T);
    // Room of a whole row plus 256 bytes around each image, for any shift.
    const std::size_t margin = static_cast<std::size_t>(step) + 256;
    const std::size_t span = static_cast<std::size_t>(step) * h + 2 * margin;
    std::vector<unsigned char> mem(3 * span);
    for (std::size_t i = 0; i < mem.size(); i += E) {
        T v = rnd<T>(rng);
        if constexpr (std::is_floating_point_v<T>)
            if (std::isnan(v)) v = 1.5f;
        std::memcpy(&mem[i], &v, E);
    }
    const std::size_t o1 = margin, o2 = span + margin;
    const std::size_t od = (onFirst ? o1 : o2) + shift;
    std::vector<unsigned char> sim = mem;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            T p, q;
            std::memcpy(&p, &sim[o1 + std::size_t(y) * step + x * E], E);
            std::memcpy(&q, &sim[o2 + std::size_t(y) * step + x * E], E);
            const T r = model(op, p, q, s);
            std::memcpy(&sim[od + std::size_t(y) * step + x * E], &r, E);
        }
    auto at = [&](std::size_t o) { return reinterpret_cast<T*>(mem.data() + o); };
    ASSERT_EQ(f(at(o1), step, at(o2), step, at(od), step, GexiSize{w, h}, s), gexStsOk);
    for (std::size_t i = 0; i < mem.size(); i += E) {
        T got, want;
        std::memcpy(&got, &mem[i], E);
        std::memcpy(&want, &sim[i], E);
        ASSERT_TRUE(agree(got, want)) << "shift " << shift << (onFirst ? " on src1" : " on src2") << " step " << step
                                      << " factor " << s << " at byte " << static_cast<long>(i - od);
    }
}

template <class T>
void sweep_alias(MOp op, const Bin<T>& f, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const int E = sizeof(T);
    const int w = 150;
    for (int s : {0, 1, 3, -2})
        for (bool onFirst : {true, false})
            for (int shift : {0, E, 2 * E, 8, 32, 60, 62, 64, 66, 120, 128, 200, -2 * E, -64, -100})
                for (int step : {w * E, w * E + 24, w * E - 16}) {
                    if (shift % E != 0) continue;
                    check_alias(op, f, shift, onFirst, w, 3, step, s, rng);
                    if (::testing::Test::HasFatalFailure()) return;
                }
    // Whole rows overlapping: the destination one row below the source.
    for (int step : {w * E, w * E + 36})
        for (bool onFirst : {true, false}) {
            check_alias(op, f, step, onFirst, w, 4, step, 0, rng);
            check_alias(op, f, -step, onFirst, w, 4, step, 2, rng);
        }
}

}  // namespace arithtest

// ---- building the forms -------------------------------------------------------------------------------------
#define ARITH_BIN_FORMS(NAME, D, T)                                                                    \
    arithtest::BinForms<T> {                                                                           \
        {gexi##NAME##_##D##_C1RSfs, gexi##NAME##_##D##_C3RSfs, gexi##NAME##_##D##_C4RSfs,              \
         gexi##NAME##_##D##_AC4RSfs},                                                                  \
        {                                                                                              \
            gexi##NAME##_##D##_C1IRSfs, gexi##NAME##_##D##_C3IRSfs, gexi##NAME##_##D##_C4IRSfs,        \
                gexi##NAME##_##D##_AC4IRSfs                                                            \
        }                                                                                              \
    }

#define ARITH_BIN_32F_ONE(NAME, LAY)                                                                   \
    [](const Gex32f* a, int sa, const Gex32f* b, int sb, Gex32f* d, int sd, GexiSize r, int) {         \
        return gexi##NAME##_32f_##LAY##R(a, sa, b, sb, d, sd, r);                                      \
    }
#define ARITH_BIN_32F_ONE_I(NAME, LAY) \
    [](const Gex32f* a, int sa, Gex32f* b, int sb, GexiSize r, int) { return gexi##NAME##_32f_##LAY##IR(a, sa, b, sb, r); }
#define ARITH_BIN_FORMS_32F(NAME)                                                                      \
    arithtest::BinForms<Gex32f> {                                                                      \
        {ARITH_BIN_32F_ONE(NAME, C1), ARITH_BIN_32F_ONE(NAME, C3), ARITH_BIN_32F_ONE(NAME, C4),        \
         ARITH_BIN_32F_ONE(NAME, AC4)},                                                                \
        {                                                                                              \
            ARITH_BIN_32F_ONE_I(NAME, C1), ARITH_BIN_32F_ONE_I(NAME, C3), ARITH_BIN_32F_ONE_I(NAME, C4), \
                ARITH_BIN_32F_ONE_I(NAME, AC4)                                                         \
        }                                                                                              \
    }

// Constant forms: V is the value argument built from the array v (v[0] for
// C1); X(f) is the factor argument (ARITH_F: ", f"; ARITH_NOF: nothing).
#define ARITH_CON_ONE(NAME, D, T, LAY, SUF, V, X)                                                      \
    [](const T* a, int sa, const T* v, T* d, int sd, GexiSize r, [[maybe_unused]] int f) {             \
        return gexi##NAME##_##D##_##LAY##R##SUF(a, sa, V, d, sd, r X(f));                                 \
    }
#define ARITH_CON_ONE_I(NAME, D, T, LAY, SUF, V, X)                                                    \
    [](const T* v, T* d, int sd, GexiSize r, [[maybe_unused]] int f) {                                 \
        return gexi##NAME##_##D##_##LAY##IR##SUF(V, d, sd, r X(f));                                       \
    }
#define ARITH_F(f) , f
#define ARITH_NOF(f)
#define ARITH_CON_FORMS_X(NAME, D, T, SUF, X)                                                          \
    arithtest::ConForms<T> {                                                                           \
        {ARITH_CON_ONE(NAME, D, T, C1, SUF, v[0], X), ARITH_CON_ONE(NAME, D, T, C3, SUF, v, X),        \
         ARITH_CON_ONE(NAME, D, T, C4, SUF, v, X), ARITH_CON_ONE(NAME, D, T, AC4, SUF, v, X)},         \
        {                                                                                              \
            ARITH_CON_ONE_I(NAME, D, T, C1, SUF, v[0], X), ARITH_CON_ONE_I(NAME, D, T, C3, SUF, v, X), \
                ARITH_CON_ONE_I(NAME, D, T, C4, SUF, v, X), ARITH_CON_ONE_I(NAME, D, T, AC4, SUF, v, X) \
        }                                                                                              \
    }
#define ARITH_CON_FORMS(NAME, D, T) ARITH_CON_FORMS_X(NAME, D, T, Sfs, ARITH_F)
#define ARITH_CON_FORMS_32F(NAME) ARITH_CON_FORMS_X(NAME, 32f, Gex32f, , ARITH_NOF)
