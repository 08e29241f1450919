/* gexIP filtering: the border model, border copies and the filters built on it. */
#ifndef GEXFILTER_H
#define GEXFILTER_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Border copies -------------------------------------------------------- */

/* Each family writes a destination of dstRoiSize whose pixel (i, j) comes from
 * the source pixel (i - leftBorderWidth, j - topBorderHeight) inside the source
 * ROI and, outside it, from the family's rule: the constant (Const), the nearest
 * edge pixel (Replicate), a periodic reflection that does not repeat the edge
 * pixel (Mirror), or the coordinate taken modulo the ROI size (Wrap). The right
 * and bottom borders are what dstRoiSize leaves after the ROI and may be zero.
 * AC4 forms never write the destination's fourth channel.
 * IR forms: pSrc is the ROI's first pixel inside a larger image whose origin
 * lies topBorderHeight rows above and leftBorderWidth pixels left of it; the
 * border grows into that image. The R forms of Mirror, Replicate and Wrap
 * given pSrc == pDst run the IR form on pDst and dstStep (pDst is then the
 * ROI inside the larger image); the Const R form has no in-place case.
 * Checks: null pointers (-8), steps below 1 (-14), sizes (-6), then, in the
 * C3/C4/AC4 Const forms, a null constant pointer (-8). The _L forms take
 * 64-bit sizes, steps and border widths with the same checks. */

