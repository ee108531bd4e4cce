#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <cstdint>

#include "platform/Control.h"

class QKeyEvent;
class QMouseEvent;

// What the user does with mouse and keyboard, taken from the toolkit before its widgets get it and
// told to the model.

namespace qt {

struct ControlView;
struct WindowView;

/// Watches all events of the application. A press is held by its control until the button comes up,
/// also if the control is hidden meanwhile.
class InputRouter : public QObject {
  Q_OBJECT

 public:
  explicit InputRouter(QObject* parent);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// A press under way: its control by address and serial, and the widget that it began on.
  struct Held {
    Control* Target = nullptr;
    std::uint32_t Serial = 0;
    QPointer<QWidget> Widget;
    Qt::MouseButton Button = Qt::NoButton;
    bool blnNative = false;  ///< The toolkit's widget follows the press by itself.
  };

  bool fncPressed(QWidget& widget, const QMouseEvent& event);
  bool fncPressControl(Control& control, QWidget& widget, const QMouseEvent& event);
  bool fncMoved(QWidget& widget, const QMouseEvent& event);
  bool fncMovedOnWindow(const QMouseEvent& event);
  bool fncReleased(const QMouseEvent& event);
  bool fncHovered(QWidget& widget, const QMouseEvent& event);
  void prcRelease(const Held& held, QPointF global, int shift);
  Control* fncHeldControl() const;
  bool fncHeldIsHidden() const;
  bool fncWidgetEvent(QWidget& widget, QEvent* event);

  Held held_;
  Qt::MouseButton swallowed_ = Qt::NoButton;  ///< A void click: nothing of it passes.
};

/// A key goes down in the widget that has the focus. Returns whether that was all of it, so that
/// the widget gets nothing.
bool fncKeyPressed(QWidget& widget, const QKeyEvent& event);

/// The bits of the Shift argument.
int fncShift(Qt::KeyboardModifiers modifiers);

}  // namespace qt
