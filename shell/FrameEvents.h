#pragma once

/// Gives the frame its name, kind and events.
void prcPrepareFrame();
