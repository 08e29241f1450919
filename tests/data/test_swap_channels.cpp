// SwapChannels: every export on guarded images against an index model, the
// in-place forms and pSrc = pDst, the constant and kept channels of C3C4,
// AC4 alpha, statuses and their order, and the row kernels against their
// scalar twin at every width up to 200 and odd offsets.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <stdexcept>
#include <vector>

#include "data/swap_channels_kernels.hpp"
#include "gexip.h"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
namespace sk = gex::swap_kernels;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 16, 21, 22, 31, 33, 63, 64, 65, 127, 129, 200};

enum class Kind { C3, C4, AC4, C4C3, C3C4 };

struct Shape {
    int in, out, entries;
};
Shape shape(Kind k) {
    switch (k) {
        case Kind::C3: return {3, 3, 3};
        case Kind::C4: return {4, 4, 4};
        case Kind::AC4: return {4, 4, 3};
        case Kind::C4C3: return {4, 3, 3};
        default: return {3, 4, 4};
    }
}

// Valid random entries of a form; C3C4 also draws "keep" entries above 3.
std::array<int, 4> random_order(Kind k, std::mt19937_64& rng) {
    const int hi = (k == Kind::C3 || k == Kind::AC4) ? 2 : k == Kind::C3C4 ? 6 : 3;
    std::array<int, 4> o{};
    for (int c = 0; c < shape(k).entries; ++c) o[c] = static_cast<int>(rng() % (hi + 1));
    return o;
}

// The model: destination pixel p, channel c from snapshots of whole rows.
template <class T>
std::vector<T> model(Kind k, const std::vector<T>& src, const std::vector<T>& dst, std::size_t pixels,
                     const int* order, T val) {
    const Shape s = shape(k);
    std::vector<T> e = dst;
    for (std::size_t p = 0; p < pixels; ++p)
        for (int c = 0; c < s.out; ++c) {
            T& out = e[p * s.out + c];
            if (k == Kind::AC4 && c == 3) continue;
            const int o = order[c];
            if (k == Kind::C3C4 && o == 3) out = val;
            else if (k == Kind::C3C4 && o > 3) continue;
            else out = src[p * s.in + o];
        }
    return e;
}

template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

template <class T>
using Fn = GexStatus (*)(const T*, int, T*, int, GexiSize, const int*);
template <class T>
using Fn34 = GexStatus (*)(const T*, int, T*, int, GexiSize, const int*, T);
using FnI = GexStatus (*)(Gex8u*, int, GexiSize, const int*);

// One member as a uniform call; val is ignored except by C3C4.
template <class T>
struct Member {
    Kind kind;
    const char* name;
    Fn<T> fn;
    Fn34<T> fn34;
    GexStatus operator()(const T* s, int ss, T* d, int ds, GexiSize r, const int* o, T val) const {
        return fn34 ? fn34(s, ss, d, ds, r, o, val) : fn(s, ss, d, ds, r, o);
    }
};

