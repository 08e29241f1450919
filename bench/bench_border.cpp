// Border copies against OpenCV's copyMakeBorder with one thread (replicate,
// reflect-101 = our mirror, constant) on a 1920x1080 8u C3 image with a
// 16-pixel border, and a plain Copy of the source for the bandwidth they
// should reach. Bytes counted: the source read plus the destination written.
#include "common.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace gexbench;

constexpr int kW = 1920, kH = 1080, kB = 16, kCh = 3;
constexpr int kDW = kW + 2 * kB, kDH = kH + 2 * kB;
const Gex8u kConst[3] = {11, 22, 33};

enum class Mode { Replicate, Mirror, Const };

// Where a destination coordinate reads (i - border on an axis of n).
int source_index(Mode m, int t, int n) {
    if (m == Mode::Replicate) return t < 0 ? 0 : t >= n ? n - 1 : t;
    while (t < 0 || t >= n) t = t < 0 ? -t : 2 * (n - 1) - t;
    return t;
}

// Bytes of the destination that differ from the scalar model.
double check(Mode m, Buffer& src, Buffer& dst) {
    double bad = 0;
    for (int j = 0; j < kDH; ++j)
        for (int i = 0; i < kDW; ++i) {
            const int u = i - kB, v = j - kB;
            const bool inside = u >= 0 && u < kW && v >= 0 && v < kH;
            for (int c = 0; c < kCh; ++c) {
                const int want = (!inside && m == Mode::Const)
                                     ? kConst[c]
                                     : src.row(source_index(m, v, kH))[source_index(m, u, kW) * kCh + c];
                bad += dst.row(j)[i * kCh + c] != want;
            }
        }
    return bad;
}

constexpr std::int64_t kBytes = static_cast<std::int64_t>(kW) * kH * kCh + static_cast<std::int64_t>(kDW) * kDH * kCh;

void border_gex(benchmark::State& st, Mode m) {
    Buffer src(kW * kCh, kH, 64), dst(kDW * kCh, kDH, 128);
    src.randomize();
    for (auto _ : st) {
        GexStatus r = gexStsOk;
        switch (m) {
            case Mode::Replicate:
                r = gexiCopyReplicateBorder_8u_C3R(src.data, src.step, {kW, kH}, dst.data, dst.step, {kDW, kDH}, kB, kB);
                break;
            case Mode::Mirror:
                r = gexiCopyMirrorBorder_8u_C3R(src.data, src.step, {kW, kH}, dst.data, dst.step, {kDW, kDH}, kB, kB);
                break;
            case Mode::Const:
                r = gexiCopyConstBorder_8u_C3R(src.data, src.step, {kW, kH}, dst.data, dst.step, {kDW, kDH}, kB, kB,
                                               kConst);
                break;
        }
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = check(m, src, dst);
    set_bytes(st, kBytes);
}

// The plain copy of the source ROI: the bandwidth the border copies aim at.
void copy_gex(benchmark::State& st) {
    Buffer src(kW * kCh, kH, 64), dst(kW * kCh, kH, 128);
    src.randomize();
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiCopy_8u_C3R(src.data, src.step, dst.data, dst.step, {kW, kH}));
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = mismatches(src, dst);
    set_bytes(st, 2LL * kW * kH * kCh);
}

#ifdef GEX_HAVE_OPENCV
void border_cv(benchmark::State& st, Mode m) {
    OneThread one;
    Buffer src(kW * kCh, kH, 64), dst(kDW * kCh, kDH, 128);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC3, kW), b = as_mat(dst, CV_8UC3, kDW);
    const int type = m == Mode::Replicate ? cv::BORDER_REPLICATE
                     : m == Mode::Mirror  ? cv::BORDER_REFLECT_101
                                          : cv::BORDER_CONSTANT;
    const cv::Scalar value(kConst[0], kConst[1], kConst[2]);
    for (auto _ : st) {
        cv::copyMakeBorder(a, b, kB, kB, kB, kB, type, value);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = check(m, src, dst);
    set_bytes(st, kBytes);
}

void copy_cv(benchmark::State& st) {
    OneThread one;
    Buffer src(kW * kCh, kH, 64), dst(kW * kCh, kH, 128);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC3, kW), b = as_mat(dst, CV_8UC3, kW);
    for (auto _ : st) {
        a.copyTo(b);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * kW * kH * kCh);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    const std::string c = "/1080p+16";
    add("CopyReplicateBorder_8u_C3R" + c + "/gex", [](benchmark::State& st) { border_gex(st, Mode::Replicate); });
    add("CopyMirrorBorder_8u_C3R" + c + "/gex", [](benchmark::State& st) { border_gex(st, Mode::Mirror); });
    add("CopyConstBorder_8u_C3R" + c + "/gex", [](benchmark::State& st) { border_gex(st, Mode::Const); });
    add("Copy_8u_C3R/1080p/gex", [](benchmark::State& st) { copy_gex(st); });
#ifdef GEX_HAVE_OPENCV
    add("CopyReplicateBorder_8u_C3R" + c + "/opencv", [](benchmark::State& st) { border_cv(st, Mode::Replicate); });
    add("CopyMirrorBorder_8u_C3R" + c + "/opencv", [](benchmark::State& st) { border_cv(st, Mode::Mirror); });
    add("CopyConstBorder_8u_C3R" + c + "/opencv", [](benchmark::State& st) { border_cv(st, Mode::Const); });
    add("Copy_8u_C3R/1080p/opencv", [](benchmark::State& st) { copy_cv(st); });
#endif
    return true;
}();

}  // namespace
