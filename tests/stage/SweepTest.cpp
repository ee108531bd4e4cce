#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "bench/UserEvents.h"
#include "platform/UserInput.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/views/ControlViews.h"
#include "platform/qt/views/Painted.h"
#include "shell/CardsDealt.h"
#include "shell/Program.h"
#include "shell/StartScreen.h"
#include "tests/Game.h"
#include "tests/stage/Stage.h"

// Every control of every window in each of its states, by every way in: what reaches it is judged
// by the model alone. The handlers are stood in for by ones that only tell that they ran, so that
// the state stays while it is swept.

namespace {

using namespace stage;
using Lines = std::vector<std::string>;

Lines strTold;
std::set<std::string> strSwept, strWindows;
std::string strState;
int intStates, intActs;

std::string fncName(const Control& control) {
  return control.Form->Name + std::string(".") + qt::fncObjectName(control).toStdString();
}

void prcTell(const std::string& who, const char* what) { strTold.push_back(who + ' ' + what); }

const ControlEvents evtAll{
    .Click = [](Control& c) { prcTell(fncName(c), "click"); },
    .MouseDown = [](Control& c, const Mouse&) { prcTell(fncName(c), "down"); },
    .MouseMove = [](Control& c, const Mouse&) { prcTell(fncName(c), "move"); },
    .MouseUp = [](Control& c, const Mouse&) { prcTell(fncName(c), "up"); },
    .GotFocus = [](Control& c) { prcTell(fncName(c), "got"); },
    .LostFocus = [](Control& c) { prcTell(fncName(c), "lost"); },
    .Validate = [](Control& c, bool&) { prcTell(fncName(c), "check"); }};
const WindowEvents evtWindow{
    .KeyDown = [](Window& w, const std::string&, int) { prcTell(w.Name, "keydown"); },
    .KeyPress = [](Window& w, char) { prcTell(w.Name, "keypress"); },
    .MouseMove = [](Window& w, const Mouse&) { prcTell(w.Name, "move"); }};
const ControlEvents evtRefuses{.Validate = [](Control& c, bool& blnCancel) {
  prcTell(fncName(c), "check");
  platform::MsgBox("no");
  blnCancel = true;
}};

/// The tellers for those events that a table has a handler for.
template <class Events, class... Event>
const Events& fncStandIn(const Events* real, const Events& tellers, Event... events) {
  static std::map<const Events*, Events> known;
  const auto [at, blnNew] = known.try_emplace(real);
  if (blnNew) {
    ((at->second.*events = real->*events != nullptr ? tellers.*events : nullptr), ...);
  }
  return at->second;
}

/// While it lives no handler of the game runs; then all is as it was.
class StandIn {
 public:
  StandIn() {
    using C = ControlEvents;
    using W = WindowEvents;
    for (Window* window : fncWindows()) {
      windows_.emplace_back(window, *window);
      window->On = &fncStandIn(window->On, evtWindow, &W::KeyDown, &W::KeyPress, &W::MouseMove);
      for (Control* control : window->Controls) {
        controls_.emplace_back(control, *control);
        control->On = &fncStandIn(control->On, evtAll, &C::Click, &C::MouseDown, &C::MouseMove,
                                  &C::MouseUp, &C::GotFocus, &C::LostFocus, &C::Validate);
      }
    }
    user::Settle();
  }
  ~StandIn() {
    for (const auto& [window, was] : windows_) {
      window->On = was.On;
      window->ActiveControl = was.ActiveControl;
    }
    for (const auto& [control, was] : controls_) {
      *control = was;
    }
    user::Settle();
  }
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

 private:
  std::vector<std::pair<Window*, Window>> windows_;
  std::vector<std::pair<Control*, Control>> controls_;
};

std::string fncJoined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += (text.empty() ? "" : ", ") + line;
  }
  return text;
}

void prcFault(bool blnFault, const std::string& what) {
  if (blnFault) {
    ADD_FAILURE() << strState << ", " << what;
  }
}

void prcExpectText(const std::string& what, const std::string& have, const std::string& want) {
  prcFault(have != want, what + ": \"" + have + "\" for \"" + want + "\"");
}

