#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The machine on paper: a seed, a folder, a browser and a help viewer that only note what is asked
// of them. It stands behind the platform without a screen, and behind the real screen in tests.

namespace headless {

/// A machine as new, with folder as the folder of the settings file.
void ResetMachine(const std::string& folder);

/// The seeds that RandomSeed gives: this one, then each the next number.
void Seed(std::uint64_t seed);

/// Addresses opened and help topics shown ("file#context") since the reset, and what OpenAddress is
/// to return.
std::vector<std::string>& Opened();
void OpenAddressReturns(int code);
std::vector<std::string>& HelpShown();

/// Another instance runs, as far as the program can see.
void OtherInstanceRuns(bool blnRuns);

}  // namespace headless
