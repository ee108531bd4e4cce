#include "platform/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>
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

CurrencyStyle fncSystemCurrency() {
  const std::string before = std::setlocale(LC_MONETARY, nullptr);
  CurrencyStyle style;
  if (std::setlocale(LC_MONETARY, "") != nullptr) {
    const std::lconv* country = std::localeconv();
    if (*country->currency_symbol != '\0') {
      style.strSymbol = country->currency_symbol;
      style.strThousands = country->mon_thousands_sep;
      style.blnSymbolFirst = country->p_cs_precedes == 1;
      style.blnSpaced = country->p_sep_by_space == 1;
      style.blnParentheses = country->n_sign_posn == 0;
    }
  }
  std::setlocale(LC_MONETARY, before.c_str());
  return style;
}

void prcSetCurrency(const CurrencyStyle& style) { styleInForce = style; }

std::string fncCurrency(double amount) {
  if (!styleInForce) {
    styleInForce = fncSystemCurrency();
  }
  const CurrencyStyle& style = *styleInForce;
  const double whole = std::round(std::abs(amount));
  std::string digits = fncPlainNumberText(whole);
  for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3) {
    digits.insert(static_cast<std::size_t>(at), style.strThousands);
  }
  const std::string gap = style.blnSpaced ? " " : "";
  std::string text =
      style.blnSymbolFirst ? style.strSymbol + gap + digits : digits + gap + style.strSymbol;
  if (amount < 0 && whole > 0) {
    text = style.blnParentheses ? "(" + text + ")" : "-" + text;
  }
  return text;
}
