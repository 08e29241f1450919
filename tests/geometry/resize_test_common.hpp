// Shared pieces of the resize tests: a uniform way to call the exports of a
// method, depth and channel count; records built through the public
// protocol; and an independent per-pixel model of every method written from
// the numeric rules (global coordinates, bands by destination index, taps
// clamped on sides without an in-memory flag).
#pragma once

#include <gtest/gtest.h>
#include <immintrin.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "geometry/resize.hpp"
#include "gexip.h"
#include "support/guarded.hpp"

namespace rt {

enum class M { Nearest, Linear, Cubic, Lanczos };

// ---- Calling the exports uniformly --------------------------------------------

template <class T>
using RunFn = GexStatus (*)(const T*, std::int64_t, T*, std::int64_t, GexiPointL, GexiSizeL, int,
                            const GexiResizeSpec*, Gex8u*, bool large);

template <class T, int C, M K>
struct Api;

#define RT_API_BORDER(K, m, d, T, c, C)                                                                        \
    template <>                                                                                                \
    struct Api<T, C, K> {                                                                                      \
        static GexStatus run(const T* s, std::int64_t ss, T* d_, std::int64_t ds, GexiPointL o, GexiSizeL z,   \
                             int border, const GexiResizeSpec* sp, Gex8u* buf, bool large) {                  \
            if (large) return gexiResize##m##_##d##_##c##R_L(s, ss, d_, ds, o, z, GexiBorderType(border), nullptr, sp, buf); \
            return gexiResize##m##_##d##_##c##R(s, int(ss), d_, int(ds), GexiPoint{int(o.x), int(o.y)},       \
                                                GexiSize{int(z.width), int(z.height)}, GexiBorderType(border),  \
                                                nullptr, sp, buf);                                             \
        }                                                                                                      \
    };
#define RT_API_NEAREST(d, T, c, C)                                                                             \
    template <>                                                                                                \
    struct Api<T, C, M::Nearest> {                                                                             \
        static GexStatus run(const T* s, std::int64_t ss, T* d_, std::int64_t ds, GexiPointL o, GexiSizeL z,   \
                             int, const GexiResizeSpec* sp, Gex8u* buf, bool large) {                         \
            if (large) return gexiResizeNearest_##d##_##c##R_L(s, ss, d_, ds, o, z, sp, buf);                  \
            return gexiResizeNearest_##d##_##c##R(s, int(ss), d_, int(ds), GexiPoint{int(o.x), int(o.y)},      \
                                                  GexiSize{int(z.width), int(z.height)}, sp, buf);             \
        }                                                                                                      \
    };
#define RT_API_C(MAC, ...) MAC(__VA_ARGS__, C1, 1) MAC(__VA_ARGS__, C3, 3) MAC(__VA_ARGS__, C4, 4)
RT_API_C(RT_API_NEAREST, 8u, Gex8u)
RT_API_C(RT_API_NEAREST, 16u, Gex16u)
RT_API_C(RT_API_NEAREST, 16s, Gex16s)
RT_API_C(RT_API_NEAREST, 32f, Gex32f)
RT_API_C(RT_API_BORDER, M::Linear, Linear, 8u, Gex8u)
RT_API_C(RT_API_BORDER, M::Linear, Linear, 16u, Gex16u)
RT_API_C(RT_API_BORDER, M::Linear, Linear, 16s, Gex16s)
RT_API_C(RT_API_BORDER, M::Linear, Linear, 32f, Gex32f)
RT_API_C(RT_API_BORDER, M::Linear, Linear, 64f, Gex64f)
RT_API_C(RT_API_BORDER, M::Cubic, Cubic, 8u, Gex8u)
RT_API_C(RT_API_BORDER, M::Cubic, Cubic, 16u, Gex16u)
RT_API_C(RT_API_BORDER, M::Cubic, Cubic, 16s, Gex16s)
RT_API_C(RT_API_BORDER, M::Cubic, Cubic, 32f, Gex32f)
RT_API_C(RT_API_BORDER, M::Lanczos, Lanczos, 8u, Gex8u)
RT_API_C(RT_API_BORDER, M::Lanczos, Lanczos, 16u, Gex16u)
RT_API_C(RT_API_BORDER, M::Lanczos, Lanczos, 16s, Gex16s)
RT_API_C(RT_API_BORDER, M::Lanczos, Lanczos, 32f, Gex32f)

