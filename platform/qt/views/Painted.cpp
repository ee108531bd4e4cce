#include "platform/qt/views/Painted.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "assets/Pictures.h"
#include "platform/qt/looks/Bend.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/looks/TableArt.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Chart.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

constexpr int intLeastType = 11;     // Pixels at scale 1 that can be read without leaning forward.
constexpr int intLeastStretch = 62;  // Percent of its breadth below which type is no type any more.
constexpr int intFlashMilliseconds = 700;
constexpr double dblLeastFit = 0.65;  // Type is made no smaller than this part of its size.

/// How far a chip can be hit above and below its place, twips: up to its neighbours.
constexpr double dblHitAbove = 30;
constexpr double dblHitBelow = 45;

/// Whether a label lies on a plate, with its text in the middle.
bool fncPlated(const Control& control) {
  return !control.BackColor.Clear || control.Dress == Look::Plate;
}

bool fncMark(const Control& control) {
  return control.Dress == Look::Mark || control.Dress == Look::LostMark;
}

QColor fncMarkGround(const Control& control) {
  return control.Dress == Look::LostMark ? QColor::fromRgb(rgbLossTint) : QColor(Qt::white);
}

int fncTextFlags(const Control& control, const QSize& size, const QFont& font) {
  const bool blnWraps = QFontMetrics(font).height() * 2 <= size.height();
  const bool blnMiddle = fncPlated(control) || !blnWraps;
  int flags = blnWraps ? static_cast<int>(Qt::TextWordWrap) : 0;
  flags |= static_cast<int>(blnMiddle ? Qt::AlignVCenter : Qt::AlignTop);
  switch (control.Align) {
    case Alignment::Left:
      return flags | static_cast<int>(Qt::AlignLeft);
    case Alignment::Right:
      return flags | static_cast<int>(Qt::AlignRight);
    case Alignment::Centre:
      return flags | static_cast<int>(Qt::AlignHCenter);
  }
  return flags;
}

/// The room of the tick before a text.
int fncTick() { return fncScaled(7); }

QRect fncTextRect(const Control& control, const QRect& rect) {
  const int inset = fncPlated(control) ? fncScaled(3) : fncMark(control) ? fncScaled(2) : 0;
  const int tick = control.Dress == Look::Won ? fncTick() : 0;
  return rect.adjusted(inset + tick, 0, -inset, 0);
}

QFont fncLabelFont(const Control& control) {
  QFont font = fncFont(control.Face);
  if (control.Dress == Look::Link) {
    font.setUnderline(true);
  }
  if (control.Dress == Look::Heading) {
    font.setLetterSpacing(QFont::AbsoluteSpacing, fncScale());
  }
  return font;
}

void prcFillPlate(QPainter& painter, const Control& control, const QRect& rect) {
  const QColor ground =
      control.BackColor.Clear ? QColor::fromRgb(rgbDarkFelt) : fncColour(control.BackColor);
  QLinearGradient shade(rect.topLeft(), rect.bottomLeft());
  shade.setColorAt(0, ground.darker(125));
  shade.setColorAt(0.25, ground);
  shade.setColorAt(1, ground.lighter(118));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(shade);
  painter.setPen(QPen(QColor(0xC9, 0xA2, 0x27, 150), fncScaled(1)));
  const double half = fncScaled(1) / 2.0;
  const double corner = std::min(5 * fncScale(), rect.height() / 2.0);
  painter.drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), corner, corner);
  painter.setRenderHint(QPainter::Antialiasing, false);
}

/// A chip keeps its form within its own place; under the pointer its rim is lit, and pressed it
/// sinks.
void prcDrawChip(QPainter& painter, const Control& control, const QRect& rect,
                 const PaintState& state) {
  const QSize own = fncPixelRect(control.Left, control.Top, control.Width, control.Height).size();
  const QSize size = fncPictureSize(control.Picture).scaled(own, Qt::KeepAspectRatio);
  const QPoint at = rect.topLeft() + fncCorner(control) +
                    QPoint((own.width() - size.width()) / 2,
                           (own.height() - size.height()) / 2 + (state.blnDown ? fncScaled(1) : 0));
  painter.drawPixmap(at, fncPicture(control.Picture, size, painter.device()->devicePixelRatioF()));
  if (state.blnHover && control.Enabled) {
    prcDrawChipLight(painter, QRectF(at, size));
  }
}

