#include "bench/qt/LongEvening.h"

#include <malloc.h>

#include <QApplication>
#include <QPainter>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "bench/qt/Figures.h"
#include "bench/qt/Launch.h"
#include "evening/Course.h"
#include "evening/Hands.h"
#include "evening/Reckoning.h"
#include "evening/Record.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"
#include "shell/CardsDealt.h"
#include "table/Bets.h"
#include "table/HandDealing.h"
#include "table/Hooks.h"
#include "table/Odds.h"
#include "table/Shoe.h"

namespace bench {

namespace {

constexpr int intHands = 10'000;
constexpr int intOpenings = 9, intDrawings = 100;
constexpr int intShoeStep = 6;  // From a shoe that is looked at to the next.
constexpr int intChip = 10;

/// A plain window of some size, which tells when it has been painted.
class BareWindow : public QWidget {
 public:
  explicit BareWindow(QSize size) { resize(size); }
  bool blnPainted = false;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter(this).fillRect(rect(), Qt::white);
    blnPainted = true;
  }
};

void prcTurnUntil(const std::function<bool()>& done) {
  while (!done()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
}

/// Tells a figure by its name and the scale in use.
void prcTellScaled(const std::string& name, double value) {
  prcTell((name + "_" + std::to_string(static_cast<int>(qt::fncScale()))).c_str(), value);
}

void prcTellPair(const std::string& name, const std::vector<double>& ours,
                 const std::vector<double>& bare) {
  prcTellScaled(name, fncQuantile(ours, 0.5));
  prcTellScaled("bare_" + name, fncQuantile(bare, 0.5));
}

// --- The hands: dealt by the rules, booked and recorded, with nothing shown ---

/// Seat 0 goes up and down on Banker and Player, seat 1 on the Player, with a tie now and then.
int fncChips(int hand, BetSide side, int seat) {
  if (side == betTie) {
    return hand % 4 == 0 ? seat : 0;
  }
  const BetSide on = seat == 0 && hand / 10 % 3 != 0 ? betBanker : betPlayer;
  return side == on ? 1 + hand * hand % 17 : 0;
}

/// Puts a seat's bets on the table and books the hand. Returns what of them still lies there.
double fncBook(int hand, int seat) {
  double lying = 0;
  for (const BetSide side : betSides) {
    const BetControls bet = fncBet(side, seat);
    const int chips = fncChips(hand, side, seat);
    bet.Box.Text = std::to_string(chips);
    bet.Money = chips * intChip;
    dblPlayerTotal[seat] -= chips * intChip;
    lying += fncLoses(side, strResult[0]) ? 0 : chips * intChip;
    dblPlayerTotal[seat] += fncWins(side, strResult[0]) ? chips * intChip * fncPays(side) : 0;
  }
  return lying;
}

void prcPlayTo(int hands) {
  for (int hand = static_cast<int>(colEveningHands.size()); hand < hands; ++hand) {
    if (blnEndOfShoe[0]) {
      Shuffle(0);
      intDecksInPlay[0] = intDecks[0];
    }
    ZNEW_DealHand(0);
    ++intHandsDealt[0];
    const std::array<double, 2> lying{fncBook(hand, 0), fncBook(hand, 1)};
    hooks.HandSettled();
    dblPlayerTotal[0] += lying[0];
    dblPlayerTotal[1] += lying[1];
  }
}

/// Memory in MB that has been asked for and not been given back.
double fncHeld() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd) / (1024 * 1024);
}

// --- The windows ---

double fncOpening(Window& form, const Control& seen, void (*show)()) {
  qt::prcServe([&] { fncUnload(form); });
  prcRest(100);
  bool blnPainted = false;
  const double start = fncNow();
  prcWhenPainted(seen, [&] { blnPainted = true; });
  qt::prcServe(show);
  prcTurnUntil([&] { return blnPainted; });
  return fncNow() - start;
}

