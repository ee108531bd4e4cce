#include "platform/qt/machine/HelpWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QImage>
#include <QPointer>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/windows/WindowViews.h"

namespace qt {

namespace {

constexpr int intWidth = 900;
constexpr int intHeight = 640;
constexpr int intSideWidth = 260;
constexpr double dblPageMargin = 14;
constexpr double dblPictureScale = 2;  // At which the pictures of the pages were taken.

QPointer<HelpWindow> wndHelp;

/// The spaces between paragraphs, lines of a list and headings, which the pages leave to the scale.
QString fncSpaces() {
  return QStringLiteral(
             "p, ul, ol, table { margin-top: %1px; margin-bottom: %1px; }"
             "h1, h2, h3 { margin-top: %2px; margin-bottom: %1px; }"
             "li { margin-bottom: %3px; }"
             "th, td { padding: %3px; }")
      .arg(fncScaled(9))
      .arg(fncScaled(14))
      .arg(fncScaled(3));
}

/// A picture of a page, at the program's scale but no wider than the room it has. It comes with a
/// palette, which would leave nothing to a smooth scaling but to dither.
QImage fncFittedPicture(const QImage& picture, int room, double ratio) {
  const double width = picture.width() / dblPictureScale * fncScale();
  const double wanted = std::clamp(width, 1.0, std::max(1.0, double(room)));
  QImage fitted =
      picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
          .scaledToWidth(static_cast<int>(std::lround(wanted * ratio)), Qt::SmoothTransformation);
  fitted.setDevicePixelRatio(ratio);
  return fitted;
}

/// The first page that the contents lead to.
QUrl fncFirstPage(const QHelpContentModel& contents) {
  const QHelpContentItem* first =
      contents.rowCount() > 0 ? contents.contentItemAt(contents.index(0, 0)) : nullptr;
  return first != nullptr ? first->url() : QUrl();
}

void prcTellNoHelp(const std::string& file) {
  platform::MsgBox("The help file is missing or cannot be read:\r\n" + file,
                   platform::Icon::Exclamation);
}

}  // namespace

QVariant HelpPages::loadResource(int type, const QUrl& name) {
  const QUrl whole = name.isRelative() ? source().resolved(name) : name;
  const QByteArray bytes =
      whole.scheme() == QLatin1String("qthelp") ? engine_.fileData(whole) : QByteArray();
  if (type != QTextDocument::ImageResource || bytes.isEmpty()) {
    return bytes.isEmpty() ? QVariant() : bytes;
  }
  pictures_ = true;
  const int room = viewport()->width() - fncPixels(2 * dblPageMargin * 15);
  return fncFittedPicture(QImage::fromData(bytes), room, devicePixelRatioF());
}

void HelpPages::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (pictures_ && event->oldSize().width() != event->size().width()) {
    const int at = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(at);
  }
}

HelpWindow::HelpWindow()
    : engine_(folder_.filePath(QStringLiteral("help.qhc"))), pages_(new HelpPages(engine_, this)) {
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("Velmora Help"));
  setContextMenuPolicy(Qt::NoContextMenu);
  resize(fncScaled(intWidth), fncScaled(intHeight));
  QFont face = fncPlainFont();
  face.setPixelSize(fncScaled(14));
  pages_->setFont(face);
  pages_->setAccessibleName(tr("Help page"));
  pages_->document()->setDocumentMargin(dblPageMargin * fncScale());
  pages_->document()->setIndentWidth(26 * fncScale());
  pages_->document()->setDefaultStyleSheet(fncSpaces());
  // A bar that came and went would change the room that pictures are fitted to.
  pages_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  pages_->setOpenLinks(false);
  connect(pages_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (link.scheme() == QLatin1String("http") || link.scheme() == QLatin1String("https")) {
      QDesktopServices::openUrl(link);
    } else {
      pages_->setSource(link);
    }
  });
}

bool HelpWindow::fncOpen(const QString& file) {
  const QString name = QHelpEngineCore::namespaceName(file);
  engine_.setReadOnly(false);
  if (name.isEmpty() || !folder_.isValid() || !engine_.setupData() ||
      !engine_.registerDocumentation(file)) {
    return false;
  }
  engine_.setUsesFilterEngine(true);
  engine_.setupData();
  const QUrl first(QStringLiteral("qthelp://%1/doc/index.html").arg(name));
  if (engine_.fileData(first).isEmpty()) {
    return false;
  }
  file_ = file;
  prcMakeBars();
  prcMakeSides();
  pages_->setSource(first);
  return true;
}

void HelpWindow::prcShowTopic(int context) {
  const QList<QHelpLink> named =
      engine_.documentsForIdentifier(QStringLiteral("context%1").arg(context));
  const QUrl page = named.isEmpty() ? fncFirstPage(*engine_.contentModel()) : named.first().url;
  if (page.isValid()) {
    pages_->setSource(page);
  }
}

