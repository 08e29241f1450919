// Convert: every export against an independent model of the conversion rules
// on guarded images, statuses and their order, the edge values, the scale
// factor sweep, independence from the caller's floating-point control word,
// and the vector row kernels against their scalar twins.
//
// The model works in binary64: the source value times 2^-scaleFactor (exact
// there for every source and factor used), rounded with floor/ceil by the
// mode, then clamped. It shares no code with the library.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "data/convert.hpp"
#include "data/convert_kernels.hpp"
#include "gexip.h"
#include "support/fenced.hpp"
#include "support/guarded.hpp"

using gextest::Guarded;
using gextest::Layout;

using gextest::same_bits;

namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 15, 31, 33, 63, 64, 65, 127, 129, 200};

enum class Kind { Same, Rs, Mode, Fold, Sfs };

// ---- the model -------------------------------------------------------------------

double model_round(double v, int mode) {
    if (std::isinf(v)) return v;
    const double fl = std::floor(v), diff = v - fl;
    if (mode == 0) return v < 0 ? std::ceil(v) : fl;
    if (diff < 0.5) return fl;
    if (diff > 0.5) return fl + 1;
    if (mode == 1) return std::fmod(fl, 2.0) == 0 ? fl : fl + 1;
    return v > 0 ? fl + 1 : fl;  // any other mode: ties away from zero
}

template <class D>
D model_real(double v, int mode) {
    using L = std::numeric_limits<D>;
    if (std::isnan(v)) return std::is_same_v<D, Gex32u> ? L::max() : L::lowest();
    const double r = model_round(v, mode);
    if (r >= static_cast<double>(L::max())) return L::max();
    if (r <= static_cast<double>(L::lowest())) return L::lowest();
    return static_cast<D>(r);
}

template <class S, class D>
D model(S x, Kind kind, int mode, int sf) {
    if (kind == Kind::Same || kind == Kind::Rs) {
        if constexpr (std::is_floating_point_v<D>) return static_cast<D>(x);
        else return model_real<D>(static_cast<double>(x), 1);
    } else {
        if constexpr (std::is_floating_point_v<D>) {
            return D{};  // no such form
        } else {
            if (kind != Kind::Sfs) sf = 0;
            // 32s to 16s: every factor above 31 gives 0.
            if (std::is_same_v<S, Gex32s> && std::is_same_v<D, Gex16s> && sf > 31) return 0;
            const int e = sf > 5000 ? 5000 : (sf < -5000 ? -5000 : sf);
            return model_real<D>(std::ldexp(static_cast<double>(x), -e), mode);
        }
    }
}

// ---- source values ------------------------------------------------------------------

template <class T>
T from_bits(std::uint64_t b) {
    T v;
    std::memcpy(&v, &b, sizeof(T));
    return v;
}

template <class D>
double dst_lo() { return static_cast<double>(std::numeric_limits<D>::lowest()); }
template <class D>
double dst_hi() { return static_cast<double>(std::numeric_limits<D>::max()); }

// A value of S that exercises the conversion into D with factor sf: limits,
// exact ties, saturation edges, specials.
template <class S, class D>
S source_value(std::mt19937_64& rng, int sf) {
    const int e = sf > 300 ? 300 : (sf < -300 ? -300 : sf);
    if constexpr (std::is_floating_point_v<S>) {
        using L = std::numeric_limits<S>;
        const double lo = std::is_floating_point_v<D> ? -1000.0 : dst_lo<D>();
        const double hi = std::is_floating_point_v<D> ? 1000.0 : dst_hi<D>();
        std::uniform_real_distribution<double> wide(lo * 1.25 - 3, hi * 1.25 + 3);
        std::uniform_int_distribution<std::int64_t> whole(static_cast<std::int64_t>(lo) - 3,
                                                          static_cast<std::int64_t>(hi) + 2);
        switch (rng() % 8) {
            case 0: return from_bits<S>(rng());
            case 1: {
                const S sp[] = {L::quiet_NaN(), -L::quiet_NaN(), L::infinity(), -L::infinity(), S(0), -S(0),
                                L::max(), L::lowest(), L::denorm_min(), -L::denorm_min(), L::min(), S(0.5),
                                S(-0.5), S(1.5), S(-1.5), S(2.5), S(-2.5), S(0.49999997), S(-0.49999997),
                                S(2147483648.0), S(-2147483648.0), S(4294967296.0), S(4294967040.0),
                                S(2147483520.0), S(8388609.0), S(-8388609.0), S(8388608.5), S(-8388607.5)};
                return sp[rng() % (sizeof(sp) / sizeof(sp[0]))];
            }
            case 2:
            case 3: return static_cast<S>(std::ldexp(static_cast<double>(whole(rng)) + 0.5, e));
            case 4: return static_cast<S>(std::ldexp(static_cast<double>(whole(rng)), e));
            case 5: return static_cast<S>(std::ldexp(static_cast<double>(whole(rng)) + 0.5, e)) * S(1 + L::epsilon());
            default: return static_cast<S>(std::ldexp(wide(rng), e));
        }
    } else {
        using L = std::numeric_limits<S>;
        switch (rng() % 6) {
            case 0:
            case 1: return from_bits<S>(rng());
            case 2: {
                const std::int64_t sp[] = {0, 1, -1, 2, -2, 3, -3, 127, 128, -128, -129, 255, 256, 32767, 32768,
                                           -32768, -32769, 65535, 65536, 2147483647LL, -2147483648LL,
                                           static_cast<std::int64_t>(L::max()), static_cast<std::int64_t>(L::lowest())};
                const std::int64_t v = sp[rng() % (sizeof(sp) / sizeof(sp[0]))];
                return static_cast<S>(std::clamp<std::int64_t>(v, L::lowest(), L::max()));
            }
            case 3:
                if (sf >= 1 && sf <= 31) {  // an exact tie, or one off it
                    const std::int64_t k = static_cast<std::int64_t>(rng() % 600) - 300;
                    const std::int64_t v = k * (std::int64_t{1} << sf) + (std::int64_t{1} << (sf - 1)) +
                                           static_cast<std::int64_t>(rng() % 3) - 1;
                    return static_cast<S>(std::clamp<std::int64_t>(v, L::lowest(), L::max()));
                }
                [[fallthrough]];
            default: {
                std::uniform_int_distribution<std::int64_t> small(-70000, 70000);
                return static_cast<S>(std::clamp<std::int64_t>(small(rng), L::lowest(), L::max()));
            }
        }
    }
}

