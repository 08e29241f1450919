// Channel and layout moves against OpenCV with one thread: channel swap
// (BGR to RGB), transpose (8u and 32f), and flips of an 8u C3 image about
// each axis. A memcpy of the channel swap's bytes shows the bandwidth bound. Each "gex" row counts the bytes in which our result differs from
// the peer's (from a plain model when OpenCV is absent).
#include "common.hpp"

#ifdef GEX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace gexbench;

constexpr Size kHD{"1920x1080", 1920, 1080};

// ---- the expected results: the peer's where there is one, else a model ------------

void expect_swap(Buffer& src, Buffer& out, Size s) {
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    cv::Mat a = as_mat(src, CV_8UC3, s.width), b = as_mat(out, CV_8UC3, s.width);
    cv::cvtColor(a, b, cv::COLOR_BGR2RGB);
#else
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x)
            for (int c = 0; c < 3; ++c) out.row(y)[3 * x + c] = src.row(y)[3 * x + 2 - c];
#endif
}

template <int E>
void expect_transpose(Buffer& src, Buffer& out, Size s) {
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    const int type = E == 1 ? CV_8UC1 : CV_32FC1;
    cv::Mat a = as_mat(src, type, s.width), b = as_mat(out, type, s.height);
    cv::transpose(a, b);
#else
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) std::memcpy(out.row(x) + y * E, src.row(y) + x * E, E);
#endif
}

void expect_flip(Buffer& src, Buffer& out, Size s, int flip) {
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    cv::Mat a = as_mat(src, CV_8UC3, s.width), b = as_mat(out, CV_8UC3, s.width);
    cv::flip(a, b, flip == 0 ? 0 : flip == 1 ? 1 : -1);
#else
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const int sx = flip == 0 ? x : s.width - 1 - x, sy = flip == 1 ? y : s.height - 1 - y;
            std::memcpy(out.row(y) + 3 * x, src.row(sy) + 3 * sx, 3);
        }
#endif
}

// ---- our rows -----------------------------------------------------------------------

void swap_gex(benchmark::State& st, Size s) {
    Buffer src(s.width * 3, s.height), dst(s.width * 3, s.height), ref(s.width * 3, s.height);
    src.randomize();
    const int order[3] = {2, 1, 0};
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiSwapChannels_8u_C3R(src.data, src.step, dst.data, dst.step, {s.width, s.height}, order));
        benchmark::ClobberMemory();
    }
    expect_swap(src, ref, s);
    st.counters["mismatch"] = mismatches(dst, ref);
    set_bytes(st, 6LL * s.width * s.height);
}

template <int E>
void transpose_gex(benchmark::State& st, Size s) {
    Buffer src(s.width * E, s.height), dst(s.height * E, s.width), ref(s.height * E, s.width);
    src.randomize();
    for (auto _ : st) {
        GexStatus r;
        if constexpr (E == 1)
            r = gexiTranspose_8u_C1R(src.data, src.step, dst.data, dst.step, {s.width, s.height});
        else
            r = gexiTranspose_32f_C1R(reinterpret_cast<const Gex32f*>(src.data), src.step,
                                      reinterpret_cast<Gex32f*>(dst.data), dst.step, {s.width, s.height});
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
    expect_transpose<E>(src, ref, s);
    st.counters["mismatch"] = mismatches(dst, ref);
    set_bytes(st, 2LL * E * s.width * s.height);
}

void flip_gex(benchmark::State& st, Size s, int flip) {
    Buffer src(s.width * 3, s.height), dst(s.width * 3, s.height), ref(s.width * 3, s.height);
    src.randomize();
    for (auto _ : st) {
        benchmark::DoNotOptimize(
            gexiMirror_8u_C3R(src.data, src.step, dst.data, dst.step, {s.width, s.height}, static_cast<GexiAxis>(flip)));
        benchmark::ClobberMemory();
    }
    expect_flip(src, ref, s, flip);
    st.counters["mismatch"] = mismatches(dst, ref);
    set_bytes(st, 6LL * s.width * s.height);
}

// ---- the peers' rows ------------------------------------------------------------------

// The same bytes copied row by row: the bandwidth bound of a channel swap.
void memcpy_rows(benchmark::State& st, Size s) {
    Buffer src(s.width * 3, s.height), dst(s.width * 3, s.height);
    src.randomize();
    for (auto _ : st) {
        for (int y = 0; y < s.height; ++y) std::memcpy(dst.row(y), src.row(y), static_cast<std::size_t>(src.rowBytes));
        benchmark::ClobberMemory();
    }
    set_bytes(st, 6LL * s.width * s.height);
}

#ifdef GEX_HAVE_OPENCV
void swap_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer src(s.width * 3, s.height), dst(s.width * 3, s.height);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC3, s.width), b = as_mat(dst, CV_8UC3, s.width);
    for (auto _ : st) {
        cv::cvtColor(a, b, cv::COLOR_BGR2RGB);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 6LL * s.width * s.height);
}

template <int E>
void transpose_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer src(s.width * E, s.height), dst(s.height * E, s.width);
    src.randomize();
    const int type = E == 1 ? CV_8UC1 : CV_32FC1;
    cv::Mat a = as_mat(src, type, s.width), b = as_mat(dst, type, s.height);
    for (auto _ : st) {
        cv::transpose(a, b);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * E * s.width * s.height);
}

void flip_cv(benchmark::State& st, Size s, int flip) {
    OneThread one;
    Buffer src(s.width * 3, s.height), dst(s.width * 3, s.height);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC3, s.width), b = as_mat(dst, CV_8UC3, s.width);
    const int code = flip == 0 ? 0 : flip == 1 ? 1 : -1;
    for (auto _ : st) {
        cv::flip(a, b, code);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 6LL * s.width * s.height);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    for (Size s : {kHD, kSmall}) {
        const std::string sz = s.name;
        add("SwapChannels_8u_C3R/210/" + sz + "/gex", [s](benchmark::State& st) { swap_gex(st, s); });
        add("SwapChannels_8u_C3R/210/" + sz + "/memcpy", [s](benchmark::State& st) { memcpy_rows(st, s); });
        add("Transpose_8u_C1R/" + sz + "/gex", [s](benchmark::State& st) { transpose_gex<1>(st, s); });
        add("Transpose_32f_C1R/" + sz + "/gex", [s](benchmark::State& st) { transpose_gex<4>(st, s); });
        for (int f = 0; f < 3; ++f)
            add("Mirror_8u_C3R/flip" + std::to_string(f) + "/" + sz + "/gex",
                [s, f](benchmark::State& st) { flip_gex(st, s, f); });
#ifdef GEX_HAVE_OPENCV
        add("SwapChannels_8u_C3R/210/" + sz + "/opencv", [s](benchmark::State& st) { swap_cv(st, s); });
        add("Transpose_8u_C1R/" + sz + "/opencv", [s](benchmark::State& st) { transpose_cv<1>(st, s); });
        add("Transpose_32f_C1R/" + sz + "/opencv", [s](benchmark::State& st) { transpose_cv<4>(st, s); });
        for (int f = 0; f < 3; ++f)
            add("Mirror_8u_C3R/flip" + std::to_string(f) + "/" + sz + "/opencv",
                [s, f](benchmark::State& st) { flip_cv(st, s, f); });
#endif
    }
    return true;
}();

}  // namespace
