#include "platform/Layout.h"

void prcPlace(Window& window, const Place& row) {
  Control& control = *row.Target;
  control = Control{};
  control.Kind = row.Kind;
  control.Name = row.Name;
  control.Index = row.Index;
  control.Left = row.Left;
  control.Top = row.Top;
  control.Width = row.Width;
  control.Height = row.Height;
  control.Text = row.Text;
  control.ToolTip = row.ToolTip;
  control.TabStop = row.Kind != ControlKind::Picture;
  prcAddControl(window, control);
}

void prcLayOut(Window& window, std::span<const Place> rows) {
  prcClearControls(window);
  for (const Place& row : rows) {
    prcPlace(window, row);
  }
}
