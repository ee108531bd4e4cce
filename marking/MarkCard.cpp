#include "marking/MarkCard.h"

#include <algorithm>
#include <array>

#include "marking/MarkState.h"
#include "marking/MarkTip.h"
#include "platform/Procedure.h"
#include "platform/platform.h"

Table<MarkCardWindow, intShoes> MarkCards;
std::map<std::string, MarkCardWindow*> colMarkCards;

namespace {

constexpr int intHeadings = 90;  ///< Columns that have a heading.

// The line of an ignored tie, twips.
constexpr int intTieLineHeight = 30;
constexpr int intTieLineDrop = 260;  ///< From the top of the last mark's cell to the line.
constexpr int intTieLineAbove = 30;  ///< From the line to the first cell below it.

std::array<ControlFamily*, 4> fncFamilies(MarkCardWindow& form) {
  return {&form.lblTotal, &form.lblBP, &form.shpTBP, &form.lblTBP};
}

Control& fncElement(ControlFamily& family, int n) {
  const auto found = family.find(n);
  if (found == family.end()) {
    throw faultSubscript;
  }
  return found->second;
}

void prcEmptyFamily(ControlFamily& family) {
  for (auto& [n, element] : family) {
    element.Visible = false;
    if (n > 0) {
      prcRemoveControl(element);
    }
  }
  std::erase_if(family, [](const auto& entry) { return entry.first > 0; });
}

Look fncLook(const Mark& mark) { return mark.Lost.value_or(false) ? Look::LostMark : Look::Mark; }

Colour fncTextColour(bool negative) { return negative ? clrDarkRed : clrWindowText; }

/// Puts an element where column c has it.
void prcAtColumn(Control& element, const ControlFamily& family, const Integer& column) {
  element.Left = family.at(0).Left + column * double{intColumnPitch};
}

/// The element of this hand, whose height an ignored tie of an earlier shoe may have changed.
int fncMakeMark(MarkCardWindow& form, const Integer& handsDealt) {
  const int i = int{handsDealt} - 1;
  if (!blnMarkShapeCaptured) {
    blnMarkShapeCaptured = true;
    intMarkShapeHeight = fncInteger(form.shpTBP.at(0).Height);
    intMarkShapeTop = fncInteger(form.shpTBP.at(0).Top);
  }
  if (handsDealt > 1) {
    fncMakeElement(form, form.shpTBP, i);
    fncMakeElement(form, form.lblTBP, i);  // Above its frame, which a loss fills.
  }
  fncElement(form.shpTBP, i).Height = intMarkShapeHeight;
  return i;
}

/// All headings come at once: every change of side opens a column, so they alternate.
void prcShowHeadings(MarkCardWindow& form, const std::string& first) {
  const std::string second = first == "B" ? "P" : "B";
  for (int n = 0; n < intHeadings; ++n) {
    Control& heading = fncMakeElement(form, form.lblBP, n);
    heading.Text = n % 2 == 0 ? first : second;
    heading.Spoken = "Column " + std::to_string(n + 1) + ",";
    prcAtColumn(heading, form.lblBP, n);
    heading.Visible = true;
  }
}

void prcShowTotal(MarkCardWindow& form, const Mark& mark) {
  if (mark.NewTotal) {
    fncMakeElement(form, form.lblTotal, mark.Column);
  }
  Control& total = fncElement(form.lblTotal, mark.Column);
  total.Text = std::to_string(int{*mark.Total});
  total.Spoken = "Score after column " + std::to_string(int{mark.Column} + 1) + ":";
  prcAtColumn(total, form.lblTotal, mark.Column);
  total.ForeColor = fncTextColour(*mark.Total < 0);
  total.Visible = true;
}

void prcGrow(Control& picture, const Integer& row) {
  const double height = intMarkCardBase + (row - double{intRowsBeforeGrowth}) * intRowPitch;
  if (row > intRowsBeforeGrowth && height > picture.Height) {
    prcResizePicture(picture, picture.Width, height);
  }
}

double fncShapeTop(const Mark& mark) {
  if (mark.AboveCard) {
    return intMarkShapeTop - double{intTieLineAbove};
  }
  const double cell = intMarkShapeTop + (mark.Row - 1.0) * intRowPitch;
  return mark.TieLine ? cell + intTieLineDrop : cell;
}

void prcPlaceShape(MarkCardWindow& form, Control& shape, const Mark& mark) {
  shape.BorderColor = mark.Border;
  shape.Form2D = mark.Oval ? ShapeForm::Oval : ShapeForm::Rectangle;
  shape.Dress = fncLook(mark);
  if (mark.TieLine) {
    shape.Height = intTieLineHeight;
  }
  shape.Top = fncShapeTop(mark);
  prcAtColumn(shape, form.shpTBP, mark.Column);
}

void prcPlaceText(MarkCardWindow& form, Control& text, const Mark& mark) {
  text.Text = mark.Caption;
  text.Dress = fncLook(mark);
  if (mark.Lost) {
    text.ForeColor = fncTextColour(*mark.Lost);
  }
  if (!mark.TieLine) {
    text.Top = form.lblTBP.at(0).Top + (mark.Row - 1.0) * intRowPitch;
    prcAtColumn(text, form.lblTBP, mark.Column);
  }
}

/// Pans sideways, and some more so that the next mark has room. The bar has the last word where its
/// range ends.
void prcKeepInView(MarkCardWindow& form, const Control& shape) {
  const double limit = form.Form.ScaleWidth - form.VScroll1.Width;
  const double edge = shape.Left + shape.Width + form.Picture1.Left;
  if (limit < edge) {
    form.Picture1.Left -= (edge - limit) + 2 * shape.Width;
  }
  prcSetValue(form.HScroll1, -form.Picture1.Left);
  form.Picture1.Left = -form.HScroll1.Value;
}

void prcDrawMark(MarkCardWindow& form, int i, const Mark& mark, const std::string& strTip) {
  if (!mark.Heading.empty()) {
    prcShowHeadings(form, mark.Heading);
  }
  if (mark.Total) {
    prcShowTotal(form, mark);
  }
  Control& shape = fncElement(form.shpTBP, i);
  Control& text = fncElement(form.lblTBP, i);
  prcGrow(form.Picture1, mark.Row);
  prcPlaceShape(form, shape, mark);
  prcPlaceText(form, text, mark);
  shape.Visible = true;
  text.Visible = !mark.TieLine;
  (mark.TieLine ? shape : text).Spoken = "Hand " + std::to_string(i + 1) + ", " + mark.Spoken;
  text.ToolTip = strTip;
  prcKeepInView(form, shape);
  platform::RepaintNow(form.Picture1);
}

}  // namespace

