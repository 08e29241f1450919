// The Pack layout of a real image's spectrum (W x H floats per channel), read
// by the Pack families:
//   P(0,0)                      Re F(0,0)
//   P(0,2k-1), P(0,2k)          F(0,k), k = 1..(W-1)/2
//   P(0,W-1), W even            Re F(0,W/2)
//   P(2u-1,0), P(2u,0)          F(u,0), u = 1..(H-1)/2
//   P(H-1,0), H even            Re F(H/2,0)
//   P(2u-1,W-1), P(2u,W-1)      F(u,W/2), W even
//   P(H-1,W-1), W and H even    Re F(H/2,W/2)
//   P(r,2k-1), P(r,2k)          F(r,k), r = 1..H-1
// Every other entry of F follows from F(H-u, W-v) = conj F(u, v).
#pragma once

#include <cstdint>

#include "frame/pixel.hpp"
#include "gexdefs.h"

namespace gex::pack {

struct Entry {
    int u, v;    // frequency (row, column) in the full spectrum
    int r1, c1;  // Pack position of the real part
    int r2, c2;  // Pack position of the imaginary part (unused if real)
    bool real;
};

// Calls f(Entry) for every non-redundant entry of a W x H spectrum.
template <class F>
void for_each_entry(int W, int H, F&& f) {
    f(Entry{0, 0, 0, 0, 0, 0, true});
    for (int k = 1; 2 * k <= W - 1; ++k) f(Entry{0, k, 0, 2 * k - 1, 0, 2 * k, false});
    if (W % 2 == 0 && W > 1) f(Entry{0, W / 2, 0, W - 1, 0, 0, true});
    for (int u = 1; 2 * u <= H - 1; ++u) {
        f(Entry{u, 0, 2 * u - 1, 0, 2 * u, 0, false});
        if (W % 2 == 0 && W > 1) f(Entry{u, W / 2, 2 * u - 1, W - 1, 2 * u, W - 1, false});
    }
    if (H % 2 == 0 && H > 1) {
        f(Entry{H / 2, 0, H - 1, 0, 0, 0, true});
        if (W % 2 == 0 && W > 1) f(Entry{H / 2, W / 2, H - 1, W - 1, 0, 0, true});
    }
    for (int r = 1; r < H; ++r)
        for (int k = 1; 2 * k <= W - 1; ++k) f(Entry{r, k, r, 2 * k - 1, r, 2 * k, false});
}

// Row r of the full complex spectrum of channel ch (C channels interleaved in
// the Pack), written to out[k * outStride], k = 0..W-1.
inline void extend_row(const Gex32f* p, std::int64_t step, int W, int H, int r, int C, int ch, Gex32fc* out,
                       std::int64_t outStride) {
    auto P = [&](int rr, int c) { return row_at(p, step, rr)[std::int64_t{c} * C + ch]; };
    // the 1-D Pack along y held in column c (0, or W-1 for even W)
    auto column = [&](int u, int c) -> Gex32fc {
        bool conj = false;
        if (2 * u > H) {
            u = H - u;
            conj = true;
        }
        Gex32fc v;
        if (u == 0) v = {P(0, c), 0.0f};
        else if (2 * u == H) v = {P(H - 1, c), 0.0f};
        else v = {P(2 * u - 1, c), P(2 * u, c)};
        if (conj) v.im = -v.im;
        return v;
    };
    out[0] = column(r, 0);
    const int mirror = r == 0 ? 0 : H - r;
    for (int k = 1; 2 * k <= W - 1; ++k) {
        const Gex32fc v = {P(r, 2 * k - 1), P(r, 2 * k)};
        const Gex32fc m = {P(mirror, 2 * k - 1), -P(mirror, 2 * k)};
        out[k * outStride] = v;
        out[(W - k) * outStride] = m;
    }
    if (W % 2 == 0 && W > 1) out[(W / 2) * outStride] = column(r, W - 1);
}

}  // namespace gex::pack
