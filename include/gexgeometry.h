/* gexIP geometry: resize, warps and remap. */
#ifndef GEXGEOMETRY_H
#define GEXGEOMETRY_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A resize state record: an opaque block of the size the query returns. */
typedef struct GexiResizeSpec GexiResizeSpec;

/* ---- Resize: protocol, queries, nearest, linear, cubic, Lanczos ---- */

/* (end of resize protocol) */

/* ---- Resize: super-sampling ---- */

/* (end of super-sampling) */

#ifdef __cplusplus
}
#endif

#endif /* GEXGEOMETRY_H */
