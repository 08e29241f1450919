// Row kernels of Mirror: the reversing copy of a row, its in-place forms, and
// the exchange of two rows. A row is n pixels of `ch` elements of E bytes;
// with ac4 the fourth channel is neither read as input nor written.
//
// Reversal, whole pixels of P = E x ch bytes with P = 1, 2, 4, 8, 16 (every
// C1 and C4/AC4 pixel): the 64 bytes that end at the mirrored position are
// loaded and their P-byte units reversed in the register (byte shuffle plus
// lane permute, or one word/dword/qword permute).
// Reversal of three-channel pixels (P = 3E): a destination element of
// channel k takes the source element at the mirrored position plus 2k - 2,
// so each 64-byte chunk is three masked loads merged (one per channel; the
// masks cycle with the chunk's phase in the row) and one reversal of E-byte
// units.
// In place, the row is worked on from both ends in pieces of 192 bytes
// through a buffer on the stack; the rows of flip 2 likewise.
// Tails are masked: no byte outside the row is read or written.
#pragma once

#include <cstdint>

namespace gex::mirror_kernels {

struct RowFormat {
    int E;      // element bytes: 1, 2, 4
    int ch;     // channels: 1, 3, 4
    bool ac4;   // only the first three channels move
    int pixel() const { return E * ch; }
};

// dst[x] = src[n - 1 - x]; src and dst must not overlap.
void reverse_row(const std::uint8_t* src, std::uint8_t* dst, std::int64_t n, RowFormat f);
void reverse_row_ref(const std::uint8_t* src, std::uint8_t* dst, std::int64_t n, RowFormat f);

// The row reversed in place.
void reverse_row_inplace(std::uint8_t* row, std::int64_t n, RowFormat f);

// Rows a and b exchanged (flip 0 in place).
void exchange_rows(std::uint8_t* a, std::uint8_t* b, std::int64_t n, RowFormat f);

// a becomes b reversed and b becomes a reversed (flip 2 in place); a != b.
void exchange_reversed_rows(std::uint8_t* a, std::uint8_t* b, std::int64_t n, RowFormat f);

// The overlap rule of the diagonal flips: some corner element of either ROI
// shares a byte with a row of the other. The source is width x height, the
// destination height x width; elements of E bytes; positive steps.
bool diagonal_rois_overlap(const void* src, std::int64_t srcStep, const void* dst, std::int64_t dstStep,
                           std::int64_t width, std::int64_t height, int E);

}  // namespace gex::mirror_kernels
