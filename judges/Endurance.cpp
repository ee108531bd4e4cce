#include "judges/Endurance.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "judges/Adapter.h"
#include "judges/Invariants.h"
#include "marking/MarkState.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "table/BaccTable.h"

std::function<void(const UserEvent&)> prcAfterEvent = [](const UserEvent&) {};

namespace {

constexpr std::size_t intEventsOfAnEvening = 200;
constexpr std::size_t intMostTurns = 240;  // Of all cards, in two minutes, until a hand is over.

/// An evening under way: the events come one after the other, in whatever wait the program is in.
struct Evening {
  const std::vector<UserEvent>& Events;
  std::size_t Next = 0;
  std::string Fault{};

  bool fncOver() const { return Next >= Events.size() || !Fault.empty(); }
};

void prcLook(Evening& evening) {
  if (!evening.Fault.empty()) {
    return;
  }
  const bool blnStuck = evening.Next > evening.Events.size() + intMostTurns;
  evening.Fault = blnStuck ? "a hand or shuffle does not come to its end" : fncLook();
  if (evening.Fault.empty()) {
    evening.Fault = fncLookAtSwitches();
  }
  if (!evening.Fault.empty() && !user::Ended()) {
    platform::End();  // Nobody will turn the cards that the program may be waiting for.
  }
}

/// When all events have been done, the hand on the table is brought to its end.
void prcNext(Evening& evening) {
  if (evening.fncOver() && !blnBusy) {
    return;
  }
  // The one after it is under way before it begins: it may come in the middle of it.
  const std::size_t at = evening.Next++;
  const std::uint32_t delay =
      evening.fncOver() ? 500 : evening.Events[evening.Next].Delay * lngDelayStep;
  user::After(delay, [&evening] { prcNext(evening); });
  if (at < evening.Events.size()) {
    prcDo(evening.Events[at]);
    prcAfterEvent(evening.Events[at]);
  } else {
    prcTurnAll();
  }
  prcLook(evening);
}

}  // namespace

void prcMakeSettings(const std::string& folder, int stake, int decks) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  strIniFile = folder + "/VELMORA.INI";
  prcWriteSetting(secMisc, keyNerodik, 1);
  prcWriteSetting(secShoeSize, keyDecks, decks);
  for (int seat = 0; seat < intSeats; ++seat) {
    prcWriteSetting(fncSeatSection(seat), keyStake, stake);
  }
}

EnduranceResult fncPlay(const std::string& folder, std::uint64_t seed,
                        const std::vector<UserEvent>& events) {
  prcMakeSettings(folder, 5000, 1);  // A small shoe ends soon.
  Evening evening{events};
  EnduranceResult result;
  lngHandsSeen = lngShoesSeen = 0;
  do {
    user::Reset(folder);
    headless::Seed(seed + 1000 * static_cast<std::uint64_t>(result.Starts++));
    prcResetTableState();
    prcResetMarkState();
    user::Run(fncStartProgram);
    prcStartWatch();
    user::After(1, [&evening] { prcNext(evening); });
    do {
      user::Wait(1000);
    } while (!user::Ended() && (!evening.fncOver() || blnBusy));
    prcLook(evening);  // At what may have ended it.
  } while (!evening.fncOver());
  user::Reset(folder);
  result.Hands = lngHandsSeen;
  result.Shoes = lngShoesSeen;
  result.Events = std::min(evening.Next, events.size());
  if (!evening.Fault.empty()) {
    result.Fault = evening.Fault + "\nseed " + std::to_string(seed) + ", " +
                   std::to_string(events.size()) + " events:";
    for (const UserEvent& event : events) {
      result.Fault += "\n  " + fncDescribe(event);
    }
  }
  return result;
}

std::string fncFastFolder() {
  std::string name = std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp";
  name += "/velmora-user-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    throw std::runtime_error("no folder for a settings file");
  }
  return name;
}

EnduranceResult fncEndure(std::uint64_t firstSeed, std::int64_t shoes) {
  const std::string folder = fncFastFolder();
  EnduranceResult all;
  for (std::uint64_t seed = firstSeed; all.Shoes < shoes && all.Fault.empty(); ++seed) {
    std::vector<UserEvent> events = fncRandomEvents(seed, intEventsOfAnEvening);
    const EnduranceResult one = fncPlay(folder, seed, events);
    all.Hands += one.Hands;
    all.Shoes += one.Shoes;
    all.Starts += one.Starts;
    all.Fault = one.Fault;
    events.resize(one.Events);
    // What the fault does without is left out.
    for (std::size_t at = all.Fault.empty() ? 0 : events.size(); at-- > 0;) {
      std::vector<UserEvent> fewer = events;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at));
      if (const std::string fault = fncPlay(folder, seed, fewer).Fault; !fault.empty()) {
        events = std::move(fewer);
        all.Fault = fault;
      }
    }
  }
  std::filesystem::remove_all(folder);
  return all;
}
