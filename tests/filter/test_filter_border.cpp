// General border filter.
//
// * The exported runs against an independent model: a per-pixel border model
//   (replicate, periodic mirror over the region the border copies see,
//   constant, memory on flagged sides) and a true convolution summed in 64-bit
//   integers (16-bit taps; the exact conversion, asked for with flag 16) or in
//   double (float taps; equal up to float rounding of the sum, and at most one
//   step off where the exact value lies next to a rounding boundary).
// * Fast paths against the scalar loops: float kernels bit for bit; the
//   integer vector kernels with each conversion against the reference loop
//   with the same conversion; odd widths, guarded images.
// * The whole-ROI copy path against the strips.
// * Statuses in order, nothing written on failure; the size query; the Init
//   and SetMode rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "filter/filter_border.hpp"
#include "filter/filter_border_kernels.hpp"
#include "filter/strip.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

namespace {

// ---- the calls by type -----------------------------------------------------------------

template <class T, int CH>
GexStatus run(const T* s, int ss, T* d, int ds, GexiSize roi, int border, const T* bv, const GexiFilterBorderSpec* sp,
              Gex8u* buf) {
    const auto b = static_cast<GexiBorderType>(border);
#define GEX_T_CASE(TT, dd)                                                                    \
    if constexpr (std::is_same_v<T, TT>) {                                                    \
        if constexpr (CH == 1) return gexiFilterBorder_##dd##_C1R(s, ss, d, ds, roi, b, bv, sp, buf); \
        else if constexpr (CH == 3) return gexiFilterBorder_##dd##_C3R(s, ss, d, ds, roi, b, bv, sp, buf); \
        else return gexiFilterBorder_##dd##_C4R(s, ss, d, ds, roi, b, bv, sp, buf);          \
    }
    GEX_T_CASE(Gex8u, 8u)
    GEX_T_CASE(Gex16u, 16u)
    GEX_T_CASE(Gex16s, 16s)
    GEX_T_CASE(Gex32f, 32f)
#undef GEX_T_CASE
    return -1;
}

template <class T> constexpr GexDataType type_of();
template <> constexpr GexDataType type_of<Gex8u>() { return gex8u; }
template <> constexpr GexDataType type_of<Gex16u>() { return gex16u; }
template <> constexpr GexDataType type_of<Gex16s>() { return gex16s; }
template <> constexpr GexDataType type_of<Gex32f>() { return gex32f; }

template <class T> constexpr double lo_of() { return std::is_same_v<T, Gex32f> ? -1e300 : std::is_same_v<T, Gex16s> ? -32768 : 0; }
template <class T> constexpr double hi_of() { return std::is_same_v<T, Gex32f> ? 1e300 : std::is_same_v<T, Gex8u> ? 255 : std::is_same_v<T, Gex16u> ? 65535 : 32767; }

// A record in a block with an odd start, so that the 64-byte alignment matters.
struct Record {
    std::vector<std::uint8_t> mem;
    GexiFilterBorderSpec* rec = nullptr;
    // The block starts at an odd address and holds exactly `bytes` from there.
    explicit Record(int bytes) : mem(static_cast<std::size_t>(bytes) + 3) {
        rec = reinterpret_cast<GexiFilterBorderSpec*>(mem.data() + 3);
    }
};

// ---- the model -------------------------------------------------------------------------

// Coordinate of t on an axis of n pixels. The border copies see the region
// [a, b): the ROI plus the reach on flagged sides; mirror reflects
// periodically inside it. Returns INT64_MIN for the constant.
std::int64_t model_coord(std::int64_t t, std::int64_t n, int mode, bool memLow, bool memHigh, int reachLow,
                         int reachHigh) {
    const std::int64_t a = memLow ? -reachLow : 0, b = memHigh ? n + reachHigh : n;
    if (t >= a && t < b) return t;
    if (mode == 6) return INT64_MIN;
    if (mode == 1) return t < a ? a : b - 1;
    const std::int64_t len = b - a;
    if (len == 1) return a;
    const std::int64_t p = 2 * len - 2;
    std::int64_t r = (t - a) % p;
    if (r < 0) r += p;
    return a + (r < len ? r : p - r);
}

// A source: a larger image with the ROI at (R, R), so that flagged sides read memory.
template <class T>
struct Source {
    int W, H, CH, R;
    Guarded<T> img;
    Source(int w, int h, int ch, int r, Layout lay = {}) : W(w), H(h), CH(ch), R(r), img(w + 2 * r, h + 2 * r, ch, lay) {}
    const T* roi_ptr() const {
        return reinterpret_cast<const T*>(reinterpret_cast<const std::uint8_t*>(img.ptr()) + std::int64_t{R} * img.step()) +
               std::int64_t{R} * CH;
    }
    T at(std::int64_t x, std::int64_t y, int c) const { return img.at(int(x + R), int(y + R), c); }
};

// Exact rounding of num/den by mode, then saturation.
double round_exact(std::int64_t num, std::int64_t den, int rm) {
    bool neg = (num < 0) != (den < 0);
    std::int64_t a = num < 0 ? -num : num, d = den < 0 ? -den : den;
    std::int64_t q = a / d, r2 = 2 * (a % d);
    if (rm == 1) q += (r2 > d || (r2 == d && (q & 1))) ? 1 : 0;
    if (rm == 2) q += r2 >= d ? 1 : 0;
    return neg ? -double(q) : double(q);
}

struct Kernel {
    int kw, kh;
    std::vector<Gex16s> k16;
    std::vector<float> k32;
    int divisor = 1;
};

// Expected pixel (x, y, c): the integer model (exact conversion) when
// integer, else the double sum as it is.
template <class T>
double model_sum(const Source<T>& src, const Kernel& k, bool integer, int x, int y, int c, int border, const T* bv,
                 bool* isInt, std::int64_t* isum) {
    const int mode = border & 15, fl = border & 0xf0;
    const int ax = (k.kw - 1) >> 1, ay = (k.kh - 1) >> 1, rw = k.kw - ax - 1, rh = k.kh - ay - 1;
    const bool T_ = (fl & 16) || ay == 0, B_ = (fl & 32) || rh == 0, L_ = (fl & 64) || ax == 0, R_ = (fl & 128) || rw == 0;
    double sum = 0;
    std::int64_t s64 = 0;
    for (int j = 0; j < k.kh; ++j)
        for (int i = 0; i < k.kw; ++i) {
            const std::int64_t yy = model_coord(y - ay + j, src.H, mode, T_, B_, ay, rh);
            const std::int64_t xx = model_coord(x - ax + i, src.W, mode, L_, R_, ax, rw);
            const double px = (yy == INT64_MIN || xx == INT64_MIN) ? double(bv[c]) : double(src.at(xx, yy, c));
            const int kidx = (k.kh - 1 - j) * k.kw + (k.kw - 1 - i);  // true convolution
            if (integer) s64 += static_cast<std::int64_t>(px) * k.k16[kidx];
            else sum += px * double(k.k32[kidx]);
        }
    *isInt = integer;
    *isum = s64;
    return sum;
}

template <class T>
double expect_int(std::int64_t s64, int divisor, int rm, float offsetScaled) {
    const auto S = static_cast<std::int32_t>(static_cast<std::uint32_t>(s64));
    const float f = static_cast<float>(S) + offsetScaled;
    std::int64_t Sp = (std::isnan(f) || f >= 2147483648.0f || f < -2147483648.0f) ? INT32_MIN : static_cast<std::int64_t>(f);
    const double v = round_exact(Sp, divisor, rm);
    return std::clamp(v, lo_of<T>(), hi_of<T>());
}

// Integer pixels from a double sum: exact rounding by mode, with slack where
// the sum sits within tol of a boundary.
template <class T>
::testing::AssertionResult float_ok(double out, double sum, int rm, double tol) {
    if constexpr (std::is_same_v<T, Gex32f>) {
        if (std::fabs(out - sum) <= tol) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "got " << out << " want " << sum << " tol " << tol;
    } else {
        auto rnd = [&](double v) {
            double r;
            if (rm == 0) r = std::trunc(v);
            else if (rm == 1) r = std::nearbyint(v);  // ties to even in the default mode
            else r = std::round(v);
            return std::clamp(r, lo_of<T>(), hi_of<T>());
        };
        const double want = rnd(sum);
        if (out == want) return ::testing::AssertionSuccess();
        const double a = rnd(sum - tol), b = rnd(sum + tol);
        if (out == a || out == b) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "got " << out << " want " << want << " (sum " << sum << ")";
    }
}

template <class T>
void fill_small(Guarded<T>& g, std::mt19937& rng) {
    for (int y = 0; y < g.height(); ++y)
        for (std::int64_t e = 0; e < g.row_elems(); ++e) {
            T v;
            if constexpr (std::is_same_v<T, Gex8u>) v = T(rng() & 255);
            else if constexpr (std::is_same_v<T, Gex16u>) v = T(rng() & 4095);
            else if constexpr (std::is_same_v<T, Gex16s>) v = T(int(rng() % 4001) - 2000);
            else v = float(int(rng() % 2001) - 1000) / 8.0f;
            g.row(y)[e] = v;
        }
}

struct Case {
    int W, H, kw, kh, border;
};

// Builds the record, runs the export on a guarded destination, compares with the model.
template <class T, int CH>
void check_against_model(const Case& cs, const Kernel& k, bool integer, int rm, Layout lay, std::mt19937& rng,
                         const std::string& what) {
    const int R = std::max(k.kw, k.kh) + 1;
    Source<T> src(cs.W, cs.H, CH, R, lay);
    fill_small(src.img, rng);
    Guarded<T> dst(cs.W, cs.H, CH, lay);
    int specSize = 0, bufSize = 0;
    ASSERT_EQ(gexiFilterBorderGetSize({k.kw, k.kh}, {cs.W, cs.H}, type_of<T>(), integer ? gex16s : gex32f, CH, &specSize,
                                      &bufSize),
              gexStsOk);
    Record rec(specSize);
    std::vector<Gex8u> buf(static_cast<std::size_t>(bufSize));
    GexStatus st = integer ? gexiFilterBorderInit_16s(k.k16.data(), {k.kw, k.kh}, k.divisor, type_of<T>(), CH,
                                                      static_cast<GexRoundMode>(rm), rec.rec)
                           : gexiFilterBorderInit_32f(k.k32.data(), {k.kw, k.kh}, type_of<T>(), CH,
                                                      static_cast<GexRoundMode>(rm), rec.rec);
    ASSERT_GE(st, 0) << what;
    const auto* rs = gex::record_at(rec.rec);
    const bool intKind = rs->kind < 3;
    T bv[4];
    for (int c = 0; c < 4; ++c) bv[c] = static_cast<T>(std::is_same_v<T, Gex16s> ? -100 + 37 * c : 7 + 37 * c);
    ASSERT_EQ((run<T, CH>)(src.roi_ptr(), src.img.step(), dst.ptr(), dst.step(), GexiSize{cs.W, cs.H}, cs.border, bv,
                         rec.rec, buf.data()),
              gexStsOk)
        << what;
    ASSERT_TRUE(dst.guards_ok()) << what;
    int bad = 0;
    for (int y = 0; y < cs.H && bad < 5; ++y)
        for (int x = 0; x < cs.W && bad < 5; ++x)
            for (int c = 0; c < CH; ++c) {
                bool isInt = false;
                std::int64_t s64 = 0;
                Kernel kk = k;
                if (!intKind && integer) {
                    // Handed over to float taps: the scaled taps.
                    kk.k32.resize(k.k16.size());
                    for (std::size_t q = 0; q < k.k16.size(); ++q) kk.k32[q] = static_cast<float>(k.k16[q] * (1.0 / k.divisor));
                }
                const double sum = model_sum(src, kk, intKind, x, y, c, cs.border, bv, &isInt, &s64);
                const double out = double(dst.at(x, y, c));
                if (intKind) {
                    const double want = expect_int<T>(s64, k.divisor, rm & 3, rs->offsetScaled);
                    if (out != want) {
                        ++bad;
                        ADD_FAILURE() << what << " at " << x << "," << y << "," << c << ": got " << out << " want " << want;
                    }
                } else {
                    double mag = 0;
                    for (std::size_t q = 0; q < kk.k32.size(); ++q) mag += std::fabs(kk.k32[q]);
                    // Rounding of a float sum of kw*kh products of pixels below 4096.
                    const double tol = mag * 4096.0 * double(kk.kw * kk.kh + 1) * 1.2e-7 + 1e-9;
                    auto r = float_ok<T>(out, sum, rm & 3, tol);
                    if (!r) {
                        ++bad;
                        ADD_FAILURE() << what << " at " << x << "," << y << "," << c << ": " << r.message();
                    }
                }
            }
}

Kernel random_kernel(int kw, int kh, std::mt19937& rng, int divisor, int range = 9) {
    Kernel k{kw, kh, {}, {}, divisor};
    for (int q = 0; q < kw * kh; ++q) {
        k.k16.push_back(static_cast<Gex16s>(int(rng() % (2 * range + 1)) - range));
        k.k32.push_back(static_cast<float>(int(rng() % 33) - 16) / 16.0f);
    }
    return k;
}

std::string describe(const Case& c, int rm, int divisor) {
    return std::to_string(c.W) + "x" + std::to_string(c.H) + " k" + std::to_string(c.kw) + "x" + std::to_string(c.kh) +
           " border " + std::to_string(c.border) + " rm " + std::to_string(rm) + " div " + std::to_string(divisor);
}

const int kBorders[] = {1, 3, 6, 1 | 16, 3 | 64, 6 | 128 | 32, 240, 3 | 16 | 32 | 64};

// ---- against the model -------------------------------------------------------------------

template <class T, int CH>
void model_sweep(bool integer, int seed) {
    std::mt19937 rng(seed);
    const int shapes[][2] = {{3, 3}, {5, 5}, {1, 5}, {7, 1}, {2, 2}, {2, 3}, {4, 1}, {1, 1}, {6, 4}, {9, 2}};
    const int sizes[][2] = {{1, 1}, {2, 3}, {5, 7}, {17, 4}, {33, 9}, {64, 5}, {65, 6}, {129, 3}, {3, 20}};
    const int divisors[] = {1, 4, 6, -3, 16, 10, 7};  // even ones make exact ties
    int n = 0;
    for (auto& sh : shapes)
        for (auto& sz : sizes) {
            const int border = kBorders[(n++) % 8];
            const Case cs{sz[0], sz[1], sh[0], sh[1], border};
            const int div = divisors[n % 7];
            const int rm = (n % 3) | (integer ? 16 : 0);
            Kernel k = random_kernel(cs.kw, cs.kh, rng, div);
            const auto layouts = gextest::standard_layouts(false);  // steps below 1 are refused
            check_against_model<T, CH>(cs, k, integer, rm, layouts[n % layouts.size()], rng, describe(cs, rm, div));
            if (::testing::Test::HasFailure()) return;
        }
}

TEST(FilterBorderModel, IntegerTaps8u) {
    model_sweep<Gex8u, 1>(true, 1);
    model_sweep<Gex8u, 3>(true, 2);
    model_sweep<Gex8u, 4>(true, 3);
}
TEST(FilterBorderModel, IntegerTaps16s) { model_sweep<Gex16s, 1>(true, 4); }
TEST(FilterBorderModel, IntegerTapsHandedToFloat) {
    model_sweep<Gex16u, 1>(true, 5);
    model_sweep<Gex16s, 3>(true, 6);
    model_sweep<Gex16u, 4>(true, 7);
}
TEST(FilterBorderModel, FloatTaps) {
    model_sweep<Gex8u, 1>(false, 8);
    model_sweep<Gex8u, 3>(false, 9);
    model_sweep<Gex8u, 4>(false, 10);
    model_sweep<Gex16u, 1>(false, 11);
    model_sweep<Gex16s, 4>(false, 12);
    model_sweep<Gex32f, 1>(false, 13);
    model_sweep<Gex32f, 3>(false, 14);
    model_sweep<Gex32f, 4>(false, 15);
}

TEST(FilterBorderModel, LargeTapsLeaveTheSixteenBitPaths) {
    std::mt19937 rng(20);
    Kernel k = random_kernel(3, 3, rng, 1000);
    k.k16[4] = 32767;
    k.k16[0] = -32768;
    const Case cs{40, 6, 3, 3, 1};
    check_against_model<Gex8u, 1>(cs, k, true, 1, Layout{}, rng, "32767 taps, mode 1");
    check_against_model<Gex8u, 1>(cs, k, true, 0, Layout{}, rng, "32767 taps, mode 0");
    int specSize, bufSize;
    ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {40, 6}, gex8u, gex16s, 1, &specSize, &bufSize), 0);
    Record rec(specSize);
    ASSERT_EQ(gexiFilterBorderInit_16s(k.k16.data(), {3, 3}, 1000, gex8u, 1, gexRndNear, rec.rec), 0);
    EXPECT_EQ(gex::record_at(rec.rec)->tapsFit16, 0);
    k.k16[4] = 32766;
    k.k16[0] = -32767;
    ASSERT_EQ(gexiFilterBorderInit_16s(k.k16.data(), {3, 3}, 1000, gex8u, 1, gexRndNear, rec.rec), 0);
    EXPECT_EQ(gex::record_at(rec.rec)->tapsFit16, 1);
}

