// Super-sampling resize.
//
// * The period tables against the exact box overlaps.
// * Whole runs of every depth and layout against a per-pixel model written
//   from the rules (its own tables, its own sums), bit for bit; guarded images.
// * Random tile grids against one whole run, tiles on several threads sharing
//   one record; constant images stay constant.
// * Vector kernels against their scalar twins, bit for bit.
// * Statuses of Init and run in order, nothing written on failure.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>
#include <thread>
#include <type_traits>
#include <vector>

#include "geometry/resize.hpp"
#include "geometry/resize_super.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;
namespace rs = gex::resize;

namespace {

// ---- calls by type -------------------------------------------------------------------

template <class T, int C>
GexStatus run32(const T* s, int ss, T* d, int ds, GexiPoint o, GexiSize z, const GexiResizeSpec* sp, Gex8u* b) {
#define GEX_T_CASE(TT, D)                                                                                  \
    if constexpr (std::is_same_v<T, TT>) {                                                                 \
        if constexpr (C == 1) return gexiResizeSuper_##D##_C1R(s, ss, d, ds, o, z, sp, b);               \
        else if constexpr (C == 3) return gexiResizeSuper_##D##_C3R(s, ss, d, ds, o, z, sp, b);          \
        else return gexiResizeSuper_##D##_C4R(s, ss, d, ds, o, z, sp, b);                                \
    }
    GEX_T_CASE(Gex8u, 8u) GEX_T_CASE(Gex16u, 16u) GEX_T_CASE(Gex16s, 16s) GEX_T_CASE(Gex32f, 32f)
#undef GEX_T_CASE
}

template <class T, int C>
GexStatus runL(const T* s, Gex64s ss, T* d, Gex64s ds, GexiPointL o, GexiSizeL z, const GexiResizeSpec* sp, Gex8u* b) {
#define GEX_T_CASE(TT, D)                                                                                  \
    if constexpr (std::is_same_v<T, TT>) {                                                                 \
        if constexpr (C == 1) return gexiResizeSuper_##D##_C1R_L(s, ss, d, ds, o, z, sp, b);             \
        else if constexpr (C == 3) return gexiResizeSuper_##D##_C3R_L(s, ss, d, ds, o, z, sp, b);        \
        else return gexiResizeSuper_##D##_C4R_L(s, ss, d, ds, o, z, sp, b);                              \
    }
    GEX_T_CASE(Gex8u, 8u) GEX_T_CASE(Gex16u, 16u) GEX_T_CASE(Gex16s, 16s) GEX_T_CASE(Gex32f, 32f)
#undef GEX_T_CASE
}

template <class T>
GexStatus init32(GexiSize s, GexiSize d, GexiResizeSpec* p) {
    if constexpr (std::is_same_v<T, Gex8u>) return gexiResizeSuperInit_8u(s, d, p);
    else if constexpr (std::is_same_v<T, Gex16u>) return gexiResizeSuperInit_16u(s, d, p);
    else if constexpr (std::is_same_v<T, Gex16s>) return gexiResizeSuperInit_16s(s, d, p);
    else return gexiResizeSuperInit_32f(s, d, p);
}

// A record block at an odd offset of its allocation, with a canary behind it.
struct Record {
    std::vector<unsigned char> mem;
    GexiResizeSpec* p;
    std::size_t size;
    Record(int sw, int sh, int dw, int dh, int misalign = 5) {
        size = rs::super_record_size(sw, sh, dw, dh);
        mem.assign(size + misalign + 64, 0xA5);
        p = reinterpret_cast<GexiResizeSpec*>(mem.data() + misalign);
    }
    const rs::Record* record() const { return rs::record_at(static_cast<const void*>(p)); }
    bool canary_ok() const {
        const auto* b = reinterpret_cast<const unsigned char*>(p);
        for (std::size_t i = size; b + i < mem.data() + mem.size(); ++i)
            if (b[i] != 0xA5) return false;
        return true;
    }
};

struct Scratch {
    std::vector<unsigned char> mem;
    std::size_t size;
    Scratch(const rs::Record* s, std::int64_t w, std::int64_t h, int c) {
        size = rs::super_buffer_size(s, w, h, c);
        mem.assign(size + 3 + 64, 0x5A);
    }
    Gex8u* ptr() { return mem.data() + 3; }
    bool canary_ok() const {
        for (std::size_t i = size + 3; i < mem.size(); ++i)
            if (mem[i] != 0x5A) return false;
        return true;
    }
};

// ---- the model -----------------------------------------------------------------------
// Tables and sums written out from the rules, per destination pixel, on whole
// images in absolute coordinates.

struct ModelAxis {
    std::int64_t num, den, k;
    std::vector<std::int32_t> pos;
    std::vector<float> w;
};

ModelAxis model_axis(std::int64_t src, std::int64_t dst) {
    const std::int64_t g = std::gcd(src, dst);
    ModelAxis a{src / g, dst / g, 0, {}, {}};
    const std::int64_t rem = a.num % a.den;
    a.k = a.num / a.den + (rem == 0 ? 0 : rem == 1 ? 1 : 2);
    if (a.num == a.den) {
        a.pos = {0};
        a.w = {1.0f};
        return a;
    }
    const double r = double(a.num) / double(a.den);
    double c = 1.0, u = 0.0;
    for (std::int64_t p = 0; p < a.den; ++p) {
        std::vector<std::pair<std::int64_t, double>> taps;
        const std::int64_t q = std::int64_t(std::trunc(r * double(p)));
        taps.push_back({q, c > 1e-7 ? c : 0.0});
        double rest = r - c;
        std::int64_t j = 1;
        while (j <= a.k - 2) {
            if (rest < 1) {
                u = rest - 1;
                break;
            }
            taps.push_back({q + j, 1.0});
            rest -= 1;
            ++j;
        }
        taps.push_back({q + j, rest > 1e-7 ? rest : 0.0});
        if (u < 0) {
            taps.push_back({q + j, 0.0});
            u = 0;
        }
        c = 1 - rest;
        for (auto& t : taps) {
            if (p == a.den - 1 && t.first >= a.num) t = {a.num - 1, 0.0};
            a.pos.push_back(std::int32_t(t.first));
            a.w.push_back(float(t.second));
        }
    }
    return a;
}

template <class T>
T model_store(float v) {
    if constexpr (std::is_same_v<T, float>) {
        return v;
    } else {
        const double r = std::nearbyint(double(v));  // default mode: ties to even
        return T(std::clamp(r, double(std::numeric_limits<T>::lowest()), double(std::numeric_limits<T>::max())));
    }
}

// src: whole image, row-major with C channels.
template <class T>
std::vector<T> model(const std::vector<T>& src, int sw, int sh, int dw, int dh, int C) {
    const ModelAxis X = model_axis(sw, dw), Y = model_axis(sh, dh);
    const float fy = float(Y.den) / float(Y.num);
    float S = (float(X.den) / float(X.num)) * fy;
    if (X.den == 1 && (X.num == 2 || X.num == 3)) S = fy / float(X.num);
    const bool copyX = X.num == X.den, copyY = Y.num == Y.den;
    if (copyY) S = float(X.den) / float(X.num);
    if (copyX) S = fy;
    std::vector<T> out(std::size_t(dw) * dh * C);
    for (int y = 0; y < dh; ++y) {
        const std::int64_t py = y % Y.den, by = (y / Y.den) * Y.num;
        auto vert = [&](std::int64_t col, int ch) {
            float a = 0.0f;
            for (std::int64_t j = 0; j < Y.k; ++j) {
                const float w = Y.w[py * Y.k + j];
                const float p = float(src[(std::size_t(by + Y.pos[py * Y.k + j]) * sw + col) * C + ch]);
                if (w == 1.0f) a += p;
                else if (w != 0.0f) a = std::fma(w, p, a);
            }
            return a;
        };
        for (int x = 0; x < dw; ++x)
            for (int ch = 0; ch < C; ++ch) {
                T& o = out[(std::size_t(y) * dw + x) * C + ch];
                if (copyX && copyY) {
                    o = src[(std::size_t(y) * sw + x) * C + ch];
                    continue;
                }
                if (copyX) {
                    o = model_store<T>(S * vert(x, ch));
                    continue;
                }
                const std::int64_t px = x % X.den, bx = (x / X.den) * X.num;
                std::vector<float> a(X.k), w(X.k);
                for (std::int64_t j = 0; j < X.k; ++j) {
                    a[j] = vert(bx + X.pos[px * X.k + j], ch);
                    w[j] = X.w[px * X.k + j];
                }
                float v;
                if (X.k == 2) {
                    v = S * std::fma(w[0], a[0], a[1] * w[1]);
                } else if (X.k == 3) {
                    v = std::fma(S, std::fma(w[1], a[1], a[2] * w[2]), (S * w[0]) * a[0]);
                } else if (X.k == 4) {
                    v = S * std::fma(w[3], a[3], std::fma(w[2], a[2], std::fma(w[0], a[0], a[1] * w[1])));
                } else {
                    float sum = 0.0f;
                    for (std::int64_t j = 0; j < X.k; ++j) sum = std::fma(w[j], a[j], sum);
                    v = S * sum;
                }
                o = model_store<T>(v);
            }
    }
    return out;
}

template <class T>
std::vector<T> random_image(std::mt19937& rng, int w, int h, int C) {
    std::vector<T> v(std::size_t(w) * h * C);
    for (auto& e : v) e = Guarded<T>::random_value(rng);
    return v;
}

// Runs one tile of a whole destination held in `out` (row-major).
template <class T, int C>
GexStatus run_tile(const std::vector<T>& src, int sw, std::vector<T>& out, int dw, const Record& rec, int x, int y,
                   int w, int h, bool useL = false) {
    const rs::Record* s = rec.record();
    const std::int64_t ex = std::min<std::int64_t>(x + w, dw), ey = std::min<std::int64_t>(y + h, s->yAxis.dstLen);
    const std::int64_t sx = rs::super_src_offset(s->xAxis, x), sy = rs::super_src_offset(s->yAxis, y);
    EXPECT_LE(sx + rs::super_src_extent(s->xAxis, x, ex), sw);
    EXPECT_LE(sy + rs::super_src_extent(s->yAxis, y, ey), std::int64_t(s->yAxis.srcLen));
    Scratch buf(s, w, h, C);
    const T* ps = src.data() + (std::size_t(sy) * sw + sx) * C;
    T* pd = out.data() + (std::size_t(y) * dw + x) * C;
    const int ss = int(sw * C * sizeof(T)), ds = int(dw * C * sizeof(T));
    const GexStatus st = useL ? runL<T, C>(ps, ss, pd, ds, {x, y}, {w, h}, rec.p, buf.ptr())
                              : run32<T, C>(ps, ss, pd, ds, {x, y}, {w, h}, rec.p, buf.ptr());
    EXPECT_TRUE(buf.canary_ok());
    return st;
}

struct Ratio {
    int sw, sh, dw, dh;
};

// Frequent ratios with kernels of their own, generic ones, equal axes.
const Ratio kRatios[] = {
    {64, 38, 32, 19}, {45, 30, 30, 20}, {44, 21, 33, 14}, {63, 40, 21, 10}, {68, 36, 17, 9},  {25, 24, 20, 20},
    {36, 15, 30, 12}, {45, 16, 40, 14}, {50, 25, 20, 10}, {55, 17, 33, 17}, {49, 18, 21, 18}, {45, 27, 20, 12},
    {70, 20, 49, 16}, {63, 16, 18, 16}, {64, 24, 24, 9},  {72, 13, 9, 13},  {42, 25, 36, 20}, {33, 33, 33, 33},
    {33, 40, 33, 17}, {67, 18, 19, 18}, {1000, 3, 999, 2}, {11, 80, 5, 9}, {60, 30, 20, 20},
};

// ---- tables --------------------------------------------------------------------------

TEST(ResizeSuperKernel, WeightsAreTheBoxOverlaps) {
    const std::pair<int, int> ratios[] = {{2, 1}, {3, 2}, {4, 3}, {3, 1}, {4, 1}, {5, 4}, {9, 8},  {5, 3},   {7, 3},
                                          {9, 4}, {10, 7}, {7, 2}, {8, 3}, {8, 1}, {7, 6}, {13, 5}, {1000, 999}, {17, 2}};
    for (auto [num, den] : ratios) {
        SCOPED_TRACE(testing::Message() << num << ":" << den);
        const std::uint32_t k = rs::super_taps(num, den);
        std::vector<std::int32_t> pos(std::size_t(den) * k, -1);
        std::vector<float> w(pos.size(), -1.0f);
        gex::ownSuperKernel(num, den, k, pos.data(), w.data());
        const double r = double(num) / den;
        for (int p = 0; p < den; ++p) {
            std::vector<double> got(num + 1, 0.0);
            double sum = 0;
            for (std::uint32_t j = 0; j < k; ++j) {
                const int t = pos[p * k + j];
                ASSERT_GE(t, 0);
                ASSERT_LT(t, num);
                if (j > 0) {
                    ASSERT_GE(t, pos[p * k + j - 1]);
                }
                got[t] += w[p * k + j];
                sum += w[p * k + j];
            }
            EXPECT_NEAR(sum, r, 1e-5);
            for (int t = 0; t < num; ++t) {
                const double lo = std::max<double>(t, p * r), hi = std::min<double>(t + 1, (p + 1) * r);
                EXPECT_NEAR(got[t], std::max(0.0, hi - lo), 2e-6) << "phase " << p << " pixel " << t;
            }
        }
        if (num == 3 && den == 2) {  // 3 to 2: (p0 + p1 / 2) and (p1 / 2 + p2)
            EXPECT_EQ(pos, (std::vector<std::int32_t>{0, 1, 1, 2}));
            EXPECT_EQ(w, (std::vector<float>{1.0f, 0.5f, 0.5f, 1.0f}));
        }
    }
}

// ---- whole runs against the model ------------------------------------------------------

template <class T, int C>
void whole_runs_match_model() {
    std::mt19937 rng(7 + C);
    int li = 0;
    const auto layouts = gextest::standard_layouts();
    for (const Ratio& q : kRatios) {
        SCOPED_TRACE(testing::Message() << q.sw << "x" << q.sh << " -> " << q.dw << "x" << q.dh << " C" << C);
        const Layout lay = layouts[li++ % layouts.size()];
        Guarded<T> src(q.sw, q.sh, C, lay), dst(q.dw, q.dh, C, layouts[li % layouts.size()]);
        src.fill_random(rng);
        Record rec(q.sw, q.sh, q.dw, q.dh);
        ASSERT_EQ(init32<T>({q.sw, q.sh}, {q.dw, q.dh}, rec.p), gexStsOk);
        Scratch buf(rec.record(), q.dw, q.dh, C);
        const GexStatus st =
            run32<T, C>(src.ptr(), src.step(), dst.ptr(), dst.step(), {0, 0}, {q.dw, q.dh}, rec.p, buf.ptr());
        ASSERT_EQ(st, gexStsOk);
        EXPECT_TRUE(dst.guards_ok());
        EXPECT_TRUE(rec.canary_ok());
        EXPECT_TRUE(buf.canary_ok());
        EXPECT_TRUE(gextest::same_bits(dst.snapshot(), model(src.snapshot(), q.sw, q.sh, q.dw, q.dh, C)));
    }
}

TEST(ResizeSuperRun, WholeImagesMatchTheModel8u) {
    whole_runs_match_model<Gex8u, 1>();
    whole_runs_match_model<Gex8u, 3>();
    whole_runs_match_model<Gex8u, 4>();
}
TEST(ResizeSuperRun, WholeImagesMatchTheModel16) {
    whole_runs_match_model<Gex16u, 1>();
    whole_runs_match_model<Gex16u, 3>();
    whole_runs_match_model<Gex16s, 4>();
    whole_runs_match_model<Gex16s, 1>();
}
TEST(ResizeSuperRun, WholeImagesMatchTheModel32f) {
    whole_runs_match_model<Gex32f, 1>();
    whole_runs_match_model<Gex32f, 3>();
    whole_runs_match_model<Gex32f, 4>();
}

// Constant images stay constant at every depth and ratio, the extremes included.
template <class T, int C>
void constants_stay() {
    for (const Ratio& q : kRatios)
        for (T v : {std::numeric_limits<T>::lowest(), T(1), T(77), std::numeric_limits<T>::max()}) {
            std::vector<T> src(std::size_t(q.sw) * q.sh * C, v), out(std::size_t(q.dw) * q.dh * C);
            Record rec(q.sw, q.sh, q.dw, q.dh);
            ASSERT_EQ(init32<T>({q.sw, q.sh}, {q.dw, q.dh}, rec.p), gexStsOk);
            ASSERT_EQ((run_tile<T, C>(src, q.sw, out, q.dw, rec, 0, 0, q.dw, q.dh)), gexStsOk);
            EXPECT_EQ(std::count(out.begin(), out.end(), v), std::ptrdiff_t(out.size()))
                << q.sw << "->" << q.dw << " value " << double(v);
        }
}

TEST(ResizeSuperRun, ConstantImagesStayConstant) {
    constants_stay<Gex8u, 3>();
    constants_stay<Gex16u, 1>();
    constants_stay<Gex16s, 4>();
}

// A step beyond 31 bits in an _L run of equal extents: the copy goes row by
// row. Only the two touched pages of the reservation are ever used.
TEST(ResizeSuperRun, LargeStepCopy) {
    const std::int64_t step = 0x80000040LL;
    const std::size_t bytes = std::size_t(step) + 4096;
    void* m = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (m == MAP_FAILED) GTEST_SKIP() << "no room for a 2 GiB reservation";
    auto* base = static_cast<Gex16u*>(m);
    Gex16u* row1 = reinterpret_cast<Gex16u*>(static_cast<unsigned char*>(m) + step);
    for (int i = 0; i < 5 * 3; ++i) {
        base[i] = Gex16u(1000 + i);
        row1[i] = Gex16u(2000 + i);
    }
    Record rec(5, 2, 5, 2);
    ASSERT_EQ(gexiResizeSuperInit_L({5, 2}, {5, 2}, gex16u, rec.p), gexStsOk);
    Scratch buf(rec.record(), 5, 2, 3);
    std::vector<Gex16u> out(5 * 3 * 2, 0);
    EXPECT_EQ(gexiResizeSuper_16u_C3R_L(base, step, out.data(), 5 * 3 * 2, GexiPointL{0, 0}, GexiSizeL{5, 2}, rec.p,
                                        buf.ptr()),
              gexStsOk);
    EXPECT_TRUE(std::equal(base, base + 15, out.begin()));
    EXPECT_TRUE(std::equal(row1, row1 + 15, out.begin() + 15));
    munmap(m, bytes);
}

// Which ratios have kernels of their own: 7:6 and 1000:999 do not, 8:1 and
// 9:4 leave three channels to the gathering kernel.
TEST(ResizeSuperKernels, KernelChoice) {
    using gex::super::HKind;
    using gex::super::hkind;
    EXPECT_EQ(hkind(1, 2, 6, 7), HKind::Generic);
    EXPECT_EQ(hkind(3, 2, 999, 1000), HKind::Generic);
    EXPECT_EQ(hkind(3, 8, 1, 8), HKind::Generic);
    EXPECT_EQ(hkind(4, 8, 1, 8), HKind::Generic);
    EXPECT_EQ(hkind(3, 3, 4, 9), HKind::Generic);
    EXPECT_EQ(hkind(4, 3, 4, 9), HKind::Cycle);
    EXPECT_EQ(hkind(3, 2, 1, 2), HKind::Unit);
    EXPECT_EQ(hkind(1, 2, 2, 3), HKind::Cycle);
}

// ---- tiles ---------------------------------------------------------------------------------

template <class T, int C>
void tiles_equal_whole(std::mt19937& rng, bool useL) {
    for (const Ratio& q : kRatios) {
        SCOPED_TRACE(testing::Message() << q.sw << "x" << q.sh << " -> " << q.dw << "x" << q.dh << " C" << C);
        const std::vector<T> src = random_image<T>(rng, q.sw, q.sh, C);
        Record rec(q.sw, q.sh, q.dw, q.dh);
        const GexDataType type = std::is_same_v<T, Gex8u>    ? gex8u
                                 : std::is_same_v<T, Gex16u> ? gex16u
                                 : std::is_same_v<T, Gex16s> ? gex16s
                                                             : gex32f;
        const GexiSizeL sL{q.sw, q.sh}, dL{q.dw, q.dh};
        const GexStatus st = useL ? gexiResizeSuperInit_L(sL, dL, type, rec.p)
                                  : init32<T>(GexiSize{q.sw, q.sh}, GexiSize{q.dw, q.dh}, rec.p);
        ASSERT_EQ(st, gexStsOk);
        std::vector<T> whole(std::size_t(q.dw) * q.dh * C), tiled(whole.size());
        ASSERT_EQ((run_tile<T, C>(src, q.sw, whole, q.dw, rec, 0, 0, q.dw, q.dh, useL)), gexStsOk);
        // A random grid: cuts anywhere, mid-period included; the last tile
        // asks past the destination and is clipped.
        std::vector<int> xs{0}, ys{0};
        while (xs.back() < q.dw) xs.push_back(xs.back() + 1 + int(rng() % 13));
        while (ys.back() < q.dh) ys.push_back(ys.back() + 1 + int(rng() % 7));
        for (std::size_t j = 0; j + 1 < ys.size(); ++j)
            for (std::size_t i = 0; i + 1 < xs.size(); ++i) {
                const int w = xs[i + 1] - xs[i], h = ys[j + 1] - ys[j];
                ASSERT_EQ((run_tile<T, C>(src, q.sw, tiled, q.dw, rec, xs[i], ys[j], w, h, useL)),
                          (w > q.dw || h > q.dh) ? gexStsSizeWarn : gexStsOk);
            }
        EXPECT_TRUE(gextest::same_bits(whole, tiled));
    }
}

TEST(ResizeSuperTiles, AnyCutEqualsOneWholeRun) {
    std::mt19937 rng(11);
    tiles_equal_whole<Gex8u, 1>(rng, false);
    tiles_equal_whole<Gex8u, 3>(rng, true);
    tiles_equal_whole<Gex16u, 4>(rng, false);
    tiles_equal_whole<Gex16s, 3>(rng, true);
    tiles_equal_whole<Gex32f, 1>(rng, false);
    tiles_equal_whole<Gex32f, 4>(rng, true);
}

TEST(ResizeSuperTiles, ConcurrentTilesShareOneRecord) {
    const int sw = 300, sh = 120, dw = 200, dh = 90, C = 3;
    std::mt19937 rng(5);
    const std::vector<Gex8u> src = random_image<Gex8u>(rng, sw, sh, C);
    Record rec(sw, sh, dw, dh);
    ASSERT_EQ(gexiResizeSuperInit_8u({sw, sh}, {dw, dh}, rec.p), gexStsOk);
    std::vector<Gex8u> whole(std::size_t(dw) * dh * C), tiled(whole.size());
    ASSERT_EQ((run_tile<Gex8u, C>(src, sw, whole, dw, rec, 0, 0, dw, dh)), gexStsOk);
    std::vector<std::thread> pool;
    std::vector<GexStatus> st(4, -1);
    for (int t = 0; t < 4; ++t)
        pool.emplace_back([&, t] {
            GexStatus last = gexStsOk;
            for (int y = t * 7; y < dh; y += 28)
                for (int x = 0; x < dw; x += 37) {
                    const GexStatus s = run_tile<Gex8u, C>(src, sw, tiled, dw, rec, x, y, 37, 7);
                    if (s != gexStsOk) last = s;
                }
            st[t] = last;
        });
    for (auto& th : pool) th.join();
    EXPECT_EQ(st, std::vector<GexStatus>(4, gexStsOk));
    EXPECT_EQ(whole, tiled);
}

// ---- vector kernels against their scalar twins -----------------------------------------------

template <class T>
void horizontal_kernels_match(int C) {
    std::mt19937 rng(3 + C);
    const std::pair<int, int> ratios[] = {{2, 1}, {3, 2}, {4, 3}, {3, 1}, {4, 1}, {5, 4}, {6, 5}, {9, 8},
                                          {5, 2}, {5, 3}, {7, 3}, {9, 4}, {10, 7}, {7, 2}, {8, 3}, {8, 1},
                                          {7, 6}, {13, 5}, {1000, 999}, {17, 2}};
    const int widths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};
    for (auto [num, den] : ratios) {
        const std::uint32_t k = rs::super_taps(num, den);
        std::vector<std::int32_t> pos(std::size_t(den) * k);
        std::vector<float> w(pos.size());
        gex::ownSuperKernel(num, den, k, pos.data(), w.data());
        const gex::super::HKind kind = gex::super::hkind(C, k, den, num);
        for (int width : widths)
            for (int x0 : {0, 1, 7, den / 2 + 3}) {
                SCOPED_TRACE(testing::Message() << num << ":" << den << " C" << C << " w" << width << " x0 " << x0);
                const std::int64_t srcOff = (x0 / den) * std::int64_t(num) + pos[(x0 % den) * k];
                const std::int64_t end = x0 + width;
                const std::int64_t last = ((end - 1) / den) * std::int64_t(num) +
                                          (end % den == 0 ? num - 1 : pos[(end % den) * k - 1]);
                const std::int64_t len = (last - srcOff + 1) * C;
                std::vector<float> acc(static_cast<std::size_t>(len));
                for (auto& a : acc) a = float(std::uniform_real_distribution<double>(-200, 900)(rng));
                const gex::super::HPass h{acc.data(), len, x0, width, srcOff, pos.data(), w.data(),
                                          std::uint32_t(num), std::uint32_t(den), k, C,
                                          float(den) / float(num) * 0.75f};
                std::vector<T> want(std::size_t(width) * C + 16), got(want.size(), T(0)), got2(want.size(), T(0));
                gex::super::hpass_ref(h, want.data());
                gex::super::hpass_gather(h, got.data());
                EXPECT_TRUE(gextest::same_bits(want, got)) << "gathering kernel";
                gex::super::HPlan plan;
                const bool cyc = gex::super::hplan_cycle(plan, h, kind == gex::super::HKind::Unit);
                if (kind != gex::super::HKind::Generic) {
                    EXPECT_TRUE(cyc) << "listed ratio without its kernel";
                }
                if (cyc) {
                    gex::super::hplan_run(plan, acc.data(), got2.data());
                    EXPECT_TRUE(gextest::same_bits(want, got2)) << "permute kernel";
                }
            }
    }
}

