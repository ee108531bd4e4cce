#include "tests/replays/Transcript.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <stdexcept>

#include "marking/MarkCard.h"
#include "platform/ProfileFile.h"
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
      {"0,0,0", "black"},          {"255,255,255", "white"}, {"192,0,0", "red"},
      {"255,64,64", "bright red"}, {"0,0,128", "blue"},      {"0,0,255", "bright blue"},
      {"0,192,0", "green"}};
  const std::string rgb = fncPair(c.Red, ",", c.Green) + "," + fncNumber(c.Blue);
  return c.Clear ? "clear" : names.contains(rgb) ? names.at(rgb) : rgb;
}

std::string fncIndexed(const std::string& name, int index) {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

/// What a control is in. A tool button stands on both toolbars, each with a state of its own.
std::string fncHolder(const Control& control) {
  return control.Kind == ControlKind::ToolButton ? control.Container->Name : control.Form->Name;
}

std::vector<Control*> fncControls() {
  std::vector<Control*> controls;
  for (const Window* window : fncWindows()) {
    controls.insert(controls.end(), window->Controls.begin(), window->Controls.end());
  }
  return controls;
}

const char* const strPointers[]{"arrow", "up-down", "left-right", "hand up", "hand right", "link"};

}  // namespace

std::string fncOwnName(const Control& control) { return fncIndexed(control.Name, control.Index); }

void prcAdd(std::string& told, const std::string& clause) {
  told += (told.empty() || clause.empty() ? "" : "; ") + clause;
}

Window& fncWindowNamed(const std::string& name) {
  const auto found = std::ranges::find(fncWindows(), name, &Window::Name);
  return found != fncWindows().end() ? **found : throw std::logic_error("no window " + name);
}

Control& fncNamed(const std::string& name) {
  Control* found = nullptr;
  for (Control* control : fncControls()) {
    const std::string own = fncOwnName(*control);
    const bool blnMeant = name == own || name == fncHolder(*control) + "." + own;
    if (blnMeant && (found == nullptr || fncSeen(*control))) {
      found = control;
    }
  }
  return found != nullptr ? *found : throw std::logic_error("no control " + name);
}

void Transcript::Watch(const std::vector<std::string>& names) {
  watched_ = names;
  looks_ = fncLooks();
  quick_ = fncQuickLook();
}

void Transcript::See(const std::vector<std::string>& names) {
  Watch(names);
  for (auto& [control, words] : looks_) {
    Control plain;
    plain.Kind = control->Kind;
    const Words usual = fncWords(plain);
    std::copy(usual.begin(), usual.end() - (plain.Kind == ControlKind::Line ? 0 : 2),
              words.begin());
  }
}

