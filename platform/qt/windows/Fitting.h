#pragma once

class QWidget;

// The scale that fits what the program is drawn on: the screen while there is only the start
// screen, then the frame.

namespace qt {

void prcFitToScreen();

/// Fits the scale to the frame as it is: at once where its size has jumped, as by its maximising;
/// while its edge is dragged, when it has kept still for a moment, for which later is called then.
/// Returns whether the scale is another now: everything is to be drawn anew.
bool fncFitToFrame(QWidget& frame, void (*later)());

/// Whether the frame is too small even for the least scale, so that its field has to be scrolled.
bool fncTooSmall(const QWidget& frame);

}  // namespace qt