void prcDrawPicture(QPainter& painter, const Control& control, const QRect& rect) {
  const double ratio = painter.device()->devicePixelRatioF();
  const int number = control.Picture;
  if (number == 0) {
    return;
  }
  if (fncIsCard(number)) {
    painter.drawPixmap(rect.topLeft(), fncPicture(number, fncCardSize(), ratio));
    return;
  }
  painter.drawPixmap(rect.topLeft(), fncPicture(number, rect.size(), ratio));
}

/// What lies below the text of a label.
void prcDrawLabelGround(QPainter& painter, const Control& control, const QRect& rect) {
  switch (control.Dress) {
    case Look::Won: {
      prcFillPlate(painter, control, rect);
      const int side = fncTick();
      prcDrawTick(painter,
                  QRectF(rect.left() + side * 0.4, rect.center().y() + 1 - side / 2.0, side, side));
      break;
    }
    case Look::Plate:
      prcFillPlate(painter, control, rect);
      break;
    case Look::Lost:
      prcDrawHollow(painter, rect, fncColour(control.BackColor), fncColour(control.ForeColor));
      break;
    case Look::PullEdge:
      prcDrawPullEdge(painter, rect);
      break;
    default:
      if (!control.BackColor.Clear) {
        painter.fillRect(rect, fncColour(control.BackColor));
      }
  }
}

void prcDrawLabel(QPainter& painter, const Control& control, const QRect& rect,
                  const PaintState& state) {
  if (control.Dress == Look::Chip) {
    prcDrawChip(painter, control, rect, state);
    return;
  }
  prcDrawLabelGround(painter, control, rect);
  prcDrawPicture(painter, control, rect);
  if (control.Text.empty()) {
    return;
  }
  QColor ink = fncColour(control.ForeColor);
  if (control.Dress == Look::Money && control.Value < 0) {
    ink = QColor::fromRgb(ink.lightness() < 128 ? rgbLoss : rgbDebt);  // On light grounds, on felt.
  }
  if (!control.Enabled) {
    ink.setAlphaF(0.55F);
  }
  const QRect place = fncTextRect(control, rect);
  const QFont font = fncFittedFont(control, rect.size());
  const int key = control.AccessKey != 0 ? static_cast<int>(Qt::TextShowMnemonic) : 0;
  const int flags = fncTextFlags(control, place.size(), font) | key;
  painter.setFont(font);
  if (fncMark(control)) {
    // Three digits, and two in an oval, reach onto the frame: a rim of the ground parts them.
    painter.setPen(fncMarkGround(control));
    for (int at = 0; at < 9; ++at) {
      painter.drawText(place.translated(at % 3 - 1, at / 3 - 1), flags, fncCaption(control));
    }
  }
  painter.setPen(ink);
  painter.drawText(place, flags, fncCaption(control));
}

/// Faint lines of a grid, each at the pixel that its place in twips rounds to, as cells do.
void prcDrawGrid(QPainter& painter, const Control& control, const QRect& rect) {
  const QColor faint = QColor::fromRgb(rgbGrid);
  for (double x = control.X1; control.X2 > 0 && x < control.Width; x += control.X2) {
    painter.fillRect(fncPixels(x), rect.top(), fncScaled(1), rect.height(), faint);
  }
  for (double y = control.Y1; control.Y2 > 0 && y < control.Height; y += control.Y2) {
    painter.fillRect(rect.left(), fncPixels(y), rect.width(), fncScaled(1), faint);
  }
}

