#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "assets/Pictures.h"
#include "judges/Adapter.h"
#include "platform/Layout.h"
#include "platform/platform.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "tests/qt/stage/Stage.h"

// What only pixels show.

namespace {

struct Felt {
  Window Form;
  Control picGround, pctBack, pctFace, lblChip;
};
Felt felt;

const Place plcFelt[] = {
    {&felt.picGround, "picGround", -1, ControlKind::Picture, 0, 0, 6000, 4500},
    {&felt.pctFace, "pctCardFace", 0, ControlKind::Picture, 1500, 1500, 1065, 1440},
    {&felt.pctBack, "pctCardBack", 0, ControlKind::Picture, 1500, 1500, 1065, 1440},
    {&felt.lblChip, "lblChip", -1, ControlKind::Label, 600, 600, 225, 285},
};

class Looks : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    felt.Form = Window{};
    felt.Form.Name = "Felt";
    felt.Form.Kind = WindowKind::Float;
    felt.Form.ScaleWidth = 6000;
    felt.Form.ScaleHeight = 4500;
    felt.Form.FixedInner = true;
    prcLayOut(felt.Form, plcFelt);
    felt.picGround.BackColor = {0, 80, 0};
    felt.pctFace.Picture = 22;
    felt.pctBack.Picture = picCardBack;
    felt.lblChip.Picture = picChip5;
    felt.lblChip.Dress = Look::Chip;
    prcShow(felt.Form);
    user::Settle();
  }
  void TearDown() override { user::Reset(); }

  /// What has been painted; a grab of the widget would paint it anew.
  static QImage fncShot() {
    const QWidget& shell = *stage::fncView(felt.Form).Shell;
    return shell.screen()
        ->grabWindow(shell.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }
  /// Where the card lies, and what is to be seen there.
  static QRect fncCardPlace() {
    return {QPoint(qt::fncPixels(1500), qt::fncPixels(1500)), qt::fncCardSize()};
  }
  static QImage fncCardShot() {
    user::Settle();
    return fncShot().copy(fncCardPlace());
  }
  static QImage fncCard(int number) {
    QImage image(qt::fncCardSize(), QImage::Format_RGB32);
    image.fill(QColor(0, 80, 0));
    QPainter painter(&image);
    painter.drawPixmap(0, 0, qt::fncPicture(number, qt::fncCardSize(), 1));
    return image;
  }
};

