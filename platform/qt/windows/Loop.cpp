#include "platform/qt/windows/Loop.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "platform/Procedure.h"

namespace qt {

namespace {
bool blnEnded = false;
}

bool fncEnded() { return blnEnded; }

void prcThrowIfEnded() {
  if (blnEnded) {
    throw EndOfProgram{};
  }
}

void prcNoteEnd() {
  blnEnded = true;
  QCoreApplication::exit(0);
}

void prcForgetEnd() { blnEnded = false; }

void prcServeUntil(const std::function<bool()>& blnDone) {
  while (!blnEnded && !blnDone()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  prcThrowIfEnded();
}

}  // namespace qt
