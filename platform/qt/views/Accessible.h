#pragma once

#include <QStringList>
#include <QWidget>

// What a screen reader is told: the roles of painted controls, and what is read out as it happens.

namespace qt {

struct ControlView;

/// Makes accessible objects know what painted controls and grounds are.
void prcInstallRoles();

/// The voice of a window: a notification without looks, whose name is what was read out last. It
/// comes up anew with every reading, as screen readers read notifications that come up. A label
/// that flashes or is set anew would be read at every turn if it were the notification itself.
class EarView : public QWidget {
  Q_OBJECT

 public:
  explicit EarView(QWidget* ground);

  void prcNote(const QString& text) { noted_.append(text); }
  /// Reads out what was noted, as one.
  void prcTell();

 signals:
  void told(const QString& text);

 private:
  QStringList noted_;
};

/// Notes that a control has come up or changed, to be read out in its window.
void prcNoteForEar(const ControlView& view);

/// Reads out what has been noted in all windows.
void prcTellEar();

}  // namespace qt
