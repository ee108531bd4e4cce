#pragma once

#include "platform/Window.h"

// Which window is in front and has the input.

namespace qt {

/// Makes the window the one that has the input, on the screen and in the model.
void prcBringUp(Window& window);

/// The visible child of the frame or floating window behind the active one, or before it, in the
/// order of their loading, round about; none if there is no other.
Window* fncNextChild(bool blnBackwards);

}  // namespace qt
