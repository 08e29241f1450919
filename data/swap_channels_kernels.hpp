// Row kernels of SwapChannels, for elements of E = 1, 2 or 4 bytes.
//
// A call turns its channel order into a SwapPlan once (byte tables and masks),
// then runs one row kernel per row:
//
//   C3    output byte b takes the source byte of the same pixel at b + delta
//         of its channel. Each 64-byte output chunk is three masked loads
//         merged into one vector (one per distinct delta), and since a row's
//         chunks cycle through three channel phases the masks come from a
//         table of three. The loads of a chunk are issued before the store of
//         the chunk before it, so the kernel also permutes a row in place.
//   C4    one in-lane byte shuffle: a 16-byte lane holds whole pixels.
//   AC4   the same shuffle under the colour-channel mask, on the load (the
//         source's fourth channel is not read) and on the store.
//   C4C3  64 source bytes -> in-lane shuffle leaves 12 bytes per lane ->
//         dword permute packs them to 48 bytes.
//   C3C4  48 source bytes -> dword permute spreads 12 bytes to each lane ->
//         in-lane shuffle; the constant is blended in, and channels whose
//         entry is above 3 are left out of the store.
//
// Every vector kernel reads and writes only the bytes of its row (masked
// loads and stores at the ends), and has a plain scalar twin, swap_row_ref,
// the reference of the tests. The C4, AC4 and C3 kernels read every byte
// of a pixel before they write it, so they serve the in-place forms.
#pragma once

#include <cstdint>

namespace gex::swap_kernels {

enum class SwapForm { C3, C4, AC4, C4C3, C3C4 };

// Number of dstOrder entries of a form.
constexpr int order_entries(SwapForm f) { return (f == SwapForm::C4 || f == SwapForm::C3C4) ? 4 : 3; }

struct SwapPlan {
    alignas(64) std::uint8_t shuf[64];  // in-lane byte table (C4, AC4, C4C3, C3C4)
    alignas(64) std::uint8_t val[64];   // C3C4: the constant, one copy per pixel
    std::uint64_t chan[3][3];           // C3: [phase][group] bytes of an output chunk
    int delta[3];                       // C3: byte offset source - destination per group
    int groups;                         // C3: distinct deltas
    std::uint64_t valMask;              // C3C4: bytes that take the constant
    std::uint64_t storeMask;            // AC4: colour bytes; C3C4: bytes written
    int E;
    SwapForm form;
};

// Entries must already be valid for the form (the wrappers check them).
// val points to one element (C3C4 only; may be null otherwise).
void make_plan(SwapPlan& plan, SwapForm form, int E, const int* order, const void* val);

// One row of `width` pixels.
void swap_row(const SwapPlan& plan, const std::uint8_t* src, std::uint8_t* dst, std::int64_t width);

// The scalar twin: pixel by pixel, reading a whole pixel before writing it.
void swap_row_ref(SwapForm form, int E, const int* order, const void* val, const std::uint8_t* src,
                  std::uint8_t* dst, std::int64_t width);

}  // namespace gex::swap_kernels
