// Copy: whole-pixel and AC4 copies of every depth, the _L forms and their row
// chunking, CopyManaged, the one-dimensional copies, and the row kernels
// against their scalar twins.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <immintrin.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <stdexcept>
#include <vector>

#include "data/copy.hpp"
#include "gexcore.h"
#include "gexip.h"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

// The standard layouts plus one with no gap between rows (merged into one row).
std::vector<Layout> layouts() {
    auto v = gextest::standard_layouts();
    v.push_back(Layout{0, 0, 1, false, false});
    return v;
}

template <class T>
using Fn = GexStatus (*)(const T*, int, T*, int, GexiSize);
template <class T>
using FnL = GexStatus (*)(const T*, Gex64s, T*, Gex64s, GexiSizeL);

// A member and its layout: channels 1, 3, 4, or 4 with the alpha kept.
template <class F>
struct Form {
    F fn;
    int channels;
    bool ac4;
    const char* name;
};

template <class T> struct Members;
#define GEX_TEST_MEMBERS(D, T)                                                                   \
    template <> struct Members<T> {                                                              \
        static std::array<Form<Fn<T>>, 4> all() {                                               \
            return {{{gexiCopy_##D##_C1R, 1, false, "C1R"}, {gexiCopy_##D##_C3R, 3, false, "C3R"}, \
                     {gexiCopy_##D##_C4R, 4, false, "C4R"}, {gexiCopy_##D##_AC4R, 4, true, "AC4R"}}}; \
        }                                                                                        \
    };
GEX_TEST_MEMBERS(8u, Gex8u)
GEX_TEST_MEMBERS(16u, Gex16u)
GEX_TEST_MEMBERS(16s, Gex16s)
GEX_TEST_MEMBERS(32s, Gex32s)
GEX_TEST_MEMBERS(32f, Gex32f)

template <class T> struct MembersL;
#define GEX_TEST_MEMBERS_L(D, T)                                                                 \
    template <> struct MembersL<T> {                                                             \
        static std::array<Form<FnL<T>>, 4> all() {                                              \
            return {{{gexiCopy_##D##_C1R_L, 1, false, "C1R_L"},                                  \
                     {gexiCopy_##D##_C3R_L, 3, false, "C3R_L"},                                  \
                     {gexiCopy_##D##_C4R_L, 4, false, "C4R_L"},                                  \
                     {gexiCopy_##D##_AC4R_L, 4, true, "AC4R_L"}}};                              \
        }                                                                                        \
    };
GEX_TEST_MEMBERS_L(8u, Gex8u)
GEX_TEST_MEMBERS_L(32f, Gex32f)

template <class T>
bool same_bytes(const std::vector<T>& a, const std::vector<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// What a copy leaves in the destination: the source, except the alpha of AC4.
template <class T>
std::vector<T> expected(const std::vector<T>& src, const std::vector<T>& oldDst, bool ac4) {
    std::vector<T> e = src;
    if (ac4)
        for (std::size_t i = 3; i < e.size(); i += 4) e[i] = oldDst[i];
    return e;
}

// Runs one member on random guarded images and checks everything the call
// may and may not write. call(src, dst) returns the status.
template <class T, class Call>
void check_copy(int w, int h, int channels, bool ac4, const Layout& ls, const Layout& ld, std::mt19937_64& rng,
                Call call) {
    Guarded<T> src(w, h, channels, ls), dst(w, h, channels, ld);
    src.fill_random(rng);
    dst.fill_random(rng);
    const auto s0 = src.snapshot(), d0 = dst.snapshot();
    ASSERT_EQ(call(src, dst), gexStsOk);
    EXPECT_TRUE(same_bytes(dst.snapshot(), expected(s0, d0, ac4)));
    EXPECT_TRUE(same_bytes(src.snapshot(), s0));
    EXPECT_TRUE(dst.guards_ok());
    EXPECT_TRUE(src.guards_ok());
}

// The failing calls of a member: null before size, nothing written.
template <class T, class Call>
void check_statuses(int channels, Call call) {
    std::mt19937_64 rng(7);
    Guarded<T> src(9, 3, channels), dst(9, 3, channels);
    src.fill_random(rng);
    dst.fill_random(rng);
    const auto d0 = dst.snapshot();
    const T* s = src.ptr();
    T* d = dst.ptr();
    EXPECT_EQ(call(nullptr, d, 9, 3), gexStsNullPtr);
    EXPECT_EQ(call(s, nullptr, 9, 3), gexStsNullPtr);
    EXPECT_EQ(call(nullptr, nullptr, 0, 3), gexStsNullPtr);  // null comes before size
    EXPECT_EQ(call(s, nullptr, 9, 0), gexStsNullPtr);
    EXPECT_EQ(call(s, d, 0, 3), gexStsSize);
    EXPECT_EQ(call(s, d, 9, 0), gexStsSize);
    EXPECT_EQ(call(s, d, -1, 3), gexStsSize);
    EXPECT_EQ(call(s, d, 9, -5), gexStsSize);
    EXPECT_TRUE(same_bytes(dst.snapshot(), d0));
    EXPECT_TRUE(dst.guards_ok());
}

using PageEnd = gextest::Fenced;

void fill_bytes(std::uint8_t* p, std::size_t n, std::mt19937_64& rng) {
    for (std::size_t i = 0; i < n; ++i) p[i] = static_cast<std::uint8_t>(rng());
}

}  // namespace

// ---- every member of every depth ---------------------------------------------

template <class T>
class CopyDepth : public ::testing::Test {};
using CopyDepths = ::testing::Types<Gex8u, Gex16u, Gex16s, Gex32s, Gex32f>;
TYPED_TEST_SUITE(CopyDepth, CopyDepths);

TYPED_TEST(CopyDepth, EveryLayoutPairAndWidth) {
    using T = TypeParam;
    std::mt19937_64 rng(1);
    const auto lays = layouts();
    for (const auto& f : Members<T>::all())
        for (const auto& ls : lays)
            for (const auto& ld : lays)
                for (int w : kWidths) {
                    SCOPED_TRACE(::testing::Message() << f.name << " width " << w << " src lpad " << ls.lpad
                                                      << " dst lpad " << ld.lpad);
                    check_copy<T>(w, 3, f.channels, f.ac4, ls, ld, rng, [&](Guarded<T>& s, Guarded<T>& d) {
                        return f.fn(s.ptr(), s.step(), d.ptr(), d.step(), GexiSize{w, 3});
                    });
                }
}

TYPED_TEST(CopyDepth, StatusOrderAndNothingWrittenOnFailure) {
    using T = TypeParam;
    for (const auto& f : Members<T>::all()) {
        SCOPED_TRACE(f.name);
        check_statuses<T>(f.channels, [&](const T* s, T* d, int w, int h) {
            return f.fn(s, 64 * 4 * int(sizeof(T)), d, 64 * 4 * int(sizeof(T)), GexiSize{w, h});
        });
    }
}

// A zero source step repeats the first row; a negative one walks upwards, so
// starting from the last row flips the image.
TYPED_TEST(CopyDepth, ZeroAndNegativeSourceSteps) {
    using T = TypeParam;
    std::mt19937_64 rng(2);
    for (const auto& f : Members<T>::all()) {
        SCOPED_TRACE(f.name);
        const int w = 37, h = 6, n = w * f.channels;
        std::vector<T> src(static_cast<std::size_t>(n) * h);
        for (auto& v : src) v = Guarded<T>::random_value(rng);
        const int rowBytes = n * int(sizeof(T));

        Guarded<T> rep(w, h, f.channels), flip(w, h, f.channels);
        rep.fill_random(rng);
        flip.fill_random(rng);
        const auto r0 = rep.snapshot(), f0 = flip.snapshot();
        ASSERT_EQ(f.fn(src.data(), 0, rep.ptr(), rep.step(), GexiSize{w, h}), gexStsOk);
        ASSERT_EQ(f.fn(src.data() + std::size_t(n) * (h - 1), -rowBytes, flip.ptr(), flip.step(), GexiSize{w, h}),
                  gexStsOk);
        for (int y = 0; y < h; ++y)
            for (int i = 0; i < n; ++i) {
                const std::size_t k = std::size_t(y) * n + i;
                const bool alpha = f.ac4 && i % 4 == 3;
                const T wantRep = alpha ? r0[k] : src[i];
                const T wantFlip = alpha ? f0[k] : src[std::size_t(h - 1 - y) * n + i];
                ASSERT_EQ(std::memcmp(&rep.at(0, y, i), &wantRep, sizeof(T)), 0) << "y " << y << " i " << i;
                ASSERT_EQ(std::memcmp(&flip.at(0, y, i), &wantFlip, sizeof(T)), 0) << "y " << y << " i " << i;
            }
        EXPECT_TRUE(rep.guards_ok());
        EXPECT_TRUE(flip.guards_ok());
    }
}

TEST(CopyAC4, AlphaOfTheDestinationStays) {
    Guarded<Gex8u> src(13, 4, 4), dst(13, 4, 4);
    src.fill(200);
    dst.fill(9);
    ASSERT_EQ(gexiCopy_8u_AC4R(src.ptr(), src.step(), dst.ptr(), dst.step(), GexiSize{13, 4}), gexStsOk);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 13; ++x) {
            EXPECT_EQ(dst.at(x, y, 0), 200);
            EXPECT_EQ(dst.at(x, y, 2), 200);
            EXPECT_EQ(dst.at(x, y, 3), 9);
        }
    Guarded<Gex32f> fs(5, 2, 4), fd(5, 2, 4);
    fs.fill(-1.5f);
    fd.fill(9.0f);
    ASSERT_EQ(gexiCopy_32f_AC4R_L(fs.ptr(), fs.step(), fd.ptr(), fd.step(), GexiSizeL{5, 2}), gexStsOk);
    EXPECT_EQ(fd.at(4, 1, 2), -1.5f);
    EXPECT_EQ(fd.at(4, 1, 3), 9.0f);
}

// ---- the _L forms ------------------------------------------------------------

template <class T>
class CopyDepthL : public ::testing::Test {};
using CopyDepthsL = ::testing::Types<Gex8u, Gex32f>;
TYPED_TEST_SUITE(CopyDepthL, CopyDepthsL);

TYPED_TEST(CopyDepthL, EveryLayoutAndWidth) {
    using T = TypeParam;
    std::mt19937_64 rng(3);
    const auto lays = layouts();
    for (const auto& f : MembersL<T>::all())
        for (std::size_t i = 0; i < lays.size(); ++i)
            for (int w : kWidths) {
                const Layout& ls = lays[i];
                const Layout& ld = lays[(i + 1) % lays.size()];
                SCOPED_TRACE(::testing::Message() << f.name << " width " << w << " layout " << i);
                check_copy<T>(w, 3, f.channels, f.ac4, ls, ld, rng, [&](Guarded<T>& s, Guarded<T>& d) {
                    return f.fn(s.ptr(), s.step(), d.ptr(), d.step(), GexiSizeL{w, 3});
                });
            }
}

// The _L forms check by themselves: null first, then size, width 0 included.
TYPED_TEST(CopyDepthL, StatusOrderAndSixtyFourBitSteps) {
    using T = TypeParam;
    std::mt19937_64 rng(4);
    for (const auto& f : MembersL<T>::all()) {
        SCOPED_TRACE(f.name);
        check_statuses<T>(f.channels, [&](const T* s, T* d, int w, int h) {
            return f.fn(s, 64 * 4 * Gex64s(sizeof(T)), d, 64 * 4 * Gex64s(sizeof(T)), GexiSizeL{w, h});
        });
        // A step beyond 32 bits is taken as it is; with one row it is never used.
        check_copy<T>(11, 1, f.channels, f.ac4, Layout{}, Layout{}, rng, [&](Guarded<T>& s, Guarded<T>& d) {
            return f.fn(s.ptr(), Gex64s{1} << 40, d.ptr(), -(Gex64s{3} << 36), GexiSizeL{11, 1});
        });
    }
}

// Rows longer than a chunk go in chunks; a failing chunk is remembered while
// the rest is still copied; otherwise the last status counts.
TEST(CopyL, RowsAreChunkedAndStatusesCombined) {
    struct Call {
        std::int64_t srcOff, dstOff;
        int len;
    };
    std::vector<Gex8u> src(200), dst(200);
    std::vector<Call> calls;
    std::vector<GexStatus> replies;
    auto record = [&](const Gex8u* s, Gex8u* d, int len) {
        calls.push_back({s - src.data(), d - dst.data(), len});
        const GexStatus r = calls.size() <= replies.size() ? replies[calls.size() - 1] : gexStsOk;
        return r;
    };
    ASSERT_EQ(gex::copy_rows_L(src.data(), 40, dst.data(), 50, 30, 2, 7, record), gexStsOk);
    ASSERT_EQ(calls.size(), 10u);
    const int lens[] = {7, 7, 7, 7, 2};
    for (int k = 0; k < 10; ++k) {
        EXPECT_EQ(calls[k].srcOff, (k / 5) * 40 + (k % 5) * 7);
        EXPECT_EQ(calls[k].dstOff, (k / 5) * 50 + (k % 5) * 7);
        EXPECT_EQ(calls[k].len, lens[k % 5]);
    }
    calls.clear();  // a row of exactly one chunk is one call
    ASSERT_EQ(gex::copy_rows_L(src.data(), 7, dst.data(), 7, 7, 3, 7, record), gexStsOk);
    EXPECT_EQ(calls.size(), 3u);

    calls.clear();
    replies = {gexStsOk, gexStsNullPtr, gexStsOk, 3};
    EXPECT_EQ(gex::copy_rows_L(src.data(), 40, dst.data(), 50, 30, 2, 7, record), gexStsNullPtr);
    EXPECT_EQ(calls.size(), 10u);  // the work went on
    calls.clear();
    replies = {3, 3, 3, 3, 3, 3, 3, 3, 3, gexStsOk};
    EXPECT_EQ(gex::copy_rows_L(src.data(), 40, dst.data(), 50, 30, 2, 7, record), gexStsOk);
    calls.clear();
    replies = {gexStsOk, gexStsOk, gexStsOk, gexStsOk, gexStsOk, gexStsOk, gexStsOk, gexStsOk, gexStsOk, 3};
    EXPECT_EQ(gex::copy_rows_L(src.data(), 40, dst.data(), 50, 30, 2, 7, record), 3);

    // AC4 pieces go to the 32-bit form as one-row ROIs of at most the chunk.
    std::vector<std::array<std::int64_t, 3>> roiCalls;
    auto recordAc4 = [&](const Gex8u* s, int, Gex8u* d, int, GexiSize roi) {
        roiCalls.push_back({s - src.data(), d - dst.data(), roi.width});
        EXPECT_EQ(roi.height, 1);
        return gexStsOk;
    };
    ASSERT_EQ(gex::copy_ac4_rows_L(src.data(), 100, dst.data(), 96, 23, 2, 5, recordAc4), gexStsOk);
    ASSERT_EQ(roiCalls.size(), 10u);
    for (int k = 0; k < 10; ++k) {
        EXPECT_EQ(roiCalls[k][0], (k / 5) * 100 + (k % 5) * 20);
        EXPECT_EQ(roiCalls[k][1], (k / 5) * 96 + (k % 5) * 20);
        EXPECT_EQ(roiCalls[k][2], k % 5 == 4 ? 3 : 5);
    }
}

// The chunked loops with the real primitives and small chunks give the same
// image as one call per row.
TEST(CopyL, SmallChunksCopyTheSameImage) {
    std::mt19937_64 rng(5);
    for (const auto& lay : layouts())
        for (int w : {1, 5, 23, 64, 129}) {
            SCOPED_TRACE(::testing::Message() << "width " << w);
            for (int ch : {1, 3, 4})
                check_copy<Gex8u>(w, 4, ch, false, lay, Layout{}, rng, [&](Guarded<Gex8u>& s, Guarded<Gex8u>& d) {
                    return gex::copy_rows_L(s.ptr(), s.step(), d.ptr(), d.step(), Gex64s{w} * ch, 4, 7,
                                            gex::gexsCopy_8u);
                });
            check_copy<Gex32f>(w, 4, 3, false, lay, Layout{}, rng, [&](Guarded<Gex32f>& s, Guarded<Gex32f>& d) {
                return gex::copy_rows_L(s.ptr(), s.step(), d.ptr(), d.step(), Gex64s{w} * 3, 4, 5, gex::gexsCopy_32f);
            });
            check_copy<Gex8u>(w, 4, 4, true, lay, Layout{}, rng, [&](Guarded<Gex8u>& s, Guarded<Gex8u>& d) {
                return gex::copy_ac4_rows_L(s.ptr(), s.step(), d.ptr(), d.step(), w, 4, 5, gexiCopy_8u_AC4R);
            });
            check_copy<Gex32f>(w, 4, 4, true, lay, Layout{}, rng, [&](Guarded<Gex32f>& s, Guarded<Gex32f>& d) {
                return gex::copy_ac4_rows_L(s.ptr(), s.step(), d.ptr(), d.step(), w, 4, 3, gexiCopy_32f_AC4R);
            });
        }
}

// ---- one-dimensional copies ----------------------------------------------------

TEST(CopyPrimitive, StatusesAndContents) {
    std::mt19937_64 rng(6);
    Gex8u a[4] = {1, 2, 3, 4}, b[4] = {9, 9, 9, 9};
    EXPECT_EQ(gex::gexsCopy_8u(nullptr, b, 4), gexStsNullPtr);
    EXPECT_EQ(gex::gexsCopy_8u(a, nullptr, 4), gexStsNullPtr);
    EXPECT_EQ(gex::gexsCopy_8u(nullptr, b, 0), gexStsNullPtr);
    EXPECT_EQ(gex::gexsCopy_8u(a, b, 0), gexStsSize);
    EXPECT_EQ(gex::gexsCopy_8u(a, b, -3), gexStsSize);
    EXPECT_EQ(b[0], 9);
    EXPECT_EQ(gex::gexsCopy_16s(nullptr, nullptr, 1), gexStsNullPtr);
    EXPECT_EQ(gex::gexsCopy_32s(nullptr, nullptr, 1), gexStsNullPtr);
    EXPECT_EQ(gex::gexsCopy_32f(nullptr, nullptr, 1), gexStsNullPtr);

    auto run = [&](auto prim, auto tag, int len) {
        using T = decltype(tag);
        Guarded<T> s(len, 1, 1, Layout{0, 0, 0, false, true}), d(len, 1, 1, Layout{3, 5, 1, false, false});
        s.fill_random(rng);
        d.fill_random(rng);
        ASSERT_EQ(prim(s.ptr(), d.ptr(), len), gexStsOk);
        EXPECT_TRUE(same_bytes(d.snapshot(), s.snapshot())) << len;
        EXPECT_TRUE(d.guards_ok());
        EXPECT_EQ(prim(s.ptr(), d.ptr(), 0), gexStsSize);
    };
    for (int len : {1, 2, 63, 64, 65, 200, 1000, 40000}) {
        run(gex::gexsCopy_8u, Gex8u{}, len);
        run(gex::gexsCopy_16s, Gex16s{}, len);
        run(gex::gexsCopy_32s, Gex32s{}, len);
        run(gex::gexsCopy_32f, Gex32f{}, len);
    }
}

// ---- row kernels against their scalar twins -----------------------------------

// Sources end at an inaccessible page, so a read past the row faults; the
// destination row ends at one or is followed by bytes that must keep their
// values, as must the bytes before it.
TEST(CopyKernels, MatchScalarTwins) {
    using namespace gex::copy_kernels;
    std::mt19937_64 rng(8);
    std::vector<std::int64_t> sizes;
    for (int n = 1; n <= 200; ++n) sizes.push_back(n);
    for (int n : {255, 256, 257, 511, 512, 513, 1000, 4099}) sizes.push_back(n);
    // {source offset, destination offset, bytes after the destination row}
    const int offsets[][3] = {{0, 0, 0}, {1, 3, 0}, {7, 33, 17}, {63, 61, 0}, {33, 33, 5}, {5, 0, 40}, {0, 0, 64}};
    for (std::int64_t n : sizes)
        for (const auto& off : offsets) {
            SCOPED_TRACE(::testing::Message() << "n " << n << " offsets " << off[0] << "," << off[1] << "," << off[2]);
            PageEnd s(n + off[0]), d(n + off[1] + 64 + off[2]);
            fill_bytes(s.base(), s.size(), rng);
            fill_bytes(d.base(), d.size(), rng);
            const std::vector<std::uint8_t> d0(d.base(), d.base() + d.size());
            std::vector<std::uint8_t> want = d0;
            row_ref(s.base() + off[0], want.data() + off[1] + 64, n);
            std::uint8_t* dst = d.base() + off[1] + 64;
            // Destination offset relative to the page differs from the source's
            // unless both offsets match mod 64: both streaming-load branches run.
            row_cached(s.base() + off[0], dst, n);
            ASSERT_EQ(std::memcmp(d.base(), want.data(), d.size()), 0) << "cached";
            for (bool loads : {false, true}) {
                std::memcpy(d.base(), d0.data(), d.size());
                row_stream(s.base() + off[0], dst, n, loads);
                _mm_sfence();
                ASSERT_EQ(std::memcmp(d.base(), want.data(), d.size()), 0) << "stream, loads " << loads;
            }
        }
}

// The last pixel's alpha of both rows lies in the inaccessible page: the AC4
// kernels neither read the source's alpha nor write the destination's.
template <int E>
void ac4_kernel_case(std::int64_t pixels, int soff, int doff, std::mt19937_64& rng) {
    using namespace gex::copy_kernels;
    const std::int64_t bytes = pixels * 4 * E;
    PageEnd s(bytes - E + soff), d(bytes - E + doff);
    fill_bytes(s.base(), s.size(), rng);
    fill_bytes(d.base(), d.size(), rng);
    std::vector<std::uint8_t> srcFull(s.base() + soff, s.base() + s.size());
    srcFull.resize(bytes, 0);
    std::vector<std::uint8_t> want(d.base(), d.base() + d.size());
    want.resize(bytes + doff, 0);
    row_ac4_ref(srcFull.data(), want.data() + doff, pixels, E);
    row_ac4<E>(s.base() + soff, d.base() + doff, pixels);
    ASSERT_EQ(std::memcmp(d.base(), want.data(), d.size()), 0) << "E " << E << " pixels " << pixels;
}

TEST(CopyKernels, Ac4MatchesScalarTwinAndLeavesAlpha) {
    std::mt19937_64 rng(9);
    std::vector<std::int64_t> sizes;
    for (int n = 1; n <= 200; ++n) sizes.push_back(n);
    for (int n : {255, 256, 257, 1000}) sizes.push_back(n);
    for (std::int64_t n : sizes)
        for (int soff : {0, 1, 6})
            for (int doff : {0, 3, 8}) {
                ac4_kernel_case<1>(n, soff, doff, rng);
                ac4_kernel_case<2>(n, soff, doff, rng);
                ac4_kernel_case<4>(n, soff, doff, rng);
            }
}

// ---- the non-temporal paths ------------------------------------------------------

// An image of a few megabytes (above the volume threshold) through every path
// of the engine gives the same bytes; gaps between rows stay.
TEST(CopyStreaming, EveryPathGivesTheSameImage) {
    std::mt19937_64 rng(10);
    struct Case {
        std::int64_t rowBytes, height, srcStep, dstStep;
        int soff, doff;
    };
    const Case cases[] = {
        {4099, 520, 4099 + 13, 4099 + 77, 1, 3},     // odd everything
        {4096, 540, 4160, 4224, 0, 0},               // lined up: streaming loads
        {8192 + 64, 300, 8192 + 64, 8192 + 64, 64, 0},  // no gap: one long row
        {3001, 800, 0, 3001 + 5, 7, 0},              // zero source step
        {2050, 1100, -2050 - 30, 2050 + 2, 0, 11},   // negative source step
    };
    for (const auto& c : cases)
        for (auto path : {gex::CopyPath::Cached, gex::CopyPath::Stream, gex::CopyPath::StreamLoads,
                          gex::CopyPath::Auto}) {
            SCOPED_TRACE(::testing::Message() << "row " << c.rowBytes << " path " << int(path));
            const std::int64_t sSpan = c.srcStep == 0 ? c.rowBytes : std::llabs(c.srcStep) * (c.height - 1) + c.rowBytes;
            const std::int64_t dSpan = c.dstStep * (c.height - 1) + c.rowBytes;
            std::vector<std::uint8_t> sbuf(sSpan + 64 + c.soff), dbuf(dSpan + 128 + c.doff);
            fill_bytes(sbuf.data(), sbuf.size(), rng);
            fill_bytes(dbuf.data(), dbuf.size(), rng);
            auto align = [](std::uint8_t* p) {
                return p + ((0 - reinterpret_cast<std::uintptr_t>(p)) & 63u);
            };
            std::uint8_t* s = align(sbuf.data()) + c.soff;
            if (c.srcStep < 0) s += sSpan - c.rowBytes;
            std::uint8_t* d = align(dbuf.data()) + c.doff;
            std::vector<std::uint8_t> want = dbuf;
            for (std::int64_t y = 0; y < c.height; ++y)
                gex::copy_kernels::row_ref(s + y * c.srcStep, want.data() + (d - dbuf.data()) + y * c.dstStep,
                                           c.rowBytes);
            gex::copy_bytes_2d(s, c.srcStep, d, c.dstStep, c.rowBytes, c.height, path);
            ASSERT_TRUE(dbuf == want);
        }
}

// CopyManaged: bit 1 streams the stores, bit 2 the loads too, other bits are
// ignored; every combination copies the same pixels as the plain Copy.
TEST(CopyStreaming, ManagedFlags) {
    std::mt19937_64 rng(11);
    const int w = 2049, h = 1100;  // over 2 MB
    for (const auto& lay : {Layout{}, Layout{3, 61, 1, false, false}, Layout{5, 9, 1, true, true},
                            Layout{0, 0, 1, false, false}})
        for (int flags : {0, 1, 2, 3, 4, 0x7ffffff8}) {
            SCOPED_TRACE(::testing::Message() << "flags " << flags << " lpad " << lay.lpad);
            check_copy<Gex8u>(w, h, 1, false, Layout{1, 2, 1, false, false}, lay, rng,
                              [&](Guarded<Gex8u>& s, Guarded<Gex8u>& d) {
                                  return gexiCopyManaged_8u_C1R(s.ptr(), s.step(), d.ptr(), d.step(),
                                                                GexiSize{w, h}, flags);
                              });
        }
    Gex8u a = 1, b = 2;
    EXPECT_EQ(gexiCopyManaged_8u_C1R(nullptr, 1, &b, 1, GexiSize{0, 1}, 1), gexStsNullPtr);
    EXPECT_EQ(gexiCopyManaged_8u_C1R(&a, 1, &b, 1, GexiSize{1, 0}, 2), gexStsSize);
    EXPECT_EQ(b, 2);
}

// The volume thresholds come before the cache query; past them the answer
// follows half the largest cache.
TEST(CopyStreaming, Thresholds) {
    int c = 0;
    const bool known = gexGetMaxCacheSizeB(&c) == gexStsOk && c > 0;
    EXPECT_FALSE(gex::stream_row(0x400000));
    EXPECT_FALSE(gex::stream_image(0x300000));
    const std::int64_t big = std::int64_t{1} << 40;
    EXPECT_EQ(gex::stream_row(big), known);
    EXPECT_EQ(gex::stream_image(big), known);
    if (known) {
        const std::int64_t half = c / 2;
        EXPECT_EQ(gex::stream_row(std::max<std::int64_t>(half, 0x400001)), true);
        EXPECT_EQ(gex::stream_image(std::max<std::int64_t>(half, 0x300001)), true);
        if (half > 0x400001) {
            EXPECT_FALSE(gex::stream_row(half - 1));
        }
        if (half > 0x300001) {
            EXPECT_FALSE(gex::stream_image(half - 1));
        }
    }
}