TEST(FilterBorderModel, OffsetOnUnsignedPixels) {
    std::mt19937 rng(21);
    for (int rm : {16, 17, 18}) {
        Kernel k = random_kernel(3, 3, rng, 5, 4);
        const Case cs{37, 9, 3, 3, 1};
        Source<Gex8u> src(cs.W, cs.H, 1, 4);
        fill_small(src.img, rng);
        Guarded<Gex8u> dst(cs.W, cs.H, 1);
        int ss, bs;
        ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {cs.W, cs.H}, gex8u, gex16s, 1, &ss, &bs), 0);
        Record rec(ss);
        std::vector<Gex8u> buf(bs);
        ASSERT_EQ(gexiFilterBorderInit_16s(k.k16.data(), {3, 3}, 5, gex8u, 1, static_cast<GexRoundMode>(rm), rec.rec), 0);
        ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 40, rec.rec), 0);
        ASSERT_EQ(gexiFilterBorder_8u_C1R(src.roi_ptr(), src.img.step(), dst.ptr(), dst.step(), {cs.W, cs.H},
                                          gexBorderRepl, nullptr, rec.rec, buf.data()),
                  0);
        for (int y = 0; y < cs.H; ++y)
            for (int x = 0; x < cs.W; ++x) {
                bool isInt;
                std::int64_t s64;
                model_sum(src, k, true, x, y, 0, 1, (const Gex8u*)nullptr, &isInt, &s64);
                ASSERT_EQ(dst.at(x, y), expect_int<Gex8u>(s64, 5, rm & 3, 40.0f * 5.0f)) << x << "," << y;
            }
    }
}

