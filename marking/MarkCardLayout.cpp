#include "marking/MarkCardLayout.h"

#include <array>

#include "platform/Layout.h"

namespace {

/// The grid's lines part the columns in the middle between marks, and the rows below the headings.
constexpr double dblGridLeft = 30;
constexpr double dblGridTop = 465;
constexpr Colour clrRule{150, 160, 178};
constexpr Colour clrBarCorner{240, 240, 240};

/// One of the two rules that part totals, headings and marks; y in twips.
void prcHeadRule(Control& line, double y) {
  line.X1 = 0;
  line.X2 = 9060;
  line.Y1 = line.Y2 = y;
  line.BorderWidth = 2;
  line.BorderColor = clrRule;
}

void prcCentredLabel(Control& label, const Type& face) {
  label.Align = Alignment::Centre;
  label.Face = face;
}

/// The first element of each family stays hidden until the first hand of a shoe.
void prcDressFamilies(MarkCardWindow& form) {
  prcCentredLabel(form.lblTotal[0], {.Size = 8.25F});
  prcCentredLabel(form.lblBP[0], {.Size = 9.75F, .Bold = true});
  prcCentredLabel(form.lblTBP[0], {.Size = 9});
  form.lblTotal[0].Dress = form.lblTBP[0].Dress = Look::Mark;
  form.shpTBP[0].BorderWidth = 3;
  for (ControlFamily* family : {&form.lblTotal, &form.lblBP, &form.shpTBP, &form.lblTBP}) {
    family->at(0).Visible = false;
  }
}

void prcPutInPicture(MarkCardWindow& form) {
  form.Shape1.Container = &form.Picture1;
  for (ControlFamily* family :
       {&form.lneHLine, &form.lblTotal, &form.lblBP, &form.shpTBP, &form.lblTBP}) {
    for (auto& [n, element] : *family) {
      element.Container = &form.Picture1;
    }
  }
}

}  // namespace

void prcLayOutMarkCard(MarkCardWindow& form) {
  using Kind = ControlKind;
  const std::array rows{
      Place{&form.Picture1, "Picture1", -1, Kind::Picture, 0, 600, 9165, 3405},
      Place{&form.Shape1, "Shape1", -1, Kind::Shape, 0, 2790, 9075, 555},
      Place{&form.lneHLine[0], "lneHLine", 0, Kind::Line, 0, 0, 0, 0},
      Place{&form.lneHLine[1], "lneHLine", 1, Kind::Line, 0, 0, 0, 0},
      Place{&form.lblTotal[0], "lblTotal", 0, Kind::Label, 30, 30, 345, 225},
      Place{&form.lblBP[0], "lblBP", 0, Kind::Label, 75, 240, 285, 225},
      Place{&form.shpTBP[0], "shpTBP", 0, Kind::Shape, 60, 510, 285, 225},
      Place{&form.lblTBP[0], "lblTBP", 0, Kind::Label, 60, 525, 285, 200},
      Place{&form.ScrollCorner, "ScrollCorner", -1, Kind::Picture, 120, 60, 265, 265},
      Place{&form.HScroll1, "HScroll1", -1, Kind::HScrollBar, 0, 4770, 9195, 225},
      Place{&form.VScroll1, "VScroll1", -1, Kind::VScrollBar, 9780, 120, 225, 4125},
      Place{&form.Timer1, "Timer1", -1, Kind::Timer, 0, 0, 0, 0},
      Place{&form.tmrDeal, "tmrDeal", -1, Kind::Timer, 0, 0, 0, 0},
  };
  prcLayOut(form.Form, rows);
  prcPutInPicture(form);
  prcHeadRule(form.lneHLine[0], 240);
  prcHeadRule(form.lneHLine[1], dblGridTop);
  prcDressFamilies(form);
  form.Picture1.BackColor = clrWhite;
  form.Picture1.Dress = Look::Squared;
  form.Picture1.X1 = dblGridLeft;
  form.Picture1.Y1 = dblGridTop;
  form.Picture1.X2 = intColumnPitch;
  form.Picture1.Y2 = intRowPitch;
  form.Shape1.BorderColor = clrRule;
  form.ScrollCorner.BackColor = clrBarCorner;
  form.Picture1.Spoken = "Marks";
  form.HScroll1.Spoken = "Pan the marking card sideways";
  form.VScroll1.Spoken = "Pan the marking card up and down";
  form.Timer1.Interval = 500;
  form.Timer1.Enabled = false;
  form.tmrDeal.Enabled = false;
}
