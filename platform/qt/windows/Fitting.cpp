#include "platform/qt/windows/Fitting.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"

namespace qt {

namespace {

constexpr int intPause = 100;     // Milliseconds without a move that end a drag.
constexpr double dblJump = 0.05;  // Of the scale: no edge is dragged that far from event to event.

/// Not held within its least.
double fncFitting(const QWidget& frame) {
  const QSize outer = frame.frameGeometry().size();
  return fncFittingScale(outer, outer.height() - frame.height());
}

}  // namespace

void prcFitToScreen() {
  if (const QScreen* screen = QGuiApplication::primaryScreen(); screen != nullptr) {
    prcSetScale(fncFittingScale(screen->availableSize(), 0));
  }
}

bool fncFitToFrame(QWidget& frame, void (*later)()) {
  static QSize last;
  static QPointer<QTimer> pause;
  const double wanted = std::max(fncFitting(frame), dblLeastScale);
  const bool blnMoving = std::exchange(last, frame.frameGeometry().size()) != last;
  if (!frame.isVisible() || frame.isMinimized() || wanted == fncScale()) {
    return false;
  }
  if (pause == nullptr) {
    pause = new QTimer(&frame);
    pause->setSingleShot(true);
    QObject::connect(pause, &QTimer::timeout, pause, later);
  }
  if (blnMoving && (pause->isActive() || std::abs(wanted / fncScale() - 1) < dblJump)) {
    pause->start(intPause);
  }
  if (pause->isActive()) {
    return false;
  }
  prcSetScale(wanted);
  prcSizeFaces();
  prcForgetPictures();
  return true;
}

bool fncTooSmall(const QWidget& frame) {
  return frame.isVisible() && fncFitting(frame) < dblLeastScale;
}

}  // namespace qt
