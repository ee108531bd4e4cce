#include "platform/qt/looks/Pictures.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <tuple>

#include "assets/Pictures.h"
#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

using Key = std::tuple<int, int, int, int>;  // Number, width, height, ratio in thousandths.
std::map<Key, QPixmap> pixKept;

constexpr int intShadowNumber = -1;
constexpr int intShiningNumber = -2;  ///< From top to bottom; one less from left to right.
constexpr double dblShining = 0.13;
constexpr int intCardWidthTwips = 1065;
constexpr int intCardHeightTwips = 1440;

QString fncFile(int number) {
  if (fncIsCard(number)) {
    return QStringLiteral(":/cards/%1.svg").arg(number, 2, 10, QLatin1Char('0'));
  }
  const auto* const row = std::ranges::find(picFiles, number, &PictureFile::Number);
  return row == std::end(picFiles)
             ? QString()
             : QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(row->File));
}

QPixmap fncDraw(int number, QSize size, double ratio) {
  const QString file = fncFile(number);
  if (file.isEmpty() || size.isEmpty()) {
    return {};
  }
  QSvgRenderer drawing(file);
  QPixmap picture(QSizeF(size.width() * ratio, size.height() * ratio).toSize());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter, QRectF(QPointF(0, 0), QSizeF(picture.size())));
  painter.end();
  picture.setDevicePixelRatio(ratio);
  return picture;
}

QPixmap fncDrawShadow(QSize size, double ratio) {
  const int margin = fncShadowMargin();
  const QSize whole = size + QSize(2 * margin, 2 * margin);
  QPixmap picture(QSizeF(whole.width() * ratio, whole.height() * ratio).toSize());
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 22));
  const double corner = 4 * fncScale();
  for (int step = 0; step <= 2 * margin; ++step) {
    const double inset = step - margin * 0.5;
    const QRectF layer =
        QRectF(margin, margin, size.width(), size.height()).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(layer.translated(0, margin * 0.25), corner, corner);
  }
  return picture;
}

/// The picture kept for a number and size; empty until it is drawn.
QPixmap& fncKept(int number, QSize size, double ratio) {
  return pixKept[{number, size.width(), size.height(),
                  static_cast<int>(std::lround(ratio * 1000))}];
}

QCursor fncHand(int number, int hotX, int hotY) {
  const double scale = fncScale();
  const int side = fncScaled(32);
  return QCursor(fncPicture(number, QSize(side, side), qGuiApp->devicePixelRatio()),
                 static_cast<int>(std::lround(hotX * scale)),
                 static_cast<int>(std::lround(hotY * scale)));
}

}  // namespace

bool fncIsCard(int number) { return number >= 1 && number <= picCardBack; }

QSize fncCardSize() { return {fncPixels(intCardWidthTwips), fncPixels(intCardHeightTwips)}; }

const QPixmap& fncPicture(int number, QSize size, double ratio) {
  QPixmap& kept = fncKept(number, size, ratio);
  if (kept.isNull()) {
    kept = fncDraw(number, size, ratio);
  }
  return kept;
}

void prcDrawAhead(QObject* home, int number, QSize size, double ratio) {
  QTimer::singleShot(0, home, [=] { fncPicture(number, size, ratio); });
}

QSize fncPictureSize(int number) {
  static QHash<int, QSize> sizes;
  const auto known = sizes.constFind(number);
  if (known != sizes.constEnd()) {
    return *known * fncScale();
  }
  const QString file = fncFile(number);
  const QSize size = file.isEmpty() ? QSize() : QSvgRenderer(file).defaultSize();
  sizes.insert(number, size);
  return size * fncScale();
}

const QPixmap& fncShadow(QSize size, double ratio) {
  QPixmap& kept = fncKept(intShadowNumber, size, ratio);
  if (kept.isNull()) {
    kept = fncDrawShadow(size, ratio);
  }
  return kept;
}

const QPixmap& fncShining(bool blnLeftRight, double ratio) {
  const QSize size = fncCardSize();
  QPixmap& kept = fncKept(blnLeftRight ? intShiningNumber - 1 : intShiningNumber, size, ratio);
  if (kept.isNull()) {
    const QPixmap& back = fncPicture(picCardBack, size, ratio);
    kept = QPixmap(back.size());
    kept.fill(Qt::transparent);
    QPainter painter(&kept);
    painter.setOpacity(dblShining);
    painter.drawImage(QRect(QPoint(0, 0), back.size()),
                      back.toImage().mirrored(blnLeftRight, !blnLeftRight));
    painter.end();
    kept.setDevicePixelRatio(ratio);
  }
  return kept;
}

int fncShadowMargin() { return fncScaled(5); }

QIcon fncIcon(int number, int pixels) {
  return {fncPicture(number, QSize(pixels, pixels), qGuiApp->devicePixelRatio())};
}

QCursor fncCursor(Pointer pointer) {
  switch (pointer) {
    case Pointer::SizeUpDown:
      return Qt::SizeVerCursor;
    case Pointer::SizeLeftRight:
      return Qt::SizeHorCursor;
    case Pointer::HandUp:
      return fncHand(picHandUp, 16, 29);
    case Pointer::HandRight:
      return fncHand(picHandRight, 29, 16);
    case Pointer::HandLink:
      return Qt::PointingHandCursor;
    case Pointer::Arrow:
      break;
  }
  return Qt::ArrowCursor;
}

void prcForgetPictures() { pixKept.clear(); }

}  // namespace qt