/// The part of a cut card that is left.
QSize fncRest(const Control& control) {
  return {fncPixels(control.Width), fncPixels(control.Height)};
}

void prcDrawPictureBox(QPainter& painter, const Control& control, const QRect& rect) {
  if (fncIsBent(control)) {
    prcDrawBend(painter, QRect(rect.topLeft(), fncRest(control)));
    return;
  }
  if (control.Dress == Look::Patch && control.BackColor.Clear) {
    painter.fillRect(rect, Qt::white);
  } else if (!control.BackColor.Clear) {
    painter.fillRect(rect, fncColour(control.BackColor));
  }
  if (control.Dress == Look::Squared) {
    prcDrawGrid(painter, control, rect);
  }
  prcDrawPicture(painter, control, rect);
}

/// The outline of a shape. A mat, which has none of its own, is deeper at its rim.
QPen fncOutline(const Control& control) {
  if (control.Dress == Look::Mat) {
    return {fncColour(control.FillColor).darker(150), double(fncScaled(3))};
  }
  return control.BorderColor.Clear
             ? QPen(Qt::NoPen)
             : QPen(fncColour(control.BorderColor), fncScaled(control.BorderWidth));
}

void prcDrawForm(QPainter& painter, const Control& control, const QRect& rect, const QBrush& fill) {
  const QPen outline = fncOutline(control);
  painter.setPen(outline);
  painter.setBrush(fill);
  const double half = outline.style() == Qt::NoPen ? 0 : outline.widthF() / 2;
  const QRectF inner = QRectF(rect).adjusted(half, half, -half, -half);
  painter.setRenderHint(QPainter::Antialiasing, control.Form2D != ShapeForm::Rectangle);
  switch (control.Form2D) {
    case ShapeForm::Rectangle:
      painter.drawRect(inner);
      break;
    case ShapeForm::Oval:
      painter.drawEllipse(inner);
      break;
    case ShapeForm::Rounded: {
      const double corner = std::min({8 * fncScale(), inner.width() / 2, inner.height() / 2});
      painter.drawRoundedRect(inner, corner, corner);
      break;
    }
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
}

/// What a shape is painted with beyond its rectangle, on each side.
QMargins fncBeyond(const Control& control) {
  if (control.Kind != ControlKind::Shape) {
    return {};
  }
  const int shadow = fncShadowMargin();
  const int rim = fncScaled(1);
  switch (control.Dress) {
    case Look::Shadow:
    case Look::Waiting:
      return {shadow, shadow, shadow, shadow};
    case Look::Mark:
      return {rim, rim, rim, rim};
    case Look::LostMark:
      return {rim, rim, rim, 3 * rim};
    default:
      return {};
  }
}

/// The frame of a mark lies half out of its rectangle, so that two digits have room in it. A lost
/// hand's has a tinted ground and, below, a minus.
void prcDrawMark(QPainter& painter, const Control& control, const QRect& whole) {
  const int rim = fncScaled(1);
  QRect frame = whole;
  if (control.Dress == Look::LostMark) {
    frame.adjust(0, 0, 0, -2 * rim);
    painter.fillRect(whole.left() + whole.width() / 4, whole.bottom() + 1 - rim,
                     whole.width() - 2 * (whole.width() / 4), rim, QColor::fromRgb(rgbLoss));
  }
  prcDrawForm(painter, control, frame, fncMarkGround(control));
}

void prcDrawShape(QPainter& painter, const Control& control, const QRect& rect) {
  const int margin = fncShadowMargin();
  switch (control.Dress) {
    case Look::Shadow:
      painter.drawPixmap(rect.topLeft(), fncShadow(rect.size() - QSize(2 * margin, 2 * margin),
                                                   painter.device()->devicePixelRatioF()));
      break;
    case Look::CardPlace:
      prcDrawCardPlace(painter, rect);
      break;
    case Look::Waiting:
      prcDrawWaiting(painter, rect, margin);
      break;
    case Look::ChipStack:
      prcDrawChipStack(painter, rect, static_cast<int>(control.Value), !control.Enabled);
      break;
    case Look::Mark:
    case Look::LostMark:
      prcDrawMark(painter, control, rect);
      break;
    default:
      prcDrawForm(
          painter, control, rect,
          control.FillColor.Clear ? QBrush(Qt::NoBrush) : QBrush(fncColour(control.FillColor)));
  }
}

void prcDrawLine(QPainter& painter, const Control& control, const QRect& rect) {
  const Colour& colour = control.BorderColor.Clear ? control.ForeColor : control.BorderColor;
  if (control.X1 == control.X2 || control.Y1 == control.Y2) {
    painter.fillRect(rect, fncColour(colour));
    return;
  }
  const double half = fncScaled(control.BorderWidth) / 2.0;
  const QRectF inner = QRectF(rect).adjusted(half, half, -half, -half);
  const bool blnFalling = (control.X2 > control.X1) == (control.Y2 > control.Y1);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(fncColour(colour), fncScaled(control.BorderWidth)));
  painter.drawLine(blnFalling ? inner.topLeft() : inner.bottomLeft(),
                   blnFalling ? inner.bottomRight() : inner.topRight());
}

