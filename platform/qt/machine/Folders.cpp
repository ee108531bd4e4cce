#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QUrl>

#include "platform/platform.h"

// Where the program's files lie, and the desktop's opener.

namespace {

constexpr int intOpened = 33;
constexpr int intNoBrowser = 31;

/// Whether a file can be made in a folder. Asked by trying: permissions alone do not tell of
/// read-only disks.
bool fncWritable(const QString& folder) {
  QTemporaryFile probe(folder + QStringLiteral("/velmora-XXXXXX"));
  return probe.open();
}

QString fncFindDataFolder() {
  QString own = QCoreApplication::applicationDirPath();
  if (fncWritable(own)) {
    return own;
  }
  QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(data);
  return data;
}

}  // namespace

namespace platform {

std::string DataFolder() {
  static const QString folder = fncFindDataFolder();
  return QDir::toNativeSeparators(folder).toStdString();
}

std::string HelpFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  const QString shared = QDir::cleanPath(own + QStringLiteral("/../share/velmora"));
  const bool blnInstalled =
      !QFileInfo::exists(own + QStringLiteral("/VELMORA.HLP")) && QFileInfo(shared).isDir();
  return QDir::toNativeSeparators(blnInstalled ? shared : own).toStdString();
}

int OpenAddress(const std::string& address) {
  const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
  if (!url.isValid() || url.scheme().isEmpty()) {
    return 2;
  }
  return QDesktopServices::openUrl(url) ? intOpened : intNoBrowser;
}

}  // namespace platform
