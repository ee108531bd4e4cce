#pragma once

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

/// How the user's country writes money without decimal places.
struct CurrencyStyle {
  std::string strSymbol = "$";
  std::string strThousands = ",";
  bool blnSymbolFirst = true;
  bool blnSpaced = false;
  bool blnParentheses =
      false;  ///< A negative amount stands in parentheses instead of behind a minus sign.
};

/// The style of the system's locale; the dollar form above where the locale names no currency, as
/// in "C".
CurrencyStyle fncSystemCurrency();

/// Replaces the style that fncCurrency uses from now on.
void prcSetCurrency(const CurrencyStyle& style);

/// amount in money as currency text with no decimal places; half a unit rounds away from zero.
std::string fncCurrency(double amount);
