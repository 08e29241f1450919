// Two-dimensional transforms on the 1-D engine, shared by the FFT (power-of-two
// sizes) and DFT (any size) families.
//
// Real forward: every row to its 1-D Pack, then column 0 (and column W-1 for
// even W) as real columns, and the interior column pairs as complex columns.
// Eight neighbouring complex columns (64 bytes a row) run side by side when
// the column plan allows it (radix-4 and prime-factor plans): the batched
// transform reads them from the rows and writes them back, the work buffer
// holding the passes between. Otherwise, and for the columns left over,
// columns are gathered into the work buffer in groups of 8 (both sizes above
// 450: through a transposing copy), then 4, then single ones. Either way
// every column gets the bits of its one-column transform.
// Inverse: the same steps in reverse, columns read from the source and
// written to the destination, then every row in place. Multi-channel images
// run the same per channel; AC4 never reads or writes the fourth channel.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "frame/checks.hpp"
#include "transform/fft_engine.hpp"
#include "transform/fft_kernels.hpp"

// GCC 12 takes the undefined start vector inside its own shuffle intrinsics
// for an uninitialised variable; the warning is about the compiler's headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex {

enum : std::int32_t { kIdFft2C = 25, kIdFft2R = 26, kIdDft2C = 27, kIdDft2R = 28 };

struct Spec2D {
    std::int32_t id;
    std::int32_t x;  // orderX or width
    std::int32_t y;  // orderY or height
    std::int32_t hint;
    std::int32_t bufferSize;
    std::int32_t width, height;
    std::int32_t reserved;
    void* pColSpecC;
    void* pRowSpec;
    void* pColSpecR;
};
static_assert(sizeof(Spec2D) <= 64, "the 2-D record header fits 64 bytes");

