// MulScale and MulCScale: every form and layout against the model
// floor(a x b / max) on guarded images, every 8u pair, the 8u vector kernel
// against its scalar twin, the worked values and the check order (null,
// step, size; steps checked by the two-image forms only).
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "arith/div_kernels.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::same_bits;
namespace dk = gex::div_kernels;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};
const int kElems[4] = {1, 3, 4, 4};

// Both operands read as fractions of the maximum: the product, as a fraction
// of the maximum, rounded down. (The shift formula is exactly this.)
template <class T>
T model(T a, T b) {
    constexpr std::uint64_t m = std::numeric_limits<T>::max();
    return static_cast<T>(std::uint64_t{a} * b / m);
}

template <class T>
using Fn2 = std::function<GexStatus(const T*, int, const T*, int, T*, int, GexiSize)>;
template <class T>
using FnI = std::function<GexStatus(const T*, int, T*, int, GexiSize)>;
template <class T>
using FnC = std::function<GexStatus(const T*, int, const T*, T*, int, GexiSize)>;
template <class T>
using FnCI = std::function<GexStatus(const T*, T*, int, GexiSize)>;

template <class T>
struct Forms {
    Fn2<T> two[4];
    FnI<T> inplace[4];
    FnC<T> constant[4];
    FnCI<T> constantInplace[4];
};

