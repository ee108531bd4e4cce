#pragma once

#include <cstdint>
#include <string>

// The watch: what must hold at the table whenever the program waits for its user.

/// Begins anew with the game as it stands after its start.
void prcStartWatch();

/// Looks at the game after an event. Returns what does not hold, empty where all does. Nothing is
/// asked of a program that has ended.
std::string fncLook();

/// The same for the user's switches alone: entry, button, flag and file say the same, and so do the
/// decks. The file is read where something has been turned.
std::string fncLookAtSwitches();

/// Hands dealt and shoes ended under the eyes of the watch. It counts on whenever it begins anew.
extern std::int64_t lngHandsSeen, lngShoesSeen;
