#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <sstream>
#include <utility>

#include "judges/Invariants.h"
#include "marking/MarkCardEvents.h"
#include "marking/MarkState.h"
#include "platform/UserInput.h"
#include "shell/Dialogs.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "table/DealCommand.h"
#include "tests/Game.h"
#include "tests/replays/Transcript.h"

// Evenings of play as text: what the user does, and what the program then tells, which must come
// out again. The words are told in README.md beside the files.

namespace {

/// The words of a step behind its name. Those that are not there are empty.
struct Words {
  explicit Words(const std::string& line) {
    std::istringstream stream(line);
    All.assign(std::istream_iterator<std::string>(stream), {});
  }
  std::string operator[](std::size_t n) const { return n < All.size() ? All[n] : ""; }
  int Number(std::size_t n, int otherwise = 0) const {
    return n < All.size() ? std::stoi(All[n]) : otherwise;
  }
  /// All from the n-th on, with single blanks between.
  std::string From(std::size_t n) const {
    std::string rest = (*this)[n];
    while (++n < All.size()) {
      rest += " " + All[n];
    }
    return rest;
  }

  std::vector<std::string> All;
};

struct Record {
  std::string Head;  ///< Remarks and empty lines before the step, as they stand in the file.
  std::string Steps, Told;
  int Line;
  std::string Came{};  ///< What is told when it is played.
};

/// Reads "> steps -> what is told". Lines that begin with a blank go on with the line before.
std::vector<Record> fncRead(std::istream& file) {
  std::vector<Record> records;
  std::string line, head;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.starts_with("> ")) {
      records.push_back({std::exchange(head, ""), line.substr(2), "", number});
    } else if (line.starts_with(" ") && !records.empty()) {
      records.back().Steps += line.substr(line.find_first_not_of(' ') - 1);
    } else {
      head += line + '\n';
    }
  }
  for (Record& record : records) {
    if (const std::size_t arrow = record.Steps.find(" -> "); arrow != std::string::npos) {
      record.Told = record.Steps.substr(arrow + 4);
      record.Steps.resize(arrow);
    }
  }
  return records;
}

/// The record as it stands in a file, broken at single blanks into lines of 100 columns.
std::string fncWritten(const Record& record) {
  static const std::regex piece("(.{1,97}[^ ])( (?=[^ ])|$)");
  const std::string told = record.Came.empty() ? "" : " -> " + record.Came;
  std::string lines = std::regex_replace("> " + record.Steps + told, piece, "$1\n  ");
  lines.resize(lines.size() - 2);
  return record.Head + lines;
}

class Replay : public Game, public testing::WithParamInterface<std::string> {
 protected:
  /// Plays up to the end of the file, or of what is done while a window, message or wait lasts.
  void PlayRecords() {
    while (++at_ < records_.size() && records_[at_].Steps != "end") {
      Do(records_[at_].Steps);
    }
  }

  std::vector<Record> records_;

 private:
  using Step = std::function<void(const Words&)>;

  std::string& Told() { return records_[at_].Came; }

  /// What the act tells, if anything, behind a word of its own.
  template <class Act>
  void TellApart(const std::string& word, Act act) {
    std::string& mine = Told();
    const std::string before = std::exchange(mine, "");
    act();
    const std::string told = std::exchange(mine, before);
    prcAdd(mine, told.empty() ? "" : word + ": " + told);
  }

  /// Plays "step; step", and behind "each a b: " once for each, with it in the place of "$".
  void Do(const std::string& steps) {
    static const std::regex each("(?:(.*?); )?each (.*?): (.*)"), place("\\$");
    if (std::smatch parts; std::regex_match(steps, parts, each)) {
      Do(parts[1]);
      for (const std::string& value : Words(parts[2]).All) {
        TellApart(value, [&] { Do(std::regex_replace(parts[3].str(), place, value)); });
      }
      return;
    }
    for (std::size_t at = 0, next = 0; at < steps.size(); at = next + 2) {
      next = std::min(steps.find("; ", at), steps.size());
      DoOne(Words(steps.substr(at, next - at)));
    }
  }

  void DoOne(const Words& step) {
    ASSERT_TRUE(steps_.contains(step[0])) << step.From(0);
    try {
      steps_.at(step[0])(Words(step.From(1)));
    } catch (const std::logic_error& refused) {
      prcAdd(Told(), std::string("refused: ") + refused.what());
    }
    Tell("");
  }

  void Tell(const std::string& before) {
    user::Settle();
    const std::string news = transcript_.WhatIsNew();
    prcAdd(Told(), news.empty() ? "" : before + news);
    if (!blnBooks_) {
      prcStartWatch();
    } else if (intLastCard[0] > 0) {
      EXPECT_EQ(fncLook(), "") << records_[at_].Steps;
    }
  }

  void PlayWithin() {
    Tell("");
    PlayRecords();
  }

  /// All that the program was is gone, but for its settings.
  void Stop() {
    prcFreshGame(Folder());
    transcript_.Forget();
  }