// ---- edge cases of the rule ------------------------------------------------------------

TEST(FilterBorderRule, OneByOneKernelOfItsDivisorIsTheSource) {
    std::mt19937 rng(30);
    for (int d : {1, 3, 8, 255}) {
        for (int rm : {0, 1, 2}) {
            Guarded<Gex8u> src(70, 5, 3), dst(70, 5, 3);
            src.fill_random(rng);
            const Gex16s tap = static_cast<Gex16s>(d);
            Record rec(4096);
            ASSERT_EQ(gexiFilterBorderInit_16s(&tap, {1, 1}, d, gex8u, 3, static_cast<GexRoundMode>(rm), rec.rec), 0);
            std::vector<Gex8u> buf(4096);
            ASSERT_EQ(gexiFilterBorder_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), {70, 5}, gexBorderRepl,
                                              nullptr, rec.rec, buf.data()),
                      0);
            EXPECT_EQ(src.snapshot(), dst.snapshot()) << d << " " << rm;
        }
    }
}

TEST(FilterBorderRule, EvenWidthMirrorReadsXAndXPlusOne) {
    // A width-2 kernel {a, b} flipped: out(x) = b*src(x) + a*src(x+1); at the
    // right edge x+1 reflects to W-2.
    const int W = 9, H = 4;
    Guarded<Gex16s> src(W, H, 1), dst(W, H, 1);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) src.at(x, y) = static_cast<Gex16s>(x * x + 3 * y);
    const Gex32f k[2] = {10.0f, 1.0f};
    Record rec(4096);
    ASSERT_EQ(gexiFilterBorderInit_32f(k, {2, 1}, gex16s, 1, gexRndNear, rec.rec), 0);
    std::vector<Gex8u> buf(8192);
    ASSERT_EQ(gexiFilterBorder_16s_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {W, H}, gexBorderMirror, nullptr,
                                       rec.rec, buf.data()),
              0);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const int right = x + 1 < W ? x + 1 : W - 2;
            EXPECT_EQ(dst.at(x, y), src.at(x, y) + 10 * src.at(right, y)) << x << "," << y;
        }
}

