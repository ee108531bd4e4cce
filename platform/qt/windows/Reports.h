#pragma once

#include <functional>

#include "platform/Window.h"

// What the toolkit reports, by whatever way it came, is told to the model by these. The views call
// them from below what stands behind them: prcAct in input/Acts.cpp, prcServe in windows/Sync.cpp.

namespace qt {

struct ControlView;

/// Tells the model of something that the user does to a control: its window gets the input, act
/// runs with all its handlers, and the widget then shows what the model says, whatever the toolkit
/// made of it. A control that lies below a dialog or message hears of nothing.
void prcAct(ControlView& view, const std::function<void(Control&)>& act);

/// The same for a control that is not known by its view; one that is not on the screen is left
/// alone.
void prcAct(const Control& control, const std::function<void(Control&)>& act);

/// Runs handlers for one event of the user or of a timer and brings the screen up to date. Nothing
/// is thrown out of it, so it may stand directly in a callback of the toolkit.
void prcServe(const std::function<void()>& handlers);

}  // namespace qt
