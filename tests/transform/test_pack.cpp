// The Pack families and the complex element functions: MulPack and
// MulPackConj against their formulas bit for bit (fused, and the AC4 rounding
// of both products), the operand exchange of the aliased forms, the delta
// identity, the full-spectrum extension and its exact round trip, magnitude
// and phase of a Pack, and Magnitude/Phase/PolarToCart with the vector
// magnitude against its scalar twin.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "gexip.h"
#include "support/guarded.hpp"
#include "transform/complex_rows.hpp"
#include "transform/fourier_ref.hpp"

namespace {

using gextest::Guarded;
using gextest::Layout;

// Pack positions of one W x H channel: (r1,c1) real part, (r2,c2) imaginary
// part, or a real entry; listed from the layout table.
struct Slot {
    int r1, c1, r2, c2;
    bool real;
};
std::vector<Slot> slots(int W, int H) {
    std::vector<Slot> v;
    v.push_back({0, 0, 0, 0, true});
    for (int k = 1; 2 * k < W; ++k) v.push_back({0, 2 * k - 1, 0, 2 * k, false});
    if (W % 2 == 0 && W > 1) v.push_back({0, W - 1, 0, 0, true});
    for (int u = 1; 2 * u < H; ++u) {
        v.push_back({2 * u - 1, 0, 2 * u, 0, false});
        if (W % 2 == 0 && W > 1) v.push_back({2 * u - 1, W - 1, 2 * u, W - 1, false});
    }
    if (H % 2 == 0 && H > 1) {
        v.push_back({H - 1, 0, 0, 0, true});
        if (W % 2 == 0 && W > 1) v.push_back({H - 1, W - 1, 0, 0, true});
    }
    for (int r = 1; r < H; ++r)
        for (int k = 1; 2 * k < W; ++k) v.push_back({r, 2 * k - 1, r, 2 * k, false});
    return v;
}

// The model of one product.
void model(bool conj, bool fused, float ar, float ai, float br, float bi, float& re, float& im) {
    if (!conj) {
        re = fused ? std::fma(br, ar, -(ai * bi)) : br * ar - ai * bi;
        im = fused ? std::fma(bi, ar, ai * br) : bi * ar + ai * br;
    } else {
        re = fused ? std::fma(br, ar, ai * bi) : br * ar + ai * bi;
        im = fused ? std::fma(ai, br, -(bi * ar)) : ai * br - bi * ar;
    }
}

using MulR = GexStatus (*)(const Gex32f*, int, const Gex32f*, int, Gex32f*, int, GexiSize);
using MulI = GexStatus (*)(const Gex32f*, int, Gex32f*, int, GexiSize);
struct MulForm {
    int code;  // 1, 3, 4, 5 = AC4
    bool conj;
    MulR r;
    MulI i;
};
const MulForm kMulForms[] = {
    {1, false, gexiMulPack_32f_C1R, gexiMulPack_32f_C1IR},   {3, false, gexiMulPack_32f_C3R, gexiMulPack_32f_C3IR},
    {4, false, gexiMulPack_32f_C4R, gexiMulPack_32f_C4IR},   {5, false, gexiMulPack_32f_AC4R, gexiMulPack_32f_AC4IR},
    {1, true, gexiMulPackConj_32f_C1R, gexiMulPackConj_32f_C1IR}, {3, true, gexiMulPackConj_32f_C3R, gexiMulPackConj_32f_C3IR},
    {4, true, gexiMulPackConj_32f_C4R, gexiMulPackConj_32f_C4IR}, {5, true, gexiMulPackConj_32f_AC4R, gexiMulPackConj_32f_AC4IR},
};

TEST(MulPack, MatchesTheFormulasExactly) {
    const int ws[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};
    for (const MulForm& f : kMulForms) {
        const int C = f.code == 3 ? 3 : f.code == 1 ? 1 : 4, nch = f.code == 4 ? 4 : f.code == 1 ? 1 : 3;
        const bool fused = f.code != 5;
        for (int i = 0; i < 14; ++i) {
            const int W = ws[i], H = ws[(i * 5 + 2) % 14] % 40 + 1;
            for (Layout lay : gextest::standard_layouts(false)) {
                Guarded<float> a(W, H, C, lay), b(W, H, C, lay), d(W, H, C, lay), ip(W, H, C, lay);
                std::mt19937 rng(W * 31 + H + f.code);
                a.fill_random(rng);
                b.fill_random(rng);
                if (f.code == 5)
                    for (int y = 0; y < H; ++y)
                        for (int x = 0; x < W; ++x) a.at(x, y, 3) = b.at(x, y, 3) = std::numeric_limits<float>::quiet_NaN();
                d.fill(-5.0f);
                ASSERT_EQ(f.r(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {W, H}), 0);
                EXPECT_TRUE(d.guards_ok());
                for (int ch = 0; ch < nch; ++ch)
                    for (const Slot& s : slots(W, H)) {
                        if (s.real) {
                            ASSERT_TRUE(gextest::same_bits(d.at(s.c1, s.r1, ch), a.at(s.c1, s.r1, ch) * b.at(s.c1, s.r1, ch)));
                            continue;
                        }
                        float re, im;
                        model(f.conj, fused, a.at(s.c1, s.r1, ch), a.at(s.c2, s.r2, ch), b.at(s.c1, s.r1, ch),
                              b.at(s.c2, s.r2, ch), re, im);
                        ASSERT_TRUE(gextest::same_bits(d.at(s.c1, s.r1, ch), re)) << W << "x" << H << " form " << f.code;
                        ASSERT_TRUE(gextest::same_bits(d.at(s.c2, s.r2, ch), im)) << W << "x" << H << " form " << f.code;
                    }
                if (f.code == 5) {
                    for (int y = 0; y < H; ++y)
                        for (int x = 0; x < W; ++x) ASSERT_EQ(d.at(x, y, 3), -5.0f);
                }
                // in place: pSrcDst is b
                for (int y = 0; y < H; ++y) std::memcpy(ip.row(y), b.row(y), sizeof(float) * W * C);
                if (f.code == 5)
                    for (int y = 0; y < H; ++y)
                        for (int x = 0; x < W; ++x) ip.at(x, y, 3) = -5.0f;
                ASSERT_EQ(f.i(a.ptr(), a.step(), ip.ptr(), ip.step(), {W, H}), 0);
                EXPECT_EQ(ip.snapshot(), d.snapshot());
            }
        }
    }
}

// With pSrc1 == pDst, MulPack runs in place with the operands exchanged
// (the fused rounding then follows b = pSrc1); MulPackConj does not exchange.
TEST(MulPack, AliasedDestination) {
    const int W = 9, H = 6;
    Guarded<float> a(W, H), b(W, H), t(W, H), ref(W, H);
    std::mt19937 rng(3);
    a.fill_random(rng);
    b.fill_random(rng);
    for (bool conj : {false, true}) {
        for (int y = 0; y < H; ++y) std::memcpy(t.row(y), a.row(y), sizeof(float) * W);
        const MulR r = conj ? gexiMulPackConj_32f_C1R : gexiMulPack_32f_C1R;
        ASSERT_EQ(r(t.ptr(), t.step(), b.ptr(), b.step(), t.ptr(), t.step(), {W, H}), 0);
        for (const Slot& s : slots(W, H)) {
            if (s.real) continue;
            float re, im;
            if (conj) model(true, true, a.at(s.c1, s.r1), a.at(s.c2, s.r2), b.at(s.c1, s.r1), b.at(s.c2, s.r2), re, im);
            else model(false, true, b.at(s.c1, s.r1), b.at(s.c2, s.r2), a.at(s.c1, s.r1), a.at(s.c2, s.r2), re, im);
            ASSERT_TRUE(gextest::same_bits(t.at(s.c1, s.r1), re));
            ASSERT_TRUE(gextest::same_bits(t.at(s.c2, s.r2), im));
        }
    }
}

// The Pack of a real delta (every real part 1, every imaginary part 0) is
// the identity of MulPack.
TEST(MulPack, DeltaIsIdentity) {
    for (int W : {1, 4, 7}) {
        for (int H : {1, 2, 5, 8}) {
            Guarded<float> delta(W, H), x(W, H), d(W, H);
            delta.fill(0.0f);
            for (const Slot& s : slots(W, H)) delta.at(s.c1, s.r1) = 1.0f;
            std::mt19937 rng(W + H);
            x.fill_random(rng);
            ASSERT_EQ(gexiMulPack_32f_C1R(delta.ptr(), delta.step(), x.ptr(), x.step(), d.ptr(), d.step(), {W, H}), 0);
            EXPECT_EQ(d.snapshot(), x.snapshot()) << W << "x" << H;
        }
    }
}

TEST(MulPack, Statuses) {
    float a[16] = {}, b[16] = {}, d[16];
    for (float& v : d) v = 3.0f;
    EXPECT_EQ(gexiMulPack_32f_C1R(nullptr, 16, b, 16, d, 16, {4, 4}), gexStsNullPtr);
    EXPECT_EQ(gexiMulPack_32f_C1R(a, 16, b, 0, d, 16, {4, 4}), gexStsStep);
    EXPECT_EQ(gexiMulPack_32f_C1R(a, 16, b, 16, d, 16, {0, 4}), gexStsSize);
    EXPECT_EQ(gexiMulPack_32f_C1R(a, 0, b, 16, d, 16, {0, 4}), gexStsStep);  // steps before size
    EXPECT_EQ(gexiMulPackConj_32f_AC4IR(a, 16, nullptr, 16, {1, 1}), gexStsNullPtr);
    for (float v : d) ASSERT_EQ(v, 3.0f);
}

// PackToCplxExtend: the full spectrum of the transformed image, mirrors
// conjugated exactly; CplxExtendToPack brings back the same Pack and never
// reads the redundant half.
TEST(PackExtend, FullSpectrumAndExactRoundTrip) {
    const int ws[] = {1, 2, 3, 5, 8, 15, 33, 64};
    for (int i = 0; i < 8; ++i)
        for (int j = 0; j < 8; j += 3) {
            const int W = ws[i], H = ws[(i + j) % 8];
            Guarded<float> img(W, H), pk(W, H), back(W, H);
            Guarded<float> full(2 * W, H), full3(6 * W, H);
            std::mt19937 rng(W * 9 + H);
            img.fill_random(rng);
            int a, b, c;
            ASSERT_EQ(gexiDFTGetSize_R_32f({W, H}, 8, gexAlgHintNone, &a, &b, &c), 0);
            std::vector<Gex8u> record(a), init(b + 1), buf(c);
            ASSERT_EQ(gexiDFTInit_R_32f({W, H}, 8, gexAlgHintNone, reinterpret_cast<GexiDFTSpec*>(record.data()), init.data()), 0);
            ASSERT_EQ(gexiDFTFwd_RToPack_32f_C1R(img.ptr(), img.step(), pk.ptr(), pk.step(),
                                                 reinterpret_cast<GexiDFTSpec*>(record.data()), buf.data()),
                      0);
            Gex32fc* F = reinterpret_cast<Gex32fc*>(full.ptr());
            ASSERT_EQ(gexiPackToCplxExtend_32f32fc_C1R(pk.ptr(), {W, H}, pk.step(), F, full.step()), 0);
            EXPECT_TRUE(full.guards_ok());
            // against the double spectrum of the image
            std::vector<fref::cd> x(static_cast<std::size_t>(W) * H);
            double mag = 0;
            for (int u = 0; u < H; ++u)
                for (int v = 0; v < W; ++v) {
                    fref::cd s = 0;
                    for (int y = 0; y < H; ++y)
                        for (int xx = 0; xx < W; ++xx)
                            s += double(img.at(xx, y)) * fref::unit(std::int64_t{u} * y * W + std::int64_t{v} * xx * H,
                                                                    std::int64_t{W} * H, -1);
                    x[static_cast<std::size_t>(u) * W + v] = s;
                    mag = std::max(mag, std::abs(s));
                }
            for (int u = 0; u < H; ++u)
                for (int v = 0; v < W; ++v) {
                    const Gex32fc g = {full.at(2 * v, u), full.at(2 * v + 1, u)};
                    const fref::cd want = x[static_cast<std::size_t>(u) * W + v];
                    ASSERT_NEAR(g.re, want.real(), 1e-5 * mag + 1e-4) << W << "x" << H;
                    ASSERT_NEAR(g.im, want.imag(), 1e-5 * mag + 1e-4) << W << "x" << H;
                    const int mu = (H - u) % H, mv = (W - v) % W;
                    ASSERT_TRUE(gextest::same_bits(full.at(2 * mv, mu), g.re));
                    if (mu == u && mv == v) ASSERT_EQ(g.im, 0.0f);  // real entries are their own mirror
                    else ASSERT_TRUE(gextest::same_bits(full.at(2 * mv + 1, mu), -g.im));
                }
            // the redundant half is not read: poison what the Pack does not hold
            std::vector<bool> used(static_cast<std::size_t>(W) * H, false);
            auto mark = [&](int u, int v) { used[static_cast<std::size_t>(u) * W + v] = true; };
            mark(0, 0);
            for (int k = 1; 2 * k <= W; ++k) mark(0, k);
            for (int u = 1; 2 * u <= H; ++u) {
                mark(u, 0);
                if (W % 2 == 0) mark(u, W / 2);
            }
            for (int r = 1; r < H; ++r)
                for (int k = 1; 2 * k < W; ++k) mark(r, k);
            for (int u = 0; u < H; ++u)
                for (int v = 0; v < W; ++v)
                    if (!used[static_cast<std::size_t>(u) * W + v]) full.at(2 * v, u) = full.at(2 * v + 1, u) = NAN;
            ASSERT_EQ(gexiCplxExtendToPack_32fc32f_C1R(F, full.step(), {W, H}, back.ptr(), back.step()), 0);
            EXPECT_EQ(back.snapshot(), pk.snapshot()) << W << "x" << H;
            EXPECT_TRUE(back.guards_ok());
            // three channels: each channel as the one-channel form
            for (int y = 0; y < H; ++y)
                for (int v = 0; v < W; ++v)
                    for (int ch = 0; ch < 3; ++ch) {
                        full3.at(6 * v + 2 * ch, y) = full.at(2 * v, y) + ch;
                        full3.at(6 * v + 2 * ch + 1, y) = full.at(2 * v + 1, y) - ch;
                    }
            Guarded<float> back3(W, H, 3);
            ASSERT_EQ(gexiCplxExtendToPack_32fc32f_C3R(reinterpret_cast<Gex32fc*>(full3.ptr()), full3.step(), {W, H},
                                                       back3.ptr(), back3.step()),
                      0);
            for (const Slot& s : slots(W, H))
                for (int ch = 0; ch < 3; ++ch) {
                    ASSERT_EQ(back3.at(s.c1, s.r1, ch), pk.at(s.c1, s.r1) + ch);
                    if (!s.real) {
                        ASSERT_EQ(back3.at(s.c2, s.r2, ch), pk.at(s.c2, s.r2) - ch);
                    }
                }
        }
}

// MagnitudePack/PhasePack equal Magnitude/Phase of the extended spectrum.
TEST(PackExtend, MagnitudeAndPhaseOfAPack) {
    for (int W : {1, 2, 5, 6, 17}) {
        for (int H : {1, 3, 4, 9}) {
            Guarded<float> pk(W, H, 3), one(W, H), mag(W, H, 3), ph(W, H, 3), m1(W, H), p1(W, H);
            Guarded<float> full(2 * W, H);
            std::mt19937 rng(W * 13 + H);
            pk.fill_random(rng);
            int sz1, sz3;
            ASSERT_EQ(gexiMagnitudePackGetBufferSize_32f(1, {W, H}, &sz1), 0);
            ASSERT_EQ(gexiPhasePackGetBufferSize_32f(3, {W, H}, &sz3), 0);
            EXPECT_EQ(sz1, 8 * W + 64);
            EXPECT_EQ(sz3, 24 * W + 64);
            std::vector<Gex8u> buf(sz3);
            ASSERT_EQ(gexiMagnitudePack_32f_C3R(pk.ptr(), pk.step(), mag.ptr(), mag.step(), {W, H}, buf.data()), 0);
            ASSERT_EQ(gexiPhasePack_32f_C3R(pk.ptr(), pk.step(), ph.ptr(), ph.step(), {W, H}, buf.data()), 0);
            EXPECT_TRUE(mag.guards_ok());
            for (int ch = 0; ch < 3; ++ch) {
                for (int y = 0; y < H; ++y)
                    for (int x = 0; x < W; ++x) one.at(x, y) = pk.at(x, y, ch);
                ASSERT_EQ(gexiMagnitudePack_32f_C1R(one.ptr(), one.step(), m1.ptr(), m1.step(), {W, H}, buf.data()), 0);
                ASSERT_EQ(gexiPhasePack_32f_C1R(one.ptr(), one.step(), p1.ptr(), p1.step(), {W, H}, buf.data()), 0);
                ASSERT_EQ(gexiPackToCplxExtend_32f32fc_C1R(one.ptr(), {W, H}, one.step(),
                                                           reinterpret_cast<Gex32fc*>(full.ptr()), full.step()),
                          0);
                for (int y = 0; y < H; ++y)
                    for (int x = 0; x < W; ++x) {
                        const float re = full.at(2 * x, y), im = full.at(2 * x + 1, y);
                        ASSERT_TRUE(gextest::same_bits(m1.at(x, y), std::sqrt(re * re + im * im)));
                        ASSERT_TRUE(gextest::same_bits(p1.at(x, y), std::atan2(im, re)));
                        ASSERT_TRUE(gextest::same_bits(mag.at(x, y, ch), m1.at(x, y)));
                        ASSERT_TRUE(gextest::same_bits(ph.at(x, y, ch), p1.at(x, y)));
                    }
            }
        }
    }
    int sz;
    EXPECT_EQ(gexiMagnitudePackGetBufferSize_32f(2, {4, 4}, &sz), gexStsNumChannels);
    EXPECT_EQ(gexiMagnitudePackGetBufferSize_32f(1, {0, 4}, &sz), gexStsSize);
    EXPECT_EQ(gexiPhasePackGetBufferSize_32f(1, {4, 4}, nullptr), gexStsNullPtr);
    float p[16] = {}, d[16];
    EXPECT_EQ(gexiMagnitudePack_32f_C1R(p, 16, d, 16, {4, 4}, nullptr), gexStsNullPtr);
}

// The complex element functions, and the vector magnitude against its twin.
TEST(ComplexElements, MagnitudePhasePolar) {
    const int ws[] = {1, 2, 3, 5, 7, 8, 15, 16, 17, 31, 33, 63, 64, 65, 127, 129, 200};
    for (int W : ws) {
        for (int C : {1, 3}) {
            for (Layout lay : gextest::standard_layouts(false)) {
                const int H = 3;
                Guarded<float> src(2 * W * C, H, 1, lay), m(W * C, H, 1, lay), p(W * C, H, 1, lay), back(2 * W * C, H, 1, lay);
                std::mt19937 rng(W + C);
                src.fill_random(rng);
                const Gex32fc* s = reinterpret_cast<const Gex32fc*>(src.ptr());
                ASSERT_EQ((C == 1 ? gexiMagnitude_32fc32f_C1R : gexiMagnitude_32fc32f_C3R)(s, src.step(), m.ptr(), m.step(), {W, H}), 0);
                ASSERT_EQ((C == 1 ? gexiPhase_32fc32f_C1R : gexiPhase_32fc32f_C3R)(s, src.step(), p.ptr(), p.step(), {W, H}), 0);
                ASSERT_EQ((C == 1 ? gexiPolarToCart_32fc_C1R : gexiPolarToCart_32fc_C3R)(
                              m.ptr(), p.ptr(), m.step(), {W, H}, reinterpret_cast<Gex32fc*>(back.ptr()), back.step()),
                          0);
                EXPECT_TRUE(m.guards_ok() && p.guards_ok() && back.guards_ok());
                std::vector<float> twin(W * C);
                for (int y = 0; y < H; ++y) {
                    gex::cplx::magnitude_row_scalar(reinterpret_cast<const Gex32fc*>(src.row(y)), twin.data(), W * C);
                    for (int x = 0; x < W * C; ++x) {
                        const float re = src.row(y)[2 * x], im = src.row(y)[2 * x + 1];
                        ASSERT_TRUE(gextest::same_bits(m.row(y)[x], twin[x]));
                        ASSERT_TRUE(gextest::same_bits(m.row(y)[x], std::sqrt(re * re + im * im)));
                        ASSERT_TRUE(gextest::same_bits(p.row(y)[x], std::atan2(im, re)));
                        const float mm = m.row(y)[x], pp = p.row(y)[x];
                        ASSERT_TRUE(gextest::same_bits(back.row(y)[2 * x], mm * std::cos(pp)));
                        ASSERT_TRUE(gextest::same_bits(back.row(y)[2 * x + 1], mm * std::sin(pp)));
                        ASSERT_NEAR(back.row(y)[2 * x], re, 1e-3);
                    }
                }
            }
        }
    }
    Gex32fc z[4] = {};
    float d[4];
    EXPECT_EQ(gexiMagnitude_32fc32f_C1R(nullptr, 32, d, 16, {4, 1}), gexStsNullPtr);
    EXPECT_EQ(gexiPhase_32fc32f_C1R(z, 32, d, 16, {4, 0}), gexStsSize);
    EXPECT_EQ(gexiPhase_32fc32f_C1R(z, 32, d, 0, {4, 1}), gexStsStep);
    EXPECT_EQ(gexiPolarToCart_32fc_C1R(d, nullptr, 16, {4, 1}, z, 32), gexStsNullPtr);
}

}  // namespace
