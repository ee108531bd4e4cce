#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Numbers.h"

// A control is plain data. The game sets its properties; the screen is a cache of them, brought up
// to date when the event loop turns, when a handler has returned, and at once where a repaint is
// asked for. What the user does is written into the control first and told to its handlers
// afterwards.

struct Control;
struct Window;
struct ChartData;
struct GridData;

/// What a control is on the screen.
enum class ControlKind : std::uint8_t {
  Label,
  TextBox,
  MaskedEdit,
  Button,
  Picture,
  Shape,
  Line,
  Frame,
  CheckBox,
  OptionButton,
  ListBox,
  Grid,
  Chart,
  ProgressBar,
  HScrollBar,
  VScrollBar,
  Slider,
  Timer,
  MenuEntry,
  Toolbar,
  ToolButton
};

/// A colour as red, green and blue, 0 to 255 each. Clear is no colour: what lies below shows.
struct Colour {
  std::uint8_t Red = 0, Green = 0, Blue = 0;
  bool Clear = false;
  bool operator==(const Colour&) const = default;
};

inline constexpr Colour clrClear{0, 0, 0, true};
inline constexpr Colour clrBlack{0, 0, 0};
inline constexpr Colour clrWhite{255, 255, 255};
/// The system's window text colour on the white and ivory grounds of this program.
inline constexpr Colour clrWindowText{0, 0, 0};

/// A type face; Size is in points of 1/72 inch at scale 1. Fixed asks for letters of one width.
struct Type {
  float Size = 8.25F;
  bool Bold = false;
  bool Fixed = false;
  bool Underline = false;
  bool Struck = false;  ///< Struck out, as what no longer counts.
  bool operator==(const Type&) const = default;
};

enum class Alignment : std::uint8_t { Left, Right, Centre };

enum class ShapeForm : std::uint8_t { Rectangle, Oval, Rounded };

/// The pointer over a control.
enum class Pointer : std::uint8_t { Arrow, SizeUpDown, SizeLeftRight, HandUp, HandRight, HandLink };

/// How a tool button answers a click: Check stays down until the next click, of a Group one is down
/// at a time.
enum class ButtonStyle : std::uint8_t { Check, Group, Separator };

/// How a control is dressed beyond its plain properties; each view knows what a look means on its
/// screen.
enum class Look : std::uint8_t {
  Plain,
  Plate,
  Primary,
  Chip,
  Shadow,
  Card,
  Patch,
  Link,
  Heading,
  Mat,
  CardPlace,  ///< Where a card will lie.
  Waiting,    ///< A rim of light around what waits for the user.
  PullEdge,   ///< An edge to pull at, upwards or to the left.
  ChipStack,  ///< As many chips as the value says; hollow while disabled.
  Won,
  Lost,
  Money,     ///< A label of money, Value: in red below 0, and messages keep off it.
  Mark,      ///< On a marking card: the frame of a mark or, in it, the text.
  LostMark,  ///< The same of a hand that lost.
  Squared    ///< A picture with a faint grid: lines from X1, Y1 on, cells of X2 by Y2 twips.
};

/// Mouse buttons as handlers get them.
inline constexpr int intLeftButton = 1;
inline constexpr int intRightButton = 2;
inline constexpr int intMiddleButton = 4;

/// Bits of the Shift argument of key handlers.
inline constexpr int intShiftMask = 1;
inline constexpr int intCtrlMask = 2;
inline constexpr int intAltMask = 4;

/// A mouse event: places in twips from the control's or window's own top left corner, negative
/// above or left of it.
struct Mouse {
  int Button = 0;
  float X = 0, Y = 0;
};

