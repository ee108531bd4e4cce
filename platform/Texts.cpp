#include "platform/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <clocale>
#include <cmath>
#include <optional>

namespace {

constexpr std::string_view strBlanks = " \t\r\n";

bool fncDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// The length of the number that text begins with: sign, digits, one point, an exponent. 0 for
/// none.
std::size_t fncNumberLength(std::string_view text) {
  std::size_t at = 0;
  const auto digits = [&] {
    const std::size_t start = at;
    while (at < text.size() && fncDigit(text[at])) {
      ++at;
    }
    return at - start;
  };
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
    ++at;
  }
  std::size_t count = digits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    count += digits();
  }
  if (count == 0) {
    return 0;
  }
  const std::size_t mantissa = at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
      ++at;
    }
    if (digits() > 0) {
      return at;
    }
  }
  return mantissa;
}

std::string_view fncTrimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(strBlanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(strBlanks) - first + 1);
}

char fncLower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::optional<CurrencyStyle> styleInForce;

/// A place of the country's format; what it leaves open has a common answer.
int fncGiven(char place, int common) { return place == CHAR_MAX ? common : place; }

CurrencyForm fncForm(char precedes, char space, char signPlace, const char* sign) {
  return {.blnSymbolFirst = fncGiven(precedes, 1) != 0,
          .intSpace = fncGiven(space, 0),
          .intSignPlace = fncGiven(signPlace, 1),
          .strSign = sign};
}

/// The nearest whole number by the amount's first 15 digits: 28.499999999999996 is 28.5 in the mind
/// of who counts.
double fncWhole(double amount) {
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), amount,
                                     std::chars_format::scientific, 14);
  std::from_chars(digits.data(), written.ptr, amount);
  return std::round(amount);
}

std::string fncGrouped(std::string digits, const CurrencyStyle& style) {
  std::size_t at = digits.size();
  for (std::size_t i = 0; i < style.strGroups.size();
       i = std::min(i + 1, style.strGroups.size() - 1)) {
    const char group = style.strGroups[i];
    if (group <= 0 || group == CHAR_MAX || at <= static_cast<std::size_t>(group)) {
      break;
    }
    at -= static_cast<std::size_t>(group);
    digits.insert(at, style.strThousands);
  }
  return digits;
}

/// Digits with their symbol and sign. An empty sign leaves the blank beside it where that parts
/// symbol and digits.
std::string fncFormed(const std::string& digits, const std::string& symbol,
                      const CurrencyForm& form) {
  const std::string besideDigits = form.intSpace == 1 ? " " : "";
  const std::string besideSign = form.intSpace == 2 ? " " : "";
  const bool blnBrackets = form.intSignPlace == 0;
  const bool blnSignFirst = form.intSignPlace == 1 || form.intSignPlace == 3;
  const bool blnTouching =
      !blnBrackets && (form.intSignPlace > 2 || form.blnSymbolFirst == blnSignFirst);
  const auto with = [&](const std::string& piece) {
    return blnSignFirst ? form.strSign + besideSign + piece : piece + besideSign + form.strSign;
  };
  const std::string unit = blnTouching ? with(symbol) : symbol;
  const std::string text =
      form.blnSymbolFirst ? unit + besideDigits + digits : digits + besideDigits + unit;
  if (blnBrackets) {
    return form.strSign.empty() ? text : "(" + text + ")";
  }
  return std::string(fncTrimmed(blnTouching ? text : with(text)));
}

}  // namespace

double fncVal(std::string_view text) {
  text = fncTrimmed(text);
  text = text.substr(0, fncNumberLength(text));
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
  }
  double number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  return read.ec == std::errc() ? number : 0;
}

bool fncIsNumeric(std::string_view text) {
  text = fncTrimmed(text);
  return !text.empty() && fncNumberLength(text) == text.size();
}

std::string fncPlainNumberText(double number) {
  std::array<char, 400> digits{};
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  std::string text(digits.data(), written.ptr);
  return text == "-0" ? "0" : text;
}

std::string fncNumberText(double number) {
  std::string text = fncPlainNumberText(number);
  return text.starts_with('-') ? text : " " + text;
}

bool fncEqualNoCase(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, fncLower, fncLower);
}

CurrencyStyle fncCurrencyOf(const std::lconv& country) {
  if (*country.currency_symbol == '\0') {
    return {};
  }
  const char* const minus = *country.negative_sign == '\0' ? "-" : country.negative_sign;
  return {.strSymbol = country.currency_symbol,
          .strThousands = country.mon_thousands_sep,
          .strGroups = country.mon_grouping,
          .Positive = fncForm(country.p_cs_precedes, country.p_sep_by_space, country.p_sign_posn,
                              country.positive_sign),
          .Negative =
              fncForm(country.n_cs_precedes, country.n_sep_by_space, country.n_sign_posn, minus)};
}

CurrencyStyle fncSystemCurrency() {
  const std::string before = std::setlocale(LC_MONETARY, nullptr);
  const bool blnKnown = std::setlocale(LC_MONETARY, "") != nullptr;
  CurrencyStyle style = blnKnown ? fncCurrencyOf(*std::localeconv()) : CurrencyStyle{};
  std::setlocale(LC_MONETARY, before.c_str());
  return style;
}

void prcSetCurrency(const CurrencyStyle& style) { styleInForce = style; }

std::string fncCurrency(double amount) {
  if (!styleInForce) {
    styleInForce = fncSystemCurrency();
  }
  const double whole = fncWhole(amount);
  const std::string digits = fncGrouped(fncPlainNumberText(std::abs(whole)), *styleInForce);
  return fncFormed(digits, styleInForce->strSymbol,
                   whole < 0 ? styleInForce->Negative : styleInForce->Positive);
}
