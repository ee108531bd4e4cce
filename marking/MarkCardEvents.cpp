#include "marking/MarkCardEvents.h"

#include <algorithm>
#include <cstdlib>

#include "marking/AutomaticDeal.h"
#include "marking/MarkCardLayout.h"
#include "marking/MarkState.h"
#include "platform/Places.h"
#include "platform/Procedure.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsKeys.h"
#include "shell/WindowPlace.h"
#include "table/BaccTable.h"

namespace {

// Twips.
constexpr double dblFrameMargin = 500;  ///< Of the frame's width that the card leaves free.
constexpr double dblLeftShift = 150;    ///< How far left of the middle the card hangs.
constexpr double dblBelowCard = 1200;   ///< Of the frame's height that is not the card's.
constexpr double dblMostHeight = 3855;
constexpr double dblPictureWidth = 30000;
constexpr double dblBarWidth = 225;
constexpr double dblInset = 15;  ///< From the drawing area's edge to its rectangle and rules.

constexpr int intLastRule = 10;  ///< Highest element of lneHLine.
constexpr int intRowsBetweenRules = 3;

/// The card that a window or a control on it belongs to, loaded or being loaded.
MarkCardWindow& fncOwner(const Window& window) {
  const auto owner = std::ranges::find_if(
      MarkCards, [&](const MarkCardWindow& form) { return &form.Form == &window; });
  if (owner == MarkCards.end()) {
    throw faultSubscript;
  }
  return *owner;
}

/// Moves a card that overlaps the table window to just below it.
void prcBelowTable(Window& form) {
  form.Top = std::max(form.Top, BaccTable.Form.Top + BaccTable.Form.Height);
}

void prcPlaceForm(Window& form) {
  prcBelowTable(form);
  prcPlaceAcross(form);
  form.Height = std::min(MDIForm1.Form.Height - form.Top - dblBelowCard, dblMostHeight);
  prcMendPlace(form);
}

/// Rules every third row below the headings, so that the eye finds its row.
void prcMakeRules(MarkCardWindow& form) {
  for (int n = 2; n <= intLastRule; ++n) {
    Control& line = fncMakeElement(form, form.lneHLine, n);
    line.X1 = dblInset;
    line.X2 = form.Shape1.Width + dblInset;
    line.Y1 = line.Y2 = form.lneHLine[1].Y1 + (n - 1) * intRowsBetweenRules * intRowPitch;
    line.BorderWidth = 1;
    line.Visible = true;
  }
}

void Picture1_Resize(Control& picture) {
  const Procedure running("MarkCard_Picture1_Resize");
  MarkCardWindow& form = fncOwner(*picture.Form);
  form.Shape1.Left = form.Shape1.Top = dblInset;
  form.Shape1.Width = picture.Width - 3 * dblInset;
  form.Shape1.Height = picture.Height - 3 * dblInset;
  running.Step(2);
  for (auto& [n, line] : form.lneHLine) {
    line.X1 = dblInset;
    line.X2 = form.Shape1.Width + dblInset;
  }
}

void HScroll1_Change(Control& bar) { fncOwner(*bar.Form).Picture1.Left = -bar.Value; }

void VScroll1_Change(Control& bar) { fncOwner(*bar.Form).Picture1.Top = -bar.Value; }

void Timer1_Timer(Control& timer) {
  prcBelowTable(*timer.Form);
  timer.Enabled = false;
}

void tmrDeal_Tick(Control& timer) { tmrDeal_Timer(fncOwner(*timer.Form)); }

constexpr ControlEvents evtPicture{.Resize = Picture1_Resize};
constexpr ControlEvents evtHScroll{.Change = HScroll1_Change};
constexpr ControlEvents evtVScroll{.Change = VScroll1_Change};
constexpr ControlEvents evtTimer{.Timer = Timer1_Timer};
constexpr ControlEvents evtDeal{.Timer = tmrDeal_Tick};

void prcJoinEvents(MarkCardWindow& form) {
  form.Picture1.On = &evtPicture;
  form.HScroll1.On = &evtHScroll;
  form.VScroll1.On = &evtVScroll;
  form.Timer1.On = &evtTimer;
  form.tmrDeal.On = &evtDeal;
}

void Form_Load(Window& window) {
  const Procedure running("MarkCard_Form_Load");
  MarkCardWindow& form = fncOwner(window);
  prcLayOutMarkCard(form);
  prcJoinEvents(form);
  prcReadPlace(window, fncMarkCardSection(intMarkCardNumber), PlaceKeys::Whole);
  prcPlaceForm(window);
  running.Step(2);
  prcMakeRules(form);
  running.Step(3);
  form.Picture1.Left = form.Picture1.Top = 0;
  prcResizePicture(form.Picture1, dblPictureWidth,
                   form.shpTBP[0].Top + intRowsBeforeGrowth * intRowPitch);
  intMarkCardBase = fncInteger(form.Picture1.Height);
  running.Step(4);
  form.VScroll1.Width = form.HScroll1.Height = dblBarWidth;
  running.Step(5);
  prcSetDealInterval(form);
  running.Step(6);
  prcToFront(window);
}

void Form_Unload(Window& window, bool& /*blnCancel*/) {
  const Procedure running("MarkCard_Form_Unload");
  const Integer card = fncMarkCardNumber(window);
  if (card >= 0) {
    running.Step(2);
    prcWritePlace(window, fncMarkCardSection(card), PlaceKeys::Whole);
  }
  running.Step(3);
  RemoveCardViewForm(fncOwner(window));
}

void Form_Activate(Window& window) {
  const Procedure running("MarkCard_Form_Activate");
  fncOwner(window).Timer1.Enabled = false;
}

void Form_Resize(Window& window) {
  const Integer card = fncMarkCardNumber(window);
  if (window.Visible && card >= 0) {
    prcMarkCardResize(card);
  }
}

void Form_KeyDown(Window& /*window*/, const std::string& strKey, int intShift) {
  constexpr int intAllMasks = intShiftMask | intCtrlMask | intAltMask;
  if (strKey == "F12" && (intShift & intAllMasks) == intAllMasks) {
    BaccTable.Form.Visible = !BaccTable.Form.Visible;
  }
}

constexpr WindowEvents evtMarkCard{.Load = Form_Load,
                                   .Unload = Form_Unload,
                                   .Activate = Form_Activate,
                                   .Resize = Form_Resize,
                                   .KeyDown = Form_KeyDown};

/// A bar that is not needed stands just outside of the inner area.
void prcPlaceBars(MarkCardWindow& form) {
  const double width = form.Form.ScaleWidth, height = form.Form.ScaleHeight;
  Control& across = form.HScroll1;
  Control& down = form.VScroll1;
  across.Left = down.Top = 0;
  across.Top = form.Picture1.Width > width ? height - across.Height : height;
  down.Left = form.Picture1.Height > across.Top ? width - down.Width : width;
  form.ScrollCorner.Visible = false;
  const bool blnDownSeen = down.Left < width;
  across.Width = blnDownSeen ? width - down.Width : width;
  if (across.Top > 0) {
    down.Height = across.Top;
  }
  if (blnDownSeen) {
    form.ScrollCorner.Top = down.Height - dblInset;
    form.ScrollCorner.Left = across.Width - dblInset;
    form.ScrollCorner.Visible = true;
  }
}

/// The steps of a bar by its range, in whole twips. A value that the range no longer holds moves to
/// its end.
void prcSetSteps(Control& bar) {
  const std::int64_t range = fncRound(bar.Max);
  bar.SmallChange = static_cast<double>(std::abs(fncDivide(range, 16)) + 1);
  bar.LargeChange = static_cast<double>(std::abs(fncDivide(range, 4)) + 1);
  prcSetValue(bar, bar.Value);
}

void prcBringUp(Window& form) {
  prcToFront(form);
  form.Visible = true;
}

void prcPrepareMarkCard(MarkCardWindow& form) {
  form.Form.Name = "MarkCard";
  form.Form.Kind = WindowKind::Child;
  form.Form.Sizable = true;
  form.Form.CloseBox = false;
  form.Form.On = &evtMarkCard;
}

}  // namespace

