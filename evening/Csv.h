#pragma once

#include <span>
#include <string>

/// Hands as rows of comma separated values under a row of headings, each ended by a line break.
/// Hands are given by their numbers from 1.
std::string fncHandsCsv(std::span<const int> intHands);
