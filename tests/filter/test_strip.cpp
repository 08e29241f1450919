// The strip scheme: the scratch formula on worked sizes and as a bound of
// what the driver uses; the driver with "copy the neighbour at (dx, dy)"
// kernels for every offset of random masks, sizes, modes 1, 3, 4, 6 and
// flag combinations, against a per-pixel model (the border rule in the strip
// path, the periodic reflection over the copied region in the whole-ROI
// path); a weighted sum giving the same pixels on both paths; and the
// kernel calls tiling the ROI exactly once.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "filter/border.hpp"
#include "filter/strip.hpp"
#include "gexip.h"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

using gextest::Guarded;

namespace {

// Scratch ending right before an inaccessible page, so the driver cannot use
// more than it was given.
using PageEndBuffer = gextest::Fenced;

TEST(StripScratch, WorkedSizes) {
    // 3 x 3 over 10 x 10, 8u: ax = ay = 1, top = 12 * 3, left = 12 * 3; 36 -> 64 + 32.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(3, 3, 10, 10, 1, 1), 96);
    // 2 x 2 over 5 x 4, 16s, 3 channels: reach 2, top = 6 * 3, left = 5 * 3; 3 * 18 * 2 = 108 -> 128 + 32.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(2, 2, 5, 4, 7, 3), 160);
    // 5 x 1 over 8 x 3, 32f, 4 channels: rh = 0 so top = 0, left = 3 * 6; 4 * 18 * 4 = 288 -> 288 + 32.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(5, 1, 8, 3, 13, 4), 320);
    // 1 x 7 over 4 x 20: rw = 0 so n = top = 4 * 9.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(1, 7, 4, 20, 1, 1), 96);
    // A mask as wide as the ROI: the whole ROI, 17 * 5 pixels of 16u.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(9, 3, 9, 3, 5, 1), 224);
    // 1 x 1 and a type outside the list (1 byte): nothing but the slack.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(1, 1, 5, 5, 99, 1), 32);
    // 7 x 5 over 100 x 50, 8u, 3 channels: top = 106 * 6 = 636, left = 54 * 9 = 486.
    EXPECT_EQ(gex::owngetSizeBufferOfBorders(7, 5, 100, 50, 1, 3), ((3 * 636 + 31) & ~31) + 32);
}

TEST(StripScratch, DriverStaysWithinTheFormula) {
    std::mt19937 rng(5);
    struct Px {
        int dataType, channels, bytes;
    };
    const Px pixels[] = {{1, 1, 1}, {1, 3, 3}, {7, 3, 6}, {5, 1, 2}, {13, 4, 16}, {13, 1, 4}};
    const int modes[] = {1, 3, 4, 6};
    for (int trial = 0; trial < 20000; ++trial) {
        const int kw = 1 + static_cast<int>(rng() % 11), kh = 1 + static_cast<int>(rng() % 11);
        const GexiSize roi{1 + static_cast<int>(rng() % 24), 1 + static_cast<int>(rng() % 24)};
        const int border = modes[rng() % 4] | static_cast<int>(rng() % 16) << 4;
        gex::StripOptions opt;
        opt.mirrorReach2 = rng() & 1;
        const gex::StripPlan plan = gex::plan_strips(kw, kh, roi, border, opt);
        for (const Px& p : pixels)
            ASSERT_LE(gex::strip_scratch_bytes(plan, p.bytes),
                      gex::owngetSizeBufferOfBorders(kw, kh, roi.width, roi.height, p.dataType, p.channels))
                << kw << "x" << kh << " over " << roi.width << "x" << roi.height << " border " << border;
    }
}

// ---- the per-pixel model --------------------------------------------------------------

constexpr int kMargin = 4;  // memory around the ROI: more than any reach used here

// Reflections walked until they land inside [0, n).
std::int64_t reflect(std::int64_t t, std::int64_t n, bool repeatEdge) {
    if (n == 1) return 0;
    while (t < 0 || t >= n) {
        if (t < 0) t = repeatEdge ? -t - 1 : -t;
        if (t >= n) t = repeatEdge ? 2 * n - 1 - t : 2 * (n - 1) - t;
    }
    return t;
}

struct Case {
    int kw, kh, W, H, border;
    bool reach2;
    bool whole;  // the whole-ROI copy, forced or because the mask covers the ROI
    int ax() const { return (kw - 1) >> 1; }
    int ay() const { return (kh - 1) >> 1; }
    int rw() const { return kw - ax() - 1; }
    int rh() const { return kh - ay() - 1; }
    int mode() const { return border & 15; }
    bool flag(int f) const { return (border & f) != 0; }
    std::string str() const {
        return std::to_string(kw) + "x" + std::to_string(kh) + " over " + std::to_string(W) + "x" +
               std::to_string(H) + " border " + std::to_string(border) + (reach2 ? " reach2" : "") +
               (whole ? " whole" : "");
    }
};

// Where output pixel (x, y) reads its neighbour (x + dx, y + dy): the pixel
// relative to the ROI, or false for the constant.
bool model_source(const Case& c, const void* roi, std::int64_t step, int pixelBytes, int x, int y, int dx, int dy,
                  std::int64_t& sx, std::int64_t& sy) {
    const std::int64_t xx = x + dx, yy = y + dy;
    const int mode = c.mode();
    const bool T = c.flag(16) || c.ay() == 0, B = c.flag(32) || c.rh() == 0;
    const bool L = c.flag(64) || c.ax() == 0, R = c.flag(128) || c.rw() == 0;
    if (c.whole && !(T && B && L && R)) {
        // The region copied: the ROI and the real neighbours of flagged sides.
        auto axis = [&](std::int64_t t, std::int64_t n, bool lowMem, bool highMem, int lowReach, int highReach,
                        std::int64_t& out) {
            const std::int64_t lo = lowMem ? -lowReach : 0, hi = highMem ? n + highReach : n;
            if (t >= lo && t < hi) return (out = t), true;
            switch (mode) {
                case gexBorderConst: return false;
                case gexBorderRepl: return (out = std::clamp(t, lo, hi - 1)), true;
                default: return (out = lo + reflect(t - lo, hi - lo, mode == gexBorderMirrorR)), true;
            }
        };
        return axis(yy, c.H, T, B, c.ay(), c.rh(), sy) && axis(xx, c.W, L, R, c.ax(), c.rw(), sx);
    }
    // Strips and the interior: the border rule, with the caller's flags.
    std::int64_t ry = yy, rx = xx;
    if (mode == gexBorderMirror && !c.reach2 && !(T && B && L && R)) {
        // A strip one pixel across reflects that pixel onto itself.
        const int r0 = T ? 0 : c.ay();
        const int r1 = c.H - (B ? 0 : c.rh());
        if (c.kh == 2 && !B && y == c.H - 1 && yy == c.H) ry = c.H - 1;
        if (c.kw == 2 && !R && x == c.W - 1 && xx == c.W && y >= r0 && y < r1) rx = c.W - 1;
    }
    const auto* p = static_cast<const std::uint8_t*>(
        gex::border_pixel(roi, step, c.W, c.H, rx, ry, mode, c.border & 0xf0, pixelBytes));
    if (p == nullptr) return false;
    // Back to coordinates: the pixel lies at most kMargin pixels left of the
    // ROI, so shifting by that many makes the column part non-negative.
    const std::int64_t off = p - static_cast<const std::uint8_t*>(roi) + std::int64_t{kMargin} * pixelBytes;
    sy = off >= 0 ? off / step : -((-off + step - 1) / step);
    sx = (off - sy * step) / pixelBytes - kMargin;
    return true;
}

// ---- the driver with neighbour kernels ------------------------------------------------------

template <class T, int CH, bool AC4>
struct Rig {
    Case c;
    Guarded<T> src;
    std::vector<T> constant;
    std::int64_t scratchBytes;

