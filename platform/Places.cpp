#include "platform/Places.h"

#include <algorithm>

#include "platform/platform.h"

namespace {

constexpr double dblLeastHeight = 1200;  ///< Of a child: its title and a little of what it shows.
constexpr double dblFrameParts = 1800;   ///< Above a child: the frame's title, menus and toolbars.

/// A size that makes sense for a window designed to be this large.
double fncSound(double asked, double designed) {
  return designed > 0 && !(asked >= designed && asked <= 4 * designed) ? designed : asked;
}

/// A place along one side of a room at which a length is seen, from its start if it is longer.
double fncWithin(double place, double length, double from, double room) {
  return std::clamp(place, from, std::max(from, from + room - length));
}

}  // namespace

void prcMendPlace(Window& window) {
  if (window.Kind == WindowKind::Child) {
    window.Width = fncSound(window.Width, window.MinWidth);
    window.Height = std::max(fncSound(window.Height, window.MinHeight), dblLeastHeight);
    if (const double room = platform::ScreenHeight();
        !(window.Top >= 0 && window.Top <= room - 2 * dblLeastHeight)) {
      window.Top = fncWithin(window.Top, window.Height + dblFrameParts, 0, room);
    }
    return;
  }
  const platform::Desk desk = platform::WholeDesk();
  window.Left =
      fncWithin(window.Left, std::max(window.Width, window.ScaleWidth), desk.Left, desk.Width);
  window.Top =
      fncWithin(window.Top, std::max(window.Height, window.ScaleHeight), desk.Top, desk.Height);
}
