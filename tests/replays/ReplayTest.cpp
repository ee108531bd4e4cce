#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <utility>

#include "judges/Invariants.h"
#include "marking/MarkCardEvents.h"
#include "marking/MarkState.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"
#include "reveal/CardReveal.h"
#include "shell/Dialogs.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "shell/ToolButtons.h"
#include "table/DealCommand.h"
#include "tests/Game.h"
#include "tests/replays/Transcript.h"

// Evenings of play as text: what the user does, and what the program then tells, which must come
// out again. The words are told in README.md beside the files.

namespace {

using Words = std::istringstream;

template <class T>
T fncNext(Words& words, T otherwise = {}) {
  T word;
  return words >> word ? word : otherwise;
}

std::string fncRest(Words& words) {
  std::string rest;
  std::getline(words >> std::ws, rest);
  return rest;
}

/// A number, or what is switched on or off.
int fncSaid(Words& words) {
  const auto word = fncNext<std::string>(words);
  return word == "on" ? 1 : word == "off" ? 0 : std::stoi(word);
}

const std::map<std::string, bool*> flags{{"faceup", &blnCardFaceUp},
                                         {"values", &blnShowCardValues},
                                         {"delay", &blnDealDelay},
                                         {"flight", &blnDealAnimation},
                                         {"learn", &blnLearn},
                                         {"score", &blnShowScore},
                                         {"naturals", &blnShowNaturals},
                                         {"ignore", &blnMarkIgnoreTies[0]},
                                         {"last", &blnLastHand[0]},
                                         {"ended", &blnEndOfShoe[0]},
                                         {"natural-p", &blnPlayerNatural[0]},
                                         {"blue", &blnShoePlayerBlue[0]},
                                         {"shuffled", &blnShuffled[0]},
                                         {"clickable", &blnCardClickable[0]},
                                         {"placed", &BaccTable.blnCardsPlaced}};

const std::map<std::string, Integer*> numbers{{"limit", &intMarkVerticalLimit[0]},
                                              {"next", &intNextCard[0]},
                                              {"decks", &intDecks[0]},
                                              {"player", &intPlayerTotal[0]},
                                              {"banker", &intBankerTotal[0]},
                                              {"last-total", &intLastTotalColumn[0]}};

/// What no control does at that moment.
const std::map<std::string, void (*)()> calls{{"open-card", [] { NewCardViewForm(0, 0); }},
                                              {"close-card", [] { fncUnload(MarkCards[0].Form); }},
                                              {"choose-shoe", prcSelectaShoe},
                                              {"deal", [] { duokkortos_Click(0); }}};

struct Record {
  std::string Head;  ///< Remarks and empty lines before the step, as they stand in the file.
  std::string Steps, Told;
  int Line;
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
    if (const std::size_t arrow = record.Steps.find(" ->"); arrow != std::string::npos) {
      record.Told = record.Steps.substr(std::min(arrow + 4, record.Steps.size()));
      record.Steps.resize(arrow);
    }
  }
  return records;
}

/// The record as it stands in a file, broken at single blanks into lines of 100 columns.
std::string fncWritten(const Record& record) {
  std::string text = "> " + record.Steps + (record.Told.empty() ? "" : " -> " + record.Told);
  for (std::size_t begin = 0; text.size() - begin > 100;) {
    std::size_t at = begin + 101;
    while (--at > begin + 4 && (text[at] != ' ' || text[at - 1] == ' ' || text[at + 1] == ' ')) {
    }
    if (at == begin + 4) {
      break;
    }
    text.replace(at, 1, "\n    ");
    begin = at + 1;
  }
  return record.Head + text + '\n';
}

/// What stands between "; ".
std::vector<std::string> fncParts(const std::string& text) {
  std::vector<std::string> parts;
  for (std::size_t at = 0, next = 0; next != std::string::npos; at = next + 2) {
    next = text.find("; ", at);
    parts.push_back(text.substr(at, next - at));
  }
  return parts;
}

