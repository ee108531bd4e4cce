#pragma once

#include <QFont>

#include "platform/qt/looks/Palette.h"

class QPainter;

// How the program draws the toolkit's standard parts.

namespace qt {

/// The face in which the toolkit's own texts (menus, tool tips, message boxes) are set.
QFont fncPlainFont();

/// Gives the application its style, palette and faces. Called once, when the scale is known.
void prcDressApplication();

/// Gives the application its faces at the scale in use.
void prcSizeFaces();

/// Draws the face of a push button into rect. Used by the style and by buttons of their own look.
struct ButtonState {
  bool blnEnabled = true, blnDown = false, blnHover = false, blnFocus = false, blnDefault = false;
  bool blnPrimary = false;
};
void prcDrawButton(QPainter& painter, const QRect& rect, const ButtonState& state);

/// Draws the mark of keyboard focus around rect: in ink where the ground is gold itself.
void prcDrawFocus(QPainter& painter, const QRect& rect, QRgb colour = rgbDarkGold);

}  // namespace qt
