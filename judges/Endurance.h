#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "judges/UserEvents.h"

// A user of any patience at the headless table, watched after every event.

struct EnduranceResult {
  std::string Fault;      ///< What did not hold; empty where all went well.
  std::size_t Event = 0;  ///< The event after which it did not.
  std::int64_t Hands = 0, Shoes = 0, Starts = 0;
};

/// Called after each event, before the watch looks: where a test plants a fault.
using AfterEvent = std::function<void(const UserEvent&)>;

/// Plays the events in a folder whose settings file it makes anew: the program is started, and
/// started again where an event ends it. Shuffles take their order from the seed.
EnduranceResult fncPlay(const std::string& folder, std::uint64_t seed,
                        const std::vector<UserEvent>& events, const AfterEvent& after = {});

/// The shortest list found that still ends in a fault, by leaving out what it does without.
std::vector<UserEvent> fncShorten(const std::string& folder, std::uint64_t seed,
                                  std::vector<UserEvent> events, const AfterEvent& after = {});

/// A new folder in memory where the machine has one, for settings files that are written thousands
/// of times. The caller removes it.
std::string fncFastFolder();

/// Random events of a seed.
std::vector<UserEvent> fncRandomEvents(std::uint64_t seed, std::size_t count);

/// Plays evenings of random events, with the seeds that follow firstSeed, until this many shoes
/// have come to their end or a fault is found. The fault's text then ends in its seed and the
/// shortest list of events that repeats it.
EnduranceResult fncEndure(const std::string& folder, std::uint64_t firstSeed, std::int64_t shoes,
                          const AfterEvent& after = {});
