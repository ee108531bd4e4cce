#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What a user may do at the table, as plain data: lists of events can be made up at random, read
// from arbitrary bytes, shortened and played again.

/// One event. Any bytes make a good one: each is taken modulo the number of its choices.
struct UserEvent {
  std::uint8_t Kind = 0;   ///< A row of the table in UserEvents.cpp.
  std::uint8_t Which = 0;  ///< The control, among those of the kind.
  std::uint8_t How = 0;    ///< Button, text, answer or distance.
  std::uint8_t Delay = 0;  ///< How long after the event before, in steps of 20 milliseconds.
};

inline constexpr std::uint32_t lngDelayStep = 20;

/// Events of a seed as a player would do them: mostly bets and hands, now and then the rest.
std::vector<UserEvent> fncRandomEvents(std::uint64_t seed, std::size_t count);

/// "Chip 13 1 0": kind by name, then Which, How and Delay.
std::string fncDescribe(const UserEvent& event);

/// Does it on whatever platform stands behind the scripted user. A control that the user cannot
/// reach is left alone.
void prcDo(const UserEvent& event);

/// Turns the cards that lie face down, so that a hand can end.
void prcTurnAll();
