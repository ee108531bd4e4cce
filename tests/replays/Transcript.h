#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Window.h"

struct MarkCardWindow;

/// The control of that name, such as "maisyk" or "txtTieBet(0)", in any loaded window; one in view
/// goes before others. "frmCardsDealt.chkOnTop" looks in that window alone.
Control& fncNamed(const std::string& name);

/// The loaded window of that name; fails the test by an exception where there is none.
Window& fncWindowNamed(const std::string& name);

/// Adds a clause to what is told.
void prcAdd(std::string& told, const std::string& clause);

/// Tells what has changed since it last told: messages and the watched controls always, the rest as
/// its topics say.
class Transcript {
 public:
  /// What is told from now on: "windows", "places", "focus", "program", "table" for the labels that
  /// are read out, "file", "money", "marks".
  void Tells(const std::string& topics);

  /// Which controls are told, by how their names begin.
  void Watch(const std::string& names);

  /// What a control shows that a plain one of its kind does not, apart from its place.
  static std::string See(const std::string& name);

  /// Whether a watched control has come, gone or changed its text since it was last told: quick,
  /// for looks at every millisecond.
  bool Moved() const;

  /// What is new, in clauses.
  std::string WhatIsNew();

  /// The program has been put back to before its start: all it shows will be new.
  void Forget();

 private:
  using Words = std::array<std::string, 12>;
  using Names = std::vector<std::pair<std::string, int>>;
  using Looks = std::map<Names::value_type, Words>;

  static Words fncWords(const Control& control);
  bool fncWatched(const Control& control) const;
  std::string fncList(Names names) const;
  Looks fncLooks();
  std::string fncQuickLook() const;
  void prcClause(const std::string& clause) { prcAdd(told_, clause); }
  void prcTellBoxes();
  void prcTellWindows();
  void prcTellTable();
  void prcTellWatched();
  void prcTellFile();
  void prcTellMoney();
  void prcTellMarks();
  void prcTellTotals(const MarkCardWindow& card);
  /// Tells a text that stands for something when it differs from what it was.
  void prcTell(const std::string& topic, const std::string& what, const std::string& now);

  std::string told_;
  std::set<std::string> topics_;
  std::vector<std::string> watched_;
  std::map<std::string, std::string> last_;  ///< By what: the text last told.
  std::set<std::string> windows_;            ///< That were loaded.
  Looks looks_;
  std::vector<const Control*> controls_;  ///< That are watched.
  std::string quick_;
  std::map<std::string, std::string> file_;
};
