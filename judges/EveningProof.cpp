#include "judges/EveningProof.h"

#include <algorithm>
#include <cmath>

#include "betting/BetEntry.h"
#include "evening/Curve.h"
#include "evening/Evening.h"
#include "evening/Luck.h"
#include "evening/Reckoning.h"
#include "platform/headless/Headless.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "table/DealCommand.h"

namespace {

constexpr int intBlocks = 10;  // Of an evening, each with bets of its own.
constexpr int intHandsOfBlock = 10;

void prcStartTable(const std::string& folder) {
  headless::Reset(folder);
  strIniFile = folder + "/VELMORA.INI";
  prcWriteSetting("Misc", "Nerodik", 1);
  prcWriteSetting("Player1Stats", "Stake", 10'000'000);
  prcWriteSetting("Player2Stats", "Stake", 10'000'000);
  platform::Run(0, nullptr, fncStartProgram);
  headless::Wait(10);
}

void prcShuffleWhereEnded() {
  if (blnEndOfShoe[intShoeNumber]) {
    headless::Click(BaccTable.maisyk);
    headless::Wait(3000);
  }
}

void prcMakeBet(BetSide side, int seat, int chips) {
  prcBetInc(side, seat, fncInteger(chips - fncBetChips(side, seat)));
}

/// Seat 1 goes up and down on Banker and Player, seat 2 keeps to the Player and tries ties.
void prcPlayBlock(int block) {
  prcShuffleWhereEnded();
  prcMakeBet(block % 3 == 0 ? betPlayer : betBanker, 0, 1 + block * block % 17);
  prcMakeBet(betPlayer, 1, 5);
  prcMakeBet(betTie, 1, block % 4 == 1 ? 2 : 0);
  BaccTable.mskHandsAtaTime.Text = std::to_string(intHandsOfBlock);
  duokkortos_Click(0);
}

void prcCountBands(EveningProof& proof, int seat) {
  const CurvePoint end = fncCurve(seat).back();
  const auto within = [&](std::size_t low, std::size_t high) {
    return end.Money >= end.Band.at(low) && end.Money <= end.Band.at(high) ? 1 : 0;
  };
  proof.InHalf += within(1, 2);
  proof.InNine += within(0, 3);
}

void prcCount(EveningProof& proof) {
  while (!fncReckonOn(0)) {
  }
  for (int seat = 0; seat < 2; ++seat) {
    prcCountBands(proof, seat);
    proof.Deviation.at(static_cast<std::size_t>(seat)) += fncLuck({.Seat = seat}).Deviations;
  }
  const Luck both = fncLuck({});
  proof.Deviation[2] += both.Deviations;
  proof.Gridded += both.Exact ? 0 : 1;
  const double place = (both.Worse + 1 - both.Better) / 2;
  ++proof.Tenths.at(static_cast<std::size_t>(std::clamp(place * 10, 0.0, 9.0)));
  proof.Hands += static_cast<int>(colEveningHands.size());
  ++proof.Evenings;
}

}  // namespace

double EveningProof::fncTenthsSum() const {
  const double expected = Evenings / 10.0;
  double sum = 0;
  for (const int count : Tenths) {
    sum += (count - expected) * (count - expected) / expected;
  }
  return sum;
}

bool EveningProof::fncHolds() const {
  // Errors as of as many seats as evenings: the two seats of one bet on the same cards.
  const auto likely = [this](int count, double share) {
    const double seats = 2.0 * Evenings;
    return std::abs(count / seats - share) < 4 * std::sqrt(share * (1 - share) / Evenings);
  };
  constexpr double dblTenthsLikely = 33.7;
  return Gridded > Evenings / 2 && likely(InHalf, 0.5) && likely(InNine, 0.9) &&
         fncTenthsSum() < dblTenthsLikely &&
         std::ranges::all_of(Deviation, [](double luck) { return std::abs(luck) < 4; });
}

EveningProof fncProveEvenings(int evenings, std::uint64_t seed, const std::string& folder) {
  prcStartTable(folder);
  headless::Seed(seed);
  EveningProof proof;
  for (int evening = 0; evening < evenings; ++evening) {
    prcForgetHands();
    prcForgetReckoning();
    for (int block = 0; block < intBlocks; ++block) {
      prcPlayBlock(block);
    }
    prcCount(proof);
  }
  for (double& deviation : proof.Deviation) {
    deviation /= std::sqrt(evenings);
  }
  return proof;
}
