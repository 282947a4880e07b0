#include "platform/soft/spans.h"

// On x86-64 with the GNU toolchain the fill is built twice, for the baseline
// and for AVX2 (32-byte stores), and the loader picks the one the processor
// runs.
#if defined(__GNUC__) && defined(__x86_64__) && defined(__linux__)
#define VORLEX_WIDE_STORES __attribute__((target_clones("avx2", "default")))
#else
#define VORLEX_WIDE_STORES
#endif

namespace vorlex::gdi::soft {

namespace {

constexpr size_t kStep = 16;
constexpr uintptr_t kAlignment = 32;

// A fixed count: compilers turn these loops into wide stores.
inline void FillStep(uint32_t* first, uint32_t pixel) {
  for (size_t k = 0; k < kStep; ++k) first[k] = pixel;
}

// Sixteen pixels per step: the first step where the span starts, the next ones
// on 32-byte boundaries, the last one ending where the span ends (steps may
// overlap, so no pixel is written one at a time).
inline void FillRow(uint32_t* first, size_t count, uint32_t pixel) {
  if (count < kStep) {
    for (size_t i = 0; i < count; ++i) first[i] = pixel;
    return;
  }
  FillStep(first, pixel);
  const size_t misalignment = reinterpret_cast<uintptr_t>(first) % kAlignment / sizeof(uint32_t);
  size_t i = misalignment == 0 ? kStep : (kAlignment / sizeof(uint32_t)) - misalignment;
  for (; i + kStep <= count; i += kStep) FillStep(first + i, pixel);
  FillStep(first + count - kStep, pixel);
}

}  // namespace

VORLEX_WIDE_STORES void FillPixels(uint32_t* first, size_t count, uint32_t pixel) { FillRow(first, count, pixel); }

VORLEX_WIDE_STORES void FillRows(uint32_t* first, size_t count, size_t rows, size_t stride, uint32_t pixel) {
  for (size_t row = 0; row < rows; ++row) FillRow(first + row * stride, count, pixel);
}

}  // namespace vorlex::gdi::soft
