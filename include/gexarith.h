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

/* (end of Div and scaled products) */

/* ---- Element functions and logic ------------------------------------------ */

/* (end of element functions and logic) */

/* ---- Compare, threshold, alpha composition, generators -------------------- */

/* (end of compare and the rest) */

#ifdef __cplusplus
}
#endif

#endif /* GEXARITH_H */
