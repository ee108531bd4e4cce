#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <cmath>
#include <deque>
#include <stdexcept>

#include "judges/Adapter.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/windows/Fitting.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Sync.h"
#include "tests/qt/stage/Clock.h"
#include "tests/qt/stage/Stage.h"

// The hand: mouse and keys, given to the toolkit as its window system does, at places on the screen
// that are found by where things are drawn. What is open is answered while it is open.

namespace stage {

namespace {

struct Hand {
  Control* Held = nullptr;
  QPointer<QWindow> On;     ///< Where the pointer was last, and its place.
  int Stamp = 0;            ///< Each press long after the last: no two make a double click.
  bool blnPainted = false;  ///< A card has been painted while the event was delivered.
  std::deque<std::function<void()>> Modal;
  std::deque<platform::Answer> Answers;
  std::vector<user::Box> Boxes;
  std::vector<QWidget*> Served;  ///< What is open and has been looked at, innermost last.
};
Hand hand;
QPoint pntPointer;  // The pointer stays where it is from test to test.

[[noreturn]] void prcOutOfReach(const std::string& what) {
  throw std::logic_error("the user cannot reach " + what);
}

QWindow& fncNative(const QWidget& widget) { return *widget.window()->windowHandle(); }

/// Watches for a card that is painted while this lives.
struct Paints : QObject {
  Paints() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(object);
    const auto* view = event->type() == QEvent::Paint ? qt::fncControlViewOf(widget) : nullptr;
    blnAny = blnAny || (view != nullptr && view->Drawn.Dress == Look::Card);
    return false;
  }
  bool blnAny = false;
};

void prcMouse(QWindow& window, QEvent::Type type, QPoint global,
              Qt::MouseButton button = Qt::NoButton, bool blnSoon = false) {
  Qt::MouseButtons down = QGuiApplication::mouseButtons();
  down.setFlag(button, type == QEvent::MouseButtonPress);
  hand.Stamp += type == QEvent::MouseButtonPress && !blnSoon ? 1000 : 1;
  hand.On = &window;
  pntPointer = global;
  Paints paints;
  qt_handleMouseEvent(&window, window.mapFromGlobal(QPointF(global)), global, down, button, type,
                      {}, hand.Stamp);
  hand.blnPainted = paints.blnAny;
  prcFlush();
}

void prcClickAt(const QWidget& window, QPoint global, Qt::MouseButton button = Qt::LeftButton) {
  prcPoint(window, global);
  prcPress(window, button);
  prcLift(window, button);
}

/// A button that is still down comes up where the pointer is, before what is next is looked for.
void prcLetGo() {
  if (QGuiApplication::mouseButtons() != Qt::NoButton && hand.On != nullptr) {
    prcMouse(*hand.On, QEvent::MouseButtonRelease, pntPointer, Qt::LeftButton);
  }
  hand.Held = nullptr;
  user::Settle();
}

/// The widget of a control that the user can get at, with no button down.
QWidget& fncAtHand(const Control& control) {
  prcLetGo();
  QWidget* widget = fncWidget(control);
  const QWidget* popup = QApplication::activePopupWidget();
  const QWidget* modal = popup != nullptr ? popup : QApplication::activeModalWidget();
  if (widget == nullptr || !widget->isVisible() || !widget->isEnabled() ||
      (modal != nullptr && widget->window() != modal)) {
    prcOutOfReach(control.Name);
  }
  return *widget;
}

/// A place on the screen, in twips from the corner of a control.
QPoint fncPlace(const Control& control, float x, float y) {
  const double pixels = qt::fncScale() / 15;
  return fncWidget(control)->mapToGlobal(QPoint(static_cast<int>(std::floor(double{x} * pixels)),
                                                static_cast<int>(std::floor(double{y} * pixels))));
}

/// On the screen the middle of a control, or where that is covered, another place to get at it.
QPoint fncMiddle(const Control& control) {
  const QWidget& widget = fncAtHand(control);
  const auto at = fncFirst(widget.rect(), [&](QPoint place) { return fncOver(widget, place); });
  return at ? widget.mapToGlobal(*at) : (prcOutOfReach(control.Name), QPoint());
}

/// Opens the menus that hold an entry and clicks it.
void prcClickEntry(const Control& entry) {
  auto* frame = qobject_cast<QMainWindow*>(fncView(*entry.Form).Shell);
  QWidget* holder = frame->menuBar();
  if (entry.Container != nullptr) {
    prcClickEntry(*entry.Container);
    holder = fncAction(*entry.Container)->menu();
  }
  QAction* action = fncAction(entry);
  if (action == nullptr || !action->isVisible() || !action->isEnabled() || !holder->isVisible() ||
      QApplication::activeModalWidget() != nullptr) {
    prcOutOfReach(entry.Name);
  }
  auto* menu = qobject_cast<QMenu*>(holder);
  const QRect place =
      menu != nullptr ? menu->actionGeometry(action) : frame->menuBar()->actionGeometry(action);
  prcClickAt(*holder, holder->mapToGlobal(place.center()));
}

}  // namespace

