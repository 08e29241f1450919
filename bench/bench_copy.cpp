// Copy and Set against memcpy/memset (bandwidth) and OpenCV with one thread.
#include "common.hpp"

namespace {

using namespace gexbench;

template <int Ch>
void copy_gex(benchmark::State& st, Size s) {
    Buffer src(s.width * Ch, s.height, 64), dst(s.width * Ch, s.height, 128);
    src.randomize();
    for (auto _ : st) {
        GexStatus r = Ch == 1   ? gexiCopy_8u_C1R(src.data, src.step, dst.data, dst.step, {s.width, s.height})
                      : Ch == 3 ? gexiCopy_8u_C3R(src.data, src.step, dst.data, dst.step, {s.width, s.height})
                                : gexiCopy_8u_C4R(src.data, src.step, dst.data, dst.step, {s.width, s.height});
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
    st.counters["mismatch"] = mismatches(src, dst);
    set_bytes(st, 2LL * s.width * Ch * s.height);
}

void memcpy_peer(benchmark::State& st, Size s, int ch) {
    const std::size_t n = static_cast<std::size_t>(s.width) * ch * s.height;
    Buffer src(static_cast<int>(n), 1, 0), dst(static_cast<int>(n), 1, 0);
    src.randomize();
    for (auto _ : st) {
        std::memcpy(dst.data, src.data, n);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * static_cast<std::int64_t>(n));
}

void memset_peer(benchmark::State& st, Size s, int ch) {
    const std::size_t n = static_cast<std::size_t>(s.width) * ch * s.height;
    Buffer dst(static_cast<int>(n), 1, 0);
    for (auto _ : st) {
        std::memset(dst.data, 0x5a, n);
        benchmark::ClobberMemory();
    }
    set_bytes(st, static_cast<std::int64_t>(n));
}

void split_gex(benchmark::State& st, Size s) {
    Buffer src(s.width * 3, s.height);
    Buffer p0(s.width, s.height), p1(s.width, s.height), p2(s.width, s.height);
    src.randomize();
    Gex8u* const planes[3] = {p0.data, p1.data, p2.data};
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiCopy_8u_C3P3R(src.data, src.step, planes, p0.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    double bad = 0;
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x)
            bad += p0.row(y)[x] != src.row(y)[3 * x] || p1.row(y)[x] != src.row(y)[3 * x + 1] ||
                   p2.row(y)[x] != src.row(y)[3 * x + 2];
    st.counters["mismatch"] = bad;
    set_bytes(st, 6LL * s.width * s.height);
}

void merge_gex(benchmark::State& st, Size s) {
    Buffer dst(s.width * 3, s.height);
    Buffer p0(s.width, s.height), p1(s.width, s.height), p2(s.width, s.height);
    p0.randomize(1), p1.randomize(2), p2.randomize(3);
    const Gex8u* const planes[3] = {p0.data, p1.data, p2.data};
    for (auto _ : st) {
        benchmark::DoNotOptimize(gexiCopy_8u_P3C3R(planes, p0.step, dst.data, dst.step, {s.width, s.height}));
        benchmark::ClobberMemory();
    }
    double bad = 0;
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x)
            bad += p0.row(y)[x] != dst.row(y)[3 * x] || p1.row(y)[x] != dst.row(y)[3 * x + 1] ||
                   p2.row(y)[x] != dst.row(y)[3 * x + 2];
    st.counters["mismatch"] = bad;
    set_bytes(st, 6LL * s.width * s.height);
}

template <int Ch>
void set_gex(benchmark::State& st, Size s) {
    Buffer dst(s.width * Ch, s.height, 64);
    const Gex8u v[3] = {10, 20, 30};
    for (auto _ : st) {
        GexStatus r = Ch == 1 ? gexiSet_8u_C1R(0x5a, dst.data, dst.step, {s.width, s.height})
                              : gexiSet_8u_C3R(v, dst.data, dst.step, {s.width, s.height});
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
    double bad = 0;
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width * Ch; ++x) bad += dst.row(y)[x] != (Ch == 1 ? 0x5a : v[x % 3]);
    st.counters["mismatch"] = bad;
    set_bytes(st, static_cast<std::int64_t>(s.width) * Ch * s.height);
}

#ifdef GEX_HAVE_OPENCV
template <int Ch>
void copy_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer src(s.width * Ch, s.height, 64), dst(s.width * Ch, s.height, 128);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC(Ch), s.width), b = as_mat(dst, CV_8UC(Ch), s.width);
    for (auto _ : st) {
        a.copyTo(b);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 2LL * s.width * Ch * s.height);
}

