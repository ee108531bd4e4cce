#pragma once

#include <QHelpEngine>
#include <QLineEdit>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTextBrowser>

// The program's help: a compressed help file with contents and index, and its pages.

namespace qt {

/// Shows pages out of a help file.
class HelpPages : public QTextBrowser {
  Q_OBJECT

 public:
  HelpPages(QHelpEngine& engine, QWidget* parent) : QTextBrowser(parent), engine_(engine) {}

  /// Pages, styles and pictures come out of the help file, never from elsewhere.
  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  /// Pictures as wide as the page are fitted to it anew.
  void resizeEvent(QResizeEvent* event) override;

 private:
  QHelpEngine& engine_;
  bool pictures_ = false;  ///< Whether a page with pictures has been shown.
};

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
  void prcMakeSides();
  QWidget* fncMakeIndex();
  void prcFind(bool blnBackwards);

  QTemporaryDir folder_;
  QString file_;
  QHelpEngine engine_;
  HelpPages* pages_;
  QLineEdit* find_ = nullptr;
};

}  // namespace qt
