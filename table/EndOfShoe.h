#pragma once

/// Closes the shoe that has dealt its last hand: bets return, the rest of the shoe is listed, the
/// shoe is counted.
void prcEndOfShoe();
