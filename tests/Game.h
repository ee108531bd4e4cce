#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "betting/BetEntry.h"
#include "judges/Adapter.h"
#include "judges/Endurance.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "table/TableState.h"

// The whole game on either platform: a fresh folder, the program started as its user starts
// it, and a shoe whose next cards a test can choose.

/// Puts every table of the game and the platform back to the start of the program, before
/// any window.
void prcFreshGame(const std::string& folder);

/// All that a file holds, empty where there is none.
std::string fncFile(const std::string& path);

/// A text with "|" for its line breaks.
std::string fncPiped(std::string text);

class Game : public testing::Test {
 public:
  ~Game() override;

 protected:
  void SetUp() override;

  /// Writes a key before or during the run, as an earlier run would have left it.
  static void Setting(const std::string& section, const std::string& key, const std::string& value);
  static std::string Stored(const std::string& section, const std::string& key);

  /// The settings file as a whole; what stands in its place goes.
  static void WriteFile(const std::string& contents);
  static std::string Contents();

  /// Starts the program without its start screen, up to the table that waits for the first shuffle.
  /// Cards come face up, at once, unless a test turns the switches.
  void Start();

  /// Clicks Shuffle and waits until the shoe stands, with the seed that orders it.
  void Shuffle(std::uint64_t seed = 1);

  /// Makes these face values (1..13) the next out of the shoe, by swapping cards that lie behind.
  /// The shoe keeps each of its cards.
  static void NextCards(const std::vector<int>& values);

  /// The next hands are won by these sides on four cards, or tied: "P", "B" or "T" for each.
  static void NextResult(const std::string& results);

  /// Types chips into a bet box and leaves it by the Tab key. Returns whether the check let go.
  static bool Bet(BetSide side, int seat, const std::string& chips);

  /// Deals a run of hands by the first Deal button, and waits until it is over.
  static void Deal(int hands = 1);

  /// One hand that is won by a side, in a single-hand run until the table is open again.
  static void DealResult(const std::string& result);

  /// Opens the statistics, sets them to zero and closes them.
  static void ResetStatistics();

  static void ShowNoCardsSlowly();

  /// The text of the last message box, empty where none was shown since ForgetBoxes.
  static std::string LastBox();

  /// A folder of the test's own for its settings file, gone with the test.
  const std::string& Folder() const { return folder_; }

 private:
  const std::string folder_ = fncFastFolder();
};
