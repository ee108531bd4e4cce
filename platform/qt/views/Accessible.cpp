#include "platform/qt/views/Accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <algorithm>
#include <utility>
#include <vector>

#include "platform/UserInput.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/ChildShell.h"
#include "platform/qt/windows/Reports.h"
#include "platform/qt/windows/Screen.h"

namespace qt {

namespace {

QAccessible::Role fncRole(const Control& control) {
  switch (control.Kind) {
    case ControlKind::Label:
      if (control.Dress == Look::Link) {
        return QAccessible::Link;
      }
      return control.On->Click != nullptr ? QAccessible::Button : QAccessible::StaticText;
    case ControlKind::Picture:
      return control.On->Click != nullptr ? QAccessible::Button : QAccessible::Graphic;
    case ControlKind::Chart:
      return QAccessible::Chart;
    case ControlKind::Frame:
      return QAccessible::Grouping;
    case ControlKind::Line:
      return QAccessible::Separator;
    default:
      return QAccessible::Graphic;
  }
}

std::vector<QPointer<EarView>> earNoted;

/// A painted control: its role by its kind, and a press where it can be clicked. What only adorns
/// the window, with no name and nothing to do, counts as not there.
class PaintedRole : public QAccessibleWidget {
 public:
  PaintedRole(PaintedView& painted, const Control& control)
      : QAccessibleWidget(&painted, fncRole(control), fncSpokenName(control)), painted_(painted) {}

  QStringList actionNames() const override {
    const Control* control = fncControl();
    QStringList names = QAccessibleWidget::actionNames();
    if (control != nullptr && control->On->Click != nullptr) {
      names.prepend(pressAction());
    }
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && painted_.fncView() != nullptr) {
      prcAct(*painted_.fncView(), prcUserClick);
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const Control* control = fncControl();
    if (control == nullptr ||
        (control->On->Click == nullptr && childCount() == 0 && fncSpokenName(*control).isEmpty())) {
      state.invisible = true;
    }
    return state;
  }

  QString text(QAccessible::Text which) const override {
    const Control* control = fncControl();
    if (which == QAccessible::Name && control != nullptr) {
      return fncSpokenName(*control);
    }
    if (which == QAccessible::Value && control != nullptr) {
      return fncText(control->Text).simplified();
    }
    return QAccessibleWidget::text(which);
  }

 private:
  const Control* fncControl() const {
    return painted_.fncView() != nullptr ? &painted_.fncView()->Drawn : nullptr;
  }

  PaintedView& painted_;
};

QAccessibleInterface* fncMakeRole(const QString& /*name*/, QObject* object) {
  if (auto* painted = qobject_cast<PaintedView*>(object);
      painted != nullptr && painted->fncView() != nullptr) {
    return new PaintedRole(*painted, painted->fncView()->Drawn);
  }
  if (auto* ground = qobject_cast<GroundView*>(object); ground != nullptr && ground->isWindow()) {
    const bool blnDialog = ground->windowType() == Qt::Dialog;
    return new QAccessibleWidget(ground, blnDialog ? QAccessible::Dialog : QAccessible::Window);
  }
  if (qobject_cast<GroundView*>(object) != nullptr ||
      qobject_cast<ChildShell*>(object) != nullptr) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Pane);
  }
  if (auto* ear = qobject_cast<EarView*>(object); ear != nullptr) {
    return new QAccessibleWidget(ear, QAccessible::Notification);
  }
  return nullptr;
}

}  // namespace

void prcInstallRoles() { QAccessible::installFactory(fncMakeRole); }

EarView::EarView(QWidget* ground) : QWidget(ground) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(1, 1);
  show();
}

void EarView::prcTell() {
  setAccessibleName(std::exchange(noted_, {}).join(QLatin1String(". ")));
  emit told(accessibleName());
  for (const QAccessible::Event told : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(this, told);
    QAccessible::updateAccessibility(&event);
  }
}

void prcNoteForEar(const ControlView& view) {
  const QString name = fncSpokenName(view.Drawn);
  if (view.Home.Ground == nullptr || name.isEmpty()) {
    return;
  }
  auto* ear = view.Home.Ground->findChild<EarView*>(QString(), Qt::FindDirectChildrenOnly);
  if (ear == nullptr) {
    ear = new EarView(view.Home.Ground);
  }
  ear->prcNote(name);
  if (std::find(earNoted.begin(), earNoted.end(), ear) == earNoted.end()) {
    earNoted.emplace_back(ear);
  }
}

void prcTellEar() {
  for (const QPointer<EarView>& ear : std::exchange(earNoted, {})) {
    if (ear != nullptr) {
      ear->prcTell();
    }
  }
}

}  // namespace qt
