#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "table/TableState.h"

/// The slots 0..intMostSlots-1 that still have no position, a bit for each: near the end of a
/// shuffle the next free one lies far away, and whole words of used ones are passed over at once.
class FreeSlots {
 public:
  void prcFree(int slot) { words_[fncWord(slot)] |= fncBit(slot); }
  void prcUse(int slot) { words_[fncWord(slot)] &= ~fncBit(slot); }
  bool fncIsFree(int slot) const { return (words_[fncWord(slot)] & fncBit(slot)) != 0; }

  /// The lowest free slot above this one, or round the end the lowest of all. One must be free.
  int fncUpFrom(int slot) const {
    std::size_t word = fncWord(slot);
    std::uint64_t seen = words_[word] & (~std::uint64_t{1} << fncPlace(slot));
    while (seen == 0) {
      word = word + 1 == words_.size() ? 0 : word + 1;
      seen = words_[word];
    }
    return static_cast<int>(word) * intBits + std::countr_zero(seen);
  }

  /// The highest free slot below this one, or round the end the highest of all. One must be free.
  int fncDownFrom(int slot) const {
    std::size_t word = fncWord(slot);
    std::uint64_t seen = words_[word] & (fncBit(slot) - 1);
    while (seen == 0) {
      word = word == 0 ? words_.size() - 1 : word - 1;
      seen = words_[word];
    }
    return static_cast<int>(word) * intBits + intBits - 1 - std::countl_zero(seen);
  }

 private:
  static constexpr int intBits = 64;
  static std::size_t fncWord(int slot) { return static_cast<std::size_t>(slot) / intBits; }
  static std::size_t fncPlace(int slot) { return static_cast<std::size_t>(slot) % intBits; }
  static std::uint64_t fncBit(int slot) { return std::uint64_t{1} << fncPlace(slot); }

  std::array<std::uint64_t, (intMostSlots + intBits - 1) / intBits> words_{};
};
