#include "platform/qt/views/ControlViews.h"

#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "platform/UserInput.h"
#include "platform/qt/looks/Palette.h"
#include "platform/qt/looks/Pictures.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/views/Accessible.h"
#include "platform/qt/views/Bars.h"
#include "platform/qt/views/Boxes.h"
#include "platform/qt/views/Buttons.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Flip.h"
#include "platform/qt/views/Grid.h"
#include "platform/qt/views/Layers.h"
#include "platform/qt/views/Menus.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Reports.h"

namespace qt {

namespace {

/// What only adorns lets the mouse through to what lies below. Whatever may hold other controls
/// must not: the toolkit would let them go with it.
bool fncMouseless(ControlKind kind) {
  return kind == ControlKind::Shape || kind == ControlKind::Line;
}

// What each kind has of its own. A make function gives the widget, an update function brings it to
// what the control says.

QWidget* fncMakePainted(ControlView& view, QWidget* parent) {
  auto* widget = new PaintedView(view, parent);
  const ControlKind kind = view.Drawn.Kind;
  if ((kind == ControlKind::Picture || kind == ControlKind::Chart) && view.Drawn.TabStop) {
    widget->setFocusPolicy(Qt::TabFocus);
  }
  return widget;
}

/// Whether a control looks different but for its place and size.
bool fncLooksChanged(const Control& drawn, const Control& next) {
  Control moved = drawn;
  moved.Left = next.Left;
  moved.Top = next.Top;
  if (fncCutsPicture(next)) {
    moved.Width = next.Width;
    moved.Height = next.Height;
  }
  return !(moved == next);
}

void prcUpdatePainted(ControlView& view, const Control& next, bool blnFirst) {
  auto* widget = static_cast<PaintedView*>(view.Widget.data());
  const bool blnBent = next.Visible && fncIsBent(next);
  if (blnFirst && !blnBent) {
    return;
  }
  // What lies below a bent back is another picture at another scale.
  if (blnFirst || blnBent != (view.Drawn.Visible && fncIsBent(view.Drawn))) {
    widget->prcKeepBelow(blnBent ? fncBelow(view, fncPlace(next)) : QPixmap());
  } else if (fncLooksChanged(view.Drawn, next)) {
    widget->update();
  } else if (blnBent) {
    widget->update(fncBentAnew(view.Drawn, next));
  }
}

QWidget* fncMakeButton(ControlView& view, QWidget* parent) {
  auto* widget = new ButtonView(view, parent);
  widget->setFocusPolicy(Qt::TabFocus);
  prcConnectClick(view, *widget);
  return widget;
}

QFont fncButtonFont(const Control& control) {
  const QRect place = fncPlace(control);
  return fncFittedFont(control, place.size() - QSize(fncScaled(6), 0));
}

void prcUpdateButton(ControlView& view, const Control& next, bool /*blnFirst*/) {
  auto* button = static_cast<ButtonView*>(view.Widget.data());
  button->setFont(fncButtonFont(next));
  if (button->text() != fncText(next.Text)) {
    button->setText(fncText(next.Text));
  }
  button->update();
}

template <class View>
QWidget* fncMakeChecked(ControlView& view, QWidget* parent) {
  auto* widget = new View(parent);
  widget->setFocusPolicy(Qt::TabFocus);
  widget->setCheckable(true);
  prcConnectClick(view, *widget);
  return widget;
}

void prcUpdateChecked(ControlView& view, const Control& next, bool /*blnFirst*/) {
  auto* button = static_cast<QAbstractButton*>(view.Widget.data());
  QPalette palette;
  palette.setColor(QPalette::WindowText, fncColour(next.ForeColor));
  palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor::fromRgb(rgbFaded));
  if (!next.BackColor.Clear) {
    palette.setColor(QPalette::Window, fncColour(next.BackColor));
  }
  button->setPalette(palette);
  button->setBackgroundRole(QPalette::Window);
  button->setAutoFillBackground(!next.BackColor.Clear);
  button->setFont(fncFittedFont(next, fncPlace(next).size() - QSize(fncScaled(20), 0)));
  button->setText(fncText(next.Text));
  const QSignalBlocker quiet(button);
  button->setChecked(next.Value != 0);
}

QWidget* fncMakeEdit(ControlView& view, QWidget* parent) { return new EditView(view, parent); }

void prcUpdateEdit(ControlView& view, const Control& next, bool blnFirst) {
  auto* edit = static_cast<EditView*>(view.Widget.data());
  edit->prcUpdate(next);
  if (!blnFirst && view.Drawn.SelLength != next.SelLength) {
    edit->prcSelect();
  }
}

QWidget* fncMakeRows(ControlView& view, QWidget* parent) { return new RowsView(view, parent); }

void prcUpdateRows(ControlView& view, const Control& next, bool blnFirst) {
  static_cast<RowsView*>(view.Widget.data())->prcUpdate(next, blnFirst);
}

QWidget* fncMakeGrid(ControlView& view, QWidget* parent) { return new GridView(view, parent); }

void prcUpdateGrid(ControlView& view, const Control& next, bool blnFirst) {
  static_cast<GridView*>(view.Widget.data())->prcUpdate(next, blnFirst);
}

int fncWhole(double value) { return static_cast<int>(std::lround(std::clamp(value, -1e9, 1e9))); }

QWidget* fncMakeProgress(ControlView& /*view*/, QWidget* parent) {
  return new ProgressView(parent);
}

void prcUpdateProgress(ControlView& view, const Control& next, bool /*blnFirst*/) {
  auto* bar = static_cast<ProgressView*>(view.Widget.data());
  bar->setRange(fncWhole(next.Min), std::max(fncWhole(next.Min), fncWhole(next.Max)));
  bar->setValue(std::clamp(fncWhole(next.Value), bar->minimum(), bar->maximum()));
}

QWidget* fncMakeRange(ControlView& view, QWidget* parent) {
  const bool blnSlider = view.Drawn.Kind == ControlKind::Slider;
  const Qt::Orientation way =
      view.Drawn.Kind == ControlKind::VScrollBar ? Qt::Vertical : Qt::Horizontal;
  QAbstractSlider* range = nullptr;
  if (blnSlider) {
    range = new QSlider(way, parent);
  } else {
    range = new BarView(way, parent);
  }
  range->setFocusPolicy(blnSlider ? Qt::TabFocus : Qt::NoFocus);
  QObject::connect(range, &QAbstractSlider::valueChanged, range, [&view](int value) {
    prcAct(view, [value](Control& moved) { prcUserValue(moved, value); });
  });
  return range;
}

void prcUpdateRange(ControlView& view, const Control& next, bool /*blnFirst*/) {
  auto* range = static_cast<QAbstractSlider*>(view.Widget.data());
  const QSignalBlocker quiet(range);
  range->setRange(fncWhole(next.Min), std::max(fncWhole(next.Min), fncWhole(next.Max)));
  range->setSingleStep(std::max(1, fncWhole(next.SmallChange)));
  range->setPageStep(std::max(1, fncWhole(next.LargeChange)));
  range->setValue(fncWhole(next.Value));
  if (auto* bar = qobject_cast<BarView*>(range); bar != nullptr) {
    bar->prcShowPage(std::max(0, fncWhole(next.Page)));
  }
}

QWidget* fncMakeBar(ControlView& view, QWidget* /*parent*/) {
  prcMakeToolbar(view);
  return view.Widget;
}

void prcUpdateBar(ControlView& view, const Control& next, bool /*blnFirst*/) {
  prcUpdateToolbar(view, next);
}

QWidget* fncMakeToolButton(ControlView& view, QWidget* parent) {
  prcMakeTool(view, parent);
  return view.Widget;
}

void prcUpdateToolButton(ControlView& view, const Control& next, bool blnFirst) {
  prcUpdateTool(view, next, blnFirst);
}

QWidget* fncMakeEntry(ControlView& view, QWidget* /*parent*/) {
  prcMakeMenu(view);
  return nullptr;
}

void prcUpdateEntry(ControlView& view, const Control& next, bool /*blnFirst*/) {
  prcUpdateMenu(view, next);
}

void prcTick(ControlView& view) {
  Control* timer = fncLive(view);
  if (timer == nullptr || !timer->Enabled || timer->Interval <= 0 || timer->On->Timer == nullptr) {
    return;
  }
  prcServe([timer] { timer->On->Timer(*timer); });
}

QWidget* fncMakeTimer(ControlView& view, QWidget* /*parent*/) {
  auto* timer = new QTimer(view.Home.Shell);
  timer->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer, &QTimer::timeout, timer, [&view] { prcTick(view); });
  view.Helper = timer;
  return nullptr;
}