/// The light of an area as a whole, 0 to 255.
int fncGrey(const QImage& area) {
  return qGray(area.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
}

TEST_F(Looks, ABackPulledOpenIsCutAndBendsThere) {
  const QRect card = fncCardPlace();
  const QImage back = fncCard(picCardBack), face = fncCard(22);
  for (const bool blnRight : {false, true}) {
    double& side = blnRight ? felt.pctBack.Width : felt.pctBack.Height;
    const double whole = side;
    // From one place along the pull to another, without the round corners.
    const auto part = [&](double from, double to) {
      const int first = qt::fncPixels(from), last = qt::fncPixels(to);
      return blnRight ? QRect(first, 8, last - first, card.height() - 16)
                      : QRect(8, first, card.width() - 16, last - first);
    };
    for (const double share : {0.9, 0.45, 0.6, 1.0}) {
      const double rest = side = whole * share;
      user::Settle();
      const QImage shot = fncShot(), seen = shot.copy(card);
      stage::fncView(felt.Form).Shell->repaint();
      EXPECT_EQ(fncShot(), shot) << "no less is painted than what has changed";
      if (share >= 0.6) {
        EXPECT_EQ(seen.copy(part(120, rest / 4)), back.copy(part(120, rest / 4)));
      }
      if (share <= 0.6) {
        const QRect fold = part(rest - 15, rest), light = part(rest - 90, rest - 60),
                    shade = part(rest, rest + 45), open = part(rest + 210, whole - 120);
        EXPECT_GT(fncGrey(seen.copy(light)), fncGrey(seen.copy(fold)) + 40);
        EXPECT_LT(fncGrey(seen.copy(shade)), fncGrey(face.copy(shade)) - 30);
        EXPECT_EQ(seen.copy(open), face.copy(open));
      }
    }
  }
}

TEST_F(Looks, ACardTurnsOverUntilSomethingElseComes) {
  const auto turn = [](bool blnFlips) {
    felt.pctBack.Visible = true;
    felt.pctBack.Flips = blnFlips;
    user::Settle();
    felt.pctBack.Visible = false;
    platform::RepaintNow(felt.pctBack);
    return fncShot().copy(fncCardPlace());
  };
  const QImage hidden = fncCardShot(), face = turn(false);
  const QRect inner = face.rect().adjusted(4, 4, -4, -4);
  EXPECT_EQ(face, fncCard(22));
  EXPECT_EQ(turn(true).copy(inner), hidden.copy(inner)) << "begins as the back";
  EXPECT_FALSE(user::Seen(felt.pctBack).Visible);
  user::Wait(130);
  EXPECT_EQ(fncCardShot().pixel(3, 48), qRgb(0, 80, 0)) << "narrow on its way";
  user::Wait(80);
  EXPECT_EQ(fncCardShot(), face);
  for (void (*other)() : {+[] { stage::prcKey(Qt::Key_F12); }, +[] { felt.pctFace.Picture = 23; },
                          +[] { felt.pctFace.Visible = false; }}) {
    turn(true);
    other();
    const QImage shot = fncCardShot();
    user::Wait(20);
    EXPECT_EQ(fncCardShot(), shot) << "cut off at once, and gone";
  }
}

TEST_F(Looks, AChipAnswersThePointerAlsoBelowItsPlace) {
  const QWidget& shell = *stage::fncView(felt.Form).Shell;
  const auto shot = [] {
    user::Settle();
    return fncShot().copy(qt::fncPixelRect(600, 600, 225, 285));
  };
  const QImage still = shot();
  stage::prcPoint(shell, shell.mapToGlobal(QPoint(qt::fncPixels(700), qt::fncPixels(915))));
  const QImage lit = shot();
  EXPECT_NE(lit, still);
  stage::prcPress(shell, Qt::RightButton);
  EXPECT_NE(shot(), lit);
  stage::prcLift(shell, Qt::RightButton);
  EXPECT_EQ(shot(), lit);
  stage::prcPoint(shell, shell.mapToGlobal(QPoint(1, 1)));
  EXPECT_EQ(shot(), still);
}

TEST_F(Looks, TheStackIsTheOrderOnTheScreen) {
  const auto expect = [](int picture) {
    EXPECT_EQ(fncCardShot().pixel(35, 48), fncCard(picture).pixel(35, 48));
  };
  prcControlToFront(felt.pctFace);
  expect(22);
  prcRemoveControl(felt.pctFace);
  expect(picCardBack);
  prcAddControl(felt.Form, felt.pctFace);
  expect(22);
}

TEST(Scale, FillsTheFrameWithTableCardAndLists) {
  for (const auto& [width, height, title, scale] : {std::tuple{1024, 700, 0, 1.0},
                                                    {1366, 768, 25, 1.09},
                                                    {1366, 768, 40, 1.07},
                                                    {3440, 1440, 25, 2.05},
                                                    {1080, 1920, 25, 1.12},
                                                    {500, 400, 0, 0.52}}) {
    EXPECT_DOUBLE_EQ(qt::fncFittingScale(QSizeF(width, height), title), scale) << width;
  }
}

TEST(Scale, EdgesAreRoundedSoThatNeighboursStayNeighbours) {
  const double before = qt::fncScale();
  for (const double scale : {0.75, 1.0, 1.09, 1.54, 2.5}) {
    qt::prcSetScale(scale);
    EXPECT_EQ(qt::fncPixels(qt::fncTwips(97)), 97) << scale;
    for (int twips = 0; twips < 400; twips += 7) {
      const QRect left = qt::fncPixelRect(twips, 0, 135, 100);
      EXPECT_EQ(left.right() + 1, qt::fncPixelRect(twips + 135, 0, 20, 100).left());
    }
  }
  qt::prcSetScale(before);
}

/// How much of the light of white a colour gives, as the eye takes it.
double fncLight(const QColor& colour) {
  const auto part = [](double share) {
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
         0.0722 * part(colour.blueF());
}

TEST(Palette, TextsStandOutFromTheirGrounds) {
  constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::PlaceholderText, QPalette::Base},
      {QPalette::Link, QPalette::Base},
      {QPalette::ButtonText, QPalette::Button},
      {QPalette::HighlightedText, QPalette::Highlight},
      {QPalette::ToolTipText, QPalette::ToolTipBase}};
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled}) {
    for (const auto& [text, ground] : pairs) {
      const double one = fncLight(QApplication::palette().color(group, text));
      const double other = fncLight(QApplication::palette().color(group, ground));
      EXPECT_GE((std::max(one, other) + 0.05) / (std::min(one, other) + 0.05), 4.5)
          << "role " << text << " of group " << group;
    }
  }
}

}  // namespace