bool fncOpen(const Control& control) { return fncSeen(control) && fncUsable(control); }

/// Compares what was told since the last time with what should have been.
void prcExpect(const std::string& what, const Lines& want) {
  prcExpectText(what, fncJoined(std::exchange(strTold, {})), fncJoined(want));
}

// The judge.

void prcAdd(Lines& lines, const Control* control, auto event, const char* what) {
  if (control != nullptr && control->On->*event != nullptr) {
    lines.push_back(fncName(*control) + ' ' + what);
  }
}

/// The focus leaves from, if there is one, for to.
Lines fncReached(const Control* from, const Control& to) {
  Lines lines;
  if (from != &to) {
    prcAdd(lines, from, &ControlEvents::Validate, "check");
  }
  if (from != &to && fncTakesFocus(to)) {
    prcAdd(lines, from, &ControlEvents::LostFocus, "lost");
    prcAdd(lines, &to, &ControlEvents::GotFocus, "got");
  }
  return lines;
}

/// A whole click on what lies under the mouse, or a press that ends outside.
Lines fncClicked(const Control* from, const Control* to, Qt::MouseButton button,
                 bool blnInside = true) {
  const bool blnKnown = (button & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton)) != 0;
  if (to == nullptr || !fncUsable(*to) || !blnKnown) {
    return {};
  }
  Lines lines = fncReached(from, *to);
  prcAdd(lines, to, &ControlEvents::MouseDown, "down");
  prcAdd(lines, to, &ControlEvents::MouseUp, "up");
  if (blnInside && (button == Qt::LeftButton || to->Kind == ControlKind::Label)) {
    if (!fncTakesFocus(*to)) {
      prcAdd(lines, from, &ControlEvents::Validate, "check");
    }
    prcAdd(lines, to, &ControlEvents::Click, "click");
  }
  return lines;
}

/// Whether a control takes room in its window; what only adorns it is not there for the mouse.
bool fncLies(const Control& control) {
  using enum ControlKind;
  constexpr std::array none{Shape, Line, Timer, MenuEntry, Toolbar, ToolButton};
  return std::ranges::find(none, control.Kind) == none.end();
}

/// The uppermost control at a place in a window's ground, or in what holds it; none if it is bare.
Control* fncUnder(const Window& window, const Control* holder, QPoint at) {
  for (auto next = window.Controls.rbegin(); next != window.Controls.rend(); ++next) {
    Control& control = **next;
    if (control.Container == holder && control.Visible && fncLies(control) &&
        qt::fncPlace(control).contains(at)) {
      Control* inner = fncUnder(window, &control, at - qt::fncPlace(control).topLeft());
      return inner != nullptr ? inner : &control;
    }
  }
  return nullptr;
}

bool fncOfInterest(const Control& control) {
  const ControlEvents& on = *control.On;
  return fncLies(control) &&
         (on.Click != nullptr || on.MouseDown != nullptr || on.MouseMove != nullptr ||
          on.GotFocus != nullptr || !control.ToolTip.empty() ||
          (control.TabStop && fncTakesFocus(control)));
}

/// One window, swept while it has the input.
class Sweep {
 public:
  explicit Sweep(Window& window)
      : window_(window), ground_(*fncView(window).Ground), top_(*ground_.window()) {
    user::Activate(window);
    strTold.clear();
    strWindows.insert(window.Name);
  }

  void Run() {
    for (Control* control : window_.Controls) {
      if (fncOfInterest(*control)) {
        SweepPlaces(*control);
        SweepEar(*control);
      } else if (control->Kind == ControlKind::ToolButton && fncWidget(*control) != nullptr) {
        SweepTool(*control);
        SweepEar(*control);
      }
      if (control->Kind == ControlKind::MenuEntry && control->On->Click != nullptr) {
        SweepEntry(*control);
      }
    }
    SweepKeys();
  }

 private:
  void Begin(Control* focus = nullptr) {
    if (window_.ActiveControl != focus) {
      window_.ActiveControl = focus;
      user::Settle();
    }
    strTold.clear();
    ++intActs;
  }

