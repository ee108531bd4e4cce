#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

#include "platform/Control.h"

// The vector pictures, drawn once for each size in which they are asked for and kept.

namespace qt {

/// Whether a number is one of the cards, which always keep their own size.
bool fncIsCard(int number);

/// A card's size in pixels.
QSize fncCardSize();

/// The picture of a number of assets/Pictures.h at a size in pixels, sharp at the screen's ratio.
/// An unknown number gives an empty picture.
const QPixmap& fncPicture(int number, QSize size, double ratio);

/// Draws a picture as soon as the program waits: the window system takes a while to bring a window
/// up, and what the window shows first need not wait for it. Nothing once home has gone.
void prcDrawAhead(QObject* home, int number, QSize size, double ratio);

/// The size in pixels for which a picture is designed.
QSize fncPictureSize(int number);

/// A shadow with soft edges around a card of that size; the picture is larger by fncShadowMargin on
/// each side.
const QPixmap& fncShadow(QSize size, double ratio);
int fncShadowMargin();

/// A card's back as it shines through from the other side of the paper, faint, mirrored from left
/// to right or from top to bottom.
const QPixmap& fncShining(bool blnLeftRight, double ratio);

QIcon fncIcon(int number, int pixels);

/// The cursor of a pointer, the hands at the scale in use with the tip of the finger as hot spot.
QCursor fncCursor(Pointer pointer);

/// Gives up all kept pictures.
void prcForgetPictures();

}  // namespace qt
