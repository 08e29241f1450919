// Add and AddC: dst = src1 + src2, dst = src + value, scaled by 2^-scaleFactor
// with ties to even and saturated (32f: one IEEE addition per element).
//
// Fast paths of the integer forms by factor (the results never differ from
// the rule): 0 saturating add; 1 byte averaging (8u) or wide lanes; up to 9
// (8u), 17 (16u), 16 (16s) wide lanes; above that a zero fill through Set;
// down to -7 (8u), -15 (16u, 16s) saturate and shift; below, the sign alone.
// AddC: value 0 at factor 0 is a Copy; 8u and 16u with no zero value below
// the saturation bound are a Set to the maximum.
#include "arith/arith.hpp"
#include "arith/arith_kernels.hpp"
#include "frame/export.hpp"

// gexsAdd_8u_Sfs, gexsAdd_16u_Sfs, gexsAdd_16s_Sfs, gexsAdd_32f and their in-place twins.
GEX_ARITH_LINES(Add, arith::Op::Add)

// gexiAdd_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiAdd_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_BINARY(Add, arith::Op::Add, 8u, Gex8u, Sfs, gexsAdd_8u_Sfs, gexsAdd_8u_ISfs)
GEX_ARITH_BINARY(Add, arith::Op::Add, 16u, Gex16u, Sfs, gexsAdd_16u_Sfs, gexsAdd_16u_ISfs)
GEX_ARITH_BINARY(Add, arith::Op::Add, 16s, Gex16s, Sfs, gexsAdd_16s_Sfs, gexsAdd_16s_ISfs)
GEX_ARITH_BINARY(Add, arith::Op::Add, 32f, Gex32f, , gexsAdd_32f, gexsAdd_32f_I)

// gexiAddC_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiAddC_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_CONST(AddC, arith::Op::Add, 8u, Gex8u, Sfs)
GEX_ARITH_CONST(AddC, arith::Op::Add, 16u, Gex16u, Sfs)
GEX_ARITH_CONST(AddC, arith::Op::Add, 16s, Gex16s, Sfs)
GEX_ARITH_CONST(AddC, arith::Op::Add, 32f, Gex32f, )