void prcUpdateTimer(ControlView& view, const Control& next, bool blnFirst) {
  auto* timer = static_cast<QTimer*>(view.Helper.data());
  if (!next.Enabled || next.Interval <= 0) {
    timer->stop();
  } else if (blnFirst || !timer->isActive() || view.Drawn.Interval != next.Interval) {
    timer->start(std::int32_t{next.Interval});
  }
}

struct KindRow {
  ControlKind Kind;
  QWidget* (*Make)(ControlView&, QWidget*);
  void (*Update)(ControlView&, const Control&, bool blnFirst);
};

constexpr KindRow kndRows[] = {
    {ControlKind::Label, fncMakePainted, prcUpdatePainted},
    {ControlKind::TextBox, fncMakeEdit, prcUpdateEdit},
    {ControlKind::MaskedEdit, fncMakeEdit, prcUpdateEdit},
    {ControlKind::Button, fncMakeButton, prcUpdateButton},
    {ControlKind::Picture, fncMakePainted, prcUpdatePainted},
    {ControlKind::Shape, fncMakePainted, prcUpdatePainted},
    {ControlKind::Line, fncMakePainted, prcUpdatePainted},
    {ControlKind::Frame, fncMakePainted, prcUpdatePainted},
    {ControlKind::CheckBox, fncMakeChecked<CheckView>, prcUpdateChecked},
    {ControlKind::OptionButton, fncMakeChecked<OptionView>, prcUpdateChecked},
    {ControlKind::ListBox, fncMakeRows, prcUpdateRows},
    {ControlKind::Grid, fncMakeGrid, prcUpdateGrid},
    {ControlKind::Chart, fncMakePainted, prcUpdatePainted},
    {ControlKind::ProgressBar, fncMakeProgress, prcUpdateProgress},
    {ControlKind::HScrollBar, fncMakeRange, prcUpdateRange},
    {ControlKind::VScrollBar, fncMakeRange, prcUpdateRange},
    {ControlKind::Slider, fncMakeRange, prcUpdateRange},
    {ControlKind::Timer, fncMakeTimer, prcUpdateTimer},
    {ControlKind::MenuEntry, fncMakeEntry, prcUpdateEntry},
    {ControlKind::Toolbar, fncMakeBar, prcUpdateBar},
    {ControlKind::ToolButton, fncMakeToolButton, prcUpdateToolButton},
};