std::optional<QPoint> fncFirst(const QRect& area, const std::function<bool(QPoint)>& holds) {
  constexpr int intRaster = 24;
  QPoint at = area.center();
  for (int step = 0; !holds(at); ++step) {
    if (step == intRaster * intRaster) {
      return std::nullopt;
    }
    at = area.topLeft() + QPoint(area.width() * (2 * (step % intRaster) + 1) / (2 * intRaster),
                                 area.height() * (2 * (step / intRaster) + 1) / (2 * intRaster));
  }
  return at;
}

bool fncOver(const QWidget& widget, QPoint at) {
  const QWidget* top = widget.window();
  const QWidget* under = top->childAt(widget.mapTo(top, at));
  return under != nullptr ? under == &widget || widget.isAncestorOf(under)
                          : top == &widget && widget.rect().contains(at);
}

void prcPoint(const QWidget& window, QPoint global) {
  // A pointer that comes to where it is already moves nothing: it goes a little aside.
  prcMouse(fncNative(window), QEvent::MouseMove, global - QPoint(global == pntPointer ? 1 : 0, 0));
}

void prcPress(const QWidget& window, Qt::MouseButton button, bool blnSoon) {
  prcMouse(fncNative(window), QEvent::MouseButtonPress, pntPointer, button, blnSoon);
}

void prcLift(const QWidget& window, Qt::MouseButton button) {
  prcMouse(fncNative(window), QEvent::MouseButtonRelease, pntPointer, button);
}

void prcTurnWheel(const QWidget& window, int notches) {
  QWindow& native = fncNative(window);
  const QPoint turned(0, notches * QWheelEvent::DefaultDeltasPerStep);
  QWheelEvent wheel(native.mapFromGlobal(pntPointer), pntPointer, {}, turned, {}, {},
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&native, &wheel);
  prcFlush();
}

void prcKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) {
    throw std::logic_error("no window has the keyboard");
  }
  qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text, false, 1);
  prcFlush();
  if (QGuiApplication::focusWindow() == window) {
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text, false, 1);
    prcFlush();
  }
}

void prcTypeCharacter(char typed) {
  prcKey(static_cast<Qt::Key>(std::toupper(static_cast<unsigned char>(typed))),
         std::isupper(static_cast<unsigned char>(typed)) != 0 ? Qt::ShiftModifier : Qt::NoModifier,
         QString(QLatin1Char(typed)));
}

