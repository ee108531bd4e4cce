#pragma once

struct Control;

// A card that turns over in its place. It is only painted, for a moment, over a table that says
// already what it has come to; whatever comes next ends it at once.

namespace qt {

struct ControlView;

/// A control is about to be drawn as it is next: shows how a card turns over if it is the back that
/// goes from it, and ends the turn on show if it lies there.
void prcFollowFlip(const ControlView& view, const Control& next);

/// Ends the turn on show, if any: the user does something else.
void prcEndFlip();

}  // namespace qt
