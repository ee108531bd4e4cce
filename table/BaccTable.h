#pragma once

#include "platform/Window.h"
#include "table/TableState.h"

// The table window: its controls by name, and the values that live with it. Card controls go by
// table position: 0, 1, 2 the Player's first, second and third card, 3, 4, 5 the Banker's.

struct BaccTableWindow {
  Window Form;

  Control picShoeBox;  ///< The dealing shoe, for the eye alone.
  Table<Control, 2> shpCardZone;
  Control shpSeats, lneSeats;  ///< The plate of both seats, and the line between them.
  Table<Control, 2> lblSeat;
  Table<Control, 3> lblRow;
  Table<Control, 3> lblStep;  ///< What leads to a first hand: shuffle, bet, deal.

  Table<Control, 4> duokkortos;  ///< The Deal buttons; 0 deals as many hands as the hands box says.
  Control maisyk;                ///< The Shuffle button.
  Control mskHandsAtaTime, lblHandsAtaTime;

  Table<Control, 2> txtTieBet, txtBankerBet, txtPlayerBet;
  Table<Control, 2> txtTieBetValue, txtBankerBetValue, txtPlayerBetValue;
  Table<Control, 2> shpTStack, shpBStack, shpPStack;  ///< The chips of a bet, beside its money.
  Table<Control, 2> lblTBetInc0, lblTBetInc1, lblTBetInc2, lblTBetInc5;
  Table<Control, 2> lblBBetInc0, lblBBetInc1, lblBBetInc2, lblBBetInc5;
  Table<Control, 2> lblPBetInc0, lblPBetInc1, lblPBetInc2, lblPBetInc5;
  Control txtUnitValue, lblUnitValue;
  Table<Control, 2> lblPlayerTotal, lblPlayerWinnings;

  Table<Control, 2> lblPWin, lblBWin, lblTWin, lblPLose, lblBLose, lblTLose;
  Control WinP, WinB, TieResultP, TieResultB;
  Control PTotal, BTotal, lblNaturalP, lblNaturalB;
  Control FormLastHand, FormEndofShoe;  ///< Labels, in spite of their names.
  Table<Control, 2> lblShuffleInProgress;
  Control prgShoe;
  Control fraShoeNumber, lblShoeNumber;
  Table<Control, 9> lblShoe1to9;
  Control Label1, Label2, Label4, Label5, Label8;

  Table<Control, 2> shpCardDealBG;
  Table<Control, 6> shpCardPlace, shpCardWaits;  ///< Where a card will lie; one to be turned.
  Table<Control, 6> pctCardBack, pctCardFace, shpCardShadow;
  Table<Control, 6> pctCardTopLeft, pctCardTopRight, pctCardBottomLeft, pctCardBottomRight;
  Table<Control, 6> pctCardTopLeftWide, pctCardTopRightWide;
  Table<Control, 6> pctCardBottomLeftWide, pctCardBottomRightWide;
  Table<Control, 6> lblCardRight, lblCardBottom;
  Control pctCardBackMove;
  Control lblCardNeedP, lblCardNeedB, shpCardNeedP, shpCardNeedB;

  Control txtsetfocus;  ///< Takes the focus off the bet boxes when they close; never seen.
  Control Timer1;

  bool blnHandSeen = false;     ///< A hand has been dealt since the table came up.
  Integer intFlashCount;        ///< Ticks of flashing done.
  Integer intAddSub;            ///< Sign of the chip click under way.
  bool blnCardsPlaced = false;  ///< The first four backs of the hand lie on the table.
  /// Advice has been worked out since the mouse was last over the bare table.
  bool blnCardNeedShown = false;
  Integer intCardHeight, intCardWidth;  ///< Of a whole card back, twips.
};

extern BaccTableWindow BaccTable;