namespace t2d {

constexpr int kGroupThreshold = 450;

template <class T>
inline T* row(T* base, std::int64_t step, std::int64_t y) {
    using B = std::conditional_t<std::is_const_v<T>, const std::uint8_t, std::uint8_t>;
    return reinterpret_cast<T*>(reinterpret_cast<B*>(base) + step * y);
}

// The engines the 2-D walk runs on.
struct FftEngine {
    using Record = FftSpec;
    static void fwdR(const Gex32f* s, Gex32f* d, const void* sp, Gex8u* b) {
        fft::fft_run_r_fwd(s, d, static_cast<const FftSpec*>(sp), b, true);
    }
    static void invR(const Gex32f* s, Gex32f* d, const void* sp, Gex8u* b) {
        fft::fft_run_r_inv(s, d, static_cast<const FftSpec*>(sp), b, true);
    }
    static void runC(const Gex32fc* s, Gex32fc* d, const void* sp, Gex8u* b, bool inv) {
        fft::fft_run_c(s, d, static_cast<const FftSpec*>(sp), b, inv);
    }
    static bool batch(const void* sp) { return fft::fft_batch_ok(static_cast<const FftSpec*>(sp)); }
    static void runBatch(fftk::SPtr s, fftk::SPtr d, const void* sp, Gex8u* b, bool inv) {
        fft::fft_run_batch(s, d, static_cast<const FftSpec*>(sp), b, inv);
    }
};
struct DftEngine {
    using Record = DftSpec;
    static void fwdR(const Gex32f* s, Gex32f* d, const void* sp, Gex8u* b) {
        fft::dft_run_r_fwd(s, d, static_cast<const DftSpec*>(sp), b);
    }
    static void invR(const Gex32f* s, Gex32f* d, const void* sp, Gex8u* b) {
        fft::dft_run_r_inv(s, d, static_cast<const DftSpec*>(sp), b);
    }
    static void runC(const Gex32fc* s, Gex32fc* d, const void* sp, Gex8u* b, bool inv) {
        fft::dft_run_c(s, d, static_cast<const DftSpec*>(sp), b, inv);
    }
    static bool batch(const void* sp) { return fft::dft_batch_ok(static_cast<const DftSpec*>(sp)); }
    static void runBatch(fftk::SPtr s, fftk::SPtr d, const void* sp, Gex8u* b, bool inv) {
        fft::dft_run_batch(s, d, static_cast<const DftSpec*>(sp), b, inv);
    }
};

// 8 complex columns of 8 rows: a transposition of 8 x 8 64-bit elements.
inline void transpose8x8(const double* src, std::int64_t sstride, double* dst, std::int64_t dstride) {
    __m512d r[8], t[8];
    for (int i = 0; i < 8; ++i) r[i] = _mm512_loadu_pd(src + i * sstride);
    fftk::transpose8x8(r, t);  // t[k] now holds column k, rows 0..7
    for (int k = 0; k < 8; ++k) _mm512_storeu_pd(dst + k * dstride, t[k]);
}

// Complex column c of a real-form channel: floats (1 + 2c) C + ch and (2 + 2c) C + ch.
template <int C>
struct RealCols {
    static std::int64_t re(std::int64_t c, int ch) { return (1 + 2 * c) * C + ch; }
    static std::int64_t im(std::int64_t c, int ch) { return (2 + 2 * c) * C + ch; }
};

// Runs G complex columns c0..c0+G-1 through the complex column record:
// gather from (src, sstep), transform, scatter to (dst, dstep). `base` is the
// float offset of the first column's real part in a row, `cstride` floats
// between columns, `ri` floats from real to imaginary part.
template <class E>
void column_group(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, int H, std::int64_t base,
                  std::int64_t cstride, std::int64_t ri, int G, const void* colC, Gex8u* buf, bool inv, bool wide) {
    Gex32fc* g = reinterpret_cast<Gex32fc*>(fft::align64(buf));
    Gex8u* rest = reinterpret_cast<Gex8u*>(g + fft::align64up(std::int64_t{G} * H * 8) / 8);
    const bool fast8 = wide && G == 8 && cstride == 2 && ri == 1;
    int y = 0;
    // Rows a power-of-two step apart defeat the hardware prefetcher: fetch
    // the rows of the transposition two blocks ahead by hand.
    constexpr int kAhead = 16;
    if (fast8)
        for (; y + 8 <= H; y += 8) {
            if (y + kAhead + 8 <= H)
                for (int i = 0; i < 8; ++i) _mm_prefetch(reinterpret_cast<const char*>(row(src, sstep, y + kAhead + i) + base), _MM_HINT_T0);
            transpose8x8(reinterpret_cast<const double*>(row(src, sstep, y) + base), sstep / 8,
                         reinterpret_cast<double*>(g + y), H);
        }
    for (; y < H; ++y) {
        const Gex32f* r = row(src, sstep, y) + base;
        for (int k = 0; k < G; ++k) g[std::int64_t{k} * H + y] = {r[k * cstride], r[k * cstride + ri]};
    }
    for (int k = 0; k < G; ++k) E::runC(g + std::int64_t{k} * H, g + std::int64_t{k} * H, colC, rest, inv);
    y = 0;
    if (fast8)
        for (; y + 8 <= H; y += 8) {
            if (y + kAhead + 8 <= H)
                for (int i = 0; i < 8; ++i) _mm_prefetch(reinterpret_cast<const char*>(row(dst, dstep, y + kAhead + i) + base), _MM_HINT_T0);
            alignas(64) double tmp[64];
            for (int k = 0; k < 8; ++k) std::memcpy(tmp + k * 8, g + std::int64_t{k} * H + y, 64);
            // rows of tmp are columns; transpose back into 8 image rows
            transpose8x8(tmp, 8, reinterpret_cast<double*>(row(dst, dstep, y) + base), dstep / 8);
        }
    for (; y < H; ++y) {
        Gex32f* r = row(dst, dstep, y) + base;
        for (int k = 0; k < G; ++k) {
            const Gex32fc v = g[std::int64_t{k} * H + y];
            r[k * cstride] = v.re;
            r[k * cstride + ri] = v.im;
        }
    }
}

// All complex columns [0, n) at (base + c * cstride), grouped 8 (when wide), 4, 1.
template <class E>
void complex_columns(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, int H, std::int64_t n,
                     std::int64_t base, std::int64_t cstride, std::int64_t ri, const void* colC, Gex8u* buf, bool inv,
                     bool wide) {
    std::int64_t c = 0;
    // Eight neighbouring complex columns are 64 contiguous bytes a row: when
    // the column plan runs batched, the eight transforms go side by side
    // straight from the rows (its first pass reads them, its last pass writes
    // them back) with the work buffer holding the passes between.
    if (cstride == 2 && ri == 1 && E::batch(colC)) {
        for (; c + 8 <= n; c += 8) {
            const fftk::SPtr S = {reinterpret_cast<Gex8u*>(const_cast<Gex32f*>(src) + base + c * 2), sstep};
            const fftk::SPtr D = {reinterpret_cast<Gex8u*>(dst + base + c * 2), dstep};
            E::runBatch(S, D, colC, buf, inv);
        }
    }
    const bool fast = wide && cstride == 2 && ri == 1 && (sstep % 8 == 0) && (dstep % 8 == 0);
    if (wide)
        for (; c + 8 <= n; c += 8)
            column_group<E>(src, sstep, dst, dstep, H, base + c * cstride, cstride, ri, 8, colC, buf, inv, fast);
    for (; c + 4 <= n; c += 4)
        column_group<E>(src, sstep, dst, dstep, H, base + c * cstride, cstride, ri, 4, colC, buf, inv, false);
    for (; c < n; ++c)
        column_group<E>(src, sstep, dst, dstep, H, base + c * cstride, cstride, ri, 1, colC, buf, inv, false);
}

// One real column at float offset `off`: gather, real transform, scatter.
template <class E>
void real_column(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, int H, std::int64_t off,
                 const void* colR, Gex8u* buf, bool inv) {
    Gex32f* g = reinterpret_cast<Gex32f*>(fft::align64(buf));
    Gex8u* rest = reinterpret_cast<Gex8u*>(g) + fft::align64up(std::int64_t{4} * H);
    for (int y = 0; y < H; ++y) g[y] = row(src, sstep, y)[off];
    if (inv) E::invR(g, g, colR, rest);
    else E::fwdR(g, g, colR, rest);
    for (int y = 0; y < H; ++y) row(dst, dstep, y)[off] = g[y];
}

// Rows of a real image: channel by channel through the buffer when C > 1.
template <class E, int C, int NCH>
void real_rows(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, int W, int H,
               const void* rowS, Gex8u* buf, bool inv) {
    if constexpr (C == 1) {
        for (int y = 0; y < H; ++y) {
            if (inv) E::invR(row(src, sstep, y), row(dst, dstep, y), rowS, buf);
            else E::fwdR(row(src, sstep, y), row(dst, dstep, y), rowS, buf);
        }
    } else {
        Gex32f* planes = reinterpret_cast<Gex32f*>(fft::align64(buf));
        Gex8u* rest = reinterpret_cast<Gex8u*>(planes) + fft::align64up(std::int64_t{16} * W);
        for (int y = 0; y < H; ++y) {
            const Gex32f* s = row(src, sstep, y);
            Gex32f* d = row(dst, dstep, y);
            for (int ch = 0; ch < NCH; ++ch) {
                Gex32f* p = planes + std::int64_t{ch} * W;
                for (int x = 0; x < W; ++x) p[x] = s[std::int64_t{x} * C + ch];
                if (inv) E::invR(p, p, rowS, rest);
                else E::fwdR(p, p, rowS, rest);
            }
            for (int ch = 0; ch < NCH; ++ch) {
                const Gex32f* p = planes + std::int64_t{ch} * W;
                for (int x = 0; x < W; ++x) d[std::int64_t{x} * C + ch] = p[x];
            }
        }
    }
}

// The columns of a real-form transform, per channel.
template <class E, int C, int NCH>
void real_columns(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, int W, int H,
                  const Spec2D* s, Gex8u* buf, bool inv) {
    const bool wide = W > kGroupThreshold && H > kGroupThreshold;
    const std::int64_t nC = (W - 1) / 2;
    for (int ch = 0; ch < NCH; ++ch) {
        real_column<E>(src, sstep, dst, dstep, H, ch, s->pColSpecR, buf, inv);
        if (W % 2 == 0) real_column<E>(src, sstep, dst, dstep, H, std::int64_t{W - 1} * C + ch, s->pColSpecR, buf, inv);
        complex_columns<E>(src, sstep, dst, dstep, H, nC, C + ch, 2 * C, C, s->pColSpecC, buf, inv, wide);
    }
}

// Below 2 MB an image and its result stay together in a second-level cache,
// where whole columns already run from the cache and the blocked order only
// adds its copies and scattered row reads.
constexpr std::int64_t kSplitMinPixels = std::int64_t{1} << 19;

// Single-channel forward, source and destination apart, from 2 MB, heights
// the column transform splits (fft_split_block): the first column passes
// only combine the rows of one block of B, so each block's rows are
// transformed and written in the order those passes read them, and the
// passes run (through the buffer, back into the same rows) while the rows
// are still in cache.
// The work buffer decides too: short columns split only when the rows are
// wide enough to size it for a block. The columns outside the eight-column
// groups (the real ones and the last few complex ones) are copied to the
// buffer at the same time. Then each offset's rows finish in place, which
// leaves the groups in natural row order, and take their other columns from
// the buffer. Every value comes out with the bits of rows first, then whole
// columns.
inline bool split_apart(const Gex32f* src, std::int64_t sstep, const Gex32f* dst, std::int64_t dstep, int W, int H) {
    auto span = [&](const Gex32f* p, std::int64_t step) {
        const auto a = reinterpret_cast<std::uintptr_t>(p);
        const std::int64_t last = step * (H - 1);
        return std::pair<std::uintptr_t, std::uintptr_t>{a + std::min<std::int64_t>(last, 0),
                                                         a + std::max<std::int64_t>(last, 0) + 4 * std::int64_t{W}};
    };
    const auto s = span(src, sstep), d = span(dst, dstep);
    return s.second <= d.first || d.second <= s.first;
}

template <class E>
bool split_forward(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, const Spec2D* s,
                   Gex8u* buf) {
    if constexpr (!std::is_same_v<E, FftEngine>) {
        return false;
    } else {
        const int W = s->width, H = s->height;
        const auto* colC = static_cast<const FftSpec*>(s->pColSpecC);
        const auto* colR = static_cast<const FftSpec*>(s->pColSpecR);
        const auto* rowS = static_cast<const FftSpec*>(s->pRowSpec);
        const std::int64_t nC = (W - 1) / 2, nG = nC / 8, x0 = 1 + 16 * nG, nx = (W - 1 - x0) / 2;
        // the other columns take 4 (2 + 2 nx) H bytes of the buffer, the row,
        // column and block work the rest
        const std::int64_t tailBytes = fft::align64up(std::int64_t{4} * H * (2 + 2 * nx));
        const std::int64_t room = std::int64_t{s->bufferSize} - 64 - tailBytes;
        const std::int64_t B = fft::fft_split_block(colC, room);
        if (B == 0 || nG == 0 || W % 2 != 0 || std::int64_t{W} * H < kSplitMinPixels ||
            std::max({std::int64_t{rowS->workSize}, std::int64_t{colR->workSize}, std::int64_t{colC->workSize}}) > room ||
            !split_apart(src, sstep, dst, dstep, W, H))
            return false;
        Gex32f* T0 = reinterpret_cast<Gex32f*>(fft::align64(buf));
        Gex32f* T1 = T0 + H;
        Gex32fc* Tc = reinterpret_cast<Gex32fc*>(T1 + H);
        Gex8u* work = reinterpret_cast<Gex8u*>(T0) + tailBytes;
        auto group = [&](std::int64_t y, std::int64_t g) {
            return fftk::SPtr{reinterpret_cast<Gex8u*>(row(dst, dstep, y) + 1 + 16 * g), dstep};
        };
        for (std::int64_t b = 0; b < H; b += B) {
            for (std::int64_t i = b; i < b + B; ++i) {
                const std::int64_t y = fft::fft_split_input(colC, i);
                Gex32f* d = row(dst, dstep, i);
                E::fwdR(row(src, sstep, y), d, rowS, work);
                T0[y] = d[0];
                T1[y] = d[W - 1];
                for (std::int64_t k = 0; k < nx; ++k) Tc[k * H + y] = {d[x0 + 2 * k], d[x0 + 2 * k + 1]};
            }
            for (std::int64_t g = 0; g < nG; ++g) fft::fft_split_head(group(b, g), colC, B, work);
        }
        E::fwdR(T0, T0, colR, work);
        E::fwdR(T1, T1, colR, work);
        for (std::int64_t k = 0; k < nx; ++k) E::runC(Tc + k * H, Tc + k * H, colC, work, false);
        for (std::int64_t j = 0; j < B; ++j) {
            fft::fft_split_tail(group(0, 0), nG, colC, B, j, work);
            for (std::int64_t y = j; y < H; y += B) {
                Gex32f* d = row(dst, dstep, y);
                d[0] = T0[y];
                d[W - 1] = T1[y];
                for (std::int64_t k = 0; k < nx; ++k) d[x0 + 2 * k] = Tc[k * H + y].re, d[x0 + 2 * k + 1] = Tc[k * H + y].im;
            }
        }
        return true;
    }
}

template <class E, int C, int NCH>
void real_forward(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, const Spec2D* s,
                  Gex8u* buf) {
    const int W = s->width, H = s->height;
    if (H == 1) {
        real_rows<E, C, NCH>(src, sstep, dst, dstep, W, 1, s->pRowSpec, buf, false);
        return;
    }
    if (W == 1) {
        for (int ch = 0; ch < NCH; ++ch) {
            if (C == 1 && sstep == 4 && dstep == 4) E::fwdR(src, dst, s->pColSpecR, buf);
            else real_column<E>(src, sstep, dst, dstep, H, ch, s->pColSpecR, buf, false);
        }
        return;
    }
    if constexpr (C == 1)
        if (split_forward<E>(src, sstep, dst, dstep, s, buf)) return;
    real_rows<E, C, NCH>(src, sstep, dst, dstep, W, H, s->pRowSpec, buf, false);
    real_columns<E, C, NCH>(dst, dstep, dst, dstep, W, H, s, buf, false);
}

template <class E, int C, int NCH>
void real_inverse(const Gex32f* src, std::int64_t sstep, Gex32f* dst, std::int64_t dstep, const Spec2D* s,
                  Gex8u* buf) {
    const int W = s->width, H = s->height;
    if (H == 1) {
        real_rows<E, C, NCH>(src, sstep, dst, dstep, W, 1, s->pRowSpec, buf, true);
        return;
    }
    if (W == 1) {
        for (int ch = 0; ch < NCH; ++ch) {
            if (C == 1 && sstep == 4 && dstep == 4) E::invR(src, dst, s->pColSpecR, buf);
            else real_column<E>(src, sstep, dst, dstep, H, ch, s->pColSpecR, buf, true);
        }
        return;
    }
    real_columns<E, C, NCH>(src, sstep, dst, dstep, W, H, s, buf, true);
    real_rows<E, C, NCH>(dst, dstep, dst, dstep, W, H, s->pRowSpec, buf, true);
}

template <class E>
void complex_2d(const Gex32fc* src, std::int64_t sstep, Gex32fc* dst, std::int64_t dstep, const Spec2D* s, Gex8u* buf,
                bool inv) {
    const int W = s->width, H = s->height;
    const bool wide = W > kGroupThreshold && H > kGroupThreshold;
    auto rows = [&](const Gex32fc* from, std::int64_t fstep) {
        for (int y = 0; y < H; ++y) E::runC(row(from, fstep, y), row(dst, dstep, y), s->pRowSpec, buf, inv);
    };
    auto cols = [&](const Gex32fc* from, std::int64_t fstep) {
        complex_columns<E>(reinterpret_cast<const Gex32f*>(from), fstep, reinterpret_cast<Gex32f*>(dst), dstep, H, W, 0,
                           2, 1, s->pColSpecC, buf, inv, wide);
    };
    if (H == 1) {
        rows(src, sstep);
        return;
    }
    if (W == 1) {
        if (sstep == 8 && dstep == 8) E::runC(src, dst, s->pColSpecC, buf, inv);
        else cols(src, sstep);
        return;
    }
    if (!inv) {
        rows(src, sstep);
        cols(dst, dstep);
    } else {
        cols(src, sstep);
        rows(dst, dstep);
    }
}

// Checks of every transform, in order.
inline GexStatus run_checks(const void* pSpec, std::int32_t id, const void* pSrc, int srcStep, const void* pDst,
                            int dstStep, const Gex8u* pBuffer) {
    const Spec2D* s = static_cast<const Spec2D*>(fft::align64(pSpec));
    if (s == nullptr) return gexStsNullPtr;
    if (s->id != id) return gexStsContextMatch;
    GEX_CHECK(check_null(pSrc, pDst));
    GEX_CHECK(check_steps(srcStep, dstStep));
    if (pBuffer == nullptr && s->bufferSize != 0) return gexStsNullPtr;
    return gexStsOk;
}

// ---- sizes and records ----
struct SubSizes {
    int record = 0, init = 0, buf = 0;
};

// The 1-D records of a 2-D record: the row record, a real column record
// (real forms, when the axes differ) and a complex column record (real
// forms; complex forms when the axes differ). get(real, axis, sizes) asks the
// 1-D query; axis 0 is the rows.
template <class F>
GexStatus sizes_2d(bool real, bool same, std::int64_t W, std::int64_t H, std::int64_t headExtra, F&& get, int* pSpecSize,
                   int* pInitSize, int* pBufferSize) {
    SubSizes row, colR, colC;
    GEX_CHECK(get(real, 0, row));
    std::int64_t recordBytes = fft::align64up(row.record), init = fft::align64up(row.init);
    if (real) {
        if (!same) {
            GEX_CHECK(get(true, 1, colR));
            recordBytes += fft::align64up(colR.record);
            init += fft::align64up(colR.init);
        } else {
            colR = row;
        }
        GEX_CHECK(get(false, 1, colC));
        recordBytes += fft::align64up(colC.record);
        init += fft::align64up(colC.init);
    } else if (!same) {
        GEX_CHECK(get(false, 1, colC));
        recordBytes += fft::align64up(colC.record);
        init += fft::align64up(colC.init);
    } else {
        colC = row;
    }
    recordBytes += headExtra;
    if (init > 0) init += 64;
    std::int64_t buf;
    if (real)
        buf = fft::align64up(std::max({row.buf + 16 * W, colC.buf + 64 * H, colR.buf + 16 * H})) + 64;
    else
        buf = fft::align64up(std::max(colC.buf + 64 * H, std::int64_t{row.buf})) + 64;
    if (recordBytes > 2147483647 || init > 2147483647 || buf > 2147483647) return gexStsExceededSize;
    *pSpecSize = static_cast<int>(recordBytes);
    *pInitSize = static_cast<int>(init);
    *pBufferSize = static_cast<int>(buf);
    return gexStsOk;
}

// Builds the 1-D records one after another behind the header, each on a
// 64-byte boundary: the sizes are validated first (flag, lengths, the Init
// buffer), so no record is started that cannot be finished.
// sizeOf(real, axis, sizes) is the 1-D query, build(real, axis, where,
// initBuffer, record) the 1-D Init.
template <class S, class B>
GexStatus init_2d(Gex8u* pSpec, std::int32_t id, int x, int y, std::int64_t W, std::int64_t H,
                  GexHintAlgorithm hint, bool real, bool same, Gex8u* pInit, S&& sizeOf, B&& build) {
    int specSize, initSize, bufSize;
    GEX_CHECK(sizes_2d(real, same, W, H, 0, sizeOf, &specSize, &initSize, &bufSize));
    if (initSize > 0 && pInit == nullptr) return gexStsNullPtr;
    Gex8u* base = fft::align64(pSpec);
    Spec2D* h = reinterpret_cast<Spec2D*>(base);
    Gex8u* init = pInit ? fft::align64(pInit) : nullptr;
    std::int64_t off = 64;
    void* recs[3] = {nullptr, nullptr, nullptr};  // row, colR, colC
    auto add = [&](bool r, int axis, int slot) -> GexStatus {
        SubSizes ss;
        GEX_CHECK(sizeOf(r, axis, ss));
        GEX_CHECK(build(r, axis, base + off, init, recs[slot]));
        off += fft::align64up(ss.record);
        return gexStsOk;
    };
    GEX_CHECK(add(real, 0, 0));
    if (real) {
        if (!same) GEX_CHECK(add(true, 1, 1));
        else recs[1] = recs[0];
        GEX_CHECK(add(false, 1, 2));
    } else if (!same) {
        GEX_CHECK(add(false, 1, 2));
    } else {
        recs[2] = recs[0];
    }
    h->x = x;
    h->y = y;
    h->width = static_cast<std::int32_t>(W);
    h->height = static_cast<std::int32_t>(H);
    h->hint = hint;
    h->bufferSize = bufSize;
    h->pRowSpec = recs[0];
    h->pColSpecR = real ? recs[1] : nullptr;
    h->pColSpecC = recs[2];
    h->reserved = 0;
    h->id = id;  // last: the record is complete
    return gexStsOk;
}

template <class T>
inline const Spec2D* spec_of(const T* p) {
    return reinterpret_cast<const Spec2D*>(fft::align64(p));
}

}  // namespace t2d

}  // namespace gex

