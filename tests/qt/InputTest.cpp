#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "betting/frmStatistics.h"
#include "marking/MarkCard.h"
#include "reveal/CardReveal.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "table/BaccTable.h"
#include "table/TableState.h"
#include "tests/qt/Evening.h"
#include "tests/qt/RealUser.h"

// The one road in: whatever the user does by mouse, key or assistive tool, the box that has the
// focus is checked first, and a refusal voids it.

namespace {

/// A table open for bets, each seat with its 1000.
class Input : public Evening {
 protected:
  void SetUp() override {
    Evening::SetUp();
    prcShowFrame();
    user::Wait(20);
    user::Click(BaccTable.maisyk);
    ASSERT_TRUE(QTest::qWaitFor([] { return BaccTable.duokkortos[0].Visible && !blnBusy; }));
    user::Settle();
  }

  static QWindow* fncFrame() { return real::Ground(MDIForm1.Form).window()->windowHandle(); }

  /// The middle of a control in the frame, a few pixels aside.
  static QPoint fncAt(const Control& control, int aside = 0) {
    const QWidget& widget = real::Widget(control);
    return fncFrame()->mapFromGlobal(widget.mapToGlobal(widget.rect().center())) + QPoint(aside, 0);
  }

  static void Mouse(const Control& control, Qt::MouseButton button) {
    QTest::mouseClick(fncFrame(), button, {}, fncAt(control));
    user::Settle();
  }

  /// Keys to whatever has the focus.
  static void Keys(const QString& text) {
    for (const QChar& key : text) {
      QTest::keyClick(QApplication::focusWidget()->window()->windowHandle(), key.toLatin1());
    }
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget()->window()->windowHandle(), key, modifiers);
  }

  /// What a screen reader does at a control.
  static void Ear(const Control& control, const QString& action) {
    QAccessible::queryAccessibleInterface(&real::Widget(control))
        ->actionInterface()
        ->doAction(action);
    user::Settle();
  }
  static QString fncPressed() { return QAccessibleActionInterface::pressAction(); }

  /// Opens the statistics and runs act there; messages are answered by key.
  static void InStatistics(const std::function<void()>& act) {
    user::WhileModal([&act] {
      QTimer hand;
      QObject::connect(&hand, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
          QTest::keyClick(box, Qt::Key_Return);
        }
      });
      hand.start(1);
      QWidget* dialog = &real::Ground(frmStatistics.Form);
      ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }));
      act();
    });
    user::Click(MDIForm1.mnuStatistics);
  }

  static double fncOwned(int seat) {
    return dblPlayerTotal[seat] + lngBankerBet[seat] + lngPlayerBet[seat] + lngTieBet[seat];
  }

  Control& box_ = BaccTable.txtBankerBet[0];
};

TEST_F(Input, AScreenReadersPressChecksTheBoxFirst) {
  user::Type(box_, "50");
  Ear(BaccTable.lblBBetInc0[0], fncPressed());
  EXPECT_EQ(dblPlayerTotal[0], 1000) << "a typed bet that was cleared gave money";
  user::Type(box_, "5");
  Ear(BaccTable.lblPBetInc0[1], fncPressed());
  EXPECT_EQ(dblPlayerTotal[0], 950);
  user::Type(box_, "");
  Ear(BaccTable.lblBBetInc0[0], fncPressed());
  EXPECT_EQ(user::Boxes().size(), 1U);
  EXPECT_EQ(fncOwned(0), 1000) << "an emptied box lost its paid bet";
}

TEST_F(Input, APressThatMovesALittleKeepsTheSelection) {
  user::Type(box_, "5");
  user::Click(BaccTable.txtTieBet[0]);
  const int aside = 2 - real::Widget(box_).width() / 2;
  QTest::mousePress(fncFrame(), Qt::LeftButton, {}, fncAt(box_, aside + 2));
  QTest::mouseMove(fncFrame(), fncAt(box_, aside));
  QTest::mouseRelease(fncFrame(), Qt::LeftButton, {}, fncAt(box_, aside));
  Keys("7");
  EXPECT_EQ(box_.Text, "7");
}

