#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "judges/UserEvents.h"

// A user of any patience at the table, watched after every event.

struct EnduranceResult {
  /// What did not hold, with its seed and the events that repeat it; empty where all went well.
  std::string Fault;
  std::size_t Events = 0;  ///< Those that were begun; the rest came behind a fault.
  std::int64_t Hands = 0, Shoes = 0, Starts = 0;
};

/// Makes a folder anew with a settings file in it: no start screen, so much money for each seat, a
/// shoe of so many decks, and else what a first run finds.
void prcMakeSettings(const std::string& folder, int stake, int decks);

/// Called after each event, before the watch looks: where a test plants a fault.
extern std::function<void(const UserEvent&)> prcAfterEvent;

/// Plays the events in a folder that it makes anew: the program is started, and started again where
/// an event ends it. Shuffles take their order from the seed.
EnduranceResult fncPlay(const std::string& folder, std::uint64_t seed,
                        const std::vector<UserEvent>& events);

/// A new folder in memory where the machine has one, for settings files that are written thousands
/// of times. The caller removes it.
std::string fncFastFolder();

/// Plays evenings of random events, with the seeds that follow firstSeed, until this many shoes
/// have come to their end or a fault is found. The fault is then told with the shortest list of
/// events that repeats it.
EnduranceResult fncEndure(std::uint64_t firstSeed, std::int64_t shoes);
