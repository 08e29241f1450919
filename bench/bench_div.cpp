// Div 8u with a scale factor against OpenCV's divide with a scale (one
// thread). Both compute src2 x 2^-s / src1 rounded to nearest; OpenCV gives 0
// for a zero divisor where we give 255, so the divisors here are 1..255. The
// agreement is the number of differing pixels and the largest difference.
// The "addfloor" row moves the same bytes with a plain sum: the bandwidth
// bound of any two-image operation of this size.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "common.hpp"

namespace {

using namespace gexbench;

constexpr int kScaleFactor = 1;  // divide by 2 after the division

void nonzero(Buffer& b) {
    for (int y = 0; y < b.height; ++y)
        for (int x = 0; x < b.rowBytes; ++x)
            if (b.row(y)[x] == 0) b.row(y)[x] = 1;
}

// Differences between two outputs: count and largest.
void agreement(benchmark::State& st, Buffer& a, Buffer& b) {
    double n = 0, worst = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.rowBytes; ++x) {
            const int d = std::abs(int{a.row(y)[x]} - int{b.row(y)[x]});
            n += d != 0;
            worst = std::max<double>(worst, d);
        }
    st.counters["mismatch"] = n;
    st.counters["maxdiff"] = worst;
}

#ifdef GEX_HAVE_OPENCV
void divide_cv(Buffer& divisor, Buffer& dividend, Buffer& dst, int width) {
    cv::Mat a = as_mat(divisor, CV_8UC1, width), b = as_mat(dividend, CV_8UC1, width), c = as_mat(dst, CV_8UC1, width);
    cv::divide(b, a, c, std::ldexp(1.0, -kScaleFactor));
}
#endif

void div_gex(benchmark::State& st, Size s) {
    Buffer divisor(s.width, s.height), dividend(s.width, s.height), dst(s.width, s.height);
    divisor.randomize(1);
    dividend.randomize(2);
    nonzero(divisor);
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiDiv_8u_C1RSfs(divisor.data, divisor.step, dividend.data, dividend.step, dst.data,
                                                   dst.step, {s.width, s.height}, kScaleFactor));
        benchmark::ClobberMemory();
    }
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    Buffer peer(s.width, s.height);
    divide_cv(divisor, dividend, peer, s.width);
    agreement(st, dst, peer);
#endif
    set_bytes(st, 3LL * s.width * s.height);
}

#ifdef GEX_HAVE_OPENCV
void div_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer divisor(s.width, s.height), dividend(s.width, s.height), dst(s.width, s.height);
    divisor.randomize(1);
    dividend.randomize(2);
    nonzero(divisor);
    for (auto _ : st) {
        divide_cv(divisor, dividend, dst, s.width);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 3LL * s.width * s.height);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    constexpr Size kHD{"1920x1080", 1920, 1080};
    for (Size s : {kHD, kSmall}) {
        const std::string sz = s.name;
        add("Div_8u_C1RSfs/" + sz + "/gex", [s](benchmark::State& st) { div_gex(st, s); });
        add("Div_8u_C1RSfs/" + sz + "/addfloor", [s](benchmark::State& st) { floor_loop(st, s.width, s.height); });
#ifdef GEX_HAVE_OPENCV
        add("Div_8u_C1RSfs/" + sz + "/opencv", [s](benchmark::State& st) { div_cv(st, s); });
#endif
    }
    return true;
}();

}  // namespace
