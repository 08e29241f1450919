// Bitwise logic and element functions against OpenCV with one thread: And of
// two 8u images, AndC of a 3-channel 8u image and a constant, Abs of 16s and
// Sqrt of 32f. Each row counts the elements that differ from a plain loop.
#include <algorithm>
#include <cmath>

#include "common.hpp"

namespace {

using namespace gexbench;

constexpr Size kHD{"1920x1080", 1920, 1080};
constexpr Size k512{"512x512", 512, 512};

template <class T>
T* typed(Buffer& b, int y = 0) {
    return reinterpret_cast<T*>(b.row(y));
}

// Elements of dst (width x ch of T a row) that differ from want(x, y, i).
template <class T, class F>
double count_bad(Buffer& dst, int elems, F want) {
    double bad = 0;
    for (int y = 0; y < dst.height; ++y)
        for (int i = 0; i < elems; ++i) bad += !(typed<T>(dst, y)[i] == want(y, i));
    return bad;
}

// ---- And, two images ---------------------------------------------------------------------
double and_bad(Buffer& a, Buffer& b, Buffer& d, int w) {
    return count_bad<Gex8u>(d, w, [&](int y, int i) { return static_cast<Gex8u>(a.row(y)[i] & b.row(y)[i]); });
}

void and_gex(benchmark::State& st, Size s) {
    Buffer a(s.width, s.height), b(s.width, s.height), d(s.width, s.height);
    a.randomize(1), b.randomize(2);
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiAnd_8u_C1R(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = and_bad(a, b, d, s.width);
    set_bytes(st, 3LL * s.width * s.height);
}

// ---- AndC, three channels ----------------------------------------------------------------------
const Gex8u kMask3[3] = {0xf0, 0x3c, 0x0f};

double andc_bad(Buffer& a, Buffer& d, int w) {
    return count_bad<Gex8u>(d, 3 * w, [&](int y, int i) { return static_cast<Gex8u>(a.row(y)[i] & kMask3[i % 3]); });
}

void andc_gex(benchmark::State& st, Size s) {
    Buffer a(3 * s.width, s.height), d(3 * s.width, s.height);
    a.randomize(3);
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiAndC_8u_C3R(a.data, a.step, kMask3, d.data, d.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = andc_bad(a, d, s.width);
    set_bytes(st, 6LL * s.width * s.height);
}

// ---- Abs 16s -----------------------------------------------------------------------------------
double abs_bad(Buffer& a, Buffer& d, int w) {
    return count_bad<Gex16s>(d, w, [&](int y, int i) {
        const int v = typed<Gex16s>(a, y)[i];
        return static_cast<Gex16s>(v < 0 ? std::min(-v, 32767) : v);
    });
}

void abs_gex(benchmark::State& st, Size s) {
    Buffer a(2 * s.width, s.height), d(2 * s.width, s.height);
    a.randomize(4);
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiAbs_16s_C1R(typed<Gex16s>(a), a.step, typed<Gex16s>(d), d.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = abs_bad(a, d, s.width);
    set_bytes(st, 4LL * s.width * s.height);
}

// ---- Sqrt 32f ------------------------------------------------------------------------------------
void fill_positive(Buffer& a, int w) {
    std::mt19937 rng(5);
    for (int y = 0; y < a.height; ++y)
        for (int i = 0; i < w; ++i) typed<Gex32f>(a, y)[i] = static_cast<float>(rng() % 1000000) / 64.0f;
}

double sqrt_bad(Buffer& a, Buffer& d, int w) {
    return count_bad<Gex32f>(d, w, [&](int y, int i) { return std::sqrt(typed<Gex32f>(a, y)[i]); });
}

void sqrt_gex(benchmark::State& st, Size s) {
    Buffer a(4 * s.width, s.height), d(4 * s.width, s.height);
    fill_positive(a, s.width);
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiSqrt_32f_C1R(typed<Gex32f>(a), a.step, typed<Gex32f>(d), d.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = sqrt_bad(a, d, s.width);
    set_bytes(st, 8LL * s.width * s.height);
}

#ifdef GEX_HAVE_OPENCV
void and_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer a(s.width, s.height), b(s.width, s.height), d(s.width, s.height);
    a.randomize(1), b.randomize(2);
    cv::Mat ma = as_mat(a, CV_8UC1, s.width), mb = as_mat(b, CV_8UC1, s.width), md = as_mat(d, CV_8UC1, s.width);
    for (auto _ : st) {
        cv::bitwise_and(ma, mb, md);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = and_bad(a, b, d, s.width);
    set_bytes(st, 3LL * s.width * s.height);
}

void andc_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer a(3 * s.width, s.height), d(3 * s.width, s.height);
    a.randomize(3);
    cv::Mat ma = as_mat(a, CV_8UC3, s.width), md = as_mat(d, CV_8UC3, s.width);
    const cv::Scalar k(kMask3[0], kMask3[1], kMask3[2]);
    for (auto _ : st) {
        cv::bitwise_and(ma, k, md);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = andc_bad(a, d, s.width);
    set_bytes(st, 6LL * s.width * s.height);
}

void abs_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer a(2 * s.width, s.height), d(2 * s.width, s.height);
    a.randomize(4);
    cv::Mat ma = as_mat(a, CV_16SC1, s.width), md = as_mat(d, CV_16SC1, s.width);
    for (auto _ : st) {
        md = cv::abs(ma);  // same size and type: written in place of md's data
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = md.data == d.data ? abs_bad(a, d, s.width) : -1;
    set_bytes(st, 4LL * s.width * s.height);
}

void sqrt_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer a(4 * s.width, s.height), d(4 * s.width, s.height);
    fill_positive(a, s.width);
    cv::Mat ma = as_mat(a, CV_32FC1, s.width), md = as_mat(d, CV_32FC1, s.width);
    for (auto _ : st) {
        cv::sqrt(ma, md);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = sqrt_bad(a, d, s.width);
    set_bytes(st, 8LL * s.width * s.height);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    for (Size s : {kHD, k512}) {
        const std::string sz = s.name;
        add("And_8u_C1R/" + sz + "/gex", [s](benchmark::State& st) { and_gex(st, s); });
        add("AndC_8u_C3R/" + sz + "/gex", [s](benchmark::State& st) { andc_gex(st, s); });
        add("Abs_16s_C1R/" + sz + "/gex", [s](benchmark::State& st) { abs_gex(st, s); });
        add("Sqrt_32f_C1R/" + sz + "/gex", [s](benchmark::State& st) { sqrt_gex(st, s); });
#ifdef GEX_HAVE_OPENCV
        add("And_8u_C1R/" + sz + "/opencv", [s](benchmark::State& st) { and_cv(st, s); });
        add("AndC_8u_C3R/" + sz + "/opencv", [s](benchmark::State& st) { andc_cv(st, s); });
        add("Abs_16s_C1R/" + sz + "/opencv", [s](benchmark::State& st) { abs_cv(st, s); });
        add("Sqrt_32f_C1R/" + sz + "/opencv", [s](benchmark::State& st) { sqrt_cv(st, s); });
#endif
    }
    return true;
}();

}  // namespace
