// Any-length Fourier transforms (gexsDFT*).
//
// Complex plans, tried in this order:
//   small     lengths up to 16: table-free kernels (the FFT kernels for
//             powers of two, a direct kernel with built-in constants else);
//   FFT       powers of two: an FFT record inside the same memory;
//   prime-factor  the length splits into factors with a rest below 51 (below
//             151 for multiples of 4): self-sorting radix passes, one per
//             factor, kernels for 2, 4, 8 and any other radix;
//   direct    other lengths below 51: the O(N^2) sum over pairs x_j +- x_(N-j);
//   conv      the rest below 2^26: the chirp transform, a convolution of
//             length L done by an inner record of length L.
// Real lengths: even ones run the complex plan of N/2 on the sample pairs and
// recombine; powers of two delegate to a real FFT record; odd ones run the
// complex plan of N on the samples and keep the non-redundant half.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

#include "frame/checks.hpp"
#include "transform/fft_engine.hpp"
#include "transform/fft_kernels.hpp"

namespace gex {

using namespace fftk;

namespace {

using fft::Arena;

constexpr int kMaxLength = 134217727;  // 0x7FFFFFF
constexpr int kMaxConv = 67108864;     // 0x4000000
constexpr int kMaxRadix = 160;

bool is_pow2(std::int64_t n) { return n > 0 && (n & (n - 1)) == 0; }
int log2i(std::int64_t n) {
    int k = 0;
    while ((std::int64_t{1} << k) < n) ++k;
    return k;
}

// (cos, sin)(2 pi t / n) of the small lengths, t < n <= 16.
struct SmallCs {
    Gex32fc cs[17][16];
};
constexpr SmallCs make_small_cs() {
    SmallCs t{};
    for (int n = 1; n <= 16; ++n)
        for (int j = 0; j < n; ++j) {
            const CS64 a = unit_angle(j, n);
            t.cs[n][j] = {static_cast<float>(a.c), static_cast<float>(a.s)};
        }
    return t;
}
constexpr SmallCs kSmallCs = make_small_cs();

// ---- planning ----
struct Factors {
    int f[kMaxFactors + 2];
    int count = 0;
    bool pf = false;
};

// Splits n: 4s first, a 2 in front (with a 4 moved behind), then odd trial
// divisors 3..49 while d * d <= rest; 2 and a following 3 merge into 6.
// A short list on the stack (planning allocates nothing).
struct Slots {
    int v[40];
    int n = 0;
    void push_back(int x) { v[n++] = x; }
    void push_front(int x) {
        for (int i = n; i > 0; --i) v[i] = v[i - 1];
        v[0] = x;
        ++n;
    }
    void erase_second() {
        for (int i = 1; i + 1 < n; ++i) v[i] = v[i + 1];
        --n;
    }
    bool empty() const { return n == 0; }
    std::size_t size() const { return static_cast<std::size_t>(n); }
    int& operator[](int i) { return v[i]; }
};

Factors factorise(int n) {
    Factors r;
    int rest = n;
    Slots slots;
    while (rest % 4 == 0) {
        slots.push_back(4);
        rest /= 4;
    }
    if (rest % 2 == 0) {
        rest /= 2;
        slots.push_front(2);
    }
    for (int d = 3; d * d <= rest && d <= 49; d += 2) {
        while (rest % d == 0) {
            if (d == 3 && !slots.empty() && slots[0] == 2 && (slots.size() < 2 || slots[1] != 4)) slots[0] = 6;
            else slots.push_back(d);
            rest /= d;
        }
    }
    const bool found = !slots.empty();
    if (rest > 1) {
        if (rest == 3 && !slots.empty() && slots[0] == 2 && (slots.size() < 2 || slots[1] != 4)) slots[0] = 6;
        else slots.push_back(rest);
    }
    r.pf = found && (rest < 51 || (n % 4 == 0 && rest < 151));
    if (r.pf) {
        if (slots.size() >= 2 && slots[1] == 4 && slots[0] != 6) {
            slots[0] *= 4;
            slots.erase_second();
        }
        const int f0 = slots[0];
        if (f0 == 2 || f0 == 4 || f0 == 6 || f0 == 8 || f0 == 16) std::swap(slots[0], slots[slots.n - 1]);
    }
    r.count = static_cast<int>(slots.size());
    for (int i = 0; i < r.count && i < kMaxFactors; ++i) r.f[i] = slots[i];
    if (r.count > kMaxFactors) r.pf = false;
    return r;
}

constexpr int kConvTable[] = {128,  144,  160,  192,  200,  256,  288,  320,  384,  400,  512,
                              576,  640,  768,  800,  1024, 1152, 1280, 1536, 1600, 2048, 2304,
                              2560, 3072, 3200, 4096, 4608, 5120, 6144, 6400, 8192};

int conv_length(int n) {
    const std::int64_t need = 2 * std::int64_t{n} - 1;
    if (need <= 8192) {
        for (int l : kConvTable)
            if (l >= need) return l;
    }
    std::int64_t l = 1;
    while (l < need) l <<= 1;
    return static_cast<int>(l);
}

// Which complex plan a length takes.
int choose_plan(int n) {
    if (n <= 16) return kDftSmall;
    if (is_pow2(n)) return kDftFFT;
    if (factorise(n).pf) return kDftPrimeFact;
    if (n < 51) return kDftDirect;
    return kDftConv;
}

struct Ctx {
    Arena a;
    std::int64_t initNeed = 0;  // scratch bytes Init uses
    Gex8u* init = nullptr;      // Init scratch (aligned), null when counting
    bool build() const { return a.base != nullptr; }
};

DftSpec* plan_complex(Ctx& cx, int n, int flag, GexHintAlgorithm hint);

std::int64_t complex_work(int n, GexHintAlgorithm hint);

void set_head(DftSpec* s, int n, int flag, GexHintAlgorithm hint, std::int64_t scaleN) {
    std::memset(s, 0, sizeof(DftSpec));
    s->length = n;
    s->hint = hint;
    fft::scale_of_flag(flag, scaleN, s->scaleFwd, s->scaleInv, s->normFactor);
}

void run_c(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, bool inv);

DftSpec* plan_complex(Ctx& cx, int n, int flag, GexHintAlgorithm hint) {
    DftSpec* s = reinterpret_cast<DftSpec*>(cx.a.take<Gex8u>(kDftHeader));
    const int plan = choose_plan(n);
    if (cx.build()) {
        set_head(s, n, flag, hint, n);
        s->plan = plan;
    }
    std::int64_t work = 0;
    switch (plan) {
        case kDftSmall: break;
        case kDftFFT: {
            const int order = log2i(n);
            Gex8u* p = cx.a.take<Gex8u>(fft::fft_spec_bytes(order, false));
            if (cx.build()) {
                s->useFFT = 1;
                s->pFftSpec = fft::fft_build(p, order, false, flag, hint);
            }
            work = fft::fft_work_bytes(order, false);
            break;
        }
        case kDftPrimeFact: {
            const Factors f = factorise(n);
            std::int64_t stride = 1, len = n;
            if (cx.build()) {
                s->primeFact = 1;
                s->nFactorsM1 = f.count - 1;
            }
            // The passes run from the last factor to the first, so the even
            // radix placed last goes first, where the stride is 1, and the
            // following passes find strides of 8 or more as soon as possible.
            for (int i = f.count - 1; i >= 0; --i) {
                const int r = f.f[i];
                const std::int64_t m = len / r;
                const bool expanded = stride < 8;
                const std::int64_t nTw = expanded ? (r - 1) * (n / r) : m * (r - 1);
                Gex32fc* tw = cx.a.take<Gex32fc>(nTw);
                Gex32fc* cs = cx.a.take<Gex32fc>(r);
                std::int32_t* idx = expanded ? cx.a.take<std::int32_t>(n / r) : nullptr;
                if (cx.build()) {
                    DftFactor& d = s->factors[i];
                    d.factor = r;
                    d.n = static_cast<std::int32_t>(len);
                    d.stride = static_cast<std::int32_t>(stride);
                    d.expanded = expanded;
                    for (int t = 0; t < r; ++t) {
                        const Gex32fc w = fft::twiddle64(t, r);
                        cs[t] = {w.re, -w.im};
                    }
                    if (expanded) {
                        const std::int64_t nr = n / r;
                        for (std::int64_t ii = 0; ii < nr; ++ii) {
                            const std::int64_t p = ii / stride;
                            idx[ii] = static_cast<std::int32_t>(r * stride * p + ii % stride);
                            for (int k = 1; k < r; ++k) tw[(k - 1) * nr + ii] = fft::twiddle64(p * k, len);
                        }
                    } else {
                        for (std::int64_t p = 0; p < m; ++p)
                            for (int k = 1; k < r; ++k) tw[p * (r - 1) + k - 1] = fft::twiddle64(p * k, len);
                    }
                    d.pTw = tw;
                    d.pCs = cs;
                    d.pIdx = idx;
                }
                stride *= r;
                len = m;
            }
            work = 16 * std::int64_t{n};
            break;
        }
        case kDftDirect: {
            Gex32fc* cs = cx.a.take<Gex32fc>(n);
            if (cx.build()) {
                for (int t = 0; t < n; ++t) {
                    const Gex32fc w = fft::twiddle64(t, n);
                    cs[t] = {w.re, -w.im};
                }
                s->pTwiddle = cs;
            }
            work = 8 * std::int64_t{n};
            break;
        }
        default: {
            const int L = conv_length(n);
            Gex32fc* chirp = cx.a.take<Gex32fc>(n);
            Gex32fc* spectrum = cx.a.take<Gex32fc>(L);
            DftSpec* inner = plan_complex(cx, L, 8, hint);
            const std::int64_t iw = complex_work(L, hint);
            if (cx.build()) {
                s->convLength = L;
                std::int64_t sq = 0;  // k^2 mod 2n, stepping by 2k + 1
                for (int k = 0; k < n; ++k) {
                    chirp[k] = fft::twiddle64(sq, 2 * std::int64_t{n});
                    sq += 2 * k + 1;
                    sq %= 2 * std::int64_t{n};
                }
                // spectrum of the conjugate chirp, wrapped for negative indices, divided by L
                Gex32fc* h = reinterpret_cast<Gex32fc*>(cx.init);
                Gex8u* ib = cx.init + fft::align64up(8 * std::int64_t{L});
                std::memset(h, 0, sizeof(Gex32fc) * L);
                for (int k = 0; k < n; ++k) {
                    h[k] = {chirp[k].re, -chirp[k].im};
                    if (k) h[L - k] = h[k];
                }
                run_c(h, spectrum, inner, ib, false);
                const float invL = 1.0f / static_cast<float>(L);
                for (int k = 0; k < L; ++k) spectrum[k] = {spectrum[k].re * invL, spectrum[k].im * invL};
                s->pChirp = chirp;
                s->pSpectrum = spectrum;
                s->pSub = inner;
            }
            cx.initNeed = std::max<std::int64_t>(cx.initNeed, fft::align64up(8 * std::int64_t{L}) + iw + 64);
            work = 16 * std::int64_t{L} + 128 + iw;
            break;
        }
    }
    if (cx.build()) {
        s->workSize = static_cast<std::int32_t>(work);
        s->id = kIdDftC;
    }
    return s;
}

// Work bytes of a complex plan without building it.
std::int64_t complex_work(int n, GexHintAlgorithm hint) {
    switch (choose_plan(n)) {
        case kDftSmall: return 0;
        case kDftFFT: return fft::fft_work_bytes(log2i(n), false);
        case kDftPrimeFact: return 16 * std::int64_t{n};
        case kDftDirect: return 8 * std::int64_t{n};
        default: {
            const int L = conv_length(n);
            return 16 * std::int64_t{L} + 128 + complex_work(L, hint);
        }
    }
}

std::int64_t complex_init_need(int n, GexHintAlgorithm hint) {
    if (choose_plan(n) != kDftConv) return 0;
    const int L = conv_length(n);
    return fft::align64up(8 * std::int64_t{L}) + complex_work(L, hint) + 64;
}

DftSpec* plan_real(Ctx& cx, int n, int flag, GexHintAlgorithm hint) {
    DftSpec* s = reinterpret_cast<DftSpec*>(cx.a.take<Gex8u>(kDftHeader));
    if (cx.build()) set_head(s, n, flag, hint, n);
    std::int64_t work = 0;
    if (is_pow2(n)) {
        const int order = log2i(n);
        Gex8u* p = cx.a.take<Gex8u>(fft::fft_spec_bytes(order, true));
        if (cx.build()) {
            s->useFFT = 1;
            s->plan = kDftFFT;
            s->pFftSpec = fft::fft_build(p, order, true, flag, hint);
        }
        work = fft::fft_work_bytes(order, true);
    } else if (n % 2 == 0) {
        const int m = n / 2;
        Gex32fc* rec = cx.a.take<Gex32fc>(m / 2 + 1);
        DftSpec* sub = plan_complex(cx, m, 8, hint);
        if (cx.build()) {
            for (int k = 0; k <= m / 2; ++k) rec[k] = fft::twiddle64(k, n);
            s->pRealRec = rec;
            s->pSub = sub;
            s->plan = sub->plan;
        }
        work = complex_work(m, hint);
        cx.initNeed = std::max(cx.initNeed, complex_init_need(m, hint));
    } else {
        DftSpec* sub = plan_complex(cx, n, 8, hint);
        if (cx.build()) {
            s->pSub = sub;
            s->plan = sub->plan;
        }
        work = 16 * std::int64_t{n} + 64 + complex_work(n, hint);
        cx.initNeed = std::max(cx.initNeed, complex_init_need(n, hint));
    }
    if (cx.build()) {
        s->workSize = static_cast<std::int32_t>(work);
        s->id = kIdDftR;
    }
    return s;
}

// ---- execution ----
inline C8 bcast1(const Gex32fc* p) {
    return {_mm512_castpd_ps(_mm512_set1_pd(*reinterpret_cast<const double*>(p)))};
}

// Butterfly of radix r on a[] into a[] (in place), any r.
// Butterfly of radix r on a[] (in place); R > 0 fixes the radix at compile
// time so the pass loops unroll and keep a[] in registers.
template <bool INV, int R, class V>
__attribute__((always_inline)) inline void butterfly(V* a, int r, const Gex32fc* cs, V* y, V* p, V* q) {
    if constexpr (R == 2) {
        const V t = a[0];
        a[0] = add(t, a[1]);
        a[1] = sub(t, a[1]);
    } else if constexpr (R == 4) {
        dft4<INV>(a[0], a[1], a[2], a[3]);
    } else if constexpr (R == 8) {
        dft8<INV>(a);
    } else if constexpr (R == 16) {
        dft16<INV>(a);
    } else {
        dft_any<INV, V, R>(a, y, r, cs, p, q);
        for (int k = 0; k < (R ? R : r); ++k) a[k] = y[k];
    }
}

// Runs f<R>() with the factor's radix as a constant where a kernel exists.
template <class F>
inline void by_radix(int r, F&& f) {
    switch (r) {
        case 2: f(std::integral_constant<int, 2>{}); return;
        case 3: f(std::integral_constant<int, 3>{}); return;
        case 4: f(std::integral_constant<int, 4>{}); return;
        case 5: f(std::integral_constant<int, 5>{}); return;
        case 7: f(std::integral_constant<int, 7>{}); return;
        case 8: f(std::integral_constant<int, 8>{}); return;
        case 16: f(std::integral_constant<int, 16>{}); return;
        default: f(std::integral_constant<int, 0>{}); return;
    }
}

// One self-sorting pass, element by element: the scalar twin (V = C1) and the
// batched form (V = CB, eight sequences side by side).
template <bool INV, class V, int R, class PI, class PO>
void stockham_elem_r(PI x, PO y, const DftFactor& f, std::int64_t N, float scl, bool doScale) {
    const int r = R ? R : f.factor;
    const std::int64_t s = f.stride, m = f.n / r, nr = N / r;
    const bool twid = m > 1;
    V a[kMaxRadix], yy[kMaxRadix], p[kMaxRadix / 2 + 1], q[kMaxRadix / 2 + 1];
    if (!f.expanded) {
        for (std::int64_t pp = 0; pp < m; ++pp) {
            const Gex32fc* tw = f.pTw + pp * (r - 1);
            for (std::int64_t qq = 0; qq < s; ++qq) {
                for (int j = 0; j < r; ++j) a[j] = ld<V>(x + (qq + s * (pp + j * m)));
                butterfly<INV, R>(a, r, f.pCs, yy, p, q);
                for (int k = 0; k < r; ++k) {
                    V v = a[k];
                    if (twid && k) v = twiddle<INV>(v, ldtw<V>(tw + k - 1));
                    if (doScale) v = scale(v, scl);
                    st(y + (qq + s * (r * pp + k)), v);
                }
            }
        }
    } else {
        for (std::int64_t i = 0; i < nr; ++i) {
            for (int j = 0; j < r; ++j) a[j] = ld<V>(x + (i + j * nr));
            butterfly<INV, R>(a, r, f.pCs, yy, p, q);
            for (int k = 0; k < r; ++k) {
                V v = a[k];
                if (twid && k) v = twiddle<INV>(v, ldtw<V>(f.pTw + (k - 1) * nr + i));
                if (doScale) v = scale(v, scl);
                st(y + (f.pIdx[i] + s * k), v);
            }
        }
    }
}

template <bool INV, class V, class PI, class PO>
void stockham_elem(PI x, PO y, const DftFactor& f, std::int64_t N, float scl, bool doScale) {
    by_radix(f.factor, [&](auto R) { stockham_elem_r<INV, V, decltype(R)::value>(x, y, f, N, scl, doScale); });
}

template <bool INV, bool SCALAR, int R>
void stockham_pass_r(const Gex32fc* x, Gex32fc* y, const DftFactor& f, std::int64_t N, float scl, bool doScale) {
    const int r = R ? R : f.factor;
    const std::int64_t s = f.stride, m = f.n / r, nr = N / r;
    const bool twid = m > 1;
    if constexpr (SCALAR) {
        stockham_elem_r<INV, C1, R>(x, y, f, N, scl, doScale);
    } else {
        C8 a[kMaxRadix], yy[kMaxRadix], p[kMaxRadix / 2 + 1], q[kMaxRadix / 2 + 1];
        if (!f.expanded) {
            for (std::int64_t pp = 0; pp < m; ++pp) {
                const Gex32fc* tw = f.pTw + pp * (r - 1);
                for (std::int64_t qq = 0; qq < s; qq += 8) {
                    const int cnt = static_cast<int>(std::min<std::int64_t>(8, s - qq));
                    for (int j = 0; j < r; ++j) a[j] = ld_n(x + qq + s * (pp + j * m), cnt);
                    butterfly<INV, R>(a, r, f.pCs, yy, p, q);
                    for (int k = 0; k < r; ++k) {
                        C8 v = a[k];
                        if (twid && k) v = twiddle<INV>(v, bcast1(tw + k - 1));
                        if (doScale) v = scale(v, scl);
                        st_n(y + qq + s * (r * pp + k), v, cnt);
                    }
                }
            }
        } else {
            for (std::int64_t i = 0; i < nr; i += 8) {
                const int cnt = static_cast<int>(std::min<std::int64_t>(8, nr - i));
                const __mmask8 lm = static_cast<__mmask8>((1u << cnt) - 1);
                for (int j = 0; j < r; ++j) a[j] = ld_n(x + i + j * nr, cnt);
                butterfly<INV, R>(a, r, f.pCs, yy, p, q);
                const __m256i base = _mm256_maskz_loadu_epi32(lm, f.pIdx + i);
                for (int k = 0; k < r; ++k) {
                    C8 v = a[k];
                    if (twid && k) v = twiddle<INV>(v, ld_n(f.pTw + (k - 1) * nr + i, cnt));
                    if (doScale) v = scale(v, scl);
                    const __m256i ix = _mm256_add_epi32(base, _mm256_set1_epi32(static_cast<int>(s * k)));
                    _mm512_mask_i32scatter_pd(reinterpret_cast<double*>(y), lm, ix, _mm512_castps_pd(v.v), 8);
                }
            }
        }
    }
}

template <bool INV, bool SCALAR>
void stockham_pass(const Gex32fc* x, Gex32fc* y, const DftFactor& f, std::int64_t N, float scl, bool doScale) {
    by_radix(f.factor, [&](auto R) { stockham_pass_r<INV, SCALAR, decltype(R)::value>(x, y, f, N, scl, doScale); });
}

template <bool INV>
void run_primefact(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, float scl, bool doScale) {
    const int P = s->nFactorsM1 + 1;
    const std::int64_t N = s->length;
    Gex32fc* A = reinterpret_cast<Gex32fc*>(fft::align64(buf));
    Gex32fc* B = A + N;
    // outputs of the passes: the last one is dst; going back they alternate
    // with the buffer, never landing on the source before it is consumed.
    const Gex32fc* in = src;
    for (int i = 0; i < P; ++i) {
        const int fromEnd = P - 1 - i;
        Gex32fc* out;
        if (fromEnd == 0) out = dst;
        else if (src != dst) out = (fromEnd & 1) ? A : dst;
        else out = (fromEnd & 1) ? A : B;
        const bool fin = fromEnd == 0;
        const DftFactor& fa = s->factors[P - 1 - i];
        if (s->scalarOnly) stockham_pass<INV, true>(in, out, fa, N, scl, doScale && fin);
        else stockham_pass<INV, false>(in, out, fa, N, scl, doScale && fin);
        in = out;
    }
}

template <bool INV>
void run_direct(const Gex32fc* src, Gex32fc* dst, int n, const Gex32fc* cs, Gex8u* buf, float scl, bool doScale) {
    C1 a[64] = {}, y[64], p[33], q[33];
    (void)buf;
    for (int i = 0; i < n; ++i) a[i] = ld<C1>(src + i);
    if (n == 1) {
        y[0] = a[0];
    } else {
        dft_any<INV>(a, y, n, cs, p, q);
    }
    for (int i = 0; i < n; ++i) st(dst + i, doScale ? scale(y[i], scl) : y[i]);
}

template <bool INV>
void run_conv(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, float scl, bool doScale) {
    const int n = s->length, L = s->convLength;
    Gex32fc* y = reinterpret_cast<Gex32fc*>(fft::align64(buf));
    Gex32fc* Y = y + L;
    Gex8u* ib = reinterpret_cast<Gex8u*>(Y + L);
    for (int k = 0; k < n; ++k) st(y + k, cmul(ld<C1>(src + k), ld<C1>(s->pChirp + k)));
    std::memset(y + n, 0, sizeof(Gex32fc) * (L - n));
    run_c(y, Y, s->pSub, ib, false);
    for (int k = 0; k < L; ++k) st(Y + k, cmul(ld<C1>(Y + k), ld<C1>(s->pSpectrum + k)));
    run_c(Y, y, s->pSub, ib, true);
    for (int k = 0; k < n; ++k) {
        C1 v = cmul(ld<C1>(y + k), ld<C1>(s->pChirp + k));
        st(dst + k, doScale ? scale(v, scl) : v);
    }
    if (INV) std::reverse(dst + 1, dst + n);
}

void run_c(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, bool inv) {
    const bool doScale = inv ? s->scaleInv != 0 : s->scaleFwd != 0;
    const float scl = s->normFactor;
    const int n = s->length;
    switch (s->plan) {
        case kDftSmall:
            if (is_pow2(n)) fft::small_fft_run(src, dst, log2i(n), inv, scl, doScale);
            else if (inv) run_direct<true>(src, dst, n, kSmallCs.cs[n], buf, scl, doScale);
            else run_direct<false>(src, dst, n, kSmallCs.cs[n], buf, scl, doScale);
            return;
        case kDftFFT: fft::fft_run_c(src, dst, s->pFftSpec, buf, inv); return;
        case kDftPrimeFact:
            if (inv) run_primefact<true>(src, dst, s, buf, scl, doScale);
            else run_primefact<false>(src, dst, s, buf, scl, doScale);
            return;
        case kDftDirect:
            if (inv) run_direct<true>(src, dst, n, s->pTwiddle, buf, scl, doScale);
            else run_direct<false>(src, dst, n, s->pTwiddle, buf, scl, doScale);
            return;
        default:
            if (inv) run_conv<true>(src, dst, s, buf, scl, doScale);
            else run_conv<false>(src, dst, s, buf, scl, doScale);
            return;
    }
}

void run_r_fwd(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf) {
    const int n = s->length;
    const bool doScale = s->scaleFwd != 0;
    if (s->useFFT) {
        fft::fft_run_r_fwd(src, dst, s->pFftSpec, buf, true);
    } else if (n % 2 == 0) {
        const int m = n / 2;
        run_c(reinterpret_cast<const Gex32fc*>(src), reinterpret_cast<Gex32fc*>(dst), s->pSub, buf, false);
        fft::recombine_fwd(dst, m, s->pRealRec, s->normFactor, doScale, s->scalarOnly != 0);
        fft::perm_to_pack(dst, n);
    } else {
        Gex32fc* a = reinterpret_cast<Gex32fc*>(fft::align64(buf));
        Gex32fc* b = a + n;
        Gex8u* ib = reinterpret_cast<Gex8u*>(b + n);
        for (int i = 0; i < n; ++i) a[i] = {src[i], 0.0f};
        run_c(a, b, s->pSub, ib, false);
        const float sc = doScale ? s->normFactor : 1.0f;
        dst[0] = b[0].re * sc;
        for (int k = 1; 2 * k < n + 1; ++k) {
            dst[2 * k - 1] = b[k].re * sc;
            dst[2 * k] = b[k].im * sc;
        }
    }
}

void run_r_inv(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf) {
    const int n = s->length;
    const bool doScale = s->scaleInv != 0;
    if (s->useFFT) {
        fft::fft_run_r_inv(src, dst, s->pFftSpec, buf, true);
    } else if (n % 2 == 0) {
        const int m = n / 2;
        if (src != dst) std::memcpy(dst, src, sizeof(Gex32f) * n);
        fft::pack_to_perm(dst, n);
        fft::recombine_inv(dst, m, s->pRealRec, s->normFactor, doScale, s->scalarOnly != 0);
        run_c(reinterpret_cast<const Gex32fc*>(dst), reinterpret_cast<Gex32fc*>(dst), s->pSub, buf, true);
    } else {
        Gex32fc* a = reinterpret_cast<Gex32fc*>(fft::align64(buf));
        Gex32fc* b = a + n;
        Gex8u* ib = reinterpret_cast<Gex8u*>(b + n);
        a[0] = {src[0], 0.0f};
        for (int k = 1; 2 * k < n + 1; ++k) {
            a[k] = {src[2 * k - 1], src[2 * k]};
            a[n - k] = {src[2 * k - 1], -src[2 * k]};
        }
        run_c(a, b, s->pSub, ib, true);
        const float sc = doScale ? s->normFactor : 1.0f;
        for (int i = 0; i < n; ++i) dst[i] = b[i].re * sc;
    }
}

// ---- checked entry points ----
GexStatus dft_get_size(int length, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize, int* pBufferSize,
                       bool real) {
    GEX_CHECK(check_null(pSpecSize, pInitSize, pBufferSize));
    if (length < 1) return gexStsBadArg;
    std::int32_t f, i;
    float x;
    if (!fft::scale_of_flag(flag, 1, f, i, x)) return gexStsFFTFlag;
    if (length > kMaxLength && !is_pow2(length)) return gexStsBadArg;
    if (is_pow2(length) && log2i(length) > (real ? 29 : 28)) return gexStsFFTOrder;
    const int cplxLen = real ? (length % 2 == 0 ? length / 2 : length) : length;
    if (!is_pow2(length) && choose_plan(cplxLen) == kDftConv && cplxLen >= kMaxConv) return gexStsBadArg;
    Ctx cx{{nullptr, 0}};
    if (real) plan_real(cx, length, flag, hint);
    else plan_complex(cx, length, flag, hint);
    const std::int64_t recordBytes = cx.a.used + 64;
    const std::int64_t work = real ? [&] {
        if (is_pow2(length)) return fft::fft_work_bytes(log2i(length), true);
        if (length % 2 == 0) return complex_work(length / 2, hint);
        return 16 * std::int64_t{length} + 64 + complex_work(length, hint);
    }()
                                   : complex_work(length, hint);
    const std::int64_t initNeed = cx.initNeed;
    if (recordBytes > 2147483647 || work + 64 > 2147483647) return gexStsExceededSize;
    *pSpecSize = static_cast<int>(recordBytes);
    *pInitSize = static_cast<int>(initNeed > 0 ? initNeed + 64 : 0);
    *pBufferSize = static_cast<int>(work > 0 ? work + 64 : 0);
    return gexStsOk;
}

GexStatus dft_init(int length, int flag, GexHintAlgorithm hint, DftSpec* pSpec, Gex8u* pMemInit, bool real) {
    if (pSpec == nullptr) return gexStsNullPtr;
    if (length < 1) return gexStsBadArg;
    std::int32_t f, i;
    float x;
    if (!fft::scale_of_flag(flag, 1, f, i, x)) return gexStsFFTFlag;
    if (length > kMaxLength && !is_pow2(length)) return gexStsBadArg;
    if (length > 16 && !is_pow2(length) && pMemInit == nullptr) return gexStsNullPtr;
    if (is_pow2(length) && log2i(length) > (real ? 29 : 28)) return gexStsFFTOrder;
    const int cplxLen = real ? (length % 2 == 0 ? length / 2 : length) : length;
    if (!is_pow2(length) && choose_plan(cplxLen) == kDftConv && cplxLen >= kMaxConv) return gexStsBadArg;
    Ctx cx{{fft::align64(reinterpret_cast<Gex8u*>(pSpec)), 0}};
    cx.init = pMemInit ? fft::align64(pMemInit) : nullptr;
    if (real) plan_real(cx, length, flag, hint);
    else plan_complex(cx, length, flag, hint);
    return gexStsOk;
}

template <class S, class D>
GexStatus dft_run_checks(const S* pSrc, const D* pDst, const DftSpec* pSpec, const Gex8u* pBuffer, std::int32_t id) {
    if (pSpec == nullptr) return gexStsNullPtr;
    const DftSpec* s = fft::align64(pSpec);
    if (s->id != id) return gexStsContextMatch;
    GEX_CHECK(check_null(pSrc, pDst));
    if (pBuffer == nullptr && s->workSize > 0) return gexStsNullPtr;
    return gexStsOk;
}

}  // namespace

void dft_force_scalar(DftSpec* s) {
    s = fft::align64(s);
    s->scalarOnly = 1;
    if (s->pSub) dft_force_scalar(s->pSub);
    if (s->pFftSpec) fft_force_scalar(s->pFftSpec);
}

int dft_plan_of(int length) { return choose_plan(length); }

bool fft::dft_batch_ok(const DftSpec* s) {
    if (s->plan == kDftFFT) return fft::fft_batch_ok(s->pFftSpec);
    return s->plan == kDftPrimeFact;
}

void fft::dft_run_batch(SPtr src, SPtr dst, const DftSpec* s, Gex8u* buf, bool inv) {
    if (s->plan == kDftFFT) {
        fft::fft_run_batch(src, dst, s->pFftSpec, buf, inv);
        return;
    }
    const bool doScale = inv ? s->scaleInv != 0 : s->scaleFwd != 0;
    const int P = s->nFactorsM1 + 1;
    const std::int64_t N = s->length;
    const SPtr A = {fft::align64(buf), 64};
    // passes alternate between the buffer and the destination, the first one
    // into the buffer (the source may be the destination); an odd count
    // ends in the buffer and is copied out.
    SPtr in = src;
    for (int i = 0; i < P; ++i) {
        const SPtr out = (i % 2 == 0) ? A : dst;
        const bool fin = i == P - 1;
        const DftFactor& fa = s->factors[P - 1 - i];
        if (inv) stockham_elem<true, CB>(in, out, fa, N, s->normFactor, doScale && fin);
        else stockham_elem<false, CB>(in, out, fa, N, s->normFactor, doScale && fin);
        in = out;
    }
    if (P % 2 == 1)
        for (std::int64_t i = 0; i < N; ++i) st(dst + i, ld<CB>(A + i));
}

void fft::dft_run_c(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, bool inv) { run_c(src, dst, s, buf, inv); }
void fft::dft_run_r_fwd(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf) { run_r_fwd(src, dst, s, buf); }
void fft::dft_run_r_inv(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf) { run_r_inv(src, dst, s, buf); }

GexStatus gexsDFTGetSize_C_32fc(int length, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                                int* pBufferSize) {
    return dft_get_size(length, flag, hint, pSpecSize, pInitSize, pBufferSize, false);
}
GexStatus gexsDFTGetSize_R_32f(int length, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                               int* pBufferSize) {
    return dft_get_size(length, flag, hint, pSpecSize, pInitSize, pBufferSize, true);
}
GexStatus gexsDFTInit_C_32fc(int length, int flag, GexHintAlgorithm hint, DftSpec* pSpec, Gex8u* pMemInit) {
    return dft_init(length, flag, hint, pSpec, pMemInit, false);
}
GexStatus gexsDFTInit_R_32f(int length, int flag, GexHintAlgorithm hint, DftSpec* pSpec, Gex8u* pMemInit) {
    return dft_init(length, flag, hint, pSpec, pMemInit, true);
}
GexStatus gexsDFTFwd_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const DftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(dft_run_checks(pSrc, pDst, pSpec, pBuffer, kIdDftC));
    run_c(pSrc, pDst, fft::align64(pSpec), pBuffer, false);
    return gexStsOk;
}
GexStatus gexsDFTInv_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const DftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(dft_run_checks(pSrc, pDst, pSpec, pBuffer, kIdDftC));
    run_c(pSrc, pDst, fft::align64(pSpec), pBuffer, true);
    return gexStsOk;
}
GexStatus gexsDFTFwd_RToPack_32f(const Gex32f* pSrc, Gex32f* pDst, const DftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(dft_run_checks(pSrc, pDst, pSpec, pBuffer, kIdDftR));
    run_r_fwd(pSrc, pDst, fft::align64(pSpec), pBuffer);
    return gexStsOk;
}
GexStatus gexsDFTInv_PackToR_32f(const Gex32f* pSrc, Gex32f* pDst, const DftSpec* pSpec, Gex8u* pBuffer) {
    GEX_CHECK(dft_run_checks(pSrc, pDst, pSpec, pBuffer, kIdDftR));
    run_r_inv(pSrc, pDst, fft::align64(pSpec), pBuffer);
    return gexStsOk;
}

}  // namespace gex
