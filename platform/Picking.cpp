#include "platform/Picking.h"

#include <algorithm>

#include "platform/Chart.h"
#include "platform/Grid.h"

int fncPickable(const Control& control) {
  if (control.Kind == ControlKind::Grid && control.Grid != nullptr) {
    return static_cast<int>(control.Grid->Rows.size());
  }
  if (control.Kind == ControlKind::Chart && control.Chart != nullptr &&
      !control.Chart->Lines.empty()) {
    return static_cast<int>(control.Chart->Lines.front().Points.size());
  }
  return 0;
}

void prcUserPick(Control& control, int index) {
  const int count = fncPickable(control);
  const int picked = std::clamp(index, count > 0 ? 0 : -1, count - 1);
  if (picked == control.ListIndex) {
    return;
  }
  control.ListIndex = picked;
  if (control.On->Change != nullptr) {
    control.On->Change(control);
  }
}

bool fncUserPickKey(Control& control, std::string_view key) {
  if (control.Kind != ControlKind::Chart) {
    return false;
  }
  const int count = fncPickable(control);
  const int page = std::max(1, count / 10);
  struct Step {
    std::string_view Key;
    int To;
  };
  for (const Step& step :
       {Step{"Left", control.ListIndex - 1}, Step{"Right", control.ListIndex + 1}, Step{"Home", 0},
        Step{"End", count - 1}, Step{"PageUp", control.ListIndex - page},
        Step{"PageDown", control.ListIndex + page}}) {
    if (step.Key == key) {
      prcUserPick(control, step.To);
      return true;
    }
  }
  return false;
}
