// The one-dimensional Fourier engine under the image transforms.
//
// gexsFFT*: lengths 2^order; gexsDFT*: any length (five plans, one of them an
// embedded FFT record). Both build a state record in caller memory, at the
// block's address rounded up to 64 bytes, with the identifier written last;
// the transforms only read the record. All tables are 64-byte aligned.
#pragma once

#include <cstddef>
#include <cstdint>

#include "gexdefs.h"

// GCC 12 takes the undefined start vector inside its own shuffle intrinsics
// for an uninitialised variable; the warning is about the compiler's headers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace gex {

namespace fftk {
struct SPtr;
}

// Record identifiers.
enum : std::int32_t { kIdFftC = 4, kIdFftR = 6, kIdDftC = 13, kIdDftR = 15 };

// Plans of the power-of-two complex transform.
enum FftPlan : std::int32_t { kFftSmall = 1, kFftRadix4 = 2, kFftLarge = 3 };
// Plans of the any-length complex transform.
enum DftPlan : std::int32_t { kDftSmall = 1, kDftFFT = 2, kDftPrimeFact = 3, kDftDirect = 4, kDftConv = 5 };

// Power-of-two record: 144-byte header, then the tables.
struct FftSpec {
    std::int32_t id;
    std::int32_t order;  // of the transform (real records: of the real length)
    std::int32_t scaleFwd;
    std::int32_t scaleInv;
    float normFactor;
    std::int32_t hint;
    std::int32_t workSize;  // bytes the transform needs from its work buffer (without the 64 of alignment)
    std::int32_t useFFT;
    const Gex32fc* pTwiddle;      // radix passes, in pass order
    const std::int32_t* pBitRev;  // output group of each first-pass input column
    const Gex32fc* pRealRec;      // real records: w_N^k, k = 0..N/4
    const Gex32fc* pCcsRec;       // unused (kept for the shared layout)
    // private part
    std::int32_t plan;       // FftPlan of the complex (half) transform
    std::int32_t corder;     // order of the complex (half) transform
    std::int32_t subOrder;   // large plan: order of the radix-4 leaf transforms
    std::int32_t quarterShift;  // large plan: twiddle index multiplier (shift) into pQuarter
    const float* pQuarter;      // large plan: sin(2 pi i / Nq), i = 0..Nq/4
    std::int64_t quarterN;      // Nq
    std::int32_t scalarOnly;    // run the scalar twins of the vector kernels
    std::int32_t reserved[11];
};
static_assert(sizeof(FftSpec) == 144, "the FFT record header is 144 bytes");

struct DftFactor {
    std::int32_t factor;  // radix of the pass
    std::int32_t n;       // length of the sub-transforms the pass works on
    std::int32_t stride;  // product of the factors before it
    std::int32_t expanded;  // twiddles stored per input element (stride below 8)
    const Gex32fc* pTw;   // twiddles
    const Gex32fc* pCs;   // (cos, sin)(2 pi t / factor), t = 0..factor-1
    const std::int32_t* pIdx;  // expanded passes: output base index per input element
};

constexpr int kMaxFactors = 15;

// Any-length record: 768-byte header.
struct DftSpec {
    std::int32_t id;
    std::int32_t length;
    std::int32_t scaleFwd;
    std::int32_t scaleInv;
    float normFactor;
    std::int32_t hint;
    std::int32_t workSize;
    std::int32_t useFFT;
    const Gex32fc* pTwiddle;  // direct plan: w_N^j
    const std::int32_t* pBitRev;
    const Gex32fc* pRealRec;  // real even lengths: w_N^k, k = 0..N/4
    const Gex32fc* pCcsRec;
    FftSpec* pFftSpec;
    std::int32_t primeFact;
    std::int32_t nFactorsM1;
    DftFactor factors[kMaxFactors];
    std::int32_t convLength;
    std::int32_t plan;
    const Gex32fc* pChirp;
    const Gex32fc* pSpectrum;
    // private part
    DftSpec* pSub;  // real: the complex record it runs on; Bluestein: the record of length L
    std::int32_t scalarOnly;
    std::int32_t reserved[1];
};
static_assert(sizeof(DftSpec) <= 768, "the DFT record header fits 768 bytes");
constexpr int kDftHeader = 768;