void split_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer src(s.width * 3, s.height);
    Buffer p0(s.width, s.height), p1(s.width, s.height), p2(s.width, s.height);
    src.randomize();
    cv::Mat a = as_mat(src, CV_8UC3, s.width);
    cv::Mat out[3] = {as_mat(p0, CV_8UC1, s.width), as_mat(p1, CV_8UC1, s.width), as_mat(p2, CV_8UC1, s.width)};
    for (auto _ : st) {
        cv::split(a, out);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 6LL * s.width * s.height);
}

void merge_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer dst(s.width * 3, s.height);
    Buffer p0(s.width, s.height), p1(s.width, s.height), p2(s.width, s.height);
    p0.randomize(1), p1.randomize(2), p2.randomize(3);
    cv::Mat in[3] = {as_mat(p0, CV_8UC1, s.width), as_mat(p1, CV_8UC1, s.width), as_mat(p2, CV_8UC1, s.width)};
    cv::Mat b = as_mat(dst, CV_8UC3, s.width);
    for (auto _ : st) {
        cv::merge(in, 3, b);
        benchmark::ClobberMemory();
    }
    set_bytes(st, 6LL * s.width * s.height);
}

template <int Ch>
void set_cv(benchmark::State& st, Size s) {
    OneThread one;
    Buffer dst(s.width * Ch, s.height, 64);
    cv::Mat b = as_mat(dst, CV_8UC(Ch), s.width);
    for (auto _ : st) {
        b.setTo(Ch == 1 ? cv::Scalar(0x5a) : cv::Scalar(10, 20, 30));
        benchmark::ClobberMemory();
    }
    set_bytes(st, static_cast<std::int64_t>(s.width) * Ch * s.height);
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    for (Size s : {k4K, kSmall}) {
        const std::string sz = s.name;
        add("Copy_8u_C1R/" + sz + "/gex", [s](benchmark::State& st) { copy_gex<1>(st, s); });
        add("Copy_8u_C1R/" + sz + "/memcpy", [s](benchmark::State& st) { memcpy_peer(st, s, 1); });
        add("Copy_8u_C3R/" + sz + "/gex", [s](benchmark::State& st) { copy_gex<3>(st, s); });
        add("Copy_8u_C3R/" + sz + "/memcpy", [s](benchmark::State& st) { memcpy_peer(st, s, 3); });
        add("Copy_8u_C4R/" + sz + "/gex", [s](benchmark::State& st) { copy_gex<4>(st, s); });
        add("Copy_8u_C4R/" + sz + "/memcpy", [s](benchmark::State& st) { memcpy_peer(st, s, 4); });
        add("Copy_8u_C3P3R/" + sz + "/gex", [s](benchmark::State& st) { split_gex(st, s); });
        add("Copy_8u_P3C3R/" + sz + "/gex", [s](benchmark::State& st) { merge_gex(st, s); });
        add("Set_8u_C1R/" + sz + "/gex", [s](benchmark::State& st) { set_gex<1>(st, s); });
        add("Set_8u_C1R/" + sz + "/memset", [s](benchmark::State& st) { memset_peer(st, s, 1); });
        add("Set_8u_C3R/" + sz + "/gex", [s](benchmark::State& st) { set_gex<3>(st, s); });
        add("Set_8u_C3R/" + sz + "/memset", [s](benchmark::State& st) { memset_peer(st, s, 3); });
#ifdef GEX_HAVE_OPENCV
        add("Copy_8u_C1R/" + sz + "/opencv", [s](benchmark::State& st) { copy_cv<1>(st, s); });
        add("Copy_8u_C3R/" + sz + "/opencv", [s](benchmark::State& st) { copy_cv<3>(st, s); });
        add("Copy_8u_C4R/" + sz + "/opencv", [s](benchmark::State& st) { copy_cv<4>(st, s); });
        add("Copy_8u_C3P3R/" + sz + "/opencv", [s](benchmark::State& st) { split_cv(st, s); });
        add("Copy_8u_P3C3R/" + sz + "/opencv", [s](benchmark::State& st) { merge_cv(st, s); });
        add("Set_8u_C3R/" + sz + "/opencv", [s](benchmark::State& st) { set_cv<3>(st, s); });
        add("Set_8u_C1R/" + sz + "/opencv", [s](benchmark::State& st) { set_cv<1>(st, s); });
#endif
    }
    return true;
}();

}  // namespace
