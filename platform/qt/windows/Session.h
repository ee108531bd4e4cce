#pragma once

// The life of the platform inside an application object of the toolkit.

namespace qt {

/// Readies the platform: scale, style, input. An application object must stand; called once for
/// each.
void prcBringUpPlatform();

/// Takes everything off the screen and gives up what is kept.
void prcTakeDownPlatform();

}  // namespace qt
