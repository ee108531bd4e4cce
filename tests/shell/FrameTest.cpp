#include <functional>

#include "betting/frmStatistics.h"
#include "marking/MarkCard.h"
#include "platform/UserInput.h"
#include "shell/CardsDealt.h"
#include "shell/frmKaNori.h"
#include "shell/frmSelectaShoe.h"
#include "table/BaccTable.h"
#include "tests/shell/RunningProgram.h"

namespace {

/// Money to bet with, and a table of a size.
const std::string strSeats =
    "[Player1Stats]\r\nStake=1000\r\n[Player2Stats]\r\nStake=1000\r\n[Misc]\r\nUnitValue=10\r\n"
    "[frmBaccTable]\r\nHeight=5400\r\nWidth=10770\r\n[Shoe Size]\r\nDecks=1\r\n";

class Frame : public RunningProgram {
 protected:
  void prcPlayWithMoney(const std::string& more = "") { prcPlay(strSeats + more); }
};

TEST_F(Frame, KeepsTableAndCardInTheMiddle) {
  prcPlayWithMoney();
  const MarkCardWindow& card = *fncMarkCard(0);
  for (const double width : {15360.0, 20000.0, 6000.0}) {
    const double top = BaccTable.Form.Top;
    MDIForm1.Form.Width = width;
    prcDispatch([] { MDIForm1.Form.On->Resize(MDIForm1.Form); });
    EXPECT_EQ(BaccTable.Form.Left, (width - 10770) / 2);  // Negative in a narrow frame.
    EXPECT_EQ(BaccTable.Form.Width, 10770);
    EXPECT_EQ(BaccTable.Form.Top, top);
    EXPECT_EQ(card.Form.Width, width - 500);
    EXPECT_EQ(card.Form.Left, 100);
  }
}

TEST_F(Frame, TellsWhyAnAddressDidNotOpen) {
  const struct {
    int Code;
    const char* Message;
  } rows[] = {{0, "Not enough memory to load web browser"},
              {2, "Unable to locate URL shortcut"},
              {31, "Unable to locate web browser."},
              {1, "Error attempting to start web browser.  Return Code: 1"},
              {32, "Error attempting to start web browser.  Return Code: 32"},
              {33, nullptr}};
  prcPlay();
  for (const auto& row : rows) {
    headless::ForgetBoxes();
    headless::OpenAddressReturns(row.Code);
    headless::Click(MDIForm1.mnuTarnlea);
    EXPECT_EQ(headless::Opened().back(), "https://velmora.example/download.htm");
    ASSERT_EQ(headless::Boxes().size(), row.Message == nullptr ? 0U : 1U) << row.Code;
    if (row.Message != nullptr) {
      EXPECT_EQ(headless::Boxes().front().Text, row.Message);
      EXPECT_EQ(headless::Boxes().front().Title, "Velmora");
    }
  }
  EXPECT_FALSE(headless::Ended());
}

TEST_F(Frame, HelpOpensWithContentsAndIndex) {
  prcPlay();
  headless::Click(MDIForm1.mnuContents);
  EXPECT_EQ(headless::HelpShown().front(), strFolder + "/VELMORA.HLP#0");
}

TEST_F(Frame, TheLayoutOnlyWindowsShowAndHide) {
  prcPlay();
  prcDispatch(prcSelectaShoe);
  EXPECT_TRUE(frmSelectaShoe.Form.Visible);
  headless::Click(frmSelectaShoe.chkSelectaShoe[4]);
  EXPECT_EQ(intShoeNumber, 0);
  prcDispatch(prcSelectaShoe);
  EXPECT_FALSE(frmSelectaShoe.Form.Visible);

  headless::WhileModal([] {
    // Each card chooses its own shoe: a choice for one leaves the others alone.
    headless::Click(frmKaNori.optShoeSource[9 * 3 + 5]);
    headless::Click(frmKaNori.optShoeSource[9 * 4 + 6]);
    headless::Click(frmKaNori.optShoeSource[9 * 4 + 7]);
    EXPECT_EQ(frmKaNori.optShoeSource[9 * 3 + 5].Value, 1);
    EXPECT_EQ(frmKaNori.optShoeSource[9 * 4 + 6].Value, 0);
    EXPECT_EQ(frmKaNori.optShoeSource[9 * 4 + 7].Value, 1);
  });
  prcDispatch(prcOptions);
  EXPECT_EQ(frmKaNori.Form.hWnd, 0);
}

// --- The ways out ---

using Way = void (*)();
constexpr Way ways[] = {[] { headless::Click(MDIForm1.mnuExit); },
                        [] { headless::Close(MDIForm1.Form); }};

/// A state of the program in which the user may leave it. It gets the way out, and puts it where
/// the state is reached.
struct State {
  const char* Name;
  void (*Reach)(Way out);
};

/// Deals a hand with a bet on the Player, and goes out some time after the press.
void prcDealAndLeave(Way out, std::uint32_t after) {
  headless::Click(BaccTable.maisyk);
  headless::Click(BaccTable.lblPBetInc1[0]);
  headless::After(after, out);
  headless::Click(BaccTable.duokkortos[0]);
  headless::Wait(after + 1);
}

constexpr State states[] = {
    {"idle", [](Way out) { out(); }},
    {"with bets",
     [](Way out) {
       headless::Click(BaccTable.maisyk);
       headless::Click(BaccTable.lblBBetInc5[0]);
       headless::Click(BaccTable.lblTBetInc1[1]);
       ASSERT_EQ(dblPlayerTotal[0], 950);
       out();
     }},
    {"in a shuffle",
     [](Way out) {
       headless::AtNextTurn(out);
       headless::Click(BaccTable.maisyk);
     }},
    {"in a flight", [](Way out) { prcDealAndLeave(out, 100); }},
    {"while cards are laid face up", [](Way out) { prcDealAndLeave(out, 3000); }},
    {"in the wait for the user",
     [](Way out) {
       headless::Click(MDIForm1.mnuCardFaceUpDown);
       prcDealAndLeave(out, 60000);
       EXPECT_TRUE(BaccTable.pctCardBack[0].Visible);
     }},
    {"in a flash",
     [](Way out) {
       headless::Click(MDIForm1.mnuDealDelay);
       headless::Click(MDIForm1.mnuDealAnimation);
       headless::Click(BaccTable.maisyk);
       headless::Click(BaccTable.lblPBetInc1[0]);
       headless::Click(BaccTable.duokkortos[0]);
       ASSERT_TRUE(BaccTable.Timer1.Enabled);
       headless::Wait(1200);
       out();
     }},
    {"with the statistics open",
     [](Way out) {
       headless::WhileModal(out);
       headless::Click(MDIForm1.mnuStatistics);
     }},
    {"with a message open",
     [](Way out) {
       headless::Click(BaccTable.maisyk);
       headless::WhileModal(out);
       headless::Click(MDIForm1.mnuPlayerBlue);
       EXPECT_EQ(headless::Boxes().size(), 1U);
     }},
};

TEST_F(Frame, EveryWayOutOfEveryStateKeepsPlacesAndMoney) {
  for (const State& state : states) {
    for (const Way way : ways) {
      SCOPED_TRACE(std::string(state.Name) + (way == ways[0] ? " by menu" : " by close box"));
      prcPlayWithMoney();
      BaccTable.Form.Top = 345;
      frmCardsDealtCount.Form.Left = 678;
      state.Reach(way);
      ASSERT_TRUE(headless::Ended());
      EXPECT_EQ(fncKey("MDIForm1", "Width"), "15360");
      EXPECT_EQ(fncKey("frmBaccTable", "Top"), "345");
      EXPECT_NE(fncKey("frmMarkCard0", "Height"), "(none)");
      EXPECT_EQ(fncKey("frmCardsDealtCount", "Left"), "678");
      EXPECT_EQ(fncKey("Card Options", "Show Cards Dealt Count"), "False");
      EXPECT_EQ(intLastCard[0], 0);
      for (int i = 0; i < intSeats; ++i) {
        EXPECT_EQ(dblPlayerTotal[i], 1000 + dblPlayerWin[i]);
      }
    }
  }
}

TEST_F(Frame, TheListOfCardsIsSwitchedOffOnlyByARunThatLoadedIt) {
  prcPlayWithMoney();
  headless::Click(MDIForm1.mnuExit);
  EXPECT_EQ(fncKey("Card Options", "Show Cards Dealt"), "(none)");
  EXPECT_EQ(fncKey("frmCardsDealt", "Top"), "(none)");

  prcPlayWithMoney();
  headless::Click(BaccTable.maisyk);
  headless::Click(MDIForm1.mnuExit);
  EXPECT_EQ(fncKey("Card Options", "Show Cards Dealt"), "False");
  EXPECT_EQ(fncKey("frmCardsDealt", "Top"), "0");
}

}  // namespace
