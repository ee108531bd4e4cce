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
#include <QTimer>
#include <csignal>

#include "platform/Chart.h"
#include "platform/Layout.h"
#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Sync.h"

// Files that the user saves, by real dialogs onto a real disk.

namespace {

Window frmPaper;
Control crtPaper;

class Saving : public testing::Test {
 protected:
  void SetUp() override {
    frmPaper = Window{};
    frmPaper.Kind = WindowKind::Float;
    frmPaper.FixedInner = true;
    frmPaper.ScaleWidth = 7500;
    frmPaper.ScaleHeight = 4500;
    const Place rows[] = {{&crtPaper, "crtPaper", -1, ControlKind::Chart, 0, 0, 7500, 4500}};
    prcLayOut(frmPaper, rows);
    Draw({{0, 0}, {10, 70}});
    prcShow(frmPaper);
    qt::prcSyncAll();
    QObject::connect(&user_, &QTimer::timeout, [this] { Answer(); });
    user_.start(1);
  }
  void TearDown() override {
    prcForgetWindow(frmPaper);
    qt::prcSyncAll();
  }

  static void Draw(std::vector<ChartPoint> points) {
    auto data = std::make_shared<ChartData>();
    data->Lines.push_back({.Name = "Player 1", .Width = 3, .Points = std::move(points)});
    crtPaper.Chart = data;
  }

  std::string fncPath(const char* name) const { return folder_.filePath(name).toStdString(); }

  QByteArray fncRead(const char* name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// What the player gets who types this name and chooses this kind of file.
  std::string fncAsked(const char* name, int kind) {
    typed_ = folder_.filePath(name);
    kind_ = kind;
    constexpr platform::FileKind kinds[] = {{"Picture", "png"}, {"Drawing", "svg"}};
    return platform::AskSavePath("Save", "Curve.png", kinds);
  }

 private:
  /// The dialog is filled in once; whatever is open then is closed.
  void Answer() {
    QWidget* open = QApplication::activeModalWidget();
    auto* dialog = qobject_cast<QFileDialog*>(open);
    if (dialog != nullptr && !typed_.isEmpty()) {
      dialog->selectNameFilter(dialog->nameFilters().at(kind_));
      emit dialog->filterSelected(dialog->selectedNameFilter());
      dialog->findChild<QLineEdit*>()->setText(std::exchange(typed_, QString()));
      static_cast<QDialog*>(dialog)->accept();
    } else if (open != nullptr) {
      open->close();
    }
  }

  QTemporaryDir folder_;
  QTimer user_;
  QString typed_;
  int kind_ = 0;
};

TEST_F(Saving, TheDialogNamesTheFileByItsKind) {
  for (const auto& [typed, kind, path] : {std::tuple{"one", 0, "one.png"},
                                          {"two", 1, "two.svg"},
                                          {"three.svg", 0, "three.svg"},
                                          {"four.jpg", 1, "four.jpg.svg"}}) {
    EXPECT_EQ(fncAsked(typed, kind), fncPath(path));
  }
  ASSERT_EQ(platform::SaveFile(fncPath("five.jpg.png"), "kept"), "");
  EXPECT_EQ(fncAsked("five.jpg", 0), "")
      << "it is there already: the dialog stays, to ask, and is closed";
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
  for (const std::string& bad : {fncPath("missing/all.csv"), fncPath(""), pipe}) {
    EXPECT_NE(platform::SaveFile(bad, "new"), "") << bad;
    EXPECT_NE(platform::SavePicture(crtPaper, bad), "") << bad;
  }
  {
    const FullDisk full;
    EXPECT_NE(platform::SaveFile(path, std::string(100000, 'x')), "");
  }
  EXPECT_NE(platform::SavePicture(Control(), path), "") << "there is nothing to draw on";
  EXPECT_EQ(fncRead("hands.csv"), "old");
  EXPECT_EQ(platform::SaveFile(path, "new"), "");
}

TEST_F(Saving, APictureIsTwiceAsFineAndADrawingIsNoPicture) {
  ASSERT_EQ(platform::SavePicture(crtPaper, fncPath("curve.png")), "");
  const QImage picture(QString::fromStdString(fncPath("curve.png")));
  EXPECT_EQ(picture.size(), QSize(qt::fncScaled(500), qt::fncScaled(300)) * 2);
  ASSERT_EQ(platform::SavePicture(crtPaper, fncPath("curve.svg")), "");
  const QByteArray drawing = fncRead("curve.svg");
  EXPECT_TRUE(drawing.contains("<polyline") && drawing.contains("Player 1"));
  EXPECT_FALSE(drawing.contains("<image"));
  EXPECT_TRUE(QSvgRenderer(drawing).isValid());
}

TEST_F(Saving, AStepOfACurveStandsUprightUpAsWellAsDown) {
  const auto drawn = [this](std::vector<ChartPoint> points) {
    Draw(std::move(points));
    EXPECT_EQ(platform::SavePicture(crtPaper, fncPath("step.png")), "");
    return QImage(QString::fromStdString(fncPath("step.png")));
  };
  for (const float to : {70.F, 0.F}) {
    EXPECT_EQ(drawn({{0, 35}, {10, 35}, {10, to}}), drawn({{0, 35}, {9, 35}, {10, 35}, {10, to}}))
        << "level up to the step to " << to;
  }
}

TEST_F(Saving, CopiedTextIsOnTheClipboard) {
  platform::CopyText("1,\u2660");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1,\u2660"));
}

}  // namespace
