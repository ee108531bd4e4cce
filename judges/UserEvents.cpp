#include "judges/UserEvents.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <random>
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

using Byte = std::uint8_t;

constexpr std::array strBets{"0", "1",   "2",  "5",   "10",  "50",  "51",      "100", "101",
                             "",  "abc", "-3", "2.5", "1e3", "  7", "9999999", "00",  "1,000"};
constexpr std::array strHands{"1", "2", "5", "20", "30", "90", "91", "0", "", "x"};
constexpr std::array strUnits{"10", "20", "100", "9990", "15", "0", "", "x", "10000", "1e1"};
constexpr std::array strStakes{"1000", "5000", "10000000", "10", "0", "", "99999999"};
constexpr std::array strKeys{"1",    "2",     "3",     "4",     "5",  "6",
                             "Left", "Right", "Enter", "Space", "F12"};

auto fncPick(const auto& choices, Byte at) { return choices[at % choices.size()]; }

/// What cannot be reached, lies behind something else or has not got the keyboard is left alone.
void prcTry(const std::function<void()>& act) {
  try {
    act();
  } catch (const std::logic_error&) {
    return;
  }
}

void prcClick(Control& control, int button = intLeftButton) {
  prcTry([&control, button] { user::Click(control, button); });
}

/// The next box gets this answer, if any: 0 leaves it its standard button.
void prcAnswer(Byte how) {
  if (how % 3 != 0) {
    user::Answer(how % 3 == 1 ? platform::Answer::Ok : platform::Answer::Cancel);
  }
}

void prcChip(Byte which, Byte how) {
  constexpr std::array buttons{intLeftButton, intLeftButton, intRightButton, intMiddleButton};
  prcClick(*fncPick(fncChips(which % intSeats), which / 2), fncPick(buttons, how));
}

void prcTypeBet(Byte which, Byte how) {
  user::Type(fncBet(fncPick(betSides, which / 2), which % intSeats).Box, fncPick(strBets, how));
}

void prcTurn(Byte which, Byte how) {
  how % 2 == 0 ? prcTurnAll() : prcClick(BaccTable.pctCardBack[which % intPositions]);
}

void prcSqueeze(Byte which, Byte how) {
  const bool blnBottom = how % 2 == 0;
  Control& strip =
      (blnBottom ? BaccTable.lblCardBottom : BaccTable.lblCardRight)[which % intPositions];
  if (!user::Press(strip, 0, 0)) {
    return;
  }
  for (int pull = 1; pull <= 4; ++pull) {
    const auto by = static_cast<float>(-how * 3 * pull);
    user::Drag(strip, blnBottom ? 0 : by, blnBottom ? by : 0);
  }
  user::Release(strip, -1, -1);
}

/// A control whose click may bring up a box that asks.
void prcClickAndAnswer(Control& control, Byte how) {
  prcAnswer(how);
  prcClick(control);
}

/// Any entry or button of the frame, or a box of the lists.
void prcCommand(Byte which, Byte how) {
  std::vector<Control*> all;
  for (const Window* window : {&MDIForm1.Form, &frmCardsDealt.Form, &frmCardsDealtCount.Form}) {
    std::ranges::copy_if(window->Controls, std::back_inserter(all),
                         [](const Control* c) { return c->On->Click != nullptr; });
  }
  prcClickAndAnswer(*fncPick(all, which), how);
}

void prcCloseWindow(Byte which, Byte /*how*/) {
  const std::array windows{&frmCardsDealt.Form, &frmCardsDealtCount.Form, &BaccTable.Form,
                           &MDIForm1.Form};
  if (Window& window = *fncPick(windows, which); window.Visible) {
    user::Close(window);
  }
}

/// Opens the statistics and works in them. A stake that is refused holds its user until it is
/// mended.
void prcStatistics(Byte which, Byte how) {
  Control& stake = frmStatistics.mskSteak[which % intSeats];
  user::WhileModal([&stake, how] {
    prcTry([&stake, how] {
      user::Type(stake, fncPick(strStakes, how));
      if (how % 5 == 0) {
        prcClickAndAnswer(frmStatistics.cmdResetStats, how);
      }
      prcClick(frmStatistics.Command1);
      user::Type(stake, "10000000");
      prcClick(frmStatistics.Command1);
    });
  });
  prcClick(fncToolButton("Statistics"));
}

