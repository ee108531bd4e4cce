#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "table/TableState.h"

// What must hold at the table whenever the program waits for its user.

/// Watches a running game from event to event.
class Watch {
 public:
  /// Begins anew with the game as it stands after its start.
  void prcStart();

  /// Looks at the game after an event. Returns what does not hold, empty where all does. Nothing is
  /// asked of a program that has ended.
  std::string fncLook();

  /// The same for the user's switches: entry, buttons, flag and file say the same, and so do the
  /// decks. Looks only where something has changed.
  std::string fncLookAtSwitches();

  std::int64_t Hands() const { return lngHandsSeen_; }
  std::int64_t Shoes() const { return lngShoesSeen_; }

 private:
  struct Seat {
    double Offset = 0;  ///< Money that changes of the chip value have made or taken.
    std::array<bool, 3> blnRevalued{};  ///< The chip value has changed under this bet.
    bool blnTouched = false;            ///< Such a bet stands, or has just gone.
  };

  /// Notes what does not hold, unless something else has been found before.
  void Must(bool blnHolds, std::string_view what, std::string_view details = {});
  /// The same for two numbers that should be one.
  void MustBe(double have, double want, const char* what, int of = -1);
  void prcLookAtBoxes();
  void prcLookAtFile();
  void prcLookAtBets(int seat);
  void prcLookAtMoney(int seat);
  void prcLookAtButtons();
  void prcLookAtCards();
  void prcNoteShoe();
  void prcCountHands();
  void prcReadFile();
  void prcNoteUnit();

  std::string strFault_;
  std::array<Seat, intSeats> seats_{};
  std::string strContents_;  ///< Of the settings file when last read.
  std::string strChosen_;    ///< File and flags when last compared.
  std::array<double, intSeats> dblStake_{}, dblFileWin_{};
  double dblFileHands_ = 0;
  double dblHands_ = 0;  ///< What the file should say.
  double dblUnit_ = 0;
  int intHandsBefore_ = 0;
  std::array<int, 8> slotsFirst_{};  ///< Of the shoe's order when last looked at.
  bool blnEndBefore_ = true;
  std::int64_t lngHandsSeen_ = 0, lngShoesSeen_ = 0;
};
