#pragma once

/// Books the hand just dealt for both seats: money, labels, statistics in the settings file,
/// marking cards. Reads the bet boxes as they stood when the hand was dealt. Serves no events.
void prcSettleHand();