// ---- one export on one pair of layouts --------------------------------------------------

template <class S, class D, class Call>
void check_case(Call call, Kind kind, int ch, bool ac4, int w, int h, const Layout& ls, const Layout& ld, int mode,
                int sf, std::mt19937_64& rng) {
    Guarded<S> src(w, h, ch, ls);
    Guarded<D> dst(w, h, ch, ld);
    for (int y = 0; y < h; ++y)
        for (std::int64_t i = 0; i < src.row_elems(); ++i) src.row(y)[i] = source_value<S, D>(rng, sf);
    for (int y = 0; y < h; ++y)
        for (std::int64_t i = 0; i < dst.row_elems(); ++i) dst.row(y)[i] = from_bits<D>(rng());
    const auto s0 = src.snapshot(), d0 = dst.snapshot();
    ASSERT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), GexiSize{w, h}, mode, sf), gexStsOk);
    const auto d1 = dst.snapshot(), s1 = src.snapshot();
    for (std::size_t i = 0; i < d1.size(); ++i) {
        const bool alpha = ac4 && i % 4 == 3;
        const D want = alpha ? d0[i] : model<S, D>(s0[i], kind, mode, sf);
        ASSERT_TRUE(same_bits(d1[i], want)) << "element " << i << " source " << +s0[i] << " got " << +d1[i]
                                            << " want " << +want << " mode " << mode << " sf " << sf;
    }
    ASSERT_EQ(std::memcmp(s0.data(), s1.data(), s0.size() * sizeof(S)), 0) << "source changed";
    ASSERT_TRUE(dst.guards_ok());
    ASSERT_TRUE(src.guards_ok());
}

std::vector<Layout> layouts(bool negative) {
    auto v = gextest::standard_layouts(negative);
    v.push_back(Layout{0, 0, 1, false, false});  // no gaps: one merged row
    return v;
}

// Every width, every layout (as source, with the next one as destination),
// the modes and factors that the kind takes.
template <class S, class D, class Call>
void check_export(const char* name, Kind kind, int ch, bool ac4, Call call) {
    SCOPED_TRACE(name);
    std::mt19937_64 rng(std::hash<std::string>{}(name));
    const bool stepsChecked = kind == Kind::Same || kind == Kind::Mode || kind == Kind::Fold;
    const auto lays = layouts(!stepsChecked);
    std::vector<int> modes = {0};
    if (kind == Kind::Mode || kind == Kind::Fold || kind == Kind::Sfs) modes = {0, 1, 2, 7, -1};
    std::vector<int> factors = {0};
    if (kind == Kind::Sfs) {
        factors = {0, 1, 3, -2, 17, 40, -40};
        if constexpr (std::is_floating_point_v<S>) factors.insert(factors.end(), {130, -130, 150, -200, 1000, -1000});
    }
    for (std::size_t li = 0; li < lays.size(); ++li)
        for (int w : kWidths) {
            const int mode = modes[(li + w) % modes.size()];
            for (int sf : factors) {
                SCOPED_TRACE(::testing::Message() << "width " << w << " layout " << li);
                check_case<S, D>(call, kind, ch, ac4, w, 3, lays[li], lays[(li + 1) % lays.size()], mode, sf, rng);
                if (::testing::Test::HasFatalFailure()) return;
            }
        }
    // Every mode on one wider image.
    for (int mode : modes)
        for (int sf : factors) check_case<S, D>(call, kind, ch, ac4, 77, 4, lays[0], lays[1], mode, sf, rng);
}

// ---- the list of exports ---------------------------------------------------------------------