void HelpWindow::prcMakeBars() {
  auto* bar = addToolBar(tr("Pages"));
  bar->setMovable(false);
  const auto step = [&](const QString& text, const QKeySequence& key, auto act) {
    QAction* action = bar->addAction(text, pages_, act);
    action->setShortcut(key);
    return action;
  };
  QAction* back = step(tr("Back"), QKeySequence::Back, &QTextBrowser::backward);
  QAction* forward = step(tr("Forward"), QKeySequence::Forward, &QTextBrowser::forward);
  step(tr("Home"), QKeySequence(Qt::ALT | Qt::Key_Home), &QTextBrowser::home);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(pages_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  bar->addSeparator();
  find_ = new QLineEdit(bar);
  find_->setPlaceholderText(tr("Find on this page"));
  find_->setAccessibleName(tr("Find on this page"));
  find_->setMaximumWidth(fncScaled(220));
  bar->addWidget(find_);
  connect(find_, &QLineEdit::returnPressed, this, [this] { prcFind(false); });
  bar->addAction(tr("Previous"), this, [this] { prcFind(true); });
  bar->addAction(tr("Next"), this, [this] { prcFind(false); });
  auto* start = new QAction(this);
  start->setShortcut(QKeySequence::Find);
  connect(start, &QAction::triggered, find_, [this] {
    find_->setFocus();
    find_->selectAll();
  });
  addAction(start);
  auto* leave = new QAction(this);
  leave->setShortcut(QKeySequence(Qt::Key_Escape));
  connect(leave, &QAction::triggered, this, &QWidget::close);
  addAction(leave);
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  prcHandOn(*this);
  QMainWindow::closeEvent(event);
}

void HelpWindow::prcMakeSides() {
  auto* sides = new QTabWidget(this);
  QHelpContentWidget* contents = engine_.contentWidget();
  contents->setAccessibleName(tr("Contents"));
  contents->setIndentation(fncScaled(14));
  connect(contents, &QHelpContentWidget::linkActivated, pages_,
          [this](const QUrl& link) { pages_->setSource(link); });
  connect(contents, &QHelpContentWidget::clicked, pages_, [this](const QModelIndex& at) {
    if (const QHelpContentItem* item = engine_.contentModel()->contentItemAt(at)) {
      pages_->setSource(item->url());
    }
  });
  connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, contents,
          [contents] { contents->expandToDepth(1); });
  sides->addTab(contents, tr("Contents"));
  sides->addTab(fncMakeIndex(), tr("Index"));
  auto* split = new QSplitter(this);
  split->addWidget(sides);
  split->addWidget(pages_);
  split->setStretchFactor(1, 1);
  split->setSizes({fncScaled(intSideWidth), fncScaled(intWidth - intSideWidth)});
  setCentralWidget(split);
  // Tab goes from link to link of a page; this key goes past them.
  auto* change = new QAction(this);
  change->setShortcut(QKeySequence(Qt::Key_F6));
  connect(change, &QAction::triggered, this, [this, sides] {
    pages_->hasFocus() ? sides->currentWidget()->setFocus() : pages_->setFocus();
  });
  addAction(change);
}

QWidget* HelpWindow::fncMakeIndex() {
  auto* side = new QWidget(this);
  side->setAccessibleName(tr("Index"));
  auto* filter = new QLineEdit(side);
  filter->setPlaceholderText(tr("Look for"));
  filter->setAccessibleName(tr("Look for"));
  filter->setClearButtonEnabled(true);
  side->setFocusProxy(filter);
  QHelpIndexWidget* index = engine_.indexWidget();
  index->setAccessibleName(tr("Index"));
  auto* rows = new QVBoxLayout(side);
  rows->addWidget(filter);
  rows->addWidget(index);
  connect(filter, &QLineEdit::textChanged, index,
          [index](const QString& text) { index->filterIndices(text); });
  connect(filter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
  connect(index, &QHelpIndexWidget::documentActivated, pages_,
          [this](const QHelpLink& link) { pages_->setSource(link.url); });
  connect(index, &QHelpIndexWidget::documentsActivated, pages_,
          [this](const QList<QHelpLink>& links) { pages_->setSource(links.first().url); });
  return side;
}

void HelpWindow::prcFind(bool blnBackwards) {
  const QTextDocument::FindFlags flags =
      blnBackwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (find_->text().isEmpty() || pages_->find(find_->text(), flags)) {
    return;
  }
  // Once round the page.
  pages_->moveCursor(blnBackwards ? QTextCursor::End : QTextCursor::Start);
  pages_->find(find_->text(), flags);
}

}  // namespace qt

namespace platform {

void ShowHelp(const std::string& file, int context) {
  const QString path = QString::fromStdString(file);
  if (qt::wndHelp != nullptr && !qt::wndHelp->fncShows(path)) {
    delete qt::wndHelp;
  }
  if (!QFileInfo(path).isFile()) {
    qt::prcTellNoHelp(file);
    return;
  }
  if (qt::wndHelp == nullptr) {
    auto window = std::make_unique<qt::HelpWindow>();
    if (!window->fncOpen(path)) {
      window.reset();
      qt::prcTellNoHelp(file);
      return;
    }
    qt::wndHelp = window.release();
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qt::wndHelp, [] { delete qt::wndHelp; });
  }
  if (context != 0) {
    qt::wndHelp->prcShowTopic(context);
  }
  qt::wndHelp->show();
  qt::wndHelp->raise();
  qt::wndHelp->activateWindow();
}

}  // namespace platform
