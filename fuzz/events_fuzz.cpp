#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "judges/Endurance.h"

// Arbitrary bytes as a seed and a user's events, four bytes each, on the headless game with every
// watch looking. Plays in a folder "game" of the folder it is started in.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t mostEvents = 120;
  if (size < 5) {
    return 0;
  }
  const std::size_t count = std::min((size - 1) / 4, mostEvents);
  std::vector<UserEvent> events;
  for (std::size_t at = 0; at < count; ++at) {
    const std::uint8_t* bytes = data + 1 + at * 4;
    events.push_back({bytes[0], bytes[1], bytes[2], bytes[3]});
  }
  const EnduranceResult result = fncPlay("game", data[0], events);
  if (!result.Fault.empty()) {
    std::fprintf(stderr, "%s\n", result.Fault.c_str());
    for (const UserEvent& event : events) {
      std::fprintf(stderr, "  %s\n", fncDescribe(event).c_str());
    }
    std::abort();
  }
  return 0;
}
