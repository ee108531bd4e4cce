#pragma once

#include <span>

#include "platform/Window.h"

/// A row of a window's layout: one control as it is designed. Places in twips within its container.
struct Place {
  Control* Target;
  const char* Name;
  int Index;  ///< Element of a control array, -1 for a control that stands alone.
  ControlKind Kind;
  double Left, Top, Width, Height;
  const char* Text = "";
  const char* ToolTip = "";
};

/// Empties a window's stack and builds it anew from the rows, lowest first. Every control starts as
/// its row says and with the plain properties of its kind: pictures are no Tab stops until their
/// window makes them so.
void prcLayOut(Window& window, std::span<const Place> rows);

/// The same for one more control on top of the stack, such as an element of a family made during
/// play.
void prcPlace(Window& window, const Place& row);
