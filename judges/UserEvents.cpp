#include "judges/UserEvents.h"

#include <array>
#include <stdexcept>

#include "betting/frmStatistics.h"
#include "judges/Adapter.h"
#include "marking/MarkCard.h"
#include "platform/UserInput.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/ToolButtons.h"
#include "table/Bets.h"

namespace {

constexpr std::array strKinds{"Chip",       "TypeBet",     "Tab",       "Deal",      "TypeHands",
                              "Shuffle",    "Turn",        "Squeeze",   "Key",       "Menu",
                              "ToolButton", "CloseWindow", "KeepOnTop", "UnitValue", "Statistics",
                              "Scroll",     "Hover",       "Idle",      "Leave"};
static_assert(strKinds.size() == intUserEventKinds);

/// How often a random user does each, out of their sum.
constexpr std::array<int, intUserEventKinds> intWeights{24, 8, 4, 48, 8, 9, 12, 5, 5, 2,
                                                        2,  1, 1, 2,  2, 1, 3,  4, 1};

constexpr std::array strBets{"0", "1",   "2",  "5",   "10",  "50",  "51",      "100", "101",
                             "",  "abc", "-3", "2.5", "1e3", "  7", "9999999", "00",  "1,000"};
constexpr std::array strHands{"1", "2", "5", "20", "30", "90", "91", "0", "", "x"};
constexpr std::array strUnits{"10", "20", "100", "9990", "15", "0", "", "x", "10000", "1e1"};
constexpr std::array strStakes{"1000", "5000", "10000000", "10", "0", "", "99999999"};
constexpr std::array strKeys{"1",    "2",     "3",     "4",     "5",  "6",
                             "Left", "Right", "Enter", "Space", "F12"};

template <class Choices>
auto fncPick(const Choices& choices, std::uint8_t at) {
  return choices[at % choices.size()];
}

/// Where something covers what is meant, or another window has the keyboard, the rest is left
/// alone.
void prcTry(const std::function<void()>& act) {
  try {
    act();
  } catch (const std::logic_error&) {
    return;
  }
}

bool fncReached(const Control& control) {
  return control.Style != ButtonStyle::Separator && fncSeen(control) && fncUsable(control);
}

void prcClick(Control& control, int button = intLeftButton) {
  if (fncReached(control)) {
    user::Click(control, button);
  }
}

void prcType(Control& box, const std::string& text) {
  if (fncReached(box)) {
    user::Type(box, text);
  }
}

/// The next box gets this answer, if any: 0 leaves it its standard button.
void prcAnswer(std::uint8_t how) {
  if (how % 3 != 0) {
    user::Answer(how % 3 == 1 ? platform::Answer::Ok : platform::Answer::Cancel);
  }
}

void prcSqueeze(std::uint8_t which, std::uint8_t how) {
  const int n = which % intPositions;
  const bool blnBottom = how % 2 == 0;
  Control& strip = blnBottom ? BaccTable.lblCardBottom[n] : BaccTable.lblCardRight[n];
  if (!fncReached(strip) || !user::Press(strip, 0, 0)) {
    return;
  }
  for (int pull = 1; pull <= 4; ++pull) {
    const auto by = static_cast<float>(-how * 3 * pull);
    user::Drag(strip, blnBottom ? 0 : by, blnBottom ? by : 0);
  }
  user::Release(strip, -1, -1);
}

/// Works in the statistics, which are open while this runs.
void prcUseStatistics(std::uint8_t which, std::uint8_t how) {
  if (!frmStatistics.Form.Visible) {
    return;
  }
  prcType(frmStatistics.mskSteak[which % intSeats], fncPick(strStakes, how));
  if (how % 2 == 0) {
    user::Tab(frmStatistics.Form);
  }
  if (how % 5 == 0) {
    prcAnswer(how);
    prcClick(frmStatistics.cmdResetStats);
  }
  prcClick(frmStatistics.Command1);
  if (frmStatistics.Form.Visible) {  // A stake that is refused holds its user until it is mended.
    prcType(frmStatistics.mskSteak[which % intSeats], "10000000");
    prcClick(frmStatistics.Command1);
  }
}

void prcMenu(std::uint8_t which, std::uint8_t how) {
  std::vector<Control*> entries;
  for (Control* control : MDIForm1.Form.Controls) {
    if (control->Kind == ControlKind::MenuEntry && control->On->Click != nullptr &&
        control != &MDIForm1.mnuExit) {
      entries.push_back(control);
    }
  }
  if (!entries.empty()) {
    prcAnswer(how);
    prcClick(*fncPick(entries, which));
  }
}

void prcScroll(std::uint8_t which, std::uint8_t how) {
  if (MarkCardWindow* card = fncMarkCard(0)) {
    Control& bar = which % 2 == 0 ? card->HScroll1 : card->VScroll1;
    prcDispatch([&] { prcUserValue(bar, bar.Max * how / 255); });
  }
}

void prcHover(std::uint8_t which) {
  if (which % 7 == intPositions) {
    user::Hover(BaccTable.Form);
  } else if (Control& back = BaccTable.pctCardBack[which % 7]; fncReached(back)) {
    user::Hover(back);
  }
}

void prcBetEvent(const UserEvent& event) {
  const int seat = event.Which % intSeats;
  if (event.Kind == UserEventKind::Chip) {
    constexpr std::array buttons{intLeftButton, intLeftButton, intRightButton, intMiddleButton};
    prcClick(*fncPick(fncChips(seat), event.Which / 2), fncPick(buttons, event.How));
  } else {
    prcType(fncBet(fncPick(betSides, event.Which / 2), seat).Box, fncPick(strBets, event.How));
  }
}

void prcWindowEvent(const UserEvent& event) {
  const bool blnCards = event.Which % 2 == 0;
  if (event.Kind == UserEventKind::CloseWindow) {
    // Mostly the lists: the other two may end the program.
    const std::array<Window*, 8> windows{&frmCardsDealt.Form,      &frmCardsDealtCount.Form,
                                         &frmCardsDealt.Form,      &frmCardsDealtCount.Form,
                                         &frmCardsDealtCount.Form, &frmCardsDealt.Form,
                                         &BaccTable.Form,          &MDIForm1.Form};
    if (Window& window = *fncPick(windows, event.Which); window.Visible) {
      user::Close(window);
    }
  } else {
    prcClick(blnCards ? frmCardsDealt.chkOnTop : frmCardsDealtCount.chkOnTop);
  }
}

}  // namespace

