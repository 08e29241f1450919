// Super-sampling resize 1920x1080 -> 960x540 (8u C3, 32f C1; 8u C3 also to
// 1280x720 and 1440x810) against OpenCV's area resize with one thread. Both
// compute box averages; they round
// differently (OpenCV's 8u 2:1 path rounds ties up in integers, ours rounds a
// float sum to even), so the rows report the largest absolute difference of
// the two outputs ("maxdiff") and, as "mismatch", how many elements differ by
// more than one level (8u) or by more than 1e-4 relative (32f).
// Bytes counted: the source read plus the destination written.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "common.hpp"
#include "geometry/resize.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace gexbench;

constexpr int kW = 1920, kH = 1080;
int kDW = 960, kDH = 540;  // the 8u C3 rows also run 3:2 and 4:3

// The Init and the scratch of a whole-image run.
struct Setup {
    std::vector<unsigned char> record, buf;
    GexiResizeSpec* p;
    template <class InitFn>
    Setup(InitFn init, int channels) {
        record.resize(gex::resize::super_record_size(kW, kH, kDW, kDH));
        p = reinterpret_cast<GexiResizeSpec*>(record.data());
        init({kW, kH}, {kDW, kDH}, p);
        buf.resize(gex::resize::super_buffer_size(gex::resize::record_at(static_cast<const void*>(p)), kDW, kDH,
                                                  channels));
    }
};

template <class T>
T* as(Buffer& b) { return reinterpret_cast<T*>(b.data); }

void fill_float(Buffer& b) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<float> d(-100.0f, 100.0f);
    for (int y = 0; y < b.height; ++y) {
        float* r = reinterpret_cast<float*>(b.row(y));
        for (int x = 0; x < b.rowBytes / 4; ++x) r[x] = d(rng);
    }
}

// Largest absolute difference and the count beyond tolerance.
template <class T>
void compare(benchmark::State& st, Buffer& a, Buffer& b) {
    double maxd = 0, bad = 0;
    for (int y = 0; y < a.height; ++y) {
        const T* p = reinterpret_cast<const T*>(a.row(y));
        const T* q = reinterpret_cast<const T*>(b.row(y));
        for (int x = 0; x < a.rowBytes / int(sizeof(T)); ++x) {
            const double d = std::fabs(double(p[x]) - double(q[x]));
            maxd = std::max(maxd, d);
            const double tol = sizeof(T) == 1 ? 1.0 : 1e-4 * std::max(1.0, std::fabs(double(p[x])));
            bad += d > tol;
        }
    }
    st.counters["maxdiff"] = maxd;
    st.counters["mismatch"] = bad;
}

#ifdef GEX_HAVE_OPENCV
void resize_cv_into(Buffer& src, Buffer& dst, int type) {
    cv::Mat a = as_mat(src, type, kW), b = as_mat(dst, type, kDW);
    cv::resize(a, b, cv::Size(kDW, kDH), 0, 0, cv::INTER_AREA);
}
#endif

void super_8u_c3(benchmark::State& st, bool peer, int dw = 960, int dh = 540) {
    kDW = dw;
    kDH = dh;
    Buffer src(kW * 3, kH, 64), dst(kDW * 3, kDH, 64), other(kDW * 3, kDH, 64);
    src.randomize();
    Setup s(gexiResizeSuperInit_8u, 3);
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    if (peer) {
        for (auto _ : st) {
            resize_cv_into(src, dst, CV_8UC3);
            benchmark::ClobberMemory();
        }
        gexiResizeSuper_8u_C3R(src.data, src.step, other.data, other.step, {0, 0}, {kDW, kDH}, s.p, s.buf.data());
        compare<Gex8u>(st, dst, other);
        set_bytes(st, std::int64_t(kW) * kH * 3 + std::int64_t(kDW) * kDH * 3);
        return;
    }
#endif
    for (auto _ : st) {
        benchmark::DoNotOptimize(
            gexiResizeSuper_8u_C3R(src.data, src.step, dst.data, dst.step, {0, 0}, {kDW, kDH}, s.p, s.buf.data()));
        benchmark::ClobberMemory();
    }
#ifdef GEX_HAVE_OPENCV
    resize_cv_into(src, other, CV_8UC3);
    compare<Gex8u>(st, dst, other);
#endif
    set_bytes(st, std::int64_t(kW) * kH * 3 + std::int64_t(kDW) * kDH * 3);
}

void super_32f_c1(benchmark::State& st, bool peer) {
    kDW = 960;
    kDH = 540;
    Buffer src(kW * 4, kH, 64), dst(kDW * 4, kDH, 64), other(kDW * 4, kDH, 64);
    fill_float(src);
    Setup s(gexiResizeSuperInit_32f, 1);
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    if (peer) {
        for (auto _ : st) {
            resize_cv_into(src, dst, CV_32FC1);
            benchmark::ClobberMemory();
        }
        gexiResizeSuper_32f_C1R(as<Gex32f>(src), src.step, as<Gex32f>(other), other.step, {0, 0}, {kDW, kDH}, s.p,
                                s.buf.data());
        compare<Gex32f>(st, dst, other);
        set_bytes(st, std::int64_t(kW) * kH * 4 + std::int64_t(kDW) * kDH * 4);
        return;
    }
#endif
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiResizeSuper_32f_C1R(as<Gex32f>(src), src.step, as<Gex32f>(dst), dst.step, {0, 0},
                                                         {kDW, kDH}, s.p, s.buf.data()));
        benchmark::ClobberMemory();
    }
#ifdef GEX_HAVE_OPENCV
    resize_cv_into(src, other, CV_32FC1);
    compare<Gex32f>(st, dst, other);
#endif
    set_bytes(st, std::int64_t(kW) * kH * 4 + std::int64_t(kDW) * kDH * 4);
}

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    const std::string c = "/1080p-2:1";
    add("ResizeSuper_8u_C3R" + c + "/gex", [](benchmark::State& st) { super_8u_c3(st, false); });
    add("ResizeSuper_32f_C1R" + c + "/gex", [](benchmark::State& st) { super_32f_c1(st, false); });
    add("ResizeSuper_8u_C3R/1080p-3:2/gex", [](benchmark::State& st) { super_8u_c3(st, false, 1280, 720); });
    add("ResizeSuper_8u_C3R/1080p-4:3/gex", [](benchmark::State& st) { super_8u_c3(st, false, 1440, 810); });
#ifdef GEX_HAVE_OPENCV
    add("ResizeSuper_8u_C3R" + c + "/opencv", [](benchmark::State& st) { super_8u_c3(st, true); });
    add("ResizeSuper_8u_C3R/1080p-3:2/opencv", [](benchmark::State& st) { super_8u_c3(st, true, 1280, 720); });
    add("ResizeSuper_8u_C3R/1080p-4:3/opencv", [](benchmark::State& st) { super_8u_c3(st, true, 1440, 810); });
    add("ResizeSuper_32f_C1R" + c + "/opencv", [](benchmark::State& st) { super_32f_c1(st, true); });
#endif
    return true;
}();

}  // namespace
