// BinToGray and GrayToBin: every depth against a bit-level model on guarded
// images with bit offsets 0..15 (and a far one) and widths 1..40 and beyond,
// the bits outside the ROI in the first and last byte of each row, the
// strict threshold, the check order, and the vector kernels against their
// scalar twins.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "data/bin_gray.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

using gextest::same_bits;

namespace {

template <class T>
bool same_value(T a, T b) {
    if constexpr (std::is_floating_point_v<T>)
        if (std::isnan(a) && std::isnan(b)) return true;
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

int bit_of(const Gex8u* row, std::int64_t pos) { return (row[pos / 8] >> (pos % 8)) & 1; }

std::vector<int> widths() {
    std::vector<int> v;
    for (int w = 1; w <= 40; ++w) v.push_back(w);
    for (int w : {63, 64, 65, 127, 128, 129, 200}) v.push_back(w);
    return v;
}

std::vector<int> offsets() {
    std::vector<int> v;
    for (int o = 0; o < 16; ++o) v.push_back(o);
    v.push_back(77);
    return v;
}

// Positive steps only: these families check them.
std::vector<Layout> layouts() { return {Layout{}, Layout{3, 11, 1, false, true}, Layout{0, 0, 1, false, false}}; }

template <class T>
T random_gray(std::mt19937_64& rng, T thr) {
    if constexpr (std::is_floating_point_v<T>) {
        const unsigned k = rng() % 16;
        if (k == 0) return std::numeric_limits<T>::quiet_NaN();
        if (k == 1) return thr;
        if (k == 2) return std::nextafter(thr, std::numeric_limits<T>::infinity());
        return static_cast<T>(std::uniform_real_distribution<double>(-100.0, 100.0)(rng));
    } else {
        const unsigned k = rng() % 8;
        if (k == 0) return thr;
        if (k == 1 && thr != std::numeric_limits<T>::max()) return static_cast<T>(thr + 1);
        return static_cast<T>(rng());
    }
}

template <class D>
using B2G = GexStatus (*)(const Gex8u*, int, int, D*, int, GexiSize, D, D);
template <class S>
using G2B = GexStatus (*)(const S*, int, Gex8u*, int, int, GexiSize, S);

// ---- BinToGray -------------------------------------------------------------------------

template <class D>
void check_bin_to_gray(B2G<D> f, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const auto lay = layouts();
    int li = 0;
    for (int off : offsets())
        for (int w : widths()) {
            const int h = 1 + static_cast<int>(rng() % 3);
            const int nbytes = (off + w + 7) / 8;
            Guarded<Gex8u> src(nbytes, h, 1, lay[li % 3]);
            Guarded<D> dst(w, h, 1, lay[(li + 1) % 3]);
            ++li;
            src.fill_random(rng);
            dst.fill_random(rng);
            const std::vector<Gex8u> src0 = src.snapshot();
            const D lo = Guarded<D>::random_value(rng), hi = Guarded<D>::random_value(rng);
            ASSERT_EQ(f(src.ptr(), src.step(), off, dst.ptr(), dst.step(), {w, h}, lo, hi), gexStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    ASSERT_TRUE(same_value(dst.at(x, y), bit_of(src.row(y), off + x) ? hi : lo))
                        << "offset " << off << " width " << w << " pixel (" << x << "," << y << ")";
            ASSERT_TRUE(dst.guards_ok()) << "offset " << off << " width " << w;
            ASSERT_TRUE(src.guards_ok() && same_bits(src.snapshot(), src0));
        }
}

TEST(BinToGray, Values) {
    check_bin_to_gray<Gex8u>(gexiBinToGray_1u8u_C1R, 1);
    check_bin_to_gray<Gex16u>(gexiBinToGray_1u16u_C1R, 2);
    check_bin_to_gray<Gex16s>(gexiBinToGray_1u16s_C1R, 3);
    check_bin_to_gray<Gex32f>(gexiBinToGray_1u32f_C1R, 4);
}

// ---- GrayToBin -------------------------------------------------------------------------

template <class S>
void check_gray_to_bin(G2B<S> f, std::uint64_t seed) {
    std::mt19937_64 rng(seed);
    const auto lay = layouts();
    int li = 0;
    for (int off : offsets())
        for (int w : widths()) {
            const int h = 1 + static_cast<int>(rng() % 3);
            const int nbytes = (off + w + 7) / 8;
            Guarded<S> src(w, h, 1, lay[li % 3]);
            Guarded<Gex8u> dst(nbytes, h, 1, lay[(li + 2) % 3]);
            ++li;
            const S thr = Guarded<S>::random_value(rng);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) src.at(x, y) = random_gray<S>(rng, thr);
            dst.fill_random(rng);
            const std::vector<Gex8u> before = dst.snapshot();
            ASSERT_EQ(f(src.ptr(), src.step(), dst.ptr(), dst.step(), off, {w, h}, thr), gexStsOk);
            for (int y = 0; y < h; ++y) {
                // The row as it was, with the ROI's bits replaced.
                std::vector<Gex8u> want(before.begin() + std::int64_t{y} * nbytes,
                                        before.begin() + std::int64_t{y + 1} * nbytes);
                for (int x = 0; x < w; ++x) {
                    const int pos = off + x;
                    const Gex8u m = static_cast<Gex8u>(1 << (pos % 8));
                    want[pos / 8] = (thr < src.at(x, y)) ? (want[pos / 8] | m) : (want[pos / 8] & ~m);
                }
                for (int i = 0; i < nbytes; ++i)
                    ASSERT_EQ(dst.at(i, y), want[i]) << "offset " << off << " width " << w << " row " << y
                                                     << " byte " << i;
            }
            ASSERT_TRUE(dst.guards_ok()) << "offset " << off << " width " << w;
        }
}

TEST(GrayToBin, Values) {
    check_gray_to_bin<Gex8u>(gexiGrayToBin_8u1u_C1R, 5);
    check_gray_to_bin<Gex16u>(gexiGrayToBin_16u1u_C1R, 6);
    check_gray_to_bin<Gex16s>(gexiGrayToBin_16s1u_C1R, 7);
    check_gray_to_bin<Gex32f>(gexiGrayToBin_32f1u_C1R, 8);
}

// A pixel equal to the threshold gives 0; one above gives 1; NaN gives 0.
TEST(GrayToBin, StrictThreshold) {
    const Gex8u p8[4] = {100, 101, 99, 255};
    Gex8u out = 0xf0;
    ASSERT_EQ(gexiGrayToBin_8u1u_C1R(p8, 4, &out, 1, 0, {4, 1}, 100), gexStsOk);
    EXPECT_EQ(out, 0xf0 | 0x2 | 0x8);
    const Gex16s p16[3] = {-5, -4, -6};
    out = 0;
    ASSERT_EQ(gexiGrayToBin_16s1u_C1R(p16, 6, &out, 1, 3, {3, 1}, -5), gexStsOk);
    EXPECT_EQ(out, 0x2 << 3);
    const Gex32f pf[3] = {0.5f, std::nextafter(0.5f, 1.0f), std::numeric_limits<float>::quiet_NaN()};
    out = 0xff;
    ASSERT_EQ(gexiGrayToBin_32f1u_C1R(pf, 12, &out, 1, 5, {3, 1}, 0.5f), gexStsOk);
    EXPECT_EQ(out, 0x1f | (0x2 << 5));
}

// ---- checks ------------------------------------------------------------------------------

TEST(BinGray, CheckOrder) {
    Guarded<Gex8u> bits(4, 2);
    Guarded<Gex8u> gray(20, 2);
    const std::vector<Gex8u> bits0 = bits.snapshot(), gray0 = gray.snapshot();
    const Gex8u* b = bits.ptr();
    Gex8u* g = gray.ptr();
    const int bs = bits.step(), gs = gray.step();
    auto b2g = [&](const Gex8u* s, int ss, int off, Gex8u* d, int ds, GexiSize r) {
        return gexiBinToGray_1u8u_C1R(s, ss, off, d, ds, r, 0, 255);
    };
    EXPECT_EQ(b2g(nullptr, bs, 0, g, gs, {20, 2}), gexStsNullPtr);
    EXPECT_EQ(b2g(b, bs, 0, nullptr, gs, {20, 2}), gexStsNullPtr);
    EXPECT_EQ(b2g(nullptr, 0, -1, g, 0, {0, 2}), gexStsNullPtr);
    EXPECT_EQ(b2g(b, bs, 0, g, gs, {0, 2}), gexStsSize);
    EXPECT_EQ(b2g(b, 0, -1, g, 0, {20, 0}), gexStsSize);
    EXPECT_EQ(b2g(b, 0, -1, g, gs, {20, 2}), gexStsStep);
    EXPECT_EQ(b2g(b, bs, -1, g, -gs, {20, 2}), gexStsStep);
    EXPECT_EQ(b2g(b, bs, -1, g, gs, {20, 2}), gexStsSize);
    EXPECT_TRUE(same_bits(gray.snapshot(), gray0) && gray.guards_ok());

    auto g2b = [&](const Gex8u* s, int ss, Gex8u* d, int ds, int off, GexiSize r) {
        return gexiGrayToBin_8u1u_C1R(s, ss, d, ds, off, r, 7);
    };
    Gex8u* bw = bits.ptr();
    EXPECT_EQ(g2b(nullptr, gs, bw, bs, 0, {20, 2}), gexStsNullPtr);
    EXPECT_EQ(g2b(g, gs, nullptr, bs, 0, {20, 2}), gexStsNullPtr);
    EXPECT_EQ(g2b(nullptr, 0, bw, 0, -3, {0, 2}), gexStsNullPtr);
    EXPECT_EQ(g2b(g, gs, bw, bs, 0, {20, -1}), gexStsSize);
    EXPECT_EQ(g2b(g, 0, bw, 0, -3, {0, 2}), gexStsSize);
    EXPECT_EQ(g2b(g, gs, bw, 0, -3, {20, 2}), gexStsStep);
    EXPECT_EQ(g2b(g, -gs, bw, bs, 0, {20, 2}), gexStsStep);
    EXPECT_EQ(g2b(g, gs, bw, bs, -3, {20, 2}), gexStsSize);
    EXPECT_TRUE(same_bits(bits.snapshot(), bits0) && bits.guards_ok());

    // The other depths share the order; spot-check each on the offset.
    Guarded<Gex16u> g16(20, 2);
    Guarded<Gex32f> g32(20, 2);
    EXPECT_EQ(gexiBinToGray_1u16u_C1R(b, bs, -1, g16.ptr(), g16.step(), {20, 2}, 0, 1), gexStsSize);
    EXPECT_EQ(gexiBinToGray_1u16s_C1R(b, bs, -1, reinterpret_cast<Gex16s*>(g16.ptr()), g16.step(), {20, 2}, 0, 1),
              gexStsSize);
    EXPECT_EQ(gexiBinToGray_1u32f_C1R(b, bs, 0, g32.ptr(), 0, {20, 2}, 0, 1), gexStsStep);
    EXPECT_EQ(gexiGrayToBin_16u1u_C1R(g16.ptr(), g16.step(), bw, bs, -8, {20, 2}, 0), gexStsSize);
    EXPECT_EQ(gexiGrayToBin_16s1u_C1R(nullptr, g16.step(), bw, bs, -8, {20, 2}, 0), gexStsNullPtr);
    EXPECT_EQ(gexiGrayToBin_32f1u_C1R(g32.ptr(), g32.step(), bw, bs, 0, {0, 2}, 0), gexStsSize);
    EXPECT_TRUE(same_bits(bits.snapshot(), bits0) && bits.guards_ok());
}

// ---- kernels against their scalar twins --------------------------------------------------

template <class T>
void twins(std::uint64_t seed) {
    namespace bk = gex::bin_gray_kernels;
    std::mt19937_64 rng(seed);
    std::vector<Gex8u> bits(40), ba(40), bb(40);
    std::vector<T> gray(210), ga(210), gb(210);
    for (int w = 1; w <= 200; w += (w < 70 ? 1 : 11))
        for (int b = 0; b < 8; ++b) {
            for (auto& v : bits) v = static_cast<Gex8u>(rng());
            const T lo = Guarded<T>::random_value(rng), hi = Guarded<T>::random_value(rng);
            for (std::size_t i = 0; i < ga.size(); ++i) ga[i] = gb[i] = static_cast<T>(i);
            bk::bin_to_gray_row(bits.data(), b, ga.data(), w, lo, hi);
            bk::bin_to_gray_row_ref(bits.data(), b, gb.data(), w, lo, hi);
            for (std::size_t i = 0; i < ga.size(); ++i)
                ASSERT_TRUE(same_value(ga[i], gb[i])) << "BinToGray w " << w << " b " << b << " i " << i;

            const T thr = Guarded<T>::random_value(rng);
            for (auto& v : gray) v = random_gray<T>(rng, thr);
            for (std::size_t i = 0; i < ba.size(); ++i) ba[i] = bb[i] = static_cast<Gex8u>(rng());
            bk::gray_to_bin_row(gray.data(), ba.data(), b, w, thr);
            bk::gray_to_bin_row_ref(gray.data(), bb.data(), b, w, thr);
            ASSERT_EQ(ba, bb) << "GrayToBin w " << w << " b " << b;
        }
}

TEST(BinGray, KernelsMatchScalarTwins) {
    twins<Gex8u>(11);
    twins<Gex16u>(12);
    twins<Gex16s>(13);
    twins<Gex32f>(14);
}

}  // namespace
