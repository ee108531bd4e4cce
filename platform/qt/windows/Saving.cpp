#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <QWindow>
#include <algorithm>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/looks/Palette.h"
#include "platform/qt/views/Captions.h"
#include "platform/qt/views/Painted.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Sync.h"

namespace {

constexpr int intPictureFactor = 2;  // A saved picture is to look sharp on a larger screen too.

/// Shows one of the toolkit's dialogs above the window in use and serves events until it is closed.
/// Returns whether it was accepted.
bool fncAsk(QDialog& dialog) {
  QPointer<QWidget> parent(QApplication::activeWindow());
  if (parent == &dialog) {
    parent.clear();  // Shown again: it has its parent.
  }
  if (parent != nullptr && parent->windowHandle() != nullptr) {
    dialog.winId();
    dialog.windowHandle()->setTransientParent(parent->windowHandle());
  }
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.show();
  dialog.activateWindow();
  qt::prcServeUntil([&] { return !dialog.isVisible(); });
  if (parent != nullptr) {
    parent->activateWindow();
  }
  return dialog.result() == QDialog::Accepted;
}

QString fncFilter(const platform::FileKind& kind) {
  return QStringLiteral("%1 (*.%2)")
      .arg(QString::fromUtf8(kind.Name), QString::fromUtf8(kind.Ending));
}

/// Serves the dialog until a file is chosen that has one of these endings; empty where it is given
/// up. A name with another one gets that of the filter: if there is such a file already, the dialog
/// comes again with it, to ask about it.
QString fncChosen(QFileDialog& dialog, std::span<const platform::FileKind> kinds) {
  while (fncAsk(dialog)) {
    QString path = dialog.selectedFiles().value(0);
    const QString ending = QFileInfo(path).suffix();
    if (std::ranges::any_of(kinds, [&](const platform::FileKind& kind) {
          return ending.compare(QLatin1String(kind.Ending), Qt::CaseInsensitive) == 0;
        })) {
      return path;
    }
    QString named = path + QLatin1Char('.') + dialog.defaultSuffix();
    if (!QFileInfo::exists(named)) {
      return named;
    }
    dialog.selectFile(named);
  }
  return {};
}

/// Draws a control as it looks when nobody points at it.
void prcPaint(QPainter& painter, Control control, QSize size) {
  control.ListIndex = -1;
  qt::prcPaintControl(painter, control, QRect(QPoint(0, 0), size), {});
}

void prcPaintOn(QPaintDevice& device, const Control& control, QSize size) {
  QPainter painter(&device);
  prcPaint(painter, control, size);
}

std::string fncSave(const std::string& path, const QByteArray& contents) {
  const QFileInfo there(QString::fromStdString(path));
  if (there.exists() && !there.isFile()) {
    return "It is no file, and is left as it is.";  // A device would be replaced by a file.
  }
  QSaveFile file(there.filePath());
  const bool blnWritten =
      file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit();
  return blnWritten ? std::string() : file.errorString().toStdString();
}

/// The title above, the control below it as broad as the page.
std::string fncPrint(QPrinter& printer, const Control& control, const QString& title) {
  QPainter painter;
  if (!painter.begin(&printer)) {
    return "The printer does not answer.";
  }
  const QSize size = qt::fncPlace(control).size();
  const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
  const double factor = std::min(static_cast<double>(page.width()) / size.width(),
                                 page.height() * 0.9 / size.height());
  painter.scale(factor, factor);
  QFont font = qt::fncFont({.Size = 12, .Bold = true});
  painter.setFont(font);
  const int head = QFontMetrics(font).height() * 2;
  painter.drawText(QRect(0, 0, size.width(), head), Qt::AlignCenter, title);
  painter.translate(0, head);
  prcPaint(painter, control, size);
  return painter.end() ? std::string() : "The page could not be printed.";
}

}  // namespace

namespace platform {

std::string AskSavePath(const std::string& title, const std::string& name,
                        std::span<const FileKind> kinds) {
  qt::prcThrowIfEnded();
  qt::prcSyncAll();
  const auto dialog = std::make_unique<QFileDialog>(nullptr, qt::fncText(title));
  QStringList filters;
  for (const FileKind& kind : kinds) {
    filters.append(fncFilter(kind));
  }
  dialog->setObjectName(QStringLiteral("SaveDialog"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setNameFilters(filters);
  dialog->selectFile(qt::fncText(name));
  const auto follow = [&](const QString& filter) {
    dialog->setDefaultSuffix(
        QString::fromUtf8(kinds[static_cast<std::size_t>(filters.indexOf(filter))].Ending));
  };
  QObject::connect(dialog.get(), &QFileDialog::filterSelected, dialog.get(), follow);
  follow(filters.front());
  return fncChosen(*dialog, kinds).toStdString();
}

std::string SaveFile(const std::string& path, const std::string& contents) {
  return fncSave(path, QByteArray::fromStdString(contents));
}

std::string SavePicture(const Control& control, const std::string& path) {
  const QSize size = qt::fncPlace(control).size();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  const QString ending = QFileInfo(QString::fromStdString(path)).suffix().toLower();
  if (ending == QLatin1String("svg")) {
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setSize(size);
    drawing.setViewBox(QRect(QPoint(0, 0), size));
    drawing.setTitle(QApplication::applicationName());
    drawing.setDescription(qt::fncSpokenName(control));
    prcPaintOn(drawing, control, size);
  } else {
    QImage picture(size * intPictureFactor, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(intPictureFactor);
    picture.fill(QColor::fromRgb(qt::rgbPaper));
    prcPaintOn(picture, control, size);
    if (!picture.save(&buffer, "PNG")) {
      return "The picture could not be made.";
    }
  }
  return fncSave(path, buffer.data());
}

std::string PrintPicture(const Control& control, const std::string& title) {
  qt::prcThrowIfEnded();
  qt::prcSyncAll();
  const auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPageOrientation(QPageLayout::Landscape);
  printer->setDocName(qt::fncText(title));
  const auto dialog = std::make_unique<QPrintDialog>(printer.get());
  dialog->setOptions(QAbstractPrintDialog::PrintToFile);
  return fncAsk(*dialog) ? fncPrint(*printer, control, qt::fncText(title)) : std::string();
}

void CopyText(const std::string& text) {
  QApplication::clipboard()->setText(QString::fromStdString(text));
}

}  // namespace platform