TEST(ResizeSuperKernels, HorizontalVectorsEqualScalar) {
    for (int C : {1, 3, 4}) {
        horizontal_kernels_match<Gex8u>(C);
        horizontal_kernels_match<Gex32f>(C);
    }
    horizontal_kernels_match<Gex16s>(3);
}

// Both axes 2:1 at 8u: the integer kernel against the float sums of the
// scalar twins, on rows that end right before an inaccessible page.
TEST(ResizeSuperKernels, Box2x2EqualsTheFloatSums) {
    std::mt19937 rng(13);
    const std::int32_t pos[] = {0, 1};
    const float w[] = {1.0f, 1.0f};
    for (int C : {1, 3, 4})
        for (int width : {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200}) {
            Guarded<Gex8u> src(2 * width, 2, C, Layout{0, 40, 1, false, true});
            src.fill_random(rng);
            if (width == 7) src.fill(255);
            const std::int64_t n = 2 * std::int64_t(width) * C;
            std::vector<float> acc(static_cast<std::size_t>(n));
            gex::super::vsum_ref(src.ptr(), src.step(), 0, pos, w, 2, acc.data(), n);
            const gex::super::HPass h{acc.data(), n, 0, width, 0, pos, w, 2, 1, 2, C, 0.25f};
            std::vector<Gex8u> want(std::size_t(width) * C + 8), got(want.size());
            gex::super::hpass_ref(h, want.data());
            if (C == 1) gex::super::box2x2_8u<1>(src.row(0), src.row(1), got.data(), width);
            if (C == 3) gex::super::box2x2_8u<3>(src.row(0), src.row(1), got.data(), width);
            if (C == 4) gex::super::box2x2_8u<4>(src.row(0), src.row(1), got.data(), width);
            EXPECT_EQ(want, got) << "C" << C << " width " << width;
        }
}