template <class T> struct Members;
#define GEX_TEST_SWAP(D, T)                                                                        \
    template <> struct Members<T> {                                                                \
        static std::array<Member<T>, 5> all() {                                                    \
            return {{{Kind::C3, "C3R", gexiSwapChannels_##D##_C3R, nullptr},                       \
                     {Kind::C4, "C4R", gexiSwapChannels_##D##_C4R, nullptr},                       \
                     {Kind::AC4, "AC4R", gexiSwapChannels_##D##_AC4R, nullptr},                    \
                     {Kind::C4C3, "C4C3R", gexiSwapChannels_##D##_C4C3R, nullptr},                 \
                     {Kind::C3C4, "C3C4R", nullptr, gexiSwapChannels_##D##_C3C4R}}};               \
        }                                                                                          \
    };
GEX_TEST_SWAP(8u, Gex8u)
GEX_TEST_SWAP(16u, Gex16u)
GEX_TEST_SWAP(16s, Gex16s)
GEX_TEST_SWAP(32s, Gex32s)
GEX_TEST_SWAP(32f, Gex32f)

// A row of n bytes whose first byte follows an inaccessible page (front) or
// whose last byte precedes one (back).
using FencedRow = gextest::Fenced;

}  // namespace

// ---- every export on guarded images ---------------------------------------------

template <class T>
class SwapDepth : public ::testing::Test {};
using SwapDepths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(SwapDepth, SwapDepths);

TYPED_TEST(SwapDepth, EveryFormLayoutAndWidth) {
    using T = TypeParam;
    std::mt19937_64 rng(11);
    const auto lays = gextest::standard_layouts();
    for (const auto& m : Members<T>::all())
        for (std::size_t li = 0; li < lays.size(); ++li)
            for (int w : kWidths) {
                const Layout& ls = lays[li];
                const Layout& ld = lays[(li + 1 + w) % lays.size()];
                const int h = 1 + w % 3;
                const auto order = random_order(m.kind, rng);
                const T val = Guarded<T>::random_value(rng);
                const Shape s = shape(m.kind);
                Guarded<T> src(w, h, s.in, ls), dst(w, h, s.out, ld);
                src.fill_random(rng);
                dst.fill_random(rng);
                const auto s0 = src.snapshot(), d0 = dst.snapshot();
                SCOPED_TRACE(::testing::Message() << m.name << " width " << w << " height " << h << " order "
                                                  << order[0] << order[1] << order[2] << order[3]);
                ASSERT_EQ(m(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, order.data(), val), gexStsOk);
                ASSERT_TRUE(same(dst.snapshot(), model<T>(m.kind, s0, d0, s0.size() / s.in, order.data(), val)));
                ASSERT_TRUE(same(src.snapshot(), s0));
                ASSERT_TRUE(dst.guards_ok());
                ASSERT_TRUE(src.guards_ok());
            }
}

// Rows without gaps are one long row; the result does not change.
TYPED_TEST(SwapDepth, ContiguousRows) {
    using T = TypeParam;
    std::mt19937_64 rng(12);
    for (const auto& m : Members<T>::all()) {
        const Shape s = shape(m.kind);
        Guarded<T> src(37, 5, s.in, Layout{0, 0, 1, false, false}), dst(37, 5, s.out, Layout{0, 0, 1, false, true});
        src.fill_random(rng);
        dst.fill_random(rng);
        const auto order = random_order(m.kind, rng);
        const auto s0 = src.snapshot(), d0 = dst.snapshot();
        ASSERT_EQ(m(src.ptr(), src.step(), dst.ptr(), dst.step(), {37, 5}, order.data(), T(7)), gexStsOk);
        EXPECT_TRUE(same(dst.snapshot(), model<T>(m.kind, s0, d0, 37 * 5, order.data(), T(7)))) << m.name;
    }
}

// C3 and C4 with pSrc = pDst permute in place, every order of C3 and a
// sample of C4's.
TYPED_TEST(SwapDepth, SameSourceAndDestination) {
    using T = TypeParam;
    std::mt19937_64 rng(13);
    for (const auto& m : Members<T>::all()) {
        if (m.kind != Kind::C3 && m.kind != Kind::C4) continue;
        const int orders = m.kind == Kind::C3 ? 27 : 40;
        for (int i = 0; i < orders; ++i) {
            std::array<int, 4> order = random_order(m.kind, rng);
            if (m.kind == Kind::C3) order = {i % 3, i / 3 % 3, i / 9, 0};
            const int w = 1 + static_cast<int>(rng() % 90), h = 1 + i % 4;
            const Shape s = shape(m.kind);
            Guarded<T> img(w, h, s.in, gextest::standard_layouts()[i % 5]);
            img.fill_random(rng);
            const auto s0 = img.snapshot();
            ASSERT_EQ(m(img.ptr(), img.step(), img.ptr(), img.step(), {w, h}, order.data(), T(0)), gexStsOk);
            ASSERT_TRUE(same(img.snapshot(), model<T>(m.kind, s0, s0, s0.size() / s.in, order.data(), T(0))))
                << m.name << " width " << w << " order " << order[0] << order[1] << order[2] << order[3];
            ASSERT_TRUE(img.guards_ok());
        }
    }
}

TEST(SwapChannels, InPlaceForms) {
    std::mt19937_64 rng(14);
    for (int ch : {3, 4}) {
        const FnI fn = ch == 3 ? gexiSwapChannels_8u_C3IR : gexiSwapChannels_8u_C4IR;
        const Kind k = ch == 3 ? Kind::C3 : Kind::C4;
        for (const Layout& lay : gextest::standard_layouts())
            for (int w : kWidths) {
                const auto order = random_order(k, rng);
                Guarded<Gex8u> img(w, 3, ch, lay);
                img.fill_random(rng);
                const auto s0 = img.snapshot();
                ASSERT_EQ(fn(img.ptr(), img.step(), {w, 3}, order.data()), gexStsOk);
                ASSERT_TRUE(same(img.snapshot(), model<Gex8u>(k, s0, s0, s0.size() / ch, order.data(), 0)))
                    << "C" << ch << "IR width " << w;
                ASSERT_TRUE(img.guards_ok());
            }
    }
}

// ---- the stated cases ---------------------------------------------------------

TEST(SwapChannels, BgrToRgb) {
    Guarded<Gex8u> src(2, 1, 3), dst(2, 1, 3);
    const Gex8u px[6] = {10, 20, 30, 40, 50, 60};
    std::memcpy(src.ptr(), px, 6);
    const int order[3] = {2, 1, 0};
    ASSERT_EQ(gexiSwapChannels_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), {2, 1}, order), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex8u>{30, 20, 10, 60, 50, 40}));
    ASSERT_EQ(gexiSwapChannels_8u_C3IR(src.ptr(), src.step(), {2, 1}, order), gexStsOk);
    EXPECT_EQ(src.snapshot(), (std::vector<Gex8u>{30, 20, 10, 60, 50, 40}));
}

TEST(SwapChannels, C3C4ConstantAndKeptChannel) {
    Guarded<Gex8u> src(2, 1, 3), dst(2, 1, 4);
    const Gex8u px[6] = {1, 2, 3, 4, 5, 6};
    std::memcpy(src.ptr(), px, 6);
    dst.fill(99);
    const int toVal[4] = {0, 1, 2, 3}, keep[4] = {0, 1, 2, 4}, mixed[4] = {2, 9, 3, 0};
    ASSERT_EQ(gexiSwapChannels_8u_C3C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), {2, 1}, keep, 7), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex8u>{1, 2, 3, 99, 4, 5, 6, 99}));
    ASSERT_EQ(gexiSwapChannels_8u_C3C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), {2, 1}, toVal, 7), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex8u>{1, 2, 3, 7, 4, 5, 6, 7}));
    dst.fill(99);
    ASSERT_EQ(gexiSwapChannels_8u_C3C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), {2, 1}, mixed, 7), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex8u>{3, 99, 7, 1, 6, 99, 7, 4}));
    // The constant of a float form is its bit pattern.
    Guarded<Gex32f> fs(1, 1, 3), fd(1, 1, 4);
    fs.fill(1.5f);
    ASSERT_EQ(gexiSwapChannels_32f_C3C4R(fs.ptr(), fs.step(), fd.ptr(), fd.step(), {1, 1}, toVal, -0.25f), gexStsOk);
    EXPECT_EQ(fd.at(0, 0, 3), -0.25f);
}

