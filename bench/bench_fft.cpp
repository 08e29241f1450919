// Image Fourier transforms against FFTW (single-precision, one thread, plans
// made with FFTW_MEASURE before timing) and OpenCV's dft (one thread).
// Rows: real forward FFT 1024x1024 and 256x256, real forward DFT 1000x1000
// and 480x640, complex forward FFT 512x512. Each peer computes the same
// unscaled forward transform; the agreement compares the spectra entry by
// entry (our Pack extended to the full spectrum) with a tolerance of 1e-5 of
// the largest magnitude: "mismatch" counts entries beyond it, "maxrel" is the
// largest difference over that magnitude.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <string>
#include <vector>

#include "common.hpp"

#ifdef GEX_HAVE_FFTW
#include <fftw3.h>
#endif
#ifdef GEX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace gexbench;

constexpr double kTol = 1e-5;

struct Case {
    const char* name;
    int width, height;
    bool real, pow2;
};

int ilog2(int n) {
    int k = 0;
    while ((1 << k) < n) ++k;
    return k;
}

// Our record, buffers and images (64-byte aligned rows, no gaps).
struct Ours {
    Case c;
    std::vector<Gex8u> record, init, buf;
    std::vector<float> src, dst;  // real: W x H floats; complex: 2W x H
    int step;
    explicit Ours(Case cs) : c(cs) {
        const int comps = c.real ? 1 : 2;
        step = c.width * comps * 4;
        src.resize(static_cast<std::size_t>(c.width) * c.height * comps + 16);
        dst.resize(src.size());
        std::mt19937 rng(7);
        std::uniform_real_distribution<float> d(-1.0f, 1.0f);
        for (auto& v : src) v = d(rng);
        int a, b, cc;
        if (c.pow2) {
            const int ox = ilog2(c.width), oy = ilog2(c.height);
            if (c.real) gexiFFTGetSize_R_32f(ox, oy, 8, gexAlgHintNone, &a, &b, &cc);
            else gexiFFTGetSize_C_32fc(ox, oy, 8, gexAlgHintNone, &a, &b, &cc);
            record.resize(a);
            init.resize(b + 1);
            buf.resize(cc);
            GexiFFTSpec* s = reinterpret_cast<GexiFFTSpec*>(record.data());
            if (c.real) gexiFFTInit_R_32f(ox, oy, 8, gexAlgHintNone, s, init.data());
            else gexiFFTInit_C_32fc(ox, oy, 8, gexAlgHintNone, s, init.data());
        } else {
            const GexiSize roi = {c.width, c.height};
            if (c.real) gexiDFTGetSize_R_32f(roi, 8, gexAlgHintNone, &a, &b, &cc);
            else gexiDFTGetSize_C_32fc(roi, 8, gexAlgHintNone, &a, &b, &cc);
            record.resize(a);
            init.resize(b + 1);
            buf.resize(cc);
            GexiDFTSpec* s = reinterpret_cast<GexiDFTSpec*>(record.data());
            if (c.real) gexiDFTInit_R_32f(roi, 8, gexAlgHintNone, s, init.data());
            else gexiDFTInit_C_32fc(roi, 8, gexAlgHintNone, s, init.data());
        }
    }
    GexStatus run() {
        if (c.pow2) {
            const GexiFFTSpec* s = reinterpret_cast<const GexiFFTSpec*>(record.data());
            if (c.real) return gexiFFTFwd_RToPack_32f_C1R(src.data(), step, dst.data(), step, s, buf.data());
            return gexiFFTFwd_CToC_32fc_C1R(reinterpret_cast<const Gex32fc*>(src.data()), step,
                                            reinterpret_cast<Gex32fc*>(dst.data()), step, s, buf.data());
        }
        const GexiDFTSpec* s = reinterpret_cast<const GexiDFTSpec*>(record.data());
        if (c.real) return gexiDFTFwd_RToPack_32f_C1R(src.data(), step, dst.data(), step, s, buf.data());
        return gexiDFTFwd_CToC_32fc_C1R(reinterpret_cast<const Gex32fc*>(src.data()), step,
                                        reinterpret_cast<Gex32fc*>(dst.data()), step, s, buf.data());
    }
    // Full spectrum F(u, v), row-major H x W.
    std::vector<std::complex<float>> spectrum() {
        std::vector<std::complex<float>> f(static_cast<std::size_t>(c.width) * c.height);
        if (c.real) {
            gexiPackToCplxExtend_32f32fc_C1R(dst.data(), {c.width, c.height}, step,
                                             reinterpret_cast<Gex32fc*>(f.data()), c.width * 8);
        } else {
            std::memcpy(static_cast<void*>(f.data()), dst.data(), f.size() * 8);
        }
        return f;
    }
};

// Compares a peer's entries (u, v) with ours; v < vmax only.
template <class Get>
void agreement(benchmark::State& st, const std::vector<std::complex<float>>& ours, int W, int H, int vmax, Get get) {
    double mag = 0, worst = 0, bad = 0;
    for (auto& z : ours) mag = std::max<double>(mag, std::abs(z));
    for (int u = 0; u < H; ++u)
        for (int v = 0; v < vmax; ++v) {
            const double d = std::abs(std::complex<double>(ours[static_cast<std::size_t>(u) * W + v]) -
                                      std::complex<double>(get(u, v)));
            worst = std::max(worst, d);
            bad += d > kTol * mag;
        }
    st.counters["mismatch"] = bad;
    st.counters["maxrel"] = worst / mag;
}

