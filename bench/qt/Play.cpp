#include "bench/qt/Play.h"

#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "assets/Pictures.h"
#include "bench/qt/Figures.h"
#include "bench/qt/Launch.h"
#include "marking/MarkCard.h"
#include "platform/UserInput.h"
#include "platform/platform.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"
#include "shell/CardsDealt.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/Shoe.h"

// The toolkit's own way in for a mouse event, as its display plug-ins and its test library use it.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers mods, int timestamp);

namespace bench {

namespace {

constexpr int intQuiet = 10'000;
constexpr int intMoves = 500;
constexpr int intStreamMoves = 2000;
constexpr int intShoesMeasured = 5;
constexpr int intSettingsOfHand = 5;  // Win and turnover of each seat, and the hands.

void prcShuffled() {
  qt::prcServe([] { prcShuffleTable(); });
}

/// Deals one hand, to be turned by the user, and calls back from within the poll that waits for
/// him. The hand is then closed.
void prcInPoll(void (*measure)()) {
  blnCardFaceUp = blnDealDelay = blnDealAnimation = false;
  prcShuffled();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    if (blnCardClickable[4]) {
      watch.stop();
      prcRest(1500);
      measure();
      qt::prcNoteEnd();
    }
  });
  watch.start(50);
  qt::prcServe([] { prcUserClick(BaccTable.duokkortos[0]); });
  if (!qt::fncEnded()) {
    prcGiveUp("the hand did not wait for its user");
  }
}

void prcTellIdle(const char* name) {
  const double used = fncProcessorTime();
  const double start = fncNow();
  prcRest(intQuiet);
  prcTell(name, 100 * (fncProcessorTime() - used) / (fncNow() - start));
}

/// A widget of a card's size that draws one kept picture.
class BareCard : public QWidget {
 public:
  explicit BareCard(const QPixmap& picture) : picture_(picture) {
    setWindowFlags(Qt::BypassWindowManagerHint | Qt::WindowStaysOnTopHint);
    resize(picture.size());
    move(0, 0);
    show();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawPixmap(0, 0, picture_); }

 private:
  QPixmap picture_;
};

/// Where the mouse goes on the strip below the first card.
struct Strip {
  QWidget& Widget;
  QWindow& Handle;
};

Strip fncStrip() {
  const qt::ControlView* view = qt::fncViewOf(BaccTable.lblCardBottom[0]);
  if (view == nullptr || !view->Widget->isVisible()) {
    prcGiveUp("no strip to pull at");
  }
  return {*view->Widget, *view->Widget->window()->windowHandle()};
}

void prcMouse(const Strip& strip, QEvent::Type type, int pull) {
  const QPointF global = strip.Widget.mapToGlobal(QPointF(20, -pull));
  const bool blnMove = type == QEvent::MouseMove;
  const bool blnHeld = type != QEvent::MouseButtonRelease;
  qt_handleMouseEvent(&strip.Handle, strip.Handle.mapFromGlobal(global), global,
                      blnHeld ? Qt::LeftButton : Qt::NoButton,
                      blnMove ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier,
                      static_cast<int>(fncNow()));
}

/// A pull in pixels that goes up and down the card, seven pixels a move.
int fncPull(int move) {
  constexpr int intTurn = 26;
  const int phase = move % (2 * intTurn);
  return 3 + 7 * (phase < intTurn ? phase : 2 * intTurn - phase);
}

void prcTellMoves(const Strip& strip) {
  const QPixmap card = qt::fncPicture(picCardBack, qt::fncCardSize(), 1);
  BareCard bare(card);
  prcRest(300);
  std::vector<double> squeezed, repainted;
  for (int move = 0; move < intMoves; ++move) {
    const double start = fncNow();
    prcMouse(strip, QEvent::MouseMove, fncPull(move));
    const double between = fncNow();
    bare.repaint();
    repainted.push_back(fncNow() - between);
    squeezed.push_back(between - start);
    prcRest(2);
  }
  if (qt::fncScale() < 2) {
    prcGiveUp("the table is not drawn at scale 2 or more");
  }
  prcTell("squeeze_median", fncQuantile(squeezed, 0.5));
  prcTell("squeeze_99", fncQuantile(squeezed, 0.99));
  prcTell("bare_repaint_median", fncQuantile(repainted, 0.5));
  prcTell("bare_repaint_99", fncQuantile(repainted, 0.99));
}

/// Another thread posts a move each millisecond; the last one is the deepest pull.
void prcTellStream(const Strip& strip) {
  constexpr int intDeepest = 180;
  const QPointF scene = strip.Widget.mapTo(strip.Widget.window(), QPoint(0, 0));
  const QPointF corner = strip.Widget.mapToGlobal(QPointF(0, 0));
  double posted = 0, painted = 0;
  std::thread mouse([&] {
    auto due = std::chrono::steady_clock::now();
    for (int move = 1; move <= intStreamMoves; ++move) {
      const QPointF at(20, move < intStreamMoves ? -fncPull(move) % intDeepest : -intDeepest);
      if (move == intStreamMoves) {
        posted = fncNow();
      }
      QCoreApplication::postEvent(&strip.Widget,
                                  new QMouseEvent(QEvent::MouseMove, at, scene + at, corner + at,
                                                  Qt::NoButton, Qt::LeftButton, Qt::NoModifier));
      due += std::chrono::milliseconds(1);
      std::this_thread::sleep_until(due);
    }
  });
  const double depth = BaccTable.intCardHeight - qt::fncTwips(intDeepest);
  const qt::ControlView* back = qt::fncViewOf(BaccTable.pctCardBack[0]);
  while (std::abs(back->Drawn.Height - depth) > 1) {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  painted = fncNow();
  mouse.join();
  prcTell("stream_lag", painted - posted);
}

/// Notes how long message boxes stand, and closes each as soon as it is up.
class BoxWatch : public QObject {
 public:
  BoxWatch() { qApp->installEventFilter(this); }
  double dblOpen = 0;  ///< In all.

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (auto* box = qobject_cast<QMessageBox*>(object); box != nullptr) {
      if (event->type() == QEvent::Show) {
        shown_ = fncNow();
        QTimer::singleShot(0, box, &QMessageBox::accept);
      } else if (event->type() == QEvent::Hide) {
        dblOpen += fncNow() - shown_;
      }
    }
    return false;
  }

 private:
  double shown_ = 0;
};

