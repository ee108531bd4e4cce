#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <set>

#include "betting/frmStatistics.h"
#include "platform/UserInput.h"
#include "platform/qt/views/Accessible.h"
#include "platform/qt/windows/Screen.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "shell/StartScreen.h"
#include "table/Bets.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// The whole game by keyboard and by ear: what a screen reader finds in each window, and what it is
// told of a hand.

namespace {

std::string strHeard;  // A line for each reading.

class Ear : public Game {
 protected:
  void SetUp() override {
    strHeard = "\n";
    Game::SetUp();
    Setting("Misc", "Nerodik", "0");
    Setting("File", "Learn", "True");
    Setting("Shoe Size", "Decks", "4");
    for (const auto& [section, key] :
         {std::pair{"Card Options", "Card Face Up"}, std::pair{"Deal", "Delay"},
          std::pair{"Deal", "Animation"}}) {
      Setting(section, key, "False");
    }
    user::Run(fncStartProgram);
  }

  /// A key to whatever has the focus, as the user presses it.
  static void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const bool blnPrints = key < Qt::Key_Escape && modifiers == Qt::NoModifier;
    stage::prcKey(static_cast<Qt::Key>(key), modifiers,
                  blnPrints ? QString(QChar(key)).toLower() : QString());
  }

  static void Shuffle() {
    Key(Qt::Key_S);
    user::Wait(50);
    ASSERT_STREQ(qt::fncActiveWindow()->Name, BaccTable.Form.Name);
    Key(Qt::Key_U, Qt::AltModifier);
    ASSERT_TRUE(BaccTable.duokkortos[0].Visible && !blnBusy);
  }

  /// Puts the cards of these slots of a deck out first, in this order.
  static void NextSlots(std::initializer_list<int> next) {
    SlotRow& order = intShoeCards[intShoeNumber];
    int place = intNextCard[intShoeNumber];
    for (const int slot : next) {
      for (int at = place++; order[place - 1] % intSlotsOfDeck != slot; ++at) {
        std::swap(order[place - 1], order[at]);
      }
    }
  }

  /// Chooses each card that waits by its number and turns it by Enter, until the hand is over.
  static void TurnNext() {
    for (int n = 0; n < intPositions; ++n) {
      if (blnCardClickable[n] && BaccTable.pctCardBack[n].Visible) {
        CheckTree(BaccTable.Form);
        Key(Qt::Key_1 + n);
        Key(Qt::Key_Return);
        break;
      }
    }
    if (blnBusy) {
      user::After(200, TurnNext);
    }
  }

  /// What a screen reader misses at the controls that show in a window.
  static void CheckTree(const Window& window) {
    SCOPED_TRACE(window.Name);
    std::set<QString> names;
    for (const Control* control : window.Controls) {
      const qt::ControlView* view = qt::fncViewOf(*control);
      // Tool buttons may have no room on a narrow screen; the menus have them all.
      if (!fncSeen(*control) || view == nullptr || view->Widget == nullptr ||
          (control->Kind == ControlKind::ToolButton && !view->Widget->isVisible())) {
        continue;
      }
      SCOPED_TRACE(control->Name + std::string(" ") + std::to_string(int{control->Index}));
      QAccessibleInterface* found = QAccessible::queryAccessibleInterface(view->Widget);
      const QString name = found->text(QAccessible::Name);
      const bool blnUsed = control->On->Click != nullptr || fncTakesFocus(*control);
      EXPECT_EQ(name.isEmpty(), found->state().invisible) << "hidden, or without a name";
      EXPECT_FALSE(blnUsed && name.isEmpty());
      EXPECT_TRUE(found->role() != QAccessible::NoRole && found->role() != QAccessible::Client);
      EXPECT_TRUE(!control->Enabled || found->state().focusable == fncTakesFocus(*control));
      EXPECT_TRUE(!blnUsed || names.insert(name).second) << name.toStdString() << " twice";
      if (control->Kind == ControlKind::MaskedEdit || control->Kind == ControlKind::Label) {
        const QString value = QString::fromStdString(control->Text).simplified();
        EXPECT_TRUE(found->text(QAccessible::Value).endsWith(value)) << value.toStdString();
      }
    }
  }
};

