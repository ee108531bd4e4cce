#include "platform/qt/windows/Session.h"

#include <QApplication>
#include <QScreen>

#include "assets/Pictures.h"
#include "platform/qt/input/InputRouter.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Accessible.h"
#include "platform/qt/windows/Sync.h"

namespace qt {

namespace {

/// Chooses the scale from the primary screen.
void prcChooseScale() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen != nullptr) {
    const double ratio = screen->devicePixelRatio();
    prcSetScale(fncFittingScale(QSizeF(screen->availableSize()) * ratio, ratio));
  }
}

}  // namespace

void prcBringUpPlatform() {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  prcChooseScale();
  prcDressApplication();
  QGuiApplication::setWindowIcon(fncIcon(picIcon, 64));
  new InputRouter(qApp);
  prcInstallRoles();
}

void prcTakeDownPlatform() {
  prcClearScreen();
  // No event loop will run any more to delete what a handler was still inside of.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  prcForgetPictures();
}

}  // namespace qt
