// Set: every form and depth against a plain model on guarded images, the
// check order, the vector row kernels against their scalar twins, the
// one-dimensional primitives, and the streaming paths (driven through the
// cache query argument) against the cached ones.
#include <gtest/gtest.h>

#include <immintrin.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "data/set.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

using gextest::same_bits;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

// Layouts of the standard set plus gapless ones, so that merged rows run too.
std::vector<Layout> all_layouts() {
    auto v = gextest::standard_layouts();
    v.push_back(Layout{0, 0, 1, false, false});
    v.push_back(Layout{0, 0, 0, false, true});
    return v;
}

// The model: element (x, y, c) takes vals[c] where channel c is written and
// the mask (if any) is non-zero there; otherwise it keeps its old value.
template <class T>
::testing::AssertionResult matches_model(const Guarded<T>& img, const std::vector<T>& before, const T* vals,
                                         unsigned writtenChannels, const Guarded<Gex8u>* mask) {
    const int ch = img.channels();
    std::size_t i = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            for (int c = 0; c < ch; ++c, ++i) {
                const bool on = ((writtenChannels >> c) & 1u) && (!mask || mask->at(x, y) != 0);
                const T want = on ? vals[c] : before[i];
                if (!same_bits(img.at(x, y, c), want))
                    return ::testing::AssertionFailure()
                           << "pixel (" << x << "," << y << ") channel " << c << ": got " << +img.at(x, y, c)
                           << ", want " << +want;
            }
    if (!img.guards_ok()) return ::testing::AssertionFailure() << "a byte outside the ROI was written";
    return ::testing::AssertionSuccess();
}

template <class T>
struct Api {
    GexStatus (*c1)(T, T*, int, GexiSize);
    GexStatus (*c3)(const T*, T*, int, GexiSize);
    GexStatus (*c4)(const T*, T*, int, GexiSize);
    GexStatus (*ac4)(const T*, T*, int, GexiSize);
    GexStatus (*c3c)(T, T*, int, GexiSize);
    GexStatus (*c4c)(T, T*, int, GexiSize);
    GexStatus (*c1m)(T, T*, int, GexiSize, const Gex8u*, int);
    GexStatus (*c3m)(const T*, T*, int, GexiSize, const Gex8u*, int);
    GexStatus (*c4m)(const T*, T*, int, GexiSize, const Gex8u*, int);
    GexStatus (*ac4m)(const T*, T*, int, GexiSize, const Gex8u*, int);
};

template <class T>
Api<T> api();

