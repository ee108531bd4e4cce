#pragma once

#include <QWidget>

namespace qt {

/// Keeps a top-level window that is shown above all others, or no longer. Its size, its place and
/// its being shown stay as they are.
void prcSetTopmost(QWidget& shell, bool blnTopmost);

}  // namespace qt
