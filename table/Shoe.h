#pragma once

#include "platform/Numbers.h"

/// The Shuffle button: asks first while a shoe is in play, then shuffles.
void maisyk_Click();

/// Shuffles the table's shoe and brings the table into its state for the first hand. Takes about
/// two seconds.
void prcShuffleTable();

/// Builds, shuffles and burns the shoe intShoe 0..8 and resets all that belonged to the one before.
/// Serves events after each card; ends early, with what it has, when intLastCard is lowered
/// meanwhile.
void Shuffle(const Integer& intShoe);
