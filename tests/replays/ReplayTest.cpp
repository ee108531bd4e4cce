#include <fstream>
#include <sstream>

#include "marking/MarkCard.h"
#include "tests/Game.h"

// Evenings of play as text. In a .replay file a line that begins with "> " is what the user does;
// the lines below it are what the table then tells: messages, money, marks and the labels in view.
// The whole file must come out again.

namespace {

class Replay : public Game, public testing::WithParamInterface<const char*> {
 protected:
  std::string Play(const std::string& file) {
    std::istringstream lines(file);
    std::string line;
    while (std::getline(lines, line)) {
      if (!line.starts_with("> ")) {
        continue;
      }
      told_ << line << '\n';
      std::istringstream words(line.substr(2));
      Do(words);
      TellWhatIsNew();
    }
    return told_.str();
  }

 private:
  void Do(std::istringstream& words) {
    std::string what, side;
    int seat = 0, number = 0;
    words >> what;
    if (what == "shuffle") {
      words >> number;
      Shuffle(static_cast<std::uint64_t>(number));
    } else if (what == "bet") {
      std::string chips;
      words >> side >> seat >> chips;
      Bet(Side(side), seat - 1, chips);
    } else if (what == "chip") {
      std::string button;
      words >> side >> seat >> number >> button;
      Chip(Side(side), seat - 1, number, button == "right" ? intRightButton : intLeftButton);
    } else if (what == "deal") {
      words >> number;
      Deal(number);
    } else if (what == "facedown") {
      blnCardFaceUp = false;
    } else if (what == "deal-down") {
      headless::After(3000, [this] { Turn(); });
      Deal();
    } else {
      FAIL() << "the replay says " << what;
    }
  }

  static BetSide Side(const std::string& name) {
    return name == "tie" ? betTie : name == "banker" ? betBanker : betPlayer;
  }

  static void Chip(BetSide side, int seat, int chips, int button) {
    const int place = chips == 5 ? 3 : chips;
    headless::Click(*fncChips(seat).at(static_cast<std::size_t>(side * 4 + place)), button);
  }

  /// The user turns whatever waits, one card every 300 milliseconds, and tells the totals as they
  /// come.
  void Turn() {
    for (int n = 0; n < intPositions; ++n) {
      if (blnCardClickable[n] && BaccTable.pctCardBack[n].Visible) {
        headless::Click(BaccTable.pctCardBack[n]);
        told_ << "  turned " << n << ": Player " << Shown(BaccTable.PTotal) << " Banker "
              << Shown(BaccTable.BTotal) << '\n';
        break;
      }
    }
    if (!BaccTable.Timer1.Enabled && blnBusy) {
      headless::After(300, [this] { Turn(); });
    }
  }

  static std::string Shown(const Control& label) { return label.Visible ? label.Text : "-"; }

  void TellWhatIsNew() {
    for (const headless::Box& box : headless::Boxes()) {
      told_ << "  box: " << box.Text << '\n';
    }
    headless::ForgetBoxes();
    told_ << "  table:";
    for (const Control* control : BaccTable.Form.Controls) {
      if (control->Kind == ControlKind::Label && control->Visible && control->Announce) {
        told_ << ' ' << control->Name << '(' << control->Index << ")=" << control->Text;
      }
    }
    told_ << "\n  money: " << BaccTable.lblPlayerTotal[0].Text << ' '
          << BaccTable.lblPlayerWinnings[0].Text << " | " << BaccTable.lblPlayerTotal[1].Text << ' '
          << BaccTable.lblPlayerWinnings[1].Text << '\n';
    TellMarks();
  }

  void TellMarks() {
    const MarkCardWindow& card = *fncMarkCard(0);
    const int hands = intHandsDealt[0];
    for (int i = intHandsDealt[0] < marks_ ? 0 : marks_; i < hands; ++i) {
      const Control& shape = card.shpTBP.at(i);
      told_ << "  mark: column " << (shape.Left - 60) / intColumnPitch << " row "
            << (shape.Top - 510) / intRowPitch + 1
            << (shape.Form2D == ShapeForm::Oval ? " oval " : " ") << card.lblTBP.at(i).Text << '\n';
    }
    marks_ = hands;
  }

  std::ostringstream told_;
  int marks_ = 0;
};

TEST_P(Replay, ComesOutAsItWasRecorded) {
  const std::string path = std::string(VELMORA_REPLAYS "/") + GetParam() + ".replay";
  std::ifstream file(path);
  ASSERT_TRUE(file) << path;
  const std::string recorded{std::istreambuf_iterator<char>(file), {}};
  Start();
  EXPECT_EQ(Play(recorded), recorded) << "the lines that came out would replace those of " << path;
}

INSTANTIATE_TEST_SUITE_P(Evenings, Replay, testing::Values("two-seats", "face-down"),
                         [](const auto& name) {
                           return std::string(name.param) == "two-seats" ? "TwoSeats" : "FaceDown";
                         });

}  // namespace
