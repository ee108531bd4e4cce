#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/Window.h"

/// The name of a control as a user of the tests says it: "maisyk", "txtTieBet(0)".
std::string fncOwnName(const Control& control);

/// The control of that name in any loaded window; one in view goes before others.
/// "frmCardsDealt.chkOnTop" looks in that window or toolbar alone.
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
  void Tells(const std::vector<std::string>& topics) { topics_ = {topics.begin(), topics.end()}; }

  /// Which controls are told, by how their names begin.
  void Watch(const std::vector<std::string>& names);

  /// Watches, and next tells what these controls show that plain ones of their kind do not, apart
  /// from their places.
  void See(const std::vector<std::string>& names);

  /// Whether a watched control has come, gone or changed its text since it was last told: quick,
  /// for looks at every millisecond.
  bool Moved() const { return fncQuickLook() != quick_; }

  /// What is new, in clauses.
  std::string WhatIsNew();

  /// The program has been put back to before its start: all it shows will be new.
  void Forget();

 private:
  using Words = std::array<std::string, 12>;
  using Looks = std::map<const Control*, Words>;
  /// By topic and by what is told: the text last told.
  using Facts = std::map<std::pair<std::string, std::string>, std::string>;

  static Words fncWords(const Control& control);
  Looks fncLooks() const;
  std::string fncQuickLook() const;
  void prcTellBoxes();
  void prcTellWindows();
  void prcTellTable();
  void prcTellWatched();
  void prcTellFile();
  void prcTellMoney();
  void prcTellMarks();
  void prcTellMark(int number, const Control& shape, const Control& text);
  /// Tells a fact when it differs from what it was.
  void prcTell(const std::string& topic, const std::string& what, const std::string& now);

  std::string told_, box_;  ///< What is being told, and the last message.
  std::set<std::string> topics_;
  Facts facts_, factsBefore_;
  std::vector<std::string> watched_;
  Looks looks_;
  std::string quick_;
};
