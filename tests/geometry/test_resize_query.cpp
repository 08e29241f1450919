// The resize protocol: size queries against their formulas and check order,
// the Inits' checks and records (fields, positions, the three linear weight
// tables, cubic through its four evaluators, Lanczos from its tables), the
// tile queries (border size, source offset and rectangle, scratch size) for
// every method including super-sampling's period geometry, and the order of
// a run's checks with nothing written on failure. Records and scratch
// buffers are also placed right before an inaccessible page at the exact
// queried size.
#include <algorithm>
#include <vector>

#include "geometry/resize_lanczos_tables.hpp"
#include "resize_test_common.hpp"
#include "support/fenced.hpp"

using gextest::Guarded;
using rt::M;

namespace {

std::uint64_t r32(std::uint64_t n) { return (n + 31) / 32 * 32; }

struct Sizes {
    std::uint64_t record, init;
};

unsigned gcd(unsigned a, unsigned b) { return b ? gcd(b, a % b) : a; }
unsigned super_k(unsigned num, unsigned den) { return num / den + (num % den == 0 ? 0 : num % den == 1 ? 1 : 2); }

// The record and Init buffer sizes as the protocol states them.
Sizes expected_sizes(int interp, bool dbl, GexiSize s, GexiSize d) {
    const std::uint64_t W = d.width, H = d.height, W32 = r32(W), H32 = r32(H);
    switch (interp) {
    case 1: return {(W32 + H32) * 4 + 232 + 64, 64};
    case 2:
        if (dbl) return {W32 * 12 + (H + 31) / 32 * 128 + (H + 31) / 32 * 256 + 192 + 64, 64};
        return {(W32 + H32) * 8 + 232 + 64, 64};
    case 6: return {(W32 + H32) * 4 + 232 + (((W * 4 + 127) >> 5) + ((H * 4 + 127) >> 5)) * 128 + 64, (W32 + H32) * 4 + 64};
    case 16: return {(W32 + H32) * 4 + 232 + (((W * 6 + 191) >> 5) + ((H * 6 + 191) >> 5)) * 128 + 64, (W32 + H32) * 4 + 64};
    default: {
        const unsigned gx = gcd(s.width, d.width), gy = gcd(s.height, d.height);
        const std::uint64_t nX = std::uint64_t(d.width / gx) * super_k(s.width / gx, d.width / gx);
        const std::uint64_t nY = std::uint64_t(d.height / gy) * super_k(s.height / gy, d.height / gy);
        return {(r32(nX) + nX + nY + r32(nY)) * 4 + 232 + 64, 64};
    }
    }
}

using SizeFn = GexStatus (*)(GexiSize, GexiSize, GexiInterpolation, Gex32u, Gex32u*, Gex32u*);
const SizeFn kNarrowSize[] = {gexiResizeGetSize_8u, gexiResizeGetSize_16u, gexiResizeGetSize_16s, gexiResizeGetSize_32f};

TEST(ResizeGetSize, FormulasOfEveryMethodAndForm) {
    std::mt19937 rng(3);
    for (int trial = 0; trial < 400; ++trial) {
        const GexiSize d{1 + int(rng() % 300), 1 + int(rng() % 300)};
        const GexiSize s{d.width + int(rng() % 200), d.height + int(rng() % 200)};
        for (int interp : {1, 2, 6, 8, 16}) {
            const Sizes want = expected_sizes(interp, false, s, d);
            for (SizeFn f : kNarrowSize) {
                Gex32u a = 0, b = 0;
                ASSERT_EQ(f(s, d, GexiInterpolation(interp), 0, &a, &b), 0);
                EXPECT_EQ(a, want.record) << interp;
                EXPECT_EQ(b, want.init) << interp;
            }
            for (GexDataType t : {gex8u, gex16u, gex16s, gex32f}) {
                Gex64s a = 0, b = 0;
                ASSERT_EQ(gexiResizeGetSize_L({s.width, s.height}, {d.width, d.height}, t, GexiInterpolation(interp), 0, &a, &b), 0);
                EXPECT_EQ(std::uint64_t(a), want.record);
                EXPECT_EQ(std::uint64_t(b), want.init);
            }
        }
        const Sizes want = expected_sizes(2, true, s, d);
        Gex32u a = 0, b = 0;
        ASSERT_EQ(gexiResizeGetSize_64f(s, d, gexiInterLinear, 0, &a, &b), 0);
        EXPECT_EQ(a, want.record);
        EXPECT_EQ(b, want.init);
        Gex64s la = 0, lb = 0;
        ASSERT_EQ(gexiResizeGetSize_L({s.width, s.height}, {d.width, d.height}, gex64f, gexiInterLinear, 0, &la, &lb), 0);
        EXPECT_EQ(std::uint64_t(la), want.record);
    }
}

TEST(ResizeGetSize, ChecksInOrderAndWarnings) {
    Gex32u a = 11, b = 22;
    auto q = [&](GexiSize s, GexiSize d, int interp, unsigned aa = 0) {
        return gexiResizeGetSize_8u(s, d, GexiInterpolation(interp), aa, &a, &b);
    };
    EXPECT_EQ(gexiResizeGetSize_8u({0, 4}, {4, 4}, GexiInterpolation(3), 0, nullptr, &b), gexStsNullPtr);
    EXPECT_EQ(gexiResizeGetSize_8u({4, 4}, {4, 4}, gexiInterLinear, 0, &a, nullptr), gexStsNullPtr);
    EXPECT_EQ(q({0, -4}, {4, 4}, 3), gexStsNoOperation);  // zero before negative and before the code
    EXPECT_EQ(q({4, -4}, {4, 4}, 3), gexStsSize);
    EXPECT_EQ(q({4, 4}, {4, 4}, 3), gexStsInterpolation);
    EXPECT_EQ(q({4, 4}, {4, 4}, 4), gexStsInterpolation);
    EXPECT_EQ(q({1, 1}, {4, 4}, 0), gexStsNotSupportedMode);
    EXPECT_EQ(q({1, 5}, {4, 4}, 2), gexStsSize);
    EXPECT_EQ(q({3, 5}, {4, 4}, 6), gexStsSize);
    EXPECT_EQ(q({5, 3}, {4, 4}, 16), gexStsSize);
    EXPECT_EQ(q({5, 5}, {6, 4}, 8), gexStsSize);  // super-sampling can't enlarge
    EXPECT_EQ(a, 11u);
    EXPECT_EQ(b, 22u);
    EXPECT_EQ(q({1, 5}, {4, 4}, 1), gexStsOk);  // nearest has no minimum
    // The antialiasing flag: ignored with +46 by nearest and super, same sizes.
    for (int interp : {1, 8}) {
        Gex32u s0 = 0, i0 = 0;
        ASSERT_EQ(gexiResizeGetSize_8u({40, 30}, {20, 10}, GexiInterpolation(interp), 0, &s0, &i0), 0);
        EXPECT_EQ(q({40, 30}, {20, 10}, interp, 1), gexStsNoAntialiasing);
        EXPECT_EQ(a, s0);
        EXPECT_EQ(b, i0);
    }
    for (int interp : {2, 6, 16}) EXPECT_EQ(q({40, 30}, {20, 10}, interp, 1), gexStsNotSupportedMode);
    // 64f: linear only, and no antialiasing.
    EXPECT_EQ(gexiResizeGetSize_64f({40, 30}, {20, 10}, gexiInterCubic2P, 0, &a, &b), gexStsNotSupportedMode);
    EXPECT_EQ(gexiResizeGetSize_64f({40, 30}, {20, 10}, gexiInterLinear, 1, &a, &b), gexStsNotSupportedMode);
    EXPECT_EQ(gexiResizeGetSize_64f({40, 30}, {20, 10}, GexiInterpolation(3), 0, &a, &b), gexStsInterpolation);
    // 32-bit results: a record of 2^31 bytes or more fails.
    EXPECT_EQ(q({4, 4}, {1 << 29, 1}, 6), gexStsExceededSize);
    EXPECT_EQ(q({4, 4}, {1 << 25, 1}, 6), gexStsOk);
    // _L: type after the code, the extent limit after the type.
    Gex64s la = 0, lb = 0;
    EXPECT_EQ(gexiResizeGetSize_L({4, 4}, {4, 4}, GexDataType(2), GexiInterpolation(3), 0, &la, &lb), gexStsInterpolation);
    EXPECT_EQ(gexiResizeGetSize_L({4, 4}, {4, 4}, GexDataType(2), gexiInterLinear, 0, &la, &lb), gexStsDataType);
    EXPECT_EQ(gexiResizeGetSize_L({4, 0x20000000}, {4, 4}, GexDataType(2), gexiInterLinear, 0, &la, &lb), gexStsDataType);
    EXPECT_EQ(gexiResizeGetSize_L({4, 0x20000000}, {4, 4}, gex8u, gexiInterLinear, 0, &la, &lb), gexStsExceededSize);
    EXPECT_EQ(gexiResizeGetSize_L({4, 0x1FFFFFFF}, {4, 4}, gex8u, gexiInterLinear, 0, &la, &lb), gexStsOk);
    EXPECT_EQ(gexiResizeGetSize_L({4, 4}, {4, 4}, gex64f, gexiInterNearest, 0, &la, &lb), gexStsNotSupportedMode);
}

// ---- Inits and records -----------------------------------------------------------

TEST(ResizeInit, ChecksInOrderNothingWritten) {
    std::vector<std::uint8_t> block(4096, 0xAB), init(4096, 0xCD);
    auto* sp = reinterpret_cast<GexiResizeSpec*>(block.data());
    const auto untouched = [&] { return std::all_of(block.begin(), block.end(), [](std::uint8_t v) { return v == 0xAB; }); };
    EXPECT_EQ(gexiResizeNearestInit_8u({0, 1}, {1, 1}, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeNearestInit_8u({0, -1}, {1, 1}, sp), gexStsNoOperation);
    EXPECT_EQ(gexiResizeNearestInit_8u({4, -1}, {1, 1}, sp), gexStsSize);
    EXPECT_EQ(gexiResizeLinearInit_8u({1, 8}, {4, 4}, sp), gexStsSize);
    EXPECT_EQ(gexiResizeLinearInit_64f({8, 1}, {4, 4}, sp), gexStsSize);
    EXPECT_EQ(gexiResizeCubicInit_8u({8, 3}, {4, 4}, 0, 0.5f, sp, init.data()), gexStsSize);
    EXPECT_EQ(gexiResizeCubicInit_8u({8, 8}, {4, 4}, 0, 0.5f, sp, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeCubicInit_L({8, 8}, {4, 4}, gex64f, 0, 0.5f, sp, init.data()), gexStsDataType);
    EXPECT_EQ(gexiResizeCubicInit_L({8, 8}, {4, 0x20000000}, gex8u, 0, 0.5f, sp, init.data()), gexStsExceededSize);
    EXPECT_EQ(gexiResizeLinearInit_L({8, 8}, {4, 4}, GexDataType(3), sp), gexStsDataType);
    EXPECT_EQ(gexiResizeNearestInit_L({8, 8}, {4, 4}, gex64f, sp), gexStsDataType);
    EXPECT_EQ(gexiResizeNearestInit_L({8, 0x20000000}, {4, 4}, gex8u, sp), gexStsExceededSize);
    // The _L Lanczos Init tests everything before writing: lobes, type, minimum, limit.
    EXPECT_EQ(gexiResizeLanczosInit_L({8, 8}, {4, 4}, GexDataType(2), 4, sp, init.data()), gexStsNotSupportedMode);
    EXPECT_EQ(gexiResizeLanczosInit_L({8, 8}, {4, 4}, GexDataType(2), 3, sp, init.data()), gexStsDataType);
    EXPECT_EQ(gexiResizeLanczosInit_L({5, 8}, {4, 4}, gex8u, 3, sp, init.data()), gexStsSize);
    EXPECT_TRUE(untouched());
    EXPECT_EQ(gexiResizeLanczosInit_L({5, 8}, {4, 4}, gex8u, 2, sp, init.data()), gexStsOk);
    EXPECT_FALSE(untouched());
    // Width 1: nearest passes, linear fails.
    EXPECT_EQ(gexiResizeNearestInit_8u({1, 5}, {3, 3}, sp), gexStsOk);
    std::fill(block.begin(), block.end(), 0xAB);
    EXPECT_EQ(gexiResizeLinearInit_8u({1, 5}, {3, 3}, sp), gexStsSize);
    EXPECT_TRUE(untouched());
}

TEST(ResizeInit, LanczosNarrowInitLeavesAHalfWrittenRecord) {
    Gex32u specSize = 0, initSize = 0;
    ASSERT_EQ(gexiResizeGetSize_8u({5, 5}, {9, 7}, gexiInterLanczos, 0, &specSize, &initSize), 0);
    for (unsigned lobes : {3u, 4u}) {
        std::vector<std::uint8_t> block(specSize, 0), init(initSize);
        auto* sp = reinterpret_cast<GexiResizeSpec*>(block.data());
        EXPECT_EQ(gexiResizeLanczosInit_8u({5, 5}, {9, 7}, lobes, sp, init.data()),
                  lobes == 3 ? gexStsSize : gexStsNotSupportedMode);
        const gex::resize::Record* s = gex::resize::record_at(sp);
        EXPECT_EQ(s->id, gex::resize::kId32);
        EXPECT_EQ(s->interpolation, 16u);
        const rt::AxisModel ax(5, 9, int(lobes));
        for (int i = 0; i < 9; ++i) EXPECT_EQ(s->xAxis.pPos[i], ax.pos(i));
        // A run refuses the record: it has no weights.
        std::vector<Gex8u> src(25), dst(63);
        Gex32u bufSize = 0;
        ASSERT_EQ(gexiResizeGetBufferSize_8u(sp, {9, 7}, 1, &bufSize), 0);
        std::vector<Gex8u> buf(bufSize);
        EXPECT_EQ(gexiResizeLanczos_8u_C1R(src.data(), 5, dst.data(), 9, {0, 0}, {9, 7}, gexBorderRepl, nullptr, sp, buf.data()),
                  gexStsContextMatch);
        EXPECT_TRUE(std::all_of(dst.begin(), dst.end(), [](Gex8u v) { return v == 0; }));
    }
}

TEST(ResizeInit, RecordFieldsPositionsAndWeights) {
    std::mt19937 rng(9);
    for (int trial = 0; trial < 60; ++trial) {
        const GexiSize s{6 + int(rng() % 60), 6 + int(rng() % 60)}, d{1 + int(rng() % 90), 1 + int(rng() % 90)};
        const bool large = trial & 1;
        // Nearest.
        {
            rt::Record r = rt::make_record<Gex8u>(M::Nearest, s, d, {}, large);
            const auto* sp = r.raw();
            EXPECT_EQ(sp->id, large ? gex::resize::kIdL : gex::resize::kId32);
            EXPECT_EQ(sp->dataType, 13u);
            EXPECT_EQ(sp->tapsX + sp->tapsY + sp->borderSize.borderLeft + sp->xAxis.nLow + sp->yAxis.nHigh, 0u);
            const rt::AxisModel ax(s.width, d.width, 0);
            for (int i = 0; i < d.width; ++i) ASSERT_EQ(sp->xAxis.pPos[i], ax.nearest(i));
        }
        // Linear: Q14 for 8u, float for the others, double for 64f.
        {
            rt::Record r8 = rt::make_record<Gex8u>(M::Linear, s, d, {}, large);
            rt::Record rf = rt::make_record<Gex32f>(M::Linear, s, d, {}, large);
            rt::Record rd = rt::make_record<Gex64f>(M::Linear, s, d, {}, large);
            const rt::AxisModel ax(s.width, d.width, 1), ay(s.height, d.height, 1);
            EXPECT_EQ(rd.raw()->dataType, 19u);
            EXPECT_EQ(rf.raw()->dataType, 13u);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(rd.raw()->xAxis.pCoef64f) % 64, 0u);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(rd.raw()->yAxis.pCoef64f) % 64, 0u);
            for (rt::Record* r : {&r8, &rf, &rd}) {
                const auto* sp = r->raw();
                EXPECT_EQ(sp->interpolation, 2u);
                EXPECT_EQ(sp->tapsY, 1u);
                EXPECT_EQ(sp->borderSize.borderBottom, 1u);
                EXPECT_EQ(int(sp->xAxis.nLow), ax.nLow);
                EXPECT_EQ(int(sp->xAxis.nHigh), ax.nHigh);
                EXPECT_EQ(int(sp->yAxis.nLow), ay.nLow);
                EXPECT_EQ(int(sp->yAxis.nHigh), ay.nHigh);
                EXPECT_EQ(sp->xAxis.num * unsigned(d.width), sp->xAxis.den * unsigned(s.width));
            }
            for (int i = 0; i < d.width; ++i) {
                ASSERT_EQ(r8.raw()->xAxis.pPos[i], ax.pos(i));
                ASSERT_EQ(r8.raw()->xAxis.pCoefQ14[2 * i + 1], rt::q14(ax.frac(i)));
                ASSERT_EQ(r8.raw()->xAxis.pCoefQ14[2 * i], 16384 - rt::q14(ax.frac(i)));
                ASSERT_EQ(rf.raw()->xAxis.pCoef32f[i], float(ax.frac(i)));
                ASSERT_EQ(rd.raw()->xAxis.pCoef64f[i], ax.frac(i));
            }
            for (int i = 0; i < d.height; ++i) ASSERT_EQ(r8.raw()->yAxis.pCoefQ14[i], rt::q14(ay.frac(i)));
        }
        // Cubic through each of its evaluators, and Lanczos with both lobe counts.
        for (rt::Params p : {rt::Params{0.0f, 0.5f}, rt::Params{1.0f, 0.0f}, rt::Params{0.5f, 0.3f},
                             rt::Params{0.0f, 0.5000001f}, rt::Params{-0.25f, 0.75f}}) {
            rt::Record r = rt::make_record<Gex16u>(M::Cubic, s, d, p, large);
            const auto* sp = r.raw();
            EXPECT_EQ(sp->interpolation, 6u);
            EXPECT_EQ(sp->tapsX, 2u);
            const rt::AxisModel ay(s.height, d.height, 2);
            EXPECT_EQ(int(sp->yAxis.nLow), ay.nLow);
            EXPECT_EQ(int(sp->yAxis.nHigh), ay.nHigh);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(sp->yAxis.pCoef32f) % 32, 0u);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(sp->xAxis.pCoef32f) % 32, 0u);
            for (int i = 0; i < d.height; ++i) {
                const auto w = rt::tap_weights(M::Cubic, p, float(ay.frac(i)));
                for (int k = 0; k < 4; ++k) ASSERT_EQ(sp->yAxis.pCoef32f[i * 4 + k], w[k]) << p.B << " " << p.C;
            }
        }
        for (unsigned lobes : {2u, 3u}) {
            rt::Params p;
            p.lobes = lobes;
            rt::Record r = rt::make_record<Gex8u>(M::Lanczos, s, d, p, large);
            const auto* sp = r.raw();
            EXPECT_EQ(sp->tapsX, lobes);
            EXPECT_EQ(sp->borderSize.borderTop, lobes);
            const rt::AxisModel ax(s.width, d.width, int(lobes));
            EXPECT_EQ(int(sp->xAxis.nLow), ax.nLow);
            EXPECT_EQ(int(sp->xAxis.nHigh), ax.nHigh);
            for (int i = 0; i < d.width; ++i) {
                const auto w = rt::lanczos_weights(int(lobes), float(ax.frac(i)));
                float sum = 0;
                for (unsigned k = 0; k < 2 * lobes; ++k) {
                    ASSERT_EQ(sp->xAxis.pCoef32f[i * 2 * lobes + k], w[k]);
                    sum += w[k];
                }
                EXPECT_NEAR(sum, 1.0f, 1e-6f);
            }
        }
    }
}