template <class T>
constexpr GexDataType type_of() {
    if constexpr (std::is_same_v<T, Gex8u>) return gex8u;
    else if constexpr (std::is_same_v<T, Gex16u>) return gex16u;
    else if constexpr (std::is_same_v<T, Gex16s>) return gex16s;
    else if constexpr (std::is_same_v<T, Gex32f>) return gex32f;
    else return gex64f;
}

constexpr int code_of(M m) { return m == M::Nearest ? 1 : m == M::Linear ? 2 : m == M::Cubic ? 6 : 16; }

// Method parameters: cubic (B, C), Lanczos lobes.
struct Params {
    float B = 0.0f, C = 0.5f;
    unsigned lobes = 3;
};

// A record built through the protocol: GetSize, then the Init, in a block
// whose start is deliberately off a 64-byte boundary.
struct Record {
    std::vector<std::uint8_t> block, init;
    GexStatus status = 0;
    std::size_t skew = 0;
    GexiResizeSpec* record() { return reinterpret_cast<GexiResizeSpec*>(block.data() + skew); }
    const gex::resize::Record* raw() { return gex::resize::record_at(record()); }
};

template <class T>
Record make_record(M m, GexiSize src, GexiSize dst, Params p = {}, bool large = false, std::size_t skew = 7) {
    Record r;
    r.skew = skew;
    Gex64s specSize = 0, initSize = 0;
    if (large) {
        EXPECT_GE(gexiResizeGetSize_L({src.width, src.height}, {dst.width, dst.height}, type_of<T>(),
                                      GexiInterpolation(code_of(m)), 0, &specSize, &initSize),
                  0);
    } else {
        Gex32u a = 0, b = 0;
        const GexStatus st = std::is_same_v<T, double>
                                 ? gexiResizeGetSize_64f(src, dst, GexiInterpolation(code_of(m)), 0, &a, &b)
                                 : gexiResizeGetSize_8u(src, dst, GexiInterpolation(code_of(m)), 0, &a, &b);
        EXPECT_GE(st, 0);
        specSize = a;
        initSize = b;
    }
    r.block.assign(std::size_t(specSize) + skew, 0xCD);
    r.init.assign(std::size_t(initSize), 0xEE);
    const GexiSizeL sl{src.width, src.height}, dl{dst.width, dst.height};
    GexiResizeSpec* sp = r.record();
    const GexDataType t = type_of<T>();
    switch (m) {
    case M::Nearest:
        r.status = large ? gexiResizeNearestInit_L(sl, dl, t, sp) : gexiResizeNearestInit_8u(src, dst, sp);
        break;
    case M::Linear:
        if (large) r.status = gexiResizeLinearInit_L(sl, dl, t, sp);
        else if (t == gex8u) r.status = gexiResizeLinearInit_8u(src, dst, sp);
        else if (t == gex64f) r.status = gexiResizeLinearInit_64f(src, dst, sp);
        else r.status = gexiResizeLinearInit_16u(src, dst, sp);
        break;
    case M::Cubic:
        r.status = large ? gexiResizeCubicInit_L(sl, dl, t, p.B, p.C, sp, r.init.data())
                         : gexiResizeCubicInit_32f(src, dst, p.B, p.C, sp, r.init.data());
        break;
    case M::Lanczos:
        r.status = large ? gexiResizeLanczosInit_L(sl, dl, t, p.lobes, sp, r.init.data())
                         : gexiResizeLanczosInit_16s(src, dst, p.lobes, sp, r.init.data());
        break;
    }
    return r;
}

template <class T>
std::int64_t buffer_bytes(GexiResizeSpec* sp, GexiSize tile, int channels) {
    Gex32u n = 0;
    const GexStatus st = std::is_same_v<T, double> ? gexiResizeGetBufferSize_64f(sp, tile, channels, &n)
                                                   : gexiResizeGetBufferSize_32f(sp, tile, channels, &n);
    EXPECT_GE(st, 0);
    return n;
}

// ---- The model -------------------------------------------------------------------

