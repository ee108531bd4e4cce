#include "platform/qt/views/Layers.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

QPixmap fncClear(const WindowView& home, const QRect& room) {
  const double ratio = home.Ground->devicePixelRatioF();
  QPixmap clear(room.size() * ratio);
  clear.setDevicePixelRatio(ratio);
  clear.fill(Qt::transparent);
  return clear;
}

void prcAddGround(QPixmap& onto, const WindowView& home, const QRect& room) {
  home.Ground->render(&onto, QPoint(0, 0), QRegion(room), QWidget::DrawWindowBackground);
}

void prcAddLayers(QPixmap& onto, const QRect& room, Layers layers) {
  QPainter painter(&onto);
  for (const std::unique_ptr<ControlView>& view : layers) {
    const auto* widget = qobject_cast<PaintedView*>(view->Widget);
    if (widget != nullptr && view->Drawn.Visible && view->Drawn.Container == nullptr &&
        widget->geometry().intersects(room)) {
      prcPaintControl(painter, view->Drawn, widget->geometry().translated(-room.topLeft()), {});
    }
  }
}

QPixmap fncBelow(const ControlView& top, const QRect& room) {
  QPixmap below = fncClear(top.Home, room);
  prcAddGround(below, top.Home, room);
  const Layers all(top.Home.Controls);
  const auto at = std::ranges::find(all, &top, [](const auto& view) { return view.get(); });
  prcAddLayers(below, room, {all.begin(), at});
  return QPixmap::fromImage(below.toImage().convertToFormat(QImage::Format_RGB32));
}

}  // namespace qt