class Replay : public Game, public testing::WithParamInterface<std::string> {
 protected:
  std::vector<Record> Play(std::vector<Record> records) {
    records_ = std::move(records);
    for (Record& record : records_) {
      record.Told.clear();
    }
    PlayRecords();
    return records_;
  }

 private:
  using Step = std::function<void(Words&)>;

  /// Plays up to the end of the file, or of what is done while a window or message is open.
  void PlayRecords() {
    while (++at_ < static_cast<int>(records_.size())) {
      const std::string steps = records_[static_cast<std::size_t>(at_)].Steps;
      if (steps == "end") {
        return;
      }
      Do(steps);
    }
  }

  std::string& Told() { return records_[static_cast<std::size_t>(at_)].Told; }

  /// What the act tells, if anything, behind a word of its own.
  template <class Act>
  void TellApart(const std::string& word, Act act) {
    const std::string before = std::exchange(Told(), "");
    act();
    const std::string told = std::exchange(Told(), before);
    prcAdd(Told(), told.empty() ? "" : word + ": " + told);
  }

  /// Plays "step; step", or "each a b: step; step" once for each, with it in the place of "$".
  void Do(const std::string& steps) {
    const std::size_t colon = steps.find(": ");
    if (!steps.starts_with("each ") || colon == std::string::npos) {
      for (const std::string& step : fncParts(steps)) {
        DoOne(step);
        Tell("");
      }
      return;
    }
    Words values(steps.substr(5, colon - 5));
    for (std::string value; values >> value;) {
      std::string round = steps.substr(colon + 2);
      for (std::size_t at = round.find('$'); at != std::string::npos; at = round.find('$')) {
        round.replace(at, 1, value);
      }
      TellApart(value, [&] { Do(round); });
    }
  }

  void DoOne(const std::string& line) {
    Words words(line);
    const auto step = steps_.find(fncNext<std::string>(words));
    ASSERT_NE(step, steps_.end()) << line;
    try {
      step->second(words);
    } catch (const std::logic_error& refused) {
      prcAdd(Told(), std::string("refused: ") + refused.what());
    }
  }

  void Tell(const std::string& before) {
    user::Settle();
    const std::string news = transcript_.WhatIsNew();
    prcAdd(Told(), news.empty() ? "" : before + news);
    if (blnBooks_ && intLastCard[0] > 0) {
      EXPECT_EQ(fncLook(), "") << records_[static_cast<std::size_t>(at_)].Steps;
    }
  }

  void Restart() {
    prcFreshGame(Folder());
    transcript_.Forget();
  }

  void Begin() {
    user::Run(fncStartProgram);
    user::Wait(10);
    prcStartWatch();
  }

  static int fncButton(const std::string& name) {
    return name == "right" ? intRightButton : name == "middle" ? intMiddleButton : intLeftButton;
  }

  /// Runs the rest of the step at a later moment, inside whatever wait the program is then in.
  void Later(Words& words) {
    const auto when = fncNext<std::uint32_t>(words);
    const std::string line = fncRest(words);
    user::After(when, [this, when, line] {
      Tell("");
      TellApart("at " + std::to_string(when), [&] {
        DoOne(line);
        Tell("");
      });
    });
  }

  /// Tells every change at its millisecond, until the hand or the shuffle is over.
  void Look() {
    if (user::Ended()) {
      return;
    }
    if (transcript_.Moved()) {
      Tell("@" + std::to_string(user::Now() - start_) + " ");
    }
    if (blnBusy && !BaccTable.Timer1.Enabled) {
      user::After(1, [this] { Look(); });
    }
  }

  /// The user turns the first card that waits, and after every 300 milliseconds the next.
  void Turn() {
    const auto waits = [](const Control& back) {
      return back.Visible && blnCardClickable[back.Index];
    };
    if (auto* back = std::ranges::find_if(BaccTable.pctCardBack, waits);
        back != BaccTable.pctCardBack.end()) {
      user::Click(*back);
      Tell("turned " + std::to_string(int{back->Index}) + ": ");
    }
    if (!BaccTable.Timer1.Enabled && blnBusy) {
      user::After(300, [this] { Turn(); });
    }
  }

