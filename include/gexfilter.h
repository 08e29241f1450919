/* gexIP filtering: the border model, border copies and the filters built on it. */
#ifndef GEXFILTER_H
#define GEXFILTER_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Declarations are added here as the families land. */

#ifdef __cplusplus
}
#endif

#endif /* GEXFILTER_H */