    Rig(const Case& k, std::mt19937& rng)
        : c(k), src(k.W + 2 * kMargin, k.H + 2 * kMargin, CH), constant(4), scratchBytes(0) {
        src.fill_random(rng);
        for (T& v : constant) v = Guarded<T>::random_value(rng);
        const int dt = sizeof(T) == 1 ? 1 : sizeof(T) == 2 ? 7 : 13;
        scratchBytes = c.whole && k.kw < k.W && k.kh < k.H
                           ? (std::int64_t{k.W} + k.kw - 1) * (k.H + k.kh - 1) * CH * sizeof(T) + 32
                           : gex::owngetSizeBufferOfBorders(k.kw, k.kh, k.W, k.H, dt, CH);
    }
    const T* roi() const { return src.row(kMargin) + kMargin * CH; }

    template <class Kernel>
    void run(Guarded<T>& dst, Kernel&& kernel) {
        PageEndBuffer scratch(scratchBytes);
        gex::StripOptions opt;
        opt.mirrorReach2 = c.reach2;
        opt.forceWholeCopy = c.whole;
        gex::run_strips<T, CH, AC4>(roi(), src.step(), dst.ptr(), dst.step(), GexiSize{c.W, c.H}, c.kw, c.kh,
                                    c.border, constant.data(), scratch.get(), kernel, opt);
    }
};

template <class T, int CH, bool AC4>
void check_neighbours(const Case& c, std::mt19937& rng) {
    Rig<T, CH, AC4> rig(c, rng);
    const int P = static_cast<int>(sizeof(T)) * CH;
    for (int dy = -c.ay(); dy <= c.rh(); ++dy)
        for (int dx = -c.ax(); dx <= c.rw(); ++dx) {
            Guarded<T> dst(c.W, c.H, CH);
            dst.fill_random(rng);
            const auto before = dst.snapshot();
            auto kernel = [dx, dy](const T* s, int ss, T* d, int ds, GexiSize r) {
                for (int y = 0; y < r.height; ++y)
                    for (int x = 0; x < r.width; ++x)
                        for (int k = 0; k < CH; ++k)
                            if (!(AC4 && k == 3))
                                gex::row_at(d, ds, y)[x * CH + k] = gex::row_at(s, ss, y + dy)[(x + dx) * CH + k];
            };
            rig.run(dst, kernel);
            std::vector<T> want(before);
            for (int y = 0; y < c.H; ++y)
                for (int x = 0; x < c.W; ++x) {
                    std::int64_t sx = 0, sy = 0;
                    const bool mem = model_source(c, rig.roi(), rig.src.step(), P, x, y, dx, dy, sx, sy);
                    for (int k = 0; k < CH; ++k) {
                        if (AC4 && k == 3) continue;
                        want[(static_cast<std::size_t>(y) * c.W + x) * CH + k] =
                            mem ? gex::row_at(rig.roi(), rig.src.step(), sy)[sx * CH + k] : rig.constant[k];
                    }
                }
            ASSERT_TRUE(gextest::same_bits(dst.snapshot(), want)) << c.str() << " offset " << dx << "," << dy;
            ASSERT_TRUE(dst.guards_ok()) << c.str();
        }
}

std::vector<Case> random_cases(std::mt19937& rng, int count) {
    std::vector<Case> v;
    const int modes[] = {1, 3, 4, 6, 3, 3};
    for (int i = 0; i < count; ++i) {
        Case c{};
        c.kw = 1 + static_cast<int>(rng() % 7);
        c.kh = 1 + static_cast<int>(rng() % 7);
        c.W = 1 + static_cast<int>(rng() % (i % 4 == 0 ? 40 : 12));
        c.H = 1 + static_cast<int>(rng() % 12);
        c.border = modes[rng() % 6] | static_cast<int>(rng() % 16) << 4;
        if (i % 37 == 0) c.border = 240;
        c.reach2 = rng() % 2;
        c.whole = !(c.kw < c.W && c.kh < c.H);
        v.push_back(c);
    }
    // The worked shapes: width 2 in mirror mode, masks as large as the ROI.
    v.push_back({2, 3, 3, 4, 3, true, false});
    v.push_back({2, 3, 3, 4, 3, false, false});
    v.push_back({3, 2, 5, 3, 3, true, false});
    v.push_back({2, 2, 6, 5, 3 | 64, false, false});
    v.push_back({5, 5, 5, 5, 1, false, true});
    v.push_back({7, 1, 3, 9, 3 | 16, false, true});
    return v;
}

template <class T, int CH, bool AC4>
void neighbours_suite(unsigned seed) {
    std::mt19937 rng(seed);
    for (const Case& c : random_cases(rng, 140)) {
        check_neighbours<T, CH, AC4>(c, rng);
        if (::testing::Test::HasFatalFailure()) return;
        if (!c.whole && c.border != 240) {  // the same case through the whole-ROI copy
            Case w = c;
            w.whole = true;
            check_neighbours<T, CH, AC4>(w, rng);
            if (::testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(StripDriver, Neighbours8uC1) { neighbours_suite<Gex8u, 1, false>(1); }
TEST(StripDriver, Neighbours16sC3) { neighbours_suite<Gex16s, 3, false>(2); }
TEST(StripDriver, Neighbours32fC4) { neighbours_suite<Gex32f, 4, false>(3); }
TEST(StripDriver, Neighbours8uAC4) { neighbours_suite<Gex8u, 4, true>(4); }
TEST(StripDriver, Neighbours16uC1) { neighbours_suite<Gex16u, 1, false>(5); }

// A weighted sum with distinct weights over the whole mask in one kernel:
// the strips and the whole-ROI copy give the same pixels wherever both
// apply (they differ only where a one-pixel strip reflects onto itself).
TEST(StripDriver, WeightedSumSameOnBothPaths) {
    std::mt19937 rng(9);
    int compared = 0;
    for (Case c : random_cases(rng, 300)) {
        if (c.whole || c.border == 240) continue;
        if (c.mode() == gexBorderMirror && !c.reach2 && (c.kw == 2 || c.kh == 2)) continue;
        const int ax = c.ax(), ay = c.ay(), kw = c.kw, kh = c.kh;
        auto kernel = [=](const Gex32f* s, int ss, Gex32f* d, int ds, GexiSize r) {
            for (int y = 0; y < r.height; ++y)
                for (int x = 0; x < r.width; ++x) {
                    float sum = 0.0f;
                    for (int j = 0; j < kh; ++j)
                        for (int i = 0; i < kw; ++i)
                            sum += static_cast<float>(1 + i + 8 * j) * gex::row_at(s, ss, y + j - ay)[x + i - ax];
                    gex::row_at(d, ds, y)[x] = sum;
                }
        };
        std::mt19937 same(static_cast<unsigned>(compared));
        Rig<Gex32f, 1, false> strips(c, same);
        for (int y = 0; y < c.H + 2 * kMargin; ++y)  // small integers: every sum is exact
            for (int x = 0; x < c.W + 2 * kMargin; ++x) strips.src.at(x, y) = static_cast<float>(rng() % 200);
        Case w = c;
        w.whole = true;
        Rig<Gex32f, 1, false> whole(w, same);
        std::memcpy(whole.constant.data(), strips.constant.data(), 4 * sizeof(float));
        for (int y = 0; y < c.H + 2 * kMargin; ++y)
            for (int x = 0; x < c.W + 2 * kMargin; ++x) whole.src.at(x, y) = strips.src.at(x, y);
        Guarded<Gex32f> a(c.W, c.H), b(c.W, c.H);
        strips.run(a, kernel);
        whole.run(b, kernel);
        ASSERT_TRUE(gextest::same_bits(a.snapshot(), b.snapshot())) << c.str();
        ++compared;
    }
    EXPECT_GT(compared, 100);
}

// Every output pixel comes from exactly one kernel call, and with all four
// flags the kernel runs once on the whole ROI.
TEST(StripDriver, KernelCallsTileTheRoi) {
    std::mt19937 rng(13);
    for (Case c : random_cases(rng, 400)) {
        Rig<Gex32s, 1, false> rig(c, rng);
        Guarded<Gex32s> dst(c.W, c.H);
        dst.fill(0);
        int calls = 0;
        auto count = [&calls](const Gex32s*, int, Gex32s* d, int ds, GexiSize r) {
            ++calls;
            for (int y = 0; y < r.height; ++y)
                for (int x = 0; x < r.width; ++x) gex::row_at(d, ds, y)[x] += 1;
        };
        rig.run(dst, count);
        for (Gex32s v : dst.snapshot()) ASSERT_EQ(v, 1) << c.str();
        const bool allFlags = (c.border & 240) == 240 || (c.kw == 1 && c.kh == 1);
        if (allFlags || c.whole) {
            EXPECT_EQ(calls, 1) << c.str();
        } else {
            EXPECT_LE(calls, 5) << c.str();
        }
    }
}

}  // namespace
