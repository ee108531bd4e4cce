#include "platform/qt/looks/Parts.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "platform/qt/looks/Palette.h"
#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

struct Sign {
  QStyle::StandardPixmap Picture;
  QRgb Disc;
  const char* Glyph;
};
constexpr Sign sgnAll[] = {{QStyle::SP_MessageBoxInformation, 0xFF1B5E8A, "i"},
                           {QStyle::SP_MessageBoxWarning, 0xFF955609, "!"},
                           {QStyle::SP_MessageBoxCritical, 0xFFA3202A, "\u00D7"}};
constexpr int intSignSide = 34;

QPixmap fncDrawSign(const Sign& sign) {
  const double ratio = qGuiApp->devicePixelRatio();
  const int side = fncScaled(intSignSide);
  QPixmap picture((QSizeF(side, side) * ratio).toSize());
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double edge = 2 * fncScale();
  const QRectF disc = QRectF(0, 0, side, side).adjusted(edge, edge, -edge, -edge);
  painter.setPen(QPen(QColor::fromRgb(rgbGold), edge));
  painter.setBrush(QColor::fromRgb(sign.Disc));
  painter.drawEllipse(disc);
  QFont font = fncFont({.Size = 15, .Bold = true});
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(disc, Qt::AlignCenter, QString::fromUtf8(sign.Glyph));
  return picture;
}

/// What one piece of a scroll bar, of those under the pointer or pressed, is filled with.
QColor fncPieceFill(const QStyleOptionSlider& option, QStyle::SubControl piece) {
  const bool blnLit = (option.activeSubControls & piece) != 0;
  if (blnLit && (option.state & QStyle::State_Sunken) != 0) {
    return {0xA8, 0x9C, 0x7C};
  }
  return blnLit ? QColor(0xBF, 0xB3, 0x92) : QColor(0xCD, 0xC3, 0xA6);
}

}  // namespace

void prcDrawArrow(QPainter& painter, const QRect& rect, Qt::ArrowType way, const QColor& colour,
                  double side) {
  const double half = side * fncScale() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.translate(QRectF(rect).center());
  switch (way) {
    case Qt::UpArrow:
      painter.rotate(180);
      break;
    case Qt::LeftArrow:
      painter.rotate(90);
      break;
    case Qt::RightArrow:
      painter.rotate(-90);
      break;
    default:
      break;
  }
  painter.drawPolygon(QPolygonF({{-half, -half * 0.55}, {half, -half * 0.55}, {0, half * 0.65}}));
  painter.restore();
}

void prcDrawScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QWidget* widget,
                      const QStyle& style) {
  const auto place = [&](QStyle::SubControl piece) {
    return style.subControlRect(QStyle::CC_ScrollBar, &option, piece, widget);
  };
  const bool blnUpright = option.orientation == Qt::Vertical;
  painter.save();
  painter.fillRect(option.rect, QColor(0xEC, 0xE6, 0xD6));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const int inset = fncScaled(2);
  if (option.maximum > option.minimum) {
    const QRectF slider = QRectF(place(QStyle::SC_ScrollBarSlider))
                              .adjusted(blnUpright ? inset : 1, blnUpright ? 1 : inset,
                                        blnUpright ? -inset : -1, blnUpright ? -1 : -inset);
    const double corner = std::min(slider.width(), slider.height()) / 3;
    painter.setBrush(fncPieceFill(option, QStyle::SC_ScrollBarSlider));
    painter.drawRoundedRect(slider, corner, corner);
  }
  painter.restore();
  const auto end = [&](QStyle::SubControl piece, Qt::ArrowType way, bool blnUseful) {
    const bool blnLit = blnUseful && (option.activeSubControls & piece) != 0;
    const QColor ink = QColor::fromRgb(blnLit ? rgbInk : blnUseful ? rgbFaded : rgbOutline);
    prcDrawArrow(painter, place(piece), way, ink);
  };
  end(QStyle::SC_ScrollBarSubLine, blnUpright ? Qt::UpArrow : Qt::LeftArrow,
      option.sliderValue > option.minimum);
  end(QStyle::SC_ScrollBarAddLine, blnUpright ? Qt::DownArrow : Qt::RightArrow,
      option.sliderValue < option.maximum);
}

QSize fncPartSize(QStyle::ContentsType part, const QStyleOption* option, QSize size,
                  const QWidget* widget) {
  switch (part) {
    case QStyle::CT_PushButton:
      return size.expandedTo(QSize(fncScaled(80), fncScaled(26)));
    case QStyle::CT_MenuItem: {
      const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
      const bool blnRule =
          entry != nullptr && entry->menuItemType == QStyleOptionMenuItem::Separator;
      return blnRule ? size : size + QSize(fncScaled(24), fncScaled(5));
    }
    case QStyle::CT_ItemViewItem:
      // The help's contents and index; lists of the game are laid out row by row.
      return widget != nullptr && widget->window()->objectName() == QLatin1String("Help")
                 ? size + QSize(0, fncScaled(5))
                 : size;
    case QStyle::CT_ToolButton:
      return size + QSize(fncScaled(8), fncScaled(4));
    case QStyle::CT_LineEdit:
      return size + QSize(0, fncScaled(3));
    default:
      return size;
  }
}

QIcon fncSign(QStyle::StandardPixmap sign) {
  const auto* const row = std::ranges::find(sgnAll, sign, &Sign::Picture);
  return row == std::end(sgnAll) ? QIcon() : QIcon(fncDrawSign(*row));
}

}  // namespace qt
