// The 1-D engine: plans, accuracy against double references, directions,
// scaling flags, in place against out of place, vector kernels against their
// scalar twins, real Pack/Perm layouts and the statuses of every entry point.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "transform/fourier_ref.hpp"

namespace {

using namespace fref;
using gex::DftSpec;
using gex::FftSpec;

constexpr double kRatioBound = 4.0;  // a few float roundings per stage

GexStatus fwd(const Fft1& f, const Gex32fc* s, Gex32fc* d) {
    return gex::gexsFFTFwd_CToC_32fc(s, d, f.s, const_cast<Gex8u*>(f.buf.data()));
}
GexStatus inv(const Fft1& f, const Gex32fc* s, Gex32fc* d) {
    return gex::gexsFFTInv_CToC_32fc(s, d, f.s, const_cast<Gex8u*>(f.buf.data()));
}
GexStatus fwd(const Dft1& f, const Gex32fc* s, Gex32fc* d) {
    return gex::gexsDFTFwd_CToC_32fc(s, d, f.s, const_cast<Gex8u*>(f.buf.data()));
}
GexStatus inv(const Dft1& f, const Gex32fc* s, Gex32fc* d) {
    return gex::gexsDFTInv_CToC_32fc(s, d, f.s, const_cast<Gex8u*>(f.buf.data()));
}

// Scale the reference by the flag's factor for the direction.
double flag_scale(int flag, std::int64_t n, bool inverse) {
    if (flag == 4) return 1.0 / std::sqrt(static_cast<double>(n));
    if ((flag == 1 && !inverse) || (flag == 2 && inverse)) return 1.0 / static_cast<double>(n);
    return 1.0;
}

TEST(Fft1d, PlansByOrderAndLength) {
    EXPECT_EQ(Fft1(0, 8, false).s->plan, gex::kFftSmall);
    EXPECT_EQ(Fft1(6, 8, false).s->plan, gex::kFftSmall);
    EXPECT_EQ(Fft1(7, 8, false).s->plan, gex::kFftRadix4);
    EXPECT_EQ(Fft1(18, 8, false).s->plan, gex::kFftRadix4);
    EXPECT_EQ(Fft1(19, 8, false).s->plan, gex::kFftLarge);
    // the real transform plans its complex half one order lower
    EXPECT_EQ(Fft1(7, 8, true).s->plan, gex::kFftSmall);
    EXPECT_EQ(Fft1(8, 8, true).s->plan, gex::kFftRadix4);

    EXPECT_EQ(Dft1(17, 8, false).rec()->plan, gex::kDftDirect);
    const Dft1 d53(53, 8, false);
    EXPECT_EQ(d53.rec()->plan, gex::kDftConv);
    EXPECT_EQ(d53.rec()->convLength, 128);
    const Dft1 d100(100, 8, false);
    ASSERT_EQ(d100.rec()->plan, gex::kDftPrimeFact);
    // 100 = 4 25: the leading 4 becomes the last radix
    EXPECT_EQ(d100.rec()->nFactorsM1, 2);
    EXPECT_EQ(d100.rec()->factors[0].factor, 5);
    EXPECT_EQ(d100.rec()->factors[2].factor, 4);
    const Dft1 d596(596, 8, false), d298(298, 8, false);
    EXPECT_EQ(d596.rec()->plan, gex::kDftPrimeFact);
    EXPECT_EQ(d298.rec()->plan, gex::kDftConv);
    EXPECT_EQ(d298.rec()->convLength, 640);
    const Dft1 d1000(1000, 8, false);
    ASSERT_EQ(d1000.rec()->plan, gex::kDftPrimeFact);
    const int want[] = {5, 5, 5, 8};
    ASSERT_EQ(d1000.rec()->nFactorsM1, 3);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(d1000.rec()->factors[i].factor, want[i]);
    const Dft1 big(1 << 20, 8, false);
    ASSERT_EQ(big.rec()->plan, gex::kDftFFT);
    EXPECT_EQ(big.rec()->useFFT, 1);
    EXPECT_EQ(big.rec()->pFftSpec->plan, gex::kFftLarge);
    EXPECT_EQ(Dft1(12, 8, false).rec()->plan, gex::kDftSmall);
}

// A length-4 forward transform gives X1 = (x0 - x2) - i (x1 - x3).
TEST(Fft1d, ForwardSignConvention) {
    const auto x = random_complex(4, 3);
    std::vector<Gex32fc> y(4);
    const Fft1 f(2, 8, false);
    ASSERT_EQ(fwd(f, x.data(), y.data()), 0);
    const float re = (x[0].re - x[2].re) + (x[1].im - x[3].im);
    const float im = (x[0].im - x[2].im) - (x[1].re - x[3].re);
    EXPECT_NEAR(y[1].re, re, 1e-6);
    EXPECT_NEAR(y[1].im, im, 1e-6);
    ASSERT_EQ(inv(f, x.data(), y.data()), 0);
    EXPECT_NEAR(y[1].re, (x[0].re - x[2].re) - (x[1].im - x[3].im), 1e-6);
}

// Accuracy of every order 1..20 and of every DFT plan, in both directions;
// the worst ratios are printed for the record.
TEST(Fft1d, AccuracyPowersOfTwo) {
    for (int order = 0; order <= 20; ++order) {
        const std::int64_t n = std::int64_t{1} << order;
        const Fft1 f(order, 8, false);
        ASSERT_EQ(f.st, 0);
        const auto x = random_complex(n, order + 1);
        std::vector<Gex32fc> y(n);
        double worst = 0;
        for (int dir = 0; dir < 2; ++dir) {
            ASSERT_EQ(dir ? inv(f, x.data(), y.data()) : fwd(f, x.data(), y.data()), 0);
            worst = std::max(worst, error_ratio(transform(widen(x), dir ? 1 : -1), y.data()));
        }
        std::printf("  fft order %2d ratio %.3f\n", order, worst);
        EXPECT_LT(worst, kRatioBound) << "order " << order;
    }
}

TEST(Fft1d, AccuracyAnyLength) {
    const int lengths[] = {1, 3, 5, 6, 7, 9, 12, 15, 17, 18, 30, 47, 49, 53, 100, 144, 240, 298, 480, 596, 640, 720, 1000, 1009, 2000};
    for (int n : lengths) {
        const Dft1 f(n, 8, false);
        ASSERT_EQ(f.st, 0) << n;
        const auto x = random_complex(n, n);
        std::vector<Gex32fc> y(n);
        double worst = 0;
        for (int dir = 0; dir < 2; ++dir) {
            ASSERT_EQ(dir ? inv(f, x.data(), y.data()) : fwd(f, x.data(), y.data()), 0);
            worst = std::max(worst, error_ratio(dft(widen(x), dir ? 1 : -1), y.data()));
        }
        std::printf("  dft length %5d plan %d ratio %.3f\n", n, f.rec()->plan, worst);
        EXPECT_LT(worst, kRatioBound) << "length " << n;
    }
}

// The four flags scale the direction they name; in place equals out of place
// bit for bit.
TEST(Fft1d, ScalingFlagsAndInPlace) {
    for (int flag : {1, 2, 4, 8}) {
        for (int order : {0, 3, 6, 7, 10, 11, 19}) {
            const std::int64_t n = std::int64_t{1} << order;
            const Fft1 f(order, flag, false);
            ASSERT_EQ(f.st, 0);
            const auto x = random_complex(n, 7);
            for (int dir = 0; dir < 2; ++dir) {
                std::vector<Gex32fc> y(n), z = x;
                ASSERT_EQ(dir ? inv(f, x.data(), y.data()) : fwd(f, x.data(), y.data()), 0);
                ASSERT_EQ(dir ? inv(f, z.data(), z.data()) : fwd(f, z.data(), z.data()), 0);
                EXPECT_EQ(std::memcmp(y.data(), z.data(), n * sizeof(Gex32fc)), 0) << order;
                EXPECT_LT(error_ratio(transform(widen(x), dir ? 1 : -1), y.data(), flag_scale(flag, n, dir)), kRatioBound)
                    << "flag " << flag << " order " << order << " dir " << dir;
            }
        }
        for (int n : {5, 17, 53, 100, 1000}) {
            const Dft1 f(n, flag, false);
            const auto x = random_complex(n, 9);
            for (int dir = 0; dir < 2; ++dir) {
                std::vector<Gex32fc> y(n), z = x;
                ASSERT_EQ(dir ? inv(f, x.data(), y.data()) : fwd(f, x.data(), y.data()), 0);
                ASSERT_EQ(dir ? inv(f, z.data(), z.data()) : fwd(f, z.data(), z.data()), 0);
                EXPECT_EQ(std::memcmp(y.data(), z.data(), n * sizeof(Gex32fc)), 0) << n;
                EXPECT_LT(error_ratio(dft(widen(x), dir ? 1 : -1), y.data(), flag_scale(flag, n, dir)), kRatioBound)
                    << "flag " << flag << " n " << n;
            }
        }
    }
}

// The 512-bit kernels give the same bits as their scalar twins.
TEST(Fft1d, VectorKernelsMatchScalarTwins) {
    for (int order = 7; order <= 20; ++order) {
        const std::int64_t n = std::int64_t{1} << order;
        Fft1 v(order, 4, false), s(order, 4, false);
        gex::fft_force_scalar(s.s);
        const auto x = random_complex(n, 11);
        for (int dir = 0; dir < 2; ++dir) {
            std::vector<Gex32fc> a(n), b(n);
            ASSERT_EQ(dir ? inv(v, x.data(), a.data()) : fwd(v, x.data(), a.data()), 0);
            ASSERT_EQ(dir ? inv(s, x.data(), b.data()) : fwd(s, x.data(), b.data()), 0);
            EXPECT_EQ(std::memcmp(a.data(), b.data(), n * sizeof(Gex32fc)), 0) << "order " << order;
        }
    }
    for (int n : {18, 100, 240, 298, 480, 596, 720, 1000, 3 * 5 * 7 * 11}) {
        Dft1 v(n, 1, false), s(n, 1, false);
        gex::dft_force_scalar(s.s);
        const auto x = random_complex(n, 12);
        for (int dir = 0; dir < 2; ++dir) {
            std::vector<Gex32fc> a(n), b(n);
            ASSERT_EQ(dir ? inv(v, x.data(), a.data()) : fwd(v, x.data(), a.data()), 0);
            ASSERT_EQ(dir ? inv(s, x.data(), b.data()) : fwd(s, x.data(), b.data()), 0);
            EXPECT_EQ(std::memcmp(a.data(), b.data(), n * sizeof(Gex32fc)), 0) << "n " << n;
        }
    }
}

// The real recombination's vector form against its twin, both directions.
TEST(Fft1d, RealRecombinationMatchesScalarTwin) {
    std::mt19937 rng(21);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    auto check = [&](auto& v, auto& s, std::int64_t n, auto fwdFn, auto invFn) {
        std::vector<float> x(n), a(n), b(n);
        for (auto& e : x) e = d(rng);
        ASSERT_EQ(fwdFn(x.data(), a.data(), v), 0);
        ASSERT_EQ(fwdFn(x.data(), b.data(), s), 0);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), n * sizeof(float)), 0) << "forward n " << n;
        ASSERT_EQ(invFn(x.data(), a.data(), v), 0);
        ASSERT_EQ(invFn(x.data(), b.data(), s), 0);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), n * sizeof(float)), 0) << "inverse n " << n;
    };
    for (int order = 5; order <= 16; ++order) {
        Fft1 v(order, 4, true), s(order, 4, true);
        gex::fft_force_scalar(s.s);
        check(v, s, std::int64_t{1} << order,
              [](const float* x, float* y, Fft1& f) { return gex::gexsFFTFwd_RToPack_32f(x, y, f.s, f.buf.data()); },
              [](const float* x, float* y, Fft1& f) { return gex::gexsFFTInv_PackToR_32f(x, y, f.s, f.buf.data()); });
    }
    for (int n : {34, 36, 100, 480, 1000, 2002}) {
        Dft1 v(n, 4, true), s(n, 4, true);
        gex::dft_force_scalar(s.s);
        check(v, s, n,
              [](const float* x, float* y, Dft1& f) { return gex::gexsDFTFwd_RToPack_32f(x, y, f.s, f.buf.data()); },
              [](const float* x, float* y, Dft1& f) { return gex::gexsDFTInv_PackToR_32f(x, y, f.s, f.buf.data()); });
    }
}

