// Sub and SubC: dst = src2 - src1 (in place: srcDst - src), dst = src - value,
// scaled by 2^-scaleFactor with ties to even and saturated (32f: one IEEE
// subtraction per element).
//
// Fast paths of the integer forms by factor: 0 saturating subtract; 1 byte
// arithmetic (8u) or wide lanes; up to 8 (8u), 16 (16u, 16s) wide lanes;
// above that a zero fill through Set; down to -7 (8u), -15 (16u, 16s)
// saturate and shift; below, the sign alone. SubC: value 0 at factor 0 is a
// Copy.
#include "arith/arith.hpp"
#include "arith/arith_kernels.hpp"
#include "frame/export.hpp"

// gexsSub_8u_Sfs, gexsSub_16u_Sfs, gexsSub_16s_Sfs, gexsSub_32f and their in-place twins.
GEX_ARITH_LINES(Sub, arith::Op::Sub)

// gexiSub_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiSub_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_BINARY(Sub, arith::Op::Sub, 8u, Gex8u, Sfs, gexsSub_8u_Sfs, gexsSub_8u_ISfs)
GEX_ARITH_BINARY(Sub, arith::Op::Sub, 16u, Gex16u, Sfs, gexsSub_16u_Sfs, gexsSub_16u_ISfs)
GEX_ARITH_BINARY(Sub, arith::Op::Sub, 16s, Gex16s, Sfs, gexsSub_16s_Sfs, gexsSub_16s_ISfs)
GEX_ARITH_BINARY(Sub, arith::Op::Sub, 32f, Gex32f, , gexsSub_32f, gexsSub_32f_I)

// gexiSubC_{8u,16u,16s}_{C1,C3,C4,AC4}{,I}RSfs{,_L}, gexiSubC_32f_{C1,C3,C4,AC4}{,I}R{,_L}
GEX_ARITH_CONST(SubC, arith::Op::Sub, 8u, Gex8u, Sfs)
GEX_ARITH_CONST(SubC, arith::Op::Sub, 16u, Gex16u, Sfs)
GEX_ARITH_CONST(SubC, arith::Op::Sub, 16s, Gex16s, Sfs)
GEX_ARITH_CONST(SubC, arith::Op::Sub, 32f, Gex32f, )
