#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>

#include "platform/Picking.h"
#include "platform/UserInput.h"
#include "platform/qt/input/InputRouter.h"
#include "platform/qt/views/Flip.h"
#include "platform/qt/views/Menus.h"
#include "platform/qt/windows/InFront.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

struct NameRow {
  int Key;
  const char* Name;
};

// Keys whose name in the model is not the toolkit's own.
constexpr NameRow nmeRows[] = {
    {Qt::Key_Return, "Enter"},  {Qt::Key_Enter, "Enter"},       {Qt::Key_Escape, "Escape"},
    {Qt::Key_PageUp, "PageUp"}, {Qt::Key_PageDown, "PageDown"}, {Qt::Key_Backspace, "Backspace"},
    {Qt::Key_Delete, "Delete"},
};

bool fncPrints(const QString& text) {
  return text.size() == 1 && text.at(0).isPrint() && text.at(0).unicode() < 128;
}

/// A key as the model calls it: the character typed, or the name of the key.
std::string fncKeyName(const QKeyEvent& event) {
  if (fncPrints(event.text())) {
    return event.text().toStdString();
  }
  const auto* const row = std::ranges::find(nmeRows, event.key(), &NameRow::Key);
  return row != std::end(nmeRows) ? row->Name : QKeySequence(event.key()).toString().toStdString();
}

/// The bits of the Shift argument.
int fncShift(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? intShiftMask : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? intCtrlMask : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? intAltMask : 0);
}

bool fncModifierAlone(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
         key == Qt::Key_AltGr || key == Qt::Key_Meta || key == Qt::Key_CapsLock || key == 0 ||
         key == Qt::Key_unknown;
}

/// The option before or behind one in its group, round about; none if there is no other.
Control* fncFellow(const Control& option, bool blnBackwards) {
  std::vector<Control*> group;
  for (Control* other : option.Form->Controls) {
    if (other->Kind == ControlKind::OptionButton && other->Container == option.Container &&
        fncTakesFocus(*other)) {
      group.push_back(other);
    }
  }
  const auto at = std::ranges::find(group, &option);
  if (at == group.end() || group.size() < 2) {
    return nullptr;
  }
  const auto place = static_cast<std::size_t>(at - group.begin());
  return group[(place + (blnBackwards ? group.size() - 1 : 1)) % group.size()];
}

/// The button of a window that answers Enter or Escape.
Control* fncAnswering(const Window& window, bool Control::*which) {
  const auto found = std::ranges::find_if(window.Controls, [&](const Control* control) {
    return control->Kind == ControlKind::Button && control->*which && fncSeen(*control) &&
           fncUsable(*control);
  });
  return found == window.Controls.end() ? nullptr : *found;
}

bool fncClickedBySpace(ControlKind kind) {
  return kind == ControlKind::Button || kind == ControlKind::CheckBox ||
         kind == ControlKind::OptionButton || kind == ControlKind::Picture ||
         kind == ControlKind::Chart;
}

bool fncClickedByEnter(ControlKind kind) {
  return kind == ControlKind::Button || kind == ControlKind::Picture || kind == ControlKind::Chart;
}

/// Enter and Escape: the focused button or picture, else the window's own buttons for them.
bool fncAnswerKey(Window& window, Control* focused, int key) {
  Control* answering = nullptr;
  if (key == Qt::Key_Escape) {
    answering = fncAnswering(window, &Control::CancelButton);
  } else {
    answering = focused != nullptr && fncClickedByEnter(focused->Kind)
                    ? focused
                    : fncAnswering(window, &Control::Default);
  }
  if (answering == nullptr) {
    return false;
  }
  prcAct(*answering, prcUserClick);
  return true;
}

/// Where a key moves a scroll bar to; the place it has if the key does not move it.
double fncScrolled(const Control& bar, int key) {
  const bool blnAcross = bar.Kind == ControlKind::HScrollBar;
  if (key == (blnAcross ? Qt::Key_Left : Qt::Key_Up)) {
    return bar.Value - bar.SmallChange;
  }
  if (key == (blnAcross ? Qt::Key_Right : Qt::Key_Down)) {
    return bar.Value + bar.SmallChange;
  }
  if (!blnAcross && (key == Qt::Key_PageUp || key == Qt::Key_PageDown)) {
    return bar.Value + (key == Qt::Key_PageUp ? -bar.LargeChange : bar.LargeChange);
  }
  if (blnAcross && (key == Qt::Key_Home || key == Qt::Key_End)) {
    return key == Qt::Key_Home ? bar.Min : bar.Max;
  }
  return bar.Value;
}

