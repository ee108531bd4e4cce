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
  const std::string numbers =
      fncPair(c.Red, ",", c.Green) + "," + std::to_string(static_cast<int>(c.Blue));
  const auto known = names.find(numbers);
  return c.Clear ? "clear" : known != names.end() ? known->second : numbers;
}

std::string fncIndexed(const std::string& name, int index) {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

std::string fncJoined(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) {
    text += part;
  }
  return text;
}

/// A seat's money as its label shows it, and as the books keep it where that says more.
std::string fncMoney(const std::string& caption, double kept) {
  std::string digits = caption;
  std::erase_if(digits, [](char sign) { return sign == '$' || sign == ','; });
  return caption + (digits == fncNumber(kept) ? "" : " = " + fncNumber(kept));
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
  const std::size_t dot = name.find('.');
  const std::string form = dot == std::string::npos ? "" : name.substr(0, dot);
  const std::string own = dot == std::string::npos ? name : name.substr(dot + 1);
  Control* found = nullptr;
  for (const Window* window : fncWindows()) {
    for (Control* control : window->Controls) {
      const bool blnHere = (form.empty() || window->Name == form) &&
                           fncIndexed(control->Name, control->Index) == own;
      if ((blnHere || fncFullName(*control) == name) && (found == nullptr || fncSeen(*control))) {
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

Transcript::Words Transcript::fncWords(const Control& c) {
  const bool blnLine = c.Kind == ControlKind::Line;
  const bool blnCheck = c.Kind == ControlKind::MenuEntry || c.Kind == ControlKind::ToolButton;
  const std::string value =
      blnCheck ? (c.Value == 0 ? "off" : "on") : "value " + fncNumber(c.Value);
  return {c.Visible ? "shown" : "hidden",
          c.Enabled ? "enabled" : "disabled",
          fncQuoted(c.Text),
          value,
          "of " + fncNumber(c.Max) + " by " + fncPair(c.SmallChange, "/", c.LargeChange),
          blnLine ? "from " + fncPair(c.X1, ",", c.Y1) : "at " + fncPair(c.Left, ",", c.Top),
          blnLine ? "to " + fncPair(c.X2, ",", c.Y2) : "size " + fncPair(c.Width, "x", c.Height),
          "text " + fncColour(c.ForeColor),
          "fill " + fncColour(c.FillColor),
          "picture " + std::to_string(int{c.Picture}),
          "selects " + std::to_string(std::min(c.SelLength, static_cast<int>(c.Text.size()))),
          std::string("pointer ") + strPointers[static_cast<std::size_t>(c.MousePointer)],
          std::to_string(c.List.size()) + " rows, row " + std::to_string(c.ListIndex) + ": " +
              (c.List.empty() ? "" : fncQuoted(c.List.back()))};
}

bool Transcript::fncWatched(const Control& control) const {
  return !fncOfMarks(control) && std::ranges::any_of(watched_, [&](const std::string& name) {
    return fncFullName(control).starts_with(name);
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
        controls_.push_back({control, control->Visible, control->Text});
      }
    }
  }
  return looks;
}

bool Transcript::Moved() const {
  return std::ranges::any_of(controls_, [](const Quick& was) {
    return was.Of->Visible != was.Visible || was.Of->Text != was.Text;
  });
}

std::string Transcript::See(const std::string& name) {
  const Control control = user::Seen(fncNamed(name));
  Control plain;
  plain.Kind = control.Kind;
  const Words words = fncWords(control), usual = fncWords(plain);
  std::string text = name + ":";
  for (std::size_t n = 0; n < words.size(); ++n) {
    text += n == 0 || words.at(n) != usual.at(n) ? " " + words.at(n) + "," : "";
  }
  text.pop_back();
  return text;
}

void Transcript::prcTell(const std::string& topic, const std::string& what,
                         const std::string& now) {
  if (std::exchange(last_[what], now) != now && topics_.contains(topic)) {
    prcClause(what + ": " + (now.empty() ? "none" : now));
  }
}

void Transcript::prcTellScreen() {
  static const char* const icons[]{"", "stop", "!", "i"};
  for (const user::Box& box : user::Boxes()) {
    std::string choice = box.blnCancel ? " OK/Cancel" : "";
    choice += box.Standard == platform::Answer::Cancel ? ", Cancel" : "";
    prcClause("box " + std::string(icons[static_cast<std::size_t>(box.Icon)]) + "[" + box.Title +
              choice + "]: " + fncPiped(box.Text));
  }
  user::ForgetBoxes();
  for (auto* calls : {&headless::Opened(), &headless::HelpShown()}) {
    for (const std::string& call : *calls) {
      prcClause("opens " + call.substr(call.find("VELMORA.HLP") == std::string::npos
                                           ? 0
                                           : call.find("VELMORA.HLP")));
    }
    calls->clear();
  }
  std::string windows, focus;
  // The end takes all windows off the screen, those too that the program had no time to close.
  for (const Window* loaded : user::Ended() ? std::vector<Window*>() : fncWindows()) {
    const Window window = user::Seen(*loaded);
    windows += std::string(" ") + window.Name + (window.Visible ? "" : "(hidden)") +
               (window.Topmost ? "(top)" : "");
    if (window.ActiveControl != nullptr && fncSeen(*window.ActiveControl) &&
        fncUsable(*window.ActiveControl)) {
      focus += " " + fncIndexed(window.ActiveControl->Name, window.ActiveControl->Index);
    }
    prcTell("places", window.Name,
            "at " + fncPair(window.Left, ",", window.Top) + ", size " +
                fncPair(window.Width, "x", window.Height) +
                (window.Maximised ? ", maximised" : ""));
  }
  prcTell("windows", "windows", windows.empty() ? "" : windows.substr(1));
  prcTell("focus", "focus", focus.empty() ? "" : focus.substr(1));
  prcTell("program", "program", user::Ended() ? "ended" : blnBusy ? "busy" : "waits");
}

void Transcript::prcTellControls() {
  if (blnTableLoaded) {
    std::string labels;
    for (const Control* control : BaccTable.Form.Controls) {
      // The money has a line of its own.
      if (control->Kind != ControlKind::Label || !control->Announce || !control->ToolTip.empty()) {
        continue;
      }
      if (const Control seen = user::Seen(*control); seen.Visible) {
        labels += " " + fncIndexed(seen.Name, seen.Index) + "=" + fncPiped(seen.Text);
      }
    }
    prcTell("table", "table", labels.empty() ? "" : labels.substr(1));
  }
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
    std::string bets;
    for (const BetSide side : {betTie, betBanker, betPlayer}) {
      const BetControls bet = fncBet(side, i);
      const Control value = user::Seen(bet.Value);
      bets += (side == betTie ? "" : "/") + user::Seen(bet.Box).Text +
              (value.Visible ? "(" + value.Text + ")" : "");
    }
    const std::string seat = std::to_string(i + 1), won = fncNumber(dblPlayerWin[i]);
    const std::string win = file_["[Player" + seat + "Stats]Win"];
    const std::string turnover = file_["[Player" + seat + "Stats]Turnover"];
    const bool blnPlayed = !win.empty() || !turnover.empty() || dblPlayerWin[i] != 0;
    prcTell(
        "money", "seat " + seat,
        fncJoined(
            {fncMoney(user::Seen(BaccTable.lblPlayerTotal[i]).Text, dblPlayerTotal[i]),
             blnPlayed ? ", won " : "",
             blnPlayed ? fncMoney(user::Seen(BaccTable.lblPlayerWinnings[i]).Text, dblPlayerWin[i])
                       : "",
             !blnPlayed || win == (won.starts_with('-') ? won : " " + won) ? ""
                                                                           : " (file" + win + ")",
             turnover.empty() ? "" : " of" + turnover, ", bets ", bets}));
  }
}

void Transcript::prcTellMarks() {
  MarkCardWindow* card = fncMarkCard(0);
  if (card == nullptr) {
    return;
  }
  const Control picture = user::Seen(card->Picture1);
  prcTell("marks", "card",
          "at " + fncPair(picture.Left, ",", picture.Top) + ", high " + fncNumber(picture.Height));
  const Control heading = user::Seen(card->lblBP.at(0));
  const auto& [last, lastHeading] = *card->lblBP.rbegin();
  prcTell("marks", "headings",
          !heading.Visible
              ? "none"
              : heading.Text + user::Seen(lastHeading).Text + " to " + std::to_string(last));
  if (!user::Seen(card->shpTBP.at(0)).Visible) {
    // A new shoe: marks that come again where they were are told again.
    std::erase_if(last_, [](const auto& told) {
      return told.first != "mark 0" &&
             (told.first.starts_with("mark ") || told.first.starts_with("total "));
    });
  }
  for (const auto& [n, control] : card->lblTotal) {
    if (const Control total = user::Seen(control); total.Visible) {
      const std::string at =
          total.Left == 30 + 345 * n ? "" : " at " + fncNumber(total.Left);  // Its own column.
      const std::string colour = fncColour(total.ForeColor);
      const bool blnUsual = colour == (total.Text.starts_with('-') ? "dark red" : "black");
      prcTell("marks", "total " + std::to_string(n),
              total.Text + at + (blnUsual ? "" : " " + colour));
    }
  }
  for (const auto& [n, control] : card->shpTBP) {
    const Control shape = user::Seen(control), text = user::Seen(card->lblTBP.at(n));
    // A line does not stand in a row of its own.
    const std::string place = fncNumber((shape.Left - 60) / intColumnPitch) +
                              (text.Visible ? "," + fncNumber((shape.Top - 510) / intRowPitch + 1)
                                            : " top " + fncNumber(shape.Top));
    const std::string high =
        text.Visible && shape.Height == 225 ? " " : " high " + fncNumber(shape.Height) + " ";
    const std::string ink = fncColour(text.ForeColor);
    const std::string caption =
        !text.Visible ? "line" : fncQuoted(text.Text) + (ink == "black" ? "" : " " + ink);
    prcTell("marks", "mark " + std::to_string(n),
            !shape.Visible
                ? "none"
                : fncJoined({place, high, fncColour(shape.BorderColor),
                             shape.Form2D == ShapeForm::Oval ? " oval " : " ", caption}));
  }
}

std::string Transcript::WhatIsNew() {
  told_.clear();
  prcTellScreen();
  prcTellControls();
  prcTellFile();
  prcTellMoney();
  prcTellMarks();
  return told_;
}
