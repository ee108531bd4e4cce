#include "platform/Procedure.h"
#include "reveal/CardMovement.h"
#include "tests/reveal/HandOnTable.h"

namespace {

using CardMovementTest = HandOnTable;

struct Flight {
  int Steps;
  double StepLeft, StepTop;
};

// The places at which a back stands still on its way from 4950, -1500.
const Flight flights[intPositions]{{22, -180, 190}, {15, -180, 280}, {18, -180, 146},
                                   {14, 180, 300},  {20, 180, 210},  {17, 180, 155}};

TEST_F(CardMovementTest, FliesInEqualStepsToWithinOneStepOfEachPosition) {
  constexpr std::uint32_t lngPause = 6;  // 5 ms, and the millisecond in which they are over.
  const Control& card = BaccTable.pctCardBackMove;
  for (int n = 0; n < intPositions; ++n) {
    SCOPED_TRACE(n);
    const Flight& flight = flights[n];
    const std::uint32_t start = headless::Now();
    int seen = 0;
    for (int i = 1; i <= flight.Steps; ++i) {
      headless::After(static_cast<std::uint32_t>(i) * lngPause - 3, [&, i] {
        EXPECT_EQ(card.Left, 4950 + flight.StepLeft * i);
        EXPECT_EQ(card.Top, -1500 + flight.StepTop * i);
        EXPECT_TRUE(card.Visible);
        ++seen;
      });
    }
    prcMoveCard(BaccTable, n);
    EXPECT_EQ(seen, flight.Steps);
    EXPECT_EQ(headless::Now() - start, static_cast<std::uint32_t>(flight.Steps) * lngPause);
    EXPECT_FALSE(card.Visible);
    EXPECT_EQ(card.Left, 4950);
    EXPECT_EQ(card.Top, -1500);
    EXPECT_LT(std::abs(4950 + flight.StepLeft * flight.Steps - BaccTable.pctCardBack[n].Left), 180);
  }
}

TEST_F(CardMovementTest, TellsADivisionByZeroForAPlaceStraightBelowTheStart) {
  BaccTable.pctCardBack[0].Left = 4950 + 179;
  EXPECT_THROW(prcMoveCard(BaccTable, 0), EndOfProgram);
  ASSERT_EQ(headless::Boxes().size(), 1U);
  EXPECT_EQ(headless::Boxes()[0].Text,
            "Serious Error Occurred - Line 60 Error - 11-Division by zero\r\n'prcMoveCard'\r\n"
            "PLEASE RECORD ERROR MESSAGE");
}

TEST_F(CardMovementTest, EndsInMidFlightWithTheProgram) {
  headless::After(30, [] { platform::End(); });
  EXPECT_THROW(prcMoveCard(BaccTable, 3), EndOfProgram);
  EXPECT_LE(headless::Now(), 36U);
  EXPECT_TRUE(headless::Boxes().empty());
}

}  // namespace
