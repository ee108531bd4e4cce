#pragma once

#include <QTableView>
#include <memory>

#include "platform/qt/windows/Screen.h"

class QAbstractItemModel;

namespace qt {

/// A grid: the toolkit's table over rows that are asked for as they come into sight.
class GridView : public QTableView {
  Q_OBJECT

 public:
  GridView(ControlView& view, QWidget* parent);

  void prcDetach() { view_ = nullptr; }
  void prcUpdate(const Control& control, bool blnFirst);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void prcDress(const Control& control);

  ControlView* view_;
};

}  // namespace qt
