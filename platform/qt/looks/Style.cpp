#include "platform/qt/looks/Style.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

#include "platform/qt/looks/Parts.h"
#include "platform/qt/looks/Scale.h"

namespace qt {

namespace {

constexpr float sngPlainSize = 8.25F;

struct MetricRow {
  QStyle::PixelMetric Metric;
  int Pixels;  ///< At scale 1.
};

/// Where the program differs from the toolkit's own measures. The others are the toolkit's, and
/// grow all the same.
constexpr MetricRow mtrRows[] = {
    {QStyle::PM_MessageBoxIconSize, 34}, {QStyle::PM_MenuBarItemSpacing, 3},
    {QStyle::PM_MenuBarHMargin, 4},      {QStyle::PM_MenuBarVMargin, 1},
    {QStyle::PM_MenuVMargin, 3},         {QStyle::PM_ToolTipLabelFrameWidth, 4},
    {QStyle::PM_ButtonMargin, 8},
};

/// The square of a check box or the circle of an option, with its mark.
void prcDrawIndicator(QPainter& painter, const QStyleOption& option, bool blnRound) {
  const bool blnEnabled = (option.state & QStyle::State_Enabled) != 0;
  const bool blnOn = (option.state & QStyle::State_On) != 0;
  const double line = fncScaled(1);
  const QRectF box = QRectF(option.rect).adjusted(line, line, -line, -line);
  const QColor ink = QColor::fromRgb(blnEnabled ? rgbFelt : rgbFaded);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(blnEnabled ? rgbInk : rgbOutline), line));
  painter.setBrush((option.state & QStyle::State_Sunken) != 0 ? QColor(0xE9, 0xDF, 0xBE)
                                                              : QColor::fromRgb(rgbPaper));
  if (blnRound) {
    painter.drawEllipse(box);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    const double inset = box.width() / 4;
    if (blnOn) {
      painter.drawEllipse(box.adjusted(inset, inset, -inset, -inset));
    }
  } else {
    painter.drawRoundedRect(box, 2 * fncScale(), 2 * fncScale());
    const auto at = [&](double x, double y) {
      return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (blnOn) {
      painter.setPen(QPen(ink, 2 * fncScale(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPolyline(QPolygonF({at(0.2, 0.55), at(0.42, 0.76), at(0.8, 0.25)}));
    }
  }
  painter.restore();
}

/// The outline of a rectangle, of a line and with corners as broad as told at scale 1.
void prcDrawOutline(QPainter& painter, const QRect& rect, QRgb colour, double line, double corner) {
  const double width = fncScaled(line);
  const double half = width / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(colour), width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), corner * fncScale(),
                          corner * fncScale());
  painter.restore();
}

class Dress : public QProxyStyle {
 public:
  Dress() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const auto* const row = std::ranges::find(mtrRows, metric, &MetricRow::Metric);
    const int pixels =
        row != std::end(mtrRows) ? row->Pixels : QProxyStyle::pixelMetric(metric, option, widget);
    return pixels > 0 ? fncScaled(pixels) : pixels;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    switch (hint) {
      case SH_ToolTipLabel_Opacity:
        return 255;
      case SH_UnderlineShortcut:
        return 1;
      case SH_DialogButtonBox_ButtonsHaveIcons:
      case SH_MenuBar_AltKeyNavigation:  // Alt touched by mistake would take the table's keys away.
        return 0;
      case SH_ToolTip_WakeUpDelay:
        return 500;
      default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_PushButtonBevel) {
      const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
      ButtonState state;
      state.blnEnabled = (option->state & State_Enabled) != 0;
      state.blnDown = (option->state & (State_Sunken | State_On)) != 0;
      state.blnHover = (option->state & State_MouseOver) != 0;
      state.blnFocus = (option->state & State_HasFocus) != 0;
      state.blnDefault =
          button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
      prcDrawButton(*painter, option->rect, state);
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
      prcDrawScrollBar(*painter, *bar, widget, *this);
      return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  QSize sizeFromContents(ContentsType part, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    return fncPartSize(part, option, QProxyStyle::sizeFromContents(part, option, size, widget),
                       widget);
  }

  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override {
    const QIcon sign = fncSign(picture);
    return sign.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : sign;
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameFocusRect && widget != nullptr) {
      if (!widget->inherits("QPushButton")) {
        prcDrawFocus(*painter, option->rect);
      }
      return;
    }
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
      prcDrawIndicator(*painter, *option, element == PE_IndicatorRadioButton);
      return;
    }
    if (element == PE_IndicatorBranch) {
      if ((option->state & State_Children) != 0) {
        const bool blnOpen = (option->state & State_Open) != 0;
        prcDrawArrow(*painter, option->rect, blnOpen ? Qt::DownArrow : Qt::RightArrow,
                     QColor::fromRgb(rgbFaded));
      }
      return;
    }
    if (element == PE_FrameLineEdit) {
      const bool blnFocus = (option->state & State_HasFocus) != 0;
      prcDrawOutline(*painter, option->rect, blnFocus ? rgbDarkGold : rgbOutline,
                     blnFocus ? 1.5 : 1, 2);
      return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
};

QPalette fncPalette() {
  QPalette palette;
  const QColor ink = QColor::fromRgb(rgbInk);
  const QColor faded = QColor::fromRgb(rgbFaded);
  palette.setColor(QPalette::Window, QColor::fromRgb(rgbIvory));
  palette.setColor(QPalette::WindowText, ink);
  palette.setColor(QPalette::Base, QColor::fromRgb(rgbPaper));
  palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF2, 0xE2));
  palette.setColor(QPalette::Text, ink);
  palette.setColor(QPalette::PlaceholderText, faded);
  palette.setColor(QPalette::Button, QColor(0xEC, 0xE5, 0xD3));
  palette.setColor(QPalette::ButtonText, ink);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x1B, 0x6B, 0x4B));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xF8, 0xDC));
  palette.setColor(QPalette::ToolTipText, ink);
  palette.setColor(QPalette::Link, QColor(0x0B, 0x4F, 0x8A));
  palette.setColor(QPalette::LinkVisited, QColor(0x5A, 0x3A, 0x7A));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faded);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xEA, 0xE5, 0xD8));
  return palette;
}

}  // namespace

