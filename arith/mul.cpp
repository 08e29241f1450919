// Mul and MulC: dst = src1 x src2, dst = src x value, scaled by 2^-scaleFactor
// with ties to even and saturated (32f: one IEEE multiplication per element).
// Products are exact: 16-bit lanes for 8u, 32-bit lanes for 16u and 16s.
//
// Fast paths of the integer forms by factor: 0 saturating product; 1 and up to
// 16 (8u), 32 (16u), 30 (16s) wide lanes (16u at 32: 1 exactly where the
// product has its top bit set); above that a zero fill through Set; down to
// -7 (8u), -15 (16u), -14 (16s) saturate and shift; below, the sign alone.
// MulC: value 0 is a Set to 0, value 1 at factor 0 a Copy.
//
// A destination that starts less than one vector after a source (overlapping
// rows) runs on the scalar kernel, so every aliasing gives the result of an
// element-by-element loop; in place runs on the vector kernel.
#include "arith/arith.hpp"
#include "arith/arith_kernels.hpp"
#include "frame/export.hpp"

// gexsMul_8u_Sfs, gexsMul_16u_Sfs, gexsMul_16s_Sfs, gexsMul_32f and their in-place twins.
GEX_ARITH_LINES(Mul, arith::Op::Mul)

// gexiMul_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiMul_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_BINARY(Mul, arith::Op::Mul, 8u, Gex8u, Sfs, gexsMul_8u_Sfs, gexsMul_8u_ISfs)
GEX_ARITH_BINARY(Mul, arith::Op::Mul, 16u, Gex16u, Sfs, gexsMul_16u_Sfs, gexsMul_16u_ISfs)
GEX_ARITH_BINARY(Mul, arith::Op::Mul, 16s, Gex16s, Sfs, gexsMul_16s_Sfs, gexsMul_16s_ISfs)
GEX_ARITH_BINARY(Mul, arith::Op::Mul, 32f, Gex32f, , gexsMul_32f, gexsMul_32f_I)

// gexiMulC_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiMulC_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_CONST(MulC, arith::Op::Mul, 8u, Gex8u, Sfs)
GEX_ARITH_CONST(MulC, arith::Op::Mul, 16u, Gex16u, Sfs)
GEX_ARITH_CONST(MulC, arith::Op::Mul, 16s, Gex16s, Sfs)
GEX_ARITH_CONST(MulC, arith::Op::Mul, 32f, Gex32f, )