TEST(SwapChannels, Ac4KeepsAlphaAndC4C3MayPickIt) {
    Guarded<Gex16u> src(2, 1, 4), dst(2, 1, 4), d3(2, 1, 3);
    const Gex16u px[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    std::memcpy(src.ptr(), px, sizeof(px));
    dst.fill(9);
    const int order[3] = {2, 0, 1}, withAlpha[3] = {3, 3, 0};
    ASSERT_EQ(gexiSwapChannels_16u_AC4R(src.ptr(), src.step(), dst.ptr(), dst.step(), {2, 1}, order), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex16u>{3, 1, 2, 9, 7, 5, 6, 9}));
    ASSERT_EQ(gexiSwapChannels_16u_C4C3R(src.ptr(), src.step(), d3.ptr(), d3.step(), {2, 1}, withAlpha), gexStsOk);
    EXPECT_EQ(d3.snapshot(), (std::vector<Gex16u>{4, 4, 1, 8, 8, 5}));
}

// ---- statuses -----------------------------------------------------------------

TYPED_TEST(SwapDepth, StatusesAndNothingWritten) {
    using T = TypeParam;
    std::mt19937_64 rng(15);
    for (const auto& m : Members<T>::all()) {
        SCOPED_TRACE(m.name);
        const Shape s = shape(m.kind);
        Guarded<T> src(6, 2, s.in), dst(6, 2, s.out);
        src.fill_random(rng);
        dst.fill_random(rng);
        const auto d0 = dst.snapshot();
        const int ok[4] = {0, 1, 2, 0};
        const int ss = src.step(), ds = dst.step();
        const T* sp = src.ptr();
        T* dp = dst.ptr();
        auto call = [&](const T* a, int as, T* b, int bs, GexiSize r, const int* o) { return m(a, as, b, bs, r, o, T(1)); };
        EXPECT_EQ(call(nullptr, ss, dp, ds, {6, 2}, ok), gexStsNullPtr);
        EXPECT_EQ(call(sp, ss, nullptr, ds, {6, 2}, ok), gexStsNullPtr);
        EXPECT_EQ(call(sp, ss, dp, ds, {6, 2}, nullptr), gexStsNullPtr);
        EXPECT_EQ(call(sp, ss, dp, ds, {0, 2}, nullptr), gexStsNullPtr);
        EXPECT_EQ(call(sp, ss, dp, ds, {0, 2}, ok), gexStsSize);
        EXPECT_EQ(call(sp, ss, dp, ds, {6, -1}, ok), gexStsSize);
        EXPECT_EQ(call(sp, 0, dp, ds, {6, 2}, ok), gexStsStep);
        EXPECT_EQ(call(sp, ss, dp, 0, {6, 2}, ok), gexStsStep);
        // AC4 tests the steps before the size, the others after.
        EXPECT_EQ(call(sp, 0, dp, ds, {0, 2}, ok), m.kind == Kind::AC4 ? gexStsStep : gexStsSize);
        // Entries: negative always, above the channel range where the form has one.
        int bad[4] = {0, 1, 2, 0};
        for (int c = 0; c < s.entries; ++c) {
            bad[c] = -1;
            EXPECT_EQ(call(sp, ss, dp, ds, {6, 2}, bad), gexStsChannelOrder) << "entry " << c;
            EXPECT_EQ(call(sp, 0, dp, ds, {6, 2}, bad), gexStsStep);  // steps come before the order
            bad[c] = (m.kind == Kind::C3 || m.kind == Kind::AC4) ? 3 : 4;
            if (m.kind != Kind::C3C4) {
                EXPECT_EQ(call(sp, ss, dp, ds, {6, 2}, bad), gexStsChannelOrder) << "entry " << c;
            }
            bad[c] = c % 3;
        }
        EXPECT_TRUE(same(dst.snapshot(), d0));
        EXPECT_TRUE(dst.guards_ok());
    }
}

