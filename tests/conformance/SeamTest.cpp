#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "judges/Adapter.h"
#include "platform/Layout.h"
#include "platform/Procedure.h"

// What every platform must do alike. The suite is compiled once for each of them; a log of what the
// handlers saw is compared, so that order counts.

namespace {

std::vector<std::string> strLog;

void prcNote(const std::string& line) { strLog.push_back(line); }

std::string fncName(const Control& control) {
  return control.Name + (control.Index < 0 ? std::string() : std::to_string(int{control.Index}));
}

/// A window with one of everything that the suite needs.
struct Bench {
  Window Form;
  Control txtOne, txtTwo, mskMoney, cmdGo, chkOn, optA, optB, lblStrip, lblPlain, pctBack, barRoll,
      tmrFast, tmrSlow;
};
Bench bench;
bool blnMoves = false;  // Moves are noted: a real pointer moves before each click.

int fncTwips(float place) { return static_cast<int>(place); }

const ControlEvents evtLogged{
    [](Control& c) { prcNote("click " + fncName(c)); },
    [](Control& c, const Mouse& m) {
      prcNote("down " + fncName(c) + " " + std::to_string(m.Button));
    },
    [](Control& c, const Mouse& m) {
      if (blnMoves) {
        prcNote("move " + fncName(c) + " " + std::to_string(fncTwips(m.X)) + " " +
                std::to_string(fncTwips(m.Y)));
      }
    },
    [](Control& c, const Mouse&) { prcNote("up " + fncName(c)); },
    [](Control& c) { prcNote("got " + fncName(c)); },
    [](Control& c) { prcNote("lost " + fncName(c)); },
    [](Control& c, bool&) { prcNote("check " + fncName(c)); },
    [](Control& c) { prcNote("change " + fncName(c)); },
    nullptr,
    [](Control& c) { prcNote("tick " + fncName(c)); },
};

ControlEvents fncOnly(void (*click)(Control&)) {
  ControlEvents events;
  events.Click = click;
  return events;
}

const Place plcRows[] = {
    {&bench.txtOne, "txtOne", -1, ControlKind::TextBox, 150, 150, 1500, 300},
    {&bench.txtTwo, "txtTwo", -1, ControlKind::TextBox, 150, 600, 1500, 300},
    {&bench.mskMoney, "mskMoney", -1, ControlKind::MaskedEdit, 150, 1050, 1500, 300},
    {&bench.cmdGo, "cmdGo", -1, ControlKind::Button, 150, 1500, 1500, 375, "Go"},
    {&bench.chkOn, "chkOn", -1, ControlKind::CheckBox, 150, 2100, 1500, 300, "On"},
    {&bench.optA, "opt", 0, ControlKind::OptionButton, 150, 2550, 1500, 300, "A"},
    {&bench.optB, "opt", 1, ControlKind::OptionButton, 150, 3000, 1500, 300, "B"},
    {&bench.pctBack, "pctBack", -1, ControlKind::Picture, 3000, 150, 1065, 1440},
    {&bench.lblStrip, "lblStrip", -1, ControlKind::Label, 3000, 1650, 1065, 150},
    {&bench.lblPlain, "lblPlain", -1, ControlKind::Label, 3000, 2100, 1065, 300, "plain"},
    {&bench.barRoll, "barRoll", -1, ControlKind::HScrollBar, 3000, 2700, 1500, 225},
    {&bench.tmrFast, "tmrFast", -1, ControlKind::Timer, 0, 0, 0, 0},
    {&bench.tmrSlow, "tmrSlow", -1, ControlKind::Timer, 0, 0, 0, 0},
};

class Seam : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    bench.Form = Window{};
    bench.Form.Name = "Bench";
    bench.Form.Kind = WindowKind::Float;
    bench.Form.Left = 1500;
    bench.Form.Top = 1500;
    bench.Form.ScaleWidth = 6000;
    bench.Form.ScaleHeight = 4500;
    bench.Form.FixedInner = true;
    prcLayOut(bench.Form, plcRows);
    for (Control* control : bench.Form.Controls) {
      control->On = &evtLogged;
    }
    bench.lblPlain.On = &evtNone;
    bench.mskMoney.Mask = "$9999";
    bench.mskMoney.Format = "$0";
    bench.barRoll.Max = 1000;
    bench.tmrFast.Enabled = bench.tmrSlow.Enabled = false;
    blnMoves = false;
    prcShow(bench.Form);
    user::Settle();
    strLog.clear();
  }
  void TearDown() override {
    if (bench.Form.hWnd != 0) {
      prcForgetWindow(bench.Form);
    }
    user::Reset();
  }

  static std::vector<std::string> fncTaken() { return std::exchange(strLog, {}); }
};

