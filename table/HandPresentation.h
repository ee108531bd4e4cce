#pragma once

/// Shows the hand just dealt card by card, waits for the user where cards lie face down, and shows
/// the result labels. Changes nothing of the hand. Serves events in its waits.
void prcPresentHand();