void prcDrawGroup(QPainter& painter, const Control& control, const QRect& rect) {
  const QString title = fncText(control.Text);
  QFont font = fncFont(control.Face);
  font.setBold(true);
  const QFontMetrics metrics(font);
  const int half = title.isEmpty() ? 0 : metrics.height() / 2;
  const QRectF box = QRectF(rect).adjusted(0.5, half + 0.5, -0.5, -0.5);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(rgbOutline), fncScaled(1)));
  painter.setBrush(control.BackColor.Clear ? QBrush(Qt::NoBrush)
                                           : QBrush(fncColour(control.BackColor)));
  const QRect gap = title.isEmpty()
                        ? QRect()
                        : QRect(fncScaled(8), 0, metrics.horizontalAdvance(title) + fncScaled(6),
                                metrics.height());
  painter.setClipRegion(QRegion(rect) - QRegion(gap));
  painter.drawRoundedRect(box, 5 * fncScale(), 5 * fncScale());
  painter.setClipping(false);
  painter.setFont(font);
  painter.setPen(fncColour(control.ForeColor));
  painter.drawText(gap, Qt::AlignCenter, title);
}

}  // namespace

QRect fncPlace(const Control& control) {
  if (control.Kind == ControlKind::Line) {
    const int width = fncScaled(control.BorderWidth);
    const int left = fncPixels(std::min(control.X1, control.X2));
    const int top = fncPixels(std::min(control.Y1, control.Y2));
    const int right = fncPixels(std::max(control.X1, control.X2));
    const int bottom = fncPixels(std::max(control.Y1, control.Y2));
    return {left - width / 2, top - width / 2, std::max(right - left, width),
            std::max(bottom - top, width)};
  }
  if (fncCutsPicture(control)) {
    return {QPoint(fncPixels(control.Left), fncPixels(control.Top)),
            fncIsBent(control) ? fncCardSize() : fncRest(control)};
  }
  if (control.Dress == Look::Chip) {
    return fncPixelRect(control.Left, control.Top - dblHitAbove, control.Width,
                        control.Height + dblHitAbove + dblHitBelow);
  }
  return fncPixelRect(control.Left, control.Top, control.Width, control.Height)
      .marginsAdded(fncBeyond(control));
}

QPoint fncCorner(const Control& control) {
  return QPoint(fncPixels(control.Left), fncPixels(control.Top)) - fncPlace(control).topLeft();
}

bool fncCutsPicture(const Control& control) {
  return control.Kind == ControlKind::Picture &&
         (control.Dress == Look::Card || fncIsCard(control.Picture));
}

bool fncIsBent(const Control& control) {
  const QSize rest = fncRest(control);
  const QSize card = fncCardSize();
  return fncCutsPicture(control) && control.Picture == picCardBack && !rest.isEmpty() &&
         (rest.width() < card.width() || rest.height() < card.height());
}