#define FORMS(D, T)                                                                                               \
    Forms<T> {                                                                                                    \
        {gexiMulScale_##D##_C1R, gexiMulScale_##D##_C3R, gexiMulScale_##D##_C4R, gexiMulScale_##D##_AC4R},        \
            {gexiMulScale_##D##_C1IR, gexiMulScale_##D##_C3IR, gexiMulScale_##D##_C4IR, gexiMulScale_##D##_AC4IR}, \
            {[](const T* s, int ss, const T* v, T* o, int so, GexiSize r) { return gexiMulCScale_##D##_C1R(s, ss, v[0], o, so, r); }, \
             gexiMulCScale_##D##_C3R, gexiMulCScale_##D##_C4R, gexiMulCScale_##D##_AC4R},                          \
            {[](const T* v, T* o, int so, GexiSize r) { return gexiMulCScale_##D##_C1IR(v[0], o, so, r); },       \
             gexiMulCScale_##D##_C3IR, gexiMulCScale_##D##_C4IR, gexiMulCScale_##D##_AC4IR}                        \
    }

template <class T>
T random_value(std::mt19937_64& rng) {
    const std::uint64_t r = rng();
    if (r % 10 == 0) return std::numeric_limits<T>::max();
    if (r % 10 == 1) return 0;
    return static_cast<T>(r >> 16);
}

template <class T>
void check_forms(const Forms<T>& forms, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    for (int kind = 0; kind < 4; ++kind) {  // two, in place, constant, constant in place
        // The constant forms take any step: negative steps too.
        const auto lays = gextest::standard_layouts(kind >= 2);
        for (int f = 0; f < 4; ++f)
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths) {
                    const int h = 1 + w % 3, ch = kElems[f];
                    Guarded<T> a(w, h, ch, lays[li]);
                    Guarded<T> b(w, h, ch, lays[(li + 1) % lays.size()]);
                    Guarded<T> o(w, h, ch, lays[(li + 2) % lays.size()]);
                    for (int y = 0; y < h; ++y)
                        for (int i = 0; i < w * ch; ++i) {
                            a.row(y)[i] = random_value<T>(rng);
                            b.row(y)[i] = random_value<T>(rng);
                            o.row(y)[i] = random_value<T>(rng);
                        }
                    T v[4];
                    for (T& x : v) x = random_value<T>(rng);
                    const auto a0 = a.snapshot(), b0 = b.snapshot(), o0 = o.snapshot();
                    GexStatus st = gexStsErr;
                    Guarded<T>* out = &o;
                    switch (kind) {
                        case 0: st = forms.two[f](a.ptr(), a.step(), b.ptr(), b.step(), o.ptr(), o.step(), {w, h}); break;
                        case 1: st = forms.inplace[f](a.ptr(), a.step(), b.ptr(), b.step(), {w, h}), out = &b; break;
                        case 2: st = forms.constant[f](a.ptr(), a.step(), v, o.ptr(), o.step(), {w, h}); break;
                        default: st = forms.constantInplace[f](v, b.ptr(), b.step(), {w, h}), out = &b; break;
                    }
                    ASSERT_EQ(st, gexStsOk);
                    const auto got = out->snapshot();
                    const auto& before = out == &b ? b0 : o0;
                    for (std::size_t i = 0; i < got.size(); ++i) {
                        T want;
                        if (f == 3 && i % 4 == 3) want = before[i];
                        else if (kind == 0) want = model(a0[i], b0[i]);
                        else if (kind == 1) want = model(a0[i], b0[i]);
                        else if (kind == 2) want = model(a0[i], v[i % ch]);
                        else want = model(b0[i], v[i % ch]);
                        ASSERT_EQ(+got[i], +want) << "kind " << kind << " form " << f << " element " << i;
                    }
                    ASSERT_TRUE(a.guards_ok() && b.guards_ok() && o.guards_ok());
                    ASSERT_TRUE(same_bits(a.snapshot(), a0));
                }
    }
}

TEST(MulScale, EveryFormAndLayout) {
    check_forms(FORMS(8u, Gex8u), 1);
    check_forms(FORMS(16u, Gex16u), 2);
}

TEST(MulScale, WorkedValuesAndEvery8uPair) {
    const Gex8u a[3] = {255, 128, 0}, b[3] = {255, 128, 77};
    Gex8u o[3];
    ASSERT_EQ(gexiMulScale_8u_C1R(a, 3, b, 3, o, 3, {3, 1}), gexStsOk);
    EXPECT_EQ(o[0], 255);
    EXPECT_EQ(o[1], 64);
    EXPECT_EQ(o[2], 0);
    const Gex16u a16[2] = {65535, 32768}, b16 = 65535;
    Gex16u o16[2];
    ASSERT_EQ(gexiMulCScale_16u_C1R(a16, 4, b16, o16, 4, {2, 1}), gexStsOk);
    EXPECT_EQ(o16[0], 65535);
    EXPECT_EQ(o16[1], 32768);

    std::vector<Gex8u> x(65536), y(65536), z(65536);
    for (int i = 0; i < 65536; ++i) x[i] = static_cast<Gex8u>(i), y[i] = static_cast<Gex8u>(i >> 8);
    ASSERT_EQ(gexiMulScale_8u_C1R(x.data(), 256, y.data(), 256, z.data(), 256, {256, 256}), gexStsOk);
    for (int i = 0; i < 65536; ++i) ASSERT_EQ(+z[i], +model(x[i], y[i])) << +x[i] << " x " << +y[i];
}

TEST(MulScale, VectorKernelEqualsScalarTwin) {
    std::mt19937_64 rng(5);
    std::vector<Gex8u> a(260), b(260), p(260), q(260);
    for (int w = 1; w <= 200; ++w)
        for (int off = 0; off < 4; off += 3)
            for (bool ac4 : {false, true}) {
                for (int i = 0; i < 260; ++i) a[i] = rng(), b[i] = rng(), p[i] = q[i] = rng();
                dk::mulscale_row_8u(a.data() + off, b.data() + off, p.data() + off, w, ac4);
                dk::mulscale_row_scalar(a.data() + off, b.data() + off, q.data() + off, w, ac4);
                ASSERT_EQ(p, q) << "width " << w;
            }
}

TEST(MulScale, ChecksAndTheirOrder) {
    Gex8u a[8] = {1, 2, 3, 4, 5, 6, 7, 8}, o[8] = {};
    const Gex8u v3[3] = {255, 255, 255};
    // null, then steps, then size
    EXPECT_EQ(gexiMulScale_8u_C1R(a, 0, nullptr, 0, o, 0, {0, 0}), gexStsNullPtr);
    EXPECT_EQ(gexiMulScale_8u_C1R(a, 0, a, 8, o, 8, {0, 1}), gexStsStep);
    EXPECT_EQ(gexiMulScale_8u_C3IR(a, 6, o, -6, {0, 1}), gexStsStep);
    EXPECT_EQ(gexiMulScale_16u_AC4R(reinterpret_cast<Gex16u*>(a), 8, reinterpret_cast<Gex16u*>(a), 8,
                                    reinterpret_cast<Gex16u*>(o), 8, {1, 0}),
              gexStsSize);
    EXPECT_EQ(gexiMulScale_8u_C4R(nullptr, 4, a, 4, o, 4, {0, 1}), gexStsNullPtr);  // no folding: null first
    // The constant forms check no step.
    EXPECT_EQ(gexiMulCScale_8u_C3R(a, 6, nullptr, o, 6, {2, 1}), gexStsNullPtr);
    EXPECT_EQ(gexiMulCScale_8u_C3R(a, 0, v3, o, 6, {0, 1}), gexStsSize);
    for (Gex8u x : o) EXPECT_EQ(x, 0);
    EXPECT_EQ(gexiMulCScale_8u_C3R(a, 0, v3, o, 6, {2, 1}), gexStsOk);  // step 0: the row is read again
    EXPECT_EQ(gexiMulCScale_8u_C1IR(128, a + 4, -4, {4, 2}), gexStsOk);
    const Gex8u want[8] = {0, 1, 1, 2, 2, 3, 3, 4};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(a[i], want[i]);
}

}  // namespace
