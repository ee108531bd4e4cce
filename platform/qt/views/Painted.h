#pragma once

#include <QPixmap>
#include <QWidget>

#include "platform/Control.h"

// The kinds that are only looked at or clicked: labels, pictures, shapes, lines, frames.

namespace qt {

struct ControlView;

/// A widget that paints its control.
class PaintedView : public QWidget {
  Q_OBJECT

 public:
  PaintedView(ControlView& view, QWidget* parent);

  /// Shows it pressed, or not, if it answers the mouse by its looks.
  void prcSetDown(bool blnDown);

  /// Keeps what lies below, while a bent back lies over it, so that a pull paints nothing but the
  /// back; an empty picture keeps nothing.
  void prcKeepBelow(const QPixmap& below);

  /// Draws with no control any more: nothing.
  void prcDetach();

  /// Lights up once, for a moment.
  void prcFlash();

  /// The control as drawn; none after prcDetach.
  ControlView* fncView() const { return view_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ControlView* view_;
  QPixmap below_;
  bool blnDown_ = false;
  bool blnLit_ = false;
};

/// Where a control lies in its container, in pixels: a line by its ends, a card in its own size as
/// far as it is not cut, a soft shadow with its margin. A bent back has the room of the whole card.
QRect fncPlace(const Control& control);

/// Whether a control's picture stays as it is when its size changes, being cut and not squeezed.
bool fncCutsPicture(const Control& control);

/// Whether a control is a card's back that is cut short, and so drawn as one that bends.
bool fncIsBent(const Control& control);

/// What of a back that bends further, or less far, has to be painted anew.
QRect fncBentAnew(const Control& drawn, const Control& next);

/// The control's face, where its text would not fit into size made smaller as far as it stays
/// readable, then narrower, then smaller still.
QFont fncFittedFont(const Control& control, QSize size);

/// Where a control's own corner lies within its place: a chip and a shadow reach beyond it.
QPoint fncCorner(const Control& control);

/// What the user does to a control just now.
struct PaintState {
  bool blnFocus = false, blnHover = false, blnDown = false;
};

/// Draws a control of one of these kinds into rect.
void prcPaintControl(QPainter& painter, const Control& control, const QRect& rect,
                     const PaintState& state);

}  // namespace qt
