#include "platform/qt/machine/HelpSearch.h"

#include <QHelpEngineCore>
#include <QTextDocument>
#include <algorithm>
#include <tuple>

namespace qt {

namespace {

constexpr int intLeastTyped = 2;

/// Any of some texts in any case, each at the start of a word.
QRegularExpression fncAnyOf(QStringList texts) {
  // The longer one first: of two that begin alike, it is marked whole.
  std::ranges::sort(texts, std::ranges::greater(), &QString::size);
  std::ranges::transform(texts, texts.begin(),
                         qOverload<const QString&>(&QRegularExpression::escape));
  return QRegularExpression(
      QStringLiteral("(?<!\\w)(?:%1)").arg(texts.join(QLatin1Char('|'))),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

int fncCount(const QString& text, const QRegularExpression& sought) {
  int count = 0;
  for (auto at = sought.globalMatch(text); at.hasNext(); at.next()) {
    ++count;
  }
  return count;
}

}  // namespace

QList<HelpText> fncHelpTexts(QHelpEngineCore& engine, const QString& file) {
  QList<HelpText> texts;
  const QString name = QHelpEngineCore::namespaceName(file);
  for (const QUrl& address : engine.files(name, QString(), QStringLiteral("html"))) {
    QTextDocument page;
    page.setHtml(QString::fromUtf8(engine.fileData(address)));
    texts.append({address, page.metaInformation(QTextDocument::DocumentTitle), page.toPlainText()});
  }
  return texts;
}

HelpFound fncSearch(const QList<HelpText>& pages, const QString& typed) {
  const QString text = typed.simplified();
  if (text.size() < intLeastTyped) {
    return {};
  }
  const QStringList words = text.split(QLatin1Char(' '));
  const auto has = [](const HelpText& page, const QString& part) {
    return page.Text.contains(fncAnyOf({part}));
  };
  const bool blnWhole =
      std::ranges::any_of(pages, [&](const HelpText& page) { return has(page, text); });
  const QStringList parts = blnWhole ? QStringList(text) : words;
  HelpFound found{fncAnyOf(parts), {}};
  for (const HelpText& page : pages) {
    if (std::ranges::all_of(parts, [&](const QString& part) { return has(page, part); })) {
      found.Pages.append({page.Address, page.Title, fncCount(page.Text, found.Sought)});
    }
  }
  std::ranges::stable_sort(found.Pages, std::ranges::greater(), [&](const HelpPlace& page) {
    return std::tuple(fncCount(page.Title, found.Sought), page.Places);
  });
  return found;
}

}  // namespace qt