using Lines = std::vector<std::string>;

Lines fncWithout(Lines lines, const std::string& start) {
  std::erase_if(lines, [&](const std::string& line) { return line.starts_with(start); });
  return lines;
}

TEST_F(Seam, LostFocusMayTakeTheFocusBack) {
  static ControlEvents greedy = evtLogged;
  greedy.Validate = nullptr;
  greedy.LostFocus = [](Control& c) {
    prcNote("lost " + fncName(c));
    fncSetFocus(c);
  };
  bench.txtOne.On = &greedy;
  user::Click(bench.txtOne);
  fncTaken();
  user::Click(bench.cmdGo);
  EXPECT_EQ(bench.Form.ActiveControl, &bench.txtOne);
  EXPECT_EQ(fncWithout(fncTaken(), "check"), (Lines{"lost txtOne", "got txtOne"}));
  user::Wait(5);
  EXPECT_EQ(bench.Form.ActiveControl, &bench.txtOne) << "the screen moved the focus by itself";
}

TEST_F(Seam, APressHoldsTheMouseEvenOutsideAndWhenHidden) {
  user::Press(bench.lblStrip, 150, 75);
  fncTaken();
  blnMoves = true;
  user::Drag(bench.lblStrip, 150, -1500);
  user::Drag(bench.lblStrip, -3600, -2100);
  EXPECT_EQ(fncTaken(), (Lines{"move lblStrip 150 -1500", "move lblStrip -3600 -2100"}));
  bench.lblStrip.Visible = false;
  user::Settle();
  user::Drag(bench.lblStrip, 150, -750);
  user::Release(bench.lblStrip, 150, -750);
  EXPECT_EQ(fncTaken(), (Lines{"move lblStrip 150 -750", "up lblStrip"}))
      << "a hidden control still gets the moves and the release, but no click";
  user::Hover(bench.pctBack);
  EXPECT_EQ(fncTaken().size(), 1U) << "the capture ends with the release";
}

TEST_F(Seam, MovesReachTheControlOrTheBareWindow) {
  static WindowEvents events;
  events.MouseMove = [](Window&, const Mouse&) { prcNote("bare"); };
  bench.Form.On = &events;
  blnMoves = true;
  user::Hover(bench.pctBack);
  EXPECT_TRUE(fncTaken().front().starts_with("move pctBack"));
  user::Hover(bench.Form);
  EXPECT_EQ(fncTaken(), Lines{"bare"});
}

TEST_F(Seam, MasksLetDigitsThroughAndNothingElse) {
  const struct {
    const char* Typed;
    const char* Kept;
  } rows[] = {{"12", "12"}, {"1a2b", "12"}, {"$1,000", "1000"}, {"987654", "9876"}, {"", ""}};
  for (const auto& row : rows) {
    user::Type(bench.mskMoney, row.Typed);
    EXPECT_EQ(bench.mskMoney.Text, row.Kept) << "typed " << row.Typed;
  }
  prcSetMasked(bench.mskMoney, "$1,000");
  EXPECT_EQ(bench.mskMoney.Text, "1000");
  user::Settle();
  EXPECT_EQ(bench.mskMoney.Text, "1000") << "showing a number must not change it";
}

TEST_F(Seam, ValuesSetFromCodeFireLikeTheUsersAndOnlyOnce) {
  prcSetValue(bench.barRoll, 400);
  prcSetValue(bench.barRoll, 400);
  prcSetValue(bench.barRoll, 5000);
  user::Settle();
  EXPECT_EQ(bench.barRoll.Value, 1000);
  EXPECT_EQ(fncTaken(), (Lines{"change barRoll", "change barRoll"}));
  bench.barRoll.Value = 10;
  user::Settle();
  EXPECT_EQ(fncTaken(), Lines{}) << "a value written as such tells nobody";
  prcSetValue(bench.chkOn, 1);
  user::Settle();
  EXPECT_EQ(fncTaken(), Lines{"click chkOn"});
}

