// Building resize records: the table layout behind the record and the tables
// of nearest, linear, cubic and Lanczos. The checking Init wrappers live in
// the family files and call these once their checks have passed.
#include "geometry/resize_init.hpp"

#include <immintrin.h>

#include <cmath>

#include "geometry/resize_lanczos_tables.hpp"

namespace gex::resize {

namespace {

constexpr std::uint64_t r32(std::uint64_t n) { return (n + 31) & ~std::uint64_t{31}; }

// The position tables start here behind the record: y positions, then x
// positions, each with room for the extent rounded up to 32 entries.
std::uint8_t* layout_positions(Record* s, std::uint8_t* at) {
    s->yAxis.pPos = reinterpret_cast<std::int32_t*>(at);
    s->xAxis.pPos = s->yAxis.pPos + r32(s->yAxis.dstLen);
    return reinterpret_cast<std::uint8_t*>(s->xAxis.pPos + r32(s->xAxis.dstLen));
}

std::uint8_t* behind_record(Record* s) { return reinterpret_cast<std::uint8_t*>(s) + kRecordBytes; }

// Table arithmetic runs with underflow flushed to zero and the underflow
// exception masked; the two control bits and the sticky underflow flag are
// put back as they were.
class FlushGuard {
public:
    FlushGuard() : saved_(_mm_getcsr()) { _mm_setcsr(saved_ | kFtz | kUnderflowMask); }
    ~FlushGuard() {
        const unsigned keep = kFtz | kUnderflowMask | kUnderflowFlag;
        _mm_setcsr((_mm_getcsr() & ~keep) | (saved_ & keep));
    }
    FlushGuard(const FlushGuard&) = delete;
    FlushGuard& operator=(const FlushGuard&) = delete;

private:
    static constexpr unsigned kFtz = 1u << 15, kUnderflowMask = 1u << 11, kUnderflowFlag = 1u << 4;
    unsigned saved_;
};

// ---- Two-parameter cubic ------------------------------------------------------

struct CubicCoef {
    double p3, p2, p0;      // |d| below 1 (no linear term)
    double q3, q2, q1, q0;  // 1 <= |d| < 2
};

constexpr CubicCoef cubic_coef(double B, double C) {
    return {(2.0 - 1.5 * B) - C, (2.0 * B - 3.0) + C, 1.0 - B / 3.0,
            -B / 6.0 - C,        B + 5.0 * C,         -2.0 * B - 8.0 * C, 4.0 * B / 3.0 + 4.0 * C};
}

// Horner with fused steps in double, rounded to float at the end.
inline float cubic_weight(const CubicCoef& k, float d) {
    const double a = std::fabs(double(d));
    if (a >= 2.0) return 0.0f;
    if (a < 1.0) return float(std::fma(std::fma(std::fma(k.p3, a, k.p2), a, 0.0), a, k.p0));
    return float(std::fma(std::fma(std::fma(k.q3, a, k.q2), a, k.q1), a, k.q0));
}

// The frequent parameter pairs have their coefficients folded at compile
// time from the same float parameters, so they give what the general
// evaluator gives.
constexpr CubicCoef kCatmullRom = cubic_coef(double(0.0f), double(0.5f));
constexpr CubicCoef kBSpline = cubic_coef(double(1.0f), double(0.0f));
constexpr CubicCoef kB05C03 = cubic_coef(double(0.5f), double(0.3f));

template <const CubicCoef* K>
void cubic_kernel_folded(const float* frac, std::uint32_t n, float* w) {
    for (std::uint32_t i = 0; i < n; ++i)
        for (int k = 0; k < 4; ++k) w[i * 4 + k] = cubic_weight(*K, float(k - 1) - frac[i]);
}

void cubic_kernel_general(const float* frac, std::uint32_t n, float* w, float B, float C) {
    const CubicCoef k = cubic_coef(B, C);
    for (std::uint32_t i = 0; i < n; ++i)
        for (int t = 0; t < 4; ++t) w[i * 4 + t] = cubic_weight(k, float(t - 1) - frac[i]);
}

void cubic_axis(const float* frac, std::uint32_t n, float* w, float B, float C) {
    if (B == 0.0f && C == 0.5f) cubic_kernel_folded<&kCatmullRom>(frac, n, w);
    else if (B == 1.0f && C == 0.0f) cubic_kernel_folded<&kBSpline>(frac, n, w);
    else if (B == 0.5f && C == 0.3f) cubic_kernel_folded<&kB05C03>(frac, n, w);
    else cubic_kernel_general(frac, n, w, B, C);
}

// ---- Lanczos --------------------------------------------------------------------

// One weight row from the table: linear interpolation between samples, fused.
template <int Lobes>
void lanczos_row(float f, float* w) {
    constexpr int nt = 2 * Lobes;
    constexpr float scale = Lobes == 2 ? 200.0f : 100.0f;
    const float* tbl = Lobes == 2 ? tblL2 : tblL3;
    for (int k = 0; k < nt; ++k) {
        const float d = float(k - (Lobes - 1)) - f;
        if (d > -float(Lobes) && d < float(Lobes)) {
            const float t = scale * std::fabs(d);
            const int i = int(t);
            w[k] = std::fma(tbl[i + 1] - tbl[i], t - float(i), tbl[i]);
        } else {
            w[k] = 0.0f;
        }
    }
    // Normalise: the sum from the first weight to the last, a 14-bit
    // reciprocal estimate refined by one Newton step.
    float s = w[0];
    for (int k = 1; k < nt; ++k) s = s + w[k];
    const float r0 = _mm_cvtss_f32(_mm_rcp14_ss(_mm_setzero_ps(), _mm_set_ss(s)));
    const float r = 2.0f * r0 - (r0 * s) * r0;
    for (int k = 0; k < nt; ++k) w[k] = w[k] * r;
}

template <int Lobes>
void lanczos_axis(const float* frac, std::uint32_t n, float* w) {
    for (std::uint32_t i = 0; i < n; ++i) lanczos_row<Lobes>(frac[i], w + std::size_t(i) * 2 * Lobes);
}

// Positions into the record and fractions, as floats, into the Init buffer
// (y first, then x); returns the x fractions.
float* tap_positions(Record* s, std::uint32_t taps, float* fracY) {
    float* fracX = fracY + r32(s->yAxis.dstLen);
    build_tap_axis(s->yAxis, taps, [&](std::uint32_t i, double f) { fracY[i] = float(f); });
    build_tap_axis(s->xAxis, taps, [&](std::uint32_t i, double f) { fracX[i] = float(f); });
    return fracX;
}

// Weight rows of nt floats per destination index, y before x, each table on
// a 32-byte boundary behind the positions.
void layout_weight_rows(Record* s, std::uint8_t* end, int nt) {
    float* wy = reinterpret_cast<float*>(align_up(end, 32));
    float* wx = reinterpret_cast<float*>(align_up(wy + std::size_t(s->yAxis.dstLen) * nt, 32));
    s->yAxis.pCoef32f = wy;
    s->xAxis.pCoef32f = wx;
}

}  // namespace

void init_nearest(const Dims& d, std::uint32_t id, void* pSpec) {
    Record* s = record_at(pSpec);
    set_fields(s, kTypeFloat, kNearest, 0, d.srcW, d.srcH, d.dstW, d.dstH);
    layout_positions(s, behind_record(s));
    build_nearest_axis(s->yAxis);
    build_nearest_axis(s->xAxis);
    s->id = id;
}

void init_linear(const Dims& d, LinearTable table, std::uint32_t id, void* pSpec) {
    Record* s = record_at(pSpec);
    set_fields(s, table == LinearTable::Double ? kTypeDouble : kTypeFloat, kLinear, 1, d.srcW, d.srcH, d.dstW,
               d.dstH);
    if (table == LinearTable::Double) {
        // The record itself takes 192 bytes here; every table on a 64-byte boundary.
        std::uint8_t* at = reinterpret_cast<std::uint8_t*>(s) + 192;
        std::uint8_t* end = layout_positions(s, at);
        s->yAxis.pCoef64f = reinterpret_cast<double*>(align_up(end, 64));
        s->xAxis.pCoef64f = reinterpret_cast<double*>(align_up(s->yAxis.pCoef64f + r32(d.dstH), 64));
        build_tap_axis(s->yAxis, 1, [&](std::uint32_t i, double f) { s->yAxis.pCoef64f[i] = f; });
        build_tap_axis(s->xAxis, 1, [&](std::uint32_t i, double f) { s->xAxis.pCoef64f[i] = f; });
    } else if (table == LinearTable::Q14) {
        std::uint8_t* end = layout_positions(s, behind_record(s));
        s->yAxis.pCoefQ14 = reinterpret_cast<std::uint16_t*>(end);
        s->xAxis.pCoefQ14 = s->yAxis.pCoefQ14 + r32(d.dstH);
        build_tap_axis(s->yAxis, 1, [&](std::uint32_t i, double f) { s->yAxis.pCoefQ14[i] = q14(f); });
        build_tap_axis(s->xAxis, 1, [&](std::uint32_t i, double f) {
            const std::uint16_t w = q14(f);
            s->xAxis.pCoefQ14[2 * i] = std::uint16_t(16384 - w);
            s->xAxis.pCoefQ14[2 * i + 1] = w;
        });
    } else {
        std::uint8_t* end = layout_positions(s, behind_record(s));
        s->yAxis.pCoef32f = reinterpret_cast<float*>(end);
        s->xAxis.pCoef32f = s->yAxis.pCoef32f + r32(d.dstH);
        build_tap_axis(s->yAxis, 1, [&](std::uint32_t i, double f) { s->yAxis.pCoef32f[i] = float(f); });
        build_tap_axis(s->xAxis, 1, [&](std::uint32_t i, double f) { s->xAxis.pCoef32f[i] = float(f); });
    }
    s->id = id;
}

void init_cubic(const Dims& d, float B, float C, std::uint32_t id, void* pSpec, void* pInitBuf) {
    Record* s = record_at(pSpec);
    set_fields(s, kTypeFloat, kCubic, 2, d.srcW, d.srcH, d.dstW, d.dstH);
    std::uint8_t* end = layout_positions(s, behind_record(s));
    float* fracY = reinterpret_cast<float*>(align_up(pInitBuf, 64));
    FlushGuard flush;
    const float* fracX = tap_positions(s, 2, fracY);
    layout_weight_rows(s, end, 4);
    cubic_axis(fracY, d.dstH, s->yAxis.pCoef32f, B, C);
    cubic_axis(fracX, d.dstW, s->xAxis.pCoef32f, B, C);
    s->id = id;
}

GexStatus init_lanczos(const Dims& d, std::uint32_t numLobes, std::uint32_t id, void* pSpec, void* pInitBuf) {
    // The scalar fields, the identifier and the positions go in before the
    // lobe count and the source's minimum are tested: a failing call leaves a
    // record that names itself but has no weights (runs refuse it).
    Record* s = record_at(pSpec);
    set_fields(s, kTypeFloat, kLanczos, numLobes, d.srcW, d.srcH, d.dstW, d.dstH);
    std::uint8_t* end = layout_positions(s, behind_record(s));
    s->id = id;
    float* fracY = reinterpret_cast<float*>(align_up(pInitBuf, 64));
    const float* fracX = tap_positions(s, numLobes, fracY);
    if (numLobes != 2 && numLobes != 3) return gexStsNotSupportedMode;
    if (d.srcW < 2 * numLobes || d.srcH < 2 * numLobes) return gexStsSize;
    FlushGuard flush;
    float* wy = reinterpret_cast<float*>(align_up(end, 32));
    float* wx = reinterpret_cast<float*>(align_up(wy + std::size_t(d.dstH) * 2 * numLobes, 32));
    if (numLobes == 2) {
        lanczos_axis<2>(fracY, d.dstH, wy);
        lanczos_axis<2>(fracX, d.dstW, wx);
    } else {
        lanczos_axis<3>(fracY, d.dstH, wy);
        lanczos_axis<3>(fracX, d.dstW, wx);
    }
    s->yAxis.pCoef32f = wy;
    s->xAxis.pCoef32f = wx;
    return gexStsOk;
}

}  // namespace gex::resize