const KindRow& fncRow(ControlKind kind) { return kndRows[static_cast<std::size_t>(kind)]; }

bool fncPlacedByLayout(ControlKind kind) {
  return kind == ControlKind::Toolbar || kind == ControlKind::ToolButton;
}

/// Cuts what was tied to an object here, and leaves what others tied to it: the toolkit forgets an
/// object's accessible face by the signal of its end.
void prcSilence(QObject& object) { QObject::disconnect(&object, nullptr, &object, nullptr); }

/// What all widgets have in common.
void prcUpdateCommon(ControlView& view, const Control& next, bool blnFirst) {
  QWidget& widget = *view.Widget;
  const Control& drawn = view.Drawn;
  if (blnFirst || drawn.ToolTip != next.ToolTip) {
    widget.setToolTip(fncText(next.ToolTip));
  }
  if (blnFirst || drawn.ToolTip != next.ToolTip || drawn.Text != next.Text ||
      drawn.Spoken != next.Spoken) {
    widget.setAccessibleName(fncSpokenName(next));
  }
  if (blnFirst ? next.MousePointer != Pointer::Arrow : drawn.MousePointer != next.MousePointer) {
    widget.setCursor(fncCursor(next.MousePointer));
  }
  widget.setAttribute(Qt::WA_TransparentForMouseEvents, fncMouseless(next.Kind));
  if (fncPlacedByLayout(next.Kind)) {
    if (next.Kind == ControlKind::Toolbar) {
      widget.setVisible(next.Visible);
    }
    return;
  }
  if (const QRect place = fncPlace(next); widget.geometry() != place) {
    widget.setGeometry(place);
  }
  widget.setEnabled(next.Enabled);
  if (blnFirst || drawn.Visible != next.Visible) {
    widget.setVisible(next.Visible);
  }
}