/// The handlers of a control; an empty one is not called. They get the control, whose Index tells
/// the element.
struct ControlEvents {
  void (*Click)(Control&) = nullptr;
  void (*MouseDown)(Control&, const Mouse&) = nullptr;
  void (*MouseMove)(Control&, const Mouse&) = nullptr;
  void (*MouseUp)(Control&, const Mouse&) = nullptr;
  void (*GotFocus)(Control&) = nullptr;
  void (*LostFocus)(Control&) = nullptr;
  /// Runs before the focus leaves; setting blnCancel keeps it.
  void (*Validate)(Control&, bool& blnCancel) = nullptr;
  /// The value of a scroll bar or slider, or the text of a box, has changed, by the user or by
  /// prcSetValue; or the user has picked another row of a grid or point of a chart.
  void (*Change)(Control&) = nullptr;
  void (*Resize)(Control&) = nullptr;
  void (*Timer)(Control&) = nullptr;
};

inline constexpr ControlEvents evtNone{};

/// One control. Places and sizes are in twips from the top left corner of its container, or of its
/// window.
struct Control {
  // What it is: set by its window's layout.
  ControlKind Kind = ControlKind::Label;
  const char* Name = "";
  Integer Index = -1;  ///< Element of a control array, from 0; -1 for a control that stands alone.
  Window* Form = nullptr;
  /// The picture, frame, toolbar or menu that holds it; none means the window.
  Control* Container = nullptr;
  const ControlEvents* On = &evtNone;
  /// Given by prcAddControl, never given twice: tells a copy from a later one in its place.
  std::uint32_t Serial = 0;

  // Where it is and whether it can be used.
  double Left = 0, Top = 0, Width = 0, Height = 0;
  bool Visible = true, Enabled = true;
  bool TabStop = true;  ///< The Tab key stops here, if the kind takes the focus at all.

  // What it shows.
  std::string Text;  ///< Caption or text; a masked box holds the plain number without its mask.
  std::string ToolTip;
  /// What a screen reader calls it, before the text that a label shows; empty means its text or
  /// tool tip.
  std::string Spoken;
  bool Announce = false;  ///< Read out when it appears or changes.
  /// With Alt, this capital letter or digit presses a button or goes to a box, of several with the
  /// same key to each in turn; 0 is none. It is underlined in the text; in a label it is only that.
  char AccessKey = 0;
  const char* Shortcut = "";  ///< The key that clicks a menu entry from anywhere, such as "Ctrl+R".
  Type Face;
  Alignment Align = Alignment::Left;
  Colour ForeColor = clrWindowText;
  Colour BackColor = clrClear;
  Integer Picture = 0;  ///< A number of assets/Pictures.h; 0 shows none.
  Look Dress = Look::Plain;
  /// A card's back: as it goes from the face below, the card is seen to turn over.
  bool Flips = false;
  Pointer MousePointer = Pointer::Arrow;

  // Shapes and lines.
  ShapeForm Form2D = ShapeForm::Rectangle;
  Colour FillColor = clrClear;
  Colour BorderColor = clrClear;
  int BorderWidth = 1;                    ///< Pixels at scale 1.
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< A line's ends, in its container.

  // Values: a check box, option, menu entry and tool button hold 0 or 1.
  double Value = 0, Min = 0, Max = 0, SmallChange = 1, LargeChange = 1;
  /// How much a scroll bar's window shows of the whole at a time, in units of its value; 0 takes
  /// LargeChange for it. The bar's slider is as long as that.
  double Page = 0;
  ButtonStyle Style = ButtonStyle::Check;
  bool Default = false, CancelButton = false;  ///< Answers Enter, answers Escape.

  // Masked edits: 9 stands for a digit, a leading $ is shown and never part of Text.
  const char* Mask = "";
  const char* Format = "";
  char Prompt = '_';
  int SelLength = 0;

  // Lists, grids and charts; ListIndex is the selected row or point, -1 for none.
  std::vector<std::string> List;
  std::shared_ptr<const GridData> Grid;    ///< platform/Grid.h; another one shows other rows.
  std::shared_ptr<const ChartData> Chart;  ///< platform/Chart.h; another one draws anew.
  int ListIndex = -1;
  /// The character, from 0, at which a list's second column begins; 0 for a list of one column.
  int ListTab = 0;

  // Timers, in milliseconds; a timer runs while Enabled and Interval is above 0.
  Long Interval = 0;

  bool operator==(const Control&) const = default;
};