std::string fncHandleText(const Long& handle) { return std::to_string(std::int32_t{handle}); }

MarkCardWindow* fncWindowOf(const Long& handle) {
  const auto found = colMarkCards.find(fncHandleText(handle));
  const bool blnOpen = found != colMarkCards.end() && found->second->Form.hWnd == handle;
  return blnOpen ? found->second : nullptr;
}

MarkCardWindow* fncMarkCard(Integer card) { return fncWindowOf(lngMarkCardHwnd[card]); }

Integer fncMarkCardNumber(const Window& form) {
  for (int card = 0; card < intShoes; ++card) {
    if (form.hWnd != 0 && lngMarkCardHwnd[card] == form.hWnd) {
      return card;
    }
  }
  return -1;
}

Control& fncMakeElement(MarkCardWindow& form, ControlFamily& family, int n) {
  const auto [place, blnNew] = family.try_emplace(n, family.at(0));
  Control& element = place->second;
  if (blnNew) {
    element.Index = n;
    element.Visible = false;
    prcAddControl(form.Form, element);
  }
  return element;
}

void ClearCardView(const Integer& card) {
  const Procedure running("ClearCardView");
  if (MarkCardWindow* form = fncMarkCard(card)) {
    std::ranges::for_each(fncFamilies(*form),
                          [](ControlFamily* family) { prcEmptyFamily(*family); });
    running.Step(2);
    form->Picture1.Left = 0;
    prcSetValue(form->HScroll1, 0);
  }
  running.Step(3);
  intLastTotalColumn[card] = 0;
  blnMarkStarted[card] = false;
  blnShuffled[card] = false;
}

void SetCardView(const Integer& card) {
  const Procedure running("SetCardView");
  MarkCardWindow* form = fncMarkCard(card);
  running.Step(2);
  const int i = form != nullptr ? fncMakeMark(*form, intHandsDealt[intMarkCardShoe[card]]) : 0;
  running.Step(3);
  const Mark mark = fncPlaceMark(card);
  running.Step(4);
  if (form != nullptr) {
    prcDrawMark(*form, i, mark, fncMarkTip(card));
  }
}

void prcMarkCardTimers() {
  for (int k = 0; k < intShoes; ++k) {
    if (MarkCardWindow* form = lngMarkCardHwnd[k] != 0 ? fncMarkCard(k) : nullptr) {
      form->Timer1.Enabled = true;
    }
  }
}
