#pragma once

#include <QHelpEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QTabWidget>
#include <QTemporaryDir>

#include "platform/qt/machine/HelpPages.h"
#include "platform/qt/machine/HelpSearch.h"

// The program's help: a compressed help file with contents and index, and its pages.

namespace qt {

/// The help window. It keeps its own collection in a folder that goes with it.
class HelpWindow : public QMainWindow {
  Q_OBJECT

 public:
  HelpWindow();

  /// Opens a help file. Returns whether it is one that can be read.
  bool fncOpen(const QString& file);

  /// Shows the page that the index calls "context" and the number, or else the first topic.
  void prcShowTopic(int context);

  /// Whether the window shows that file.
  bool fncShows(const QString& file) const { return file_ == file; }

  HelpPages& fncPages() { return *pages_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void prcMakeBars();
  void prcMakeSearchBar(QToolBar& bar);
  /// An action with its keys; it stands on the bar, or works by its keys alone where there is none.
  QAction& fncAdd(QToolBar* bar, const QString& text, const QString& tip,
                  const QList<QKeySequence>& keys, const std::function<void()>& act);
  void prcMakeSides();
  QWidget* fncMakeContents();
  QWidget* fncMakeIndex();
  QWidget* fncMakeSearch();

  /// Shows a page, unless it is the one in sight.
  void prcOpen(const QUrl& page);
  /// Lets contents and search point at the page that comes into sight.
  void prcFollow(const QUrl& page);
  void prcSearch();
  /// Goes to the next place found, or the one before, on this page or another.
  void prcStep(bool blnBackwards);
  void prcLeave();
  void prcPrint();

  QTemporaryDir folder_;
  QString file_;
  QHelpEngine engine_;
  HelpPages* pages_;
  QTabWidget* sides_ = nullptr;
  QLineEdit* find_ = nullptr;
  QAction* stepBack_ = nullptr;
  QAction* stepOn_ = nullptr;
  QLabel* told_ = nullptr;
  QListWidget* list_ = nullptr;
  QList<HelpText> texts_;
  HelpFound found_;
};

}  // namespace qt
