#include "judges/Endurance.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "judges/Adapter.h"
#include "judges/Invariants.h"
#include "marking/MarkState.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "table/BaccTable.h"

namespace {

constexpr std::size_t intEventsOfAnEvening = 200;

/// A small shoe ends soon; the rest is what a first run would find.
constexpr const char* strFirstFile =
    "[frmBaccTable]\r\nHeight= 5400\r\nWidth= 10770\r\n"
    "[Misc]\r\nUnitValue= 10\r\nNerodik=1\r\n"
    "[Player1Stats]\r\nStake= 5000\r\n[Player2Stats]\r\nStake= 5000\r\n"
    "[Shoe Size]\r\nDecks= 1\r\n";

/// An evening under way: the events come one after the other, in whatever wait the program is in.
struct Evening {
  const std::vector<UserEvent>& Events;
  const AfterEvent& After;
  std::size_t Next = 0;
  Watch Watching{};
  EnduranceResult Result{};

  bool fncOver() const { return Next >= Events.size() || !Result.Fault.empty(); }
};

void prcLook(Evening& evening, std::size_t at) {
  std::string fault = evening.Watching.fncLook();
  fault = fault.empty() ? evening.Watching.fncLookAtSwitches() : fault;
  if (!fault.empty() && evening.Result.Fault.empty()) {
    evening.Result.Fault = fault;
    evening.Result.Event = at;
    if (!user::Ended()) {
      // Nobody will turn the cards that the program may be waiting for.
      platform::End();
    }
  }
}

/// When all events have been done, the hand on the table is brought to its end.
void prcSeeOut(Evening& evening) {
  if (blnBusy) {
    user::After(500, [&evening] { prcSeeOut(evening); });
    prcTurnAll();
    prcLook(evening, evening.Events.size());
  }
}

void prcNext(Evening& evening) {
  if (evening.fncOver()) {
    return prcSeeOut(evening);
  }
  const std::size_t at = evening.Next++;
  const UserEvent& event = evening.Events[at];
  // The one after it is under way before it begins: it may come in the middle of it.
  const std::uint32_t delay =
      evening.fncOver() ? 0 : evening.Events[evening.Next].Delay * lngDelayStep;
  user::After(delay, [&evening] { prcNext(evening); });
  prcDo(event);
  if (evening.After) {
    evening.After(event);
  }
  prcLook(evening, at);
}

void prcStartGame(const std::string& folder, std::uint64_t seed) {
  user::Reset(folder);
  headless::Seed(seed);
  prcResetTableState();
  prcResetMarkState();
  user::Run(fncStartProgram);
}

void prcRun(Evening& evening) {
  evening.Watching.prcStart();
  user::After(1, [&evening] { prcNext(evening); });
  do {
    user::Wait(1000);
  } while (!user::Ended() && (!evening.fncOver() || blnBusy));
  prcLook(evening, evening.Next == 0 ? 0 : evening.Next - 1);  // At what may have ended it.
}

}  // namespace

EnduranceResult fncPlay(const std::string& folder, std::uint64_t seed,
                        const std::vector<UserEvent>& events, const AfterEvent& after) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  std::ofstream(folder + "/VELMORA.INI", std::ios::binary) << strFirstFile;
  Evening evening{.Events = events, .After = after};
  do {
    prcStartGame(folder, seed + 1000 * static_cast<std::uint64_t>(evening.Result.Starts++));
    prcRun(evening);
  } while (!evening.fncOver());
  evening.Result.Hands = evening.Watching.Hands();
  evening.Result.Shoes = evening.Watching.Shoes();
  user::Reset(folder);
  return evening.Result;
}

std::vector<UserEvent> fncShorten(const std::string& folder, std::uint64_t seed,
                                  std::vector<UserEvent> events, const AfterEvent& after) {
  for (std::size_t at = events.size(); at-- > 0;) {
    std::vector<UserEvent> fewer = events;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at));
    if (!fncPlay(folder, seed, fewer, after).Fault.empty()) {
      events = std::move(fewer);
    }
  }
  return events;
}

std::string fncFastFolder() {
  std::string name = std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp";
  name += "/velmora-user-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    throw std::runtime_error("no folder for a settings file");
  }
  return name;
}

std::vector<UserEvent> fncRandomEvents(std::uint64_t seed, std::size_t count) {
  std::mt19937_64 random(seed);
  std::vector<UserEvent> events(count);
  std::ranges::generate(events, [&] { return fncRandomEvent(random); });
  return events;
}

EnduranceResult fncEndure(const std::string& folder, std::uint64_t firstSeed, std::int64_t shoes,
                          const AfterEvent& after) {
  EnduranceResult all;
  for (std::uint64_t seed = firstSeed; all.Shoes < shoes; ++seed) {
    std::vector<UserEvent> events = fncRandomEvents(seed, intEventsOfAnEvening);
    const EnduranceResult one = fncPlay(folder, seed, events, after);
    all.Hands += one.Hands;
    all.Shoes += one.Shoes;
    all.Starts += one.Starts;
    if (one.Fault.empty()) {
      continue;
    }
    events.resize(std::min(one.Event + 1, events.size()));
    events = fncShorten(folder, seed, events, after);
    all.Event = events.size();
    all.Fault = fncPlay(folder, seed, events, after).Fault + "\nseed " + std::to_string(seed) +
                ", " + std::to_string(events.size()) + " events:";
    for (const UserEvent& event : events) {
      all.Fault += "\n  " + fncDescribe(event);
    }
    break;
  }
  return all;
}