QRect fncBentAnew(const Control& drawn, const Control& next) {
  return fncBendBand({QPoint(0, 0), fncRest(drawn)}) | fncBendBand({QPoint(0, 0), fncRest(next)});
}

QFont fncFittedFont(const Control& control, QSize size) {
  QFont font = fncLabelFont(control);
  const QRect rect = fncTextRect(control, QRect(QPoint(0, 0), size));
  const QString text = fncText(control.Text);
  QRect need;
  const auto fits = [&] {
    need = QFontMetrics(font).boundingRect(rect, fncTextFlags(control, rect.size(), font), text);
    return need.width() <= rect.width() && need.height() <= rect.height() + fncScaled(1);
  };
  const auto shrink = [&](int least) {
    for (int pixels = font.pixelSize(); !fits() && pixels > least; --pixels) {
      font.setPixelSize(pixels - 1);
    }
  };
  const int whole = font.pixelSize();
  shrink(fncScaled(intLeastType));
  for (int stretch = 100; !fits() && need.width() > rect.width() && stretch > intLeastStretch;) {
    stretch = std::max(intLeastStretch,
                       std::min(stretch - 1, stretch * rect.width() / std::max(1, need.width())));
    font.setStretch(stretch);
  }
  shrink(std::max(6, static_cast<int>(std::ceil(whole * dblLeastFit))));
  return font;
}

void prcPaintControl(QPainter& painter, const Control& control, const QRect& rect,
                     const PaintState& state) {
  switch (control.Kind) {
    case ControlKind::Label:
      prcDrawLabel(painter, control, rect, state);
      break;
    case ControlKind::Picture:
      prcDrawPictureBox(painter, control, rect);
      break;
    case ControlKind::Shape:
      prcDrawShape(painter, control, rect);
      break;
    case ControlKind::Line:
      prcDrawLine(painter, control, rect);
      break;
    case ControlKind::Frame:
      prcDrawGroup(painter, control, rect);
      break;
    case ControlKind::Chart:
      prcDrawChart(painter, control, rect);
      break;
    default:
      break;
  }
  if (state.blnFocus && !fncIsBent(control)) {
    prcDrawFocus(painter, rect);
  }
}

PaintedView::PaintedView(ControlView& view, QWidget* parent) : QWidget(parent), view_(&view) {
  setAttribute(Qt::WA_StaticContents, fncCutsPicture(view.Drawn));
  setAttribute(Qt::WA_Hover, view.Drawn.Dress == Look::Chip);
}

void PaintedView::prcKeepBelow(const QPixmap& below) {
  below_ = below;
  setAttribute(Qt::WA_OpaquePaintEvent, !below_.isNull());
  update();
}

void PaintedView::prcDetach() { view_ = nullptr; }

void PaintedView::prcSetDown(bool blnDown) {
  if (blnDown != blnDown_ && testAttribute(Qt::WA_Hover)) {
    blnDown_ = blnDown;
    update();
  }
}

void PaintedView::prcFlash() {
  blnLit_ = true;
  update();
  QTimer::singleShot(intFlashMilliseconds, this, [this] {
    blnLit_ = false;
    update();
  });
}

void PaintedView::paintEvent(QPaintEvent* /*event*/) {
  if (view_ == nullptr) {
    return;
  }
  QPainter painter(this);
  if (blnLit_) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(rgbGold), fncScaled(1)));
    painter.setBrush(QColor(0xC9, 0xA2, 0x27, 70));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4 * fncScale(),
                            4 * fncScale());
    painter.setRenderHint(QPainter::Antialiasing, false);
  }
  if (!below_.isNull()) {
    painter.drawPixmap(0, 0, below_);
  }
  prcPaintControl(painter, view_->Drawn, rect(), {hasFocus(), underMouse(), blnDown_});
}

}  // namespace qt
