// Mirror: every export and flip on guarded images against an index model,
// in place with odd and even sizes, pSrc = pDst, the diagonal flips with the
// overlap rule, statuses and their order, and the row kernels against their
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

#include "data/mirror_kernels.hpp"
#include "gexip.h"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
namespace mk = gex::mirror_kernels;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 16, 21, 31, 33, 63, 64, 65, 127, 129, 200};

template <class T>
using Fn = GexStatus (*)(const T*, int, T*, int, GexiSize, GexiAxis);
template <class T>
using FnI = GexStatus (*)(T*, int, GexiSize, GexiAxis);

template <class T>
struct Member {
    const char* name;
    int ch;
    bool ac4;
    Fn<T> fn;
    FnI<T> fnI;
};

// Forms that flip about the diagonals and test their steps.
template <class T>
constexpr bool kDiag = std::is_same_v<T, Gex8u> || std::is_same_v<T, Gex16u> || std::is_same_v<T, Gex32s>;

template <class T> struct Members;
#define GEX_TEST_MIRROR(D, T)                                                                            \
    template <> struct Members<T> {                                                                      \
        static std::array<Member<T>, 4> all() {                                                          \
            return {{{"C1R", 1, false, gexiMirror_##D##_C1R, gexiMirror_##D##_C1IR},                     \
                     {"C3R", 3, false, gexiMirror_##D##_C3R, gexiMirror_##D##_C3IR},                     \
                     {"C4R", 4, false, gexiMirror_##D##_C4R, gexiMirror_##D##_C4IR},                     \
                     {"AC4R", 4, true, gexiMirror_##D##_AC4R, gexiMirror_##D##_AC4IR}}};                 \
        }                                                                                                \
    };
GEX_TEST_MIRROR(8u, Gex8u)
GEX_TEST_MIRROR(16u, Gex16u)
GEX_TEST_MIRROR(16s, Gex16s)
GEX_TEST_MIRROR(32s, Gex32s)
GEX_TEST_MIRROR(32f, Gex32f)

GexiAxis axis(int f) { return static_cast<GexiAxis>(f); }

// The model of flips 0..2 on snapshots (row-major w x h, ch channels):
// destination pixel (x, y) from source pixel (x', y'); AC4 keeps the old alpha.
template <class T>
std::vector<T> model(const std::vector<T>& src, const std::vector<T>& dst, int w, int h, int ch, bool ac4, int flip) {
    std::vector<T> e = dst;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int sx = flip == 0 ? x : w - 1 - x;
            const int sy = flip == 1 ? y : h - 1 - y;
            for (int c = 0; c < (ac4 ? 3 : ch); ++c)
                e[(static_cast<std::size_t>(y) * w + x) * ch + c] = src[(static_cast<std::size_t>(sy) * w + sx) * ch + c];
        }
    return e;
}

template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// Forms with step tests refuse negative steps.
template <class T>
std::vector<Layout> layouts_for(const Member<T>& m) {
    return gextest::standard_layouts(!(kDiag<T> && m.ch == 1));
}

using FencedRow = gextest::Fenced;

}  // namespace

template <class T>
class MirrorDepth : public ::testing::Test {};
using MirrorDepths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(MirrorDepth, MirrorDepths);

TYPED_TEST(MirrorDepth, EveryFormFlipAndLayout) {
    using T = TypeParam;
    std::mt19937_64 rng(31);
    for (const auto& m : Members<T>::all()) {
        const auto lays = layouts_for(m);
        for (int flip = 0; flip < 3; ++flip)
            for (std::size_t li = 0; li < lays.size(); ++li)
                for (int w : kWidths) {
                    const int h = 1 + (w + flip) % 4;
                    Guarded<T> src(w, h, m.ch, lays[li]), dst(w, h, m.ch, lays[(li + 1 + w) % lays.size()]);
                    src.fill_random(rng);
                    dst.fill_random(rng);
                    const auto s0 = src.snapshot(), d0 = dst.snapshot();
                    SCOPED_TRACE(::testing::Message() << m.name << " flip " << flip << " " << w << "x" << h
                                                      << " layout " << li);
                    ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, axis(flip)), gexStsOk);
                    ASSERT_TRUE(same(dst.snapshot(), model(s0, d0, w, h, m.ch, m.ac4, flip)));
                    ASSERT_TRUE(same(src.snapshot(), s0));
                    ASSERT_TRUE(dst.guards_ok());
                    ASSERT_TRUE(src.guards_ok());
                }
    }
}

// Odd and even sizes in place (middle rows and pixels), through the in-place
// form and through pSrc = pDst.
TYPED_TEST(MirrorDepth, InPlace) {
    using T = TypeParam;
    std::mt19937_64 rng(32);
    const auto lays = gextest::standard_layouts();
    int i = 0;
    for (const auto& m : Members<T>::all())
        for (int flip = 0; flip < 3; ++flip)
            for (int w : {1, 2, 3, 4, 47, 64, 65, 96, 97, 200})
                for (int h : {1, 2, 3, 4, 5}) {
                    const bool viaR = (i & 1) != 0;
                    Guarded<T> img(w, h, m.ch, lays[i++ % lays.size()]);
                    img.fill_random(rng);
                    const auto s0 = img.snapshot();
                    SCOPED_TRACE(::testing::Message() << m.name << " flip " << flip << " " << w << "x" << h
                                                      << (viaR ? " via R" : " IR"));
                    const GexStatus st = viaR ? m.fn(img.ptr(), img.step(), img.ptr(), img.step(), {w, h}, axis(flip))
                                              : m.fnI(img.ptr(), img.step(), {w, h}, axis(flip));
                    ASSERT_EQ(st, gexStsOk);
                    ASSERT_TRUE(same(img.snapshot(), model(s0, s0, w, h, m.ch, m.ac4, flip)));
                    ASSERT_TRUE(img.guards_ok());
                }
}

TYPED_TEST(MirrorDepth, FlipValuesAndStatuses) {
    using T = TypeParam;
    std::mt19937_64 rng(33);
    for (const auto& m : Members<T>::all()) {
        SCOPED_TRACE(m.name);
        Guarded<T> src(4, 3, m.ch), dst(4, 3, m.ch);
        src.fill_random(rng);
        dst.fill_random(rng);
        const auto s0 = src.snapshot(), d0 = dst.snapshot();
        const int ss = src.step(), ds = dst.step();
        const bool diag = kDiag<T> && m.ch == 1;
        for (int bad : {5, 6, 7}) {
            EXPECT_EQ(m.fn(src.ptr(), ss, dst.ptr(), ds, {4, 3}, axis(bad)), gexStsMirrorFlip);
            EXPECT_EQ(m.fnI(src.ptr(), ss, {4, 3}, axis(bad)), gexStsMirrorFlip);
        }
        for (int f : {3, 4}) {
            EXPECT_EQ(m.fnI(src.ptr(), ss, {4, 3}, axis(f)), gexStsMirrorFlip);
            if (!diag) {
                EXPECT_EQ(m.fn(src.ptr(), ss, dst.ptr(), ds, {4, 3}, axis(f)), gexStsMirrorFlip);
            }
        }
        EXPECT_EQ(m.fn(nullptr, ss, dst.ptr(), ds, {4, 3}, axis(0)), gexStsNullPtr);
        EXPECT_EQ(m.fn(src.ptr(), ss, nullptr, ds, {0, 3}, axis(5)), gexStsNullPtr);
        EXPECT_EQ(m.fn(src.ptr(), ss, dst.ptr(), ds, {0, 3}, axis(5)), gexStsSize);
        EXPECT_EQ(m.fn(src.ptr(), ss, dst.ptr(), ds, {4, -3}, axis(1)), gexStsSize);
        EXPECT_EQ(m.fnI(nullptr, ss, {0, 3}, axis(5)), gexStsNullPtr);
        EXPECT_EQ(m.fnI(src.ptr(), ss, {4, 0}, axis(5)), gexStsSize);
        if (diag) {
            // Steps are tested after the size, and before the flip value.
            EXPECT_EQ(m.fn(src.ptr(), 0, dst.ptr(), ds, {0, 3}, axis(1)), gexStsSize);
            EXPECT_EQ(m.fn(src.ptr(), ss, dst.ptr(), -ds, {4, 3}, axis(1)), gexStsStep);
            EXPECT_EQ(m.fn(src.ptr(), 0, dst.ptr(), ds, {4, 3}, axis(5)), gexStsStep);
        }
        EXPECT_TRUE(same(src.snapshot(), s0));
        EXPECT_TRUE(same(dst.snapshot(), d0));
        EXPECT_TRUE(dst.guards_ok());
        // Without step tests a zero source step repeats its row (flip 1 reverses it).
        if (!diag) {
            ASSERT_EQ(m.fn(src.ptr(), 0, dst.ptr(), ds, {4, 3}, axis(1)), gexStsOk);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < 4; ++x)
                    for (int c = 0; c < (m.ac4 ? 3 : m.ch); ++c)
                        EXPECT_EQ(std::memcmp(&dst.at(x, y, c), &src.at(3 - x, 0, c), sizeof(T)), 0);
        }
    }
}

TEST(Mirror, OnePixelHighFlip0) {
    Guarded<Gex8u> src(5, 1, 3), dst(5, 1, 3);
    std::mt19937_64 rng(34);
    src.fill_random(rng);
    const auto s0 = src.snapshot();
    ASSERT_EQ(gexiMirror_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), {5, 1}, gexAxsHorizontal), gexStsOk);
    EXPECT_EQ(dst.snapshot(), s0);
    ASSERT_EQ(gexiMirror_8u_C3IR(src.ptr(), src.step(), {5, 1}, gexAxsHorizontal), gexStsOk);
    EXPECT_EQ(src.snapshot(), s0);
}

