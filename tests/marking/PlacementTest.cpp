#include <sstream>
#include <vector>

#include "tests/marking/MarkingFixture.h"

namespace {

/// Column and row of each mark, "0,1 0,2 ...", and what it is otherwise: "-" for a tie line, "^"
/// for one above the card.
std::string fncPlaces(const std::string& results) {
  std::ostringstream places;
  for (const char result : results) {
    strResult[0] = std::string(1, result);
    varHandUnits[0] = std::nullopt;
    const Mark mark = fncPlaceMark(0);
    places << (places.tellp() == 0 ? "" : " ") << int{mark.Column} << "," << int{mark.Row}
           << (mark.AboveCard ? "^"
               : mark.TieLine ? "-"
                              : "");
  }
  return places.str();
}

class Placement : public MarkingTest {};

TEST_F(Placement, FollowsRunsTiesAndLimits) {
  struct Case {
    const char* Results;
    int Limit;
    bool Ignore;
    const char* Places;
  };
  const std::vector<Case> cases{
      {"BBTBPTP", 0, false, "0,1 0,2 0,3 0,4 1,1 1,2 1,3"},
      {"bbtp", 0, false, "0,1 0,2 0,3 1,1"},
      {"TTB", 0, false, "0,1 0,2 0,3"},
      {"TTBTB", 0, false, "0,1 0,2 0,3 0,4 0,5"},
      {"TPPB", 0, false, "0,1 0,2 0,3 1,1"},
      {"PTP", 0, false, "0,1 0,2 0,3"},
      {"BPTTPTB", 0, false, "0,1 1,1 1,2 1,3 1,4 1,5 2,1"},
      {"PPPPPPPPPPP", 0, false, "0,1 0,2 0,3 0,4 0,5 0,6 0,7 0,8 0,9 0,10 0,11"},
      {"BBTB", 0, true, "0,1 0,2 0,2- 0,3"},
      {"TTPTPB", 0, true, "0,0^ 0,0^ 0,1 0,1- 0,2 1,1"},
      {"BPTBPBT", 5, false, "0,1 0,2 0,3 0,4 0,5 1,1 1,2"},
      {"TBP", 1, false, "0,1 1,1 2,1"},
      {"TBTPB", 2, true, "0,0^ 0,1 0,1- 0,2 1,1"},
  };
  for (const Case& each : cases) {
    SetUp();
    intMarkVerticalLimit[0] = each.Limit;
    blnMarkIgnoreTies[0] = each.Ignore;
    EXPECT_EQ(fncPlaces(each.Results), each.Places) << each.Results << " limit " << each.Limit;
  }
}

TEST_F(Placement, HeadingsComeOnceWithTheFirstBankerOrPlayerResult) {
  struct Case {
    const char* Results;
    int Limit;
    std::vector<std::string> Headings;
  };
  const std::vector<Case> cases{
      {"TTBPB", 0, {"", "", "B", "", ""}},
      {"PB", 0, {"P", ""}},
      {"BP", 4, {"", ""}},
  };
  for (const Case& each : cases) {
    SetUp();
    intMarkVerticalLimit[0] = each.Limit;
    for (std::size_t i = 0; i < each.Headings.size(); ++i) {
      prcHand(each.Results[i]);
      EXPECT_EQ(fncPlaceMark(0).Heading, each.Headings[i]) << each.Results << " hand " << i;
    }
  }
}

TEST_F(Placement, ScoreShowsOnceItHasLeftZeroAndThenAlways) {
  struct Hand {
    char Result;
    std::optional<Integer> Units;
    std::optional<Integer> Total;
    bool NewTotal;
  };
  const std::vector<Hand> hands{
      {'T', Integer(0), std::nullopt, false}, {'B', std::nullopt, std::nullopt, false},
      {'P', Integer(3), Integer(3), true},    {'P', Integer(-5), Integer(-2), false},
      {'B', std::nullopt, Integer(-2), true}, {'B', Integer(2), Integer(0), false},
      {'T', std::nullopt, Integer(0), false}, {'P', Integer(0), Integer(0), true},
  };
  intLastTotalColumn[0] = 1;  // From the shoe before, whose labels are gone.
  for (std::size_t i = 0; i < hands.size(); ++i) {
    prcHand(hands[i].Result, hands[i].Units);
    const Mark mark = fncPlaceMark(0);
    EXPECT_EQ(mark.Total, hands[i].Total) << "hand " << i;
    EXPECT_EQ(mark.NewTotal, hands[i].NewTotal) << "hand " << i;
  }
}

TEST_F(Placement, LimitModeKeepsTheScoreOutOfIt) {
  intMarkVerticalLimit[0] = 3;
  prcHand('B', Integer(7));
  const Mark mark = fncPlaceMark(0);
  EXPECT_EQ(mark.Total, std::nullopt);
  EXPECT_EQ(mark.Caption, "");
  EXPECT_EQ(intScoreUnits[0], 0);
}

TEST_F(Placement, CaptionTellsUnitsOrTotals) {
  struct Case {
    char Result;
    std::optional<Integer> Units;
    bool Score;
    const char* Caption;
    bool Negative;
  };
  const std::vector<Case> cases{
      {'B', Integer(12), false, "12", false}, {'P', Integer(-4), false, "4", true},
      {'T', Integer(0), false, "0", false},   {'P', std::nullopt, false, "", false},
      {'B', Integer(12), true, "97", false},  {'P', Integer(-4), true, "79", true},
      {'T', std::nullopt, true, "7", false},
  };
  intPlayerTotal[0] = 7;
  intBankerTotal[0] = 9;
  for (const Case& each : cases) {
    blnShowScore = each.Score;
    prcHand(each.Result, each.Units);
    const Mark mark = fncPlaceMark(0);
    EXPECT_EQ(mark.Caption, each.Caption) << each.Result << each.Score;
    EXPECT_EQ(mark.Negative, each.Negative) << each.Result << each.Score;
  }
}

TEST_F(Placement, UnitsNeverWrittenCountAsNought) {
  strResult[0] = "B";
  EXPECT_EQ(fncPlaceMark(0).Caption, "0");
}

TEST_F(Placement, BorderTellsTheSide) {
  struct Case {
    char Result;
    bool PlayerBlue;
    Colour Border;
  };
  for (const Case& each : {Case{'B', true, {192, 0, 0}}, Case{'B', false, {0, 0, 128}},
                           Case{'P', true, {0, 0, 128}}, Case{'P', false, {192, 0, 0}},
                           Case{'T', true, {0, 192, 0}}, Case{'T', false, {0, 192, 0}}}) {
    blnShoePlayerBlue[0] = each.PlayerBlue;
    blnPlayerBlue = !each.PlayerBlue;  // The setting acts from the next shoe on only.
    prcHand(each.Result);
    EXPECT_EQ(fncPlaceMark(0).Border, each.Border) << each.Result << each.PlayerBlue;
  }
}

TEST_F(Placement, NaturalsAreOvals) {
  struct Case {
    bool Player, Banker, Show, Ignore, Oval;
  };
  for (const Case& each :
       {Case{false, false, true, false, false}, Case{true, false, true, false, true},
        Case{false, true, true, false, true}, Case{true, true, false, false, false},
        Case{true, true, true, true, false}}) {
    blnPlayerNatural[0] = each.Player;
    blnBankerNatural[0] = each.Banker;
    blnShowNaturals = each.Show;
    blnMarkIgnoreTies[0] = each.Ignore;
    prcHand('B');
    EXPECT_EQ(fncPlaceMark(0).Oval, each.Oval)
        << each.Player << each.Banker << each.Show << each.Ignore;
  }
}

TEST_F(Placement, CardOfAnotherShoeReadsThatShoesHandAndItsOwnUnits) {
  intMarkCardShoe[3] = 1;
  blnShowNaturals = true;
  blnBankerNatural[1] = true;
  blnShoePlayerBlue[3] = true;
  strResult[1] = "B";
  strResult[3] = "P";
  varHandUnits[1] = Integer(9);
  varHandUnits[3] = Integer(-2);
  const Mark mark = fncPlaceMark(3);
  EXPECT_EQ(mark.Border, clrDarkRed);
  EXPECT_TRUE(mark.Oval);
  EXPECT_EQ(mark.Caption, "2");
  EXPECT_EQ(intScoreUnits[3], -2);
  EXPECT_EQ(intRun[3], 1);
  EXPECT_EQ(intRun[1], 0) << "the card of the shoe itself moves on by its own call";
}

TEST_F(Placement, ScoreBeyondSixteenBitsIsAFaultAndNeverWraps) {
  intScoreUnits[0] = 32767;
  prcHand('B', Integer(1));
  EXPECT_THROW(fncPlaceMark(0), Fault);
  EXPECT_EQ(intScoreUnits[0], 32767);
}

}  // namespace
