#include <filesystem>
#include <functional>
#include <tuple>

#include "platform/headless/Headless.h"
#include "shell/CardsDealt.h"
#include "tests/Game.h"

namespace {

using Frame = Game;

TEST_F(Frame, TheCloseBoxKeepsPlacesWhateverGoesOn) {
  const std::tuple<const char*, Control&, void (*)(std::function<void()>)> states[] = {
      {"nothing", MDIForm1.mnuContents, headless::AtNextTurn},
      {"a shuffle", BaccTable.maisyk, headless::AtNextTurn},
      {"the statistics", MDIForm1.mnuStatistics, headless::WhileModal},
      {"a message", MDIForm1.mnuTarnlea, headless::WhileModal}};
  for (const auto& [state, control, meanwhile] : states) {
    SCOPED_TRACE(state);
    std::filesystem::remove(strIniFile);
    Game::SetUp();
    Start();
    headless::OpenAddressReturns(0);
    BaccTable.Form.Top = 345;
    frmCardsDealtCount.Form.Left = 678;
    meanwhile([] { headless::Close(MDIForm1.Form); });
    headless::Click(control);
    headless::Wait(1);
    ASSERT_TRUE(headless::Ended());
    EXPECT_EQ(Stored("MDIForm1", "Width"), "15360");
    EXPECT_EQ(Stored("frmBaccTable", "Top"), "345");
    EXPECT_NE(Stored("frmMarkCard0", "Height"), "No");
    EXPECT_EQ(Stored("frmCardsDealtCount", "Left"), "678");
  }
}

}  // namespace