TEST_F(Ear, EveryControlOfEveryWindowIsNamed) {
  CheckTree(Plauk.Form);
  Shuffle();
  for (const Window* window : fncWindows()) {
    CheckTree(*window);
  }
  QAccessible::queryAccessibleInterface(stage::fncWidget(*fncChips(0)[1]))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(dblPlayerTotal[0], 990) << "a chip pressed by a screen reader";
  static int intDialogs = 0;
  const auto check = [](const Window& dialog, int menu, int entry) {
    user::WhileModal([&dialog] {
      CheckTree(dialog);
      Key(Qt::Key_Tab, Qt::ControlModifier);
      EXPECT_EQ(qt::fncActiveWindow(), &dialog) << "the way out of a dialog is its end";
      ++intDialogs;
    });
    Key(menu, Qt::AltModifier);
    Key(entry);
  };
  check(frmStatistics.Form, Qt::Key_O, Qt::Key_S);
  check(KasSitas.Form, Qt::Key_H, Qt::Key_A);
  EXPECT_EQ(intDialogs, 2) << "the keys of the menus open no dialog";
}

TEST_F(Ear, MenuEntriesAreClickedByTheirOwnKeysFromABoxAndFromAFloatingWindow) {
  Shuffle();
  Key(Qt::Key_P, Qt::AltModifier);
  Key(Qt::Key_5);
  Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 900);
  Key(Qt::Key_P, Qt::AltModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 950) << "the box takes no key of the menus for itself";
  prcShow(frmCardsDealt.Form);
  user::Settle();
  user::Click(frmCardsDealt.lstCardsDealt);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(dblPlayerTotal[0], 1000);
}

TEST_F(Ear, AHandIsFollowedByEarAndPlayedByKeys) {
  Shuffle();
  auto* ear = stage::fncView(BaccTable.Form).Ground->findChild<qt::EarView*>();
  ASSERT_NE(ear, nullptr) << "the shuffle was not told of";
  QObject::connect(ear, &qt::EarView::told,
                   [](const QString& text) { strHeard += text.toStdString() + "\n"; });
  EXPECT_EQ(QAccessible::queryAccessibleInterface(ear)->role(), QAccessible::Notification);
  NextSlots({12, 40, 17, 29, 41});
  for (const auto& [key, chips] : {std::pair{Qt::Key_P, Qt::Key_5}, {Qt::Key_T, Qt::Key_1}}) {
    Key(key, Qt::AltModifier);
    Key(chips);
  }
  Key(Qt::Key_B, Qt::AltModifier);
  Key(Qt::Key_B, Qt::AltModifier);
  Key(Qt::Key_2);
  Key(Qt::Key_Tab);
  user::After(200, TurnNext);
  Key(Qt::Key_E, Qt::AltModifier);
  EXPECT_EQ(strHeard, R"(
Player 1, money $950
Player 1, money $940
Player 2, money $980
Hidden Player first card
Hidden Banker first card
Hidden Player second card
Hidden Banker second card
Player first card, King of Spades
Player advice: 8, 9 for NATURAL
Player second card, 5 of Clubs. Player total 5
Banker advice: At least 6 would be good, (2 card total)
Banker first card, 2 of Hearts
Banker advice: 6, 7 to WIN
Banker second card, 4 of Diamonds. Banker total 6
Hidden Player third card
Player advice: 2, 3, 4 to WIN, 1 to TIE, 8, 9, 10, Picture to LOSE
Player third card, 3 of Hearts. Player total 8
Player 1, Tie bet LOSE. Player 1, Player bet WIN. Player 1, money $990. Player 2, Banker bet LOSE. Player WIN
)");
}

}  // namespace
