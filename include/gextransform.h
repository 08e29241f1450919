/* gexIP transforms: Fourier transforms, DCT, convolution, correlation, wavelets. */
#ifndef GEXTRANSFORM_H
#define GEXTRANSFORM_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXTRANSFORM_H */