// Real transforms: Pack and Perm against the reference spectrum, and the
// inverse bringing the samples back.
std::vector<float> random_real(std::int64_t n, unsigned seed) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    std::vector<float> v(n);
    for (auto& e : v) e = d(rng);
    return v;
}

void expect_pack(const std::vector<float>& x, const std::vector<float>& p, bool perm, double tol_ratio) {
    const std::int64_t n = static_cast<std::int64_t>(x.size());
    std::vector<cd> xc(n);
    for (std::int64_t i = 0; i < n; ++i) xc[i] = x[i];
    const auto X = transform(xc, -1);
    double mag = 0;
    for (auto& v : X) mag = std::max(mag, std::abs(v));
    const double tol = tol_ratio * std::ldexp(1.0, -24) * std::max(1.0, std::log2(double(n))) * mag;
    // expected layout
    std::vector<double> want(n);
    want[0] = X[0].real();
    if (!perm || n % 2) {
        for (std::int64_t k = 1; 2 * k - 1 < n; ++k) {
            want[2 * k - 1] = X[k].real();
            if (2 * k < n) want[2 * k] = X[k].imag();
        }
    } else {
        if (n > 1) want[1] = X[n / 2].real();
        for (std::int64_t k = 1; 2 * k < n; ++k) {
            want[2 * k] = X[k].real();
            want[2 * k + 1] = X[k].imag();
        }
    }
    for (std::int64_t i = 0; i < n; ++i) ASSERT_NEAR(p[i], want[i], tol) << "n " << n << " i " << i;
}

