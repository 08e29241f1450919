// Resize against OpenCV's cv::resize with one thread: 8u C3 1920x1080 down to
// 1280x720 and up to 3840x2160 for linear, cubic and Lanczos, and 32f C1
// linear both ways. Whole images in one run with replicated borders.
// Agreement: the largest absolute difference of the two outputs ("maxdiff",
// on the OpenCV row). The methods are not the same everywhere, and the row's
// label says how: OpenCV's 8u linear works in 11-bit fixed point, its cubic
// has a = -0.75 where ours runs (B, C) = (0, 0.5), and its INTER_LANCZOS4 has
// four lobes where ours has three.
#include <algorithm>
#include <cmath>
#include <string>

#include "common.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace gexbench;

enum class Method { Linear, Cubic, Lanczos };

struct Case {
    const char* name;
    int sw, sh, dw, dh;
};
constexpr Case kDown{"1920x1080to1280x720", 1920, 1080, 1280, 720};
constexpr Case kUp{"1920x1080to3840x2160", 1920, 1080, 3840, 2160};

// A record and scratch for one resize, built through the protocol.
struct Resizer {
    std::vector<Gex8u> block, init, buf;
    GexiResizeSpec* record = nullptr;
    Resizer(Method m, const Case& c, int channels) {
        const GexiSize s{c.sw, c.sh}, d{c.dw, c.dh};
        const GexiInterpolation code = m == Method::Linear ? gexiInterLinear
                                       : m == Method::Cubic ? gexiInterCubic2P
                                                            : gexiInterLanczos;
        Gex32u specSize = 0, initSize = 0, bufSize = 0;
        gexiResizeGetSize_8u(s, d, code, 0, &specSize, &initSize);
        block.resize(specSize);
        init.resize(initSize);
        record = reinterpret_cast<GexiResizeSpec*>(block.data());
        if (m == Method::Linear) {
            if (channels == 3) gexiResizeLinearInit_8u(s, d, record);
            else gexiResizeLinearInit_32f(s, d, record);
        } else if (m == Method::Cubic) {
            gexiResizeCubicInit_8u(s, d, 0.0f, 0.5f, record, init.data());
        } else {
            gexiResizeLanczosInit_8u(s, d, 3, record, init.data());
        }
        gexiResizeGetBufferSize_8u(record, d, Gex32u(channels), &bufSize);
        buf.resize(bufSize);
    }
};

// 8u C3 (channels 3) or 32f C1 (channels 1).
GexStatus run_gex(Method m, const Case& c, int channels, Resizer& r, Buffer& src, Buffer& dst) {
    const GexiSize d{c.dw, c.dh};
    if (channels == 1)
        return gexiResizeLinear_32f_C1R(reinterpret_cast<const Gex32f*>(src.data), src.step,
                                        reinterpret_cast<Gex32f*>(dst.data), dst.step, {0, 0}, d, gexBorderRepl,
                                        nullptr, r.record, r.buf.data());
    switch (m) {
    case Method::Linear:
        return gexiResizeLinear_8u_C3R(src.data, src.step, dst.data, dst.step, {0, 0}, d, gexBorderRepl, nullptr, r.record,
                                       r.buf.data());
    case Method::Cubic:
        return gexiResizeCubic_8u_C3R(src.data, src.step, dst.data, dst.step, {0, 0}, d, gexBorderRepl, nullptr, r.record,
                                      r.buf.data());
    default:
        return gexiResizeLanczos_8u_C3R(src.data, src.step, dst.data, dst.step, {0, 0}, d, gexBorderRepl, nullptr,
                                        r.record, r.buf.data());
    }
}

int elem_bytes(int channels) { return channels == 1 ? 4 : 1; }

// A smooth image with some texture, so that the methods' differences stay
// those of their kernels rather than of noise.
void fill(Buffer& b, int width, int channels) {
    for (int y = 0; y < b.height; ++y)
        for (int x = 0; x < width * channels; ++x) {
            const double v = 127.5 + 60 * std::sin(x * 0.013 + y * 0.007) + 40 * std::cos(x * 0.11) * std::sin(y * 0.09);
            if (channels == 1) reinterpret_cast<float*>(b.row(y))[x] = float(v);
            else b.row(y)[x] = Gex8u(std::clamp(v, 0.0, 255.0));
        }
}

