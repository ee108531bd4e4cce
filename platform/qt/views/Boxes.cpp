#include "platform/qt/views/Boxes.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/UserInput.h"
#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Menus.h"
#include "platform/qt/windows/Reports.h"

namespace qt {

namespace {

/// Lets only through what the control's mask does, of pasted and dropped texts too.
class MaskFilter : public QValidator {
 public:
  MaskFilter(const Control& box, QObject* parent) : QValidator(parent), box_(box) {}

  State validate(QString& text, int& at) const override {
    const QString kept = QString::fromStdString(fncMasked(box_, text.toStdString()));
    if (kept != text) {
      text = kept;
      at = std::min(at, static_cast<int>(text.size()));
    }
    return Acceptable;
  }

 private:
  const Control& box_;
};

Qt::Alignment fncAlignment(Alignment align) {
  switch (align) {
    case Alignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::Centre:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

void prcColour(QWidget& widget, const Control& control) {
  QPalette palette;
  if (!control.BackColor.Clear) {
    palette.setColor(QPalette::Active, QPalette::Base, fncColour(control.BackColor));
    palette.setColor(QPalette::Inactive, QPalette::Base, fncColour(control.BackColor));
  }
  palette.setColor(QPalette::Active, QPalette::Text, fncColour(control.ForeColor));
  palette.setColor(QPalette::Inactive, QPalette::Text, fncColour(control.ForeColor));
  palette.setColor(QPalette::WindowText, QColor::fromRgb(rgbOutline));  // A list's frame.
  widget.setPalette(palette);
}

/// Draws the rows of a list of two columns: what stands in the second begins at the same place in
/// all of them.
class ColumnsDelegate : public QStyledItemDelegate {
 public:
  ColumnsDelegate(const RowsView& rows, int tab) : rows_(rows), tab_(tab) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const bool blnSelected = (option.state & QStyle::State_Selected) != 0;
    painter->setFont(rows_.font());
    painter->setPen(
        rows_.palette().color(blnSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(option.rect.adjusted(rows_.fncSecondColumn(), 0, 0, 0),
                      static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                      index.data().toString().mid(tab_).trimmed());
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = option->text.left(tab_).trimmed();
  }

 private:
  const RowsView& rows_;
  int tab_;
};

/// Rows of a fixed face are set solid, as its list is laid out for: thirteen counts fit their box
/// at any scale if no row is rounded up.
QFont fncRowFont(const Type& face) {
  QFont font = fncFont(face);
  if (face.Fixed) {
    font.setPixelSize(std::max(1, static_cast<int>(double{face.Size} * 96 / 72 * fncScale())));
  }
  return font;
}

}  // namespace

EditView::EditView(ControlView& view, QWidget* parent) : QLineEdit(parent), view_(&view) {
  setFocusPolicy(Qt::TabFocus);
  setAcceptDrops(false);
  if (view.Drawn.Kind == ControlKind::MaskedEdit && *view.Drawn.Mask != '\0') {
    setValidator(new MaskFilter(view.Drawn, this));
  }
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (view_ != nullptr && !blnShowing_) {
      prcAct(*view_, [typed = text.toStdString()](Control& box) { prcUserText(box, typed); });
    }
  });
}

void EditView::prcDetach() {
  setValidator(nullptr);
  view_ = nullptr;
}

void EditView::prcUpdate(const Control& control) {
  setFont(fncFont(control.Face));
  setAlignment(fncAlignment(control.Align));
  prcColour(*this, control);
  prcShowText();
}

void EditView::prcShowText() {
  const Control* box = view_ != nullptr ? fncLive(*view_) : nullptr;
  if (box == nullptr) {
    return;
  }
  const bool blnPlain =
      box->Kind != ControlKind::MaskedEdit || view_->Home.Source->ActiveControl == box;
  const QString shown = fncText(blnPlain ? box->Text : fncMaskShown(*box));
  prcReservePrompt(blnPlain ? *box : Control{}, shown.size());
  if (shown == text()) {
    return;
  }
  // A shown format is no typed text: the mask's filter must not touch it.
  blnShowing_ = true;
  const QValidator* filter = validator();
  setValidator(nullptr);
  const int at = cursorPosition();
  setText(shown);
  setCursorPosition(std::min(at, static_cast<int>(shown.size())));
  setValidator(filter);
  blnShowing_ = false;
  if (blnPlain) {
    prcSelect();  // The program has written over what was selected.
  }
}

void EditView::prcReservePrompt(const Control& box, qsizetype typed) {
  const auto places = std::ranges::count(std::string_view(box.Mask), '9');
  prompt_ = QString(std::max(qsizetype{0}, qsizetype{places} - typed), QLatin1Char(box.Prompt));
  setTextMargins(0, 0, fontMetrics().horizontalAdvance(prompt_), 0);
}

void EditView::prcSelect() {
  const Control* box = view_ != nullptr ? fncLive(*view_) : nullptr;
  if (box == nullptr) {
    return;
  }
  if (view_->Home.Source->ActiveControl != box) {
    deselect();
  } else if (box->SelLength > 0) {
    setSelection(0, std::min(box->SelLength, static_cast<int>(text().size())));
  }
}

bool EditView::fncRefuses(const QString& typed) const {
  if (view_ == nullptr || view_->Drawn.Kind != ControlKind::MaskedEdit || typed.size() != 1 ||
      !typed.at(0).isPrint()) {
    return false;
  }
  const auto left = static_cast<std::size_t>(text().size() - selectedText().size());
  return !fncMaskAdmits(view_->Drawn, left, typed.at(0).toLatin1());
}

bool EditView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // A box would keep some keys of the frame's menus to itself, such as Ctrl+Z.
    const auto& key = *static_cast<QKeyEvent*>(event);
    const WindowView* frame = fncFrameView();
    if (frame != nullptr && window() == frame->Shell &&
        fncMenuEntryOf(key.key(), key.modifiers()) != nullptr) {
      event->ignore();
      return false;
    }
  }
  return QLineEdit::event(event);
}

