#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/Control.h"

// What a grid shows, as plain data: made by the game as a whole and handed to a control, never
// changed afterwards. The text of a cell is asked for when it is seen, so that ten thousand rows
// cost no more than those in sight.

/// A column. Width is in twips.
struct GridColumn {
  const char* Heading;
  double Width;
  Alignment Align = Alignment::Left;
};

struct GridData {
  std::span<const GridColumn> Columns;
  std::vector<std::int32_t> Rows;  ///< What Cell and Ink get, in the order of the rows.
  std::string (*Cell)(std::int32_t row, int column) = nullptr;
  Colour (*Ink)(std::int32_t row, int column) = nullptr;  ///< None means the control's ForeColor.
};
