#pragma once
#include "geometry/resize_kernels.hpp"
namespace gex::resize {
template <class T, int C, int NT> using TapsVector = TapsScalar<T, C, NT>;
template <int C> using LinearFloatVector = LinearFloatScalar<float, C>;
template <int C> using LinearQ14Vector = LinearQ14Scalar<C>;
}