TEST(ResizeInit, CubicKnownWeightsAndTables) {
    // A fraction of 0 (equal sizes): (0, 0.5) interpolates, (1, 0) smooths.
    rt::Record cr = rt::make_record<Gex8u>(M::Cubic, {8, 8}, {8, 8}, {0.0f, 0.5f});
    rt::Record bs = rt::make_record<Gex8u>(M::Cubic, {8, 8}, {8, 8}, {1.0f, 0.0f});
    const float* a = cr.raw()->xAxis.pCoef32f;
    const float* b = bs.raw()->xAxis.pCoef32f;
    EXPECT_EQ(a[0], 0.0f);
    EXPECT_EQ(a[1], 1.0f);
    EXPECT_EQ(a[2], 0.0f);
    EXPECT_EQ(a[3], 0.0f);
    EXPECT_FLOAT_EQ(b[0], 1.0f / 6);
    EXPECT_FLOAT_EQ(b[1], 2.0f / 3);
    EXPECT_FLOAT_EQ(b[2], 1.0f / 6);
    EXPECT_EQ(b[3], 0.0f);
    // The kernel tables against their rule; zeros after the last sample.
    for (int i = 0; i <= 400; ++i) ASSERT_EQ(gex::resize::tblL2[i], rt::lanczos_sample(2, i / 200.0)) << i;
    for (int i = 0; i <= 300; ++i) ASSERT_EQ(gex::resize::tblL3[i], rt::lanczos_sample(3, i / 100.0)) << i;
    EXPECT_EQ(gex::resize::tblL2[401], 0.0f);
    EXPECT_EQ(gex::resize::tblL3[301], 0.0f);
}

