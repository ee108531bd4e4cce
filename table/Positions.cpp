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

std::string fncSpokenPosition(Integer Index) {
  static constexpr Table<const char*, 3> numbers({" first card", " second card", " third card"});
  return std::string(Index < 3 ? "Player" : "Banker") + numbers[Index % 3];
}
