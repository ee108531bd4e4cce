#pragma once

// The chip value, 10 to 9990 in steps of 10, and the hands at a time, 1 to 90: their boxes on the
// table.

void txtUnitValue_GotFocus();
/// Saves a good chip value, and takes the focus back from a bad one after its message.
void txtUnitValue_LostFocus();
void mskHandsAtaTime_GotFocus();
/// Mends an empty hands box to "1", and takes the focus back from a bad number after its message.
void mskHandsAtaTime_LostFocus();

/// Whether the chip value box holds a value that a bet can be reckoned with.
bool fncUnitValueStands();
