#pragma once

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Window.h"

/// The control of that name, such as "maisyk" or "txtTieBet(0)", in any loaded window; one in view
/// goes before others. "frmCardsDealt.chkOnTop" looks in that window alone.
Control& fncNamed(const std::string& name);

/// The loaded window of that name; fails the test by an exception where there is none.
Window& fncWindowNamed(const std::string& name);

/// Tells in lines of text what has changed since it last told: messages, windows, the focus, the
/// watched controls, the settings file, money, the marks.
class Transcript {
 public:
  /// Which controls are told, by how their names begin; "all" for every one. The labels that are
  /// read out stand in a line of their own unless controls are watched.
  void Watch(const std::string& names);

  /// Everything that a control shows.
  static std::string See(const std::string& name);

  /// Whether a watched control has come, gone or changed its text since it was last told: quick,
  /// for looks at every millisecond.
  bool Moved() const;

  /// What is new, each line after an indent and before.
  std::string WhatIsNew(const std::string& before = "");

 private:
  using Words = std::array<std::string, 13>;
  struct Quick {
    const Control* Of;
    bool Visible;
    std::string Text;
  };
  using Looks = std::map<std::pair<std::string, int>, Words>;

  static Words fncWords(const Control& control);
  bool fncWatched(const Control& control) const;
  Looks fncLooks();
  void prcLine(const std::string& line) { told_ += "  " + before_ + line + "\n"; }
  void prcTellScreen();
  void prcTellControls();
  void prcTellFile();
  void prcTellMoney();
  void prcTellMarks();
  /// Tells a text that stands for something when it differs from what it was.
  void prcTell(const std::string& what, const std::string& now);

  std::string told_, before_;
  std::vector<std::string> watched_;
  std::map<std::string, std::string> last_;  ///< By what: the text last told.
  std::set<std::string> windows_;
  Looks looks_;
  std::vector<Quick> controls_;
  std::map<std::string, std::string> file_;
};
