/* The umbrella header is plain C, and a C program links and runs against the
 * shared library through its exported stubs. */
#include <stdio.h>
#include <string.h>

#include "gexip.h"

int main(void) {
    const GexLibraryVersion* v = gexiGetLibVersion();
    int step = -1;
    Gex8u* img;
    Gex8u* copy;
    GexiSize roi = {5, 3};
    int x, y, failures = 0;

    if (v == NULL || v->major != 2017 || strcmp(v->targetCpu, "k0") != 0 ||
        strcmp(v->name, "gexIP AVX-512F/CD/BW/DQ/VL (k0)") != 0) {
        printf("version record wrong\n");
        return 1;
    }
    img = gexiMalloc_8u_C1(roi.width, roi.height, &step);
    if (img == NULL || step != 64 || ((size_t)img & 63u) != 0) {
        printf("gexiMalloc_8u_C1 failed\n");
        return 1;
    }
    copy = gexiMalloc_8u_C1(roi.width, roi.height, &step);
    for (y = 0; y < roi.height; ++y)
        for (x = 0; x < roi.width; ++x) img[y * step + x] = (Gex8u)(x + 10 * y);
    memcpy(copy, img, (size_t)(step * roi.height));
    for (y = 0; y < roi.height; ++y)
        for (x = 0; x < roi.width; ++x)
            if (copy[y * step + x] != (Gex8u)(x + 10 * y)) failures++;
    gexiFree(img);
    gexiFree(copy);
    if (failures) printf("%d checks failed\n", failures);
    return failures == 0 ? 0 : 1;
}