// In place, the middle row of an odd height and the middle pixel of an odd
// width: flip 0 keeps the middle row, flip 2 reverses it; alpha stays.
TEST(Mirror, InPlaceMiddles) {
    Guarded<Gex8u> img(3, 3, 4);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x)
            for (int c = 0; c < 4; ++c) img.at(x, y, c) = static_cast<Gex8u>(100 * c + 10 * y + x);
    ASSERT_EQ(gexiMirror_8u_AC4IR(img.ptr(), img.step(), {3, 3}, gexAxsHorizontal), gexStsOk);
    for (int x = 0; x < 3; ++x) EXPECT_EQ(img.at(x, 1, 0), 10 + x);
    EXPECT_EQ(img.at(0, 0, 1), 100 + 20);
    ASSERT_EQ(gexiMirror_8u_AC4IR(img.ptr(), img.step(), {3, 3}, gexAxsBoth), gexStsOk);
    EXPECT_EQ(img.at(0, 1, 0), 12);  // the middle row reversed on its own
    EXPECT_EQ(img.at(1, 1, 0), 11);
    EXPECT_EQ(img.at(2, 1, 2), 200 + 10);
    EXPECT_EQ(img.at(0, 0, 0), 2);   // back to the top row, reversed
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(img.at(x, y, 3), 300 % 256 + 10 * y + x);  // alpha never moves
}

