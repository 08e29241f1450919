// Double-precision references for the Fourier tests: the direct DFT for small
// lengths and a radix-2 FFT (twiddles evaluated per index) for large powers of
// two, plus a record holder for the 1-D engine.
#pragma once

#include <cmath>
#include <complex>
#include <cstdint>
#include <random>
#include <vector>

#include "transform/fft_engine.hpp"

namespace fref {

using cd = std::complex<double>;

// exp(sign 2 pi i j k / n), with j k reduced modulo n first.
inline cd unit(std::int64_t jk, std::int64_t n, int sign) {
    const double a = 2.0 * M_PI * static_cast<double>(jk % n) / static_cast<double>(n);
    return {std::cos(a), sign * std::sin(a)};
}

inline std::vector<cd> dft(const std::vector<cd>& x, int sign) {
    const std::int64_t n = static_cast<std::int64_t>(x.size());
    std::vector<cd> X(n);
    for (std::int64_t k = 0; k < n; ++k) {
        cd s = 0;
        for (std::int64_t j = 0; j < n; ++j) s += x[j] * unit(j * k, n, sign);
        X[k] = s;
    }
    return X;
}

// Iterative radix-2 in double, for powers of two.
inline std::vector<cd> fft2(std::vector<cd> a, int sign) {
    const std::int64_t n = static_cast<std::int64_t>(a.size());
    for (std::int64_t i = 1, j = 0; i < n; ++i) {
        std::int64_t bit = n >> 1;
        for (; j & bit; bit >>= 1) j ^= bit;
        j ^= bit;
        if (i < j) std::swap(a[i], a[j]);
    }
    std::vector<cd> w(n / 2 + 1);
    for (std::int64_t k = 0; k < n / 2; ++k) w[k] = unit(k, n, sign);
    for (std::int64_t len = 2; len <= n; len <<= 1) {
        const std::int64_t step = n / len;
        for (std::int64_t i = 0; i < n; i += len)
            for (std::int64_t j = 0; j < len / 2; ++j) {
                const cd u = a[i + j], v = a[i + j + len / 2] * w[j * step];
                a[i + j] = u + v;
                a[i + j + len / 2] = u - v;
            }
    }
    return a;
}

inline std::vector<cd> transform(const std::vector<cd>& x, int sign) {
    const std::size_t n = x.size();
    if ((n & (n - 1)) == 0 && n > 64) return fft2(x, sign);
    return dft(x, sign);
}

inline std::vector<Gex32fc> random_complex(std::int64_t n, unsigned seed) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    std::vector<Gex32fc> v(n);
    for (auto& e : v) e = {d(rng), d(rng)};
    return v;
}

inline std::vector<cd> widen(const std::vector<Gex32fc>& v) {
    std::vector<cd> r(v.size());
    for (std::size_t i = 0; i < v.size(); ++i) r[i] = {v[i].re, v[i].im};
    return r;
}

// Worst error over max |X|, in units of float rounding times log2(n).
inline double error_ratio(const std::vector<cd>& ref, const Gex32fc* got, double scale = 1.0) {
    double err = 0, mag = 0;
    for (std::size_t k = 0; k < ref.size(); ++k) {
        err = std::max(err, std::abs(ref[k] * scale - cd(got[k].re, got[k].im)));
        mag = std::max(mag, std::abs(ref[k] * scale));
    }
    const double lg = std::max(1.0, std::log2(static_cast<double>(ref.size())));
    return err / (std::ldexp(1.0, -24) * lg * mag);
}

// Records of the 1-D engine in vectors of bytes.
struct Fft1 {
    std::vector<Gex8u> record, init, buf;
    gex::FftSpec* s = nullptr;
    GexStatus st = 0;
    Fft1(int order, int flag, bool real) {
        int a = 0, b = 0, c = 0;
        st = real ? gex::gexsFFTGetSize_R_32f(order, flag, gexAlgHintNone, &a, &b, &c)
                  : gex::gexsFFTGetSize_C_32fc(order, flag, gexAlgHintNone, &a, &b, &c);
        if (st) return;
        record.assign(a, 0);
        init.assign(b + 1, 0);
        buf.assign(c + 1, 0);
        st = real ? gex::gexsFFTInit_R_32f(&s, order, flag, gexAlgHintNone, record.data() + 1, init.data())
                  : gex::gexsFFTInit_C_32fc(&s, order, flag, gexAlgHintNone, record.data() + 1, init.data());
    }
};

struct Dft1 {
    std::vector<Gex8u> record, init, buf;
    gex::DftSpec* s = nullptr;
    GexStatus st = 0;
    Dft1(int n, int flag, bool real) {
        int a = 0, b = 0, c = 0;
        st = real ? gex::gexsDFTGetSize_R_32f(n, flag, gexAlgHintNone, &a, &b, &c)
                  : gex::gexsDFTGetSize_C_32fc(n, flag, gexAlgHintNone, &a, &b, &c);
        if (st) return;
        record.assign(a, 0);
        init.assign(b + 1, 0);
        buf.assign(c + 1, 0);
        s = reinterpret_cast<gex::DftSpec*>(record.data() + 3);
        st = real ? gex::gexsDFTInit_R_32f(n, flag, gexAlgHintNone, s, init.data())
                  : gex::gexsDFTInit_C_32fc(n, flag, gexAlgHintNone, s, init.data());
    }
    const gex::DftSpec* rec() const { return gex::fft::align64(s); }
};

}  // namespace fref
