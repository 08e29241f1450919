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

/* The resize protocol. A size query gives the bytes of the state record and of
 * the Init buffer for a pair of sizes and an interpolation (1 nearest,
 * 2 linear, 6 two-parameter cubic, 8 super-sampling, 16 Lanczos); an Init
 * fills the record in the caller's block (worked on at its address rounded up
 * to 64 bytes); a run produces any tile (dstOffset, dstSize) of the
 * destination from the record, a scratch buffer of the size
 * gexiResizeGetBufferSize gives, and the source pointer placed at the offset
 * gexiResizeGetSrcOffset gives for the tile. Tiles are independent and may run
 * concurrently on one record, each with its own scratch buffer.
 * Pixel centres sit at half-integers on both grids: x(i) = (i + 0.5) r - 0.5.
 * The 16u, 16s and 32f forms of the queries are the 8u form; the 64f forms test
 * for a double-table record; the _L forms take 64-bit sizes and work on records
 * of the _L Inits. Warnings: +1 nothing to do, +46 antialiasing ignored,
 * +48 the tile was clipped to the destination. */
GexStatus gexiResizeGetSize_8u(GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing, Gex32u* pSpecSize, Gex32u* pInitBufSize);
GexStatus gexiResizeGetSize_16u(GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing, Gex32u* pSpecSize, Gex32u* pInitBufSize);
GexStatus gexiResizeGetSize_16s(GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing, Gex32u* pSpecSize, Gex32u* pInitBufSize);
GexStatus gexiResizeGetSize_32f(GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing, Gex32u* pSpecSize, Gex32u* pInitBufSize);
GexStatus gexiResizeGetSize_64f(GexiSize srcSize, GexiSize dstSize, GexiInterpolation interpolation, Gex32u antialiasing, Gex32u* pSpecSize, Gex32u* pInitBufSize);
GexStatus gexiResizeGetSize_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiInterpolation interpolation, Gex32u antialiasing, Gex64s* pSpecSize, Gex64s* pInitBufSize);
/* Tile queries: the pixels an interpolation reads beyond the source, the source
 * origin of a tile, its source rectangle (without border), and the scratch bytes
 * for a tile of dstSize with numChannels channels. */