TEST(FilterBorderRule, OneDimensionalFastPathRoundsToEven) {
    // {1, 1, 1} / 2 over a flat 1: the sum 3 makes 1.5. The one-row fast path
    // rounds it to 2 whatever the mode; the accurate flag gives the mode's
    // result (1 toward zero).
    const int W = 40, H = 3;
    Guarded<Gex8u> src(W, H, 1), dst(W, H, 1);
    src.fill(1);
    const Gex16s k[3] = {1, 1, 1};
    Record rec(4096);
    std::vector<Gex8u> buf(8192);
    for (GexHintAlgorithm hint : {gexAlgHintNone, gexAlgHintAccurate}) {
        ASSERT_EQ(gexiFilterBorderInit_16s(k, {3, 1}, 2, gex8u, 1, gexRndZero, rec.rec), 0);
        ASSERT_EQ(gexiFilterBorderSetMode(hint, 0, rec.rec), 0);
        ASSERT_EQ(gexiFilterBorder_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {W, H}, gexBorderRepl, nullptr,
                                          rec.rec, buf.data()),
                  0);
        const int want = hint == gexAlgHintAccurate ? 1 : 2;
        for (int y = 0; y < H; ++y)
            for (int x = 1; x < W - 1; ++x) ASSERT_EQ(dst.at(x, y), want) << x << "," << y << " hint " << hint;
    }
}

TEST(FilterBorderRule, TwoDimensionalFastPathFollowsTheMode) {
    // 3 x 3 of ones / 2 over a flat 1: 9 / 2 = 4.5; toward zero 4, nearest-even 4;
    // over a flat 3: 27 / 2 = 13.5: 13 and 14.
    const int W = 21, H = 5;
    Guarded<Gex8u> src(W, H, 1), dst(W, H, 1);
    std::vector<Gex16s> k(9, 1);
    Record rec(4096);
    std::vector<Gex8u> buf(8192);
    for (int v : {1, 3})
        for (int rm : {0, 1, 2}) {
            src.fill(static_cast<Gex8u>(v));
            ASSERT_EQ(gexiFilterBorderInit_16s(k.data(), {3, 3}, 2, gex8u, 1, static_cast<GexRoundMode>(rm), rec.rec), 0);
            ASSERT_EQ(gexiFilterBorder_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {W, H}, gexBorderRepl,
                                              nullptr, rec.rec, buf.data()),
                      0);
            const double x = 9.0 * v / 2;
            const int want = rm == 0 ? int(x) : rm == 1 ? int(std::nearbyint(x)) : int(std::round(x));
            EXPECT_EQ(dst.at(W / 2, H / 2), want) << v << " " << rm;
        }
}