TEST(Fft1d, RealPackPermAndRoundTrip) {
    for (int order = 0; order <= 20; ++order) {
        const std::int64_t n = std::int64_t{1} << order;
        Fft1 f(order, 2, true);
        ASSERT_EQ(f.st, 0);
        const auto x = random_real(n, order);
        std::vector<float> p(n), q(n), back(n);
        ASSERT_EQ(gex::gexsFFTFwd_RToPack_32f(x.data(), p.data(), f.s, f.buf.data()), 0);
        ASSERT_EQ(gex::gexsFFTFwd_RToPerm_32f(x.data(), q.data(), f.s, f.buf.data()), 0);
        if (order <= 14 || order == 20) {
            expect_pack(x, p, false, kRatioBound);
            expect_pack(x, q, true, kRatioBound);
        }
        ASSERT_EQ(gex::gexsFFTInv_PackToR_32f(p.data(), back.data(), f.s, f.buf.data()), 0);
        for (std::int64_t i = 0; i < n; ++i) ASSERT_NEAR(back[i], x[i], 2e-6 * (order + 1)) << order;
        ASSERT_EQ(gex::gexsFFTInv_PermToR_32f(q.data(), q.data(), f.s, f.buf.data()), 0);
        for (std::int64_t i = 0; i < n; ++i) ASSERT_NEAR(q[i], x[i], 2e-6 * (order + 1)) << order;
        // in place equals out of place
        std::vector<float> ip = x;
        ASSERT_EQ(gex::gexsFFTFwd_RToPack_32f(ip.data(), ip.data(), f.s, f.buf.data()), 0);
        EXPECT_EQ(std::memcmp(ip.data(), p.data(), n * sizeof(float)), 0) << order;
    }
    for (int n : {1, 2, 3, 5, 6, 10, 15, 17, 30, 34, 53, 100, 106, 298, 480, 1000, 1001}) {
        Dft1 f(n, 2, true);
        ASSERT_EQ(f.st, 0) << n;
        const auto x = random_real(n, n);
        std::vector<float> p(n), back(n);
        ASSERT_EQ(gex::gexsDFTFwd_RToPack_32f(x.data(), p.data(), f.s, f.buf.data()), 0);
        expect_pack(x, p, false, kRatioBound);
        ASSERT_EQ(gex::gexsDFTInv_PackToR_32f(p.data(), back.data(), f.s, f.buf.data()), 0);
        for (int i = 0; i < n; ++i) ASSERT_NEAR(back[i], x[i], 1e-5) << n;
        std::vector<float> ip = x;
        ASSERT_EQ(gex::gexsDFTFwd_RToPack_32f(ip.data(), ip.data(), f.s, f.buf.data()), 0);
        EXPECT_EQ(std::memcmp(ip.data(), p.data(), n * sizeof(float)), 0) << n;
    }
}

