/* gexIP filtering: the border model, border copies and the filters built on it. */
#ifndef GEXFILTER_H
#define GEXFILTER_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Border copies -------------------------------------------------------- */

/* (end of border copies) */

/* ---- General border filter ------------------------------------------------ */

/* (end of general border filter) */

#ifdef __cplusplus
}
#endif

#endif /* GEXFILTER_H */