// The run exports of a 2-D family: F is FFT or DFT, E its engine, RT its public
// record type, IDR and IDC the identifiers of its real and complex records. Real forms in C1, C3, C4,
// AC4 (three channels transformed, the fourth untouched) and their in-place
// twins; complex forms forward and inverse.
#define GEX_FOURIER2_REAL(F, E, RT, IDR, name, walk, CH, C, NCH)                                                      \
    GEX_EXPORT(GexStatus, gexi##F##name##_32f_##CH##R,                                                            \
               (const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, const RT* pSpec,           \
                Gex8u* pBuffer)) {                                                                                \
        GEX_CHECK(t2d::run_checks(pSpec, IDR, pSrc, srcStep, pDst, dstStep, pBuffer));                            \
        t2d::walk<t2d::E, C, NCH>(pSrc, srcStep, pDst, dstStep, t2d::spec_of(pSpec), pBuffer);                    \
        return gexStsOk;                                                                                          \
    }                                                                                                             \
    GEX_EXPORT(GexStatus, gexi##F##name##_32f_##CH##IR,                                                           \
               (Gex32f * pSrcDst, int srcDstStep, const RT* pSpec, Gex8u* pBuffer)) {                  \
        return gex::gexi##F##name##_32f_##CH##R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec, pBuffer);        \
    }
