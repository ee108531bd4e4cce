#include "betting/TableLimits.h"

#include <cmath>

#include "platform/Procedure.h"
#include "platform/Texts.h"
#include "platform/platform.h"
#include "shell/SettingsStore.h"
#include "table/Bets.h"

namespace {

// Of the chip value, in money.
constexpr int intLeastUnit = 10;
constexpr int intMostUnit = 9990;
constexpr int intUnitStep = 10;

/// What is wrong with the chip value box, in the words of its message; nothing where it is good.
const char* fncUnitValueFault() {
  const double value = fncUnitValue();
  if (!fncIsNumeric(BaccTable.txtUnitValue.Text) || value < intLeastUnit || value > intMostUnit) {
    return "Must be between $10 and $9990";
  }
  return std::fmod(value, intUnitStep) == 0 ? nullptr : "Must be in multiples of $10";
}

}  // namespace

bool fncUnitValueStands() { return fncUnitValueFault() == nullptr; }

void txtUnitValue_GotFocus() { BaccTable.txtUnitValue.SelLength = 5; }

void txtUnitValue_LostFocus() {
  const Procedure running("Baccarat table txtUnitValue_LostFocus");
  const char* fault = fncUnitValueFault();
  if (fault == nullptr) {
    running.Step(2);
    prcWritePrivateProfileString(secMisc, keyUnitValue, BaccTable.txtUnitValue.Text);
    return;
  }
  platform::MsgBox(fault, platform::Icon::Exclamation, "Velmora");
  running.Step(3);
  fncSetFocus(BaccTable.txtUnitValue);
}

void mskHandsAtaTime_GotFocus() { BaccTable.mskHandsAtaTime.SelLength = 2; }

void mskHandsAtaTime_LostFocus() {
  const Procedure running("Baccarat table mskHandsAtaTime_LostFocus");
  std::string& text = BaccTable.mskHandsAtaTime.Text;
  if (text.empty() || text.front() < '0' || text.front() > '9') {
    text = "1";
  }
  running.Step(2);
  // As text, not as numbers: "5" lies between "1" and "90", "91" and "0" do not.
  if (text > "90" || text < "1") {
    platform::MsgBox("Hands At a Time must be 1 to 90");
    fncSetFocus(BaccTable.mskHandsAtaTime);
  }
}
