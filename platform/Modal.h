#pragma once

#include "platform/Window.h"

/// Shows the window as a modal dialog and returns when it is hidden or unloaded. Events are served
/// meanwhile.
void prcShowModal(Window& window);
