#include "platform/qt/views/Flip.h"

#include <QBasicTimer>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

#include "platform/platform.h"
#include "platform/qt/views/Layers.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

constexpr std::uint32_t lngFlipMilliseconds = 180;
constexpr int intFrameMilliseconds = 16;
constexpr double dblDeepest = 0.4;  ///< The shade on a card that stands on its edge.

/// A turning card: its place, the room that it takes with its shadow, and what is seen there.
struct Turning {
  QRect Card, Room;
  QPixmap Ground, Back, Face;  ///< All of the room: what lies around it, and it with its shadow.
};

/// Lies over a card as long as it turns, and is hidden and at rest between two turns.
class FlipView : public QWidget {
 public:
  explicit FlipView(QWidget* ground) : QWidget(ground) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void prcBegin(Turning card) {
    card_ = std::move(card);
    start_ = platform::TickCount();
    setGeometry(card_.Room);
    raise();
    show();
    timer_.start(intFrameMilliseconds, Qt::PreciseTimer, this);
  }

  void prcEnd() {
    timer_.stop();
    hide();
    card_ = {};
  }

  const QRect& fncCard() const { return card_.Card; }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    if (platform::TickCount() - start_ >= lngFlipMilliseconds) {
      prcEnd();
    } else {
      update();
    }
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    const double passed = platform::TickCount() - start_;
    const double turn = std::numbers::pi * std::min(1.0, passed / lngFlipMilliseconds);
    const QPixmap& side = passed * 2 < lngFlipMilliseconds ? card_.Back : card_.Face;
    const double middle = QRectF(card_.Card).center().x() - card_.Room.left();
    QPainter painter(this);
    painter.drawPixmap(0, 0, card_.Ground);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(middle, 0);
    painter.scale(std::abs(std::cos(turn)), 1);
    painter.translate(-middle, 0);
    painter.drawPixmap(0, 0, fncShaded(side, dblDeepest * std::sin(turn)));
  }

 private:
  static QPixmap fncShaded(QPixmap side, double depth) {
    QPainter painter(&side);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(side.rect(), QColor::fromRgbF(0, 0, 0, static_cast<float>(depth)));
    return side;
  }

  Turning card_;
  std::uint32_t start_ = 0;
  QBasicTimer timer_;
};

QPointer<FlipView> flpView;  ///< Goes with the ground that it lies on.

/// The back with what lies below it of its card: the face, the patches over that, and the shadow
/// below it. Empty where there is no face.
Layers fncCardOf(const ControlView& back) {
  const Layers all(back.Home.Controls);
  const QRect place = back.Widget->geometry();
  const auto top = std::ranges::find(all, &back, [](const auto& view) { return view.get(); });
  auto first = std::find_if(all.begin(), top, [&](const std::unique_ptr<ControlView>& view) {
    return view->Drawn.Visible && fncCutsPicture(view->Drawn) && view->Widget->geometry() == place;
  });
  if (first == top) {
    return {};
  }
  if (first != all.begin() && (*std::prev(first))->Drawn.Dress == Look::Shadow) {
    --first;
  }
  return {first, std::next(top)};
}

void prcShowFlip(const ControlView& back) {
  const Layers card = fncCardOf(back);
  QWidget* ground = back.Home.Ground;
  if (card.empty() || !ground->isVisible() ||
      ground->style()->styleHint(QStyle::SH_Widget_Animate, nullptr, ground) == 0) {
    return;
  }
  Turning turning{back.Widget->geometry(), {}, {}, {}, {}};
  const QRect& room = turning.Room = turning.Card | card.front()->Widget->geometry();
  turning.Ground = turning.Back = turning.Face = fncClear(back.Home, room);
  const Layers all(back.Home.Controls);
  prcAddGround(turning.Ground, back.Home, room);
  prcAddLayers(turning.Ground, room, {all.begin(), card.begin()});
  prcAddLayers(turning.Ground, room, {card.end(), all.end()});
  prcAddLayers(turning.Face, room, card.first(card.size() - 1));
  prcAddLayers(turning.Back, room, card);
  if (flpView == nullptr || flpView->parentWidget() != ground) {
    delete flpView;
    flpView = new FlipView(ground);
  }
  flpView->prcBegin(std::move(turning));
}

}  // namespace

void prcEndFlip() {
  if (flpView != nullptr) {
    flpView->prcEnd();
  }
}

void prcFollowFlip(const ControlView& view, const Control& next) {
  if (view.Widget == nullptr) {
    return;
  }
  if (flpView != nullptr && view.Home.Ground == flpView->parentWidget() &&
      view.Widget->geometry().intersects(flpView->fncCard())) {
    prcEndFlip();
  }
  const bool blnGoes = view.Drawn.Visible && !next.Visible;
  if (blnGoes && next.Flips && fncCutsPicture(next) && !fncIsBent(view.Drawn)) {
    prcShowFlip(view);
  }
}

}  // namespace qt
