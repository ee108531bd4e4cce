#include "Version.h"
#include "platform/UserInput.h"
#include "shell/About.h"
#include "shell/StartScreen.h"
#include "table/BaccTable.h"
#include "tests/shell/RunningProgram.h"

namespace {

class StartScreen : public RunningProgram {};

TEST_F(StartScreen, WaitsForTheUserWithItsStartButtonReady) {
  prcStart("");
  EXPECT_TRUE(Plauk.Form.Visible);
  EXPECT_FALSE(MDIForm1.Form.Visible);
  EXPECT_TRUE(Plauk.Nerodik.Visible);
  EXPECT_EQ(Plauk.Nerodik.Value, 0);
  EXPECT_EQ(Plauk.Form.ActiveControl, &Plauk.cmdStart);
  EXPECT_EQ(Plauk.lblVersion.Text,
            "Version " + std::to_string(intVersionMajor) + "." + std::to_string(intVersionMinor));
  EXPECT_EQ(Plauk.Label1[1].Top, 1485);
  EXPECT_EQ(Plauk.Image2[2].Top, 2136);
}

TEST_F(StartScreen, KeysAndButtonsDoTheSame) {
  enum class Result { Frame, Help, End, Nothing };
  const struct {
    const char* Key;
    Control* Button;
    Result Expected;
  } rows[] = {{"S", nullptr, Result::Frame},        {"s", nullptr, Result::Frame},
              {"", &Plauk.cmdStart, Result::Frame}, {"H", nullptr, Result::Help},
              {"h", nullptr, Result::Help},         {"", &Plauk.cmdHelp, Result::Help},
              {"E", nullptr, Result::End},          {"e", nullptr, Result::End},
              {"", &Plauk.cmdQuit, Result::End},    {"x", nullptr, Result::Nothing},
              {"1", nullptr, Result::Nothing},      {"F12", nullptr, Result::Nothing}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Button != nullptr ? row.Button->Name : row.Key);
    prcStart("");
    if (row.Button != nullptr) {
      headless::Click(*row.Button);
    } else {
      headless::Key(Plauk.Form, row.Key);
    }
    const bool blnFrame = row.Expected == Result::Frame;
    const bool blnEnd = row.Expected == Result::End;
    EXPECT_EQ(MDIForm1.Form.Visible && BaccTable.Form.Visible, blnFrame);
    EXPECT_EQ(Plauk.Form.hWnd != 0, !blnFrame && !blnEnd);
    EXPECT_EQ(headless::Ended(), blnEnd);
    ASSERT_EQ(headless::HelpShown().size(), row.Expected == Result::Help ? 1U : 0U);
    if (row.Expected == Result::Help) {
      EXPECT_EQ(headless::HelpShown().front(), strFolder + "/VELMORA.HLP#1");
    }
  }
}

TEST_F(StartScreen, ASecondKeyFindsTheFrameShown) {
  prcPlay();
  const Long handle = BaccTable.Form.hWnd;
  prcDispatch([] { Plauk.Form.On->KeyPress(Plauk.Form, 's'); });
  EXPECT_EQ(BaccTable.Form.hWnd, handle);
  EXPECT_EQ(Plauk.Form.hWnd, 0);
  EXPECT_TRUE(headless::Boxes().empty());
}

TEST_F(StartScreen, ClosingItEndsTheProgram) {
  prcStart("");
  headless::Close(Plauk.Form);
  EXPECT_TRUE(headless::Ended());
  EXPECT_EQ(fncKey("MDIForm1", "Top"), "(none)");
}

TEST_F(StartScreen, TheCheckBoxWorksFromTheNextRunOn) {
  prcStart("");
  headless::Click(Plauk.Nerodik);
  EXPECT_EQ(fncKey("Misc", "Nerodik"), "1");
  headless::Click(Plauk.Nerodik);
  EXPECT_EQ(fncKey("Misc", "Nerodik"), "0");
  EXPECT_TRUE(Plauk.Form.Visible);

  for (const char* value : {"0", "True", "11", ""}) {
    prcStart(std::string("[Misc]\r\nNerodik=") + value);
    EXPECT_TRUE(Plauk.Form.Visible) << value;
  }
  prcStart("[Misc]\r\nNerodik=1\r\n");
  EXPECT_EQ(Plauk.Form.hWnd, 0);
  EXPECT_TRUE(MDIForm1.Form.Visible && BaccTable.Form.Visible);
}

TEST_F(StartScreen, TheLinkOpensTheRootOfTheSite) {
  prcStart("");
  headless::Hover(Plauk.Label6);
  EXPECT_EQ(Plauk.Label6.MousePointer, Pointer::HandLink);
  headless::Click(Plauk.Label6);
  EXPECT_EQ(headless::Opened(), std::vector<std::string>{strWebSite});
}

TEST_F(StartScreen, ASecondInstanceLeavesEverythingToTheFirst) {
  headless::OtherInstanceRuns(true);
  platform::Run(0, nullptr, fncStartProgram);
  EXPECT_TRUE(headless::Ended());
  EXPECT_TRUE(fncWindows().empty());
  EXPECT_FALSE(std::filesystem::exists(strIniFile));
}

TEST_F(StartScreen, AboutTellsTheWholeVersion) {
  prcPlay();
  headless::WhileModal([] {
    EXPECT_EQ(KasSitas.lblVersion.Text, "Version  " + std::to_string(intVersionMajor) + " . " +
                                            std::to_string(intVersionMinor) + " . " +
                                            std::to_string(intVersionRevision));
    headless::Click(KasSitas.cmdOK);
    EXPECT_EQ(KasSitas.Form.hWnd, 0);
  });
  headless::Click(MDIForm1.mnuAbout);
}

}  // namespace
