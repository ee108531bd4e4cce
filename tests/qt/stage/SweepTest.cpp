#include <QAccessible>
#include <QToolTip>
#include <deque>
#include <map>
#include <set>

#include "judges/UserEvents.h"
#include "platform/UserInput.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/views/Captions.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// Every control of every window in each of its states, by every way in. Whatever the user's hand
// does, the model is told of too, by the one road in: the same must come of both. Handlers that
// only tell stand in for the game's, so that the state stays.

namespace {

using namespace stage;
using Lines = std::vector<std::string>;
using Act = std::function<void()>;

Lines strTold;

// Who tells.

std::string fncName(const Control& control) {
  return control.Form->Name + std::string(".") + qt::fncObjectName(control).toStdString();
}

void prcTell(const std::string& who, const std::string& what) {
  strTold.push_back(who + ' ' + what);
}

const ControlEvents evtTells{
    .Click = [](Control& c) { prcTell(fncName(c), "click"); },
    .MouseDown = [](Control& c, const Mouse&) { prcTell(fncName(c), "down"); },
    .MouseMove = [](Control& c, const Mouse&) { prcTell(fncName(c), "move"); },
    .MouseUp = [](Control& c, const Mouse&) { prcTell(fncName(c), "up"); },
    .GotFocus = [](Control& c) { prcTell(fncName(c), "got"); },
    .LostFocus = [](Control& c) { prcTell(fncName(c), "lost"); },
    .Validate = [](Control& c, bool&) { prcTell(fncName(c), "check"); }};
const WindowEvents evtWindowTells{
    .KeyDown = [](Window& w, const std::string&, int) { prcTell(w.Name, "keydown"); }};
const ControlEvents evtRefuses{.Validate = [](Control& c, bool& blnCancel) {
  prcTell(fncName(c), "check");
  platform::MsgBox("no");
  blnCancel = true;
}};

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
  return fncLies(control) && control.Style != ButtonStyle::Separator &&
         (control.On->Click != nullptr || control.On->MouseMove != nullptr ||
          !control.ToolTip.empty() || fncStop(&control));
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

/// What the model hears of a click with so many moves in it, or of a press that ends outside.
Act fncClick(Control* control, Qt::MouseButton button = Qt::LeftButton, int moves = 0,
             bool blnInside = true) {
  return [=, mouse = Mouse{static_cast<int>(button)}] {
    if (control != nullptr && button <= Qt::MiddleButton && fncUserPress(*control, mouse)) {
      for (int move = 0; move < moves; ++move) {
        prcUserMove(*control, mouse);
      }
      prcUserRelease(*control, mouse, blnInside);
    }
  };
}

const Act actNothing = [] {};

/// One window, swept while it has the input, or while it lies below a dialog: then nothing answers.
class Sweep {
 public:
  Sweep(Window& window, bool blnBelow) : window_(window), blnBelow_(blnBelow) {}

  void Run() {
    if (!blnBelow_) {
      user::Activate(window_);
      SweepNames();
      SweepKeys();
    }
    for (Control* control : window_.Controls) {
      if (fncOfInterest(*control) && fncWidget(*control) != nullptr) {
        SweepPlaces(*control);
        SweepEar(*control);
      } else if (control->Kind == ControlKind::MenuEntry && !blnBelow_) {
        control->Container == nullptr ? SweepTitle(*control) : SweepEntry(*control);
      }
    }
  }

 private:
  void Begin(Control* focus) {
    window_.ActiveControl = focus;
    user::Settle();
    strTold.clear();
  }

  /// What has been told, and where that has left the focus.
  Lines Told() const {
    const Control* focus = window_.ActiveControl;
    prcTell("the focus is at", focus != nullptr ? fncName(*focus) + " " + focus->Text : "none");
    return std::exchange(strTold, {});
  }

  /// The same comes of what the hand does as of what the model is told, from the same focus, and
  /// the keyboard is where the model says.
  void Compare(const std::string& what, Control* from, const Act& model, const Act& hand) {
    Begin(from);
    model();
    const Lines want = Told();
    Begin(from);
    hand();
    EXPECT_EQ(Told(), want) << what;
    const Control* focus = window_.ActiveControl;
    EXPECT_TRUE(window_.Kind == WindowKind::Frame || blnBelow_ ||
                QApplication::focusWidget() == (focus != nullptr ? fncWidget(*focus) : &ground_))
        << what << ": the keyboard is elsewhere";
  }

