#pragma once

#include <QCheckBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "platform/qt/windows/Screen.h"

// Buttons whose state is the model's alone: the toolkit shows them and reports clicks by key and by
// screen reader, but turns nothing over by itself.

namespace qt {

/// A push button, with a text or with a picture that fills it.
class ButtonView : public QPushButton {
  Q_OBJECT

 public:
  ButtonView(ControlView& view, QWidget* parent);
  void prcDetach() { view_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  const ControlView* view_;
};

class CheckView : public QCheckBox {
  Q_OBJECT

 public:
  explicit CheckView(QWidget* parent) : QCheckBox(parent) {}

 protected:
  void nextCheckState() override {}
};

class OptionView : public QRadioButton {
  Q_OBJECT

 public:
  explicit OptionView(QWidget* parent) : QRadioButton(parent) { setAutoExclusive(false); }

 protected:
  void nextCheckState() override {}
};

/// A button of a toolbar: a picture, and beside it a caption if it has one.
class ToolView : public QToolButton {
  Q_OBJECT

 public:
  explicit ToolView(QWidget* parent) : QToolButton(parent) {}

 protected:
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
};

/// A bar that fills from left to right.
class ProgressView : public QProgressBar {
  Q_OBJECT

 public:
  explicit ProgressView(QWidget* parent) : QProgressBar(parent) { setTextVisible(false); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// Tells the model of what is done to a button by other ways than mouse and keys. One that can be
/// checked is turned over by some of them without a click; which others it then releases is the
/// model's to say.
void prcConnectClick(ControlView& view, QAbstractButton& button);

}  // namespace qt
