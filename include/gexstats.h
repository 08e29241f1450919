/* gexIP statistics: sums, norms, extrema, histogram, lookup tables, moments. */
#ifndef GEXSTATS_H
#define GEXSTATS_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXSTATS_H */
