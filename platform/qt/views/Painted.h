#pragma once

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

  /// Draws with no control any more: nothing.
  void prcDetach();

  /// The control as drawn; none after prcDetach.
  ControlView* fncView() const { return view_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ControlView* view_;
};

/// Where a control lies in its container, in pixels: a line by its ends, a card in its own size as
/// far as it is not cut, a soft shadow with its margin.
QRect fncPlace(const Control& control);

/// Whether a control's picture stays as it is when its size changes, being cut and not squeezed.
bool fncCutsPicture(const Control& control);

/// The control's face, made smaller where its text would not fit into size otherwise.
QFont fncFittedFont(const Control& control, QSize size);

/// Draws a control of one of these kinds into rect, and the mark of the focus where it has it.
void prcPaintControl(QPainter& painter, const Control& control, const QRect& rect, bool blnFocus);

}  // namespace qt
