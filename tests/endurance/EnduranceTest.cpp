#include <gtest/gtest.h>

#include <filesystem>

#include "judges/Endurance.h"
#include "shell/CardsDealt.h"
#include "table/BaccTable.h"

namespace {

class EnduranceTest : public testing::Test {
 protected:
  EnduranceTest() : folder_(fncFastFolder()) {}
  ~EnduranceTest() override { std::filesystem::remove_all(folder_); }
  const std::string folder_;
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

/// What a user does that makes each watch look: the fault is planted behind it.
struct Planted {
  const char* What;
  UserEventKind Behind;
  void (*Plant)();
  const char* Told;
};

TEST_F(EnduranceTest, APlantedFaultIsFoundAndToldInItsShortestForm) {
  const Planted rows[] = {
      {"money made", UserEventKind::Scroll, [] { dblPlayerTotal[1] += 1; }, "total"},
      {"win not written", UserEventKind::Scroll, [] { dblPlayerWin[0] += 5; }, "win in the file"},
      {"bet without money", UserEventKind::Scroll, [] { lngTieBet[0] = 20; }, "money of a bet"},
      {"total not shown", UserEventKind::Scroll, [] { BaccTable.lblPlayerTotal[0].Text = "$7"; },
       "total shown"},
      {"switch not written", UserEventKind::Scroll, [] { blnPlayerBlue = !blnPlayerBlue; },
       "PlayerBlue"},
      {"hand not booked", UserEventKind::Scroll, [] { ++intHandsDealt[0]; }, "hands in the file"},
      {"busy with open buttons", UserEventKind::Shuffle, [] { blnBusy = true; }, "button is open"},
      {"fault in a handler", UserEventKind::Scroll, [] { throw faultOverflow; }, "Serious Error"},
      {"card dealt twice", UserEventKind::Shuffle, [] { intShoeCards[0][1] = intShoeCards[0][0]; },
       "twice in the shoe"},
      {"wrong card listed", UserEventKind::Shuffle,
       [] {
         for (std::string& row : frmCardsDealt.lstCardsDealt.List) {
           row = "Joker";
         }
       },
       "lists Joker"},
      {"card not listed", UserEventKind::Shuffle, [] { ++intNextCard[0]; }, "cards listed"},
  };
  for (const Planted& row : rows) {
    const auto plant = [&row](const UserEvent& event) {
      if (event.Kind == row.Behind && blnTableLoaded) {
        row.Plant();
      }
    };
    const EnduranceResult result = fncEndure(folder_, 1, 1000, plant);
    EXPECT_NE(result.Fault.find(row.Told), std::string::npos) << row.What << ": " << result.Fault;
    EXPECT_LE(result.Event, 2U) << row.What << ": " << result.Fault;
  }
}

TEST_F(EnduranceTest, TheSameEventsGiveTheSameEvening) {
  const auto events = fncRandomEvents(7, 300);
  const EnduranceResult one = fncPlay(folder_, 7, events), again = fncPlay(folder_, 7, events);
  EXPECT_EQ(one.Hands, again.Hands);
  EXPECT_EQ(one.Shoes, again.Shoes);
}

}  // namespace
