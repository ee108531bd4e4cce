#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

#include "tests/Game.h"

// A single hand in full view: what changes on the table, and at which millisecond.

namespace {

/// Cards of a hand, in the order in which they leave the shoe, and what it is.
struct Hand {
  const char* What;
  std::array<int, 6> Cards;
  bool PlayerThird, BankerThird;
  int BankerTotal2;
};
const std::array<Hand, 6> hands{{{"natural", {13, 13, 9, 7, 2, 2}, false, false, 7},
                                 {"no third card", {13, 13, 7, 6, 2, 2}, false, false, 6},
                                 {"Player only", {13, 13, 2, 7, 3, 2}, true, false, 7},
                                 {"Banker only", {13, 13, 6, 5, 3, 2}, false, true, 5},
                                 {"both, Banker on 2", {13, 13, 2, 2, 3, 4}, true, true, 2},
                                 {"both, Banker on 3", {13, 13, 2, 3, 3, 4}, true, true, 3}}};

struct Settings {
  bool FaceUp, Values, Delay, Animation, Learn;
};

/// Milliseconds that a wait takes on the clock: it ends when more than its time has passed.
constexpr std::uint32_t fncWaited(double seconds) {
  return static_cast<std::uint32_t>(seconds * 1000) + 1;
}

constexpr std::array<std::uint32_t, 6> lngFlightSteps{22, 15, 18, 14, 20, 17};
constexpr std::uint32_t lngStepTime = 6;

using Timeline = std::map<std::string, std::uint32_t>;

/// What the hand should do by its told order of steps, worked out apart from the program.
class Expected {
 public:
  Expected(const Hand& hand, const Settings& set, std::function<std::uint32_t(int)> turnedAt)
      : hand_(hand), set_(set), turnedAt_(std::move(turnedAt)) {}

  Timeline Run() {
    for (const int n : {0, 3, 1}) {
      Lay(n);
      now_ += fncWaited(0.5);
    }
    Lay(4);
    now_ += set_.Delay ? 0 : fncWaited(0.5);
    for (const int n : {0, 1, 3, 4}) {
      Face(n);
      Turn(n);
      if (set_.FaceUp && (n == 1 || n == 4)) {
        told_[n == 1 ? "PTotal" : "BTotal"] = now_;
      }
    }
    if (!set_.FaceUp) {
      PollUntil({0, 1, 3, 4});
    }
    if (hand_.PlayerThird) {
      Third(2);
      if (!set_.FaceUp && hand_.BankerTotal2 > 2) {
        PollUntil({2});
      }
    }
    if (hand_.BankerThird) {
      Third(5);
    }
    if (!set_.FaceUp) {
      PollUntil(hand_.PlayerThird   ? (hand_.BankerThird ? std::vector{2, 5} : std::vector{2})
                : hand_.BankerThird ? std::vector{5}
                                    : std::vector<int>{});
    }
    told_["result"] = now_;
    return told_;
  }

 private:
  void Lay(int n) {
    now_ += set_.Animation ? lngFlightSteps.at(static_cast<std::size_t>(n)) * lngStepTime : 0;
    told_["back" + std::to_string(n)] = now_;
  }
  void Face(int n) { told_["face" + std::to_string(n)] = now_; }
  void Turn(int n) {
    if (!set_.FaceUp) {
      return;
    }
    now_ += !set_.Delay ? 0 : fncWaited(n == 0 || n == 3 ? 0.5 : 0.7);
    told_["turned" + std::to_string(n)] = now_;
    now_ += set_.Delay ? fncWaited(0.7) : 0;
  }
  void Third(int n) {
    Lay(n);
    Face(n);
    now_ += fncWaited(set_.Delay ? 0.7 : 0.5);
    Turn(n);
  }
  void PollUntil(const std::vector<int>& cards) {
    std::uint32_t last = 0;
    for (const int n : cards) {
      const std::uint32_t turned = std::max(turnedAt_(n), ClickableFrom(n));
      told_["turned" + std::to_string(n)] = turned;
      last = std::max(last, turned);
    }
    while (now_ < last) {
      now_ += fncWaited(1);
    }
  }
  /// A third card can be turned in the first millisecond of the poll that follows it, never before.
  std::uint32_t ClickableFrom(int n) const {
    return n == 2 || n == 5
               ? told_.at("back" + std::to_string(n)) + fncWaited(set_.Delay ? 0.7 : 0.5) + 1
               : 0;
  }

