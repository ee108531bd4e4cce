#include <QScrollBar>
#include <QToolTip>
#include <cmath>

#include "betting/frmStatistics.h"
#include "marking/MarkCard.h"
#include "platform/Texts.h"
#include "platform/qt/views/Boxes.h"
#include "shell/About.h"
#include "shell/CardsDealt.h"
#include "shell/StartScreen.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// What a player has to read: type of every text in every window, money of any country, marks.

namespace {

/// The type that a control's text is drawn in.
QFont fncDrawn(const Control& control) {
  const QWidget* widget = stage::fncWidget(control);
  const bool blnPainted = qobject_cast<const qt::PaintedView*>(widget) != nullptr;
  return blnPainted ? qt::fncFittedFont(control, qt::fncPlace(control).size()) : widget->font();
}

bool fncShowsText(const Control& control) {
  return stage::fncWidget(control) != nullptr && control.Dress != Look::Chip &&
         (!control.Text.empty() || control.Kind == ControlKind::ListBox);
}

class Readable : public Game {
 protected:
  /// Up to a card with marks and lists with rows, in a frame that a scale fits.
  void Play(double scale) {
    prcFreshGame(Folder());
    Setting("Card Options", "Show Cards Dealt Count", "True");
    Start();
    QWidget& frame = *stage::fncView(MDIForm1.Form).Shell;
    frame.showNormal();
    frame.resize(static_cast<int>(std::ceil(960 * scale)),
                 static_cast<int>(std::ceil(700 * scale)));
    user::Settle();
    ASSERT_EQ(qt::fncScale(), scale);
    Shuffle();
    Bet(betBanker, 0, "60");
    Bet(betTie, 0, "12");
    NextCards({9, 2, 10, 4});
    Deal(40);
    for (Window* window : {&frmStatistics.Form, &KasSitas.Form, &Plauk.Form}) {
      prcLoad(*window);
    }
    user::Settle();
  }
  void TearDown() override { prcFreshGame(Folder()); }
};

TEST_F(Readable, NoTextIsBelow11PixelsAtScale1AndListsShowAllTheyHold) {
  for (const double scale : {0.75, 1.0, 1.09, 1.5, 2.0}) {
    SCOPED_TRACE(scale);
    Play(scale);
    for (const Window* window : fncWindows()) {
      for (const Control* control : window->Controls) {
        if (fncShowsText(*control)) {
          EXPECT_GE(fncDrawn(*control).pixelSize(), qt::fncScaled(11)) << control->Name;
        }
      }
    }
    EXPECT_GE(QApplication::font("QMenu").pixelSize(), qt::fncScaled(11));
    EXPECT_GE(QToolTip::font().pixelSize(), qt::fncScaled(11));
    const auto list = [](const Control& control) -> qt::RowsView& {
      return *static_cast<qt::RowsView*>(stage::fncWidget(control));
    };
    EXPECT_EQ(list(frmCardsDealtCount.lstCardsDealtCount).verticalScrollBar()->maximum(), 0);
    const qt::RowsView& cards = list(frmCardsDealt.lstCardsDealt);
    EXPECT_LE(
        cards.fncSecondColumn() + cards.fontMetrics().horizontalAdvance(QStringLiteral("<-Burnt")),
        cards.viewport()->width());
  }
}

TEST_F(Readable, MoneyOfAnyCountryStaysInItsPanel) {
  Play(1);
  prcSetCurrency({.strSymbol = "F\u202FCFA",
                  .strThousands = "\u202F",
                  .Positive = {false, 1, 1, ""},
                  .Negative = {false, 1, 1, "-"}});
  for (const auto& [label, money] : {std::pair{&BaccTable.lblPlayerTotal[0], -123456789},
                                     {&BaccTable.lblPlayerWinnings[1], -123456789},
                                     {&frmStatistics.lblWinningsStat[0], -123456789},
                                     {&BaccTable.txtBankerBetValue[0], 999000}}) {
    prcShowMoney(*label, money);
    const QFontMetrics type(fncDrawn(*label));
    EXPECT_LE(type.horizontalAdvance(QString::fromStdString(label->Text)),
              qt::fncPlace(*label).width())
        << label->Name;
  }
}

TEST_F(Readable, AMarkTellsItsHandUnderThePointer) {
  Play(1);
  const std::string tip = fncPiped(MarkCards[0].lblTBP.at(0).ToolTip);
  EXPECT_TRUE(tip.starts_with("Hand 1: Player wins, 9 to 6|Player 9")) << tip;
  EXPECT_TRUE(tip.ends_with("|Player 1 staked Banker $600, Tie $120 and lost $720")) << tip;
}

}  // namespace
