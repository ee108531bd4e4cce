#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "judges/Endurance.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"

namespace {

class EnduranceTest : public testing::Test {
 protected:
  ~EnduranceTest() override { std::filesystem::remove_all(folder_); }
  const std::string folder_ = fncFastFolder();
};

/// Two thousand shoes in four tests that run side by side.
class Endurance : public EnduranceTest, public testing::WithParamInterface<std::uint64_t> {};

TEST_P(Endurance, EverythingAddsUpAfterEveryEvent) {
  const EnduranceResult result = fncEndure(folder_, GetParam(), 500);
  EXPECT_EQ(result.Fault, "");
  EXPECT_GE(result.Shoes, 500);
  EXPECT_GT(result.Hands, result.Shoes * 5);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Endurance, testing::Values(1, 10'001, 20'001, 30'001));

/// A fault, and the kind of event behind which it comes.
struct Planted {
  const char* Behind;
  void (*Plant)();
  const char* Told;
};

TEST_F(EnduranceTest, APlantedFaultIsFoundAndToldInItsShortestForm) {
  const Planted rows[] = {
      {"Scroll", [] { dblPlayerTotal[1] += 1; }, "total"},
      {"Scroll", [] { dblPlayerWin[0] += 5; }, "win in the file"},
      {"Scroll", [] { lngTieBet[0] = 20; }, "money of a bet"},
      {"Scroll", [] { BaccTable.lblPlayerTotal[0].Text = "$7"; }, "total shown"},
      {"Scroll", [] { blnPlayerBlue = !blnPlayerBlue; }, "PlayerBlue"},
      {"Scroll", [] { ++intHandsDealt[0]; }, "hands in the file"},
      {"Scroll", [] { throw faultOverflow; }, "Serious Error"},
      {"Shuffle", [] { blnBusy = true; }, "button is open"},
      {"Shuffle", [] { intShoeCards[0][1] = intShoeCards[0][0]; }, "twice in the shoe"},
      {"Shuffle", [] { std::ranges::fill(frmCardsDealt.lstCardsDealt.List, "Joker"); },
       "lists Joker"},
      {"Shuffle", [] { ++intNextCard[0]; }, "cards listed"},
  };
  for (const Planted& row : rows) {
    const auto plant = [&row](const UserEvent& event) {
      if (fncDescribe(event).starts_with(row.Behind) && blnTableLoaded) {
        row.Plant();
      }
    };
    const EnduranceResult result = fncEndure(folder_, 1, 1000, plant);
    EXPECT_NE(result.Fault.find(row.Told), std::string::npos) << row.Told << ": " << result.Fault;
    EXPECT_LE(result.Event, 2U) << result.Fault;
  }
}

}  // namespace
