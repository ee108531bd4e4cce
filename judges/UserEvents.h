#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

// What a user may do at the table, as plain data: lists of events can be made up at random, read
// from arbitrary bytes, shortened and played again.

enum class UserEventKind : std::uint8_t {
  Chip,
  TypeBet,
  Tab,
  Deal,
  TypeHands,
  Shuffle,
  Turn,
  Squeeze,
  Key,
  Menu,
  ToolButton,
  CloseWindow,
  KeepOnTop,
  UnitValue,
  Statistics,
  Scroll,
  Hover,
  Idle,
  Leave
};
inline constexpr int intUserEventKinds = static_cast<int>(UserEventKind::Leave) + 1;

/// One event. Any bytes make a good one: each is taken modulo the number of its choices.
struct UserEvent {
  UserEventKind Kind = UserEventKind::Idle;
  std::uint8_t Which = 0;  ///< The control, among those of the kind.
  std::uint8_t How = 0;    ///< Button, text, answer or distance.
  std::uint8_t Delay = 0;  ///< How long after the event before, in steps of 20 milliseconds.
  bool operator==(const UserEvent&) const = default;
};

inline constexpr std::uint32_t lngDelayStep = 20;

UserEvent fncUserEvent(std::uint8_t kind, std::uint8_t which, std::uint8_t how, std::uint8_t delay);

/// An event as a player would do it: mostly bets and hands, now and then the rest.
UserEvent fncRandomEvent(std::mt19937_64& random);

/// "Chip 13 1 0": kind by name, then Which, How and Delay.
std::string fncDescribe(const UserEvent& event);

/// Does it on whatever platform stands behind the scripted user. A control that the user cannot
/// reach is left alone.
void prcDo(const UserEvent& event);

/// Turns the cards that lie face down, so that a hand can end.
void prcTurnAll();
