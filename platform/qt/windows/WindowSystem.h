#pragma once

#include <QWidget>

// What the toolkit does not do or tell, asked of the window system itself.

namespace qt {

/// Keeps a top-level window that is shown above all others, or no longer. Its size, its place and
/// its being shown stay as they are.
void prcSetTopmost(QWidget& shell, bool blnTopmost);

/// Whether the left button is down, also where the window manager has the mouse.
bool fncButtonHeld();

}  // namespace qt
