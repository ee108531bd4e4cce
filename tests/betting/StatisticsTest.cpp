#include <functional>

#include "betting/frmStatistics.h"
#include "platform/Texts.h"
#include "table/BaccTable.h"
#include "tests/shell/RunningProgram.h"

namespace {

const std::string strPlayed =
    "[ShoesHandsPlayed]\r\nHands= 321\r\nDecks 1= 1\r\nDecks 2= 2\r\nDecks 4= 4\r\nDecks 6= 6\r\n"
    "Decks 8= 8\r\n"
    "[Player1Stats]\r\nStake= 1000\r\nWin= 250.5\r\nTurnover= 123456\r\n"
    "[Player2Stats]\r\nStake= 2000\r\nWin=-300\r\nTurnover= 7\r\n"
    "[Misc]\r\nUnitValue= 10\r\n";

class Statistics : public RunningProgram {
 protected:
  void SetUp() override {
    RunningProgram::SetUp();
    prcPlay(strPlayed);
  }
  /// Runs body while the window is open, and closes it.
  static void prcOpen(std::function<void()> body) {
    headless::WhileModal(std::move(body));
    headless::Click(MDIForm1.mnuStatistics);
  }
};

TEST_F(Statistics, ShowsWhatTheFileAndTheSeatsHold) {
  lngBankerBet[0] = 900'000;
  lngTieBet[0] = 400'000;
  lngPlayerBet[1] = 50;
  prcOpen([] {
    const StatisticsWindow& w = frmStatistics;
    EXPECT_TRUE(w.Form.Topmost);
    EXPECT_EQ(w.lblHandsPlayed.Text, "321");
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(w.lblShoesPlayedDecks[i].Text,
                std::to_string(intShoeSizes[static_cast<std::size_t>(i)]));
    }
    EXPECT_EQ(w.mskSteak[0].Text, "1000");
    EXPECT_EQ(w.lblWinningsStat[0].Text, "$251");
    EXPECT_EQ(w.lblCurrentMoney[0].Text, "$1,301,251");
    EXPECT_EQ(w.lblTurnover[0].Text, "$123,456");
    EXPECT_EQ(w.mskSteak[1].Text, "2000");
    EXPECT_EQ(w.lblWinningsStat[1].Text, "-$300");
    EXPECT_EQ(w.lblCurrentMoney[1].Text, "$1,750");
    EXPECT_EQ(w.Label6.Text, "PLAYER 3");
    EXPECT_EQ(w.Label1.Text, "PLAYER 4");
  });
}

TEST_F(Statistics, AStakeInMoneyTextReadsBackAsItsNumberInEveryCountry) {
  prcSetCurrency(
      {.strSymbol = "€", .strThousands = ".", .blnSymbolFirst = false, .blnSpaced = true});
  prcWriteSetting("Player1Stats", "Stake", 10'000'000);
  prcOpen([] {
    EXPECT_EQ(frmStatistics.mskSteak[0].Text, "10000000");
    EXPECT_EQ(frmStatistics.lblTurnover[0].Text, "123.456 €");
  });
}

TEST_F(Statistics, ANewStakeIsCheckedBeforeItIsBooked) {
  constexpr const char* strRange = "Stake Money must be 0 to $10,000,000";
  constexpr const char* strTooLow = "Cannot reduce stake money below player's total";
  const struct {
    const char* Typed;
    double Total;         // Off the table, before.
    const char* Message;  // None where the stake passes.
    double TotalAfter;
    const char* BoxAfter;
  } rows[] = {
      {"1500", 200, nullptr, 700, "1500"},
      {"800", 200, nullptr, 0, "800"},
      {"799", 200, strTooLow, 200, "799"},
      {"0", 1000, nullptr, 0, "0"},
      {"0", 999.5, strTooLow, 999.5, "0"},
      {"10000000", 200, nullptr, 9'999'200, "10000000"},
      {"10000001", 200, strRange, 200, "10000001"},
      {"99999999", 200, strRange, 200, "99999999"},
      {"", 200, strRange, 200, "0"},
      {"abc", 200, strRange, 200, "0"},
      {"1000", 200, nullptr, 200, "1000"},
      {"$1,2x00", 200, nullptr, 400, "1200"},  // The mask lets digits through.
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Typed);
    prcPlay(strPlayed);
    dblPlayerTotal[0] = row.Total;
    prcOpen([&] {
      Control& box = frmStatistics.mskSteak[0];
      ASSERT_TRUE(headless::Type(box, row.Typed));
      EXPECT_EQ(headless::Tab(frmStatistics.Form), row.Message == nullptr);
      EXPECT_EQ(frmStatistics.Form.ActiveControl == &box, row.Message != nullptr);
      EXPECT_EQ(box.Text, row.BoxAfter);
      ASSERT_EQ(headless::Boxes().size(), row.Message == nullptr ? 0U : 1U);
      if (row.Message != nullptr) {
        EXPECT_EQ(headless::Boxes().front().Text, row.Message);
        EXPECT_EQ(headless::Boxes().front().Icon, platform::Icon::None);
        EXPECT_EQ(headless::Boxes().front().Title, "");
      }
      EXPECT_EQ(fncKey("Player1Stats", "Stake"), row.Message == nullptr ? row.BoxAfter : "1000");
      EXPECT_EQ(dblPlayerTotal[0], row.TotalAfter);
      EXPECT_EQ(dblPlayerTotal[1], 1700);
      EXPECT_EQ(dblPlayerWin[0], 250.5);
    });
  }
}

