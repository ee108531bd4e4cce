#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <set>

#include "judges/Adapter.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/machine/HelpWindow.h"

namespace {

QString fncBuiltHelp() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../VELMORA.HLP");
}

qt::HelpWindow* fncShown() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* help = qobject_cast<qt::HelpWindow*>(window); help != nullptr && help->isVisible()) {
      return help;
    }
  }
  return nullptr;
}

TEST(Help, OpensWithItsFirstPageAndOnlyOnce) {
  user::Reset();
  platform::ShowHelp(fncBuiltHelp().toStdString(), 0);
  qt::HelpWindow* help = fncShown();
  ASSERT_NE(help, nullptr);
  EXPECT_GT(help->fncPages().toPlainText().size(), 100);
  EXPECT_TRUE(help->fncPages().toPlainText().contains(QStringLiteral("Velmora")));
  platform::ShowHelp(fncBuiltHelp().toStdString(), 1);
  EXPECT_EQ(fncShown(), help);
  platform::ShowHelp(fncBuiltHelp().toStdString(), 2);
  EXPECT_TRUE(help->fncPages().toPlainText().startsWith(QStringLiteral("Exact odds")));
  EXPECT_TRUE(user::Boxes().empty());
  delete help;
}

TEST(Help, PicturesAreSmoothAtEveryScale) {
  const double before = qt::fncScale();
  for (const double scale : {1.0, 1.5}) {
    qt::prcSetScale(scale);
    user::Reset();
    platform::ShowHelp(fncBuiltHelp().toStdString(), 0);
    qt::HelpPages& pages = fncShown()->fncPages();
    const QUrl table(QStringLiteral("pictures/table.png"));
    const auto shown = pages.loadResource(QTextDocument::ImageResource, table).value<QImage>();
    std::set<QRgb> colours;
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        colours.insert(shown.pixel(x, y));
      }
    }
    EXPECT_GT(colours.size(), 2000U) << "colours of a palette, dithered, at scale " << scale;
    delete fncShown();
  }
  qt::prcSetScale(before);
}

TEST(Help, AMissingOrDamagedFileGetsOneMessageAndNoWindow) {
  QTemporaryDir folder;
  QFile built(fncBuiltHelp());
  ASSERT_TRUE(built.open(QIODevice::ReadOnly));
  const QByteArray whole = built.readAll();
  const struct {
    const char* Name;
    QByteArray Content;
  } rows[] = {{"missing", {}},
              {"empty", ""},
              {"text", "this is no help file"},
              {"cut", whole.left(whole.size() / 3)},
              {"header", whole.left(4096)}};
  for (const auto& row : rows) {
    user::Reset();
    const QString path = folder.filePath(QString::fromLatin1(row.Name));
    if (!row.Content.isNull()) {
      QFile file(path);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(row.Content);
    }
    platform::ShowHelp(path.toStdString(), 0);
    EXPECT_EQ(user::Boxes().size(), 1U) << row.Name;
    EXPECT_EQ(fncShown(), nullptr) << row.Name;
  }
}

}  // namespace