  void Boot() {
    user::Run(fncStartProgram);
    user::Wait(10);
    prcStartWatch();
  }

  /// Starts up to the table, where cards come face up and at once.
  void Start() {
    for (const char* slow : {"Delay", "Animation"}) {
      Setting("Deal", slow, "False");
    }
    Setting("Card Options", "Card Face Up", "True");
    Boot();
    transcript_.WhatIsNew();
  }

  static void Set(const Words& w) {
    static const std::regex key("(.*?)\\.(.*?)=(.*)");
    std::smatch parts;
    const std::string line = w.From(0);
    ASSERT_TRUE(std::regex_match(line, parts, key)) << line;
    Setting(parts[1], parts[2], parts[3]);
  }

  static void Cards(const Words& w) {
    std::istringstream values(w.From(0));
    NextCards({std::istream_iterator<int>(values), {}});
  }

  static void PlaceBet(const Words& w) {
    Bet(betSides.at(std::string("TBP").find(w[0])), w.Number(1) - 1, w[2]);
  }

  void Drag(const Words& w) {
    user::Drag(fncNamed(w[0]), static_cast<float>(w.Number(1)), static_cast<float>(w.Number(2)));
    prcAdd(Told(), user::PaintedAtOnce() ? "painted at once" : "");
  }

  /// Runs the rest of the step at a later moment, inside whatever wait the program is then in.
  void Later(const Words& w) {
    user::After(static_cast<std::uint32_t>(w.Number(0)), [this, w] {
      Tell("");
      TellApart("at " + w[0], [&] { DoOne(Words(w.From(1))); });
    });
  }

  /// Tells every change at its millisecond, until the hand is over.
  void Look(std::uint32_t start) {
    if (transcript_.Moved()) {
      Tell("@" + std::to_string(user::Now() - start) + " ");
    }
    if (!user::Ended() && blnBusy && !BaccTable.Timer1.Enabled) {
      user::After(1, [this, start] { Look(start); });
    }
  }

  /// What is switched on among what the frame shows and whose names begin so.
  void On(const std::string& prefix) {
    std::string on = "on:";
    for (const Control* control : MDIForm1.Form.Controls) {
      const std::string name = fncOwnName(*control);
      on += control->Value == 1 && fncSeen(*control) && name.starts_with(prefix) ? " " + name : "";
    }
    prcAdd(Told(), on);
  }

  /// Lays six cards as 'f' face in view, 'b' under a back and ready for the user, 'B' so too with
  /// the mouse on it, 'l' a back alone or '.' nothing.
  static void Lay(const std::string& looks) {
    user::Hover(BaccTable.Form);
    for (int n = 0; n < intPositions; ++n) {
      const char look = looks.at(static_cast<std::size_t>(n));
      const bool blnHidden = look == 'b' || look == 'B';
      BaccTable.pctCardBack[n].Visible = blnHidden || look == 'l';
      BaccTable.pctCardFace[n].Visible = blnHidden || look == 'f';
      BaccTable.lblCardBottom[n].Visible = BaccTable.lblCardRight[n].Visible = blnHidden;
      blnCardClickable[n] = blnHidden || look == 'f';
    }
    BaccTable.blnCardsPlaced = true;
    if (const std::size_t at = looks.find('B'); at != std::string::npos) {
      user::Hover(BaccTable.pctCardBack[static_cast<std::int64_t>(at)]);
    }
  }

  /// Hands on card 0: results, each with the first seat's units where it has any: "B P+3 T-1".
  void Hands(const Words& w) {
    for (const std::string& hand : w.All) {
      strResult[0] = hand.substr(0, 1);
      varHandUnits[0] =
          hand.size() == 1 ? std::nullopt : std::optional(Integer(std::stoi(hand.substr(1))));
      ++intHandsDealt[0];
      prcDispatch([] { SetCardView(0); });
      Tell("");
    }
  }

  /// Gives the marking card an inner size.
  static void Size(const Words& w) {
    Window& form = MarkCards[0].Form;
    form.Width += w.Number(0) - form.ScaleWidth;
    form.Height += w.Number(1) - form.ScaleHeight;
    user::Settle();
    EXPECT_STREQ(form.Controls.back()->Name, "VScroll1") << "the bars lie in front";
  }

  static int fncButton(const std::string& name) {
    return name == "right" ? intRightButton : name == "middle" ? intMiddleButton : intLeftButton;
  }

