#pragma once

// The windows that the frame shows by menu and by toolbar, and hides again.

/// Turns mnuStatistics over and shows or hides the statistics, as a modal dialog.
void prcStatistics();

/// Shows the window of the nine shoes, or hides it. Nothing in the running program calls for it.
void prcSelectaShoe();

/// Turns mnuOptions over and shows or hides the options, as a modal dialog. Their entry and button
/// are hidden.
void prcOptions();
