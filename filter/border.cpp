// The border test and the per-pixel border rule.
#include "filter/border.hpp"

#include <algorithm>

namespace gex {

GexStatus check_border(int borderType, BorderModes accepted) {
    const auto v = static_cast<unsigned>(borderType);
    if (v > 255u) return gexStsBorder;
    if (v == static_cast<unsigned>(gexBorderInMem)) return gexStsOk;
    const unsigned mode = v & kBorderModeMask;
    return ((accepted >> mode) & 1u) ? gexStsOk : gexStsBorder;
}

std::int64_t border_coord(std::int64_t t, std::int64_t n, int mode, bool memLow, bool memHigh) {
    if (t >= 0 && t < n) return t;
    const bool low = t < 0;
    if (low ? memLow : memHigh) return t;
    switch (mode) {
        case gexBorderRepl:
            return low ? 0 : n - 1;
        case gexBorderMirror:
        case gexBorderMirrorR: {
            // Distance from the edge of the reflected pixel; the reflection
            // stops at the far edge unless the far side lies in memory.
            const std::int64_t edge = mode == gexBorderMirror ? 0 : 1;
            std::int64_t d = low ? -t - edge : t - (n - 1) - edge;
            if (!(low ? memHigh : memLow)) d = std::min(d, n - 1);
            return low ? d : n - 1 - d;
        }
        default:
            return kBorderConstant;
    }
}

const void* border_pixel(const void* origin, std::int64_t step, std::int64_t width, std::int64_t height,
                         std::int64_t x, std::int64_t y, int mode, int flags, int pixelBytes) {
    const auto* base = static_cast<const unsigned char*>(origin);
    if ((mode | flags) == gexBorderInMem) return base + y * step + x * pixelBytes;
    const std::int64_t row = border_coord(y, height, mode, flags & gexBorderInMemTop, flags & gexBorderInMemBottom);
    if (row == kBorderConstant) return nullptr;
    const std::int64_t col = border_coord(x, width, mode, flags & gexBorderInMemLeft, flags & gexBorderInMemRight);
    if (col == kBorderConstant) return nullptr;
    return base + row * step + col * pixelBytes;
}

namespace {

template <class T>
T get_px(const T* pSrc, int srcStep, GexiSize roi, int x, int y, int mode, int flags, T constant) {
    const T* p = border_pixel(pSrc, srcStep, roi, x, y, mode, flags, 1);
    return p == nullptr ? constant : *p;
}

}  // namespace

Gex8u getPx_8u(const Gex8u* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
               Gex8u constant) {
    return get_px(pSrc, srcStep, roiSize, x, y, mode, flags, constant);
}

Gex16s getPx_16s(const Gex16s* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
                 Gex16s constant) {
    return get_px(pSrc, srcStep, roiSize, x, y, mode, flags, constant);
}

Gex32f getPx_32f(const Gex32f* pSrc, int srcStep, GexiSize roiSize, int x, int y, int mode, int flags,
                 Gex32f constant) {
    return get_px(pSrc, srcStep, roiSize, x, y, mode, flags, constant);
}

}  // namespace gex
