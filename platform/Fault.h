#pragma once

// What goes wrong at run time although nobody typed anything wrong. A fault travels as an exception
// to the dispatcher of events, which tells it once and ends the program (see Procedure.h).

/// A run-time fault: its number and the words that the failure box shows for it.
struct Fault {
  int Number;
  const char* Description;
};

/// A value does not fit its 16-bit Integer or 32-bit Long.
inline constexpr Fault faultOverflow{6, "Overflow"};
/// The machine gave no memory.
inline constexpr Fault faultOutOfMemory{7, "Out of memory"};
/// An index lies outside its table.
inline constexpr Fault faultSubscript{9, "Subscript out of range"};
/// A whole number was divided by zero.
inline constexpr Fault faultDivision{11, "Division by zero"};
/// Anything that the standard library throws and nobody foresaw.
inline constexpr Fault faultInternal{51, "Internal error"};
