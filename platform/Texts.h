#pragma once

#include <clocale>
#include <string>
#include <string_view>

// Numbers as text and text as numbers, in the forms that the settings file and the captions use.

/// A line break as message boxes and captions hold it.
inline constexpr const char* strLineBreak = "\r\n";

/// The number at the start of text, leading blanks skipped: sign, digits, one point. 0 where there
/// is none.
double fncVal(std::string_view text);

/// Whether the whole of text, blanks around it aside, reads as one number. Empty text does not.
bool fncIsNumeric(std::string_view text);

/// The shortest decimal text that reads back as number, with one leading blank when it is not
/// negative.
std::string fncNumberText(double number);

/// The same without the leading blank.
std::string fncPlainNumberText(double number);

/// Whether two texts are equal without regard to the case of A to Z.
bool fncEqualNoCase(std::string_view one, std::string_view other);

/// How symbol and sign stand around an amount, counted as the C library counts them.
struct CurrencyForm {
  bool blnSymbolFirst = true;
  int intSpace = 0;  ///< 1: between symbol and digits. 2: beside the sign. 0: none.
  /// 0: parentheses. 1, 2: before, behind all. 3, 4: the same of the symbol.
  int intSignPlace = 1;
  std::string strSign;
};

/// How the user's country writes money without decimal places.
struct CurrencyStyle {
  std::string strSymbol = "$";
  std::string strThousands = ",";
  /// Sizes of the groups of digits from the right; the last repeats.
  std::string strGroups = "\3";
  CurrencyForm Positive;
  CurrencyForm Negative{.strSign = "-"};
};

/// The style of a country; the dollar form above where it names no currency, as "C" does.
CurrencyStyle fncCurrencyOf(const std::lconv& country);

/// The style of the system's locale.
CurrencyStyle fncSystemCurrency();

/// Replaces the style that fncCurrency uses from now on.
void prcSetCurrency(const CurrencyStyle& style);

/// amount in money as currency text with no decimal places; half a unit rounds away from zero. What
/// counts is the amount's first 15 digits, all that a sum of bets and wins has to tell.
std::string fncCurrency(double amount);
