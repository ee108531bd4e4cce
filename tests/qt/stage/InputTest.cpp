#include <QAccessible>
#include <QImage>

#include "platform/qt/views/Accessible.h"
#include "shell/CardsDealt.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// What the sweep of all controls does not show of the one road in: what comes of it for the game,
// by mouse, by keys alone and by ear.

namespace {

using namespace stage;

std::string strHeard;  // A line for each reading.

/// A table open for bets, each seat with its 1000.
class Input : public Game {
 protected:
  void SetUp() override {
    strHeard = "\n";
    Game::SetUp();
    Setting("File", "Learn", "True");
    Start();
    Shuffle();
  }

  /// Chooses the next card that waits and turns it by Enter, until the hand is over.
  static void TurnNext() {
    prcKey(Qt::Key_Right);
    prcKey(Qt::Key_Return);
    if (blnBusy) {
      user::After(200, TurnNext);
    }
  }

  Control& box_ = BaccTable.txtBankerBet[0];
};

TEST_F(Input, APressThatMovesALittleKeepsTheSelection) {
  user::Type(box_, "5");
  user::Click(BaccTable.txtTieBet[0]);
  user::Press(box_, 60, 60);
  user::Drag(box_, 30, 60);
  user::Release(box_, 30, 60);
  prcTypeCharacter('7');
  EXPECT_EQ(box_.Text, "7");
}

TEST_F(Input, WhatIsTypedDuringAPressIsCheckedBeforeItsClick) {
  static bool blnClicked = false;
  static const ControlEvents clicked{.Click = [](Control&) { blnClicked = true; }};
  Control& chip = BaccTable.lblBBetInc1[1];
  user::Type(box_, "10");
  const ControlEvents* was = std::exchange(chip.On, &clicked);
  user::Press(chip, 150, 150);
  prcTypeCharacter('9');
  user::Release(chip, 150, 150);
  chip.On = was;
  EXPECT_EQ(user::Boxes().size(), 1U);
  EXPECT_FALSE(blnClicked);
}

TEST_F(Input, ACardTurnsByAClickNotByAPullAndFallsBackWhereItIsSeenNoMore) {
  blnCardFaceUp = false;
  user::After(4000, [] {
    Control& back = BaccTable.pctCardBack[0];
    user::Press(back, 500, 700);
    user::Drag(back, 500, 200);
    user::Release(back, 500, 200);
    EXPECT_TRUE(back.Visible && blnCardClickable[0]);
    QWindow& frame = *fncView(MDIForm1.Form).Shell->windowHandle();
    user::Press(BaccTable.lblCardBottom[0]);
    user::Drag(BaccTable.lblCardBottom[0], 0, -700);
    EXPECT_LT(back.Height, BaccTable.intCardHeight);
    frame.setVisible(false);  // As a minimised frame is, under most window managers.
    user::Settle();
    EXPECT_EQ(back.Height, BaccTable.intCardHeight);
    frame.setVisible(true);
    prcPoint(*fncWidget(back), fncWidget(back)->mapToGlobal(QPoint(30, 20)));
    EXPECT_EQ(back.Height, BaccTable.intCardHeight) << "the toolkit alone holds the press";
    user::Press(back, 500, 700);
    user::Drag(back, 540, 740);
    user::Release(back, 540, 740);
    EXPECT_FALSE(back.Visible) << "the hand may tremble";
    TurnNext();
  });
  user::Click(BaccTable.duokkortos[0]);
  EXPECT_FALSE(BaccTable.pctCardBack[1].Visible) << "the hand goes on";
}

TEST_F(Input, WhatAnAssistiveToolPutsIntoABoxIsCheckedAsItIsLeft) {
  const auto put = [](const Control& box, const char* text) {
    QAccessible::queryAccessibleInterface(fncWidget(box))
        ->setText(QAccessible::Value, QString::fromLatin1(text));
  };
  put(BaccTable.txtTieBet[0], "4x2");
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtTieBet[0]);
  put(box_, "101");
  EXPECT_EQ(dblPlayerTotal[0], 580);
  put(BaccTable.txtTieBet[1], "3");
  EXPECT_EQ(BaccTable.txtTieBet[1].Text, "0") << "a refusal keeps the focus and the text";
  EXPECT_EQ(BaccTable.Form.ActiveControl, &box_);
}

TEST_F(Input, EmptyPlacesOfAMaskShowThePromptWhileTyped) {
  const auto shown = [this](char prompt) {
    box_.Prompt = prompt;
    user::Settle();
    return fncWidget(box_)->grab().toImage();
  };
  for (const auto& [typed, blnPrompted] : {std::pair{"1", true}, {"100", false}}) {
    user::Type(box_, typed);
    EXPECT_EQ(shown('0') != shown('8'), blnPrompted) << "of equally wide prompts, behind " << typed;
  }
}

TEST_F(Input, KeysOfTheMenusAreHeardFromABoxAndFromAFloatingWindow) {
  user::Type(box_, "5");
  prcKey(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 900);
  user::Click(box_);
  prcKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 950) << "the box takes no key of the menus for itself";
  prcKey(Qt::Key_K, Qt::AltModifier, QStringLiteral("k"));
  EXPECT_EQ(box_.Text, "5") << "nor one that means nothing there";
  prcShow(frmCardsDealt.Form);
  user::Settle();
  user::Click(frmCardsDealt.lstCardsDealt);
  prcKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 1000);
}

TEST_F(Input, AHandIsFollowedByEarAndPlayedByKeys) {
  blnCardFaceUp = false;
  auto* ear = fncView(BaccTable.Form).Ground->findChild<qt::EarView*>();
  ASSERT_NE(ear, nullptr) << "the shuffle was not told of";
  QObject::connect(ear, &qt::EarView::told,
                   [](const QString& text) { strHeard += text.toStdString() + "\n"; });
  EXPECT_EQ(QAccessible::queryAccessibleInterface(ear)->role(), QAccessible::Notification);
  NextCards({13, 1, 5, 4, 3});
  prcKey(Qt::Key_P, Qt::AltModifier);
  prcTypeCharacter('5');
  prcKey(Qt::Key_Tab);
  user::After(200, TurnNext);
  prcKey(Qt::Key_E, Qt::AltModifier);
  EXPECT_EQ(strHeard, R"(
Player 1, money $950
Hidden Player first card
Hidden Banker first card
Hidden Player second card
Hidden Banker second card
Player first card, King of Clubs
Player advice: 8, 9 for NATURAL
Player second card, 5 of Hearts. Player total 5
Banker advice: At least 6 would be good, (2 card total)
Banker first card, Ace of Diamonds
Banker advice: 7, 8 to WIN
Banker second card, 4 of Diamonds. Banker total 5
Hidden Player third card
Player advice: 1, 2, 3 to WIN, 4 is good; 10, Picture to TIE, 8, 9 to LOSE
Player third card, 3 of Spades. Player total 8
Player 1, Player bet WIN. Player 1, money $1,000. Player WIN
)");
}

}  // namespace
