/* The README's example as a program: allocate, fill, copy, free. */
#include <stdio.h>

#include "gexip.h"

static int copy_example(void) {
    int srcStep, dstStep;
    GexiSize roi = {640, 480};
    Gex8u* src = gexiMalloc_8u_C1(roi.width, roi.height, &srcStep);
    Gex8u* dst = gexiMalloc_8u_C1(roi.width, roi.height, &dstStep);
    if (!src || !dst) { gexiFree(src); gexiFree(dst); return -1; }
    gexiSet_8u_C1R(128, src, srcStep, roi);
    GexStatus st = gexiCopy_8u_C1R(src, srcStep, dst, dstStep, roi);
    int ok = st == gexStsOk && dst[479 * dstStep + 639] == 128;
    gexiFree(src);
    gexiFree(dst);
    return ok ? 0 : -1;
}

int main(void) {
    int r = copy_example();
    printf("copy example: %s\n", r == 0 ? "ok" : "failed");
    return r == 0 ? 0 : 1;
}