// ---- the diagonal flips ------------------------------------------------------------

template <class T>
void check_diagonals(Fn<T> fn) {
    std::mt19937_64 rng(35);
    for (auto [w, h] : {std::pair{1, 1}, {1, 9}, {9, 1}, {3, 5}, {17, 33}, {100, 3}, {64, 16}, {70, 40}})
        for (int f : {3, 4}) {
            Guarded<T> src(w, h, 1, Layout{3, 9, 1, false, false}), dst(h, w, 1, Layout{0, 5, 1, false, true});
            src.fill_random(rng);
            dst.fill_random(rng);
            ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, axis(f)), gexStsOk);
            for (int y = 0; y < w; ++y)
                for (int x = 0; x < h; ++x) {
                    const T want = f == 3 ? src.at(y, x) : src.at(w - 1 - y, h - 1 - x);
                    ASSERT_EQ(dst.at(x, y), want) << "flip " << f << " " << w << "x" << h << " at " << x << "," << y;
                }
            ASSERT_TRUE(dst.guards_ok());
        }
}

TEST(Mirror, Diagonals) {
    check_diagonals<Gex8u>(gexiMirror_8u_C1R);
    check_diagonals<Gex16u>(gexiMirror_16u_C1R);
    check_diagonals<Gex32s>(gexiMirror_32s_C1R);
}

TEST(Mirror, DiagonalOverlapAndOrder) {
    // One buffer holding both ROIs. The source is 6 x 4 with step 16.
    std::vector<Gex8u> buf(4096, 0x11);
    Gex8u* s = buf.data() + 256;
    const GexiSize roi{6, 4};
    for (int f : {3, 4}) {
        // Destination starting inside the source, and source corner inside a destination row.
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s + 2 * 16 + 1, 16, roi, axis(f)), gexStsNotSupportedMode);
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s - 3, 16, roi, axis(f)), gexStsNotSupportedMode);
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s, 16, roi, axis(f)), gexStsNotSupportedMode);  // pSrc = pDst
        // The destination's last row ends one byte before the source's first: no overlap.
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s - 5 * 16 - 4, 16, roi, axis(f)), gexStsOk);
        // Order: null, steps, size, then the overlap.
        EXPECT_EQ(gexiMirror_8u_C1R(nullptr, 0, s, 16, {0, 0}, axis(f)), gexStsNullPtr);
        EXPECT_EQ(gexiMirror_8u_C1R(s, 0, s, 16, {0, 0}, axis(f)), gexStsStep);
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s, -16, roi, axis(f)), gexStsStep);
        EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s, 16, {0, 4}, axis(f)), gexStsSize);
    }
    std::vector<Gex8u> before(buf);
    EXPECT_EQ(gexiMirror_8u_C1R(s, 16, s + 2, 16, roi, gexAxs45), gexStsNotSupportedMode);
    EXPECT_EQ(buf, before);  // nothing written on failure
}

