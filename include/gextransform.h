/* gexIP transforms: Fourier transforms, DCT, convolution, correlation, wavelets. */
#ifndef GEXTRANSFORM_H
#define GEXTRANSFORM_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Fourier transforms of images ------------------------------------------
 * State records: opaque blocks of the size the GetSize query returns, built by
 * Init at the block's address rounded up to 64 bytes. A record is read-only in
 * a run, so one record may serve several threads, each with its own work
 * buffer. Scaling flags: 1 forward 1/N, 2 inverse 1/N, 4 both 1/sqrt(N),
 * 8 none; N is the length along each axis, applied per axis.
 *
 * The Pack format (real forward results, inverse inputs): for a W x H image,
 * row 0 is a 1-D packed real spectrum along x (Re F00, Re F01, Im F01, ...,
 * Re F0(W/2) for even W); column 0, and column W-1 for even W, are 1-D packed
 * spectra along y; every other pair of columns holds Re, Im of complex values
 * in rows 1..H-1. */
typedef struct GexiFFTSpec GexiFFTSpec; /* power-of-two sizes, by order */
typedef struct GexiDFTSpec GexiDFTSpec; /* any size */

/* FFT: sizes 2^orderX x 2^orderY. */
GexStatus gexiFFTGetSize_R_32f(int orderX, int orderY, int flag, GexHintAlgorithm hint, int* pSpecSize,
                               int* pInitSize, int* pBufferSize);
GexStatus gexiFFTGetSize_C_32fc(int orderX, int orderY, int flag, GexHintAlgorithm hint, int* pSpecSize,
                                int* pInitSize, int* pBufferSize);
GexStatus gexiFFTInit_R_32f(int orderX, int orderY, int flag, GexHintAlgorithm hint, GexiFFTSpec* pSpec,
                            Gex8u* pInitBuffer);
GexStatus gexiFFTInit_C_32fc(int orderX, int orderY, int flag, GexHintAlgorithm hint, GexiFFTSpec* pSpec,
                             Gex8u* pInitBuffer);

/* Real forward to Pack, Pack inverse to real; C3/C4/AC4 transform each channel
 * (AC4: the fourth channel is neither read nor written). */
GexStatus gexiFFTFwd_RToPack_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                      const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTFwd_RToPack_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                       Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                      const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiFFTInv_PackToR_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                       Gex8u* pBuffer);
GexStatus gexiFFTFwd_CToC_32fc_C1R(const Gex32fc* pSrc, int srcStep, Gex32fc* pDst, int dstStep,
                                   const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTFwd_CToC_32fc_C1IR(Gex32fc* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                    Gex8u* pBuffer);
GexStatus gexiFFTInv_CToC_32fc_C1R(const Gex32fc* pSrc, int srcStep, Gex32fc* pDst, int dstStep,
                                   const GexiFFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiFFTInv_CToC_32fc_C1IR(Gex32fc* pSrcDst, int srcDstStep, const GexiFFTSpec* pSpec,
                                    Gex8u* pBuffer);

/* DFT: any size roiSize.width x roiSize.height. */
GexStatus gexiDFTGetSize_R_32f(GexiSize roiSize, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                               int* pBufferSize);
GexStatus gexiDFTGetSize_C_32fc(GexiSize roiSize, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                                int* pBufferSize);
GexStatus gexiDFTInit_R_32f(GexiSize roiSize, int flag, GexHintAlgorithm hint, GexiDFTSpec* pSpec,
                            Gex8u* pInitBuffer);
GexStatus gexiDFTInit_C_32fc(GexiSize roiSize, int flag, GexHintAlgorithm hint, GexiDFTSpec* pSpec,
                             Gex8u* pInitBuffer);

GexStatus gexiDFTFwd_RToPack_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                      const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTFwd_RToPack_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                       Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                     const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_AC4R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep,
                                      const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C1IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C3IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_C4IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                      Gex8u* pBuffer);
GexStatus gexiDFTInv_PackToR_32f_AC4IR(Gex32f* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                       Gex8u* pBuffer);
GexStatus gexiDFTFwd_CToC_32fc_C1R(const Gex32fc* pSrc, int srcStep, Gex32fc* pDst, int dstStep,
                                   const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTFwd_CToC_32fc_C1IR(Gex32fc* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                    Gex8u* pBuffer);
GexStatus gexiDFTInv_CToC_32fc_C1R(const Gex32fc* pSrc, int srcStep, Gex32fc* pDst, int dstStep,
                                   const GexiDFTSpec* pSpec, Gex8u* pBuffer);
GexStatus gexiDFTInv_CToC_32fc_C1IR(Gex32fc* pSrcDst, int srcDstStep, const GexiDFTSpec* pSpec,
                                    Gex8u* pBuffer);

/* ---- Products of Pack spectra ------------------------------------------------
 * MulPack: pDst = pSrc1 * pSrc2 element by element in the Pack layout (complex
 * products of the complex entries, plain products of the real ones).
 * MulPackConj: pSrc1 * conj(pSrc2). In-place forms: pSrcDst = pSrc op pSrcDst. */
GexStatus gexiMulPack_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                              Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPack_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                              Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPack_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                              Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPack_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                               Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPack_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                               GexiSize roiSize);
GexStatus gexiMulPack_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                               GexiSize roiSize);
GexStatus gexiMulPack_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                               GexiSize roiSize);
GexStatus gexiMulPack_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                                GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C1R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                                  Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C3R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                                  Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                                  Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPackConj_32f_AC4R(const Gex32f* pSrc1, int src1Step, const Gex32f* pSrc2, int src2Step,
                                   Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C1IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                                   GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C3IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                                   GexiSize roiSize);
