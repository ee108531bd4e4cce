#pragma once

#include <QHelpEngine>
#include <QRegularExpression>
#include <QTextBrowser>

class QPrinter;

namespace qt {

/// Shows pages out of a help file, in type as large as the reader likes, and marks what is looked
/// for.
class HelpPages : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPages(const QHelpEngine& engine, QWidget* parent = nullptr);

  /// Pages, styles and pictures come out of the help file, never from elsewhere.
  QVariant loadResource(int type, const QUrl& name) override;

  /// Makes type and pictures larger or smaller by so many steps, as far as there are any. What is
  /// in sight stays so.
  void prcZoom(int steps);
  /// Gives type and pictures the size they are made for.
  void prcZoomBack();
  /// Takes up a changed scale of the program.
  void prcDress();

  /// Marks each match on this page and on those shown later; an empty expression marks nothing.
  void prcMark(const QRegularExpression& sought);
  /// How many marks the page has.
  int fncMarks() const { return static_cast<int>(marks_.size()); }
  /// Goes to the next mark, or the one before. Behind the last there is none; after that the first
  /// comes again.
  bool fncStep(bool blnBackwards);

  /// Prints the page as it looks unmarked at its own size, whatever the zoom. Returns whether the
  /// printer took it.
  bool fncPrint(QPrinter& printer);

 signals:
  void zoomed(int percent);

 protected:
  /// Pictures as wide as the page are fitted to it anew.
  void resizeEvent(QResizeEvent* event) override;
  /// With Ctrl the wheel zooms.
  void wheelEvent(QWheelEvent* event) override;

 private:
  /// Pixels of the screen to one pixel of the pages' design.
  double fncFactor() const;
  void prcLoadAnew();
  void prcFindMarks();
  void prcPaintMarks();

  const QHelpEngine& engine_;
  bool pictures_ = false;  ///< Whether a page with pictures has been shown.
  double fineness_ = 0;    ///< Dots of a picture to a pixel; 0 is as many as the screen has.
  int zoom_ = 0;           ///< Steps from the size the pages are made for.
  int turned_ = 0;         ///< By how much less than a step the wheel has been turned.
  QRegularExpression sought_;
  QList<QTextCursor> marks_;
  int mark_ = -1;  ///< The one gone to; -1 before the first and behind the last.
};

}  // namespace qt
