#pragma once

#include "table/Bets.h"

// Where the game tells what has happened to it, for a companion that looks on. The game needs none:
// each hook does nothing until it is set.

struct GameHooks {
  /// A hand has just been settled for both seats; the bets it lost still stand in their boxes.
  void (*HandSettled)() = [] {};
  /// A bet of a seat has passed its tests and is about to be booked; it held dblChips until now.
  /// The seat's other boxes still hold what stands.
  void (*BetChanging)(BetSide side, Integer intSeat, double dblChips) = [](BetSide, Integer,
                                                                           double) {};
  /// All statistics have been set to zero, and the bets are off the table.
  void (*StatisticsReset)() = [] {};
  /// The stake of a seat has been changed.
  void (*StakeChanged)() = [] {};
  /// The frame's menus up to Options stand; those of a companion come here, in front of Web.
  void (*MenusLaidOut)() = [] {};
};
extern GameHooks hooks;
