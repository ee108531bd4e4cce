#pragma once

/// Adds the Evening menu to the frame, behind the menus that stand there.
void prcLayOutEveningMenu();