TEST(ResizeInit, RecordAndScratchFitTheirQueriedSizes) {
    // Blocks that end right before an inaccessible page at the queried size,
    // at every start alignment, for every method; a run with a scratch buffer
    // of the queried size, also ending at a page.
    std::mt19937 rng(12);
    for (int trial = 0; trial < 64; ++trial) {
        const GexiSize s{6 + int(rng() % 50), 6 + int(rng() % 50)}, d{1 + int(rng() % 70), 1 + int(rng() % 70)};
        for (int interp : {1, 2, 6, 16}) {
            Gex32u specSize = 0, initSize = 0;
            ASSERT_EQ(gexiResizeGetSize_8u(s, d, GexiInterpolation(interp), 0, &specSize, &initSize), 0);
            gextest::Fenced block(specSize), init(initSize);
            auto* sp = reinterpret_cast<GexiResizeSpec*>(block.data());
            GexStatus st = 0;
            if (interp == 1) st = gexiResizeNearestInit_8u(s, d, sp);
            if (interp == 2) st = gexiResizeLinearInit_16u(s, d, sp);
            if (interp == 6) st = gexiResizeCubicInit_8u(s, d, 0.0f, 0.5f, sp, init.data());
            if (interp == 16) st = gexiResizeLanczosInit_8u(s, d, 3, sp, init.data());
            ASSERT_EQ(st, 0);
            const GexiSize tile{1 + int(rng() % d.width), 1 + int(rng() % d.height)};
            Gex32u bufSize = 0;
            ASSERT_EQ(gexiResizeGetBufferSize_16u(sp, tile, 4, &bufSize), 0);
            gextest::Fenced buf(bufSize);
            std::vector<Gex16u> src(std::size_t(s.width) * s.height * 4, 100), dst(std::size_t(d.width) * d.height * 4);
            const GexiPoint off{d.width - tile.width, d.height - tile.height};
            GexiPoint so{};
            ASSERT_EQ(gexiResizeGetSrcOffset_16u(sp, off, &so), 0);
            const Gex16u* ps = src.data() + (std::size_t(so.y) * s.width + so.x) * 4;
            const int ss = s.width * 8, ds = d.width * 8;
            Gex16u* pd = dst.data() + (std::size_t(off.y) * d.width + off.x) * 4;
            if (interp == 1) st = gexiResizeNearest_16u_C4R(ps, ss, pd, ds, off, tile, sp, buf.data());
            if (interp == 2) st = gexiResizeLinear_16u_C4R(ps, ss, pd, ds, off, tile, gexBorderRepl, nullptr, sp, buf.data());
            if (interp == 6) st = gexiResizeCubic_16u_C4R(ps, ss, pd, ds, off, tile, gexBorderRepl, nullptr, sp, buf.data());
            if (interp == 16) st = gexiResizeLanczos_16u_C4R(ps, ss, pd, ds, off, tile, gexBorderRepl, nullptr, sp, buf.data());
            ASSERT_EQ(st, 0);
            // A flat image stays flat, whatever the method.
            EXPECT_EQ(pd[0], 100);
            EXPECT_EQ(pd[(tile.width - 1) * 4 + 3], 100);
        }
        // 64f linear, with its own layout.
        Gex32u specSize = 0, initSize = 0;
        ASSERT_EQ(gexiResizeGetSize_64f(s, d, gexiInterLinear, 0, &specSize, &initSize), 0);
        gextest::Fenced block(specSize);
        auto* sp = reinterpret_cast<GexiResizeSpec*>(block.data());
        ASSERT_EQ(gexiResizeLinearInit_64f(s, d, sp), 0);
        Gex32u bufSize = 0;
        ASSERT_EQ(gexiResizeGetBufferSize_64f(sp, d, 3, &bufSize), 0);
        gextest::Fenced buf(bufSize);
        std::vector<Gex64f> src(std::size_t(s.width) * s.height * 3, 2.5), dst(std::size_t(d.width) * d.height * 3);
        ASSERT_EQ(gexiResizeLinear_64f_C3R(src.data(), s.width * 24, dst.data(), d.width * 24, {0, 0}, d, gexBorderRepl,
                                           nullptr, sp, buf.data()),
                  0);
        EXPECT_EQ(dst.back(), 2.5);
    }
}