  void ExpectFocus(const std::string& what, const Control* want) {
    const QWidget* widget = want != nullptr ? fncWidget(*want) : &ground_;
    const bool blnShown =
        window_.Kind == WindowKind::Frame || QApplication::focusWidget() == widget;
    prcFault(window_.ActiveControl != want || !blnShown, what + ": the focus is elsewhere");
  }

  void Click(const std::string& what, const Control* under, QPoint global, Qt::MouseButton button) {
    Begin();
    prcPoint(top_, global);
    strTold.clear();
    prcPress(top_, button);
    prcLift(top_, button);
    const Lines want = fncClicked(nullptr, under, button);
    prcExpect(what, want);
    const bool blnReached = under != nullptr && fncUsable(*under) && button <= Qt::MiddleButton;
    ExpectFocus(what, blnReached && fncTakesFocus(*under) ? under : nullptr);
  }

  /// Whether a place on the ground lies within all that holds it.
  bool fncShows(QPoint at) {
    const QWidget* holder = &ground_;
    for (; holder != nullptr && holder->rect().contains(at); holder = holder->parentWidget()) {
      at = holder->mapToParent(at);
    }
    return holder == nullptr;
  }

  void SweepPlaces(Control& control) {
    const std::string name = fncName(control);
    QPoint at = qt::fncPlace(control).topLeft();
    for (const Control* holder = control.Container; holder != nullptr; holder = holder->Container) {
      at += qt::fncPlace(*holder).topLeft();
    }
    const QRect place(at, qt::fncPlace(control).size());
    bool blnFound = false;
    const int steps = fncSeen(control) ? 8 : 1;
    for (int x = 0; x <= steps; ++x) {
      for (int y = 0; y <= steps; ++y) {
        const bool blnEdge = (x == 0 || x == steps) && (y == 0 || y == steps);
        const bool blnMiddle = 2 * x == steps && 2 * y == steps;
        if (!(blnMiddle || blnEdge || !blnFound)) {
          continue;
        }
        const QPoint to(place.left() + 1 + (place.width() - 3) * x / steps,
                        place.top() + 1 + (place.height() - 3) * y / steps);
        if (!fncShows(to)) {
          continue;
        }
        Control* under = fncUnder(window_, nullptr, to);
        const QPoint global = ground_.mapToGlobal(to);
        Click(name + " pressed", under, global, Qt::LeftButton);
        if (under == &control && !std::exchange(blnFound, true)) {
          Middle(control, global);
        }
      }
    }
    prcFault(!blnFound && fncOpen(control), name + " is out of the mouse's reach");
  }

  void SweepTool(Control& control) {
    const QWidget& widget = *fncWidget(control);
    if (widget.isVisible()) {
      for (const QPoint at :
           {widget.rect().topLeft(), widget.rect().bottomRight(), widget.rect().center()}) {
        Click(fncName(control) + " pressed", &control, widget.mapToGlobal(at), Qt::LeftButton);
      }
      Middle(control, widget.mapToGlobal(widget.rect().center()));
    }
  }

