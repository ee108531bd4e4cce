#pragma once

// Measurements at the open table of the running program. Each serves events and tells its figures.

namespace bench {

/// Ten seconds without a user: at the open table, then in the poll that waits for a card.
void prcIdle();

/// A squeeze against a bare widget, then a stream of moves. A hand waits for the user meanwhile.
void prcSqueeze();

/// Five shoes of eight decks: each shuffled, then dealt in one run of 90 hands with both seats
/// betting.
void prcShoes();

/// What table, marking card and both lists hold together when a shoe has been played.
void prcMemory();

}  // namespace bench
