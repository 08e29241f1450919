/* gexIP: image-processing primitives with a flat C interface.
 * The umbrella header: include this one. */
#ifndef GEXIP_H
#define GEXIP_H

#include "gexdefs.h"
#include "gexframe.h"
#include "gexdata.h"
#include "gexarith.h"
#include "gexstats.h"
#include "gexfilter.h"
#include "gexgeometry.h"
#include "gextransform.h"
#include "gexvolume.h"

#endif /* GEXIP_H */
