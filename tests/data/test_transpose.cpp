// Transpose: every export on guarded images against an index model, odd and
// thin shapes, the in-place forms (square only) and pSrc = pDst, statuses,
// and the block kernels against their scalar twins.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <utility>
#include <vector>

#include "data/transpose_kernels.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
namespace tk = gex::transpose_kernels;

namespace {

// Source sizes: thin, odd, around the block sizes (16 x 64 bytes, 16 x 16 dwords).
const std::pair<int, int> kSizes[] = {{1, 1},  {1, 37}, {37, 1},  {3, 5},   {5, 3},  {17, 33}, {100, 3},
                                      {3, 100}, {16, 16}, {64, 16}, {65, 17}, {33, 64}, {130, 20}, {8, 200}};

template <class T>
using Fn = GexStatus (*)(const T*, int, T*, int, GexiSize);
template <class T>
using FnI = GexStatus (*)(T*, int, GexiSize);

template <class T>
struct Member {
    int ch;
    Fn<T> fn;
    FnI<T> fnI;
};

template <class T> struct Members;
#define GEX_TEST_TRANSPOSE(D, T)                                                                         \
    template <> struct Members<T> {                                                                      \
        static std::array<Member<T>, 3> all() {                                                          \
            return {{{1, gexiTranspose_##D##_C1R, gexiTranspose_##D##_C1IR},                             \
                     {3, gexiTranspose_##D##_C3R, gexiTranspose_##D##_C3IR},                             \
                     {4, gexiTranspose_##D##_C4R, gexiTranspose_##D##_C4IR}}};                           \
        }                                                                                                \
    };
GEX_TEST_TRANSPOSE(8u, Gex8u)
GEX_TEST_TRANSPOSE(16u, Gex16u)
GEX_TEST_TRANSPOSE(16s, Gex16s)
GEX_TEST_TRANSPOSE(32s, Gex32s)
GEX_TEST_TRANSPOSE(32f, Gex32f)

template <class T>
bool same_bits(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// dst(x = y', y = x') = src(x', y'), elementwise on a w x h source.
template <class T>
void expect_transposed(const Guarded<T>& src, const Guarded<T>& dst, int w, int h, int ch) {
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < ch; ++c)
                if (!same_bits(dst.at(y, x, c), src.at(x, y, c))) {
                    ADD_FAILURE() << "source pixel " << x << "," << y << " channel " << c;
                    return;
                }
}

// In place on a square: the model is a copy of the image before the call.
template <class T>
void expect_transposed_of(const std::vector<T>& before, const Guarded<T>& img, int n, int ch) {
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x)
            for (int c = 0; c < ch; ++c) {
                const T want = before[(static_cast<std::size_t>(x) * n + y) * ch + c];
                if (!same_bits(img.at(x, y, c), want)) {
                    ADD_FAILURE() << "pixel " << x << "," << y << " channel " << c;
                    return;
                }
            }
}

}  // namespace

template <class T>
class TransposeDepth : public ::testing::Test {};
using TransposeDepths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(TransposeDepth, TransposeDepths);

TYPED_TEST(TransposeDepth, EveryFormShapeAndLayout) {
    using T = TypeParam;
    std::mt19937_64 rng(21);
    const auto lays = gextest::standard_layouts();
    for (const auto& m : Members<T>::all())
        for (std::size_t li = 0; li < lays.size(); ++li)
            for (auto [w, h] : kSizes) {
                Guarded<T> src(w, h, m.ch, lays[li]), dst(h, w, m.ch, lays[(li + w) % lays.size()]);
                src.fill_random(rng);
                dst.fill_random(rng);
                const auto s0 = src.snapshot();
                SCOPED_TRACE(::testing::Message() << "C" << m.ch << " " << w << "x" << h << " layout " << li);
                ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}), gexStsOk);
                expect_transposed(src, dst, w, h, m.ch);
                ASSERT_EQ(src.snapshot(), s0);
                ASSERT_TRUE(dst.guards_ok());
                ASSERT_TRUE(src.guards_ok());
            }
}

// Square sizes across one and several 64- and 32-pixel tiles, in place and
// through pSrc = pDst.
TYPED_TEST(TransposeDepth, InPlaceSquares) {
    using T = TypeParam;
    std::mt19937_64 rng(22);
    const auto lays = gextest::standard_layouts();
    int i = 0;
    for (const auto& m : Members<T>::all())
        for (int n : {1, 2, 3, 16, 17, 33, 64, 65, 100, 130}) {
            for (bool viaR : {false, true}) {
                Guarded<T> img(n, n, m.ch, lays[i++ % lays.size()]);
                img.fill_random(rng);
                const auto before = img.snapshot();
                const GexStatus st = viaR ? m.fn(img.ptr(), img.step(), img.ptr(), img.step(), {n, n})
                                          : m.fnI(img.ptr(), img.step(), {n, n});
                ASSERT_EQ(st, gexStsOk);
                SCOPED_TRACE(::testing::Message() << "C" << m.ch << " n " << n << (viaR ? " via R" : " IR"));
                expect_transposed_of(before, img, n, m.ch);
                ASSERT_TRUE(img.guards_ok());
            }
        }
}

TYPED_TEST(TransposeDepth, StatusesAndNothingWritten) {
    using T = TypeParam;
    std::mt19937_64 rng(23);
    for (const auto& m : Members<T>::all()) {
        Guarded<T> src(5, 5, m.ch), dst(5, 5, m.ch);
        src.fill_random(rng);
        dst.fill_random(rng);
        const auto s0 = src.snapshot(), d0 = dst.snapshot();
        EXPECT_EQ(m.fn(nullptr, src.step(), dst.ptr(), dst.step(), {5, 5}), gexStsNullPtr);
        EXPECT_EQ(m.fn(src.ptr(), src.step(), nullptr, dst.step(), {0, 5}), gexStsNullPtr);
        EXPECT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {0, 5}), gexStsSize);
        EXPECT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {5, -2}), gexStsSize);
        EXPECT_EQ(m.fnI(nullptr, src.step(), {5, 5}), gexStsNullPtr);
        EXPECT_EQ(m.fnI(nullptr, src.step(), {3, 5}), gexStsNullPtr);
        EXPECT_EQ(m.fnI(src.ptr(), src.step(), {0, 0}), gexStsSize);
        EXPECT_EQ(m.fnI(src.ptr(), src.step(), {3, 5}), gexStsSize);  // not a square
        EXPECT_EQ(m.fn(src.ptr(), src.step(), src.ptr(), src.step(), {5, 3}), gexStsSize);
        EXPECT_EQ(src.snapshot(), s0);
        EXPECT_EQ(dst.snapshot(), d0);
        EXPECT_TRUE(src.guards_ok());
        EXPECT_TRUE(dst.guards_ok());
    }
}