TEST_F(Seam, TimersTickInTheirOrderAndStopAtOnce) {
  static ControlEvents once = evtLogged;
  once.Timer = [](Control& c) {
    prcNote("tick " + fncName(c));
    c.Enabled = false;
    bench.tmrFast.Enabled = false;
  };
  bench.tmrFast.Interval = 40;
  bench.tmrSlow.Interval = 100;
  bench.tmrSlow.On = &once;
  bench.tmrFast.Enabled = bench.tmrSlow.Enabled = true;
  user::Wait(250);
  EXPECT_EQ(fncTaken(), (Lines{"tick tmrFast", "tick tmrFast", "tick tmrSlow"}));
}

TEST_F(Seam, AMessageBoxHoldsTheUserButNotTheTimers) {
  static platform::Answer answer;
  static ControlEvents asks = fncOnly([](Control&) {
    answer = platform::MsgBox("Sure?\r\nReally?", platform::Icon::Exclamation, "Title",
                              platform::Buttons::OkCancel, platform::Answer::Cancel);
    prcNote("answered");
  });
  bench.cmdGo.On = &asks;
  user::Click(bench.cmdGo);
  EXPECT_EQ(answer, platform::Answer::Cancel) << "Enter takes the standard button";
  user::Answer(platform::Answer::Ok);
  user::WhileModal([] { prcNote("open"); });
  user::Click(bench.cmdGo);
  EXPECT_EQ(answer, platform::Answer::Ok);
  EXPECT_EQ(fncTaken(), (Lines{"answered", "open", "answered"}));
  ASSERT_EQ(user::Boxes().size(), 2U);
  const user::Box box = user::Boxes().front();
  EXPECT_EQ(box.Text, "Sure?\r\nReally?");
  EXPECT_EQ(box.Title, "Title");
  EXPECT_EQ(box.Icon, platform::Icon::Exclamation);
  EXPECT_TRUE(box.blnCancel);
}

TEST_F(Seam, AWindowMayRefuseToClose) {
  static WindowEvents keeps;
  keeps.Unload = [](Window& window, bool& blnCancel) {
    prcNote("unload");
    window.Visible = false;
    blnCancel = true;
  };
  bench.Form.On = &keeps;
  user::Close(bench.Form);
  EXPECT_EQ(fncTaken(), Lines{"unload"});
  EXPECT_FALSE(bench.Form.Visible);
  EXPECT_NE(std::int32_t{bench.Form.hWnd}, 0);
  static WindowEvents asked;
  asked.CloseAsked = [](Window&) { prcNote("asked"); };
  bench.Form.On = &asked;
  bench.Form.Visible = true;
  user::Close(bench.Form);
  EXPECT_EQ(fncTaken(), Lines{"asked"});
  EXPECT_TRUE(bench.Form.Visible);
}

TEST_F(Seam, NothingBehindTheEndRuns) {
  static ControlEvents waits = fncOnly([](Control&) {
    prcNote("before");
    user::AtNextTurn([] {
      prcNote("end");
      platform::End();
    });
    for (int turn = 0; turn < 1000; ++turn) {
      platform::WaitEvents(10);
    }
    prcNote("behind the wait");
  });
  bench.cmdGo.On = &waits;
  user::Click(bench.cmdGo);
  user::Wait(20);
  EXPECT_TRUE(user::Ended());
  EXPECT_EQ(fncTaken(), (Lines{"before", "end"}));
  EXPECT_THROW(platform::DoEvents(), EndOfProgram);
  EXPECT_THROW(platform::WaitEvents(0), EndOfProgram);
  EXPECT_THROW(platform::MsgBox("late"), EndOfProgram);
}

TEST_F(Seam, AFaultIsToldOnceWithLabelAndLineAndEndsTheProgram) {
  static ControlEvents faulty = fncOnly([](Control&) {
    const Procedure outer("Outer_Click");
    const Procedure running("Bench_Click");
    running.Step(2);
    const Integer small = 32767;
    [[maybe_unused]] const Integer large = small + 1;
  });
  bench.cmdGo.On = &faulty;
  user::Click(bench.cmdGo);
  ASSERT_EQ(user::Boxes().size(), 1U);
  EXPECT_EQ(user::Boxes().front().Text,
            "Serious Error Occurred - Line 20 Error - 6-Overflow\r\n'Bench_Click'\r\n"
            "PLEASE RECORD ERROR MESSAGE");
  EXPECT_EQ(user::Boxes().front().Icon, platform::Icon::Stop);
  EXPECT_TRUE(user::Ended());
}

}  // namespace