  /// All but the plain click, at one place where the control lies uppermost.
  void Middle(Control& control, QPoint global) {
    const std::string name = fncName(control);
    strSwept.insert(name);
    for (const Qt::MouseButton button :
         {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
      Click(name + " by button " + std::to_string(button), &control, global, button);
    }
    Hover(control, global);
    Begin();
    Lines once = fncClicked(nullptr, &control, Qt::LeftButton), twice = once;
    const Lines again = fncClicked(&control, &control, Qt::LeftButton);
    twice.insert(twice.end(), again.begin(), again.end());
    for (const bool blnSoon : {false, true}) {
      prcPress(top_, Qt::LeftButton, blnSoon);
      prcLift(top_, Qt::LeftButton);
    }
    prcExpect(name + " double clicked", twice);
    for (const bool blnBack : {true, false}) {
      Begin();
      prcPress(top_, Qt::LeftButton);
      prcPoint(top_, top_.mapToGlobal(QPoint(-40, -40)));
      prcPoint(top_, blnBack ? global : top_.mapToGlobal(QPoint(-40, -40)));
      prcLift(top_, Qt::LeftButton);
      std::erase(strTold, name + " move");
      prcExpect(name + (blnBack ? " dragged about" : " dragged away"),
                blnBack ? once : fncClicked(nullptr, &control, Qt::LeftButton, false));
    }
    Begin();
    prcPoint(top_, global);
    strTold.clear();
    prcTurnWheel(top_, 1);
    prcExpect(name + " under the wheel", {});
    Refused(control, global);
  }

  void Hover(const Control& control, QPoint global) {
    Begin();
    const std::string name = fncName(control);
    prcPoint(top_, top_.mapToGlobal(QPoint(-1, -1)));
    strTold.clear();
    prcPoint(top_, global);
    Lines want;
    prcAdd(want, fncUsable(control) ? &control : nullptr, &ControlEvents::MouseMove, "move");
    prcExpect(name + " under the pointer", want);
    const QCursor shown = top_.windowHandle()->cursor();
    const QCursor meant = !fncUsable(control) ? QCursor(Qt::ArrowCursor)
                          : control.Kind == ControlKind::MaskedEdit
                              ? QCursor(Qt::IBeamCursor)
                              : qt::fncCursor(control.MousePointer);
    prcFault(shown.shape() != meant.shape() || shown.hotSpot() != meant.hotSpot(),
             name + ": another pointer");
    user::Wait(1000);
    prcExpectText(name + "'s tip", QToolTip::isVisible() ? QToolTip::text().toStdString() : "",
                  control.ToolTip);
    QToolTip::hideText();
    user::Wait(400);
    strTold.clear();
  }

  /// A press while a box of the window refuses to let the focus go, and the click behind it.
  void Refused(Control& control, QPoint global) {
    const auto typed = std::ranges::find_if(window_.Controls, [&](const Control* box) {
      return box->Kind == ControlKind::MaskedEdit && fncOpen(*box);
    });
    if (typed == window_.Controls.end() || *typed == &control || !fncUsable(control)) {
      return;
    }
    Control& box = **typed;
    const ControlEvents* was = std::exchange(box.On, &evtRefuses);
    for (const bool blnByMouse : {false, true}) {
      Begin(&box);
      const std::string text = box.Text;
      if (blnByMouse) {
        user::Answer(platform::Answer::Ok);
      }
      user::WhileModal([] { prcTypeCharacter('7'); });
      prcPress(top_, Qt::LeftButton);
      prcPoint(top_, global);
      prcLift(top_, Qt::LeftButton);
      std::erase(strTold, fncName(control) + " move");
      prcExpect(fncName(control) + " refused", {fncName(box) + " check"});
      ExpectFocus(fncName(control) + " refused", &box);
      prcExpectText(fncName(box) + " below a message", box.Text, text);
      prcTypeCharacter('7');
      prcExpectText(fncName(box) + " typed over", box.Text, "7");
    }
    box.On = was;
    Click(fncName(control) + " behind a refusal", &control, global, Qt::LeftButton);
  }

  /// What an assistive tool can do at a control.
  void SweepEar(Control& control) {
    QWidget* widget = fncWidget(control);
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(widget);
    QAccessibleActionInterface* acts = found != nullptr ? found->actionInterface() : nullptr;
    const bool blnThere = fncOpen(control);
    const QStringList names = acts != nullptr ? acts->actionNames() : QStringList();
    prcFault(blnThere && control.On->Click != nullptr && names.isEmpty(),
             fncName(control) + " is out of a screen reader's reach");
    for (const QString& act : names) {
      Begin();
      acts->doAction(act);
      user::Wait(200);
      const bool blnFocus = act == QAccessibleActionInterface::setFocusAction();
      prcExpect(fncName(control) + ' ' + act.toStdString() + " by a screen reader",
                !blnThere  ? Lines()
                : blnFocus ? fncReached(nullptr, control)
                           : fncClicked(nullptr, &control, Qt::LeftButton));
      ExpectFocus(fncName(control) + ' ' + act.toStdString() + " by a screen reader",
                  blnThere && fncTakesFocus(control) ? &control : nullptr);
      const Control seen = user::Seen(control);
      prcExpectText(fncName(control) + " shows", std::to_string(seen.Value),
                    std::to_string(control.Value));
    }
  }

  void SweepEntry(Control& entry) {
    const bool blnThere = fncOpen(entry);
    Begin();
    bool blnReached = true;
    try {
      user::Click(entry);
    } catch (const std::logic_error&) {
      blnReached = false;
    }
    std::erase_if(strTold, [](const std::string& line) { return line.ends_with(" move"); });
    prcExpect(fncName(entry) + " chosen",
              fncClicked(nullptr, blnThere ? &entry : nullptr, Qt::LeftButton));
    prcFault(blnReached != blnThere,
             fncName(entry) + (blnThere ? " is out of reach" : " is there"));
    strSwept.insert(fncName(entry));
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    }
  }