TEST(Fft1d, SizesOfTheQueries) {
    int a, b, c;
    ASSERT_EQ(gex::gexsFFTGetSize_C_32fc(5, 8, gexAlgHintNone, &a, &b, &c), 0);
    EXPECT_EQ(a, 208);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(c, 0);
    for (int order = 7; order <= 18; ++order) {
        const std::int64_t n = std::int64_t{1} << order;
        ASSERT_EQ(gex::gexsFFTGetSize_C_32fc(order, 8, gexAlgHintNone, &a, &b, &c), 0);
        EXPECT_EQ(a, ((8 * n + 71) & ~63) + ((n + 67) & ~63) + 256);
        EXPECT_EQ(b, order >= 11 ? ((n + 67) & ~63) + 64 : 0);
        EXPECT_EQ(c, ((8 * n + 63) & ~63) + 64);
        // the record must fit with any start address
        EXPECT_LE(gex::fft::fft_spec_bytes(order, false) + 63, a);
    }
    ASSERT_EQ(gex::gexsFFTGetSize_C_32fc(20, 8, gexAlgHintNone, &a, &b, &c), 0);
    EXPECT_GE(c, 65536 + 64);
    ASSERT_EQ(gex::gexsFFTGetSize_R_32f(4, 8, gexAlgHintNone, &a, &b, &c), 0);
    EXPECT_EQ(a, 208);
}