  void Click(Qt::MouseButton button = Qt::LeftButton, bool blnSoon = false) {
    prcPress(top_, button, blnSoon);
    prcLift(top_, button);
  }

  void ClickAt(const std::string& what, Control* under, QPoint global,
               Qt::MouseButton button = Qt::LeftButton) {
    Compare(what, nullptr, fncClick(under, button), [&] {
      prcPoint(top_, global);
      strTold.clear();
      Click(button);
    });
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << what << ": the toolkit's own menu";
  }

  /// Presses at the corners and the middle, and where the control lies uppermost all the rest.
  void SweepPlaces(Control& control) {
    const std::string name = fncName(control);
    const QWidget& widget = *fncWidget(control);
    const bool blnTool = control.Kind == ControlKind::ToolButton;  // Its bar gives it a place.
    EXPECT_TRUE(blnTool || widget.geometry() == qt::fncPlace(control)) << name << " lies elsewhere";
    EXPECT_FALSE(widget.acceptDrops()) << name << " takes what is dropped";
    const QRect place = QRect(widget.mapToGlobal(QPoint()), widget.size()).adjusted(1, 1, -1, -1);
    const QWidget& room = blnTool ? widget : ground_;
    const auto shows = [&](QPoint at) { return fncOver(room, room.mapFromGlobal(at)); };
    const auto under = [&](QPoint at) {
      return blnTool ? &control : fncUnder(window_, nullptr, room.mapFromGlobal(at));
    };
    for (const QPoint at : {place.center(), place.topLeft(), place.topRight(), place.bottomLeft(),
                            place.bottomRight()}) {
      if (shows(at)) {
        ClickAt(name + " pressed", blnBelow_ ? nullptr : under(at), at);
      }
    }
    if (blnBelow_ || !fncSeen(control)) {
      return;
    }
    const std::optional<QPoint> at =
        fncFirst(place, [&](QPoint spot) { return shows(spot) && under(spot) == &control; });
    EXPECT_TRUE(at || !fncOpen(control)) << name << " is out of the mouse's reach";
    if (at) {
      SweepPlace(control, name, *at);
    }
  }

  void SweepPlace(Control& control, const std::string& name, QPoint at) {
    for (const Qt::MouseButton button :
         {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton}) {
      ClickAt(name + " by button " + std::to_string(button), &control, at, button);
    }
    Hover(control, name, at);
    const Act click = fncClick(&control), reach = [&] { fncUserReach(control); };
    Compare(name + " clicked", nullptr, click, [&] { Click(); });
    Compare(name + " clicked again at once", fncTakesFocus(control) ? &control : nullptr, click,
            [&] { Click(Qt::LeftButton, true); });
    const QPoint away = top_.mapToGlobal(QPoint(-40, -40));
    for (const QPoint end : {away - QPoint(1, 1), at}) {
      const bool blnClicks = end == at && control.Dress != Look::Card;
      const Act drag = fncClick(&control, Qt::LeftButton, 2, blnClicks);
      Compare(name + (end == at ? " dragged about" : " dragged away"), nullptr, drag, [&] {
        prcPoint(top_, at);
        strTold.clear();
        prcPress(top_, Qt::LeftButton);
        prcPoint(top_, away);
        prcPoint(top_, end);
        prcLift(top_, Qt::LeftButton);
      });
    }
    Compare(name + " with a second button", nullptr, click, [&] {
      prcPress(top_, Qt::LeftButton);
      Click(Qt::RightButton);
      prcLift(top_, Qt::LeftButton);
    });
    const bool blnTurns = control.Kind == ControlKind::Slider;
    Compare(name + " under the wheel", nullptr, blnTurns ? reach : actNothing,
            [&] { prcTurnWheel(top_, 1); });
    Refuse(control, name, at);
  }

  /// The first control of the window that can be used and is of some kind; none if there is none.
  Control* fncFirstOpen(const std::function<bool(const Control&)>& holds) const {
    const auto found = std::ranges::find_if(
        window_.Controls, [&](const Control* c) { return fncOpen(*c) && holds(*c); });
    return found != window_.Controls.end() ? *found : nullptr;
  }

  /// A box of the window other than this control.
  Control* fncTyped(const Control& control) const {
    return fncFirstOpen([&](const Control& box) {
      return &box != &control && box.Kind == ControlKind::MaskedEdit;
    });
  }