void EditView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers command =
      event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (command == Qt::AltModifier && !event->text().isEmpty()) {
    event->ignore();  // An access key that means nothing here types nothing either.
    return;
  }
  if (command == Qt::NoModifier && fncRefuses(event->text())) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void EditView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus()) {
    QPainter painter(this);
    prcDrawPrompt(painter);
    prcDrawFocus(painter, rect());
  }
}

void EditView::prcDrawPrompt(QPainter& painter) const {
  if (prompt_.isEmpty()) {
    return;
  }
  QStyleOptionFrame option;
  initStyleOption(&option);
  // The toolkit keeps two pixels free at either side of a line.
  const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  const QRect line = room.adjusted(2, 0, -2 - textMargins().right(), 0);
  QRect text = fontMetrics().boundingRect(line, static_cast<int>(alignment()), this->text());
  text.setWidth(fontMetrics().horizontalAdvance(this->text()));
  QColor quiet = palette().color(QPalette::Text);
  quiet.setAlphaF(0.4F);
  painter.setPen(quiet);
  painter.drawText(QRect(text.right() + 1, line.top(), textMargins().right(), line.height()),
                   static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), prompt_);
}

RowsView::RowsView(ControlView& view, QWidget* parent) : QListWidget(parent), view_(&view) {
  setFocusPolicy(Qt::TabFocus);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideNone);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  if (const int tab = view.Drawn.ListTab; tab > 0) {
    columns_ = std::make_unique<ColumnsDelegate>(*this, tab);
    setItemDelegate(columns_.get());
  }
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    Control* list = view_ != nullptr && !fncSyncing() ? fncLive(*view_) : nullptr;
    if (list != nullptr) {
      list->ListIndex = row;
    }
  });
}

void RowsView::prcUpdate(const Control& control, bool blnFirst) {
  const QSignalBlocker quiet(this);
  if (blnFirst || view_->Drawn.Face != control.Face ||
      view_->Drawn.BackColor != control.BackColor) {
    setFont(fncRowFont(control.Face));
    setLineWidth(fncScaled(1));
    prcColour(*this, control);
  }
  prcFill(control, blnFirst);
  if (currentRow() != control.ListIndex) {
    setCurrentRow(control.ListIndex);
  }
  if (QListWidgetItem* selected = item(control.ListIndex); selected != nullptr) {
    scrollToItem(selected);
  }
}

int RowsView::fncFirstWidth(const QFont& font) const {
  const QFontMetrics metrics(font);
  const QString gap = second_.isEmpty() ? QString() : QStringLiteral("  ");
  return metrics.horizontalAdvance(first_ + gap);
}

int RowsView::fncSecondColumn() const {
  return style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1 + fncFirstWidth(font());
}

void RowsView::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  if (hasFocus()) {
    QPainter painter(viewport());
    prcDrawFocus(painter, viewport()->rect());
  }
}

void RowsView::prcFill(const Control& control, bool blnFirst) {
  const std::vector<std::string>& rows = control.List;
  const std::vector<std::string>& drawn = view_->Drawn.List;
  const bool blnGrown = !blnFirst && drawn.size() <= rows.size() &&
                        std::equal(drawn.begin(), drawn.end(), rows.begin());
  if (!blnGrown) {
    clear();
  }
  const QFontMetrics metrics(fncRowFont(control.Face));
  const auto widen = [&](QString& widest, const QString& text) {
    if (metrics.horizontalAdvance(text) > metrics.horizontalAdvance(widest)) {
      widest = text;
    }
  };
  for (std::size_t row = static_cast<std::size_t>(count()); row < rows.size(); ++row) {
    auto* shown = new QListWidgetItem(fncText(rows[row]), this);
    if (control.Face.Fixed) {
      shown->setSizeHint(QSize(0, font().pixelSize()));
    }
    const int tab = control.ListTab > 0 ? control.ListTab : static_cast<int>(rows[row].size());
    widen(first_, shown->text().left(tab).trimmed());
    widen(second_, shown->text().mid(tab).trimmed());
  }
  prcNarrow(control);
}

/// A row too long for the list would hide its end: from then on all are set narrower.
void RowsView::prcNarrow(const Control& control) {
  const int margins = 2 * (frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 2);
  const int room =
      fncPixels(control.Width) - margins - style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  QFont narrow = fncRowFont(control.Face);
  for (int stretch = 100; stretch >= 70; --stretch) {
    narrow.setStretch(stretch);
    if (control.Face.Fixed ||
        fncFirstWidth(narrow) + QFontMetrics(narrow).horizontalAdvance(second_) <= room) {
      break;
    }
  }
  setFont(narrow);
}

}  // namespace qt
