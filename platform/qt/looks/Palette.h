#pragma once

#include <QColor>
#include <QFont>

#include "platform/Control.h"

// The colours and the type of the program.

namespace qt {

inline constexpr QRgb rgbIvory = 0xFFF3EFE4;     ///< Bars and dialogs.
inline constexpr QRgb rgbPaper = 0xFFFFFDF5;     ///< Boxes that take input.
inline constexpr QRgb rgbInk = 0xFF26221A;       ///< Text on ivory.
inline constexpr QRgb rgbFaded = 0xFF665F4F;     ///< Disabled text on ivory.
inline constexpr QRgb rgbGold = 0xFFC9A227;      ///< Accents.
inline constexpr QRgb rgbDarkGold = 0xFF8A6A10;  ///< Outlines of the accents, and the focus.
inline constexpr QRgb rgbFelt = 0xFF0E4A33;      ///< The ground of the night.
inline constexpr QRgb rgbDarkFelt = 0xFF08301F;
inline constexpr QRgb rgbOutline = 0xFFB5AA8E;
inline constexpr QRgb rgbGrid = 0xFFE6EAF1;      ///< Lines of a grid on white.
inline constexpr QRgb rgbLoss = 0xFFC00000;      ///< Losses on white,
inline constexpr QRgb rgbLossTint = 0xFFFBDDDB;  ///< the ground of one,
inline constexpr QRgb rgbDebt = 0xFFFFA79B;      ///< and money below 0 on felt.

/// A colour of the model; Clear becomes transparent.
QColor fncColour(const Colour& colour);

/// A face of the model at the scale in use.
QFont fncFont(const Type& face);

}  // namespace qt