namespace {

void prcRead(const QMessageBox& box) {
  using enum platform::Icon;
  constexpr std::array icons{None, Information, Exclamation, Stop};  // In the toolkit's order.
  const bool blnCancel = box.standardButtons().testFlag(QMessageBox::Cancel);
  const bool blnStandard =
      box.defaultButton() != nullptr && box.defaultButton() == box.button(QMessageBox::Cancel);
  hand.Boxes.push_back({fncTold(box.text()), box.windowTitle().toStdString(), icons.at(box.icon()),
                        blnCancel ? platform::Buttons::OkCancel : platform::Buttons::Ok,
                        blnStandard ? platform::Answer::Cancel : platform::Answer::Ok});
}

void prcAnswer(QMessageBox& box) {
  if (hand.Answers.empty()) {
    return prcKey(Qt::Key_Return);
  }
  const platform::Answer answer = hand.Answers.front();
  hand.Answers.pop_front();
  if (answer == platform::Answer::Cancel) {
    prcKey(Qt::Key_Escape);
  } else {
    const QWidget& ok = *box.button(QMessageBox::Ok);
    prcClickAt(ok, ok.mapToGlobal(ok.rect().center()));
  }
}

/// Serves a message box or modal window that has come up: the script first, then the answer.
bool fncServeModal() {
  QWidget* open = QApplication::activeModalWidget();
  if (open == nullptr || qt::fncEnded() ||
      std::ranges::find(hand.Served, open) != hand.Served.end()) {
    return false;
  }
  prcFlush();
  hand.Served.push_back(open);
  const QPointer<QWidget> still(open);
  auto* box = qobject_cast<QMessageBox*>(open);
  if (box != nullptr) {
    prcRead(*box);
  }
  if (!hand.Modal.empty()) {
    const std::function<void()> act = std::move(hand.Modal.front());
    hand.Modal.pop_front();
    qt::prcServe(act);
  }
  if (still != nullptr && still->isVisible() && !qt::fncEnded()) {
    box != nullptr ? prcAnswer(*box) : static_cast<void>(fncNative(*open).close());
  }
  std::erase(hand.Served, open);
  return true;
}

}  // namespace

}  // namespace stage

namespace user {

using namespace stage;

void Reset(const std::string& folder) {
  prcLetGo();
  qt::prcForgetEnd();
  hand = Hand{};
  if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
    popup->close();
  }
  while (!fncWindows().empty()) {
    prcForgetWindow(*fncWindows().back());
  }
  qt::prcSyncAll();
  qt::prcFitToScreen();
  qt::prcSizeFaces();
  prcResetClock();
  prcWhenIdle(fncServeModal);
  prcFlush();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  headless::ResetMachine(folder);
  prcSetCurrency(CurrencyStyle{});
}

void Run(bool (*start)()) {
  bool blnStarted = false;
  qt::prcServe([&] { blnStarted = start(); });
  if (!blnStarted) {
    qt::prcNoteEnd();
  }
  Settle();
}

void Wait(std::uint32_t milliseconds) {
  bool blnOver = false;
  After(milliseconds, [&] { blnOver = true; });
  try {
    Settle();
    qt::prcServeUntil([&] { return blnOver; });
    platform::DoEvents();
  } catch (const EndOfProgram&) {
    return;
  }
}

void Settle() {
  qt::fncEnded() ? qt::prcClearScreen() : qt::prcSyncAll();
  prcFlush();
}

bool Press(Control& control, float x, float y, int button) {
  const QWidget& widget = fncAtHand(control);
  const QPoint at = fncPlace(control, x, y);
  if (!fncOver(widget, widget.mapFromGlobal(at))) {
    prcOutOfReach(control.Name);
  }
  hand.Held = &control;
  prcPoint(widget, at);
  prcPress(widget, Qt::MouseButton(button));
  return !Ended();
}

void Drag(Control& control, float x, float y) {
  Settle();
  if (hand.Held != &control) {
    const QPoint at = fncMiddle(control);
    hand.Held = &control;
    prcPoint(*fncWidget(control), at);
    prcPress(*fncWidget(control), Qt::LeftButton);
  }
  prcPoint(*fncWidget(control), fncPlace(control, x, y));
}

