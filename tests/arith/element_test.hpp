// Shared pieces of the element-function tests (Abs, Sqr, Sqrt, Ln, Exp):
// every form of a family on guarded images against a per-element model and
// the check order of the element functions; the widths, layouts and row
// buffers of the logic and shift tests too.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "gexip.h"
#include "support/guarded.hpp"

namespace elemtest {

using gextest::Guarded;
using gextest::Layout;

inline const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

// These families test steps < 1, so only positive steps; gapless layouts make
// the merged-row path run too.
inline std::vector<Layout> layouts() {
    auto v = gextest::standard_layouts(false);
    v.push_back(Layout{0, 0, 1, false, false});
    v.push_back(Layout{0, 0, 0, false, true});
    return v;
}

// One export and its in-place twin. ch is 1, 3 or 4; ac4 with ch 4.
template <class T>
struct Form {
    std::string name;
    int ch;
    bool ac4;
    std::function<GexStatus(const T*, int, T*, int, GexiSize)> r;
    std::function<GexStatus(T*, int, GexiSize)> ir;
};

#define ELEM_FORM(NAME, T, CH, AC4) elemtest::Form<T>{#NAME, CH, AC4, NAME##R, NAME##IR}
#define ELEM_FORM_SFS(NAME, T, CH, AC4, S)                                                                     \
    elemtest::Form<T> {                                                                                        \
        #NAME, CH, AC4, [=](const T* a, int as, T* d, int ds, GexiSize r) { return NAME##RSfs(a, as, d, ds, r, S); }, \
            [=](T* p, int ps, GexiSize r) { return NAME##IRSfs(p, ps, r, S); }                                 \
    }

// A constant form (value V per colour channel: the pixel type for logic,
// Gex32u for shift amounts) and its in-place twin; the C1 form takes the
// value itself, the others an array.
template <class T, class V>
struct ConstForm {
    std::string name;
    int ch;
    bool ac4;
    std::function<GexStatus(const T*, int, const V*, T*, int, GexiSize)> r;
    std::function<GexStatus(const V*, T*, int, GexiSize)> ir;
};

#define CONST_FORM_N(B, D, T, V, L, CH, AC4) \
    elemtest::ConstForm<T, V> { "gexi" #B "_" #D "_" #L, CH, AC4, gexi##B##_##D##_##L##R, gexi##B##_##D##_##L##IR }
#define CONST_FORM_1(B, D, T, V)                                                                                \
    elemtest::ConstForm<T, V> {                                                                                 \
        "gexi" #B "_" #D "_C1", 1, false,                                                                       \
            [](const T* s, int ss, const V* v, T* d, int ds, GexiSize r) { return gexi##B##_##D##_C1R(s, ss, v[0], d, ds, r); }, \
            [](const V* v, T* d, int ds, GexiSize r) { return gexi##B##_##D##_C1IR(v[0], d, ds, r); }         \
    }

// What the model gives for one element.
template <class T>
struct Out {
    T v;
    GexStatus warn = 0;
};

// Exact equality; with nanLoose any NaN matches any NaN.
template <class T>
bool same_value(T a, T b, bool nanLoose) {
    if constexpr (std::is_floating_point_v<T>)
        if (nanLoose && std::isnan(a) && std::isnan(b)) return true;
    return gextest::same_bits(a, b);
}

// img holds the result; before is what it held, src the input (row-major
// snapshots). Colour elements must equal the model, alpha elements their old
// value; the returned status must be the first warning in row order.
template <class T, class Model>
::testing::AssertionResult verify(const Guarded<T>& img, const std::vector<T>& before, const std::vector<T>& src,
                                  bool ac4, Model& model, bool nanLoose, GexStatus st) {
    const int ch = img.channels();
    GexStatus want = 0;
    std::size_t i = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                const T got = img.at(x, y, c);
                if (ac4 && c == 3) {
                    if (!gextest::same_bits(got, before[i]))
                        return ::testing::AssertionFailure() << "alpha of pixel (" << x << "," << y << ") written";
                    continue;
                }
                const Out<T> o = model(src[i]);
                if (want == 0) want = o.warn;
                if (!same_value(got, o.v, nanLoose))
                    return ::testing::AssertionFailure()
                           << "pixel (" << x << "," << y << ") channel " << c << ": input " << +src[i] << " got "
                           << +got << " want " << +o.v;
            }
    if (st != want) return ::testing::AssertionFailure() << "status " << st << ", want " << want;
    if (!img.guards_ok()) return ::testing::AssertionFailure() << "a byte outside the ROI was written";
    return ::testing::AssertionSuccess();
}

// Row-major values into the ROI.
template <class T>
void copy_in(Guarded<T>& img, const std::vector<T>& v) {
    std::size_t k = 0;
    for (int y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.row_elems(); ++e) img.row(y)[e] = v[k++];
}

template <class T>
void fill_with(Guarded<T>& img, const std::function<T()>& gen) {
    for (int y = 0; y < img.height(); ++y)
        for (std::int64_t i = 0; i < img.row_elems(); ++i) img.row(y)[i] = gen();
}

// Every form on every layout, width and height 1 and 3, out of place (source
// and destination with different layouts) and in place.
template <class T, class Model>
void check_forms(const std::vector<Form<T>>& forms, Model model, const std::function<T()>& gen,
                 bool nanLoose = false, const int* widths = kWidths, std::size_t nWidths = std::size(kWidths)) {
    std::mt19937_64 rng(99);
    const std::vector<Layout> lays = layouts();
    for (std::size_t li = 0; li < lays.size(); ++li)
        for (std::size_t wi = 0; wi < nWidths; ++wi)
            for (int h : {1, 3})
                for (const Form<T>& f : forms) {
                    const int w = widths[wi];
                    Guarded<T> src(w, h, f.ch, lays[li]);
                    fill_with(src, gen);
                    const std::vector<T> sb = src.snapshot();
                    if (f.r) {
                        Guarded<T> dst(w, h, f.ch, lays[(li + 1) % lays.size()]);
                        dst.fill_random(rng);
                        const std::vector<T> db = dst.snapshot();
                        const GexStatus st = f.r(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h});
                        ASSERT_TRUE(verify(dst, db, sb, f.ac4, model, nanLoose, st))
                            << f.name << "R width " << w << " height " << h << " layout " << li;
                        ASSERT_TRUE(gextest::same_bits(src.snapshot(), sb)) << f.name << "R changed its source";
                        ASSERT_TRUE(src.guards_ok());
                    }

                    Guarded<T> io(w, h, f.ch, lays[li]);
                    copy_in(io, sb);
                    const GexStatus sti = f.ir(io.ptr(), io.step(), {w, h});
                    ASSERT_TRUE(verify(io, sb, sb, f.ac4, model, nanLoose, sti))
                        << f.name << "IR width " << w << " height " << h << " layout " << li;
                }
}

// Null, size, then steps < 1; C3 and C4 forms test the width first. Nothing
// is written by a failing call.
template <class T>
void check_order(const Form<T>& f) {
    Guarded<T> src(5, 2, f.ch), dst(5, 2, f.ch);
    std::mt19937_64 rng(5);
    src.fill_random(rng);
    dst.fill_random(rng);
    const auto sb = src.snapshot(), db = dst.snapshot();
    const int s = src.step(), d = dst.step();
    const bool folds = !f.ac4 && f.ch > 1;
    SCOPED_TRACE(f.name);
    if (f.r) {
        EXPECT_EQ(f.r(nullptr, s, dst.ptr(), d, {5, 2}), gexStsNullPtr);
        EXPECT_EQ(f.r(src.ptr(), s, nullptr, d, {5, 2}), gexStsNullPtr);
        EXPECT_EQ(f.r(nullptr, s, dst.ptr(), d, {0, 2}), folds ? gexStsSize : gexStsNullPtr);
        EXPECT_EQ(f.r(nullptr, 0, dst.ptr(), d, {5, 0}), gexStsNullPtr);
        EXPECT_EQ(f.r(src.ptr(), 0, dst.ptr(), d, {0, 2}), gexStsSize);
        EXPECT_EQ(f.r(src.ptr(), s, dst.ptr(), d, {5, -1}), gexStsSize);
        EXPECT_EQ(f.r(src.ptr(), 0, dst.ptr(), d, {5, 2}), gexStsStep);
        EXPECT_EQ(f.r(src.ptr(), s, dst.ptr(), -d, {5, 2}), gexStsStep);
    }
    EXPECT_EQ(f.ir(nullptr, d, {5, 2}), gexStsNullPtr);
    EXPECT_EQ(f.ir(nullptr, d, {0, 2}), folds ? gexStsSize : gexStsNullPtr);
    EXPECT_EQ(f.ir(dst.ptr(), 0, {0, 2}), gexStsSize);
    EXPECT_EQ(f.ir(dst.ptr(), 0, {5, 2}), gexStsStep);
    EXPECT_EQ(f.ir(dst.ptr(), -d, {5, 2}), gexStsStep);
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), db));
    EXPECT_TRUE(gextest::same_bits(src.snapshot(), sb));
    EXPECT_TRUE(dst.guards_ok());
}

// A buffer for the kernel-against-twin tests: n elements at an element
// offset, with random contents.
template <class T>
struct Row {
    std::vector<T> mem;
    T* p;
    Row(std::int64_t n, int offset, std::mt19937_64& rng) : mem(static_cast<std::size_t>(n + offset + 8)) {
        for (T& v : mem) v = Guarded<T>::random_value(rng);
        p = mem.data() + offset;
    }
};

}  // namespace elemtest