#define SET_API(D, T)                                                                              \
    template <>                                                                                    \
    Api<T> api<T>() {                                                                              \
        return {gexiSet_##D##_C1R,  gexiSet_##D##_C3R,  gexiSet_##D##_C4R,  gexiSet_##D##_AC4R,    \
                gexiSet_##D##_C3CR, gexiSet_##D##_C4CR, gexiSet_##D##_C1MR, gexiSet_##D##_C3MR,    \
                gexiSet_##D##_C4MR, gexiSet_##D##_AC4MR};                                          \
    }
SET_API(8u, Gex8u)
SET_API(16u, Gex16u)
SET_API(16s, Gex16s)
SET_API(32s, Gex32s)
SET_API(32f, Gex32f)

// A mask with every kind of byte: 0, 1, 0x80, 0xff and random ones.
void fill_mask(Guarded<Gex8u>& m, std::mt19937_64& rng) {
    static const Gex8u kinds[] = {0, 1, 0x80, 0xff, 0, 0};
    for (int y = 0; y < m.height(); ++y)
        for (int x = 0; x < m.width(); ++x) {
            const unsigned k = rng() % 8;
            m.at(x, y) = k < 6 ? kinds[k] : static_cast<Gex8u>(rng());
        }
}

template <class T>
class SetForms : public ::testing::Test {};
using Depths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(SetForms, Depths);

// C1R, C3R, C4R, AC4R: every pixel (AC4: three channels, alpha as it was).
TYPED_TEST(SetForms, WholePixels) {
    using T = TypeParam;
    const Api<T> a = api<T>();
    std::mt19937_64 rng(11);
    struct Form { int ch; unsigned written; } forms[] = {{1, 1}, {3, 7}, {4, 15}, {4, 7}};
    for (const Layout& lay : all_layouts())
        for (int w : kWidths)
            for (int h : {1, 3})
                for (int f = 0; f < 4; ++f) {
                    Guarded<T> img(w, h, forms[f].ch, lay);
                    img.fill_random(rng);
                    const std::vector<T> before = img.snapshot();
                    T vals[4];
                    for (T& v : vals) v = Guarded<T>::random_value(rng);
                    const GexiSize roi{w, h};
                    GexStatus st;
                    switch (f) {
                        case 0: st = a.c1(vals[0], img.ptr(), img.step(), roi); break;
                        case 1: st = a.c3(vals, img.ptr(), img.step(), roi); break;
                        case 2: st = a.c4(vals, img.ptr(), img.step(), roi); break;
                        default: st = a.ac4(vals, img.ptr(), img.step(), roi); break;
                    }
                    ASSERT_EQ(st, gexStsOk);
                    ASSERT_TRUE(matches_model(img, before, vals, forms[f].written, nullptr))
                        << "form " << f << " width " << w << " height " << h << " step " << img.step();
                }
}

// C3CR, C4CR: only the channel at pDst's offset, every n-th element.
TYPED_TEST(SetForms, OneChannel) {
    using T = TypeParam;
    const Api<T> a = api<T>();
    std::mt19937_64 rng(12);
    for (const Layout& lay : all_layouts())
        for (int w : kWidths)
            for (int h : {1, 3})
                for (int ch : {3, 4})
                    for (int c = 0; c < ch; ++c) {
                        Guarded<T> img(w, h, ch, lay);
                        img.fill_random(rng);
                        const std::vector<T> before = img.snapshot();
                        T vals[4];
                        vals[c] = Guarded<T>::random_value(rng);
                        const GexStatus st = (ch == 3 ? a.c3c : a.c4c)(vals[c], img.ptr() + c, img.step(), {w, h});
                        ASSERT_EQ(st, gexStsOk);
                        ASSERT_TRUE(matches_model(img, before, vals, 1u << c, nullptr))
                            << "C" << ch << "CR channel " << c << " width " << w << " height " << h;
                    }
}

// MR forms: only where the mask byte is non-zero; AC4MR three channels.
TYPED_TEST(SetForms, Masked) {
    using T = TypeParam;
    const Api<T> a = api<T>();
    std::mt19937_64 rng(13);
    struct Form { int ch; unsigned written; } forms[] = {{1, 1}, {3, 7}, {4, 15}, {4, 7}};
    const std::vector<Layout> layouts = all_layouts();
    // The mask in the destination's layout (both gapless together) and in
    // the next one (a gapless destination with a gapped mask and the reverse).
    for (std::size_t li = 0; li < 2 * layouts.size(); ++li)
        for (int w : kWidths)
            for (int h : {1, 3})
                for (int f = 0; f < 4; ++f) {
                    const std::size_t di = li % layouts.size();
                    const std::size_t mi = li < layouts.size() ? di : (di + 1) % layouts.size();
                    Guarded<T> img(w, h, forms[f].ch, layouts[di]);
                    Guarded<Gex8u> mask(w, h, 1, layouts[mi]);
                    img.fill_random(rng);
                    fill_mask(mask, rng);
                    const std::vector<T> before = img.snapshot();
                    T vals[4];
                    for (T& v : vals) v = Guarded<T>::random_value(rng);
                    const GexiSize roi{w, h};
                    GexStatus st;
                    switch (f) {
                        case 0: st = a.c1m(vals[0], img.ptr(), img.step(), roi, mask.ptr(), mask.step()); break;
                        case 1: st = a.c3m(vals, img.ptr(), img.step(), roi, mask.ptr(), mask.step()); break;
                        case 2: st = a.c4m(vals, img.ptr(), img.step(), roi, mask.ptr(), mask.step()); break;
                        default: st = a.ac4m(vals, img.ptr(), img.step(), roi, mask.ptr(), mask.step()); break;
                    }
                    ASSERT_EQ(st, gexStsOk);
                    ASSERT_TRUE(matches_model(img, before, vals, forms[f].written, &mask))
                        << "masked form " << f << " width " << w << " height " << h;
                    ASSERT_TRUE(mask.guards_ok());
                }
}

// Step 0: every row goes to the same memory; steps longer than the row leave
// the gap alone (the guarded paddings cover that).
TYPED_TEST(SetForms, ZeroStepWritesOneRow) {
    using T = TypeParam;
    const Api<T> a = api<T>();
    std::mt19937_64 rng(14);
    for (int w : {1, 7, 65, 200}) {
        Guarded<T> img(w, 1, 4);
        Guarded<Gex8u> mask(w, 1);
        img.fill_random(rng);
        fill_mask(mask, rng);
        const std::vector<T> before = img.snapshot();
        T vals[4];
        for (T& v : vals) v = Guarded<T>::random_value(rng);
        ASSERT_EQ(a.ac4m(vals, img.ptr(), 0, {w, 5}, mask.ptr(), 0), gexStsOk);
        ASSERT_TRUE(matches_model(img, before, vals, 7, &mask));
        ASSERT_EQ(a.c4(vals, img.ptr(), 0, {w, 5}), gexStsOk);
        ASSERT_TRUE(matches_model(img, before, vals, 15, nullptr));
    }
}

// Pointers in argument order before the size; nothing written on failure.
TYPED_TEST(SetForms, ChecksAndNothingWritten) {
    using T = TypeParam;
    const Api<T> a = api<T>();
    std::mt19937_64 rng(15);
    Guarded<T> img(5, 3, 4);
    Guarded<Gex8u> mask(5, 3);
    img.fill_random(rng);
    fill_mask(mask, rng);
    const std::vector<T> before = img.snapshot();
    const T vals[4] = {T(1), T(2), T(3), T(4)};
    T* p = img.ptr();
    const int s = img.step();
    const Gex8u* m = mask.ptr();
    const int ms = mask.step();
    for (GexiSize bad : {GexiSize{0, 3}, GexiSize{5, 0}, GexiSize{-1, 3}, GexiSize{5, -7}, GexiSize{0, 0}}) {
        // Null before size.
        EXPECT_EQ(a.c1(vals[0], nullptr, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c3(nullptr, p, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c3(vals, nullptr, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c4(nullptr, p, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.ac4(nullptr, p, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c3c(vals[0], nullptr, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c4c(vals[0], nullptr, s, bad), gexStsNullPtr);
        EXPECT_EQ(a.c1m(vals[0], p, s, bad, nullptr, ms), gexStsNullPtr);
        EXPECT_EQ(a.c1m(vals[0], nullptr, s, bad, m, ms), gexStsNullPtr);
        EXPECT_EQ(a.c3m(nullptr, p, s, bad, m, ms), gexStsNullPtr);
        EXPECT_EQ(a.c3m(vals, p, s, bad, nullptr, ms), gexStsNullPtr);
        EXPECT_EQ(a.c4m(vals, nullptr, s, bad, m, ms), gexStsNullPtr);
        EXPECT_EQ(a.ac4m(vals, p, s, bad, nullptr, ms), gexStsNullPtr);
        // Then the size.
        EXPECT_EQ(a.c1(vals[0], p, s, bad), gexStsSize);
        EXPECT_EQ(a.c3(vals, p, s, bad), gexStsSize);
        EXPECT_EQ(a.c4(vals, p, s, bad), gexStsSize);
        EXPECT_EQ(a.ac4(vals, p, s, bad), gexStsSize);
        EXPECT_EQ(a.c3c(vals[0], p, s, bad), gexStsSize);
        EXPECT_EQ(a.c4c(vals[0], p, s, bad), gexStsSize);
        EXPECT_EQ(a.c1m(vals[0], p, s, bad, m, ms), gexStsSize);
        EXPECT_EQ(a.c3m(vals, p, s, bad, m, ms), gexStsSize);
        EXPECT_EQ(a.c4m(vals, p, s, bad, m, ms), gexStsSize);
        EXPECT_EQ(a.ac4m(vals, p, s, bad, m, ms), gexStsSize);
    }
    // Valid size, one null pointer.
    EXPECT_EQ(a.c4m(vals, p, s, {5, 3}, nullptr, ms), gexStsNullPtr);
    EXPECT_EQ(a.c3(nullptr, p, s, {5, 3}), gexStsNullPtr);
    EXPECT_EQ(img.snapshot(), before);
    EXPECT_TRUE(img.guards_ok());
    EXPECT_TRUE(mask.guards_ok());
}

// ---- telling cases ---------------------------------------------------------------

TEST(SetCases, C3CRWritesEveryThirdByte) {
    std::vector<Gex8u> buf(3 * 40 + 3, 0x11);
    ASSERT_EQ(gexiSet_8u_C3CR(0xab, buf.data() + 1, 3 * 40 + 3, {40, 1}), gexStsOk);
    for (std::size_t i = 0; i < buf.size(); ++i)
        EXPECT_EQ(buf[i], (i % 3 == 1 && i < 3 * 40) ? 0xab : 0x11) << "byte " << i;
}

// Rows that overlap: each row is written as given, one after the other.
TEST(SetCases, OverlappingChannelRows) {
    for (int step : {10, 7, 1}) {
        std::vector<Gex8u> buf(64, 0x11), want(64, 0x11);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x) want[y * step + 3 * x] = 0x5a;
        ASSERT_EQ(gexiSet_8u_C3CR(0x5a, buf.data(), step, {4, 3}), gexStsOk);
        EXPECT_EQ(buf, want) << "step " << step;
    }
}

TEST(SetCases, AC4KeepsAlpha) {
    Guarded<Gex16s> img(33, 2, 4);
    img.fill(9);
    const Gex16s v[3] = {-1, 0, 32767};
    ASSERT_EQ(gexiSet_16s_AC4R(v, img.ptr(), img.step(), {33, 2}), gexStsOk);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 33; ++x) {
            EXPECT_EQ(img.at(x, y, 0), -1);
            EXPECT_EQ(img.at(x, y, 1), 0);
            EXPECT_EQ(img.at(x, y, 2), 32767);
            EXPECT_EQ(img.at(x, y, 3), 9);
        }
}

TEST(SetCases, MaskZeroOneHigh) {
    Guarded<Gex8u> img(3, 1, 3), mask(3, 1);
    img.fill(7);
    mask.at(0, 0) = 0;
    mask.at(1, 0) = 1;
    mask.at(2, 0) = 0x80;
    const Gex8u v[3] = {1, 2, 3};
    ASSERT_EQ(gexiSet_8u_C3MR(v, img.ptr(), img.step(), {3, 1}, mask.ptr(), mask.step()), gexStsOk);
    const std::vector<Gex8u> want = {7, 7, 7, 1, 2, 3, 1, 2, 3};
    EXPECT_EQ(img.snapshot(), want);
}

TEST(SetCases, FloatBitsExact) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Guarded<Gex32f> img(19, 2, 3);
    const Gex32f v[3] = {-0.0f, nan, -std::numeric_limits<float>::infinity()};
    ASSERT_EQ(gexiSet_32f_C3R(v, img.ptr(), img.step(), {19, 2}), gexStsOk);
    for (int x = 0; x < 19; ++x) {
        EXPECT_TRUE(same_bits(img.at(x, 1, 0), -0.0f));
        EXPECT_TRUE(same_bits(img.at(x, 1, 1), nan));
        EXPECT_TRUE(std::isinf(img.at(x, 1, 2)) && img.at(x, 1, 2) < 0);
    }
}

// ---- one-dimensional primitives -------------------------------------------------------

template <class T>
void check_line(GexStatus (*set)(T, T*, int), GexStatus (*zero)(T*, int), std::mt19937_64& rng) {
    for (int len : kWidths)
        for (int off : {0, 1, 3}) {  // byte offsets: misaligned elements are legal
            std::vector<unsigned char> buf(len * sizeof(T) + 8 + 5);
            for (auto& b : buf) b = static_cast<unsigned char>(rng());
            const std::vector<unsigned char> old = buf;
            T* p = reinterpret_cast<T*>(buf.data() + off);
            const T v = Guarded<T>::random_value(rng);
            ASSERT_EQ(set(v, p, len), gexStsOk);
            for (std::size_t i = 0; i < buf.size(); ++i) {
                const std::ptrdiff_t rel = static_cast<std::ptrdiff_t>(i) - off;
                const bool inside = rel >= 0 && rel < static_cast<std::ptrdiff_t>(len * sizeof(T));
                const unsigned char want =
                    inside ? reinterpret_cast<const unsigned char*>(&v)[rel % sizeof(T)] : old[i];
                ASSERT_EQ(buf[i], want) << "len " << len << " offset " << off << " byte " << i;
            }
            if (zero) {
                ASSERT_EQ(zero(p, len), gexStsOk);
                for (int i = 0; i < static_cast<int>(len * sizeof(T)); ++i) ASSERT_EQ(buf[off + i], 0);
            }
        }
    T x{};
    EXPECT_EQ(set(T{}, nullptr, 0), gexStsNullPtr);
    EXPECT_EQ(set(T{}, &x, 0), gexStsSize);
    EXPECT_EQ(set(T{}, &x, -4), gexStsSize);
    if (zero) {
        EXPECT_EQ(zero(nullptr, -1), gexStsNullPtr);
        EXPECT_EQ(zero(&x, 0), gexStsSize);
    }
}

TEST(SetLine, AllPrimitives) {
    std::mt19937_64 rng(21);
    check_line<Gex8u>(gex::gexsSet_8u, gex::gexsZero_8u, rng);
    check_line<Gex16s>(gex::gexsSet_16s, gex::gexsZero_16s, rng);
    check_line<Gex16u>(gex::gexsSet_16u, nullptr, rng);
    check_line<Gex32s>(gex::gexsSet_32s, gex::gexsZero_32s, rng);
    check_line<Gex32f>(gex::gexsSet_32f, gex::gexsZero_32f, rng);
}

// ---- vector kernels against their scalar twins ------------------------------------------

TEST(SetKernels, PatternRowMatchesScalar) {
    std::mt19937_64 rng(31);
    const int lengths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200, 255, 256, 257, 383, 641, 1000};
    for (int period = 1; period <= 16; ++period) {
        std::uint8_t pat[16];
        for (auto& b : pat) b = static_cast<std::uint8_t>(rng());
        const std::uint32_t all = (1u << period) - 1u;
        for (std::uint32_t wm : {all, 1u, static_cast<std::uint32_t>(rng()) & all, all >> 1}) {
            const gex::FillPattern fp(pat, period, wm);
            for (int n : lengths)
                for (int off : {0, 1, 3, 7, 33})
                    for (gex::Stores st : {gex::Stores::Cached, gex::Stores::Streaming}) {
                        // The row ends right before an inaccessible page.
                        Guarded<Gex8u> img(n, 1, 1, Layout{off, 0, 1, false, true});
                        img.fill_random(rng);
                        std::vector<Gex8u> ref = img.snapshot();
                        gex::pattern_row(img.ptr(), n, fp, st);
                        if (st == gex::Stores::Streaming) _mm_sfence();
                        gex::pattern_row_scalar(ref.data(), n, fp);
                        ASSERT_EQ(img.snapshot(), ref) << "period " << period << " write mask " << wm
                                                       << " length " << n << " offset " << off;
                        ASSERT_TRUE(img.guards_ok());
                    }
        }
    }
}

TEST(SetKernels, MaskedRowMatchesScalar) {
    std::mt19937_64 rng(32);
    struct Kind { int e, ch, written; } kinds[] = {{1, 1, 1}, {1, 3, 3}, {1, 4, 4}, {1, 4, 3}, {2, 1, 1},
                                                   {2, 3, 3}, {2, 4, 4}, {2, 4, 3}, {4, 1, 1}, {4, 3, 3},
                                                   {4, 4, 4}, {4, 4, 3}};
    for (const Kind& k : kinds) {
        std::uint8_t pat[16];
        for (auto& b : pat) b = static_cast<std::uint8_t>(rng());
        const int pixel = k.e * k.ch;
        const gex::FillPattern fp(pat, pixel, (1u << (k.e * k.written)) - 1u);
        for (int w : {1, 2, 3, 5, 7, 15, 16, 17, 31, 32, 33, 63, 64, 65, 127, 129, 200})
            for (int off : {0, 1, 3})  // in whole elements
                for (int fill = 0; fill < 3; ++fill) {  // random, none, all
                    Guarded<Gex8u> img(w * pixel, 1, 1, Layout{off * k.e, 0, 1, false, true});
                    Guarded<Gex8u> mask(w, 1, 1, Layout{off, 0, 1, false, true});
                    img.fill_random(rng);
                    if (fill == 0) fill_mask(mask, rng);
                    else mask.fill(fill == 1 ? 0 : 0x80);
                    std::vector<Gex8u> ref = img.snapshot();
                    gex::masked_row(img.ptr(), mask.ptr(), w, fp, k.e);
                    gex::masked_row_scalar(ref.data(), mask.ptr(), w, fp);
                    ASSERT_EQ(img.snapshot(), ref)
                        << "element " << k.e << " channels " << k.ch << " written " << k.written << " width " << w
                        << " offset " << off << " mask kind " << fill;
                    ASSERT_TRUE(img.guards_ok());
                }
    }
}

// ---- streaming ---------------------------------------------------------------------

int g_queries = 0;
int g_cache = 0;
GexStatus fake_cache(int* size) {
    ++g_queries;
    if (g_cache <= 0) return gexStsErr;
    *size = g_cache;
    return gexStsOk;
}

gex::Stores decide(gex::StreamRule rule, std::int64_t volume, int cache) {
    g_cache = cache;
    return gex::choose_stores(rule, volume, &fake_cache);
}

TEST(SetStreaming, ThresholdsThenCache) {
    using gex::Stores;
    // At or below the threshold the cache is never asked.
    g_queries = 0;
    EXPECT_EQ(decide(gex::kStreamSet8uImage, 0x600000, 1), Stores::Cached);
    EXPECT_EQ(decide(gex::kStreamSetRow, 0x200000, 1), Stores::Cached);
    EXPECT_EQ(decide(gex::kStreamSet32C4, 0x80000, 1), Stores::Cached);
    EXPECT_EQ(g_queries, 0);
    // Above it: volume >= c for the image rules.
    EXPECT_EQ(decide(gex::kStreamSet8uImage, 0x600001, 0x600001), Stores::Streaming);
    EXPECT_EQ(decide(gex::kStreamSet8uImage, 0x600001, 0x600002), Stores::Cached);
    EXPECT_EQ(decide(gex::kStreamSet32C4, 0x80001, 0x80001), Stores::Streaming);
    EXPECT_EQ(decide(gex::kStreamSet32C4, 0x80001, 0x100000), Stores::Cached);
    // volume > c for the rows.
    EXPECT_EQ(decide(gex::kStreamSetRow, 0x200001, 0x200001), Stores::Cached);
    EXPECT_EQ(decide(gex::kStreamSetRow, 0x200001, 0x200000), Stores::Streaming);
    EXPECT_EQ(g_queries, 6);
    // A failed query keeps the cache.
    EXPECT_EQ(decide(gex::kStreamSet8uImage, 1 << 30, 0), Stores::Cached);
    EXPECT_EQ(decide(gex::kStreamSetRow, 1 << 30, -1), Stores::Cached);
    EXPECT_EQ(g_queries, 8);
}

// A 7 MB 8u image through gexiSet_8u_C1R's body with a tiny cache, gapless
// and with a gap, from an odd address: same bytes as the cached path.
TEST(SetStreaming, Set8uC1StreamingEqualsCached) {
    const int w = 2400, h = 3000;  // 7.2e6 bytes > 0x600000
    for (const Layout lay : {Layout{0, 0, 0, false, true}, Layout{3, 61, 1, false, false}}) {
        Guarded<Gex8u> img(w, h, 1, lay);
        g_queries = 0;
        g_cache = 4096;
        ASSERT_EQ(gex::set_8u_c1r_with(0x5c, img.ptr(), img.step(), {w, h}, &fake_cache), gexStsOk);
        EXPECT_EQ(g_queries, 1);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (img.at(x, y) != 0x5c) FAIL() << "pixel " << x << "," << y;
        EXPECT_TRUE(img.guards_ok());
        // Small images never ask.
        g_queries = 0;
        ASSERT_EQ(gex::set_8u_c1r_with(1, img.ptr(), img.step(), {w, 2}, &fake_cache), gexStsOk);
        EXPECT_EQ(g_queries, 0);
    }
}

TEST(SetStreaming, Set32fC4AndRowsStreamingEqualCached) {
    std::mt19937_64 rng(41);
    const Gex32f v[4] = {1.5f, -2.0f, 3e30f, -0.0f};
    for (const Layout& lay : all_layouts()) {
        for (int w : {129, 200}) {  // 16 * w * h above 0x80000
            const int h = 300;
            Guarded<Gex32f> a(w, h, 4, lay), b(w, h, 4, lay);
            a.fill_random(rng);
            g_cache = 1;
            ASSERT_EQ(gex::set_32f_c4r_with(v, a.ptr(), a.step(), {w, h}, &fake_cache), gexStsOk);
            g_cache = 0;  // the query fails: cached
            ASSERT_EQ(gex::set_32f_c4r_with(v, b.ptr(), b.step(), {w, h}, &fake_cache), gexStsOk);
            ASSERT_TRUE(a.guards_ok() && b.guards_ok());
            const auto sa = a.snapshot(), sb = b.snapshot();
            ASSERT_EQ(std::memcmp(sa.data(), sb.data(), sa.size() * sizeof(Gex32f)), 0);
            ASSERT_TRUE(same_bits(a.at(w - 1, h - 1, 3), -0.0f));
        }
    }
    // 16u rows above 2 MB (gapless: one row) with a small cache.
    for (const Layout& lay : all_layouts()) {
        const int w = 1111, h = 1000;
        Guarded<Gex16u> a(w, h, 1, lay);
        a.fill_random(rng);
        g_cache = 1;
        ASSERT_EQ(gex::set_16u_c1r_with(0xbeef, a.ptr(), a.step(), {w, h}, &fake_cache), gexStsOk);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                if (a.at(x, y) != 0xbeef) FAIL() << "pixel " << x << "," << y;
        ASSERT_TRUE(a.guards_ok());
    }
}

// The engine with a wide pattern and a masked pattern under streaming: masked
// patterns keep ordinary stores and still leave their bytes alone.
TEST(SetStreaming, EngineRowsAndMaskedPatterns) {
    std::mt19937_64 rng(42);
    const std::uint8_t pat[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    for (std::uint32_t wm : {0xfffu, 0x0ffu, 0x00fu}) {
        const gex::FillPattern fp(pat, 12, wm);
        for (const Layout& lay : all_layouts()) {
            Guarded<Gex8u> a(12 * 77, 9, 1, lay);
            a.fill_random(rng);
            std::vector<Gex8u> ref = a.snapshot();
            gex::fill_pattern_2d(a.ptr(), a.step(), 12 * 77, 9, fp, gex::Stores::Streaming);
            for (int y = 0; y < 9; ++y) gex::pattern_row_scalar(ref.data() + y * 12 * 77, 12 * 77, fp);
            ASSERT_EQ(a.snapshot(), ref);
            ASSERT_TRUE(a.guards_ok());
        }
    }
}

}  // namespace
