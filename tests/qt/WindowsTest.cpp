#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <fstream>

#include "marking/MarkCard.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/machine/OneInstance.h"
#include "platform/qt/windows/Screen.h"
#include "platform/qt/windows/WindowViews.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "shell/SettingsStore.h"
#include "table/BaccTable.h"
#include "tests/conformance/Adapter.h"
#include "tests/qt/RealUser.h"

// The windows of the game among each other: which one a key, a closing or a switch means.

namespace {

class Windows : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
    ASSERT_TRUE(fncStartProgram());
    strIniFile = folder_.filePath("VELMORA.INI").toStdString();
    std::ofstream(strIniFile) << "[Shoe Size]\nDecks=1\n[Player1Stats]\nStake=1000\n"
                                 "[frmCardsDealtCount]\nTop=3000\nLeft=1500\n";
    prcShowFrame();
    user::Settle();
    ASSERT_TRUE(QTest::qWaitFor([] { return List().isVisible(); }));
  }
  void TearDown() override {
    user::Reset();
    qt::prcGiveUpLock();
    qunsetenv("XDG_DATA_HOME");
  }

  static QWidget& Shell(const Window& window) { return *qt::fncViewOf(window)->Shell; }
  static QWidget& List() { return Shell(frmCardsDealtCount.Form); }

  /// The user goes over to one of the windows that list cards.
  static void GoToList() {
    user::Click(frmCardsDealtCount.lstCardsDealtCount);
    ASSERT_EQ(qt::fncActiveWindow(), &frmCardsDealtCount.Form);
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(Windows, CtrlF4AsksTheChildThatHasTheInputAndMayBeClosed) {
  const auto ctrlF4 = [](Window& window) {
    platform::Activate(window);
    real::Key(window, Qt::Key_F4, Qt::ControlModifier);
  };
  ctrlF4(fncMarkCard(0)->Form);
  EXPECT_TRUE(blnMarkCardLoaded && !user::Ended()) << "the marking card cannot be closed";
  blnBusy = true;
  ctrlF4(BaccTable.Form);
  ASSERT_EQ(user::Boxes().size(), 1U);
  EXPECT_EQ(user::Boxes()[0].Text, "Must wait for hand or shuffle to end.");
  blnBusy = false;
  ctrlF4(BaccTable.Form);
  EXPECT_TRUE(user::Ended());
}

TEST_F(Windows, TheTableHasTheInputAfterAShuffleAndAfterADialog) {
  GoToList();
  prcShowModal(KasSitas.Form);
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "after About";
  QTimer::singleShot(500, GoToList);
  user::Click(BaccTable.maisyk);
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "after a shuffle";
  EXPECT_EQ(QApplication::focusWidget(), &real::Widget(BaccTable.duokkortos[0]));
}

TEST_F(Windows, AChildThatGoesLeavesTheInputToTheOther) {
  const auto expectInput = [](const Window& window) {
    user::Settle();
    EXPECT_EQ(qt::fncActiveWindow(), &window);
    EXPECT_EQ(QApplication::focusWidget(), &real::Ground(window));
  };
  Window& card = fncMarkCard(0)->Form;
  user::Click(BaccTable.txtUnitValue);
  BaccTable.Form.Visible = false;
  expectInput(card);
  BaccTable.Form.Visible = true;
  platform::Activate(card);
  fncUnload(card);
  user::Settle();
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form);
}

TEST_F(Windows, AListIsAWindowOfItsOwnThatTopmostLeavesWhereItIs) {
  EXPECT_EQ(List().windowHandle()->transientParent(), nullptr) << "the frame may cover it";
  const QRect place = List().geometry();
  for (const bool blnTop : {true, false}) {
    user::Click(frmCardsDealtCount.chkOnTop);
    EXPECT_EQ(List().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), blnTop);
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().geometry(), place);
  }
}

TEST_F(Windows, TheListsGoWithTheFrameAndComeBackWithIt) {
  QWidget& frame = Shell(MDIForm1.Form);
  frame.showMinimized();
  user::Settle();
  EXPECT_FALSE(List().isVisible());
  EXPECT_TRUE(frmCardsDealtCount.Form.Visible);
  frame.showMaximized();
  user::Settle();
  EXPECT_TRUE(List().isVisible());
  EXPECT_EQ(qt::fncPixels(frmCardsDealtCount.Form.Left), qt::fncPixels(1500));
}

}  // namespace
