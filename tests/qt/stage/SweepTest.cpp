#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <map>
#include <set>

#include "judges/UserEvents.h"
#include "platform/UserInput.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Painted.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// Every control of every window in each of its states, by every way in. Who should answer is judged
// by the model alone; handlers that only tell stand in for the game's, so that the state stays.

namespace {

using namespace stage;
using Lines = std::vector<std::string>;

Lines strTold;
std::string strState;

// Who tells.

std::string fncName(const Control& control) {
  return control.Form->Name + std::string(".") + qt::fncObjectName(control).toStdString();
}

void prcTell(const std::string& who, const char* what) { strTold.push_back(who + ' ' + what); }

const ControlEvents evtTells{
    .Click = [](Control& c) { prcTell(fncName(c), "click"); },
    .MouseDown = [](Control& c, const Mouse&) { prcTell(fncName(c), "down"); },
    .MouseMove = [](Control& c, const Mouse&) { prcTell(fncName(c), "move"); },
    .MouseUp = [](Control& c, const Mouse&) { prcTell(fncName(c), "up"); },
    .GotFocus = [](Control& c) { prcTell(fncName(c), "got"); },
    .LostFocus = [](Control& c) { prcTell(fncName(c), "lost"); },
    .Validate = [](Control& c, bool&) { prcTell(fncName(c), "check"); }};
const WindowEvents evtWindowTells{
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
const Events* fncStandIn(const Events* real, const Events& tellers, Event... events) {
  static std::map<const Events*, Events> known;
  const auto [at, blnNew] = known.try_emplace(real);
  ((at->second.*events = real->*events != nullptr ? tellers.*events : nullptr), ...);
  return &at->second;
}

/// Runs act with tellers for all handlers of the game; then everything is as it was.
void prcWithTellers(const std::function<void()>& act) {
  using C = ControlEvents;
  using W = WindowEvents;
  std::vector<std::pair<Window*, Window>> windows;
  std::vector<std::pair<Control*, Control>> controls;
  for (Window* window : fncWindows()) {
    windows.emplace_back(window, *window);
    window->On = fncStandIn(window->On, evtWindowTells, &W::KeyDown, &W::KeyPress, &W::MouseMove);
    for (Control* control : window->Controls) {
      controls.emplace_back(control, *control);
      control->On = fncStandIn(control->On, evtTells, &C::Click, &C::MouseDown, &C::MouseMove,
                               &C::MouseUp, &C::GotFocus, &C::LostFocus, &C::Validate);
    }
  }
  user::Settle();
  act();
  for (const auto& [window, was] : windows) {
    window->On = was.On;
    window->ActiveControl = was.ActiveControl;
  }
  for (const auto& [control, was] : controls) {
    *control = was;
  }
  user::Settle();
}

// Who should tell.

bool fncOpen(const Control& control) { return fncSeen(control) && fncUsable(control); }

/// Whether a control takes room in its window; what only adorns it is not there for the mouse.
bool fncLies(const Control& control) {
  using enum ControlKind;
  constexpr std::array none{Shape, Line, Timer, MenuEntry, Toolbar};
  return std::ranges::find(none, control.Kind) == none.end();
}

bool fncStop(const Control* control) {
  return control->TabStop && fncTakesFocus(*control) && fncOpen(*control);
}

bool fncOfInterest(const Control& control) {
  const ControlEvents& on = *control.On;
  return fncLies(control) && control.Style != ButtonStyle::Separator &&
         (on.Click != nullptr || on.MouseDown != nullptr || on.MouseMove != nullptr ||
          on.GotFocus != nullptr || !control.ToolTip.empty() || fncStop(&control));
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

void prcAdd(Lines& lines, const Control* control, auto event, const char* what) {
  if (control != nullptr && control->On->*event != nullptr) {
    lines.push_back(fncName(*control) + ' ' + what);
  }
}

/// Something reaches a control while from has the focus; none means nobody has it.
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
Lines fncClicked(const Control* from, const Control* to, Qt::MouseButton button = Qt::LeftButton,
                 bool blnInside = true) {
  if (to == nullptr || !fncUsable(*to) || button > Qt::MiddleButton) {
    return {};
  }
  Lines lines = fncReached(from, *to);
  prcAdd(lines, to, &ControlEvents::MouseDown, "down");
  prcAdd(lines, to, &ControlEvents::MouseUp, "up");
  if (blnInside && (button == Qt::LeftButton || to->Kind == ControlKind::Label)) {
    if (!fncTakesFocus(*to)) {  // Keys may have gone to a box meanwhile.
      prcAdd(lines, from, &ControlEvents::Validate, "check");
    }
    prcAdd(lines, to, &ControlEvents::Click, "click");
  }
  return lines;
}

void prcFault(bool blnFault, const std::string& what) {
  EXPECT_FALSE(blnFault) << strState << ", " << what;
}

void prcExpectText(const std::string& what, const std::string& have, const std::string& want) {
  EXPECT_EQ(have, want) << strState << ", " << what;
}

/// Compares what was told since the last time with what should have been.
void prcExpect(const std::string& what, const Lines& want) {
  EXPECT_EQ(std::exchange(strTold, {}), want) << strState << ", " << what;
}

/// One window, swept while it has the input.
class Sweep {
 public:
  explicit Sweep(Window& window)
      : window_(window), ground_(*fncView(window).Ground), top_(*ground_.window()) {}

  void Run() {
    user::Activate(window_);
    SweepNames();
    for (Control* control : fncControls()) {
      SweepPlaces(*control);
      SweepEar(*control, fncOpen(*control));
    }
    for (Control* control : window_.Controls) {
      if (control->Kind == ControlKind::MenuEntry && control->On->Click != nullptr) {
        SweepEntry(*control);
      }
    }
    SweepKeys();
  }

  /// Below a dialog nothing answers.
  void RunBelow() {
    for (Control* control : fncControls()) {
      Begin();
      prcPoint(top_, fncRoom(*control).center());
      Click();
      prcExpect(fncName(*control) + " below a dialog", {});
      SweepEar(*control, false);
    }
  }

 private:
  std::vector<Control*> fncControls() const {
    std::vector<Control*> controls;
    std::ranges::copy_if(window_.Controls, std::back_inserter(controls), [](const Control* c) {
      return fncOfInterest(*c) && fncWidget(*c) != nullptr;
    });
    return controls;
  }

  void Begin(Control* focus = nullptr) {
    window_.ActiveControl = focus;
    user::Settle();
    strTold.clear();
  }

  void Click(Qt::MouseButton button = Qt::LeftButton, bool blnSoon = false) {
    prcPress(top_, button, blnSoon);
    prcLift(top_, button);
  }

  /// Compares what was told, and who has the focus, with what should be.
  void Expect(const std::string& what, const Lines& want, const Control* focus) {
    prcExpect(what, want);
    const QWidget* widget = focus != nullptr ? fncWidget(*focus) : &ground_;
    const bool blnShown =
        window_.Kind == WindowKind::Frame || QApplication::focusWidget() == widget;
    prcFault(window_.ActiveControl != focus || !blnShown, what + ": the focus is elsewhere");
  }

  /// Where a control lies on the screen: by its places, or by its room on a toolbar.
  QRect fncRoom(const Control& control) const {
    if (control.Kind == ControlKind::ToolButton) {
      const QWidget& button = *fncWidget(control);
      return {button.mapToGlobal(QPoint()), button.size()};
    }
    QPoint at = ground_.mapToGlobal(QPoint());
    for (const Control* holder = &control; holder != nullptr; holder = holder->Container) {
      at += qt::fncPlace(*holder).topLeft();
    }
    return {at, qt::fncPlace(control).size()};
  }

  /// Whether a place on the screen lies within all that holds a control.
  bool fncShows(const Control& control, QPoint global) const {
    const bool blnTool = control.Kind == ControlKind::ToolButton;
    const QWidget* holder = blnTool ? fncWidget(control) : &ground_;
    while (holder != nullptr && holder->isVisible() &&
           holder->rect().contains(holder->mapFromGlobal(global))) {
      holder = holder->parentWidget();
    }
    return holder == nullptr;
  }

  void ClickAt(const std::string& what, const Control* under, QPoint global,
               Qt::MouseButton button = Qt::LeftButton) {
    Begin();
    prcPoint(top_, global);
    strTold.clear();
    Click(button);
    prcFault(QApplication::activePopupWidget() != nullptr, what + ": the toolkit's own menu");
    const bool blnTaken = under != nullptr && fncTakesFocus(*under) && button <= Qt::MiddleButton;
    Expect(what, fncClicked(nullptr, under, button), blnTaken ? under : nullptr);
  }

  /// Presses at the corners and the middle, and where it must, all over, until one place is found
  /// where the control lies uppermost; there all the rest.
  void SweepPlaces(Control& control) {
    const std::string name = fncName(control);
    const bool blnTool = control.Kind == ControlKind::ToolButton;
    const QRect room = fncRoom(control).adjusted(1, 1, -1, -1);
    std::vector<QPoint> places{room.center(), room.topLeft(), room.topRight(), room.bottomLeft(),
                               room.bottomRight()};
    for (int step = 0; fncSeen(control) && step < 81; ++step) {
      places.push_back(room.topLeft() + QPoint((room.width() - 1) * (step / 9) / 8,
                                               (room.height() - 1) * (step % 9) / 8));
    }
    bool blnFound = false;
    for (std::size_t n = 0; n < (blnFound ? 5 : places.size()); ++n) {
      const QPoint at = places[n];
      if (!fncShows(control, at)) {
        continue;
      }
      Control* under = blnTool ? &control : fncUnder(window_, nullptr, ground_.mapFromGlobal(at));
      ClickAt(name + " pressed", under, at);
      if (under == &control && !std::exchange(blnFound, true)) {
        SweepPlace(control, name, at);
      }
    }
    prcFault(!blnFound && fncOpen(control), name + " is out of the mouse's reach");
  }

  void SweepPlace(Control& control, const std::string& name, QPoint at) {
    for (const Qt::MouseButton button :
         {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
      ClickAt(name + " by button " + std::to_string(button), &control, at, button);
    }
    Hover(control, name, at);
    Begin();
    Click();
    Click(Qt::LeftButton, true);
    const Lines once = fncClicked(nullptr, &control), again = fncClicked(&control, &control);
    Lines twice = once;
    twice.insert(twice.end(), again.begin(), again.end());
    prcExpect(name + " double clicked", twice);
    for (const bool blnBack : {true, false}) {
      Begin();
      prcPress(top_, Qt::LeftButton);
      prcPoint(top_, top_.mapToGlobal(QPoint(-40, -40)));
      prcPoint(top_, blnBack ? at : top_.mapToGlobal(QPoint(-40, -40)));
      prcLift(top_, Qt::LeftButton);
      std::erase(strTold, name + " move");
      prcExpect(name + (blnBack ? " dragged about" : " dragged away"),
                blnBack ? once : fncClicked(nullptr, &control, Qt::LeftButton, false));
    }
    Begin();
    prcPoint(top_, at);
    strTold.clear();
    prcPress(top_, Qt::LeftButton);
    Click(Qt::RightButton);
    prcLift(top_, Qt::LeftButton);
    prcExpect(name + " with a second button", once);
    Begin();
    prcTurnWheel(top_, 1);
    prcExpect(name + " under the wheel", {});
    Refuse(control, name, at);
  }

  /// A box of the window other than this control.
  Control* fncTyped(const Control& control) const {
    const auto found = std::ranges::find_if(window_.Controls, [&](const Control* box) {
      return box != &control && box->Kind == ControlKind::MaskedEdit && fncOpen(*box);
    });
    return found != window_.Controls.end() ? *found : nullptr;
  }

  void Hover(const Control& control, const std::string& name, QPoint at) {
    Begin();
    prcPoint(top_, top_.mapToGlobal(QPoint(-1, -1)));
    prcPoint(top_, at);
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
    prcExpectText(name + "'s tip", QToolTip::isVisible() ? fncTold(QToolTip::text()) : "",
                  control.ToolTip);
    QToolTip::hideText();
    user::Wait(400);
  }

  /// Presses while a box of the window refuses to let the focus go, its message answered by key or
  /// by mouse while the button is down; then a click that nothing refuses.
  void Refuse(Control& control, const std::string& name, QPoint at) {
    Control* const typed = fncTyped(control);
    if (typed == nullptr || !fncUsable(control)) {
      return;
    }
    Control& box = *typed;
    const ControlEvents* was = std::exchange(box.On, &evtRefuses);
    for (const bool blnByMouse : {false, true}) {
      Begin(&box);
      const std::string text = box.Text;
      if (blnByMouse) {
        user::Answer(platform::Answer::Ok);
      }
      user::WhileModal([&] {
        prcTypeCharacter('7');
        if (blnByMouse) {
          prcLift(top_, Qt::LeftButton);
        }
      });
      prcPress(top_, Qt::LeftButton);
      prcExpectText(fncName(box) + " below its message", box.Text, text);
      prcPoint(top_, at);
      if (!blnByMouse) {
        prcLift(top_, Qt::LeftButton);
      }
      std::erase(strTold, name + " move");
      Expect(name + " refused", {fncName(box) + " check"}, &box);
      prcTypeCharacter('7');
      prcExpectText(fncName(box) + " typed over", box.Text, "7");
    }
    Begin(&box);
    QAccessible::queryAccessibleInterface(fncWidget(control))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    user::Wait(200);
    std::erase(strTold, fncName(box) + " check");
    Expect(name + " refused to an assistive tool", {}, &box);
    box.On = was;
    ClickAt(name + " behind a refusal", &control, at);
  }

  /// What a screen reader finds at all that shows, each by a name of its own.
  void SweepNames() const {
    std::set<QString> names;
    for (const Control* control : window_.Controls) {
      QWidget* widget = fncWidget(*control);
      // Tool buttons may have no room on a narrow screen; the menus have them all.
      if (widget == nullptr || !fncSeen(*control) ||
          (control->Kind == ControlKind::ToolButton && !widget->isVisible())) {
        continue;
      }
      QAccessibleInterface* found = QAccessible::queryAccessibleInterface(widget);
      const QString name = found->text(QAccessible::Name);
      const bool blnUsed = control->On->Click != nullptr || fncTakesFocus(*control);
      const bool blnShows =
          control->Kind == ControlKind::MaskedEdit || control->Kind == ControlKind::Label;
      const QString value = QString::fromStdString(control->Text).simplified();
      prcFault(name.isEmpty() != found->state().invisible ||
                   (blnUsed && !names.insert(name).second) ||
                   found->role() == QAccessible::NoRole || found->role() == QAccessible::Client ||
                   (control->Enabled && found->state().focusable != fncTakesFocus(*control)) ||
                   (blnShows && !found->text(QAccessible::Value).endsWith(value)),
               fncName(*control) + " is not read out as it should");
    }
  }

  /// What an assistive tool can do at a control.
  void SweepEar(Control& control, bool blnThere) {
    const std::string name = fncName(control);
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(fncWidget(control));
    QAccessibleActionInterface* acts = found->actionInterface();
    const QStringList names = acts != nullptr ? acts->actionNames() : QStringList();
    prcFault(blnThere && control.On->Click != nullptr && names.isEmpty(),
             name + " is out of a screen reader's reach");
    Control* const from = blnThere ? fncTyped(control) : nullptr;
    for (const QString& act : names) {
      Begin(from);
      acts->doAction(act);
      user::Wait(200);
      const bool blnFocus = act == QAccessibleActionInterface::setFocusAction();
      const std::string what = name + " at an assistive " + act.toStdString();
      prcExpect(what, !blnThere  ? Lines()
                      : blnFocus ? fncReached(from, control)
                                 : fncClicked(from, &control));
      const Control* focus = blnThere && fncTakesFocus(control) ? &control : from;
      prcFault(window_.ActiveControl != focus, what + ": the focus is elsewhere");
      prcFault(user::Seen(control).Value != control.Value, what + ": it shows another state");
    }
  }

  void SweepEntry(Control& entry) {
    const std::string name = fncName(entry);
    Begin();
    bool blnReached = true;
    try {
      user::Click(entry);
    } catch (const std::logic_error&) {
      blnReached = false;
    }
    std::erase_if(strTold, [](const std::string& line) { return line.ends_with(" move"); });
    prcExpect(name + " chosen", fncClicked(nullptr, fncOpen(entry) ? &entry : nullptr));
    prcFault(blnReached != fncOpen(entry), name + (blnReached ? " is there" : " is out of reach"));
    if (QApplication::activePopupWidget() != nullptr) {  // One press beside a menu only closes it.
      prcPoint(top_, top_.mapToGlobal(top_.rect().center()));
      strTold.clear();
      Click();
      prcExpect("beside the menu of " + name, {});
    }
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    }
  }

  void Key(Control* from, Qt::Key key, Qt::KeyboardModifiers modifiers, Lines want,
           const Control* focus) {
    Begin(from);
    const bool blnPrints = key == Qt::Key_Space;
    const bool blnTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    Lines heard;
    if (window_.On->KeyDown != nullptr) {
      heard.push_back(window_.Name + std::string(" keydown"));
    }
    if (window_.On->KeyPress != nullptr && blnPrints) {
      heard.push_back(window_.Name + std::string(" keypress"));
    }
    want.insert(blnTab ? want.end() : want.begin(), heard.begin(), heard.end());
    prcKey(key, modifiers, blnPrints ? QStringLiteral(" ") : QString());
    Expect((from != nullptr ? fncName(*from) : window_.Name) + " at key " +
               QKeySequence(key | modifiers).toString().toStdString(),
           want, focus);
  }

  void SweepKeys() {
    std::vector<Control*> stops;
    std::ranges::copy_if(window_.Controls, std::back_inserter(stops), fncStop);
    for (std::size_t n = 0; n < stops.size(); ++n) {
      Control& stop = *stops[n];
      const Control& next = *stops[(n + 1) % stops.size()];
      const Control& before = *stops[(n + stops.size() - 1) % stops.size()];
      Key(&stop, Qt::Key_Tab, {}, fncReached(&stop, next), &next);
      Key(&stop, Qt::Key_Backtab, Qt::ShiftModifier, fncReached(&stop, before), &before);
      const bool blnEnters = stop.Kind == ControlKind::Button ||
                             stop.Kind == ControlKind::Picture || stop.Kind == ControlKind::Chart;
      const bool blnSpaces =
          blnEnters || stop.Kind == ControlKind::CheckBox || stop.Kind == ControlKind::OptionButton;
      Answer(stop, Qt::Key_Space, blnSpaces ? &stop : nullptr);
      Answer(stop, Qt::Key_Return, blnEnters ? &stop : fncAnswering(&Control::Default));
      Answer(stop, Qt::Key_Escape, fncAnswering(&Control::CancelButton));
      if (stop.Kind == ControlKind::MaskedEdit) {
        SweepTyping(stop);
      }
    }
    std::map<char, Control*> before;  // The control with the same key that comes before.
    for (Control* control : window_.Controls) {
      if (control->AccessKey != 0 && fncStop(control)) {
        Control*& from = before[control->AccessKey];
        const bool blnButton = control->Kind == ControlKind::Button;
        Key(from, static_cast<Qt::Key>(control->AccessKey), Qt::AltModifier,
            blnButton ? fncClicked(from, control) : fncReached(from, *control), control);
        from = control;
      }
    }
  }

  Control* fncAnswering(bool Control::*which) const {
    const auto found = std::ranges::find_if(
        window_.Controls, [&](const Control* c) { return c->*which && fncOpen(*c); });
    return found != window_.Controls.end() ? *found : nullptr;
  }

  void Answer(Control& stop, Qt::Key key, Control* pressed) {
    Key(&stop, key, {}, fncClicked(&stop, pressed), pressed != nullptr ? pressed : &stop);
  }

  void SweepTyping(Control& box) {
    Begin();
    box.Text.clear();
    fncSetFocus(box);
    user::Settle();
    std::ranges::for_each(std::string("x7 "), prcTypeCharacter);
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
    prcFault(drop.isAccepted(), fncName(box) + " takes what is dropped");
  }

  Window& window_;
  QWidget& ground_;
  QWidget& top_;
};

void prcSweep(const std::string& state) {
  strState = state;
  const QWidget* modal = QApplication::activeModalWidget();
  prcWithTellers([modal] {
    for (Window* window : fncWindows()) {
      const QWidget* shell = fncView(*window).Shell;
      if (shell->isVisible()) {
        modal == nullptr || shell == modal ? Sweep(*window).Run() : Sweep(*window).RunBelow();
      }
    }
  });
}

using SweepTest = Game;

TEST_F(SweepTest, TableAndItsHands) {
  Setting("Misc", "Nerodik", "0");
  Start();
  prcSweep("start screen");
  prcTypeCharacter('s');
  user::Wait(50);
  ShowNoCardsSlowly();
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

TEST_F(SweepTest, WindowsOfTheEvening) {
  Start();
  Shuffle();
  Bet(betBanker, 0, "5");
  Deal(3);
  prcKey(Qt::Key_F8);
  prcKey(Qt::Key_F9);
  user::Wait(1000);
  prcSweep("the evening");
}

TEST_F(SweepTest, DialogsAndTheOtherToolbar) {
  Start();
  for (const auto& [state, entry] :
       {std::pair{"statistics", &MDIForm1.mnuStatistics}, std::pair{"About", &MDIForm1.mnuAbout}}) {
    user::WhileModal([state = state] { prcSweep(state); });
    user::Click(*entry);
  }
  user::Click(MDIForm1.mnuLargeButtons);
  prcSweep("the other toolbar");
}

}  // namespace
