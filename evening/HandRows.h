#pragma once

#include <memory>

#include "evening/Record.h"
#include "platform/Grid.h"

// The hands of the evening as the rows of a list. A row is named by the hand's number from 1.

/// Which hands are wanted: of a shoe from 1, or 0 for all; with a result 'B', 'P' or 'T', or 0 for
/// any.
struct HandFilter {
  int Shoe = 0;
  char Result = 0;

  bool fncWants(const EveningHand& hand) const {
    return (Shoe == 0 || hand.Shoe == Shoe) && (Result == 0 || hand.Result == Result);
  }
};

/// The rows of the hands that are wanted, oldest first.
std::shared_ptr<const GridData> fncHandRows(const HandFilter& filter);