TEST(FilterBorderRule, FloatTiesAndSaturation) {
    // Taps of 1/2 over integers make exact halves: mode 1 goes to even, 2 away from zero.
    const int W = 20, H = 1;
    Guarded<Gex16s> src(W, H, 1), dst(W, H, 1);
    for (int x = 0; x < W; ++x) src.at(x, 0) = static_cast<Gex16s>((x - 10) * 3 + (x % 2));
    const Gex32f k[1] = {0.5f};
    Record rec(4096);
    std::vector<Gex8u> buf(8192);
    for (int rm : {0, 1, 2}) {
        ASSERT_EQ(gexiFilterBorderInit_32f(k, {1, 1}, gex16s, 1, static_cast<GexRoundMode>(rm), rec.rec), 0);
        ASSERT_EQ(gexiFilterBorder_16s_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {W, H}, gexBorderRepl, nullptr,
                                           rec.rec, buf.data()),
                  0);
        for (int x = 0; x < W; ++x) {
            const double v = src.at(x, 0) * 0.5;
            const double want = rm == 0 ? std::trunc(v) : rm == 1 ? std::nearbyint(v) : std::round(v);
            EXPECT_EQ(dst.at(x, 0), want) << x << " rm " << rm;
        }
    }
    Guarded<Gex8u> s8(20, 1, 1), d8(20, 1, 1);
    for (int x = 0; x < 20; ++x) s8.at(x, 0) = static_cast<Gex8u>(x * 13);
    const Gex32f k8[1] = {-1.0f};
    const Gex32f k8b[1] = {3.0f};
    ASSERT_EQ(gexiFilterBorderInit_32f(k8, {1, 1}, gex8u, 1, gexRndNear, rec.rec), 0);
    ASSERT_EQ(gexiFilterBorder_8u_C1R(s8.ptr(), s8.step(), d8.ptr(), d8.step(), {20, 1}, gexBorderRepl, nullptr, rec.rec, buf.data()), 0);
    for (int x = 0; x < 20; ++x) EXPECT_EQ(d8.at(x, 0), 0);
    ASSERT_EQ(gexiFilterBorderInit_32f(k8b, {1, 1}, gex8u, 1, gexRndNear, rec.rec), 0);
    ASSERT_EQ(gexiFilterBorder_8u_C1R(s8.ptr(), s8.step(), d8.ptr(), d8.step(), {20, 1}, gexBorderRepl, nullptr, rec.rec, buf.data()), 0);
    for (int x = 0; x < 20; ++x) EXPECT_EQ(d8.at(x, 0), std::min(255, x * 39));
}

// ---- fast paths against the scalar loops ------------------------------------------------

template <class T, int CH>
void vec_vs_ref(std::mt19937& rng) {
    using namespace gex::fb;
    const int widths[] = {1, 2, 3, 5, 7, 15, 16, 17, 31, 33, 63, 64, 65, 127, 129, 200};
    int n = 0;
    for (int W : widths)
        for (auto [kw, kh] : std::initializer_list<std::pair<int, int>>{{3, 3}, {5, 5}, {1, 7}, {9, 1}, {4, 2}, {1, 2}}) {
            const int H = 3;
            const Layout lay = gextest::standard_layouts()[(n++) % 5];
            const int R = 6;
            Source<T> src(W, H, CH, R, lay);
            src.img.fill_random(rng);
            Guarded<T> d1(W, H, CH, lay), d2(W, H, CH, lay);
            Kernel k = random_kernel(kw, kh, rng, 1, 3000);
            for (auto& t : k.k32) t = float(int(rng() % 2001) - 1000) / 97.0f;
            Record rec(1 << 16);
            const int div = (n % 3 == 0) ? 1 : (n % 3 == 1) ? 8 : 13;
            const int rm = n % 3;
            // Float taps.
            ASSERT_EQ(gexiFilterBorderInit_32f(k.k32.data(), {kw, kh}, type_of<T>(), CH, static_cast<GexRoundMode>(rm), rec.rec), 0);
            auto* s = gex::record_at(rec.rec);
            filter_float_vec<T, CH>(*s, src.roi_ptr(), src.img.step(), d1.ptr(), d1.step(), {W, H});
            filter_float_ref<T, CH>(*s, src.roi_ptr(), src.img.step(), d2.ptr(), d2.step(), {W, H});
            ASSERT_TRUE(gextest::same_bits(d1.snapshot(), d2.snapshot())) << "float W " << W << " k " << kw << "x" << kh;
            ASSERT_TRUE(d1.guards_ok());
            // Integer taps, each conversion.
            if constexpr (std::is_same_v<T, Gex8u> || (std::is_same_v<T, Gex16s> && CH == 1)) {
                ASSERT_EQ(gexiFilterBorderInit_16s(k.k16.data(), {kw, kh}, div, gex8u, CH, static_cast<GexRoundMode>(rm), rec.rec), 0);
                ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintNone, std::is_same_v<T, Gex8u> ? 3 : 0, rec.rec), 0);
                auto both = [&](auto vec, auto ref, const char* name) {
                    vec(*s, src.roi_ptr(), src.img.step(), d1.ptr(), d1.step(), GexiSize{W, H});
                    ref(*s, src.roi_ptr(), src.img.step(), d2.ptr(), d2.step(), GexiSize{W, H});
                    ASSERT_TRUE(gextest::same_bits(d1.snapshot(), d2.snapshot()))
                        << name << " W " << W << " k " << kw << "x" << kh << " div " << div << " rm " << rm;
                    ASSERT_TRUE(d1.guards_ok());
                };
                both(filter_int_vec<T, CH, IntConv::Exact>, filter_int_ref<T, CH, IntConv::Exact>, "exact");
                both(filter_int_vec<T, CH, IntConv::OneD>, filter_int_ref<T, CH, IntConv::OneD>, "oned");
                both(filter_int_vec<T, CH, IntConv::Zero>, filter_int_ref<T, CH, IntConv::Zero>, "zero");
                both(filter_int_vec<T, CH, IntConv::Near>, filter_int_ref<T, CH, IntConv::Near>, "near");
            }
        }
}

TEST(FilterBorderFast, VectorKernelsEqualTheScalarLoops) {
    std::mt19937 rng(40);
    vec_vs_ref<Gex8u, 1>(rng);
    vec_vs_ref<Gex8u, 3>(rng);
    vec_vs_ref<Gex8u, 4>(rng);
    vec_vs_ref<Gex16s, 1>(rng);
    vec_vs_ref<Gex16u, 3>(rng);
    vec_vs_ref<Gex32f, 1>(rng);
    vec_vs_ref<Gex32f, 3>(rng);
    vec_vs_ref<Gex32f, 4>(rng);
}

