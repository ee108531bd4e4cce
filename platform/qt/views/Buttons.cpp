#include "platform/qt/views/Buttons.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/UserInput.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Reports.h"

namespace qt {

namespace {

/// Draws a picture that is a button: lit under the pointer, a little smaller while it is down.
void prcDrawPictureButton(QPainter& painter, const Control& control, const QRect& rect,
                          const ButtonState& state) {
  const int inset = state.blnDown ? fncScaled(2) : 0;
  const QRect place = rect.adjusted(inset, inset, -inset, -inset);
  const double ratio = painter.device()->devicePixelRatioF();
  if (!state.blnEnabled) {
    painter.setOpacity(0.5);
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(place, fncPicture(control.Picture, rect.size(), ratio));
  if (state.blnHover && !state.blnDown && state.blnEnabled) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(0.12);
    painter.drawPixmap(place, fncPicture(control.Picture, rect.size(), ratio));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  painter.setOpacity(1);
  if (state.blnFocus) {
    prcDrawFocus(painter, rect);
  }
}

}  // namespace

ButtonView::ButtonView(ControlView& view, QWidget* parent) : QPushButton(parent), view_(&view) {
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
}

void ButtonView::paintEvent(QPaintEvent* /*event*/) {
  if (view_ == nullptr) {
    return;
  }
  const Control& control = view_->Drawn;
  ButtonState state;
  state.blnEnabled = isEnabled();
  state.blnDown = isDown();
  state.blnHover = underMouse();
  state.blnFocus = hasFocus();
  state.blnDefault = control.Default;
  state.blnPrimary = control.Dress == Look::Primary;
  QPainter painter(this);
  if (control.Picture != 0) {
    prcDrawPictureButton(painter, control, rect(), state);
    return;
  }
  prcDrawButton(painter, rect(), state);
  painter.setFont(font());
  const QColor ink = isEnabled() ? fncColour(control.ForeColor) : QColor::fromRgb(rgbFaded);
  painter.setPen(ink);
  const int shift = state.blnDown ? fncScaled(1) : 0;
  painter.drawText(rect().translated(0, shift),
                   static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextShowMnemonic) |
                       static_cast<int>(Qt::TextWordWrap),
                   fncCaption(control));
}

void ButtonView::showEvent(QShowEvent* event) {
  QPushButton::showEvent(event);
  if (view_ != nullptr && view_->Drawn.Picture != 0) {
    prcDrawAhead(this, view_->Drawn.Picture, size(), devicePixelRatioF());
  }
}

void ToolView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect face = rect().adjusted(1, 1, -1, -1);
  const bool blnDown = isChecked() || isDown();
  const bool blnLit = isEnabled() && underMouse();
  if (blnDown || blnLit) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(blnDown ? QColor::fromRgb(rgbDarkGold) : QColor::fromRgb(rgbOutline), fncScaled(1)));
    painter.setBrush(blnDown ? QColor(0xE9, 0xCF, 0x7A) : QColor(0xFF, 0xFB, 0xEE));
    painter.drawRoundedRect(QRectF(face).adjusted(0.5, 0.5, -0.5, -0.5), 3 * fncScale(),
                            3 * fncScale());
  }
  const QSize picture = iconSize();
  const int gap = fncScaled(4);
  const bool blnCaption = toolButtonStyle() == Qt::ToolButtonTextBesideIcon && !text().isEmpty();
  const int left = blnCaption ? face.left() + gap : face.center().x() + 1 - picture.width() / 2;
  const QRect place(QPoint(left, face.center().y() + 1 - picture.height() / 2), picture);
  icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  if (blnCaption) {
    painter.setPen(QColor::fromRgb(isEnabled() ? rgbInk : rgbFaded));
    painter.drawText(face.adjusted(2 * gap + picture.width() - 1, 0, 0, 0),
                     static_cast<int>(Qt::AlignVCenter) | static_cast<int>(Qt::AlignLeft), text());
  }
}

void ProgressView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double corner = 3 * fncScale();
  const double half = fncScaled(1) / 2.0;
  const QRectF trough = QRectF(rect()).adjusted(half, half, -half, -half);
  painter.setPen(QPen(QColor::fromRgb(rgbDarkGold), fncScaled(1)));
  painter.setBrush(QColor::fromRgb(rgbDarkFelt));
  painter.drawRoundedRect(trough, corner, corner);
  const int span = maximum() - minimum();
  const double part = span > 0 ? double(value() - minimum()) / span : 0;
  if (part > 0) {
    const int inset = fncScaled(2);
    QRectF done = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    done.setWidth(done.width() * part);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(rgbGold));
    painter.drawRoundedRect(done, corner / 2, corner / 2);
  }
}

void prcConnectClick(ControlView& view, QAbstractButton& button) {
  const auto act = [&view] { prcAct(view, prcUserClick); };
  if (button.isCheckable()) {
    button.setAutoExclusive(false);
    QObject::connect(&button, &QAbstractButton::toggled, &button, act);
  } else {
    QObject::connect(&button, &QAbstractButton::clicked, &button, act);
  }
}

}  // namespace qt
