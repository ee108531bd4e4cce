#include "platform/qt/machine/HelpWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/WindowViews.h"

namespace qt {

namespace {

constexpr int intWidth = 980;
constexpr int intHeight = 660;
constexpr int intSideWidth = 270;
constexpr int intFindWidth = 190;

QPointer<HelpWindow> wndHelp;

/// The first page that the contents lead to.
QUrl fncFirstPage(const QHelpContentModel& contents) {
  const QHelpContentItem* first =
      contents.rowCount() > 0 ? contents.contentItemAt(contents.index(0, 0)) : nullptr;
  return first != nullptr ? first->url() : QUrl();
}

bool fncSamePage(const QUrl& one, const QUrl& other) {
  return one.matches(other, QUrl::RemoveFragment);
}

/// The entry of a page below one of the contents. A section is called by its first page: the page's
/// own entry is the last one that leads to it.
QModelIndex fncEntry(const QHelpContentModel& contents, const QUrl& page,
                     const QModelIndex& above = {}) {
  for (int row = contents.rowCount(above) - 1; row >= 0; --row) {
    const QModelIndex at = contents.index(row, 0, above);
    const QModelIndex below = fncEntry(contents, page, at);
    if (below.isValid()) {
      return below;
    }
    if (fncSamePage(contents.contentItemAt(at)->url(), page)) {
      return at;
    }
  }
  return {};
}

void prcTellNoHelp(const std::string& file) {
  platform::MsgBox("The help file is missing or cannot be read:\r\n" + file,
                   platform::Icon::Exclamation);
}

/// A dialog keeps the input from every other window, and may stand above all: help that is asked
/// for in one comes up as a dialog before it, until it is closed.
void prcFaceDialogs(QWidget& window) {
  const QWidget* dialog = QApplication::activeModalWidget();
  const Qt::WindowModality wanted = dialog == nullptr ? Qt::NonModal : Qt::ApplicationModal;
  if (dialog == &window || window.windowModality() == wanted) {
    return;
  }
  window.hide();
  window.setWindowModality(wanted);
  window.setWindowFlag(Qt::WindowStaysOnTopHint, dialog != nullptr);
}

}  // namespace

HelpWindow::HelpWindow()
    : engine_(folder_.filePath(QStringLiteral("help.qhc"))), pages_(new HelpPages(engine_, this)) {
  setObjectName(QStringLiteral("Help"));
  setWindowTitle(QStringLiteral("Velmora Help"));
  setContextMenuPolicy(Qt::NoContextMenu);
  resize(
      QSize(fncScaled(intWidth), fncScaled(intHeight)).boundedTo(screen()->availableSize() * 0.95));
  pages_->setAccessibleName(tr("Help page"));
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
  connect(pages_, &QTextBrowser::sourceChanged, this, &HelpWindow::prcFollow);
  pages_->setSource(first);
  pages_->setFocus();
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

QAction& HelpWindow::fncAdd(QToolBar* bar, const QString& text, const QString& tip,
                            const QList<QKeySequence>& keys, const std::function<void()>& act) {
  auto* action = new QAction(text, this);
  action->setShortcuts(keys);
  action->setToolTip(keys.isEmpty() ? tip
                                    : QStringLiteral("%1 (%2)").arg(
                                          tip, keys.first().toString(QKeySequence::NativeText)));
  connect(action, &QAction::triggered, this, act);
  static_cast<QWidget*>(bar != nullptr ? bar : static_cast<QWidget*>(this))->addAction(action);
  return *action;
}

void HelpWindow::prcMakeBars() {
  auto* bar = addToolBar(tr("Pages"));
  bar->setMovable(false);
  // Back and Forward go along what has been read; the order of the pages stands at their ends.
  QAction& back = fncAdd(bar, tr("Back"), tr("To the page read before"), {QKeySequence::Back},
                         [this] { pages_->backward(); });
  QAction& forward = fncAdd(bar, tr("Forward"), tr("To the page gone back from"),
                            {QKeySequence::Forward}, [this] { pages_->forward(); });
  fncAdd(bar, tr("Home"), tr("To the first page"), {QKeySequence(Qt::ALT | Qt::Key_Home)},
         [this] { pages_->home(); });
  back.setEnabled(false);
  forward.setEnabled(false);
  connect(pages_, &QTextBrowser::backwardAvailable, &back, &QAction::setEnabled);
  connect(pages_, &QTextBrowser::forwardAvailable, &forward, &QAction::setEnabled);
  bar->addSeparator();
  fncAdd(bar, tr("A\u2212"), tr("Smaller type"), {QKeySequence::ZoomOut},
         [this] { pages_->prcZoom(-1); });
  QAction& size = fncAdd(bar, tr("100%"), tr("Type as large as the table's"),
                         {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { pages_->prcZoomBack(); });
  fncAdd(bar, tr("A+"), tr("Larger type"),
         {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)},
         [this] { pages_->prcZoom(1); });
  connect(pages_, &HelpPages::zoomed, &size,
          [&size](int percent) { size.setText(QStringLiteral("%1%").arg(percent)); });
  bar->addSeparator();
  fncAdd(bar, tr("Print..."), tr("Prints this page"), {QKeySequence::Print},
         [this] { prcPrint(); });
  bar->addSeparator();
  prcMakeSearchBar(*bar);
  fncAdd(nullptr, {}, {}, {QKeySequence(Qt::Key_Escape)}, [this] { prcLeave(); });
}

void HelpWindow::prcMakeSearchBar(QToolBar& bar) {
  find_ = new QLineEdit(&bar);
  find_->setPlaceholderText(tr("Search all pages"));
  find_->setAccessibleName(tr("Search all pages"));
  find_->setToolTip(tr("Words to look for on all pages (Ctrl+F)"));
  find_->setMaximumWidth(fncScaled(intFindWidth));
  bar.addWidget(find_);
  connect(find_, &QLineEdit::textChanged, this, &HelpWindow::prcSearch);
  connect(find_, &QLineEdit::returnPressed, this, [this] { prcStep(false); });
  stepBack_ = &fncAdd(&bar, tr("Previous hit"), tr("To the place found before this one"),
                      {QKeySequence::FindPrevious}, [this] { prcStep(true); });
  stepOn_ = &fncAdd(&bar, tr("Next hit"), tr("To the next place found"), {QKeySequence::FindNext},
                    [this] { prcStep(false); });
  fncAdd(nullptr, {}, {}, {QKeySequence::Find}, [this] {
    find_->setFocus();
    find_->selectAll();
  });
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  prcHandOn(*this);
  QMainWindow::closeEvent(event);
}

void HelpWindow::prcLeave() {
  if (find_->text().isEmpty()) {
    close();
  } else {
    find_->clear();
  }
}

void HelpWindow::prcMakeSides() {
  sides_ = new QTabWidget(this);
  sides_->addTab(fncMakeContents(), tr("Contents"));
  sides_->addTab(fncMakeIndex(), tr("Index"));
  sides_->addTab(fncMakeSearch(), tr("Found"));
  auto* split = new QSplitter(this);
  split->addWidget(sides_);
  split->addWidget(pages_);
  split->setStretchFactor(1, 1);
  split->setSizes({fncScaled(intSideWidth), fncScaled(intWidth - intSideWidth)});
  setCentralWidget(split);
  // Tab goes from link to link of a page; this key goes past them.
  fncAdd(nullptr, {}, {}, {QKeySequence(Qt::Key_F6)},
         [this] { pages_->hasFocus() ? sides_->currentWidget()->setFocus() : pages_->setFocus(); });
  prcSearch();
}

QWidget* HelpWindow::fncMakeContents() {
  QHelpContentWidget* contents = engine_.contentWidget();
  contents->setAccessibleName(tr("Contents"));
  contents->setIndentation(fncScaled(14));
  connect(contents, &QHelpContentWidget::linkActivated, this, &HelpWindow::prcOpen);
  connect(contents, &QHelpContentWidget::clicked, this, [this](const QModelIndex& at) {
    if (const QHelpContentItem* item = engine_.contentModel()->contentItemAt(at)) {
      prcOpen(item->url());
    }
  });
  connect(engine_.contentModel(), &QHelpContentModel::contentsCreated, this, [this, contents] {
    contents->expandToDepth(1);
    prcFollow(pages_->source());
  });
  return contents;
}

QWidget* HelpWindow::fncMakeIndex() {
  auto* side = new QWidget(this);
  side->setAccessibleName(tr("Index"));
  auto* filter = new QLineEdit(side);
  filter->setPlaceholderText(tr("Look for"));
  filter->setAccessibleName(tr("Look for"));
  side->setFocusProxy(filter);
  QHelpIndexWidget* index = engine_.indexWidget();
  index->setAccessibleName(tr("Index"));
  auto* rows = new QVBoxLayout(side);
  rows->addWidget(filter);
  rows->addWidget(index);
  connect(filter, &QLineEdit::textChanged, index,
          [index](const QString& text) { index->filterIndices(text); });
  connect(filter, &QLineEdit::returnPressed, index, &QHelpIndexWidget::activateCurrentItem);
  connect(index, &QHelpIndexWidget::documentActivated, this,
          [this](const QHelpLink& link) { pages_->setSource(link.url); });
  connect(index, &QHelpIndexWidget::documentsActivated, this,
          [this](const QList<QHelpLink>& links) { pages_->setSource(links.first().url); });
  return side;
}

QWidget* HelpWindow::fncMakeSearch() {
  auto* side = new QWidget(this);
  side->setAccessibleName(tr("Found"));
  told_ = new QLabel(side);
  told_->setWordWrap(true);
  list_ = new QListWidget(side);
  list_->setAccessibleName(tr("Pages found"));
  side->setFocusProxy(list_);
  auto* rows = new QVBoxLayout(side);
  rows->addWidget(told_);
  rows->addWidget(list_);
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && !fncSamePage(found_.Pages.at(row).Address, pages_->source())) {
      pages_->setSource(found_.Pages.at(row).Address);
      pages_->fncStep(false);
    }
  });
  return side;
}

