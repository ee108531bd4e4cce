#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>

#include "bench/Invariants.h"
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

// Evenings of play as text. In a .replay file a line that begins with "> " is what the user does;
// the lines below it are what the program then tells. The whole file must come out again. The words
// are told in README.md beside the files.

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

void prcSay(bool& flag, Words& words) { flag = fncNext<std::string>(words) == "on"; }

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
                                         {"auto", &blnAutoDeal},
                                         {"blue", &blnShoePlayerBlue[0]},
                                         {"next-blue", &blnPlayerBlue},
                                         {"count", &blnShowCardsDealtCount},
                                         {"shuffled", &blnShuffled[0]},
                                         {"placed", &BaccTable.blnCardsPlaced}};

class Replay : public Game, public testing::WithParamInterface<std::string> {
 protected:
  std::string Play(std::istream& lines) {
    lines_ = &lines;
    PlayLines();
    return told_;
  }

 private:
  using Step = std::function<void(Words&)>;

  /// Plays up to the end of the file, or of what is done while a window or message is open.
  void PlayLines() {
    std::string line;
    while (std::getline(*lines_, line)) {
      if (line.starts_with("> ") || line.starts_with("#") || line.empty()) {
        told_ += line + '\n';
      }
      if (line == "> end") {
        return;
      }
      if (line.starts_with("> ")) {
        Do(line.substr(2));
        Tell("");
      }
    }
  }

  void Do(const std::string& line) {
    Words words(line);
    const auto step = steps_.find(fncNext<std::string>(words));
    ASSERT_NE(step, steps_.end()) << line;
    try {
      step->second(words);
    } catch (const std::logic_error& refused) {
      told_ += std::string("  refused: ") + refused.what() + '\n';
    }
  }

  void Tell(const std::string& before) {
    user::Settle();
    told_ += transcript_.WhatIsNew(before);
    if (blnBooks_ && intLastCard[0] > 0) {
      EXPECT_EQ(books_.fncLook(), "") << told_.substr(told_.rfind("> "));
    }
  }

  void Begin() {
    user::Run(fncStartProgram);
    user::Wait(10);
    books_.prcStart();
  }

  static int fncButton(const std::string& name) {
    return name == "right" ? intRightButton : name == "middle" ? intMiddleButton : intLeftButton;
  }

