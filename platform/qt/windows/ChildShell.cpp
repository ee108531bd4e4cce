#include "platform/qt/windows/ChildShell.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/UserInput.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

/// What title bar and border take of a child's height. A marking card at its full height shows nine
/// rows and no bar beside them only where this never rounds up.
constexpr int intFrameHeight = 28;
constexpr int intBorder = 4;
constexpr int intThinBorder = 1;
constexpr int intLeastSize = 60;

int fncTitleHeight() {
  return static_cast<int>(intFrameHeight * fncScale()) - 2 * fncScaled(intBorder);
}

Qt::CursorShape fncEdgeCursor(Qt::Edges edges) {
  const bool blnSide = (edges & (Qt::LeftEdge | Qt::RightEdge)) != 0;
  const bool blnEnd = (edges & (Qt::TopEdge | Qt::BottomEdge)) != 0;
  if (blnSide && blnEnd) {
    const bool blnFalling =
        edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    return blnFalling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
  }
  if (blnSide) {
    return Qt::SizeHorCursor;
  }
  return blnEnd ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

}  // namespace

GroundView::GroundView(const Window& window, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), window_(window) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

void GroundView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double ratio = devicePixelRatioF();
  if (!window_.BackColor.Clear) {
    painter.fillRect(event->rect(), fncColour(window_.BackColor));
  }
  if (window_.Picture == 0) {
    return;
  }
  if (window_.PictureTiled) {
    const QSize tile = fncPictureSize(window_.Picture);
    painter.drawTiledPixmap(event->rect(), fncPicture(window_.Picture, tile, ratio),
                            event->rect().topLeft());
  } else {
    painter.drawPixmap(0, 0, fncPicture(window_.Picture, size(), ratio));
  }
}

void GroundView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (window_.Picture != 0) {
    const QSize whole = window_.PictureTiled ? fncPictureSize(window_.Picture) : size();
    prcDrawAhead(this, window_.Picture, whole, devicePixelRatioF());
  }
}

ChildShell::ChildShell(WindowView& view, QWidget* field) : QWidget(field), view_(&view) {
  setMouseTracking(true);
}

QMargins ChildShell::fncFrame() const {
  const Window& window = *view_->Source;
  int border = 0;
  if (window.Sizable) {
    border = fncScaled(intBorder);
  } else if (window.TitleBar) {
    border = fncScaled(intThinBorder);
  }
  const int title = window.TitleBar ? fncTitleHeight() : 0;
  return {border, border + title, border, border};
}

void ChildShell::paintEvent(QPaintEvent* /*event*/) {
  if (view_ == nullptr || fncFrame().isNull()) {
    return;
  }
  const Window& window = *view_->Source;
  const QMargins frame = fncFrame();
  const bool blnActive = fncActiveWindow() == &window;
  QPainter painter(this);
  painter.fillRect(rect(), QColor::fromRgb(rgbIvory));
  painter.setPen(QPen(QColor::fromRgb(rgbDarkGold), 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!window.TitleBar) {
    return;
  }
  const QRect bar(frame.left(), frame.bottom(), width() - frame.left() - frame.right(),
                  fncTitleHeight());
  painter.fillRect(bar, blnActive ? QColor::fromRgb(rgbFelt) : QColor(0xCF, 0xC6, 0xAE));
  QFont font = fncPlainFont();
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(blnActive ? QColor::fromRgb(rgbIvory) : QColor::fromRgb(rgbInk));
  painter.drawText(bar.adjusted(fncScaled(8), 0, -fncScaled(28), 0),
                   static_cast<int>(Qt::AlignVCenter) | static_cast<int>(Qt::AlignLeft),
                   fncText(window.Caption));
  if (window.CloseBox) {
    const int inset = fncScaled(6);
    const QRect box = fncCloseBox().adjusted(inset, inset, -inset, -inset);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(painter.pen().color(), fncScaled(1.5)));
    painter.drawLine(box.topLeft(), box.bottomRight());
    painter.drawLine(box.topRight(), box.bottomLeft());
  }
}

void ChildShell::resizeEvent(QResizeEvent* /*event*/) {
  if (view_ != nullptr && view_->Ground != nullptr) {
    view_->Ground->setGeometry(rect().marginsRemoved(fncFrame()));
  }
}

QRect ChildShell::fncCloseBox() const {
  const QMargins frame = fncFrame();
  const int side = fncTitleHeight();
  return {width() - frame.right() - side, frame.bottom(), side, side};
}

Qt::Edges ChildShell::fncEdges(QPoint at) const {
  Qt::Edges edges;
  if (view_ == nullptr || !view_->Source->Sizable) {
    return edges;
  }
  const int border = fncScaled(intBorder);
  edges.setFlag(Qt::LeftEdge, at.x() < border);
  edges.setFlag(Qt::TopEdge, at.y() < border);
  edges.setFlag(Qt::RightEdge, at.x() >= width() - border);
  edges.setFlag(Qt::BottomEdge, at.y() >= height() - border);
  return edges;
}

void ChildShell::mousePressEvent(QMouseEvent* event) {
  if (view_ == nullptr || event->button() != Qt::LeftButton) {
    return;
  }
  const QPoint at = event->position().toPoint();
  if (view_->Source->TitleBar && view_->Source->CloseBox && fncCloseBox().contains(at)) {
    close();  // Asked for as the window manager does, and taken from there.
    return;
  }
  edges_ = fncEdges(at);
  if (!view_->Source->TitleBar && edges_ == Qt::Edges()) {
    return;  // A window without a title bar stays where the program puts it.
  }
  blnDragged_ = true;
  from_ = event->globalPosition().toPoint();
  start_ = geometry();
}

void ChildShell::mouseMoveEvent(QMouseEvent* event) {
  // A message may have come in between and taken the release.
  blnDragged_ = blnDragged_ && event->buttons().testFlag(Qt::LeftButton);
  if (blnDragged_) {
    prcDragTo(event->globalPosition().toPoint());
  } else {
    setCursor(fncEdgeCursor(fncEdges(event->position().toPoint())));
  }
}

void ChildShell::prcDragTo(QPoint global) {
  const QPoint way = global - from_;
  QRect place = start_;
  const int least = fncScaled(intLeastSize);
  if (edges_ == Qt::Edges()) {
    place.translate(way);
    // The title bar stays within reach.
    place.moveLeft(std::clamp(place.left(), least - width(),
                              std::max(least - width(), parentWidget()->width() - least)));
    place.moveTop(std::clamp(place.top(), 0, std::max(0, parentWidget()->height() - least / 2)));
  }
  if (edges_.testFlag(Qt::LeftEdge)) {
    place.setLeft(
        std::min({place.left() + way.x(), place.right() - least, parentWidget()->width() - least}));
  }
  if (edges_.testFlag(Qt::TopEdge)) {
    place.setTop(
        std::clamp(place.top() + way.y(), std::min(0, place.top()),
                   std::max(0, std::min(place.bottom(), parentWidget()->height()) - least)));
  }
  if (edges_.testFlag(Qt::RightEdge)) {
    place.setRight(std::max({place.right() + way.x(), place.left() + least, least}));
  }
  if (edges_.testFlag(Qt::BottomEdge)) {
    place.setBottom(std::max(place.bottom() + way.y(), place.top() + least));
  }
  setGeometry(place);
}

void ChildShell::mouseReleaseEvent(QMouseEvent* /*event*/) { blnDragged_ = false; }

void ChildShell::leaveEvent(QEvent* /*event*/) {
  if (!blnDragged_) {
    unsetCursor();
  }
}

}  // namespace qt