GexStatus gexiResizeGetBorderSize_8u(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetBorderSize_16u(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetBorderSize_16s(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetBorderSize_32f(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetBorderSize_64f(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetBorderSize_L(const GexiResizeSpec* pSpec, GexiBorderSize* pBorderSize);
GexStatus gexiResizeGetSrcOffset_8u(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset);
GexStatus gexiResizeGetSrcOffset_16u(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset);
GexStatus gexiResizeGetSrcOffset_16s(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset);
GexStatus gexiResizeGetSrcOffset_32f(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset);
GexStatus gexiResizeGetSrcOffset_64f(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiPoint* pSrcOffset);
GexStatus gexiResizeGetSrcOffset_L(const GexiResizeSpec* pSpec, GexiPointL dstOffset, GexiPointL* pSrcOffset);
GexStatus gexiResizeGetSrcRoi_8u(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset, GexiSize* pSrcSize);
GexStatus gexiResizeGetSrcRoi_16u(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset, GexiSize* pSrcSize);
GexStatus gexiResizeGetSrcRoi_16s(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset, GexiSize* pSrcSize);
GexStatus gexiResizeGetSrcRoi_32f(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset, GexiSize* pSrcSize);
GexStatus gexiResizeGetSrcRoi_64f(const GexiResizeSpec* pSpec, GexiPoint dstOffset, GexiSize dstSize, GexiPoint* pSrcOffset, GexiSize* pSrcSize);
GexStatus gexiResizeGetSrcRoi_L(const GexiResizeSpec* pSpec, GexiPointL dstOffset, GexiSizeL dstSize, GexiPointL* pSrcOffset, GexiSizeL* pSrcSize);
GexStatus gexiResizeGetBufferSize_8u(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize);
GexStatus gexiResizeGetBufferSize_16u(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize);
GexStatus gexiResizeGetBufferSize_16s(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize);
GexStatus gexiResizeGetBufferSize_32f(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize);
GexStatus gexiResizeGetBufferSize_64f(const GexiResizeSpec* pSpec, GexiSize dstSize, Gex32u numChannels, Gex32u* pBufSize);
GexStatus gexiResizeGetBufferSize_L(const GexiResizeSpec* pSpec, GexiSizeL dstSize, Gex32u numChannels, Gex64s* pBufSize);
/* Inits. Nearest: positions only, any source size. Linear: 8u builds Q14
 * weights, 16u/16s/32f float weights (one record serves the three), 64f double
 * weights; the source must be at least 2 x 2. Cubic (source at least 4 x 4) and
 * Lanczos (numLobes 2 or 3, source at least 2 numLobes) build float weight rows
 * and use pInitBuf only while they run. */
GexStatus gexiResizeNearestInit_8u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeNearestInit_16u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeNearestInit_16s(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeNearestInit_32f(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeNearestInit_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_8u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_16u(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_16s(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_32f(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_64f(GexiSize srcSize, GexiSize dstSize, GexiResizeSpec* pSpec);
GexStatus gexiResizeLinearInit_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, GexiResizeSpec* pSpec);
GexStatus gexiResizeCubicInit_8u(GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeCubicInit_16u(GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeCubicInit_16s(GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeCubicInit_32f(GexiSize srcSize, GexiSize dstSize, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeCubicInit_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, Gex32f valueB, Gex32f valueC, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeLanczosInit_8u(GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeLanczosInit_16u(GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeLanczosInit_16s(GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeLanczosInit_32f(GexiSize srcSize, GexiSize dstSize, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
GexStatus gexiResizeLanczosInit_L(GexiSizeL srcSize, GexiSizeL dstSize, GexDataType dataType, Gex32u numLobes, GexiResizeSpec* pSpec, Gex8u* pInitBuf);
/* Runs. pSrc is the source pixel at the tile's source offset inside the whole
 * source image, pDst the tile's first pixel. Nearest copies pixels bit for bit.
 * Linear, cubic and Lanczos take border 240 (all neighbours in memory) or a
 * replicate mode (1) with any in-memory flags; pBorderValue is not read. */
GexStatus gexiResizeNearest_8u_C1R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_8u_C3R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_8u_C4R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C1R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C3R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C4R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C1R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C3R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C4R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C1R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C3R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C4R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeNearest_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C1R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C3R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C4R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C1R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C3R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C4R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C1R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C3R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C4R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C1R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C3R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C4R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C1R(const Gex64f* pSrc, Gex32s srcStep, Gex64f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C1R_L(const Gex64f* pSrc, Gex64s srcStep, Gex64f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C3R(const Gex64f* pSrc, Gex32s srcStep, Gex64f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C3R_L(const Gex64f* pSrc, Gex64s srcStep, Gex64f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C4R(const Gex64f* pSrc, Gex32s srcStep, Gex64f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLinear_64f_C4R_L(const Gex64f* pSrc, Gex64s srcStep, Gex64f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex64f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C1R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C3R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C4R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C1R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C3R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C4R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C1R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C3R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C4R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C1R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C3R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C4R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeCubic_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C1R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C3R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C4R(const Gex8u* pSrc, Gex32s srcStep, Gex8u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex8u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C1R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C3R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C4R(const Gex16u* pSrc, Gex32s srcStep, Gex16u* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16u* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C1R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C3R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C4R(const Gex16s* pSrc, Gex32s srcStep, Gex16s* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex16s* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C1R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C3R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C4R(const Gex32f* pSrc, Gex32s srcStep, Gex32f* pDst, Gex32s dstStep, GexiPoint dstOffset, GexiSize dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiResizeLanczos_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiPointL dstOffset, GexiSizeL dstSize, GexiBorderType border, const Gex32f* pBorderValue, const GexiResizeSpec* pSpec, Gex8u* pBuffer);

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
