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

/* (end of general border filter) */

#ifdef __cplusplus
}
#endif

#endif /* GEXFILTER_H */