// A source image with a margin of `margin` pixels on every side, so that
// in-memory flags have real pixels to read.
template <class T>
struct Source {
    int w, h, c, margin;
    std::vector<T> px;  // (w + 2 margin) x (h + 2 margin) x c
    Source(int w_, int h_, int c_, int margin_ = 0) : w(w_), h(h_), c(c_), margin(margin_) {
        px.resize(std::size_t(w + 2 * margin) * (h + 2 * margin) * c);
    }
    std::int64_t stride() const { return std::int64_t(w + 2 * margin) * c; }
    T& at(int x, int y, int ch) { return px[std::size_t((y + margin) * stride() + std::int64_t(x + margin) * c + ch)]; }
    T at(int x, int y, int ch) const { return const_cast<Source*>(this)->at(x, y, ch); }
    T* origin() { return &at(0, 0, 0); }
    std::int64_t step() const { return stride() * std::int64_t(sizeof(T)); }
    template <class R>
    void randomize(R& rng) {
        for (auto& v : px) v = random_pixel<T>(rng);
    }
    template <class V, class R>
    static V random_pixel(R& rng) {
        if constexpr (std::is_floating_point_v<V>) return V(std::uniform_real_distribution<double>(-300, 300)(rng));
        else return V(std::uniform_int_distribution<long long>(std::numeric_limits<V>::lowest(),
                                                               std::numeric_limits<V>::max())(rng));
    }
};

// Coordinates of an axis from the rules: x(i) = (i + 0.5) r - 0.5 fused.
struct AxisModel {
    int srcLen, dstLen, taps;
    double r;
    int nLow = 0, nHigh = 0;
    AxisModel(int s, int d, int t) : srcLen(s), dstLen(d), taps(t) {
        unsigned a = unsigned(s), b = unsigned(d);
        while (b) {
            const unsigned q = a % b;
            a = b;
            b = q;
        }
        r = double(unsigned(s) / a) / double(unsigned(d) / a);
        for (int i = 0; i < d; ++i) {
            nLow += x(i) < taps - 1;
            nHigh += x(i) >= srcLen - taps;
        }
    }
    double x(int i) const { return std::fma(i + 0.5, r, -0.5); }
    int pos(int i) const { return int(std::floor(x(i))); }
    double frac(int i) const { return x(i) - std::floor(x(i)); }
    int nearest(int i) const { return int(std::fma(r, i + 0.5, -1e-10)); }
    bool band(int i) const { return i < nLow || i >= dstLen - nHigh; }
};

inline int q14(double f) { return int(std::fma(f, 16384.0, 1e-7)); }

// The two-parameter cubic by Horner in double with fused steps, to float.
inline float cubic_w(float B, float C, float d) {
    const double b = B, c = C, a = std::fabs(double(d));
    if (a >= 2) return 0.0f;
    if (a < 1)
        return float(std::fma(std::fma(std::fma((2 - 1.5 * b) - c, a, (2 * b - 3) + c), a, 0.0), a, 1 - b / 3));
    return float(std::fma(std::fma(std::fma(-b / 6 - c, a, b + 5 * c), a, -2 * b - 8 * c), a, 4 * b / 3 + 4 * c));
}

// The Lanczos table rule, computed here on its own.
inline float lanczos_sample(int n, double x) {
    if (x == 0) return 1.0f;
    const double px = M_PI * x;
    return float(n * std::sin(px) * std::sin(px / n) / (px * px));
}

inline std::vector<float> lanczos_weights(int lobes, float f) {
    const int nt = 2 * lobes;
    const float scale = lobes == 2 ? 200.0f : 100.0f;
    std::vector<float> w(nt);
    for (int k = 0; k < nt; ++k) {
        const float d = float(k - (lobes - 1)) - f;
        if (d > -lobes && d < lobes) {
            const float t = scale * std::fabs(d);
            const int i = int(t);
            const float t0 = lanczos_sample(lobes, i / double(scale)), t1 = lanczos_sample(lobes, (i + 1) / double(scale));
            const float v0 = i <= (lobes == 2 ? 400 : 300) ? t0 : 0.0f;
            const float v1 = i + 1 <= (lobes == 2 ? 400 : 300) ? t1 : 0.0f;
            w[k] = std::fma(v1 - v0, t - float(i), v0);
        } else {
            w[k] = 0;
        }
    }
    float s = 0;
    for (int k = 0; k < nt; ++k) s = k == 0 ? w[0] : s + w[k];
    const float r0 = _mm_cvtss_f32(_mm_rcp14_ss(_mm_setzero_ps(), _mm_set_ss(s)));
    const float r = 2.0f * r0 - (r0 * s) * r0;
    for (auto& v : w) v *= r;
    return w;
}