TEST(SwapChannels, InPlaceStatusOrder) {
    Guarded<Gex8u> img(5, 2, 4);
    std::mt19937_64 rng(16);
    img.fill_random(rng);
    const auto before = img.snapshot();
    const int ok[4] = {3, 2, 1, 0}, bad[4] = {0, 1, 5, 0};
    for (FnI fn : {FnI(gexiSwapChannels_8u_C3IR), FnI(gexiSwapChannels_8u_C4IR)}) {
        EXPECT_EQ(fn(nullptr, img.step(), {5, 2}, ok), gexStsNullPtr);
        EXPECT_EQ(fn(img.ptr(), img.step(), {5, 2}, nullptr), gexStsNullPtr);
        EXPECT_EQ(fn(nullptr, 0, {0, 2}, ok), gexStsNullPtr);
        EXPECT_EQ(fn(img.ptr(), 0, {0, 2}, ok), gexStsStep);  // step before size
        EXPECT_EQ(fn(img.ptr(), img.step(), {5, 0}, ok), gexStsSize);
        EXPECT_EQ(fn(img.ptr(), img.step(), {0, 2}, bad), gexStsSize);
        EXPECT_EQ(fn(img.ptr(), img.step(), {5, 2}, bad), gexStsChannelOrder);
    }
    const int c3bad[3] = {0, 3, 1};
    EXPECT_EQ(gexiSwapChannels_8u_C3IR(img.ptr(), img.step(), {5, 2}, c3bad), gexStsChannelOrder);
    EXPECT_EQ(img.snapshot(), before);
    EXPECT_TRUE(img.guards_ok());
}

