// Image transforms: Pack layout against a double reference spectrum for odd
// and even sizes (1xN, Nx1, 2x2, the grouped column path above 450), the
// inverse and complex forms, channels (AC4 alpha neither read nor written),
// in place, guarded images and statuses.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

#include "gexip.h"
#include "support/guarded.hpp"
#include "transform/fourier_ref.hpp"

namespace {

using namespace fref;
using gextest::Guarded;
using gextest::Layout;

// A 2-D record of either family and form.
struct Rec2 {
    std::vector<Gex8u> record, init, buf;
    GexStatus st = 0;
    bool dft;
    Rec2(bool isDft, bool real, int W, int H, int flag) : dft(isDft) {
        int a = 0, b = 0, c = 0;
        if (!dft) {
            const int ox = ilog2(W), oy = ilog2(H);
            st = real ? gexiFFTGetSize_R_32f(ox, oy, flag, gexAlgHintNone, &a, &b, &c)
                      : gexiFFTGetSize_C_32fc(ox, oy, flag, gexAlgHintNone, &a, &b, &c);
            if (st) return;
            alloc(a, b, c);
            st = real ? gexiFFTInit_R_32f(ox, oy, flag, gexAlgHintNone, fspec(), init.data())
                      : gexiFFTInit_C_32fc(ox, oy, flag, gexAlgHintNone, fspec(), init.data());
        } else {
            const GexiSize roi = {W, H};
            st = real ? gexiDFTGetSize_R_32f(roi, flag, gexAlgHintNone, &a, &b, &c)
                      : gexiDFTGetSize_C_32fc(roi, flag, gexAlgHintNone, &a, &b, &c);
            if (st) return;
            alloc(a, b, c);
            st = real ? gexiDFTInit_R_32f(roi, flag, gexAlgHintNone, dspec(), init.data())
                      : gexiDFTInit_C_32fc(roi, flag, gexAlgHintNone, dspec(), init.data());
        }
    }
    static int ilog2(int n) {
        int k = 0;
        while ((1 << k) < n) ++k;
        return k;
    }
    void alloc(int a, int b, int c) {
        record.assign(a + 1, 0);
        init.assign(b + 1, 0);
        buf.assign(c + 1, 0);
    }
    GexiFFTSpec* fspec() { return reinterpret_cast<GexiFFTSpec*>(record.data() + 1); }
    GexiDFTSpec* dspec() { return reinterpret_cast<GexiDFTSpec*>(record.data() + 1); }
    Gex8u* b() { return buf.data() + 1; }

