#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "judges/Endurance.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"

namespace {

/// Two thousand shoes in four tests that run side by side.
class Endurance : public testing::TestWithParam<std::uint64_t> {};

TEST_P(Endurance, EverythingAddsUpAfterEveryEvent) {
  EXPECT_EQ(fncEndure(GetParam(), 500).Fault, "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, Endurance, testing::Values(1, 10'001, 20'001, 30'001));

TEST(EnduranceTest, APlantedFaultIsFoundAndToldInItsShortestForm) {
  const struct {
    void (*Plant)();
    const char* Told;
  } rows[] = {
      {[] { dblPlayerTotal[1] += 1; }, "total"},
      {[] { dblPlayerWin[0] += 5; }, "win in the file"},
      {[] { lngTieBet[0] = 20; }, "money of a bet"},
      {[] { BaccTable.lblPlayerTotal[0].Text = "$7"; }, "total shown"},
      {[] { blnPlayerBlue = !blnPlayerBlue; }, "PlayerBlue"},
      {[] { ++intHandsDealt[0]; }, "hands in the file"},
      {[] { throw faultOverflow; }, "Serious Error"},
      {[] { blnBusy = blnBusy || blnShuffled[0]; }, "button is open"},
      {[] { std::ranges::fill(frmCardsDealt.lstCardsDealt.List, "Joker"); }, "lists Joker"},
      {[] { ++intNextCard[0]; }, "cards listed"},
  };
  for (const auto& row : rows) {
    prcAfterEvent = [&row](const UserEvent& event) {
      if (fncDescribe(event).starts_with("Shuffle") && blnTableLoaded) {
        row.Plant();
      }
    };
    const std::string fault = fncEndure(1, 1000).Fault;
    const std::regex told(std::string(row.Told) + "[^]*, [12] events:");
    EXPECT_TRUE(std::regex_search(fault, told)) << row.Told << ": " << fault;
  }
  prcAfterEvent = [](const UserEvent&) {};
}

}  // namespace