void Transcript::Forget() {
  Watch({});
  facts_.clear();
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

Transcript::Looks Transcript::fncLooks() const {
  Looks looks;
  for (const Control* control : fncControls()) {
    const std::string own = fncOwnName(*control), full = fncHolder(*control) + "." + own;
    if (std::ranges::any_of(watched_, [&](const std::string& name) {
          return own.starts_with(name) || full.starts_with(name);
        })) {
      looks[control] = fncWords(user::Seen(*control));
    }
  }
  return looks;
}

std::string Transcript::fncQuickLook() const {
  std::string look;
  for (const auto& [control, words] : looks_) {
    look += (control->Visible ? '+' : '-') + control->Text;
  }
  return look;
}

void Transcript::prcTell(const std::string& topic, const std::string& what,
                         const std::string& now) {
  const Facts::value_type& fact = *facts_.insert({{topic, what}, now}).first;
  const auto before = factsBefore_.find(fact.first);
  if (topics_.contains(topic) && (before == factsBefore_.end() || before->second != now)) {
    prcAdd(told_, what + ": " + now);
  }
}

void Transcript::prcTellBoxes() {
  static const char* const icons[]{"", " stop", " !", " i"};
  for (const user::Box& box : user::Boxes()) {
    std::string told = std::string("box") + icons[static_cast<std::size_t>(box.Icon)];
    told += box.Title == "Velmora" ? "" : " [" + box.Title + "]";
    const bool blnAsks = box.Buttons == platform::Buttons::OkCancel;
    told += blnAsks ? " OK/Cancel" : "";
    told += blnAsks && box.Standard == platform::Answer::Ok ? ", OK" : "";
    told += ": " + fncPiped(box.Text);
    prcAdd(told_, std::exchange(box_, told) == told ? "box again" : told);
  }
  user::ForgetBoxes();
  for (auto* opened : {&headless::Opened(), &headless::HelpShown()}) {
    for (const std::string& call : *opened) {
      const std::size_t help = call.find("VELMORA.HLP");
      prcAdd(told_, "opens " + call.substr(help == std::string::npos ? 0 : help));
    }
    opened->clear();
  }
  prcTell("program", "program", user::Ended() ? "ended" : blnBusy ? "busy" : "waits");
}

void Transcript::prcTellWindows() {
  if (user::Ended()) {
    return;  // All windows are off the screen, those too that there was no time to close.
  }
  std::string focus;
  for (const Window* loaded : fncWindows()) {
    const Window window = user::Seen(*loaded);
    const std::string name = window.Name;
    prcTell("windows", name, !window.Visible ? "hidden" : window.Topmost ? "on top" : "shown");
    prcTell(topics_.contains(name) ? name : "places", name + " at",
            fncPair(window.Left, ",", window.Top) + " " +
                fncPair(window.Width, "x", window.Height) + (window.Maximised ? " maximised" : ""));
    if (window.ActiveControl != nullptr && fncSeen(*window.ActiveControl) &&
        fncUsable(*window.ActiveControl)) {
      focus += (focus.empty() ? "" : " ") + fncOwnName(*window.ActiveControl);
    }
  }
  prcTell("focus", "focus", focus.empty() ? "none" : focus);
  for (const auto& [fact, before] : factsBefore_) {
    if (fact.first == "windows" && !facts_.contains(fact) && topics_.contains("windows")) {
      prcAdd(told_, fact.second + ": gone");
    }
  }
}

void Transcript::prcTellTable() {
  std::string labels;
  for (const Control* control : BaccTable.Form.Controls) {
    // The money has a line of its own.
    if (control->Kind == ControlKind::Label && control->Announce && control->ToolTip.empty()) {
      const Control seen = user::Seen(*control);
      labels += seen.Visible ? " " + fncOwnName(seen) + "=" + fncPiped(seen.Text) : "";
    }
  }
  prcTell("table", "table", labels.empty() ? "none" : labels.substr(1));
}

void Transcript::prcTellWatched() {
  const Looks before = std::exchange(looks_, fncLooks());
  quick_ = fncQuickLook();
  std::map<std::string, std::set<std::pair<std::string, int>>> changes;
  for (const auto& [control, words] : looks_) {
    const auto then = before.find(control);
    for (std::size_t n = 0; then != before.end() && n < words.size(); ++n) {
      if (then->second.at(n) != words.at(n)) {
        const bool blnTool = control->Kind == ControlKind::ToolButton;
        changes[words.at(n)].emplace((blnTool ? fncHolder(*control) + "." : "") + control->Name,
                                     control->Index);
      }
    }
  }
  for (const auto& [word, names] : changes) {
    std::string list, last;
    for (const auto& [name, index] : names) {
      if (std::exchange(last, name) == name) {
        list.insert(list.size() - 1, " " + std::to_string(index));
      } else {
        list.append(" ").append(fncIndexed(name, index));
      }
    }
    prcAdd(told_, list.insert(0, word + ":"));
  }
}

void Transcript::prcTellFile() {
  // What a seat has won and turned over is told with its money.
  static const std::regex money(".*Stats\\](Win|Turnover)");
  std::ifstream file(strIniFile, std::ios::binary);
  for (std::string line, section; std::getline(file, line);) {
    line.erase(line.find_last_not_of('\r') + 1);
    const std::size_t equals = line.find('=');
    section = line.starts_with('[') ? line : section;
    const std::string key = section + line.substr(0, equals);
    if (equals != std::string::npos && !std::regex_match(key, money)) {
      prcTell("file", key, line.substr(equals + 1));
    }
  }
}

void Transcript::prcTellMoney() {
  for (int i = 0; i < intSeats && blnTableLoaded; ++i) {
    const std::string seat = "seat " + std::to_string(i + 1);
    std::string money = user::Seen(BaccTable.lblPlayerTotal[i]).Text;
    for (const BetSide side : betSides) {
      const Control box = user::Seen(fncBet(side, i).Box),
                    value = user::Seen(fncBet(side, i).Value);
      const std::string shown = value.Visible ? value.Text : "";
      const bool blnUsual =
          shown == (box.Text == "0" ? "" : fncCurrency(fncVal(box.Text) * fncUnitValue()));
      money += (side == betTie ? " " : "/") + box.Text + (blnUsual ? "" : "(" + shown + ")");
    }
    prcTell("money", seat, money);
    prcTell("money", seat + " won",
            user::Seen(BaccTable.lblPlayerWinnings[i]).Text + " of " +
                fncReadProfile(strIniFile, fncSeatSection(i), "Turnover", "No"));
  }
}

void Transcript::prcTellMark(int number, const Control& shape, const Control& text) {
  const bool blnLine = !text.Visible;  // The line of a tie does not stand in a row of its own.
  const std::string ink = fncColour(text.ForeColor);
  std::string mark = fncPair((shape.Left - 60) / intColumnPitch, ",",
                             blnLine ? shape.Top : (shape.Top - 510) / intRowPitch + 1);
  mark += shape.Height == (blnLine ? 30 : 225) ? "" : " high " + fncNumber(shape.Height);
  mark += " " + fncColour(shape.BorderColor) + (shape.Form2D == ShapeForm::Oval ? " oval" : "");
  mark += blnLine ? " line" : " " + fncQuoted(text.Text) + (ink == "black" ? "" : " " + ink);
  prcTell("marks", "#" + std::to_string(number), mark);
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
  if (heading.Visible) {
    prcTell("marks", "headings",
            heading.Text + user::Seen(lastHeading).Text + " to " + std::to_string(lastColumn));
  }
  for (const auto& [n, control] : card->lblTotal) {
    if (const Control total = user::Seen(control); total.Visible) {
      const std::string colour = fncColour(total.ForeColor);
      const bool blnUsual = colour == (total.Text.starts_with('-') ? "red" : "black");
      prcTell("marks", "total " + fncNumber((total.Left - 30) / intColumnPitch),
              total.Text + (blnUsual ? "" : " " + colour));
    }
  }
  for (const auto& [n, shape] : card->shpTBP) {
    if (const Control seen = user::Seen(shape); seen.Visible) {
      prcTellMark(n, seen, user::Seen(card->lblTBP.at(n)));
    }
  }
}

std::string Transcript::WhatIsNew() {
  factsBefore_ = std::exchange(facts_, {});
  prcTellBoxes();
  prcTellWindows();
  prcTellTable();
  prcTellWatched();
  prcTellFile();
  prcTellMoney();
  prcTellMarks();
  return std::exchange(told_, "");
}
