#include "marking/AutomaticDeal.h"
#include "marking/MarkCardEvents.h"
#include "marking/MarkState.h"
#include "platform/UserInput.h"
#include "platform/headless/Headless.h"
#include "table/Shoe.h"
#include "tests/Game.h"

namespace {

class AutomaticDeal : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    intDecks[0] = 1;
    intAutoDealDelay = 1;
    blnAutoDeal = true;
  }
  MarkCardWindow& form_ = MarkCards[0];
};

TEST_F(AutomaticDeal, ShufflesAnEndedShoeOnceAndDealsAHandATick) {
  intMarkCardShoe[4] = 0;  // Another card shows the shoe.
  varHandUnits[0] = Integer(5);
  tmrDeal_Timer(form_);
  EXPECT_EQ(form_.tmrDeal.Interval, 1000);
  ASSERT_EQ(intHandsDealt[0], 1);
  EXPECT_EQ(varHandUnits[0], std::nullopt) << "nobody bets on it";
  EXPECT_EQ(intRun[4], intRun[0]);
  form_.tmrDeal.Enabled = true;  // Its ticks come faster than the pause before the shuffle ends.
  blnEndOfShoe[0] = true;
  headless::Wait(3500);
  EXPECT_TRUE(blnShuffled[0]);
  EXPECT_EQ(intHandsDealt[0], 1);
  headless::Wait(2000);
  EXPECT_EQ(form_.shpTBP.size(), 3U);
  EXPECT_FALSE(blnShuffled[4]) << "a card that shows another's shoe has none of its own to deal";
}

TEST_F(AutomaticDeal, DealsNothingForAnotherShoeOrWhenOffOrClosedInThePause) {
  blnAutoDeal = false;
  tmrDeal_Timer(form_);
  blnAutoDeal = true;
  intMarkCardShoe[0] = 2;
  tmrDeal_Timer(form_);
  EXPECT_FALSE(blnShuffled[0]);
  intMarkCardShoe[0] = 0;
  headless::After(500, [] { fncUnload(MarkCards[0].Form); });
  tmrDeal_Timer(form_);
  EXPECT_EQ(intHandsDealt[0], 0);
}

TEST_F(AutomaticDeal, ACardOfAnotherShoeReadsThatShoesHandAndItsOwnUnits) {
  intMarkCardShoe[3] = 1;
  blnBankerNatural[1] = blnShowNaturals = blnShoePlayerBlue[3] = true;
  strResult[1] = "B";
  strResult[3] = "P";
  varHandUnits[3] = Integer(-2);
  NewCardViewForm(0, 3);
  intHandsDealt[1] = 1;
  SetCardView(3);
  EXPECT_EQ(MarkCards[3].shpTBP.at(0).BorderColor, clrDarkRed);
  EXPECT_EQ(MarkCards[3].shpTBP.at(0).Form2D, ShapeForm::Oval);
  EXPECT_EQ(MarkCards[3].lblTotal.at(0).Text, "-2");
  EXPECT_FALSE(fncPlaceMark(3).NewTotal) << "the column has its label by now";
  intDecks[1] = 3;
  ::Shuffle(1);
  EXPECT_EQ(intLastCard[1], 8 * intSlotsOfDeck - 1);
}

}  // namespace
