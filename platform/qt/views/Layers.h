#pragma once

#include <QPixmap>
#include <QRect>
#include <memory>
#include <span>

// What the controls of a window show in a part of it, as a picture: for what lies over them for a
// while and would have them painted anew with each of its own moves.

namespace qt {

struct ControlView;
struct WindowView;

/// Controls that follow one another in the stack.
using Layers = std::span<const std::unique_ptr<ControlView>>;

/// A clear picture as large as a room in a window's ground.
QPixmap fncClear(const WindowView& home, const QRect& room);

/// Draws the bare ground of a window, or what controls that paint themselves show, onto a picture
/// of the room.
void prcAddGround(QPixmap& onto, const WindowView& home, const QRect& room);
void prcAddLayers(QPixmap& onto, const QRect& room, Layers layers);

/// All that lies in a room below a control, opaque.
QPixmap fncBelow(const ControlView& top, const QRect& room);

}  // namespace qt