/// In a window without a focused control the arrow keys, Page Up and Down, Home and End move its
/// scroll bars, which take no focus.
bool fncScrollKey(const Window& window, int key) {
  for (Control* bar : window.Controls) {
    const bool blnBar =
        bar->Kind == ControlKind::HScrollBar || bar->Kind == ControlKind::VScrollBar;
    if (blnBar && fncSeen(*bar) && fncUsable(*bar) && fncScrolled(*bar, key) != bar->Value) {
      prcAct(*bar, [key](Control& moved) { prcUserValue(moved, fncScrolled(moved, key)); });
      return true;
    }
  }
  return false;
}

/// The keys that go along a chart.
bool fncPickKey(Control& focused, const QKeyEvent& event) {
  bool blnPicked = false;
  if (focused.Kind == ControlKind::Chart) {
    prcServe([&] { blnPicked = fncUserPickKey(focused, fncKeyName(event)); });
  }
  return blnPicked;
}

/// The control of a window that an access key means: of several the next one behind the focus, else
/// the first; none where none can be used.
Control* fncMeant(const Window& window, int key) {
  Control* first = nullptr;
  bool blnBehind = false;
  for (Control* control : window.Controls) {
    if (control->AccessKey != key || control->Kind == ControlKind::Label || !fncSeen(*control) ||
        !fncUsable(*control)) {
      continue;
    }
    if (blnBehind) {
      return control;
    }
    first = first == nullptr ? control : first;
    blnBehind = control == window.ActiveControl;
  }
  return first;
}

/// Opens the menu of the frame with this key. The toolkit does so by itself where the frame has the
/// input, not where a list of cards has it.
bool fncMenuKey(int key) {
  const WindowView* frame = fncFrameView();
  auto* main = frame != nullptr ? qobject_cast<QMainWindow*>(frame->Shell) : nullptr;
  const QKeySequence keys(static_cast<int>(Qt::ALT) | key);
  for (QAction* menu : main != nullptr ? main->menuBar()->actions() : QList<QAction*>()) {
    if (menu->isVisible() && QKeySequence::mnemonic(menu->text()) == keys) {
      main->activateWindow();
      main->menuBar()->setActiveAction(menu);
      return true;
    }
  }
  return false;
}

/// Alt and a letter or digit: a control of the window that has the input, else of a window in the
/// frame, else a menu. A dialog is alone.
bool fncAccessKey(const Window& window, const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier) {
    return false;
  }
  Control* meant = fncMeant(window, event.key());
  const bool blnAlone = window.Kind == WindowKind::Dialog || window.Kind == WindowKind::Start;
  for (const Window* other : fncWindows()) {
    if (meant == nullptr && !blnAlone && other->Kind == WindowKind::Child) {
      meant = fncMeant(*other, event.key());
    }
  }
  if (meant == nullptr) {
    return window.Kind == WindowKind::Float && (event.isAutoRepeat() || fncMenuKey(event.key()));
  }
  if (!event.isAutoRepeat()) {
    prcAct(*meant, [](Control& control) {
      control.Kind == ControlKind::Button ? prcUserClick(control) : void(fncUserReach(control));
    });
  }
  return true;
}

/// The keys of the frame's menu entries, in a floating window; in the frame the toolkit knows them.
bool fncEntryKey(const Window& window, const QKeyEvent& event) {
  QAction* entry =
      window.Kind == WindowKind::Float ? fncMenuEntryOf(event.key(), event.modifiers()) : nullptr;
  if (entry != nullptr && !event.isAutoRepeat()) {
    entry->trigger();
  }
  return entry != nullptr;
}

/// The frame over the whole screen, and back to how it was.
void prcTurnFullScreen() {
  if (const WindowView* frame = fncFrameView(); frame != nullptr && frame->Source->Visible) {
    frame->Shell->setWindowState(frame->Shell->windowState() ^ Qt::WindowFullScreen);
  }
}

