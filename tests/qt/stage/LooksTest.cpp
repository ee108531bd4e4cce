#include <QPainter>
#include <QScreen>
#include <cmath>

#include "assets/Pictures.h"
#include "platform/platform.h"
#include "platform/qt/looks/Pictures.h"
#include "tests/Game.h"
#include "tests/qt/stage/Stage.h"

// What only pixels show.

namespace {

/// A table with one card on it, below its back.
class Looks : public Game {
 protected:
  void SetUp() override {
    Game::SetUp();
    Start();
    card_ = qt::fncPlace(back_);
    ground_ = Shot(card_);
    face_.Picture = 22;
    face_.Visible = back_.Visible = true;
  }

  /// What has been painted at a place of the table; a grab of the widget would paint it anew.
  static QImage Shot(const QRect& place) {
    user::Settle();
    const QWidget& table = *stage::fncView(BaccTable.Form).Ground;
    const QRect at(table.mapTo(table.window(), place.topLeft()), place.size());
    const QPixmap whole = table.screen()->grabWindow(table.window()->winId());
    return whole.copy(at).toImage().convertToFormat(QImage::Format_RGB32);
  }

  /// A card's picture as it lies on the table.
  QImage Card(int number) const {
    QImage image = ground_;
    QPainter(&image).drawPixmap(0, 0, qt::fncPicture(number, card_.size(), 1));
    return image;
  }

  Control& back_ = BaccTable.pctCardBack[0];
  Control& face_ = BaccTable.pctCardFace[0];
  QRect card_;
  QImage ground_;
};

/// The light of an area as a whole, 0 to 255.
int fncGrey(const QImage& area) {
  return qGray(area.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
}

TEST_F(Looks, ABackPulledOpenIsCutAndBendsThere) {
  const QImage back = Card(picCardBack), face = Card(22);
  for (const bool blnRight : {false, true}) {
    double& side = blnRight ? back_.Width : back_.Height;
    const double whole = side;
    for (const double share : {0.9, 0.45, 0.6, 1.0}) {
      const double rest = side = whole * share;
      const QImage seen = Shot(card_);
      // From one place along the pull to another, without the round corners.
      const auto part = [&](const QImage& of, double from, double to) {
        const int first = qt::fncPixels(from), length = qt::fncPixels(to) - first;
        return blnRight ? of.copy(first, 8, length, of.height() - 16)
                        : of.copy(8, first, of.width() - 16, length);
      };
      stage::fncView(MDIForm1.Form).Shell->repaint();
      EXPECT_EQ(Shot(card_), seen) << "no less is painted than what has changed";
      if (share >= 0.6) {
        EXPECT_EQ(part(seen, 120, rest / 4), part(back, 120, rest / 4));
      }
      if (share <= 0.6) {
        EXPECT_GT(fncGrey(part(seen, rest - 90, rest - 60)),
                  fncGrey(part(seen, rest - 15, rest)) + 40);
        EXPECT_LT(fncGrey(part(seen, rest, rest + 45)), fncGrey(part(face, rest, rest + 45)) - 30);
        EXPECT_EQ(part(seen, rest + 210, whole - 120), part(face, rest + 210, whole - 120));
      }
    }
  }
}

TEST_F(Looks, ACardTurnsOverUntilSomethingElseComes) {
  const auto turn = [this](bool blnFlips) {
    back_.Visible = true;
    back_.Flips = blnFlips;
    user::Settle();
    back_.Visible = false;
    platform::RepaintNow(back_);
    return Shot(card_);
  };
  const QImage hidden = Shot(card_), face = turn(false);
  const QRect inner = face.rect().adjusted(4, 4, -4, -4);
  EXPECT_EQ(face, Card(22));
  EXPECT_EQ(turn(true).copy(inner), hidden.copy(inner)) << "begins as the back";
  EXPECT_FALSE(user::Seen(back_).Visible);
  user::Wait(130);
  EXPECT_EQ(Shot(card_).pixel(3, 48), ground_.pixel(3, 48)) << "narrow on its way";
  user::Wait(80);
  EXPECT_EQ(Shot(card_), face);
  for (void (*other)() :
       {+[] { stage::prcKey(Qt::Key_F2); }, +[] { BaccTable.pctCardFace[0].Picture = 23; },
        +[] { BaccTable.pctCardFace[0].Visible = false; }}) {
    turn(true);
    other();
    const QImage shot = Shot(card_);
    user::Wait(20);
    EXPECT_EQ(Shot(card_), shot) << "cut off at once, and gone";
  }
}

TEST_F(Looks, AChipAnswersThePointerAlsoBelowItsPlace) {
  Shuffle();
  const Control& chip = BaccTable.lblPBetInc5[0];
  const QRect place = qt::fncPixelRect(chip.Left, chip.Top, chip.Width, chip.Height);
  const QWidget& table = *stage::fncView(BaccTable.Form).Ground;
  const QImage still = Shot(place);
  stage::prcPoint(table, table.mapToGlobal(QPoint(place.center().x(), place.bottom() + 3)));
  const QImage lit = Shot(place);
  EXPECT_NE(lit, still);
  stage::prcPress(table, Qt::MiddleButton);
  EXPECT_NE(Shot(place), lit);
  stage::prcLift(table, Qt::MiddleButton);
  EXPECT_EQ(Shot(place), lit);
  user::Hover(BaccTable.Form);
  EXPECT_EQ(Shot(place), still);
}

TEST_F(Looks, WhatIsBroughtToTheFrontCoversTheOthers) {
  prcControlToFront(face_);
  EXPECT_EQ(Shot(card_).pixel(35, 48), Card(22).pixel(35, 48));
}

TEST(Scale, EdgesAreRoundedSoThatNeighboursStayNeighbours) {
  for (const double scale : {0.75, 1.0, 1.09, 1.54, 2.5}) {
    qt::prcSetScale(scale);
    EXPECT_EQ(qt::fncPixels(qt::fncTwips(97)), 97) << scale;
    for (int twips = 0; twips < 400; twips += 7) {
      const QRect left = qt::fncPixelRect(twips, 0, 135, 100);
      EXPECT_EQ(left.right() + 1, qt::fncPixelRect(twips + 135, 0, 20, 100).left());
    }
  }
  user::Reset();
}

TEST(Palette, TextsStandOutFromTheirGrounds) {
  using enum QPalette::ColorRole;
  for (const auto group : {QPalette::Active, QPalette::Disabled}) {
    for (const auto& [text, ground] : {std::pair{WindowText, Window},
                                       {Text, Base},
                                       {PlaceholderText, Base},
                                       {Link, Base},
                                       {ButtonText, Button},
                                       {HighlightedText, Highlight},
                                       {ToolTipText, ToolTipBase}}) {
      const QPalette palette = QApplication::palette();
      EXPECT_GE(std::abs(qGray(palette.color(group, text).rgb()) -
                         qGray(palette.color(group, ground).rgb())),
                130)
          << "role " << text << " of group " << group;
    }
  }
}

}  // namespace
