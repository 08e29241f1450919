// What nearest, linear, cubic and Lanczos share beyond the record: the table
// layout behind the record, the axis builders of the Inits, the per-tile
// preparation of a run (clipping, source origin, tile position tables, band
// widths), the per-pixel band path and the ring of horizontally interpolated
// rows that drives the interior kernels.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/checks.hpp"
#include "frame/pixel.hpp"
#include "geometry/resize.hpp"

namespace gex::resize {

constexpr std::uint32_t kNearest = 1, kLinear = 2, kCubic = 6, kSuper = 8, kLanczos = 16;
// Extents the _L Inits and the _L size query accept: below 2^29.
constexpr std::int64_t kLargeExtent = 0x20000000;

enum class Kind { Nearest, Linear, Cubic, Lanczos };

constexpr std::uint32_t method_code(Kind k) {
    return k == Kind::Nearest ? kNearest : k == Kind::Linear ? kLinear : k == Kind::Cubic ? kCubic : kLanczos;
}

inline std::uint8_t* align_up(void* p, std::uintptr_t a) {
    const auto v = reinterpret_cast<std::uintptr_t>(p);
    return reinterpret_cast<std::uint8_t*>((v + a - 1) & ~(a - 1));
}

constexpr std::uint64_t a32(std::uint64_t n) { return (n + 31) & ~std::uint64_t{31}; }

// ---- Init side -------------------------------------------------------------

// Scalar fields of a record; the axes get their extents and ratios, every
// table pointer null. The identifier is left to the caller.
inline void set_fields(Record* s, std::uint32_t dataType, std::uint32_t interpolation, std::uint32_t taps,
                       std::uint32_t srcW, std::uint32_t srcH, std::uint32_t dstW, std::uint32_t dstH) {
    s->dataType = dataType;
    s->interpolation = interpolation;
    s->tapsX = s->tapsY = taps;
    s->antialiasing = 0;
    s->borderSize = GexiBorderSize{taps, taps, taps, taps};
    set_axis_ratio(s->yAxis, srcH, dstH);
    set_axis_ratio(s->xAxis, srcW, dstW);
}

inline double ratio(const Axis& ax) { return double(ax.num) / double(ax.den); }

// Nearest positions: the fused r (i + 0.5) - 1e-10, truncated, so that a
// centre falling exactly on a pixel boundary goes to the lower pixel.
inline void build_nearest_axis(Axis& ax) {
    const double r = ratio(ax);
    for (std::uint32_t i = 0; i < ax.dstLen; ++i)
        ax.pPos[i] = static_cast<std::int32_t>(std::fma(r, double(i) + 0.5, -1e-10));
}

// Tap positions: x(i) = (i + 0.5) r - 0.5 fused, position floor(x), the
// fraction x - floor(x) in double handed to `frac`; counts the indices that
// need pixels before the source (x < taps - 1) and after it (x >= srcLen - taps).
template <class Frac>
void build_tap_axis(Axis& ax, std::uint32_t taps, Frac&& frac) {
    const double r = ratio(ax);
    std::uint32_t low = 0, high = 0;
    for (std::uint32_t i = 0; i < ax.dstLen; ++i) {
        const double x = std::fma(double(i) + 0.5, r, -0.5);
        const double p = std::floor(x);
        ax.pPos[i] = static_cast<std::int32_t>(p);
        frac(i, x - p);
        if (x < double(taps) - 1.0) ++low;
        if (x >= double(ax.srcLen) - double(taps)) ++high;
    }
    ax.nLow = low;
    ax.nHigh = high;
}

// Q14 weight of a fraction: truncate(f x 16384 + 1e-7), fused.
inline std::uint16_t q14(double f) { return static_cast<std::uint16_t>(std::fma(f, 16384.0, 1e-7)); }

// ---- Run side ----------------------------------------------------------------

// Source origin of a tile on an axis: floor(offset x r) with the product in double.
inline std::int64_t src_origin(const Axis& ax, std::int64_t offset) {
    return static_cast<std::int64_t>(std::floor(double(offset) * ratio(ax)));
}

// Round to nearest, ties to even, whatever the processor's rounding control.
inline std::int32_t round_even(float v) {
    return _mm_cvt_roundss_si32(_mm_set_ss(v), _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
}

// Float result into the destination depth: integer depths round to nearest
// even and saturate; float depths keep the value.
template <class T>
inline T store_float(float v) {
    if constexpr (std::is_same_v<T, float>) {
        return v;
    } else if constexpr (std::is_same_v<T, double>) {
        return T(v);
    } else {
        constexpr float lo = float(PixelTraits<T>::min()), hi = float(PixelTraits<T>::max());
        v = v < lo ? lo : v;
        v = v > hi ? hi : v;
        return static_cast<T>(round_even(v));
    }
}

// The computing type of a depth: double for 64f, float for the others.
template <class T>
using Acc = std::conditional_t<std::is_same_v<T, double>, double, float>;

// Where a tile reads and writes, worked out once per run.
template <class T>
struct Tile {
    const T* src;              // the source pixel at (srcOffX, srcOffY)
    std::int64_t srcStep;
    T* dst;
    std::int64_t dstStep;
    std::int64_t offX, offY;   // the tile in the destination
    std::int64_t w, h;         // clipped extents
    std::int64_t sOffX, sOffY; // the tile's source origin
    std::int32_t* xTab;        // source column per destination column, relative to sOffX
    std::int32_t* yTab;        // the same for rows
    std::uint8_t* ring;        // row buffers behind the tables
    std::int64_t slotBytes;    // bytes of one row buffer
    // Image limits relative to src: columns [xMin, xMax], rows [yMin, yMax].
    std::int64_t xMin, xMax, yMin, yMax;
};

// Clipping, source origin and the tile position tables (xTab first, yTab
// behind it) in the scratch buffer aligned to 64 bytes.
template <class T>
Tile<T> prepare_tile(const Record* s, const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep,
                     std::int64_t offX, std::int64_t offY, std::int64_t width, std::int64_t height, void* pBuffer,
                     int channels) {
    Tile<T> t{};
    t.src = pSrc;
    t.srcStep = srcStep;
    t.dst = pDst;
    t.dstStep = dstStep;
    t.offX = offX;
    t.offY = offY;
    t.w = std::min<std::int64_t>(width, std::int64_t(s->xAxis.dstLen) - offX);
    t.h = std::min<std::int64_t>(height, std::int64_t(s->yAxis.dstLen) - offY);
    t.sOffX = src_origin(s->xAxis, offX);
    t.sOffY = src_origin(s->yAxis, offY);
    std::uint8_t* base = align_up(pBuffer, 64);
    t.xTab = reinterpret_cast<std::int32_t*>(base);
    t.yTab = reinterpret_cast<std::int32_t*>(base + a32(std::uint64_t(t.w) * 4));
    for (std::int64_t j = 0; j < t.w; ++j) t.xTab[j] = std::int32_t(s->xAxis.pPos[offX + j] - t.sOffX);
    for (std::int64_t j = 0; j < t.h; ++j) t.yTab[j] = std::int32_t(s->yAxis.pPos[offY + j] - t.sOffY);
    t.ring = base + a32(std::uint64_t(t.w) * 4) + a32(std::uint64_t(t.h) * 4);
    t.slotBytes = std::int64_t(a32(std::uint64_t(channels) * sizeof(Acc<T>) * std::uint64_t(t.w)));
    t.xMin = -t.sOffX;
    t.xMax = std::int64_t(s->xAxis.srcLen) - t.sOffX - 1;
    t.yMin = -t.sOffY;
    t.yMax = std::int64_t(s->yAxis.srcLen) - t.sOffY - 1;
    return t;
}

struct Bands {
    std::int64_t top, bottom, left, right;
};

// Band widths: only tiles at the true edge of the destination get them, and
// an in-memory flag removes the band on its side.
template <class T>
Bands band_widths(const Record* s, const Tile<T>& t, int border) {
    auto cap = [](std::int64_t v, std::int64_t lim) { return v <= 0 ? 0 : std::min(v, lim); };
    Bands b{};
    if (!(border & gexBorderInMemTop)) b.top = cap(std::int64_t(s->yAxis.nLow) - t.offY, t.h);
    if (!(border & gexBorderInMemBottom))
        b.bottom = cap(std::int64_t(s->yAxis.nHigh) - (std::int64_t(s->yAxis.dstLen) - t.h - t.offY), t.h);
    if (!(border & gexBorderInMemLeft)) b.left = cap(std::int64_t(s->xAxis.nLow) - t.offX, t.w);
    if (!(border & gexBorderInMemRight))
        b.right = cap(std::int64_t(s->xAxis.nHigh) - (std::int64_t(s->xAxis.dstLen) - t.w - t.offX), t.w);
    return b;
}

// Tap index clamped to the image on the sides whose flag is clear.
struct Clamp {
    std::int64_t lo, hi;
    bool clampLo, clampHi;
    std::int64_t operator()(std::int64_t v) const {
        if (clampLo && v < lo) return lo;
        if (clampHi && v > hi) return hi;
        return v;
    }
};

template <class T>
inline const T* px(const Tile<T>& t, std::int64_t x, std::int64_t y, int C) {
    return row_at(t.src, t.srcStep, y) + x * C;
}

// ---- Band path: each pixel alone, taps clamped, a single stage ------------

// Linear, 8u: s = a (16384 - w) + b w, then (s + bit 14 of s + 8192) >> 14.
inline std::uint8_t band_lin_8u(int a, int b, int w) {
    const std::int32_t s = a * (16384 - w) + b * w;
    return saturate<std::uint8_t>((s + ((s >> 14) & 1) + 8192) >> 14);
}

// Linear, other depths: a + (b - a) w fused; integers round to even and saturate.
template <class T>
inline T band_lin(T a, T b, Acc<T> w) {
    using F = Acc<T>;
    const F v = std::fma(F(b) - F(a), w, F(a));
    if constexpr (std::is_same_v<T, double>) return v;
    else return store_float<T>(v);
}

// One cubic or Lanczos band pixel: nt x nt taps with their indices clamped,
// the weights of the pixel's column (cx) and row (cy). Each row is summed in
// the order (w1 p1 + w3 p3 [+ w5 p5]) + (w0 p0 + w2 p2 [+ w4 p4]) and the rows
// are combined as in the interior.
template <class T, int C>
void band_pixel_taps(const Tile<T>& t, int nt, std::int64_t px0, std::int64_t py0, const float* cx, const float* cy,
                     const Clamp& cX, const Clamp& cY, T* out) {
    const T* rp[6];
    std::int64_t xs[6];
    for (int k = 0; k < nt; ++k) {
        rp[k] = row_at(t.src, t.srcStep, cY(py0 + k));
        xs[k] = cX(px0 + k) * C;
    }
    for (int c = 0; c < C; ++c) {
        float rows[6];
        for (int ky = 0; ky < nt; ++ky) {
            const T* r = rp[ky] + c;
            float odd = cx[1] * float(r[xs[1]]) + cx[3] * float(r[xs[3]]);
            float even = cx[0] * float(r[xs[0]]) + cx[2] * float(r[xs[2]]);
            if (nt == 6) {
                odd = odd + cx[5] * float(r[xs[5]]);
                even = even + cx[4] * float(r[xs[4]]);
            }
            rows[ky] = odd + even;
        }
        float v;
        if (nt == 4)
            v = std::fma(cy[0], rows[0], cy[1] * rows[1]) + std::fma(cy[2], rows[2], cy[3] * rows[3]);
        else
            v = std::fma(cy[0], rows[0], std::fma(cy[2], rows[2], cy[4] * rows[4])) +
                std::fma(cy[1], rows[1], std::fma(cy[3], rows[3], cy[5] * rows[5]));
        out[c] = store_float<T>(v);
    }
}

// One band pixel of destination (j, i) of the tile.
template <class T, int C, Kind K>
void band_pixel(const Record* s, const Tile<T>& t, std::int64_t j, std::int64_t i, const Clamp& cX, const Clamp& cY) {
    T* out = row_at(t.dst, t.dstStep, i) + j * C;
    const std::int64_t gx = t.offX + j, gy = t.offY + i;
    if constexpr (K == Kind::Linear) {
        const std::int64_t x0 = cX(t.xTab[j]), x1 = cX(t.xTab[j] + 1);
        const std::int64_t y0 = cY(t.yTab[i]), y1 = cY(t.yTab[i] + 1);
        const T* r0 = row_at(t.src, t.srcStep, y0);
        const T* r1 = row_at(t.src, t.srcStep, y1);
        for (int c = 0; c < C; ++c) {
            if (y0 == y1 && x0 == x1) {
                out[c] = r0[x0 * C + c];
            } else if (y0 == y1) {
                if constexpr (std::is_same_v<T, std::uint8_t>)
                    out[c] = band_lin_8u(r0[x0 * C + c], r0[x1 * C + c], s->xAxis.pCoefQ14[2 * gx + 1]);
                else if constexpr (std::is_same_v<T, double>)
                    out[c] = band_lin<T>(r0[x0 * C + c], r0[x1 * C + c], s->xAxis.pCoef64f[gx]);
                else
                    out[c] = band_lin<T>(r0[x0 * C + c], r0[x1 * C + c], s->xAxis.pCoef32f[gx]);
            } else if (x0 == x1) {
                if constexpr (std::is_same_v<T, std::uint8_t>)
                    out[c] = band_lin_8u(r0[x0 * C + c], r1[x0 * C + c], s->yAxis.pCoefQ14[gy]);
                else if constexpr (std::is_same_v<T, double>)
                    out[c] = band_lin<T>(r0[x0 * C + c], r1[x0 * C + c], s->yAxis.pCoef64f[gy]);
                else
                    out[c] = band_lin<T>(r0[x0 * C + c], r1[x0 * C + c], s->yAxis.pCoef32f[gy]);
            } else {
                // Not reached for positive ratios (a band pixel always has its
                // taps clamped together on one axis); kept as the two passes.
                using F = Acc<T>;
                if constexpr (std::is_same_v<T, std::uint8_t>) {
                    const int wx = s->xAxis.pCoefQ14[2 * gx + 1], wy = s->yAxis.pCoefQ14[gy];
                    const int a = (r0[x0 * C + c] * (16384 - wx) + r0[x1 * C + c] * wx + 128) >> 8;
                    const int b = (r1[x0 * C + c] * (16384 - wx) + r1[x1 * C + c] * wx + 128) >> 8;
                    out[c] = saturate<std::uint8_t>((a * (16384 - wy) + b * wy + 0x80000) >> 20);
                } else {
                    F wx, wy;
                    if constexpr (std::is_same_v<T, double>) wx = s->xAxis.pCoef64f[gx], wy = s->yAxis.pCoef64f[gy];
                    else wx = s->xAxis.pCoef32f[gx], wy = s->yAxis.pCoef32f[gy];
                    const F a = std::fma(F(r0[x1 * C + c]) - F(r0[x0 * C + c]), wx, F(r0[x0 * C + c]));
                    const F b = std::fma(F(r1[x1 * C + c]) - F(r1[x0 * C + c]), wx, F(r1[x0 * C + c]));
                    const F v = std::fma(b - a, wy, a);
                    if constexpr (std::is_same_v<T, double>) out[c] = v;
                    else out[c] = store_float<T>(v);
                }
            }
        }
    } else {
        const int nt = int(2 * s->tapsX);
        const int half = int(s->tapsX) - 1;
        band_pixel_taps<T, C>(t, nt, t.xTab[j] - half, t.yTab[i] - half, s->xAxis.pCoef32f + gx * nt,
                              s->yAxis.pCoef32f + gy * nt, cX, cY, out);
    }
}

template <class T, int C, Kind K>
void run_bands(const Record* s, const Tile<T>& t, const Bands& b, int border) {
    const Clamp cX{t.xMin, t.xMax, !(border & gexBorderInMemLeft), !(border & gexBorderInMemRight)};
    const Clamp cY{t.yMin, t.yMax, !(border & gexBorderInMemTop), !(border & gexBorderInMemBottom)};
    for (std::int64_t i = 0; i < b.top; ++i)
        for (std::int64_t j = 0; j < t.w; ++j) band_pixel<T, C, K>(s, t, j, i, cX, cY);
    for (std::int64_t i = t.h - b.bottom; i < t.h; ++i)
        for (std::int64_t j = 0; j < t.w; ++j) band_pixel<T, C, K>(s, t, j, i, cX, cY);
    for (std::int64_t i = b.top; i < t.h - b.bottom; ++i) {
        for (std::int64_t j = 0; j < b.left; ++j) band_pixel<T, C, K>(s, t, j, i, cX, cY);
        for (std::int64_t j = t.w - b.right; j < t.w; ++j) band_pixel<T, C, K>(s, t, j, i, cX, cY);
    }
}

// ---- Interior: a ring of horizontally interpolated rows --------------------

// What an interior kernel gets: the source rows, the tile's column table and
// weights (already past the left band), the output width, the ring slots.
struct RowJob {
    const std::int32_t* xTab;  // source column per output column
    std::int64_t n;            // output columns
    const void* wx;            // x weights of the first output column
};

// Drives the ring: for each destination row of the interior, makes sure the
// 2 x taps source rows it needs are interpolated horizontally (each row at
// most once while the rows stay in the ring: slot = row mod slots), then
// runs the vertical pass into the destination. Rows that no destination row
// needs are never read.
template <class T, int C, class Kernel>
void run_interior(const Record* s, const Tile<T>& t, const Bands& b, int taps) {
    const std::int64_t x0 = b.left, x1 = t.w - b.right, y0 = b.top, y1 = t.h - b.bottom;
    if (x1 <= x0 || y1 <= y0) return;
    const int slots = 2 * taps;
    std::int64_t tag[6];
    for (int k = 0; k < slots; ++k) tag[k] = INT64_MIN;
    const std::int64_t n = x1 - x0;
    const typename Kernel::Weights wx = Kernel::x_weights(s, t.offX + x0);
    for (std::int64_t i = y0; i < y1; ++i) {
        const std::int64_t y = t.yTab[i];
        const void* rows[6];
        for (int k = 0; k < slots; ++k) {
            const std::int64_t r = y - (taps - 1) + k;
            const int slot = int(((r % slots) + slots) % slots);
            std::uint8_t* buf = t.ring + slot * t.slotBytes;
            if (tag[slot] != r) {
                Kernel::row(row_at(t.src, t.srcStep, r), t.xTab + x0, n, wx, buf);
                tag[slot] = r;
            }
            rows[k] = buf;
        }
        Kernel::col(rows, Kernel::y_weights(s, t.offY + i), n * C, row_at(t.dst, t.dstStep, i) + x0 * C);
    }
}

// The tables a method's run reads must be present: a record of another Init
// family (8u linear against a float run, a half-built Lanczos record) is
// refused like a record of another method.
template <class T, Kind K>
bool tables_ok(const Record* s) {
    if (s->yAxis.pPos == nullptr || s->xAxis.pPos == nullptr) return false;
    if constexpr (K == Kind::Nearest) {
        return true;
    } else if constexpr (K == Kind::Linear) {
        if constexpr (std::is_same_v<T, std::uint8_t>) return s->xAxis.pCoefQ14 && s->yAxis.pCoefQ14;
        else if constexpr (std::is_same_v<T, double>) return s->xAxis.pCoef64f && s->yAxis.pCoef64f;
        else return s->xAxis.pCoef32f && s->yAxis.pCoef32f;
    } else if constexpr (K == Kind::Cubic) {
        return s->tapsX == 2 && s->tapsY == 2 && s->xAxis.pCoef32f && s->yAxis.pCoef32f;
    } else {
        return (s->tapsX == 2 || s->tapsX == 3) && s->tapsY == s->tapsX && s->xAxis.pCoef32f && s->yAxis.pCoef32f;
    }
}

template <class T, bool Large>
constexpr IdTest id_test() {
    if constexpr (std::is_same_v<T, double>) return Large ? IdTest::IdLDouble : IdTest::Id32Double;
    else return Large ? IdTest::IdL : IdTest::Id32;
}

}  // namespace gex::resize
