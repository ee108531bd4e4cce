#include "platform/qt/Accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/qt/ChildShell.h"
#include "platform/qt/ControlViews.h"
#include "platform/qt/Painted.h"

namespace qt {

namespace {

QAccessible::Role fncRole(const Control& control) {
  switch (control.Kind) {
    case ControlKind::Label:
      return control.Dress == Look::Link ? QAccessible::Link : QAccessible::StaticText;
    case ControlKind::Picture:
      return control.On->Click != nullptr ? QAccessible::Button : QAccessible::Graphic;
    case ControlKind::Frame:
      return QAccessible::Grouping;
    case ControlKind::Line:
      return QAccessible::Separator;
    default:
      return QAccessible::Graphic;
  }
}

/// A painted control: its role by its kind, and a press where it can be clicked.
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
      prcKeyClick(*painted_.fncView());
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

  QString text(QAccessible::Text which) const override {
    const Control* control = fncControl();
    if (which == QAccessible::Name && control != nullptr) {
      return fncSpokenName(*control);
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
  return nullptr;
}

}  // namespace

void prcInstallRoles() { QAccessible::installFactory(fncMakeRole); }

}  // namespace qt
