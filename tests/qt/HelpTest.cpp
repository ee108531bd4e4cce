#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QPrinter>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "platform/platform.h"
#include "platform/qt/machine/HelpWindow.h"

namespace {

class Help : public testing::Test {
 protected:
  void TearDown() override { delete Shown(); }

  static QString Built() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../VELMORA.HLP");
  }
  /// The help window; none where there is none.
  static qt::HelpWindow* Shown() {
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto help = std::ranges::find(all, QStringLiteral("Help"), &QObject::objectName);
    return help != all.end() ? static_cast<qt::HelpWindow*>(*help) : nullptr;
  }
  static qt::HelpWindow& Opened(int context = 0) {
    platform::ShowHelp(Built().toStdString(), context);
    return *Shown();
  }
};

QString fncTold(const qt::HelpWindow& help) {
  const auto* list = help.findChild<QListWidget*>();
  return help.findChild<QLabel*>()->text().section(QLatin1Char('\n'), 0, 0) + QLatin1Char('|') +
         (list->selectedItems().isEmpty() ? QString() : list->currentItem()->text());
}

TEST_F(Help, WordsAreFoundOnAllPagesMarkedAndGoneThroughByKeys) {
  qt::HelpWindow& help = Opened();
  EXPECT_EQ(&Opened(2), &help);
  EXPECT_TRUE(help.fncPages().toPlainText().startsWith(QStringLiteral("Exact odds")));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
  QTest::keyClick(&help, Qt::Key_F, Qt::ControlModifier);
  auto& find = *qobject_cast<QLineEdit*>(help.focusWidget());
  // Typed; Enter, so many times, or below 0, Shift+F3; told; marks.
  const std::tuple<const char*, int, const char*, int> rows[] = {
      {"x", 0, "Type what you look for into the box above the page.|", 0},
      {"xyzzy", 1, "Nothing found for \u201cxyzzy\u201d.|", 0},
      {"Third  CARD", 1, "Pages with \u201cThird CARD\u201d: 8|The draw rules  (4)", 4},
      {"Third  CARD", 4,
       "Pages with \u201cThird CARD\u201d: 8|Dealing, one hand or many at a time  (3)", 3},
      {"third card", -4, "Pages with \u201cthird card\u201d: 8|The draw rules  (4)", 4},
      {"turnover stake", 1,
       "Pages with \u201cturnover stake\u201d: 2|Statistics, stake and reset  (14)", 14}};
  for (const auto& [typed, steps, told, marks] : rows) {
    find.setText(QString::fromUtf8(typed));
    for (int step = 0; step < std::abs(steps); ++step) {
      QTest::keyClick(&find, steps < 0 ? Qt::Key_F3 : Qt::Key_Return,
                      steps < 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
    EXPECT_EQ(fncTold(help).toStdString(), told) << typed;
    EXPECT_EQ(help.fncPages().extraSelections().size(), marks) << typed;
  }
  QTest::keyClick(&find, Qt::Key_Escape);
  EXPECT_TRUE(help.isVisible() && help.fncPages().extraSelections().isEmpty());
  QTest::keyClick(&find, Qt::Key_Escape);
  EXPECT_FALSE(help.isVisible());
}

TEST_F(Help, ZoomKeepsWhatIsInSightAndPrintsTheSamePages) {
  QTemporaryDir folder;
  qt::HelpWindow& help = Opened();
  qt::HelpPages& pages = help.fncPages();
  pages.setSource(pages.source().resolved(QUrl(QStringLiteral("rules.html"))));
  pages.verticalScrollBar()->setValue(pages.verticalScrollBar()->maximum() / 2);
  const int inSight = pages.cursorForPosition({}).position();
  const int plain = pages.font().pixelSize();
  for (const int steps : {0, 2, -4}) {
    QWheelEvent turn({}, {}, {}, {0, steps * 120}, Qt::NoButton, Qt::ControlModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(pages.viewport(), &turn);
    EXPECT_EQ(pages.font().pixelSize() > plain, steps > 0) << steps;
    EXPECT_EQ(pages.cursorForPosition({}).position(), inSight) << steps;
    EXPECT_EQ(pages.horizontalScrollBar()->maximum(), 0) << steps;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath(QStringLiteral("page.pdf")));
    EXPECT_TRUE(pages.fncPrint(printer));
    QFile file(printer.outputFileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("/Count 2")) << steps;
  }
}

TEST_F(Help, AMissingOrDamagedFileGetsOneMessageAndNoWindow) {
  QTemporaryDir folder;
  QFile built(Built()), damaged(folder.filePath(QStringLiteral("damaged")));
  ASSERT_TRUE(built.open(QIODevice::ReadOnly));
  const QByteArray whole = built.readAll();
  int boxes = 0;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&boxes] {
    QWidget* box = QApplication::activeModalWidget();
    boxes += box != nullptr && box->close() ? 1 : 0;
  });
  user.start(1);
  platform::ShowHelp(folder.filePath(QStringLiteral("missing")).toStdString(), 0);
  for (const QByteArray& content :
       {QByteArray(), QByteArray("no help"), whole.left(whole.size() / 3), whole.left(4096)}) {
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(content);
    damaged.close();
    platform::ShowHelp(damaged.fileName().toStdString(), 0);
    EXPECT_EQ(Shown(), nullptr) << content.size();
  }
  EXPECT_EQ(boxes, 5);
}

}  // namespace
