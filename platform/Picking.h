#pragma once

#include <string_view>

#include "platform/Control.h"

// A row of a grid or a point of a chart, picked by the user: the same for every platform.

/// How many rows or points there are to pick in a grid or chart; 0 for other kinds.
int fncPickable(const Control& control);

/// The user picks a row or point; one beyond the ends means the end. ListIndex holds it, and the
/// Change handler runs if it is another than before.
void prcUserPick(Control& control, int index);

/// The same by a key: Left and Right, Home and End, and a tenth of all by PageUp and PageDown.
/// Returns whether a chart takes the key; nothing else does.
bool fncUserPickKey(Control& control, std::string_view key);