TEST(FilterBorderFast, OneDimensionalRuleOnPowerOfTwoDivisors) {
    // Ties of the shift rule go to even for every mode.
    gex::FilterBorderSpec s{};
    s.divisorKind = 1;
    s.shift = 2;
    s.roundHalf = 2;
    s.invDivisor = 0.25f;
    s.offset = 0;
    const std::pair<int, int> cases[] = {{2, 0}, {6, 2}, {10, 2}, {14, 4}, {5, 1}, {7, 2}, {-2, 0}, {-6, 0}};
    for (auto [S, want] : cases) EXPECT_EQ(gex::fb::conv_oned<Gex8u>(S, s), want) << S;
    EXPECT_EQ(gex::fb::conv_oned<Gex16s>(-6, s), -2);
    EXPECT_EQ(gex::fb::conv_oned<Gex16s>(-10, s), -2);
}

// ---- whole-ROI copy against strips ----------------------------------------------------------

template <class T, int CH>
void whole_vs_strips(std::mt19937& rng) {
    for (int border : {1, 3, 6, 3 | 16, 1 | 128, 6 | 64 | 32})
        for (auto [kw, kh] : std::initializer_list<std::pair<int, int>>{{3, 3}, {5, 3}, {2, 2}, {4, 5}, {1, 3}}) {
            const int W = 23, H = 11, R = 4;
            Source<T> src(W, H, CH, R);
            src.img.fill_random(rng);
            Guarded<T> d1(W, H, CH), d2(W, H, CH);
            Kernel k = random_kernel(kw, kh, rng, 5);
            Record rec(1 << 16);
            if constexpr (std::is_same_v<T, Gex32f>)
                ASSERT_EQ(gexiFilterBorderInit_32f(k.k32.data(), {kw, kh}, type_of<T>(), CH, gexRndNear, rec.rec), 0);
            else
                ASSERT_GE(gexiFilterBorderInit_16s(k.k16.data(), {kw, kh}, 5, type_of<T>(), CH, gexRndNear, rec.rec), 0);
            const T bv[4] = {T(3), T(50), T(9), T(100)};
            std::vector<Gex8u> buf(1 << 16);
            ASSERT_EQ((run<T, CH>)(src.roi_ptr(), src.img.step(), d1.ptr(), d1.step(), GexiSize{W, H}, border, bv, rec.rec,
                                 buf.data()),
                      0);
            const auto* s = gex::record_at(rec.rec);
            auto kernel = [s](const T* a, int as, T* b, int bs, GexiSize r) { gex::fb::filter_interior<T, CH>(*s, a, as, b, bs, r); };
            gex::StripOptions opt;
            opt.mirrorReach2 = true;
            opt.forceWholeCopy = true;
            gex::run_strips<T, CH>(src.roi_ptr(), src.img.step(), d2.ptr(), d2.step(), {W, H}, kw, kh, border, bv,
                                   buf.data(), kernel, opt);
            ASSERT_TRUE(gextest::same_bits(d1.snapshot(), d2.snapshot())) << "border " << border << " k " << kw << "x" << kh;
        }
}

TEST(FilterBorderStrips, WholeRoiCopyGivesTheStripPixels) {
    std::mt19937 rng(50);
    whole_vs_strips<Gex8u, 1>(rng);
    whole_vs_strips<Gex8u, 3>(rng);
    whole_vs_strips<Gex16u, 4>(rng);
    whole_vs_strips<Gex32f, 1>(rng);
}

// ---- statuses --------------------------------------------------------------------------

TEST(FilterBorderStatus, RunChecksInOrderAndWriteNothing) {
    Guarded<Gex8u> src(16, 8, 1), dst(16, 8, 1);
    src.fill(9);
    dst.fill(77);
    const auto before = dst.snapshot();
    Record rec(4096);
    std::vector<Gex8u> buf(8192);
    const Gex16s k[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    ASSERT_EQ(gexiFilterBorderInit_16s(k, {3, 3}, 16, gex8u, 1, gexRndNear, rec.rec), 0);
    const Gex8u bv[1] = {5};
    const GexiSize roi{16, 8};
    auto call = [&](const Gex8u* s, Gex8u* d, const GexiFilterBorderSpec* sp, Gex8u* b, const Gex8u* v, GexiSize r,
                    int ss, int ds, int border) {
        return gexiFilterBorder_8u_C1R(s, ss, d, ds, r, static_cast<GexiBorderType>(border), v, sp, b);
    };
    const int S = src.step(), D = dst.step();
    EXPECT_EQ(call(nullptr, dst.ptr(), rec.rec, buf.data(), bv, {0, 0}, 0, 0, 999), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), nullptr, rec.rec, buf.data(), bv, roi, S, D, 1), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), nullptr, buf.data(), bv, roi, S, D, 1), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, nullptr, bv, roi, S, D, 1), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), nullptr, {0, 0}, 0, 0, 6), gexStsNullPtr);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), nullptr, {0, 0}, 0, 0, 6 | 240), gexStsNullPtr);
    // A null constant outside mode 6 is not read.
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), nullptr, {0, 0}, 0, 0, 1), gexStsSize);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), bv, {16, 0}, 0, 0, 99), gexStsSize);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, 0, D, 99), gexStsStep);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, S, 15, 99), gexStsStep);
    EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, -S, 16, 99), gexStsStep);
    for (int b : {0, 2, 4, 5, 7, 16, 256, 257, -1, 4 | 240})
        EXPECT_EQ(call(src.ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, S, D, b), gexStsBorder) << b;
    EXPECT_EQ(before, dst.snapshot());
    EXPECT_TRUE(dst.guards_ok());
    // The step test counts the width alone, not the channels.
    Guarded<Gex32f> s3(4, 4, 3), d3(4, 4, 3);
    s3.fill(1.0f);
    Record r3(4096);
    const Gex32f one = 1.0f;
    ASSERT_EQ(gexiFilterBorderInit_32f(&one, {1, 1}, gex32f, 3, gexRndNear, r3.rec), 0);
    EXPECT_EQ(gexiFilterBorder_32f_C3R(s3.ptr(), s3.step(), d3.ptr(), 15, {4, 4}, gexBorderRepl, nullptr, r3.rec, buf.data()),
              gexStsStep);
    EXPECT_EQ(before, dst.snapshot());
    // 240 and 241 pass.
    Source<Gex8u> big(16, 8, 1, 2);
    big.img.fill(4);
    EXPECT_EQ(call(big.roi_ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, big.img.step(), D, 240), gexStsOk);
    EXPECT_EQ(call(big.roi_ptr(), dst.ptr(), rec.rec, buf.data(), bv, roi, big.img.step(), D, 241), gexStsOk);
    EXPECT_EQ(dst.at(3, 3), 4);
}

