#pragma once

#include <string>

#include "evening/Luck.h"

/// What was won or lost, in a few words.
std::string fncOutcomeWords(const Luck& luck);

/// What luck had to do with the result of a scope, in plain words, a line break between sentences.
std::string fncLuckWords(const Scope& scope, const Luck& luck);
