#pragma once

#include <cstdint>
#include <string>

#include "platform/Window.h"

// Where windows stood when they were last closed, each under a section of its own. Twips: a child's
// place counts in the frame's field, any other's on the screen.

/// What of a place is read.
enum class PlaceKeys : std::uint8_t { Corner, Whole };

/// Gives a window its stored Top and Left, or its Height and Width too, and mends them so that it
/// is seen; 0 where a key is missing.
void prcReadPlace(Window& form, const std::string& strSection, PlaceKeys keys = PlaceKeys::Corner);

/// Stores the same.
void prcWritePlace(const Window& form, const std::string& strSection,
                   PlaceKeys keys = PlaceKeys::Corner);