  const Hand& hand_;
  const Settings& set_;
  std::function<std::uint32_t(int)> turnedAt_;
  std::uint32_t now_ = 0;
  Timeline told_;
};

class Presentation : public Game {
 protected:
  /// Looks at the table after every millisecond and notes when each thing is first so; the user
  /// turns each card as soon as it is clickable after its moment.
  void Watch(std::function<std::uint32_t(int)> turnedAt) {
    seen_.clear();
    noted_.fill(false);
    start_ = headless::Now();
    turnedAt_ = std::move(turnedAt);
    headless::After(0, [this] { Look(); });
  }

  void Note(const char* what, bool blnSo) {
    if (blnSo) {
      Note(std::string(what), true);
    }
  }
  void Note(const std::string& what, bool blnSo) {
    if (blnSo && !seen_.contains(what)) {
      seen_[what] = headless::Now() - start_;
    }
  }

  /// The same for a card; a name is only built when there is something to note, as this runs every
  /// millisecond.
  void NoteCard(const char* what, int n, int kind, bool blnSo) {
    bool& blnNoted = noted_.at(static_cast<std::size_t>(kind * intPositions + n));
    if (blnSo && !blnNoted) {
      blnNoted = true;
      Note(what + std::to_string(n), true);
    }
  }

  void Look() {
    for (int n = 0; n < intPositions; ++n) {
      const bool blnBack = BaccTable.pctCardBack[n].Visible,
                 blnFace = BaccTable.pctCardFace[n].Visible;
      NoteCard("back", n, 0, blnBack);
      NoteCard("face", n, 1, blnFace);
      if (!blnCardFaceUp && blnCardClickable[n] && BaccTable.pctCardBack[n].Visible &&
          headless::Now() - start_ >= turnedAt_(n)) {
        headless::Click(BaccTable.pctCardBack[n]);
      }
      NoteCard("turned", n, 2, blnFace && !BaccTable.pctCardBack[n].Visible);
    }
    if (blnCardFaceUp) {
      Note("PTotal", BaccTable.PTotal.Visible);
      Note("BTotal", BaccTable.BTotal.Visible);
    }
    Note("result", BaccTable.Timer1.Enabled);
    if (!BaccTable.Timer1.Enabled) {
      headless::After(1, [this] { Look(); });
    }
  }

