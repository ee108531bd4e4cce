#pragma once

struct Window;

// Which page of the help tells about what the user is at.

/// The number by which the help's index calls the page about what has the focus in a window, or
/// about the window itself; the first page for a window that no page tells about.
int fncHelpTopic(const Window& window);

/// Shows the help at that page.
void prcHelpOn(const Window& window);
