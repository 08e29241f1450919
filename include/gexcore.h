/* gexcore: the small support library that gexIP imports.
 * Aligned allocation, cache geometry and the processor feature word. None of
 * these changes a pixel result; the last three only choose among code paths. */
#ifndef GEXCORE_H
#define GEXCORE_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Features reported by ownGetFeature (bits of the 64-bit feature word). */
#define GEX_FEATURE_SSE42     0x00000100ULL
#define GEX_FEATURE_AVX2      0x00008000ULL
#define GEX_FEATURE_AVX512F   0x00010000ULL
#define GEX_FEATURE_AVX512CD  0x00020000ULL
#define GEX_FEATURE_AVX512BW  0x00040000ULL
#define GEX_FEATURE_AVX512DQ  0x00080000ULL
#define GEX_FEATURE_AVX512VL  0x00100000ULL
#define GEX_FEATURE_MOVBE     0x08000000ULL
#define GEX_FEATURE_NTSTORE   0x10000000ULL

/* 64-byte aligned memory, or null for a size below 1 or a failed allocation. */
void* gexMalloc(int length);
void* gexMalloc_L(Gex64s length);
/* Releases what gexMalloc or gexMalloc_L returned; null is ignored. */
void gexFree(void* ptr);
/* 0 and the size in bytes of the largest data cache, or non-zero if unknown. */
GexStatus gexGetMaxCacheSizeB(int* pSizeByte);
/* Writes the cache line size in bytes; returns 0, or -8 for a null cell. */
GexStatus gex_get_cache_line_size(int* pSizeByte);
/* Non-zero if every feature of the mask is present. */
int ownGetFeature(Gex64u featureMask);

#ifdef __cplusplus
}
#endif

#endif /* GEXCORE_H */
