#include "shell/CardsDealt.h"

#include <array>

#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ToolButtons.h"
#include "shell/WindowPlace.h"
#include "table/Cards.h"
#include "table/TableState.h"

CardsDealtWindow frmCardsDealt;
CardsDealtCountWindow frmCardsDealtCount;

namespace {

/// Columns of a row of the list: the card's name, and behind a blank its mark.
constexpr std::size_t intNameColumns = 13;
constexpr std::size_t intMarkColumn = 14;
constexpr std::size_t intRowColumns = 21;

/// Columns of a count row, from 0, in the order of the suits 1 to 4.
constexpr std::array<std::size_t, 4> intSuitColumns{5, 8, 11, 14};

/// What the two windows' handlers do alike, and where they differ.
struct ListWindow {
  Window& Form;
  Control& List;
  Control& OnTop;
  const char* Section;
  const char* OnTopKey;
  Control& Entry;
  const char* Button;
  const char* SwitchKey;
  const char* LoadLabel;
  const char* UnloadLabel;
  const char* ClickLabel;
  void (*LayOut)();
};

void prcLayOutCards();
void prcLayOutCount();

constexpr ListWindow wndCards{frmCardsDealt.Form,
                              frmCardsDealt.lstCardsDealt,
                              frmCardsDealt.chkOnTop,
                              secCardsDealt,
                              keyCardsDealtOnTop,
                              MDIForm1.mnuShowCardsDealt,
                              "CardsDealt",
                              keyShowCardsDealt,
                              "frmCardsDealt_Form_Load",
                              "frmCardsDealt_Unload",
                              "chkOnTop_Click",
                              prcLayOutCards};
constexpr ListWindow wndCount{frmCardsDealtCount.Form,
                              frmCardsDealtCount.lstCardsDealtCount,
                              frmCardsDealtCount.chkOnTop,
                              secCardsDealtCount,
                              keyCardsDealtCountOnTop,
                              MDIForm1.mnuShowCardsDealtCount,
                              "CardsDealtCount",
                              keyShowCardsDealtCount,
                              "frmCardsDealtCount_Form_Load",
                              "frmCardsDealtCount_Unload",
                              "frmCardsDealtCount_chkOnTop_Click",
                              prcLayOutCount};

const ListWindow& fncListWindow(const Window& form) {
  return &form == &wndCards.Form ? wndCards : wndCount;
}

void prcEmpty(Control& list) {
  list.List.clear();
  list.ListIndex = -1;
}

void chkOnTop_Click(Control& box) {
  const ListWindow& window = fncListWindow(*box.Form);
  const Procedure running(window.ClickLabel);
  window.Form.Topmost = window.OnTop.Value == 1;
  running.Step(2);
  prcWritePrivateProfileString(secMisc, window.OnTopKey, window.Form.Topmost ? "1" : "0");
}

constexpr ControlEvents evtOnTop{.Click = chkOnTop_Click};

void prcLayOutCards() {
  const Place rows[] = {
      {&frmCardsDealt.lstCardsDealt, "lstCardsDealt", -1, ControlKind::ListBox, 45, 45, 1845, 2955},
      {&frmCardsDealt.chkOnTop, "chkOnTop", -1, ControlKind::CheckBox, 300, 3075, 1170, 270,
       "Keep on top"},
  };
  prcLayOut(frmCardsDealt.Form, rows);
  frmCardsDealt.lstCardsDealt.BackColor = clrWhite;
  frmCardsDealt.lstCardsDealt.ListTab = intMarkColumn;
  frmCardsDealt.lstCardsDealt.Spoken = "Cards dealt";
  frmCardsDealt.chkOnTop.BackColor = clrWhite;
  frmCardsDealt.chkOnTop.On = &evtOnTop;
}

void prcLayOutCount() {
  CardsDealtCountWindow& w = frmCardsDealtCount;
  const Place rows[] = {
      {&w.lstCardsDealtCount, "lstCardsDealtCount", -1, ControlKind::ListBox, 75, 450, 2055, 2565},
      {&w.Label1, "Label1", -1, ControlKind::Label, 615, 0, 525, 255, "Spade"},
      {&w.Label2, "Label2", -1, ControlKind::Label, 1005, 210, 405, 255, "Club"},
      {&w.Label3, "Label3", -1, ControlKind::Label, 1215, 0, 645, 255, "Diamond"},
      {&w.Label4, "Label4", -1, ControlKind::Label, 1665, 210, 525, 255, "Heart"},
      {&w.chkOnTop, "chkOnTop", -1, ControlKind::CheckBox, 480, 3030, 1320, 270, "Keep on top"},
  };
  prcLayOut(w.Form, rows);
  w.lstCardsDealtCount.BackColor = clrWhite;
  w.lstCardsDealtCount.Face = {.Size = 9.75F, .Fixed = true};
  w.lstCardsDealtCount.Spoken = "Count of cards dealt: Spades, Clubs, Diamonds, Hearts";
  w.chkOnTop.BackColor = clrWhite;
  w.chkOnTop.On = &evtOnTop;
}

void Form_Load(Window& form) {
  const ListWindow& window = fncListWindow(form);
  const Procedure running(window.LoadLabel);
  window.LayOut();
  prcEmpty(window.List);
  running.Step(2);
  prcReadPlace(form, window.Section);
  running.Step(3);
  form.Topmost = false;
  if (fncGetPrivateProfileString(secMisc, window.OnTopKey) == "1") {
    prcSetValue(window.OnTop, 1);
  }
}

/// The switch goes off with its window, wherever the closing comes from.
void Form_Unload(Window& form, bool& blnCancel) {
  const ListWindow& window = fncListWindow(form);
  const Procedure running(window.UnloadLabel);
  window.Entry.Value = 0;
  running.Step(2);
  prcSetButton(window.Button, 0);
  running.Step(3);
  prcWriteSwitch(secCardOptions, window.SwitchKey, false);
  running.Step(4);
  prcWritePlace(form, window.Section);
  running.Step(5);
  if (&window == &wndCount) {
    blnShowCardsDealtCount = false;
    return;
  }
  // The rows of the shoe live in the list alone: the window only goes out of sight.
  form.Visible = false;
  blnCancel = true;
}

constexpr WindowEvents evtList{.Load = Form_Load, .Unload = Form_Unload};

std::string fncCountRow(const CardsDealtRow& counts) {
  std::string row = counts.Name;
  row.resize(intRowColumns, ' ');
  for (std::size_t suit = 0; suit < intSuitColumns.size(); ++suit) {
    const std::string count = fncPlainNumberText(counts.Suit[static_cast<std::int64_t>(suit) + 1]);
    row.replace(intSuitColumns[suit], count.size(), count);
  }
  return row;
}

void prcPrepareFloat(Window& form, const char* name, const char* caption, double width,
                     double height) {
  form.Name = name;
  form.Kind = WindowKind::Float;
  form.On = &evtList;
  form.Caption = caption;
  form.FixedInner = true;
  form.ScaleWidth = width;
  form.ScaleHeight = height;
  form.BackColor = clrWhite;
}

}  // namespace