UserEvent fncUserEvent(std::uint8_t kind, std::uint8_t which, std::uint8_t how,
                       std::uint8_t delay) {
  return {static_cast<UserEventKind>(kind % intUserEventKinds), which, how, delay};
}

UserEvent fncRandomEvent(std::mt19937_64& random) {
  std::discrete_distribution<int> kinds(intWeights.begin(), intWeights.end());
  std::uniform_int_distribution<int> bytes(0, 255);
  const auto byte = [&] { return static_cast<std::uint8_t>(bytes(random)); };
  const auto kind = static_cast<std::uint8_t>(kinds(random));
  // A third of the events come close behind the one before, in the middle of what it began.
  const bool blnSoon = byte() % 3 == 0;
  return fncUserEvent(kind, byte(), byte(), static_cast<std::uint8_t>(byte() / (blnSoon ? 16 : 2)));
}

std::string fncDescribe(const UserEvent& event) {
  return std::string(strKinds.at(static_cast<std::size_t>(event.Kind))) + " " +
         std::to_string(event.Which) + " " + std::to_string(event.How) + " " +
         std::to_string(event.Delay);
}

void prcTurnAll() {
  for (Control& back : BaccTable.pctCardBack) {
    prcClick(back);
  }
}

namespace {

void prcAct(const UserEvent& event) {
  const std::uint8_t which = event.Which, how = event.How;
  if (!BaccTable.Form.Visible) {
    return;  // The program is still on its way to the table, or away from it.
  }
  switch (event.Kind) {
    case UserEventKind::Chip:
    case UserEventKind::TypeBet:
      return prcBetEvent(event);
    case UserEventKind::Tab:
      user::Tab(BaccTable.Form);
      return;
    case UserEventKind::Deal:
      return prcClick(BaccTable.duokkortos[which % 4]);
    case UserEventKind::TypeHands:
      return prcType(BaccTable.mskHandsAtaTime, fncPick(strHands, how));
    case UserEventKind::Shuffle:
      prcAnswer(how);
      return prcClick(BaccTable.maisyk);
    case UserEventKind::Turn:
      return how % 2 == 0 ? prcTurnAll() : prcClick(BaccTable.pctCardBack[which % intPositions]);
    case UserEventKind::Squeeze:
      return prcSqueeze(which, how);
    case UserEventKind::Key:
      return user::Key(BaccTable.Form, fncPick(strKeys, how));
    case UserEventKind::Menu:
      return prcMenu(which, how);
    case UserEventKind::ToolButton:
      prcAnswer(how);
      return prcClick((tlbrRef == &MDIForm1.tlbrMDIForm1
                           ? MDIForm1.tlbrButtons1
                           : MDIForm1.tlbrButtons2)[which % intToolButtons]);
    case UserEventKind::CloseWindow:
    case UserEventKind::KeepOnTop:
      return prcWindowEvent(event);
    case UserEventKind::UnitValue:
      return prcType(BaccTable.txtUnitValue, fncPick(strUnits, how));
    case UserEventKind::Statistics:
      user::WhileModal([which, how] { prcTry([=] { prcUseStatistics(which, how); }); });
      return prcClick(fncToolButton("Statistics"));
    case UserEventKind::Scroll:
      return prcScroll(which, how);
    case UserEventKind::Hover:
      return prcHover(which);
    case UserEventKind::Idle:
      return;
    case UserEventKind::Leave:
      return prcClick(MDIForm1.mnuExit);
  }
}

}  // namespace

void prcDo(const UserEvent& event) {
  prcTry([&] { prcAct(event); });
}