TEST_F(Input, ARefusedBoxIsTypedOver) {
  const struct {
    Control& Box;
    const char* Bad;
  } rows[] = {
      {box_, ""}, {box_, "101"}, {BaccTable.txtTieBet[1], "51"}, {BaccTable.txtUnitValue, "15"}};
  for (const auto& row : rows) {
    const std::size_t told = user::Boxes().size();
    user::Type(row.Box, row.Bad);
    Key(Qt::Key_Tab);
    user::Settle();
    EXPECT_EQ(user::Boxes().size(), told + 1) << row.Bad;
    Keys("5");
    EXPECT_EQ(row.Box.Text, "5") << row.Bad;
    user::Type(row.Box, "10");
    user::Click(BaccTable.txtTieBet[0]);
  }
  InStatistics([] {
    user::Type(frmStatistics.mskSteak[0], "99999999");
    Key(Qt::Key_Tab);
    Keys("1500");
    EXPECT_EQ(frmStatistics.mskSteak[0].Text, "1500");
  });
}

TEST_F(Input, AFocusSetFromOutsideIsGivenByTheModel) {
  InStatistics([] {
    Ear(frmStatistics.mskSteak[1], QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(frmStatistics.Form.ActiveControl, &frmStatistics.mskSteak[1]);
    Keys("7");
    EXPECT_EQ(frmStatistics.mskSteak[1].Text, "7") << "typed over";
    Ear(frmStatistics.mskSteak[0], QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(dblPlayerTotal[1], 7) << "checked as it is left";
  });
  user::Type(box_, "101");
  Ear(BaccTable.txtTieBet[0], QAccessibleActionInterface::setFocusAction());
  Keys("3");
  EXPECT_EQ(box_.Text, "3") << "a refusal keeps the focus";
  QAccessible::queryAccessibleInterface(&real::Widget(BaccTable.txtTieBet[0]))
      ->setText(QAccessible::Value, "4x2");
  user::Settle();
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.txtTieBet[0]);
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "42") << "a text from outside takes the same road";
  EXPECT_EQ(dblPlayerTotal[0], 970);
}

TEST_F(Input, ClosingTheStatisticsLeavesItsBox) {
  InStatistics([] {
    user::Type(frmStatistics.mskSteak[0], "99999999");
    user::Close(frmStatistics.Form);
    EXPECT_TRUE(frmStatistics.Form.Visible) << "a refusal keeps the window";
    user::Type(frmStatistics.mskSteak[0], "1500");
    user::Close(frmStatistics.Form);
    EXPECT_FALSE(frmStatistics.Form.Visible);
  });
  EXPECT_EQ(dblPlayerTotal[0], 1500);
  EXPECT_EQ(fncGetSetting("Player1Stats", "Stake"), 1500);
}

TEST_F(Input, ThumbButtonsAndTheToolkitsMenusDoNothing) {
  for (const Qt::MouseButton thumb : {Qt::BackButton, Qt::ForwardButton}) {
    Mouse(BaccTable.lblBBetInc1[0], Qt::LeftButton);
    const double before = dblPlayerTotal[0];
    Mouse(BaccTable.lblBBetInc5[0], thumb);
    EXPECT_EQ(dblPlayerTotal[0], before);
    Mouse(BaccTable.txtTieBet[0], thumb);
    Mouse(BaccTable.duokkortos[0], thumb);
    EXPECT_EQ(BaccTable.Form.ActiveControl, &box_);
  }
  Mouse(box_, Qt::RightButton);
  for (const Control* control : {&box_, &MarkCards[0].HScroll1}) {
    QWidget& widget = real::Widget(*control);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(3, 3),
                            widget.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&widget, &asked);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << control->Name;
  }
}

TEST_F(Input, WhatAFrameHoldsIsReachedByMouse) {
  InStatistics([] {
    Control& box = frmStatistics.mskSteak[1];
    QWidget& widget = real::Widget(box);
    EXPECT_EQ(QApplication::widgetAt(widget.mapToGlobal(widget.rect().center())), &widget);
    user::Click(box);
    EXPECT_EQ(frmStatistics.Form.ActiveControl, &box);
  });
}

TEST_F(Input, AMessageAnsweredDuringAPressLeavesTheNextClickWhole) {
  const struct {
    bool blnUpFirst;
    Control& Pressed;
  } rows[] = {{false, BaccTable.lblBBetInc1[1]},
              {true, BaccTable.lblBBetInc1[1]},
              {false, BaccTable.txtTieBet[1]}};
  for (const auto& row : rows) {
    user::Type(box_, "101");
    if (row.blnUpFirst) {
      user::WhileModal([] { QTest::mouseRelease(fncFrame(), Qt::LeftButton, {}, QPoint(5, 5)); });
    }
    QTest::mousePress(fncFrame(), Qt::LeftButton, {}, fncAt(row.Pressed));
    if (!row.blnUpFirst) {
      QTest::mouseRelease(fncFrame(), Qt::LeftButton, {}, fncAt(row.Pressed));
    }
    EXPECT_EQ(lngBankerBet[1], 0) << "a refusal voids the press";
    Key(Qt::Key_A, Qt::ControlModifier);
    Keys("0");
    Mouse(BaccTable.lblBBetInc1[1], Qt::LeftButton);
    EXPECT_EQ(lngBankerBet[1], 10) << "the next click was eaten";
    Mouse(BaccTable.lblBBetInc0[1], Qt::LeftButton);
  }
}