// ---- power-of-two transforms ----
GexStatus gexsFFTGetSize_C_32fc(int order, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize);
GexStatus gexsFFTGetSize_R_32f(int order, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize);
GexStatus gexsFFTInit_C_32fc(FftSpec** ppSpec, int order, int flag, GexHintAlgorithm hint, Gex8u* pSpec,
                             Gex8u* pSpecBuffer);
GexStatus gexsFFTInit_R_32f(FftSpec** ppSpec, int order, int flag, GexHintAlgorithm hint, Gex8u* pSpec,
                            Gex8u* pSpecBuffer);
GexStatus gexsFFTFwd_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const FftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsFFTInv_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const FftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsFFTFwd_RToPack_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsFFTFwd_RToPerm_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsFFTInv_PackToR_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsFFTInv_PermToR_32f(const Gex32f* pSrc, Gex32f* pDst, const FftSpec* pSpec, Gex8u* pBuffer);

// ---- any-length transforms ----
GexStatus gexsDFTGetSize_C_32fc(int length, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                                int* pBufferSize);
GexStatus gexsDFTGetSize_R_32f(int length, int flag, GexHintAlgorithm hint, int* pSpecSize, int* pInitSize,
                               int* pBufferSize);
GexStatus gexsDFTInit_C_32fc(int length, int flag, GexHintAlgorithm hint, DftSpec* pSpec, Gex8u* pMemInit);
GexStatus gexsDFTInit_R_32f(int length, int flag, GexHintAlgorithm hint, DftSpec* pSpec, Gex8u* pMemInit);
GexStatus gexsDFTFwd_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const DftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsDFTInv_CToC_32fc(const Gex32fc* pSrc, Gex32fc* pDst, const DftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsDFTFwd_RToPack_32f(const Gex32f* pSrc, Gex32f* pDst, const DftSpec* pSpec, Gex8u* pBuffer);
GexStatus gexsDFTInv_PackToR_32f(const Gex32f* pSrc, Gex32f* pDst, const DftSpec* pSpec, Gex8u* pBuffer);

// ---- helpers shared by the engine files ----
namespace fft {

template <class T>
inline T* align64(T* p) {
    const auto a = reinterpret_cast<std::uintptr_t>(p);
    return reinterpret_cast<T*>((a + 63) & ~std::uintptr_t{63});
}
constexpr std::int64_t align64up(std::int64_t n) { return (n + 63) & ~std::int64_t{63}; }
constexpr std::int64_t align64down(std::int64_t n) { return n & ~std::int64_t{63}; }

// w_n^x = exp(-2 pi i x / n) evaluated in double from the first octant,
// rounded once to float.
Gex32fc twiddle64(std::int64_t x, std::int64_t n);
// sin(2 pi i / n) for i = 0..n/4, the same values twiddle64 gives.
void quarter_wave(float* q, std::int64_t n);

// Scale flag -> (scaleFwd, scaleInv, factor). False for an unknown flag.
bool scale_of_flag(int flag, std::int64_t n, std::int32_t& fwd, std::int32_t& inv, float& factor);

// Bump allocator over a caller's block (or a counter when base is null).
struct Arena {
    Gex8u* base;
    std::int64_t used;
    template <class T>
    T* take(std::int64_t count) {
        used = align64up(used);
        T* p = base ? reinterpret_cast<T*>(base + used) : nullptr;
        used += count * static_cast<std::int64_t>(sizeof(T));
        return p;
    }
};

// Internal planners/executors (the checked entry points call these).
std::int64_t fft_spec_bytes(int order, bool real);  // bytes used after the 64-byte aligned start
FftSpec* fft_build(Gex8u* alignedBase, int order, bool real, int flag, GexHintAlgorithm hint);
std::int64_t fft_work_bytes(int order, bool real);
void fft_run_c(const Gex32fc* src, Gex32fc* dst, const FftSpec* s, Gex8u* buf, bool inv);
void fft_run_r_fwd(const Gex32f* src, Gex32f* dst, const FftSpec* s, Gex8u* buf, bool pack);
void fft_run_r_inv(const Gex32f* src, Gex32f* dst, const FftSpec* s, Gex8u* buf, bool pack);

// Real <-> complex-half recombination (forward: Z in place to Perm; inverse:
// Perm in place to Z), twiddles w_N^k from tw(k), scaled by s.
void recombine_fwd(Gex32f* d, std::int64_t m, const Gex32fc* tw, float s, bool doScale, bool scalar);
void recombine_inv(Gex32f* d, std::int64_t m, const Gex32fc* tw, float s, bool doScale, bool scalar);
void perm_to_pack(Gex32f* d, std::int64_t n);
// Unchecked runs of an aligned, built any-length record.
void dft_run_c(const Gex32fc* src, Gex32fc* dst, const DftSpec* s, Gex8u* buf, bool inv);
void dft_run_r_fwd(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf);
void dft_run_r_inv(const Gex32f* src, Gex32f* dst, const DftSpec* s, Gex8u* buf);
// Eight transforms side by side: element i of each sequence is the 8 complex
// values at base + i * step (fftk::SPtr); the work buffer holds 64 N bytes.
// Supported for the radix-4 plan and, any length, the prime-factor plan.
bool fft_batch_ok(const FftSpec* s);
void fft_run_batch(fftk::SPtr src, fftk::SPtr dst, const FftSpec* s, Gex8u* buf, bool inv);
bool dft_batch_ok(const DftSpec* s);
void dft_run_batch(fftk::SPtr src, fftk::SPtr dst, const DftSpec* s, Gex8u* buf, bool inv);
// The forward batched transform in blocks and offsets (see fft_engine.cpp).
// fft_split_ok: the transform splits at span B. fft_split_block gives the B
// the image transforms use (0: none) when its two parts fit `room` bytes of
// work buffer. Place i of the staged sequence holds input
// fft_split_input(i); fft_split_head runs the B staged elements at blk into
// outputs B b .. B b + B - 1 of the first passes, in place, with 64 B bytes
// of buffer. fft_split_tail finishes offset j < B of `groups` batches 64
// bytes apart: elements j + B u at data + (j + B u), in place, with 64 n / B
// bytes of buffer.
constexpr int kSplitMinOrder = 8, kSplitMaxOrder = 14;
bool fft_split_ok(const FftSpec* s, std::int64_t B);
std::int64_t fft_split_block(const FftSpec* s, std::int64_t room);
std::int64_t fft_split_input(const FftSpec* s, std::int64_t i);
void fft_split_head(fftk::SPtr blk, const FftSpec* s, std::int64_t B, Gex8u* buf);
void fft_split_tail(fftk::SPtr data, std::int64_t groups, const FftSpec* s, std::int64_t B, std::int64_t j, Gex8u* buf);
// The table-free kernels of lengths up to 64 (order 0..6).
void small_fft_run(const Gex32fc* src, Gex32fc* dst, int order, bool inv, float scl, bool doScale);
void pack_to_perm(Gex32f* d, std::int64_t n);

}  // namespace fft

// Test hook: make a built record run the scalar twins of the vector kernels.
void fft_force_scalar(FftSpec* s);
void dft_force_scalar(DftSpec* s);
// The complex plan (DftPlan) a length takes.
int dft_plan_of(int length);

}  // namespace gex

#pragma GCC diagnostic pop
