/* gexIP geometry: resize, warps and remap. */
#ifndef GEXGEOMETRY_H
#define GEXGEOMETRY_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A resize state record: an opaque block of the size the query returns. */
typedef struct GexiResizeSpec GexiResizeSpec;

/* ---- Resize: protocol, queries, nearest, linear, cubic, Lanczos ---- */

/* (end of resize protocol) */

/* ---- Resize: super-sampling ---- */

/* Super-sampling: every destination pixel is the area average of the source
 * box it covers; downscaling only (a source extent below the destination's
 * is refused with -6; an equal extent means no resampling on that axis).
 * Init takes no buffer; the 16u, 16s and 32f Init forms build the same
 * record as the 8u form. A run takes no border and reads no pixel outside
 * the source: pSrc is the source pixel at the tile's source offset. */
GexStatus gexiResizeSuperInit_8u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeSuperInit_16u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeSuperInit_16s(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeSuperInit_32f(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
/* dataType: gex8u, gex16u, gex16s or gex32f. */
GexStatus gexiResizeSuperInit_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec);

GexStatus gexiResizeSuper_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);

GexStatus gexiResizeSuper_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);

GexStatus gexiResizeSuper_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);

GexStatus gexiResizeSuper_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeSuper_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);

/* (end of super-sampling) */

#ifdef __cplusplus
}
#endif

#endif /* GEXGEOMETRY_H */
