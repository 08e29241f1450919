// Set: a constant to every pixel, to the colour channels of AC4 pixels, to one
// channel (C3CR, C4CR), or under an 8u mask (MR forms); and the private
// one-dimensional gexsSet/gexsZero primitives.
//
// Every form runs on one engine: a pixel pattern laid out over lcm(pixel, 64)
// bytes, written with 512-bit stores whose masks carry the row tail and, for
// AC4 and the channel forms, the bytes that must stay. Long rows align their
// body to 64 bytes; above its family's volume threshold, and only when the
// data would not fit in the largest cache anyway, the body goes out with
// non-temporal stores and a store fence ends the call. Pixels never depend on
// which path ran.
#include "data/set.hpp"

#include <immintrin.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "gexcore.h"
#include "frame/checks.hpp"
#include "frame/export.hpp"
#include "frame/simd.hpp"

namespace gex {

// ---- streaming decision ---------------------------------------------------------

Stores choose_stores(StreamRule rule, std::int64_t volume, CacheQuery query) {
    if (volume <= rule.threshold) return Stores::Cached;
    int c = 0;
    if (query == nullptr || query(&c) != gexStsOk) return Stores::Cached;
    if (rule.above_cache) return (c >= 1 && volume > c) ? Stores::Streaming : Stores::Cached;
    return volume >= c ? Stores::Streaming : Stores::Cached;
}

// ---- the pattern ------------------------------------------------------------------

FillPattern::FillPattern(const void* bytes, int period, std::uint32_t writeMask) {
    if (period < 1) period = 1;
    if (period > kMaxPeriod) period = kMaxPeriod;
    period_ = period;
    int g = 64;
    for (int a = period; a != 0;) {  // gcd(period, 64)
        const int t = g % a;
        g = a;
        a = t;
    }
    span_ = 64 / g * period;
    const std::uint32_t all = (1u << period) - 1u;
    write_mask_ = writeMask & all;
    masked_ = write_mask_ != all;

    const int len = span_ + 64;
    lay_out(line_, static_cast<const std::uint8_t*>(bytes), len);
    if (masked_) {
        std::uint8_t unit[kMaxPeriod];
        for (int k = 0; k < period; ++k) unit[k] = ((write_mask_ >> k) & 1u) ? 0xff : 0x00;
        lay_out(write_line_, unit, len);
    }
}

// The period repeated over len bytes: the first vector from the unit, then
// that vector stored again every d bytes, d being the largest multiple of the
// period within 64 (so each copy starts at the pattern's first byte).
void FillPattern::lay_out(std::uint8_t* buf, const std::uint8_t* unit, int len) const {
    const int period = period_;
    if ((period & (period - 1)) == 0) {
        alignas(16) std::uint8_t block[16];
        for (int i = 0; i < 16; ++i) block[i] = unit[i & (period - 1)];
        _mm512_store_si512(buf, _mm512_maskz_broadcast_i32x4(
                                    0xffff, _mm_load_si128(reinterpret_cast<const __m128i*>(block))));
    } else {
        for (int i = 0, k = 0; i < 64; ++i) {
            buf[i] = unit[k];
            if (++k == period) k = 0;
        }
    }
    const __m512i v = _mm512_load_si512(buf);
    const int d = 64 / period * period;
    for (int pos = d; pos < len; pos += d) _mm512_mask_storeu_epi8(buf + pos, simd::tail_mask64(len - pos), v);
}

// ---- pattern rows -------------------------------------------------------------------

namespace {

// Rows at least this long store their body at 64-byte aligned addresses.
constexpr std::int64_t kAlignFrom = 256;

template <bool Masked, bool Stream>
inline void put(std::uint8_t* p, __m512i v, __mmask64 k) {
    if constexpr (Stream) _mm512_stream_si512(reinterpret_cast<__m512i*>(p), v);
    else if constexpr (Masked) _mm512_mask_storeu_epi8(p, k, v);
    else _mm512_storeu_si512(p, v);
}

// R is the number of distinct vectors of the pattern (span / 64): 1 or 3 keep
// them in registers, 0 reloads each from the laid-out pattern.
template <int R, bool Masked, bool Stream>
void pattern_row_k(std::uint8_t* p, std::int64_t n, const FillPattern& fp) {
    if constexpr (Stream) {
        if (n < kAlignFrom) return pattern_row_k<R, Masked, false>(p, n, fp);
    }
    const std::uint8_t* line = fp.line();
    const std::uint8_t* wl = fp.write_line();
    const std::int64_t span = fp.span();
    auto vec = [line](std::int64_t q) { return _mm512_loadu_si512(line + q); };
    auto msk = [wl](std::int64_t q) -> __mmask64 {
        if constexpr (Masked) return _mm512_movepi8_mask(_mm512_loadu_si512(wl + q));
        else return ~__mmask64(0);
    };

    if (n <= 64) {
        _mm512_mask_storeu_epi8(p, simd::tail_mask64(n) & msk(0), vec(0));
        return;
    }
    std::int64_t o = 0;
    if (n >= kAlignFrom) {
        // The first vector covers the bytes before the first aligned address.
        _mm512_mask_storeu_epi8(p, msk(0), vec(0));
        o = 64 - static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(p) & 63);
    }
    std::int64_t q = o >= span ? o - span : o;  // o <= 64 <= span

