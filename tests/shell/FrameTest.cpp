#include <cctype>
#include <filesystem>

#include "platform/UserInput.h"
#include "platform/headless/Headless.h"
#include "shell/CardsDealt.h"
#include "shell/Dialogs.h"
#include "shell/Program.h"
#include "shell/frmKaNori.h"
#include "tests/Game.h"

namespace {

class Frame : public Game {
 protected:
  /// Starts the program as its settings say, with a shoe of one deck.
  void prcPlay() {
    std::filesystem::remove(strIniFile);
    Game::SetUp();
    Setting("Shoe Size", "Decks", "1");
    platform::Run(0, nullptr, fncStartProgram);
    headless::Wait(5);
  }
};

TEST_F(Frame, EachCardChoosesItsOwnShoe) {
  prcPlay();
  headless::WhileModal([] {
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

TEST_F(Frame, NoMenuTakesAKeyOfTheTable) {
  prcPlay();
  std::string taken;
  for (const Control* control : BaccTable.Form.Controls) {
    taken += control->AccessKey != 0 ? std::string(1, control->AccessKey) : "";
  }
  for (const Control* menu : MDIForm1.Form.Controls) {
    if (menu->Kind == ControlKind::MenuEntry && menu->Container == nullptr) {
      const auto key = static_cast<char>(std::toupper(menu->Text.at(menu->Text.find('&') + 1)));
      EXPECT_EQ(taken.find(key), std::string::npos) << menu->Text;
      taken += key;
    }
  }
}

using Way = void (*)();
constexpr Way ways[] = {[] { headless::Click(MDIForm1.mnuExit); },
                        [] { headless::Close(MDIForm1.Form); }};

/// A state of the program in which the user may leave it. It gets the way out, and puts it where
/// the state is reached.
struct State {
  const char* Name;
  void (*Reach)(Way out);
};

constexpr State states[] = {
    {"idle", [](Way out) { out(); }},
    {"in a shuffle",
     [](Way out) {
       headless::AtNextTurn(out);
       headless::Click(BaccTable.maisyk);
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
      prcPlay();
      BaccTable.Form.Top = 345;
      frmCardsDealtCount.Form.Left = 678;
      state.Reach(way);
      ASSERT_TRUE(headless::Ended());
      EXPECT_EQ(Stored("MDIForm1", "Width"), "15360");
      EXPECT_EQ(Stored("frmBaccTable", "Top"), "345");
      EXPECT_NE(Stored("frmMarkCard0", "Height"), "No");
      EXPECT_EQ(Stored("frmCardsDealtCount", "Left"), "678");
      EXPECT_EQ(Stored("Card Options", "Show Cards Dealt Count"), "False");
      EXPECT_EQ(intLastCard[0], 0);
      for (int i = 0; i < intSeats; ++i) {
        EXPECT_EQ(dblPlayerTotal[i], 1000 + dblPlayerWin[i]);
      }
    }
  }
}

}  // namespace