inline std::vector<float> tap_weights(M m, const Params& p, float f) {
    if (m == M::Lanczos) return lanczos_weights(int(p.lobes), f);
    std::vector<float> w(4);
    for (int k = 0; k < 4; ++k) w[k] = cubic_w(p.B, p.C, float(k - 1) - f);
    return w;
}

template <class T>
T to_depth(double v) {
    if constexpr (std::is_floating_point_v<T>) {
        return T(v);
    } else {
        const double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
        v = v < lo ? lo : v > hi ? hi : v;
        return T(std::nearbyint(v));  // the tests run in the default rounding mode: ties to even
    }
}

// Expected destination pixel (gx, gy), channel ch, for a whole-image view.
// `border` decides which sides clamp (flag clear) and which read memory.
template <class T>
T model_pixel(M m, const Params& p, const Source<T>& s, const AxisModel& ax, const AxisModel& ay, int gx, int gy,
              int ch, int border) {
    const bool clL = !(border & 64), clR = !(border & 128), clT = !(border & 16), clB = !(border & 32);
    auto cx = [&](int x) { return (clL && x < 0) ? 0 : (clR && x > s.w - 1) ? s.w - 1 : x; };
    auto cy = [&](int y) { return (clT && y < 0) ? 0 : (clB && y > s.h - 1) ? s.h - 1 : y; };
    const bool bandY = (clT && gy < ay.nLow) || (clB && gy >= ay.dstLen - ay.nHigh);
    const bool bandX = (clL && gx < ax.nLow) || (clR && gx >= ax.dstLen - ax.nHigh);
    const bool band = bandX || bandY;
    if (m == M::Nearest) return s.at(ax.nearest(gx), ay.nearest(gy), ch);
    if (m == M::Linear) {
        const int px = ax.pos(gx), py = ay.pos(gy);
        const int x0 = band ? cx(px) : px, x1 = band ? cx(px + 1) : px + 1;
        const int y0 = band ? cy(py) : py, y1 = band ? cy(py + 1) : py + 1;
        const T a = s.at(x0, y0, ch), b = s.at(x1, y0, ch), c = s.at(x0, y1, ch), d = s.at(x1, y1, ch);
        if constexpr (std::is_same_v<T, Gex8u>) {
            const int wx = q14(ax.frac(gx)), wy = q14(ay.frac(gy));
            auto single = [](int u, int v, int w) {
                const int sum = u * (16384 - w) + v * w;
                return Gex8u(std::min(255, (sum + ((sum >> 14) & 1) + 8192) >> 14));
            };
            if (band) {
                if (y0 == y1 && x0 == x1) return a;
                if (y0 == y1) return single(a, b, wx);
                if (x0 == x1) return single(a, c, wy);
            }
            const int t0 = std::min(32767, (a * (16384 - wx) + b * wx + 128) >> 8);
            const int t1 = std::min(32767, (c * (16384 - wx) + d * wx + 128) >> 8);
            return Gex8u(std::clamp((t0 * (16384 - wy) + t1 * wy + 0x80000) >> 20, 0, 255));
        } else {
            using F = std::conditional_t<std::is_same_v<T, double>, double, float>;
            const F wx = F(ax.frac(gx)), wy = F(ay.frac(gy));
            auto lerp = [](F u, F v, F w) { return std::fma(v - u, w, u); };
            F v;
            if (band && y0 == y1 && x0 == x1) return a;
            if (band && y0 == y1) v = lerp(F(a), F(b), wx);
            else if (band && x0 == x1) v = lerp(F(a), F(c), wy);
            else v = lerp(lerp(F(a), F(b), wx), lerp(F(c), F(d), wx), wy);
            return to_depth<T>(v);
        }
    }
    // Cubic and Lanczos.
    const int lobes = m == M::Cubic ? 2 : int(p.lobes), nt = 2 * lobes;
    const std::vector<float> wx = tap_weights(m, p, float(ax.frac(gx))), wy = tap_weights(m, p, float(ay.frac(gy)));
    const int px = ax.pos(gx) - (lobes - 1), py = ay.pos(gy) - (lobes - 1);
    std::vector<float> rows(nt);
    for (int k = 0; k < nt; ++k) {
        const int y = band ? cy(py + k) : py + k;
        float v[6];
        for (int q = 0; q < nt; ++q) v[q] = float(s.at(band ? cx(px + q) : px + q, y, ch));
        float t;
        if (band) {
            float odd = wx[1] * v[1] + wx[3] * v[3], even = wx[0] * v[0] + wx[2] * v[2];
            if (nt == 6) {
                odd = odd + wx[5] * v[5];
                even = even + wx[4] * v[4];
            }
            t = odd + even;
        } else if (nt == 4) {
            t = (wx[0] * v[0] + wx[1] * v[1]) + (wx[2] * v[2] + wx[3] * v[3]);
        } else {
            t = wx[0] * v[0];
            for (int q = 1; q < 6; ++q) t = t + wx[q] * v[q];
        }
        rows[k] = t;
    }
    float v;
    if (nt == 4)
        v = std::fma(wy[0], rows[0], wy[1] * rows[1]) + std::fma(wy[2], rows[2], wy[3] * rows[3]);
    else
        v = std::fma(wy[0], rows[0], std::fma(wy[2], rows[2], wy[4] * rows[4])) +
            std::fma(wy[1], rows[1], std::fma(wy[3], rows[3], wy[5] * rows[5]));
    return to_depth<T>(v);
}