    if constexpr (R == 1) {
        const __m512i v = vec(q);
        const __mmask64 k = msk(q);
        for (; o + 256 <= n; o += 256) {
            put<Masked, Stream>(p + o, v, k);
            put<Masked, Stream>(p + o + 64, v, k);
            put<Masked, Stream>(p + o + 128, v, k);
            put<Masked, Stream>(p + o + 192, v, k);
        }
        for (; o + 64 <= n; o += 64) put<Masked, Stream>(p + o, v, k);
        if (o < n) _mm512_mask_storeu_epi8(p + o, simd::tail_mask64(n - o) & k, v);
    } else if constexpr (R == 3) {
        std::int64_t q1 = q + 64, q2 = q + 128;
        if (q1 >= span) q1 -= span;
        if (q2 >= span) q2 -= span;
        const __m512i v[3] = {vec(q), vec(q1), vec(q2)};
        const __mmask64 k[3] = {msk(q), msk(q1), msk(q2)};
        for (; o + 192 <= n; o += 192) {
            put<Masked, Stream>(p + o, v[0], k[0]);
            put<Masked, Stream>(p + o + 64, v[1], k[1]);
            put<Masked, Stream>(p + o + 128, v[2], k[2]);
        }
        int j = 0;
        for (; o + 64 <= n; o += 64, ++j) put<Masked, Stream>(p + o, v[j], k[j]);
        if (o < n) _mm512_mask_storeu_epi8(p + o, simd::tail_mask64(n - o) & k[j], v[j]);
    } else {
        for (; o + 64 <= n; o += 64) {
            put<Masked, Stream>(p + o, vec(q), msk(q));
            q += 64;
            if (q >= span) q -= span;
        }
        if (o < n) _mm512_mask_storeu_epi8(p + o, simd::tail_mask64(n - o) & msk(q), vec(q));
    }
}

using RowFn = void (*)(std::uint8_t*, std::int64_t, const FillPattern&);

template <int R>
RowFn pick_row_r(bool masked, bool stream) {
    if (masked) return &pattern_row_k<R, true, false>;
    return stream ? &pattern_row_k<R, false, true> : &pattern_row_k<R, false, false>;
}

RowFn pick_row(const FillPattern& fp, Stores stores) {
    const bool stream = stores == Stores::Streaming;
    switch (fp.span() / 64) {
        case 1: return pick_row_r<1>(fp.masked(), stream);
        case 3: return pick_row_r<3>(fp.masked(), stream);
        default: return pick_row_r<0>(fp.masked(), stream);
    }
}

}  // namespace

void pattern_row(std::uint8_t* p, std::int64_t n, const FillPattern& fp, Stores stores) {
    if (n > 0) pick_row(fp, stores)(p, n, fp);
}

void pattern_row_scalar(std::uint8_t* p, std::int64_t n, const FillPattern& fp) {
    const int period = fp.period();
    for (std::int64_t i = 0, k = 0; i < n; ++i) {
        if (fp.writes(static_cast<int>(k))) p[i] = fp.byte(static_cast<int>(k));
        if (++k == period) k = 0;
    }
}