TEST(FilterBorderStatus, GetSize) {
    int ss = -1, bs = -1;
    EXPECT_EQ(gexiFilterBorderGetSize({0, 3}, {10, 10}, static_cast<GexDataType>(99), gex16s, 9, nullptr, nullptr), gexStsSize);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 0}, gex8u, gex16s, 1, &ss, &bs), gexStsSize);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex64f, gex16s, 9, nullptr, nullptr), gexStsDataType);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex8u, gex8u, 9, nullptr, nullptr), gexStsDataType);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex8u, gex16s, 5, nullptr, nullptr), gexStsChannelFormat);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex8u, gex16s, 0, nullptr, nullptr), gexStsChannelFormat);
    EXPECT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex8u, gex16s, 2, &ss, nullptr), gexStsNullPtr);
    EXPECT_EQ(ss, -1);
    // 3 x 3, 8u, 16-bit taps, one channel, 10 x 10: record 2*8*3*4 = 192 -> 192,
    // taps 18 -> 64, + 191 = 447. Buffer: borders 96, kernel
    // ((2*16*3 + 10 + 7) & ~7) * 4 = 448 -> (448+191)&~63 = 576; + 63.
    ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex8u, gex16s, 1, &ss, &bs), gexStsOk);
    EXPECT_EQ(ss, 447);
    EXPECT_EQ(bs, 96 + 576 + 63);
    // 32f one channel float taps add the broadcast table: 3*3*64 = 576.
    ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex32f, gex32f, 1, &ss, &bs), gexStsOk);
    EXPECT_EQ(ss, 192 + 64 + 191 + 576);
    // kernel 9*32 = 288 -> 448; borders 4*36 = 144 -> 160 + 32 = 192.
    EXPECT_EQ(bs, 192 + 448 + 63);
    // 16u with 16-bit taps is sized as float taps.
    int ss2, bs2;
    ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex16u, gex16s, 1, &ss, &bs), gexStsOk);
    ASSERT_EQ(gexiFilterBorderGetSize({3, 3}, {10, 10}, gex16u, gex32f, 1, &ss2, &bs2), gexStsOk);
    EXPECT_EQ(ss, ss2);
    EXPECT_EQ(bs, bs2);
    // Over 2^31 - 1: -232 and the buffer size cleared.
    bs = 12345;
    EXPECT_EQ(gexiFilterBorderGetSize({40000, 40000}, {10, 10}, gex32f, gex32f, 4, &ss, &bs), gexStsExceededSize);
    EXPECT_EQ(bs, 0);
    // The sizes cover what Init and the runs use: checked by the model sweeps,
    // which allocate exactly these sizes.
}

