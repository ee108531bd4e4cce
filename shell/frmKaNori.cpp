#include "shell/frmKaNori.h"

#include <array>

#include "platform/Layout.h"

KaNoriWindow frmKaNori;

namespace {

constexpr std::array<const char*, intShoes> strNumbers{"1", "2", "3", "4", "5", "6", "7", "8", "9"};
constexpr const char* strLeftClick = "Left click to change color";
constexpr const char* strRightClick = "Right click for default";
constexpr Colour clrOwnShoe{255, 0, 0};
constexpr Colour clrPlayerArea{0, 0, 255};
constexpr Colour clrBankerArea{255, 0, 0};

/// The first row of the marking cards and the step to the next, twips.
constexpr double dblFirstRow = 780;
constexpr double dblRowPitch = 360;

void prcPutInto(Control& container, std::span<const Place> rows) {
  for (const Place& row : rows) {
    prcPlace(*container.Form, row);
    row.Target->Container = &container;
  }
}

void prcFill(Control& shape, Colour colour) {
  shape.FillColor = colour;
  shape.BorderColor = clrBlack;
}

void prcLayOutBackground(Window& form) {
  KaNoriWindow& w = frmKaNori;
  prcPlace(form, {&w.Frame1, "Frame1", -1, ControlKind::Frame, 120, 90, 9360, 1050,
                  "Card Dealing Background"});
  const Place rows[] = {
      {&w.lblColorBackground, "Label", -1, ControlKind::Label, 150, 300, 1500, 240,
       "Color background"},
      {&w.optColorBackground[0], "optColorBackground", 0, ControlKind::OptionButton, 150, 600, 750,
       285, "Yes"},
      {&w.optColorBackground[1], "optColorBackground", 1, ControlKind::OptionButton, 960, 600, 750,
       285, "No"},
      {&w.shpPlayer, "shpPlayer", -1, ControlKind::Shape, 2100, 540, 1350, 375},
      {&w.shpBanker, "shpBanker", -1, ControlKind::Shape, 3750, 540, 1350, 375},
      {&w.lblPlayer, "Label", -1, ControlKind::Label, 2100, 270, 1350, 240, "PLAYER"},
      {&w.lblBanker, "Label", -1, ControlKind::Label, 3750, 270, 1350, 240, "BANKER"},
      {&w.lblChangeBG[0], "lblChangeBG", 0, ControlKind::Label, 2100, 540, 1350, 375},
      {&w.lblChangeBG[1], "lblChangeBG", 1, ControlKind::Label, 3750, 540, 1350, 375},
      {&w.Label11, "Label11", -1, ControlKind::Label, 5400, 330, 3000, 240, strLeftClick},
      {&w.Label12, "Label12", -1, ControlKind::Label, 5400, 630, 3000, 240, strRightClick},
  };
  prcPutInto(w.Frame1, rows);
  prcFill(w.shpPlayer, clrPlayerArea);
  prcFill(w.shpBanker, clrBankerArea);
  w.lblPlayer.Align = w.lblBanker.Align = Alignment::Centre;
}

/// The row of one marking card: its number, source shoe, ties, limit and colour.
void prcLayOutCard(int k) {
  KaNoriWindow& w = frmKaNori;
  const double top = dblFirstRow + dblRowPitch * k;
  const Place rows[] = {
      {&w.Label1[k], "Label1", k, ControlKind::Label, 210, top + 45, 300, 240,
       strNumbers.at(static_cast<std::size_t>(k))},
      {&w.frmeShoeSource[k], "frmeShoeSource", k, ControlKind::Frame, 600, top, 4230, 315},
      {&w.frmeIgnoreTies[k], "frmeIgnoreTies", k, ControlKind::Frame, 4950, top, 1350, 315},
      {&w.mskMCVLimit[k], "mskMCVLimit", k, ControlKind::MaskedEdit, 6630, top, 480, 285, "",
       "Limit vertical run: 0 to 20"},
      {&w.shpMC[k], "shpMC", k, ControlKind::Shape, 7650, top, 1200, 285},
      {&w.lblChgColor[k], "lblChgColor", k, ControlKind::Label, 7650, top, 1200, 285},
  };
  prcPutInto(w.frmeMC, rows);
  w.mskMCVLimit[k].Mask = "99";
  prcFill(w.shpMC[k], clrWhite);
  for (int s = 0; s < intShoes; ++s) {
    const int i = intShoes * k + s;
    const Place option[] = {{&w.optShoeSource[i], "optShoeSource", i, ControlKind::OptionButton,
                             30.0 + 465 * s, 15, 450, 285,
                             strNumbers.at(static_cast<std::size_t>(s))}};
    prcPutInto(w.frmeShoeSource[k], option);
  }
  w.optShoeSource[intShoes * k + k].ForeColor = clrOwnShoe;
  const Place ties[] = {
      {&w.optIgnoreTies[k], "optIgnoreTies", k, ControlKind::OptionButton, 30, 15, 600, 285, "No"},
      {&w.optIgnoreTies[intShoes + k], "optIgnoreTies", intShoes + k, ControlKind::OptionButton,
       690, 15, 630, 285, "Yes"},
  };
  prcPutInto(w.frmeIgnoreTies[k], ties);
}

void prcLayOutMarkCards(Window& form) {
  KaNoriWindow& w = frmKaNori;
  prcPlace(form,
           {&w.frmeMC, "frmeMC", -1, ControlKind::Frame, 120, 1230, 9360, 4800, "MARKING CARDS"});
  const Place rows[] = {
      {&w.Label7, "Label7", -1, ControlKind::Label, 120, 480, 450, 240, "Card"},
      {&w.lblShoeSource, "Label", -1, ControlKind::Label, 600, 480, 4230, 240,
       "Which SHOE is the source for this marking card"},
      {&w.lblIgnoreTies, "Label", -1, ControlKind::Label, 4950, 480, 1350, 240, "Ignore Ties"},
      {&w.lblVLimit, "Label", -1, ControlKind::Label, 6240, 240, 1350, 240, "Vertical Run Limit"},
      {&w.lblNoLimit, "Label", -1, ControlKind::Label, 6390, 480, 1100, 240, "(0 = no limit)"},
      {&w.lblLeftClick, "Label", -1, ControlKind::Label, 7500, 240, 1830, 240, strLeftClick},
      {&w.lblRightClick, "Label", -1, ControlKind::Label, 7500, 480, 1830, 240, strRightClick},
      {&w.lblCannotChgMC, "lblCannotChgMC", -1, ControlKind::Label, 210, 4200, 8700, 300,
       "If any marking cards visible then cannot change marking cards"},
  };
  prcPutInto(w.frmeMC, rows);
  for (int k = 0; k < intShoes; ++k) {
    prcLayOutCard(k);
  }
}

void Form_Load(Window& form) {
  prcLayOut(form, {});
  prcLayOutBackground(form);
  prcLayOutMarkCards(form);
}

constexpr WindowEvents evtKaNori{.Load = Form_Load};

}  // namespace

void prcPrepareKaNori() {
  Window& form = frmKaNori.Form;
  form.Name = "frmKaNori";
  form.Kind = WindowKind::Dialog;
  form.On = &evtKaNori;
  form.Caption = "OPTIONS";
  form.FixedInner = true;
  form.ScaleWidth = 9600;
  form.ScaleHeight = 6150;
  form.Centred = true;
}
