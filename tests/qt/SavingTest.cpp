#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>

#include "platform/Chart.h"
#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"

// Files that the user saves, by real dialogs onto a real disk.

namespace {

class Saving : public testing::Test {
 protected:
  Saving() {
    paper_.Kind = ControlKind::Chart;
    paper_.Width = 7500;
    paper_.Height = 4500;
    auto data = std::make_shared<ChartData>();
    data->Lines.push_back({.Name = "Player 1", .Width = 3, .Points = {{0, 0}, {10, 70}}});
    paper_.Chart = data;
  }

  std::string fncPath(const char* name) const { return folder_.filePath(name).toStdString(); }

  QByteArray fncRead(const char* name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// What the player gets who types this name and chooses this kind of file. The dialog is filled
  /// in once; if it is there then still, it is closed.
  std::string fncAsked(const char* name, int kind) {
    QString typed = folder_.filePath(name);
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog != nullptr && !typed.isEmpty()) {
        dialog->selectNameFilter(dialog->nameFilters().at(kind));
        emit dialog->filterSelected(dialog->selectedNameFilter());
        dialog->findChild<QLineEdit*>()->setText(std::exchange(typed, QString()));
        static_cast<QDialog*>(dialog)->accept();
      } else if (QWidget* open = QApplication::activeModalWidget()) {
        open->close();
      }
    });
    user.start(1);
    constexpr platform::FileKind kinds[] = {{"Picture", "png"}, {"Drawing", "svg"}};
    return platform::AskSavePath("Save", "Curve.png", kinds);
  }

  QTemporaryDir folder_;
  Control paper_;
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

TEST_F(Saving, AFileIsWrittenAsAWholeOrNotAtAll) {
  const std::string path = fncPath("hands.csv");
  EXPECT_EQ(platform::SaveFile(path, "old"), "");
  const std::string pipe = fncPath("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& bad : {fncPath("missing/all.csv"), fncPath(""), pipe}) {
    EXPECT_NE(platform::SaveFile(bad, "new"), "") << bad;
    EXPECT_NE(platform::SavePicture(paper_, bad), "") << bad;
  }
  rlimit before{}, none{};
  getrlimit(RLIMIT_FSIZE, &before);
  none.rlim_max = before.rlim_max;
  signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &none);  // Files grow no further, as on a full disk.
  EXPECT_NE(platform::SaveFile(path, std::string(100000, 'x')), "");
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_NE(platform::SavePicture(Control(), path), "") << "there is nothing to draw on";
  EXPECT_EQ(fncRead("hands.csv"), "old");
  EXPECT_EQ(platform::SaveFile(path, "new"), "");
}

TEST_F(Saving, APictureIsTwiceAsFineAndADrawingIsNoPicture) {
  ASSERT_EQ(platform::SavePicture(paper_, fncPath("curve.png")), "");
  const QImage picture(QString::fromStdString(fncPath("curve.png")));
  EXPECT_EQ(picture.size(), QSize(qt::fncScaled(500), qt::fncScaled(300)) * 2);
  ASSERT_EQ(platform::SavePicture(paper_, fncPath("curve.svg")), "");
  const QByteArray drawing = fncRead("curve.svg");
  EXPECT_TRUE(drawing.contains("<polyline") && drawing.contains("Player 1"));
  EXPECT_FALSE(drawing.contains("<image"));
  EXPECT_TRUE(QSvgRenderer(drawing).isValid());
}

}  // namespace
