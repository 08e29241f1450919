/* gexIP geometry: resize, warps and remap. */
#ifndef GEXGEOMETRY_H
#define GEXGEOMETRY_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXGEOMETRY_H */
