#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

#include "reveal/CardReveal.h"
#include "table/BaccTable.h"
#include "table/BaccTableLayout.h"

// The pictures against the patches that cover their corners: what a squeeze with card values off
// lets the player see.

namespace {

QSvgRenderer& fncCard(int number) {
  static QSvgRenderer card;
  card.load(QStringLiteral(":/cards/%1.svg").arg(number, 2, 10, QLatin1Char('0')));
  return card;
}

QImage fncBlank(double scale) {
  QImage image(static_cast<int>(71 * scale), static_cast<int>(96 * scale),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

void prcRender(QPainter& painter, QSvgRenderer& card, const QString& part, double scale) {
  const QRectF bounds = card.boundsOnElement(part);
  card.render(&painter, part,
              QRectF(bounds.x() * scale, bounds.y() * scale, bounds.width() * scale,
                     bounds.height() * scale));
}

/// The patches of a card as pixels of its picture.
std::vector<QRect> fncPatches(int number, double scale) {
  const bool blnPicture = (number - 1) % 13 + 1 >= intFirstPicture;
  BaccTableWindow& t = BaccTable;
  const Control& card = t.pctCardBack[0];
  std::vector<QRect> patches;
  for (const Control* patch :
       {blnPicture ? &t.pctCardTopLeft[0] : &t.pctCardTopLeftWide[0],
        blnPicture ? &t.pctCardTopRight[0] : &t.pctCardTopRightWide[0],
        blnPicture ? &t.pctCardBottomLeft[0] : &t.pctCardBottomLeftWide[0],
        blnPicture ? &t.pctCardBottomRight[0] : &t.pctCardBottomRightWide[0]}) {
    const auto edge = [&](double twips) {
      return static_cast<int>(std::lround(twips / 15 * scale));
    };
    const double left = patch->Left - card.Left, top = patch->Top - card.Top;
    patches.emplace_back(
        QPoint(edge(left), edge(top)),
        QSize(edge(left + patch->Width) - edge(left), edge(top + patch->Height) - edge(top)));
  }
  return patches;
}

int fncDifference(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other))});
}

/// The greatest difference of colour between two pictures within an area.
int fncGreatestDifference(const QImage& one, const QImage& other, const QRect& area) {
  int most = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      most = std::max(most, fncDifference(one.pixel(x, y), other.pixel(x, y)));
    }
  }
  return most;
}

TEST(CardArt, PatchesHideEveryMarkAndNothingElse) {
  prcLayOutBaccTable();
  for (const double scale : {1.0, 2.0}) {
    for (int number = 1; number <= intSlotsOfDeck; ++number) {
      QSvgRenderer& card = fncCard(number);
      ASSERT_TRUE(card.isValid() && card.elementExists("marks") && card.elementExists("pips"))
          << number;
      QImage whole = fncBlank(scale), patched = fncBlank(scale), unmarked = fncBlank(scale);
      {
        QPainter painter(&whole);
        card.render(&painter, QRectF(0, 0, 71 * scale, 96 * scale));
      }
      patched = whole;
      {
        QPainter painter(&patched);
        for (const QRect& patch : fncPatches(number, scale)) {
          painter.fillRect(patch, Qt::white);
        }
      }
      {
        QPainter painter(&unmarked);
        prcRender(painter, card, "face", scale);
        prcRender(painter, card, "pips", scale);
      }
      EXPECT_LE(fncGreatestDifference(patched, unmarked, patched.rect()), 3)
          << number << " at " << scale;
      for (const QRect& patch : fncPatches(number, scale)) {
        EXPECT_GT(fncGreatestDifference(whole, unmarked, patch), 100)
            << number << " has a mark in every corner";
      }
    }
  }
}

TEST(CardArt, FromTheEdgesAFourIsNoSixAndANineNoTen) {
  // Pulled half open from below or from the right, with its marks under patches.
  struct Pair {
    int One, Other;
  };
  for (const Pair& pair : {Pair{4, 6}, {9, 10}, {2, 3}, {7, 8}}) {
    for (int suit = 0; suit < 4; ++suit) {
      QImage seen[2];
      for (int k = 0; k < 2; ++k) {
        seen[k] = fncBlank(2);
        seen[k].fill(Qt::white);  // Black pips on nothing would look like nothing.
        QPainter painter(&seen[k]);
        prcRender(painter, fncCard(13 * suit + (k == 0 ? pair.One : pair.Other)), "pips", 2);
      }
      const QRect fromBelow(0, 96, 142, 96), fromRight(71, 0, 71, 192);
      for (const QRect& area : {fromBelow, fromRight}) {
        EXPECT_GT(fncGreatestDifference(seen[0], seen[1], area), 100)
            << pair.One << " and " << pair.Other;
      }
    }
  }
}

}  // namespace