void run_gex(benchmark::State& st, Case c) {
    Ours o(c);
    for (auto _ : st) {
        benchmark::DoNotOptimize(o.run());
        benchmark::ClobberMemory();
    }
    const auto f = o.spectrum();
    double bad = 0, worst = 0;
#ifdef GEX_HAVE_FFTW
    {
        std::vector<std::complex<float>> out(static_cast<std::size_t>(c.height) * (c.width / 2 + 1));
        std::vector<float> in(o.src.begin(), o.src.begin() + static_cast<std::ptrdiff_t>(c.width) * c.height * (c.real ? 1 : 2));
        fftwf_plan p;
        if (c.real) {
            p = fftwf_plan_dft_r2c_2d(c.height, c.width, in.data(), reinterpret_cast<fftwf_complex*>(out.data()), FFTW_ESTIMATE);
            fftwf_execute(p);
            agreement(st, f, c.width, c.height, c.width / 2 + 1,
                      [&](int u, int v) { return out[static_cast<std::size_t>(u) * (c.width / 2 + 1) + v]; });
        } else {
            out.resize(static_cast<std::size_t>(c.height) * c.width);
            p = fftwf_plan_dft_2d(c.height, c.width, reinterpret_cast<fftwf_complex*>(in.data()),
                                  reinterpret_cast<fftwf_complex*>(out.data()), FFTW_FORWARD, FFTW_ESTIMATE);
            fftwf_execute(p);
            agreement(st, f, c.width, c.height, c.width, [&](int u, int v) { return out[static_cast<std::size_t>(u) * c.width + v]; });
        }
        fftwf_destroy_plan(p);
        bad += st.counters["mismatch"];
        worst = std::max<double>(worst, st.counters["maxrel"]);
    }
#endif
#ifdef GEX_HAVE_OPENCV
    {
        OneThread one;
        cv::Mat in(c.height, c.width, c.real ? CV_32FC1 : CV_32FC2, o.src.data());
        cv::Mat out;
        cv::dft(in, out, cv::DFT_COMPLEX_OUTPUT);
        agreement(st, f, c.width, c.height, c.width, [&](int u, int v) {
            const cv::Vec2f z = out.at<cv::Vec2f>(u, v);
            return std::complex<float>(z[0], z[1]);
        });
        bad += st.counters["mismatch"];
        worst = std::max<double>(worst, st.counters["maxrel"]);
    }
#endif
    st.counters["mismatch"] = bad;
    st.counters["maxrel"] = worst;
    set_bytes(st, static_cast<std::int64_t>(c.width) * c.height * (c.real ? 4 : 8) * 2);
}

#ifdef GEX_HAVE_FFTW
void run_fftw(benchmark::State& st, Case c) {
    const std::size_t n = static_cast<std::size_t>(c.width) * c.height;
    float* in = fftwf_alloc_real(c.real ? n : 2 * n);
    fftwf_complex* out = fftwf_alloc_complex(c.real ? static_cast<std::size_t>(c.height) * (c.width / 2 + 1) : n);
    fftwf_plan p = c.real ? fftwf_plan_dft_r2c_2d(c.height, c.width, in, out, FFTW_MEASURE)
                          : fftwf_plan_dft_2d(c.height, c.width, reinterpret_cast<fftwf_complex*>(in), out, FFTW_FORWARD,
                                              FFTW_MEASURE);
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    for (std::size_t i = 0; i < (c.real ? n : 2 * n); ++i) in[i] = d(rng);
    for (auto _ : st) {
        fftwf_execute(p);
        benchmark::ClobberMemory();
    }
    fftwf_destroy_plan(p);
    fftwf_free(in);
    fftwf_free(out);
    set_bytes(st, static_cast<std::int64_t>(n) * (c.real ? 4 : 8) * 2);
}
#endif

#ifdef GEX_HAVE_OPENCV
void run_cv(benchmark::State& st, Case c) {
    OneThread one;
    cv::Mat in(c.height, c.width, c.real ? CV_32FC1 : CV_32FC2), out;
    cv::randu(in, -1.0f, 1.0f);
    for (auto _ : st) {
        cv::dft(in, out);
        benchmark::ClobberMemory();
    }
    set_bytes(st, static_cast<std::int64_t>(c.width) * c.height * (c.real ? 4 : 8) * 2);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    const Case cases[] = {
        {"1024x1024", 1024, 1024, true, true},  {"256x256", 256, 256, true, true},
        {"1000x1000", 1000, 1000, true, false}, {"480x640", 480, 640, true, false},
        {"512x512", 512, 512, false, true},
    };
    for (const Case& c : cases) {
        const std::string op = std::string(c.pow2 ? "FFT" : "DFT") + (c.real ? "Fwd_RToPack" : "Fwd_CToC");
        const std::string base = op + "/" + c.name;
        add(base + "/gex", [c](benchmark::State& st) { run_gex(st, c); });
#ifdef GEX_HAVE_FFTW
        add(base + "/fftw", [c](benchmark::State& st) { run_fftw(st, c); });
#endif
#ifdef GEX_HAVE_OPENCV
        add(base + "/opencv", [c](benchmark::State& st) { run_cv(st, c); });
#endif
    }
    return true;
}();

}  // namespace
