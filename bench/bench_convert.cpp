// Convert against OpenCV's convertTo with one thread: 8u to 32f, 32f to 8u
// (nearest with ties to even on both sides), 16s to 8u, on a full-HD image
// (which moves more bytes than the cache next to the core holds, so both
// sides meet the memory's bandwidth) and on 256x256 (where the kernels'
// own speed shows). The mismatch counter
// of our row counts the destination bytes that differ from the peer's output
// (from a plain loop when OpenCV is absent).
#include <cmath>

#include "common.hpp"

namespace {

using namespace gexbench;

constexpr Size k1080{"1920x1080", 1920, 1080};

struct Pair {
    int srcBytes, dstBytes;  // bytes per pixel
};

// Sources: 8u and 16s random bits; 32f values around the 8u range with
// plenty of exact ties.
void fill_source(Buffer& b, int kind, int width) {
    b.randomize(7);
    if (kind != 1) return;
    std::mt19937 rng(9);
    std::uniform_int_distribution<int> d(-40, 600);
    for (int y = 0; y < b.height; ++y) {
        float* r = reinterpret_cast<float*>(b.row(y));
        for (int x = 0; x < width; ++x) r[x] = static_cast<float>(d(rng)) * 0.5f;
    }
}

// 0: 8u -> 32f, 1: 32f -> 8u, 2: 16s -> 8u.
GexStatus run_gex(int kind, Buffer& src, Buffer& dst, Size s) {
    const GexiSize roi{s.width, s.height};
    switch (kind) {
        case 0: return gexiConvert_8u32f_C1R(src.data, src.step, reinterpret_cast<Gex32f*>(dst.data), dst.step, roi);
        case 1:
            return gexiConvert_32f8u_C1R(reinterpret_cast<const Gex32f*>(src.data), src.step, dst.data, dst.step, roi,
                                         gexRndNear);
        default: return gexiConvert_16s8u_C1R(reinterpret_cast<const Gex16s*>(src.data), src.step, dst.data, dst.step, roi);
    }
}

const Pair kPairs[] = {{1, 4}, {4, 1}, {2, 1}};

#ifdef GEX_HAVE_OPENCV
const int kCvSrc[] = {CV_8UC1, CV_32FC1, CV_16SC1};
const int kCvDst[] = {CV_32FC1, CV_8UC1, CV_8UC1};

void run_cv(int kind, Buffer& src, Buffer& dst, Size s) {
    cv::Mat a = as_mat(src, kCvSrc[kind], s.width), b = as_mat(dst, kCvDst[kind], s.width);
    a.convertTo(b, kCvDst[kind]);
}
#endif

// The peer's output (or a plain loop's) for the agreement count.
void reference(int kind, Buffer& src, Buffer& out, Size s) {
#ifdef GEX_HAVE_OPENCV
    OneThread one;
    run_cv(kind, src, out, s);
#else
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            if (kind == 0) {
                reinterpret_cast<float*>(out.row(y))[x] = static_cast<float>(src.row(y)[x]);
            } else if (kind == 1) {
                const float v = std::nearbyint(reinterpret_cast<const float*>(src.row(y))[x]);
                out.row(y)[x] = static_cast<std::uint8_t>(v < 0 ? 0 : (v > 255 ? 255 : v));
            } else {
                const int v = reinterpret_cast<const std::int16_t*>(src.row(y))[x];
                out.row(y)[x] = static_cast<std::uint8_t>(v < 0 ? 0 : (v > 255 ? 255 : v));
            }
        }
#endif
}

void convert_gex(benchmark::State& st, int kind, Size s) {
    const Pair p = kPairs[kind];
    Buffer src(s.width * p.srcBytes, s.height), dst(s.width * p.dstBytes, s.height, 128);
    fill_source(src, kind, s.width);
    for (auto _ : st) {
        benchmark::DoNotOptimize(run_gex(kind, src, dst, s));
        benchmark::ClobberMemory();
    }
    Buffer peer(s.width * p.dstBytes, s.height, 128);
    reference(kind, src, peer, s);
    st.counters["mismatch"] = mismatches(dst, peer);
    set_bytes(st, static_cast<std::int64_t>(s.width) * s.height * (p.srcBytes + p.dstBytes));
}

#ifdef GEX_HAVE_OPENCV
void convert_cv(benchmark::State& st, int kind, Size s) {
    OneThread one;
    const Pair p = kPairs[kind];
    Buffer src(s.width * p.srcBytes, s.height), dst(s.width * p.dstBytes, s.height, 128);
    fill_source(src, kind, s.width);
    for (auto _ : st) {
        run_cv(kind, src, dst, s);
        benchmark::ClobberMemory();
    }
    set_bytes(st, static_cast<std::int64_t>(s.width) * s.height * (p.srcBytes + p.dstBytes));
}
#endif

template <class F>
void add(const std::string& name, F f) {
    benchmark::RegisterBenchmark(name.c_str(), f)->Unit(benchmark::kMicrosecond)->UseRealTime();
}

const bool registered = [] {
    const char* names[] = {"Convert_8u32f_C1R", "Convert_32f8u_C1R", "Convert_16s8u_C1R"};
    for (Size s : {k1080, kSmall}) {
        const std::string sz = s.name;
        for (int kind = 0; kind < 3; ++kind) {
            const std::string op = names[kind];
            add(op + "/" + sz + "/gex", [kind, s](benchmark::State& st) { convert_gex(st, kind, s); });
#ifdef GEX_HAVE_OPENCV
            add(op + "/" + sz + "/opencv", [kind, s](benchmark::State& st) { convert_cv(st, kind, s); });
#endif
        }
    }
    return true;
}();

}  // namespace
