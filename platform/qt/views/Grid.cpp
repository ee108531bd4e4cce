#include "platform/qt/views/Grid.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include "platform/Grid.h"
#include "platform/Picking.h"
#include "platform/UserInput.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/windows/Reports.h"

namespace qt {

namespace {

constexpr int intRowHeight = 21;  // Pixels at scale 1.

Qt::Alignment fncAligned(Alignment align) {
  switch (align) {
    case Alignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Centre:
      return Qt::AlignCenter;
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

/// The rows of a grid as the toolkit asks for them.
class GridModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void prcShow(std::shared_ptr<const GridData> grid) {
    beginResetModel();
    grid_ = std::move(grid);
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() || grid_ == nullptr ? 0 : static_cast<int>(grid_->Rows.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() || grid_ == nullptr ? 0 : static_cast<int>(grid_->Columns.size());
  }

  QVariant data(const QModelIndex& at, int role) const override {
    if (grid_ == nullptr || !at.isValid()) {
      return {};
    }
    const std::int32_t row = grid_->Rows[static_cast<std::size_t>(at.row())];
    switch (role) {
      case Qt::DisplayRole:
        return fncText(grid_->Cell(row, at.column()));
      case Qt::TextAlignmentRole:
        return QVariant::fromValue(fncAligned(fncColumn(at.column()).Align));
      case Qt::ForegroundRole:
        return grid_->Ink != nullptr ? QVariant(fncColour(grid_->Ink(row, at.column())))
                                     : QVariant();
      default:
        return {};
    }
  }

  QVariant headerData(int section, Qt::Orientation way, int role) const override {
    if (way != Qt::Horizontal || grid_ == nullptr) {
      return {};
    }
    if (role == Qt::DisplayRole) {
      return QString::fromUtf8(fncColumn(section).Heading);
    }
    return role == Qt::TextAlignmentRole ? QVariant::fromValue(fncAligned(fncColumn(section).Align))
                                         : QVariant();
  }

 private:
  const GridColumn& fncColumn(int at) const { return grid_->Columns[static_cast<std::size_t>(at)]; }

  std::shared_ptr<const GridData> grid_;
};

}  // namespace

GridView::GridView(ControlView& view, QWidget* parent) : QTableView(parent), view_(&view) {
  setModel(new GridModel(this));
  setFocusPolicy(Qt::TabFocus);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
}

void GridView::prcUpdate(const Control& control, bool blnFirst) {
  if (blnFirst || view_->Drawn.Face != control.Face ||
      view_->Drawn.ForeColor != control.ForeColor) {
    prcDress(control);
  }
  if (blnFirst || view_->Drawn.Grid != control.Grid) {
    const int scrolled = verticalScrollBar()->value();
    static_cast<GridModel*>(model())->prcShow(control.Grid);
    for (int at = 0; at < model()->columnCount(); ++at) {
      setColumnWidth(at, fncPixels(control.Grid->Columns[static_cast<std::size_t>(at)].Width));
    }
    verticalScrollBar()->setValue(scrolled);
  }
  if (currentIndex().row() != control.ListIndex) {
    const QModelIndex picked = model()->index(control.ListIndex, 0);
    setCurrentIndex(picked);
    if (picked.isValid() && (blnFirst || view_->Drawn.ListIndex != control.ListIndex)) {
      scrollTo(picked);
    }
  }
}

void GridView::prcDress(const Control& control) {
  setFont(fncFont(control.Face));
  setLineWidth(fncScaled(1));
  verticalHeader()->setDefaultSectionSize(fncScaled(intRowHeight));
  horizontalHeader()->setFixedHeight(fncScaled(intRowHeight + 3));
  QFont bold = font();
  bold.setBold(true);
  horizontalHeader()->setFont(bold);
  QPalette colours;
  colours.setColor(QPalette::Text, fncColour(control.ForeColor));
  colours.setColor(QPalette::WindowText, QColor::fromRgb(rgbOutline));
  setPalette(colours);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  Control* grid = view_ != nullptr && !fncSyncing() ? fncLive(*view_) : nullptr;
  if (grid != nullptr && current.isValid()) {
    prcServe([&] {
      if (fncUserReach(*grid)) {
        prcUserPick(*grid, current.row());
      }
    });
  }
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (hasFocus()) {
    QPainter painter(viewport());
    prcDrawFocus(painter, viewport()->rect());
  }
}

}  // namespace qt
