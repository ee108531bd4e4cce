#pragma once

#include <string>

#include "platform/Window.h"

// Where the floating windows stood when they were last closed. Twips, in the screen's coordinates.

/// Gives a window the Top and Left stored under its own section, mended so
/// that it is seen; 0 where a key is missing.
void prcReadPlace(Window& form, const std::string& strSection);

/// Stores a window's Top and Left under its own section.
void prcWritePlace(const Window& form, const std::string& strSection);
