#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Control.h"

// Windows as plain data, and what can be done with them and their controls on any platform.

enum class WindowKind : std::uint8_t {
  Frame,   ///< The main window: menus, toolbars and a field for child windows.
  Child,   ///< Lives in the frame; its place is in the frame's field.
  Float,   ///< A small top-level window.
  Dialog,  ///< Top-level, shown modally.
  Start    ///< The start screen: fixed, in the middle of the screen.
};

struct WindowEvents {
  void (*Load)(Window&) = nullptr;
  /// Setting blnCancel keeps the window; the handler has then hidden it or refused.
  void (*Unload)(Window&, bool& blnCancel) = nullptr;
  /// The user or the system asks for the window to close, by its close box or by key. Without it
  /// the window unloads.
  void (*CloseAsked)(Window&) = nullptr;
  void (*Activate)(Window&) = nullptr;
  void (*Resize)(Window&) = nullptr;
  /// strKey is "F12" and the like for a named key, or one typed character; intShift is made of the
  /// mask bits. "Tab" comes when it has moved the focus.
  void (*KeyDown)(Window&, const std::string& strKey, int intShift) = nullptr;
  /// A printable key, before the focused control gets it.
  void (*KeyPress)(Window&, char chrKey) = nullptr;
  void (*MouseMove)(Window&, const Mouse&) = nullptr;
  /// Brings what only adorns the window to what its other controls show. Runs before each drawing;
  /// changes nothing else, serves no events and never fails.
  void (*Adorn)(Window&) = nullptr;
};

inline constexpr WindowEvents evtNoWindow{};

/// One window. Top and Left of a child count in the frame's field; Scale sizes are the inner ones,
/// kept by the platform. All in twips.
struct Window {
  const char* Name = "";
  WindowKind Kind = WindowKind::Child;
  const WindowEvents* On = &evtNoWindow;
  std::string Caption;
  double Left = 0, Top = 0, Width = 0, Height = 0;
  double ScaleWidth = 0, ScaleHeight = 0;
  /// Designed size of a child that cannot be resized: a stored one below it is mended.
  double MinWidth = 0, MinHeight = 0;
  /// ScaleWidth and ScaleHeight are the given ones; the border comes on top.
  bool FixedInner = false;
  bool Sizable = false;
  bool TitleBar = true;
  bool CloseBox = true;
  bool Visible = false;
  bool Topmost = false;
  bool BeforeFrame = false;  ///< Floating: the frame never covers it.
  bool Maximised = false;
  bool Centred = false;
  Colour BackColor = clrWhite;
  Integer Picture = 0;  ///< Stretched over the ground, or tiled; 0 shows none.
  bool PictureTiled = false;
  Long hWnd = 0;             ///< 0 while the window is not loaded; every load gives a new one.
  std::uint32_t Raised = 0;  ///< Order in the stack: the highest is in front.
  std::vector<Control*> Controls;  ///< The stack, lowest first.
  /// Those of them that are timers, so that a turn need not look at all.
  std::vector<Control*> Timers;
  Control* ActiveControl = nullptr;
  /// Grows whenever a control gets the focus or a refusal keeps it there: a box then has its text
  /// selected anew.
  std::uint32_t FocusGiven = 0;
};

/// The loaded windows, in the order of their loading.
const std::vector<Window*>& fncWindows();

/// Gives a control its place on top of a window's stack and its serial. The window must outlive the
/// control's stay.
void prcAddControl(Window& window, Control& control);

/// Empties a window's stack; the focus goes without an event.
void prcClearControls(Window& window);

/// Takes a control out of its window; the focus leaves it without an event.
void prcRemoveControl(Control& control);

/// Brings a control to the top of its window's stack.
void prcControlToFront(Control& control);

/// Loads a window that is not loaded: gives it a handle and runs its load handler. Loading does not
/// show it.
void prcLoad(Window& window);

/// Loads the window if needed, and makes it visible.
void prcShow(Window& window);

/// Unloads a loaded window: runs its unload handler; unless that cancels, hides it and gives up its
/// handle. Returns whether it is gone; True for a window that was not loaded.
bool fncUnload(Window& window);

/// Takes a window off the loaded ones without its unload handler, as at the end of the program.
void prcForgetWindow(Window& window);

/// Brings a window to the front of the window order.
void prcToFront(Window& window);

/// Runs the check of the box that has the focus, as comes before anything that the user does
/// elsewhere. Returns whether it lets go; after a refusal its text is selected, to be typed over.
bool fncCheckFocus(Window& window);

/// Moves the focus within the control's window. The check of the box that has it runs first and may
/// refuse; its lost-focus handler may take it back. Returns whether the control has the focus
/// afterwards. A control that is hidden, disabled or of a kind that takes no focus gets none and
/// nothing changes.
bool fncSetFocus(Control& control);

/// Whether the kind, Visible and Enabled let a control have the focus.
bool fncTakesFocus(const Control& control);

/// Sets the value of a scroll bar, slider, check box or option as a user's action does: kept within
/// Min and Max (0 and 1 for boxes), and its Change or Click handler runs if the value changed.
void prcSetValue(Control& control, double value);

/// Sets Width and Height of a picture and runs its Resize handler if one of them changed.
void prcResizePicture(Control& control, double width, double height);

/// Adds a row at the end of a list box and selects it.
void prcAddRow(Control& list, std::string row);

/// Puts a number into a masked box from code: the plain digits of text such as "1000" or "$1,000"
/// stay. A text that is negative or has no digit gives "0". Digits beyond the mask stay too, so
/// that no money is cut short.
void prcSetMasked(Control& box, std::string_view text);

/// What the mask of a box lets through of a typed or pasted text.
std::string fncMasked(const Control& box, std::string_view text);

/// Whether one more typed character fits the mask behind a text of this length.
bool fncMaskAdmits(const Control& box, std::size_t length, char typed);

/// How a masked box shows its text while it lacks the focus: the format's dollar sign and the
/// number, "0" when empty.
std::string fncMaskShown(const Control& box);
