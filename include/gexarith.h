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