TEST(Fft1d, Statuses) {
    int a, b, c;
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(31, 8, gexAlgHintNone, nullptr, &b, &c), gexStsFFTOrder);
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(-1, 8, gexAlgHintNone, &a, &b, &c), gexStsFFTOrder);
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(5, 8, gexAlgHintNone, &a, nullptr, &c), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(5, 3, gexAlgHintNone, &a, &b, &c), gexStsFFTFlag);
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(29, 3, gexAlgHintNone, &a, &b, &c), gexStsFFTFlag);  // flag before the order limit
    EXPECT_EQ(gex::gexsFFTGetSize_C_32fc(29, 8, gexAlgHintNone, &a, &b, &c), gexStsFFTOrder);
    EXPECT_EQ(gex::gexsFFTGetSize_R_32f(29, 8, gexAlgHintNone, &a, &b, &c), 0);
    EXPECT_EQ(gex::gexsFFTGetSize_R_32f(30, 8, gexAlgHintNone, &a, &b, &c), gexStsFFTOrder);

    std::vector<Gex8u> record(1 << 16), sb(1 << 14);
    FftSpec* s = nullptr;
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(nullptr, 5, 8, gexAlgHintNone, record.data(), sb.data()), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(&s, 29, 8, gexAlgHintNone, record.data(), sb.data()), gexStsFFTOrder);
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(&s, 5, 8, gexAlgHintNone, nullptr, sb.data()), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(&s, 5, 3, gexAlgHintNone, record.data(), sb.data()), gexStsFFTFlag);
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(&s, 11, 8, gexAlgHintNone, record.data(), nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTInit_C_32fc(&s, 10, 8, gexAlgHintNone, record.data(), nullptr), 0);
    EXPECT_EQ(gex::gexsFFTInit_R_32f(&s, 30, 8, gexAlgHintNone, record.data(), sb.data()), gexStsFFTOrder);

    // runs: record, kind, pointers, buffer
    const Fft1 cf(8, 8, false), rf(8, 8, true);
    std::vector<Gex32fc> x(256), y(256);
    EXPECT_EQ(gex::gexsFFTFwd_CToC_32fc(x.data(), y.data(), nullptr, nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTFwd_CToC_32fc(x.data(), y.data(), rf.s, nullptr), gexStsContextMatch);
    EXPECT_EQ(gex::gexsFFTFwd_RToPack_32f(nullptr, nullptr, cf.s, nullptr), gexStsContextMatch);
    EXPECT_EQ(gex::gexsFFTFwd_CToC_32fc(nullptr, y.data(), cf.s, nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsFFTInv_CToC_32fc(x.data(), y.data(), cf.s, nullptr), gexStsNullPtr);  // workSize > 0
    const Fft1 small(4, 8, false);
    EXPECT_EQ(gex::gexsFFTFwd_CToC_32fc(x.data(), y.data(), small.s, nullptr), 0);  // no buffer needed

    // any length
    EXPECT_EQ(gex::gexsDFTGetSize_C_32fc(10, 8, gexAlgHintNone, nullptr, &b, &c), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDFTGetSize_C_32fc(0, 8, gexAlgHintNone, &a, &b, &c), gexStsBadArg);
    EXPECT_EQ(gex::gexsDFTGetSize_C_32fc(10, 3, gexAlgHintNone, &a, &b, &c), gexStsFFTFlag);
    EXPECT_EQ(gex::gexsDFTGetSize_C_32fc(134217729, 8, gexAlgHintNone, &a, &b, &c), gexStsBadArg);
    std::vector<Gex8u> dspec(1 << 16), dinit(1 << 16);
    DftSpec* ds = reinterpret_cast<DftSpec*>(dspec.data());
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(10, 8, gexAlgHintNone, nullptr, dinit.data()), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(0, 8, gexAlgHintNone, ds, dinit.data()), gexStsBadArg);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(10, 5, gexAlgHintNone, ds, dinit.data()), gexStsFFTFlag);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(134217729, 8, gexAlgHintNone, ds, nullptr), gexStsBadArg);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(17, 8, gexAlgHintNone, ds, nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(16, 8, gexAlgHintNone, ds, nullptr), 0);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(1024, 8, gexAlgHintNone, ds, nullptr), 0);
    // a chirp-plan length at 2^26 or above
    const int longConv = 67108866;  // 2 x 3 x 11 x 251 x 4051
    ASSERT_EQ(gex::dft_plan_of(longConv), gex::kDftConv);
    EXPECT_EQ(gex::gexsDFTInit_C_32fc(longConv, 8, gexAlgHintNone, ds, dinit.data()), gexStsBadArg);
    EXPECT_EQ(gex::gexsDFTGetSize_C_32fc(longConv, 8, gexAlgHintNone, &a, &b, &c), gexStsBadArg);

    const Dft1 d(30, 8, false), dr(30, 8, true);
    EXPECT_EQ(gex::gexsDFTFwd_CToC_32fc(x.data(), y.data(), dr.s, nullptr), gexStsContextMatch);
    EXPECT_EQ(gex::gexsDFTFwd_CToC_32fc(x.data(), nullptr, d.s, nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDFTFwd_CToC_32fc(x.data(), y.data(), d.s, nullptr), gexStsNullPtr);
    EXPECT_EQ(gex::gexsDFTFwd_RToPack_32f(nullptr, nullptr, d.s, nullptr), gexStsContextMatch);
}

// Order 0 is a copy (the flag's factor is 1).
TEST(Fft1d, OrderZeroCopies) {
    for (int flag : {1, 2, 4, 8}) {
        const Fft1 f(0, flag, false);
        const Gex32fc x = {1.25f, -3.5f};
        Gex32fc y = {0, 0};
        ASSERT_EQ(fwd(f, &x, &y), 0);
        EXPECT_EQ(y.re, x.re);
        EXPECT_EQ(y.im, x.im);
    }
}

}  // namespace