    // Real forms by channel layout code: 1, 3, 4, or 5 for AC4.
    GexStatus fwd(const float* s, int ss, float* d, int ds, int ch) {
        if (!dft) {
            switch (ch) {
                case 1: return gexiFFTFwd_RToPack_32f_C1R(s, ss, d, ds, fspec(), b());
                case 3: return gexiFFTFwd_RToPack_32f_C3R(s, ss, d, ds, fspec(), b());
                case 4: return gexiFFTFwd_RToPack_32f_C4R(s, ss, d, ds, fspec(), b());
                default: return gexiFFTFwd_RToPack_32f_AC4R(s, ss, d, ds, fspec(), b());
            }
        }
        switch (ch) {
            case 1: return gexiDFTFwd_RToPack_32f_C1R(s, ss, d, ds, dspec(), b());
            case 3: return gexiDFTFwd_RToPack_32f_C3R(s, ss, d, ds, dspec(), b());
            case 4: return gexiDFTFwd_RToPack_32f_C4R(s, ss, d, ds, dspec(), b());
            default: return gexiDFTFwd_RToPack_32f_AC4R(s, ss, d, ds, dspec(), b());
        }
    }
    GexStatus inv(const float* s, int ss, float* d, int ds, int ch) {
        if (!dft) {
            switch (ch) {
                case 1: return gexiFFTInv_PackToR_32f_C1R(s, ss, d, ds, fspec(), b());
                case 3: return gexiFFTInv_PackToR_32f_C3R(s, ss, d, ds, fspec(), b());
                case 4: return gexiFFTInv_PackToR_32f_C4R(s, ss, d, ds, fspec(), b());
                default: return gexiFFTInv_PackToR_32f_AC4R(s, ss, d, ds, fspec(), b());
            }
        }
        switch (ch) {
            case 1: return gexiDFTInv_PackToR_32f_C1R(s, ss, d, ds, dspec(), b());
            case 3: return gexiDFTInv_PackToR_32f_C3R(s, ss, d, ds, dspec(), b());
            case 4: return gexiDFTInv_PackToR_32f_C4R(s, ss, d, ds, dspec(), b());
            default: return gexiDFTInv_PackToR_32f_AC4R(s, ss, d, ds, dspec(), b());
        }
    }
    GexStatus fwdI(float* p, int st_, int ch) {
        if (!dft) {
            switch (ch) {
                case 1: return gexiFFTFwd_RToPack_32f_C1IR(p, st_, fspec(), b());
                case 3: return gexiFFTFwd_RToPack_32f_C3IR(p, st_, fspec(), b());
                case 4: return gexiFFTFwd_RToPack_32f_C4IR(p, st_, fspec(), b());
                default: return gexiFFTFwd_RToPack_32f_AC4IR(p, st_, fspec(), b());
            }
        }
        switch (ch) {
            case 1: return gexiDFTFwd_RToPack_32f_C1IR(p, st_, dspec(), b());
            case 3: return gexiDFTFwd_RToPack_32f_C3IR(p, st_, dspec(), b());
            case 4: return gexiDFTFwd_RToPack_32f_C4IR(p, st_, dspec(), b());
            default: return gexiDFTFwd_RToPack_32f_AC4IR(p, st_, dspec(), b());
        }
    }
    GexStatus invI(float* p, int st_, int ch) {
        if (!dft) {
            switch (ch) {
                case 1: return gexiFFTInv_PackToR_32f_C1IR(p, st_, fspec(), b());
                case 3: return gexiFFTInv_PackToR_32f_C3IR(p, st_, fspec(), b());
                case 4: return gexiFFTInv_PackToR_32f_C4IR(p, st_, fspec(), b());
                default: return gexiFFTInv_PackToR_32f_AC4IR(p, st_, fspec(), b());
            }
        }
        switch (ch) {
            case 1: return gexiDFTInv_PackToR_32f_C1IR(p, st_, dspec(), b());
            case 3: return gexiDFTInv_PackToR_32f_C3IR(p, st_, dspec(), b());
            case 4: return gexiDFTInv_PackToR_32f_C4IR(p, st_, dspec(), b());
            default: return gexiDFTInv_PackToR_32f_AC4IR(p, st_, dspec(), b());
        }
    }
    GexStatus cplx(const Gex32fc* s, int ss, Gex32fc* d, int ds, bool inverse) {
        if (!dft)
            return inverse ? gexiFFTInv_CToC_32fc_C1R(s, ss, d, ds, fspec(), b())
                           : gexiFFTFwd_CToC_32fc_C1R(s, ss, d, ds, fspec(), b());
        return inverse ? gexiDFTInv_CToC_32fc_C1R(s, ss, d, ds, dspec(), b())
                       : gexiDFTFwd_CToC_32fc_C1R(s, ss, d, ds, dspec(), b());
    }
    GexStatus cplxI(Gex32fc* p, int st_, bool inverse) {
        if (!dft)
            return inverse ? gexiFFTInv_CToC_32fc_C1IR(p, st_, fspec(), b()) : gexiFFTFwd_CToC_32fc_C1IR(p, st_, fspec(), b());
        return inverse ? gexiDFTInv_CToC_32fc_C1IR(p, st_, dspec(), b()) : gexiDFTFwd_CToC_32fc_C1IR(p, st_, dspec(), b());
    }
};

using Grid = std::vector<std::vector<cd>>;  // [row][col]

Grid dft2(const Grid& x, int sign) {
    const std::size_t H = x.size(), W = x[0].size();
    Grid t(H);
    for (std::size_t r = 0; r < H; ++r) t[r] = transform(x[r], sign);
    for (std::size_t c = 0; c < W; ++c) {
        std::vector<cd> col(H);
        for (std::size_t r = 0; r < H; ++r) col[r] = t[r][c];
        col = transform(col, sign);
        for (std::size_t r = 0; r < H; ++r) t[r][c] = col[r];
    }
    return t;
}

// The Pack of a full spectrum, entry by entry from the layout table.
std::vector<double> pack_of(const Grid& F) {
    const int H = static_cast<int>(F.size()), W = static_cast<int>(F[0].size());
    std::vector<double> P(static_cast<std::size_t>(W) * H, std::numeric_limits<double>::quiet_NaN());
    auto at = [&](int r, int c) -> double& { return P[static_cast<std::size_t>(r) * W + c]; };
    at(0, 0) = F[0][0].real();
    for (int k = 1; 2 * k < W; ++k) at(0, 2 * k - 1) = F[0][k].real(), at(0, 2 * k) = F[0][k].imag();
    if (W % 2 == 0 && W > 1) at(0, W - 1) = F[0][W / 2].real();
    for (int k = 1; 2 * k < H; ++k) at(2 * k - 1, 0) = F[k][0].real(), at(2 * k, 0) = F[k][0].imag();
    if (H % 2 == 0 && H > 1) at(H - 1, 0) = F[H / 2][0].real();
    if (W % 2 == 0 && W > 1)
        for (int k = 1; 2 * k < H; ++k) at(2 * k - 1, W - 1) = F[k][W / 2].real(), at(2 * k, W - 1) = F[k][W / 2].imag();
    if (W % 2 == 0 && H % 2 == 0 && W > 1 && H > 1) at(H - 1, W - 1) = F[H / 2][W / 2].real();
    for (int r = 1; r < H; ++r)
        for (int k = 1; 2 * k < W; ++k) at(r, 2 * k - 1) = F[r][k].real(), at(r, 2 * k) = F[r][k].imag();
    return P;
}

double tol_of(const Grid& F, int W, int H) {
    double mag = 0;
    for (auto& r : F)
        for (auto& v : r) mag = std::max(mag, std::abs(v));
    return 4.0 * std::ldexp(1.0, -24) * (std::max(1.0, std::log2(double(W))) + std::max(1.0, std::log2(double(H)))) * mag;
}

Grid real_grid(const Guarded<float>& g, int ch) {
    Grid x(g.height(), std::vector<cd>(g.width()));
    for (int r = 0; r < g.height(); ++r)
        for (int c = 0; c < g.width(); ++c) x[r][c] = g.at(c, r, ch);
    return x;
}

struct Size2 {
    int w, h;
};

std::vector<Size2> dft_sizes() {
    std::vector<Size2> v = {{1, 1}, {1, 9}, {9, 1}, {1, 16}, {16, 1}, {2, 2}, {2, 3}, {3, 2}, {6, 53}, {53, 4}, {460, 452}};
    const int ws[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65};
    for (int i = 0; i < 11; ++i) v.push_back({ws[i], ws[(i * 7 + 3) % 11]});
    return v;
}
std::vector<Size2> fft_sizes() {
    std::vector<Size2> v = {{1, 1}, {1, 8}, {8, 1}, {2, 2}, {4, 2}, {2, 8}, {16, 32}, {64, 64}, {128, 4}, {512, 512}};
    return v;
}

void check_real_forward(bool dft, Size2 s) {
    std::vector<Layout> layouts = gextest::standard_layouts(false);
    if (s.w * s.h > 70000) layouts.resize(1);  // the reference is slow there
    for (Layout lay : layouts) {
        Guarded<float> src(s.w, s.h, 1, lay), dst(s.w, s.h, 1, lay);
        std::mt19937 rng(s.w * 131 + s.h);
        src.fill_random(rng);
        Rec2 rec(dft, true, s.w, s.h, 8);
        ASSERT_EQ(rec.st, 0);
        ASSERT_EQ(rec.fwd(src.ptr(), src.step(), dst.ptr(), dst.step(), 1), 0);
        EXPECT_TRUE(dst.guards_ok());
        EXPECT_TRUE(src.guards_ok());
        const Grid F = dft2(real_grid(src, 0), -1);
        const auto P = pack_of(F);
        const double tol = tol_of(F, s.w, s.h);
        for (int r = 0; r < s.h; ++r)
            for (int c = 0; c < s.w; ++c)
                ASSERT_NEAR(dst.at(c, r), P[static_cast<std::size_t>(r) * s.w + c], tol)
                    << (dft ? "dft " : "fft ") << s.w << "x" << s.h << " at " << c << "," << r;
        // inverse with 1/N on the way back restores the image
        Rec2 back(dft, true, s.w, s.h, 2);
        Guarded<float> out(s.w, s.h, 1, lay);
        ASSERT_EQ(back.fwd(src.ptr(), src.step(), dst.ptr(), dst.step(), 1), 0);
        ASSERT_EQ(back.inv(dst.ptr(), dst.step(), out.ptr(), out.step(), 1), 0);
        EXPECT_TRUE(out.guards_ok());
        for (int r = 0; r < s.h; ++r)
            for (int c = 0; c < s.w; ++c) ASSERT_NEAR(out.at(c, r), src.at(c, r), 2e-3) << s.w << "x" << s.h;
    }
}

TEST(Transform2d, RealForwardIsThePackOfTheSpectrum) {
    for (Size2 s : fft_sizes()) check_real_forward(false, s);
    for (Size2 s : dft_sizes()) check_real_forward(true, s);
}

// The inverse of an arbitrary Pack is the real part of the inverse of its
// conjugate-symmetric extension.
TEST(Transform2d, RealInverseOfAnyPack) {
    for (bool dft : {false, true}) {
        for (Size2 s : dft ? dft_sizes() : fft_sizes()) {
            if (s.w * s.h > 70000) continue;
            Guarded<float> pk(s.w, s.h), out(s.w, s.h);
            std::mt19937 rng(s.w + 7 * s.h);
            pk.fill_random(rng);
            Rec2 rec(dft, true, s.w, s.h, 8);
            ASSERT_EQ(rec.inv(pk.ptr(), pk.step(), out.ptr(), out.step(), 1), 0);
            // extend the Pack to the full spectrum from the same table
            Grid F(s.h, std::vector<cd>(s.w));
            Grid known(s.h, std::vector<cd>(s.w, cd(NAN, 0)));
            auto P = [&](int r, int c) { return double(pk.at(c, r)); };
            const int W = s.w, H = s.h;
            known[0][0] = {P(0, 0), 0};
            for (int k = 1; 2 * k < W; ++k) known[0][k] = {P(0, 2 * k - 1), P(0, 2 * k)};
            if (W % 2 == 0 && W > 1) known[0][W / 2] = {P(0, W - 1), 0};
            for (int k = 1; 2 * k < H; ++k) known[k][0] = {P(2 * k - 1, 0), P(2 * k, 0)};
            if (H % 2 == 0 && H > 1) known[H / 2][0] = {P(H - 1, 0), 0};
            if (W % 2 == 0 && W > 1) {
                for (int k = 1; 2 * k < H; ++k) known[k][W / 2] = {P(2 * k - 1, W - 1), P(2 * k, W - 1)};
                if (H % 2 == 0 && H > 1) known[H / 2][W / 2] = {P(H - 1, W - 1), 0};
            }
            for (int r = 1; r < H; ++r)
                for (int k = 1; 2 * k < W; ++k) known[r][k] = {P(r, 2 * k - 1), P(r, 2 * k)};
            for (int u = 0; u < H; ++u)
                for (int v = 0; v < W; ++v) {
                    const cd a = known[u][v];
                    F[u][v] = std::isnan(a.real()) ? std::conj(known[(H - u) % H][(W - v) % W]) : a;
                }
            const Grid x = dft2(F, 1);
            const double tol = tol_of(x, W, H) + 1e-3;
            for (int r = 0; r < H; ++r)
                for (int c = 0; c < W; ++c) ASSERT_NEAR(out.at(c, r), x[r][c].real(), tol) << W << "x" << H;
        }
    }
}

// Complex forms against the reference, both directions, in place identical.
TEST(Transform2d, ComplexBothDirections) {
    for (bool dft : {false, true}) {
        for (Size2 s : dft ? dft_sizes() : fft_sizes()) {
            const int W = s.w, H = s.h;
            if (dft && W * H > 70000) continue;  // the grouped path is covered by the power-of-two case
            Guarded<float> src(2 * W, H), dst(2 * W, H), ip(2 * W, H);
            std::mt19937 rng(W * 3 + H);
            src.fill_random(rng);
            Rec2 rec(dft, false, W, H, 4);
            ASSERT_EQ(rec.st, 0);
            Grid x(H, std::vector<cd>(W));
            for (int r = 0; r < H; ++r)
                for (int c = 0; c < W; ++c) x[r][c] = {src.at(2 * c, r), src.at(2 * c + 1, r)};
            for (bool inverse : {false, true}) {
                auto cs = [](Guarded<float>& g) { return reinterpret_cast<Gex32fc*>(g.ptr()); };
                ASSERT_EQ(rec.cplx(cs(src), src.step(), cs(dst), dst.step(), inverse), 0);
                EXPECT_TRUE(dst.guards_ok());
                const Grid F = dft2(x, inverse ? 1 : -1);
                const double sc = 1.0 / std::sqrt(double(W) * H);
                const double tol = tol_of(F, W, H) * sc;
                for (int r = 0; r < H; ++r)
                    for (int c = 0; c < W; ++c) {
                        ASSERT_NEAR(dst.at(2 * c, r), F[r][c].real() * sc, tol) << W << "x" << H;
                        ASSERT_NEAR(dst.at(2 * c + 1, r), F[r][c].imag() * sc, tol) << W << "x" << H;
                    }
                for (int r = 0; r < H; ++r) std::memcpy(ip.row(r), src.row(r), sizeof(float) * 2 * W);
                ASSERT_EQ(rec.cplxI(cs(ip), ip.step(), inverse), 0);
                EXPECT_EQ(ip.snapshot(), dst.snapshot());
            }
        }
    }
}

// Channels: each channel equals the one-channel transform of that channel;
// AC4 ignores the source's fourth channel and keeps the destination's.
TEST(Transform2d, ChannelsAndAlpha) {
    // 16x128, 10x100 and 24x18 run their columns batched (radix-4 and prime-factor plans)
    const Size2 sizes[] = {{8, 4}, {1, 8}, {16, 1}, {7, 5}, {6, 9}, {64, 32}, {16, 128}, {10, 100}, {24, 18}};
    for (bool dft : {false, true}) {
        for (Size2 s : sizes) {
            if (!dft && ((s.w & (s.w - 1)) || (s.h & (s.h - 1)))) continue;
            for (int code : {3, 4, 5}) {
                const int C = code == 3 ? 3 : 4, nch = code == 4 ? 4 : 3;
                for (bool inverse : {false, true}) {
                    Guarded<float> src(s.w, s.h, C), dst(s.w, s.h, C), ip(s.w, s.h, C);
                    std::mt19937 rng(code * 100 + s.w);
                    src.fill_random(rng);
                    if (code == 5)
                        for (int r = 0; r < s.h; ++r)
                            for (int c = 0; c < s.w; ++c) src.at(c, r, 3) = std::numeric_limits<float>::quiet_NaN();
                    for (int r = 0; r < s.h; ++r)
                        for (int c = 0; c < s.w; ++c) dst.at(c, r, C - 1) = ip.at(c, r, C - 1) = 77.0f + c;
                    Rec2 rec(dft, true, s.w, s.h, 1);
                    ASSERT_EQ(inverse ? rec.inv(src.ptr(), src.step(), dst.ptr(), dst.step(), code)
                                      : rec.fwd(src.ptr(), src.step(), dst.ptr(), dst.step(), code),
                              0);
                    EXPECT_TRUE(dst.guards_ok());
                    for (int ch = 0; ch < nch; ++ch) {
                        Guarded<float> one(s.w, s.h), res(s.w, s.h);
                        for (int r = 0; r < s.h; ++r)
                            for (int c = 0; c < s.w; ++c) one.at(c, r) = src.at(c, r, ch);
                        ASSERT_EQ(inverse ? rec.inv(one.ptr(), one.step(), res.ptr(), res.step(), 1)
                                          : rec.fwd(one.ptr(), one.step(), res.ptr(), res.step(), 1),
                                  0);
                        for (int r = 0; r < s.h; ++r)
                            for (int c = 0; c < s.w; ++c)
                                ASSERT_TRUE(gextest::same_bits(dst.at(c, r, ch), res.at(c, r)))
                                    << "channel " << ch << " code " << code << " " << s.w << "x" << s.h;
                    }
                    if (code == 5) {
                        for (int r = 0; r < s.h; ++r)
                            for (int c = 0; c < s.w; ++c) ASSERT_EQ(dst.at(c, r, 3), 77.0f + c);
                    }
                    // in place gives the same bits
                    for (int r = 0; r < s.h; ++r)
                        for (int c = 0; c < s.w; ++c)
                            for (int ch = 0; ch < nch; ++ch) ip.at(c, r, ch) = src.at(c, r, ch);
                    ASSERT_EQ(inverse ? rec.invI(ip.ptr(), ip.step(), code) : rec.fwdI(ip.ptr(), ip.step(), code), 0);
                    EXPECT_EQ(ip.snapshot(), dst.snapshot());
                }
            }
        }
    }
}

// Source and destination apart, heights 128 .. 32768: images from 2 MB on
// transform their rows block by block into other places and finish the
// columns there; every result must have the bits of the in-place call (rows
// first, then whole columns), for every layout up to 2 MB, with and without
// forward scaling, and the narrowest blocked width of each height matches
// the reference. 256 and 512 rows run blocked only when the rows are wide
// enough to size the buffer for a block; heights 128 and 32768 sit just
// outside the orders that run blocked.
TEST(Transform2d, TallRealForwardOutOfPlaceHasTheInPlaceBits) {
    struct Case {
        int H;
        std::vector<int> widths;
        int refW;
    };
    const Case cases[] = {
        {128, {32, 4096}, 0},          {256, {32, 1024, 2048}, 2048}, {512, {32, 1024, 2048}, 2048},
        {1024, {32, 256, 512, 1024}, 512}, {2048, {32, 256, 1024}, 256}, {4096, {32, 256}, 256},
        {8192, {32, 64}, 64},          {16384, {32, 64}, 32},        {32768, {32}, 0},
    };
    for (const auto& [H, widths, refW] : cases)
        for (int W : widths) {
            std::vector<Layout> layouts = gextest::standard_layouts(false);
            layouts.push_back(Layout{0, 0, 1, false, true});  // rows a power-of-two step apart
            if (std::int64_t{W} * H > (1 << 19)) layouts = {Layout{0, 0, 1, false, false}, Layout{3, 61, 1, false, false}};
            for (Layout lay : layouts) {
                for (int flag : {8, 1}) {
                    Guarded<float> src(W, H, 1, lay), dst(W, H, 1, lay), ip(W, H, 1, lay);
                    std::mt19937 rng(W * 7 + H + flag);
                    src.fill_random(rng);
                    for (int r = 0; r < H; ++r)
                        for (int c = 0; c < W; ++c) ip.at(c, r) = src.at(c, r);
                    Rec2 rec(false, true, W, H, flag);
                    ASSERT_EQ(rec.st, 0);
                    ASSERT_EQ(rec.fwd(src.ptr(), src.step(), dst.ptr(), dst.step(), 1), 0);
                    ASSERT_EQ(rec.fwdI(ip.ptr(), ip.step(), 1), 0);
                    EXPECT_TRUE(dst.guards_ok());
                    EXPECT_TRUE(src.guards_ok());
                    EXPECT_TRUE(ip.guards_ok());
                    for (int r = 0; r < H; ++r)
                        for (int c = 0; c < W; ++c)
                            ASSERT_TRUE(gextest::same_bits(dst.at(c, r), ip.at(c, r)))
                                << W << "x" << H << " flag " << flag << " step " << dst.step() << " at " << c << "," << r;
                    if (W == refW && flag == 1 && lay.lpad == 3) {
                        Grid F = dft2(real_grid(src, 0), -1);
                        for (auto& rw : F)
                            for (auto& v : rw) v /= double(W) * H;
                        const auto P = pack_of(F);
                        const double tol = tol_of(F, W, H);
                        for (int r = 0; r < H; ++r)
                            for (int c = 0; c < W; ++c)
                                ASSERT_NEAR(dst.at(c, r), P[static_cast<std::size_t>(r) * W + c], tol)
                                    << W << "x" << H << " at " << c << "," << r;
                    }
                }
            }
        }
}

// Flags reach both axes: flag 1 divides the forward result by W H, flag 4 by
// sqrt(W H).
TEST(Transform2d, FlagsScaleBothAxes) {
    for (bool dft : {false, true}) {
        const int W = dft ? 12 : 16, H = dft ? 10 : 8;
        Guarded<float> src(W, H), a(W, H), b(W, H);
        std::mt19937 rng(5);
        src.fill_random(rng);
        Rec2 plain(dft, true, W, H, 8);
        ASSERT_EQ(plain.fwd(src.ptr(), src.step(), a.ptr(), a.step(), 1), 0);
        for (int flag : {1, 4}) {
            Rec2 r(dft, true, W, H, flag);
            ASSERT_EQ(r.fwd(src.ptr(), src.step(), b.ptr(), b.step(), 1), 0);
            const double f = flag == 1 ? 1.0 / (W * H) : 1.0 / std::sqrt(double(W * H));
            for (int y = 0; y < H; ++y)
                for (int x = 0; x < W; ++x) ASSERT_NEAR(b.at(x, y), a.at(x, y) * f, 1e-5 * std::abs(a.at(x, y) * f) + 1e-4);
        }
    }
}

TEST(Transform2d, TwoByTwoIsAllReal) {
    float src[4] = {1.5f, -2.0f, 4.0f, 0.25f}, dst[4];
    Rec2 rec(false, true, 2, 2, 8);
    ASSERT_EQ(rec.fwd(src, 8, dst, 8, 1), 0);
    EXPECT_FLOAT_EQ(dst[0], src[0] + src[1] + src[2] + src[3]);  // F00
    EXPECT_FLOAT_EQ(dst[1], src[0] - src[1] + src[2] - src[3]);  // F01
    EXPECT_FLOAT_EQ(dst[2], src[0] + src[1] - src[2] - src[3]);  // F10
    EXPECT_FLOAT_EQ(dst[3], src[0] - src[1] - src[2] + src[3]);  // F11
}

TEST(Transform2d, Statuses) {
    int a, b, c;
    EXPECT_EQ(gexiFFTGetSize_R_32f(31, 2, 8, gexAlgHintNone, &a, &b, &c), gexStsFFTOrder);
    EXPECT_EQ(gexiFFTGetSize_R_32f(2, 2, 8, gexAlgHintNone, nullptr, &b, &c), gexStsNullPtr);
    EXPECT_EQ(gexiFFTGetSize_R_32f(2, 2, 3, gexAlgHintNone, &a, &b, &c), gexStsFFTFlag);
    EXPECT_EQ(gexiDFTGetSize_R_32f({0, 3}, 8, gexAlgHintNone, &a, &b, &c), gexStsSize);
    EXPECT_EQ(gexiDFTGetSize_C_32fc({3, 3}, 8, gexAlgHintNone, &a, nullptr, &c), gexStsNullPtr);
    std::vector<Gex8u> mem(4096);
    EXPECT_EQ(gexiFFTInit_R_32f(31, 1, 8, gexAlgHintNone, reinterpret_cast<GexiFFTSpec*>(mem.data()), nullptr), gexStsFFTOrder);
    EXPECT_EQ(gexiFFTInit_R_32f(3, 31, 8, gexAlgHintNone, nullptr, nullptr), gexStsFFTOrder);
    EXPECT_EQ(gexiFFTInit_R_32f(3, 3, 8, gexAlgHintNone, nullptr, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiFFTInit_R_32f(3, 3, 0, gexAlgHintNone, reinterpret_cast<GexiFFTSpec*>(mem.data()), nullptr), gexStsFFTFlag);
    EXPECT_EQ(gexiFFTInit_C_32fc(29, 1, 8, gexAlgHintNone, reinterpret_cast<GexiFFTSpec*>(mem.data()), mem.data()), gexStsFFTOrder);
    EXPECT_EQ(gexiDFTInit_R_32f({4, 0}, 8, gexAlgHintNone, reinterpret_cast<GexiDFTSpec*>(mem.data()), nullptr), gexStsSize);
    EXPECT_EQ(gexiDFTInit_R_32f({4, 4}, 8, gexAlgHintNone, nullptr, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiDFTInit_C_32fc({17, 4}, 8, gexAlgHintNone, reinterpret_cast<GexiDFTSpec*>(mem.data()), nullptr), gexStsNullPtr);

    Rec2 cf(false, false, 8, 8, 8), rf(false, true, 8, 8, 8), rd(true, true, 6, 6, 8);
    float img[64] = {}, out[64];
    Gex32fc ci[64] = {}, co[64];
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 32, out, 32, nullptr, rf.b()), gexStsNullPtr);
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 32, out, 32, cf.fspec(), rf.b()), gexStsContextMatch);
    EXPECT_EQ(gexiFFTFwd_CToC_32fc_C1R(ci, 64, co, 64, rf.fspec(), cf.b()), gexStsContextMatch);
    EXPECT_EQ(gexiDFTFwd_RToPack_32f_C1R(img, 24, out, 24, reinterpret_cast<GexiDFTSpec*>(rf.fspec()), rd.b()),
              gexStsContextMatch);
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(nullptr, 32, out, 32, rf.fspec(), rf.b()), gexStsNullPtr);
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 0, out, 32, rf.fspec(), rf.b()), gexStsStep);
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 32, out, -32, rf.fspec(), rf.b()), gexStsStep);
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 32, out, 32, rf.fspec(), nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiDFTInv_PackToR_32f_C3IR(img, 0, rd.dspec(), rd.b()), gexStsStep);
    // nothing written on failure
    for (float& v : out) v = 9.0f;
    EXPECT_EQ(gexiFFTFwd_RToPack_32f_C1R(img, 32, out, 32, rf.fspec(), nullptr), gexStsNullPtr);
    for (float v : out) ASSERT_EQ(v, 9.0f);
}

}  // namespace
