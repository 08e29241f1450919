/* gexIP data movement and conversion: copies, fills, channel moves,
 * depth conversion. */
#ifndef GEXDATA_H
#define GEXDATA_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Copy ---------------------------------------------------------------
 * No step is checked: any step, zero and negative included, is used as given. */

/* 8u */
GexStatus gexiCopy_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_AC4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C3C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C4C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C1C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C1C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C3CR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C4CR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C3AC4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_AC4C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C3P3R(const Gex8u* pSrc, int srcStep, Gex8u* const pDst[3], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C4P4R(const Gex8u* pSrc, int srcStep, Gex8u* const pDst[4], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_P3C3R(const Gex8u* const pSrc[3], int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_P4C4R(const Gex8u* const pSrc[4], int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_8u_C1MR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_8u_C3MR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_8u_C4MR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_8u_AC4MR(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_8u_AC4R_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize);

/* 16u */
GexStatus gexiCopy_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_AC4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C3C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C4C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C1C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C1C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C3CR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C4CR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C3AC4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_AC4C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C3P3R(const Gex16u* pSrc, int srcStep, Gex16u* const pDst[3], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C4P4R(const Gex16u* pSrc, int srcStep, Gex16u* const pDst[4], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_P3C3R(const Gex16u* const pSrc[3], int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_P4C4R(const Gex16u* const pSrc[4], int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16u_C1MR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16u_C3MR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16u_C4MR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16u_AC4MR(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 16s */
GexStatus gexiCopy_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_AC4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C3C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C4C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C1C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C1C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C3CR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C4CR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C3AC4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_AC4C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C3P3R(const Gex16s* pSrc, int srcStep, Gex16s* const pDst[3], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C4P4R(const Gex16s* pSrc, int srcStep, Gex16s* const pDst[4], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_P3C3R(const Gex16s* const pSrc[3], int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_P4C4R(const Gex16s* const pSrc[4], int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_16s_C1MR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16s_C3MR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16s_C4MR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_16s_AC4MR(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 32s */
GexStatus gexiCopy_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_AC4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C3C1R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C4C1R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C1C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C1C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C3CR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C4CR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C3AC4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_AC4C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C3P3R(const Gex32s* pSrc, int srcStep, Gex32s* const pDst[3], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C4P4R(const Gex32s* pSrc, int srcStep, Gex32s* const pDst[4], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_P3C3R(const Gex32s* const pSrc[3], int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_P4C4R(const Gex32s* const pSrc[4], int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32s_C1MR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32s_C3MR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32s_C4MR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32s_AC4MR(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 32f */
GexStatus gexiCopy_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C3C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C4C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C1C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C1C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C3CR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C4CR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C3AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_AC4C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C3P3R(const Gex32f* pSrc, int srcStep, Gex32f* const pDst[3], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C4P4R(const Gex32f* pSrc, int srcStep, Gex32f* const pDst[4], int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_P3C3R(const Gex32f* const pSrc[3], int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_P4C4R(const Gex32f* const pSrc[4], int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiCopy_32f_C1MR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32f_C3MR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32f_C4MR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32f_AC4MR(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiCopy_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiCopy_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);

/* flags: 1 non-temporal stores (and a store fence), 2 also streaming loads. */
GexStatus gexiCopyManaged_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int flags);

/* ---- Set ----------------------------------------------------------------
 * Multi-channel forms take one value per colour channel (three for AC4, whose
 * fourth channel is left alone); C3CR and C4CR write the one channel at the
 * offset of pDst. */

/* 8u */
GexStatus gexiSet_8u_C1R(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_C3R(const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_C4R(const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_AC4R(const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_C3CR(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_C4CR(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_8u_C1MR(Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_8u_C3MR(const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_8u_C4MR(const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_8u_AC4MR(const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 16u */
GexStatus gexiSet_16u_C1R(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_C3R(const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_C4R(const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_AC4R(const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_C3CR(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_C4CR(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16u_C1MR(Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16u_C3MR(const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16u_C4MR(const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16u_AC4MR(const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 16s */
GexStatus gexiSet_16s_C1R(Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_C3R(const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_C4R(const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_AC4R(const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_C3CR(Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_C4CR(Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_16s_C1MR(Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16s_C3MR(const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16s_C4MR(const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_16s_AC4MR(const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 32s */
GexStatus gexiSet_32s_C1R(Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_C3R(const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_C4R(const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_AC4R(const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_C3CR(Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_C4CR(Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32s_C1MR(Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32s_C3MR(const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32s_C4MR(const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32s_AC4MR(const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* 32f */
GexStatus gexiSet_32f_C1R(Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_C3R(const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_C4R(const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_AC4R(const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_C3CR(Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_C4CR(Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSet_32f_C1MR(Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32f_C3MR(const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32f_C4MR(const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);
GexStatus gexiSet_32f_AC4MR(const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize, const Gex8u* pMask, int maskStep);

/* ---- Dup: each source pixel to every channel of the destination pixel ---- */
GexStatus gexiDup_8u_C1C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDup_8u_C1C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);

/* ---- Convert --------------------------------------------------------------
 * Widening is exact; narrowing saturates. Conversions to 32f and 64f give the
 * nearest value. The plain R forms check steps (< 1 gives gexStsStep); the Rs
 * and Sfs forms take any step. roundMode: 0 toward zero, 1 nearest with ties
 * to even, any other value nearest with ties away from zero. From floating
 * point, NaN gives the destination's minimum (0xFFFFFFFF for 32f32u). Sfs:
 * the exact value times 2^-scaleFactor, rounded by roundMode, saturated. */

/* widening and saturating, same scale */
GexStatus gexiConvert_8u16u_C1R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16u_C3R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16u_C4R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16u_AC4R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16s_C1R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16s_C3R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16s_C4R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u16s_AC4R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32s_C1R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32s_C3R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32s_C4R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32s_AC4R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32f_C1R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32f_C3R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32f_C4R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8u32f_AC4R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32s_C1R(const Gex8s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32s_C3R(const Gex8s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32s_C4R(const Gex8s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32s_AC4R(const Gex8s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32f_C1R(const Gex8s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32f_C3R(const Gex8s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32f_C4R(const Gex8s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32f_AC4R(const Gex8s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32s_C1R(const Gex16u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32s_C3R(const Gex16u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32s_C4R(const Gex16u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32s_AC4R(const Gex16u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32f_C1R(const Gex16u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32f_C3R(const Gex16u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32f_C4R(const Gex16u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32f_AC4R(const Gex16u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32s_C1R(const Gex16s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32s_C3R(const Gex16s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32s_C4R(const Gex16s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32s_AC4R(const Gex16s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32f_C1R(const Gex16s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32f_C3R(const Gex16s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32f_C4R(const Gex16s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32f_AC4R(const Gex16s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u8u_C1R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u8u_C3R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u8u_C4R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u8u_AC4R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s8u_C1R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s8u_C3R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s8u_C4R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s8u_AC4R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8u_C1R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8u_C3R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8u_C4R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8u_AC4R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8s_C1R(const Gex32s* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8s_C3R(const Gex32s* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8s_C4R(const Gex32s* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s8s_AC4R(const Gex32s* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s16s_C1R(const Gex8s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16u32u_C1R(const Gex16u* pSrc, int srcStep, Gex32u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s32f_C1R(const Gex32s* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32u32f_C1R(const Gex32u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s64f_C1R(const Gex8s* pSrc, int srcStep, Gex64f* pDst, int dstStep, GexiSize roiSize);

/* from 32f, rounded by roundMode */
GexStatus gexiConvert_32f8u_C1R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8u_C3R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8u_C4R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8u_AC4R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8s_C1R(const Gex32f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8s_C3R(const Gex32f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8s_C4R(const Gex32f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f8s_AC4R(const Gex32f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16u_C1R(const Gex32f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16u_C3R(const Gex32f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16u_C4R(const Gex32f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16u_AC4R(const Gex32f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16s_C1R(const Gex32f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16s_C3R(const Gex32f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16s_C4R(const Gex32f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);
GexStatus gexiConvert_32f16s_AC4R(const Gex32f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode);

/* saturating to unsigned: negative values give 0 */
GexStatus gexiConvert_8s8u_C1Rs(const Gex8s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s16u_C1Rs(const Gex8s* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_8s32u_C1Rs(const Gex8s* pSrc, int srcStep, Gex32u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s16u_C1Rs(const Gex16s* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_16s32u_C1Rs(const Gex16s* pSrc, int srcStep, Gex32u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiConvert_32s32u_C1Rs(const Gex32s* pSrc, int srcStep, Gex32u* pDst, int dstStep, GexiSize roiSize);

/* scaled */
GexStatus gexiConvert_8u8s_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_16s8s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_16u8s_C1RSfs(const Gex16u* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_16u16s_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f8u_C1RSfs(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f8s_C1RSfs(const Gex32f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f16u_C1RSfs(const Gex32f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f16s_C1RSfs(const Gex32f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f32s_C1RSfs(const Gex32f* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32f32u_C1RSfs(const Gex32f* pSrc, int srcStep, Gex32u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32s16s_C1RSfs(const Gex32s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32s16u_C1RSfs(const Gex32s* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32u8u_C1RSfs(const Gex32u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32u8s_C1RSfs(const Gex32u* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32u16u_C1RSfs(const Gex32u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32u16s_C1RSfs(const Gex32u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_32u32s_C1RSfs(const Gex32u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_64f8u_C1RSfs(const Gex64f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_64f8s_C1RSfs(const Gex64f* pSrc, int srcStep, Gex8s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_64f16u_C1RSfs(const Gex64f* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiConvert_64f16s_C1RSfs(const Gex64f* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
/* in place: the image holds 32f values on entry and their 32u results on return */
GexStatus gexiConvert_32f32u_C1IRSfs(Gex32u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);

/* (end of Convert) */

/* ---- Scale, ScaleC, BinToGray, GrayToBin ------------------------------------ */

/* Scale: the full range of the source type mapped linearly onto the full range
 * of the destination type. Checks: null, size, steps < 1 (-14); the forms with
 * vMin, vMax first test vMax - vMin <= 0 (gexStsScaleRange, -13), even before
 * the null check. In the narrowing forms hint 2 selects the accurate kernel
 * and any other value the fast one. AC4: the fourth channel is neither read
 * from the source nor written to the destination. */
GexStatus gexiScale_8u16u_C1R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16u_C3R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16u_C4R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16u_AC4R(const Gex8u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16s_C1R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16s_C3R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16s_C4R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u16s_AC4R(const Gex8u* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u32s_C1R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u32s_C3R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u32s_C4R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u32s_AC4R(const Gex8u* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiScale_8u32f_C1R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_8u32f_C3R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_8u32f_C4R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_8u32f_AC4R(const Gex8u* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_16u8u_C1R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16u8u_C3R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16u8u_C4R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16u8u_AC4R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16s8u_C1R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16s8u_C3R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16s8u_C4R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_16s8u_AC4R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_32s8u_C1R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_32s8u_C3R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_32s8u_C4R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_32s8u_AC4R(const Gex32s* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScale_32f8u_C1R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_32f8u_C3R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_32f8u_C4R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);
GexStatus gexiScale_32f8u_AC4R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, Gex32f vMin, Gex32f vMax);

/* ScaleC: dst = saturate(round(src * mVal + aVal)), rounding to nearest with
 * ties to even for integer destinations. mVal 1 and aVal 0 (within
 * 2.220446049250313e-16) is a plain conversion. Checks: null, size, steps < 1
 * (-14). Hint 2 computes in binary64; other hints in binary32 with a fused
 * multiply-add (binary64 for 64f sources). The in-place forms run the
 * not-in-place form with the image as source and destination. */
GexStatus gexiScaleC_8u8s_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u16u_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u16s_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u32s_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u32f_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u64f_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8u_C1IR(Gex8u* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s8u_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s16u_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s16s_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s32s_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s32f_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s64f_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s_C1R(const Gex8s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_8s_C1IR(Gex8s* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u8u_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u8s_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u16s_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u32s_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u32f_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u64f_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16u_C1IR(Gex16u* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s8u_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s8s_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s16u_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s32s_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s32f_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s64f_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s_C1R(const Gex16s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_16s_C1IR(Gex16s* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s8u_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s8s_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s16u_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s16s_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s32f_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s64f_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32s_C1IR(Gex32s* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f8u_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f8s_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f16u_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f16s_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f32s_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f64f_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f_C1R(const Gex32f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f8u_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f8s_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex8s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f16u_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f16s_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f32s_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f32f_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f_C1R(const Gex64f* pSrc, int srcStep, Gex64f mVal, Gex64f aVal, Gex64f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint);
GexStatus gexiScaleC_64f_C1IR(Gex64f* pSrcDst, int srcDstStep, Gex64f mVal, Gex64f aVal, GexiSize roiSize, GexHintAlgorithm hint);

/* BinToGray: bit-packed pixels (least significant bit first; pixel x of row y
 * is bit srcBitOffset + x of the row at pSrc + y * srcStep) to gray: a 0 bit
 * gives loVal, a 1 bit hiVal. GrayToBin: a bit is 1 when threshold < pixel;
 * the bits of the first and last byte outside the ROI keep their values.
 * Checks: null, size, steps < 1 (-14), then a negative bit offset gives
 * gexStsSize (-6). Offsets of 8 and more start in later bytes. */
GexStatus gexiBinToGray_1u8u_C1R(const Gex8u* pSrc, int srcStep, int srcBitOffset, Gex8u* pDst, int dstStep, GexiSize roiSize, Gex8u loVal, Gex8u hiVal);
GexStatus gexiBinToGray_1u16u_C1R(const Gex8u* pSrc, int srcStep, int srcBitOffset, Gex16u* pDst, int dstStep, GexiSize roiSize, Gex16u loVal, Gex16u hiVal);
GexStatus gexiBinToGray_1u16s_C1R(const Gex8u* pSrc, int srcStep, int srcBitOffset, Gex16s* pDst, int dstStep, GexiSize roiSize, Gex16s loVal, Gex16s hiVal);
GexStatus gexiBinToGray_1u32f_C1R(const Gex8u* pSrc, int srcStep, int srcBitOffset, Gex32f* pDst, int dstStep, GexiSize roiSize, Gex32f loVal, Gex32f hiVal);
GexStatus gexiGrayToBin_8u1u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roiSize, Gex8u threshold);
GexStatus gexiGrayToBin_16u1u_C1R(const Gex16u* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roiSize, Gex16u threshold);
GexStatus gexiGrayToBin_16s1u_C1R(const Gex16s* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roiSize, Gex16s threshold);
GexStatus gexiGrayToBin_32f1u_C1R(const Gex32f* pSrc, int srcStep, Gex8u* pDst, int dstStep, int dstBitOffset, GexiSize roiSize, Gex32f threshold);

/* (end of Scale) */

/* ---- SwapChannels, Transpose, Mirror ---------------------------------------- */

/* SwapChannels: dst channel c = src channel dstOrder[c].
 * C3, C4: entries 0..2 / 0..3. AC4: three entries 0..2; the destination's
 * fourth channel stays and the source's is not read. C4C3: three entries 0..3.
 * C3C4: four entries; 0..2 a source channel, 3 the constant val, above 3 the
 * destination channel keeps its value. Any other entry (negative ones
 * included) gives gexStsChannelOrder. A step of 0 gives gexStsStep; negative
 * steps are accepted. C3 and C4 with pSrc = pDst permute in place (on srcStep). */
GexStatus gexiSwapChannels_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4]);
GexStatus gexiSwapChannels_8u_AC4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_8u_C3C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4], Gex8u val);
GexStatus gexiSwapChannels_8u_C4C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4]);
GexStatus gexiSwapChannels_16u_AC4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16u_C3C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4], Gex16u val);
GexStatus gexiSwapChannels_16u_C4C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4]);
GexStatus gexiSwapChannels_16s_AC4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_16s_C3C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4], Gex16s val);
GexStatus gexiSwapChannels_16s_C4C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32s_C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32s_C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4]);
GexStatus gexiSwapChannels_32s_AC4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32s_C3C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4], Gex32s val);
GexStatus gexiSwapChannels_32s_C4C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4]);
GexStatus gexiSwapChannels_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_32f_C3C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const int dstOrder[4], Gex32f val);
GexStatus gexiSwapChannels_32f_C4C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_8u_C3IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, const int dstOrder[3]);
GexStatus gexiSwapChannels_8u_C4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, const int dstOrder[4]);

/* Transpose: dst(x = y', y = x') = src(x', y'). roiSize is the source's size;
 * the destination is roiSize.height wide and roiSize.width high. No step is
 * checked. The in-place forms need a square ROI (else gexStsSize); pSrc = pDst
 * runs the in-place form on srcStep. */
GexStatus gexiTranspose_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_8u_C1IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_8u_C3IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_8u_C4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C1IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C3IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16u_C4IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C1IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C3IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_16s_C4IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C1IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C3IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32s_C4IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiTranspose_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Mirror: flip 0 exchanges top and bottom, 1 left and right, 2 both; 3 (main
 * diagonal) and 4 (other diagonal) only in gexiMirror_{8u,16u,32s}_C1R, whose
 * destination is then roiSize.height wide and roiSize.width high, and ROIs
 * that overlap give gexStsNotSupportedMode. Another value gives
 * gexStsMirrorFlip. Only gexiMirror_{8u,16u,32s}_C1R test steps (< 1 gives
 * gexStsStep); the other forms take any step. pSrc = pDst (flips 0 to 2)
 * runs the in-place form on srcStep. AC4 keeps the destination's fourth
 * channel. */
GexStatus gexiMirror_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_C1IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_C3IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_C4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_AC4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_8u_AC4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C1IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C3IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_C4IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_AC4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16u_AC4IR(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C1IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C3IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_C4IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_AC4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_16s_AC4IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C1IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C3R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C3IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_C4IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_AC4R(const Gex32s* pSrc, int srcStep, Gex32s* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32s_AC4IR(Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize, GexiAxis flip);
GexStatus gexiMirror_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexiAxis flip);


/* (end of channel and layout moves) */

#ifdef __cplusplus
}
#endif

#endif /* GEXDATA_H */
