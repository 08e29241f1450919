// LShiftC and RShiftC: every export against a 64-bit model on guarded images,
// with amounts that take the Copy and Set short paths (all channels alike)
// and per-channel amounts that do not; AC4 alpha untouched; the check order
// (null, step, size) with nothing written on failure; the vector row kernels
// against their scalar twins.
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "arith/logic_kernels.hpp"
#include "element_test.hpp"

namespace {

using gextest::Guarded;
using elemtest::copy_in;
using elemtest::kWidths;
using elemtest::layouts;
namespace lk = gex::logic_kernels;
using lk::Shift;

// x shifted in 64 bits, then cut to T's width.
template <Shift S, class T>
T model(T x, Gex32u a) {
    constexpr unsigned bits = 8 * sizeof(T);
    using U = std::make_unsigned_t<T>;
    if (S == Shift::Left) return a >= 64 ? T{0} : static_cast<T>(static_cast<std::uint64_t>(static_cast<U>(x)) << a);
    if (S == Shift::Right) return a >= bits ? T{0} : static_cast<T>(static_cast<U>(x) / (std::uint64_t{1} << a));
    const std::int64_t v = x;
    return static_cast<T>(a >= 63 ? (v < 0 ? -1 : 0) : (v >> a));
}

template <class T>
using Form = elemtest::ConstForm<T, Gex32u>;

#define SHIFT_N(B, D, T, L, CH, AC4) CONST_FORM_N(B, D, T, Gex32u, L, CH, AC4)
#define SHIFT_1(B, D, T) CONST_FORM_1(B, D, T, Gex32u)

template <class T, Shift S>
std::vector<Form<T>> forms();
#define SHIFT_FORMS(B, S, D, T)                                                                         \
    template <>                                                                                         \
    std::vector<Form<T>> forms<T, S>() {                                                                \
        return {SHIFT_1(B, D, T), SHIFT_N(B, D, T, C3, 3, false), SHIFT_N(B, D, T, C4, 4, false),       \
                SHIFT_N(B, D, T, AC4, 4, true)};                                                        \
    }
SHIFT_FORMS(LShiftC, Shift::Left, 8u, Gex8u)
SHIFT_FORMS(LShiftC, Shift::Left, 16u, Gex16u)
SHIFT_FORMS(LShiftC, Shift::Left, 32s, Gex32s)
SHIFT_FORMS(RShiftC, Shift::Right, 8u, Gex8u)
SHIFT_FORMS(RShiftC, Shift::Right, 16u, Gex16u)
SHIFT_FORMS(RShiftC, Shift::RightArith, 16s, Gex16s)
SHIFT_FORMS(RShiftC, Shift::RightArith, 32s, Gex32s)

// Amounts around the element's width, 0, and huge ones; on every other call
// all channels get the same amount.
Gex32u pick_amount(std::mt19937_64& rng, unsigned bits) {
    static const Gex32u special[] = {0, 1, 7, 8, 9, 15, 16, 17, 31, 32, 33, 40, 0x7fffffffu, 0xffffffffu};
    if (rng() % 3 == 0) return special[rng() % std::size(special)];
    return static_cast<Gex32u>(rng() % (bits + 2));
}

template <class T, Shift S>
::testing::AssertionResult verify(const Guarded<T>& d, const std::vector<T>& before, const std::vector<T>& src,
                                  const Gex32u* amounts, bool ac4) {
    const int ch = d.channels();
    std::size_t i = 0;
    for (int y = 0; y < d.height(); ++y)
        for (int x = 0; x < d.width(); ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                const T w = (ac4 && c == 3) ? before[i] : model<S>(src[i], amounts[c]);
                if (d.at(x, y, c) != w)
                    return ::testing::AssertionFailure() << "pixel (" << x << "," << y << ") channel " << c << " input "
                                                         << +src[i] << " amount " << amounts[c] << ": got "
                                                         << +d.at(x, y, c) << ", want " << +w;
            }
    if (!d.guards_ok()) return ::testing::AssertionFailure() << "a byte outside the ROI was written";
    return ::testing::AssertionSuccess();
}

template <class T, Shift S>
void run_forms(unsigned seed) {
    std::mt19937_64 rng(seed);
    const auto lays = layouts();
    unsigned call = 0;
    for (std::size_t li = 0; li < lays.size(); ++li)
        for (int w : kWidths)
            for (int h : {1, 3})
                for (const Form<T>& f : forms<T, S>()) {
                    Gex32u am[4];
                    for (Gex32u& a : am) a = pick_amount(rng, 8 * sizeof(T));
                    if (call++ % 2 == 0) am[1] = am[2] = am[3] = am[0];
                    Guarded<T> s(w, h, f.ch, lays[li]), d(w, h, f.ch, lays[(li + 1) % lays.size()]);
                    s.fill_random(rng);
                    d.fill_random(rng);
                    const auto sv = s.snapshot(), dv = d.snapshot();
                    ASSERT_EQ(f.r(s.ptr(), s.step(), am, d.ptr(), d.step(), {w, h}), gexStsOk);
                    ASSERT_TRUE((verify<T, S>(d, dv, sv, am, f.ac4)))
                        << f.name << "R width " << w << " height " << h << " layout " << li;
                    ASSERT_TRUE(gextest::same_bits(s.snapshot(), sv) && s.guards_ok());
                    ASSERT_EQ(f.ir(am, s.ptr(), s.step(), {w, h}), gexStsOk);
                    ASSERT_TRUE((verify<T, S>(s, sv, sv, am, f.ac4)))
                        << f.name << "IR width " << w << " height " << h << " layout " << li;
                }
}

TEST(Shift, LeftEveryForm) {
    run_forms<Gex8u, Shift::Left>(1);
    run_forms<Gex16u, Shift::Left>(2);
    run_forms<Gex32s, Shift::Left>(3);
}

TEST(Shift, RightEveryForm) {
    run_forms<Gex8u, Shift::Right>(4);
    run_forms<Gex16u, Shift::Right>(5);
    run_forms<Gex16s, Shift::RightArith>(6);
    run_forms<Gex32s, Shift::RightArith>(7);
}

TEST(Shift, Edges) {
    Gex8u b[3] = {1, 0x80, 0xff}, bd[3];
    ASSERT_EQ(gexiLShiftC_8u_C1R(b, 3, 8, bd, 3, {3, 1}), gexStsOk);
    EXPECT_EQ(bd[0], 0);
    EXPECT_EQ(bd[1], 0);
    EXPECT_EQ(bd[2], 0);
    ASSERT_EQ(gexiLShiftC_8u_C1R(b, 3, 7, bd, 3, {3, 1}), gexStsOk);
    EXPECT_EQ(bd[0], 0x80);
    EXPECT_EQ(bd[2], 0x80);
    Gex16s s[4] = {-5, 5, -32768, 32767};
    ASSERT_EQ(gexiRShiftC_16s_C1IR(40, s, 8, {4, 1}), gexStsOk);
    EXPECT_EQ(s[0], -1);
    EXPECT_EQ(s[1], 0);
    EXPECT_EQ(s[2], -1);
    EXPECT_EQ(s[3], 0);
    Gex32s i[2] = {-7, 7};
    ASSERT_EQ(gexiRShiftC_32s_C1IR(1, i, 8, {2, 1}), gexStsOk);
    EXPECT_EQ(i[0], -4);  // arithmetic: rounds toward minus infinity
    EXPECT_EQ(i[1], 3);
    Gex32s l[1] = {0x40000001};
    ASSERT_EQ(gexiLShiftC_32s_C1IR(2, l, 4, {1, 1}), gexStsOk);
    EXPECT_EQ(l[0], 4);  // the top bits are lost
    // Per-channel amounts: 0 keeps, 16 clears, 4 shifts.
    const Gex32u am[3] = {0, 16, 4};
    Gex16u p[4] = {0x1234, 0x1234, 0x1234, 0xabcd};
    ASSERT_EQ(gexiRShiftC_16u_AC4IR(am, p, 8, {1, 1}), gexStsOk);
    EXPECT_EQ(p[0], 0x1234);
    EXPECT_EQ(p[1], 0);
    EXPECT_EQ(p[2], 0x0123);
    EXPECT_EQ(p[3], 0xabcd);
}

// Null pointers (the amounts' array too), then steps < 1, then the size; the
// short paths (amount 0: Copy; a large amount: Set) wait for the checks.
template <class T, Shift S>
void check_order() {
    for (const Form<T>& f : forms<T, S>()) {
        SCOPED_TRACE(f.name);
        Guarded<T> a(4, 2, f.ch), d(4, 2, f.ch);
        std::mt19937_64 rng(1);
        a.fill_random(rng);
        d.fill_random(rng);
        const auto av = a.snapshot(), dv = d.snapshot();
        const int s = a.step();
        for (Gex32u amount : {0u, 3u, 99u}) {
            const Gex32u am[4] = {amount, amount, amount, amount};
            EXPECT_EQ(f.r(nullptr, 0, am, d.ptr(), s, {0, 2}), gexStsNullPtr);
            EXPECT_EQ(f.r(a.ptr(), s, am, nullptr, 0, {0, 2}), gexStsNullPtr);
            if (f.ch > 1) {
                EXPECT_EQ(f.r(a.ptr(), s, nullptr, d.ptr(), s, {4, 2}), gexStsNullPtr);
            }
            EXPECT_EQ(f.r(a.ptr(), 0, am, d.ptr(), s, {0, 2}), gexStsStep);
            EXPECT_EQ(f.r(a.ptr(), s, am, d.ptr(), -s, {4, 2}), gexStsStep);
            EXPECT_EQ(f.r(a.ptr(), s, am, d.ptr(), s, {0, 2}), gexStsSize);
            EXPECT_EQ(f.r(a.ptr(), s, am, d.ptr(), s, {4, -1}), gexStsSize);
            EXPECT_EQ(f.ir(am, nullptr, 0, {0, 2}), gexStsNullPtr);
            if (f.ch > 1) {
                EXPECT_EQ(f.ir(nullptr, a.ptr(), s, {4, 2}), gexStsNullPtr);
            }
            EXPECT_EQ(f.ir(am, a.ptr(), 0, {0, 2}), gexStsStep);
            EXPECT_EQ(f.ir(am, a.ptr(), s, {0, 2}), gexStsSize);
        }
        EXPECT_TRUE(gextest::same_bits(d.snapshot(), dv));
        EXPECT_TRUE(gextest::same_bits(a.snapshot(), av));
    }
}

TEST(Shift, CheckOrder) {
    check_order<Gex8u, Shift::Left>();
    check_order<Gex16u, Shift::Left>();
    check_order<Gex32s, Shift::Left>();
    check_order<Gex8u, Shift::Right>();
    check_order<Gex16u, Shift::Right>();
    check_order<Gex16s, Shift::RightArith>();
    check_order<Gex32s, Shift::RightArith>();
}

// ---- kernels against their scalar twins ---------------------------------------------------------
template <class T, Shift S>
void compare_kernels(unsigned seed) {
    std::mt19937_64 rng(seed);
    struct L { int ch; bool ac4; } lays[] = {{1, false}, {3, false}, {4, false}, {4, true}};
    for (const L& l : lays)
        for (std::int64_t px = 1; px <= 200; ++px)
            for (int off : {0, 1, 3}) {
                const std::int64_t n = px * l.ch;
                Gex32u am[4];
                for (Gex32u& a : am) a = pick_amount(rng, 8 * sizeof(T));
                elemtest::Row<T> src(n, off, rng), d1(n, off, rng);
                elemtest::Row<T> d2 = d1;
                d2.p = d2.mem.data() + off;
                const lk::Pattern p = lk::shift_pattern<T>(am, l.ch, l.ac4);
                if (l.ac4) lk::shift_row<S, true>(src.p, d1.p, n, p);
                else lk::shift_row<S, false>(src.p, d1.p, n, p);
                lk::shift_row_ref<S>(src.p, d2.p, n, am, l.ch, l.ac4);
                ASSERT_TRUE(gextest::same_bits(d1.mem, d2.mem)) << "n " << n << " ch " << l.ch << " ac4 " << l.ac4;
            }
}

TEST(ShiftKernels, AgainstTwins) {
    compare_kernels<Gex8u, Shift::Left>(1);
    compare_kernels<Gex8u, Shift::Right>(2);
    compare_kernels<Gex16u, Shift::Left>(3);
    compare_kernels<Gex16u, Shift::Right>(4);
    compare_kernels<Gex16s, Shift::RightArith>(5);
    compare_kernels<Gex32s, Shift::Left>(6);
    compare_kernels<Gex32s, Shift::RightArith>(7);
}

}  // namespace
