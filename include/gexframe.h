/* gexIP frame: image memory and the version record. */
#ifndef GEXFRAME_H
#define GEXFRAME_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Image allocation. Rows start on 64-byte boundaries; *pStepBytes receives
 * the row step. Null on failure: the step cell then holds 0 for a bad size or
 * too wide a row, the computed step for a total that is too large. */
Gex8u* gexiMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex8u* gexiMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex8u* gexiMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex8u* gexiMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex8u* gexiMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex16u* gexiMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex16u* gexiMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex16u* gexiMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex16u* gexiMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex16u* gexiMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex16s* gexiMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex16s* gexiMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex16s* gexiMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex16s* gexiMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex16s* gexiMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32s* gexiMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex32s* gexiMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex32s* gexiMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex32s* gexiMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32s* gexiMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32f* gexiMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex32f* gexiMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex32f* gexiMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex32f* gexiMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32f* gexiMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32sc* gexiMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex32sc* gexiMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex32sc* gexiMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex32sc* gexiMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32sc* gexiMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32fc* gexiMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
Gex32fc* gexiMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
Gex32fc* gexiMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
Gex32fc* gexiMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
Gex32fc* gexiMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);

Gex8u* gexiMalloc_8u_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex8u* gexiMalloc_8u_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex8u* gexiMalloc_8u_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex8u* gexiMalloc_8u_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex8u* gexiMalloc_8u_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16u* gexiMalloc_16u_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16u* gexiMalloc_16u_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16u* gexiMalloc_16u_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16u* gexiMalloc_16u_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16u* gexiMalloc_16u_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16s* gexiMalloc_16s_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16s* gexiMalloc_16s_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16s* gexiMalloc_16s_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16s* gexiMalloc_16s_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex16s* gexiMalloc_16s_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32s* gexiMalloc_32s_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32s* gexiMalloc_32s_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32s* gexiMalloc_32s_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32s* gexiMalloc_32s_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32s* gexiMalloc_32s_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32f* gexiMalloc_32f_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32f* gexiMalloc_32f_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32f* gexiMalloc_32f_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32f* gexiMalloc_32f_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32f* gexiMalloc_32f_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32sc* gexiMalloc_32sc_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32sc* gexiMalloc_32sc_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32sc* gexiMalloc_32sc_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32sc* gexiMalloc_32sc_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32sc* gexiMalloc_32sc_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32fc* gexiMalloc_32fc_C1_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32fc* gexiMalloc_32fc_C2_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32fc* gexiMalloc_32fc_C3_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32fc* gexiMalloc_32fc_C4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);
Gex32fc* gexiMalloc_32fc_AC4_L(Gex64s widthPixels, Gex64s heightPixels, Gex64s* pStepBytes);

/* Releases an image from gexiMalloc_*; null is ignored. */
void gexiFree(void* ptr);

/* The library's constant version record; not to be freed or written. */
const GexLibraryVersion* gexiGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif /* GEXFRAME_H */