#define CALL_Same(NAME)                                                                     \
    [](const auto* s, int ss, auto* d, int ds, GexiSize r, int, int) { return gexiConvert_##NAME(s, ss, d, ds, r); }
#define CALL_Rs(NAME) CALL_Same(NAME)
#define CALL_Mode(NAME)                                                                \
    [](const auto* s, int ss, auto* d, int ds, GexiSize r, int mode, int) {            \
        return gexiConvert_##NAME(s, ss, d, ds, r, static_cast<GexRoundMode>(mode));   \
    }
#define CALL_Fold(NAME) CALL_Mode(NAME)
#define CALL_Sfs(NAME)                                                                     \
    [](const auto* s, int ss, auto* d, int ds, GexiSize r, int mode, int sf) {             \
        return gexiConvert_##NAME(s, ss, d, ds, r, static_cast<GexRoundMode>(mode), sf);   \
    }

#define SAME4(X, SD, S, D)                                                                     \
    X(Same, SD##_C1R, S, D, 1, false) X(Same, SD##_C3R, S, D, 3, false) X(Same, SD##_C4R, S, D, 4, false) \
    X(Same, SD##_AC4R, S, D, 4, true)
#define MODE4(X, SD, D)                                                                         \
    X(Mode, SD##_C1R, Gex32f, D, 1, false) X(Fold, SD##_C3R, Gex32f, D, 3, false)                 \
    X(Fold, SD##_C4R, Gex32f, D, 4, false) X(Mode, SD##_AC4R, Gex32f, D, 4, true)

#define SAME_EXPORTS(X)                                                                       \
    SAME4(X, 8u16u, Gex8u, Gex16u) SAME4(X, 8u16s, Gex8u, Gex16s) SAME4(X, 8u32s, Gex8u, Gex32s)   \
    SAME4(X, 8u32f, Gex8u, Gex32f) SAME4(X, 8s32s, Gex8s, Gex32s) SAME4(X, 8s32f, Gex8s, Gex32f)   \
    SAME4(X, 16u32s, Gex16u, Gex32s) SAME4(X, 16u32f, Gex16u, Gex32f)                              \
    SAME4(X, 16s32s, Gex16s, Gex32s) SAME4(X, 16s32f, Gex16s, Gex32f)                              \
    SAME4(X, 16u8u, Gex16u, Gex8u) SAME4(X, 16s8u, Gex16s, Gex8u) SAME4(X, 32s8u, Gex32s, Gex8u)   \
    SAME4(X, 32s8s, Gex32s, Gex8s) X(Same, 8s16s_C1R, Gex8s, Gex16s, 1, false)                     \
    X(Same, 16u32u_C1R, Gex16u, Gex32u, 1, false) X(Same, 32s32f_C1R, Gex32s, Gex32f, 1, false)    \
    X(Same, 32u32f_C1R, Gex32u, Gex32f, 1, false) X(Same, 8s64f_C1R, Gex8s, Gex64f, 1, false)

#define MODE_EXPORTS(X) MODE4(X, 32f8u, Gex8u) MODE4(X, 32f8s, Gex8s) MODE4(X, 32f16u, Gex16u) MODE4(X, 32f16s, Gex16s)

#define RS_EXPORTS(X)                                                                             \
    X(Rs, 8s8u_C1Rs, Gex8s, Gex8u, 1, false) X(Rs, 8s16u_C1Rs, Gex8s, Gex16u, 1, false)                \
    X(Rs, 8s32u_C1Rs, Gex8s, Gex32u, 1, false) X(Rs, 16s16u_C1Rs, Gex16s, Gex16u, 1, false)            \
    X(Rs, 16s32u_C1Rs, Gex16s, Gex32u, 1, false) X(Rs, 32s32u_C1Rs, Gex32s, Gex32u, 1, false)

#define SFS(X, SD, S, D) X(Sfs, SD##_C1RSfs, S, D, 1, false)
#define SFS_EXPORTS(X)                                                                              \
    SFS(X, 8u8s, Gex8u, Gex8s) SFS(X, 16s8s, Gex16s, Gex8s) SFS(X, 16u8s, Gex16u, Gex8s)               \
    SFS(X, 16u16s, Gex16u, Gex16s) SFS(X, 32f8u, Gex32f, Gex8u) SFS(X, 32f8s, Gex32f, Gex8s)           \
    SFS(X, 32f16u, Gex32f, Gex16u) SFS(X, 32f16s, Gex32f, Gex16s) SFS(X, 32f32s, Gex32f, Gex32s)       \
    SFS(X, 32f32u, Gex32f, Gex32u) SFS(X, 32s16s, Gex32s, Gex16s) SFS(X, 32s16u, Gex32s, Gex16u)       \
    SFS(X, 32u8u, Gex32u, Gex8u) SFS(X, 32u8s, Gex32u, Gex8s) SFS(X, 32u16u, Gex32u, Gex16u)           \
    SFS(X, 32u16s, Gex32u, Gex16s) SFS(X, 32u32s, Gex32u, Gex32s) SFS(X, 64f8u, Gex64f, Gex8u)         \
    SFS(X, 64f8s, Gex64f, Gex8s) SFS(X, 64f16u, Gex64f, Gex16u) SFS(X, 64f16s, Gex64f, Gex16s)

#define CHECK_EXPORT(KIND, NAME, S, D, CH, AC4) \
    check_export<S, D>(#NAME, Kind::KIND, CH, AC4, CALL_##KIND(NAME));

// ---- statuses ------------------------------------------------------------------------------------

// Null before size before steps; forms without step checks take zero and
// negative steps; nothing is written by a failing call.
template <class S, class D, class Call>
void check_statuses(const char* name, Kind kind, int ch, Call call) {
    SCOPED_TRACE(name);
    std::mt19937_64 rng(11);
    const int w = 9, h = 3;
    Guarded<S> src(w, h, ch);
    Guarded<D> dst(w, h, ch);
    for (int y = 0; y < h; ++y)
        for (std::int64_t i = 0; i < src.row_elems(); ++i) src.row(y)[i] = source_value<S, D>(rng, 0);
    dst.fill(from_bits<D>(0x5a5a5a5a5a5a5a5aULL));
    const auto d0 = dst.snapshot();
    const S* s = src.ptr();
    D* d = dst.ptr();
    const S* nullS = nullptr;
    D* nullD = nullptr;
    const int ss = src.step(), ds = dst.step();
    const bool stepsChecked = kind == Kind::Same || kind == Kind::Mode || kind == Kind::Fold;
    const GexStatus nullWidth0 = kind == Kind::Fold ? gexStsSize : gexStsNullPtr;

    EXPECT_EQ(call(nullS, ss, d, ds, GexiSize{w, h}, 1, 0), gexStsNullPtr);
    EXPECT_EQ(call(s, ss, nullD, ds, GexiSize{w, h}, 1, 0), gexStsNullPtr);
    EXPECT_EQ(call(nullS, 0, nullD, 0, GexiSize{w, 0}, 1, 0), gexStsNullPtr);
    EXPECT_EQ(call(nullS, 0, d, 0, GexiSize{0, h}, 1, 0), nullWidth0);
    EXPECT_EQ(call(s, 0, nullD, -5, GexiSize{0, h}, 1, 0), nullWidth0);
    EXPECT_EQ(call(s, 0, d, 0, GexiSize{0, h}, 1, 0), gexStsSize);
    EXPECT_EQ(call(s, ss, d, ds, GexiSize{-3, h}, 1, 0), gexStsSize);
    EXPECT_EQ(call(s, -1, d, 0, GexiSize{w, 0}, 1, 0), gexStsSize);
    EXPECT_EQ(call(s, ss, d, ds, GexiSize{w, -1}, 1, 0), gexStsSize);
    if (stepsChecked) {
        EXPECT_EQ(call(s, 0, d, ds, GexiSize{w, h}, 1, 0), gexStsStep);
        EXPECT_EQ(call(s, ss, d, 0, GexiSize{w, h}, 1, 0), gexStsStep);
        EXPECT_EQ(call(s, -ss, d, ds, GexiSize{w, h}, 1, 0), gexStsStep);
        EXPECT_EQ(call(s, ss, d, -ds, GexiSize{w, h}, 1, 0), gexStsStep);
        EXPECT_EQ(call(s, ss, d, -ds, GexiSize{w, h}, 7, 99), gexStsStep);  // a bad mode is no error
    }
    EXPECT_EQ(std::memcmp(dst.snapshot().data(), d0.data(), d0.size() * sizeof(D)), 0) << "written on failure";
    EXPECT_TRUE(dst.guards_ok());

    if (kind == Kind::Fold) {
        // The width times the channels is a 32-bit product: here it wraps negative.
        EXPECT_EQ(call(s, ss, d, ds, GexiSize{0x40000000, 1}, 1, 0), gexStsSize);
    }
    if (!stepsChecked) {
        // A zero source step repeats the first row; a negative destination
        // step writes upwards from the last row.
        ASSERT_EQ(call(s, 0, dst.row(h - 1), -ds, GexiSize{w, h}, 1, 0), gexStsOk);
        for (int y = 0; y < h; ++y)
            for (int i = 0; i < w * ch; ++i)
                ASSERT_TRUE(same_bits(dst.row(y)[i], model<S, D>(src.row(0)[i], kind, 1, 0))) << y << " " << i;
        EXPECT_TRUE(dst.guards_ok());
    }
}

#define CHECK_STATUSES(KIND, NAME, S, D, CH, AC4) \
    check_statuses<S, D>(#NAME, Kind::KIND, CH, CALL_##KIND(NAME));

}  // namespace

TEST(ConvertSameScale, EveryExportMatchesTheModel) { SAME_EXPORTS(CHECK_EXPORT) }
TEST(ConvertFrom32f, EveryExportMatchesTheModel) { MODE_EXPORTS(CHECK_EXPORT) }
TEST(ConvertToUnsigned, EveryExportMatchesTheModel) { RS_EXPORTS(CHECK_EXPORT) }
TEST(ConvertScaled, EveryExportMatchesTheModel) { SFS_EXPORTS(CHECK_EXPORT) }

TEST(ConvertStatuses, OrderStepsAndNothingWrittenOnFailure) {
    SAME_EXPORTS(CHECK_STATUSES)
    MODE_EXPORTS(CHECK_STATUSES)
    RS_EXPORTS(CHECK_STATUSES)
    SFS_EXPORTS(CHECK_STATUSES)
}

// ---- named values --------------------------------------------------------------------------------

TEST(ConvertValues, RoundingAndSaturationOf32f) {
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    const float in[] = {2.5f, 3.5f, -2.5f, 300.0f, -1.0f, nan, inf, -inf, 254.5f, 0.49999997f};
    Gex8u out[10];
    auto run = [&](int mode) {
        std::memset(out, 0xcc, sizeof(out));
        EXPECT_EQ(gexiConvert_32f8u_C1R(in, 40, out, 10, GexiSize{10, 1}, static_cast<GexRoundMode>(mode)), gexStsOk);
        return std::vector<int>(out, out + 10);
    };
    EXPECT_EQ(run(1), (std::vector<int>{2, 4, 0, 255, 0, 0, 255, 0, 254, 0}));
    EXPECT_EQ(run(2), (std::vector<int>{3, 4, 0, 255, 0, 0, 255, 0, 255, 0}));
    EXPECT_EQ(run(0), (std::vector<int>{2, 3, 0, 255, 0, 0, 255, 0, 254, 0}));
    EXPECT_EQ(run(7), run(2));
    EXPECT_EQ(run(-3), run(2));

    Gex16s s16[4];
    const float in16[] = {-2.5f, nan, -40000.0f, 32767.5f};
    ASSERT_EQ(gexiConvert_32f16s_C1R(in16, 16, s16, 8, GexiSize{4, 1}, gexRndFin), gexStsOk);
    EXPECT_EQ(s16[0], -3);
    EXPECT_EQ(s16[1], -32768);  // NaN gives the minimum
    EXPECT_EQ(s16[2], -32768);
    EXPECT_EQ(s16[3], 32767);

    Gex32u u32[4];
    const float inu[] = {nan, -5.0f, 5e9f, 2.5f};
    ASSERT_EQ(gexiConvert_32f32u_C1RSfs(inu, 16, u32, 16, GexiSize{4, 1}, gexRndNear, 0), gexStsOk);
    EXPECT_EQ(u32[0], 0xFFFFFFFFu);
    EXPECT_EQ(u32[1], 0u);
    EXPECT_EQ(u32[2], 0xFFFFFFFFu);
    EXPECT_EQ(u32[3], 2u);
    // Factors so large that every finite value collapses keep NaN apart.
    ASSERT_EQ(gexiConvert_32f32u_C1RSfs(inu, 16, u32, 16, GexiSize{4, 1}, gexRndNear, 1000), gexStsOk);
    EXPECT_EQ(u32[0], 0xFFFFFFFFu);
    EXPECT_EQ(u32[2], 0u);
    EXPECT_EQ(u32[3], 0u);
    ASSERT_EQ(gexiConvert_32f32u_C1RSfs(inu, 16, u32, 16, GexiSize{4, 1}, gexRndNear, -1000), gexStsOk);
    EXPECT_EQ(u32[1], 0u);
    EXPECT_EQ(u32[3], 0xFFFFFFFFu);

    const Gex8s neg[] = {-5, 5, -128, 127};
    Gex8u pos[4];
    ASSERT_EQ(gexiConvert_8s8u_C1Rs(neg, 4, pos, 4, GexiSize{4, 1}), gexStsOk);
    EXPECT_EQ(std::vector<int>(pos, pos + 4), (std::vector<int>{0, 5, 0, 127}));

    // 32s to 16s: a factor above 31 gives zeros, even for the one value that
    // would round away from zero at 32.
    const Gex32s big[] = {std::numeric_limits<Gex32s>::min(), std::numeric_limits<Gex32s>::max(), -3};
    Gex16s r16[3] = {7, 7, 7};
    ASSERT_EQ(gexiConvert_32s16s_C1RSfs(big, 12, r16, 6, GexiSize{3, 1}, gexRndFin, 32), gexStsOk);
    EXPECT_EQ(std::vector<int>(r16, r16 + 3), (std::vector<int>{0, 0, 0}));
    ASSERT_EQ(gexiConvert_32s16s_C1RSfs(big, 12, r16, 6, GexiSize{3, 1}, gexRndFin, 31), gexStsOk);
    EXPECT_EQ(std::vector<int>(r16, r16 + 3), (std::vector<int>{-1, 1, 0}));
    ASSERT_EQ(gexiConvert_32s16s_C1RSfs(big, 12, r16, 6, GexiSize{3, 1}, gexRndZero, 1), gexStsOk);
    EXPECT_EQ(r16[2], -1);  // toward zero: -1.5 gives -1
    ASSERT_EQ(gexiConvert_32s16s_C1RSfs(big, 12, r16, 6, GexiSize{3, 1}, gexRndNear, -1), gexStsOk);
    EXPECT_EQ(std::vector<int>(r16, r16 + 3), (std::vector<int>{-32768, 32767, -6}));

    // Widening to 32f from 32-bit integers rounds to nearest, ties to even.
    const Gex32s i32[] = {16777217, 16777219, -16777217, 2147483647};
    const Gex32u w32[] = {16777217u, 4294967295u, 4294967167u, 4294967169u};
    float f[4];
    ASSERT_EQ(gexiConvert_32s32f_C1R(i32, 16, f, 16, GexiSize{4, 1}), gexStsOk);
    EXPECT_EQ(f[0], 16777216.0f);
    EXPECT_EQ(f[1], 16777220.0f);
    EXPECT_EQ(f[2], -16777216.0f);
    EXPECT_EQ(f[3], 2147483648.0f);
    ASSERT_EQ(gexiConvert_32u32f_C1R(w32, 16, f, 16, GexiSize{4, 1}), gexStsOk);
    EXPECT_EQ(f[0], 16777216.0f);
    EXPECT_EQ(f[1], 4294967296.0f);
    EXPECT_EQ(f[2], 4294967040.0f);
    EXPECT_EQ(f[3], 4294967296.0f);
}

// Every factor from -40 to 40 (and the extremes) on several forms, each on
// values made of exact ties and their neighbours.
TEST(ConvertScaled, FactorSweep) {
    std::mt19937_64 rng(21);
    const Layout lay{};
    for (int sf = -40; sf <= 40; ++sf)
        for (int mode : {0, 1, 2}) {
            SCOPED_TRACE(::testing::Message() << "sf " << sf);
            check_case<Gex32s, Gex16s>(CALL_Sfs(32s16s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32u, Gex8s>(CALL_Sfs(32u8s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex16u, Gex16s>(CALL_Sfs(16u16s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32f, Gex16u>(CALL_Sfs(32f16u_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32f, Gex32u>(CALL_Sfs(32f32u_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex64f, Gex8s>(CALL_Sfs(64f8s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            if (HasFatalFailure()) return;
        }
    for (int sf : {std::numeric_limits<int>::min(), -5000, -182, -181, -160, -127, -126, 126, 127, 128, 129, 149,
                   150, 5000, std::numeric_limits<int>::max()})
        for (int mode : {0, 1, 2}) {
            SCOPED_TRACE(::testing::Message() << "sf " << sf);
            check_case<Gex32f, Gex32u>(CALL_Sfs(32f32u_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32f, Gex32s>(CALL_Sfs(32f32s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32f, Gex8u>(CALL_Sfs(32f8u_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex64f, Gex16s>(CALL_Sfs(64f16s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32u, Gex32s>(CALL_Sfs(32u32s_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            check_case<Gex32s, Gex16u>(CALL_Sfs(32s16u_C1RSfs), Kind::Sfs, 1, false, 67, 2, lay, lay, mode, sf, rng);
            if (HasFatalFailure()) return;
        }
}

// In place, each element becomes what the not-in-place form writes.
TEST(ConvertScaled, InPlace32f32u) {
    std::mt19937_64 rng(31);
    for (const auto& lay : layouts(true))
        for (int w : kWidths)
            for (int sf : {0, 3, -5, 140}) {
                const int mode = (w + sf) % 3;
                Guarded<Gex32f> src(w, 3, 1, lay);
                Guarded<Gex32u> ref(w, 3, 1, lay);
                for (int y = 0; y < 3; ++y)
                    for (int i = 0; i < w; ++i) src.row(y)[i] = source_value<Gex32f, Gex32u>(rng, sf);
                ASSERT_EQ(gexiConvert_32f32u_C1RSfs(src.ptr(), src.step(), ref.ptr(), ref.step(), GexiSize{w, 3},
                                                    static_cast<GexRoundMode>(mode), sf),
                          gexStsOk);
                Gex32u* p = reinterpret_cast<Gex32u*>(src.ptr());
                ASSERT_EQ(gexiConvert_32f32u_C1IRSfs(p, src.step(), GexiSize{w, 3}, static_cast<GexRoundMode>(mode), sf),
                          gexStsOk);
                for (int y = 0; y < 3; ++y)
                    ASSERT_EQ(std::memcmp(src.row(y), ref.row(y), std::size_t(w) * 4), 0) << "width " << w;
                ASSERT_TRUE(src.guards_ok());
            }
    Gex32u one = 0x5a5a5a5a;
    EXPECT_EQ(gexiConvert_32f32u_C1IRSfs(nullptr, 4, GexiSize{0, 1}, gexRndNear, 0), gexStsNullPtr);
    EXPECT_EQ(gexiConvert_32f32u_C1IRSfs(&one, 4, GexiSize{0, 1}, gexRndNear, 0), gexStsSize);
    EXPECT_EQ(gexiConvert_32f32u_C1IRSfs(&one, 4, GexiSize{1, -1}, gexRndNear, 0), gexStsSize);
    EXPECT_EQ(one, 0x5a5a5a5au);
}

// The results do not depend on the caller's rounding direction, flush-to-zero
// or denormals-are-zero bits, and the control word is the same after a call.
TEST(ConvertControlWord, ResultsAndControlBitsUnaffected) {
    const unsigned saved = _mm_getcsr();
    const unsigned odd = (saved & ~0xE040u) | (2u << 13) | 0x8040u;  // round up, FTZ, DAZ
    std::mt19937_64 rng(41);
    auto compare = [&](auto call, auto tagS, auto tagD, int mode, int sf) {
        using S = decltype(tagS);
        using D = decltype(tagD);
        std::vector<S> src(150);
        for (auto& x : src) x = source_value<S, D>(rng, sf);
        if constexpr (std::is_floating_point_v<S>) {
            src[0] = std::numeric_limits<S>::denorm_min();
            src[1] = -std::numeric_limits<S>::denorm_min() * 3;
        }
        std::vector<D> a(150), b(150);
        ASSERT_EQ(call(src.data(), 0, a.data(), 0, GexiSize{150, 1}, mode, sf), gexStsOk);
        _mm_setcsr(odd);
        const GexStatus st = call(src.data(), 0, b.data(), 0, GexiSize{150, 1}, mode, sf);
        const unsigned after = _mm_getcsr();
        _mm_setcsr(saved);
        ASSERT_EQ(st, gexStsOk);
        EXPECT_EQ(after, odd);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(D)), 0);
    };
    for (int mode : {0, 1, 2})
        for (int sf : {0, 1, -1, 7, -150, 150, 129}) {
            SCOPED_TRACE(::testing::Message() << "mode " << mode << " sf " << sf);
            compare(CALL_Sfs(32f8u_C1RSfs), Gex32f{}, Gex8u{}, mode, sf);
            compare(CALL_Sfs(32f16s_C1RSfs), Gex32f{}, Gex16s{}, mode, sf);
            compare(CALL_Sfs(32f32s_C1RSfs), Gex32f{}, Gex32s{}, mode, sf);
            compare(CALL_Sfs(32f32u_C1RSfs), Gex32f{}, Gex32u{}, mode, sf);
            compare(CALL_Sfs(64f16u_C1RSfs), Gex64f{}, Gex16u{}, mode, sf);
            compare(CALL_Sfs(32s16s_C1RSfs), Gex32s{}, Gex16s{}, mode, sf);
        }
    auto plain = [&](auto call, auto tagS, auto tagD, int mode) { compare(call, tagS, tagD, mode, 0); };
    for (int mode : {0, 1, 2}) {
        plain([](const Gex32f* s, int, Gex8u* d, int, GexiSize r, int m, int) {
            return gexiConvert_32f8u_C1R(s, 4 * r.width, d, r.width, r, static_cast<GexRoundMode>(m));
        }, Gex32f{}, Gex8u{}, mode);
        plain([](const Gex32f* s, int, Gex16u* d, int, GexiSize r, int m, int) {
            return gexiConvert_32f16u_AC4R(s, 4 * r.width, d, 2 * r.width, GexiSize{r.width / 4, 1},
                                           static_cast<GexRoundMode>(m));
        }, Gex32f{}, Gex16u{}, mode);
    }
    plain([](const Gex32s* s, int, Gex32f* d, int, GexiSize r, int, int) {
        return gexiConvert_32s32f_C1R(s, 4 * r.width, d, 4 * r.width, r);
    }, Gex32s{}, Gex32f{}, 1);
    plain([](const Gex32u* s, int, Gex32f* d, int, GexiSize r, int, int) {
        return gexiConvert_32u32f_C1R(s, 4 * r.width, d, 4 * r.width, r);
    }, Gex32u{}, Gex32f{}, 1);
    EXPECT_EQ(_mm_getcsr(), saved);
}

// The row helpers for other families run the same conversions.
TEST(ConvertRows, HelpersMatchTheExports) {
    std::mt19937_64 rng(51);
    std::vector<Gex32f> f(333);
    for (auto& x : f) x = source_value<Gex32f, Gex8u>(rng, 0);
    std::vector<Gex8u> a(333), b(333);
    for (int mode : {0, 1, 2, 9}) {
        gex::convert_row_32f(f.data(), a.data(), 333, mode);
        ASSERT_EQ(gexiConvert_32f8u_C1R(f.data(), 1, b.data(), 1, GexiSize{333, 1}, static_cast<GexRoundMode>(mode)),
                  gexStsOk);
        EXPECT_EQ(a, b);
    }
    std::vector<Gex16s> s(333);
    for (auto& x : s) x = source_value<Gex16s, Gex8u>(rng, 0);
    gex::convert_row(s.data(), a.data(), 333);
    ASSERT_EQ(gexiConvert_16s8u_C1R(s.data(), 1, b.data(), 1, GexiSize{333, 1}), gexStsOk);
    EXPECT_EQ(a, b);
}

// ---- vector kernels against their scalar twins -------------------------------------------------

namespace {

template <class T>
using PageEnd = gextest::FencedArray<T>;

// Every length 1..200 at odd element offsets: the vector row and the scalar
// row write the same elements, nothing outside the row, and with AC4 never
// the fourth element of a pixel.
template <class Op, bool AC4>
void twin(const gex::cvt::Params& p, int sf = 0) {
    using S = typename Op::Src;
    using D = typename Op::Dst;
    std::mt19937_64 rng(61 + sf);
    constexpr int pad = 9;
    for (int n = 1; n <= 200; ++n) {
        if (AC4 && n % 4 != 0) continue;
        const int off = 1 + 2 * (n % 3);
        PageEnd<S> src(static_cast<std::size_t>(n + off));
        S* s = src.data() + off;
        for (int i = 0; i < n; ++i) s[i] = source_value<S, D>(rng, sf);
        std::vector<D> a(n + 2 * pad + off), b(n + 2 * pad + off);
        for (auto& x : a) x = from_bits<D>(0xa5a5a5a5a5a5a5a5ULL);
        b = a;
        gex::cvt::row<Op, AC4>(s, a.data() + pad + off, n, p);
        gex::cvt::row_ref<Op, AC4>(s, b.data() + pad + off, n, p);
        ASSERT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(D)), 0) << "length " << n;
        for (std::size_t i = 0; i < a.size(); ++i) {
            const std::int64_t k = static_cast<std::int64_t>(i) - pad - off;
            const bool written = k >= 0 && k < n && !(AC4 && k % 4 == 3);
            if (!written) {
                ASSERT_TRUE(same_bits(a[i], from_bits<D>(0xa5a5a5a5a5a5a5a5ULL))) << "length " << n;
            }
        }
    }
}

template <class S, class D>
void twin_plain() {
    SCOPED_TRACE(::testing::Message() << sizeof(S) << " -> " << sizeof(D));
    twin<gex::cvt::Plain<S, D>, false>({});
    twin<gex::cvt::Plain<S, D>, true>({});
}

template <class D, int M>
void twin_float() {
    using gex::cvt::FromFloat;
    twin<FromFloat<D, M, false>, false>({});
    twin<FromFloat<D, M, false>, true>({});
    for (int sf : {1, -3, 20, -20, 127, -127, 140, -170}) twin<FromFloat<D, M, true>, false>(gex::cvt::float_scale(sf, M), sf);
}

template <class D>
void twin_float_modes() {
    SCOPED_TRACE(::testing::Message() << "32f -> " << sizeof(D) << " bytes");
    twin_float<D, 0>();
    twin_float<D, 1>();
    twin_float<D, 2>();
}

}  // namespace

TEST(ConvertKernels, VectorRowsMatchScalarTwins) {
    twin_plain<Gex8u, Gex16u>();
    twin_plain<Gex8u, Gex16s>();
    twin_plain<Gex8u, Gex32s>();
    twin_plain<Gex8u, Gex32f>();
    twin_plain<Gex8s, Gex32s>();
    twin_plain<Gex8s, Gex32f>();
    twin_plain<Gex16u, Gex32s>();
    twin_plain<Gex16u, Gex32f>();
    twin_plain<Gex16s, Gex32s>();
    twin_plain<Gex16s, Gex32f>();
    twin_plain<Gex16u, Gex8u>();
    twin_plain<Gex16s, Gex8u>();
    twin_plain<Gex32s, Gex8u>();
    twin_plain<Gex32s, Gex8s>();
    twin_plain<Gex8s, Gex16s>();
    twin_plain<Gex16u, Gex32u>();
    twin_plain<Gex32s, Gex32f>();
    twin_plain<Gex32u, Gex32f>();
    twin_plain<Gex8s, Gex64f>();
    twin_plain<Gex8s, Gex8u>();
    twin_plain<Gex8s, Gex16u>();
    twin_plain<Gex8s, Gex32u>();
    twin_plain<Gex16s, Gex16u>();
    twin_plain<Gex16s, Gex32u>();
    twin_plain<Gex32s, Gex32u>();
    twin_plain<Gex8u, Gex8s>();
    twin_plain<Gex16s, Gex8s>();
    twin_plain<Gex16u, Gex8s>();
    twin_plain<Gex16u, Gex16s>();
    twin_plain<Gex32s, Gex16s>();
    twin_plain<Gex32s, Gex16u>();
    twin_float_modes<Gex8u>();
    twin_float_modes<Gex8s>();
    twin_float_modes<Gex16u>();
    twin_float_modes<Gex16s>();
    twin_float_modes<Gex32s>();
    twin_float_modes<Gex32u>();
}

// The scalar rules themselves, on values where a sloppy rule goes wrong.
TEST(ConvertKernels, ScalarRulesOnHardValues) {
    using gex::cvt::round_by;
    EXPECT_EQ(round_by(0.49999997f, 2), 0.0f);  // x + 0.5 would round up to 1
    EXPECT_EQ(round_by(-0.49999997f, 2), -0.0f);
    EXPECT_EQ(round_by(8388607.5f, 2), 8388608.0f);
    EXPECT_EQ(round_by(8388606.5f, 1), 8388606.0f);
    EXPECT_EQ(round_by(-8388606.5f, 1), -8388606.0f);
    EXPECT_EQ(round_by(-2.5, 2), -3.0);
    EXPECT_EQ(round_by(-2.7, 0), -2.0);
    EXPECT_EQ(gex::cvt::shift_round(-3, 1, 2), -2);
    EXPECT_EQ(gex::cvt::shift_round(-3, 1, 1), -2);
    EXPECT_EQ(gex::cvt::shift_round(-5, 1, 1), -2);
    EXPECT_EQ(gex::cvt::shift_round(-5, 1, 0), -2);
    EXPECT_EQ(gex::cvt::shift_round(5, 1, 0), 2);
    EXPECT_EQ(gex::cvt::shift_round(0xFFFFFFFFLL, 40, 2), 0);
    EXPECT_EQ(gex::cvt::shift_round(0xFFFFFFFFLL, -31, 1), 0xFFFFFFFFLL << 31);
    EXPECT_EQ(gex::cvt::to_float_nearest(16777217), 16777216.0f);
    EXPECT_EQ(gex::cvt::to_float_nearest(16777219), 16777220.0f);
    EXPECT_EQ(gex::cvt::to_float_nearest(-(1LL << 32) + 128), -4294967296.0f);
    EXPECT_EQ(gex::cvt::to_float_nearest(-(1LL << 32) + 129), -4294967040.0f);
}