// Interleaved rows: the destination's rows lie in the gaps between the
// source's rows (no corner of one is in a row of the other), so the flip runs.
TEST(Mirror, DiagonalInterleavedRowsRun) {
    for (int f : {3, 4}) {
        std::vector<Gex16u> buf(1024);
        for (std::size_t i = 0; i < buf.size(); ++i) buf[i] = static_cast<Gex16u>(i);
        Gex16u* s = buf.data();
        Gex16u* d = buf.data() + 16;          // 16 elements after each source row start
        const int step = 64;                  // bytes: 32 elements per row
        const GexiSize roi{5, 4};             // source rows of 5, destination rows of 4
        std::vector<Gex16u> src(buf);
        ASSERT_EQ(gexiMirror_16u_C1R(s, step, d, step, roi, axis(f)), gexStsOk);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 4; ++x) {
                const int sx = f == 3 ? y : 4 - y, sy = f == 3 ? x : 3 - x;
                EXPECT_EQ(d[y * 32 + x], src[sy * 32 + sx]);
            }
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 5; ++x) EXPECT_EQ(s[y * 32 + x], src[y * 32 + x]);
    }
}

// ---- kernels against their twin --------------------------------------------------

TEST(MirrorKernels, ReversalMatchesScalarTwin) {
    std::mt19937_64 rng(36);
    std::vector<mk::RowFormat> formats;
    for (int E : {1, 2, 4}) {
        formats.push_back({E, 1, false});
        formats.push_back({E, 3, false});
        formats.push_back({E, 4, false});
        formats.push_back({E, 4, true});
    }
    for (const mk::RowFormat& f : formats)
        for (int n = 1; n <= 200; ++n) {
            const std::size_t bytes = static_cast<std::size_t>(n) * f.pixel();
            const int off = 1 + 2 * (n % 3);
            const bool front = n % 2 == 1;
            FencedRow src(bytes + off, front), dst(bytes + off, !front);
            for (std::size_t i = 0; i < bytes + off; ++i) src.data()[i] = static_cast<std::uint8_t>(rng());
            for (std::size_t i = 0; i < bytes + off; ++i) dst.data()[i] = static_cast<std::uint8_t>(rng());
            std::uint8_t* sp = src.data() + (front ? 0 : off);
            std::uint8_t* dp = dst.data() + (front ? off : 0);
            std::vector<std::uint8_t> ref(dst.data(), dst.data() + bytes + off);
            mk::reverse_row_ref(sp, ref.data() + (dp - dst.data()), n, f);
            mk::reverse_row(sp, dp, n, f);
            ASSERT_EQ(0, std::memcmp(ref.data(), dst.data(), bytes + off))
                << "E " << f.E << " ch " << f.ch << " ac4 " << f.ac4 << " n " << n;
            // In place: the same result as the out-of-place twin.
            std::vector<std::uint8_t> want(sp, sp + bytes);
            mk::reverse_row_ref(sp, want.data(), n, f);
            mk::reverse_row_inplace(sp, n, f);
            ASSERT_EQ(0, std::memcmp(want.data(), sp, bytes)) << "in place, E " << f.E << " ch " << f.ch << " n " << n;
            // Two rows exchanged reversed.
            std::vector<std::uint8_t> a(sp, sp + bytes), b(dp, dp + bytes), wa = a, wb = b;
            mk::reverse_row_ref(b.data(), wa.data(), n, f);
            mk::reverse_row_ref(a.data(), wb.data(), n, f);
            mk::exchange_reversed_rows(sp, dp, n, f);
            ASSERT_EQ(0, std::memcmp(wa.data(), sp, bytes)) << "exchange, n " << n;
            ASSERT_EQ(0, std::memcmp(wb.data(), dp, bytes)) << "exchange, n " << n;
        }
}
