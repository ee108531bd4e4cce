#include "platform/qt/windows/Session.h"

#include <QApplication>

#include "assets/Pictures.h"
#include "platform/qt/input/InputRouter.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Accessible.h"
#include "platform/qt/windows/Fitting.h"
#include "platform/qt/windows/Sync.h"

namespace qt {

void prcBringUpPlatform() {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  prcFitToScreen();
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