TEST(FilterBorderStatus, InitChecks) {
    const Gex16s k16[6] = {1, 2, 3, 4, 5, 6};
    const Gex32f k32[6] = {1, 2, 3, 4, 5, 6};
    Record rec(4096);
    auto i16 = [&](const Gex16s* k, GexiSize ks, int div, int dt, int ch, int rm, GexiFilterBorderSpec* sp) {
        return gexiFilterBorderInit_16s(k, ks, div, static_cast<GexDataType>(dt), ch, static_cast<GexRoundMode>(rm), sp);
    };
    auto i32 = [&](const Gex32f* k, GexiSize ks, int dt, int ch, int rm, GexiFilterBorderSpec* sp) {
        return gexiFilterBorderInit_32f(k, ks, static_cast<GexDataType>(dt), ch, static_cast<GexRoundMode>(rm), sp);
    };
    EXPECT_EQ(i16(nullptr, {0, 0}, 0, 99, 9, 9, rec.rec), gexStsNullPtr);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 99, 9, 9, nullptr), gexStsNullPtr);
    EXPECT_EQ(i16(k16, {3, 0}, 0, 99, 9, 9, rec.rec), gexStsSize);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 99, 9, 9, rec.rec), gexStsDataType);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 13, 9, 9, rec.rec), gexStsChannelFormat);   // 32f passes the first type test
    EXPECT_EQ(i16(k16, {3, 2}, 0, 13 , 1, 16 + 0, rec.rec), gexStsDataType);  // but not with flag 16
    EXPECT_EQ(i16(k16, {3, 2}, 0, 1, 9, 9, rec.rec), gexStsChannelFormat);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 1, 1, 3, rec.rec), gexStsRoundMode);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 1, 1, -1, rec.rec), gexStsRoundMode);
    EXPECT_EQ(i16(k16, {3, 2}, 0, 1, 1, 18, rec.rec), gexStsMaskKernelZero);
    EXPECT_EQ(i16(k16, {3, 2}, 2, 13, 1, 2, rec.rec), gexStsDataType);
    EXPECT_EQ(i32(nullptr, {3, 2}, 1, 1, 0, rec.rec), gexStsNullPtr);
    EXPECT_EQ(i32(k32, {-1, 2}, 99, 1, 0, rec.rec), gexStsSize);
    EXPECT_EQ(i32(k32, {3, 2}, 19, 1, 0, rec.rec), gexStsDataType);
    EXPECT_EQ(i32(k32, {3, 2}, 1, 5, 0, rec.rec), gexStsChannelFormat);
    EXPECT_EQ(i32(k32, {3, 2}, 1, 1, 19, rec.rec), gexStsRoundMode);

    auto* s = gex::record_at(rec.rec);
    // Integer record: divisor kinds, reversed taps, pairs.
    ASSERT_EQ(i16(k16, {3, 2}, 8, 1, 1, 1, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 0);
    EXPECT_EQ(s->divisorKind, 1);
    EXPECT_EQ(s->shift, 3);
    EXPECT_EQ(s->roundHalf, 4);
    EXPECT_EQ(s->shiftMask, 7);
    EXPECT_EQ(s->invDivisor, 0.125f);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(s) % 64, 0u);
    const auto* t = static_cast<const Gex16s*>(s->pTaps);
    for (int q = 0; q < 6; ++q) EXPECT_EQ(t[q], k16[5 - q]);
    const auto* pr = static_cast<const std::int32_t*>(s->pTapsPairs);
    EXPECT_EQ(pr[0], (k16[5] & 0xffff) | (k16[2] << 16));
    ASSERT_EQ(i16(k16, {3, 2}, 1, 1, 1, 1, rec.rec), gexStsOk);
    EXPECT_EQ(s->divisorKind, 0);
    ASSERT_EQ(i16(k16, {3, 2}, -4, 7, 1, 0, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 1);
    EXPECT_EQ(s->divisorKind, 2);
    EXPECT_EQ(s->invDivisor, -0.25f);
    EXPECT_EQ(s->divisorD, -4.0);
    // Handed to float taps, scaled by 1/divisor: 16u, 16s with 3 channels or a 1-wide kernel.
    ASSERT_EQ(i16(k16, {3, 2}, 4, 5, 1, 2, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 5);
    EXPECT_EQ(static_cast<const float*>(s->pTaps)[0], 1.5f);
    ASSERT_EQ(i16(k16, {3, 2}, 4, 7, 3, 2, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 4);
    ASSERT_EQ(i16(k16, {1, 6}, 4, 7, 1, 2, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 4);
    ASSERT_EQ(i16(k16, {2, 3}, 4, 7, 1, 2, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 4);
    // Flag 16: kept for 8u and one-channel 16s, a warning elsewhere.
    EXPECT_EQ(i16(k16, {3, 2}, 3, 1, 3, 17, rec.rec), gexStsOk);
    EXPECT_EQ(s->roundMode, 17);
    EXPECT_EQ(i16(k16, {3, 2}, 3, 7, 1, 18, rec.rec), gexStsOk);
    EXPECT_EQ(s->roundMode, 18);
    EXPECT_EQ(i16(k16, {3, 2}, 3, 5, 1, 17, rec.rec), gexStsAccurateModeIgnored);
    EXPECT_EQ(s->roundMode, 1);
    EXPECT_EQ(i16(k16, {3, 2}, 3, 7, 2, 16, rec.rec), gexStsAccurateModeIgnored);
    EXPECT_EQ(s->roundMode, 0);
    EXPECT_EQ(i32(k32, {3, 2}, 13, 1, 18, rec.rec), gexStsAccurateModeIgnored);
    EXPECT_EQ(s->kind, 6);
    EXPECT_EQ(s->roundMode, 2);
    EXPECT_EQ(static_cast<const float*>(s->pTaps)[0], 6.0f);
    ASSERT_EQ(i32(k32, {3, 2}, 1, 3, 0, rec.rec), gexStsOk);
    EXPECT_EQ(s->kind, 3);
}

TEST(FilterBorderStatus, SetModeRules) {
    const Gex16s k16[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    const Gex32f k32[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    Record rec(4096);
    auto* s = gex::record_at(rec.rec);
    EXPECT_EQ(gexiFilterBorderSetMode(gexAlgHintNone, 0, nullptr), gexStsNullPtr);
    // 8u integer: accurate sets flag 16, other hints clear it; offset scaled by the divisor.
    ASSERT_EQ(gexiFilterBorderInit_16s(k16, {3, 3}, 9, gex8u, 1, gexRndFin, rec.rec), 0);
    ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 5, rec.rec), 0);
    EXPECT_EQ(s->roundMode, 18);
    EXPECT_EQ(s->offset, 5);
    EXPECT_EQ(s->offsetScaled, 45.0f);
    EXPECT_EQ(s->hint, 2);
    ASSERT_EQ(gexiFilterBorderSetMode(static_cast<GexHintAlgorithm>(7), -3, rec.rec), 0);
    EXPECT_EQ(s->roundMode, 2);
    EXPECT_EQ(s->offsetScaled, -27.0f);
    // 16s integer, one channel: accurate flag; a non-zero offset is refused and changes nothing.
    ASSERT_EQ(gexiFilterBorderInit_16s(k16, {3, 3}, 9, gex16s, 1, gexRndNear, rec.rec), 0);
    std::vector<std::uint8_t> snap(reinterpret_cast<std::uint8_t*>(s), reinterpret_cast<std::uint8_t*>(s) + 128);
    EXPECT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 1, rec.rec), gexStsNotSupportedMode);
    EXPECT_EQ(0, std::memcmp(snap.data(), s, 128));
    ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 0, rec.rec), 0);
    EXPECT_EQ(s->roundMode, 17);
    // 16s with two channels: accurate leaves the mode.
    ASSERT_EQ(gexiFilterBorderInit_16s(k16, {3, 3}, 9, gex16s, 2, gexRndNear, rec.rec), 0);
    ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 0, rec.rec), 0);
    EXPECT_EQ(s->roundMode, 1);
    // Float kinds: 32f and 16s refuse offsets; 8u and 16u take them unscaled.
    ASSERT_EQ(gexiFilterBorderInit_32f(k32, {3, 3}, gex32f, 1, gexRndNear, rec.rec), 0);
    EXPECT_EQ(gexiFilterBorderSetMode(gexAlgHintNone, 2, rec.rec), gexStsNotSupportedMode);
    ASSERT_EQ(gexiFilterBorderInit_32f(k32, {3, 3}, gex16s, 1, gexRndNear, rec.rec), 0);
    EXPECT_EQ(gexiFilterBorderSetMode(gexAlgHintNone, 2, rec.rec), gexStsNotSupportedMode);
    ASSERT_EQ(gexiFilterBorderInit_32f(k32, {3, 3}, gex16u, 1, gexRndNear, rec.rec), 0);
    ASSERT_EQ(gexiFilterBorderSetMode(gexAlgHintAccurate, 7, rec.rec), 0);
    EXPECT_EQ(s->roundMode, 1);
    EXPECT_EQ(s->offsetScaled, 7.0f);
}

}  // namespace
