#pragma once

/// Gives every control of the table its kind, place and texts, as the window is designed. Called by
/// its load.
void prcLayOutBaccTable();
