#pragma once

/// Adds the menu bar to the frame: top menus, entries, captions and what a click on each does.
void prcLayOutMenus();
