#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

// What the program and the bare window tell alike about themselves. Needs no more than the
// language, so that the bare window stays bare.

namespace bench {

/// Milliseconds since the moment that BENCH_START names, in seconds of the world's clock.
inline double fncSinceStart() {
  const char* start = std::getenv("BENCH_START");
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  const double seconds = static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
  return start == nullptr ? 0 : (seconds - std::atof(start)) * 1e3;
}

/// Resident memory of this process in MB of 1024 * 1024; 0 where the system does not tell.
inline double fncResident() {
  long kilobytes = 0;
  if (std::FILE* status = std::fopen("/proc/self/status", "r"); status != nullptr) {
    char line[256];
    while (std::fgets(line, sizeof line, status) != nullptr) {
      if (std::strncmp(line, "VmRSS:", 6) == 0) {
        kilobytes = std::atol(line + 6);
      }
    }
    std::fclose(status);
  }
  return static_cast<double>(kilobytes) / 1024;
}

}  // namespace bench