  Control* Answering(bool Control::*which) {
    const auto found = std::ranges::find_if(window_.Controls, [&](const Control* button) {
      return button->Kind == ControlKind::Button && button->*which && fncOpen(*button);
    });
    return found != window_.Controls.end() ? *found : nullptr;
  }

  void Key(Control* from, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers,
           Lines want, const Control* focus, bool blnLast = false) {
    Begin(from);
    Lines heard;
    const auto on = [&](auto event, const char* what) {
      if (window_.On->*event != nullptr) {
        heard.push_back(window_.Name + std::string(" ") + what);
      }
    };
    on(&WindowEvents::KeyDown, "keydown");
    if (!text.isEmpty() && modifiers == Qt::NoModifier) {
      on(&WindowEvents::KeyPress, "keypress");
    }
    want.insert(blnLast ? want.end() : want.begin(), heard.begin(), heard.end());
    prcKey(key, modifiers, text);
    const std::string what = (from != nullptr ? fncName(*from) : window_.Name) + " at key " +
                             QKeySequence(key | modifiers).toString().toStdString();
    prcExpect(what, want);
    ExpectFocus(what, focus);
  }

  void SweepKeys() {
    std::vector<Control*> stops;
    std::ranges::copy_if(window_.Controls, std::back_inserter(stops), [](const Control* control) {
      return control->TabStop && fncTakesFocus(*control) && fncOpen(*control);
    });
    const auto click = [](Control* from, Control* to) {
      return to != nullptr ? fncClicked(from, to, Qt::LeftButton) : Lines();
    };
    for (std::size_t n = 0; n < stops.size(); ++n) {
      Control* stop = stops[n];
      Control *next = stops[(n + 1) % stops.size()],
              *before = stops[(n + stops.size() - 1) % stops.size()];
      Key(stop, Qt::Key_Tab, {}, {}, fncReached(stop, *next), next, true);
      Key(stop, Qt::Key_Backtab, {}, Qt::ShiftModifier, fncReached(stop, *before), before, true);
      const bool blnPressed =
          stop->Kind == ControlKind::Button || stop->Kind == ControlKind::Picture;
      const bool blnTurned =
          stop->Kind == ControlKind::CheckBox || stop->Kind == ControlKind::OptionButton;
      Key(stop, Qt::Key_Space, " ", {}, blnPressed || blnTurned ? click(stop, stop) : Lines(),
          stop);
      for (const bool blnEnter : {true, false}) {
        Control* meant = blnEnter && blnPressed
                             ? stop
                             : Answering(blnEnter ? &Control::Default : &Control::CancelButton);
        Key(stop, blnEnter ? Qt::Key_Return : Qt::Key_Escape, {}, {}, click(stop, meant),
            meant != nullptr ? meant : stop);
      }
      if (stop->Kind == ControlKind::MaskedEdit) {
        SweepTyping(*stop);
      }
    }
    for (Control* control : window_.Controls) {
      if (control->AccessKey != 0 && control->Kind != ControlKind::Label && fncOpen(*control)) {
        Control* from = nullptr;  // The one with the same key before it in the stack.
        for (Control* other : window_.Controls) {
          if (other == control) {
            break;
          }
          const bool blnSame = other->AccessKey == control->AccessKey && fncTakesFocus(*other) &&
                               fncSeen(*other) && other->Kind != ControlKind::Label;
          from = blnSame ? other : from;
        }
        const bool blnButton = control->Kind == ControlKind::Button;
        Key(from, static_cast<Qt::Key>(control->AccessKey), {}, Qt::AltModifier,
            blnButton ? click(from, control) : fncReached(from, *control), control);
      }
    }
  }

