#include <QKeyEvent>
#include <cmath>

#include "marking/MarkCard.h"
#include "platform/Modal.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
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

  static QWidget& Shell(const Window& window) { return *stage::fncView(window).Shell; }
  static QWidget& List() { return Shell(frmCardsDealtCount.Form); }

  /// The user goes over to one of the windows that list cards.
  static void GoToList() {
    user::Click(frmCardsDealtCount.lstCardsDealtCount);
    ASSERT_EQ(qt::fncActiveWindow(), &frmCardsDealtCount.Form);
  }

  Window& card_ = MarkCards[0].Form;
};

TEST_F(Windows, TheTableHasTheInputAfterAShuffleAndAfterADialog) {
  GoToList();
  prcShowModal(KasSitas.Form);
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "after About";
  user::Settle();
  for (const QKeyCombination key :
       {QKeyCombination(Qt::Key_Return), {Qt::Key_Space}, Qt::ALT | Qt::Key_U}) {
    QKeyEvent held(QEvent::KeyPress, key.key(), key.keyboardModifiers(), {}, true);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_FALSE(blnShuffled[0]) << "by a key that is held";
  }
  user::After(500, GoToList);
  user::Key(BaccTable.Form, "Enter");
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "after a shuffle";
  EXPECT_EQ(QApplication::focusWidget(), stage::fncWidget(BaccTable.duokkortos[0]));
}

TEST_F(Windows, AChildThatGoesLeavesTheInputToTheOther) {
  user::Activate(card_);
  user::Close(card_);
  EXPECT_NE(fncMarkCard(0), nullptr) << "the marking card cannot be closed";
  user::Click(BaccTable.txtUnitValue);
  BaccTable.Form.Visible = false;
  user::Settle();
  EXPECT_EQ(qt::fncActiveWindow(), &card_);
  EXPECT_EQ(QApplication::focusWidget(), stage::fncView(card_).Ground);
  BaccTable.Form.Visible = true;
  platform::Activate(card_);
  fncUnload(card_);
  user::Settle();
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form);
}

TEST_F(Windows, TheMarkingCardIsPannedByItsBarByKeysAndByTheWheel) {
  Control& bar = MarkCards[0].HScroll1;
  const double seen = card_.ScaleWidth / MarkCards[0].Picture1.Width;
  const auto inSlider = static_cast<float>(0.9 * seen * bar.Width);
  user::Press(bar, inSlider, 100);
  user::Release(bar, inSlider, 100);
  EXPECT_EQ(bar.Value, 0) << "the slider is as long as what is seen";
  user::Click(bar);
  EXPECT_EQ(bar.Value, bar.LargeChange);
  user::Key(card_, "Right");
  user::Activate(BaccTable.Form);
  user::Hover(MarkCards[0].Picture1);
  stage::prcTurnWheel(Shell(MDIForm1.Form), -1);
  EXPECT_EQ(MarkCards[0].Picture1.Left, -bar.LargeChange - 2 * bar.SmallChange);
  EXPECT_EQ(qt::fncActiveWindow(), &BaccTable.Form) << "the wheel leaves the keyboard where it is";
}

TEST_F(Windows, AChildIsDraggedByItsTitleAndKeepsItsPlaceInTwips) {
  QWidget& shell = Shell(card_);
  const auto drag = [&](QPoint way) {
    const QPoint from = shell.mapToGlobal(QPoint(40, 10));
    stage::prcPoint(shell, from);
    stage::prcPress(shell, Qt::LeftButton);
    stage::prcPoint(shell, from + way);
    stage::prcLift(shell, Qt::LeftButton);
    return QPoint(qt::fncPixels(card_.Left), qt::fncPixels(card_.Top));
  };
  const QPoint place = shell.pos() + QPoint(30, 20);
  EXPECT_EQ(drag({30, 20}), place);
  EXPECT_EQ(shell.pos(), place);
  EXPECT_EQ(drag({0, -900}).y(), 0) << "a title stays within reach";
  EXPECT_LT(drag({4000, 0}).x(), shell.parentWidget()->width());
  card_.Left = -90;
  user::Settle();
  EXPECT_EQ(shell.x(), qt::fncPixels(-90)) << "a frame narrower than its child shows its middle";
}

TEST_F(Windows, TheTableIsDrawnAsLargeAsTheFrameLets) {
  const auto size = [&](int width, int height) {
    Shell(MDIForm1.Form).windowHandle()->setGeometry(0, 0, width, height);
    user::Settle();
  };
  const QWidget& shuffle = *stage::fncWidget(BaccTable.maisyk);
  Shell(MDIForm1.Form).showNormal();
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
  const QWidget& focus = *QApplication::focusWidget();
  EXPECT_EQ(focus.visibleRegion().boundingRect(), focus.rect());
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
  EXPECT_EQ(List().windowHandle()->transientParent(), nullptr) << "the frame may cover it";
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
