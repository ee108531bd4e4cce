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
  /// A press under way: its control by address and serial, and the widget that it began on. A press
  /// that was refused has no control: nothing of it passes until its button comes up.
  struct Held {
    Control* Target = nullptr;
    std::uint32_t Serial = 0;
    QPointer<QWidget> Widget;
    Qt::MouseButton Button = Qt::NoButton;  ///< None while there is no press.
    bool blnNative = false;                 ///< The toolkit's widget follows the press by itself.
    QPointF From;                           ///< Where on the screen it began.
    bool blnPulled = false;                 ///< It has led further than a click does.
  };

  // Each tells whether the event goes no further.
  bool fncWidgetEvent(QWidget& widget, QEvent* event);
  bool fncMouseEvent(QWidget& widget, const QMouseEvent& event);
  bool fncPressed(QWidget& widget, const QMouseEvent& event);
  bool fncPressControl(Control& control, QWidget& widget, const QMouseEvent& event);
  bool fncMoved(QWidget& widget, const QMouseEvent& event);
  bool fncDragged(const QMouseEvent& event);
  bool fncHovered(QWidget& widget, const QMouseEvent& event);
  bool fncReleased(const QMouseEvent& event);
  bool fncWheeled(QWidget& widget, const QWheelEvent& event);

  /// Ends a press whose button is no longer down: it came up while something else had the mouse,
  /// such as a message answered by key. It leads to no click.
  void prcEndLost(Qt::MouseButtons down);
  /// Ends a press, on a control or on the frame's bare ground, whose window is seen no more, such
  /// as one that is minimised by key: nobody tells of its button any more.
  void prcEndUnseen(const QWindow& window);
  void prcRelease(QPointF global);
  Control* fncHeldControl() const;

  Held held_;
  /// The toolkit goes on with a press that has ended so, until the next one: it tells of the
  /// pointer only to the widget that was pressed.
  bool blnToolkitHolds_ = false;
};

/// A key goes down in the widget that has the focus. Returns whether that was all of it, so that
/// the widget gets nothing.
bool fncKeyPressed(QWidget& widget, const QKeyEvent& event);

}  // namespace qt
