#pragma once

#include <QScrollBar>

#include "platform/Control.h"

class QWheelEvent;

// Scroll bars, and the wheel that turns them from anywhere in their window.

namespace qt {

struct WindowView;

/// A scroll bar whose slider is to its trough as what is seen is to the whole, however far a press
/// beside it goes.
class BarView : public QScrollBar {
  Q_OBJECT

 public:
  BarView(Qt::Orientation way, QWidget* parent) : QScrollBar(way, parent) {}

  /// How much is seen, in units of the value; 0 takes the step of a press beside the slider.
  void prcShowPage(int page);

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override;

 private:
  int page_ = 0;
};

bool fncIsBar(const Control& control);
/// Whether the wheel turns it: a bar or a slider.
bool fncTurns(const Control& control);

/// Turns the bar that is under the wheel (control; none or another kind elsewhere), or the bar of
/// the window that goes that way: upright where it has one in sight, else across. Returns whether
/// there was one.
bool fncTurnBar(WindowView& home, Control* control, const QWheelEvent& event);

}  // namespace qt