void prcBet(BetSide side, Integer seat) {
  const BetControls bet = fncBet(side, seat);
  qt::prcServe([&] {
    fncSetFocus(bet.Box);
    prcUserText(bet.Box, "1");
    fncSetFocus(BaccTable.mskHandsAtaTime);
  });
  if (bet.Money == 0) {
    prcGiveUp("a bet does not stand");
  }
}

/// As many bare writes and renames of a file of the settings' size, beside it.
double fncBareWrites(int writes) {
  std::ifstream settings(strIniFile, std::ios::binary);
  const std::string contents{std::istreambuf_iterator<char>(settings), {}};
  const std::string whole = strIniFile + ".bare";
  const std::string beside = whole + ".new";
  const double start = fncNow();
  for (int write = 0; write < writes; ++write) {
    std::FILE* file = std::fopen(beside.c_str(), "wb");
    if (file == nullptr ||
        std::fwrite(contents.data(), 1, contents.size(), file) != contents.size() ||
        std::fclose(file) != 0 || std::rename(beside.c_str(), whole.c_str()) != 0) {
      prcGiveUp("the bare write failed");
    }
  }
  return fncNow() - start;
}

struct ShoeFigures {
  std::vector<double> Shuffle, Turns, Run, Writes, Replacements, Count, Hands;
};

void prcMeasureShoe(ShoeFigures& figures) {
  constexpr double dblWait = 2000;
  intDecks[0] = 8;
  double start = fncNow();
  prcShuffled();
  figures.Shuffle.push_back(fncNow() - start - dblWait);
  start = fncNow();
  for (int turn = 0; turn < 2 * intMostSlots; ++turn) {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
  }
  figures.Turns.push_back(fncNow() - start);

  prcBet(betBanker, 0);
  prcBet(betPlayer, 1);
  qt::prcServe([] { prcUserText(BaccTable.mskHandsAtaTime, "90"); });
  prcRest(200);
  const BoxWatch boxes;
  const int renamed = fncRenames();
  start = fncNow();
  qt::prcServe([] { prcUserClick(BaccTable.duokkortos[0]); });
  figures.Run.push_back(fncNow() - start - boxes.dblOpen);
  const int writes = fncRenames() - renamed;
  figures.Count.push_back(writes);
  figures.Hands.push_back(intHandsDealt[0]);
  // A hand writes its settings in one replacement.
  const int settings = writes + (intSettingsOfHand - 1) * int{intHandsDealt[0]};
  figures.Writes.push_back(fncBareWrites(settings));
  figures.Replacements.push_back(fncBareWrites(writes));
}

}  // namespace

void prcIdle() {
  prcTellIdle("idle_table");
  prcInPoll([] { prcTellIdle("idle_poll"); });
}

void prcSqueeze() {
  prcInPoll([] {
    const Strip strip = fncStrip();
    prcMouse(strip, QEvent::MouseButtonPress, 0);
    prcTellMoves(strip);
    prcTellStream(strip);
    prcMouse(strip, QEvent::MouseButtonRelease, 0);
  });
}

void prcShoes() {
  ShoeFigures figures;
  for (int shoe = 0; shoe < intShoesMeasured; ++shoe) {
    prcMeasureShoe(figures);
  }
  prcTell("shuffle", fncQuantile(figures.Shuffle, 0.5));
  prcTell("bare_turns", fncQuantile(figures.Turns, 0.5));
  prcTell("run", fncQuantile(figures.Run, 0.5));
  prcTell("run_hands", fncQuantile(figures.Hands, 0.5));
  prcTell("run_writes", fncQuantile(figures.Count, 0.5));
  prcTell("bare_writes", fncQuantile(figures.Writes, 0.5));
  prcTell("bare_replacements", fncQuantile(figures.Replacements, 0.5));
}

void prcMemory() {
  ShoeFigures ignored;
  prcMeasureShoe(ignored);
  qt::prcServe([] {
    prcShow(frmCardsDealt.Form);
    LoadlstCardsDealtCount();
  });
  prcRest(1000);
  const MarkCardWindow* card = fncMarkCard(0);
  if (card == nullptr) {
    prcGiveUp("no marking card");
  }
  const std::array<const Window*, 4> open{&BaccTable.Form, &card->Form, &frmCardsDealt.Form,
                                          &frmCardsDealtCount.Form};
  for (const Window* window : open) {
    if (!window->Visible) {
      prcGiveUp((std::string("not open: ") + window->Name).c_str());
    }
  }
  prcTell("memory", fncResident());
}

}  // namespace bench