// ---- kernels against the scalar twin ----------------------------------------------

TEST(SwapChannelsKernels, RowsMatchScalarTwin) {
    std::mt19937_64 rng(17);
    const sk::SwapForm forms[] = {sk::SwapForm::C3, sk::SwapForm::C4, sk::SwapForm::AC4, sk::SwapForm::C4C3,
                                  sk::SwapForm::C3C4};
    const Kind kinds[] = {Kind::C3, Kind::C4, Kind::AC4, Kind::C4C3, Kind::C3C4};
    for (int fi = 0; fi < 5; ++fi)
        for (int E : {1, 2, 4})
            for (int w = 1; w <= 200; ++w) {
                const Shape s = shape(kinds[fi]);
                const auto order = random_order(kinds[fi], rng);
                const std::uint32_t val = static_cast<std::uint32_t>(rng());
                alignas(64) sk::SwapPlan plan;
                sk::make_plan(plan, forms[fi], E, order.data(), &val);
                const std::size_t in = static_cast<std::size_t>(w) * s.in * E, out = static_cast<std::size_t>(w) * s.out * E;
                const int off = 1 + 2 * (w % 4);  // odd offsets
                const bool front = w % 2 == 0;
                FencedRow src(in + off, front), dst(out + off, !front);
                for (std::size_t i = 0; i < in + off; ++i) src.data()[i] = static_cast<std::uint8_t>(rng());
                for (std::size_t i = 0; i < out + off; ++i) dst.data()[i] = static_cast<std::uint8_t>(rng());
                // The rows start at the fence or end at it.
                std::uint8_t* sp = src.data() + (front ? 0 : off);
                std::uint8_t* dp = dst.data() + (front ? off : 0);
                std::vector<std::uint8_t> ref(dst.data(), dst.data() + out + off);
                sk::swap_row_ref(forms[fi], E, order.data(), &val, sp, ref.data() + (dp - dst.data()), w);
                sk::swap_row(plan, sp, dp, w);
                ASSERT_EQ(0, std::memcmp(ref.data(), dst.data(), out + off))
                    << "form " << fi << " E " << E << " width " << w;
                // In place (same-size forms): every pixel read before it is written.
                if (kinds[fi] == Kind::C3 || kinds[fi] == Kind::C4 || kinds[fi] == Kind::AC4) {
                    std::vector<std::uint8_t> expect(sp, sp + in);
                    const std::vector<std::uint8_t> copy = expect;
                    sk::swap_row_ref(forms[fi], E, order.data(), &val, copy.data(), expect.data(), w);
                    sk::swap_row(plan, sp, sp, w);
                    ASSERT_EQ(0, std::memcmp(expect.data(), sp, in)) << "in place, form " << fi << " E " << E << " width " << w;
                }
            }
}
