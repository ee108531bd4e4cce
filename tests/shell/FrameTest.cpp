#include <cctype>
#include <filesystem>
#include <utility>

#include "platform/UserInput.h"
#include "platform/headless/Headless.h"
#include "shell/CardsDealt.h"
#include "tests/Game.h"

namespace {

using Frame = Game;

TEST_F(Frame, NoMenuTakesAKeyOfTheTable) {
  Start();
  std::string taken;
  for (const Control* control : BaccTable.Form.Controls) {
    taken += control->AccessKey;
  }
  for (const Control* menu : MDIForm1.Form.Controls) {
    if (menu->Kind == ControlKind::MenuEntry && menu->Container == nullptr) {
      const auto key = static_cast<char>(std::toupper(menu->Text.at(menu->Text.find('&') + 1)));
      EXPECT_EQ(taken.find(key), std::string::npos) << menu->Text;
      taken += key;
    }
  }
}

void prcLeave() { headless::Close(MDIForm1.Form); }

/// What is going on when the user leaves.
constexpr std::pair<const char*, void (*)()> states[] = {
    {"nothing", prcLeave},
    {"a shuffle",
     [] {
       headless::AtNextTurn(prcLeave);
       headless::Click(BaccTable.maisyk);
     }},
    {"the statistics",
     [] {
       headless::WhileModal(prcLeave);
       headless::Click(MDIForm1.mnuStatistics);
     }},
    {"a message",
     [] {
       headless::Click(BaccTable.maisyk);
       headless::WhileModal(prcLeave);
       headless::Click(MDIForm1.mnuPlayerBlue);
     }},
};

TEST_F(Frame, TheCloseBoxKeepsPlacesAndMoneyWhateverGoesOn) {
  for (const auto& [state, leave] : states) {
    SCOPED_TRACE(state);
    std::filesystem::remove(strIniFile);
    Game::SetUp();
    Start();
    BaccTable.Form.Top = 345;
    frmCardsDealtCount.Form.Left = 678;
    leave();
    ASSERT_TRUE(headless::Ended());
    EXPECT_EQ(Stored("MDIForm1", "Width"), "15360");
    EXPECT_EQ(Stored("frmBaccTable", "Top"), "345");
    EXPECT_NE(Stored("frmMarkCard0", "Height"), "No");
    EXPECT_EQ(Stored("frmCardsDealtCount", "Left"), "678");
    EXPECT_EQ(dblPlayerTotal[0], 1000);
  }
}

}  // namespace