  /// What is switched on among the frame's controls whose names begin so, of the toolbar in use.
  void On(const std::string& prefix) {
    std::string on = "on:";
    for (const Control* control : MDIForm1.Form.Controls) {
      const std::string name = control->Name;
      const bool blnInUse =
          control->Kind != ControlKind::ToolButton || control->Container == tlbrRef;
      if (control->Value == 1 && blnInUse && name.starts_with(prefix)) {
        on += " " + name + (control->Index < 0 ? "" : std::to_string(int{control->Index}));
      }
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
  void Hands(Words& words) {
    for (std::string hand; words >> hand;) {
      strResult[0] = hand.substr(0, 1);
      varHandUnits[0] =
          hand.size() == 1 ? std::nullopt : std::optional(Integer(std::stoi(hand.substr(1))));
      ++intHandsDealt[0];
      prcDispatch([] { SetCardView(0); });
      Tell("");
    }
  }

  static void Put(Words& words) {
    const auto name = fncNext<std::string>(words);
    if (flags.contains(name)) {
      *flags.at(name) = fncSaid(words) != 0;
    } else {
      *numbers.at(name) = fncSaid(words);
    }
  }

  /// A property of a window or control, put where no user puts it.
  static void Make(Words& words) {
    const auto name = fncNext<std::string>(words), property = fncNext<std::string>(words);
    if (property == "Top") {
      fncWindowNamed(name).Top = fncSaid(words);
    } else if (property == "Visible") {
      fncWindowNamed(name).Visible = fncSaid(words) != 0;
    } else if (property == "Text") {
      fncNamed(name).Text = fncRest(words);
    } else if (property == "Left") {
      fncNamed(name).Left = fncSaid(words);
    } else {
      prcSetValue(fncNamed(name), fncSaid(words));
    }
  }

  const std::map<std::string, Step> steps_{
      {"fresh",
       [this](Words&) {
         std::filesystem::remove(strIniFile);
         Restart();
       }},
      {"stop", [this](Words&) { Restart(); }},
      {"set",
       [this](Words& w) {
         const std::string line = fncRest(w);
         const std::size_t dot = line.find('.'), equals = line.find('=');
         Setting(line.substr(0, dot), line.substr(dot + 1, equals - dot - 1),
                 line.substr(equals + 1));
         transcript_.WhatIsNew();
       }},
      {"boot", [this](Words&) { Begin(); }},
      {"on", [this](Words& w) { On(fncNext<std::string>(w, "mnu")); }},
      {"faces", [this](Words&) { prcAdd(Told(), fncLookAtSwitches()); }},
      {"tells", [this](Words& w) { transcript_.Tells(fncRest(w)); }},
      {"start",
       [this](Words&) {
         Begin();
         transcript_.WhatIsNew();
         ShowNoCardsSlowly();
       }},
      {"shuffle", [this](Words& w) { Shuffle(fncNext<std::uint64_t>(w)); }},
      {"cards",
       [](Words& w) {
         NextCards({std::istream_iterator<int>(w), {}});
       }},
      {"result", [](Words& w) { NextResult(fncNext<std::string>(w)); }},
      {"deal", [](Words& w) { Deal(fncNext<int>(w, 1)); }},
      {"bet",
       [](Words& w) {
         const auto box = "txt" + fncNext<std::string>(w) + "Bet(";
         const int seat = fncNext<int>(w) - 1;
         user::Type(fncNamed(box + std::to_string(seat) + ")"), fncRest(w));
         user::Tab(BaccTable.Form);
       }},
      {"click",
       [](Words& w) {
         Control& control = fncNamed(fncNext<std::string>(w));
         user::Click(control, fncButton(fncNext<std::string>(w)));
       }},
      {"type",
       [](Words& w) {
         Control& box = fncNamed(fncNext<std::string>(w));
         user::Type(box, fncRest(w));
       }},
      {"tab", [](Words& w) { user::Tab(fncWindowNamed(fncNext<std::string>(w, "BaccTable"))); }},
      {"key",
       [](Words& w) {
         Window& window = fncWindowNamed(fncNext<std::string>(w));
         const auto key = fncNext<std::string>(w);
         user::Key(window, key, fncNext(w, 0));
       }},
      {"hover", [](Words& w) { user::Hover(fncNamed(fncNext<std::string>(w))); }},
      {"leave", [](Words&) { user::Hover(BaccTable.Form); }},
      {"drag",
       [this](Words& w) {
         Control& strip = fncNamed(fncNext<std::string>(w));
         const auto x = fncNext<float>(w);
         user::Drag(strip, x, fncNext<float>(w));
         prcAdd(Told(), user::PaintedAtOnce() ? "painted at once" : "");
       }},
      {"release", [](Words& w) { user::Release(fncNamed(fncNext<std::string>(w)), -1, -1); }},
      {"close", [](Words& w) { user::Close(fncWindowNamed(fncNext<std::string>(w))); }},
      {"wait", [](Words& w) { user::Wait(fncNext<std::uint32_t>(w)); }},
      {"cancel", [](Words&) { user::Answer(platform::Answer::Cancel); }},
      {"ok", [](Words&) { user::Answer(platform::Answer::Ok); }},
      {"open",
       [this](Words& w) {
         user::WhileModal([this] {
           Tell("");
           PlayRecords();
         });
         user::Click(fncNamed(fncNext<std::string>(w)));
       }},
      {"turn", [this](Words&) { Turn(); }},
      {"later", [this](Words& w) { Later(w); }},
      {"trace",
       [this](Words& w) {
         start_ = user::Now();
         user::After(0, [this] { Look(); });
         Do(fncRest(w));
       }},
      {"watch", [this](Words& w) { transcript_.Watch(fncRest(w)); }},
      {"see",
       [this](Words& w) {
         for (std::string name; w >> name;) {
           prcAdd(Told(), Transcript::See(name));
         }
       }},
      {"books",
       [this](Words& w) {
         blnBooks_ = fncSaid(w) != 0;
         prcStartWatch();
       }},
      {"put", Put},
      {"make", Make},
      {"call", [](Words& w) { prcDispatch(calls.at(fncNext<std::string>(w))); }},
      {"browser", [](Words& w) { headless::OpenAddressReturns(fncNext<int>(w)); }},
      {"other", [](Words&) { headless::OtherInstanceRuns(true); }},
      {"width", [](Words& w) { user::Resize(MDIForm1.Form, fncNext<double>(w)); }},
      {"activate", [](Words& w) { user::Activate(fncWindowNamed(fncNext<std::string>(w))); }},
      {"lay", [](Words& w) { Lay(fncNext<std::string>(w)); }},
      {"hands", [this](Words& w) { Hands(w); }},
      {"size",
       [](Words& w) {
         Window& form = MarkCards[0].Form;
         form.Width += fncNext<double>(w) - form.ScaleWidth;
         form.Height += fncNext<double>(w) - form.ScaleHeight;
         user::Settle();
         EXPECT_STREQ(form.Controls.back()->Name, "VScroll1") << "the bars lie in front";
       }},
  };

  std::vector<Record> records_;
  int at_ = -1;  ///< The record that is played.
  Transcript transcript_;
  bool blnBooks_ = true;
  std::uint32_t start_ = 0;
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
  const std::vector<Record> recorded = fncRead(file), played = Play(recorded);
  const std::string came = testing::TempDir() + GetParam() + ".replay";
  std::ofstream kept(came);
  for (const Record& record : played) {
    kept << fncWritten(record);
  }
  for (std::size_t at = 0; at < played.size(); ++at) {
    ASSERT_TRUE(played[at].Told == recorded[at].Told)
        << GetParam() << ".replay:" << recorded[at].Line << ": > " << recorded[at].Steps
        << "\nrecorded: " << recorded[at].Told << "\nplayed:   " << played[at].Told
        << "\nAll that came stands in " << came;
  }
}

INSTANTIATE_TEST_SUITE_P(Evenings, Replay, testing::ValuesIn(fncReplays()), [](const auto& name) {
  std::string plain = name.param;
  std::erase(plain, '-');
  return plain;
});

}  // namespace
