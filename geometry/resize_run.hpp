// The run of nearest, linear, cubic and Lanczos: the checks in their order,
// the tile preparation, the bands and the interior, for one depth, channel
// count and method. Each family file instantiates it for its exports.
#pragma once

#include "geometry/resize_common.hpp"
#include "geometry/resize_kernels.hpp"
#include "geometry/resize_kernels_avx512.hpp"

namespace gex::resize {

// The interior kernel of a method at a depth and channel count: the 512-bit
// kernels where they exist (8u and 32f), the scalar ones otherwise.
template <class T, int C, Kind K, int NT>
struct KernelFor {
    using type = TapsScalar<T, C, NT>;
};
template <class T, int C, int NT>
    requires(std::is_same_v<T, std::uint8_t> || std::is_same_v<T, float>)
struct KernelFor<T, C, Kind::Cubic, NT> {
    using type = TapsVector<T, C, NT>;
};
template <class T, int C, int NT>
    requires(std::is_same_v<T, std::uint8_t> || std::is_same_v<T, float>)
struct KernelFor<T, C, Kind::Lanczos, NT> {
    using type = TapsVector<T, C, NT>;
};
template <class T, int C, int NT>
struct KernelFor<T, C, Kind::Linear, NT> {
    using type = LinearFloatScalar<T, C>;
};
template <int C, int NT>
struct KernelFor<float, C, Kind::Linear, NT> {
    using type = LinearFloatVector<C>;
};
template <int C, int NT>
struct KernelFor<std::uint8_t, C, Kind::Linear, NT> {
    using type = LinearQ14Vector<C>;
};

template <class T, int C>
void run_nearest(const Tile<T>& t) {
    for (std::int64_t i = 0; i < t.h; ++i) {
        const T* s = row_at(t.src, t.srcStep, t.yTab[i]);
        T* d = row_at(t.dst, t.dstStep, i);
        for (std::int64_t j = 0; j < t.w; ++j) {
            const T* p = s + std::int64_t(t.xTab[j]) * C;
            for (int c = 0; c < C; ++c) d[j * C + c] = p[c];
        }
    }
}

template <class T, int C, Kind K, bool Large>
GexStatus resize_run(const T* pSrc, std::int64_t srcStep, T* pDst, std::int64_t dstStep, std::int64_t offX,
                     std::int64_t offY, std::int64_t width, std::int64_t height, int border, const void* pSpec,
                     void* pBuffer) {
    if constexpr (K != Kind::Nearest)
        if (!border_ok(border)) return gexStsBorder;
    const RunArgs a{pSrc, srcStep, pDst, dstStep, offX, offY, width, height, pSpec, pBuffer};
    GEX_CHECK(check_run(a, id_test<T, Large>(), sizeof(T), method_code(K)));
    const Record* s = record_at(pSpec);
    if (!tables_ok<T, K>(s)) return gexStsContextMatch;

    const Tile<T> t = prepare_tile(s, pSrc, srcStep, pDst, dstStep, offX, offY, width, height, pBuffer, C);
    if constexpr (K == Kind::Nearest) {
        run_nearest<T, C>(t);
    } else {
        const Bands b = band_widths(s, t, border);
        run_bands<T, C, K>(s, t, b, border);
        if constexpr (K == Kind::Linear) {
            run_interior<T, C, typename KernelFor<T, C, K, 2>::type>(s, t, b, 1);
        } else if (s->tapsX == 2) {
            run_interior<T, C, typename KernelFor<T, C, K, 4>::type>(s, t, b, 2);
        } else {
            if constexpr (K == Kind::Lanczos) run_interior<T, C, typename KernelFor<T, C, K, 6>::type>(s, t, b, 3);
        }
    }
    return run_status(s, width, height);
}

}  // namespace gex::resize

// One run export and its _L twin. `m` is the method's name in the export,
// `K` its kind; the border argument exists for every method but nearest.
#define GEX_RESIZE_RUN_BORDER(m, K, d, T, c, C)                                                              \
    GEX_EXPORT(GexStatus, gexiResize##m##_##d##_##c##R,                                                      \
               (const T* pSrc, Gex32s srcStep, T* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, \
                GexiBorderType border, const T* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer)) {  \
        (void)pBorderValue;                                                                                  \
        return resize::resize_run<T, C, K, false>(pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y,    \
                                                  dstSize.width, dstSize.height, int(border), pSpec, pBuffer); \
    }                                                                                                        \
    GEX_EXPORT(GexStatus, gexiResize##m##_##d##_##c##R_L,                                                    \
               (const T* pSrc, Gex64s srcStep, T* pDst, Gex64s dstStep, GexiPointL dstOffset,                \
                GexiSizeL dstSize, GexiBorderType border, const T* pBorderValue, const GexiResizeSpec* pSpec, \
                Gex8u* pBuffer)) {                                                                           \
        (void)pBorderValue;                                                                                  \
        return resize::resize_run<T, C, K, true>(pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y,     \
                                                 dstSize.width, dstSize.height, int(border), pSpec, pBuffer);  \
    }

#define GEX_RESIZE_RUN_BORDER_C(m, K, d, T)   \
    GEX_RESIZE_RUN_BORDER(m, K, d, T, C1, 1) \
    GEX_RESIZE_RUN_BORDER(m, K, d, T, C3, 3) \
    GEX_RESIZE_RUN_BORDER(m, K, d, T, C4, 4)
