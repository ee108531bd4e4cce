#include "platform/qt/machine/HelpPages.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTextFrame>
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "platform/qt/looks/Scale.h"
#include "platform/qt/looks/Style.h"

namespace qt {

namespace {

constexpr double dblPageMargin = 14;
constexpr double dblTypeSize = 14;
constexpr double dblIndent = 26;
constexpr double dblPictureScale = 2;  // At which the pictures of the pages were taken.
constexpr std::array intPercents{60, 70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr int intPlainPercent = 4;  // The place of 100.
constexpr int intWheelStep = 120;
constexpr double dblSheetWidth = 640;   // A printed page, in pixels of the design.
constexpr double dblSheetFineness = 3;  // About 300 dots to the inch.

/// The size of type in percent, so many steps from the plain one.
int fncPercent(int steps) { return *std::next(intPercents.begin(), intPlainPercent + steps); }

/// The spaces between paragraphs, lines of a list and headings, which the pages leave to the scale.
QString fncSpaces(double factor) {
  const auto pixels = [factor](double design) { return std::lround(design * factor); };
  return QStringLiteral(
             "p, ul, ol, table { margin-top: %1px; margin-bottom: %1px; }"
             "h1, h2, h3 { margin-top: %2px; margin-bottom: %1px; }"
             "li { margin-bottom: %3px; }"
             "th, td { padding: %3px; }")
      .arg(pixels(9))
      .arg(pixels(14))
      .arg(pixels(3));
}

/// A picture's width on a page whose pixel measures factor, no wider than the room it has.
double fncWidth(double design, double factor, double room) {
  return std::clamp(design * factor, 1.0, std::max(1.0, room));
}

/// A picture as a page shows it. It comes with a palette, which would leave nothing to a smooth
/// scaling but to dither.
QImage fncPicture(const QByteArray& bytes, double factor, double room, double fineness) {
  const QImage picture = QImage::fromData(bytes);
  const double width = fncWidth(picture.width() / dblPictureScale, factor, room);
  QImage fitted =
      picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
          .scaledToWidth(static_cast<int>(std::lround(width * fineness)), Qt::SmoothTransformation);
  fitted.setDevicePixelRatio(fineness);
  return fitted;
}

/// A drawing as a page shows it, drawn at its size there.
QImage fncDrawing(const QByteArray& bytes, double factor, double room, double fineness) {
  QSvgRenderer drawing(bytes);
  const QSizeF design = drawing.defaultSize();
  const double width = fncWidth(design.width(), factor, room);
  const QSizeF size(width, width * design.height() / std::max(1.0, design.width()));
  QImage fitted((size * fineness).toSize(), QImage::Format_ARGB32_Premultiplied);
  fitted.fill(Qt::transparent);
  QPainter painter(&fitted);
  drawing.render(&painter, QRectF(fitted.rect()));
  painter.end();
  fitted.setDevicePixelRatio(fineness);
  return fitted;
}

}  // namespace

HelpPages::HelpPages(const QHelpEngine& engine, QWidget* parent)
    : QTextBrowser(parent), engine_(engine) {
  // A bar that came and went would change the room that pictures are fitted to.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setOpenLinks(false);
  connect(this, &QTextBrowser::sourceChanged, this, &HelpPages::prcFindMarks);
  prcDress();
}

double HelpPages::fncFactor() const { return fncScale() * fncPercent(zoom_) / 100; }

void HelpPages::prcDress() {
  const double factor = fncFactor();
  QFont face = fncPlainFont();
  face.setPixelSize(std::max(1, static_cast<int>(std::lround(dblTypeSize * factor))));
  setFont(face);
  document()->setDocumentMargin(dblPageMargin * factor);
  document()->setIndentWidth(dblIndent * factor);
  document()->setDefaultStyleSheet(fncSpaces(factor));
  if (source().isValid()) {
    prcLoadAnew();
  }
}

QVariant HelpPages::loadResource(int type, const QUrl& name) {
  const QUrl whole = name.isRelative() ? source().resolved(name) : name;
  const QByteArray bytes =
      whole.scheme() == QLatin1String("qthelp") ? engine_.fileData(whole) : QByteArray();
  if (type != QTextDocument::ImageResource || bytes.isEmpty()) {
    return bytes.isEmpty() ? QVariant() : bytes;
  }
  pictures_ = true;
  // One pixel is left, lest a rounded margin bring a bar across the page.
  const double room = viewport()->width() - 2 * document()->documentMargin() - 1;
  const double fineness = fineness_ > 0 ? fineness_ : devicePixelRatioF();
  return whole.path().endsWith(QLatin1String(".svg"))
             ? fncDrawing(bytes, fncFactor(), room, fineness)
             : fncPicture(bytes, fncFactor(), room, fineness);
}

void HelpPages::prcLoadAnew() {
  QTextCursor top = cursorForPosition(QPoint(0, 0));
  const int at = top.position();
  const int before = cursorRect(top).top();
  const int mark = mark_;
  reload();
  top = QTextCursor(document());
  top.setPosition(at);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top() - before);
  mark_ = mark;
  prcPaintMarks();
}

void HelpPages::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  if (pictures_ && event->oldSize().width() != event->size().width()) {
    prcLoadAnew();
  }
}

