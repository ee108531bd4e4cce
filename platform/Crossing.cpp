#include "platform/Crossing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr double dblStep = 15;  ///< Twips.
/// Steps on bare ground that one sees and aims through: a card and its strip are one step apart.
constexpr int intBareSteps = 3;

/// Where the pointer was told of last: a place of the window, in twips. Over is compared only.
struct Pointed {
  const Control* Over = nullptr;
  std::uint32_t Serial = 0;
  double X = 0, Y = 0;
};

Pointed ptdLast;

/// None over a control that lies in another one.
Pointed fncPointed(const Control& control, const Mouse& mouse) {
  if (control.Container != nullptr) {
    return {};
  }
  return {&control, control.Serial, control.Left + double{mouse.X}, control.Top + double{mouse.Y}};
}

bool fncCovers(const Control& control, double x, double y) {
  const bool blnFlat = control.Kind == ControlKind::Shape || control.Kind == ControlKind::Line;
  return control.Visible && !blnFlat && control.Container == nullptr && x >= control.Left &&
         x < control.Left + control.Width && y >= control.Top && y < control.Top + control.Height;
}

bool fncBare(const Window& window, double x, double y) {
  return std::ranges::none_of(window.Controls,
                              [&](const Control* control) { return fncCovers(*control, x, y); });
}

}  // namespace

void prcNotePointer(const Control& control, const Mouse& mouse) {
  ptdLast = fncPointed(control, mouse);
}

void prcNoteGround() { ptdLast = {}; }

bool fncCrossesGround(const Control& control, const Mouse& mouse) {
  const Pointed from = ptdLast;
  const Pointed to = fncPointed(control, mouse);
  const std::vector<Control*>& others = control.Form->Controls;
  const auto before = std::ranges::find(others, from.Over);
  if (to.Over == nullptr || from.Over == to.Over || before == others.end() ||
      (*before)->Serial != from.Serial) {
    return false;
  }
  const double x = to.X - from.X;
  const double y = to.Y - from.Y;
  const int steps = static_cast<int>(std::max(std::abs(x), std::abs(y)) / dblStep);
  int bare = 0;
  for (int step = 1; step < steps && bare < intBareSteps; ++step) {
    const bool blnBare =
        fncBare(*control.Form, from.X + x * step / steps, from.Y + y * step / steps);
    bare = blnBare ? bare + 1 : 0;
  }
  return bare == intBareSteps;
}
