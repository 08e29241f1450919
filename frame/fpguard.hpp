// Scoped control of the processor's floating-point rounding and
// flush-to-zero bits (MXCSR). The previous state comes back when the guard
// leaves scope, and only if the guard changed it, so a caller's own setting
// is never disturbed by an operation that happens to need the same one.
#pragma once

#include <immintrin.h>

namespace gex {

enum class FpRound : unsigned {
    Nearest = 0u << 13,
    Down    = 1u << 13,
    Up      = 2u << 13,
    Zero    = 3u << 13,
};

class FpControlGuard {
public:
    static constexpr unsigned kRoundBits = 3u << 13;
    static constexpr unsigned kFlushToZero = 1u << 15;
    static constexpr unsigned kDenormalsAreZero = 1u << 6;

    explicit FpControlGuard(FpRound round) : FpControlGuard(round, false, false) {}

    FpControlGuard(FpRound round, bool flushToZero, bool denormalsAreZero) {
        saved_ = _mm_getcsr();
        unsigned want = (saved_ & ~(kRoundBits | kFlushToZero | kDenormalsAreZero)) |
                        static_cast<unsigned>(round) |
                        (flushToZero ? kFlushToZero : 0u) |
                        (denormalsAreZero ? kDenormalsAreZero : 0u);
        changed_ = want != saved_;
        if (changed_) _mm_setcsr(want);
    }

    ~FpControlGuard() {
        if (changed_) _mm_setcsr(saved_);
    }

    FpControlGuard(const FpControlGuard&) = delete;
    FpControlGuard& operator=(const FpControlGuard&) = delete;

    bool changed() const { return changed_; }

private:
    unsigned saved_ = 0;
    bool changed_ = false;
};

}  // namespace gex