/* Const 8u */
GexStatus gexiCopyConstBorder_8u_C1R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Gex8u value);
GexStatus gexiCopyConstBorder_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex8u value);
GexStatus gexiCopyConstBorder_8u_C1IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex8u value);
GexStatus gexiCopyConstBorder_8u_C3R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex8u value[3]);
GexStatus gexiCopyConstBorder_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[3]);
GexStatus gexiCopyConstBorder_8u_C3IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[3]);
GexStatus gexiCopyConstBorder_8u_C4R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex8u value[4]);
GexStatus gexiCopyConstBorder_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[4]);
GexStatus gexiCopyConstBorder_8u_C4IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[4]);
GexStatus gexiCopyConstBorder_8u_AC4R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex8u value[3]);
GexStatus gexiCopyConstBorder_8u_AC4R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[3]);
GexStatus gexiCopyConstBorder_8u_AC4IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex8u value[3]);
/* Const 16s */
GexStatus gexiCopyConstBorder_16s_C1R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Gex16s value);
GexStatus gexiCopyConstBorder_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex16s value);
GexStatus gexiCopyConstBorder_16s_C1IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex16s value);
GexStatus gexiCopyConstBorder_16s_C3R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16s value[3]);
GexStatus gexiCopyConstBorder_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[3]);
GexStatus gexiCopyConstBorder_16s_C3IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[3]);
GexStatus gexiCopyConstBorder_16s_C4R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16s value[4]);
GexStatus gexiCopyConstBorder_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[4]);
GexStatus gexiCopyConstBorder_16s_C4IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[4]);
GexStatus gexiCopyConstBorder_16s_AC4R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16s value[3]);
GexStatus gexiCopyConstBorder_16s_AC4R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[3]);
GexStatus gexiCopyConstBorder_16s_AC4IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16s value[3]);
/* Const 16u */
GexStatus gexiCopyConstBorder_16u_C1R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Gex16u value);
GexStatus gexiCopyConstBorder_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex16u value);
GexStatus gexiCopyConstBorder_16u_C1IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex16u value);
GexStatus gexiCopyConstBorder_16u_C3R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16u value[3]);
GexStatus gexiCopyConstBorder_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[3]);
GexStatus gexiCopyConstBorder_16u_C3IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[3]);
GexStatus gexiCopyConstBorder_16u_C4R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16u value[4]);
GexStatus gexiCopyConstBorder_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[4]);
GexStatus gexiCopyConstBorder_16u_C4IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[4]);
GexStatus gexiCopyConstBorder_16u_AC4R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex16u value[3]);
GexStatus gexiCopyConstBorder_16u_AC4R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[3]);
GexStatus gexiCopyConstBorder_16u_AC4IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex16u value[3]);
/* Const 32f */
GexStatus gexiCopyConstBorder_32f_C1R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Gex32f value);
GexStatus gexiCopyConstBorder_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex32f value);
GexStatus gexiCopyConstBorder_32f_C1IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex32f value);
GexStatus gexiCopyConstBorder_32f_C3R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32f value[3]);
GexStatus gexiCopyConstBorder_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[3]);
GexStatus gexiCopyConstBorder_32f_C3IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[3]);
GexStatus gexiCopyConstBorder_32f_C4R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32f value[4]);
GexStatus gexiCopyConstBorder_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[4]);
GexStatus gexiCopyConstBorder_32f_C4IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[4]);
GexStatus gexiCopyConstBorder_32f_AC4R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32f value[3]);
GexStatus gexiCopyConstBorder_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[3]);
GexStatus gexiCopyConstBorder_32f_AC4IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32f value[3]);
/* Const 32s */
GexStatus gexiCopyConstBorder_32s_C1R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Gex32s value);
GexStatus gexiCopyConstBorder_32s_C1R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex32s value);
GexStatus gexiCopyConstBorder_32s_C1IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, Gex32s value);
GexStatus gexiCopyConstBorder_32s_C3R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32s value[3]);
GexStatus gexiCopyConstBorder_32s_C3R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[3]);
GexStatus gexiCopyConstBorder_32s_C3IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[3]);
GexStatus gexiCopyConstBorder_32s_C4R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32s value[4]);
GexStatus gexiCopyConstBorder_32s_C4R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[4]);
GexStatus gexiCopyConstBorder_32s_C4IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[4]);
GexStatus gexiCopyConstBorder_32s_AC4R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Gex32s value[3]);
GexStatus gexiCopyConstBorder_32s_AC4R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[3]);
GexStatus gexiCopyConstBorder_32s_AC4IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth, const Gex32s value[3]);
/* Replicate 8u */
GexStatus gexiCopyReplicateBorder_8u_C1R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C1IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C1IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C3R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C3IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C3IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C4R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C4IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_C4IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_AC4R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_AC4R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_AC4IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_8u_AC4IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Replicate 16s */
GexStatus gexiCopyReplicateBorder_16s_C1R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C1IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C1IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C3R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C3IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C3IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C4R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C4IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_C4IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_AC4R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_AC4R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_AC4IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16s_AC4IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Replicate 16u */
GexStatus gexiCopyReplicateBorder_16u_C1R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C1IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C1IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C3R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C3IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C3IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C4R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C4IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_C4IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_AC4R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_AC4R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_AC4IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_16u_AC4IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Replicate 32f */
GexStatus gexiCopyReplicateBorder_32f_C1R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C1IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C1IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C3R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C3IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C3IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C4R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C4IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_C4IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_AC4R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_AC4R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_AC4IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32f_AC4IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Replicate 32s */
GexStatus gexiCopyReplicateBorder_32s_C1R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C1R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C1IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C1IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C3R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C3R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C3IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C3IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C4R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C4R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C4IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_C4IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_AC4R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_AC4R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_AC4IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyReplicateBorder_32s_AC4IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Mirror 8u */
GexStatus gexiCopyMirrorBorder_8u_C1R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C1R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C1IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C1IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C3R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C3R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C3IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C3IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C4R(const Gex8u* pSrc, int srcStep, GexiSize srcRoiSize, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C4R_L(const Gex8u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex8u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C4IR(Gex8u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_8u_C4IR_L(Gex8u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Mirror 16s */
GexStatus gexiCopyMirrorBorder_16s_C1R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C1R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C1IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C1IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C3R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C3R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C3IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C3IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C4R(const Gex16s* pSrc, int srcStep, GexiSize srcRoiSize, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C4R_L(const Gex16s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C4IR(Gex16s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16s_C4IR_L(Gex16s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Mirror 16u */
GexStatus gexiCopyMirrorBorder_16u_C1R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C1R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C1IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C1IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C3R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C3R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C3IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C3IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C4R(const Gex16u* pSrc, int srcStep, GexiSize srcRoiSize, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C4R_L(const Gex16u* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex16u* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C4IR(Gex16u* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_16u_C4IR_L(Gex16u* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Mirror 32f */
GexStatus gexiCopyMirrorBorder_32f_C1R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C1IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C1IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C3R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C3R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C3IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C3IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C4R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C4R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C4IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32f_C4IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Mirror 32s */
GexStatus gexiCopyMirrorBorder_32s_C1R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C1R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C1IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C1IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C3R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C3R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C3IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C3IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C4R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C4R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C4IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyMirrorBorder_32s_C4IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Wrap 32f */
GexStatus gexiCopyWrapBorder_32f_C1R(const Gex32f* pSrc, int srcStep, GexiSize srcRoiSize, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyWrapBorder_32f_C1R_L(const Gex32f* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32f* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyWrapBorder_32f_C1IR(Gex32f* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyWrapBorder_32f_C1IR_L(Gex32f* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
/* Wrap 32s */
GexStatus gexiCopyWrapBorder_32s_C1R(const Gex32s* pSrc, int srcStep, GexiSize srcRoiSize, Gex32s* pDst, int dstStep, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyWrapBorder_32s_C1R_L(const Gex32s* pSrc, Gex64s srcStep, GexiSizeL srcRoiSize, Gex32s* pDst, Gex64s dstStep, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);
GexStatus gexiCopyWrapBorder_32s_C1IR(Gex32s* pSrc, int srcDstStep, GexiSize srcRoiSize, GexiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
GexStatus gexiCopyWrapBorder_32s_C1IR_L(Gex32s* pSrc, Gex64s srcDstStep, GexiSizeL srcRoiSize, GexiSizeL dstRoiSize, Gex64s topBorderHeight, Gex64s leftBorderWidth);

/* (end of border copies) */

/* ---- General border filter ------------------------------------------------ */

/* Convolution with a caller's rectangular kernel (true convolution: the kernel
 * is flipped), borders by the border model (modes 1, 3, 6, in-memory flags).
 * The record holds the prepared kernel; it is opaque to callers and lives in
 * the caller's block, worked on at its address rounded up to 64 bytes.
 * Sizes: gexiFilterBorderGetSize gives the record's and the run buffer's bytes,
 * alignment slack included. Kernel types: gex16s (16-bit taps with an integer
 * divisor, gexiFilterBorderInit_16s) or gex32f (float taps,
 * gexiFilterBorderInit_32f). roundMode: 0 toward zero, 1 nearest-even,
 * 2 nearest ties away; + 16 asks for the exact conversion of integer sums. */
typedef struct GexiFilterBorderSpec GexiFilterBorderSpec;

GexStatus gexiFilterBorderGetSize(GexiSize kernelSize, GexiSize dstRoiSize, GexDataType dataType, GexDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
GexStatus gexiFilterBorderInit_16s(const Gex16s* pKernel, GexiSize kernelSize, int divisor, GexDataType dataType, int numChannels, GexRoundMode roundMode, GexiFilterBorderSpec* pSpec);
GexStatus gexiFilterBorderInit_32f(const Gex32f* pKernel, GexiSize kernelSize, GexDataType dataType, int numChannels, GexRoundMode roundMode, GexiFilterBorderSpec* pSpec);
GexStatus gexiFilterBorderSetMode(GexHintAlgorithm hint, int offset, GexiFilterBorderSpec* pSpec);

/* Run: pBorderValue holds one value per channel and is read in mode 6 only.
 * Checks: null pSrc, pDst, pSpec, pBuffer (-8); mode 6 with a null
 * pBorderValue (-8); a record not made by an Init (-17); size (-6); srcStep
 * below 1 or dstStep below the width in bytes of one channel (-14); border (-225). */
GexStatus gexiFilterBorder_8u_C1R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex8u borderValue[1], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_8u_C3R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex8u borderValue[3], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_8u_C4R(const Gex8u* pSrc, int srcStep, Gex8u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex8u borderValue[4], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16u_C1R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16u borderValue[1], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16u_C3R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16u borderValue[3], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16u_C4R(const Gex16u* pSrc, int srcStep, Gex16u* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16u borderValue[4], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16s_C1R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16s borderValue[1], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16s_C3R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16s borderValue[3], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_16s_C4R(const Gex16s* pSrc, int srcStep, Gex16s* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex16s borderValue[4], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex32f borderValue[1], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex32f borderValue[3], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFilterBorder_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize, GexiBorderType border, const Gex32f borderValue[4], const GexiFilterBorderSpec* pSpec, Gex8u* pBuffer);

/* Double-precision convolution without border handling: the caller supplies
 * the neighbourhood. The window of (x, y) starts kernelSize.width-1-anchor.x
 * columns left and kernelSize.height-1-anchor.y rows above it; taps are used
 * flipped. pBuffer is not needed (it may be null). */
GexStatus gexiFilter_64f_C1R(const Gex64f* pSrc, int srcStep, Gex64f* pDst, int dstStep, GexiSize dstRoiSize, const Gex64f* pKernel, GexiSize kernelSize, GexiPoint anchor, Gex8u* pBuffer);
GexStatus gexiFilterGetBufSize_64f_C1R(GexiSize kernelSize, int roiWidth, int* pSize);

/* (end of general border filter) */

#ifdef __cplusplus
}
#endif

#endif /* GEXFILTER_H */
