// And, Or, Xor, their constant forms and Not: every export against a plain
// bitwise model on guarded images (constants chosen to hit the Copy and Set
// short paths too), AC4 alpha untouched, the check order (null, step, size)
// with nothing written on failure, and the vector row kernels against their
// scalar twins.
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "arith/logic_kernels.hpp"
#include "element_test.hpp"

namespace {

using gextest::Guarded;
using elemtest::copy_in;
using elemtest::kWidths;
using elemtest::layouts;
namespace lk = gex::logic_kernels;
using lk::Op;

template <Op O, class T>
T apply(T a, T b) {
    if (O == Op::And) return static_cast<T>(a & b);
    if (O == Op::Or) return static_cast<T>(a | b);
    return static_cast<T>(a ^ b);
}

template <class T>
struct Bin {
    std::string name;
    int ch;
    bool ac4;
    GexStatus (*r)(const T*, int, const T*, int, T*, int, GexiSize);
    GexStatus (*ir)(const T*, int, T*, int, GexiSize);
};

template <class T>
using Con = elemtest::ConstForm<T, T>;

#define BIN(B, D, T, L, CH, AC4) Bin<T>{"gexi" #B "_" #D "_" #L, CH, AC4, gexi##B##_##D##_##L##R, gexi##B##_##D##_##L##IR}
#define CON_N(B, D, T, L, CH, AC4) CONST_FORM_N(B, D, T, T, L, CH, AC4)
#define CON_1(B, D, T) CONST_FORM_1(B, D, T, T)

template <class T, Op O>
std::vector<Bin<T>> bin_forms();
template <class T, Op O>
std::vector<Con<T>> con_forms();
#define FORMS(B, OP, D, T)                                                                                    \
    template <>                                                                                               \
    std::vector<Bin<T>> bin_forms<T, OP>() {                                                                  \
        return {BIN(B, D, T, C1, 1, false), BIN(B, D, T, C3, 3, false), BIN(B, D, T, C4, 4, false),          \
                BIN(B, D, T, AC4, 4, true)};                                                                  \
    }                                                                                                         \
    template <>                                                                                               \
    std::vector<Con<T>> con_forms<T, OP>() {                                                                  \
        return {CON_1(B##C, D, T), CON_N(B##C, D, T, C3, 3, false), CON_N(B##C, D, T, C4, 4, false),          \
                CON_N(B##C, D, T, AC4, 4, true)};                                                             \
    }
#define FORMS_OP(B, OP) FORMS(B, OP, 8u, Gex8u) FORMS(B, OP, 16u, Gex16u) FORMS(B, OP, 32s, Gex32s)
FORMS_OP(And, Op::And)
FORMS_OP(Or, Op::Or)
FORMS_OP(Xor, Op::Xor)

// dst against op(a, b(i)) for colour elements, before for alpha.
template <class T, class F>
::testing::AssertionResult verify(const Guarded<T>& dst, const std::vector<T>& before, const std::vector<T>& a,
                                  bool ac4, F want) {
    const int ch = dst.channels();
    std::size_t i = 0;
    for (int y = 0; y < dst.height(); ++y)
        for (int x = 0; x < dst.width(); ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                const T w = (ac4 && c == 3) ? before[i] : want(a[i], i, c);
                if (dst.at(x, y, c) != w)
                    return ::testing::AssertionFailure() << "pixel (" << x << "," << y << ") channel " << c << ": got "
                                                         << +dst.at(x, y, c) << ", want " << +w;
            }
    if (!dst.guards_ok()) return ::testing::AssertionFailure() << "a byte outside the ROI was written";
    return ::testing::AssertionSuccess();
}

template <class T, Op O>
void run_binary(unsigned seed) {
    std::mt19937_64 rng(seed);
    const auto lays = layouts();
    for (std::size_t li = 0; li < lays.size(); ++li)
        for (int w : kWidths)
            for (int h : {1, 3})
                for (const Bin<T>& f : bin_forms<T, O>()) {
                    Guarded<T> a(w, h, f.ch, lays[li]), b(w, h, f.ch, lays[(li + 1) % lays.size()]),
                        d(w, h, f.ch, lays[(li + 2) % lays.size()]);
                    a.fill_random(rng);
                    b.fill_random(rng);
                    d.fill_random(rng);
                    const auto av = a.snapshot(), bv = b.snapshot(), dv = d.snapshot();
                    ASSERT_EQ(f.r(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {w, h}), gexStsOk);
                    const auto want = [&](T x, std::size_t i, int) { return apply<O>(x, bv[i]); };
                    ASSERT_TRUE(verify(d, dv, av, f.ac4, want)) << f.name << "R width " << w << " layout " << li;
                    ASSERT_TRUE(gextest::same_bits(a.snapshot(), av) && gextest::same_bits(b.snapshot(), bv));
                    ASSERT_TRUE(a.guards_ok() && b.guards_ok());
                    // In place: the second operand receives the result.
                    copy_in(d, bv);
                    ASSERT_EQ(f.ir(a.ptr(), a.step(), d.ptr(), d.step(), {w, h}), gexStsOk);
                    ASSERT_TRUE(verify(d, bv, av, f.ac4, want)) << f.name << "IR width " << w << " layout " << li;
                }
}

// Random constants, and constants whose result is known (0, all bits set)
// in every channel or in some.
template <class T>
void pick_values(T* v, unsigned kind, std::mt19937_64& rng) {
    const T ones = static_cast<T>(~T{0});
    for (int c = 0; c < 4; ++c) {
        switch (kind % 5) {
            case 0: v[c] = 0; break;
            case 1: v[c] = ones; break;
            case 2: v[c] = c == 1 ? ones : T{0}; break;
            default: v[c] = Guarded<T>::random_value(rng); break;
        }
    }
}

template <class T, Op O>
void run_const(unsigned seed) {
    std::mt19937_64 rng(seed);
    const auto lays = layouts();
    unsigned kind = 0;
    for (std::size_t li = 0; li < lays.size(); ++li)
        for (int w : kWidths)
            for (int h : {1, 3})
                for (const Con<T>& f : con_forms<T, O>()) {
                    T vals[4];
                    pick_values(vals, kind++, rng);
                    Guarded<T> s(w, h, f.ch, lays[li]), d(w, h, f.ch, lays[(li + 1) % lays.size()]);
                    s.fill_random(rng);
                    d.fill_random(rng);
                    const auto sv = s.snapshot(), dv = d.snapshot();
                    ASSERT_EQ(f.r(s.ptr(), s.step(), vals, d.ptr(), d.step(), {w, h}), gexStsOk);
                    const auto want = [&](T x, std::size_t, int c) { return apply<O>(x, vals[c]); };
                    ASSERT_TRUE(verify(d, dv, sv, f.ac4, want))
                        << f.name << "R width " << w << " layout " << li << " values " << +vals[0] << "," << +vals[1];
                    ASSERT_TRUE(gextest::same_bits(s.snapshot(), sv) && s.guards_ok());
                    ASSERT_EQ(f.ir(vals, s.ptr(), s.step(), {w, h}), gexStsOk);
                    ASSERT_TRUE(verify(s, sv, sv, f.ac4, want)) << f.name << "IR width " << w << " layout " << li;
                }
}

template <class T>
class Logic : public ::testing::Test {};
using Depths = ::testing::Types<Gex8u, Gex16u, Gex32s>;
TYPED_TEST_SUITE(Logic, Depths);

TYPED_TEST(Logic, TwoImages) {
    run_binary<TypeParam, Op::And>(1);
    run_binary<TypeParam, Op::Or>(2);
    run_binary<TypeParam, Op::Xor>(3);
}

TYPED_TEST(Logic, Constants) {
    run_const<TypeParam, Op::And>(4);
    run_const<TypeParam, Op::Or>(5);
    run_const<TypeParam, Op::Xor>(6);
}

// Null pointers first, then steps < 1, then the size, in every form; nothing
// is written by a failing call.
template <class T, Op O>
void check_order() {
    for (const Bin<T>& f : bin_forms<T, O>()) {
        SCOPED_TRACE(f.name);
        Guarded<T> a(4, 2, f.ch), d(4, 2, f.ch);
        std::mt19937_64 rng(1);
        a.fill_random(rng);
        d.fill_random(rng);
        const auto dv = d.snapshot();
        const int s = a.step();
        EXPECT_EQ(f.r(a.ptr(), s, nullptr, s, d.ptr(), s, {0, 2}), gexStsNullPtr);
        EXPECT_EQ(f.r(a.ptr(), s, a.ptr(), s, nullptr, 0, {4, 2}), gexStsNullPtr);
        EXPECT_EQ(f.r(a.ptr(), s, a.ptr(), 0, d.ptr(), s, {0, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), -s, a.ptr(), s, d.ptr(), s, {4, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), s, a.ptr(), s, d.ptr(), 0, {4, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), s, a.ptr(), s, d.ptr(), s, {0, 2}), gexStsSize);
        EXPECT_EQ(f.r(a.ptr(), s, a.ptr(), s, d.ptr(), s, {4, 0}), gexStsSize);
        EXPECT_EQ(f.ir(nullptr, 0, d.ptr(), s, {0, 2}), gexStsNullPtr);
        EXPECT_EQ(f.ir(a.ptr(), s, d.ptr(), 0, {0, 2}), gexStsStep);
        EXPECT_EQ(f.ir(a.ptr(), s, d.ptr(), s, {-1, 2}), gexStsSize);
        EXPECT_TRUE(gextest::same_bits(d.snapshot(), dv));
    }
    for (const Con<T>& f : con_forms<T, O>()) {
        SCOPED_TRACE(f.name);
        Guarded<T> a(4, 2, f.ch), d(4, 2, f.ch);
        std::mt19937_64 rng(2);
        a.fill_random(rng);
        d.fill_random(rng);
        const auto av = a.snapshot(), dv = d.snapshot();
        const int s = a.step();
        const T zeros[4] = {};  // a short path (And: Set, Or and Xor: Copy) must not run first
        EXPECT_EQ(f.r(nullptr, 0, zeros, d.ptr(), s, {0, 2}), gexStsNullPtr);
        if (f.ch > 1) {
            EXPECT_EQ(f.r(a.ptr(), s, nullptr, d.ptr(), s, {4, 2}), gexStsNullPtr);
        }
        EXPECT_EQ(f.r(a.ptr(), 0, zeros, d.ptr(), s, {0, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), s, zeros, d.ptr(), -s, {4, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), s, zeros, d.ptr(), s, {0, 2}), gexStsSize);
        EXPECT_EQ(f.ir(zeros, nullptr, s, {0, 2}), gexStsNullPtr);
        if (f.ch > 1) {
            EXPECT_EQ(f.ir(nullptr, a.ptr(), s, {4, 2}), gexStsNullPtr);
        }
        EXPECT_EQ(f.ir(zeros, a.ptr(), 0, {0, 2}), gexStsStep);
        EXPECT_EQ(f.ir(zeros, a.ptr(), s, {4, -2}), gexStsSize);
        EXPECT_TRUE(gextest::same_bits(d.snapshot(), dv));
        EXPECT_TRUE(gextest::same_bits(a.snapshot(), av));
    }
}

TYPED_TEST(Logic, CheckOrder) {
    check_order<TypeParam, Op::And>();
    check_order<TypeParam, Op::Or>();
    check_order<TypeParam, Op::Xor>();
}

// ---- Not ------------------------------------------------------------------------------------
std::vector<elemtest::Form<Gex8u>> not_forms() {
    return {ELEM_FORM(gexiNot_8u_C1, Gex8u, 1, false), ELEM_FORM(gexiNot_8u_C3, Gex8u, 3, false),
            ELEM_FORM(gexiNot_8u_C4, Gex8u, 4, false), ELEM_FORM(gexiNot_8u_AC4, Gex8u, 4, true)};
}

TEST(Not, EveryForm) {
    auto rng = std::make_shared<std::mt19937_64>(9);
    elemtest::check_forms(not_forms(), [](Gex8u x) { return elemtest::Out<Gex8u>{static_cast<Gex8u>(~x)}; },
                          std::function<Gex8u()>([rng]() { return static_cast<Gex8u>((*rng)()); }));
    Gex8u z[3] = {0, 255, 0x5a};
    ASSERT_EQ(gexiNot_8u_C1IR(z, 3, {3, 1}), gexStsOk);
    EXPECT_EQ(z[0], 255);
    EXPECT_EQ(z[1], 0);
    EXPECT_EQ(z[2], 0xa5);
}

TEST(Not, CheckOrder) {
    for (const auto& f : not_forms()) {
        SCOPED_TRACE(f.name);
        Guarded<Gex8u> a(4, 2, f.ch), d(4, 2, f.ch);
        std::mt19937_64 rng(3);
        d.fill_random(rng);
        const auto dv = d.snapshot();
        const int s = a.step();
        EXPECT_EQ(f.r(nullptr, 0, d.ptr(), s, {0, 2}), gexStsNullPtr);
        EXPECT_EQ(f.r(a.ptr(), s, d.ptr(), 0, {0, 2}), gexStsStep);
        EXPECT_EQ(f.r(a.ptr(), s, d.ptr(), s, {0, 2}), gexStsSize);
        EXPECT_EQ(f.ir(nullptr, 0, {0, 2}), gexStsNullPtr);
        EXPECT_EQ(f.ir(d.ptr(), -s, {0, 2}), gexStsStep);
        EXPECT_EQ(f.ir(d.ptr(), s, {4, 0}), gexStsSize);
        EXPECT_TRUE(gextest::same_bits(d.snapshot(), dv));
    }
}

// ---- kernels against their scalar twins ---------------------------------------------------------
template <class T, Op O>
void compare_logic_kernels(unsigned seed) {
    std::mt19937_64 rng(seed);
    struct L { int ch; bool ac4; } lays[] = {{1, false}, {3, false}, {4, false}, {4, true}};
    for (const L& l : lays)
        for (std::int64_t px = 1; px <= 200; ++px)
            for (int off : {0, 1, 3}) {
                const std::int64_t n = px * l.ch;
                elemtest::Row<T> a(n, off, rng), b(n, off, rng), d1(n, off, rng);
                elemtest::Row<T> d2 = d1, e1 = d1;
                d2.p = d2.mem.data() + off;
                e1.p = e1.mem.data() + off;
                elemtest::Row<T> e2 = e1;
                e2.p = e2.mem.data() + off;
                if (l.ac4) lk::binary_row<O, true>(a.p, b.p, d1.p, n);
                else lk::binary_row<O, false>(a.p, b.p, d1.p, n);
                lk::binary_row_ref<O>(a.p, b.p, d2.p, n, l.ac4);
                ASSERT_TRUE(gextest::same_bits(d1.mem, d2.mem)) << "two sources, n " << n << " ch " << l.ch;
                T vals[4];
                for (T& v : vals) v = Guarded<T>::random_value(rng);
                const lk::Pattern p = lk::value_pattern<T>(vals, l.ch, l.ac4);
                if (l.ac4) lk::const_row<O, true>(a.p, e1.p, n, p);
                else lk::const_row<O, false>(a.p, e1.p, n, p);
                lk::const_row_ref<O>(a.p, e2.p, n, vals, l.ch, l.ac4);
                ASSERT_TRUE(gextest::same_bits(e1.mem, e2.mem)) << "constant, n " << n << " ch " << l.ch;
            }
}

TEST(LogicKernels, AgainstTwins) {
    compare_logic_kernels<Gex8u, Op::And>(1);
    compare_logic_kernels<Gex16u, Op::Or>(2);
    compare_logic_kernels<Gex32s, Op::Xor>(3);
    compare_logic_kernels<Gex8u, Op::Xor>(4);
}

}  // namespace
