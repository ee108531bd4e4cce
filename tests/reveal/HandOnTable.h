#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/headless/Headless.h"
#include "table/BaccTable.h"
#include "table/TableState.h"

/// Position by position how the cards lie: 'f' face in view, 'b' under its back and ready for the
/// user, 'l' its back alone, '.' no card.
inline void prcLayCards(const std::string& looks) {
  for (int n = 0; n < intPositions; ++n) {
    const char look = looks.at(static_cast<std::size_t>(n));
    const bool blnReady = look == 'b';
    BaccTable.pctCardBack[n].Visible = blnReady || look == 'l';
    BaccTable.pctCardFace[n].Visible = blnReady || look == 'f';
    BaccTable.lblCardBottom[n].Visible = blnReady;
    BaccTable.lblCardRight[n].Visible = blnReady;
    blnCardClickable[n] = blnReady || look == 'f';
  }
}

/// The table window in view, with a hand dealt whose cards are not laid yet: a king and a four with
/// a five to come, against a nine and a seven with a queen to come.
class HandOnTable : public testing::Test {
 protected:
  void SetUp() override {
    headless::Reset(testing::TempDir());
    prcResetTableState();
    BaccTable.Form = Window{};
    prcPrepareBaccTable();
    prcShow(BaccTable.Form);
    BaccTable.blnCardsPlaced = true;
    BaccTable.blnCardNeedShown = false;
    intPlayerValue1[0] = 13;
    intPlayerValue2[0] = 4;
    intPlayerValue3[0] = 5;
    intPlayerTotal2[0] = 4;
    intPlayerTotal[0] = 9;
    intBankerValue1[0] = 9;
    intBankerValue2[0] = 7;
    intBankerValue3[0] = 12;
    intBankerTotal2[0] = 6;
    intBankerTotal[0] = 8;
  }
};