void prcPlaceAcross(Window& form) {
  form.Width = MDIForm1.Form.Width - dblFrameMargin;
  form.Left = (MDIForm1.Form.Width - form.Width) / 2 - dblLeftShift;
}

void NewCardViewForm(const Long& lngHwnd, const Integer& card) {
  const Procedure running("NewCardViewForm");
  intMarkCardNumber = card;
  running.Step(2);
  if (MarkCardWindow* open = fncWindowOf(lngHwnd)) {
    prcBringUp(open->Form);
    return;
  }
  running.Step(3);
  MarkCardWindow& form = MarkCards[card];
  if (form.Form.hWnd != 0) {
    prcBringUp(form.Form);
    return;
  }
  form = MarkCardWindow{};
  prcPrepareMarkCard(form);
  prcLoad(form.Form);
  colMarkCards[fncHandleText(form.Form.hWnd)] = &form;
  running.Step(4);
  form.Form.Caption = "Marking Card for Player 3";
  form.Picture1.BackColor = clrWhite;
  running.Step(5);
  lngMarkCardHwnd[card] = form.Form.hWnd;
  ClearCardView(card);
  form.Form.Visible = true;
  blnMarkCardLoaded = true;
}

void RemoveCardViewForm(MarkCardWindow& form) {
  const Integer card = fncMarkCardNumber(form.Form);
  if (card >= 0) {
    lngMarkCardHwnd[card] = 0;
  }
  colMarkCards.erase(fncHandleText(form.Form.hWnd));
  blnMarkCardLoaded = !colMarkCards.empty();
}

void prcMarkCardResize(const Integer& card) {
  const Procedure running("prcMarkCardResize");
  MarkCardWindow* form = fncMarkCard(card);
  if (form == nullptr) {
    return;
  }
  prcPlaceBars(*form);
  running.Step(2);
  form->HScroll1.Max = form->Picture1.Width - form->VScroll1.Left;
  form->VScroll1.Max = form->Picture1.Height - form->HScroll1.Top;
  form->HScroll1.Page = form->VScroll1.Left;
  form->VScroll1.Page = form->HScroll1.Top;
  running.Step(3);
  prcSetSteps(form->HScroll1);
  prcSetSteps(form->VScroll1);
  running.Step(4);
  prcControlToFront(form->HScroll1);
  prcControlToFront(form->VScroll1);
}
