#include "platform/qt/machine/OneInstance.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

constexpr int intPatience = 2000;  // Milliseconds for the other process to answer.

std::unique_ptr<QLockFile> lckOwn;
std::unique_ptr<QLocalServer> srvOwn;

/// The user's own folder; the lock in it belongs to whoever runs the program there first.
QString fncRunFolder() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
  QDir().mkpath(folder);
  return folder;
}

/// A name that two users never share, whatever folder the system keeps such names in.
QString fncServerName() {
  const QByteArray home = QCryptographicHash::hash((QDir::homePath() + fncRunFolder()).toUtf8(),
                                                   QCryptographicHash::Sha1);
  return QStringLiteral("velmora-") + QString::fromLatin1(home.toHex().left(16));
}

void prcComeForward() {
  Window* window = fncFrameInput();
  if (window == nullptr && !fncWindows().empty()) {
    window = fncWindows().front();
  }
  const WindowView* view = window != nullptr ? fncViewOf(*window) : nullptr;
  if (view == nullptr) {
    return;
  }
  QWidget* top = view->Shell->window();
  top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
  top->raise();
  top->activateWindow();
}

void prcListen() {
  srvOwn = std::make_unique<QLocalServer>();
  srvOwn->setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(fncServerName());  // What a crash has left; the lock is ours.
  srvOwn->listen(fncServerName());
  QObject::connect(srvOwn.get(), &QLocalServer::newConnection, srvOwn.get(), [] {
    delete srvOwn->nextPendingConnection();
    prcComeForward();
  });
}

}  // namespace

bool fncTakeLock() {
  if (lckOwn != nullptr) {
    return true;
  }
  auto lock = std::make_unique<QLockFile>(fncRunFolder() + QStringLiteral("/velmora.lock"));
  lock->setStaleLockTime(0);  // Never stale by age, only by the death of its process.
  if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError) {
    return false;
  }
  lckOwn = std::move(lock);
  prcListen();
  return true;
}

void prcRaiseOther() {
  QLocalSocket other;
  other.connectToServer(fncServerName());
  if (other.waitForConnected(intPatience)) {
    other.waitForDisconnected(intPatience);
  }
}

void prcGiveUpLock() {
  srvOwn.reset();
  lckOwn.reset();
}

}  // namespace qt

namespace platform {

bool ActivateOtherInstance() {
  if (qt::fncTakeLock()) {
    return false;
  }
  qt::prcRaiseOther();
  return true;
}

}  // namespace platform