void HelpWindow::prcOpen(const QUrl& page) {
  if (pages_->source() != page) {
    pages_->setSource(page);
  }
}

void HelpWindow::prcFollow(const QUrl& page) {
  QHelpContentWidget& contents = *engine_.contentWidget();
  const QHelpContentModel& entries = *engine_.contentModel();
  const QHelpContentItem* chosen = entries.contentItemAt(contents.currentIndex());
  if (chosen == nullptr || !contents.currentIndex().isValid() ||
      !fncSamePage(chosen->url(), page)) {
    contents.setCurrentIndex(fncEntry(entries, page));
  }
  const auto at = std::ranges::find_if(
      found_.Pages, [&](const HelpPlace& found) { return fncSamePage(found.Address, page); });
  const QSignalBlocker quiet(list_);  // The page is on its way already.
  list_->setCurrentRow(at == found_.Pages.end() ? -1 : static_cast<int>(at - found_.Pages.begin()));
}

void HelpWindow::prcSearch() {
  const QString typed = find_->text().simplified();
  if (!typed.isEmpty() && texts_.isEmpty()) {
    texts_ = fncHelpTexts(engine_, file_);
  }
  found_ = fncSearch(texts_, typed);
  const bool blnSought = !found_.Sought.pattern().isEmpty();
  const bool blnFound = !found_.Pages.isEmpty();
  list_->clear();
  for (const HelpPlace& page : found_.Pages) {
    list_->addItem(QStringLiteral("%1  (%2)").arg(page.Title).arg(page.Places));
  }
  told_->setText(
      !blnSought ? tr("Type what you look for into the box above the page.")
      : blnFound ? tr("Pages with \u201c%1\u201d: %2").arg(typed).arg(list_->count())
                 : tr("Nothing found for \u201c%1\u201d.\nTry fewer or shorter words.").arg(typed));
  pages_->prcMark(found_.Sought);
  stepBack_->setEnabled(blnFound);
  stepOn_->setEnabled(blnFound);
  const int last = sides_->count() - 1;
  if (blnSought || sides_->currentIndex() == last) {
    sides_->setCurrentIndex(blnSought ? last : 0);
  }
  prcFollow(pages_->source());
}

