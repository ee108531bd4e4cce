#include "evening/EveningMenu.h"

#include <algorithm>
#include <string>

#include "evening/Bets.h"
#include "evening/Course.h"
#include "evening/Hands.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"
#include "shell/MDIForm1.h"

namespace {

Control mnuEvening, mnuRepeatBets, mnuTakeBack, mnuDoubleBets, mnuSep7, mnuHandsOfEvening,
    mnuCourse;

struct EveningRow {
  Control& Entry;
  const char* Name;
  const char* Caption;
  const char* Shortcut = "";
  void (*Click)() = nullptr;
};

constexpr EveningRow eveningRows[] = {
    {mnuRepeatBets, "mnuRepeatBets", "&Repeat Last Bets", "Ctrl+R", prcRepeatBets},
    {mnuTakeBack, "mnuTakeBack", "&Take Back", "Ctrl+Z", prcTakeBack},
    {mnuDoubleBets, "mnuDoubleBets", "&Double", "Ctrl+D", prcDoubleBets},
    {mnuSep7, "mnuSep7", "-"},
    {mnuHandsOfEvening, "mnuHandsOfEvening", "&Hands of the Evening...", "F8", prcShowHands},
    {mnuCourse, "mnuCourse", "&Course of the Money...", "F9", prcShowCourse},
};

void prcEveningClick(Control& entry) {
  const auto* const row = std::ranges::find_if(
      eveningRows, [&](const EveningRow& other) { return &other.Entry == &entry; });
  const std::string label = std::string("MDIForm1_") + entry.Name + "_Click";
  const Procedure running(label.c_str());
  row->Click();
}

constexpr ControlEvents evtEvening{.Click = prcEveningClick};

void prcAdd(Control& entry, const char* name, const char* caption) {
  prcPlace(MDIForm1.Form, {&entry, name, -1, ControlKind::MenuEntry, 0, 0, 0, 0, caption});
}

}  // namespace

void prcLayOutEveningMenu() {
  prcAdd(mnuEvening, "mnuEvening", "Even&ing");
  for (const EveningRow& row : eveningRows) {
    prcAdd(row.Entry, row.Name, row.Caption);
    row.Entry.Container = &mnuEvening;
    row.Entry.Shortcut = row.Shortcut;
    row.Entry.On = row.Click != nullptr ? &evtEvening : &evtNone;
  }
}
