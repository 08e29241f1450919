// The library's version record: a constant of the build.
#include "frame/export.hpp"

namespace gex {
namespace {
const GexLibraryVersion s_libVer = {
    2017, 0, 3, 55431,
    {'k', '0', 0, 0},
    "gexIP AVX-512F/CD/BW/DQ/VL (k0)",
    "2017.0.3 (r55431)",
    "Apr 12 2017",
};
}  // namespace
}  // namespace gex

GEX_EXPORT(const GexLibraryVersion*, gexiGetLibVersion, (void)) { return &s_libVer; }
