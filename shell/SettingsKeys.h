#pragma once

#include <string>

// The sections and keys of the settings file, and no other file names one. docs/settings.md tells
// what each holds. A floating window of the evening has the section of its own name.

inline constexpr const char* secFile = "File";
inline constexpr const char* keyLearn = "Learn";

inline constexpr const char* secCardOptions = "Card Options";
inline constexpr const char* keyCardFaceUp = "Card Face Up";
inline constexpr const char* keyShowCardValues = "Show Card Values";
inline constexpr const char* keyShowCardsDealt = "Show Cards Dealt";
inline constexpr const char* keyShowCardsDealtCount = "Show Cards Dealt Count";

inline constexpr const char* secMarkingOptions = "Marking Options";
inline constexpr const char* keyShowScore = "Show Score";
inline constexpr const char* keyShowNaturals = "Show Naturals";

inline constexpr const char* secPlayerBlue = "Player Blue";
inline constexpr const char* keyPlayerBlue = "PlayerBlue";

inline constexpr const char* secDeal = "Deal";
inline constexpr const char* keyDelay = "Delay";
inline constexpr const char* keyAnimation = "Animation";

inline constexpr const char* secOptions = "Options";
inline constexpr const char* keyLargeButtons = "Large Buttons";

inline constexpr const char* secReveal = "Reveal";
inline constexpr const char* keyArrows = "Arrows";

inline constexpr const char* secShoeSize = "Shoe Size";
inline constexpr const char* keyDecks = "Decks";

inline constexpr const char* secMisc = "Misc";
inline constexpr const char* keyUnitValue = "UnitValue";
inline constexpr const char* keyCardsDealtOnTop = "CardsDealtOnTop";
inline constexpr const char* keyCardsDealtCountOnTop = "CardsDealtCountOnTop";
inline constexpr const char* keyNerodik = "Nerodik";  ///< No start screen.

// --- Places of windows ---

inline constexpr const char* secFrame = "MDIForm1";
inline constexpr const char* secBaccTable = "frmBaccTable";
inline constexpr const char* secCardsDealt = "frmCardsDealt";
inline constexpr const char* secCardsDealtCount = "frmCardsDealtCount";
inline constexpr const char* secStatistics = "frmStatistics";
/// The section of marking card 0..8.
inline std::string fncMarkCardSection(int card) { return "frmMarkCard" + std::to_string(card); }

inline constexpr const char* keyTop = "Top";
inline constexpr const char* keyLeft = "Left";
inline constexpr const char* keyHeight = "Height";
inline constexpr const char* keyWidth = "Width";

// --- Statistics ---

inline constexpr const char* secPlayed = "ShoesHandsPlayed";
inline constexpr const char* keyHands = "Hands";
/// The key of the shoes of a size that were dealt to their end.
inline std::string fncDecksKey(int decks) { return keyDecks + (" " + std::to_string(decks)); }

/// The section of seat 0..1.
inline std::string fncSeatSection(int intSeat) {
  return "Player" + std::to_string(intSeat + 1) + "Stats";
}
inline constexpr const char* keyStake = "Stake";
inline constexpr const char* keyWin = "Win";
inline constexpr const char* keyTurnover = "Turnover";
