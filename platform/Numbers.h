#pragma once

#include <array>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "platform/Fault.h"

// Whole numbers that never wrap. An Integer has 16 bits and a Long 32 in meaning; what does not fit
// is a fault.

/// A whole number held in Bits, checked at every assignment. Arithmetic on it runs in 64 bits or in
/// double.
template <std::signed_integral Bits>
class Checked {
 public:
  constexpr Checked() = default;

  /// Takes any whole number; throws faultOverflow where it does not fit.
  template <std::integral Whole>
  constexpr Checked(Whole whole) : held_(fncFit(static_cast<std::int64_t>(whole))) {}

  template <std::signed_integral Other>
  constexpr Checked(Checked<Other> other) : held_(fncFit(static_cast<Other>(other))) {}

  constexpr operator Bits() const { return held_; }

  /// Adds or takes off a whole number; throws faultOverflow, and keeps its value, where the result
  /// does not fit.
  template <class Whole>
  requires(!std::floating_point<Whole>) constexpr Checked& operator+=(Whole whole) {
    held_ = fncFit(std::int64_t{held_} + static_cast<std::int64_t>(whole));
    return *this;
  }
  template <class Whole>
  requires(!std::floating_point<Whole>) constexpr Checked& operator-=(Whole whole) {
    held_ = fncFit(std::int64_t{held_} - static_cast<std::int64_t>(whole));
    return *this;
  }
  constexpr Checked& operator++() { return *this += 1; }
  constexpr Checked& operator--() { return *this -= 1; }

 private:
  static constexpr Bits fncFit(std::int64_t whole) {
    if (whole < std::numeric_limits<Bits>::min() || whole > std::numeric_limits<Bits>::max()) {
      throw faultOverflow;
    }
    return static_cast<Bits>(whole);
  }

  Bits held_ = 0;
};

using Integer = Checked<std::int16_t>;
using Long = Checked<std::int32_t>;

namespace numbers {

template <class T>
inline constexpr bool blnChecked = false;
template <class Bits>
inline constexpr bool blnChecked<Checked<Bits>> = true;

template <class T>
concept Number = blnChecked<T> || std::is_arithmetic_v<T>;

/// The type in which two numbers are reckoned: 64 bits, or double as soon as one of them has a
/// fraction.
template <class A, class B>
using Wide = std::conditional_t<std::is_floating_point_v<A> || std::is_floating_point_v<B>, double,
                                std::int64_t>;

template <class To, Number From>
constexpr To fncWiden(From number) {
  if constexpr (blnChecked<From>) {
    return static_cast<To>(static_cast<std::int64_t>(number));
  } else {
    return static_cast<To>(number);
  }
}

template <class A, class B>
concept Mixed = Number<A> && Number<B> &&(blnChecked<A> || blnChecked<B>);

}  // namespace numbers

template <class A, class B>
requires numbers::Mixed<A, B>
constexpr auto operator+(A a, B b) {
  using W = numbers::Wide<A, B>;
  return numbers::fncWiden<W>(a) + numbers::fncWiden<W>(b);
}
template <class A, class B>
requires numbers::Mixed<A, B>
constexpr auto operator-(A a, B b) {
  using W = numbers::Wide<A, B>;
  return numbers::fncWiden<W>(a) - numbers::fncWiden<W>(b);
}
template <class A, class B>
requires numbers::Mixed<A, B>
constexpr auto operator*(A a, B b) {
  using W = numbers::Wide<A, B>;
  return numbers::fncWiden<W>(a) * numbers::fncWiden<W>(b);
}

/// Rounds to the nearest whole number, a tie to the even neighbour. Throws faultOverflow beyond 64
/// bits or for a value that is no number.
inline std::int64_t fncRound(double number) {
  if (!(number > -9.2e18 && number < 9.2e18)) {
    throw faultOverflow;
  }
  return std::llrint(number);
}

/// number as an Integer, a tie to the even neighbour; faultOverflow outside -32768..32767.
inline Integer fncInteger(double number) { return {fncRound(number)}; }

/// number as a Long, a tie to the even neighbour; faultOverflow outside 32 bits.
inline Long fncLong(double number) { return {fncRound(number)}; }

/// numerator / denominator truncated towards zero; faultDivision when the denominator is 0.
constexpr std::int64_t fncDivide(std::int64_t numerator, std::int64_t denominator) {
  if (denominator == 0) {
    throw faultDivision;
  }
  return numerator / denominator;
}

/// A table of fixed size. An index outside 0..Rows-1 is faultSubscript.
template <class T, int Rows>
class Table {
 public:
  constexpr Table() = default;
  constexpr explicit Table(const std::array<T, static_cast<std::size_t>(Rows)>& rows)
      : rows_(rows) {}

  constexpr T& operator[](std::int64_t index) { return rows_[fncBound(index)]; }
  constexpr const T& operator[](std::int64_t index) const { return rows_[fncBound(index)]; }

  constexpr auto begin() { return rows_.begin(); }
  constexpr auto end() { return rows_.end(); }
  constexpr auto begin() const { return rows_.begin(); }
  constexpr auto end() const { return rows_.end(); }
  static constexpr int size() { return Rows; }
  constexpr void fill(const T& value) { rows_.fill(value); }

 private:
  static constexpr std::size_t fncBound(std::int64_t index) {
    if (index < 0 || index >= Rows) {
      throw faultSubscript;
    }
    return static_cast<std::size_t>(index);
  }

  std::array<T, static_cast<std::size_t>(Rows)> rows_{};
};
