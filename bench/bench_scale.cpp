// Scale and ScaleC against OpenCV's convertTo(type, alpha, beta) with one
// thread, and the bit packing of GrayToBin and BinToGray on their own. Where
// OpenCV runs, the gex row counts the pixels in which the two outputs differ.
#include <functional>
#include <string>

#include "common.hpp"

namespace {

using namespace gexbench;

using GexCall = std::function<GexStatus(Buffer&, Buffer&, Size)>;

struct Op {
    const char* name;
    int srcBytes, dstBytes;  // per pixel
    bool floatSrc;
    bool floatDst;
    GexCall gex;
#ifdef GEX_HAVE_OPENCV
    int cvSrc, cvDst;
    double alpha, beta;
#endif
};

void fill_source(Buffer& b, const Op& op, int width) {
    if (!op.floatSrc) {
        b.randomize();
        return;
    }
    std::mt19937 rng(5);
    std::uniform_real_distribution<float> d(-1.2f, 1.2f);
    for (int y = 0; y < b.height; ++y) {
        float* r = reinterpret_cast<float*>(b.row(y));
        for (int x = 0; x < width; ++x) r[x] = d(rng);
    }
}

#ifdef GEX_HAVE_OPENCV
void peer_call(const Op& op, Buffer& src, Buffer& dst, Size s) {
    cv::Mat b = as_mat(dst, op.cvDst, s.width);
    as_mat(src, op.cvSrc, s.width).convertTo(b, CV_MAT_DEPTH(op.cvDst), op.alpha, op.beta);
}

// Pixels in which two outputs differ.
double differ(const Op& op, Buffer& a, Buffer& b, int width) {
    double n = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < width; ++x) {
            if (op.floatDst) n += reinterpret_cast<const float*>(a.row(y))[x] != reinterpret_cast<const float*>(b.row(y))[x];
            else n += std::memcmp(a.row(y) + x * op.dstBytes, b.row(y) + x * op.dstBytes, op.dstBytes) != 0;
        }
    return n;
}
#endif

void gex_row(benchmark::State& st, Size s, const Op& op) {
    Buffer src(s.width * op.srcBytes, s.height), dst(s.width * op.dstBytes, s.height);
    fill_source(src, op, s.width);
    for (auto _ : st) {
        benchmark::DoNotOptimize(op.gex(src, dst, s));
        benchmark::ClobberMemory();
    }
#ifdef GEX_HAVE_OPENCV
    if (op.cvSrc >= 0) {
        OneThread one;
        Buffer ref(s.width * op.dstBytes, s.height);
        peer_call(op, src, ref, s);
        st.counters["mismatch"] = differ(op, dst, ref, s.width);
    }
#endif
    set_bytes(st, static_cast<std::int64_t>(s.width) * (op.srcBytes + op.dstBytes) * s.height);
}

#ifdef GEX_HAVE_OPENCV
void cv_row(benchmark::State& st, Size s, const Op& op) {
    OneThread one;
    Buffer src(s.width * op.srcBytes, s.height), dst(s.width * op.dstBytes, s.height);
    fill_source(src, op, s.width);
    for (auto _ : st) {
        peer_call(op, src, dst, s);
        benchmark::ClobberMemory();
    }
    set_bytes(st, static_cast<std::int64_t>(s.width) * (op.srcBytes + op.dstBytes) * s.height);
}
#define PEER(cs, cd, a, b) , cs, cd, a, b
#else
#define PEER(cs, cd, a, b)
#endif

const Gex32f* f32(Buffer& b) { return reinterpret_cast<const Gex32f*>(b.data); }
Gex32f* f32w(Buffer& b) { return reinterpret_cast<Gex32f*>(b.data); }

const std::vector<Op>& ops() {
    static const std::vector<Op> v = {
        // OpenCV gets our binary32 ratio (vMax - vMin) / 255 as its alpha.
        {"Scale_8u32f_C1R", 1, 4, false, true,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScale_8u32f_C1R(a.data, a.step, f32w(b), b.step, {s.width, s.height}, -1.0f, 1.0f);
         } PEER(CV_8UC1, CV_32FC1, double(2.0f / 255.0f), -1.0)},
        {"Scale_16u8u_C1R", 2, 1, false, false,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScale_16u8u_C1R(reinterpret_cast<const Gex16u*>(a.data), a.step, b.data, b.step,
                                        {s.width, s.height}, gexAlgHintAccurate);
         } PEER(CV_16UC1, CV_8UC1, 1.0 / 257.0, 0.0)},
        {"Scale_32f8u_C1R", 4, 1, true, false,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScale_32f8u_C1R(f32(a), a.step, b.data, b.step, {s.width, s.height}, -1.0f, 1.0f);
         } PEER(CV_32FC1, CV_8UC1, 127.5, 127.5)},
        {"ScaleC_32f8u_C1R", 4, 1, true, false,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScaleC_32f8u_C1R(f32(a), a.step, 127.5, 127.5, b.data, b.step, {s.width, s.height},
                                         gexAlgHintFast);
         } PEER(CV_32FC1, CV_8UC1, 127.5, 127.5)},
        {"ScaleC_8u32f_C1R", 1, 4, false, true,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScaleC_8u32f_C1R(a.data, a.step, 0.5, 3.0, f32w(b), b.step, {s.width, s.height},
                                         gexAlgHintFast);
         } PEER(CV_8UC1, CV_32FC1, 0.5, 3.0)},
        {"ScaleC_32f_C1R", 4, 4, true, true,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiScaleC_32f_C1R(f32(a), a.step, 2.5, -1.0, f32w(b), b.step, {s.width, s.height},
                                       gexAlgHintFast);
         } PEER(CV_32FC1, CV_32FC1, 2.5, -1.0)},
        // The bit forms have no peer: their rows give our time alone. The
        // byte counts are per pixel, rounded up for the bit image.
        {"GrayToBin_8u1u_C1R", 1, 1, false, false,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiGrayToBin_8u1u_C1R(a.data, a.step, b.data, b.step, 3, {s.width, s.height}, 127);
         } PEER(-1, -1, 0.0, 0.0)},
        {"BinToGray_1u8u_C1R", 1, 1, false, false,
         [](Buffer& a, Buffer& b, Size s) {
             return gexiBinToGray_1u8u_C1R(a.data, a.step, 3, b.data, b.step, {s.width, s.height}, 0, 255);
         } PEER(-1, -1, 0.0, 0.0)},
    };
    return v;
}

const bool registered = [] {
    for (Size s : {k4K, kSmall})
        for (const Op& op : ops()) {
            const std::string base = std::string(op.name) + "/" + s.name;
            benchmark::RegisterBenchmark((base + "/gex").c_str(), [s, &op](benchmark::State& st) { gex_row(st, s, op); })
                ->Unit(benchmark::kMicrosecond)
                ->UseRealTime();
#ifdef GEX_HAVE_OPENCV
            if (op.cvSrc >= 0)
                benchmark::RegisterBenchmark((base + "/opencv").c_str(),
                                             [s, &op](benchmark::State& st) { cv_row(st, s, op); })
                    ->Unit(benchmark::kMicrosecond)
                    ->UseRealTime();
#endif
        }
    return true;
}();

}  // namespace
