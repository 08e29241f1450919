// Add, Sub and Mul against OpenCV with one thread (cv::add, cv::subtract with
// the operands swapped, since ours gives src2 - src1, cv::multiply) and
// against a Copy of the same rows (the bandwidth reference: an operation
// reading two images and writing one should move its bytes about as fast as
// Copy moves its own). The gex row counts the elements in which our output
// and OpenCV's differ ("mismatch") and their largest difference ("maxdiff").
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include <vector>

#include "common.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace gexbench;

constexpr Size kFullHD{"1920x1080", 1920, 1080};
constexpr Size k512{"512x512", 512, 512};

enum class Kind { U8, S16, F32 };

struct Op {
    const char* name;
    Kind kind;
    int elemBytes;
    std::function<GexStatus(Buffer&, Buffer&, Buffer&, Size)> gex;
#ifdef GEX_HAVE_OPENCV
    int cvType;
    std::function<void(const cv::Mat&, const cv::Mat&, cv::Mat&)> cv;
#endif
};

template <class T>
T* as(Buffer& b) {
    return reinterpret_cast<T*>(b.data);
}

void fill(Buffer& b, Kind kind, int width, unsigned seed) {
    if (kind != Kind::F32) {
        b.randomize(seed);
        return;
    }
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-100.0f, 100.0f);
    for (int y = 0; y < b.height; ++y) {
        float* r = reinterpret_cast<float*>(b.row(y));
        for (int x = 0; x < width; ++x) r[x] = d(rng);
    }
}

double element(Buffer& b, Kind kind, int y, int x) {
    switch (kind) {
        case Kind::U8: return b.row(y)[x];
        case Kind::S16: return reinterpret_cast<const Gex16s*>(b.row(y))[x];
        default: return reinterpret_cast<const Gex32f*>(b.row(y))[x];
    }
}

#ifdef GEX_HAVE_OPENCV
#define PEER(type, ...) , type, __VA_ARGS__
#else
#define PEER(type, ...)
#endif

const std::vector<Op>& ops() {
    static const std::vector<Op> v = {
        {"Add_8u_C1RSfs", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiAdd_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}, 0);
         } PEER(CV_8UC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::add(a, b, d); })},
        {"Sub_8u_C1RSfs", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiSub_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}, 0);
         } PEER(CV_8UC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); })},
        // A factor of 1 against addWeighted with halves: both round (a + b) / 2
        // to nearest, ties to even.
        {"Add_8u_C1RSfs_s1", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiAdd_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}, 1);
         } PEER(CV_8UC1,
                [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::addWeighted(a, 0.5, b, 0.5, 0.0, d); })},
        {"Mul_8u_C1RSfs", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiMul_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}, 0);
         } PEER(CV_8UC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d); })},
        // A scale factor of 4 against OpenCV's scale 1/16: both round the
        // exact product / 16 to nearest, ties to even.
        {"Mul_8u_C1RSfs_s4", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiMul_8u_C1RSfs(a.data, a.step, b.data, b.step, d.data, d.step, {s.width, s.height}, 4);
         } PEER(CV_8UC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d, 1.0 / 16); })},
        // |a - b| from the library's pieces: the two saturating differences
        // (one of them is 0 at every pixel), then their sum.
        {"AbsDiff_8u_SubSubAdd", Kind::U8, 1,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             static thread_local std::vector<Gex8u> t;
             t.resize(static_cast<std::size_t>(s.width) * s.height);
             const GexiSize roi{s.width, s.height};
             gexiSub_8u_C1RSfs(b.data, b.step, a.data, a.step, d.data, d.step, roi, 0);
             gexiSub_8u_C1RSfs(a.data, a.step, b.data, b.step, t.data(), s.width, roi, 0);
             return gexiAdd_8u_C1IRSfs(t.data(), s.width, d.data, d.step, roi, 0);
         } PEER(CV_8UC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::absdiff(a, b, d); })},
        {"Sub_16s_C1RSfs", Kind::S16, 2,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiSub_16s_C1RSfs(as<Gex16s>(a), a.step, as<Gex16s>(b), b.step, as<Gex16s>(d), d.step,
                                       {s.width, s.height}, 0);
         } PEER(CV_16SC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); })},
        {"Add_32f_C1R", Kind::F32, 4,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiAdd_32f_C1R(as<Gex32f>(a), a.step, as<Gex32f>(b), b.step, as<Gex32f>(d), d.step,
                                    {s.width, s.height});
         } PEER(CV_32FC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::add(a, b, d); })},
        {"Sub_32f_C1R", Kind::F32, 4,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiSub_32f_C1R(as<Gex32f>(a), a.step, as<Gex32f>(b), b.step, as<Gex32f>(d), d.step,
                                    {s.width, s.height});
         } PEER(CV_32FC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); })},
        {"Mul_32f_C1R", Kind::F32, 4,
         [](Buffer& a, Buffer& b, Buffer& d, Size s) {
             return gexiMul_32f_C1R(as<Gex32f>(a), a.step, as<Gex32f>(b), b.step, as<Gex32f>(d), d.step,
                                    {s.width, s.height});
         } PEER(CV_32FC1, [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d); })},
    };
    return v;
}

