#pragma once

#include <string>

/// A key while cards wait for the user: "1" to "6" or the arrows choose a hidden card, Enter or Space turns the chosen
/// one. Does nothing when no card waits.
void prcRevealKey(const std::string& strKey);
