#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Window.h"

// The screen as a cache of the model: one view for each loaded window and each of its controls,
// with a copy of what was drawn last. windows/Sync.h compares the two.

namespace qt {

struct WindowView;

/// One control on the screen. Source may be gone from the model; only fncLive may look at it.
struct ControlView {
  ControlView(WindowView& home, Control& source);
  ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  WindowView& Home;
  Control* Source;
  Control Drawn;
  double Scale;              ///< At which it was drawn.
  QPointer<QWidget> Widget;  ///< None for timers and menu entries.
  bool blnHolds = false;     ///< Other controls lie within it.
  QPointer<QObject> Helper;  ///< The timer, menu, or action that stands for the control.
  void (*Drop)(ControlView&) = nullptr;  ///< Takes off the screen what its maker has put there.
};

/// What a window's frame showed last.
struct DrawnWindow {
  std::string Caption;
  double Left = 0, Top = 0, Width = 0, Height = 0, ScaleWidth = 0, ScaleHeight = 0;
  bool Visible = false, Topmost = false;
  Colour BackColor = clrWhite;
  int Picture = 0;
  std::uint32_t Raised = 0;
  double Scale = 0;
  QPoint Origin;  ///< Of the field that a child lies in.
  bool operator==(const DrawnWindow&) const = default;
};

/// One loaded window on the screen. Shell is its outermost widget, Ground the one that holds its
/// controls; they may be the same.
struct WindowView {
  explicit WindowView(Window& source);
  ~WindowView();
  WindowView(const WindowView&) = delete;
  WindowView& operator=(const WindowView&) = delete;

  Window* Source;
  std::int32_t Handle;
  QPointer<QWidget> Shell;
  QPointer<QWidget> Ground;
  void (*Drop)(WindowView&) = nullptr;  ///< Takes off the screen what its maker has put there.
  DrawnWindow Drawn;
  /// Where the field begins on the ground of a frame that is too small for what lies in it: what
  /// stands further left is reached by scrolling.
  QPoint Origin;
  bool blnFirst = true;
  bool blnResized = false;         ///< The inner size has changed; its handler is due.
  bool blnShown = false;           ///< It has come up and is to get the input.
  Control* DrawnActive = nullptr;  ///< Compared only.
  std::uint32_t DrawnFocus = 0;    ///< FocusGiven of the window as shown last.
  std::vector<std::unique_ptr<ControlView>> Controls;  ///< In the order of the stack.
  std::unordered_map<const Control*, ControlView*> ByControl;
};

/// What is on the screen. windows/Sync.cpp alone changes it, but for the widgets noted below.
struct ScreenState {
  QHash<const QWidget*, ControlView*> ByWidget;  ///< First: the end of a view still looks into it.
  std::vector<std::unique_ptr<WindowView>> Windows;
  Window* Active = nullptr;     ///< The window that has the input.
  Window* LastChild = nullptr;  ///< The child that had it last.
  bool blnSyncing = false;
};
extern ScreenState& scrNow;

WindowView* fncViewOf(const Window& window);
/// The view of a loaded control; none while it is not on the screen.
ControlView* fncViewOf(const Control& control);
/// The view that a widget or one of its parents belongs to; none for the toolkit's own.
ControlView* fncControlViewOf(const QWidget* widget);
WindowView* fncWindowViewOf(const QWidget* widget);

/// Notes a widget as belonging to a view, for the two look-ups above.
void prcNoteWidget(const QWidget* widget, ControlView* view);
void prcForgetWidget(const QWidget* widget);

/// The control of a view, or none if the model has given it up meanwhile.
Control* fncLive(const ControlView& view);
/// The window of a view, or none if it has been unloaded meanwhile.
Window* fncLive(const WindowView& view);

/// The window that has the input.
Window* fncActiveWindow();
/// The child that the frame's input belongs to: the one used last, else any that is visible, else
/// the frame itself.
Window* fncFrameInput();

/// The frame's view, if the frame is loaded.
WindowView* fncFrameView();

/// Whether the views are being brought up to date: what the toolkit reports then is no action of
/// the user.
bool fncSyncing();

}  // namespace qt
