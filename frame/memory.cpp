// Image allocation: rows padded to 64-byte boundaries, the step reported in
// a cell. The step cell tells a bad argument (0) from a too large image (the
// computed step, written before the total is tested).
#include <cstdint>

#include "gexcore.h"
#include "frame/export.hpp"

namespace gex {
namespace {

constexpr std::int64_t kMax32 = 0x7fffffff;

template <int BytesPerPixel>
void* malloc_32(int width, int height, int* pStep) {
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) {
        *pStep = 0;
        return nullptr;
    }
    const std::int64_t rowBytes = static_cast<std::int64_t>(width) * BytesPerPixel;
    const std::int64_t step = (rowBytes + 63) & ~std::int64_t{63};
    if (rowBytes > kMax32 || step > kMax32 || step < rowBytes) {
        *pStep = 0;
        return nullptr;
    }
    *pStep = static_cast<int>(step);
    const std::int64_t total = step * height;
    if (total >= 0x80000000LL) return nullptr;
    return gexMalloc(static_cast<int>(total));
}

// The 64-bit forms: a row whose bytes do not fit in 62 bits is a bad argument;
// a total that does not fit in 64 bits fails after the step is written.
template <int BytesPerPixel>
void* malloc_64(Gex64s width, Gex64s height, Gex64s* pStep) {
    if (!pStep) return nullptr;
    if (width < 1 || height < 1) {
        *pStep = 0;
        return nullptr;
    }
    unsigned __int128 rowBytes = static_cast<unsigned __int128>(width) * BytesPerPixel;
    if (rowBytes >= (static_cast<unsigned __int128>(1) << 62)) {
        *pStep = 0;
        return nullptr;
    }
    const Gex64s step = (static_cast<Gex64s>(rowBytes) + 63) & ~Gex64s{63};
    *pStep = step;
    unsigned __int128 total = static_cast<unsigned __int128>(step) * static_cast<unsigned __int128>(height);
    if (total > static_cast<unsigned __int128>(0x7fffffffffffffffLL)) return nullptr;
    return gexMalloc_L(static_cast<Gex64s>(total));
}

}  // namespace
}  // namespace gex

// Bytes per pixel: AC4 counts its alpha channel.
#define GEX_MALLOC_FORM(D, T, L, BPP)                                                          \
    GEX_EXPORT(T*, gexiMalloc_##D##_##L, (int widthPixels, int heightPixels, int* pStepBytes)) { \
        return static_cast<T*>(malloc_32<BPP>(widthPixels, heightPixels, pStepBytes));         \
    }                                                                                          \
    GEX_EXPORT(T*, gexiMalloc_##D##_##L##_L,                                                   \
               (Gex64s widthPixels, Gex64s heightPixels, Gex64s * pStepBytes)) {               \
        return static_cast<T*>(malloc_64<BPP>(widthPixels, heightPixels, pStepBytes));         \
    }

#define GEX_MALLOC_DEPTH(D, T, E)      \
    GEX_MALLOC_FORM(D, T, C1, E)       \
    GEX_MALLOC_FORM(D, T, C2, 2 * E)   \
    GEX_MALLOC_FORM(D, T, C3, 3 * E)   \
    GEX_MALLOC_FORM(D, T, C4, 4 * E)   \
    GEX_MALLOC_FORM(D, T, AC4, 4 * E)

GEX_MALLOC_DEPTH(8u, Gex8u, 1)
GEX_MALLOC_DEPTH(16u, Gex16u, 2)
GEX_MALLOC_DEPTH(16s, Gex16s, 2)
GEX_MALLOC_DEPTH(32s, Gex32s, 4)
GEX_MALLOC_DEPTH(32f, Gex32f, 4)
GEX_MALLOC_DEPTH(32sc, Gex32sc, 8)
GEX_MALLOC_DEPTH(32fc, Gex32fc, 8)

GEX_EXPORT(void, gexiFree, (void* ptr)) { gexFree(ptr); }
