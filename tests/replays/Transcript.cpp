#include "tests/replays/Transcript.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "marking/MarkCard.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"
#include "tests/Game.h"

namespace {

std::string fncNumber(double number) { return fncPlainNumberText(number); }

std::string fncPair(double one, const char* sign, double other) {
  return fncNumber(one) + sign + fncNumber(other);
}

std::string fncQuoted(const std::string& text) { return '"' + fncPiped(text) + '"'; }

std::string fncColour(const Colour& c) {
  static const std::map<std::string, std::string> names{
      {"0,0,0", "black"},       {"255,255,255", "white"}, {"192,0,0", "dark red"},
      {"0,0,128", "dark blue"}, {"0,192,0", "green"},     {"255,64,64", "red"},
      {"0,0,255", "blue"}};
  const std::string rgb = fncPair(c.Red, ",", c.Green) + "," + fncNumber(c.Blue);
  const auto known = names.find(rgb);
  return c.Clear ? "clear" : known != names.end() ? known->second : rgb;
}

std::string fncIndexed(const std::string& name, int index) {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

/// A tool button stands on both toolbars, each with a state of its own.
std::string fncFullName(const Control& control) {
  return (control.Kind == ControlKind::ToolButton ? control.Container->Name + std::string(".")
                                                  : "") +
         control.Name;
}

/// The marks of a card are told as marks.
bool fncOfMarks(const Control& control) {
  static const std::set<std::string> families{"shpTBP", "lblTBP", "lblTotal", "lblBP", "lneHLine"};
  return families.contains(control.Name);
}

const char* const strPointers[]{"arrow", "up-down", "left-right", "hand up", "hand right", "link"};

}  // namespace

void prcAdd(std::string& told, const std::string& clause) {
  told += (told.empty() || clause.empty() ? "" : "; ") + clause;
}

Window& fncWindowNamed(const std::string& name) {
  for (Window* window : fncWindows()) {
    if (window->Name == name) {
      return *window;
    }
  }
  throw std::logic_error("no window " + name);
}

Control& fncNamed(const std::string& name) {
  Control* found = nullptr;
  for (const Window* window : fncWindows()) {
    for (Control* control : window->Controls) {
      const std::string own = fncIndexed(control->Name, control->Index);
      const bool blnMeant =
          name == own || name == window->Name + ("." + own) || name == fncFullName(*control);
      if (blnMeant && (found == nullptr || fncSeen(*control))) {
        found = control;
      }
    }
  }
  return found != nullptr ? *found : throw std::logic_error("no control " + name);
}

void Transcript::Tells(const std::string& topics) {
  std::istringstream words(topics);
  topics_ = {std::istream_iterator<std::string>(words), {}};
}

void Transcript::Watch(const std::string& names) {
  std::istringstream words(names);
  watched_.assign(std::istream_iterator<std::string>(words), {});
  looks_ = fncLooks();
}

void Transcript::Forget() {
  Watch("");
  last_.clear();
  windows_.clear();
}

Transcript::Words Transcript::fncWords(const Control& c) {
  const bool blnLine = c.Kind == ControlKind::Line;
  const bool blnCheck = c.Kind == ControlKind::MenuEntry || c.Kind == ControlKind::ToolButton;
  return {c.Visible ? "shown" : "hidden",
          c.Enabled ? "enabled" : "disabled",
          fncQuoted(c.Text),
          blnCheck ? (c.Value == 0 ? "off" : "on") : "value " + fncNumber(c.Value),
          "of " + fncNumber(c.Max) + " by " + fncPair(c.SmallChange, "/", c.LargeChange),
          "text " + fncColour(c.ForeColor),
          "fill " + fncColour(c.FillColor),
          "picture " + std::to_string(int{c.Picture}),
          std::string("pointer ") + strPointers[static_cast<std::size_t>(c.MousePointer)],
          std::to_string(c.List.size()) + " rows, row " + std::to_string(c.ListIndex) + ": " +
              (c.List.empty() ? "" : fncQuoted(c.List.back())),
          blnLine ? "from " + fncPair(c.X1, ",", c.Y1) : "at " + fncPair(c.Left, ",", c.Top),
          blnLine ? "to " + fncPair(c.X2, ",", c.Y2) : "size " + fncPair(c.Width, "x", c.Height)};
}

bool Transcript::fncWatched(const Control& control) const {
  return !fncOfMarks(control) && std::ranges::any_of(watched_, [&](const std::string& name) {
    return fncIndexed(fncFullName(control), control.Index).starts_with(name);
  });
}

/// Names in few words: "lblBBet*" where all that is watched by that name is meant, "txtTieBet(0
/// 1)".
std::string Transcript::fncList(Names names) const {
  std::string list;
  for (const std::string& prefix : watched_) {
    const auto blnOf = [&](const auto& name) { return name.first.starts_with(prefix); };
    const auto all =
        std::ranges::count_if(looks_, [&](const auto& look) { return blnOf(look.first); });
    if (all > 1 && std::ranges::count_if(names, blnOf) == all) {
      std::erase_if(names, blnOf);
      list += " " + prefix + "*";
    }
  }
  for (const auto& [name, index] : names) {
    if (index > 0 && list.rfind(' ' + name + '(') != std::string::npos) {
      list.insert(list.size() - 1, " " + std::to_string(index));
    } else {
      list += " " + fncIndexed(name, index);
    }
  }
  return list;
}

Transcript::Looks Transcript::fncLooks() {
  Looks looks;
  controls_.clear();
  for (const Window* window : fncWindows()) {
    for (const Control* control : window->Controls) {
      if (fncWatched(*control)) {
        looks[{fncFullName(*control), int{control->Index}}] = fncWords(user::Seen(*control));
        controls_.push_back(control);
      }
    }
  }
  quick_ = fncQuickLook();
  return looks;
}

std::string Transcript::fncQuickLook() const {
  std::string look;
  for (const Control* control : controls_) {
    look += (control->Visible ? '+' : '-') + control->Text;
  }
  return look;
}

bool Transcript::Moved() const { return fncQuickLook() != quick_; }

std::string Transcript::See(const std::string& name) {
  const Control control = user::Seen(fncNamed(name));
  Control plain;
  plain.Kind = control.Kind;
  const Words words = fncWords(control), usual = fncWords(plain);
  const std::size_t places = control.Kind == ControlKind::Line ? 0 : 2;
  std::string seen;
  for (std::size_t n = 0; n < words.size() - places; ++n) {
    if (words.at(n) != usual.at(n)) {
      seen += (seen.empty() ? " " : ", ") + words.at(n);
    }
  }
  return name + ":" + seen;
}

void Transcript::prcTell(const std::string& topic, const std::string& what,
                         const std::string& now) {
  if (std::exchange(last_[what], now) != now && topics_.contains(topic)) {
    prcClause(what + ": " + (now.empty() ? "none" : now));
  }
}

void Transcript::prcTellBoxes() {
  static const char* const icons[]{"", "stop", "!", "i"};
  for (const user::Box& box : user::Boxes()) {
    std::string choice = box.Buttons == platform::Buttons::OkCancel ? " OK/Cancel" : "";
    choice += box.Standard == platform::Answer::Cancel ? ", Cancel" : "";
    prcClause("box " + std::string(icons[static_cast<std::size_t>(box.Icon)]) + "[" + box.Title +
              choice + "]: " + fncPiped(box.Text));
  }
  user::ForgetBoxes();
  for (auto* opened : {&headless::Opened(), &headless::HelpShown()}) {
    for (const std::string& call : *opened) {
      const std::size_t help = call.find("VELMORA.HLP");
      prcClause("opens " + call.substr(help == std::string::npos ? 0 : help));
    }
    opened->clear();
  }
  prcTell("program", "program", user::Ended() ? "ended" : blnBusy ? "busy" : "waits");
}

void Transcript::prcTellWindows() {
  if (user::Ended()) {
    return;  // All windows are off the screen, those too that there was no time to close.
  }
  std::set<std::string> gone = std::exchange(windows_, {});
  std::string focus;
  for (const Window* loaded : fncWindows()) {
    const Window window = user::Seen(*loaded);
    const std::string name = window.Name;
    gone.erase(name);
    windows_.insert(name);
    prcTell("windows", name, !window.Visible ? "hidden" : window.Topmost ? "on top" : "shown");
    prcTell(topics_.contains(name) ? name : "places", "place of " + name,
            fncPair(window.Left, ",", window.Top) + " " +
                fncPair(window.Width, "x", window.Height) + (window.Maximised ? " maximised" : ""));
    if (window.ActiveControl != nullptr && fncSeen(*window.ActiveControl) &&
        fncUsable(*window.ActiveControl)) {
      focus += " " + fncIndexed(window.ActiveControl->Name, window.ActiveControl->Index);
    }
  }
  for (const std::string& name : gone) {
    prcTell("windows", name, "gone");
  }
  prcTell("focus", "focus", focus.empty() ? "" : focus.substr(1));
}

void Transcript::prcTellTable() {
  if (!blnTableLoaded) {
    return;
  }
  std::string labels;
  for (const Control* control : BaccTable.Form.Controls) {
    // The money has a line of its own.
    if (control->Kind == ControlKind::Label && control->Announce && control->ToolTip.empty()) {
      const Control seen = user::Seen(*control);
      labels +=
          seen.Visible ? " " + fncIndexed(seen.Name, seen.Index) + "=" + fncPiped(seen.Text) : "";
    }
  }
  prcTell("table", "table", labels.empty() ? "" : labels.substr(1));
}

void Transcript::prcTellWatched() {
  Looks now = fncLooks();
  std::map<std::string, Names> changes;
  for (const auto& [name, words] : now) {
    const auto then = looks_.find(name);
    for (std::size_t n = 0; then != looks_.end() && n < words.size(); ++n) {
      if (then->second.at(n) != words.at(n)) {
        changes[words.at(n)].push_back(name);
      }
    }
  }
  looks_ = std::move(now);
  for (const auto& [word, names] : changes) {
    prcClause(word + ":" + fncList(names));
  }
}

void Transcript::prcTellFile() {
  std::ifstream file(strIniFile, std::ios::binary);
  std::map<std::string, std::string> now;
  std::string line, section;
  while (std::getline(file, line)) {
    line.erase(line.find_last_not_of('\r') + 1);
    const std::size_t equals = line.find('=');
    section = line.starts_with('[') ? line : section;
    if (equals != std::string::npos) {
      now[section + line.substr(0, equals)] = line.substr(equals + 1);
    }
  }
  for (const auto& [key, value] : now) {
    // What a seat has won and turned over is told with its money.
    const bool blnMoney = key.ends_with("Stats]Win") || key.ends_with("Stats]Turnover");
    if (!blnMoney && topics_.contains("file") && (!file_.contains(key) || file_[key] != value)) {
      prcClause(std::string(key).append("=").append(value));
    }
  }
  file_ = std::move(now);
}

void Transcript::prcTellMoney() {
  for (int i = 0; i < intSeats && blnTableLoaded; ++i) {
    const std::string seat = std::to_string(i + 1);
    prcTell("money", "seat " + seat, user::Seen(BaccTable.lblPlayerTotal[i]).Text);
    std::string bets;
    for (const BetSide side : {betTie, betBanker, betPlayer}) {
      const Control box = user::Seen(fncBet(side, i).Box),
                    value = user::Seen(fncBet(side, i).Value);
      const bool blnBet = box.Text != "0";
      const std::string worth = fncCurrency(fncVal(box.Text) * fncUnitValue());
      const bool blnUsual = value.Visible == blnBet && (!blnBet || value.Text == worth);
      bets += (bets.empty() ? "" : "/") + box.Text;
      bets += blnUsual ? "" : "(" + (value.Visible ? value.Text : "") + ")";
    }
    prcTell("money", "bets " + seat, bets);
    if (const std::string turnover = file_["[Player" + seat + "Stats]Turnover"];
        !turnover.empty()) {
      prcTell("money", "won " + seat,
              user::Seen(BaccTable.lblPlayerWinnings[i]).Text + " of" + turnover);
    }
  }
}

void Transcript::prcTellTotals(const MarkCardWindow& card) {
  for (const auto& [n, control] : card.lblTotal) {
    if (const Control total = user::Seen(control); total.Visible) {
      const std::string at =
          total.Left == 30 + 345 * n ? "" : " at " + fncNumber(total.Left);  // Its own column.
      const std::string colour = fncColour(total.ForeColor);
      const bool blnUsual = colour == (total.Text.starts_with('-') ? "dark red" : "black");
      prcTell("marks", "total " + std::to_string(n),
              total.Text + at + (blnUsual ? "" : " " + colour));
    }
  }
}

void Transcript::prcTellMarks() {
  const MarkCardWindow* card = fncMarkCard(0);
  if (card == nullptr) {
    return;
  }
  const Control picture = user::Seen(card->Picture1), heading = user::Seen(card->lblBP.at(0));
  const auto& [lastColumn, lastHeading] = *card->lblBP.rbegin();
  prcTell("marks", "card",
          "at " + fncPair(picture.Left, ",", picture.Top) + ", high " + fncNumber(picture.Height));
  prcTell("marks", "headings",
          heading.Visible
              ? heading.Text + user::Seen(lastHeading).Text + " to " + std::to_string(lastColumn)
              : "");
  if (card->shpTBP.size() == 1 && !user::Seen(card->shpTBP.at(0)).Visible) {
    // A new shoe: marks that come again where they were are told again.
    std::erase_if(last_, [](const auto& told) {
      return told.first.starts_with("mark ") || told.first.starts_with("total ");
    });
  }
  prcTellTotals(*card);
  for (const auto& [n, control] : card->shpTBP) {
    const Control shape = user::Seen(control), text = user::Seen(card->lblTBP.at(n));
    if (!shape.Visible) {
      continue;
    }
    // The line of a tie does not stand in a row of its own.
    const bool blnLine = !text.Visible;
    const std::string ink = fncColour(text.ForeColor);
    std::string mark = fncNumber((shape.Left - 60) / intColumnPitch);
    mark += blnLine ? " top " + fncNumber(shape.Top)
                    : "," + fncNumber((shape.Top - 510) / intRowPitch + 1);
    mark += shape.Height == (blnLine ? 30 : 225) ? "" : " high " + fncNumber(shape.Height);
    mark += " " + fncColour(shape.BorderColor) + (shape.Form2D == ShapeForm::Oval ? " oval" : "");
    mark += blnLine ? " line" : " " + fncQuoted(text.Text) + (ink == "black" ? "" : " " + ink);
    prcTell("marks", "mark " + std::to_string(n), mark);
  }
}

std::string Transcript::WhatIsNew() {
  told_.clear();
  prcTellBoxes();
  prcTellWindows();
  prcTellTable();
  prcTellWatched();
  prcTellFile();
  prcTellMoney();
  prcTellMarks();
  return std::exchange(told_, "");
}