/// Takes what stands for a control off the screen.
void prcDropControl(ControlView& view) {
  if (view.Helper != nullptr) {
    prcSilence(*view.Helper);
    view.Helper->deleteLater();
    if (auto* timer = qobject_cast<QTimer*>(view.Helper); timer != nullptr) {
      timer->stop();
    }
  }
  if (view.Widget == nullptr) {
    return;
  }
  prcForgetWidget(view.Widget);
  if (auto* painted = qobject_cast<PaintedView*>(view.Widget); painted != nullptr) {
    painted->prcDetach();
  } else if (auto* button = qobject_cast<ButtonView*>(view.Widget); button != nullptr) {
    button->prcDetach();
  } else if (auto* edit = qobject_cast<EditView*>(view.Widget); edit != nullptr) {
    edit->prcDetach();
  } else if (auto* rows = qobject_cast<RowsView*>(view.Widget); rows != nullptr) {
    rows->prcDetach();
  } else if (auto* grid = qobject_cast<GridView*>(view.Widget); grid != nullptr) {
    grid->prcDetach();
  }
  prcSilence(*view.Widget);
  view.Widget->hide();
  view.Widget->deleteLater();
}

}  // namespace

void prcMakeControl(ControlView& view, QWidget* parent) {
  const Control& control = *view.Source;
  const KindRow& row = fncRow(control.Kind);
  view.Drop = prcDropControl;
  view.Widget = row.Make(view, parent);
  if (view.Widget != nullptr) {
    prcNoteWidget(view.Widget, &view);
    view.Widget->setObjectName(fncObjectName(control));
    view.Widget->setMouseTracking(true);
    view.Widget->setContextMenuPolicy(Qt::PreventContextMenu);
  }
  if (view.Widget != nullptr || view.Helper != nullptr) {
    row.Update(view, control, true);
  }
  if (view.Widget != nullptr) {
    prcUpdateCommon(view, control, true);
    if (control.Announce && view.Widget->isVisible()) {
      prcNoteForEar(view);
    }
  }
}

void prcUpdateControl(ControlView& view, const Control& control) {
  const bool blnAnew = view.Widget != nullptr && view.Scale != fncScale();
  if (view.Widget != nullptr || view.Helper != nullptr) {
    fncRow(control.Kind).Update(view, control, blnAnew);
  }
  bool blnAnnounce = false;
  if (view.Widget != nullptr) {
    prcUpdateCommon(view, control, blnAnew);
    if (blnAnew) {
      view.Widget->update();
    }
    blnAnnounce = control.Announce && view.Widget->isVisible() &&
                  (!view.Drawn.Visible || view.Drawn.Text != control.Text ||
                   view.Drawn.Spoken != control.Spoken);
  }
  prcFollowFlip(view, control);
  view.Drawn = control;
  view.Scale = fncScale();
  if (blnAnnounce) {
    prcNoteForEar(view);
  }
}

void prcRaiseControl(ControlView& view) {
  if (view.Widget != nullptr && !fncPlacedByLayout(view.Drawn.Kind)) {
    view.Widget->raise();
  }
}

void prcShowFocusTexts(WindowView& home) {
  for (const std::unique_ptr<ControlView>& view : home.Controls) {
    if (auto* edit = qobject_cast<EditView*>(view->Widget); edit != nullptr) {
      edit->prcShowText();
      edit->prcSelect();
    }
  }
}

}  // namespace qt
