#include "platform/Places.h"

#include <algorithm>

#include "platform/platform.h"

namespace {

constexpr double dblLeastHeight = 1200;  ///< Of a child: its title and a little of what it shows.

/// A size that makes sense for a window designed to be this large.
double fncSound(double asked, double designed) {
  return designed > 0 && !(asked >= designed && asked <= 4 * designed) ? designed : asked;
}

/// A place along one side of the screen at which a length is seen, from its start if it is longer.
double fncWithin(double place, double length, double screen) {
  return std::clamp(place, 0.0, std::max(0.0, screen - length));
}

}  // namespace

void prcMendPlace(Window& window) {
  if (window.Kind == WindowKind::Child) {
    window.Width = fncSound(window.Width, window.MinWidth);
    window.Height = std::max(fncSound(window.Height, window.MinHeight), dblLeastHeight);
    window.Top = fncWithin(window.Top, 2 * dblLeastHeight, platform::ScreenHeight());
    return;
  }
  window.Left =
      fncWithin(window.Left, std::max(window.Width, window.ScaleWidth), platform::ScreenWidth());
  window.Top =
      fncWithin(window.Top, std::max(window.Height, window.ScaleHeight), platform::ScreenHeight());
}