// ---- Tile queries --------------------------------------------------------------------

TEST(ResizeTileQueries, BorderOffsetRoiAndForms) {
    rt::Record lin = rt::make_record<Gex8u>(M::Linear, {50, 40}, {30, 70});
    rt::Record dbl = rt::make_record<Gex64f>(M::Linear, {50, 40}, {30, 70});
    rt::Record big = rt::make_record<Gex8u>(M::Linear, {50, 40}, {30, 70}, {}, true);
    rt::Params p3;
    rt::Record lz = rt::make_record<Gex8u>(M::Lanczos, {50, 40}, {30, 70}, p3);
    GexiBorderSize bs{};
    ASSERT_EQ(gexiResizeGetBorderSize_16s(lz.record(), &bs), 0);
    EXPECT_EQ(bs.borderLeft + bs.borderTop + bs.borderRight + bs.borderBottom, 12u);
    ASSERT_EQ(gexiResizeGetBorderSize_8u(lin.record(), &bs), 0);
    EXPECT_EQ(bs.borderRight, 1u);
    // Forms: 64f needs a double record, _L an _L record, the narrow forms a narrow one.
    EXPECT_EQ(gexiResizeGetBorderSize_64f(lin.record(), &bs), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetBorderSize_64f(dbl.record(), &bs), 0);
    EXPECT_EQ(gexiResizeGetBorderSize_8u(big.record(), &bs), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetBorderSize_L(big.record(), &bs), 0);
    EXPECT_EQ(gexiResizeGetBorderSize_L(lin.record(), &bs), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetBorderSize_8u(nullptr, &bs), gexStsNullPtr);

    const rt::AxisModel ax(50, 30, 1), ay(40, 70, 1);
    for (int ox = 0; ox < 30; ++ox)
        for (int oy = 0; oy < 70; oy += 7) {
            GexiPoint so{};
            ASSERT_EQ(gexiResizeGetSrcOffset_32f(lin.record(), {ox, oy}, &so), 0);
            EXPECT_EQ(so.x, int(std::floor(ox * (5.0 / 3.0))));
            EXPECT_EQ(so.y, int(std::floor(oy * (4.0 / 7.0))));
            for (int w : {1, 4, 30 - ox, 31 - ox, 40}) {
                GexiPoint ro{};
                GexiSize rs{};
                const GexStatus st = gexiResizeGetSrcRoi_16u(lin.record(), {ox, oy}, {w, 3}, &ro, &rs);
                EXPECT_EQ(st, w > 30 ? gexStsSizeWarn : gexStsOk);
                EXPECT_EQ(ro.x, so.x);
                const int end = std::min(30, ox + w);
                EXPECT_EQ(rs.width, end == 30 ? 50 - so.x : ax.pos(end - 1) - so.x + 1);
                const int endY = std::min(70, oy + 3);
                EXPECT_EQ(rs.height, endY == 70 ? 40 - so.y : ay.pos(endY - 1) - so.y + 1);
            }
        }
    GexiPoint so{};
    GexiSize rs{};
    EXPECT_EQ(gexiResizeGetSrcOffset_8u(lin.record(), {30, 0}, &so), gexStsOutOfRange);
    EXPECT_EQ(gexiResizeGetSrcOffset_8u(lin.record(), {0, -1}, &so), gexStsOutOfRange);
    EXPECT_EQ(gexiResizeGetSrcOffset_8u(big.record(), {30, 0}, &so), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetSrcRoi_8u(lin.record(), {30, 0}, {0, 5}, &so, &rs), gexStsSize);  // extent before id and offset
    EXPECT_EQ(gexiResizeGetSrcRoi_8u(big.record(), {30, 0}, {1, 5}, &so, &rs), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetSrcRoi_8u(lin.record(), {30, 0}, {1, 5}, &so, &rs), gexStsOutOfRange);
    EXPECT_EQ(gexiResizeGetSrcRoi_8u(lin.record(), {0, 0}, {1, 5}, nullptr, &rs), gexStsNullPtr);
    GexiPointL sl{};
    GexiSizeL rl{};
    EXPECT_EQ(gexiResizeGetSrcRoi_L(big.record(), {3, 69}, {100, 1}, &sl, &rl), gexStsSizeWarn);
    EXPECT_EQ(sl.x, 5);
    EXPECT_EQ(rl.width, 45);
    EXPECT_EQ(rl.height, 40 - sl.y);
}