void gex_case(benchmark::State& st, Method m, Case c, int channels) {
    Buffer src(c.sw * channels * elem_bytes(channels), c.sh), dst(c.dw * channels * elem_bytes(channels), c.dh);
    fill(src, c.sw, channels);
    Resizer r(m, c, channels);
    for (auto _ : st) {
        benchmark::DoNotOptimize(run_gex(m, c, channels, r, src, dst));
        benchmark::ClobberMemory();
    }
    set_bytes(st, std::int64_t(c.sw) * c.sh * channels * elem_bytes(channels) +
                      std::int64_t(c.dw) * c.dh * channels * elem_bytes(channels));
}

#ifdef GEX_HAVE_OPENCV
void cv_case(benchmark::State& st, Method m, Case c, int channels) {
    OneThread one;
    const int type = channels == 1 ? CV_32FC1 : CV_8UC3;
    Buffer src(c.sw * channels * elem_bytes(channels), c.sh), dst(c.dw * channels * elem_bytes(channels), c.dh),
        ours(c.dw * channels * elem_bytes(channels), c.dh);
    fill(src, c.sw, channels);
    cv::Mat a = as_mat(src, type, c.sw), b = as_mat(dst, type, c.dw);
    const int flag = m == Method::Linear ? cv::INTER_LINEAR : m == Method::Cubic ? cv::INTER_CUBIC : cv::INTER_LANCZOS4;
    for (auto _ : st) {
        cv::resize(a, b, cv::Size(c.dw, c.dh), 0, 0, flag);
        benchmark::ClobberMemory();
    }
    set_bytes(st, std::int64_t(c.sw) * c.sh * channels * elem_bytes(channels) +
                      std::int64_t(c.dw) * c.dh * channels * elem_bytes(channels));
    Resizer r(m, c, channels);
    run_gex(m, c, channels, r, src, ours);
    double md = 0;
    for (int y = 0; y < c.dh; ++y)
        for (int x = 0; x < c.dw * channels; ++x) {
            const double u = channels == 1 ? reinterpret_cast<float*>(ours.row(y))[x] : ours.row(y)[x];
            const double v = channels == 1 ? reinterpret_cast<float*>(dst.row(y))[x] : dst.row(y)[x];
            md = std::max(md, std::fabs(u - v));
        }
    st.counters["maxdiff"] = md;
    st.SetLabel(m == Method::Linear ? (channels == 3 ? "peer 8u linear is 11-bit fixed point" : "same method")
                : m == Method::Cubic ? "peer cubic a=-0.75, ours B=0 C=0.5"
                                     : "peer Lanczos has 4 lobes, ours 3");
}
#endif

void add(const std::string& name, void (*f)(benchmark::State&, Method, Case, int), Method m, Case c, int channels) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& st) { f(st, m, c, channels); })
        ->Unit(benchmark::kMicrosecond)
        ->UseRealTime();
}

const bool registered = [] {
    struct Op {
        const char* name;
        Method m;
        int channels;
    };
    const Op ops[] = {{"ResizeLinear_8u_C3R", Method::Linear, 3},
                      {"ResizeCubic_8u_C3R", Method::Cubic, 3},
                      {"ResizeLanczos_8u_C3R", Method::Lanczos, 3},
                      {"ResizeLinear_32f_C1R", Method::Linear, 1}};
    for (const Op& o : ops)
        for (const Case& c : {kDown, kUp}) {
            const std::string base = std::string(o.name) + "/" + c.name;
            add(base + "/gex", gex_case, o.m, c, o.channels);
#ifdef GEX_HAVE_OPENCV
            add(base + "/opencv", cv_case, o.m, c, o.channels);
#endif
        }
    return true;
}();

}  // namespace