void fill_pattern_2d(void* pDst, std::int64_t dstStep, std::int64_t rowBytes, std::int64_t height,
                     const FillPattern& fp, Stores stores) {
    if (rowBytes < 1 || height < 1) return;
    // Gapless rows whose length is a whole number of periods continue the
    // pattern seamlessly: one row.
    if (height > 1 && dstStep == rowBytes && rowBytes % fp.period() == 0) {
        rowBytes *= height;
        height = 1;
    }
    const RowFn row = pick_row(fp, stores);
    auto* p = static_cast<std::uint8_t*>(pDst);
    for (std::int64_t y = 0; y < height; ++y, p += dstStep) row(p, rowBytes, fp);
    if (stores == Stores::Streaming) simd::store_fence();
}

// ---- masked rows --------------------------------------------------------------------

namespace {

// Each bit of a byte spread to `ch` bits.
template <int CH>
constexpr std::array<std::uint32_t, 256> make_spread() {
    std::array<std::uint32_t, 256> t{};
    for (unsigned b = 0; b < 256; ++b) {
        std::uint32_t v = 0;
        for (unsigned i = 0; i < 8; ++i)
            if ((b >> i) & 1u) v |= ((1u << CH) - 1u) << (i * CH);
        t[b] = v;
    }
    return t;
}
constexpr auto kSpread3 = make_spread<3>();
constexpr auto kSpread4 = make_spread<4>();

// The pixel bits of pm (nbits of them, a multiple of 8) spread to CH element
// bits each, into out[0..3] (up to 256 bits).
template <int CH>
inline void spread_bits(std::uint64_t pm, int nbits, std::uint64_t out[4]) {
    const auto& table = CH == 3 ? kSpread3 : kSpread4;
    out[0] = out[1] = out[2] = out[3] = 0;
    int pos = 0;
    for (int i = 0; i < nbits; i += 8, pos += 8 * CH) {
        const std::uint64_t v = table[(pm >> i) & 0xff];
        const int w = pos >> 6, s = pos & 63;
        out[w] |= v << s;
        if (s + 8 * CH > 64) out[w + 1] |= v >> (64 - s);
    }
}

template <int E>
inline typename simd::Mask<E>::type element_mask(__m512i bytes) {
    if constexpr (E == 1) return _mm512_movepi8_mask(bytes);
    else if constexpr (E == 2) return _mm512_movepi16_mask(bytes);
    else return _mm512_movepi32_mask(bytes);
}

// Blocks of 64/E pixels: exactly CH vectors of 64/E elements each.
template <int E, int CH>
void masked_row_k(std::uint8_t* p, const std::uint8_t* mask, std::int64_t width, const FillPattern& fp) {
    using M = typename simd::Mask<E>::type;
    constexpr int N = 64 / E;
    const std::int64_t span = fp.span();
    __m512i v[CH];
    M w[CH];
    for (int r = 0; r < CH; ++r) {
        const std::int64_t q = (64 * r) % span;
        v[r] = _mm512_loadu_si512(fp.line() + q);
        w[r] = fp.masked() ? element_mask<E>(_mm512_loadu_si512(fp.write_line() + q)) : M(~M(0));
    }
    constexpr std::uint64_t kFull = N == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << N) - 1;
    for (std::int64_t x = 0; x < width; x += N) {
        const std::int64_t np = std::min<std::int64_t>(N, width - x);
        const __m512i mb = _mm512_maskz_loadu_epi8(simd::tail_mask64(np), mask + x);
        const std::uint64_t pm = simd::nonzero_bytes(mb);
        if (pm == 0) continue;
        std::uint8_t* d = p + x * CH * E;
        if constexpr (CH == 1) {
            simd::store_masked<E>(d, static_cast<M>(pm) & w[0], v[0]);
        } else if (pm == kFull) {
            for (int r = 0; r < CH; ++r) simd::store_masked<E>(d + 64 * r, w[r], v[r]);
        } else {
            std::uint64_t bits[4];
            spread_bits<CH>(pm, N, bits);
            for (int r = 0; r < CH; ++r) {
                const int start = r * N;
                const M k = static_cast<M>(bits[start >> 6] >> (start & 63)) & w[r];
                if (k) simd::store_masked<E>(d + 64 * r, k, v[r]);
            }
        }
    }
}

