// General border filter against OpenCV with one thread: filter2D with 5x5 and
// 9x9 float kernels, and one-row / one-column kernels against sepFilter2D, on
// 32f and 8u at 1920x1080, replicated borders. OpenCV's filter2D correlates,
// so it gets the kernel flipped. Agreement: the largest absolute difference
// of the two outputs ("maxdiff").
#include <algorithm>
#include <cmath>
#include <string>

#include "common.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace gexbench;

constexpr Size kHD{"1920x1080", 1920, 1080};

std::vector<float> make_kernel(int kw, int kh) {
    std::vector<float> k(static_cast<std::size_t>(kw) * kh);
    float sum = 0;
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i) {
            const float v = 1.0f + float((i * 7 + j * 3) % 5) + float(i == kw / 2 && j == kh / 2) * 4.0f;
            k[j * kw + i] = v;
            sum += v;
        }
    for (auto& v : k) v /= sum;
    return k;
}

template <class T>
constexpr int depth_bytes() { return sizeof(T); }

// Our run; the output stays in `dst` for the agreement check.
template <class T>
void gex_filter(benchmark::State& st, Size s, int kw, int kh, Buffer& src, Buffer& dst) {
    const GexDataType dt = sizeof(T) == 1 ? gex8u : gex32f;
    int specSize = 0, bufSize = 0;
    gexiFilterBorderGetSize({kw, kh}, {s.width, s.height}, dt, gex32f, 1, &specSize, &bufSize);
    std::vector<Gex8u> block(specSize), buf(bufSize);
    auto* sp = reinterpret_cast<GexiFilterBorderSpec*>(block.data());
    const auto k = make_kernel(kw, kh);
    gexiFilterBorderInit_32f(k.data(), {kw, kh}, dt, 1, gexRndNear, sp);
    for (auto _ : st) {
        GexStatus r;
        if constexpr (sizeof(T) == 1)
            r = gexiFilterBorder_8u_C1R(src.data, src.step, dst.data, dst.step, {s.width, s.height}, gexBorderRepl,
                                        nullptr, sp, buf.data());
        else
            r = gexiFilterBorder_32f_C1R(reinterpret_cast<const Gex32f*>(src.data), src.step,
                                         reinterpret_cast<Gex32f*>(dst.data), dst.step, {s.width, s.height},
                                         gexBorderRepl, nullptr, sp, buf.data());
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * s.width * s.height * depth_bytes<T>());
}

template <class T>
void fill(Buffer& b, int width) {
    b.randomize();
    if constexpr (sizeof(T) == 4)
        for (int y = 0; y < b.height; ++y)
            for (int x = 0; x < width; ++x) reinterpret_cast<float*>(b.row(y))[x] = float(b.row(y)[x * 4] % 200) * 0.5f;
}

#ifdef GEX_HAVE_OPENCV
template <class T>
double maxdiff(Buffer& a, Buffer& b, int width) {
    double m = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < width; ++x)
            m = std::max(m, std::fabs(double(reinterpret_cast<T*>(a.row(y))[x]) - double(reinterpret_cast<T*>(b.row(y))[x])));
    return m;
}

// sep: 0 filter2D, 1 sepFilter2D.
template <class T>
void cv_filter(benchmark::State& st, Size s, int kw, int kh, bool sep) {
    OneThread one;
    const int type = sizeof(T) == 1 ? CV_8UC1 : CV_32FC1;
    Buffer src(s.width * depth_bytes<T>(), s.height), dst(s.width * depth_bytes<T>(), s.height),
        ours(s.width * depth_bytes<T>(), s.height);
    fill<T>(src, s.width);
    cv::Mat a = as_mat(src, type, s.width), b = as_mat(dst, type, s.width);
    const auto k = make_kernel(kw, kh);
    cv::Mat kflip(kh, kw, CV_32F);
    for (int j = 0; j < kh; ++j)
        for (int i = 0; i < kw; ++i) kflip.at<float>(j, i) = k[(kh - 1 - j) * kw + (kw - 1 - i)];
    cv::Mat kx = kflip.reshape(1, 1).clone(), ky = cv::Mat::ones(1, 1, CV_32F);
    if (kw == 1) {
        kx = cv::Mat::ones(1, 1, CV_32F);
        ky = kflip.reshape(1, kh).clone();
    }
    for (auto _ : st) {
        if (sep) cv::sepFilter2D(a, b, -1, kx, ky, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        else cv::filter2D(a, b, -1, kflip, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * s.width * s.height * depth_bytes<T>());
    // Agreement with our output on the same input.
    const GexDataType dt = sizeof(T) == 1 ? gex8u : gex32f;
    int specSize = 0, bufSize = 0;
    gexiFilterBorderGetSize({kw, kh}, {s.width, s.height}, dt, gex32f, 1, &specSize, &bufSize);
    std::vector<Gex8u> block(specSize), buf(bufSize);
    auto* sp = reinterpret_cast<GexiFilterBorderSpec*>(block.data());
    gexiFilterBorderInit_32f(k.data(), {kw, kh}, dt, 1, gexRndNear, sp);
    if constexpr (sizeof(T) == 1)
        gexiFilterBorder_8u_C1R(src.data, src.step, ours.data, ours.step, {s.width, s.height}, gexBorderRepl, nullptr, sp,
                                buf.data());
    else
        gexiFilterBorder_32f_C1R(reinterpret_cast<const Gex32f*>(src.data), src.step, reinterpret_cast<Gex32f*>(ours.data),
                                 ours.step, {s.width, s.height}, gexBorderRepl, nullptr, sp, buf.data());
    st.counters["maxdiff"] = maxdiff<T>(ours, dst, s.width);
}
#endif

template <class T>
void gex_case(benchmark::State& st, Size s, int kw, int kh) {
    Buffer src(s.width * depth_bytes<T>(), s.height), dst(s.width * depth_bytes<T>(), s.height);
    fill<T>(src, s.width);
    gex_filter<T>(st, s, kw, kh, src, dst);
}

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    const Size s = kHD;
    struct K {
        const char* op;
        int kw, kh;
        bool sep;
    };
    const K cases[] = {{"FilterBorder5x5", 5, 5, false},
                       {"FilterBorder9x9", 9, 9, false},
                       {"FilterBorderRow15", 15, 1, true},
                       {"FilterBorderCol15", 1, 15, true}};
    for (const K& c : cases) {
        for (int d = 0; d < 2; ++d) {
            const std::string name = std::string(c.op) + (d ? "_8u_C1R/" : "_32f_C1R/") + s.name;
            if (d) add(name + "/gex", [=](benchmark::State& st) { gex_case<Gex8u>(st, s, c.kw, c.kh); });
            else add(name + "/gex", [=](benchmark::State& st) { gex_case<Gex32f>(st, s, c.kw, c.kh); });
#ifdef GEX_HAVE_OPENCV
            if (d) add(name + "/opencv", [=](benchmark::State& st) { cv_filter<Gex8u>(st, s, c.kw, c.kh, c.sep); });
            else add(name + "/opencv", [=](benchmark::State& st) { cv_filter<Gex32f>(st, s, c.kw, c.kh, c.sep); });
#endif
        }
    }
    return true;
}();

}  // namespace