bool fncBare(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// For those who do not know the key that led there. A dialog keeps the frame as it is.
bool fncLeaveFullScreen(const Window& window) {
  const WindowView* frame = fncFrameView();
  const bool blnFull =
      frame != nullptr && frame->Shell->isFullScreen() && window.Kind != WindowKind::Dialog;
  if (blnFull) {
    prcTurnFullScreen();
  }
  return blnFull;
}

/// The keys for the program as a whole. A dialog keeps the frame behind it as it is.
bool fncProgramKey(const Window& window, const QKeyEvent& event) {
  const bool blnHelp = fncBare(event) && event.key() == Qt::Key_F1;
  const bool blnFull =
      fncBare(event) && event.key() == Qt::Key_F11 && window.Kind != WindowKind::Dialog;
  if (blnHelp && !event.isAutoRepeat()) {
    prcServe([&] { prcUserHelp(window); });
  } else if (blnFull && !event.isAutoRepeat()) {
    prcTurnFullScreen();
  }
  return blnHelp || blnFull;
}

/// The keys that go to the next of the frame's children, or close one.
bool fncChildKey(Window& window, const QKeyEvent& event) {
  const int key = event.key();
  const bool blnNext = key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_F6;
  if (!event.modifiers().testFlag(Qt::ControlModifier) || (!blnNext && key != Qt::Key_F4)) {
    return false;
  }
  const bool blnModal = window.Kind == WindowKind::Dialog || window.Kind == WindowKind::Start;
  if (blnNext) {
    const bool blnBackwards = event.modifiers().testFlag(Qt::ShiftModifier);
    if (Window* next = blnModal ? nullptr : fncNextChild(blnBackwards); next != nullptr) {
      prcBringUp(*next);
    }
  } else if (window.Kind == WindowKind::Child && window.CloseBox) {
    prcServe([&] { prcUserClose(window); });
  }
  return true;
}

/// The keys that click, pick or choose at the control that has the focus.
bool fncFocusedKey(Control& focused, const QKeyEvent& event) {
  if (fncPickKey(focused, event)) {
    return true;
  }
  const int key = event.key();
  if (key == Qt::Key_Space && fncClickedBySpace(focused.Kind)) {
    if (!event.isAutoRepeat()) {
      prcAct(focused, prcUserClick);
    }
    return true;
  }
  const bool blnBack = key == Qt::Key_Left || key == Qt::Key_Up;
  if (focused.Kind != ControlKind::OptionButton ||
      (!blnBack && key != Qt::Key_Right && key != Qt::Key_Down)) {
    return false;
  }
  if (Control* fellow = fncFellow(focused, blnBack); fellow != nullptr) {
    prcAct(*fellow, prcUserClick);
  }
  return true;
}

/// The keys that mean the same in every window. Returns whether the key was one.
bool fncCommonKey(Window& window, const QKeyEvent& event) {
  if (fncChildKey(window, event)) {
    return true;
  }
  const int key = event.key();
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    prcServe([&] { fncUserTab(window, key == Qt::Key_Backtab); });
    return true;
  }
  if (fncAccessKey(window, event) || fncEntryKey(window, event) || fncProgramKey(window, event)) {
    return true;
  }
  Control* focused = window.ActiveControl;
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
    // One press, one hand.
    return event.isAutoRepeat() || fncAnswerKey(window, focused, key) ||
           (key == Qt::Key_Escape && fncBare(event) && fncLeaveFullScreen(window));
  }
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) {
    return false;
  }
  return focused == nullptr ? fncScrollKey(window, key) : fncFocusedKey(*focused, event);
}

}  // namespace

bool fncKeyPressed(QWidget& widget, const QKeyEvent& event) {
  // A key that a widget leaves goes on to its parents; the model has heard of it the first time.
  WindowView* home = &widget == QApplication::focusWidget() ? fncWindowViewOf(&widget) : nullptr;
  Window* window = home != nullptr ? fncLive(*home) : nullptr;
  if (window == nullptr || fncModifierAlone(event.key())) {
    return false;
  }
  prcEndFlip();
  if (window->Kind == WindowKind::Frame) {
    window = fncFrameInput();
  }
  const QPointer<QWidget> before(&widget);
  const bool blnTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  if (window->On->KeyDown != nullptr && !blnTab) {
    const std::string name = fncKeyName(event);
    prcServe([&] { window->On->KeyDown(*window, name, fncShift(event.modifiers())); });
  }
  const bool blnCommand = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (window->On->KeyPress != nullptr && window->hWnd != 0 && !blnCommand &&
      fncPrints(event.text())) {
    const char typed = event.text().at(0).toLatin1();
    prcServe([&] { window->On->KeyPress(*window, typed); });
  }
  if (fncEnded() || window->hWnd == 0 || before == nullptr ||
      before != QApplication::focusWidget()) {
    return true;
  }
  return fncCommonKey(*window, event);
}

}  // namespace qt