using MaskedFn = void (*)(std::uint8_t*, const std::uint8_t*, std::int64_t, const FillPattern&);

template <int E>
MaskedFn pick_masked_e(int channels) {
    switch (channels) {
        case 3: return &masked_row_k<E, 3>;
        case 4: return &masked_row_k<E, 4>;
        default: return &masked_row_k<E, 1>;
    }
}

MaskedFn pick_masked(int elemBytes, int channels) {
    switch (elemBytes) {
        case 2: return pick_masked_e<2>(channels);
        case 4: return pick_masked_e<4>(channels);
        default: return pick_masked_e<1>(channels);
    }
}

}  // namespace

void masked_row(std::uint8_t* p, const std::uint8_t* mask, std::int64_t width, const FillPattern& fp,
                int elemBytes) {
    if (width > 0) pick_masked(elemBytes, fp.period() / elemBytes)(p, mask, width, fp);
}

void masked_row_scalar(std::uint8_t* p, const std::uint8_t* mask, std::int64_t width, const FillPattern& fp) {
    const int b = fp.period();
    for (std::int64_t x = 0; x < width; ++x) {
        if (mask[x] == 0) continue;
        for (int i = 0; i < b; ++i)
            if (fp.writes(i)) p[x * b + i] = fp.byte(i);
    }
}

// ---- the wrappers' shared bodies --------------------------------------------------

namespace {

// Whole pixels: C1, C3, C4 and AC4 (the pattern says which bytes are written).
template <class T>
void set_pixels(const FillPattern& fp, T* pDst, int dstStep, GexiSize roi, int channels, Stores stores) {
    const std::int64_t rowBytes = std::int64_t{roi.width} * channels * std::int64_t{sizeof(T)};
    fill_pattern_2d(pDst, dstStep, rowBytes, roi.height, fp, stores);
}

// The rule of the element rows: above the threshold and element-aligned.
template <class T>
Stores row_stores(const T* p, std::int64_t bytes, bool rowsAligned, CacheQuery query) {
    const bool aligned = rowsAligned && reinterpret_cast<std::uintptr_t>(p) % sizeof(T) == 0;
    return aligned ? choose_stores(kStreamSetRow, bytes, query) : Stores::Cached;
}

// One-channel rows of 16- and 32-bit elements are gexsSet rows: the row rule
// decides on the bytes of one (merged) row.
template <class T>
GexStatus set_c1_rows(T value, T* pDst, int dstStep, GexiSize roi, CacheQuery query) {
    GEX_CHECK(check_null(pDst));
    GEX_CHECK(check_roi(roi));
    const std::int64_t rowBytes = std::int64_t{roi.width} * std::int64_t{sizeof(T)};
    const bool merged = roi.height == 1 || dstStep == rowBytes;
    const std::int64_t bytes = merged ? rowBytes * roi.height : rowBytes;
    const Stores stores = row_stores(pDst, bytes, merged || dstStep % std::int64_t{sizeof(T)} == 0, query);
    const FillPattern fp = pixel_pattern(&value, 1, 1);
    set_pixels(fp, pDst, dstStep, roi, 1, stores);
    return gexStsOk;
}

template <class T, int CH, int WRITTEN>
GexStatus set_cn(const T* value, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(value, pDst));
    GEX_CHECK(check_roi(roi));
    const FillPattern fp = pixel_pattern(value, CH, WRITTEN);
    set_pixels(fp, pDst, dstStep, roi, CH, Stores::Cached);
    return gexStsOk;
}

template <class T>
GexStatus set_c4_image(const T* value, T* pDst, int dstStep, GexiSize roi, CacheQuery query) {
    GEX_CHECK(check_null(value, pDst));
    GEX_CHECK(check_roi(roi));
    const std::int64_t volume = 16 * std::int64_t{roi.width} * roi.height;
    const Stores stores = choose_stores(kStreamSet32C4, volume, query);
    const FillPattern fp = pixel_pattern(value, 4, 4);
    set_pixels(fp, pDst, dstStep, roi, 4, stores);
    return gexStsOk;
}

