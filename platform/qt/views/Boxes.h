#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QValidator>
#include <memory>

#include "platform/qt/windows/Screen.h"

// Boxes that are typed into, and lists.

namespace qt {

/// A text or masked edit box. While it has the model's focus it shows the plain text; a masked one
/// shows its format otherwise.
class EditView : public QLineEdit {
  Q_OBJECT

 public:
  EditView(ControlView& view, QWidget* parent);

  void prcDetach();
  void prcUpdate(const Control& control);
  /// Shows the text in the form that the model's focus asks for.
  void prcShowText();
  /// Selects as many characters as the control's SelLength says, from the first one; none while
  /// another control has the focus.
  void prcSelect();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool fncRefuses(const QString& typed) const;
  /// Keeps room behind the text for the prompt of the places of the mask that are still empty.
  void prcReservePrompt(const Control& box, qsizetype typed);
  void prcDrawPrompt(QPainter& painter) const;

  ControlView* view_;
  QString prompt_;
  bool blnShowing_ = false;  ///< The text changes to what the model says, not by the user.
};

/// A list whose rows follow the control's List; rows that are only added are appended.
class RowsView : public QListWidget {
  Q_OBJECT

 public:
  RowsView(ControlView& view, QWidget* parent);

  void prcDetach() { view_ = nullptr; }
  void prcUpdate(const Control& control, bool blnFirst);
  /// Where the second column of a list of two begins, in pixels from a row's left.
  int fncSecondColumn() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int fncFirstWidth(const QFont& font) const;
  void prcFill(const Control& control, bool blnFirst);
  void prcNarrow(const Control& control);

  ControlView* view_;
  QString first_, second_;  ///< The widest texts of both columns ever shown.
  std::unique_ptr<QAbstractItemDelegate> columns_;
};

}  // namespace qt