  Timeline seen_;
  std::array<bool, 3 * intPositions> noted_{};
  std::uint32_t start_ = 0;
  std::function<std::uint32_t(int)> turnedAt_;
};

TEST_F(Presentation, EveryHandInEverySettingKeepsItsTimes) {
  Start();
  for (unsigned bits = 0; bits < 32; ++bits) {
    const Settings set{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                       (bits & 16) != 0};
    Shuffle(bits + 1);
    for (const Hand& hand : hands) {
      blnCardFaceUp = set.FaceUp;
      blnShowCardValues = set.Values;
      blnDealDelay = set.Delay;
      blnDealAnimation = set.Animation;
      blnLearn = set.Learn;
      const auto& c = hand.Cards;
      NextCards({c[0], c[1], c[2], c[3], c[4], c[5]});
      // The user takes the cards one after the other, the third ones at once.
      const auto turnedAt = [](int n) {
        return n == 2 || n == 5 ? 0U : 4000U + 700U * static_cast<std::uint32_t>(n);
      };
      Watch(turnedAt);
      Deal();
      Timeline want = Expected(hand, set, turnedAt).Run();
      Note("result", true);
      std::ostringstream where;
      where << hand.What << " up " << set.FaceUp << " delay " << set.Delay << " flight "
            << set.Animation;
      for (const auto& [what, when] : want) {
        ASSERT_TRUE(seen_.contains(what)) << where.str() << ' ' << what;
        ASSERT_NEAR(seen_[what], when, 1) << where.str() << ' ' << what;
      }
      ASSERT_EQ(seen_.contains("back2"), hand.PlayerThird) << where.str();
      ASSERT_EQ(seen_.contains("back5"), hand.BankerThird) << where.str();
      ASSERT_FALSE(BaccTable.shpCardNeedP.Visible || BaccTable.lblCardNeedB.Visible);
    }
  }
}

TEST_F(Presentation, TheBankersThirdCardWaitsForThePlayersUnlessItComesAnyway) {
  Start();
  Shuffle();
  for (const bool blnWaits : {false, true}) {
    blnCardFaceUp = false;
    const auto& c = hands.at(blnWaits ? 5 : 4).Cards;
    NextCards({c[0], c[1], c[2], c[3], c[4], c[5]});
    // The Player's third card stays hidden for twenty seconds.
    Watch([](int n) { return n == 2 ? 20'000U : 0U; });
    Deal();
    EXPECT_EQ(seen_["back5"] > seen_["turned2"], blnWaits);
  }
}

TEST_F(Presentation, ASettingChangedInAHandActsOnTheStepsToCome) {
  Start();
  Shuffle();
  NextCards({13, 13, 2, 3, 3, 4});
  blnCardFaceUp = false;
  Watch([](int n) { return n == 2 || n == 5 ? 1'000'000U : 0U; });
  headless::After(2400, [] { blnCardFaceUp = true; });
  Deal();
  EXPECT_TRUE(seen_.contains("turned2")) << "the third cards turn by themselves";
  EXPECT_EQ(BaccTable.PTotal.Text, std::to_string(intPlayerTotal[0]));
}

TEST_F(Presentation, TheResultFlashesAndTheTableReopens) {
  Start();
  Shuffle();
  ASSERT_TRUE(Bet(betBanker, 0, "2"));
  ASSERT_TRUE(Bet(betTie, 0, "1"));
  ASSERT_TRUE(Bet(betPlayer, 1, "1"));
  NextResult("B");
  std::string lit;
  const auto look = [&lit] {
    EXPECT_EQ(BaccTable.WinB.Visible, BaccTable.lblBWin[0].Visible);
    EXPECT_EQ(BaccTable.WinB.Visible, BaccTable.lblTLose[0].Visible);
    EXPECT_EQ(BaccTable.WinB.Visible, BaccTable.lblPLose[1].Visible);
    EXPECT_FALSE(BaccTable.WinP.Visible || BaccTable.lblBLose[0].Visible ||
                 BaccTable.lblTWin[0].Visible);
    lit += BaccTable.WinB.Visible ? '*' : '-';
    EXPECT_EQ(blnBusy, lit.size() < 6);
  };
  headless::Click(BaccTable.duokkortos[0]);
  look();
  for (int tick = 0; tick < 5; ++tick) {
    headless::Wait(500);
    look();
  }
  EXPECT_EQ(lit, "*-*-**");
  EXPECT_EQ(
      BaccTable.txtBankerBet[0].Text + BaccTable.txtTieBet[0].Text + BaccTable.txtPlayerBet[1].Text,
      "200");
  EXPECT_TRUE(BaccTable.txtTieBet[0].Enabled && BaccTable.lblTBetInc5[0].Enabled &&
              BaccTable.maisyk.Enabled);
  EXPECT_FALSE(BaccTable.Timer1.Enabled);
  EXPECT_TRUE(BaccTable.txtTieBetValue[0].Visible)
      << "the value label of a cleared bet stays until the next deal";
}

TEST_F(Presentation, AShuffleCutsTheFlashOfTheLastHand) {
  Start();
  Shuffle();
  ASSERT_TRUE(Bet(betBanker, 0, "2"));
  NextResult("B");
  blnLastHand[0] = true;
  headless::Click(BaccTable.duokkortos[0]);
  headless::Wait(700);
  EXPECT_TRUE(blnBusy && BaccTable.Timer1.Enabled);
  EXPECT_TRUE(BaccTable.lblBWin[0].Visible)
      << "the seat's label stays lit: its bet is off the table";
  EXPECT_FALSE(BaccTable.WinB.Visible);
  headless::Click(BaccTable.maisyk);
  EXPECT_FALSE(BaccTable.Timer1.Enabled || BaccTable.WinB.Visible || blnBusy);
  headless::Wait(3000);
  EXPECT_FALSE(BaccTable.WinB.Visible) << "no last tick follows";
  EXPECT_TRUE(BaccTable.duokkortos[0].Visible);
}

TEST_F(Presentation, ClosingInAnyWaitEndsTheHandCleanly) {
  for (const std::uint32_t moment : {200U, 900U, 1700U, 2100U, 5000U, 30'000U}) {
    for (const bool blnFaceUp : {true, false}) {
      prcFreshGame(Folder());
      Setting("Player1Stats", "Win", " 0");
      Start();
      Shuffle();
      ASSERT_TRUE(Bet(betPlayer, 0, "4"));
      blnCardFaceUp = blnFaceUp;
      blnDealDelay = blnDealAnimation = true;
      NextCards({13, 13, 2, 3, 3, 4});
      headless::After(moment, [] { prcCloseFrame(); });
      headless::Click(BaccTable.duokkortos[0]);
      headless::Wait(40'000);
      EXPECT_TRUE(headless::Ended()) << moment;
      const bool blnSettled = Stored("ShoesHandsPlayed", "Hands") != "No";
      EXPECT_EQ(blnSettled, blnFaceUp && moment > 10'000) << moment;
      EXPECT_EQ(BaccTable.txtPlayerBet[0].Text, "0");
      EXPECT_EQ(lngPlayerBet[0], 0);
      std::remove(strIniFile.c_str());
      Game::SetUp();
    }
  }
}

}  // namespace
