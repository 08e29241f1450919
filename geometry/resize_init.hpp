// Record builders shared by the Init wrappers of nearest, linear, cubic and
// Lanczos. They run after the wrapper's checks and write the record at the
// caller's block rounded up to 64 bytes; the identifier goes in last (the
// Lanczos routine is the exception, told at its declaration).
#pragma once

#include <cstdint>

#include "geometry/resize_common.hpp"

namespace gex::resize {

struct Dims {
    std::uint32_t srcW, srcH, dstW, dstH;
};

enum class LinearTable { Q14, Float, Double };

void init_nearest(const Dims& d, std::uint32_t id, void* pSpec);
void init_linear(const Dims& d, LinearTable table, std::uint32_t id, void* pSpec);
void init_cubic(const Dims& d, float B, float C, std::uint32_t id, void* pSpec, void* pInitBuf);
// Writes the fields, the identifier and the positions, then tests the lobe
// count (-9999) and the source's minimum of 2 x numLobes (-6); only then the
// weights.
GexStatus init_lanczos(const Dims& d, std::uint32_t numLobes, std::uint32_t id, void* pSpec, void* pInitBuf);

// The checks every Init shares, in order: +1 for a zero extent, -6 for an
// extent below 1 or a source below `minSrc` on either axis.
template <class S>
GexStatus check_init_sizes(S src, S dst, std::int64_t minSrc) {
    if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return gexStsNoOperation;
    if (src.width < 1 || src.height < 1 || dst.width < 1 || dst.height < 1) return gexStsSize;
    if (src.width < minSrc || src.height < minSrc) return gexStsSize;
    return gexStsOk;
}

inline GexStatus check_large(GexiSizeL src, GexiSizeL dst) {
    return (src.width >= kLargeExtent || src.height >= kLargeExtent || dst.width >= kLargeExtent ||
            dst.height >= kLargeExtent)
               ? gexStsExceededSize
               : gexStsOk;
}

inline bool type_in(GexDataType t, std::initializer_list<int> set) {
    for (int v : set)
        if (int(t) == v) return true;
    return false;
}

template <class S>
Dims dims_of(S src, S dst) {
    return Dims{std::uint32_t(src.width), std::uint32_t(src.height), std::uint32_t(dst.width),
                std::uint32_t(dst.height)};
}

}  // namespace gex::resize
