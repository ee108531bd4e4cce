#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>
#include <cmath>

#include "marking/MarkCard.h"
#include "platform/Modal.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Screen.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "table/BaccTable.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// The windows of the game among each other: which one a key, a closing or a switch means.

namespace {

class Windows : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Setting("Shoe Size", "Decks", "1");
    Setting("frmCardsDealtCount", "Top", "3000");
    Setting("frmCardsDealtCount", "Left", "1500");
    Start();
    ASSERT_TRUE(List().isVisible());
  }

  static QWidget& Shell(const Window& window) { return *qt::fncViewOf(window)->Shell; }
  static QWidget& List() { return Shell(frmCardsDealtCount.Form); }

  /// The user goes over to one of the windows that list cards.
  static void GoToList() {
    user::Click(frmCardsDealtCount.lstCardsDealtCount);
    ASSERT_EQ(qt::fncActiveWindow(), &frmCardsDealtCount.Form);
  }
};

TEST_F(Windows, CtrlF4AsksTheChildThatHasTheInputAndMayBeClosed) {
  const auto ctrlF4 = [](Window& window) {
    user::Activate(window);
    stage::prcKey(Qt::Key_F4, Qt::ControlModifier);
  };
  ctrlF4(fncMarkCard(0)->Form);
  EXPECT_NE(fncMarkCard(0), nullptr) << "the marking card cannot be closed";
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
  user::Settle();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_FALSE(blnShuffled[0]) << "by a key that is held";
  }
  user::After(500, GoToList);
  user::Key(BaccTable.Form, "Enter");
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "after a shuffle";
  EXPECT_EQ(QApplication::focusWidget(), stage::fncWidget(BaccTable.duokkortos[0]));
}

TEST_F(Windows, AChildThatGoesLeavesTheInputToTheOther) {
  const auto expectInput = [](const Window& window) {
    user::Settle();
    EXPECT_EQ(qt::fncActiveWindow(), &window);
    EXPECT_EQ(QApplication::focusWidget(), stage::fncView(window).Ground);
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

TEST_F(Windows, TheMarkingCardIsPannedByItsBarByKeysAndByTheWheel) {
  MarkCardWindow& card = *fncMarkCard(0);
  const double seen = card.Form.ScaleWidth / card.Picture1.Width;
  const auto inSlider = static_cast<float>(0.9 * seen * card.HScroll1.Width);
  user::Press(card.HScroll1, inSlider, 100);
  user::Release(card.HScroll1, inSlider, 100);
  EXPECT_EQ(card.HScroll1.Value, 0) << "the slider is as long as what is seen";
  user::Click(card.HScroll1);
  EXPECT_EQ(card.HScroll1.Value, card.HScroll1.LargeChange);
  user::Activate(card.Form);
  stage::prcKey(Qt::Key_Right);
  user::Hover(card.Picture1);
  stage::prcTurnWheel(*stage::fncWidget(card.HScroll1)->window(), -1);
  EXPECT_EQ(card.Picture1.Left, -card.HScroll1.LargeChange - 2 * card.HScroll1.SmallChange);
}

TEST_F(Windows, AChildIsDraggedByItsTitleAndKeepsItsPlaceInTwips) {
  Window& card = fncMarkCard(0)->Form;
  QWidget& shell = Shell(card);
  const auto drag = [&](QPoint way) {
    const QPoint from = shell.mapToGlobal(QPoint(40, 10));
    stage::prcPoint(shell, from);
    stage::prcPress(shell, Qt::LeftButton);
    stage::prcPoint(shell, from + way);
    stage::prcLift(shell, Qt::LeftButton);
  };
  const QPoint place = shell.pos();
  drag({30, 20});
  EXPECT_EQ(shell.pos(), place + QPoint(30, 20));
  EXPECT_EQ(QPoint(qt::fncPixels(card.Left), qt::fncPixels(card.Top)), shell.pos());
  drag({0, -900});
  EXPECT_EQ(shell.y(), 0) << "a title stays within reach";
  card.Left = -90;
  user::Settle();
  EXPECT_EQ(shell.x(), qt::fncPixels(-90)) << "a frame narrower than its child shows its middle";
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

TEST_F(Windows, TheTableIsDrawnAsLargeAsTheFrameLets) {
  QWindow& frame = *Shell(MDIForm1.Form).windowHandle();
  const auto size = [&](int width, int height) {
    frame.setGeometry(0, 0, width, height);
    user::Settle();
  };
  const QWidget& shuffle = *stage::fncWidget(BaccTable.maisyk);
  frame.setWindowStates(Qt::WindowNoState);
  user::Settle();
  size(1536, 1050);
  EXPECT_EQ(qt::fncScale(), 1.5);
  EXPECT_EQ(shuffle.geometry(), qt::fncPlace(BaccTable.maisyk));
  EXPECT_EQ(shuffle.font().pixelSize(), std::lround(BaccTable.maisyk.Face.Size * 2));
  EXPECT_EQ(List().width(), qt::fncPixels(frmCardsDealtCount.Form.ScaleWidth));
  EXPECT_EQ(Shell(BaccTable.Form).x(), qt::fncPixels((1536 * 10 - 10770) / 2.0));
  size(1536, 1080);
  EXPECT_EQ(qt::fncScale(), 1.5) << "its edge is still dragged";
  user::Wait(200);
  EXPECT_EQ(qt::fncScale(), 1.54);
  size(400, 300);
  EXPECT_EQ(qt::fncScale(), 0.75);
  EXPECT_EQ(Shell(BaccTable.Form).x(), 0) << "what is cut is reached by scrolling";
  stage::prcKey(Qt::Key_Tab);
  stage::prcKey(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget()->visibleRegion().boundingRect(),
            QApplication::focusWidget()->rect());
}

TEST_F(Windows, KeysOfTheProgramAsAWhole) {
  const QWidget& frame = Shell(MDIForm1.Form);
  stage::prcKey(Qt::Key_F11);
  EXPECT_TRUE(frame.isFullScreen());
  stage::prcKey(Qt::Key_F11);
  EXPECT_TRUE(frame.isMaximized() && !frame.isFullScreen());
  stage::prcKey(Qt::Key_F1);
  ASSERT_EQ(headless::HelpShown().size(), 1U);
  EXPECT_TRUE(headless::HelpShown()[0].ends_with("#7")) << "the page about the Shuffle button";
  user::WhileModal([] { stage::prcKey(Qt::Key_F1); });
  user::Click(MDIForm1.mnuStatistics);
  EXPECT_TRUE(headless::HelpShown().back().ends_with("#11")) << "in a dialog too";
  GoToList();
  stage::prcKey(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(user::Ended());
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
