/* gexIP pixel arithmetic, compare, threshold, alpha composition, element functions and logic. */
#ifndef GEXARITH_H
#define GEXARITH_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Add, Sub, Mul and their constant forms ------------------------------ */

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

/* (end of element functions and logic) */

/* ---- Compare, threshold, alpha composition, generators -------------------- */

/* (end of compare and the rest) */

#ifdef __cplusplus
}
#endif

#endif /* GEXARITH_H */
