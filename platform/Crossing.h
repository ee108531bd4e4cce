#pragma once

#include "platform/Window.h"

// A pointer leaps: a quick hand is told over one card and then over the next, and never over the
// felt between. What it crossed it crossed all the same, and the window is told.

/// Notes the pointer at a place in twips from the corner of a control that has it.
void prcNotePointer(const Control& control, const Mouse& mouse);
/// Notes that the pointer stands over a window's bare ground.
void prcNoteGround();

/// Whether the pointer comes to a place over a control from another one of the window, across bare
/// ground. To a control that lies in another one it never does.
bool fncCrossesGround(const Control& control, const Mouse& mouse);
