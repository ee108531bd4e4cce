#pragma once

/// Adds both toolbars and their buttons to the frame: one set with large images and one with small
/// ones, and what a click on each button does.
void prcLayOutToolbars();
