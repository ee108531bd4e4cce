#include "judges/EveningProof.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "betting/BetEntry.h"
#include "evening/Curve.h"
#include "evening/Evening.h"
#include "evening/Luck.h"
#include "evening/Reckoning.h"
#include "judges/Endurance.h"
#include "judges/ShuffleStatistics.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "table/DealCommand.h"

namespace {

constexpr int intBlocks = 10;  // Of an evening, each with bets of its own.
constexpr int intHandsOfBlock = 10;

void prcMakeBet(BetSide side, int seat, int chips) {
  prcBetInc(side, seat, fncInteger(chips - fncBetChips(side, seat)));
}

/// Seat 1 goes up and down on Banker and Player, seat 2 keeps to the Player and tries ties.
void prcPlayBlock(int block) {
  if (blnEndOfShoe[intShoeNumber]) {
    headless::Click(BaccTable.maisyk);
    headless::Wait(3000);
  }
  prcMakeBet(block % 3 == 0 ? betPlayer : betBanker, 0, 1 + block * block % 17);
  prcMakeBet(betPlayer, 1, 5);
  prcMakeBet(betTie, 1, block % 4 == 1 ? 2 : 0);
  BaccTable.mskHandsAtaTime.Text = std::to_string(intHandsOfBlock);
  duokkortos_Click(0);
}

void prcCount(EveningProof& proof) {
  while (!fncReckonOn(0)) {
  }
  for (int seat = 0; seat < intSeats; ++seat) {
    const CurvePoint end = fncCurve(seat).back();
    const auto [low, lowHalf, highHalf, high] = end.Band;
    proof.InHalf += end.Money >= lowHalf && end.Money <= highHalf ? 1 : 0;
    proof.InNine += end.Money >= low && end.Money <= high ? 1 : 0;
    proof.Deviation[seat] += fncLuck({.Seat = seat}).Deviations / std::sqrt(proof.Evenings);
  }
  const Luck both = fncLuck({});
  proof.Deviation[2] += both.Deviations / std::sqrt(proof.Evenings);
  proof.Gridded += both.Exact ? 0 : 1;
  const double place = (both.Worse + 1 - both.Better) / 2;
  ++proof.Tenths.at(static_cast<std::size_t>(std::clamp(place * 10, 0.0, 9.0)));
  proof.Hands += static_cast<int>(colEveningHands.size());
}

}  // namespace

bool EveningProof::fncHolds() const {
  // Errors as of as many seats as evenings: the two seats of one bet on the same cards.
  const auto likely = [this](int count, double share) {
    return std::abs(count / 2.0 / Evenings - share) <
           dblChance * std::sqrt(share * (1 - share) / Evenings);
  };
  ChiSquare places;
  places.prcAddAlike(Tenths);
  return Gridded > Evenings / 2 && likely(InHalf, 0.5) && likely(InNine, 0.9) &&
         places.fncLikely() &&
         std::ranges::all_of(Deviation, [](double luck) { return std::abs(luck) < dblChance; });
}

EveningProof fncProveEvenings(int evenings, std::uint64_t seed) {
  const std::string folder = fncFastFolder();
  prcMakeSettings(folder, 10'000'000, 8);
  headless::Reset(folder);
  headless::Seed(seed);
  prcResetTableState();
  platform::Run(0, nullptr, fncStartProgram);
  headless::Wait(10);
  EveningProof proof{.Evenings = evenings};
  for (int evening = 0; evening < evenings; ++evening) {
    prcForgetHands();
    prcForgetReckoning();
    for (int block = 0; block < intBlocks; ++block) {
      prcPlayBlock(block);
    }
    prcCount(proof);
  }
  std::filesystem::remove_all(folder);
  return proof;
}