  /// Runs the rest of the step at a later moment, inside whatever wait the program is then in.
  void Later(Words& words) {
    const auto when = fncNext<std::string>(words);
    const std::string line = fncRest(words);
    const auto act = [this, when, line] {
      told_ += "  at " + when + ": " + line + '\n';
      Do(line);
      Tell("  ");
    };
    if (when == "turn") {
      user::AtNextTurn(act);
    } else {
      user::After(static_cast<std::uint32_t>(std::stoul(when)), act);
    }
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

  /// What is switched on: menu entries, buttons of the toolbar in use, and flags.
  void On() {
    told_ += "  on:";
    for (const Control* control : MDIForm1.Form.Controls) {
      const bool blnButton = control->Kind == ControlKind::ToolButton;
      if (control->Value == 1 && (!blnButton || control->Container == tlbrRef)) {
        told_ += std::string(blnButton ? " [" : " ") + control->Name +
                 (control->Index < 0 ? "" : std::to_string(int{control->Index})) +
                 (blnButton ? "]" : "");
      }
    }
    told_ += "\n  flags:";
    for (const auto& [name, flag] : flags) {
      told_ += *flag ? " " + name : "";
    }
    told_ += "\n";
  }

  /// Lays six cards as 'f' face in view, 'b' under a back and ready for the user, 'l' a back alone
  /// or '.' nothing.
  static void Lay(const std::string& looks) {
    for (int n = 0; n < intPositions; ++n) {
      const char look = looks.at(static_cast<std::size_t>(n));
      BaccTable.pctCardBack[n].Visible = look == 'b' || look == 'l';
      BaccTable.pctCardFace[n].Visible = look == 'b' || look == 'f';
      BaccTable.lblCardBottom[n].Visible = BaccTable.lblCardRight[n].Visible = look == 'b';
      blnCardClickable[n] = look == 'b' || look == 'f';
    }
    BaccTable.blnCardsPlaced = true;
  }

  /// A hand on card 0: its result and the first seat's units, none where none are given.
  static void Hand(Words& words) {
    strResult[0] = fncNext<std::string>(words);
    const int units = fncNext(words, 32767);
    varHandUnits[0] = units == 32767 ? std::nullopt : std::optional(Integer(units));
    ++intHandsDealt[0];
    prcDispatch([] { SetCardView(0); });
  }

  static void Put(Words& words) {
    static const std::map<std::string, Integer*> numbers{{"limit", &intMarkVerticalLimit[0]},
                                                         {"next", &intNextCard[0]},
                                                         {"decks", &intDecks[0]},
                                                         {"player", &intPlayerTotal[0]},
                                                         {"last-total", &intLastTotalColumn[0]},
                                                         {"banker", &intBankerTotal[0]}};
    const auto name = fncNext<std::string>(words);
    if (name == "box") {
      const int seat = fncNext<int>(words);
      BaccTable.txtBankerBet[seat].Text = BaccTable.txtPlayerBet[seat].Text =
          fncNext<std::string>(words);
    } else if (name == "pan" || name == "pan-down") {
      prcSetValue(name == "pan" ? MarkCards[0].HScroll1 : MarkCards[0].VScroll1,
                  fncNext<double>(words));
    } else if (name == "back-left") {
      BaccTable.pctCardBack[0].Left = fncNext<double>(words);
    } else if (name == "card-hidden") {
      MarkCards[0].Form.Visible = false;
    } else if (name == "card-top") {
      MarkCards[0].Form.Top = fncNext<double>(words);
    } else if (name == "open-card") {
      NewCardViewForm(0, 0);
    } else if (name == "close-card") {
      fncUnload(MarkCards[0].Form);
    } else if (name == "back") {
      BaccTable.pctCardFace[0].Visible = BaccTable.lblCardBottom[0].Visible = true;
    } else if (name == "unit") {
      BaccTable.txtUnitValue.Text = fncNext<std::string>(words);
    } else if (flags.contains(name)) {
      prcSay(*flags.at(name), words);
    } else {
      *numbers.at(name) = fncNext<int>(words);
    }
  }

  const std::map<std::string, Step> steps_{
      {"fresh",
       [this](Words&) {
         transcript_.Watch("");
         std::filesystem::remove(Folder() + "/VELMORA.INI");
         prcFreshGame(Folder());
       }},
      {"stop",
       [this](Words&) {
         transcript_.Watch("");
         prcFreshGame(Folder());
       }},
      {"set",
       [](Words& w) {
         const std::string line = fncRest(w);
         const std::size_t dot = line.find('.'), equals = line.find('=');
         Setting(line.substr(0, dot), line.substr(dot + 1, equals - dot - 1),
                 line.substr(equals + 1));
       }},
      {"boot", [this](Words&) { Begin(); }},
      {"on", [this](Words&) { On(); }},
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
         const auto box = "txt" + fncNext<std::string>(w) + "Bet";
         const int seat = fncNext<int>(w) - 1;
         user::Type(fncNamed(box + "(" + std::to_string(seat) + ")"), fncRest(w));
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
         told_ += user::PaintedAtOnce() ? "  painted at once\n" : "";
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
           PlayLines();
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
      {"see", [this](Words& w) { told_ += Transcript::See(fncNext<std::string>(w)); }},
      {"look",
       [this](Words& w) {
         for (auto name = fncNext<std::string>(w); !name.empty(); name = fncNext<std::string>(w)) {
           told_ += "  " + name + " = " + fncPiped(fncNamed(name).Text) + '\n';
         }
       }},
      {"books",
       [this](Words& w) {
         prcSay(blnBooks_, w);
         books_.prcStart();
       }},
      {"put", Put},
      {"country",
       [](Words& w) {
         CurrencyStyle country;
         country.Negative.intSignPlace = 0;
         if (fncNext<std::string>(w) == "euro") {
           country = {"€", ".", "\3", {false, 1, 1, ""}, {false, 1, 1, "-"}};
         }
         prcSetCurrency(country);
       }},
      {"browser", [](Words& w) { headless::OpenAddressReturns(fncNext<int>(w)); }},
      {"other", [](Words&) { headless::OtherInstanceRuns(true); }},
      {"shoe-choice", [](Words&) { prcDispatch(prcSelectaShoe); }},
      {"width", [](Words& w) { user::Resize(MDIForm1.Form, fncNext<double>(w)); }},
      {"screen",
       [](Words& w) {
         const auto width = fncNext<double>(w);
         user::Screen(width, fncNext<double>(w));
       }},
      {"force-deal", [](Words&) { prcDispatch([] { duokkortos_Click(0); }); }},
      {"activate", [](Words& w) { user::Activate(fncWindowNamed(fncNext<std::string>(w))); }},
      {"lay", [](Words& w) { Lay(fncNext<std::string>(w)); }},
      {"hand", Hand},
      {"size",
       [this](Words& w) {
         Window& form = MarkCards[0].Form;
         form.Width += fncNext<double>(w) - form.ScaleWidth;
         form.Height += fncNext<double>(w) - form.ScaleHeight;
         user::Settle();
         told_ += std::string("  in front: ") + form.Controls.back()->Name + '\n';
       }},
      {"advise",
       [this](Words& w) {
         const auto looks = fncNext<std::string>(w);
         const int index = fncNext<int>(w);
         const int v = fncNext<int>(w);
         told_ += "  " + fncAdviceOn(looks, index, v, fncNext<int>(w)) + '\n';
       }},
  };

  std::istream* lines_ = nullptr;
  std::string told_;
  Transcript transcript_;
  Watch books_;
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

/// The text cut before each step, so that a step and what is told of it stand together.
std::vector<std::string> fncSteps(const std::string& text) {
  std::vector<std::string> steps;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = std::min(text.find("\n> ", at), text.size() - 1) + 1;
    steps.push_back(text.substr(at, next - at));
    at = next;
  }
  return steps;
}

bool fncKnown(const std::string& replay, const std::string& step) {
  return std::ranges::any_of(user::Differences(), [&](const user::Difference& row) {
    return replay == row.Replay && step.starts_with(std::string("> ") + row.Step);
  });
}

/// Fails with the first step that comes out otherwise, and leaves the whole of what came.
void prcCompare(const std::string& replay, const std::vector<std::string>& recorded,
                const std::vector<std::string>& played) {
  std::string first;
  int differ = 0;
  for (std::size_t at = 0; at < std::max(recorded.size(), played.size()); ++at) {
    const std::string want = at < recorded.size() ? recorded[at] : "";
    const std::string have = at < played.size() ? played[at] : "";
    if (want != have && !fncKnown(replay, want)) {
      first = differ++ == 0 ? "recorded:\n" + want + "played:\n" + have : first;
    }
  }
  if (differ > 0) {
    const std::string came = testing::TempDir() + replay + ".replay";
    std::ofstream file(came);
    std::ranges::copy(played, std::ostream_iterator<std::string>(file));
    FAIL() << differ << " of " << recorded.size() << " steps differ, the first:\n"
           << first << "All that came stands in " << came;
  }
}

TEST_P(Replay, ComesOutAsItWasRecorded) {
  std::ifstream file(std::string(VELMORA_REPLAYS "/") + GetParam() + ".replay");
  ASSERT_TRUE(file);
  const std::string recorded{std::istreambuf_iterator<char>(file), {}};
  std::istringstream lines(recorded);
  const std::string played = Play(lines);
  prcCompare(GetParam(), fncSteps(recorded), fncSteps(played));
}

INSTANTIATE_TEST_SUITE_P(Evenings, Replay, testing::ValuesIn(fncReplays()), [](const auto& name) {
  std::string plain = name.param;
  std::erase(plain, '-');
  return plain;
});

}  // namespace