  const std::map<std::string, Step> steps_{
      // The user.
      {"click", [](auto& w) { user::Click(fncNamed(w[0]), fncButton(w[1])); }},
      {"hover", [](auto& w) { user::Hover(fncNamed(w[0])); }},
      {"leave", [](auto&) { user::Hover(BaccTable.Form); }},
      {"drag", [this](auto& w) { Drag(w); }},
      {"release", [](auto& w) { user::Release(fncNamed(w[0]), -1, -1); }},
      {"type", [](auto& w) { user::Type(fncNamed(w[0]), w[1]); }},
      {"tab", [](auto& w) { user::Tab(fncWindowNamed(w[0].empty() ? "BaccTable" : w[0])); }},
      {"key", [](auto& w) { user::Key(fncWindowNamed(w[0]), w[1], w.Number(2)); }},
      {"bet", PlaceBet},
      {"ok", [](auto&) { user::Answer(platform::Answer::Ok); }},
      {"cancel", [](auto&) { user::Answer(platform::Answer::Cancel); }},
      {"close", [](auto& w) { user::Close(fncWindowNamed(w[0])); }},
      {"activate", [](auto& w) { user::Activate(fncWindowNamed(w[0])); }},
      {"width", [](auto& w) { user::Resize(MDIForm1.Form, w.Number(0)); }},
      {"wait", [](auto& w) { user::Wait(static_cast<std::uint32_t>(w.Number(0))); }},
      {"later", [this](auto& w) { Later(w); }},
      {"play", [this](auto&) { PlayWithin(); }},
      {"meanwhile", [this](auto&) { user::WhileModal([this] { PlayWithin(); }); }},
      // Behind the curtain.
      {"fresh", [](auto&) { std::filesystem::remove(strIniFile); }},
      {"set", Set},
      {"boot", [this](auto&) { Boot(); }},
      {"start", [this](auto&) { Start(); }},
      {"stop", [this](auto&) { Stop(); }},
      {"other", [](auto&) { headless::OtherInstanceRuns(true); }},
      {"browser", [](auto& w) { headless::OpenAddressReturns(w.Number(0)); }},
      {"shuffle", [this](auto& w) { Shuffle(static_cast<std::uint64_t>(w.Number(0))); }},
      {"cards", Cards},
      {"result", [](auto& w) { NextResult(w[0]); }},
      {"deal", [](auto& w) { Deal(w.Number(0, 1)); }},
      {"last", [](auto&) { blnLastHand[0] = true; }},
      {"next", [](auto& w) { intNextCard[0] = w.Number(0); }},
      {"lay", [](auto& w) { Lay(w[0]); }},
      {"hands", [this](auto& w) { Hands(w); }},
      {"ignore", [](auto& w) { blnMarkIgnoreTies[0] = w[0] == "on"; }},
      {"limit", [](auto& w) { intMarkVerticalLimit[0] = w.Number(0); }},
      {"size", Size},
      {"text", [](auto& w) { fncNamed(w[0]).Text = w[1]; }},
      {"value", [](auto& w) { prcSetValue(fncNamed(w[0]), w.Number(1)); }},
      {"left", [](auto& w) { fncNamed(w[0]).Left = w.Number(1); }},
      {"top", [](auto& w) { fncWindowNamed(w[0]).Top = w.Number(1); }},
      {"hide", [](auto& w) { fncWindowNamed(w[0]).Visible = false; }},
      {"open-card", [](auto&) { prcDispatch([] { NewCardViewForm(0, 0); }); }},
      {"close-card", [](auto&) { prcDispatch([] { fncUnload(MarkCards[0].Form); }); }},
      {"choose-shoe", [](auto&) { prcDispatch(prcSelectaShoe); }},
      {"deal-anyway", [](auto&) { prcDispatch([] { duokkortos_Click(0); }); }},
      // What is told.
      {"tells", [this](auto& w) { transcript_.Tells(w.All); }},
      {"watch", [this](auto& w) { transcript_.Watch(w.All); }},
      {"see", [this](auto& w) { transcript_.See(w.All); }},
      {"on", [this](auto& w) { On(w[0].empty() ? "mnu" : w[0]); }},
      {"faces", [this](auto&) { prcAdd(Told(), fncLookAtSwitches()); }},
      {"trace",
       [this](auto& w) {
         user::After(0, [this, start = user::Now()] { Look(start); });
         DoOne(w);
       }},
      {"books", [this](auto& w) { blnBooks_ = w[0] == "on"; }},
  };

  std::size_t at_ = std::string::npos;  ///< The record that is played; none before the first.
  Transcript transcript_;
  bool blnBooks_ = true;
};

std::vector<std::string> fncReplays() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(VELMORA_REPLAYS)) {
    if (entry.path().extension() == ".replay") {
      names.push_back(entry.path().stem().string());
    }
  }
  return names;
}

TEST_P(Replay, ComesOutAsItWasRecorded) {
  std::ifstream file(std::string(VELMORA_REPLAYS "/") + GetParam() + ".replay");
  ASSERT_TRUE(file);
  records_ = fncRead(file);
  PlayRecords();
  const std::string came = testing::TempDir() + GetParam() + ".replay";
  std::ofstream kept(came);
  for (const Record& record : records_) {
    kept << fncWritten(record);
  }
  for (const Record& record : records_) {
    ASSERT_EQ(record.Told, record.Came) << GetParam() << ".replay:" << record.Line << ": > "
                                        << record.Steps << "\nAll that came stands in " << came;
  }
}

INSTANTIATE_TEST_SUITE_P(Evenings, Replay, testing::ValuesIn(fncReplays()),
                         [](const auto& name) { return name.param; });

}  // namespace
