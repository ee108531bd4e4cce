#include <gtest/gtest.h>

#include <QPainter>
#include <QSvgRenderer>

#include "platform/qt/looks/Scale.h"
#include "reveal/CardReveal.h"
#include "table/BaccTable.h"
#include "table/BaccTableLayout.h"

// The pictures against the patches that cover their corners: what a squeeze with card values off
// lets the player see.

namespace {

/// Parts of a card drawn onto white at a scale.
QImage fncRendered(QSvgRenderer& card, std::initializer_list<const char*> parts, double scale) {
  QImage image(QSize(71, 96) * scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (const char* part : parts) {
    card.render(&painter, QString::fromLatin1(part),
                card.boundsOnElement(QString::fromLatin1(part)));
  }
  return image;
}

/// The patches of a card as pixels of its picture.
std::vector<QRect> fncPatches(int number) {
  const bool blnPicture = (number - 1) % 13 + 1 >= intFirstPicture;
  const BaccTableWindow& t = BaccTable;
  std::vector<QRect> patches;
  for (const auto& [narrow, wide] : {std::pair{&t.pctCardTopLeft[0], &t.pctCardTopLeftWide[0]},
                                     {&t.pctCardTopRight[0], &t.pctCardTopRightWide[0]},
                                     {&t.pctCardBottomLeft[0], &t.pctCardBottomLeftWide[0]},
                                     {&t.pctCardBottomRight[0], &t.pctCardBottomRightWide[0]}}) {
    const Control& patch = blnPicture ? *narrow : *wide;
    patches.push_back(qt::fncPixelRect(patch.Left - t.pctCardBack[0].Left,
                                       patch.Top - t.pctCardBack[0].Top, patch.Width,
                                       patch.Height));
  }
  return patches;
}

/// The greatest difference of light between two pictures within an area.
int fncDifference(const QImage& one, const QImage& other, const QRect& area) {
  int most = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    }
  }
  return most;
}

TEST(CardArt, PatchesHideEveryMarkAndNothingElse) {
  prcLayOutBaccTable();
  for (const double scale : {1.0, 2.0}) {
    qt::prcSetScale(scale);
    for (int number = 1; number <= intSlotsOfDeck; ++number) {
      SCOPED_TRACE(number);
      QSvgRenderer card(QStringLiteral(":/cards/%1.svg").arg(number, 2, 10, QLatin1Char('0')));
      const QImage whole = fncRendered(card, {"face", "pips", "marks"}, scale);
      const QImage unmarked = fncRendered(card, {"face", "pips"}, scale);
      QImage patched = whole;
      QPainter painter(&patched);
      for (const QRect& patch : fncPatches(number)) {
        EXPECT_GT(fncDifference(whole, unmarked, patch), 50) << "a mark in every corner";
        painter.fillRect(patch, Qt::white);
      }
      EXPECT_LE(fncDifference(patched, unmarked, patched.rect()), 3);
    }
  }
}

}  // namespace
