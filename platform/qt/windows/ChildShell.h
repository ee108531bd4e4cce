#pragma once

#include <QWidget>

#include "platform/Window.h"

// The border and title bar of a child window, and the ground of any window.

namespace qt {

struct WindowView;

/// Draws a window's back colour and picture; holds its controls.
class GroundView : public QWidget {
  Q_OBJECT

 public:
  GroundView(const Window& window, QWidget* parent, Qt::WindowFlags flags = {});

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  const Window& window_;
};

/// The outer part of a child window within the frame's field.
class ChildShell : public QWidget {
  Q_OBJECT

 public:
  ChildShell(WindowView& view, QWidget* field);
  void prcDetach() { view_ = nullptr; }

  /// What the border and the title bar take of the window's size.
  QMargins fncFrame() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  Qt::Edges fncEdges(QPoint at) const;
  QRect fncCloseBox() const;
  void prcDragTo(QPoint global);

  WindowView* view_;
  bool blnDragged_ = false;
  Qt::Edges edges_;
  QPoint from_;
  QRect start_;
};

}  // namespace qt
