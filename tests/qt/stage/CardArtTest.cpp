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

TEST(CardArt, PatchesHideEveryMarkAndNothingElse) {
  prcLayOutBaccTable();
  const Control& card = BaccTable.pctCardBack[0];
  for (const double scale : {1.0, 2.0}) {
    qt::prcSetScale(scale);
    for (int number = 1; number <= intSlotsOfDeck; ++number) {
      SCOPED_TRACE(number);
      const bool blnPicture = (number - 1) % 13 + 1 >= intFirstPicture;
      QSvgRenderer file(QStringLiteral(":/cards/%1.svg").arg(number, 2, 10, QLatin1Char('0')));
      const QImage whole = fncRendered(file, {"face", "pips", "marks"}, scale);
      const QImage unmarked = fncRendered(file, {"face", "pips"}, scale);
      QImage patched = whole;
      QPainter painter(&patched);
      for (const Control* patch : BaccTable.Form.Controls) {
        if (patch->Dress == Look::Patch && patch->Index == 0 &&
            std::string_view(patch->Name).ends_with("Wide") != blnPicture) {
          const QRect place = qt::fncPixelRect(patch->Left - card.Left, patch->Top - card.Top,
                                               patch->Width, patch->Height);
          EXPECT_NE(whole.copy(place), unmarked.copy(place)) << "a mark in every corner";
          painter.fillRect(place, Qt::white);
        }
      }
      painter.setCompositionMode(QPainter::CompositionMode_Difference);
      painter.drawImage(0, 0, unmarked);
      int most = 0;
      for (int at = 0; at < patched.width() * patched.height(); ++at) {
        most = std::max(most, qGray(patched.pixel(at % patched.width(), at / patched.width())));
      }
      EXPECT_LE(most, 3);
    }
  }
}

}  // namespace