  void SweepTyping(Control& box) {
    Begin();
    box.Text.clear();
    fncSetFocus(box);
    user::Settle();
    for (const char typed : {'x', '7', ' '}) {
      prcTypeCharacter(typed);
    }
    prcExpectText(fncName(box) + " typed into", box.Text, "7");
    QApplication::clipboard()->setText(QStringLiteral("1a"));
    prcKey(Qt::Key_A, Qt::ControlModifier);
    prcKey(Qt::Key_V, Qt::ControlModifier);
    prcExpectText(fncName(box) + " pasted into", box.Text, "1");
    QMimeData text;
    text.setText(QStringLiteral("2"));
    QDragEnterEvent drop(QPoint(3, 3), Qt::CopyAction, &text, Qt::LeftButton, {});
    drop.ignore();
    QApplication::sendEvent(fncWidget(box), &drop);
    prcExpectText(fncName(box) + " dropped into", drop.isAccepted() ? "taken" : "", "");
  }

  Window& window_;
  QWidget& ground_;
  QWidget& top_;
};

/// Sweeps what is open; behind a dialog nothing may answer.
void prcSweep(const std::string& state) {
  strState = state;
  ++intStates;
  const StandIn standIn;
  const QWidget* modal = QApplication::activeModalWidget();
  for (Window* window : fncWindows()) {
    if (!window->Visible || !fncView(*window).Shell->isVisible()) {
      continue;
    }
    if (modal == nullptr || fncView(*window).Shell == modal) {
      Sweep(*window).Run();
    }
  }
}

class SweepTest : public Game {
 protected:
  static void TearDownTestSuite() {
    std::printf("Swept: %zu windows, %d states, %zu controls, %d acts\n", strWindows.size(),
                intStates, strSwept.size(), intActs);
  }
};

TEST_F(SweepTest, StartScreen) {
  Setting("Misc", "Nerodik", "0");
  Start();
  prcSweep("start screen");
}

TEST_F(SweepTest, TableAndItsHands) {
  Start();
  for (Control* entry : {&MDIForm1.mnuShowCardsDealt, &MDIForm1.mnuShowCardsDealtCount}) {
    user::Click(*entry);
    user::Click(*entry);
  }
  prcSweep("before the first shuffle");
  user::After(500, [] { prcSweep("shuffling"); });
  Shuffle();
  prcSweep("in play");
  Bet(betBanker, 0, "5");
  user::After(4000, [] {
    prcSweep("a hand face down");
    for (const std::uint32_t later : {1000U, 4000U, 7000U}) {
      user::After(later, prcTurnAll);
    }
  });
  blnCardFaceUp = false;
  Deal();
  user::Wait(700);
  prcSweep("flashing");
  blnCardFaceUp = true;
  user::Wait(5000);
  intNextCard[0] = intLastCard[0] - 16;
  while (!BaccTable.FormLastHand.Visible) {
    Deal();
    user::Wait(5000);
  }
  prcSweep("last hand");
  Deal();
  user::Wait(5000);
  prcSweep("end of the shoe");
}

TEST_F(SweepTest, DialogsAndTheLargeToolbar) {
  Start();
  for (const auto& [state, entry] :
       {std::pair{"statistics", &MDIForm1.mnuStatistics}, std::pair{"About", &MDIForm1.mnuAbout}}) {
    user::WhileModal([state] { prcSweep(state); });
    user::Click(*entry);
  }
  user::Click(MDIForm1.mnuLargeButtons);
  prcSweep("the other toolbar");
}

}  // namespace