GexStatus gexiMulPackConj_32f_C4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                                   GexiSize roiSize);
GexStatus gexiMulPackConj_32f_AC4IR(const Gex32f* pSrc, int srcStep, Gex32f* pSrcDst, int srcDstStep,
                                    GexiSize roiSize);

/* ---- Magnitude and phase of Pack spectra (full-size W x H output) ---- */
GexStatus gexiMagnitudePackGetBufferSize_32f(int numChannels, GexiSize dstRoiSize, int* pSize);
GexStatus gexiMagnitudePack_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize,
                                    Gex8u* pBuffer);
GexStatus gexiMagnitudePack_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize,
                                    Gex8u* pBuffer);
GexStatus gexiPhasePackGetBufferSize_32f(int numChannels, GexiSize dstRoiSize, int* pSize);
GexStatus gexiPhasePack_32f_C1R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize,
                                Gex8u* pBuffer);
GexStatus gexiPhasePack_32f_C3R(const Gex32f* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize dstRoiSize,
                                Gex8u* pBuffer);

/* ---- Complex images: magnitude sqrt(re^2 + im^2), phase atan2(im, re) in
 * radians, and magnitude * (cos phase + i sin phase). ---- */
GexStatus gexiMagnitude_32fc32f_C1R(const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiMagnitude_32fc32f_C3R(const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiPhase_32fc32f_C1R(const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiPhase_32fc32f_C3R(const Gex32fc* pSrc, int srcStep, Gex32f* pDst, int dstStep, GexiSize roiSize);
GexStatus gexiPolarToCart_32fc_C1R(const Gex32f* pSrcMagn, const Gex32f* pSrcPhase, int srcStep, GexiSize roiSize,
                                   Gex32fc* pDst, int dstStep);
GexStatus gexiPolarToCart_32fc_C3R(const Gex32f* pSrcMagn, const Gex32f* pSrcPhase, int srcStep, GexiSize roiSize,
                                   Gex32fc* pDst, int dstStep);

/* ---- Pack <-> full conjugate-symmetric complex spectrum ---- */
GexStatus gexiCplxExtendToPack_32fc32f_C1R(const Gex32fc* pSrc, int srcStep, GexiSize srcSize, Gex32f* pDst,
                                           int dstStep);
GexStatus gexiCplxExtendToPack_32fc32f_C3R(const Gex32fc* pSrc, int srcStep, GexiSize srcSize, Gex32f* pDst,
                                           int dstStep);
GexStatus gexiPackToCplxExtend_32f32fc_C1R(const Gex32f* pSrc, GexiSize srcSize, int srcStep, Gex32fc* pDst,
                                           int dstStep);

#ifdef __cplusplus
}
#endif

#endif /* GEXTRANSFORM_H */
