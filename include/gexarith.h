/* gexIP pixel arithmetic, compare, threshold, alpha composition, element functions and logic. */
#ifndef GEXARITH_H
#define GEXARITH_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Add, Sub, Mul and their constant forms ------------------------------ */
/* Integer results: the exact sum, difference or product times 2^-scaleFactor,
 * rounded to nearest with ties to even, saturated. Sub gives src2 - src1 (in
 * place: srcDst - src); SubC gives src - value. 32f forms are plain IEEE
 * operations. No step is checked: any step, zero and negative included, is
 * used as given. AC4 forms leave the destination's fourth channel alone. */

/* Add 8u */
GexStatus gexiAdd_8u_C1RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C3RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_AC4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C1IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C3IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_AC4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C1RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C3RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_AC4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C1IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C3IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_C4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_8u_AC4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Add 16u */
GexStatus gexiAdd_16u_C1RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C3RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_AC4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C1IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C3IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_AC4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C1RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C3RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_AC4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C1IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C3IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_C4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16u_AC4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Add 16s */
GexStatus gexiAdd_16s_C1RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C3RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_AC4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C1IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C3IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_AC4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C1RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C3RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_AC4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C1IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C3IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_C4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAdd_16s_AC4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Add 32f */
GexStatus gexiAdd_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAdd_32f_C1R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_C3R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_C4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_AC4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_C1IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_C3IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_C4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAdd_32f_AC4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* Sub 8u */
GexStatus gexiSub_8u_C1RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C3RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_AC4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C1IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C3IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_AC4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_8u_C1RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_C3RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_C4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_AC4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_C1IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_C3IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_C4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_8u_AC4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Sub 16u */
GexStatus gexiSub_16u_C1RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C3RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_AC4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C1IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C3IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_AC4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16u_C1RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_C3RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_C4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_AC4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_C1IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_C3IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_C4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16u_AC4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Sub 16s */
GexStatus gexiSub_16s_C1RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C3RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_AC4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C1IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C3IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_AC4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSub_16s_C1RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_C3RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_C4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_AC4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_C1IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_C3IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_C4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSub_16s_AC4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Sub 32f */
GexStatus gexiSub_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSub_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSub_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSub_32f_C1R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_C3R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_C4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_AC4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_C1IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_C3IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_C4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSub_32f_AC4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* Mul 8u */
GexStatus gexiMul_8u_C1RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C3RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_AC4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C1IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C3IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_AC4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_8u_C1RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_C3RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_C4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_AC4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_C1IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_C3IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_C4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_8u_AC4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Mul 16u */
GexStatus gexiMul_16u_C1RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C3RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_AC4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C1IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C3IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_AC4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16u_C1RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_C3RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_C4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_AC4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_C1IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_C3IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_C4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16u_AC4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Mul 16s */
GexStatus gexiMul_16s_C1RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C3RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_AC4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C1IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C3IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_AC4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMul_16s_C1RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_C3RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_C4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_AC4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_C1IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_C3IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_C4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMul_16s_AC4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* Mul 32f */
GexStatus gexiMul_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMul_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMul_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMul_32f_C1R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_C3R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_C4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_AC4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_C1IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_C3IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_C4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMul_32f_AC4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* AddC 8u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiAddC_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C3RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C1IRSfs(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C3IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C4IRSfs(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_AC4IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C1RSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u value, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C3RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[4], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_AC4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C1IRSfs_L(Gex8u value, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C3IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_C4IRSfs_L(const Gex8u value[4], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_8u_AC4IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* AddC 16u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiAddC_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C3RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C1IRSfs(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C3IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C4IRSfs(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_AC4IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C1RSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u value, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C3RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[4], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_AC4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C1IRSfs_L(Gex16u value, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C3IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_C4IRSfs_L(const Gex16u value[4], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16u_AC4IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* AddC 16s: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiAddC_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C3RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C1IRSfs(Gex16s value, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C3IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C4IRSfs(const Gex16s value[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_AC4IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C1RSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s value, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C3RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[4], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_AC4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C1IRSfs_L(Gex16s value, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C3IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_C4IRSfs_L(const Gex16s value[4], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiAddC_16s_AC4IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* AddC 32f: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiAddC_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C3R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C4R(const Gex32f* pSrc, int srcStep, const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_AC4R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C1IR(Gex32f value, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C3IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C4IR(const Gex32f value[4], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_AC4IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAddC_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f value, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[4], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_C1IR_L(Gex32f value, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_C3IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_C4IR_L(const Gex32f value[4], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiAddC_32f_AC4IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* SubC 8u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiSubC_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C3RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C1IRSfs(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C3IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C4IRSfs(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_AC4IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C1RSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u value, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C3RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[4], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_AC4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C1IRSfs_L(Gex8u value, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C3IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_C4IRSfs_L(const Gex8u value[4], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_8u_AC4IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* SubC 16u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiSubC_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C3RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C1IRSfs(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C3IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C4IRSfs(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_AC4IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C1RSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u value, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C3RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[4], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_AC4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C1IRSfs_L(Gex16u value, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C3IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_C4IRSfs_L(const Gex16u value[4], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16u_AC4IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* SubC 16s: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiSubC_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C3RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C1IRSfs(Gex16s value, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C3IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C4IRSfs(const Gex16s value[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_AC4IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C1RSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s value, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C3RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[4], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_AC4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C1IRSfs_L(Gex16s value, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C3IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_C4IRSfs_L(const Gex16s value[4], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiSubC_16s_AC4IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* SubC 32f: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiSubC_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C3R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C4R(const Gex32f* pSrc, int srcStep, const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_AC4R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C1IR(Gex32f value, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C3IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C4IR(const Gex32f value[4], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_AC4IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSubC_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f value, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[4], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_C1IR_L(Gex32f value, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_C3IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_C4IR_L(const Gex32f value[4], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiSubC_32f_AC4IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* MulC 8u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiMulC_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C3RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C1IRSfs(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C3IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C4IRSfs(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_AC4IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C1RSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u value, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C3RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[4], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_AC4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C1IRSfs_L(Gex8u value, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C3IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_C4IRSfs_L(const Gex8u value[4], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_8u_AC4IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* MulC 16u: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiMulC_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C3RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C1IRSfs(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C3IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C4IRSfs(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_AC4IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C1RSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u value, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C3RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[4], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_AC4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C1IRSfs_L(Gex16u value, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C3IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_C4IRSfs_L(const Gex16u value[4], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16u_AC4IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* MulC 16s: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiMulC_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C3RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C1IRSfs(Gex16s value, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C3IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C4IRSfs(const Gex16s value[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_AC4IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C1RSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s value, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C3RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[4], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_AC4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C1IRSfs_L(Gex16s value, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C3IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_C4IRSfs_L(const Gex16s value[4], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiMulC_16s_AC4IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

/* MulC 32f: one value for C1, value[3] for C3 and AC4, value[4] for C4 */
GexStatus gexiMulC_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C3R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C4R(const Gex32f* pSrc, int srcStep, const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_AC4R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C1IR(Gex32f value, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C3IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C4IR(const Gex32f value[4], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_AC4IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulC_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f value, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[4], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_C1IR_L(Gex32f value, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_C3IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_C4IR_L(const Gex32f value[4], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiMulC_32f_AC4IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* (end of Add, Sub, Mul) */

/* ---- Div, DivC, Div_Round, MulScale, MulCScale, MulC64f ------------------- */

/* Div: dst = src2 / src1 (the first operand is the divisor; in place:
 * srcDst / src). Integer depths: the exact quotient times 2^-scaleFactor,
 * rounded to nearest with ties to even, saturated. A zero divisor returns the
 * warning gexStsDivByZeroWarn (6) and writes 0 for 0 / 0, else the maximum
 * (16s: the end of the range with the sign of the dividend; 32f: infinity with
 * the sign of n xor d, or the NaN 0x7fbfffff for 0, -0 or NaN dividends).
 * 8u, 16s, 32f check steps (< 1: -14); 16u does not. */
GexStatus gexiDiv_8u_C1RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C1IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C3RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C3IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_AC4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_AC4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C1RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C1IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C3RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C3IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_C4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_AC4RSfs_L(const Gex8u* pSrc1, Gex64s src1Step, const Gex8u* pSrc2, Gex64s src2Step, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_8u_AC4IRSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDiv_16u_C1RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C1IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C3RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C3IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_AC4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_AC4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C1RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C1IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C3RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C3IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_C4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_AC4RSfs_L(const Gex16u* pSrc1, Gex64s src1Step, const Gex16u* pSrc2, Gex64s src2Step, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16u_AC4IRSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDiv_16s_C1RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C1IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C3RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C3IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_AC4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_AC4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C1RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C1IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C3RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C3IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_C4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_AC4RSfs_L(const Gex16s* pSrc1, Gex64s src1Step, const Gex16s* pSrc2, Gex64s src2Step, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDiv_16s_AC4IRSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDiv_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDiv_32f_C1R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_C1IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_C3R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_C3IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_C4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_C4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_AC4R_L(const Gex32f* pSrc1, Gex64s src1Step, const Gex32f* pSrc2, Gex64s src2Step, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDiv_32f_AC4IR_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* DivC: dst = src / value. Checks null, size, steps, then a zero value
 * (gexStsDivByZero, -10, nothing written). gexiDivC_16u_C1RSfs checks no
 * step and takes its short paths first: a factor above 16 with a non-zero value
 * is a fill with 0, factor 0 with value 1 a copy. */
GexStatus gexiDivC_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C1IRSfs(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C3RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C3IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C4IRSfs(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_AC4IRSfs(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C1RSfs_L(const Gex8u* pSrc, Gex64s srcStep, Gex8u value, Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C1IRSfs_L(Gex8u value, Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C3RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C3IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[4], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_C4IRSfs_L(const Gex8u value[4], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_AC4RSfs_L(const Gex8u* pSrc, Gex64s srcStep, const Gex8u value[3], Gex8u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_8u_AC4IRSfs_L(const Gex8u value[3], Gex8u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDivC_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C1IRSfs(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C3RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C3IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C4IRSfs(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_AC4IRSfs(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C1RSfs_L(const Gex16u* pSrc, Gex64s srcStep, Gex16u value, Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C1IRSfs_L(Gex16u value, Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C3RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C3IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[4], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_C4IRSfs_L(const Gex16u value[4], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_AC4RSfs_L(const Gex16u* pSrc, Gex64s srcStep, const Gex16u value[3], Gex16u* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16u_AC4IRSfs_L(const Gex16u value[3], Gex16u* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDivC_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s value, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C1IRSfs(Gex16s value, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C3RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C3IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[4], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C4IRSfs(const Gex16s value[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, const Gex16s value[3], Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_AC4IRSfs(const Gex16s value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C1RSfs_L(const Gex16s* pSrc, Gex64s srcStep, Gex16s value, Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C1IRSfs_L(Gex16s value, Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C3RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C3IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[4], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_C4IRSfs_L(const Gex16s value[4], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_AC4RSfs_L(const Gex16s* pSrc, Gex64s srcStep, const Gex16s value[3], Gex16s* pDst, Gex64s dstStep, GexiSizeL roiSize, int scaleFactor);
GexStatus gexiDivC_16s_AC4IRSfs_L(const Gex16s value[3], Gex16s* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize, int scaleFactor);

GexStatus gexiDivC_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f value, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C1IR(Gex32f value, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C3R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C3IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C4R(const Gex32f* pSrc, int srcStep, const Gex32f value[4], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C4IR(const Gex32f value[4], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_AC4R(const Gex32f* pSrc, int srcStep, const Gex32f value[3], Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_AC4IR(const Gex32f value[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiDivC_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, Gex32f value, Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_C1IR_L(Gex32f value, Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_C3IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[4], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_C4IR_L(const Gex32f value[4], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, const Gex32f value[3], Gex32f* pDst, Gex64s dstStep, GexiSizeL roiSize);
GexStatus gexiDivC_32f_AC4IR_L(const Gex32f value[3], Gex32f* pSrcDst, Gex64s srcDstStep, GexiSizeL roiSize);

/* Div_Round: Div with the rounding of roundMode (0 toward zero, 1 nearest with
 * ties to even, 2 nearest with ties away from zero; other: gexStsRoundMode,
 * -213). Checks null, size, steps (<= 0: -14), then the mode. */
GexStatus gexiDiv_Round_8u_C1RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_C1IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_C3RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_C3IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_C4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_C4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_AC4RSfs(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_8u_AC4IRSfs(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C1RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C1IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C3RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C3IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_C4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_AC4RSfs(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16u_AC4IRSfs(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C1RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C1IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C3RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C3IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_C4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_AC4RSfs(const Gex16s* pSrc1, int src1Step, const Gex16s* pSrc2, int src2Step, Gex16s* pDst, int dstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);
GexStatus gexiDiv_Round_16s_AC4IRSfs(const Gex16s* pSrc, int srcStep, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexRoundMode roundMode, int scaleFactor);

/* MulScale, MulCScale: the product scaled back as if both operands lay in
 * [0, 1]: 8u (p + 1 + (p >> 8)) >> 8, 16u (p + 1 + (p >> 16)) >> 16 with p = a x b.
 * Checks null, then steps (< 1: -14, MulScale only; MulCScale takes any step),
 * then size. */
GexStatus gexiMulScale_8u_C1R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_C1IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_C3R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_C3IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_C4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_C4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_AC4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_8u_AC4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C1R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C1IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C3R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C3IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_C4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_AC4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulScale_16u_AC4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C1IR(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C3IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_C4IR(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_8u_AC4IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C1IR(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C3IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_C4IR(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulCScale_16u_AC4IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);

/* MulC64f: dst = saturate(round(src x value[c])). hint 2: the product in
 * binary64; any other hint: constant and pixel in binary32. roundMode 0 toward
 * zero, 1 nearest with ties to even, any other value nearest with ties away from
 * zero. Checks null and size only: any step is taken. */
GexStatus gexiMulC64f_8u_C1R(const Gex8u* pSrc, int srcStep, const Gex64f* pValue, Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_8u_C1IR(const Gex64f* pValue, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex64f pValue[3], Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_8u_C3IR(const Gex64f pValue[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex64f pValue[4], Gex8u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_8u_C4IR(const Gex64f pValue[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C1R(const Gex16u* pSrc, int srcStep, const Gex64f* pValue, Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C1IR(const Gex64f* pValue, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex64f pValue[3], Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C3IR(const Gex64f pValue[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex64f pValue[4], Gex16u* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16u_C4IR(const Gex64f pValue[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C1R(const Gex16s* pSrc, int srcStep, const Gex64f* pValue, Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C1IR(const Gex64f* pValue, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C3R(const Gex16s* pSrc, int srcStep, const Gex64f pValue[3], Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C3IR(const Gex64f pValue[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C4R(const Gex16s* pSrc, int srcStep, const Gex64f pValue[4], Gex16s* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_16s_C4IR(const Gex64f pValue[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C1R(const Gex32f* pSrc, int srcStep, const Gex64f* pValue, Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C1IR(const Gex64f* pValue, Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C3R(const Gex32f* pSrc, int srcStep, const Gex64f pValue[3], Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C3IR(const Gex64f pValue[3], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C4R(const Gex32f* pSrc, int srcStep, const Gex64f pValue[4], Gex32f* pDst, int dstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);
GexStatus gexiMulC64f_32f_C4IR(const Gex64f pValue[4], Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize, GexHintAlgorithm hint, GexRoundMode roundMode);

/* (end of Div and scaled products) */

/* ---- Element functions and logic ------------------------------------------ */

/* Abs: 16s saturates (-32768 gives 32767); 32f clears the sign bit.
 * Element functions check null, size, then steps < 1 (-14); the C3 and C4
 * forms test the width first. */
GexStatus gexiAbs_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_C1IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_C3IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_C4IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_AC4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_16s_AC4IR(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAbs_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Sqr: the exact square under the scale rule. */
GexStatus gexiSqr_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_C1IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_C3RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_C3IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_C4RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_C4IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_8u_AC4IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C1IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C3RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C3IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C4RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_C4IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16u_AC4IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C1IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C3RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C3IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C4RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_C4IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_16s_AC4IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqr_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqr_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Sqrt: 32f warns gexStsSqrtNegArgWarn (+3) for a negative argument and walks
 * rows by (step & ~3); 16s warns +3 for a negative pixel, which gives 0. */
GexStatus gexiSqrt_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_8u_C1IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_8u_C3RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_8u_C3IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_8u_AC4RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_8u_AC4IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_C1IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_C3RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_C3IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_AC4RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16u_AC4IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_C1IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_C3RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_C3IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_AC4RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_16s_AC4IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiSqrt_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiSqrt_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Ln: +7 for a zero argument, +8 for a negative one. Exp: no warning. */
GexStatus gexiLn_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_8u_C1IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_8u_C3RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_8u_C3IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16u_C1IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16u_C3RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16u_C3IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16s_C1IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16s_C3RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_16s_C3IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiLn_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLn_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLn_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLn_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiExp_8u_C1RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_8u_C1IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_8u_C3RSfs(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_8u_C3IRSfs(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16u_C1RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16u_C1IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16u_C3RSfs(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16u_C3IRSfs(Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16s_C1RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16s_C1IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16s_C3RSfs(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_16s_C3IRSfs(Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize, int scaleFactor);
GexStatus gexiExp_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiExp_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiExp_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiExp_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Bitwise logic. Checks: null, steps < 1 (-14), size. */
GexStatus gexiAnd_8u_C1R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_C1IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_C3R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_C3IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_C4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_C4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_AC4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_8u_AC4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C1R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C1IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C3R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C3IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_C4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_AC4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_16u_AC4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C1R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C1IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C3R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C3IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_C4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_AC4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAnd_32s_AC4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C1R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C1IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C3R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C3IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_8u_C4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_8u_AC4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_8u_AC4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C1R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C1IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C3R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C3IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_16u_C4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_16u_AC4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_16u_AC4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C1R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C1IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C3R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C3IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_32s_C4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOr_32s_AC4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOr_32s_AC4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C1R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C1IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C3R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C3IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_8u_C4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_8u_AC4R(const Gex8u* pSrc1, int src1Step, const Gex8u* pSrc2, int src2Step, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_8u_AC4IR(const Gex8u* pSrc, int srcStep, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C1R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C1IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C3R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C3IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_16u_C4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_16u_AC4R(const Gex16u* pSrc1, int src1Step, const Gex16u* pSrc2, int src2Step, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_16u_AC4IR(const Gex16u* pSrc, int srcStep, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C1R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C1IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C3R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C3IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_32s_C4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXor_32s_AC4R(const Gex32s* pSrc1, int src1Step, const Gex32s* pSrc2, int src2Step, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXor_32s_AC4IR(const Gex32s* pSrc, int srcStep, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C1IR(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C3IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_C4IR(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_8u_AC4IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C1IR(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C3IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_C4IR(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_16u_AC4IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C1IR(Gex32s value, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C3R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C3IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C4R(const Gex32s* pSrc, int srcStep, const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_C4IR(const Gex32s value[4], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_AC4R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiAndC_32s_AC4IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C1IR(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C3IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_C4IR(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_8u_AC4IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C1IR(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C3IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_C4IR(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_16u_AC4IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C1IR(Gex32s value, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C3R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C3IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C4R(const Gex32s* pSrc, int srcStep, const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_C4IR(const Gex32s value[4], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_AC4R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiOrC_32s_AC4IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C1IR(Gex8u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C3IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex8u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_C4IR(const Gex8u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex8u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_8u_AC4IR(const Gex8u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C1IR(Gex16u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C3IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex16u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_C4IR(const Gex16u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex16u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_16u_AC4IR(const Gex16u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32s value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C1IR(Gex32s value, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C3R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C3IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C4R(const Gex32s* pSrc, int srcStep, const Gex32s value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_C4IR(const Gex32s value[4], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_AC4R(const Gex32s* pSrc, int srcStep, const Gex32s value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiXorC_32s_AC4IR(const Gex32s value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Not: XorC with 255. */
GexStatus gexiNot_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiNot_8u_C1IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiNot_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiNot_8u_C3IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiNot_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiNot_8u_C4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiNot_8u_AC4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiNot_8u_AC4IR(Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);

/* Shifts: one amount per colour channel. Checks: null, steps < 1 (-14), size. */
GexStatus gexiLShiftC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex32u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_C1IR(Gex32u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex32u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_C3IR(const Gex32u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex32u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_C4IR(const Gex32u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex32u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_8u_AC4IR(const Gex32u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex32u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C1IR(Gex32u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex32u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C3IR(const Gex32u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex32u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_C4IR(const Gex32u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex32u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_16u_AC4IR(const Gex32u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32u value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C1IR(Gex32u value, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C3R(const Gex32s* pSrc, int srcStep, const Gex32u value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C3IR(const Gex32u value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C4R(const Gex32s* pSrc, int srcStep, const Gex32u value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_C4IR(const Gex32u value[4], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_AC4R(const Gex32s* pSrc, int srcStep, const Gex32u value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiLShiftC_32s_AC4IR(const Gex32u value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C1R(const Gex8u* pSrc, int srcStep, Gex32u value, Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C1IR(Gex32u value, Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C3R(const Gex8u* pSrc, int srcStep, const Gex32u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C3IR(const Gex32u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C4R(const Gex8u* pSrc, int srcStep, const Gex32u value[4], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_C4IR(const Gex32u value[4], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_AC4R(const Gex8u* pSrc, int srcStep, const Gex32u value[3], Gex8u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_8u_AC4IR(const Gex32u value[3], Gex8u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C1R(const Gex16u* pSrc, int srcStep, Gex32u value, Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C1IR(Gex32u value, Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C3R(const Gex16u* pSrc, int srcStep, const Gex32u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C3IR(const Gex32u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C4R(const Gex16u* pSrc, int srcStep, const Gex32u value[4], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_C4IR(const Gex32u value[4], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_AC4R(const Gex16u* pSrc, int srcStep, const Gex32u value[3], Gex16u* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16u_AC4IR(const Gex32u value[3], Gex16u* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C1R(const Gex16s* pSrc, int srcStep, Gex32u value, Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C1IR(Gex32u value, Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C3R(const Gex16s* pSrc, int srcStep, const Gex32u value[3], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C3IR(const Gex32u value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C4R(const Gex16s* pSrc, int srcStep, const Gex32u value[4], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_C4IR(const Gex32u value[4], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_AC4R(const Gex16s* pSrc, int srcStep, const Gex32u value[3], Gex16s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_16s_AC4IR(const Gex32u value[3], Gex16s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C1R(const Gex32s* pSrc, int srcStep, Gex32u value, Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C1IR(Gex32u value, Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C3R(const Gex32s* pSrc, int srcStep, const Gex32u value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C3IR(const Gex32u value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C4R(const Gex32s* pSrc, int srcStep, const Gex32u value[4], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_C4IR(const Gex32u value[4], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_AC4R(const Gex32s* pSrc, int srcStep, const Gex32u value[3], Gex32s* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiRShiftC_32s_AC4IR(const Gex32u value[3], Gex32s* pSrcDst, int srcDstStep, GexiSize roiSize);

/* (end of element functions and logic) */

/* ---- Compare, threshold, alpha composition, generators -------------------- */

/* (end of compare and the rest) */

#ifdef __cplusplus
}
#endif

#endif /* GEXARITH_H */
