#include <cinttypes>
#include <cstdio>
#include <cstdlib>

#include "judges/Adapter.h"
#include "judges/Endurance.h"

// velmora_endurance [SEED [SHOES]]: a random user at the headless table, as long as wanted;
// velmora_qt_endurance: at the real widgets. Both print counts, and a fault with its seed and the
// shortest list of events that repeats it.

int main(int argc, char** argv) {
  return user::Play(argc, argv, [&] {
    const std::uint64_t seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
    const EnduranceResult result = fncEndure(seed, argc > 2 ? std::atoll(argv[2]) : 10'000);
    std::printf("%" PRId64 " shoes, %" PRId64 " hands, %" PRId64 " starts of the program\n%s\n",
                result.Shoes, result.Hands, result.Starts, result.Fault.c_str());
    return result.Fault.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
  });
}
