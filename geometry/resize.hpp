// The resize record and what every resize method shares: the record layout,
// its identifiers, the 64-byte rounding of the caller's block, the reduced
// ratios, the super-sampling period geometry and the checks of a run.
//
// A record lives in a block the caller allocates with the size the query
// gave; every entry point works on the block's address rounded up to 64 bytes
// and the tables sit behind the record in the same block, reached through
// absolute pointers (so a record can't be moved or copied).
#pragma once

#include <cstddef>
#include <cstdint>

#include "gexgeometry.h"

namespace gex::resize {

inline constexpr std::uint32_t kId32 = 0x4B617389u;  // built by a 32-bit-size Init
inline constexpr std::uint32_t kIdL = 0x4B61738Cu;   // built by an _L Init
inline constexpr std::uint32_t kTypeFloat = 13;      // float, Q14 or no weights
inline constexpr std::uint32_t kTypeDouble = 19;     // double tables (64f linear)

// Bytes the size queries reserve for the record itself; the tables begin
// behind it.
inline constexpr std::size_t kRecordBytes = 232;

struct Axis {
    std::uint32_t srcLen, dstLen;
    std::uint32_t num, den;   // srcLen and dstLen over their greatest common divisor
    std::int32_t* pPos;       // source position per destination index (super: per phase and tap)
    float* pCoef32f;
    double* pCoef64f;
    std::uint16_t* pCoefQ14;
    void* pCoefAux;           // antialiased records only
    std::uint32_t nLow;       // destination indices from 0 up that read before the source
    std::uint32_t nHigh;      // destination indices from the end down that read past it
};

struct Record {
    std::uint32_t id;
    std::uint32_t dataType;
    std::uint32_t interpolation;
    std::uint32_t tapsX, tapsY;
    std::uint32_t antialiasing;
    GexiBorderSize borderSize;
    Axis yAxis;
    Axis xAxis;
};
static_assert(sizeof(Record) <= kRecordBytes);

// The block's address rounded up to 64 bytes.
inline Record* record_at(void* block) {
    const auto a = reinterpret_cast<std::uintptr_t>(block);
    return reinterpret_cast<Record*>((a + 63) & ~std::uintptr_t{63});
}
inline const Record* record_at(const void* block) {
    return record_at(const_cast<void*>(block));
}

// Euclid on 32-bit values.
constexpr std::uint32_t gcd32(std::uint32_t a, std::uint32_t b) {
    while (b != 0) {
        const std::uint32_t t = a % b;
        a = b;
        b = t;
    }
    return a;
}

// Fills the extents and the reduced ratio of an axis; tables and counts are
// left to the method's Init.
inline void set_axis_ratio(Axis& ax, std::uint32_t srcLen, std::uint32_t dstLen) {
    const std::uint32_t g = gcd32(srcLen, dstLen);
    ax.srcLen = srcLen;
    ax.dstLen = dstLen;
    ax.num = srcLen / g;
    ax.den = dstLen / g;
    ax.pPos = nullptr;
    ax.pCoef32f = nullptr;
    ax.pCoef64f = nullptr;
    ax.pCoefQ14 = nullptr;
    ax.pCoefAux = nullptr;
    ax.nLow = 0;
    ax.nHigh = 0;
}

// ---- Super-sampling period geometry ---------------------------------------
//
// With num / den reduced, num source pixels map on den destination pixels and
// the pattern repeats; each phase has k taps, positions relative to the start
// of its period in pPos[phase * k + tap].

constexpr std::uint32_t super_taps(std::uint32_t num, std::uint32_t den) {
    const std::uint32_t rem = num % den;
    return num / den + (rem == 0 ? 0u : rem == 1 ? 1u : 2u);
}

// First source pixel that destination index i reads.
inline std::int64_t super_src_offset(const Axis& ax, std::int64_t i) {
    const std::uint32_t k = super_taps(ax.num, ax.den);
    return (i / ax.den) * std::int64_t(ax.num) + ax.pPos[(i % ax.den) * k];
}

// Source extent read by destination indices [offset, end), end already clipped.
inline std::int64_t super_src_extent(const Axis& ax, std::int64_t offset, std::int64_t end) {
    const std::uint32_t k = super_taps(ax.num, ax.den);
    const std::int64_t lastTap =
        (end % ax.den) == 0 ? std::int64_t(ax.num) - 1 : std::int64_t(ax.pPos[(end % ax.den) * k - 1]);
    return ((end - 1) / ax.den) * std::int64_t(ax.num) - super_src_offset(ax, offset) + lastTap + 1;
}

constexpr std::uint64_t round_up32(std::uint64_t n) { return (n + 31) & ~std::uint64_t{31}; }

// Record bytes of a super-sampling record (the 64 of the block's rounding
// included): both position tables, then both weight tables on 32-byte bounds.
inline std::uint64_t super_record_size(std::uint64_t srcW, std::uint64_t srcH, std::uint64_t dstW,
                                     std::uint64_t dstH) {
    const std::uint64_t gx = gcd32(std::uint32_t(srcW), std::uint32_t(dstW));
    const std::uint64_t gy = gcd32(std::uint32_t(srcH), std::uint32_t(dstH));
    const std::uint64_t numX = srcW / gx, denX = dstW / gx, numY = srcH / gy, denY = dstH / gy;
    const std::uint64_t nX = denX * super_taps(std::uint32_t(numX), std::uint32_t(denX));
    const std::uint64_t nY = denY * super_taps(std::uint32_t(numY), std::uint32_t(denY));
    return (round_up32(nX) + nX + nY + round_up32(nY)) * 4 + kRecordBytes + 64;
}

// Scratch bytes of a super-sampling run over a tile of width x height and the
// given channels (the 64 of the buffer's rounding included): the row pointer
// array, then one float accumulator row per destination row of a period.
inline std::uint64_t super_buffer_size(const Record* s, std::int64_t width, std::int64_t height,
                                       std::uint32_t channels) {
    const std::uint64_t w = std::uint64_t(width < std::int64_t(s->xAxis.dstLen) ? width : s->xAxis.dstLen);
    const std::uint64_t h = std::uint64_t(height < std::int64_t(s->yAxis.dstLen) ? height : s->yAxis.dstLen);
    const std::uint64_t m = std::uint64_t(height) < s->yAxis.den ? std::uint64_t(height) : s->yAxis.den;
    const float sx = (float(s->xAxis.num) * float(w)) / float(s->xAxis.den) + 3.0f;
    std::uint64_t span = std::uint64_t(sx);
    if (span > s->xAxis.srcLen) span = s->xAxis.srcLen;
    return (std::uint64_t(channels) * 4 * round_up32(span) + 8) * m + round_up32(h * 4) + round_up32(w * 4) + 32 + 64;
}

// ---- Checks of a run ---------------------------------------------------------

// Which identifier test an entry point makes.
enum class IdTest {
    Id32,        // 32-bit runs below 64f: the identifier alone
    Id32Double,  // 32-bit 64f forms: identifier and data type 19 together
    IdL,         // _L runs below 64f: identifier, then a data type other than 19
    IdLDouble,   // _L 64f runs: identifier, then data type 19
};

inline bool id_matches(const Record* s, IdTest t) {
    switch (t) {
    case IdTest::Id32: return s->id == kId32;
    case IdTest::Id32Double: return s->id == kId32 && s->dataType == kTypeDouble;
    case IdTest::IdL: return s->id == kIdL && s->dataType != kTypeDouble;
    case IdTest::IdLDouble: return s->id == kIdL && s->dataType == kTypeDouble;
    }
    return false;
}

// Linear, cubic and Lanczos accept 240 exactly, or a replicate mode nibble with
// any in-memory flags, and nothing above 255.
constexpr bool border_ok(int border) {
    return border >= 0 && border <= 255 && (border == gexBorderInMem || (border & 15) == gexBorderRepl);
}

struct RunArgs {
    const void* pSrc;
    std::int64_t srcStep;
    const void* pDst;
    std::int64_t dstStep;
    std::int64_t offX, offY;   // dstOffset
    std::int64_t width, height;  // dstSize as given
    const void* pSpec;         // the caller's block
    const void* pBuffer;
};

// The checks every run makes, in order, from the null pointers to the method
// test (the border test, where a method has one, comes before this). elemSize
// is the depth's element size: steps must be multiples of it (8u has no test).
// Returns a negative status, +1 for an empty tile, or 0.
inline GexStatus check_run(const RunArgs& a, IdTest idTest, std::uint32_t elemSize, std::uint32_t method) {
    if (a.pSrc == nullptr || a.pDst == nullptr || a.pSpec == nullptr || a.pBuffer == nullptr)
        return gexStsNullPtr;
    if (a.width == 0 || a.height == 0) return gexStsNoOperation;
    const Record* s = record_at(a.pSpec);
    if (!id_matches(s, idTest)) return gexStsContextMatch;
    if (a.width < 1 || a.height < 1) return gexStsSize;
    if (elemSize > 1 && (a.srcStep % elemSize != 0 || a.dstStep % elemSize != 0)) return gexStsStep;
    if (a.offX < 0 || a.offY < 0 || a.offX >= std::int64_t(s->xAxis.dstLen) ||
        a.offY >= std::int64_t(s->yAxis.dstLen))
        return gexStsOutOfRange;
    if (s->antialiasing != 0) return gexStsNotSupportedMode;
    if (s->interpolation != method) return gexStsContextMatch;
    return gexStsOk;
}

// Status after a run: +48 when the requested tile itself was larger than the
// destination (it was clipped and computed all the same).
inline GexStatus run_status(const Record* s, std::int64_t width, std::int64_t height) {
    return (width > std::int64_t(s->xAxis.dstLen) || height > std::int64_t(s->yAxis.dstLen)) ? gexStsSizeWarn
                                                                                              : gexStsOk;
}

}  // namespace gex::resize
