#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QUrl>

class QHelpEngineCore;

// Looking for words on all pages of the help. There are few of them: their texts are read once and
// looked through at each letter typed, so that no index has to be built.

namespace qt {

/// The text of one page.
struct HelpText {
  QUrl Address;
  QString Title, Text;
};

/// A page that has what is looked for.
struct HelpPlace {
  QUrl Address;
  QString Title;
  int Places;
};

struct HelpFound {
  QRegularExpression
      Sought;  ///< Matches each place; without a pattern where nothing is looked for.
  QList<HelpPlace> Pages;
};

/// The texts of all pages of a help file.
QList<HelpText> fncHelpTexts(QHelpEngineCore& engine, const QString& file);

/// Looks for a text as it is typed, in any case, from the start of a word; where no page has it,
/// for pages with all of its words. Those with it in the title come first, then those with most
/// places. Less than two characters are not looked for.
HelpFound fncSearch(const QList<HelpText>& pages, const QString& typed);

}  // namespace qt
