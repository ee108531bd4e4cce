#include "table/Random.h"

// xoshiro128+ (Blackman and Vigna), started by splitmix64 so that neighbouring seeds give unrelated
// sequences. Its upper bits are the good ones, and a float takes only those. It is the same on
// every machine, which keeps the pinned shoes of the tests true everywhere.

namespace {

std::uint32_t lngState[4] = {1, 2, 3, 4};

constexpr std::uint32_t fncRotate(std::uint32_t bits, int by) {
  return (bits << by) | (bits >> (32 - by));
}

std::uint64_t fncSplitMix(std::uint64_t& seed) {
  seed += 0x9E3779B97F4A7C15ULL;
  std::uint64_t mixed = seed;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
  return mixed ^ (mixed >> 31);
}

}  // namespace

void prcSeedRandom(std::uint64_t seed) {
  for (std::uint32_t& word : lngState) {
    word = static_cast<std::uint32_t>(fncSplitMix(seed) >> 32);
  }
}

float fncRandom() {
  const std::uint32_t drawn = lngState[0] + lngState[3];
  const std::uint32_t shifted = lngState[1] << 9;
  lngState[2] ^= lngState[0];
  lngState[3] ^= lngState[1];
  lngState[1] ^= lngState[2];
  lngState[0] ^= lngState[3];
  lngState[2] ^= shifted;
  lngState[3] = fncRotate(lngState[3], 11);
  return static_cast<float>(drawn >> 8) * 0x1p-24F;
}