QFont fncPlainFont() { return fncFont({sngPlainSize}); }

void prcDressApplication() {
  QApplication::setStyle(new Dress);
  QApplication::setPalette(fncPalette());
  QToolTip::setPalette(fncPalette());
  prcSizeFaces();
}

void prcSizeFaces() {
  QApplication::setFont(fncPlainFont());
  QToolTip::setFont(fncPlainFont());
}

void prcDrawButton(QPainter& painter, const QRect& rect, const ButtonState& state) {
  QColor top(0xFD, 0xFA, 0xF1);
  QColor bottom(0xE2, 0xD9, 0xC1);
  QColor edge = QColor::fromRgb(rgbOutline);
  if (state.blnPrimary) {
    top = QColor(0xF4, 0xD9, 0x72);
    bottom = QColor(0xD0, 0xA5, 0x2B);
  }
  if (!state.blnEnabled) {
    top = bottom = QColor(0xE6, 0xE1, 0xD4);
  } else if (state.blnDown) {
    std::swap(top, bottom);
  } else if (state.blnHover) {
    top = top.lighter(104);
    bottom = bottom.lighter(106);
  }
  if (state.blnEnabled && (state.blnPrimary || state.blnDefault || state.blnFocus)) {
    edge = QColor::fromRgb(rgbDarkGold);
  }
  QLinearGradient face(rect.topLeft(), rect.bottomLeft());
  face.setColorAt(0, top);
  face.setColorAt(1, bottom);
  const double corner = 4 * fncScale();
  const double half = fncScaled(1) / 2.0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(edge, fncScaled(1)));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), corner, corner);
  painter.restore();
  if (state.blnFocus) {
    const int inset = fncScaled(2);
    prcDrawFocus(painter, rect.adjusted(inset, inset, -inset, -inset),
                 state.blnPrimary ? rgbInk : rgbDarkGold);
  }
}

void prcDrawFocus(QPainter& painter, const QRect& rect, QRgb colour) {
  prcDrawOutline(painter, rect, colour, 1.5, 3);
}

}  // namespace qt
