#include <chrono>
#include <random>

#include "platform/platform.h"

// The machine's clock and its chance.

namespace platform {

std::uint32_t TickCount() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

std::uint64_t RandomSeed() {
  static std::random_device device;
  static std::uint64_t calls = 0;
  const auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  const std::uint64_t chance = (std::uint64_t{device()} << 32U) ^ device();
  return (static_cast<std::uint64_t>(now) * 0x9E3779B97F4A7C15ULL + ++calls) ^ chance;
}

}  // namespace platform