void Release(Control& control, float x, float y, int button) {
  hand.Held = nullptr;
  prcMouse(fncNative(*fncWidget(control)), QEvent::MouseButtonRelease, fncPlace(control, x, y),
           Qt::MouseButton(button));
}

bool Click(Control& control, int button) {
  if (control.Kind == ControlKind::MenuEntry) {
    prcLetGo();
    prcClickEntry(control);
    return true;
  }
  const QPoint at = fncMiddle(control);
  prcClickAt(*fncWidget(control), at, Qt::MouseButton(button));
  return true;
}

void Hover(Control& control) {
  const QPoint at = fncMiddle(control);
  prcPoint(*fncWidget(control), at);
}

void Hover(Window& window) {
  prcLetGo();
  const QWidget& ground = *fncView(window).Ground;
  prcPoint(ground, ground.mapToGlobal(QPoint(ground.width() - 2, ground.height() - 2)));
}

bool Type(Control& box, const std::string& text) {
  Click(box);
  if (QApplication::focusWidget() != fncWidget(box)) {
    return false;
  }
  prcKey(Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) {
    prcKey(Qt::Key_Delete);
  }
  std::ranges::for_each(text, prcTypeCharacter);
  return true;
}

void Key(Window& window, const std::string& key, int shift) {
  Settle();
  // The keyboard goes to where it is; that this is the window meant is asked of the screen.
  const qt::WindowView* input = qt::fncWindowViewOf(QApplication::focusWidget());
  if (input == nullptr || (input->Source != &window && input->Source->Kind != WindowKind::Frame)) {
    throw std::logic_error(std::string("the keyboard is at ") +
                           (input == nullptr ? "nothing" : input->Source->Name));
  }
  if (key.size() == 1) {
    return prcTypeCharacter(key.front());
  }
  // The toolkit has the three in the same order.
  const auto modifiers = Qt::KeyboardModifiers::fromInt(static_cast<unsigned>(shift) << 25);
  prcKey(QKeySequence(QString::fromStdString(key))[0].key(), modifiers);
}

bool Tab(Window& window) {
  Key(window, "Tab");
  return true;
}

void Close(Window& window) {
  Settle();
  const qt::WindowView& view = fncView(window);
  if (window.Kind == WindowKind::Child) {
    prcKey(Qt::Key_F4, Qt::ControlModifier);  // No child has a close box.
  } else {
    fncNative(*view.Shell).close();
    prcFlush();
  }
}

void Activate(Window& window) {
  Settle();
  QWidget& shell = *fncView(window).Shell;
  if (shell.isWindow()) {
    fncNative(shell).requestActivate();
    prcFlush();
    return;
  }
  for (std::size_t step = 0; step < fncWindows().size() && qt::fncActiveWindow() != &window;
       ++step) {
    prcKey(Qt::Key_F6, Qt::ControlModifier);
  }
}

void Resize(Window& window, double width) {
  Settle();
  QWindow& native = fncNative(*fncView(window).Shell);
  const double height = window.Height;
  native.setWindowStates(Qt::WindowNoState);
  prcFlush();
  for (double scale = 1, drawn = 0; scale != drawn; scale = qt::fncScale()) {
    drawn = scale;  // At that size the program may be drawn at another one.
    native.setGeometry(0, 0, static_cast<int>(width / 15 * scale),
                       static_cast<int>(height / 15 * scale));
    prcFlush();
  }
}

void WhileModal(std::function<void()> act) { hand.Modal.push_back(std::move(act)); }
void Answer(platform::Answer answer) { hand.Answers.push_back(answer); }
const std::vector<Box>& Boxes() { return hand.Boxes; }
void ForgetBoxes() { hand.Boxes.clear(); }
bool Ended() { return qt::fncEnded(); }
bool PaintedAtOnce() { return hand.blnPainted; }

}  // namespace user
