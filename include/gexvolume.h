/* gexIP volume processing. */
#ifndef GEXVOLUME_H
#define GEXVOLUME_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXVOLUME_H */
