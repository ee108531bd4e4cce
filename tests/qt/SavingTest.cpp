#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

#include "judges/Adapter.h"
#include "platform/Chart.h"
#include "platform/Layout.h"
#include "platform/qt/looks/Scale.h"

// Files that the user saves, by real dialogs onto a real disk.

namespace {

Window frmPaper;
Control crtPaper;

class Saving : public testing::Test {
 protected:
  void SetUp() override {
    user::Reset();
    frmPaper = Window{};
    frmPaper.Name = "Paper";
    frmPaper.Kind = WindowKind::Float;
    frmPaper.FixedInner = true;
    frmPaper.ScaleWidth = 7500;
    frmPaper.ScaleHeight = 4500;
    const Place rows[] = {{&crtPaper, "crtPaper", -1, ControlKind::Chart, 0, 0, 7500, 4500}};
    prcLayOut(frmPaper, rows);
    auto data = std::make_shared<ChartData>();
    data->Lines.push_back({.Name = "Player 1", .Width = 3, .Points = {{0, 0}, {10, 70}}});
    crtPaper.Chart = data;
    prcShow(frmPaper);
    user::Settle();
  }
  void TearDown() override {
    prcForgetWindow(frmPaper);
    user::Reset();
  }

  std::string fncPath(const char* name) const { return folder_.filePath(name).toStdString(); }

  QTemporaryDir folder_;
};

constexpr platform::FileKind kinds[] = {{"Picture", "png"}, {"Drawing", "svg"}};

TEST_F(Saving, TheDialogNamesTheFileByItsKind) {
  const auto type = [](const QString& name, int kind) {
    user::WhileModal([name, kind] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      dialog->selectNameFilter(dialog->nameFilters().at(kind));
      emit dialog->filterSelected(dialog->selectedNameFilter());
      dialog->findChild<QLineEdit*>()->setText(name);
      static_cast<QDialog*>(dialog)->accept();
    });
  };
  for (const auto& [typed, kind, path] :
       {std::tuple{"one", 0, "one.png"}, {"two", 1, "two.svg"}, {"three.svg", 0, "three.svg"}}) {
    type(folder_.filePath(typed), kind);
    EXPECT_EQ(platform::AskSavePath("Save", "Curve.png", kinds), fncPath(path));
  }
  type(folder_.filePath("four.jpg"), 1);
  EXPECT_EQ(platform::AskSavePath("Save", "Curve.png", kinds), fncPath("four.jpg.svg"));
  ASSERT_EQ(platform::SaveFile(fncPath("five.jpg.png"), "kept"), "");
  type(folder_.filePath("five.jpg"), 0);
  EXPECT_EQ(platform::AskSavePath("Save", "Curve.png", kinds), "")
      << "it is there already: the dialog stays, to ask, and is closed";
  EXPECT_EQ(platform::AskSavePath("Save", "Curve.png", kinds), "") << "closed, and not accepted";
}

/// Lets files grow no further, as on a full disk, for as long as this lives.
class FullDisk {
 public:
  FullDisk() {
    getrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, SIG_IGN);
    const rlimit none{0, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

TEST_F(Saving, AFileIsWrittenAsAWholeOrNotAtAll) {
  const std::string path = fncPath("hands.csv");
  EXPECT_EQ(platform::SaveFile(path, "old"), "");
  const std::string pipe = fncPath("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& bad : {fncPath("missing/all.csv"), folder_.path().toStdString(), pipe}) {
    EXPECT_NE(platform::SaveFile(bad, "new"), "") << bad;
    EXPECT_NE(platform::SavePicture(crtPaper, bad), "") << bad;
  }
  {
    const FullDisk full;
    EXPECT_NE(platform::SaveFile(path, std::string(100000, 'x')), "");
  }
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "old");
  EXPECT_EQ(platform::SaveFile(path, "new"), "");
}

TEST_F(Saving, APictureIsTwiceAsFineAndADrawingIsNoPicture) {
  ASSERT_EQ(platform::SavePicture(crtPaper, fncPath("curve.png")), "");
  const QImage picture(folder_.filePath("curve.png"));
  EXPECT_EQ(picture.size(), QSize(qt::fncScaled(500), qt::fncScaled(300)) * 2);
  ASSERT_EQ(platform::SavePicture(crtPaper, fncPath("curve.svg")), "");
  QFile file(folder_.filePath("curve.svg"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray drawing = file.readAll();
  EXPECT_TRUE(drawing.contains("<polyline") && drawing.contains("Player 1"));
  EXPECT_FALSE(drawing.contains("<image"));
  EXPECT_TRUE(QSvgRenderer(drawing).isValid());
}

TEST_F(Saving, AStepOfACurveStandsUprightUpAsWellAsDown) {
  for (const float to : {70.F, 0.F}) {
    std::array<QImage, 2> pictures;
    for (const bool blnPointBetween : {false, true}) {
      auto data = std::make_shared<ChartData>();
      data->Lines.push_back({.Points = {{0, 35}, {10, 35}, {10, to}}});
      if (blnPointBetween) {
        data->Lines[0].Points.insert(data->Lines[0].Points.begin() + 1, {9, 35});
      }
      crtPaper.Chart = data;
      ASSERT_EQ(platform::SavePicture(crtPaper, fncPath("step.png")), "");
      pictures.at(blnPointBetween ? 1 : 0) = QImage(folder_.filePath("step.png"));
    }
    EXPECT_EQ(pictures[0], pictures[1]) << "level up to the step to " << to;
  }
}

TEST_F(Saving, CopiedTextIsOnTheClipboard) {
  platform::CopyText("1,\u2660");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1,\u2660"));
}

}  // namespace
