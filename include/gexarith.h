/* gexIP pixel arithmetic, compare, threshold, alpha composition, element functions and logic. */
#ifndef GEXARITH_H
#define GEXARITH_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXARITH_H */
