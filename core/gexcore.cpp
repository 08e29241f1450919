// The core support library: aligned allocation, cache geometry, features.
// The processor is asked once: inside a virtual machine every cpuid traps to
// the host and costs tens of microseconds, which a copy of a few megabytes
// would feel. The answers are constants of the machine, kept after the first
// query (thread-safe function-local statics).
#include "gexcore.h"

#include <cpuid.h>
#include <cstdlib>

namespace {

constexpr std::size_t kAlign = 64;

void* aligned_block(Gex64s length) {
    if (length < 1) return nullptr;
    void* p = nullptr;
    if (posix_memalign(&p, kAlign, static_cast<std::size_t>(length)) != 0) return nullptr;
    return p;
}

struct CacheInfo {
    int largest = 0;  // bytes of the largest data or unified cache, 0 if unknown
    int line = 0;
};

// Deterministic cache parameters (leaf 4) enumerate every cache level.
CacheInfo read_caches() {
    CacheInfo info;
    unsigned a, b, c, d;
    if (__get_cpuid_max(0, nullptr) < 4) return info;
    for (unsigned sub = 0; sub < 16; ++sub) {
        __cpuid_count(4, sub, a, b, c, d);
        unsigned type = a & 0x1f;
        if (type == 0) break;
        if (type == 2) continue;  // instruction cache
        unsigned long long ways = ((b >> 22) & 0x3ff) + 1;
        unsigned long long parts = ((b >> 12) & 0x3ff) + 1;
        unsigned long long line = (b & 0xfff) + 1;
        unsigned long long sets = static_cast<unsigned long long>(c) + 1;
        unsigned long long size = ways * parts * line * sets;
        if (size > 0x7fffffffULL) size = 0x7fffffffULL;
        if (static_cast<int>(size) > info.largest) info.largest = static_cast<int>(size);
        if (info.line == 0) info.line = static_cast<int>(line);
    }
    return info;
}

Gex64u feature_word() {
    unsigned a, b, c, d;
    Gex64u f = 0;
    if (__get_cpuid_max(0, nullptr) < 7) return f;
    __cpuid_count(1, 0, a, b, c, d);
    if (c & (1u << 20)) f |= GEX_FEATURE_SSE42;
    if (c & (1u << 22)) f |= GEX_FEATURE_MOVBE;
    if (d & (1u << 25)) f |= GEX_FEATURE_NTSTORE;  // SSE: movntps and sfence
    __cpuid_count(7, 0, a, b, c, d);
    if (b & (1u << 5)) f |= GEX_FEATURE_AVX2;
    if (b & (1u << 16)) f |= GEX_FEATURE_AVX512F;
    if (b & (1u << 28)) f |= GEX_FEATURE_AVX512CD;
    if (b & (1u << 30)) f |= GEX_FEATURE_AVX512BW;
    if (b & (1u << 17)) f |= GEX_FEATURE_AVX512DQ;
    if (b & (1u << 31)) f |= GEX_FEATURE_AVX512VL;
    return f;
}

const CacheInfo& caches() {
    static const CacheInfo info = read_caches();
    return info;
}

}  // namespace

extern "C" {

void* gexMalloc(int length) { return aligned_block(length); }

void* gexMalloc_L(Gex64s length) { return aligned_block(length); }

void gexFree(void* ptr) { std::free(ptr); }

GexStatus gexGetMaxCacheSizeB(int* pSizeByte) {
    if (!pSizeByte) return gexStsNullPtr;
    const CacheInfo& info = caches();
    if (info.largest <= 0) return gexStsErr;
    *pSizeByte = info.largest;
    return gexStsOk;
}

GexStatus gex_get_cache_line_size(int* pSizeByte) {
    if (!pSizeByte) return gexStsNullPtr;
    const CacheInfo& info = caches();
    *pSizeByte = info.line > 0 ? info.line : 64;
    return gexStsOk;
}

int ownGetFeature(Gex64u featureMask) {
    static const Gex64u features = feature_word();
    return (features & featureMask) == featureMask ? 1 : 0;
}

}  // extern "C"
