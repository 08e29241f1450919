/* gexIP pixel arithmetic, compare, threshold, alpha composition, element functions and logic. */
#ifndef GEXARITH_H
#define GEXARITH_H

#include "gexdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Add, Sub, Mul and their constant forms ------------------------------ */

/* (end of Add, Sub, Mul) */

/* ---- Div, DivC, Div_Round, MulScale, MulCScale, MulC64f ------------------- */

/* (end of Div and scaled products) */

/* ---- Element functions and logic ------------------------------------------ */

/* (end of element functions and logic) */

/* ---- Compare, threshold, alpha composition, generators -------------------- */

/* (end of compare and the rest) */

#ifdef __cplusplus
}
#endif

#endif /* GEXARITH_H */
