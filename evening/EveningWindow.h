#pragma once

#include <functional>
#include <span>
#include <string>

#include "platform/Window.h"
#include "platform/platform.h"

// What the windows of the evening have in common.

inline constexpr Colour clrLoss{163, 38, 30};
/// The colour of money won, or lost where it is below 0.
Colour fncMoneyInk(double net);

/// The choice of a shoe: 0 is all.
struct ShoeChoice {
  Control lblCaption, sldShoe, lblShoe;
};

/// Sets up a small window by its name; sizes are the inner ones, in twips. Called once at the start
/// of the program.
void prcPrepareEveningWindow(Window& form, const char* name, const char* caption, double width,
                             double height, const WindowEvents& events);

/// Puts a window where it was closed last, or in the middle of the screen before that.
void prcPlaceEveningWindow(Window& form);

/// Opens a window, or brings it to the front, and gives it the input.
void prcOpenEveningWindow(Window& form);

/// Adds a shoe choice to a window at a place in twips; events hears of another choice.
void prcLayOutShoeChoice(Window& form, ShoeChoice& choice, double left, double top,
                         const ControlEvents& events);

/// Follows the shoes played so far, and shows which one is chosen.
void prcShowShoeChoice(ShoeChoice& choice);
inline int fncChosenShoe(const ShoeChoice& choice) {
  return static_cast<int>(choice.sldShoe.Value);
}

/// Asks where to save and saves; a failure is told, and changes nothing.
void prcSaveAs(const std::string& title, const std::string& name,
               std::span<const platform::FileKind> kinds,
               const std::function<std::string(const std::string& path)>& save);

/// "Player 1" for seat 0.
std::string fncSeatName(int seat);

/// "1 hand", "2 hands".
std::string fncCounted(int count, const std::string& thing);