void HelpWindow::prcStep(bool blnBackwards) {
  const int row = list_->currentRow();
  const int count = list_->count();
  if (count == 0 || (row >= 0 && pages_->fncStep(blnBackwards))) {
    return;
  }
  const int next = row < 0 ? 0 : (row + (blnBackwards ? count - 1 : 1)) % count;
  prcOpen(found_.Pages.at(next).Address);
  pages_->fncStep(blnBackwards && row >= 0);
}

void HelpWindow::prcPrint() {
  const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(pages_->documentTitle());
  auto* dialog = new QPrintDialog(printer.get(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOptions(QAbstractPrintDialog::PrintToFile);
  connect(dialog, &QDialog::accepted, pages_, [this, printer] {
    if (!pages_->fncPrint(*printer)) {
      prcServe(
          [] { platform::MsgBox("The page could not be printed.", platform::Icon::Exclamation); });
    }
  });
  dialog->QDialog::open();
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
  } else {
    qt::wndHelp->fncPages().prcDress();  // The frame may have another size by now.
  }
  if (context != 0) {
    qt::wndHelp->prcShowTopic(context);
  }
  qt::prcFaceDialogs(*qt::wndHelp);
  qt::wndHelp->show();
  qt::wndHelp->raise();
  qt::wndHelp->activateWindow();
}

}  // namespace platform
