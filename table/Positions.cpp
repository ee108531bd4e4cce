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

Integer& fncHandCard(Integer intShoe, Integer position) { return (*tblCards[position])[intShoe]; }

Integer& fncHandValue(Integer intShoe, Integer position) { return (*tblValues[position])[intShoe]; }

HandSide fncHandSide(Integer position) {
  if (position < 0 || position >= intPositions) {
    throw faultSubscript;
  }
  const Integer shoe = intShoeNumber;
  if (position < 3) {
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

std::string fncSpokenPosition(Integer position) {
  static constexpr Table<const char*, 3> numbers({" first card", " second card", " third card"});
  return std::string(position < 3 ? "Player" : "Banker") + numbers[position % 3];
}