template <class T>
void vertical_kernels_match() {
    std::mt19937 rng(9);
    const int rows = 7;
    for (int n : {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200}) {
        std::vector<T> img(std::size_t(n + 3) * rows);
        for (auto& v : img) v = Guarded<T>::random_value(rng);
        if constexpr (std::is_same_v<T, float>) {  // specials: zero weights skip them, signs of zero count
            img[0] = -0.0f;
            img[std::size_t(n + 3) * 2] = std::numeric_limits<float>::infinity();
            img[std::size_t(n + 3) * 4 + n - 1] = std::numeric_limits<float>::quiet_NaN();
        }
        // Four live taps, then seven (past one group of taps).
        const std::int32_t pos[] = {0, 1, 2, 3, 4, 4, 5, 5, 2};
        const float w[2][9] = {{1.0f, 0.3f, 0.0f, 1.0f, 0.0f, 0.6f, 0.0f, 0.0f, 0.0f},
                               {0.2f, 1.0f, 0.0f, 0.7f, 1.0f, 0.6f, 0.0f, 0.9f, 0.1f}};
        const std::int64_t step = std::int64_t(n + 3) * sizeof(T);
        for (const float* wt : w) {
            std::vector<float> a(n), b(n);
            gex::super::vsum_ref(img.data(), step, 0, pos, wt, 9, a.data(), n);
            gex::super::vsum_vec(img.data(), step, 0, pos, wt, 9, b.data(), n);
            EXPECT_TRUE(gextest::same_bits(a, b)) << n;
            std::vector<T> c(n), d(n);
            gex::super::vonly_ref(img.data(), step, 0, pos, wt, 9, 0.37f, c.data(), n);
            gex::super::vonly_vec(img.data(), step, 0, pos, wt, 9, 0.37f, d.data(), n);
            EXPECT_TRUE(gextest::same_bits(c, d)) << n;
        }
    }
}