TEST(Transpose, ThreeByFiveGivesFiveByThree) {
    Guarded<Gex8u> src(3, 5), dst(5, 3);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 3; ++x) src.at(x, y) = static_cast<Gex8u>(10 * y + x);
    ASSERT_EQ(gexiTranspose_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {3, 5}), gexStsOk);
    EXPECT_EQ(dst.snapshot(), (std::vector<Gex8u>{0, 10, 20, 30, 40, 1, 11, 21, 31, 41, 2, 12, 22, 32, 42}));
    EXPECT_EQ(gexiTranspose_8u_C1IR(src.ptr(), src.step(), {3, 5}), gexStsSize);
}

// No step is checked: a zero source step transposes the first row into
// every column; negative steps are covered by the layouts above.
TEST(Transpose, ZeroSourceStep) {
    Guarded<Gex32f> src(4, 1), dst(3, 4);
    for (int x = 0; x < 4; ++x) src.at(x, 0) = 0.5f * x;
    ASSERT_EQ(gexiTranspose_32f_C1R(src.ptr(), 0, dst.ptr(), dst.step(), {4, 3}), gexStsOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(dst.at(x, y), 0.5f * y);
}

// ---- kernels against their twins -----------------------------------------------

// Random bytes at odd offsets from the start of the buffers; each destination
// byte outside the result keeps its value.
TEST(TransposeKernels, BlocksMatchScalarTwin) {
    std::mt19937_64 rng(24);
    for (int P : {1, 2, 3, 4, 6, 8, 12, 16})
        for (int w = 1; w <= 200; w += (P <= 4 ? 1 : 7))
            for (int h : {1, 5, 16, 33}) {
                const int so = 1 + 2 * (w % 3), doff = 3 + 2 * (h % 2);
                const std::int64_t ss = static_cast<std::int64_t>(w) * P + 13, ds = static_cast<std::int64_t>(h) * P + 7;
                std::vector<std::uint8_t> src(so + ss * h), a(doff + ds * w), b;
                for (auto& v : src) v = static_cast<std::uint8_t>(rng());
                for (auto& v : a) v = static_cast<std::uint8_t>(rng());
                b = a;
                tk::transpose_2d(src.data() + so, ss, a.data() + doff, ds, w, h, P);
                tk::transpose_ref(src.data() + so, ss, b.data() + doff, ds, w, h, P);
                ASSERT_EQ(a, b) << "P " << P << " " << w << "x" << h;
                if (P == 1 || P == 2 || P == 4) {
                    b = a;
                    tk::anti_transpose_2d(src.data() + so, ss, a.data() + doff, ds, w, h, P);
                    tk::anti_transpose_ref(src.data() + so, ss, b.data() + doff, ds, w, h, P);
                    ASSERT_EQ(a, b) << "other diagonal, P " << P << " " << w << "x" << h;
                }
            }
}

// The diagonal of a 2 x 3 source by hand: dst(x, y) = src(w-1-y, h-1-x).
TEST(TransposeKernels, OtherDiagonalByHand) {
    const std::uint8_t src[6] = {1, 2, 3, 4, 5, 6};  // rows {1,2}, {3,4}, {5,6}
    std::uint8_t dst[6] = {};
    tk::anti_transpose_2d(src, 2, dst, 3, 2, 3, 1);
    EXPECT_EQ(std::vector<std::uint8_t>(dst, dst + 6), (std::vector<std::uint8_t>{6, 4, 2, 5, 3, 1}));
}

TEST(TransposeKernels, SquareInPlaceMatchesTwin) {
    std::mt19937_64 rng(25);
    for (int P : {1, 2, 3, 4, 8, 12, 16})
        for (int n : {1, 5, 31, 32, 33, 64, 65, 97, 129}) {
            const std::int64_t step = static_cast<std::int64_t>(n) * P + 5;
            std::vector<std::uint8_t> img(3 + step * n);
            for (auto& v : img) v = static_cast<std::uint8_t>(rng());
            std::vector<std::uint8_t> want = img;
            tk::transpose_ref(img.data() + 3, step, want.data() + 3, step, n, n, P);
            tk::transpose_square_inplace(img.data() + 3, step, n, P);
            ASSERT_EQ(img, want) << "P " << P << " n " << n;
        }
}