void LoadlstCardsDealtCount() {
  const Procedure running("LoadlstCardsDealtCount");
  prcLoad(frmCardsDealtCount.Form);
  prcEmpty(frmCardsDealtCount.lstCardsDealtCount);
  running.Step(2);
  for (const CardsDealtRow& counts : varCardsDealtCount) {
    frmCardsDealtCount.lstCardsDealtCount.List.push_back(fncCountRow(counts));
  }
  running.Step(3);
  frmCardsDealtCount.Form.Visible = true;
}

void prcClearCardsDealt() {
  prcLoad(frmCardsDealt.Form);
  prcEmpty(frmCardsDealt.lstCardsDealt);
}

void prcInitCardsDealtCount() {
  for (int value = 1; value <= 13; ++value) {
    varCardsDealtCount[value - 1].Name = fncCardValueName(value);
    varCardsDealtCount[value - 1].Suit.fill(0);
  }
}

void prcListCard(Integer position, const std::string& mark) {
  const Integer slot = intShoeCards[0][position];
  const Integer value = intCardValue[0][slot];
  const std::string suit = CardSuite(slot);  // Sets intSuitRow, by which the card is counted below.
  std::string row = fncCardValueName(value) + " " + suit;
  row.resize(intNameColumns, ' ');
  row.resize(intMarkColumn, ' ');
  row += mark;
  row.resize(intRowColumns, ' ');
  prcLoad(frmCardsDealt.Form);
  prcAddRow(frmCardsDealt.lstCardsDealt, row);
  ++varCardsDealtCount[value - 1].Suit[intSuitRow];
}

void prcPrepareCardsDealt() {
  prcPrepareFloat(frmCardsDealt.Form, "frmCardsDealt", "Cards Dealt", 1920, 3375);
  prcPrepareFloat(frmCardsDealtCount.Form, "frmCardsDealtCount", "Cards Dealt Count", 2205, 3315);
}