void gex_row(benchmark::State& st, Size s, const Op& op) {
    const int rowBytes = s.width * op.elemBytes;
    Buffer a(rowBytes, s.height), b(rowBytes, s.height), d(rowBytes, s.height, 128);
    fill(a, op.kind, s.width, 1);
    fill(b, op.kind, s.width, 2);
    for (auto _ : st) {
        benchmark::DoNotOptimize(op.gex(a, b, d, s));
        benchmark::ClobberMemory();
    }
#ifdef GEX_HAVE_OPENCV
    {
        OneThread one;
        Buffer ref(rowBytes, s.height, 128);
        cv::Mat r = as_mat(ref, op.cvType, s.width);
        op.cv(as_mat(a, op.cvType, s.width), as_mat(b, op.cvType, s.width), r);
        double differ = 0, maxdiff = 0;
        for (int y = 0; y < s.height; ++y)
            for (int x = 0; x < s.width; ++x) {
                const double e = std::fabs(element(d, op.kind, y, x) - element(ref, op.kind, y, x));
                differ += e != 0;
                maxdiff = std::max(maxdiff, e);
            }
        st.counters["mismatch"] = differ;
        st.counters["maxdiff"] = maxdiff;
    }
#endif
    set_bytes(st, 3LL * rowBytes * s.height);
}

// The same rows copied: two images' worth of bytes instead of three.
void copy_row(benchmark::State& st, Size s, const Op& op) {
    const int rowBytes = s.width * op.elemBytes;
    Buffer a(rowBytes, s.height), d(rowBytes, s.height, 128);
    a.randomize();
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiCopy_8u_C1R(a.data, a.step, d.data, d.step, {rowBytes, s.height}));
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * rowBytes * s.height);
}

#ifdef GEX_HAVE_OPENCV
void cv_row(benchmark::State& st, Size s, const Op& op) {
    OneThread one;
    const int rowBytes = s.width * op.elemBytes;
    Buffer a(rowBytes, s.height), b(rowBytes, s.height), d(rowBytes, s.height, 128);
    fill(a, op.kind, s.width, 1);
    fill(b, op.kind, s.width, 2);
    const cv::Mat ma = as_mat(a, op.cvType, s.width), mb = as_mat(b, op.cvType, s.width);
    cv::Mat md = as_mat(d, op.cvType, s.width);
    for (auto _ : st) {
        op.cv(ma, mb, md);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 3LL * rowBytes * s.height);
}
#endif

void add(const std::string& name, std::function<void(benchmark::State&)> f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    for (Size s : {kFullHD, k512})
        for (const Op& op : ops()) {
            const std::string base = std::string(op.name) + "/" + s.name;
            add(base + "/gex", [s, &op](benchmark::State& st) { gex_row(st, s, op); });
            add(base + "/copy", [s, &op](benchmark::State& st) { copy_row(st, s, op); });
            add(base + "/floor", [s, &op](benchmark::State& st) { floor_loop(st, s.width * op.elemBytes, s.height); });
#ifdef GEX_HAVE_OPENCV
            add(base + "/opencv", [s, &op](benchmark::State& st) { cv_row(st, s, op); });
#endif
        }
    return true;
}();

}  // namespace
