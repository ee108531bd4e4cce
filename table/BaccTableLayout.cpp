#include "table/BaccTableLayout.h"

#include <array>

#include "assets/Pictures.h"
#include "platform/Layout.h"
#include "table/Bets.h"
#include "table/Positions.h"

// The table as it is designed. From below: felt, plates and card areas, the seats, the cards,
// results, buttons.

namespace {

/// A card is 71 by 96 pixels of 15 twips.
constexpr int intCardWide = 1065;
constexpr int intCardHigh = 1440;

constexpr Colour clrIvory{245, 238, 220};
constexpr Colour clrQuiet{196, 205, 190};
constexpr Colour clrGold{236, 203, 120};
constexpr Colour clrPlate{9, 34, 26};
constexpr Colour clrPlateEdge{96, 112, 74};
constexpr Colour clrPanel{14, 30, 58};
constexpr Colour clrWon{28, 110, 58};
constexpr Colour clrLost{240, 150, 140};

constexpr Type tpeQuiet{.Size = 8.25F};
constexpr Type tpeText{.Size = 9};
constexpr Type tpeStrong{.Size = 9, .Bold = true};
constexpr Type tpeHeading{.Size = 15, .Bold = true};
constexpr Type tpeSide{.Size = 14, .Bold = true};
constexpr Type tpeTotal{.Size = 36, .Bold = true};

using enum ControlKind;

void prcAdd(const Place& row) { prcPlace(BaccTable.Form, row); }

/// Looks of a label over the felt.
void prcDress(Control& label, Type face, Colour text, Alignment align = Alignment::Centre) {
  label.Face = face;
  label.ForeColor = text;
  label.Align = align;
}

void prcPlateShape(Control& shape, Colour fill, Colour edge) {
  shape.Form2D = ShapeForm::Rounded;
  shape.FillColor = fill;
  shape.BorderColor = edge;
}

/// The card areas lie left and right, with the same margin on both sides of their cards.
constexpr std::array<double, 2> dblAreaLeft{840, 7380};
constexpr double dblAreaWidth = 2505;

/// The betting seats between them share one plate; the line that parts them has as much room on
/// each side as the chips and boxes leave.
constexpr std::array<double, 3> dblSeatEdges{3900, 5295, 6675};

void prcLayGround() {
  BaccTableWindow& t = BaccTable;
  for (int side = 0; side < 2; ++side) {
    const double left = dblAreaLeft.at(static_cast<std::size_t>(side));
    prcAdd({&t.shpCardZone[side], "shpCardZone", side, Shape, left - 60, 165, dblAreaWidth + 120,
            4065});
    prcPlateShape(t.shpCardZone[side], clrPlate, clrPlateEdge);
    prcAdd({&t.shpCardDealBG[side], "shpCardDealBG", side, Shape, left, 1020, dblAreaWidth, 3165});
    prcPlateShape(t.shpCardDealBG[side], clrClear, clrClear);
    t.shpCardDealBG[side].Dress = Look::Mat;
    t.shpCardDealBG[side].Visible = false;
  }
  prcAdd({&t.shpSeats, "shpSeats", -1, Shape, dblSeatEdges[0], 1680,
          dblSeatEdges[2] - dblSeatEdges[0], 3015});
  prcPlateShape(t.shpSeats, clrPlate, clrPlateEdge);
  prcAdd({&t.lneSeats, "lneSeats", -1, Line, 0, 0, 0, 0});
  t.lneSeats.X1 = t.lneSeats.X2 = dblSeatEdges[1];
  t.lneSeats.Y1 = 1800;
  t.lneSeats.Y2 = 4575;
  t.lneSeats.BorderColor = clrPlateEdge;
}

void prcLayShoe() {
  BaccTableWindow& t = BaccTable;
  prcAdd({&t.prgShoe, "prgShoe", -1, ProgressBar, 4050, 1125, 2655, 120});
  t.prgShoe.Spoken = "Cards that have left the shoe";
  t.prgShoe.Visible = false;
  prcAdd({&t.fraShoeNumber, "fraShoeNumber", -1, Frame, 6240, 300, 735, 600, "",
          "Click to select a shoe"});
  t.fraShoeNumber.Spoken = "Shoe";
  t.fraShoeNumber.Visible = false;
  prcAdd({&t.lblShoeNumber, "lblShoeNumber", -1, Label, 0, 60, 735, 225, "SHOE",
          "Click to select a shoe"});
  prcDress(t.lblShoeNumber, tpeQuiet, clrQuiet);
  t.lblShoeNumber.Container = &t.fraShoeNumber;
  static constexpr std::array<const char*, 9> numbers{"1", "2", "3", "4", "5", "6", "7", "8", "9"};
  for (int i = 0; i < t.lblShoe1to9.size(); ++i) {
    Control& label = t.lblShoe1to9[i];
    prcAdd({&label, "lblShoe1to9", i, Label, 0, 270, 735, 300,
            numbers.at(static_cast<std::size_t>(i)), "Click to select a shoe"});
    prcDress(label, tpeHeading, clrIvory);
    label.Container = &t.fraShoeNumber;
    label.Visible = i == intShoeNumber;
  }
  for (Control* label : {&t.FormLastHand, &t.FormEndofShoe}) {
    const bool blnLast = label == &t.FormLastHand;
    prcAdd({label, blnLast ? "FormLastHand" : "FormEndofShoe", -1, Label, 3840, 1275, 2925, 360,
            blnLast ? "LAST HAND" : "END OF SHOE"});
    prcDress(*label, tpeHeading, clrGold);
    label->Visible = false;
    label->Announce = true;
  }
}

/// Three words lead to a first hand, where later a shoe tells that it ends.
void prcLaySteps() {
  static constexpr Table<const char*, 3> words({"1  Shuffle", "2  Bet", "3  Deal"});
  static constexpr Table<double, 4> edges({3975, 5025, 5775, 6690});
  for (int step = 0; step < words.size(); ++step) {
    Control& word = BaccTable.lblStep[step];
    prcAdd({&word, "lblStep", step, Label, edges[step], 1335, edges[step + 1] - edges[step], 255,
            words[step]});
    prcDress(word, tpeText, clrQuiet);
    word.Spoken = "Step";
  }
}

/// Columns of a seat: its box and value label, its chips.
struct SeatColumns {
  double Box, Value, Chips;
};
constexpr std::array<SeatColumns, 2> colSeats{{{4020, 3930, 4440}, {5370, 5310, 5790}}};

struct BetRow {
  BetSide Side;
  const char *Box, *Value, *Stack, *Win, *Lose;
  std::array<const char*, 4> Chips;
  const char* Clear;
  double Top;
  const char* Mask;
  char AccessKey;
};
constexpr std::array<BetRow, 3> rowBets{
    {{betTie,
      "txtTieBet",
      "txtTieBetValue",
      "shpTStack",
      "lblTWin",
      "lblTLose",
      {"lblTBetInc0", "lblTBetInc1", "lblTBetInc2", "lblTBetInc5"},
      "Clear Tie Bet",
      2070,
      "99",
      'T'},
     {betBanker,
      "txtBankerBet",
      "txtBankerBetValue",
      "shpBStack",
      "lblBWin",
      "lblBLose",
      {"lblBBetInc0", "lblBBetInc1", "lblBBetInc2", "lblBBetInc5"},
      "Clear Banker Bet",
      2700,
      "999",
      'B'},
     {betPlayer,
      "txtPlayerBet",
      "txtPlayerBetValue",
      "shpPStack",
      "lblPWin",
      "lblPLose",
      {"lblPBetInc0", "lblPBetInc1", "lblPBetInc2", "lblPBetInc5"},
      "Clear Player Bet",
      3330,
      "999",
      'P'}}};

/// A chip label as it looks, in the order of intChipSizes.
struct ChipRow {
  const char *Text, *ToolTip;
  int Picture;
};
constexpr std::array<ChipRow, intChipSizes.size()> chpAll{
    {{"0", "", picChip0},
     {"1", "Left click add 1 chip / Right click subtract 1 chip", picChip1},
     {"2", "Left click add 2 chips / Right click subtract 2 chips", picChip2},
     {"5", "Left click add 5 chips / Right click subtract 5 chips", picChip5}}};
constexpr double dblChipPitch = 210;

/// What is shown by its place only has to be told apart by name for the ear.
std::string fncSpokenSeat(int seat) { return "Player " + std::to_string(seat + 1) + ", "; }

std::string fncSpokenBet(BetSide side, int seat) {
  static constexpr std::array<const char*, 3> names{"Tie bet", "Banker bet", "Player bet"};
  return fncSpokenSeat(seat) + names.at(static_cast<std::size_t>(side));
}

const char* fncBoxTip(BetSide side, int seat) {
  if (side != betTie) {
    return "Enter between 0 and 100 units";
  }
  return seat == 0 ? "Enter between 0 and 50 units" : "Enter between 0 and 20 units";
}

void prcLayChips(const BetRow& row, int seat) {
  for (std::size_t k = 0; k < chpAll.size(); ++k) {
    Control& label = *fncChips(seat)[static_cast<std::size_t>(row.Side) * chpAll.size() + k];
    const ChipRow& chip = chpAll.at(k);
    prcAdd(
        {&label, row.Chips.at(k), seat, Label,
         colSeats.at(static_cast<std::size_t>(seat)).Chips + dblChipPitch * static_cast<double>(k),
         row.Top + 30, 225, 285, chip.Text, k == 0 ? row.Clear : chip.ToolTip});
    label.Spoken = fncSpokenBet(row.Side, seat) + ", " +
                   (k == 0   ? "clear"
                    : k == 1 ? "1 chip"
                             : std::string(chip.Text) + " chips");
    label.Dress = Look::Chip;
    label.Picture = chip.Picture;
    label.MousePointer = Pointer::HandLink;
    label.Visible = false;
  }
}

void prcLayBet(const BetRow& row, int seat) {
  const SeatColumns& at = colSeats.at(static_cast<std::size_t>(seat));
  const BetControls bet = fncBet(row.Side, seat);
  prcAdd({&bet.Box, row.Box, seat, MaskedEdit, at.Box, row.Top, 405, 315, "0",
          fncBoxTip(row.Side, seat)});
  bet.Box.Mask = row.Mask;
  bet.Box.Format = "0";
  bet.Box.Face = tpeStrong;
  bet.Box.Align = Alignment::Centre;
  bet.Box.Visible = false;
  bet.Box.Spoken = fncSpokenBet(row.Side, seat) + ", chips";
  bet.Box.AccessKey = row.AccessKey;
  prcLayChips(row, seat);
  prcAdd({&bet.Value, row.Value, seat, Label, at.Value, row.Top + 360, 765, 255, "0"});
  prcDress(bet.Value, tpeText, clrIvory, Alignment::Right);
  bet.Value.Spoken = fncSpokenBet(row.Side, seat) + ", money";
  bet.Value.Visible = false;
  prcAdd({&bet.Stack, row.Stack, seat, Shape, at.Value + 795, row.Top + 360, 555, 255});
  bet.Stack.Dress = Look::ChipStack;
  for (const bool blnWin : {true, false}) {
    Control& mark = blnWin ? bet.Win : bet.Lose;
    prcAdd({&mark, blnWin ? row.Win : row.Lose, seat, Label, at.Value + 780, row.Top + 360, 570,
            255, blnWin ? "WIN" : "LOSE"});
    prcDress(mark, tpeStrong, blnWin ? clrWhite : clrLost);
    mark.BackColor = blnWin ? clrWon : clrPlate;
    mark.Dress = blnWin ? Look::Won : Look::Lost;
    mark.Visible = false;
    mark.Announce = true;
    mark.Spoken = fncSpokenBet(row.Side, seat);
  }
}

void prcLaySeat(int seat) {
  BaccTableWindow& t = BaccTable;
  const double left = dblSeatEdges.at(static_cast<std::size_t>(seat));
  prcAdd({&t.lblSeat[seat], "lblSeat", seat, Label, left, 1740,
          dblSeatEdges.at(static_cast<std::size_t>(seat) + 1) - left, 270,
          seat == 0 ? "Player 1" : "Player 2"});
  prcDress(t.lblSeat[seat], tpeStrong, clrGold);
  for (const BetRow& row : rowBets) {
    prcLayBet(row, seat);
  }
  const double money = seat == 0 ? 4110 : 5490;
  prcAdd({&t.lblPlayerTotal[seat], "lblPlayerTotal", seat, Label, money, 4020, 1095, 255, "",
          "Stake and winnings"});
  prcDress(t.lblPlayerTotal[seat], {.Size = 10.5F, .Bold = true}, clrIvory, Alignment::Right);
  prcAdd({&t.lblPlayerWinnings[seat], "lblPlayerWinnings", seat, Label, money, 4350, 1095, 255, "",
          "Winnings"});
  prcDress(t.lblPlayerWinnings[seat], tpeText, clrQuiet, Alignment::Right);
  t.lblPlayerTotal[seat].Dress = t.lblPlayerWinnings[seat].Dress = Look::Money;
  t.lblPlayerTotal[seat].Spoken = fncSpokenSeat(seat) + "money";
  t.lblPlayerTotal[seat].Announce = true;
  t.lblPlayerWinnings[seat].Spoken = fncSpokenSeat(seat) + "won";
}

void prcLayRowHeads() {
  BaccTableWindow& t = BaccTable;
  const auto head = [](Control& label, const char* name, int index, double top, double height,
                       const char* text, Colour colour) {
    prcAdd({&label, name, index, Label, 6685, top, 615, height, text});
    prcDress(label, tpeQuiet, colour, Alignment::Left);
  };
  head(t.lblRow[0], "lblRow", 0, 2055, 225, "TIE", clrGold);
  head(t.Label8, "Label8", -1, 2265, 420, "Pays 8 To 1", clrQuiet);
  t.Label8.Width = 480;  // Breaks before the 8.
  head(t.Label5, "Label5", -1, 2745, 225, "BANKER", clrGold);
  head(t.Label4, "Label4", -1, 3375, 225, "PLAYER", clrGold);
  head(t.lblRow[1], "lblRow", 1, 4035, 225, "MONEY", clrGold);
  head(t.lblRow[2], "lblRow", 2, 4365, 225, "WON", clrGold);
  t.lblRow[0].AccessKey = rowBets[0].AccessKey;
  t.Label5.AccessKey = rowBets[1].AccessKey;
  t.Label4.AccessKey = rowBets[2].AccessKey;
}

struct CardPlace {
  double Left, Top, BottomLeft, BottomTop, RightLeft, RightTop;
};
constexpr std::array<CardPlace, intPositions> plcCards{{{960, 2700, 960, 4140, 2040, 2700},
                                                        {2160, 2700, 2160, 4140, 3225, 2700},
                                                        {1560, 1140, 1590, 2580, 2625, 1140},
                                                        {7500, 2700, 7500, 4140, 8565, 2700},
                                                        {8700, 2700, 8700, 4140, 9765, 2670},
                                                        {8100, 1140, 8100, 2580, 9165, 1140}}};

/// On the felt, below all cards.
void prcLayCardPlaces() {
  BaccTableWindow& t = BaccTable;
  for (int n = 0; n < intPositions; ++n) {
    const CardPlace& at = plcCards.at(static_cast<std::size_t>(n));
    prcAdd(
        {&t.shpCardPlace[n], "shpCardPlace", n, Shape, at.Left, at.Top, intCardWide, intCardHigh});
    t.shpCardPlace[n].Dress = Look::CardPlace;
    prcAdd(
        {&t.shpCardWaits[n], "shpCardWaits", n, Shape, at.Left, at.Top, intCardWide, intCardHigh});
    t.shpCardWaits[n].Dress = Look::Waiting;
    t.shpCardWaits[n].Visible = false;
  }
}

struct PatchPlace {
  Table<Control, 6> BaccTableWindow::*Family;
  const char* Name;
  double Left, Top, Width;
};
/// Over the corners' marks: wide ones for pips, narrow ones beside the frame of a picture.
constexpr double dblPatchHeight = 390;
constexpr std::array<PatchPlace, 8> plcPatches{
    {{&BaccTableWindow::pctCardTopLeftWide, "pctCardTopLeftWide", 45, 45, 159},
     {&BaccTableWindow::pctCardTopRightWide, "pctCardTopRightWide", 855, 45, 165},
     {&BaccTableWindow::pctCardBottomLeftWide, "pctCardBottomLeftWide", 45, 1005, 159},
     {&BaccTableWindow::pctCardBottomRightWide, "pctCardBottomRightWide", 855, 1005, 159},
     {&BaccTableWindow::pctCardTopLeft, "pctCardTopLeft", 30, 45, 129},
     {&BaccTableWindow::pctCardTopRight, "pctCardTopRight", 900, 45, 129},
     {&BaccTableWindow::pctCardBottomLeft, "pctCardBottomLeft", 30, 1005, 129},
     {&BaccTableWindow::pctCardBottomRight, "pctCardBottomRight", 900, 1005, 129}}};

void prcLayCard(int n) {
  BaccTableWindow& t = BaccTable;
  const CardPlace& at = plcCards.at(static_cast<std::size_t>(n));
  const bool blnNarrowShadow = n == 4;
  prcAdd({&t.shpCardShadow[n], "shpCardShadow", n, Shape, at.Left + (blnNarrowShadow ? 30 : 45),
          at.Top + 45, blnNarrowShadow ? 1080.0 : intCardWide, intCardHigh});
  t.shpCardShadow[n].Dress = Look::Shadow;
  t.shpCardShadow[n].FillColor = clrBlack;
  prcAdd({&t.pctCardFace[n], "pctCardFace", n, Picture, at.Left, at.Top, intCardWide, intCardHigh});
  t.pctCardFace[n].Dress = Look::Card;
  for (const PatchPlace& patch : plcPatches) {
    Control& picture = (t.*patch.Family)[n];
    prcAdd({&picture, patch.Name, n, Picture, at.Left + patch.Left, at.Top + patch.Top, patch.Width,
            dblPatchHeight});
    picture.BackColor = clrWhite;
    picture.Dress = Look::Patch;
    picture.Visible = false;
  }
  prcAdd({&t.pctCardBack[n], "pctCardBack", n, Picture, at.Left, at.Top, intCardWide, intCardHigh,
          "", "Click to reveal card"});
  t.pctCardBack[n].Dress = Look::Card;
  t.pctCardBack[n].TabStop = true;
  t.pctCardBack[n].Spoken = "Hidden " + fncSpokenPosition(n);
  t.pctCardFace[n].Announce = true;
  prcAdd({&t.lblCardBottom[n], "lblCardBottom", n, Label, at.BottomLeft, at.BottomTop, 1065, 135,
          "", "To reveal card - press left mouse button and move up"});
  t.lblCardBottom[n].Spoken = fncSpokenPosition(n) + ", lower edge";
  prcAdd({&t.lblCardRight[n], "lblCardRight", n, Label, at.RightLeft, at.RightTop, 135, 1440, "",
          "To reveal card - press left mouse button and move left"});
  t.lblCardRight[n].Spoken = fncSpokenPosition(n) + ", right edge";
  t.lblCardBottom[n].Dress = t.lblCardRight[n].Dress = Look::PullEdge;
  for (Control* control : {&t.shpCardShadow[n], &t.pctCardFace[n], &t.pctCardBack[n],
                           &t.lblCardBottom[n], &t.lblCardRight[n]}) {
    control->Visible = false;
  }
}

void prcLayResults(bool blnPlayer) {
  BaccTableWindow& t = BaccTable;
  const double left = dblAreaLeft.at(blnPlayer ? 0 : 1);
  const auto add = [](Control& label, const char* name, double x, double y, double w, double h,
                      const char* text, Type face, Colour colour, Alignment align) {
    prcAdd({&label, name, -1, Label, x, y, w, h, text});
    prcDress(label, face, colour, align);
    label.Visible = false;
  };
  add(blnPlayer ? t.Label1 : t.Label2, blnPlayer ? "Label1" : "Label2", left + 30, 225, 1200, 345,
      blnPlayer ? "PLAYER" : "BANKER", tpeSide, clrWhite, Alignment::Left);
  Control& natural = blnPlayer ? t.lblNaturalP : t.lblNaturalB;
  add(natural, blnPlayer ? "lblNaturalP" : "lblNaturalB", left + 30, 600, 1785, 345, "NATURAL!",
      tpeSide, clrGold, Alignment::Left);
  natural.Announce = true;
  natural.Spoken = blnPlayer ? "Player" : "Banker";
  Control& total = blnPlayer ? t.PTotal : t.BTotal;
  add(total, blnPlayer ? "PTotal" : "BTotal", left + 1860, 180, 615, 810, "0", tpeTotal, clrWhite,
      Alignment::Centre);
  total.Announce = true;
  total.Spoken = blnPlayer ? "Player total" : "Banker total";
  for (const bool blnTie : {false, true}) {
    Control& mark =
        blnTie ? (blnPlayer ? t.TieResultP : t.TieResultB) : (blnPlayer ? t.WinP : t.WinB);
    const char* name =
        blnTie ? (blnPlayer ? "TieResultP" : "TieResultB") : (blnPlayer ? "WinP" : "WinB");
    add(mark, name, left + 1245, 240, 600, 315, blnTie ? "TIE" : "WIN", {.Size = 12, .Bold = true},
        clrWhite, Alignment::Centre);
    mark.BackColor = clrWon;
    mark.Dress = Look::Plate;
    mark.Announce = true;
    mark.Spoken = natural.Spoken;
  }
}

void prcLayLearnPanel(bool blnPlayer) {
  BaccTableWindow& t = BaccTable;
  const double left = blnPlayer ? 600 : 7110;
  Control& shape = blnPlayer ? t.shpCardNeedP : t.shpCardNeedB;
  prcAdd({&shape, blnPlayer ? "shpCardNeedP" : "shpCardNeedB", -1, Shape, left, 4260, 3045, 615});
  prcPlateShape(shape, clrPanel, clrGold);
  shape.Visible = false;
  Control& label = blnPlayer ? t.lblCardNeedP : t.lblCardNeedB;
  prcAdd({&label, blnPlayer ? "lblCardNeedP" : "lblCardNeedB", -1, Label, left, 4260, 3045, 615});
  prcDress(label, {.Size = 8.25F}, clrWhite);
  label.Announce = true;
  label.Spoken = blnPlayer ? "Player advice:" : "Banker advice:";
  label.Visible = false;
}

void prcLayShuffleNotes() {
  for (int side = 0; side < 2; ++side) {
    Control& label = BaccTable.lblShuffleInProgress[side];
    prcAdd({&label, "lblShuffleInProgress", side, Label,
            dblAreaLeft.at(static_cast<std::size_t>(side)), 1950, dblAreaWidth, 1200,
            "SHUFFLE IN PROGRESS PLEASE WAIT"});
    prcDress(label, tpeHeading, clrGold);
    label.Visible = false;
    label.Announce = side == 0;
  }
}

void prcMasked(Control& box, const char* mask, const char* format) {
  box.Mask = mask;
  box.Format = format;
  box.Face = tpeStrong;
  box.Align = Alignment::Centre;
}

constexpr double dblButtonTop = 4905;
constexpr double dblButtonHeight = 345;

/// Of the Deal buttons. The captions are fixed, and D, like S, opens a menu.
constexpr std::array<char, 4> chrDealKeys{'E', '5', '1', '2'};

void prcLayButtons() {
  BaccTableWindow& t = BaccTable;
  prcAdd(
      {&t.lblUnitValue, "lblUnitValue", -1, Label, 600, dblButtonTop + 45, 960, 255, "Chip Value"});
  prcDress(t.lblUnitValue, tpeText, clrIvory, Alignment::Left);
  prcAdd({&t.txtUnitValue, "txtUnitValue", -1, MaskedEdit, 1620, dblButtonTop + 15, 780, 315, "0",
          "Enter between $10 and $9990"});
  prcMasked(t.txtUnitValue, "$9999", "$0");
  t.txtUnitValue.Spoken = t.lblUnitValue.Text;
  t.txtUnitValue.AccessKey = t.lblUnitValue.AccessKey = 'V';
  prcAdd({&t.lblHandsAtaTime, "lblHandsAtaTime", -1, Label, 2640, dblButtonTop + 45, 1200, 255,
          "Hands at A Time"});
  prcDress(t.lblHandsAtaTime, tpeText, clrIvory, Alignment::Right);
  t.lblHandsAtaTime.Visible = false;
  prcAdd({&t.mskHandsAtaTime, "mskHandsAtaTime", -1, MaskedEdit, 3885, dblButtonTop + 15, 450, 315,
          "1", "Enter Between 1 and 90"});
  prcMasked(t.mskHandsAtaTime, "99", "0");
  t.mskHandsAtaTime.Spoken = t.lblHandsAtaTime.Text;
  t.mskHandsAtaTime.AccessKey = 'N';
  t.mskHandsAtaTime.Visible = false;
  for (int i = 0; i < t.duokkortos.size(); ++i) {
    prcAdd({&t.duokkortos[i], "duokkortos", i, Button, i == 0 ? 4380.0 : 4470.0 + 1005 * i,
            dblButtonTop, i == 0 ? 1050.0 : 960.0, dblButtonHeight});
    t.duokkortos[i].Face = i == 0 ? tpeStrong : Type{.Size = 8.25F, .Bold = true};
    t.duokkortos[i].Dress = i == 0 ? Look::Primary : Look::Plain;
    t.duokkortos[i].AccessKey = chrDealKeys.at(static_cast<std::size_t>(i));
    t.duokkortos[i].Visible = false;
  }
  prcAdd({&t.maisyk, "maisyk", -1, Button, 8880, dblButtonTop, 1275, dblButtonHeight});
  t.maisyk.Face = tpeStrong;
  t.maisyk.AccessKey = 'U';
  t.maisyk.Visible = false;
}

/// The back in flight lies above everything but the shoe that it comes out of, and the box that
/// only parks the focus lies out of sight.
void prcLayFlightAndTimer() {
  BaccTableWindow& t = BaccTable;
  prcAdd(
      {&t.pctCardBackMove, "pctCardBackMove", -1, Picture, 4950, -1500, intCardWide, intCardHigh});
  t.pctCardBackMove.Picture = picCardBack;
  t.pctCardBackMove.Dress = Look::Card;
  t.pctCardBackMove.Visible = false;
  prcAdd({&t.picShoeBox, "picShoeBox", -1, Picture, 4597.5, 0, 1575, 1050});
  t.picShoeBox.Picture = picShoe;
  prcAdd({&t.txtsetfocus, "txtsetfocus", -1, TextBox, -900, -900, 300, 300});
  t.txtsetfocus.TabStop = false;
  t.txtsetfocus.Spoken = "Hand in play";
  prcAdd({&t.Timer1, "Timer1", -1, Timer, 0, 0, 0, 0});
  t.Timer1.Interval = 500;
  t.Timer1.Enabled = false;
}

}  // namespace

void prcLayOutBaccTable() {
  prcClearControls(BaccTable.Form);
  prcLayGround();
  prcLayCardPlaces();
  prcLayShoe();
  prcLaySteps();
  prcLaySeat(0);
  prcLaySeat(1);
  prcLayRowHeads();
  for (int n = 0; n < intPositions; ++n) {
    prcLayCard(n);
  }
  prcLayResults(true);
  prcLayResults(false);
  prcLayLearnPanel(true);
  prcLayLearnPanel(false);
  prcLayShuffleNotes();
  prcLayButtons();
  prcLayFlightAndTimer();
  BaccTable.intFlashCount = BaccTable.intAddSub = 0;
  BaccTable.blnCardsPlaced = BaccTable.blnCardNeedShown = BaccTable.blnHandSeen = false;
}