double fncTurning(ShoeChoice& choice, int shoe) {
  bool blnPainted = false;
  const double start = fncNow();
  prcWhenPainted(choice.lblShoe, [&] { blnPainted = true; });
  qt::prcServe([&] { prcSetValue(choice.sldShoe, shoe); });
  prcTurnUntil([&] { return blnPainted; });
  return fncNow() - start;
}

double fncBareOpening(QSize size) {
  const double start = fncNow();
  BareWindow bare(size);
  bare.show();
  prcTurnUntil([&] { return bare.blnPainted; });
  return fncNow() - start;
}

QWidget& fncWidget(const Control& control) {
  const qt::ControlView* view = qt::fncViewOf(control);
  if (view == nullptr || !view->Widget->isVisible()) {
    prcGiveUp("a window of the evening is not open");
  }
  return *view->Widget;
}

void prcMeasureOpenings() {
  std::vector<double> hands, course, bare;
  for (int n = 0; n < intOpenings; ++n) {
    hands.push_back(fncOpening(frmHands.Form, frmHands.grdHands, prcShowHands));
    prcForgetReckoning();  // As at the first opening.
    course.push_back(fncOpening(frmCourse.Form, frmCourse.crtMoney, prcShowCourse));
    bare.push_back(fncBareOpening(fncWidget(frmCourse.crtMoney).window()->size()));
  }
  const double start = fncNow();
  prcTurnUntil([] { return !frmCourse.tmrFollow.Enabled; });
  prcTellScaled("course_reckoned", fncNow() - start);
  prcTellPair("hands_open", hands, bare);
  prcTellPair("course_open", course, bare);
}

void prcWaitUntilFollowed() {
  prcTurnUntil([] { return !frmCourse.tmrFollow.Enabled && !frmHands.tmrFollow.Enabled; });
}

/// From a shoe chosen by the slider to its painting, in both windows; in the course of the money
/// until its luck is told, too.
void prcMeasureShoes() {
  std::vector<double> hands, course, told;
  for (int shoe = 1; shoe <= fncEveningShoes(); shoe += intShoeStep) {
    hands.push_back(fncTurning(frmHands.Shoe, shoe));
    const double start = fncNow();
    course.push_back(fncTurning(frmCourse.Shoe, shoe));
    prcWaitUntilFollowed();
    told.push_back(fncNow() - start);
  }
  prcTellScaled("hands_shoe", fncQuantile(hands, 0.5));
  prcTellScaled("course_shoe", fncQuantile(course, 0.5));
  prcTellScaled("course_shoe_told", fncQuantile(told, 0.5));
}

void prcMeasureDrawing(const std::string& name) {
  QWidget& chart = fncWidget(frmCourse.crtMoney);
  BareWindow bare(chart.size());
  bare.show();
  prcRest(300);
  std::vector<double> drawn, repainted;
  for (int n = 0; n < intDrawings; ++n) {
    const double start = fncNow();
    chart.repaint();
    const double between = fncNow();
    bare.repaint();
    drawn.push_back(between - start);
    repainted.push_back(fncNow() - between);
  }
  prcTellPair(name, drawn, repainted);
}

/// What comes back when both open windows show an evening without hands again.
void prcMeasureMemory() {
  prcRest(500);
  prcWaitUntilFollowed();
  const double held = fncHeld();
  qt::prcServe([] {
    prcForgetHands();
    prcForgetReckoning();
    prcFollowHands();
    prcFollowCourse();
  });
  prcRest(500);
  prcWaitUntilFollowed();
  prcTellScaled("evening_memory", held - fncHeld());
}

}  // namespace

void prcLongEvening() {
  qt::prcServe([] {
    fncUnload(frmCardsDealt.Form);  // They would draw, and keep what is drawn, of every shoe.
    fncUnload(frmCardsDealtCount.Form);
  });
  qt::prcServe([] { prcPlayTo(intHands); });
  qt::prcServe(prcShowHands);
  qt::prcServe(prcShowCourse);
  prcMeasureOpenings();
  prcMeasureDrawing("chart_draw");
  prcMeasureShoes();
  prcMeasureDrawing("chart_draw_shoe");
  prcMeasureMemory();
}

}  // namespace bench
