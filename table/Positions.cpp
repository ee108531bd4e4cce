#include "table/Positions.h"

namespace {

using PerShoe = Table<Integer, intShoes>;

constexpr Table<PerShoe*, intPositions> tblCards({&intPlayerCard1, &intPlayerCard2, &intPlayerCard3,
                                                  &intBankerCard1, &intBankerCard2,
                                                  &intBankerCard3});
constexpr Table<PerShoe*, intPositions> tblValues({&intPlayerValue1, &intPlayerValue2,
                                                   &intPlayerValue3, &intBankerValue1,
                                                   &intBankerValue2, &intBankerValue3});

}  // namespace

Integer& fncHandCard(Integer intShoe, Integer Index) { return (*tblCards[Index])[intShoe]; }

Integer& fncHandValue(Integer intShoe, Integer Index) { return (*tblValues[Index])[intShoe]; }

HandSide fncHandSide(Integer Index) {
  if (Index < 0 || Index >= intPositions) {
    throw faultSubscript;
  }
  const Integer shoe = intShoeNumber;
  if (Index < 3) {
    return {0,
            BaccTable.PTotal,
            BaccTable.lblNaturalP,
            intPlayerTotal2[shoe],
            intPlayerTotal[shoe],
            blnPlayerNatural[shoe],
            blnPlayerThird[shoe]};
  }
  return {3,
          BaccTable.BTotal,
          BaccTable.lblNaturalB,
          intBankerTotal2[shoe],
          intBankerTotal[shoe],
          blnBankerNatural[shoe],
          blnBankerThird[shoe]};
}

std::string fncSpokenPosition(Integer Index) {
  static constexpr Table<const char*, 3> numbers({" first card", " second card", " third card"});
  return std::string(Index < 3 ? "Player" : "Banker") + numbers[Index % 3];
}