TEST_F(Statistics, ARaisedStakeShowsAtOnceAndIsBookedOnce) {
  lngTieBet[1] = 100;
  prcOpen([] {
    headless::Type(frmStatistics.mskSteak[1], "2500");
    // A click on what takes no focus runs the check too, and the box keeps the focus.
    headless::Click(frmStatistics.Label2);
    headless::Click(frmStatistics.Label2);
    headless::Tab(frmStatistics.Form);
    EXPECT_EQ(dblPlayerTotal[1], 2200);
    EXPECT_EQ(BaccTable.lblPlayerTotal[1].Text, "$2,200");
    EXPECT_EQ(frmStatistics.lblCurrentMoney[1].Text, "$2,300");
  });
}

TEST_F(Statistics, AResetStartsBothSeatsFromTheirStakes) {
  headless::Click(BaccTable.maisyk);
  headless::Click(BaccTable.lblBBetInc5[0]);
  ASSERT_EQ(lngBankerBet[0], 50);
  const std::string before = fncFile();
  prcOpen([&] {
    headless::Click(frmStatistics.cmdResetStats);  // Cancel is what Enter gives.
    EXPECT_EQ(fncFile(), before);
    EXPECT_EQ(lngBankerBet[0], 50);
    EXPECT_EQ(headless::Boxes().back().Standard, platform::Answer::Cancel);
    EXPECT_EQ(headless::Boxes().back().Icon, platform::Icon::Exclamation);

    headless::Answer(platform::Answer::Ok);
    headless::Click(frmStatistics.cmdResetStats);
    EXPECT_EQ(frmStatistics.lblHandsPlayed.Text, "0");
    EXPECT_EQ(fncKey("ShoesHandsPlayed", "Hands"), "0");
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(frmStatistics.lblShoesPlayedDecks[i].Text, "0");
    }
    EXPECT_EQ(fncKey("ShoesHandsPlayed", "Decks 8"), "0");
  });
  for (int i = 0; i < intSeats; ++i) {
    const std::string section = fncSeatSection(i);
    const double stake = i == 0 ? 1000 : 2000;
    EXPECT_EQ(fncGetSetting(section, "Stake"), stake);
    EXPECT_EQ(fncKey(section, "Win"), "0");
    EXPECT_EQ(fncKey(section, "Turnover"), "0");
    EXPECT_EQ(dblPlayerTotal[i], stake);
    EXPECT_EQ(dblPlayerWin[i], 0);
    EXPECT_EQ(BaccTable.lblPlayerWinnings[i].Text, "$0");
    for (const BetSide side : betSides) {
      const BetControls bet = fncBet(side, i);
      EXPECT_EQ(bet.Box.Text, "0");
      EXPECT_EQ(bet.Money, 0);
      EXPECT_EQ(bet.Value.Text, "0");
      EXPECT_FALSE(bet.Value.Visible);
    }
  }
}

TEST_F(Statistics, ItsClosingKeepsThePlaceAndBringsTheButtonUp) {
  const struct {
    const char* Case;
    void (*Open)();
    void (*Close)();
  } rows[] = {
      {"menu and OK", [] { headless::Click(MDIForm1.mnuStatistics); },
       [] { headless::Click(frmStatistics.Command1); }},
      {"button and close box", [] { headless::Click(fncToolButton("Statistics")); },
       [] { headless::Close(frmStatistics.Form); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Case);
    prcPlay("[frmStatistics]\r\nTop=600\r\nLeft=700\r\n");
    headless::WhileModal([&] {
      EXPECT_EQ(MDIForm1.mnuStatistics.Value, 1);
      EXPECT_EQ(fncToolButton("Statistics").Value, 1);
      EXPECT_EQ(frmStatistics.Form.Top, 600);
      frmStatistics.Form.Left = 900;
      row.Close();
    });
    row.Open();
    EXPECT_EQ(frmStatistics.Form.hWnd, 0);
    EXPECT_EQ(MDIForm1.mnuStatistics.Value, 0);
    EXPECT_EQ(fncToolButton("Statistics").Value, 0);
    EXPECT_EQ(fncKey("frmStatistics", "Left"), "900");
  }
}

}  // namespace