// One channel of CH: the element at pDst and every CH-th after it. A row ends
// at its last written element; gapless rows are one row.
template <class T, int CH>
GexStatus set_channel(T value, T* pDst, int dstStep, GexiSize roi) {
    GEX_CHECK(check_null(pDst));
    GEX_CHECK(check_roi(roi));
    const FillPattern fp = pixel_pattern(&value, CH, 1);
    std::int64_t width = roi.width, height = roi.height;
    if (height > 1 && dstStep == width * CH * std::int64_t{sizeof(T)}) {
        width *= height;
        height = 1;
    }
    const std::int64_t rowBytes = ((width - 1) * CH + 1) * std::int64_t{sizeof(T)};
    fill_pattern_2d(pDst, dstStep, rowBytes, height, fp, Stores::Cached);
    return gexStsOk;
}

template <class T, int CH>
void set_masked_2d(const FillPattern& fp, T* pDst, int dstStep, GexiSize roi, const Gex8u* pMask, int maskStep) {
    std::int64_t width = roi.width, height = roi.height;
    if (height > 1 && dstStep == width * CH * std::int64_t{sizeof(T)} && maskStep == width) {
        width *= height;
        height = 1;
    }
    const MaskedFn row = pick_masked(sizeof(T), CH);
    auto* d = reinterpret_cast<std::uint8_t*>(pDst);
    const Gex8u* m = pMask;
    for (std::int64_t y = 0; y < height; ++y, d += dstStep, m += maskStep) row(d, m, width, fp);
}

template <class T>
GexStatus set_c1_masked(T value, T* pDst, int dstStep, GexiSize roi, const Gex8u* pMask, int maskStep) {
    GEX_CHECK(check_null(pDst, pMask));
    GEX_CHECK(check_roi(roi));
    const FillPattern fp = pixel_pattern(&value, 1, 1);
    set_masked_2d<T, 1>(fp, pDst, dstStep, roi, pMask, maskStep);
    return gexStsOk;
}

template <class T, int CH, int WRITTEN>
GexStatus set_cn_masked(const T* value, T* pDst, int dstStep, GexiSize roi, const Gex8u* pMask, int maskStep) {
    GEX_CHECK(check_null(value, pDst, pMask));
    GEX_CHECK(check_roi(roi));
    const FillPattern fp = pixel_pattern(value, CH, WRITTEN);
    set_masked_2d<T, CH>(fp, pDst, dstStep, roi, pMask, maskStep);
    return gexStsOk;
}

// The one-dimensional primitives: 8u by the byte rule, wider elements only
// when the destination is element-aligned.
template <class T>
GexStatus set_line(T value, T* pDst, int len) {
    GEX_CHECK(check_null(pDst));
    if (len < 1) return gexStsSize;
    const std::int64_t bytes = std::int64_t{len} * std::int64_t{sizeof(T)};
    const Stores stores = row_stores(pDst, bytes, true, &gexGetMaxCacheSizeB);
    const FillPattern fp = pixel_pattern(&value, 1, 1);
    fill_pattern_2d(pDst, bytes, bytes, 1, fp, stores);
    return gexStsOk;
}

}  // namespace

GexStatus set_8u_c1r_with(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roi, CacheQuery query) {
    GEX_CHECK(check_null(pDst));
    GEX_CHECK(check_roi(roi));
    const Stores stores = choose_stores(kStreamSet8uImage, std::int64_t{roi.width} * roi.height, query);
    const FillPattern fp = pixel_pattern(&value, 1, 1);
    set_pixels(fp, pDst, dstStep, roi, 1, stores);
    return gexStsOk;
}

GexStatus set_32f_c4r_with(const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roi, CacheQuery query) {
    return set_c4_image(value, pDst, dstStep, roi, query);
}

GexStatus set_16u_c1r_with(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roi, CacheQuery query) {
    return set_c1_rows(value, pDst, dstStep, roi, query);
}

