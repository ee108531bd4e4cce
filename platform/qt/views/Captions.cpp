#include "platform/qt/views/Captions.h"

#include <QStringList>

namespace qt {

namespace {

bool fncPainted(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
    case ControlKind::Picture:
    case ControlKind::Shape:
    case ControlKind::Line:
    case ControlKind::Frame:
    case ControlKind::Chart:
      return true;
    default:
      return false;
  }
}

}  // namespace

QString fncText(const std::string& text) {
  QString shown = QString::fromStdString(text);
  shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return shown;
}

QString fncSpokenName(const Control& control) {
  if (control.Dress == Look::Shadow) {
    return {};  // Whatever throws the shadow is spoken of.
  }
  if (!control.Spoken.empty()) {
    const bool blnShown = control.Kind == ControlKind::Label && control.Dress != Look::Chip;
    const QStringList lines = fncText(control.Text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QString name = fncText(control.Spoken);
    return blnShown ? (name + QLatin1Char(' ') + lines.join(QLatin1String(", "))).simplified()
                    : name;
  }
  const bool blnTyped =
      control.Kind == ControlKind::TextBox || control.Kind == ControlKind::MaskedEdit;
  if (control.Text.empty() || blnTyped) {
    return fncText(control.ToolTip);
  }
  QString name = fncText(control.Text);
  if (!fncPainted(control.Kind)) {
    name.remove(QLatin1Char('&'));
  }
  return name;
}

QString fncCaption(const Control& control) {
  QString caption = fncText(control.Text);
  const auto at = caption.indexOf(QLatin1Char(control.AccessKey), 0, Qt::CaseInsensitive);
  if (control.AccessKey != 0 && at >= 0) {
    caption.insert(at, QLatin1Char('&'));
  }
  return caption;
}

QString fncObjectName(const Control& control) {
  const QString name = QString::fromUtf8(control.Name);
  return control.Index < 0 ? name
                           : QStringLiteral("%1(%2)").arg(name).arg(std::int16_t{control.Index});
}

}  // namespace qt