#define GEX_FOURIER2_REAL_ALL(F, E, RT, IDR, name, walk)       \
    GEX_FOURIER2_REAL(F, E, RT, IDR, name, walk, C1, 1, 1)     \
    GEX_FOURIER2_REAL(F, E, RT, IDR, name, walk, C3, 3, 3)     \
    GEX_FOURIER2_REAL(F, E, RT, IDR, name, walk, C4, 4, 4)     \
    GEX_FOURIER2_REAL(F, E, RT, IDR, name, walk, AC4, 4, 3)
#define GEX_FOURIER2_CPLX(F, E, RT, IDC, dir, INV)                                                                    \
    GEX_EXPORT(GexStatus, gexi##F##dir##_CToC_32fc_C1R,                                                           \
               (const Gex32fc* pSrc, int srcStep, Gex32fc* pDst, int dstStep, const RT* pSpec,         \
                Gex8u* pBuffer)) {                                                                                \
        GEX_CHECK(t2d::run_checks(pSpec, IDC, pSrc, srcStep, pDst, dstStep, pBuffer));                            \
        t2d::complex_2d<t2d::E>(pSrc, srcStep, pDst, dstStep, t2d::spec_of(pSpec), pBuffer, INV);                 \
        return gexStsOk;                                                                                          \
    }                                                                                                             \
    GEX_EXPORT(GexStatus, gexi##F##dir##_CToC_32fc_C1IR,                                                          \
               (Gex32fc * pSrcDst, int srcDstStep, const RT* pSpec, Gex8u* pBuffer)) {                 \
        return gex::gexi##F##dir##_CToC_32fc_C1R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec, pBuffer);       \
    }
#define GEX_FOURIER2_RUNS(F, E, RT, IDR, IDC)                          \
    GEX_FOURIER2_REAL_ALL(F, E, RT, IDR, Fwd_RToPack, real_forward)    \
    GEX_FOURIER2_REAL_ALL(F, E, RT, IDR, Inv_PackToR, real_inverse)    \
    GEX_FOURIER2_CPLX(F, E, RT, IDC, Fwd, false)                       \
    GEX_FOURIER2_CPLX(F, E, RT, IDC, Inv, true)

#pragma GCC diagnostic pop
