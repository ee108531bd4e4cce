#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "judges/Endurance.h"

// Arbitrary bytes as a seed and a user's events, four bytes each, on the headless game with every
// watch looking. Plays in a folder "game" of the folder it is started in.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t mostEvents = 120;
  if (size <= sizeof(UserEvent)) {
    return 0;
  }
  std::vector<UserEvent> events(std::min((size - 1) / sizeof(UserEvent), mostEvents));
  std::memcpy(events.data(), data + 1, events.size() * sizeof(UserEvent));
  if (const std::string fault = fncPlay("game", data[0], events).Fault; !fault.empty()) {
    throw std::runtime_error(fault);
  }
  return 0;
}