TEST(ResizeSuperKernels, VerticalVectorsEqualScalar) {
    vertical_kernels_match<Gex8u>();
    vertical_kernels_match<Gex16u>();
    vertical_kernels_match<Gex16s>();
    vertical_kernels_match<Gex32f>();
}

// ---- Init ----------------------------------------------------------------------------------

TEST(ResizeSuperInit, StatusesInOrderAndNothingWritten) {
    Record rec(8, 8, 4, 4);
    const std::vector<unsigned char> before = rec.mem;
    auto p = rec.p;
    EXPECT_EQ(gexiResizeSuperInit_8u({0, 8}, {4, 4}, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeSuperInit_8u({0, -1}, {4, 4}, p), gexStsNoOperation);
    EXPECT_EQ(gexiResizeSuperInit_16u({8, 8}, {4, -4}, p), gexStsSize);
    EXPECT_EQ(gexiResizeSuperInit_16s({5, 8}, {6, 4}, p), gexStsSize);  // no enlarging, on either axis
    EXPECT_EQ(gexiResizeSuperInit_32f({8, 5}, {4, 6}, p), gexStsSize);
    EXPECT_EQ(gexiResizeSuperInit_L({0, 8}, {4, 4}, GexDataType(3), nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeSuperInit_L({8, 0}, {4, 4}, GexDataType(3), p), gexStsNoOperation);
    EXPECT_EQ(gexiResizeSuperInit_L({5, 8}, {6, 4}, GexDataType(3), p), gexStsSize);
    // The size limit before the data type.
    EXPECT_EQ(gexiResizeSuperInit_L({0x20000000, 8}, {4, 4}, GexDataType(3), p), gexStsExceededSize);
    EXPECT_EQ(gexiResizeSuperInit_L({8, 8}, {4, 4}, gex64f, p), gexStsDataType);
    EXPECT_EQ(rec.mem, before);
    for (GexDataType t : {gex8u, gex16u, gex16s, gex32f}) {
        EXPECT_EQ(gexiResizeSuperInit_L({0x1FFFFFFF, 8}, {0x1FFFFFFF, 4}, t, p), gexStsOk);
        EXPECT_EQ(rec.record()->id, rs::kIdL);
    }
}

TEST(ResizeSuperInit, RecordFieldsAndFormsAgree) {
    const Ratio q{1000, 45, 999, 20};
    std::vector<std::vector<float>> weights;
    for (int form = 0; form < 4; ++form) {
        Record rec(q.sw, q.sh, q.dw, q.dh, 1 + 17 * form);
        const GexStatus st = form == 0 ? gexiResizeSuperInit_8u({q.sw, q.sh}, {q.dw, q.dh}, rec.p)
                             : form == 1 ? gexiResizeSuperInit_16u({q.sw, q.sh}, {q.dw, q.dh}, rec.p)
                             : form == 2 ? gexiResizeSuperInit_16s({q.sw, q.sh}, {q.dw, q.dh}, rec.p)
                                         : gexiResizeSuperInit_32f({q.sw, q.sh}, {q.dw, q.dh}, rec.p);
        ASSERT_EQ(st, gexStsOk);
        const rs::Record* s = rec.record();
        EXPECT_EQ(s->id, rs::kId32);
        EXPECT_EQ(s->dataType, 13u);
        EXPECT_EQ(s->interpolation, 8u);
        EXPECT_EQ(s->tapsX + s->tapsY + s->antialiasing + s->xAxis.nLow + s->yAxis.nHigh, 0u);
        EXPECT_EQ(s->xAxis.num * 1000 + s->xAxis.den, 1000u * 1000 + 999);
        EXPECT_EQ(s->yAxis.num * 1000 + s->yAxis.den, 9u * 1000 + 4);
        EXPECT_TRUE(rec.canary_ok());
        const ModelAxis mx = model_axis(q.sw, q.dw);
        const std::vector<float> xw(s->xAxis.pCoef32f, s->xAxis.pCoef32f + mx.w.size());
        EXPECT_EQ(std::vector<std::int32_t>(s->xAxis.pPos, s->xAxis.pPos + mx.pos.size()), mx.pos);
        EXPECT_TRUE(gextest::same_bits(xw, mx.w));
        weights.push_back(xw);
    }
    for (auto& w : weights) EXPECT_TRUE(gextest::same_bits(w, weights[0]));
}

// ---- run statuses ------------------------------------------------------------------------

template <class T>
void run_statuses() {
    const int C = 3;
    Record rec(12, 12, 8, 8), recL(12, 12, 8, 8);
    ASSERT_EQ(init32<T>({12, 12}, {8, 8}, rec.p), gexStsOk);
    ASSERT_EQ(gexiResizeSuperInit_L({12, 12}, {8, 8}, gex8u, recL.p), gexStsOk);
    Guarded<T> src(12, 12, C), dst(8, 8, C);
    std::mt19937 rng(1);
    src.fill_random(rng);
    Scratch buf(rec.record(), 16, 16, C);
    const std::vector<T> before = dst.snapshot();
    const T* s = src.ptr();
    T* d = dst.ptr();
    const int ss = src.step(), ds = dst.step();
    auto R = [&](const T* s_, T* d_, int sst, GexiPoint o, GexiSize z, const Record& r, Gex8u* b) {
        return run32<T, C>(s_, sst, d_, ds, o, z, r.p, b);
    };
    const int bad = sizeof(T) > 1 ? ss + 1 : ss;  // misaligned for 16-bit and float depths
    Record other(12, 12, 8, 8);
    ASSERT_EQ(init32<T>({12, 12}, {8, 8}, other.p), gexStsOk);
    auto* os = const_cast<rs::Record*>(other.record());
    EXPECT_EQ(R(nullptr, d, ss, {0, 0}, {0, 8}, rec, buf.ptr()), gexStsNullPtr);
    EXPECT_EQ(R(s, nullptr, ss, {0, 0}, {0, 8}, rec, buf.ptr()), gexStsNullPtr);
    EXPECT_EQ(R(s, d, ss, {0, 0}, {0, 8}, rec, nullptr), gexStsNullPtr);
    EXPECT_EQ((run32<T, C>(s, ss, d, ds, {0, 0}, {8, 8}, nullptr, buf.ptr())), gexStsNullPtr);
    EXPECT_EQ(R(s, d, ss, {0, 0}, {8, 0}, recL, buf.ptr()), gexStsNoOperation);
    EXPECT_EQ(R(s, d, ss, {0, 0}, {-1, 8}, recL, buf.ptr()), gexStsContextMatch);  // an _L record here
    EXPECT_EQ((runL<T, C>(s, ss, d, ds, GexiPointL{0, 0}, GexiSizeL{-1, 8}, rec.p, buf.ptr())), gexStsContextMatch);
    EXPECT_EQ(R(s, d, bad, {0, 0}, {-1, 8}, rec, buf.ptr()), gexStsSize);
    EXPECT_EQ(R(s, d, bad, {8, 0}, {8, 8}, rec, buf.ptr()), sizeof(T) > 1 ? gexStsStep : gexStsOutOfRange);
    EXPECT_EQ(R(s, d, ss, {0, -1}, {8, 8}, rec, buf.ptr()), gexStsOutOfRange);
    os->antialiasing = 1;
    os->interpolation = gexiInterLinear;
    EXPECT_EQ(R(s, d, ss, {0, 8}, {8, 8}, other, buf.ptr()), gexStsOutOfRange);
    EXPECT_EQ(R(s, d, ss, {0, 0}, {8, 8}, other, buf.ptr()), gexStsNotSupportedMode);
    os->antialiasing = 0;
    EXPECT_EQ(R(s, d, ss, {0, 0}, {8, 8}, other, buf.ptr()), gexStsContextMatch);
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), before));
    EXPECT_TRUE(dst.guards_ok());
    // A tile asking past the destination is clipped, computed, and warned about.
    EXPECT_EQ(R(s, d, ss, {0, 0}, {9, 8}, rec, buf.ptr()), gexStsSizeWarn);
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), model(src.snapshot(), 12, 12, 8, 8, C)));
    EXPECT_TRUE(dst.guards_ok());
    EXPECT_EQ(R(s, d, ss, {4, 4}, {5, 4}, rec, buf.ptr()), gexStsOk);  // offset plus size past the end: no warning
}

TEST(ResizeSuperRun, StatusesInOrderAndNothingWritten) {
    run_statuses<Gex8u>();
    run_statuses<Gex16u>();
    run_statuses<Gex16s>();
    run_statuses<Gex32f>();
}

}  // namespace