  void Hover(Control& control, const std::string& name, QPoint at) {
    prcPoint(top_, top_.mapToGlobal(QPoint(-1, -1)));
    const auto move = [&] { fncUsable(control) ? prcUserMove(control, {}) : void(); };
    Compare(name + " under the pointer", nullptr, move, [&] { prcPoint(top_, at); });
    const QCursor shown = top_.windowHandle()->cursor();
    const QCursor meant = !fncUsable(control) ? QCursor(Qt::ArrowCursor)
                          : control.Kind == ControlKind::MaskedEdit
                              ? QCursor(Qt::IBeamCursor)
                              : qt::fncCursor(control.MousePointer);
    EXPECT_TRUE(shown.shape() == meant.shape() && shown.hotSpot() == meant.hotSpot())
        << name << ": another pointer";
    user::Wait(1000);
    EXPECT_EQ(QToolTip::isVisible() ? fncTold(QToolTip::text()) : "", control.ToolTip) << name;
    QToolTip::hideText();
    user::Wait(400);
  }

  /// Presses while a box of the window refuses to let the focus go, its message answered by key or
  /// by mouse while the button is down; then a click that nothing refuses.
  void Refuse(Control& control, const std::string& name, QPoint at) {
    Control* const box = fncTyped(control);
    if (box == nullptr || !fncUsable(control)) {
      return;
    }
    const ControlEvents* was = std::exchange(box->On, &evtRefuses);
    const Act refused = [&] { prcTell(fncName(*box), "check"); };
    for (const bool blnByMouse : {false, true}) {
      Compare(name + " refused", box, refused, [&] {
        blnByMouse ? user::Answer(platform::Answer::Ok) : void();
        user::WhileModal([&] {
          prcTypeCharacter('8');  // Into the message, and not into the box.
          blnByMouse ? prcLift(top_, Qt::LeftButton) : void();
        });
        prcPress(top_, Qt::LeftButton);
        prcPoint(top_, at);
        blnByMouse ? void() : prcLift(top_, Qt::LeftButton);
        std::erase(strTold, name + " move");
      });
      prcTypeCharacter('7');
      EXPECT_EQ(box->Text, "7") << name << ": the box is not typed over";
    }
    Compare(name + " refused to an assistive tool", box, actNothing, [&] {
      QAccessible::queryAccessibleInterface(fncWidget(control))
          ->actionInterface()
          ->doAction(QAccessibleActionInterface::pressAction());
      user::Wait(200);
      std::erase(strTold, fncName(*box) + " check");
    });
    box->On = was;
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
      EXPECT_TRUE(name.isEmpty() == found->state().invisible &&
                  (!blnUsed || names.insert(name).second) && found->role() != QAccessible::NoRole &&
                  found->role() != QAccessible::Client &&
                  (!control->Enabled || found->state().focusable == fncTakesFocus(*control)) &&
                  (!blnShows || found->text(QAccessible::Value).endsWith(value)))
          << fncName(*control) << " is not read out as it should";
    }
  }

  /// What an assistive tool can do at a control.
  void SweepEar(Control& control) {
    const std::string name = fncName(control);
    QAccessibleActionInterface* acts =
        QAccessible::queryAccessibleInterface(fncWidget(control))->actionInterface();
    const QStringList names = acts != nullptr ? acts->actionNames() : QStringList();
    EXPECT_FALSE(fncOpen(control) && control.On->Click != nullptr && names.isEmpty())
        << name << " is out of a screen reader's reach";
    for (const QString& act : names) {
      const bool blnFocus = act == QAccessibleActionInterface::setFocusAction();
      const Act model = blnBelow_  ? actNothing
                        : blnFocus ? Act([&] { fncUserReach(control); })
                                   : fncClick(&control);
      const std::string what = name + " at an assistive " + act.toStdString();
      Compare(what, blnBelow_ ? nullptr : fncTyped(control), model, [&] {
        acts->doAction(act);
        user::Wait(200);
      });
      EXPECT_EQ(user::Seen(control).Value, control.Value) << name << " shows another state";
    }
  }

  void SweepEntry(Control& entry) {
    const Control seen = user::Seen(entry);
    EXPECT_EQ(seen.Visible && seen.Enabled, fncOpen(entry)) << entry.Name;
    if (fncOpen(entry) && entry.On->Click != nullptr) {
      Compare(fncName(entry) + " chosen", nullptr, fncClick(&entry), [&] {
        user::Click(entry);
        std::erase_if(strTold, [](const std::string& line) { return line.ends_with(" move"); });
      });
    }
  }