GexStatus gexsSet_8u(Gex8u val, Gex8u* pDst, int len) { return set_line(val, pDst, len); }
GexStatus gexsSet_16s(Gex16s val, Gex16s* pDst, int len) { return set_line(val, pDst, len); }
GexStatus gexsSet_16u(Gex16u val, Gex16u* pDst, int len) { return set_line(val, pDst, len); }
GexStatus gexsSet_32s(Gex32s val, Gex32s* pDst, int len) { return set_line(val, pDst, len); }
GexStatus gexsSet_32f(Gex32f val, Gex32f* pDst, int len) { return set_line(val, pDst, len); }
GexStatus gexsZero_8u(Gex8u* pDst, int len) { return set_line(Gex8u{0}, pDst, len); }
GexStatus gexsZero_16s(Gex16s* pDst, int len) { return set_line(Gex16s{0}, pDst, len); }
GexStatus gexsZero_32s(Gex32s* pDst, int len) { return set_line(Gex32s{0}, pDst, len); }
GexStatus gexsZero_32f(Gex32f* pDst, int len) { return set_line(Gex32f{0.0f}, pDst, len); }

}  // namespace gex

// ---- exports ------------------------------------------------------------------------

// The forms every depth shares. C1R is given per depth (its streaming rule
// differs); C4R likewise for the 32-bit depths.
#define GEX_SET_COMMON(D, T)                                                                            \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C3R, (const T value[3], T* pDst, int dstStep, GexiSize roiSize)) { \
        return set_cn<T, 3, 3>(value, pDst, dstStep, roiSize);                                           \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_AC4R, (const T value[3], T* pDst, int dstStep, GexiSize roiSize)) { \
        return set_cn<T, 4, 3>(value, pDst, dstStep, roiSize);                                           \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C3CR, (T value, T* pDst, int dstStep, GexiSize roiSize)) {       \
        return set_channel<T, 3>(value, pDst, dstStep, roiSize);                                         \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C4CR, (T value, T* pDst, int dstStep, GexiSize roiSize)) {       \
        return set_channel<T, 4>(value, pDst, dstStep, roiSize);                                         \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C1MR,                                                            \
               (T value, T* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep)) {    \
        return set_c1_masked(value, pDst, dstStep, roiSize, pMask, maskStep);                            \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C3MR,                                                            \
               (const T value[3], T* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep)) { \
        return set_cn_masked<T, 3, 3>(value, pDst, dstStep, roiSize, pMask, maskStep);                   \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_C4MR,                                                            \
               (const T value[4], T* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep)) { \
        return set_cn_masked<T, 4, 4>(value, pDst, dstStep, roiSize, pMask, maskStep);                   \
    }                                                                                                    \
    GEX_EXPORT(GexStatus, gexiSet_##D##_AC4MR,                                                           \
               (const T value[3], T* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep)) { \
        return set_cn_masked<T, 4, 3>(value, pDst, dstStep, roiSize, pMask, maskStep);                   \
    }

GEX_SET_COMMON(8u, Gex8u)
GEX_SET_COMMON(16u, Gex16u)
GEX_SET_COMMON(16s, Gex16s)
GEX_SET_COMMON(32s, Gex32s)
GEX_SET_COMMON(32f, Gex32f)

// One channel: 8u by the image rule, wider depths by the row rule.
GEX_EXPORT(GexStatus, gexiSet_8u_C1R, (Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize)) {
    return set_8u_c1r_with(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
GEX_EXPORT(GexStatus, gexiSet_16u_C1R, (Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize)) {
    return set_c1_rows(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
GEX_EXPORT(GexStatus, gexiSet_16s_C1R, (Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize)) {
    return set_c1_rows(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
GEX_EXPORT(GexStatus, gexiSet_32s_C1R, (Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize)) {
    return set_c1_rows(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
GEX_EXPORT(GexStatus, gexiSet_32f_C1R, (Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return set_c1_rows(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}

// Four channels: the 32-bit depths by the C4 image rule, the others cached.
GEX_EXPORT(GexStatus, gexiSet_8u_C4R, (const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize)) {
    return set_cn<Gex8u, 4, 4>(value, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiSet_16u_C4R, (const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize)) {
    return set_cn<Gex16u, 4, 4>(value, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiSet_16s_C4R, (const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize)) {
    return set_cn<Gex16s, 4, 4>(value, pDst, dstStep, roiSize);
}
GEX_EXPORT(GexStatus, gexiSet_32s_C4R, (const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize)) {
    return set_c4_image(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
GEX_EXPORT(GexStatus, gexiSet_32f_C4R, (const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize)) {
    return set_c4_image(value, pDst, dstStep, roiSize, &gexGetMaxCacheSizeB);
}