TEST(ResizeTileQueries, BufferSizeFormulaAndChecks) {
    rt::Params p2;
    p2.lobes = 2;
    rt::Record nn = rt::make_record<Gex8u>(M::Nearest, {50, 40}, {30, 70});
    rt::Record lin = rt::make_record<Gex8u>(M::Linear, {50, 40}, {30, 70});
    rt::Record cub = rt::make_record<Gex8u>(M::Cubic, {50, 40}, {30, 70});
    rt::Record lz = rt::make_record<Gex8u>(M::Lanczos, {50, 40}, {30, 70});
    rt::Record lz2 = rt::make_record<Gex8u>(M::Lanczos, {50, 40}, {30, 70}, p2);
    rt::Record dbl = rt::make_record<Gex64f>(M::Linear, {50, 40}, {30, 70});
    for (int w : {1, 17, 30, 45})
        for (int h : {1, 33, 70, 90})
            for (unsigned c : {1u, 3u, 4u}) {
                const std::uint64_t W = std::min(w, 30), H = std::min(h, 70);
                const std::uint64_t base = r32(H * 4) + r32(W * 4);
                const GexStatus warn = (w > 30 || h > 70) ? gexStsSizeWarn : gexStsOk;
                Gex32u n = 0;
                EXPECT_EQ(gexiResizeGetBufferSize_8u(nn.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, base + 64);
                EXPECT_EQ(gexiResizeGetBufferSize_16s(lin.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, base + 2 * r32(c * 4 * W) + 64);
                EXPECT_EQ(gexiResizeGetBufferSize_32f(cub.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, base + 4 * r32(c * 4 * W) + 64);
                EXPECT_EQ(gexiResizeGetBufferSize_8u(lz.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, base + 6 * r32(c * 4 * W) + 64);
                EXPECT_EQ(gexiResizeGetBufferSize_8u(lz2.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, base + 4 * r32(c * 4 * W) + 64);
                EXPECT_EQ(gexiResizeGetBufferSize_64f(dbl.record(), {w, h}, c, &n), warn);
                EXPECT_EQ(n, c * 8 * ((2 * W + 63) / 32 * 32) + ((H + 31) / 32 + (W + 31) / 32) * 128 + 64);
            }
    Gex32u n = 5;
    EXPECT_EQ(gexiResizeGetBufferSize_8u(lin.record(), {0, 5}, 2, nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeGetBufferSize_8u(dbl.record(), {0, -5}, 2, &n), gexStsNoOperation);
    EXPECT_EQ(gexiResizeGetBufferSize_64f(lin.record(), {-1, 5}, 2, &n), gexStsContextMatch);
    EXPECT_EQ(gexiResizeGetBufferSize_8u(lin.record(), {-1, 5}, 2, &n), gexStsNumChannels);
    EXPECT_EQ(gexiResizeGetBufferSize_8u(lin.record(), {-1, 5}, 3, &n), gexStsSize);
    EXPECT_EQ(n, 5u);
}

// Super-sampling records are built by their own family; the queries serve
// them from the period tables. A record of 9 -> 6 (3:2, two taps per phase:
// positions 0, 1 then 1, 2) on both axes, laid out by hand.
TEST(ResizeTileQueries, SuperSamplingPeriodGeometry) {
    std::vector<std::uint8_t> block(1024, 0);
    auto* sp = reinterpret_cast<GexiResizeSpec*>(block.data());
    gex::resize::Record* s = gex::resize::record_at(sp);
    static std::int32_t pos[4] = {0, 1, 1, 2};
    static float w[4] = {1.0f, 0.5f, 0.5f, 1.0f};
    s->id = gex::resize::kId32;
    s->dataType = 13;
    s->interpolation = 8;
    gex::resize::set_axis_ratio(s->xAxis, 9, 6);
    gex::resize::set_axis_ratio(s->yAxis, 9, 6);
    s->xAxis.pPos = s->yAxis.pPos = pos;
    s->xAxis.pCoef32f = s->yAxis.pCoef32f = w;
    GexiPoint so{};
    GexiSize rs{};
    for (int i = 0; i < 6; ++i) {
        ASSERT_EQ(gexiResizeGetSrcOffset_8u(sp, {i, i}, &so), 0);
        EXPECT_EQ(so.x, (i / 2) * 3 + pos[(i % 2) * 2]);
    }
    // Destination 1..2 reads source 1..4; a tile to the end reads to the source's end.
    ASSERT_EQ(gexiResizeGetSrcRoi_32f(sp, {1, 3}, {2, 9}, &so, &rs), gexStsSizeWarn);
    EXPECT_EQ(so.x, 1);
    EXPECT_EQ(rs.width, 4);
    EXPECT_EQ(so.y, 4);
    EXPECT_EQ(rs.height, 5);
    GexiBorderSize bs{1, 1, 1, 1};
    ASSERT_EQ(gexiResizeGetBorderSize_8u(sp, &bs), 0);
    EXPECT_EQ(bs.borderLeft, 0u);
    // Scratch: m = min(denY, H), s = trunc(numX x W / denX + 3) capped at the source.
    for (int wdt : {1, 2, 5, 6})
        for (int hgt : {1, 2, 6})
            for (unsigned c : {1u, 3u}) {
                const float f = (float(3) * float(wdt)) / float(2) + 3.0f;
                const std::uint64_t span = std::min<std::uint64_t>(std::uint64_t(f), 9);
                const std::uint64_t m = std::min(2, hgt);
                Gex32u n = 0;
                ASSERT_EQ(gexiResizeGetBufferSize_16u(sp, {wdt, hgt}, c, &n), 0);
                EXPECT_EQ(n, (c * 4 * r32(span) + 8) * m + r32(hgt * 4) + r32(wdt * 4) + 32 + 64);
            }
    Gex32u specSize = 0, initSize = 0;
    ASSERT_EQ(gexiResizeGetSize_8u({9, 9}, {6, 6}, gexiInterSuper, 0, &specSize, &initSize), 0);
    EXPECT_EQ(specSize, (32 + 4 + 4 + 32) * 4 + 232 + 64u);
}

// ---- The checks of a run --------------------------------------------------------------

TEST(ResizeRunChecks, OrderAndNothingWritten) {
    rt::Record lin = rt::make_record<Gex16s>(M::Linear, {20, 20}, {10, 10});
    rt::Record cub = rt::make_record<Gex16s>(M::Cubic, {20, 20}, {10, 10});
    rt::Record lin8 = rt::make_record<Gex8u>(M::Linear, {20, 20}, {10, 10});
    rt::Record big = rt::make_record<Gex16s>(M::Linear, {20, 20}, {10, 10}, {}, true);
    rt::Record aa = rt::make_record<Gex16s>(M::Linear, {20, 20}, {10, 10});
    const_cast<gex::resize::Record*>(aa.raw())->antialiasing = 1;
    std::vector<Gex16s> src(400, 7);
    std::vector<std::uint8_t> buf(4096);
    Guarded<Gex16s> dst(10, 10, 1);
    dst.fill(-5);
    const auto snap = dst.snapshot();
    auto run = [&](rt::Record& r, int border, const Gex16s* ps, int srcStep, GexiPoint off, GexiSize size,
                   std::uint8_t* b) {
        return gexiResizeLinear_16s_C1R(ps, srcStep, dst.ptr(), dst.step(), off, size, GexiBorderType(border), nullptr,
                                        r.record(), b);
    };
    const Gex16s* s = src.data();
    std::uint8_t* b = buf.data();
    EXPECT_EQ(run(lin, 0, nullptr, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, 3, s, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, 6, s, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, 16, s, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, 256 | 1, s, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, -1, s, 40, {0, 0}, {10, 10}, b), gexStsBorder);
    EXPECT_EQ(run(lin, 1, s, 40, {0, 0}, {0, 10}, nullptr), gexStsNullPtr);
    EXPECT_EQ(run(big, 1, s, 40, {0, 0}, {0, 10}, b), gexStsNoOperation);
    EXPECT_EQ(run(big, 1, s, 40, {0, 0}, {-1, 10}, b), gexStsContextMatch);
    EXPECT_EQ(run(lin, 1, s, 41, {0, 0}, {-1, 10}, b), gexStsSize);
    EXPECT_EQ(run(lin, 1, s, 41, {10, 0}, {1, 10}, b), gexStsStep);
    EXPECT_EQ(run(lin, 1, s, 40, {10, 0}, {1, 10}, b), gexStsOutOfRange);
    EXPECT_EQ(run(aa, 1, s, 40, {0, 0}, {1, 10}, b), gexStsNotSupportedMode);
    EXPECT_EQ(run(cub, 1, s, 40, {0, 0}, {1, 10}, b), gexStsContextMatch);  // another method
    EXPECT_EQ(run(lin8, 1, s, 40, {0, 0}, {1, 10}, b), gexStsContextMatch); // another Init family
    EXPECT_TRUE(gextest::same_bits(dst.snapshot(), snap));
    EXPECT_TRUE(dst.guards_ok());
    // 240 and 241 pass; a tile clipped by its offset is 0, one wider than the
    // destination +48; an offset at the destination's width is -11.
    EXPECT_EQ(run(lin, 240, s + 42, 40, {1, 1}, {9, 9}, b), gexStsOk);
    EXPECT_EQ(run(lin, 241, s, 40, {0, 0}, {10, 10}, b), gexStsOk);
    EXPECT_EQ(run(lin, 1 | 16 | 128, s, 40, {0, 0}, {10, 10}, b), gexStsOk);
    EXPECT_EQ(run(lin, 1, s + 168, 40, {4, 4}, {7, 6}, b), gexStsOk);
    EXPECT_EQ(run(lin, 1, s, 40, {0, 0}, {11, 10}, b), gexStsSizeWarn);
    EXPECT_EQ(run(lin, 1, s, 40, {0, 10}, {1, 1}, b), gexStsOutOfRange);
    // The _L and 64f runs test the data type with the identifier.
    rt::Record dbl = rt::make_record<Gex64f>(M::Linear, {20, 20}, {10, 10});
    rt::Record bigd = rt::make_record<Gex64f>(M::Linear, {20, 20}, {10, 10}, {}, true);
    std::vector<Gex64f> sd(400), dd(100);
    EXPECT_EQ(gexiResizeLinear_64f_C1R(sd.data(), 160, dd.data(), 80, {0, 0}, {10, 10}, gexBorderRepl, nullptr, lin.record(), b),
              gexStsContextMatch);
    EXPECT_EQ(gexiResizeLinear_64f_C1R(sd.data(), 160, dd.data(), 80, {0, 0}, {10, 10}, gexBorderRepl, nullptr, dbl.record(), b), 0);
    EXPECT_EQ(gexiResizeLinear_64f_C1R(sd.data(), 164, dd.data(), 80, {0, 0}, {10, 10}, gexBorderRepl, nullptr, dbl.record(), b),
              gexStsStep);
    EXPECT_EQ(gexiResizeLinear_16s_C1R_L(s, 40, dst.ptr(), dst.step(), {0, 0}, {10, 10}, gexBorderRepl, nullptr, bigd.record(), b),
              gexStsContextMatch);
    EXPECT_EQ(gexiResizeLinear_64f_C1R_L(sd.data(), 160, dd.data(), 80, {0, 0}, {10, 10}, gexBorderRepl, nullptr, big.record(), b),
              gexStsContextMatch);
    EXPECT_EQ(gexiResizeLinear_64f_C1R_L(sd.data(), 160, dd.data(), 80, {0, 0}, {10, 10}, gexBorderRepl, nullptr, bigd.record(), b), 0);
    // Nearest needs its scratch buffer too, has no border, and tests its method.
    rt::Record nn = rt::make_record<Gex16s>(M::Nearest, {20, 20}, {10, 10});
    EXPECT_EQ(gexiResizeNearest_16s_C1R(s, 40, dst.ptr(), dst.step(), {0, 0}, {10, 10}, nn.record(), nullptr), gexStsNullPtr);
    EXPECT_EQ(gexiResizeNearest_16s_C1R(s, 40, dst.ptr(), dst.step(), {0, 0}, {10, 10}, lin.record(), b), gexStsContextMatch);
    EXPECT_EQ(gexiResizeCubic_16s_C1R(s, 40, dst.ptr(), dst.step(), {0, 0}, {10, 10}, gexBorderRepl, nullptr, nn.record(), b),
              gexStsContextMatch);
    EXPECT_EQ(gexiResizeNearest_16s_C1R(s, 40, dst.ptr(), dst.step(), {0, 0}, {10, 10}, nn.record(), b), 0);
}

}  // namespace