  /// A letter that a key of the table or another menu has opens no menu.
  static void SweepTitle(const Control& title) {
    const auto key = [](const Control& one) -> char {
      const bool blnTitle = one.Kind == ControlKind::MenuEntry && one.Container == nullptr;
      return blnTitle ? one.Text.at(one.Text.find('&') + 1) : one.AccessKey;
    };
    for (const Window* window : {&BaccTable.Form, title.Form}) {
      for (const Control* other : window->Controls) {
        EXPECT_TRUE(other == &title || std::toupper(key(*other)) != std::toupper(key(title)))
            << title.Text << " and " << other->Text;
      }
    }
  }

  void Key(Control* from, Qt::Key key, Qt::KeyboardModifiers modifiers, const Act& model) {
    const bool blnTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;  // Heard of when it is over.
    const Act heard = [&] {
      blnTab ? model() : void();
      prcTell(window_.Name, "keydown");
      blnTab ? void() : model();
    };
    Compare((from != nullptr ? fncName(*from) : window_.Name) + " at key " +
                QKeySequence(key | modifiers).toString().toStdString(),
            from, heard, [&] { prcKey(key, modifiers); });
  }

  void SweepKeys() {
    std::map<char, Control*> before;  // The control with the same access key that comes before.
    std::vector<Control*> stops;
    std::ranges::copy_if(window_.Controls, std::back_inserter(stops), fncStop);
    for (std::size_t n = 0; n < stops.size(); ++n) {
      Control* const stop = stops[n];
      const auto reach = [&](std::size_t way) {
        return [to = stops[(n + way) % stops.size()]] { fncUserReach(*to); };
      };
      const bool blnButton = stop->Kind == ControlKind::Button;
      const bool blnEnters =
          blnButton || stop->Kind == ControlKind::Picture || stop->Kind == ControlKind::Chart;
      const bool blnSpaces = blnEnters || stop->Kind == ControlKind::CheckBox ||
                             stop->Kind == ControlKind::OptionButton;
      Key(stop, Qt::Key_Tab, {}, reach(1));
      Key(stop, Qt::Key_Backtab, Qt::ShiftModifier, reach(stops.size() - 1));
      Key(stop, Qt::Key_Space, {}, fncClick(blnSpaces ? stop : nullptr));
      Key(stop, Qt::Key_Return, {}, fncClick(blnEnters ? stop : fncFirstOpen(&Control::Default)));
      Key(stop, Qt::Key_Escape, {}, fncClick(fncFirstOpen(&Control::CancelButton)));
      if (stop->AccessKey != 0) {
        Key(std::exchange(before[stop->AccessKey], stop), static_cast<Qt::Key>(stop->AccessKey),
            Qt::AltModifier, blnButton ? fncClick(stop) : reach(0));
      }
    }
  }

  Window& window_;
  bool blnBelow_;
  QWidget& ground_ = *fncView(window_).Ground;
  QWidget& top_ = *ground_.window();
};

/// Sweeps all windows with tellers for the handlers of the game; then everything is as it was.
void prcSweep(const std::string& state) {
  SCOPED_TRACE(state);
  std::deque<ControlEvents> tables;
  std::vector<Act> undo;
  for (Window* window : fncWindows()) {
    undo.push_back([window, on = window->On, focus = window->ActiveControl] {
      window->On = on;
      window->ActiveControl = focus;
    });
    window->On = &evtWindowTells;
    for (Control* control : window->Controls) {
      undo.push_back([control, was = *control] { *control = was; });
      ControlEvents& tells = tables.emplace_back(evtTells);
      // Whether there is a click or a move to hear of makes a control another one on the screen.
      tells.Click = control->On->Click != nullptr ? tells.Click : nullptr;
      tells.MouseMove = control->On->MouseMove != nullptr ? tells.MouseMove : nullptr;
      control->On = &tells;
    }
  }
  user::Settle();
  const QWidget* modal = QApplication::activeModalWidget();
  for (Window* window : fncWindows()) {
    const QWidget* shell = fncView(*window).Shell;
    if (shell->isVisible()) {
      Sweep(*window, modal != nullptr && shell != modal).Run();
    }
  }
  for (const Act& act : undo) {
    act();
  }
  user::Settle();
}

using SweepTest = Game;

TEST_F(SweepTest, TableAndItsHands) {
  Setting("Misc", "Nerodik", "0");
  Start();
  prcSweep("start screen");
  prcTypeCharacter('s');
  user::Wait(50);
  ShowNoCardsSlowly();
  user::Click(MDIForm1.mnuShowCardsDealt);
  user::Click(MDIForm1.mnuShowCardsDealt);
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
  blnLastHand[0] = true;
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