TEST_F(Input, AdviceComesByTabAndGoesOverTheBareTableAlone) {
  for (const int n : {0, 1, 3, 4}) {
    BaccTable.pctCardBack[n].Visible = BaccTable.pctCardFace[n].Visible = true;
    blnCardClickable[n] = true;
  }
  BaccTable.blnCardsPlaced = BaccTable.prgShoe.Visible = BaccTable.fraShoeNumber.Visible = true;
  intPlayerValue1[0] = 5;
  pctCardBack_Click(0);
  fncSetFocus(BaccTable.pctCardBack[1]);
  BaccTable_MouseMove();
  user::Settle();
  Key(Qt::Key_Tab);
  Key(Qt::Key_Backtab);
  EXPECT_EQ(BaccTable.Form.ActiveControl, &BaccTable.pctCardBack[1]);
  EXPECT_TRUE(BaccTable.blnCardNeedShown && BaccTable.lblCardNeedP.Visible);
  for (Control* cover : {&BaccTable.prgShoe, &BaccTable.fraShoeNumber}) {
    user::Settle();
    QTest::mouseMove(fncFrame(), fncAt(*cover));
    QTest::mouseMove(fncFrame(), fncFrame()->mapFromGlobal(real::Global(*cover, 30, 30)));
    EXPECT_TRUE(BaccTable.blnCardNeedShown) << cover->Name;
  }
  user::Hover(BaccTable.Form);
  EXPECT_FALSE(BaccTable.blnCardNeedShown);
}

TEST_F(Input, DoubleClicksDragsWheelsAndPastesHaveOneRuleEach) {
  const Control& chip = BaccTable.lblBBetInc1[0];
  for (int click = 0; click < 2; ++click) {
    QTest::mouseClick(fncFrame(), Qt::LeftButton, {}, fncAt(chip));
  }
  EXPECT_EQ(lngBankerBet[0], 20) << "a double click is two clicks";
  for (const int aside : {0, 200}) {
    QTest::mousePress(fncFrame(), Qt::LeftButton, {}, fncAt(chip));
    QTest::mouseMove(fncFrame(), fncAt(chip, 200));
    QTest::mouseMove(fncFrame(), fncAt(chip, aside));
    QTest::mouseRelease(fncFrame(), Qt::LeftButton, {}, fncAt(chip, aside));
    EXPECT_EQ(lngBankerBet[0], 30) << "a click ends where it began";
  }
  const QPointF at(3, 3);
  QWheelEvent wheel(at, real::Widget(box_).mapToGlobal(at), {}, {0, 120}, {}, {}, {}, false);
  QApplication::sendEvent(&real::Widget(box_), &wheel);
  EXPECT_EQ(box_.Text, "3");
  user::Click(BaccTable.txtTieBet[0]);
  QApplication::clipboard()->setText("1a2");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "12");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(static_cast<QLineEdit&>(real::Widget(BaccTable.txtTieBet[0])).text().toStdString(),
            BaccTable.txtTieBet[0].Text);
  user::Type(BaccTable.txtTieBet[0], "51");
  user::WhileModal([] { QTest::keyClick(fncFrame(), Qt::Key_7); });
  Mouse(chip, Qt::LeftButton);
  EXPECT_EQ(BaccTable.txtTieBet[0].Text, "51") << "a message keeps keys from the box below it";
}

TEST_F(Input, EmptyPlacesOfAMaskShowThePromptWhileTyped) {
  const auto ink = [this] {
    user::Settle();
    return real::Widget(box_).grab().toImage();
  };
  user::Type(box_, "1");
  const QImage prompted = ink();
  box_.Prompt = ' ';
  EXPECT_NE(prompted, ink());
  user::Type(box_, "100");
  const QImage full = ink();
  box_.Prompt = '_';
  EXPECT_EQ(full, ink()) << "no place is empty";
}

}  // namespace