void HelpPages::prcZoom(int steps) {
  const int zoom =
      std::clamp(zoom_ + steps, -intPlainPercent, int{intPercents.size()} - 1 - intPlainPercent);
  if (zoom != zoom_) {
    zoom_ = zoom;
    prcDress();
    emit zoomed(fncPercent(zoom_));
  }
}

void HelpPages::prcZoomBack() { prcZoom(-zoom_); }

void HelpPages::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  turned_ += event->angleDelta().y();
  prcZoom(turned_ / intWheelStep);
  turned_ %= intWheelStep;
  event->accept();
}

void HelpPages::prcMark(const QRegularExpression& sought) {
  sought_ = sought;
  prcFindMarks();
}

void HelpPages::prcFindMarks() {
  marks_.clear();
  mark_ = -1;
  if (!sought_.pattern().isEmpty()) {
    for (QTextCursor found = document()->find(sought_); !found.isNull();
         found = document()->find(sought_, found)) {
      marks_.append(found);
    }
  }
  prcPaintMarks();
}

void HelpPages::prcPaintMarks() {
  QList<ExtraSelection> shown;
  for (qsizetype at = 0; at < marks_.size(); ++at) {
    ExtraSelection& mark = shown.emplaceBack();
    mark.cursor = marks_.at(at);
    mark.format.setForeground(QColor::fromRgb(rgbInk));
    mark.format.setBackground(at == mark_ ? QColor(0xF0, 0xA8, 0x30) : QColor(0xFB, 0xE6, 0x9A));
  }
  setExtraSelections(shown);
}

bool HelpPages::fncStep(bool blnBackwards) {
  const int count = fncMarks();
  mark_ = blnBackwards ? (mark_ < 0 ? count : mark_) - 1 : mark_ + 1;
  const bool blnThere = mark_ >= 0 && mark_ < count;
  mark_ = blnThere ? mark_ : -1;
  prcPaintMarks();
  if (blnThere) {
    QTextCursor place = marks_.at(mark_);
    place.clearSelection();
    setTextCursor(place);
    ensureCursorVisible();
  }
  return blnThere;
}

bool HelpPages::fncPrint(QPrinter& printer) {
  HelpPages sheet(engine_);
  sheet.fineness_ = dblSheetFineness;
  const QRect paper = printer.pageLayout().paintRectPixels(printer.resolution());
  const double width = dblSheetWidth * fncScale();
  sheet.resize(static_cast<int>(width), static_cast<int>(width));
  sheet.setSource(source());
  // A copy: the page size of its own document is the browser's.
  QTextDocument& text = *sheet.document()->clone(&sheet);
  QRectF page(0, 0, width, width * paper.height() / std::max(1, paper.width()));
  text.setPageSize(page.size());
  QTextFrameFormat ground = text.rootFrame()->frameFormat();
  ground.clearBackground();
  text.rootFrame()->setFrameFormat(ground);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  painter.scale(paper.width() / width, paper.width() / width);
  for (int number = 0; number < text.pageCount(); ++number) {
    if (number > 0) {
      printer.newPage();
      painter.translate(0, -page.height());
      page.translate(0, page.height());
    }
    text.drawContents(&painter, page);
  }
  return painter.end();
}

}  // namespace qt