void prcScroll(Byte which, Byte how) {
  if (MarkCardWindow* card = fncMarkCard(0)) {
    Control& bar = which % 2 == 0 ? card->HScroll1 : card->VScroll1;
    prcDispatch([&] { prcUserValue(bar, bar.Max * how / 255); });
  }
}

void prcHover(Byte which, Byte /*how*/) {
  const int n = which % (intPositions + 1);
  n == intPositions ? user::Hover(BaccTable.Form) : user::Hover(BaccTable.pctCardBack[n]);
}

/// What a user does, and how often a random one does it, out of the sum of all.
struct Kind {
  const char* Name;
  int Weight;
  void (*Do)(Byte which, Byte how);
};

const std::array kinds{
    Kind{"Chip", 24, prcChip},
    Kind{"TypeBet", 8, prcTypeBet},
    Kind{"Tab", 4, [](Byte, Byte) { user::Tab(BaccTable.Form); }},
    Kind{"Deal", 48, [](Byte which, Byte) { prcClick(BaccTable.duokkortos[which % 4]); }},
    Kind{"TypeHands", 8,
         [](Byte, Byte how) { user::Type(BaccTable.mskHandsAtaTime, fncPick(strHands, how)); }},
    Kind{"Shuffle", 9, [](Byte, Byte how) { prcClickAndAnswer(BaccTable.maisyk, how); }},
    Kind{"Turn", 12, prcTurn},
    Kind{"Squeeze", 5, prcSqueeze},
    Kind{"Key", 5, [](Byte, Byte how) { user::Key(BaccTable.Form, fncPick(strKeys, how)); }},
    Kind{"Command", 5, prcCommand},
    Kind{"CloseWindow", 1, prcCloseWindow},
    Kind{"UnitValue", 2,
         [](Byte, Byte how) { user::Type(BaccTable.txtUnitValue, fncPick(strUnits, how)); }},
    Kind{"Statistics", 2, prcStatistics},
    Kind{"Scroll", 1, prcScroll},
    Kind{"Hover", 3, prcHover},
    Kind{"Idle", 4, [](Byte, Byte) {}},
    Kind{"Leave", 1, [](Byte, Byte) { prcClick(MDIForm1.mnuExit); }},
};

}  // namespace

std::vector<UserEvent> fncRandomEvents(std::uint64_t seed, std::size_t count) {
  std::mt19937_64 random(seed);
  std::array<int, kinds.size()> weights{};
  std::ranges::transform(kinds, weights.begin(), &Kind::Weight);
  std::discrete_distribution<int> kind(weights.begin(), weights.end());
  std::uniform_int_distribution<int> bytes(0, 255);
  const auto byte = [&] { return static_cast<Byte>(bytes(random)); };
  std::vector<UserEvent> events(count);
  for (UserEvent& event : events) {
    // A third of the events come close behind the one before, in the middle of what it began.
    const int intHaste = byte() % 3 == 0 ? 16 : 2;
    event = {static_cast<Byte>(kind(random)), byte(), byte(), static_cast<Byte>(byte() / intHaste)};
  }
  return events;
}

std::string fncDescribe(const UserEvent& event) {
  return std::string(fncPick(kinds, event.Kind).Name) + " " + std::to_string(event.Which) + " " +
         std::to_string(event.How) + " " + std::to_string(event.Delay);
}

void prcTurnAll() {
  for (Control& back : BaccTable.pctCardBack) {
    prcClick(back);
  }
}

void prcDo(const UserEvent& event) {
  if (BaccTable.Form.Visible) {  // Else the program is on its way to the table, or away from it.
    prcTry([&] { fncPick(kinds, event.Kind).Do(event.Which, event.How); });
  }
}