inline int taps_of(M m, const Params& p) {
    return m == M::Nearest ? 0 : m == M::Linear ? 1 : m == M::Cubic ? 2 : int(p.lobes);
}

// Runs the tile (offset, size) of a resize of the image at `origin` (its
// pixel (0, 0)) into `dst`, the tile's first pixel, with pSrc placed at the
// tile's source offset and a scratch buffer of the queried size.
template <class T, int C, M K>
GexStatus run_tile(Record& rec, const T* origin, std::int64_t srcStep, GexiPointL off, GexiSizeL size, T* dst,
                   std::int64_t dstStep, int border, std::vector<std::uint8_t>& buf, bool large = false) {
    GexiPointL so{};
    GexStatus st;
    if (large) {
        st = gexiResizeGetSrcOffset_L(rec.record(), off, &so);
    } else {
        GexiPoint p{};
        st = std::is_same_v<T, double> ? gexiResizeGetSrcOffset_64f(rec.record(), GexiPoint{int(off.x), int(off.y)}, &p)
                                       : gexiResizeGetSrcOffset_16u(rec.record(), GexiPoint{int(off.x), int(off.y)}, &p);
        so = {p.x, p.y};
    }
    if (st != 0) return st;
    Gex64s bytes = 0;
    if (large) EXPECT_GE(gexiResizeGetBufferSize_L(rec.record(), size, C, &bytes), 0);
    else bytes = buffer_bytes<T>(rec.record(), GexiSize{int(size.width), int(size.height)}, C);
    buf.assign(std::size_t(bytes), 0);
    const T* p = reinterpret_cast<const T*>(reinterpret_cast<const std::uint8_t*>(origin) + so.y * srcStep) + so.x * C;
    return Api<T, C, K>::run(p, srcStep, dst, dstStep, off, size, border, rec.record(), buf.data(), large);
}

// Compares a destination of dst.width x dst.height against the model.
template <class T, int C>
::testing::AssertionResult matches_model(M m, const Params& p, const Source<T>& s, GexiSize dst, int border,
                                         const T* out, std::int64_t outStep, int offX = 0, int offY = 0,
                                         int w = -1, int h = -1) {
    const int taps = taps_of(m, p);
    const AxisModel ax(s.w, dst.width, taps), ay(s.h, dst.height, taps);
    if (w < 0) w = dst.width;
    if (h < 0) h = dst.height;
    for (int y = 0; y < h; ++y) {
        const T* r = reinterpret_cast<const T*>(reinterpret_cast<const std::uint8_t*>(out) + y * outStep);
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < C; ++c) {
                const T want = model_pixel<T>(m, p, s, ax, ay, offX + x, offY + y, c, border);
                if (!gextest::same_bits(want, r[x * C + c]))
                    return ::testing::AssertionFailure()
                           << "pixel (" << offX + x << ", " << offY + y << ") channel " << c << ": got "
                           << double(r[x * C + c]) << ", model " << double(want);
            }
    }
    return ::testing::AssertionSuccess();
}

}  // namespace rt
